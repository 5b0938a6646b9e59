/* SPDX-License-Identifier: MIT */
/* Generated from registry/filters/sum_window.reg by tools/lumigen; edit that instead. */
/** @file Sums of windows. */
#ifndef LUMI_SUM_WINDOW_H
#define LUMI_SUM_WINDOW_H

#include "types.h"

#ifdef __cplusplus
extern "C" {
#endif

/**
 * Adds up the samples of a stretch of the row around each pixel.
 *
 * dst(x, y) = sum over k in 0..maskSize-1 of src(x + k - anchor, y), channel by channel. All of these pixels are
 * read, outside the ROI too: the caller sees to it that they are in memory. Sums of up to 65537 samples of 16u,
 * 65535 of 16s and 2^23 of 8u are exact but for the rounding to a float. The images must not overlap, nor may
 * rows of dst; steps may be any.
 *
 * Checked in this order; on an error nothing is written:
 *   lumStatusNullPointer (-8)   src or dst is null
 *   lumStatusBadSize (-6)       roi.width or roi.height is below 1; 16u only
 *   lumStatusBadMaskSize (-33)  maskSize is below 1
 *   lumStatusBadAnchor (-34)    anchor is below 0, or not below maskSize
 *   lumStatusNoMemory (-9)      no memory for the sums
 * Nothing is done, and lumStatusOk returned, where 8u and 16s members have no pixel to make.
 *
 *   maskSize   samples of a sum
 *   anchor     the pixel's place among them
 */
LumStatus lumiSumWindowRow_16s32f_C1R(const Lum16s* src, int srcStep, Lum32f* dst, int dstStep, LumiSize roi,
                                      int maskSize, int anchor);
LumStatus lumiSumWindowRow_16s32f_C3R(const Lum16s* src, int srcStep, Lum32f* dst, int dstStep, LumiSize roi,
                                      int maskSize, int anchor);
LumStatus lumiSumWindowRow_16s32f_C4R(const Lum16s* src, int srcStep, Lum32f* dst, int dstStep, LumiSize roi,
                                      int maskSize, int anchor);
LumStatus lumiSumWindowRow_16u32f_C1R(const Lum16u* src, int srcStep, Lum32f* dst, int dstStep, LumiSize roi,
                                      int maskSize, int anchor);
LumStatus lumiSumWindowRow_16u32f_C3R(const Lum16u* src, int srcStep, Lum32f* dst, int dstStep, LumiSize roi,
                                      int maskSize, int anchor);
LumStatus lumiSumWindowRow_16u32f_C4R(const Lum16u* src, int srcStep, Lum32f* dst, int dstStep, LumiSize roi,
                                      int maskSize, int anchor);
LumStatus lumiSumWindowRow_8u32f_C1R(const Lum8u* src, int srcStep, Lum32f* dst, int dstStep, LumiSize roi,
                                     int maskSize, int anchor);
LumStatus lumiSumWindowRow_8u32f_C3R(const Lum8u* src, int srcStep, Lum32f* dst, int dstStep, LumiSize roi,
                                     int maskSize, int anchor);
LumStatus lumiSumWindowRow_8u32f_C4R(const Lum8u* src, int srcStep, Lum32f* dst, int dstStep, LumiSize roi,
                                     int maskSize, int anchor);

/**
 * Adds up the samples of a stretch of the column around each pixel.
 *
 * dst(x, y) = sum over k in 0..maskSize-1 of src(x, y + k - anchor), channel by channel, otherwise as
 * lumiSumWindowRow; no member tells of an empty ROI.
 *
 * Checked in this order; on an error nothing is written:
 *   lumStatusNullPointer (-8)   src or dst is null
 *   lumStatusBadMaskSize (-33)  maskSize is below 1
 *   lumStatusBadAnchor (-34)    anchor is below 0, or not below maskSize
 *   lumStatusNoMemory (-9)      no memory for the sums
 * Nothing is done, and lumStatusOk returned, where there is no pixel to make.
 *
 *   maskSize   samples of a sum
 *   anchor     the pixel's place among them
 */
LumStatus lumiSumWindowColumn_16s32f_C1R(const Lum16s* src, int srcStep, Lum32f* dst, int dstStep,
                                         LumiSize roi, int maskSize, int anchor);
LumStatus lumiSumWindowColumn_16s32f_C3R(const Lum16s* src, int srcStep, Lum32f* dst, int dstStep,
                                         LumiSize roi, int maskSize, int anchor);
LumStatus lumiSumWindowColumn_16s32f_C4R(const Lum16s* src, int srcStep, Lum32f* dst, int dstStep,
                                         LumiSize roi, int maskSize, int anchor);
LumStatus lumiSumWindowColumn_16u32f_C1R(const Lum16u* src, int srcStep, Lum32f* dst, int dstStep,
                                         LumiSize roi, int maskSize, int anchor);
LumStatus lumiSumWindowColumn_16u32f_C3R(const Lum16u* src, int srcStep, Lum32f* dst, int dstStep,
                                         LumiSize roi, int maskSize, int anchor);
LumStatus lumiSumWindowColumn_16u32f_C4R(const Lum16u* src, int srcStep, Lum32f* dst, int dstStep,
                                         LumiSize roi, int maskSize, int anchor);
LumStatus lumiSumWindowColumn_8u32f_C1R(const Lum8u* src, int srcStep, Lum32f* dst, int dstStep, LumiSize roi,
                                        int maskSize, int anchor);
LumStatus lumiSumWindowColumn_8u32f_C3R(const Lum8u* src, int srcStep, Lum32f* dst, int dstStep, LumiSize roi,
                                        int maskSize, int anchor);
LumStatus lumiSumWindowColumn_8u32f_C4R(const Lum8u* src, int srcStep, Lum32f* dst, int dstStep, LumiSize roi,
                                        int maskSize, int anchor);

#ifdef __cplusplus
}
#endif

#endif
