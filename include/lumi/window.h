/* SPDX-License-Identifier: MIT */
/* Generated from registry/transforms/window.reg by tools/lumigen; edit that instead. */
/** @file Window functions. */
#ifndef LUMI_WINDOW_H
#define LUMI_WINDOW_H

#include "types.h"

#ifdef __cplusplus
extern "C" {
#endif

/**
 * Multiplies an image by a cone about its middle.
 *
 * Rows y of the upper half and H - 1 - y have the same factors. Those of the first and last row are those of
 * lumiWinBartlettSep. Those of the others are computed in floats, in this order: with dx = W/2 - x,
 * dy = H/2 - y and q = (W/2) / (H/2), the distance r = sqrt(dx dx + q q dy dy) leaves t = W/2 - r, and the
 * factor is t (2 / W), or 0 where t is not positive.
 *
 * dst = src * factor, a float's product rounded to a float; of integers it is rounded to the nearest integer,
 * ties to even, and limited to the type. Sides of 1 and 2 are refused like smaller ones. dst may be src; its
 * rows must not overlap one another. A float for each column is taken from lumcore; where it cannot be had,
 * lumStatusNoMemory (-9) is returned after all checks.
 *
 * Returns lumStatusOk (0) or, tested in this order and before anything is written:
 *   lumStatusNullPointer (-8)  a pointer is null, plane pointers included
 *   lumStatusBadSize (-6)      roi.width or roi.height is below 1
 *   lumStatusBadStep (-14)     a step is below 1
 */
LumStatus lumiWinBartlett_16u_C1IR(Lum16u* srcDst, int srcDstStep, LumiSize roi);
LumStatus lumiWinBartlett_16u_C1R(const Lum16u* src, int srcStep, Lum16u* dst, int dstStep, LumiSize roi);
LumStatus lumiWinBartlett_32f_C1IR(Lum32f* srcDst, int srcDstStep, LumiSize roi);
LumStatus lumiWinBartlett_32f_C1R(const Lum32f* src, int srcStep, Lum32f* dst, int dstStep, LumiSize roi);
LumStatus lumiWinBartlett_8u_C1IR(Lum8u* srcDst, int srcDstStep, LumiSize roi);
LumStatus lumiWinBartlett_8u_C1R(const Lum8u* src, int srcStep, Lum8u* dst, int dstStep, LumiSize roi);

/**
 * Multiplies an image by a triangle along rows and one along columns.
 *
 * w(i) of N = 2 i / (N - 1) for i <= (N - 1) / 2, and 2 - 2 i / (N - 1) behind, in floats.
 *
 * dst = src * w(x) * w(y), both products rounded to floats; of integers the last one is rounded to the nearest
 * integer, ties to even, and limited to the type. Sides of 1 and 2 are refused like smaller ones. dst may be
 * src. A float for each column and each row is taken from lumcore; where they cannot be had, lumStatusNoMemory (-9)
 * is returned after all checks.
 *
 * Returns lumStatusOk (0) or, tested in this order and before anything is written:
 *   lumStatusNullPointer (-8)  a pointer is null, plane pointers included
 *   lumStatusBadSize (-6)      roi.width or roi.height is below 1
 *   lumStatusBadStep (-14)     a step is below 1
 */
LumStatus lumiWinBartlettSep_16u_C1IR(Lum16u* srcDst, int srcDstStep, LumiSize roi);
LumStatus lumiWinBartlettSep_16u_C1R(const Lum16u* src, int srcStep, Lum16u* dst, int dstStep, LumiSize roi);
LumStatus lumiWinBartlettSep_32f_C1IR(Lum32f* srcDst, int srcDstStep, LumiSize roi);
LumStatus lumiWinBartlettSep_32f_C1R(const Lum32f* src, int srcStep, Lum32f* dst, int dstStep, LumiSize roi);
LumStatus lumiWinBartlettSep_8u_C1IR(Lum8u* srcDst, int srcDstStep, LumiSize roi);
LumStatus lumiWinBartlettSep_8u_C1R(const Lum8u* src, int srcStep, Lum8u* dst, int dstStep, LumiSize roi);

/**
 * Multiplies an image by a raised cosine of the distance from its middle.
 *
 * As lumiWinBartlett, with the factors of lumiWinHammingSep in the first and last row and
 * 0.54 - 0.46 cos(t (2 pi / W)) in the others, in floats; the error of this cosine is below 2^-22.
 *
 * Returns lumStatusOk (0) or, tested in this order and before anything is written:
 *   lumStatusNullPointer (-8)  a pointer is null, plane pointers included
 *   lumStatusBadSize (-6)      roi.width or roi.height is below 1
 *   lumStatusBadStep (-14)     a step is below 1
 */
LumStatus lumiWinHamming_16u_C1IR(Lum16u* srcDst, int srcDstStep, LumiSize roi);
LumStatus lumiWinHamming_16u_C1R(const Lum16u* src, int srcStep, Lum16u* dst, int dstStep, LumiSize roi);
LumStatus lumiWinHamming_32f_C1IR(Lum32f* srcDst, int srcDstStep, LumiSize roi);
LumStatus lumiWinHamming_32f_C1R(const Lum32f* src, int srcStep, Lum32f* dst, int dstStep, LumiSize roi);
LumStatus lumiWinHamming_8u_C1IR(Lum8u* srcDst, int srcDstStep, LumiSize roi);
LumStatus lumiWinHamming_8u_C1R(const Lum8u* src, int srcStep, Lum8u* dst, int dstStep, LumiSize roi);

/**
 * Multiplies an image by a raised cosine along rows and one along columns.
 *
 * As lumiWinBartlettSep, with w(i) = 0.54 - 0.46 cos(2 pi i / (N - 1)): the cosines of the first half are
 * computed as doubles from the first two, each from the two before it, c(i) = 2 c(1) c(i - 1) - c(i - 2); those
 * of the other half are the same.
 *
 * Returns lumStatusOk (0) or, tested in this order and before anything is written:
 *   lumStatusNullPointer (-8)  a pointer is null, plane pointers included
 *   lumStatusBadSize (-6)      roi.width or roi.height is below 1
 *   lumStatusBadStep (-14)     a step is below 1
 */
LumStatus lumiWinHammingSep_16u_C1IR(Lum16u* srcDst, int srcDstStep, LumiSize roi);
LumStatus lumiWinHammingSep_16u_C1R(const Lum16u* src, int srcStep, Lum16u* dst, int dstStep, LumiSize roi);
LumStatus lumiWinHammingSep_32f_C1IR(Lum32f* srcDst, int srcDstStep, LumiSize roi);
LumStatus lumiWinHammingSep_32f_C1R(const Lum32f* src, int srcStep, Lum32f* dst, int dstStep, LumiSize roi);
LumStatus lumiWinHammingSep_8u_C1IR(Lum8u* srcDst, int srcDstStep, LumiSize roi);
LumStatus lumiWinHammingSep_8u_C1R(const Lum8u* src, int srcStep, Lum8u* dst, int dstStep, LumiSize roi);

#ifdef __cplusplus
}
#endif

#endif
