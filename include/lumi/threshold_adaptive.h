/* SPDX-License-Identifier: MIT */
/* Generated from registry/filters/threshold_adaptive.reg by tools/lumigen; edit that instead. */
/** @file Adaptive thresholds. */
#ifndef LUMI_THRESHOLD_ADAPTIVE_H
#define LUMI_THRESHOLD_ADAPTIVE_H

#include "types.h"

#ifdef __cplusplus
extern "C" {
#endif

/**
 * Tells the size of the buffer that lumiThresholdAdaptiveBox needs.
 *
 * The buffer serves calls with that window whose ROI is not larger than area. All arithmetic is modulo 2^32:
 * sizes beyond 2 GiB must be ruled out by the caller.
 *
 *   area       the largest ROI
 *   maskSize   sides of the window
 *   dataType   lumiData8u
 *   channels   1
 *   bufferSize receives the size of the buffer, in bytes
 *
 * Returns lumStatusOk (0) or, tested in this order and before anything is written:
 *   lumStatusNullPointer (-8)  a pointer is null, plane pointers included
 *   lumStatusBadSize (-6)      a width or a height is below 1
 *   lumStatusBadMaskSize (-33) they are unequal, even or below 1
 *   lumStatusBadDataType (-12) dataType is refused
 *   lumStatusBadChannelCount (-53) channels is refused
 */
LumStatus lumiThresholdAdaptiveBoxGetBufferSize(LumiSize area, LumiSize maskSize, LumiDataType dataType,
                                                int channels, int* bufferSize);

/**
 * Tells pixels that are brighter than their surroundings, less delta, from the others.
 *
 * With the sum S of the n pixels of the window about a pixel,
 *
 *   dst = valueAbove if n * src > S - n * delta, otherwise valueNotAbove,
 *
 * in Lum32f, S being exact before it becomes one; under a window of 3 x 3 in integers, with the first one that
 * is not below 9 * delta. A delta above 255 gives valueAbove throughout, and one of -255 or less
 * valueNotAbove; so does, under a window of one pixel, a delta above 0, or not: neither source nor buffer are
 * looked at then.
 *
 * The type (the low four bits of border) is lumiBorderConst, lumiBorderReplicate or lumiBorderInMemory. Flags
 * name sides whose pixels are in memory.
 *
 * Source and destination may be the same image of one step, whose rows are not overlapped by pixels that are
 * read beside others; they must not overlap otherwise, nor the buffer. Steps may be any.
 *
 *   maskSize   sides of the window
 *   delta      how far below the mean a pixel still counts as above it
 *   valueAbove of pixels above the mean less delta
 *   valueNotAbove of the others
 *   border     the type, and flags
 *   borderValue the constant
 *   buffer     scratch memory of the size that lumiThresholdAdaptiveBoxGetBufferSize tells
 *
 * Returns lumStatusOk (0) or, tested in this order and before anything is written:
 *   lumStatusNullPointer (-8)  a pointer is null, plane pointers included
 *   lumStatusBadSize (-6)      a width or a height is below 1
 *   lumStatusBadMaskSize (-33) they are unequal, even or below 1
 *   lumStatusBadBorder (-225)  border is refused
 */
LumStatus lumiThresholdAdaptiveBox_8u_C1IR(Lum8u* srcDst, int srcDstStep, LumiSize roi, LumiSize maskSize,
                                           Lum32f delta, Lum8u valueAbove, Lum8u valueNotAbove,
                                           LumiBorderType border, Lum8u borderValue, Lum8u* buffer);
LumStatus lumiThresholdAdaptiveBox_8u_C1R(const Lum8u* src, int srcStep, Lum8u* dst, int dstStep,
                                          LumiSize roi, LumiSize maskSize, Lum32f delta, Lum8u valueAbove,
                                          Lum8u valueNotAbove, LumiBorderType border, Lum8u borderValue,
                                          Lum8u* buffer);

/**
 * Tells the sizes of the object and the buffer that lumiThresholdAdaptiveGauss needs.
 *
 * The buffer is one of lumiThresholdAdaptiveBox.
 *
 *   area       the largest ROI
 *   maskSize   sides of the window
 *   dataType   lumiData8u
 *   channels   1
 *   specSize   receives the size of the object, in bytes
 *   bufferSize receives the size of the buffer, in bytes
 *
 * Returns lumStatusOk (0) or, tested in this order and before anything is written:
 *   lumStatusNullPointer (-8)  a pointer is null, plane pointers included
 *   lumStatusBadSize (-6)      a width or a height is below 1
 *   lumStatusBadMaskSize (-33) they are unequal, even or below 1
 *   lumStatusBadDataType (-12) dataType is refused
 *   lumStatusBadChannelCount (-53) channels is refused
 */
LumStatus lumiThresholdAdaptiveGaussGetBufferSize(LumiSize area, LumiSize maskSize, LumiDataType dataType,
                                                  int channels, int* specSize, int* bufferSize);

/**
 * Makes the weights of a window.
 *
 * The weight of a row or column at a distance of i from the middle is exp(-i * i / (2 * sigma * sigma)), by
 * the sum of all of them. A sigma of 0 or less stands for 0.3 * ((side - 1) * 0.5 - 1) + 0.8.
 *
 *   area       the largest ROI
 *   maskSize   sides of the window
 *   dataType   lumiData8u
 *   channels   1
 *   sigma      width of the hill
 *   spec       memory of the object, of the size that the query tells
 *
 * Returns lumStatusOk (0) or, tested in this order and before anything is written:
 *   lumStatusNullPointer (-8)  a pointer is null, plane pointers included
 *   lumStatusBadSize (-6)      a width or a height is below 1
 *   lumStatusBadMaskSize (-33) they are unequal, even or below 1
 *   lumStatusBadDataType (-12) dataType is refused
 *   lumStatusBadChannelCount (-53) channels is refused
 */
LumStatus lumiThresholdAdaptiveGaussInit(LumiSize area, LumiSize maskSize, LumiDataType dataType,
                                         int channels, Lum32f sigma, LumiThresholdAdaptiveGaussSpec* spec);

/**
 * Tells pixels that are brighter than a weighted mean of their surroundings, less delta, from the others.
 *
 * dst = valueAbove if src > G - delta, otherwise valueNotAbove, in Lum32f. G is the sum of weighted columns, from
 * left to right, each the sum of its weighted pixels, from top to bottom. All else is as for
 * lumiThresholdAdaptiveBox.
 *
 * An object that is none, or not one of this operation, gives lumStatusBadContext (-17), after all other checks.
 *
 *   delta      how far below the mean a pixel still counts as above it
 *   valueAbove of pixels above the mean less delta
 *   valueNotAbove of the others
 *   border     the type, and flags
 *   borderValue the constant
 *   spec       the object, as lumiThresholdAdaptiveGaussInit made it
 *   buffer     scratch memory of the size that lumiThresholdAdaptiveGaussGetBufferSize tells
 *
 * Returns lumStatusOk (0) or, tested in this order and before anything is written:
 *   lumStatusNullPointer (-8)  a pointer is null, plane pointers included
 *   lumStatusBadSize (-6)      roi.width or roi.height is below 1
 *   lumStatusBadBorder (-225)  border is refused
 */
LumStatus lumiThresholdAdaptiveGauss_8u_C1IR(Lum8u* srcDst, int srcDstStep, LumiSize roi, Lum32f delta,
                                             Lum8u valueAbove, Lum8u valueNotAbove, LumiBorderType border,
                                             Lum8u borderValue, const LumiThresholdAdaptiveGaussSpec* spec,
                                             Lum8u* buffer);
LumStatus lumiThresholdAdaptiveGauss_8u_C1R(const Lum8u* src, int srcStep, Lum8u* dst, int dstStep,
                                            LumiSize roi, Lum32f delta, Lum8u valueAbove, Lum8u valueNotAbove,
                                            LumiBorderType border, Lum8u borderValue,
                                            const LumiThresholdAdaptiveGaussSpec* spec, Lum8u* buffer);

#ifdef __cplusplus
}
#endif

#endif
