/* SPDX-License-Identifier: MIT */
/* Generated from registry/data/set.reg by tools/lumigen; edit that instead. */
/** @file Fill with a value. */
#ifndef LUMI_SET_H
#define LUMI_SET_H

#include "types.h"

#ifdef __cplusplus
extern "C" {
#endif

/**
 * Stores one value in every pixel of the ROI.
 *
 * dst(x, y) = value. C3 and AC4 take three values, C4 four, read before any pixel is touched; AC4
 * leaves the fourth sample of every pixel as it was. C3C and C4C write one chosen channel: dst points
 * at that channel's sample of the first pixel, and nothing before the first or after the last chosen
 * sample is touched. Masked members (M) write the pixels whose mask sample is not zero.
 *
 * Any step is taken, zero and negative ones included; rows are then done in order. dst may be
 * misaligned in any way. Fills larger than the processor's cache bypass it.
 *
 * Returns lumStatusOk (0) or, tested in this order and before anything is written:
 *   lumStatusNullPointer (-8)  a pointer is null, plane pointers included
 *   lumStatusBadSize (-6)      roi.width or roi.height is below 1
 */
LumStatus lumiSet_16s_AC4MR(const Lum16s value[3], Lum16s* dst, int dstStep, LumiSize roi, const Lum8u* mask,
                            int maskStep);
LumStatus lumiSet_16s_AC4R(const Lum16s value[3], Lum16s* dst, int dstStep, LumiSize roi);
LumStatus lumiSet_16s_C1MR(Lum16s value, Lum16s* dst, int dstStep, LumiSize roi, const Lum8u* mask,
                           int maskStep);
LumStatus lumiSet_16s_C1R(Lum16s value, Lum16s* dst, int dstStep, LumiSize roi);
LumStatus lumiSet_16s_C3CR(Lum16s value, Lum16s* dst, int dstStep, LumiSize roi);
LumStatus lumiSet_16s_C3MR(const Lum16s value[3], Lum16s* dst, int dstStep, LumiSize roi, const Lum8u* mask,
                           int maskStep);
LumStatus lumiSet_16s_C3R(const Lum16s value[3], Lum16s* dst, int dstStep, LumiSize roi);
LumStatus lumiSet_16s_C4CR(Lum16s value, Lum16s* dst, int dstStep, LumiSize roi);
LumStatus lumiSet_16s_C4MR(const Lum16s value[4], Lum16s* dst, int dstStep, LumiSize roi, const Lum8u* mask,
                           int maskStep);
LumStatus lumiSet_16s_C4R(const Lum16s value[4], Lum16s* dst, int dstStep, LumiSize roi);
LumStatus lumiSet_16u_AC4MR(const Lum16u value[3], Lum16u* dst, int dstStep, LumiSize roi, const Lum8u* mask,
                            int maskStep);
LumStatus lumiSet_16u_AC4R(const Lum16u value[3], Lum16u* dst, int dstStep, LumiSize roi);
LumStatus lumiSet_16u_C1MR(Lum16u value, Lum16u* dst, int dstStep, LumiSize roi, const Lum8u* mask,
                           int maskStep);
LumStatus lumiSet_16u_C1R(Lum16u value, Lum16u* dst, int dstStep, LumiSize roi);
LumStatus lumiSet_16u_C3CR(Lum16u value, Lum16u* dst, int dstStep, LumiSize roi);
LumStatus lumiSet_16u_C3MR(const Lum16u value[3], Lum16u* dst, int dstStep, LumiSize roi, const Lum8u* mask,
                           int maskStep);
LumStatus lumiSet_16u_C3R(const Lum16u value[3], Lum16u* dst, int dstStep, LumiSize roi);
LumStatus lumiSet_16u_C4CR(Lum16u value, Lum16u* dst, int dstStep, LumiSize roi);
LumStatus lumiSet_16u_C4MR(const Lum16u value[4], Lum16u* dst, int dstStep, LumiSize roi, const Lum8u* mask,
                           int maskStep);
LumStatus lumiSet_16u_C4R(const Lum16u value[4], Lum16u* dst, int dstStep, LumiSize roi);
LumStatus lumiSet_32f_AC4MR(const Lum32f value[3], Lum32f* dst, int dstStep, LumiSize roi, const Lum8u* mask,
                            int maskStep);
LumStatus lumiSet_32f_AC4R(const Lum32f value[3], Lum32f* dst, int dstStep, LumiSize roi);
LumStatus lumiSet_32f_C1MR(Lum32f value, Lum32f* dst, int dstStep, LumiSize roi, const Lum8u* mask,
                           int maskStep);
LumStatus lumiSet_32f_C1R(Lum32f value, Lum32f* dst, int dstStep, LumiSize roi);
LumStatus lumiSet_32f_C3CR(Lum32f value, Lum32f* dst, int dstStep, LumiSize roi);
LumStatus lumiSet_32f_C3MR(const Lum32f value[3], Lum32f* dst, int dstStep, LumiSize roi, const Lum8u* mask,
                           int maskStep);
LumStatus lumiSet_32f_C3R(const Lum32f value[3], Lum32f* dst, int dstStep, LumiSize roi);
LumStatus lumiSet_32f_C4CR(Lum32f value, Lum32f* dst, int dstStep, LumiSize roi);
LumStatus lumiSet_32f_C4MR(const Lum32f value[4], Lum32f* dst, int dstStep, LumiSize roi, const Lum8u* mask,
                           int maskStep);
LumStatus lumiSet_32f_C4R(const Lum32f value[4], Lum32f* dst, int dstStep, LumiSize roi);
LumStatus lumiSet_32s_AC4MR(const Lum32s value[3], Lum32s* dst, int dstStep, LumiSize roi, const Lum8u* mask,
                            int maskStep);
LumStatus lumiSet_32s_AC4R(const Lum32s value[3], Lum32s* dst, int dstStep, LumiSize roi);
LumStatus lumiSet_32s_C1MR(Lum32s value, Lum32s* dst, int dstStep, LumiSize roi, const Lum8u* mask,
                           int maskStep);
LumStatus lumiSet_32s_C1R(Lum32s value, Lum32s* dst, int dstStep, LumiSize roi);
LumStatus lumiSet_32s_C3CR(Lum32s value, Lum32s* dst, int dstStep, LumiSize roi);
LumStatus lumiSet_32s_C3MR(const Lum32s value[3], Lum32s* dst, int dstStep, LumiSize roi, const Lum8u* mask,
                           int maskStep);
LumStatus lumiSet_32s_C3R(const Lum32s value[3], Lum32s* dst, int dstStep, LumiSize roi);
LumStatus lumiSet_32s_C4CR(Lum32s value, Lum32s* dst, int dstStep, LumiSize roi);
LumStatus lumiSet_32s_C4MR(const Lum32s value[4], Lum32s* dst, int dstStep, LumiSize roi, const Lum8u* mask,
                           int maskStep);
LumStatus lumiSet_32s_C4R(const Lum32s value[4], Lum32s* dst, int dstStep, LumiSize roi);
LumStatus lumiSet_8u_AC4MR(const Lum8u value[3], Lum8u* dst, int dstStep, LumiSize roi, const Lum8u* mask,
                           int maskStep);
LumStatus lumiSet_8u_AC4R(const Lum8u value[3], Lum8u* dst, int dstStep, LumiSize roi);
LumStatus lumiSet_8u_C1MR(Lum8u value, Lum8u* dst, int dstStep, LumiSize roi, const Lum8u* mask,
                          int maskStep);
LumStatus lumiSet_8u_C1R(Lum8u value, Lum8u* dst, int dstStep, LumiSize roi);
LumStatus lumiSet_8u_C3CR(Lum8u value, Lum8u* dst, int dstStep, LumiSize roi);
LumStatus lumiSet_8u_C3MR(const Lum8u value[3], Lum8u* dst, int dstStep, LumiSize roi, const Lum8u* mask,
                          int maskStep);
LumStatus lumiSet_8u_C3R(const Lum8u value[3], Lum8u* dst, int dstStep, LumiSize roi);
LumStatus lumiSet_8u_C4CR(Lum8u value, Lum8u* dst, int dstStep, LumiSize roi);
LumStatus lumiSet_8u_C4MR(const Lum8u value[4], Lum8u* dst, int dstStep, LumiSize roi, const Lum8u* mask,
                          int maskStep);
LumStatus lumiSet_8u_C4R(const Lum8u value[4], Lum8u* dst, int dstStep, LumiSize roi);

#ifdef __cplusplus
}
#endif

#endif
