/* SPDX-License-Identifier: MIT */
/* Generated from registry/filters/filter_median_border.reg by tools/lumigen; edit that instead. */
/** @file Median filtering with border. */
#ifndef LUMI_FILTER_MEDIAN_BORDER_H
#define LUMI_FILTER_MEDIAN_BORDER_H

#include "types.h"

#ifdef __cplusplus
extern "C" {
#endif

/**
 * Tells the size of the buffer that lumiFilterMedianBorder needs.
 *
 * The buffer serves calls with that window and that ROI. Sizes beyond 2 GiB must be ruled out by the caller: they are
 * given modulo 2^32.
 *
 *   area       the ROI
 *   maskSize   columns and rows of the window
 *   dataType   lumiData8u, lumiData16u, lumiData16s or lumiData32f
 *   channels   samples of a pixel: 1
 *   bufferSize receives the size of the buffer, in bytes
 *
 * Returns lumStatusOk (0) or, tested in this order and before anything is written:
 *   lumStatusNullPointer (-8)  a pointer is null, plane pointers included
 *   lumStatusBadSize (-6)      a width or a height is below 1
 *   lumStatusBadMaskSize (-33) a side is below 1 or even
 *   lumStatusBadDataType (-12) dataType is refused
 *   lumStatusBadChannelCount (-53) channels is refused
 */
LumStatus lumiFilterMedianBorderGetBufferSize(LumiSize area, LumiSize maskSize, LumiDataType dataType,
                                              int channels, int* bufferSize);

/**
 * Replaces each sample by the median of a rectangle around it; what lies outside the ROI follows from the border type.
 *
 * The window of pixel (x, y) has it in its middle: its first column is x - width / 2 and its first row y - height / 2, without
 * remainders. Medians are those of lumiFilterMedian.
 *
 * The type (the low four bits of border) is lumiBorderConst, lumiBorderReplicate or lumiBorderInMemory. Flags name sides
 * whose pixels are in memory; beyond a corner, a pixel is taken by its column and by its row, and is borderValue where one of
 * them says so. A window of one column covers nothing to the left and right of the ROI, and one of one row nothing above and
 * below it.
 *
 * Steps may be negative or zero; nothing is made of their signs. Source and destination may be the same image with the same
 * step, which gives what separate ones do; otherwise they must not overlap, nor either of them the buffer.
 * Images may be misaligned in any way that their steps allow, and the buffer in any way.
 *
 * Large windows take memory from the core library; where it is not to be had they do without, much more slowly.
 *
 * 16u, 16s and 32f check in this order, and write nothing on an error: lumStatusNullPointer (-8), lumStatusBadSize (-6),
 * lumStatusOddStep (-108) where a step is no multiple of a sample's bytes, lumStatusBadMaskSize (-33),
 * lumStatusBadArgument (-5) for another type of border.
 *
 *   maskSize   columns and rows of the window
 *   border     the type, and flags
 *   borderValue what a constant border is made of
 *   buffer     scratch memory of the size that lumiFilterMedianBorderGetBufferSize tells
 *
 * Returns lumStatusOk (0) or, tested in this order and before anything is written (8u: C1):
 *   lumStatusNullPointer (-8)  a pointer is null, plane pointers included
 *   lumStatusBadSize (-6)      a width or a height is below 1
 *   lumStatusBadMaskSize (-33) a side is below 1 or even
 *   lumStatusBadArgument (-5)  border is refused
 */
LumStatus lumiFilterMedianBorder_16s_C1R(const Lum16s* src, int srcStep, Lum16s* dst, int dstStep,
                                         LumiSize roi, LumiSize maskSize, LumiBorderType border,
                                         Lum16s borderValue, Lum8u* buffer);
LumStatus lumiFilterMedianBorder_16u_C1R(const Lum16u* src, int srcStep, Lum16u* dst, int dstStep,
                                         LumiSize roi, LumiSize maskSize, LumiBorderType border,
                                         Lum16u borderValue, Lum8u* buffer);
LumStatus lumiFilterMedianBorder_32f_C1R(const Lum32f* src, int srcStep, Lum32f* dst, int dstStep,
                                         LumiSize roi, LumiSize maskSize, LumiBorderType border,
                                         Lum32f borderValue, Lum8u* buffer);
LumStatus lumiFilterMedianBorder_8u_C1R(const Lum8u* src, int srcStep, Lum8u* dst, int dstStep, LumiSize roi,
                                        LumiSize maskSize, LumiBorderType border, Lum8u borderValue,
                                        Lum8u* buffer);

#ifdef __cplusplus
}
#endif

#endif
