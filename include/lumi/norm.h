/* SPDX-License-Identifier: MIT */
/* Generated from registry/statistics/norm.reg by tools/lumigen; edit that instead. */
/** @file Norms. */
#ifndef LUMI_NORM_H
#define LUMI_NORM_H

#include "types.h"

#ifdef __cplusplus
extern "C" {
#endif

/**
 * Finds the largest magnitude of each channel.
 *
 * norm = max |src(x, y)|, one for C1, three for C3 and AC4 (alpha is not looked at), four for C4. -32768 and
 * -2147483648 count as 32768 and 2147483648; floats that are no numbers are passed over.
 *
 * Results of all norms are stored at the end, in memory that is no part of an image.
 *
 *   norm       receives the norms
 *
 * Returns lumStatusOk (0) or, tested in this order and before anything is written:
 *   lumStatusNullPointer (-8)  a pointer is null, plane pointers included
 *   lumStatusBadSize (-6)      roi.width or roi.height is below 1
 *   lumStatusBadStep (-14)     a step is below 1
 */
LumStatus lumiNorm_Inf_16s_AC4R(const Lum16s* src, int srcStep, LumiSize roi, Lum64f norm[3]);
LumStatus lumiNorm_Inf_16s_C1R(const Lum16s* src, int srcStep, LumiSize roi, Lum64f* norm);
LumStatus lumiNorm_Inf_16s_C3R(const Lum16s* src, int srcStep, LumiSize roi, Lum64f norm[3]);
LumStatus lumiNorm_Inf_16s_C4R(const Lum16s* src, int srcStep, LumiSize roi, Lum64f norm[4]);
LumStatus lumiNorm_Inf_16u_AC4R(const Lum16u* src, int srcStep, LumiSize roi, Lum64f norm[3]);
LumStatus lumiNorm_Inf_16u_C1R(const Lum16u* src, int srcStep, LumiSize roi, Lum64f* norm);
LumStatus lumiNorm_Inf_16u_C3R(const Lum16u* src, int srcStep, LumiSize roi, Lum64f norm[3]);
LumStatus lumiNorm_Inf_16u_C4R(const Lum16u* src, int srcStep, LumiSize roi, Lum64f norm[4]);
LumStatus lumiNorm_Inf_32f_AC4R(const Lum32f* src, int srcStep, LumiSize roi, Lum64f norm[3]);
LumStatus lumiNorm_Inf_32f_C1R(const Lum32f* src, int srcStep, LumiSize roi, Lum64f* norm);
LumStatus lumiNorm_Inf_32f_C3R(const Lum32f* src, int srcStep, LumiSize roi, Lum64f norm[3]);
LumStatus lumiNorm_Inf_32f_C4R(const Lum32f* src, int srcStep, LumiSize roi, Lum64f norm[4]);
LumStatus lumiNorm_Inf_32s_C1R(const Lum32s* src, int srcStep, LumiSize roi, Lum64f* norm);
LumStatus lumiNorm_Inf_8u_AC4R(const Lum8u* src, int srcStep, LumiSize roi, Lum64f norm[3]);
LumStatus lumiNorm_Inf_8u_C1R(const Lum8u* src, int srcStep, LumiSize roi, Lum64f* norm);
LumStatus lumiNorm_Inf_8u_C3R(const Lum8u* src, int srcStep, LumiSize roi, Lum64f norm[3]);
LumStatus lumiNorm_Inf_8u_C4R(const Lum8u* src, int srcStep, LumiSize roi, Lum64f norm[4]);

/**
 * Adds up the magnitudes of each channel.
 *
 * norm = sum of |src(x, y)|. Sums of integers are exact, but for the last rounding to a double. Floats are
 * added up in single precision, over the whole image, and only with hint 2 in doubles; the order is not told.
 * Above 2^24 a sum of ones in single precision grows no more by ones.
 *
 *   norm       receives the norms
 *   hint       2 for sums in doubles, any other value for fast ones
 *
 * Returns lumStatusOk (0) or, tested in this order and before anything is written (16u: C1 C3 C4 AC4):
 *   lumStatusBadStep (-14)     a step is below 1
 *   lumStatusNullPointer (-8)  a pointer is null, plane pointers included
 *   lumStatusBadSize (-6)      roi.width or roi.height is below 1
 *
 * Returns lumStatusOk (0) or, tested in this order and before anything is written (8u 16s 32f: C1 C3 C4 AC4):
 *   lumStatusNullPointer (-8)  a pointer is null, plane pointers included
 *   lumStatusBadSize (-6)      roi.width or roi.height is below 1
 *   lumStatusBadStep (-14)     a step is below 1
 */
LumStatus lumiNorm_L1_16s_AC4R(const Lum16s* src, int srcStep, LumiSize roi, Lum64f norm[3]);
LumStatus lumiNorm_L1_16s_C1R(const Lum16s* src, int srcStep, LumiSize roi, Lum64f* norm);
LumStatus lumiNorm_L1_16s_C3R(const Lum16s* src, int srcStep, LumiSize roi, Lum64f norm[3]);
LumStatus lumiNorm_L1_16s_C4R(const Lum16s* src, int srcStep, LumiSize roi, Lum64f norm[4]);
LumStatus lumiNorm_L1_16u_AC4R(const Lum16u* src, int srcStep, LumiSize roi, Lum64f norm[3]);
LumStatus lumiNorm_L1_16u_C1R(const Lum16u* src, int srcStep, LumiSize roi, Lum64f* norm);
LumStatus lumiNorm_L1_16u_C3R(const Lum16u* src, int srcStep, LumiSize roi, Lum64f norm[3]);
LumStatus lumiNorm_L1_16u_C4R(const Lum16u* src, int srcStep, LumiSize roi, Lum64f norm[4]);
LumStatus lumiNorm_L1_32f_AC4R(const Lum32f* src, int srcStep, LumiSize roi, Lum64f norm[3], int hint);
LumStatus lumiNorm_L1_32f_C1R(const Lum32f* src, int srcStep, LumiSize roi, Lum64f* norm, int hint);
LumStatus lumiNorm_L1_32f_C3R(const Lum32f* src, int srcStep, LumiSize roi, Lum64f norm[3], int hint);
LumStatus lumiNorm_L1_32f_C4R(const Lum32f* src, int srcStep, LumiSize roi, Lum64f norm[4], int hint);
LumStatus lumiNorm_L1_8u_AC4R(const Lum8u* src, int srcStep, LumiSize roi, Lum64f norm[3]);
LumStatus lumiNorm_L1_8u_C1R(const Lum8u* src, int srcStep, LumiSize roi, Lum64f* norm);
LumStatus lumiNorm_L1_8u_C3R(const Lum8u* src, int srcStep, LumiSize roi, Lum64f norm[3]);
LumStatus lumiNorm_L1_8u_C4R(const Lum8u* src, int srcStep, LumiSize roi, Lum64f norm[4]);

/**
 * Finds the root of the sum of the squares of each channel.
 *
 * norm = sqrt(sum of src(x, y)^2). Sums of integers are exact, up to 2^64, but for their rounding to a double,
 * and the root is the nearest double. Bytes of one channel that are wider than 32768 are done in strips of that
 * width, whose norms are squared and added up as doubles.
 *
 * Floats are squared and added up in single precision, over the whole image, and only with hint 2 in doubles; the
 * order is not told.
 *
 *   norm       receives the norms
 *   hint       2 for sums in doubles, any other value for fast ones
 *
 * Returns lumStatusOk (0) or, tested in this order and before anything is written (16u: C1 C3 C4 AC4):
 *   lumStatusNullPointer (-8)  a pointer is null, plane pointers included
 *   lumStatusBadStep (-14)     a step is below 1
 *   lumStatusBadSize (-6)      roi.width or roi.height is below 1
 *
 * Returns lumStatusOk (0) or, tested in this order and before anything is written (8u 16s 32f: C1 C3 C4 AC4):
 *   lumStatusNullPointer (-8)  a pointer is null, plane pointers included
 *   lumStatusBadSize (-6)      roi.width or roi.height is below 1
 *   lumStatusBadStep (-14)     a step is below 1
 */
LumStatus lumiNorm_L2_16s_AC4R(const Lum16s* src, int srcStep, LumiSize roi, Lum64f norm[3]);
LumStatus lumiNorm_L2_16s_C1R(const Lum16s* src, int srcStep, LumiSize roi, Lum64f* norm);
LumStatus lumiNorm_L2_16s_C3R(const Lum16s* src, int srcStep, LumiSize roi, Lum64f norm[3]);
LumStatus lumiNorm_L2_16s_C4R(const Lum16s* src, int srcStep, LumiSize roi, Lum64f norm[4]);
LumStatus lumiNorm_L2_16u_AC4R(const Lum16u* src, int srcStep, LumiSize roi, Lum64f norm[3]);
LumStatus lumiNorm_L2_16u_C1R(const Lum16u* src, int srcStep, LumiSize roi, Lum64f* norm);
LumStatus lumiNorm_L2_16u_C3R(const Lum16u* src, int srcStep, LumiSize roi, Lum64f norm[3]);
LumStatus lumiNorm_L2_16u_C4R(const Lum16u* src, int srcStep, LumiSize roi, Lum64f norm[4]);
LumStatus lumiNorm_L2_32f_AC4R(const Lum32f* src, int srcStep, LumiSize roi, Lum64f norm[3], int hint);
LumStatus lumiNorm_L2_32f_C1R(const Lum32f* src, int srcStep, LumiSize roi, Lum64f* norm, int hint);
LumStatus lumiNorm_L2_32f_C3R(const Lum32f* src, int srcStep, LumiSize roi, Lum64f norm[3], int hint);
LumStatus lumiNorm_L2_32f_C4R(const Lum32f* src, int srcStep, LumiSize roi, Lum64f norm[4], int hint);
LumStatus lumiNorm_L2_8u_AC4R(const Lum8u* src, int srcStep, LumiSize roi, Lum64f norm[3]);
LumStatus lumiNorm_L2_8u_C1R(const Lum8u* src, int srcStep, LumiSize roi, Lum64f* norm);
LumStatus lumiNorm_L2_8u_C3R(const Lum8u* src, int srcStep, LumiSize roi, Lum64f norm[3]);
LumStatus lumiNorm_L2_8u_C4R(const Lum8u* src, int srcStep, LumiSize roi, Lum64f norm[4]);

/**
 * Finds the largest magnitude of the differences of two images, for each channel.
 *
 * norm = max |src1(x, y) - src2(x, y)|. Differences of integers are exact, those of floats are rounded; what is no
 * number is passed over.
 *
 *   norm       receives the norms
 *
 * Returns lumStatusOk (0) or, tested in this order and before anything is written:
 *   lumStatusNullPointer (-8)  a pointer is null, plane pointers included
 *   lumStatusBadSize (-6)      roi.width or roi.height is below 1
 *   lumStatusBadStep (-14)     a step is below 1
 */
LumStatus lumiNormDiff_Inf_16s_AC4R(const Lum16s* src1, int src1Step, const Lum16s* src2, int src2Step,
                                    LumiSize roi, Lum64f norm[3]);
LumStatus lumiNormDiff_Inf_16s_C1R(const Lum16s* src1, int src1Step, const Lum16s* src2, int src2Step,
                                   LumiSize roi, Lum64f* norm);
LumStatus lumiNormDiff_Inf_16s_C3R(const Lum16s* src1, int src1Step, const Lum16s* src2, int src2Step,
                                   LumiSize roi, Lum64f norm[3]);
LumStatus lumiNormDiff_Inf_16s_C4R(const Lum16s* src1, int src1Step, const Lum16s* src2, int src2Step,
                                   LumiSize roi, Lum64f norm[4]);
LumStatus lumiNormDiff_Inf_16u_AC4R(const Lum16u* src1, int src1Step, const Lum16u* src2, int src2Step,
                                    LumiSize roi, Lum64f norm[3]);
LumStatus lumiNormDiff_Inf_16u_C1R(const Lum16u* src1, int src1Step, const Lum16u* src2, int src2Step,
                                   LumiSize roi, Lum64f* norm);
LumStatus lumiNormDiff_Inf_16u_C3R(const Lum16u* src1, int src1Step, const Lum16u* src2, int src2Step,
                                   LumiSize roi, Lum64f norm[3]);
LumStatus lumiNormDiff_Inf_16u_C4R(const Lum16u* src1, int src1Step, const Lum16u* src2, int src2Step,
                                   LumiSize roi, Lum64f norm[4]);
LumStatus lumiNormDiff_Inf_32f_AC4R(const Lum32f* src1, int src1Step, const Lum32f* src2, int src2Step,
                                    LumiSize roi, Lum64f norm[3]);
LumStatus lumiNormDiff_Inf_32f_C1R(const Lum32f* src1, int src1Step, const Lum32f* src2, int src2Step,
                                   LumiSize roi, Lum64f* norm);
LumStatus lumiNormDiff_Inf_32f_C3R(const Lum32f* src1, int src1Step, const Lum32f* src2, int src2Step,
                                   LumiSize roi, Lum64f norm[3]);
LumStatus lumiNormDiff_Inf_32f_C4R(const Lum32f* src1, int src1Step, const Lum32f* src2, int src2Step,
                                   LumiSize roi, Lum64f norm[4]);
LumStatus lumiNormDiff_Inf_8u_AC4R(const Lum8u* src1, int src1Step, const Lum8u* src2, int src2Step,
                                   LumiSize roi, Lum64f norm[3]);
LumStatus lumiNormDiff_Inf_8u_C1R(const Lum8u* src1, int src1Step, const Lum8u* src2, int src2Step,
                                  LumiSize roi, Lum64f* norm);
LumStatus lumiNormDiff_Inf_8u_C3R(const Lum8u* src1, int src1Step, const Lum8u* src2, int src2Step,
                                  LumiSize roi, Lum64f norm[3]);
LumStatus lumiNormDiff_Inf_8u_C4R(const Lum8u* src1, int src1Step, const Lum8u* src2, int src2Step,
                                  LumiSize roi, Lum64f norm[4]);

/**
 * Adds up the magnitudes of the differences of two images, for each channel.
 *
 * norm = sum of |src1(x, y) - src2(x, y)|, as in lumiNorm_L1; with hint 2 differences are made in doubles too.
 *
 *   norm       receives the norms
 *   hint       2 for sums in doubles, any other value for fast ones
 *
 * Returns lumStatusOk (0) or, tested in this order and before anything is written:
 *   lumStatusNullPointer (-8)  a pointer is null, plane pointers included
 *   lumStatusBadSize (-6)      roi.width or roi.height is below 1
 *   lumStatusBadStep (-14)     a step is below 1
 */
LumStatus lumiNormDiff_L1_16s_AC4R(const Lum16s* src1, int src1Step, const Lum16s* src2, int src2Step,
                                   LumiSize roi, Lum64f norm[3]);
LumStatus lumiNormDiff_L1_16s_C1R(const Lum16s* src1, int src1Step, const Lum16s* src2, int src2Step,
                                  LumiSize roi, Lum64f* norm);
LumStatus lumiNormDiff_L1_16s_C3R(const Lum16s* src1, int src1Step, const Lum16s* src2, int src2Step,
                                  LumiSize roi, Lum64f norm[3]);
LumStatus lumiNormDiff_L1_16s_C4R(const Lum16s* src1, int src1Step, const Lum16s* src2, int src2Step,
                                  LumiSize roi, Lum64f norm[4]);
LumStatus lumiNormDiff_L1_16u_AC4R(const Lum16u* src1, int src1Step, const Lum16u* src2, int src2Step,
                                   LumiSize roi, Lum64f norm[3]);
LumStatus lumiNormDiff_L1_16u_C1R(const Lum16u* src1, int src1Step, const Lum16u* src2, int src2Step,
                                  LumiSize roi, Lum64f* norm);
LumStatus lumiNormDiff_L1_16u_C3R(const Lum16u* src1, int src1Step, const Lum16u* src2, int src2Step,
                                  LumiSize roi, Lum64f norm[3]);
LumStatus lumiNormDiff_L1_16u_C4R(const Lum16u* src1, int src1Step, const Lum16u* src2, int src2Step,
                                  LumiSize roi, Lum64f norm[4]);
LumStatus lumiNormDiff_L1_32f_AC4R(const Lum32f* src1, int src1Step, const Lum32f* src2, int src2Step,
                                   LumiSize roi, Lum64f norm[3], int hint);
LumStatus lumiNormDiff_L1_32f_C1R(const Lum32f* src1, int src1Step, const Lum32f* src2, int src2Step,
                                  LumiSize roi, Lum64f* norm, int hint);
LumStatus lumiNormDiff_L1_32f_C3R(const Lum32f* src1, int src1Step, const Lum32f* src2, int src2Step,
                                  LumiSize roi, Lum64f norm[3], int hint);
LumStatus lumiNormDiff_L1_32f_C4R(const Lum32f* src1, int src1Step, const Lum32f* src2, int src2Step,
                                  LumiSize roi, Lum64f norm[4], int hint);
LumStatus lumiNormDiff_L1_8u_AC4R(const Lum8u* src1, int src1Step, const Lum8u* src2, int src2Step,
                                  LumiSize roi, Lum64f norm[3]);
LumStatus lumiNormDiff_L1_8u_C1R(const Lum8u* src1, int src1Step, const Lum8u* src2, int src2Step,
                                 LumiSize roi, Lum64f* norm);
LumStatus lumiNormDiff_L1_8u_C3R(const Lum8u* src1, int src1Step, const Lum8u* src2, int src2Step,
                                 LumiSize roi, Lum64f norm[3]);
LumStatus lumiNormDiff_L1_8u_C4R(const Lum8u* src1, int src1Step, const Lum8u* src2, int src2Step,
                                 LumiSize roi, Lum64f norm[4]);

/**
 * Finds the root of the sum of the squared differences of two images, for each channel.
 *
 * norm = sqrt(sum of (src1(x, y) - src2(x, y))^2), as in lumiNorm_L2, of bytes without strips; with hint 2
 * differences are made in doubles too.
 *
 *   norm       receives the norms
 *   hint       2 for sums in doubles, any other value for fast ones
 *
 * Returns lumStatusOk (0) or, tested in this order and before anything is written:
 *   lumStatusNullPointer (-8)  a pointer is null, plane pointers included
 *   lumStatusBadSize (-6)      roi.width or roi.height is below 1
 *   lumStatusBadStep (-14)     a step is below 1
 */
LumStatus lumiNormDiff_L2_16s_AC4R(const Lum16s* src1, int src1Step, const Lum16s* src2, int src2Step,
                                   LumiSize roi, Lum64f norm[3]);
LumStatus lumiNormDiff_L2_16s_C1R(const Lum16s* src1, int src1Step, const Lum16s* src2, int src2Step,
                                  LumiSize roi, Lum64f* norm);
LumStatus lumiNormDiff_L2_16s_C3R(const Lum16s* src1, int src1Step, const Lum16s* src2, int src2Step,
                                  LumiSize roi, Lum64f norm[3]);
LumStatus lumiNormDiff_L2_16s_C4R(const Lum16s* src1, int src1Step, const Lum16s* src2, int src2Step,
                                  LumiSize roi, Lum64f norm[4]);
LumStatus lumiNormDiff_L2_16u_AC4R(const Lum16u* src1, int src1Step, const Lum16u* src2, int src2Step,
                                   LumiSize roi, Lum64f norm[3]);
LumStatus lumiNormDiff_L2_16u_C1R(const Lum16u* src1, int src1Step, const Lum16u* src2, int src2Step,
                                  LumiSize roi, Lum64f* norm);
LumStatus lumiNormDiff_L2_16u_C3R(const Lum16u* src1, int src1Step, const Lum16u* src2, int src2Step,
                                  LumiSize roi, Lum64f norm[3]);
LumStatus lumiNormDiff_L2_16u_C4R(const Lum16u* src1, int src1Step, const Lum16u* src2, int src2Step,
                                  LumiSize roi, Lum64f norm[4]);
LumStatus lumiNormDiff_L2_32f_AC4R(const Lum32f* src1, int src1Step, const Lum32f* src2, int src2Step,
                                   LumiSize roi, Lum64f norm[3], int hint);
LumStatus lumiNormDiff_L2_32f_C1R(const Lum32f* src1, int src1Step, const Lum32f* src2, int src2Step,
                                  LumiSize roi, Lum64f* norm, int hint);
LumStatus lumiNormDiff_L2_32f_C3R(const Lum32f* src1, int src1Step, const Lum32f* src2, int src2Step,
                                  LumiSize roi, Lum64f norm[3], int hint);
LumStatus lumiNormDiff_L2_32f_C4R(const Lum32f* src1, int src1Step, const Lum32f* src2, int src2Step,
                                  LumiSize roi, Lum64f norm[4], int hint);
LumStatus lumiNormDiff_L2_8u_AC4R(const Lum8u* src1, int src1Step, const Lum8u* src2, int src2Step,
                                  LumiSize roi, Lum64f norm[3]);
LumStatus lumiNormDiff_L2_8u_C1R(const Lum8u* src1, int src1Step, const Lum8u* src2, int src2Step,
                                 LumiSize roi, Lum64f* norm);
LumStatus lumiNormDiff_L2_8u_C3R(const Lum8u* src1, int src1Step, const Lum8u* src2, int src2Step,
                                 LumiSize roi, Lum64f norm[3]);
LumStatus lumiNormDiff_L2_8u_C4R(const Lum8u* src1, int src1Step, const Lum8u* src2, int src2Step,
                                 LumiSize roi, Lum64f norm[4]);

/**
 * Divides the largest difference of two images by the largest magnitude of the second, for each channel.
 *
 * norm = lumiNormDiff_Inf of both / lumiNorm_Inf of src2. Where that of src2 is 0 in any channel, all channels get
 * that of the differences, not divided, and the call returns lumStatusDivideByZeroWarning (6).
 *
 *   norm       receives the norms
 *
 * Returns lumStatusOk (0) or, tested in this order and before anything is written:
 *   lumStatusNullPointer (-8)  a pointer is null, plane pointers included
 *   lumStatusBadSize (-6)      roi.width or roi.height is below 1
 *   lumStatusBadStep (-14)     a step is below 1
 */
LumStatus lumiNormRel_Inf_16s_AC4R(const Lum16s* src1, int src1Step, const Lum16s* src2, int src2Step,
                                   LumiSize roi, Lum64f norm[3]);
LumStatus lumiNormRel_Inf_16s_C1R(const Lum16s* src1, int src1Step, const Lum16s* src2, int src2Step,
                                  LumiSize roi, Lum64f* norm);
LumStatus lumiNormRel_Inf_16s_C3R(const Lum16s* src1, int src1Step, const Lum16s* src2, int src2Step,
                                  LumiSize roi, Lum64f norm[3]);
LumStatus lumiNormRel_Inf_16s_C4R(const Lum16s* src1, int src1Step, const Lum16s* src2, int src2Step,
                                  LumiSize roi, Lum64f norm[4]);
LumStatus lumiNormRel_Inf_16u_AC4R(const Lum16u* src1, int src1Step, const Lum16u* src2, int src2Step,
                                   LumiSize roi, Lum64f norm[3]);
LumStatus lumiNormRel_Inf_16u_C1R(const Lum16u* src1, int src1Step, const Lum16u* src2, int src2Step,
                                  LumiSize roi, Lum64f* norm);
LumStatus lumiNormRel_Inf_16u_C3R(const Lum16u* src1, int src1Step, const Lum16u* src2, int src2Step,
                                  LumiSize roi, Lum64f norm[3]);
LumStatus lumiNormRel_Inf_16u_C4R(const Lum16u* src1, int src1Step, const Lum16u* src2, int src2Step,
                                  LumiSize roi, Lum64f norm[4]);
LumStatus lumiNormRel_Inf_32f_AC4R(const Lum32f* src1, int src1Step, const Lum32f* src2, int src2Step,
                                   LumiSize roi, Lum64f norm[3]);
LumStatus lumiNormRel_Inf_32f_C1R(const Lum32f* src1, int src1Step, const Lum32f* src2, int src2Step,
                                  LumiSize roi, Lum64f* norm);
LumStatus lumiNormRel_Inf_32f_C3R(const Lum32f* src1, int src1Step, const Lum32f* src2, int src2Step,
                                  LumiSize roi, Lum64f norm[3]);
LumStatus lumiNormRel_Inf_32f_C4R(const Lum32f* src1, int src1Step, const Lum32f* src2, int src2Step,
                                  LumiSize roi, Lum64f norm[4]);
LumStatus lumiNormRel_Inf_8u_AC4R(const Lum8u* src1, int src1Step, const Lum8u* src2, int src2Step,
                                  LumiSize roi, Lum64f norm[3]);
LumStatus lumiNormRel_Inf_8u_C1R(const Lum8u* src1, int src1Step, const Lum8u* src2, int src2Step,
                                 LumiSize roi, Lum64f* norm);
LumStatus lumiNormRel_Inf_8u_C3R(const Lum8u* src1, int src1Step, const Lum8u* src2, int src2Step,
                                 LumiSize roi, Lum64f norm[3]);
LumStatus lumiNormRel_Inf_8u_C4R(const Lum8u* src1, int src1Step, const Lum8u* src2, int src2Step,
                                 LumiSize roi, Lum64f norm[4]);

/**
 * Divides the summed differences of two images by the summed magnitudes of the second, for each channel.
 *
 * norm = lumiNormDiff_L1 of both / lumiNorm_L1 of src2. Where that of src2 is 0 in any channel, all channels get
 * that of the differences, not divided, and the call returns lumStatusDivideByZeroWarning (6).
 *
 *   norm       receives the norms
 *   hint       2 for sums in doubles, any other value for fast ones
 *
 * Returns lumStatusOk (0) or, tested in this order and before anything is written:
 *   lumStatusNullPointer (-8)  a pointer is null, plane pointers included
 *   lumStatusBadSize (-6)      roi.width or roi.height is below 1
 *   lumStatusBadStep (-14)     a step is below 1
 */
LumStatus lumiNormRel_L1_16s_AC4R(const Lum16s* src1, int src1Step, const Lum16s* src2, int src2Step,
                                  LumiSize roi, Lum64f norm[3]);
LumStatus lumiNormRel_L1_16s_C1R(const Lum16s* src1, int src1Step, const Lum16s* src2, int src2Step,
                                 LumiSize roi, Lum64f* norm);
LumStatus lumiNormRel_L1_16s_C3R(const Lum16s* src1, int src1Step, const Lum16s* src2, int src2Step,
                                 LumiSize roi, Lum64f norm[3]);
LumStatus lumiNormRel_L1_16s_C4R(const Lum16s* src1, int src1Step, const Lum16s* src2, int src2Step,
                                 LumiSize roi, Lum64f norm[4]);
LumStatus lumiNormRel_L1_16u_AC4R(const Lum16u* src1, int src1Step, const Lum16u* src2, int src2Step,
                                  LumiSize roi, Lum64f norm[3]);
LumStatus lumiNormRel_L1_16u_C1R(const Lum16u* src1, int src1Step, const Lum16u* src2, int src2Step,
                                 LumiSize roi, Lum64f* norm);
LumStatus lumiNormRel_L1_16u_C3R(const Lum16u* src1, int src1Step, const Lum16u* src2, int src2Step,
                                 LumiSize roi, Lum64f norm[3]);
LumStatus lumiNormRel_L1_16u_C4R(const Lum16u* src1, int src1Step, const Lum16u* src2, int src2Step,
                                 LumiSize roi, Lum64f norm[4]);
LumStatus lumiNormRel_L1_32f_AC4R(const Lum32f* src1, int src1Step, const Lum32f* src2, int src2Step,
                                  LumiSize roi, Lum64f norm[3], int hint);
LumStatus lumiNormRel_L1_32f_C1R(const Lum32f* src1, int src1Step, const Lum32f* src2, int src2Step,
                                 LumiSize roi, Lum64f* norm, int hint);
LumStatus lumiNormRel_L1_32f_C3R(const Lum32f* src1, int src1Step, const Lum32f* src2, int src2Step,
                                 LumiSize roi, Lum64f norm[3], int hint);
LumStatus lumiNormRel_L1_32f_C4R(const Lum32f* src1, int src1Step, const Lum32f* src2, int src2Step,
                                 LumiSize roi, Lum64f norm[4], int hint);
LumStatus lumiNormRel_L1_8u_AC4R(const Lum8u* src1, int src1Step, const Lum8u* src2, int src2Step,
                                 LumiSize roi, Lum64f norm[3]);
LumStatus lumiNormRel_L1_8u_C1R(const Lum8u* src1, int src1Step, const Lum8u* src2, int src2Step,
                                LumiSize roi, Lum64f* norm);
LumStatus lumiNormRel_L1_8u_C3R(const Lum8u* src1, int src1Step, const Lum8u* src2, int src2Step,
                                LumiSize roi, Lum64f norm[3]);
LumStatus lumiNormRel_L1_8u_C4R(const Lum8u* src1, int src1Step, const Lum8u* src2, int src2Step,
                                LumiSize roi, Lum64f norm[4]);

/**
 * Divides the L2 norm of the differences of two images by that of the second, for each channel.
 *
 * norm = sqrt(sum of (src1(x, y) - src2(x, y))^2 / sum of src2(x, y)^2), the sums as in lumiNormDiff_L2. Where
 * that of src2 is 0 in any channel, all channels get the norm of the differences, not divided, and the call
 * returns lumStatusDivideByZeroWarning (6). In single precision squares below 2^-150 are 0.
 *
 *   norm       receives the norms
 *   hint       2 for sums in doubles, any other value for fast ones
 *
 * Returns lumStatusOk (0) or, tested in this order and before anything is written:
 *   lumStatusNullPointer (-8)  a pointer is null, plane pointers included
 *   lumStatusBadSize (-6)      roi.width or roi.height is below 1
 *   lumStatusBadStep (-14)     a step is below 1
 */
LumStatus lumiNormRel_L2_16s_AC4R(const Lum16s* src1, int src1Step, const Lum16s* src2, int src2Step,
                                  LumiSize roi, Lum64f norm[3]);
LumStatus lumiNormRel_L2_16s_C1R(const Lum16s* src1, int src1Step, const Lum16s* src2, int src2Step,
                                 LumiSize roi, Lum64f* norm);
LumStatus lumiNormRel_L2_16s_C3R(const Lum16s* src1, int src1Step, const Lum16s* src2, int src2Step,
                                 LumiSize roi, Lum64f norm[3]);
LumStatus lumiNormRel_L2_16s_C4R(const Lum16s* src1, int src1Step, const Lum16s* src2, int src2Step,
                                 LumiSize roi, Lum64f norm[4]);
LumStatus lumiNormRel_L2_16u_AC4R(const Lum16u* src1, int src1Step, const Lum16u* src2, int src2Step,
                                  LumiSize roi, Lum64f norm[3]);
LumStatus lumiNormRel_L2_16u_C1R(const Lum16u* src1, int src1Step, const Lum16u* src2, int src2Step,
                                 LumiSize roi, Lum64f* norm);
LumStatus lumiNormRel_L2_16u_C3R(const Lum16u* src1, int src1Step, const Lum16u* src2, int src2Step,
                                 LumiSize roi, Lum64f norm[3]);
LumStatus lumiNormRel_L2_16u_C4R(const Lum16u* src1, int src1Step, const Lum16u* src2, int src2Step,
                                 LumiSize roi, Lum64f norm[4]);
LumStatus lumiNormRel_L2_32f_AC4R(const Lum32f* src1, int src1Step, const Lum32f* src2, int src2Step,
                                  LumiSize roi, Lum64f norm[3], int hint);
LumStatus lumiNormRel_L2_32f_C1R(const Lum32f* src1, int src1Step, const Lum32f* src2, int src2Step,
                                 LumiSize roi, Lum64f* norm, int hint);
LumStatus lumiNormRel_L2_32f_C3R(const Lum32f* src1, int src1Step, const Lum32f* src2, int src2Step,
                                 LumiSize roi, Lum64f norm[3], int hint);
LumStatus lumiNormRel_L2_32f_C4R(const Lum32f* src1, int src1Step, const Lum32f* src2, int src2Step,
                                 LumiSize roi, Lum64f norm[4], int hint);
LumStatus lumiNormRel_L2_8u_AC4R(const Lum8u* src1, int src1Step, const Lum8u* src2, int src2Step,
                                 LumiSize roi, Lum64f norm[3]);
LumStatus lumiNormRel_L2_8u_C1R(const Lum8u* src1, int src1Step, const Lum8u* src2, int src2Step,
                                LumiSize roi, Lum64f* norm);
LumStatus lumiNormRel_L2_8u_C3R(const Lum8u* src1, int src1Step, const Lum8u* src2, int src2Step,
                                LumiSize roi, Lum64f norm[3]);
LumStatus lumiNormRel_L2_8u_C4R(const Lum8u* src1, int src1Step, const Lum8u* src2, int src2Step,
                                LumiSize roi, Lum64f norm[4]);

#ifdef __cplusplus
}
#endif

#endif
