/* SPDX-License-Identifier: MIT */
/* Generated from registry/filters/filter_box.reg by tools/lumigen; edit that instead. */
/** @file Box filtering. */
#ifndef LUMI_FILTER_BOX_H
#define LUMI_FILTER_BOX_H

#include "types.h"

#ifdef __cplusplus
extern "C" {
#endif

/**
 * Replaces each sample by the mean of a rectangle around it, of any size, channel by channel.
 *
 * The window of pixel (x, y) has its first column and row at (x - anchor.x, y - anchor.y). All pixels that
 * windows cover are read, outside the ROI too: the caller sees to it that they are in memory. AC4 leaves
 * the fourth sample of every pixel as it was. A window of one pixel copies.
 *
 * With n = width * height of the window and the sum S of its samples, the result is
 *
 *   8u, n > 8100             S * (1.0f / n) + 9e-6f without its fraction
 *   8u C1 C3 AC4, 3 x 3      (S * 29128) >> 18: the mean without its fraction
 *   8u C1 C3, 5 x 5          (S * 20971 + 2^18) >> 19
 *   8u C1, 7 x 7             (S * 10700 + 2^18) >> 19
 *   8u otherwise             (S * m + 2^(s - 1)) >> s; m and s stand for 1 / n
 *   16u 16s                  S * (1.0f / n) to the nearest, ties to even, limited to the type
 *   32f                      S * (1.0f / n)
 *   64f                      S * (1.0 / n)
 *
 * where m = 4096, s = 13 for n = 2 and m = 4096, s = 12 for n = 1; otherwise r = 1.0f / n times 4294967295.0
 * is cut off to 32 bits and shifted left by c until its top bit is set, and m is 1 more than its upper 12
 * bits, s = 12 + c. Sums of integers are exact as long as they are below 2^31 (8u, 16u), or of at most
 * 65535 samples (16s), and are floats above that. The order in which floats are added up is not told; it
 * is the same in every build, and no sample outside a window has any influence on its sum.
 *
 * Source and destination may be the same image, which gives what separate ones do; they must not overlap
 * otherwise. Where a call needs memory that is not to be had it returns lumStatusNoMemory (-9), and nothing is
 * written.
 *
 *   maskSize   columns and rows of the window
 *   anchor     the pixel's column and row in its window
 *   mask       columns and rows of the window
 *   place      the pixel's column and row in its window, of any values
 *
 * Returns lumStatusOk (0) or, tested in this order and before anything is written (8u 16u 16s 32f: C1 C3 C4 AC4):
 *   lumStatusNullPointer (-8)  a pointer is null, plane pointers included
 *   lumStatusBadStep (-14)     a step is below 1
 *   lumStatusBadSize (-6)      a width or a height is below 1
 *   lumStatusBadMaskSize (-33) a side is below 1
 *   lumStatusBadAnchor (-34)   it is outside the window
 *
 * Returns lumStatusOk (0) or, tested in this order and before anything is written (32f: C1 C3 C4 AC4):
 *   lumStatusNullPointer (-8)  a pointer is null, plane pointers included
 *   lumStatusBadStep (-14)     a step is below 1
 *   lumStatusBadSize (-6)      a width or a height is below 1
 *   lumStatusBadMaskSize (-33) a side is below 1
 *   lumStatusBadAnchor (-34)   it is outside the window
 *   lumStatusBadStep (-14)     a step is below the bytes of a row
 *
 * Returns lumStatusOk (0) or, tested in this order and before anything is written (64f: C1):
 *   lumStatusNullPointer (-8)  a pointer is null, plane pointers included
 *   lumStatusBadSize (-6)      a width or a height is below 1
 *   lumStatusBadStep (-14)     a step is below the bytes of a row
 */
LumStatus lumiFilterBox_16s_AC4IR(Lum16s* srcDst, int srcDstStep, LumiSize roi, LumiSize maskSize,
                                  LumiPoint anchor);
LumStatus lumiFilterBox_16s_AC4R(const Lum16s* src, int srcStep, Lum16s* dst, int dstStep, LumiSize roi,
                                 LumiSize maskSize, LumiPoint anchor);
LumStatus lumiFilterBox_16s_C1IR(Lum16s* srcDst, int srcDstStep, LumiSize roi, LumiSize maskSize,
                                 LumiPoint anchor);
LumStatus lumiFilterBox_16s_C1R(const Lum16s* src, int srcStep, Lum16s* dst, int dstStep, LumiSize roi,
                                LumiSize maskSize, LumiPoint anchor);
LumStatus lumiFilterBox_16s_C3IR(Lum16s* srcDst, int srcDstStep, LumiSize roi, LumiSize maskSize,
                                 LumiPoint anchor);
LumStatus lumiFilterBox_16s_C3R(const Lum16s* src, int srcStep, Lum16s* dst, int dstStep, LumiSize roi,
                                LumiSize maskSize, LumiPoint anchor);
LumStatus lumiFilterBox_16s_C4IR(Lum16s* srcDst, int srcDstStep, LumiSize roi, LumiSize maskSize,
                                 LumiPoint anchor);
LumStatus lumiFilterBox_16s_C4R(const Lum16s* src, int srcStep, Lum16s* dst, int dstStep, LumiSize roi,
                                LumiSize maskSize, LumiPoint anchor);
LumStatus lumiFilterBox_16u_AC4IR(Lum16u* srcDst, int srcDstStep, LumiSize roi, LumiSize maskSize,
                                  LumiPoint anchor);
LumStatus lumiFilterBox_16u_AC4R(const Lum16u* src, int srcStep, Lum16u* dst, int dstStep, LumiSize roi,
                                 LumiSize maskSize, LumiPoint anchor);
LumStatus lumiFilterBox_16u_C1IR(Lum16u* srcDst, int srcDstStep, LumiSize roi, LumiSize maskSize,
                                 LumiPoint anchor);
LumStatus lumiFilterBox_16u_C1R(const Lum16u* src, int srcStep, Lum16u* dst, int dstStep, LumiSize roi,
                                LumiSize maskSize, LumiPoint anchor);
LumStatus lumiFilterBox_16u_C3IR(Lum16u* srcDst, int srcDstStep, LumiSize roi, LumiSize maskSize,
                                 LumiPoint anchor);
LumStatus lumiFilterBox_16u_C3R(const Lum16u* src, int srcStep, Lum16u* dst, int dstStep, LumiSize roi,
                                LumiSize maskSize, LumiPoint anchor);
LumStatus lumiFilterBox_16u_C4IR(Lum16u* srcDst, int srcDstStep, LumiSize roi, LumiSize maskSize,
                                 LumiPoint anchor);
LumStatus lumiFilterBox_16u_C4R(const Lum16u* src, int srcStep, Lum16u* dst, int dstStep, LumiSize roi,
                                LumiSize maskSize, LumiPoint anchor);
LumStatus lumiFilterBox_32f_AC4IR(Lum32f* srcDst, int srcDstStep, LumiSize roi, LumiSize maskSize,
                                  LumiPoint anchor);
LumStatus lumiFilterBox_32f_AC4R(const Lum32f* src, int srcStep, Lum32f* dst, int dstStep, LumiSize roi,
                                 LumiSize maskSize, LumiPoint anchor);
LumStatus lumiFilterBox_32f_C1IR(Lum32f* srcDst, int srcDstStep, LumiSize roi, LumiSize maskSize,
                                 LumiPoint anchor);
LumStatus lumiFilterBox_32f_C1R(const Lum32f* src, int srcStep, Lum32f* dst, int dstStep, LumiSize roi,
                                LumiSize maskSize, LumiPoint anchor);
LumStatus lumiFilterBox_32f_C3IR(Lum32f* srcDst, int srcDstStep, LumiSize roi, LumiSize maskSize,
                                 LumiPoint anchor);
LumStatus lumiFilterBox_32f_C3R(const Lum32f* src, int srcStep, Lum32f* dst, int dstStep, LumiSize roi,
                                LumiSize maskSize, LumiPoint anchor);
LumStatus lumiFilterBox_32f_C4IR(Lum32f* srcDst, int srcDstStep, LumiSize roi, LumiSize maskSize,
                                 LumiPoint anchor);
LumStatus lumiFilterBox_32f_C4R(const Lum32f* src, int srcStep, Lum32f* dst, int dstStep, LumiSize roi,
                                LumiSize maskSize, LumiPoint anchor);
LumStatus lumiFilterBox_64f_C1R(const Lum64f* src, int srcStep, Lum64f* dst, int dstStep, LumiSize roi,
                                LumiSize mask, LumiPoint place);
LumStatus lumiFilterBox_8u_AC4IR(Lum8u* srcDst, int srcDstStep, LumiSize roi, LumiSize maskSize,
                                 LumiPoint anchor);
LumStatus lumiFilterBox_8u_AC4R(const Lum8u* src, int srcStep, Lum8u* dst, int dstStep, LumiSize roi,
                                LumiSize maskSize, LumiPoint anchor);
LumStatus lumiFilterBox_8u_C1IR(Lum8u* srcDst, int srcDstStep, LumiSize roi, LumiSize maskSize,
                                LumiPoint anchor);
LumStatus lumiFilterBox_8u_C1R(const Lum8u* src, int srcStep, Lum8u* dst, int dstStep, LumiSize roi,
                               LumiSize maskSize, LumiPoint anchor);
LumStatus lumiFilterBox_8u_C3IR(Lum8u* srcDst, int srcDstStep, LumiSize roi, LumiSize maskSize,
                                LumiPoint anchor);
LumStatus lumiFilterBox_8u_C3R(const Lum8u* src, int srcStep, Lum8u* dst, int dstStep, LumiSize roi,
                               LumiSize maskSize, LumiPoint anchor);
LumStatus lumiFilterBox_8u_C4IR(Lum8u* srcDst, int srcDstStep, LumiSize roi, LumiSize maskSize,
                                LumiPoint anchor);
LumStatus lumiFilterBox_8u_C4R(const Lum8u* src, int srcStep, Lum8u* dst, int dstStep, LumiSize roi,
                               LumiSize maskSize, LumiPoint anchor);

#ifdef __cplusplus
}
#endif

#endif
