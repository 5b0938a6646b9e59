/* SPDX-License-Identifier: MIT */
/* Generated from registry/statistics/quality_index.reg by tools/lumigen; edit that instead. */
/** @file The universal image quality index. */
#ifndef LUMI_QUALITY_INDEX_H
#define LUMI_QUALITY_INDEX_H

#include "types.h"

#ifdef __cplusplus
extern "C" {
#endif

/**
 * Measures how much two images are alike, in each channel.
 *
 * With means m1 and m2, variances v1 and v2 and the covariance c of the images' samples:
 *   Q = 4 c m1 m2 / ((v1 + v2) (m1^2 + m2^2))
 * 1 for equal images, at least -1. The formula is that of Wang and Bovik, "A universal image quality index", 2002.
 *
 * The means are those of lumiMean, of 32f with hint 1. Differences from them, rounded to Lum32f, and their sums
 * are Lum32f; sums of each row join those of the rows before, variances as the square of a row's norm. The rest is
 * in Lum64f. Where (v1 + v2) (m1^2 + m2^2), with sums in place of variances, is not at least 2^-23, a channel's
 * index is the quiet NaN 0xFFC00000, and the call returns lumStatusZeroQualityDenominator (-210) after all channels
 * are stored. AC4: alpha is not looked at.
 *
 * Takes scratch of two rows of Lum32f from the core library: lumStatusNoMemory (-9) where there is none.
 *
 *   quality    receives the index of each channel
 *
 * Returns lumStatusOk (0) or, tested in this order and before anything is written:
 *   lumStatusNullPointer (-8)  a pointer is null, plane pointers included
 *   lumStatusBadSize (-6)      roi.width or roi.height is below 1
 *   lumStatusBadStep (-14)     a step is below 1
 */
LumStatus lumiQualityIndex_16u32f_AC4R(const Lum16u* src1, int src1Step, const Lum16u* src2, int src2Step,
                                       LumiSize roi, Lum32f quality[3]);
LumStatus lumiQualityIndex_16u32f_C1R(const Lum16u* src1, int src1Step, const Lum16u* src2, int src2Step,
                                      LumiSize roi, Lum32f* quality);
LumStatus lumiQualityIndex_16u32f_C3R(const Lum16u* src1, int src1Step, const Lum16u* src2, int src2Step,
                                      LumiSize roi, Lum32f quality[3]);
LumStatus lumiQualityIndex_32f_AC4R(const Lum32f* src1, int src1Step, const Lum32f* src2, int src2Step,
                                    LumiSize roi, Lum32f quality[3]);
LumStatus lumiQualityIndex_32f_C1R(const Lum32f* src1, int src1Step, const Lum32f* src2, int src2Step,
                                   LumiSize roi, Lum32f* quality);
LumStatus lumiQualityIndex_32f_C3R(const Lum32f* src1, int src1Step, const Lum32f* src2, int src2Step,
                                   LumiSize roi, Lum32f quality[3]);
LumStatus lumiQualityIndex_8u32f_AC4R(const Lum8u* src1, int src1Step, const Lum8u* src2, int src2Step,
                                      LumiSize roi, Lum32f quality[3]);
LumStatus lumiQualityIndex_8u32f_C1R(const Lum8u* src1, int src1Step, const Lum8u* src2, int src2Step,
                                     LumiSize roi, Lum32f* quality);
LumStatus lumiQualityIndex_8u32f_C3R(const Lum8u* src1, int src1Step, const Lum8u* src2, int src2Step,
                                     LumiSize roi, Lum32f quality[3]);

#ifdef __cplusplus
}
#endif

#endif
