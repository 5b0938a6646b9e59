/* SPDX-License-Identifier: MIT */
/* Generated from registry/statistics/sum.reg by tools/lumigen; edit that instead. */
/** @file Sums and means. */
#ifndef LUMI_SUM_H
#define LUMI_SUM_H

#include "types.h"

#ifdef __cplusplus
extern "C" {
#endif

/**
 * Adds up the samples of each channel.
 *
 * C1 has one sum, C3 and AC4 three, C4 four; alpha is not looked at. Steps are not checked: 0 takes the same row
 * again and again. The sums are stored at the end, in memory that is no part of the image.
 *
 * Sums of integers are exact, of any number of samples, but for the last rounding to a double.
 *
 * Sums of floats are formed in doubles or, faster, in single precision, which loses what is small beside the sum:
 * above 2^24 a sum of ones in single precision grows no more by ones. Doubles are used for C1 where hint is 2 or the
 * width at most 16, for C3 where it is 2 or the width at most 13, for C4 where it is not 1, for AC4 where it is 2.
 * AC4 otherwise adds up each row in single precision and the rows in extended precision. The order of additions is
 * not told.
 *
 *   sum        receives the sums
 *   hint       how floats are added up; any value is taken
 *
 * Returns lumStatusOk (0) or, tested in this order and before anything is written:
 *   lumStatusNullPointer (-8)  a pointer is null, plane pointers included
 *   lumStatusBadSize (-6)      roi.width or roi.height is below 1
 */
LumStatus lumiSum_16s_AC4R(const Lum16s* src, int srcStep, LumiSize roi, Lum64f sum[3]);
LumStatus lumiSum_16s_C1R(const Lum16s* src, int srcStep, LumiSize roi, Lum64f* sum);
LumStatus lumiSum_16s_C3R(const Lum16s* src, int srcStep, LumiSize roi, Lum64f sum[3]);
LumStatus lumiSum_16s_C4R(const Lum16s* src, int srcStep, LumiSize roi, Lum64f sum[4]);
LumStatus lumiSum_16u_AC4R(const Lum16u* src, int srcStep, LumiSize roi, Lum64f sum[3]);
LumStatus lumiSum_16u_C1R(const Lum16u* src, int srcStep, LumiSize roi, Lum64f* sum);
LumStatus lumiSum_16u_C3R(const Lum16u* src, int srcStep, LumiSize roi, Lum64f sum[3]);
LumStatus lumiSum_16u_C4R(const Lum16u* src, int srcStep, LumiSize roi, Lum64f sum[4]);
LumStatus lumiSum_32f_AC4R(const Lum32f* src, int srcStep, LumiSize roi, Lum64f sum[3], int hint);
LumStatus lumiSum_32f_C1R(const Lum32f* src, int srcStep, LumiSize roi, Lum64f* sum, int hint);
LumStatus lumiSum_32f_C3R(const Lum32f* src, int srcStep, LumiSize roi, Lum64f sum[3], int hint);
LumStatus lumiSum_32f_C4R(const Lum32f* src, int srcStep, LumiSize roi, Lum64f sum[4], int hint);
LumStatus lumiSum_8u_AC4R(const Lum8u* src, int srcStep, LumiSize roi, Lum64f sum[3]);
LumStatus lumiSum_8u_C1R(const Lum8u* src, int srcStep, LumiSize roi, Lum64f* sum);
LumStatus lumiSum_8u_C3R(const Lum8u* src, int srcStep, LumiSize roi, Lum64f sum[3]);
LumStatus lumiSum_8u_C4R(const Lum8u* src, int srcStep, LumiSize roi, Lum64f sum[4]);

/**
 * Finds the mean of the samples of each channel.
 *
 * The sum of lumiSum, of the same image and hint, by width * height: C1 is divided by it, the other layouts are
 * multiplied by 1.0 / (width * height). The product is one of 32 bits: an image of 2^31 pixels and more is taken to
 * have what is left of it, as a signed number.
 *
 *   mean       receives the means
 *   hint       how floats are added up; any value is taken
 *
 * Returns lumStatusOk (0) or, tested in this order and before anything is written:
 *   lumStatusNullPointer (-8)  a pointer is null, plane pointers included
 *   lumStatusBadSize (-6)      roi.width or roi.height is below 1
 */
LumStatus lumiMean_16s_AC4R(const Lum16s* src, int srcStep, LumiSize roi, Lum64f mean[3]);
LumStatus lumiMean_16s_C1R(const Lum16s* src, int srcStep, LumiSize roi, Lum64f* mean);
LumStatus lumiMean_16s_C3R(const Lum16s* src, int srcStep, LumiSize roi, Lum64f mean[3]);
LumStatus lumiMean_16s_C4R(const Lum16s* src, int srcStep, LumiSize roi, Lum64f mean[4]);
LumStatus lumiMean_16u_AC4R(const Lum16u* src, int srcStep, LumiSize roi, Lum64f mean[3]);
LumStatus lumiMean_16u_C1R(const Lum16u* src, int srcStep, LumiSize roi, Lum64f* mean);
LumStatus lumiMean_16u_C3R(const Lum16u* src, int srcStep, LumiSize roi, Lum64f mean[3]);
LumStatus lumiMean_16u_C4R(const Lum16u* src, int srcStep, LumiSize roi, Lum64f mean[4]);
LumStatus lumiMean_32f_AC4R(const Lum32f* src, int srcStep, LumiSize roi, Lum64f mean[3], int hint);
LumStatus lumiMean_32f_C1R(const Lum32f* src, int srcStep, LumiSize roi, Lum64f* mean, int hint);
LumStatus lumiMean_32f_C3R(const Lum32f* src, int srcStep, LumiSize roi, Lum64f mean[3], int hint);
LumStatus lumiMean_32f_C4R(const Lum32f* src, int srcStep, LumiSize roi, Lum64f mean[4], int hint);
LumStatus lumiMean_8u_AC4R(const Lum8u* src, int srcStep, LumiSize roi, Lum64f mean[3]);
LumStatus lumiMean_8u_C1R(const Lum8u* src, int srcStep, LumiSize roi, Lum64f* mean);
LumStatus lumiMean_8u_C3R(const Lum8u* src, int srcStep, LumiSize roi, Lum64f mean[3]);
LumStatus lumiMean_8u_C4R(const Lum8u* src, int srcStep, LumiSize roi, Lum64f mean[4]);

#ifdef __cplusplus
}
#endif

#endif
