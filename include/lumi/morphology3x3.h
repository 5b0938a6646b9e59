/* SPDX-License-Identifier: MIT */
/* Generated from registry/filters/morphology3x3.reg by tools/lumigen; edit that instead. */
/** @file Dilation and erosion by 3 x 3. */
#ifndef LUMI_MORPHOLOGY3X3_H
#define LUMI_MORPHOLOGY3X3_H

#include "types.h"

#ifdef __cplusplus
extern "C" {
#endif

/**
 * Replaces each sample by the largest one of the 3 x 3 around it, channel by channel.
 *
 * The pixels around the ROI, one on each side, are read: the caller sees to it that they are in memory. AC4
 * leaves the fourth sample of every pixel as it was. A NaN counts as minus infinity, the least of all. Where
 * zeros of both signs are the largest, the one that comes first, row after row, is stored.
 *
 * The source's step must hold two pixels more than the ROI's width, the destination's step the width. Source
 * and destination may be the same image of one step, which gives what separate ones do; they must not overlap
 * otherwise. Where a call in place needs memory that is not to be had it returns lumStatusNoMemory (-9), and
 * nothing is written.
 *
 * Returns lumStatusOk (0) or, tested in this order and before anything is written:
 *   lumStatusNullPointer (-8)  a pointer is null, plane pointers included
 *   lumStatusBadStep (-14)     a step is below 1
 *   lumStatusBadSize (-6)      roi.width or roi.height is below 1
 *   lumStatusStepTooSmall (-37) a step is below the bytes of a row
 */
LumStatus lumiDilate3x3_16u_AC4IR(Lum16u* srcDst, int srcDstStep, LumiSize roi);
LumStatus lumiDilate3x3_16u_AC4R(const Lum16u* src, int srcStep, Lum16u* dst, int dstStep, LumiSize roi);
LumStatus lumiDilate3x3_16u_C1IR(Lum16u* srcDst, int srcDstStep, LumiSize roi);
LumStatus lumiDilate3x3_16u_C1R(const Lum16u* src, int srcStep, Lum16u* dst, int dstStep, LumiSize roi);
LumStatus lumiDilate3x3_16u_C3IR(Lum16u* srcDst, int srcDstStep, LumiSize roi);
LumStatus lumiDilate3x3_16u_C3R(const Lum16u* src, int srcStep, Lum16u* dst, int dstStep, LumiSize roi);
LumStatus lumiDilate3x3_16u_C4IR(Lum16u* srcDst, int srcDstStep, LumiSize roi);
LumStatus lumiDilate3x3_16u_C4R(const Lum16u* src, int srcStep, Lum16u* dst, int dstStep, LumiSize roi);
LumStatus lumiDilate3x3_32f_AC4IR(Lum32f* srcDst, int srcDstStep, LumiSize roi);
LumStatus lumiDilate3x3_32f_AC4R(const Lum32f* src, int srcStep, Lum32f* dst, int dstStep, LumiSize roi);
LumStatus lumiDilate3x3_32f_C1IR(Lum32f* srcDst, int srcDstStep, LumiSize roi);
LumStatus lumiDilate3x3_32f_C1R(const Lum32f* src, int srcStep, Lum32f* dst, int dstStep, LumiSize roi);
LumStatus lumiDilate3x3_32f_C3IR(Lum32f* srcDst, int srcDstStep, LumiSize roi);
LumStatus lumiDilate3x3_32f_C3R(const Lum32f* src, int srcStep, Lum32f* dst, int dstStep, LumiSize roi);
LumStatus lumiDilate3x3_32f_C4IR(Lum32f* srcDst, int srcDstStep, LumiSize roi);
LumStatus lumiDilate3x3_32f_C4R(const Lum32f* src, int srcStep, Lum32f* dst, int dstStep, LumiSize roi);
LumStatus lumiDilate3x3_64f_C1R(const Lum64f* src, int srcStep, Lum64f* dst, int dstStep, LumiSize roi);
LumStatus lumiDilate3x3_8u_AC4IR(Lum8u* srcDst, int srcDstStep, LumiSize roi);
LumStatus lumiDilate3x3_8u_AC4R(const Lum8u* src, int srcStep, Lum8u* dst, int dstStep, LumiSize roi);
LumStatus lumiDilate3x3_8u_C1IR(Lum8u* srcDst, int srcDstStep, LumiSize roi);
LumStatus lumiDilate3x3_8u_C1R(const Lum8u* src, int srcStep, Lum8u* dst, int dstStep, LumiSize roi);
LumStatus lumiDilate3x3_8u_C3IR(Lum8u* srcDst, int srcDstStep, LumiSize roi);
LumStatus lumiDilate3x3_8u_C3R(const Lum8u* src, int srcStep, Lum8u* dst, int dstStep, LumiSize roi);
LumStatus lumiDilate3x3_8u_C4IR(Lum8u* srcDst, int srcDstStep, LumiSize roi);
LumStatus lumiDilate3x3_8u_C4R(const Lum8u* src, int srcStep, Lum8u* dst, int dstStep, LumiSize roi);

/**
 * Replaces each sample by the smallest one of the 3 x 3 around it, channel by channel.
 *
 * All is as in lumiDilate3x3, but that a NaN counts as infinity.
 *
 * Returns lumStatusOk (0) or, tested in this order and before anything is written:
 *   lumStatusNullPointer (-8)  a pointer is null, plane pointers included
 *   lumStatusBadStep (-14)     a step is below 1
 *   lumStatusBadSize (-6)      roi.width or roi.height is below 1
 *   lumStatusStepTooSmall (-37) a step is below the bytes of a row
 */
LumStatus lumiErode3x3_16u_AC4IR(Lum16u* srcDst, int srcDstStep, LumiSize roi);
LumStatus lumiErode3x3_16u_AC4R(const Lum16u* src, int srcStep, Lum16u* dst, int dstStep, LumiSize roi);
LumStatus lumiErode3x3_16u_C1IR(Lum16u* srcDst, int srcDstStep, LumiSize roi);
LumStatus lumiErode3x3_16u_C1R(const Lum16u* src, int srcStep, Lum16u* dst, int dstStep, LumiSize roi);
LumStatus lumiErode3x3_16u_C3IR(Lum16u* srcDst, int srcDstStep, LumiSize roi);
LumStatus lumiErode3x3_16u_C3R(const Lum16u* src, int srcStep, Lum16u* dst, int dstStep, LumiSize roi);
LumStatus lumiErode3x3_16u_C4IR(Lum16u* srcDst, int srcDstStep, LumiSize roi);
LumStatus lumiErode3x3_16u_C4R(const Lum16u* src, int srcStep, Lum16u* dst, int dstStep, LumiSize roi);
LumStatus lumiErode3x3_32f_AC4IR(Lum32f* srcDst, int srcDstStep, LumiSize roi);
LumStatus lumiErode3x3_32f_AC4R(const Lum32f* src, int srcStep, Lum32f* dst, int dstStep, LumiSize roi);
LumStatus lumiErode3x3_32f_C1IR(Lum32f* srcDst, int srcDstStep, LumiSize roi);
LumStatus lumiErode3x3_32f_C1R(const Lum32f* src, int srcStep, Lum32f* dst, int dstStep, LumiSize roi);
LumStatus lumiErode3x3_32f_C3IR(Lum32f* srcDst, int srcDstStep, LumiSize roi);
LumStatus lumiErode3x3_32f_C3R(const Lum32f* src, int srcStep, Lum32f* dst, int dstStep, LumiSize roi);
LumStatus lumiErode3x3_32f_C4IR(Lum32f* srcDst, int srcDstStep, LumiSize roi);
LumStatus lumiErode3x3_32f_C4R(const Lum32f* src, int srcStep, Lum32f* dst, int dstStep, LumiSize roi);
LumStatus lumiErode3x3_64f_C1R(const Lum64f* src, int srcStep, Lum64f* dst, int dstStep, LumiSize roi);
LumStatus lumiErode3x3_8u_AC4IR(Lum8u* srcDst, int srcDstStep, LumiSize roi);
LumStatus lumiErode3x3_8u_AC4R(const Lum8u* src, int srcStep, Lum8u* dst, int dstStep, LumiSize roi);
LumStatus lumiErode3x3_8u_C1IR(Lum8u* srcDst, int srcDstStep, LumiSize roi);
LumStatus lumiErode3x3_8u_C1R(const Lum8u* src, int srcStep, Lum8u* dst, int dstStep, LumiSize roi);
LumStatus lumiErode3x3_8u_C3IR(Lum8u* srcDst, int srcDstStep, LumiSize roi);
LumStatus lumiErode3x3_8u_C3R(const Lum8u* src, int srcStep, Lum8u* dst, int dstStep, LumiSize roi);
LumStatus lumiErode3x3_8u_C4IR(Lum8u* srcDst, int srcDstStep, LumiSize roi);
LumStatus lumiErode3x3_8u_C4R(const Lum8u* src, int srcStep, Lum8u* dst, int dstStep, LumiSize roi);

#ifdef __cplusplus
}
#endif

#endif
