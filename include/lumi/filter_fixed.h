/* SPDX-License-Identifier: MIT */
/* Generated from registry/filters/filter_fixed.reg by tools/lumigen; edit that instead. */
/** @file Filters with fixed kernels. */
#ifndef LUMI_FILTER_FIXED_H
#define LUMI_FILTER_FIXED_H

#include "types.h"

#ifdef __cplusplus
extern "C" {
#endif

/**
 * Applies the Sobel kernel of horizontal lines: below minus above.
 *
 * dst(x, y) = sum over r, c of K[r][c] * src(x + c - radius, y + r - radius): the kernel as it is written here,
 * not turned. 3 x 3:
 *
 *   -1 -2 -1
 *    0  0  0
 *    1  2  1
 *
 * 5 x 5: -1 -2 0 2 1 downward times 1 4 6 4 1 across. Integer sums are exact. From 8u to 8u, and from 16s to
 * 16s, they are limited to the type; to 16s from bytes they fit. Sums of floats are Lum32f.
 *
 * Each channel is filtered by itself; AC4 leaves the fourth sample of every pixel of dst as it was. Pixels
 * around the ROI are read as far as the window reaches, and must be in memory: one on each side for 3 x 3,
 * two for 5 x 5. Steps are not compared with the width. Images may be misaligned in any way; they must not
 * overlap, and the rows of dst must not overlap one another.
 *
 *   maskSize   the window: lumiMask3x3 or lumiMask5x5
 *
 * Returns lumStatusOk (0) or, tested in this order and before anything is written (8u 16s 32f: C1 C3 C4 AC4):
 *   lumStatusNullPointer (-8)  a pointer is null, plane pointers included
 *   lumStatusBadSize (-6)      roi.width or roi.height is below 1
 *   lumStatusBadStep (-14)     a step is below 1
 *
 * Returns lumStatusOk (0) or, tested in this order and before anything is written (8u16s 8s16s: C1):
 *   lumStatusNullPointer (-8)  a pointer is null, plane pointers included
 *   lumStatusBadSize (-6)      roi.width or roi.height is below 1
 *   lumStatusBadStep (-14)     a step is below 1
 *   lumStatusBadMaskSize (-33) maskSize is refused
 */
LumStatus lumiFilterSobelHoriz_16s_AC4R(const Lum16s* src, int srcStep, Lum16s* dst, int dstStep,
                                        LumiSize roi);
LumStatus lumiFilterSobelHoriz_16s_C1R(const Lum16s* src, int srcStep, Lum16s* dst, int dstStep,
                                       LumiSize roi);
LumStatus lumiFilterSobelHoriz_16s_C3R(const Lum16s* src, int srcStep, Lum16s* dst, int dstStep,
                                       LumiSize roi);
LumStatus lumiFilterSobelHoriz_16s_C4R(const Lum16s* src, int srcStep, Lum16s* dst, int dstStep,
                                       LumiSize roi);
LumStatus lumiFilterSobelHoriz_32f_AC4R(const Lum32f* src, int srcStep, Lum32f* dst, int dstStep,
                                        LumiSize roi);
LumStatus lumiFilterSobelHoriz_32f_C1R(const Lum32f* src, int srcStep, Lum32f* dst, int dstStep,
                                       LumiSize roi);
LumStatus lumiFilterSobelHoriz_32f_C3R(const Lum32f* src, int srcStep, Lum32f* dst, int dstStep,
                                       LumiSize roi);
LumStatus lumiFilterSobelHoriz_32f_C4R(const Lum32f* src, int srcStep, Lum32f* dst, int dstStep,
                                       LumiSize roi);
LumStatus lumiFilterSobelHoriz_8s16s_C1R(const Lum8s* src, int srcStep, Lum16s* dst, int dstStep,
                                         LumiSize roi, LumiMaskSize maskSize);
LumStatus lumiFilterSobelHoriz_8u16s_C1R(const Lum8u* src, int srcStep, Lum16s* dst, int dstStep,
                                         LumiSize roi, LumiMaskSize maskSize);
LumStatus lumiFilterSobelHoriz_8u_AC4R(const Lum8u* src, int srcStep, Lum8u* dst, int dstStep, LumiSize roi);
LumStatus lumiFilterSobelHoriz_8u_C1R(const Lum8u* src, int srcStep, Lum8u* dst, int dstStep, LumiSize roi);
LumStatus lumiFilterSobelHoriz_8u_C3R(const Lum8u* src, int srcStep, Lum8u* dst, int dstStep, LumiSize roi);
LumStatus lumiFilterSobelHoriz_8u_C4R(const Lum8u* src, int srcStep, Lum8u* dst, int dstStep, LumiSize roi);

/**
 * Applies the Sobel kernel of vertical lines: left minus right.
 *
 * 3 x 3:
 *
 *   1 0 -1
 *   2 0 -2
 *   1 0 -1
 *
 * 5 x 5: 1 4 6 4 1 downward times 1 2 0 -2 -1 across.
 * Sums, layouts, surroundings and overlap are as in lumiFilterSobelHoriz.
 *
 *   maskSize   the window: lumiMask3x3 or lumiMask5x5
 *
 * Returns lumStatusOk (0) or, tested in this order and before anything is written (8u 16s 32f: C1 C3 C4 AC4):
 *   lumStatusNullPointer (-8)  a pointer is null, plane pointers included
 *   lumStatusBadSize (-6)      roi.width or roi.height is below 1
 *   lumStatusBadStep (-14)     a step is below 1
 *
 * Returns lumStatusOk (0) or, tested in this order and before anything is written (8u16s 8s16s: C1):
 *   lumStatusNullPointer (-8)  a pointer is null, plane pointers included
 *   lumStatusBadSize (-6)      roi.width or roi.height is below 1
 *   lumStatusBadStep (-14)     a step is below 1
 *   lumStatusBadMaskSize (-33) maskSize is refused
 */
LumStatus lumiFilterSobelVert_16s_AC4R(const Lum16s* src, int srcStep, Lum16s* dst, int dstStep,
                                       LumiSize roi);
LumStatus lumiFilterSobelVert_16s_C1R(const Lum16s* src, int srcStep, Lum16s* dst, int dstStep, LumiSize roi);
LumStatus lumiFilterSobelVert_16s_C3R(const Lum16s* src, int srcStep, Lum16s* dst, int dstStep, LumiSize roi);
LumStatus lumiFilterSobelVert_16s_C4R(const Lum16s* src, int srcStep, Lum16s* dst, int dstStep, LumiSize roi);
LumStatus lumiFilterSobelVert_32f_AC4R(const Lum32f* src, int srcStep, Lum32f* dst, int dstStep,
                                       LumiSize roi);
LumStatus lumiFilterSobelVert_32f_C1R(const Lum32f* src, int srcStep, Lum32f* dst, int dstStep, LumiSize roi);
LumStatus lumiFilterSobelVert_32f_C3R(const Lum32f* src, int srcStep, Lum32f* dst, int dstStep, LumiSize roi);
LumStatus lumiFilterSobelVert_32f_C4R(const Lum32f* src, int srcStep, Lum32f* dst, int dstStep, LumiSize roi);
LumStatus lumiFilterSobelVert_8s16s_C1R(const Lum8s* src, int srcStep, Lum16s* dst, int dstStep, LumiSize roi,
                                        LumiMaskSize maskSize);
LumStatus lumiFilterSobelVert_8u16s_C1R(const Lum8u* src, int srcStep, Lum16s* dst, int dstStep, LumiSize roi,
                                        LumiMaskSize maskSize);
LumStatus lumiFilterSobelVert_8u_AC4R(const Lum8u* src, int srcStep, Lum8u* dst, int dstStep, LumiSize roi);
LumStatus lumiFilterSobelVert_8u_C1R(const Lum8u* src, int srcStep, Lum8u* dst, int dstStep, LumiSize roi);
LumStatus lumiFilterSobelVert_8u_C3R(const Lum8u* src, int srcStep, Lum8u* dst, int dstStep, LumiSize roi);
LumStatus lumiFilterSobelVert_8u_C4R(const Lum8u* src, int srcStep, Lum8u* dst, int dstStep, LumiSize roi);

/**
 * Does what lumiFilterSobelHoriz does, with a window by choice.
 *
 * A maskSize of lumiMask3x3 asks for 3 x 3, any other value for 5 x 5.
 * Sums, layouts, surroundings and overlap are as in lumiFilterSobelHoriz.
 *
 *   maskSize   the window: lumiMask3x3; any other value is lumiMask5x5
 *
 * Returns lumStatusOk (0) or, tested in this order and before anything is written:
 *   lumStatusNullPointer (-8)  a pointer is null, plane pointers included
 *   lumStatusBadSize (-6)      roi.width or roi.height is below 1
 *   lumStatusBadStep (-14)     a step is below 1
 */
LumStatus lumiFilterSobelHorizMask_32f_C1R(const Lum32f* src, int srcStep, Lum32f* dst, int dstStep,
                                           LumiSize roi, LumiMaskSize maskSize);

/**
 * Does what lumiFilterSobelVert does, with a window by choice.
 *
 * A maskSize of lumiMask3x3 asks for 3 x 3, any other value for 5 x 5.
 * Sums, layouts, surroundings and overlap are as in lumiFilterSobelHoriz.
 *
 *   maskSize   the window: lumiMask3x3; any other value is lumiMask5x5
 *
 * Returns lumStatusOk (0) or, tested in this order and before anything is written:
 *   lumStatusNullPointer (-8)  a pointer is null, plane pointers included
 *   lumStatusBadSize (-6)      roi.width or roi.height is below 1
 *   lumStatusBadStep (-14)     a step is below 1
 */
LumStatus lumiFilterSobelVertMask_32f_C1R(const Lum32f* src, int srcStep, Lum32f* dst, int dstStep,
                                          LumiSize roi, LumiMaskSize maskSize);

/**
 * Applies the Sobel kernel of the second derivative downward.
 *
 * 3 x 3:
 *
 *    1  2  1
 *   -2 -4 -2
 *    1  2  1
 *
 * 5 x 5: 1 0 -2 0 1 downward times 1 4 6 4 1 across.
 * Sums, layouts, surroundings and overlap are as in lumiFilterSobelHoriz.
 *
 *   maskSize   the window: lumiMask3x3 or lumiMask5x5
 *
 * Returns lumStatusOk (0) or, tested in this order and before anything is written:
 *   lumStatusNullPointer (-8)  a pointer is null, plane pointers included
 *   lumStatusBadSize (-6)      roi.width or roi.height is below 1
 *   lumStatusBadStep (-14)     a step is below 1
 *   lumStatusBadMaskSize (-33) maskSize is refused
 */
LumStatus lumiFilterSobelHorizSecond_32f_C1R(const Lum32f* src, int srcStep, Lum32f* dst, int dstStep,
                                             LumiSize roi, LumiMaskSize maskSize);
LumStatus lumiFilterSobelHorizSecond_8s16s_C1R(const Lum8s* src, int srcStep, Lum16s* dst, int dstStep,
                                               LumiSize roi, LumiMaskSize maskSize);
LumStatus lumiFilterSobelHorizSecond_8u16s_C1R(const Lum8u* src, int srcStep, Lum16s* dst, int dstStep,
                                               LumiSize roi, LumiMaskSize maskSize);

/**
 * Applies the Sobel kernel of the second derivative across.
 *
 * 3 x 3:
 *
 *   1 -2 1
 *   2 -4 2
 *   1 -2 1
 *
 * 5 x 5: 1 4 6 4 1 downward times 1 0 -2 0 1 across.
 * Sums, layouts, surroundings and overlap are as in lumiFilterSobelHoriz.
 *
 *   maskSize   the window: lumiMask3x3 or lumiMask5x5
 *
 * Returns lumStatusOk (0) or, tested in this order and before anything is written:
 *   lumStatusNullPointer (-8)  a pointer is null, plane pointers included
 *   lumStatusBadSize (-6)      roi.width or roi.height is below 1
 *   lumStatusBadStep (-14)     a step is below 1
 *   lumStatusBadMaskSize (-33) maskSize is refused
 */
LumStatus lumiFilterSobelVertSecond_32f_C1R(const Lum32f* src, int srcStep, Lum32f* dst, int dstStep,
                                            LumiSize roi, LumiMaskSize maskSize);
LumStatus lumiFilterSobelVertSecond_8s16s_C1R(const Lum8s* src, int srcStep, Lum16s* dst, int dstStep,
                                              LumiSize roi, LumiMaskSize maskSize);
LumStatus lumiFilterSobelVertSecond_8u16s_C1R(const Lum8u* src, int srcStep, Lum16s* dst, int dstStep,
                                              LumiSize roi, LumiMaskSize maskSize);

/**
 * Applies the Sobel kernel of the derivative across and downward.
 *
 * 3 x 3:
 *
 *   -1 0  1
 *    0 0  0
 *    1 0 -1
 *
 * 5 x 5: -1 -2 0 2 1 downward times 1 2 0 -2 -1 across.
 * Sums, layouts, surroundings and overlap are as in lumiFilterSobelHoriz.
 *
 *   maskSize   the window: lumiMask3x3 or lumiMask5x5
 *
 * Returns lumStatusOk (0) or, tested in this order and before anything is written:
 *   lumStatusNullPointer (-8)  a pointer is null, plane pointers included
 *   lumStatusBadSize (-6)      roi.width or roi.height is below 1
 *   lumStatusBadStep (-14)     a step is below 1
 *   lumStatusBadMaskSize (-33) maskSize is refused
 */
LumStatus lumiFilterSobelCross_32f_C1R(const Lum32f* src, int srcStep, Lum32f* dst, int dstStep, LumiSize roi,
                                       LumiMaskSize maskSize);
LumStatus lumiFilterSobelCross_8s16s_C1R(const Lum8s* src, int srcStep, Lum16s* dst, int dstStep,
                                         LumiSize roi, LumiMaskSize maskSize);
LumStatus lumiFilterSobelCross_8u16s_C1R(const Lum8u* src, int srcStep, Lum16s* dst, int dstStep,
                                         LumiSize roi, LumiMaskSize maskSize);

/**
 * Applies the Prewitt kernel of horizontal lines: below minus above.
 *
 * -1 -1 -1 above, 1 1 1 below.
 * Sums, layouts, surroundings and overlap are as in lumiFilterSobelHoriz.
 *
 * Returns lumStatusOk (0) or, tested in this order and before anything is written:
 *   lumStatusNullPointer (-8)  a pointer is null, plane pointers included
 *   lumStatusBadSize (-6)      roi.width or roi.height is below 1
 *   lumStatusBadStep (-14)     a step is below 1
 */
LumStatus lumiFilterPrewittHoriz_16s_AC4R(const Lum16s* src, int srcStep, Lum16s* dst, int dstStep,
                                          LumiSize roi);
LumStatus lumiFilterPrewittHoriz_16s_C1R(const Lum16s* src, int srcStep, Lum16s* dst, int dstStep,
                                         LumiSize roi);
LumStatus lumiFilterPrewittHoriz_16s_C3R(const Lum16s* src, int srcStep, Lum16s* dst, int dstStep,
                                         LumiSize roi);
LumStatus lumiFilterPrewittHoriz_16s_C4R(const Lum16s* src, int srcStep, Lum16s* dst, int dstStep,
                                         LumiSize roi);
LumStatus lumiFilterPrewittHoriz_32f_AC4R(const Lum32f* src, int srcStep, Lum32f* dst, int dstStep,
                                          LumiSize roi);
LumStatus lumiFilterPrewittHoriz_32f_C1R(const Lum32f* src, int srcStep, Lum32f* dst, int dstStep,
                                         LumiSize roi);
LumStatus lumiFilterPrewittHoriz_32f_C3R(const Lum32f* src, int srcStep, Lum32f* dst, int dstStep,
                                         LumiSize roi);
LumStatus lumiFilterPrewittHoriz_32f_C4R(const Lum32f* src, int srcStep, Lum32f* dst, int dstStep,
                                         LumiSize roi);
LumStatus lumiFilterPrewittHoriz_8u_AC4R(const Lum8u* src, int srcStep, Lum8u* dst, int dstStep,
                                         LumiSize roi);
LumStatus lumiFilterPrewittHoriz_8u_C1R(const Lum8u* src, int srcStep, Lum8u* dst, int dstStep, LumiSize roi);
LumStatus lumiFilterPrewittHoriz_8u_C3R(const Lum8u* src, int srcStep, Lum8u* dst, int dstStep, LumiSize roi);
LumStatus lumiFilterPrewittHoriz_8u_C4R(const Lum8u* src, int srcStep, Lum8u* dst, int dstStep, LumiSize roi);

/**
 * Applies the Prewitt kernel of vertical lines: left minus right.
 *
 * 1 0 -1 in each of three rows.
 * Sums, layouts, surroundings and overlap are as in lumiFilterSobelHoriz.
 *
 * Returns lumStatusOk (0) or, tested in this order and before anything is written:
 *   lumStatusNullPointer (-8)  a pointer is null, plane pointers included
 *   lumStatusBadSize (-6)      roi.width or roi.height is below 1
 *   lumStatusBadStep (-14)     a step is below 1
 */
LumStatus lumiFilterPrewittVert_16s_AC4R(const Lum16s* src, int srcStep, Lum16s* dst, int dstStep,
                                         LumiSize roi);
LumStatus lumiFilterPrewittVert_16s_C1R(const Lum16s* src, int srcStep, Lum16s* dst, int dstStep,
                                        LumiSize roi);
LumStatus lumiFilterPrewittVert_16s_C3R(const Lum16s* src, int srcStep, Lum16s* dst, int dstStep,
                                        LumiSize roi);
LumStatus lumiFilterPrewittVert_16s_C4R(const Lum16s* src, int srcStep, Lum16s* dst, int dstStep,
                                        LumiSize roi);
LumStatus lumiFilterPrewittVert_32f_AC4R(const Lum32f* src, int srcStep, Lum32f* dst, int dstStep,
                                         LumiSize roi);
LumStatus lumiFilterPrewittVert_32f_C1R(const Lum32f* src, int srcStep, Lum32f* dst, int dstStep,
                                        LumiSize roi);
LumStatus lumiFilterPrewittVert_32f_C3R(const Lum32f* src, int srcStep, Lum32f* dst, int dstStep,
                                        LumiSize roi);
LumStatus lumiFilterPrewittVert_32f_C4R(const Lum32f* src, int srcStep, Lum32f* dst, int dstStep,
                                        LumiSize roi);
LumStatus lumiFilterPrewittVert_8u_AC4R(const Lum8u* src, int srcStep, Lum8u* dst, int dstStep, LumiSize roi);
LumStatus lumiFilterPrewittVert_8u_C1R(const Lum8u* src, int srcStep, Lum8u* dst, int dstStep, LumiSize roi);
LumStatus lumiFilterPrewittVert_8u_C3R(const Lum8u* src, int srcStep, Lum8u* dst, int dstStep, LumiSize roi);
LumStatus lumiFilterPrewittVert_8u_C4R(const Lum8u* src, int srcStep, Lum8u* dst, int dstStep, LumiSize roi);

/**
 * Applies the Scharr kernel of horizontal lines: below minus above.
 *
 * -3 -10 -3 above, 3 10 3 below.
 * Sums, layouts, surroundings and overlap are as in lumiFilterSobelHoriz.
 *
 * Returns lumStatusOk (0) or, tested in this order and before anything is written:
 *   lumStatusNullPointer (-8)  a pointer is null, plane pointers included
 *   lumStatusBadSize (-6)      roi.width or roi.height is below 1
 *   lumStatusBadStep (-14)     a step is below 1
 */
LumStatus lumiFilterScharrHoriz_32f_C1R(const Lum32f* src, int srcStep, Lum32f* dst, int dstStep,
                                        LumiSize roi);
LumStatus lumiFilterScharrHoriz_8s16s_C1R(const Lum8s* src, int srcStep, Lum16s* dst, int dstStep,
                                          LumiSize roi);
LumStatus lumiFilterScharrHoriz_8u16s_C1R(const Lum8u* src, int srcStep, Lum16s* dst, int dstStep,
                                          LumiSize roi);

/**
 * Applies the Scharr kernel of vertical lines: right minus left.
 *
 * -3 0 3, -10 0 10, -3 0 3: the sign is the opposite of that of lumiFilterSobelVert.
 * Sums, layouts, surroundings and overlap are as in lumiFilterSobelHoriz.
 *
 * Returns lumStatusOk (0) or, tested in this order and before anything is written:
 *   lumStatusNullPointer (-8)  a pointer is null, plane pointers included
 *   lumStatusBadSize (-6)      roi.width or roi.height is below 1
 *   lumStatusBadStep (-14)     a step is below 1
 */
LumStatus lumiFilterScharrVert_32f_C1R(const Lum32f* src, int srcStep, Lum32f* dst, int dstStep,
                                       LumiSize roi);
LumStatus lumiFilterScharrVert_8s16s_C1R(const Lum8s* src, int srcStep, Lum16s* dst, int dstStep,
                                         LumiSize roi);
LumStatus lumiFilterScharrVert_8u16s_C1R(const Lum8u* src, int srcStep, Lum16s* dst, int dstStep,
                                         LumiSize roi);

/**
 * Subtracts the pixel above and to the left from each pixel.
 *
 * dst(x, y) = src(x, y) - src(x - 1, y - 1), by lumiSub with a scale factor of 0: a negative difference of 8u is 0.
 * Of the surroundings the row above and the column to the left are read. Layouts are as in
 * lumiFilterSobelHoriz, overlap as in lumiSub.
 *
 * Returns lumStatusOk (0) or, tested in this order and before anything is written:
 *   lumStatusNullPointer (-8)  a pointer is null, plane pointers included
 *   lumStatusBadSize (-6)      roi.width or roi.height is below 1
 *   lumStatusBadStep (-14)     a step is below 1
 */
LumStatus lumiFilterRobertsDown_16s_AC4R(const Lum16s* src, int srcStep, Lum16s* dst, int dstStep,
                                         LumiSize roi);
LumStatus lumiFilterRobertsDown_16s_C1R(const Lum16s* src, int srcStep, Lum16s* dst, int dstStep,
                                        LumiSize roi);
LumStatus lumiFilterRobertsDown_16s_C3R(const Lum16s* src, int srcStep, Lum16s* dst, int dstStep,
                                        LumiSize roi);
LumStatus lumiFilterRobertsDown_32f_AC4R(const Lum32f* src, int srcStep, Lum32f* dst, int dstStep,
                                         LumiSize roi);
LumStatus lumiFilterRobertsDown_32f_C1R(const Lum32f* src, int srcStep, Lum32f* dst, int dstStep,
                                        LumiSize roi);
LumStatus lumiFilterRobertsDown_32f_C3R(const Lum32f* src, int srcStep, Lum32f* dst, int dstStep,
                                        LumiSize roi);
LumStatus lumiFilterRobertsDown_8u_AC4R(const Lum8u* src, int srcStep, Lum8u* dst, int dstStep, LumiSize roi);
LumStatus lumiFilterRobertsDown_8u_C1R(const Lum8u* src, int srcStep, Lum8u* dst, int dstStep, LumiSize roi);
LumStatus lumiFilterRobertsDown_8u_C3R(const Lum8u* src, int srcStep, Lum8u* dst, int dstStep, LumiSize roi);

/**
 * Subtracts the pixel above and to the right from each pixel.
 *
 * dst(x, y) = src(x, y) - src(x + 1, y - 1), by lumiSub with a scale factor of 0: a negative difference of 8u is 0.
 * Of the surroundings the row above and the column to the right are read. Layouts are as in
 * lumiFilterSobelHoriz, overlap as in lumiSub.
 *
 * Returns lumStatusOk (0) or, tested in this order and before anything is written:
 *   lumStatusNullPointer (-8)  a pointer is null, plane pointers included
 *   lumStatusBadSize (-6)      roi.width or roi.height is below 1
 *   lumStatusBadStep (-14)     a step is below 1
 */
LumStatus lumiFilterRobertsUp_16s_AC4R(const Lum16s* src, int srcStep, Lum16s* dst, int dstStep,
                                       LumiSize roi);
LumStatus lumiFilterRobertsUp_16s_C1R(const Lum16s* src, int srcStep, Lum16s* dst, int dstStep, LumiSize roi);
LumStatus lumiFilterRobertsUp_16s_C3R(const Lum16s* src, int srcStep, Lum16s* dst, int dstStep, LumiSize roi);
LumStatus lumiFilterRobertsUp_32f_AC4R(const Lum32f* src, int srcStep, Lum32f* dst, int dstStep,
                                       LumiSize roi);
LumStatus lumiFilterRobertsUp_32f_C1R(const Lum32f* src, int srcStep, Lum32f* dst, int dstStep, LumiSize roi);
LumStatus lumiFilterRobertsUp_32f_C3R(const Lum32f* src, int srcStep, Lum32f* dst, int dstStep, LumiSize roi);
LumStatus lumiFilterRobertsUp_8u_AC4R(const Lum8u* src, int srcStep, Lum8u* dst, int dstStep, LumiSize roi);
LumStatus lumiFilterRobertsUp_8u_C1R(const Lum8u* src, int srcStep, Lum8u* dst, int dstStep, LumiSize roi);
LumStatus lumiFilterRobertsUp_8u_C3R(const Lum8u* src, int srcStep, Lum8u* dst, int dstStep, LumiSize roi);

/**
 * Applies a Laplacian.
 *
 * 3 x 3: 8 at the centre, -1 around it. 5 x 5:
 *
 *   -1 -3 -4 -3 -1
 *   -3  0  6  0 -3
 *   -4  6 20  6 -4
 *   -3  0  6  0 -3
 *   -1 -3 -4 -3 -1
 *
 * Sums, layouts, surroundings and overlap are as in lumiFilterSobelHoriz.
 *
 *   maskSize   the window: lumiMask3x3 or lumiMask5x5
 *
 * Returns lumStatusOk (0) or, tested in this order and before anything is written:
 *   lumStatusNullPointer (-8)  a pointer is null, plane pointers included
 *   lumStatusBadSize (-6)      roi.width or roi.height is below 1
 *   lumStatusBadStep (-14)     a step is below 1
 *   lumStatusBadMaskSize (-33) maskSize is refused
 */
LumStatus lumiFilterLaplace_16s_AC4R(const Lum16s* src, int srcStep, Lum16s* dst, int dstStep, LumiSize roi,
                                     LumiMaskSize maskSize);
LumStatus lumiFilterLaplace_16s_C1R(const Lum16s* src, int srcStep, Lum16s* dst, int dstStep, LumiSize roi,
                                    LumiMaskSize maskSize);
LumStatus lumiFilterLaplace_16s_C3R(const Lum16s* src, int srcStep, Lum16s* dst, int dstStep, LumiSize roi,
                                    LumiMaskSize maskSize);
LumStatus lumiFilterLaplace_16s_C4R(const Lum16s* src, int srcStep, Lum16s* dst, int dstStep, LumiSize roi,
                                    LumiMaskSize maskSize);
LumStatus lumiFilterLaplace_32f_AC4R(const Lum32f* src, int srcStep, Lum32f* dst, int dstStep, LumiSize roi,
                                     LumiMaskSize maskSize);
LumStatus lumiFilterLaplace_32f_C1R(const Lum32f* src, int srcStep, Lum32f* dst, int dstStep, LumiSize roi,
                                    LumiMaskSize maskSize);
LumStatus lumiFilterLaplace_32f_C3R(const Lum32f* src, int srcStep, Lum32f* dst, int dstStep, LumiSize roi,
                                    LumiMaskSize maskSize);
LumStatus lumiFilterLaplace_32f_C4R(const Lum32f* src, int srcStep, Lum32f* dst, int dstStep, LumiSize roi,
                                    LumiMaskSize maskSize);
LumStatus lumiFilterLaplace_8s16s_C1R(const Lum8s* src, int srcStep, Lum16s* dst, int dstStep, LumiSize roi,
                                      LumiMaskSize maskSize);
LumStatus lumiFilterLaplace_8u16s_C1R(const Lum8u* src, int srcStep, Lum16s* dst, int dstStep, LumiSize roi,
                                      LumiMaskSize maskSize);
LumStatus lumiFilterLaplace_8u_AC4R(const Lum8u* src, int srcStep, Lum8u* dst, int dstStep, LumiSize roi,
                                    LumiMaskSize maskSize);
LumStatus lumiFilterLaplace_8u_C1R(const Lum8u* src, int srcStep, Lum8u* dst, int dstStep, LumiSize roi,
                                   LumiMaskSize maskSize);
LumStatus lumiFilterLaplace_8u_C3R(const Lum8u* src, int srcStep, Lum8u* dst, int dstStep, LumiSize roi,
                                   LumiMaskSize maskSize);
LumStatus lumiFilterLaplace_8u_C4R(const Lum8u* src, int srcStep, Lum8u* dst, int dstStep, LumiSize roi,
                                   LumiMaskSize maskSize);

/**
 * Keeps high frequencies: a pixel against those around it.
 *
 * 3 x 3: 8 at the centre, -1 around it. 5 x 5: 24 at the centre, -1 around it.
 * Sums, layouts, surroundings and overlap are as in lumiFilterSobelHoriz.
 *
 *   maskSize   the window: lumiMask3x3 or lumiMask5x5
 *
 * Returns lumStatusOk (0) or, tested in this order and before anything is written:
 *   lumStatusNullPointer (-8)  a pointer is null, plane pointers included
 *   lumStatusBadSize (-6)      roi.width or roi.height is below 1
 *   lumStatusBadStep (-14)     a step is below 1
 *   lumStatusBadMaskSize (-33) maskSize is refused
 */
LumStatus lumiFilterHipass_16s_AC4R(const Lum16s* src, int srcStep, Lum16s* dst, int dstStep, LumiSize roi,
                                    LumiMaskSize maskSize);
LumStatus lumiFilterHipass_16s_C1R(const Lum16s* src, int srcStep, Lum16s* dst, int dstStep, LumiSize roi,
                                   LumiMaskSize maskSize);
LumStatus lumiFilterHipass_16s_C3R(const Lum16s* src, int srcStep, Lum16s* dst, int dstStep, LumiSize roi,
                                   LumiMaskSize maskSize);
LumStatus lumiFilterHipass_16s_C4R(const Lum16s* src, int srcStep, Lum16s* dst, int dstStep, LumiSize roi,
                                   LumiMaskSize maskSize);
LumStatus lumiFilterHipass_32f_AC4R(const Lum32f* src, int srcStep, Lum32f* dst, int dstStep, LumiSize roi,
                                    LumiMaskSize maskSize);
LumStatus lumiFilterHipass_32f_C1R(const Lum32f* src, int srcStep, Lum32f* dst, int dstStep, LumiSize roi,
                                   LumiMaskSize maskSize);
LumStatus lumiFilterHipass_32f_C3R(const Lum32f* src, int srcStep, Lum32f* dst, int dstStep, LumiSize roi,
                                   LumiMaskSize maskSize);
LumStatus lumiFilterHipass_32f_C4R(const Lum32f* src, int srcStep, Lum32f* dst, int dstStep, LumiSize roi,
                                   LumiMaskSize maskSize);
LumStatus lumiFilterHipass_8u_AC4R(const Lum8u* src, int srcStep, Lum8u* dst, int dstStep, LumiSize roi,
                                   LumiMaskSize maskSize);
LumStatus lumiFilterHipass_8u_C1R(const Lum8u* src, int srcStep, Lum8u* dst, int dstStep, LumiSize roi,
                                  LumiMaskSize maskSize);
LumStatus lumiFilterHipass_8u_C3R(const Lum8u* src, int srcStep, Lum8u* dst, int dstStep, LumiSize roi,
                                  LumiMaskSize maskSize);
LumStatus lumiFilterHipass_8u_C4R(const Lum8u* src, int srcStep, Lum8u* dst, int dstStep, LumiSize roi,
                                  LumiMaskSize maskSize);

/**
 * Applies a Gaussian.
 *
 * 3 x 3: 1 2 1, 2 4 2, 1 2 1, divided by 16. 5 x 5, divided by 571:
 *
 *    2  7  12  7  2
 *    7 31  52 31  7
 *   12 52 127 52 12
 *    7 31  52 31  7
 *    2  7  12  7  2
 *
 * Of the exact integer sum S: 3 x 3 is to nearest, ties to even. 5 x 5 is converted to nearest, ties to even: of
 * 8u (float)S * 0.0017513135f, of 16s (double)S * (1.0 / 571); of 16u it is (S + 286) * 7521834 >> 32. 32f: S *
 * 0.0625f, and sums of samples times weight / 571 as Lum32f.
 * Sums, layouts, surroundings and overlap are as in lumiFilterSobelHoriz.
 *
 *   maskSize   the window: lumiMask3x3 or lumiMask5x5
 *
 * Returns lumStatusOk (0) or, tested in this order and before anything is written:
 *   lumStatusNullPointer (-8)  a pointer is null, plane pointers included
 *   lumStatusBadSize (-6)      roi.width or roi.height is below 1
 *   lumStatusBadStep (-14)     a step is below 1
 *   lumStatusBadMaskSize (-33) maskSize is refused
 */
LumStatus lumiFilterGauss_16s_AC4R(const Lum16s* src, int srcStep, Lum16s* dst, int dstStep, LumiSize roi,
                                   LumiMaskSize maskSize);
LumStatus lumiFilterGauss_16s_C1R(const Lum16s* src, int srcStep, Lum16s* dst, int dstStep, LumiSize roi,
                                  LumiMaskSize maskSize);
LumStatus lumiFilterGauss_16s_C3R(const Lum16s* src, int srcStep, Lum16s* dst, int dstStep, LumiSize roi,
                                  LumiMaskSize maskSize);
LumStatus lumiFilterGauss_16s_C4R(const Lum16s* src, int srcStep, Lum16s* dst, int dstStep, LumiSize roi,
                                  LumiMaskSize maskSize);
LumStatus lumiFilterGauss_16u_AC4R(const Lum16u* src, int srcStep, Lum16u* dst, int dstStep, LumiSize roi,
                                   LumiMaskSize maskSize);
LumStatus lumiFilterGauss_16u_C1R(const Lum16u* src, int srcStep, Lum16u* dst, int dstStep, LumiSize roi,
                                  LumiMaskSize maskSize);
LumStatus lumiFilterGauss_16u_C3R(const Lum16u* src, int srcStep, Lum16u* dst, int dstStep, LumiSize roi,
                                  LumiMaskSize maskSize);
LumStatus lumiFilterGauss_16u_C4R(const Lum16u* src, int srcStep, Lum16u* dst, int dstStep, LumiSize roi,
                                  LumiMaskSize maskSize);
LumStatus lumiFilterGauss_32f_AC4R(const Lum32f* src, int srcStep, Lum32f* dst, int dstStep, LumiSize roi,
                                   LumiMaskSize maskSize);
LumStatus lumiFilterGauss_32f_C1R(const Lum32f* src, int srcStep, Lum32f* dst, int dstStep, LumiSize roi,
                                  LumiMaskSize maskSize);
LumStatus lumiFilterGauss_32f_C3R(const Lum32f* src, int srcStep, Lum32f* dst, int dstStep, LumiSize roi,
                                  LumiMaskSize maskSize);
LumStatus lumiFilterGauss_32f_C4R(const Lum32f* src, int srcStep, Lum32f* dst, int dstStep, LumiSize roi,
                                  LumiMaskSize maskSize);
LumStatus lumiFilterGauss_8u_AC4R(const Lum8u* src, int srcStep, Lum8u* dst, int dstStep, LumiSize roi,
                                  LumiMaskSize maskSize);
LumStatus lumiFilterGauss_8u_C1R(const Lum8u* src, int srcStep, Lum8u* dst, int dstStep, LumiSize roi,
                                 LumiMaskSize maskSize);
LumStatus lumiFilterGauss_8u_C3R(const Lum8u* src, int srcStep, Lum8u* dst, int dstStep, LumiSize roi,
                                 LumiMaskSize maskSize);
LumStatus lumiFilterGauss_8u_C4R(const Lum8u* src, int srcStep, Lum8u* dst, int dstStep, LumiSize roi,
                                 LumiMaskSize maskSize);

/**
 * Keeps low frequencies: the mean of a pixel and those around it.
 *
 * All weights are 1. Of the exact integer sum S:
 *
 *        3 x 3                                5 x 5
 *   8u   ((S + 5) * 7281) >> 16               (((S + 13) * 10485) >> 16) >> 2
 *   16s  ((S + 5) * 477218588) >> 32          ((S + 13) * 171798691) >> 32, both of x + 32768, less 32768
 *   16u  (float)S * 0.11111111f               (float)S * 0.04f, both to nearest, ties to even
 *   32f  S * 0.11111111f                      S * 0.04f
 *
 * The reciprocals are cut: the means are no exact divisions.
 * Sums, layouts, surroundings and overlap are as in lumiFilterSobelHoriz.
 *
 *   maskSize   the window: lumiMask3x3 or lumiMask5x5
 *
 * Returns lumStatusOk (0) or, tested in this order and before anything is written:
 *   lumStatusNullPointer (-8)  a pointer is null, plane pointers included
 *   lumStatusBadSize (-6)      roi.width or roi.height is below 1
 *   lumStatusBadStep (-14)     a step is below 1
 *   lumStatusBadMaskSize (-33) maskSize is refused
 */
LumStatus lumiFilterLowpass_16s_AC4R(const Lum16s* src, int srcStep, Lum16s* dst, int dstStep, LumiSize roi,
                                     LumiMaskSize maskSize);
LumStatus lumiFilterLowpass_16s_C1R(const Lum16s* src, int srcStep, Lum16s* dst, int dstStep, LumiSize roi,
                                    LumiMaskSize maskSize);
LumStatus lumiFilterLowpass_16s_C3R(const Lum16s* src, int srcStep, Lum16s* dst, int dstStep, LumiSize roi,
                                    LumiMaskSize maskSize);
LumStatus lumiFilterLowpass_16u_AC4R(const Lum16u* src, int srcStep, Lum16u* dst, int dstStep, LumiSize roi,
                                     LumiMaskSize maskSize);
LumStatus lumiFilterLowpass_16u_C1R(const Lum16u* src, int srcStep, Lum16u* dst, int dstStep, LumiSize roi,
                                    LumiMaskSize maskSize);
LumStatus lumiFilterLowpass_16u_C3R(const Lum16u* src, int srcStep, Lum16u* dst, int dstStep, LumiSize roi,
                                    LumiMaskSize maskSize);
LumStatus lumiFilterLowpass_32f_AC4R(const Lum32f* src, int srcStep, Lum32f* dst, int dstStep, LumiSize roi,
                                     LumiMaskSize maskSize);
LumStatus lumiFilterLowpass_32f_C1R(const Lum32f* src, int srcStep, Lum32f* dst, int dstStep, LumiSize roi,
                                    LumiMaskSize maskSize);
LumStatus lumiFilterLowpass_32f_C3R(const Lum32f* src, int srcStep, Lum32f* dst, int dstStep, LumiSize roi,
                                    LumiMaskSize maskSize);
LumStatus lumiFilterLowpass_8u_AC4R(const Lum8u* src, int srcStep, Lum8u* dst, int dstStep, LumiSize roi,
                                    LumiMaskSize maskSize);
LumStatus lumiFilterLowpass_8u_C1R(const Lum8u* src, int srcStep, Lum8u* dst, int dstStep, LumiSize roi,
                                   LumiMaskSize maskSize);
LumStatus lumiFilterLowpass_8u_C3R(const Lum8u* src, int srcStep, Lum8u* dst, int dstStep, LumiSize roi,
                                   LumiMaskSize maskSize);

/**
 * Sharpens: a pixel and an eighth of its difference to those around it.
 *
 * -1 -1 -1, -1 16 -1, -1 -1 -1, divided by 8: integers to nearest, ties to even, limited to the type; floats
 * times 0.125f.
 * Sums, layouts, surroundings and overlap are as in lumiFilterSobelHoriz.
 *
 * Returns lumStatusOk (0) or, tested in this order and before anything is written:
 *   lumStatusNullPointer (-8)  a pointer is null, plane pointers included
 *   lumStatusBadSize (-6)      roi.width or roi.height is below 1
 *   lumStatusBadStep (-14)     a step is below 1
 */
LumStatus lumiFilterSharpen_16s_AC4R(const Lum16s* src, int srcStep, Lum16s* dst, int dstStep, LumiSize roi);
LumStatus lumiFilterSharpen_16s_C1R(const Lum16s* src, int srcStep, Lum16s* dst, int dstStep, LumiSize roi);
LumStatus lumiFilterSharpen_16s_C3R(const Lum16s* src, int srcStep, Lum16s* dst, int dstStep, LumiSize roi);
LumStatus lumiFilterSharpen_16s_C4R(const Lum16s* src, int srcStep, Lum16s* dst, int dstStep, LumiSize roi);
LumStatus lumiFilterSharpen_32f_AC4R(const Lum32f* src, int srcStep, Lum32f* dst, int dstStep, LumiSize roi);
LumStatus lumiFilterSharpen_32f_C1R(const Lum32f* src, int srcStep, Lum32f* dst, int dstStep, LumiSize roi);
LumStatus lumiFilterSharpen_32f_C3R(const Lum32f* src, int srcStep, Lum32f* dst, int dstStep, LumiSize roi);
LumStatus lumiFilterSharpen_32f_C4R(const Lum32f* src, int srcStep, Lum32f* dst, int dstStep, LumiSize roi);
LumStatus lumiFilterSharpen_8u_AC4R(const Lum8u* src, int srcStep, Lum8u* dst, int dstStep, LumiSize roi);
LumStatus lumiFilterSharpen_8u_C1R(const Lum8u* src, int srcStep, Lum8u* dst, int dstStep, LumiSize roi);
LumStatus lumiFilterSharpen_8u_C3R(const Lum8u* src, int srcStep, Lum8u* dst, int dstStep, LumiSize roi);
LumStatus lumiFilterSharpen_8u_C4R(const Lum8u* src, int srcStep, Lum8u* dst, int dstStep, LumiSize roi);

#ifdef __cplusplus
}
#endif

#endif
