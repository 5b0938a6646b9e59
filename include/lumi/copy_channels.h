/* SPDX-License-Identifier: MIT */
/* Generated from registry/data/copy_channels.reg by tools/lumigen; edit that instead. */
/** @file Copy between layouts. */
#ifndef LUMI_COPY_CHANNELS_H
#define LUMI_COPY_CHANNELS_H

#include "types.h"

#ifdef __cplusplus
extern "C" {
#endif

/**
 * Copies the pixels of the ROI from one channel layout to another.
 *
 * C3AC4 copies three samples into the colour of four and leaves the destination's alpha as it was;
 * AC4C3 drops alpha. C1C3 and C1C4 copy a plane into one channel (dst points at that channel's sample),
 * C3C1 and C4C1 one channel into a plane (src points at that channel's sample); the other channels
 * stay. C3P3 and C4P4 split pixels into planes, P3C3 and P4C4 merge planes into pixels; a planar
 * argument is an array of plane pointers with one step for all of them.
 *
 * Any step is taken, zero and negative ones included; rows are then done in order. Images may be
 * misaligned in any way, but must not overlap.
 *
 * Returns lumStatusOk (0) or, tested in this order and before anything is written:
 *   lumStatusNullPointer (-8)  a pointer is null, plane pointers included
 *   lumStatusBadSize (-6)      roi.width or roi.height is below 1
 */
LumStatus lumiCopy_16s_AC4C3R(const Lum16s* src, int srcStep, Lum16s* dst, int dstStep, LumiSize roi);
LumStatus lumiCopy_16s_C1C3R(const Lum16s* src, int srcStep, Lum16s* dst, int dstStep, LumiSize roi);
LumStatus lumiCopy_16s_C1C4R(const Lum16s* src, int srcStep, Lum16s* dst, int dstStep, LumiSize roi);
LumStatus lumiCopy_16s_C3AC4R(const Lum16s* src, int srcStep, Lum16s* dst, int dstStep, LumiSize roi);
LumStatus lumiCopy_16s_C3C1R(const Lum16s* src, int srcStep, Lum16s* dst, int dstStep, LumiSize roi);
LumStatus lumiCopy_16s_C3P3R(const Lum16s* src, int srcStep, Lum16s* const dst[3], int dstStep, LumiSize roi);
LumStatus lumiCopy_16s_C4C1R(const Lum16s* src, int srcStep, Lum16s* dst, int dstStep, LumiSize roi);
LumStatus lumiCopy_16s_C4P4R(const Lum16s* src, int srcStep, Lum16s* const dst[4], int dstStep, LumiSize roi);
LumStatus lumiCopy_16s_P3C3R(const Lum16s* const src[3], int srcStep, Lum16s* dst, int dstStep, LumiSize roi);
LumStatus lumiCopy_16s_P4C4R(const Lum16s* const src[4], int srcStep, Lum16s* dst, int dstStep, LumiSize roi);
LumStatus lumiCopy_16u_AC4C3R(const Lum16u* src, int srcStep, Lum16u* dst, int dstStep, LumiSize roi);
LumStatus lumiCopy_16u_C1C3R(const Lum16u* src, int srcStep, Lum16u* dst, int dstStep, LumiSize roi);
LumStatus lumiCopy_16u_C1C4R(const Lum16u* src, int srcStep, Lum16u* dst, int dstStep, LumiSize roi);
LumStatus lumiCopy_16u_C3AC4R(const Lum16u* src, int srcStep, Lum16u* dst, int dstStep, LumiSize roi);
LumStatus lumiCopy_16u_C3C1R(const Lum16u* src, int srcStep, Lum16u* dst, int dstStep, LumiSize roi);
LumStatus lumiCopy_16u_C3P3R(const Lum16u* src, int srcStep, Lum16u* const dst[3], int dstStep, LumiSize roi);
LumStatus lumiCopy_16u_C4C1R(const Lum16u* src, int srcStep, Lum16u* dst, int dstStep, LumiSize roi);
LumStatus lumiCopy_16u_C4P4R(const Lum16u* src, int srcStep, Lum16u* const dst[4], int dstStep, LumiSize roi);
LumStatus lumiCopy_16u_P3C3R(const Lum16u* const src[3], int srcStep, Lum16u* dst, int dstStep, LumiSize roi);
LumStatus lumiCopy_16u_P4C4R(const Lum16u* const src[4], int srcStep, Lum16u* dst, int dstStep, LumiSize roi);
LumStatus lumiCopy_32f_AC4C3R(const Lum32f* src, int srcStep, Lum32f* dst, int dstStep, LumiSize roi);
LumStatus lumiCopy_32f_C1C3R(const Lum32f* src, int srcStep, Lum32f* dst, int dstStep, LumiSize roi);
LumStatus lumiCopy_32f_C1C4R(const Lum32f* src, int srcStep, Lum32f* dst, int dstStep, LumiSize roi);
LumStatus lumiCopy_32f_C3AC4R(const Lum32f* src, int srcStep, Lum32f* dst, int dstStep, LumiSize roi);
LumStatus lumiCopy_32f_C3C1R(const Lum32f* src, int srcStep, Lum32f* dst, int dstStep, LumiSize roi);
LumStatus lumiCopy_32f_C3P3R(const Lum32f* src, int srcStep, Lum32f* const dst[3], int dstStep, LumiSize roi);
LumStatus lumiCopy_32f_C4C1R(const Lum32f* src, int srcStep, Lum32f* dst, int dstStep, LumiSize roi);
LumStatus lumiCopy_32f_C4P4R(const Lum32f* src, int srcStep, Lum32f* const dst[4], int dstStep, LumiSize roi);
LumStatus lumiCopy_32f_P3C3R(const Lum32f* const src[3], int srcStep, Lum32f* dst, int dstStep, LumiSize roi);
LumStatus lumiCopy_32f_P4C4R(const Lum32f* const src[4], int srcStep, Lum32f* dst, int dstStep, LumiSize roi);
LumStatus lumiCopy_32s_AC4C3R(const Lum32s* src, int srcStep, Lum32s* dst, int dstStep, LumiSize roi);
LumStatus lumiCopy_32s_C1C3R(const Lum32s* src, int srcStep, Lum32s* dst, int dstStep, LumiSize roi);
LumStatus lumiCopy_32s_C1C4R(const Lum32s* src, int srcStep, Lum32s* dst, int dstStep, LumiSize roi);
LumStatus lumiCopy_32s_C3AC4R(const Lum32s* src, int srcStep, Lum32s* dst, int dstStep, LumiSize roi);
LumStatus lumiCopy_32s_C3C1R(const Lum32s* src, int srcStep, Lum32s* dst, int dstStep, LumiSize roi);
LumStatus lumiCopy_32s_C3P3R(const Lum32s* src, int srcStep, Lum32s* const dst[3], int dstStep, LumiSize roi);
LumStatus lumiCopy_32s_C4C1R(const Lum32s* src, int srcStep, Lum32s* dst, int dstStep, LumiSize roi);
LumStatus lumiCopy_32s_C4P4R(const Lum32s* src, int srcStep, Lum32s* const dst[4], int dstStep, LumiSize roi);
LumStatus lumiCopy_32s_P3C3R(const Lum32s* const src[3], int srcStep, Lum32s* dst, int dstStep, LumiSize roi);
LumStatus lumiCopy_32s_P4C4R(const Lum32s* const src[4], int srcStep, Lum32s* dst, int dstStep, LumiSize roi);
LumStatus lumiCopy_8u_AC4C3R(const Lum8u* src, int srcStep, Lum8u* dst, int dstStep, LumiSize roi);
LumStatus lumiCopy_8u_C1C3R(const Lum8u* src, int srcStep, Lum8u* dst, int dstStep, LumiSize roi);
LumStatus lumiCopy_8u_C1C4R(const Lum8u* src, int srcStep, Lum8u* dst, int dstStep, LumiSize roi);
LumStatus lumiCopy_8u_C3AC4R(const Lum8u* src, int srcStep, Lum8u* dst, int dstStep, LumiSize roi);
LumStatus lumiCopy_8u_C3C1R(const Lum8u* src, int srcStep, Lum8u* dst, int dstStep, LumiSize roi);
LumStatus lumiCopy_8u_C3P3R(const Lum8u* src, int srcStep, Lum8u* const dst[3], int dstStep, LumiSize roi);
LumStatus lumiCopy_8u_C4C1R(const Lum8u* src, int srcStep, Lum8u* dst, int dstStep, LumiSize roi);
LumStatus lumiCopy_8u_C4P4R(const Lum8u* src, int srcStep, Lum8u* const dst[4], int dstStep, LumiSize roi);
LumStatus lumiCopy_8u_P3C3R(const Lum8u* const src[3], int srcStep, Lum8u* dst, int dstStep, LumiSize roi);
LumStatus lumiCopy_8u_P4C4R(const Lum8u* const src[4], int srcStep, Lum8u* dst, int dstStep, LumiSize roi);

/**
 * Spreads one plane over all channels, alpha included.
 *
 * dst(x, y, c) = src(x, y) for every channel c. Any step is taken; the images must not overlap.
 *
 * Returns lumStatusOk (0) or, tested in this order and before anything is written:
 *   lumStatusNullPointer (-8)  a pointer is null, plane pointers included
 *   lumStatusBadSize (-6)      roi.width or roi.height is below 1
 */
LumStatus lumiDup_8u_C1C3R(const Lum8u* src, int srcStep, Lum8u* dst, int dstStep, LumiSize roi);
LumStatus lumiDup_8u_C1C4R(const Lum8u* src, int srcStep, Lum8u* dst, int dstStep, LumiSize roi);

#ifdef __cplusplus
}
#endif

#endif
