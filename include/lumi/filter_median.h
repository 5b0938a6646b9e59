/* SPDX-License-Identifier: MIT */
/* Generated from registry/filters/filter_median.reg by tools/lumigen; edit that instead. */
/** @file Median filtering. */
#ifndef LUMI_FILTER_MEDIAN_H
#define LUMI_FILTER_MEDIAN_H

#include "types.h"

#ifdef __cplusplus
extern "C" {
#endif

/**
 * Tells the size of the buffer that lumiFilterMedian needs for samples of that type.
 *
 * 32f: width * height * 4 of the window. 64f: width * 17 * height * 8 + 144, less the low four bits. All arithmetic is
 * modulo 2^32: sizes beyond 2 GiB must be ruled out by the caller.
 *
 *   area       the largest ROI
 *   maskSize   columns and rows of the window
 *   channels   samples of a pixel: 1, 3 or 4
 *   bufferSize receives the size of the buffer, in bytes
 *
 * Returns lumStatusOk (0) or, tested in this order and before anything is written:
 *   lumStatusNullPointer (-8)  a pointer is null, plane pointers included
 *   lumStatusBadSize (-6)      a width or a height is below 1
 *   lumStatusBadMaskSize (-33) a side is below 1 or even
 *   lumStatusBadChannelCount (-53) channels is refused
 */
LumStatus lumiFilterMedianGetBufferSize_32f(LumiSize area, LumiSize maskSize, int channels, int* bufferSize);
LumStatus lumiFilterMedianGetBufferSize_64f(LumiSize area, LumiSize maskSize, int channels, int* bufferSize);

/**
 * Replaces each sample by the median of a rectangle around it.
 *
 * The window of pixel (x, y) has its first column at x - anchor.x and its first row at y - anchor.y; all that windows of the
 * ROI cover has to be in memory. It has odd sides, so that the median is one of its samples: the one with as many
 * samples of its channel after it in ascending order as before it. AC4 leaves the fourth sample of every pixel as it
 * was. A window of one pixel copies, whatever the anchor.
 *
 * Results are exact for windows of any size. What windows of 3 x 3, 5 x 5, 3 x 1, 5 x 1, 1 x 3 and 1 x 5 pixels cost grows with their
 * area; that of larger ones hardly does (S. Perreault and P. Hebert, Median filtering in constant time, 2007) up to 127
 * rows and 65535 pixels. These take memory from the core library; where it is not to be had they do without, much
 * more slowly.
 *
 * Of floats, negative zero may stand for zero. Where a window has samples that are no numbers its median is any of its
 * samples.
 *
 * Images may be misaligned in any way, and so may the buffer. Neither may overlap another.
 *
 * 32f, C3 and C4, check in this order, and write nothing on an error: lumStatusNullPointer (-8), lumStatusBadSize (-6),
 * lumStatusBadStep (-14), lumStatusBadMaskSize (-33), lumStatusBadAnchor (-34), lumStatusNullPointer (-8) for the buffer,
 * lumStatusBadStep (-14) where srcStep is below roi.width + maskSize.width - 1 pixels.
 *
 *   maskSize   columns and rows of the window
 *   anchor     the pixel's column and row in its window
 *   buffer     scratch memory of the size that lumiFilterMedianGetBufferSize tells
 *
 * Returns lumStatusOk (0) or, tested in this order and before anything is written (8u 16u 16s: C1 C3 C4 AC4; 32f: C1):
 *   lumStatusNullPointer (-8)  a pointer is null, plane pointers included
 *   lumStatusBadSize (-6)      a width or a height is below 1
 *   lumStatusBadStep (-14)     a step is below 1
 *   lumStatusBadMaskSize (-33) a side is below 1 or even
 *   lumStatusBadAnchor (-34)   it is outside the window, of more than one pixel
 *
 * Returns lumStatusOk (0) or, tested in this order and before anything is written (64f: C1):
 *   lumStatusNullPointer (-8)  an image's pointer is null
 *   lumStatusBadSize (-6)      a width or a height is below 1
 *   lumStatusBadStep (-14)     a step is below 1
 *   lumStatusBadMaskSize (-33) a side is below 1 or even
 *   lumStatusBadAnchor (-34)   it is outside the window, of more than one pixel
 *   lumStatusNullPointer (-8)  buffer is null
 */
LumStatus lumiFilterMedian_16s_AC4R(const Lum16s* src, int srcStep, Lum16s* dst, int dstStep, LumiSize roi,
                                    LumiSize maskSize, LumiPoint anchor);
LumStatus lumiFilterMedian_16s_C1R(const Lum16s* src, int srcStep, Lum16s* dst, int dstStep, LumiSize roi,
                                   LumiSize maskSize, LumiPoint anchor);
LumStatus lumiFilterMedian_16s_C3R(const Lum16s* src, int srcStep, Lum16s* dst, int dstStep, LumiSize roi,
                                   LumiSize maskSize, LumiPoint anchor);
LumStatus lumiFilterMedian_16s_C4R(const Lum16s* src, int srcStep, Lum16s* dst, int dstStep, LumiSize roi,
                                   LumiSize maskSize, LumiPoint anchor);
LumStatus lumiFilterMedian_16u_AC4R(const Lum16u* src, int srcStep, Lum16u* dst, int dstStep, LumiSize roi,
                                    LumiSize maskSize, LumiPoint anchor);
LumStatus lumiFilterMedian_16u_C1R(const Lum16u* src, int srcStep, Lum16u* dst, int dstStep, LumiSize roi,
                                   LumiSize maskSize, LumiPoint anchor);
LumStatus lumiFilterMedian_16u_C3R(const Lum16u* src, int srcStep, Lum16u* dst, int dstStep, LumiSize roi,
                                   LumiSize maskSize, LumiPoint anchor);
LumStatus lumiFilterMedian_16u_C4R(const Lum16u* src, int srcStep, Lum16u* dst, int dstStep, LumiSize roi,
                                   LumiSize maskSize, LumiPoint anchor);
LumStatus lumiFilterMedian_32f_C1R(const Lum32f* src, int srcStep, Lum32f* dst, int dstStep, LumiSize roi,
                                   LumiSize maskSize, LumiPoint anchor);
LumStatus lumiFilterMedian_32f_C3R(const Lum32f* src, int srcStep, Lum32f* dst, int dstStep, LumiSize roi,
                                   LumiSize maskSize, LumiPoint anchor, Lum8u* buffer);
LumStatus lumiFilterMedian_32f_C4R(const Lum32f* src, int srcStep, Lum32f* dst, int dstStep, LumiSize roi,
                                   LumiSize maskSize, LumiPoint anchor, Lum8u* buffer);
LumStatus lumiFilterMedian_64f_C1R(const Lum64f* src, int srcStep, Lum64f* dst, int dstStep, LumiSize roi,
                                   LumiSize maskSize, LumiPoint anchor, Lum8u* buffer);
LumStatus lumiFilterMedian_8u_AC4R(const Lum8u* src, int srcStep, Lum8u* dst, int dstStep, LumiSize roi,
                                   LumiSize maskSize, LumiPoint anchor);
LumStatus lumiFilterMedian_8u_C1R(const Lum8u* src, int srcStep, Lum8u* dst, int dstStep, LumiSize roi,
                                  LumiSize maskSize, LumiPoint anchor);
LumStatus lumiFilterMedian_8u_C3R(const Lum8u* src, int srcStep, Lum8u* dst, int dstStep, LumiSize roi,
                                  LumiSize maskSize, LumiPoint anchor);
LumStatus lumiFilterMedian_8u_C4R(const Lum8u* src, int srcStep, Lum8u* dst, int dstStep, LumiSize roi,
                                  LumiSize maskSize, LumiPoint anchor);

#ifdef __cplusplus
}
#endif

#endif
