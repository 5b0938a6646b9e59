/* SPDX-License-Identifier: MIT */
/* Generated from registry/filters/median_shapes.reg by tools/lumigen; edit that instead. */
/** @file Medians of fixed shapes. */
#ifndef LUMI_MEDIAN_SHAPES_H
#define LUMI_MEDIAN_SHAPES_H

#include "types.h"

#ifdef __cplusplus
extern "C" {
#endif

/**
 * Replaces each sample by the median of three or five in its row.
 *
 * The median of an odd number of samples is the one in their middle in ascending order. The window is centred.
 *
 * Each channel is filtered by itself; AC4 leaves the fourth sample of every pixel of dst as it was. Of the pixels
 * around the ROI those under the windows are read, one or two on both sides of each row, and must be in memory. Steps
 * are not compared with the width. Images may be misaligned in any way; they must not overlap, and the rows of dst
 * must not overlap one another.
 *
 *   maskSize   the window: lumiMask3x1 or lumiMask5x1
 *
 * Returns lumStatusOk (0) or, tested in this order and before anything is written:
 *   lumStatusNullPointer (-8)  a pointer is null, plane pointers included
 *   lumStatusBadSize (-6)      roi.width or roi.height is below 1
 *   lumStatusBadStep (-14)     a step is below 1
 *   lumStatusBadMaskSize (-33) maskSize is refused
 */
LumStatus lumiFilterMedianHoriz_16s_AC4R(const Lum16s* src, int srcStep, Lum16s* dst, int dstStep,
                                         LumiSize roi, LumiMaskSize maskSize);
LumStatus lumiFilterMedianHoriz_16s_C1R(const Lum16s* src, int srcStep, Lum16s* dst, int dstStep,
                                        LumiSize roi, LumiMaskSize maskSize);
LumStatus lumiFilterMedianHoriz_16s_C3R(const Lum16s* src, int srcStep, Lum16s* dst, int dstStep,
                                        LumiSize roi, LumiMaskSize maskSize);
LumStatus lumiFilterMedianHoriz_16s_C4R(const Lum16s* src, int srcStep, Lum16s* dst, int dstStep,
                                        LumiSize roi, LumiMaskSize maskSize);
LumStatus lumiFilterMedianHoriz_16u_AC4R(const Lum16u* src, int srcStep, Lum16u* dst, int dstStep,
                                         LumiSize roi, LumiMaskSize maskSize);
LumStatus lumiFilterMedianHoriz_16u_C1R(const Lum16u* src, int srcStep, Lum16u* dst, int dstStep,
                                        LumiSize roi, LumiMaskSize maskSize);
LumStatus lumiFilterMedianHoriz_16u_C3R(const Lum16u* src, int srcStep, Lum16u* dst, int dstStep,
                                        LumiSize roi, LumiMaskSize maskSize);
LumStatus lumiFilterMedianHoriz_16u_C4R(const Lum16u* src, int srcStep, Lum16u* dst, int dstStep,
                                        LumiSize roi, LumiMaskSize maskSize);
LumStatus lumiFilterMedianHoriz_8u_AC4R(const Lum8u* src, int srcStep, Lum8u* dst, int dstStep, LumiSize roi,
                                        LumiMaskSize maskSize);
LumStatus lumiFilterMedianHoriz_8u_C1R(const Lum8u* src, int srcStep, Lum8u* dst, int dstStep, LumiSize roi,
                                       LumiMaskSize maskSize);
LumStatus lumiFilterMedianHoriz_8u_C3R(const Lum8u* src, int srcStep, Lum8u* dst, int dstStep, LumiSize roi,
                                       LumiMaskSize maskSize);
LumStatus lumiFilterMedianHoriz_8u_C4R(const Lum8u* src, int srcStep, Lum8u* dst, int dstStep, LumiSize roi,
                                       LumiMaskSize maskSize);

/**
 * Replaces each sample by the median of three or five in its column.
 *
 * Of the pixels around the ROI, the one or two rows above and below are read. All else is as in
 * lumiFilterMedianHoriz.
 *
 *   maskSize   the window: lumiMask1x3 or lumiMask1x5
 *
 * Returns lumStatusOk (0) or, tested in this order and before anything is written:
 *   lumStatusNullPointer (-8)  a pointer is null, plane pointers included
 *   lumStatusBadSize (-6)      roi.width or roi.height is below 1
 *   lumStatusBadStep (-14)     a step is below 1
 *   lumStatusBadMaskSize (-33) maskSize is refused
 */
LumStatus lumiFilterMedianVert_16s_AC4R(const Lum16s* src, int srcStep, Lum16s* dst, int dstStep,
                                        LumiSize roi, LumiMaskSize maskSize);
LumStatus lumiFilterMedianVert_16s_C1R(const Lum16s* src, int srcStep, Lum16s* dst, int dstStep, LumiSize roi,
                                       LumiMaskSize maskSize);
LumStatus lumiFilterMedianVert_16s_C3R(const Lum16s* src, int srcStep, Lum16s* dst, int dstStep, LumiSize roi,
                                       LumiMaskSize maskSize);
LumStatus lumiFilterMedianVert_16s_C4R(const Lum16s* src, int srcStep, Lum16s* dst, int dstStep, LumiSize roi,
                                       LumiMaskSize maskSize);
LumStatus lumiFilterMedianVert_16u_AC4R(const Lum16u* src, int srcStep, Lum16u* dst, int dstStep,
                                        LumiSize roi, LumiMaskSize maskSize);
LumStatus lumiFilterMedianVert_16u_C1R(const Lum16u* src, int srcStep, Lum16u* dst, int dstStep, LumiSize roi,
                                       LumiMaskSize maskSize);
LumStatus lumiFilterMedianVert_16u_C3R(const Lum16u* src, int srcStep, Lum16u* dst, int dstStep, LumiSize roi,
                                       LumiMaskSize maskSize);
LumStatus lumiFilterMedianVert_16u_C4R(const Lum16u* src, int srcStep, Lum16u* dst, int dstStep, LumiSize roi,
                                       LumiMaskSize maskSize);
LumStatus lumiFilterMedianVert_8u_AC4R(const Lum8u* src, int srcStep, Lum8u* dst, int dstStep, LumiSize roi,
                                       LumiMaskSize maskSize);
LumStatus lumiFilterMedianVert_8u_C1R(const Lum8u* src, int srcStep, Lum8u* dst, int dstStep, LumiSize roi,
                                      LumiMaskSize maskSize);
LumStatus lumiFilterMedianVert_8u_C3R(const Lum8u* src, int srcStep, Lum8u* dst, int dstStep, LumiSize roi,
                                      LumiMaskSize maskSize);
LumStatus lumiFilterMedianVert_8u_C4R(const Lum8u* src, int srcStep, Lum8u* dst, int dstStep, LumiSize roi,
                                      LumiMaskSize maskSize);

/**
 * Replaces each sample by the median of a cross.
 *
 * The cross is the middle row and column of a square: five samples of 3 x 3, nine of 5 x 5. Of the pixels around the
 * ROI those under crosses are read; those in the corners need not be in memory. All else is as in
 * lumiFilterMedianHoriz.
 *
 *   maskSize   the square: lumiMask3x3 or lumiMask5x5
 *
 * Returns lumStatusOk (0) or, tested in this order and before anything is written:
 *   lumStatusNullPointer (-8)  a pointer is null, plane pointers included
 *   lumStatusBadSize (-6)      roi.width or roi.height is below 1
 *   lumStatusBadStep (-14)     a step is below 1
 *   lumStatusBadMaskSize (-33) maskSize is refused
 */
LumStatus lumiFilterMedianCross_16s_AC4R(const Lum16s* src, int srcStep, Lum16s* dst, int dstStep,
                                         LumiSize roi, LumiMaskSize maskSize);
LumStatus lumiFilterMedianCross_16s_C1R(const Lum16s* src, int srcStep, Lum16s* dst, int dstStep,
                                        LumiSize roi, LumiMaskSize maskSize);
LumStatus lumiFilterMedianCross_16s_C3R(const Lum16s* src, int srcStep, Lum16s* dst, int dstStep,
                                        LumiSize roi, LumiMaskSize maskSize);
LumStatus lumiFilterMedianCross_16u_AC4R(const Lum16u* src, int srcStep, Lum16u* dst, int dstStep,
                                         LumiSize roi, LumiMaskSize maskSize);
LumStatus lumiFilterMedianCross_16u_C1R(const Lum16u* src, int srcStep, Lum16u* dst, int dstStep,
                                        LumiSize roi, LumiMaskSize maskSize);
LumStatus lumiFilterMedianCross_16u_C3R(const Lum16u* src, int srcStep, Lum16u* dst, int dstStep,
                                        LumiSize roi, LumiMaskSize maskSize);
LumStatus lumiFilterMedianCross_8u_AC4R(const Lum8u* src, int srcStep, Lum8u* dst, int dstStep, LumiSize roi,
                                        LumiMaskSize maskSize);
LumStatus lumiFilterMedianCross_8u_C1R(const Lum8u* src, int srcStep, Lum8u* dst, int dstStep, LumiSize roi,
                                       LumiMaskSize maskSize);
LumStatus lumiFilterMedianCross_8u_C3R(const Lum8u* src, int srcStep, Lum8u* dst, int dstStep, LumiSize roi,
                                       LumiMaskSize maskSize);

/**
 * Replaces each colour by the one of its neighbourhood that lies nearest to all the others.
 *
 * The vector median (J. Astola, P. Haavisto and Y. Neuvo, 1990): of the 9 or 25 colours of the square about a pixel,
 * the one whose sum of distances to all of them is smallest. The distance of two colours is the sum of the absolute
 * differences of their three channels. So the result is always a colour of the neighbourhood, bit for bit. Of colours
 * with equal sums the first one in reading order is taken. Sums of floats are Lum32f, rounded after each addition, in
 * reading order; where one of the square's samples is no number, or sums are infinite, the result is any of its
 * colours.
 *
 * AC4 leaves the fourth sample of every pixel of dst as it was, and does not look at that of src. Pixels around the
 * ROI are read as far as the square reaches, and must be in memory. All else is as in lumiFilterMedianHoriz.
 *
 *   maskSize   the square: lumiMask3x3 or lumiMask5x5
 *
 * Returns lumStatusOk (0) or, tested in this order and before anything is written:
 *   lumStatusNullPointer (-8)  a pointer is null, plane pointers included
 *   lumStatusBadSize (-6)      roi.width or roi.height is below 1
 *   lumStatusBadStep (-14)     a step is below 1
 *   lumStatusBadMaskSize (-33) maskSize is refused
 */
LumStatus lumiFilterMedianColor_16s_AC4R(const Lum16s* src, int srcStep, Lum16s* dst, int dstStep,
                                         LumiSize roi, LumiMaskSize maskSize);
LumStatus lumiFilterMedianColor_16s_C3R(const Lum16s* src, int srcStep, Lum16s* dst, int dstStep,
                                        LumiSize roi, LumiMaskSize maskSize);
LumStatus lumiFilterMedianColor_32f_AC4R(const Lum32f* src, int srcStep, Lum32f* dst, int dstStep,
                                         LumiSize roi, LumiMaskSize maskSize);
LumStatus lumiFilterMedianColor_32f_C3R(const Lum32f* src, int srcStep, Lum32f* dst, int dstStep,
                                        LumiSize roi, LumiMaskSize maskSize);
LumStatus lumiFilterMedianColor_8u_AC4R(const Lum8u* src, int srcStep, Lum8u* dst, int dstStep, LumiSize roi,
                                        LumiMaskSize maskSize);
LumStatus lumiFilterMedianColor_8u_C3R(const Lum8u* src, int srcStep, Lum8u* dst, int dstStep, LumiSize roi,
                                       LumiMaskSize maskSize);

/**
 * Replaces each sample by the median of 3 x 3 samples of which the one in the middle counts several times.
 *
 * A weight of 1 gives the plain median, one of 9 or more the source itself. Instead of an even weight the one below it is
 * taken, and the call returns lumStatusEvenMedianWeight (39).
 *
 * Pixels around the ROI are read, one on each side, and must be in memory. All else is as in lumiFilterMedianHoriz.
 *
 *   weight     how often the sample in the middle counts: 1 or more
 *
 * Returns lumStatusOk (0) or, tested in this order and before anything is written:
 *   lumStatusNullPointer (-8)  a pointer is null, plane pointers included
 *   lumStatusBadSize (-6)      roi.width or roi.height is below 1
 *   lumStatusBadStep (-14)     a step is below 1
 *   lumStatusBadCenterWeight (-211) weight is refused
 */
LumStatus lumiFilterMedianWeightedCenter3x3_8u_C1R(const Lum8u* src, int srcStep, Lum8u* dst, int dstStep,
                                                   LumiSize roi, int weight);

/**
 * Stores the median of three planes at each place.
 *
 * dst(x, y) is the one in the middle of src[0](x, y), src[1](x, y) and src[2](x, y) in ascending order.
 *
 * The destination may be any of the planes. Steps may be any number, negative ones and zero too. Images may be
 * misaligned in any way, and must not overlap otherwise.
 *
 * Returns lumStatusOk (0) or, tested in this order and before anything is written:
 *   lumStatusNullPointer (-8)  a pointer is null
 *   lumStatusBadSize (-6)      roi.width or roi.height is below 1
 *   lumStatusNullPointer (-8)  one of an array of pointers is null
 */
LumStatus lumiMedian_8u_P3C1R(const Lum8u* const src[3], int srcStep, Lum8u* dst, int dstStep, LumiSize roi);

#ifdef __cplusplus
}
#endif

#endif
