/* SPDX-License-Identifier: MIT */
/* Generated from registry/arithmetic/shift.reg by tools/lumigen; edit that instead. */
/** @file Shifts. */
#ifndef LUMI_SHIFT_H
#define LUMI_SHIFT_H

#include "types.h"

#ifdef __cplusplus
extern "C" {
#endif

/**
 * Shifts the bits of every sample to the left.
 *
 * dst(x, y) = src(x, y) << count, in place srcDst(x, y) = srcDst(x, y) << count. Bits beyond the sample are
 * lost; nothing is limited. C1 takes one count, C3 and AC4 three, C4 four, one for each channel; they may
 * have any value and are read before any pixel is touched. AC4 leaves the fourth sample of every pixel as
 * it was.
 *
 * Where all counts are as large as the sample has bits, or larger, the ROI is filled with 0 and no source is
 * read. Counts of 0 alone copy the image.
 *
 * C3 and C4 with equal counts are done as a row of samples: the width is multiplied by the channels, as 32
 * bits that wrap, and is a bad size (-6) where the product is below 1.
 *
 * The destination may be the source. Where it overlaps it otherwise, each row is done sample by sample in
 * order, but a copy must not overlap. Images and counts may be misaligned in any way.
 *
 *   count      bits to shift by
 *   counts     bits to shift each channel by: three, in C4 four
 *
 * Returns lumStatusOk (0) or, tested in this order and before anything is written:
 *   lumStatusNullPointer (-8)  a pointer is null, plane pointers included
 *   lumStatusBadStep (-14)     a step is below 1
 *   lumStatusBadSize (-6)      roi.width or roi.height is below 1
 */
LumStatus lumiLShiftC_16u_AC4IR(const Lum32u* counts, Lum16u* srcDst, int srcDstStep, LumiSize roi);
LumStatus lumiLShiftC_16u_AC4R(const Lum16u* src, int srcStep, const Lum32u* counts, Lum16u* dst, int dstStep,
                               LumiSize roi);
LumStatus lumiLShiftC_16u_C1IR(Lum32u count, Lum16u* srcDst, int srcDstStep, LumiSize roi);
LumStatus lumiLShiftC_16u_C1R(const Lum16u* src, int srcStep, Lum32u count, Lum16u* dst, int dstStep,
                              LumiSize roi);
LumStatus lumiLShiftC_16u_C3IR(const Lum32u* counts, Lum16u* srcDst, int srcDstStep, LumiSize roi);
LumStatus lumiLShiftC_16u_C3R(const Lum16u* src, int srcStep, const Lum32u* counts, Lum16u* dst, int dstStep,
                              LumiSize roi);
LumStatus lumiLShiftC_16u_C4IR(const Lum32u* counts, Lum16u* srcDst, int srcDstStep, LumiSize roi);
LumStatus lumiLShiftC_16u_C4R(const Lum16u* src, int srcStep, const Lum32u* counts, Lum16u* dst, int dstStep,
                              LumiSize roi);
LumStatus lumiLShiftC_32s_AC4IR(const Lum32u* counts, Lum32s* srcDst, int srcDstStep, LumiSize roi);
LumStatus lumiLShiftC_32s_AC4R(const Lum32s* src, int srcStep, const Lum32u* counts, Lum32s* dst, int dstStep,
                               LumiSize roi);
LumStatus lumiLShiftC_32s_C1IR(Lum32u count, Lum32s* srcDst, int srcDstStep, LumiSize roi);
LumStatus lumiLShiftC_32s_C1R(const Lum32s* src, int srcStep, Lum32u count, Lum32s* dst, int dstStep,
                              LumiSize roi);
LumStatus lumiLShiftC_32s_C3IR(const Lum32u* counts, Lum32s* srcDst, int srcDstStep, LumiSize roi);
LumStatus lumiLShiftC_32s_C3R(const Lum32s* src, int srcStep, const Lum32u* counts, Lum32s* dst, int dstStep,
                              LumiSize roi);
LumStatus lumiLShiftC_32s_C4IR(const Lum32u* counts, Lum32s* srcDst, int srcDstStep, LumiSize roi);
LumStatus lumiLShiftC_32s_C4R(const Lum32s* src, int srcStep, const Lum32u* counts, Lum32s* dst, int dstStep,
                              LumiSize roi);
LumStatus lumiLShiftC_8u_AC4IR(const Lum32u* counts, Lum8u* srcDst, int srcDstStep, LumiSize roi);
LumStatus lumiLShiftC_8u_AC4R(const Lum8u* src, int srcStep, const Lum32u* counts, Lum8u* dst, int dstStep,
                              LumiSize roi);
LumStatus lumiLShiftC_8u_C1IR(Lum32u count, Lum8u* srcDst, int srcDstStep, LumiSize roi);
LumStatus lumiLShiftC_8u_C1R(const Lum8u* src, int srcStep, Lum32u count, Lum8u* dst, int dstStep,
                             LumiSize roi);
LumStatus lumiLShiftC_8u_C3IR(const Lum32u* counts, Lum8u* srcDst, int srcDstStep, LumiSize roi);
LumStatus lumiLShiftC_8u_C3R(const Lum8u* src, int srcStep, const Lum32u* counts, Lum8u* dst, int dstStep,
                             LumiSize roi);
LumStatus lumiLShiftC_8u_C4IR(const Lum32u* counts, Lum8u* srcDst, int srcDstStep, LumiSize roi);
LumStatus lumiLShiftC_8u_C4R(const Lum8u* src, int srcStep, const Lum32u* counts, Lum8u* dst, int dstStep,
                             LumiSize roi);

/**
 * Shifts the bits of every sample to the right.
 *
 * dst(x, y) = src(x, y) >> count, in place srcDst(x, y) = srcDst(x, y) >> count. Zeros come into unsigned
 * samples, the sign into signed ones, which are so divided by 2^count towards minus infinity. A count as
 * large as the sample has bits, or larger, leaves 0 in unsigned samples, and 0 or -1 by the sign in signed
 * ones; only of unsigned samples is the ROI filled then and no source read. All else is as in lumiLShiftC.
 *
 *   count      bits to shift by
 *   counts     bits to shift each channel by: three, in C4 four
 *
 * Returns lumStatusOk (0) or, tested in this order and before anything is written:
 *   lumStatusNullPointer (-8)  a pointer is null, plane pointers included
 *   lumStatusBadStep (-14)     a step is below 1
 *   lumStatusBadSize (-6)      roi.width or roi.height is below 1
 */
LumStatus lumiRShiftC_16s_AC4IR(const Lum32u* counts, Lum16s* srcDst, int srcDstStep, LumiSize roi);
LumStatus lumiRShiftC_16s_AC4R(const Lum16s* src, int srcStep, const Lum32u* counts, Lum16s* dst, int dstStep,
                               LumiSize roi);
LumStatus lumiRShiftC_16s_C1IR(Lum32u count, Lum16s* srcDst, int srcDstStep, LumiSize roi);
LumStatus lumiRShiftC_16s_C1R(const Lum16s* src, int srcStep, Lum32u count, Lum16s* dst, int dstStep,
                              LumiSize roi);
LumStatus lumiRShiftC_16s_C3IR(const Lum32u* counts, Lum16s* srcDst, int srcDstStep, LumiSize roi);
LumStatus lumiRShiftC_16s_C3R(const Lum16s* src, int srcStep, const Lum32u* counts, Lum16s* dst, int dstStep,
                              LumiSize roi);
LumStatus lumiRShiftC_16s_C4IR(const Lum32u* counts, Lum16s* srcDst, int srcDstStep, LumiSize roi);
LumStatus lumiRShiftC_16s_C4R(const Lum16s* src, int srcStep, const Lum32u* counts, Lum16s* dst, int dstStep,
                              LumiSize roi);
LumStatus lumiRShiftC_16u_AC4IR(const Lum32u* counts, Lum16u* srcDst, int srcDstStep, LumiSize roi);
LumStatus lumiRShiftC_16u_AC4R(const Lum16u* src, int srcStep, const Lum32u* counts, Lum16u* dst, int dstStep,
                               LumiSize roi);
LumStatus lumiRShiftC_16u_C1IR(Lum32u count, Lum16u* srcDst, int srcDstStep, LumiSize roi);
LumStatus lumiRShiftC_16u_C1R(const Lum16u* src, int srcStep, Lum32u count, Lum16u* dst, int dstStep,
                              LumiSize roi);
LumStatus lumiRShiftC_16u_C3IR(const Lum32u* counts, Lum16u* srcDst, int srcDstStep, LumiSize roi);
LumStatus lumiRShiftC_16u_C3R(const Lum16u* src, int srcStep, const Lum32u* counts, Lum16u* dst, int dstStep,
                              LumiSize roi);
LumStatus lumiRShiftC_16u_C4IR(const Lum32u* counts, Lum16u* srcDst, int srcDstStep, LumiSize roi);
LumStatus lumiRShiftC_16u_C4R(const Lum16u* src, int srcStep, const Lum32u* counts, Lum16u* dst, int dstStep,
                              LumiSize roi);
LumStatus lumiRShiftC_32s_AC4IR(const Lum32u* counts, Lum32s* srcDst, int srcDstStep, LumiSize roi);
LumStatus lumiRShiftC_32s_AC4R(const Lum32s* src, int srcStep, const Lum32u* counts, Lum32s* dst, int dstStep,
                               LumiSize roi);
LumStatus lumiRShiftC_32s_C1IR(Lum32u count, Lum32s* srcDst, int srcDstStep, LumiSize roi);
LumStatus lumiRShiftC_32s_C1R(const Lum32s* src, int srcStep, Lum32u count, Lum32s* dst, int dstStep,
                              LumiSize roi);
LumStatus lumiRShiftC_32s_C3IR(const Lum32u* counts, Lum32s* srcDst, int srcDstStep, LumiSize roi);
LumStatus lumiRShiftC_32s_C3R(const Lum32s* src, int srcStep, const Lum32u* counts, Lum32s* dst, int dstStep,
                              LumiSize roi);
LumStatus lumiRShiftC_32s_C4IR(const Lum32u* counts, Lum32s* srcDst, int srcDstStep, LumiSize roi);
LumStatus lumiRShiftC_32s_C4R(const Lum32s* src, int srcStep, const Lum32u* counts, Lum32s* dst, int dstStep,
                              LumiSize roi);
LumStatus lumiRShiftC_8s_AC4IR(const Lum32u* counts, Lum8s* srcDst, int srcDstStep, LumiSize roi);
LumStatus lumiRShiftC_8s_AC4R(const Lum8s* src, int srcStep, const Lum32u* counts, Lum8s* dst, int dstStep,
                              LumiSize roi);
LumStatus lumiRShiftC_8s_C1IR(Lum32u count, Lum8s* srcDst, int srcDstStep, LumiSize roi);
LumStatus lumiRShiftC_8s_C1R(const Lum8s* src, int srcStep, Lum32u count, Lum8s* dst, int dstStep,
                             LumiSize roi);
LumStatus lumiRShiftC_8s_C3IR(const Lum32u* counts, Lum8s* srcDst, int srcDstStep, LumiSize roi);
LumStatus lumiRShiftC_8s_C3R(const Lum8s* src, int srcStep, const Lum32u* counts, Lum8s* dst, int dstStep,
                             LumiSize roi);
LumStatus lumiRShiftC_8s_C4IR(const Lum32u* counts, Lum8s* srcDst, int srcDstStep, LumiSize roi);
LumStatus lumiRShiftC_8s_C4R(const Lum8s* src, int srcStep, const Lum32u* counts, Lum8s* dst, int dstStep,
                             LumiSize roi);
LumStatus lumiRShiftC_8u_AC4IR(const Lum32u* counts, Lum8u* srcDst, int srcDstStep, LumiSize roi);
LumStatus lumiRShiftC_8u_AC4R(const Lum8u* src, int srcStep, const Lum32u* counts, Lum8u* dst, int dstStep,
                              LumiSize roi);
LumStatus lumiRShiftC_8u_C1IR(Lum32u count, Lum8u* srcDst, int srcDstStep, LumiSize roi);
LumStatus lumiRShiftC_8u_C1R(const Lum8u* src, int srcStep, Lum32u count, Lum8u* dst, int dstStep,
                             LumiSize roi);
LumStatus lumiRShiftC_8u_C3IR(const Lum32u* counts, Lum8u* srcDst, int srcDstStep, LumiSize roi);
LumStatus lumiRShiftC_8u_C3R(const Lum8u* src, int srcStep, const Lum32u* counts, Lum8u* dst, int dstStep,
                             LumiSize roi);
LumStatus lumiRShiftC_8u_C4IR(const Lum32u* counts, Lum8u* srcDst, int srcDstStep, LumiSize roi);
LumStatus lumiRShiftC_8u_C4R(const Lum8u* src, int srcStep, const Lum32u* counts, Lum8u* dst, int dstStep,
                             LumiSize roi);

#ifdef __cplusplus
}
#endif

#endif
