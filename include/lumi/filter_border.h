/* SPDX-License-Identifier: MIT */
/* Generated from registry/filters/filter_border.reg by tools/lumigen; edit that instead. */
/** @file Kernel filtering with border. */
#ifndef LUMI_FILTER_BORDER_H
#define LUMI_FILTER_BORDER_H

#include "types.h"

#ifdef __cplusplus
extern "C" {
#endif

/**
 * Tells the sizes of the specification object and of the buffer that filtering with a kernel needs.
 *
 * The first step of three: sizes, object (lumiFilterBorderInit), and any number of runs
 * (lumiFilterBorder). Both blocks are the caller's, and may start at any address.
 *
 * The buffer serves runs whose ROI is not larger than area. A kernelType of lumiData16s stands for integer
 * taps and a divisor. All arithmetic is modulo 2^32: sizes beyond 2 GiB must be ruled out by the caller.
 *
 * Checked in this order; on an error nothing is written:
 *   lumStatusBadSize (-6)       a width or a height of kernelSize or area is below 1
 *   lumStatusBadDataType (-12)  dataType is not lumiData8u, 16u, 16s or 32f, or kernelType not lumiData16s or 32f
 *   lumStatusBadChannel (-47)   channels is not 1, 2, 3 or 4
 *   lumStatusNullPointer (-8)   a pointer is null
 *
 *   kernelSize columns and rows of the kernel
 *   area       the largest ROI of the runs
 *   dataType   of the images: lumiData8u, lumiData16u, lumiData16s or lumiData32f
 *   kernelType of the taps: lumiData16s or lumiData32f
 *   channels   samples of a pixel
 *   specSize   receives the size of the object, in bytes
 *   bufferSize receives the size of the buffer of one run, in bytes
 */
LumStatus lumiFilterBorderGetSize(LumiSize kernelSize, LumiSize area, LumiDataType dataType,
                                  LumiDataType kernelType, int channels, int* specSize, int* bufferSize);

/**
 * Makes the specification object of a kernel, for images of one type.
 *
 * Taps are given row after row and copied. The object holds pointers into itself: it must not be moved.
 * Runs only read it, so that several of them may share it.
 *
 * An integer kernel has a divisor, which may be negative, and serves lumiData8u, lumiData16u and
 * lumiData16s. For 16u images, and 16s images of three or four channels, its taps become floats,
 * (1.0 / divisor) * tap.
 *
 * Checked in this order; on an error nothing is written:
 *   lumStatusNullPointer (-8)     kernel or spec is null
 *   lumStatusBadSize (-6)         a side of kernelSize is below 1
 *   lumStatusBadDataType (-12)    dataType is not one of those named; Init_32f also takes lumiData32f
 *   lumStatusBadChannel (-47)     channels is not 1, 2, 3 or 4
 *   lumStatusBadRoundMode (-213)  roundMode is not a LumRoundMode
 *   lumStatusZeroDivisor (-51)    divisor is 0
 *
 *   kernel     the taps, row after row
 *   kernelSize columns and rows of the kernel
 *   divisor    the sums are divided by it
 *   dataType   of the images
 *   channels   samples of a pixel
 *   roundMode  how the narrow form rounds; see lumiFilterBorder
 *   spec       memory of the object, of the size that lumiFilterBorderGetSize tells
 */
LumStatus lumiFilterBorderInit_16s(const Lum16s* kernel, LumiSize kernelSize, int divisor,
                                   LumiDataType dataType, int channels, LumRoundMode roundMode,
                                   LumiFilterBorderSpec* spec);
LumStatus lumiFilterBorderInit_32f(const Lum32f* kernel, LumiSize kernelSize, LumiDataType dataType,
                                   int channels, LumRoundMode roundMode, LumiFilterBorderSpec* spec);

/**
 * Convolves an image with a kernel; what lies outside the ROI follows from the border type.
 *
 * dst(x, y) = sum over r, c of K[kH-1-r][kW-1-c] * src(x + c - kW/2, y + r - kH/2), divided and rounded.
 * Each channel is filtered by itself. An even kernel reaches one pixel further to the left and upward.
 *
 * The type (the low four bits of border) is lumiBorderConst, lumiBorderReplicate or lumiBorderInMemory.
 * Flags name sides whose pixels are in memory; with lumiBorderInMemory they are not looked at. For any
 * other type that the check lets pass the border is what the buffer happens to hold.
 *
 * The image is computed in rectangles: the top kH/2 rows, the bottom kH - kH/2 - 1 rows, and of the middle
 * rows the left kW/2 columns, the right kW - kW/2 - 1 ones and those between; where roi.width <= kW the
 * middle is one rectangle, and where roi.height < kH - 1, or with lumiBorderInMemory, all is one. In each of
 * them the form depends on its width in pixels:
 *
 *   integer kernel, 8u         wide: kW >= 3 and width >= 16 (C3, C4: 5), taps in -32767..32766
 *   integer kernel, 16s C1     wide: the same, width >= 16, and the taps' magnitudes add up to at most 65534
 *   float kernel, integer data wide: width >= 8 (8u C4: 9)
 *   32f                        wide: width >= 8 (C4: any)
 *
 * The wide form rounds to nearest, ties to even, whatever the round mode: with a divisor that is no power of
 * two, and with 1, it converts (float)sum * (1.0f / divisor). The narrow form follows the round mode. Both
 * limit the result to the type. In the narrow form of 8u, with an integer kernel whose divisor is a power
 * of two above 1, a negative sum gives 0 before anything is rounded.
 *
 * Float sums are Lum32f throughout, in the order of the formula, row after row, starting from 0. The wide
 * form has two of them where kW >= 8: one of the first kW / 8 * 8 columns of every row, then one of the other
 * columns, which is added to the first.
 *
 * Images may be misaligned in any way. They must not overlap one another or the buffer.
 *
 * Checked in this order; on an error nothing is written:
 *   lumStatusNullPointer (-8)  a pointer is null; borderValue also where the type does not use it
 *   lumStatusBadSize (-6)      roi.width or roi.height is below 1
 *   lumStatusBadStep (-14)     srcStep is below 1, or dstStep below roi.width samples (not pixels)
 *   lumStatusBadBorder (-225)  border is 2, 3 or 4
 * The object is not checked: it must be one of the member's sample type and channels.
 *
 *   border     lumiBorderConst, lumiBorderReplicate or lumiBorderInMemory, and flags
 *   borderValue the constant: a sample for each channel
 *   spec       the object, as lumiFilterBorderInit made it
 *   buffer     scratch memory of the size that lumiFilterBorderGetSize tells
 */
LumStatus lumiFilterBorder_16s_C1R(const Lum16s* src, int srcStep, Lum16s* dst, int dstStep, LumiSize roi,
                                   LumiBorderType border, const Lum16s* borderValue,
                                   const LumiFilterBorderSpec* spec, Lum8u* buffer);
LumStatus lumiFilterBorder_16s_C3R(const Lum16s* src, int srcStep, Lum16s* dst, int dstStep, LumiSize roi,
                                   LumiBorderType border, const Lum16s* borderValue,
                                   const LumiFilterBorderSpec* spec, Lum8u* buffer);
LumStatus lumiFilterBorder_16s_C4R(const Lum16s* src, int srcStep, Lum16s* dst, int dstStep, LumiSize roi,
                                   LumiBorderType border, const Lum16s* borderValue,
                                   const LumiFilterBorderSpec* spec, Lum8u* buffer);
LumStatus lumiFilterBorder_16u_C1R(const Lum16u* src, int srcStep, Lum16u* dst, int dstStep, LumiSize roi,
                                   LumiBorderType border, const Lum16u* borderValue,
                                   const LumiFilterBorderSpec* spec, Lum8u* buffer);
LumStatus lumiFilterBorder_16u_C3R(const Lum16u* src, int srcStep, Lum16u* dst, int dstStep, LumiSize roi,
                                   LumiBorderType border, const Lum16u* borderValue,
                                   const LumiFilterBorderSpec* spec, Lum8u* buffer);
LumStatus lumiFilterBorder_16u_C4R(const Lum16u* src, int srcStep, Lum16u* dst, int dstStep, LumiSize roi,
                                   LumiBorderType border, const Lum16u* borderValue,
                                   const LumiFilterBorderSpec* spec, Lum8u* buffer);
LumStatus lumiFilterBorder_32f_C1R(const Lum32f* src, int srcStep, Lum32f* dst, int dstStep, LumiSize roi,
                                   LumiBorderType border, const Lum32f* borderValue,
                                   const LumiFilterBorderSpec* spec, Lum8u* buffer);
LumStatus lumiFilterBorder_32f_C3R(const Lum32f* src, int srcStep, Lum32f* dst, int dstStep, LumiSize roi,
                                   LumiBorderType border, const Lum32f* borderValue,
                                   const LumiFilterBorderSpec* spec, Lum8u* buffer);
LumStatus lumiFilterBorder_32f_C4R(const Lum32f* src, int srcStep, Lum32f* dst, int dstStep, LumiSize roi,
                                   LumiBorderType border, const Lum32f* borderValue,
                                   const LumiFilterBorderSpec* spec, Lum8u* buffer);
LumStatus lumiFilterBorder_8u_C1R(const Lum8u* src, int srcStep, Lum8u* dst, int dstStep, LumiSize roi,
                                  LumiBorderType border, const Lum8u* borderValue,
                                  const LumiFilterBorderSpec* spec, Lum8u* buffer);
LumStatus lumiFilterBorder_8u_C3R(const Lum8u* src, int srcStep, Lum8u* dst, int dstStep, LumiSize roi,
                                  LumiBorderType border, const Lum8u* borderValue,
                                  const LumiFilterBorderSpec* spec, Lum8u* buffer);
LumStatus lumiFilterBorder_8u_C4R(const Lum8u* src, int srcStep, Lum8u* dst, int dstStep, LumiSize roi,
                                  LumiBorderType border, const Lum8u* borderValue,
                                  const LumiFilterBorderSpec* spec, Lum8u* buffer);

#ifdef __cplusplus
}
#endif

#endif
