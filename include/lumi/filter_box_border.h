/* SPDX-License-Identifier: MIT */
/* Generated from registry/filters/filter_box_border.reg by tools/lumigen; edit that instead. */
/** @file Box filtering with border. */
#ifndef LUMI_FILTER_BOX_BORDER_H
#define LUMI_FILTER_BOX_BORDER_H

#include "types.h"

#ifdef __cplusplus
extern "C" {
#endif

/**
 * Tells the size of the buffer that lumiFilterBoxBorder needs.
 *
 * The buffer serves calls with that window whose ROI is not larger than area. All arithmetic is modulo 2^32:
 * sizes beyond 2 GiB must be ruled out by the caller.
 *
 *   area       the largest ROI
 *   maskSize   columns and rows of the window
 *   dataType   lumiData8u, lumiData16u, lumiData16s or lumiData32f
 *   channels   samples of a pixel: 1, 3 or 4
 *   bufferSize receives the size of the buffer, in bytes
 *
 * Returns lumStatusOk (0) or, tested in this order and before anything is written:
 *   lumStatusNullPointer (-8)  a pointer is null, plane pointers included
 *   lumStatusBadSize (-6)      a width or a height is below 1
 *   lumStatusBadMaskSize (-33) a side is below 1
 *   lumStatusBadDataType (-12) dataType is refused
 *   lumStatusBadChannelCount (-53) channels is refused
 */
LumStatus lumiFilterBoxBorderGetBufferSize(LumiSize area, LumiSize maskSize, LumiDataType dataType,
                                           int channels, int* bufferSize);

/**
 * Replaces each sample by the mean of a rectangle around it; what lies outside the ROI follows from the border type.
 *
 * The window of pixel (x, y) has its first column at x - (width - 1) / 2 and its first row at y - (height - 1) / 2.
 * AC4 leaves the fourth sample of every pixel as it was, and has three samples of a border value. A window of one
 * pixel copies.
 *
 * With n = width * height of the window and the sum S of its samples, the result is
 *
 *   8u, 3 x 3     (S * 29128) >> 18: the mean without its fraction
 *   8u, 5 x 5     (S * 671088 + 2^23) >> 24
 *   8u, 7 x 7     (S * 342392 + 2^23) >> 24
 *   8u otherwise, 16u, 16s
 *                 S * (1.0f / n) to the nearest, ties to even, limited to the type
 *   32f           S * (1.0f / n)
 *
 * Sums are those of lumiFilterBox. The type (the low four bits of border) is lumiBorderConst,
 * lumiBorderReplicate or lumiBorderInMemory. Flags name sides whose pixels are in memory; where all four stand,
 * the type may be any. borderValue is looked at for lumiBorderConst alone, where a side is not in memory.
 *
 * Images may be misaligned in any way. They must not overlap one another or the buffer.
 *
 * A null borderValue gives lumStatusNullPointer (-8), after the other pointers, steps and sizes, where border is
 * exactly lumiBorderConst.
 *
 *   maskSize   columns and rows of the window
 *   border     the type, and flags
 *   borderValue the constant: a sample for each channel that is filtered
 *   buffer     scratch memory of the size that lumiFilterBoxBorderGetBufferSize tells
 *
 * Returns lumStatusOk (0) or, tested in this order and before anything is written:
 *   lumStatusNullPointer (-8)  a pointer is null, plane pointers included
 *   lumStatusBadStep (-14)     a step is below 1
 *   lumStatusBadSize (-6)      a width or a height is below 1
 *   lumStatusBadMaskSize (-33) a side is below 1
 *   lumStatusBadBorder (-225)  border is refused
 */
LumStatus lumiFilterBoxBorder_16s_AC4R(const Lum16s* src, int srcStep, Lum16s* dst, int dstStep, LumiSize roi,
                                       LumiSize maskSize, LumiBorderType border, const Lum16s* borderValue,
                                       Lum8u* buffer);
LumStatus lumiFilterBoxBorder_16s_C1R(const Lum16s* src, int srcStep, Lum16s* dst, int dstStep, LumiSize roi,
                                      LumiSize maskSize, LumiBorderType border, const Lum16s* borderValue,
                                      Lum8u* buffer);
LumStatus lumiFilterBoxBorder_16s_C3R(const Lum16s* src, int srcStep, Lum16s* dst, int dstStep, LumiSize roi,
                                      LumiSize maskSize, LumiBorderType border, const Lum16s* borderValue,
                                      Lum8u* buffer);
LumStatus lumiFilterBoxBorder_16s_C4R(const Lum16s* src, int srcStep, Lum16s* dst, int dstStep, LumiSize roi,
                                      LumiSize maskSize, LumiBorderType border, const Lum16s* borderValue,
                                      Lum8u* buffer);
LumStatus lumiFilterBoxBorder_16u_AC4R(const Lum16u* src, int srcStep, Lum16u* dst, int dstStep, LumiSize roi,
                                       LumiSize maskSize, LumiBorderType border, const Lum16u* borderValue,
                                       Lum8u* buffer);
LumStatus lumiFilterBoxBorder_16u_C1R(const Lum16u* src, int srcStep, Lum16u* dst, int dstStep, LumiSize roi,
                                      LumiSize maskSize, LumiBorderType border, const Lum16u* borderValue,
                                      Lum8u* buffer);
LumStatus lumiFilterBoxBorder_16u_C3R(const Lum16u* src, int srcStep, Lum16u* dst, int dstStep, LumiSize roi,
                                      LumiSize maskSize, LumiBorderType border, const Lum16u* borderValue,
                                      Lum8u* buffer);
LumStatus lumiFilterBoxBorder_16u_C4R(const Lum16u* src, int srcStep, Lum16u* dst, int dstStep, LumiSize roi,
                                      LumiSize maskSize, LumiBorderType border, const Lum16u* borderValue,
                                      Lum8u* buffer);
LumStatus lumiFilterBoxBorder_32f_AC4R(const Lum32f* src, int srcStep, Lum32f* dst, int dstStep, LumiSize roi,
                                       LumiSize maskSize, LumiBorderType border, const Lum32f* borderValue,
                                       Lum8u* buffer);
LumStatus lumiFilterBoxBorder_32f_C1R(const Lum32f* src, int srcStep, Lum32f* dst, int dstStep, LumiSize roi,
                                      LumiSize maskSize, LumiBorderType border, const Lum32f* borderValue,
                                      Lum8u* buffer);
LumStatus lumiFilterBoxBorder_32f_C3R(const Lum32f* src, int srcStep, Lum32f* dst, int dstStep, LumiSize roi,
                                      LumiSize maskSize, LumiBorderType border, const Lum32f* borderValue,
                                      Lum8u* buffer);
LumStatus lumiFilterBoxBorder_32f_C4R(const Lum32f* src, int srcStep, Lum32f* dst, int dstStep, LumiSize roi,
                                      LumiSize maskSize, LumiBorderType border, const Lum32f* borderValue,
                                      Lum8u* buffer);
LumStatus lumiFilterBoxBorder_8u_AC4R(const Lum8u* src, int srcStep, Lum8u* dst, int dstStep, LumiSize roi,
                                      LumiSize maskSize, LumiBorderType border, const Lum8u* borderValue,
                                      Lum8u* buffer);
LumStatus lumiFilterBoxBorder_8u_C1R(const Lum8u* src, int srcStep, Lum8u* dst, int dstStep, LumiSize roi,
                                     LumiSize maskSize, LumiBorderType border, const Lum8u* borderValue,
                                     Lum8u* buffer);
LumStatus lumiFilterBoxBorder_8u_C3R(const Lum8u* src, int srcStep, Lum8u* dst, int dstStep, LumiSize roi,
                                     LumiSize maskSize, LumiBorderType border, const Lum8u* borderValue,
                                     Lum8u* buffer);
LumStatus lumiFilterBoxBorder_8u_C4R(const Lum8u* src, int srcStep, Lum8u* dst, int dstStep, LumiSize roi,
                                     LumiSize maskSize, LumiBorderType border, const Lum8u* borderValue,
                                     Lum8u* buffer);

#ifdef __cplusplus
}
#endif

#endif
