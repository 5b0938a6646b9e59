/* SPDX-License-Identifier: MIT */
/* Generated from registry/data/lut.reg by tools/lumigen; edit that instead. */
/** @file Look-up by levels and values. */
#ifndef LUMI_LUT_H
#define LUMI_LUT_H

#include "types.h"

#ifdef __cplusplus
extern "C" {
#endif

/**
 * Replaces samples by a function that is constant between levels.
 *
 * dst(x, y) = values[k] where levels[k] <= src(x, y) < levels[k + 1], limited to the type's range; samples
 * below the first level, and from the last one on, stay as they are, and so the last value is never used.
 * Each channel has a function of its own, of two levels or more: with one channel the lists stand alone, with
 * more the arguments are arrays of them, three for AC4. AC4 leaves the destination's alpha as it was.
 *
 * Levels should ascend; two equal ones have nothing between them. Where they do not, later pairs of levels
 * override earlier ones in integers, and the first one counts in floats; C1 and C3 of 16u and 16s with 4096
 * pixels or less look a level up by bisection then. NaN stays as it is.
 *
 * 16u and 16s take scratch memory, but in C1 and C3 with 4096 pixels or less. The images may be misaligned in
 * any way, and be the same one, but must not overlap otherwise.
 *
 * C3, C4 and AC4 return lumStatusOk (0) or, tested in this order and before anything is written:
 *   lumStatusNullPointer (-8)  an image, values, levels or count is null
 *   for one channel after the other
 *     lumStatusNullPointer (-8)  its values or its levels are null
 *     lumStatusTooFewLutLevels (-106) its count is below 2
 *   lumStatusBadSize (-6)      roi.width or roi.height is below 1
 *   lumStatusBadStep (-14)     a step is below 1
 *   lumStatusNoMemory (-9)     there is no scratch memory
 * C1 returns lumStatusNoMemory (-9) too, after all others.
 *
 *   values     a value for each level
 *   levels     where the function changes
 *   count      how many levels
 *
 * Returns lumStatusOk (0) or, tested in this order and before anything is written (8u 16u 16s 32f: C1):
 *   lumStatusNullPointer (-8)  a pointer is null, plane pointers included
 *   lumStatusBadSize (-6)      roi.width or roi.height is below 1
 *   lumStatusBadStep (-14)     a step is below 1
 *   lumStatusTooFewLutLevels (-106) count is below 2
 */
LumStatus lumiLUT_16s_AC4IR(Lum16s* srcDst, int srcDstStep, LumiSize roi, const Lum32s* const values[3],
                            const Lum32s* const levels[3], const int count[3]);
LumStatus lumiLUT_16s_AC4R(const Lum16s* src, int srcStep, Lum16s* dst, int dstStep, LumiSize roi,
                           const Lum32s* const values[3], const Lum32s* const levels[3], const int count[3]);
LumStatus lumiLUT_16s_C1IR(Lum16s* srcDst, int srcDstStep, LumiSize roi, const Lum32s* values,
                           const Lum32s* levels, int count);
LumStatus lumiLUT_16s_C1R(const Lum16s* src, int srcStep, Lum16s* dst, int dstStep, LumiSize roi,
                          const Lum32s* values, const Lum32s* levels, int count);
LumStatus lumiLUT_16s_C3IR(Lum16s* srcDst, int srcDstStep, LumiSize roi, const Lum32s* const values[3],
                           const Lum32s* const levels[3], const int count[3]);
LumStatus lumiLUT_16s_C3R(const Lum16s* src, int srcStep, Lum16s* dst, int dstStep, LumiSize roi,
                          const Lum32s* const values[3], const Lum32s* const levels[3], const int count[3]);
LumStatus lumiLUT_16s_C4IR(Lum16s* srcDst, int srcDstStep, LumiSize roi, const Lum32s* const values[4],
                           const Lum32s* const levels[4], const int count[4]);
LumStatus lumiLUT_16s_C4R(const Lum16s* src, int srcStep, Lum16s* dst, int dstStep, LumiSize roi,
                          const Lum32s* const values[4], const Lum32s* const levels[4], const int count[4]);
LumStatus lumiLUT_16u_AC4IR(Lum16u* srcDst, int srcDstStep, LumiSize roi, const Lum32s* const values[3],
                            const Lum32s* const levels[3], const int count[3]);
LumStatus lumiLUT_16u_AC4R(const Lum16u* src, int srcStep, Lum16u* dst, int dstStep, LumiSize roi,
                           const Lum32s* const values[3], const Lum32s* const levels[3], const int count[3]);
LumStatus lumiLUT_16u_C1IR(Lum16u* srcDst, int srcDstStep, LumiSize roi, const Lum32s* values,
                           const Lum32s* levels, int count);
LumStatus lumiLUT_16u_C1R(const Lum16u* src, int srcStep, Lum16u* dst, int dstStep, LumiSize roi,
                          const Lum32s* values, const Lum32s* levels, int count);
LumStatus lumiLUT_16u_C3IR(Lum16u* srcDst, int srcDstStep, LumiSize roi, const Lum32s* const values[3],
                           const Lum32s* const levels[3], const int count[3]);
LumStatus lumiLUT_16u_C3R(const Lum16u* src, int srcStep, Lum16u* dst, int dstStep, LumiSize roi,
                          const Lum32s* const values[3], const Lum32s* const levels[3], const int count[3]);
LumStatus lumiLUT_16u_C4IR(Lum16u* srcDst, int srcDstStep, LumiSize roi, const Lum32s* const values[4],
                           const Lum32s* const levels[4], const int count[4]);
LumStatus lumiLUT_16u_C4R(const Lum16u* src, int srcStep, Lum16u* dst, int dstStep, LumiSize roi,
                          const Lum32s* const values[4], const Lum32s* const levels[4], const int count[4]);
LumStatus lumiLUT_32f_AC4IR(Lum32f* srcDst, int srcDstStep, LumiSize roi, const Lum32f* const values[3],
                            const Lum32f* const levels[3], const int count[3]);
LumStatus lumiLUT_32f_AC4R(const Lum32f* src, int srcStep, Lum32f* dst, int dstStep, LumiSize roi,
                           const Lum32f* const values[3], const Lum32f* const levels[3], const int count[3]);
LumStatus lumiLUT_32f_C1IR(Lum32f* srcDst, int srcDstStep, LumiSize roi, const Lum32f* values,
                           const Lum32f* levels, int count);
LumStatus lumiLUT_32f_C1R(const Lum32f* src, int srcStep, Lum32f* dst, int dstStep, LumiSize roi,
                          const Lum32f* values, const Lum32f* levels, int count);
LumStatus lumiLUT_32f_C3IR(Lum32f* srcDst, int srcDstStep, LumiSize roi, const Lum32f* const values[3],
                           const Lum32f* const levels[3], const int count[3]);
LumStatus lumiLUT_32f_C3R(const Lum32f* src, int srcStep, Lum32f* dst, int dstStep, LumiSize roi,
                          const Lum32f* const values[3], const Lum32f* const levels[3], const int count[3]);
LumStatus lumiLUT_32f_C4IR(Lum32f* srcDst, int srcDstStep, LumiSize roi, const Lum32f* const values[4],
                           const Lum32f* const levels[4], const int count[4]);
LumStatus lumiLUT_32f_C4R(const Lum32f* src, int srcStep, Lum32f* dst, int dstStep, LumiSize roi,
                          const Lum32f* const values[4], const Lum32f* const levels[4], const int count[4]);
LumStatus lumiLUT_8u_AC4IR(Lum8u* srcDst, int srcDstStep, LumiSize roi, const Lum32s* const values[3],
                           const Lum32s* const levels[3], const int count[3]);
LumStatus lumiLUT_8u_AC4R(const Lum8u* src, int srcStep, Lum8u* dst, int dstStep, LumiSize roi,
                          const Lum32s* const values[3], const Lum32s* const levels[3], const int count[3]);
LumStatus lumiLUT_8u_C1IR(Lum8u* srcDst, int srcDstStep, LumiSize roi, const Lum32s* values,
                          const Lum32s* levels, int count);
LumStatus lumiLUT_8u_C1R(const Lum8u* src, int srcStep, Lum8u* dst, int dstStep, LumiSize roi,
                         const Lum32s* values, const Lum32s* levels, int count);
LumStatus lumiLUT_8u_C3IR(Lum8u* srcDst, int srcDstStep, LumiSize roi, const Lum32s* const values[3],
                          const Lum32s* const levels[3], const int count[3]);
LumStatus lumiLUT_8u_C3R(const Lum8u* src, int srcStep, Lum8u* dst, int dstStep, LumiSize roi,
                         const Lum32s* const values[3], const Lum32s* const levels[3], const int count[3]);
LumStatus lumiLUT_8u_C4IR(Lum8u* srcDst, int srcDstStep, LumiSize roi, const Lum32s* const values[4],
                          const Lum32s* const levels[4], const int count[4]);
LumStatus lumiLUT_8u_C4R(const Lum8u* src, int srcStep, Lum8u* dst, int dstStep, LumiSize roi,
                         const Lum32s* const values[4], const Lum32s* const levels[4], const int count[4]);

/**
 * Replaces samples by a function that is linear between levels.
 *
 * Where levels[k] <= src(x, y) < levels[k + 1], dst(x, y) lies on the line from values[k] at levels[k] to
 * values[k + 1] at levels[k + 1]; samples below the first level, and from the last one on, stay as they are.
 * Each channel has a function of its own, of two levels or more: with one channel the lists stand alone, with
 * more the arguments are arrays of them, three for AC4. AC4 leaves the destination's alpha as it was.
 *
 * Of integers the result for x, with s = (values[k + 1] - values[k]) / (levels[k + 1] - levels[k]), is
 *
 *   values[k] + 0.5 - levels[k] * s + s * x
 *
 * in Lum64f, cut off towards zero and limited to the type's range. The levels are limited first, the lower
 * one to the type's largest value at most: where one value is left between them, its result is values[k], and
 * a pair of levels above the type's range so gives values[k] to the largest value. Of floats the result is
 *
 *   Lum32f(Lum64f(x - levels[k]) * s + values[k])
 *
 * with s computed in Lum32f. NaN stays as it is.
 *
 * Levels should ascend; two equal ones have nothing between them. Where they do not, later pairs of levels
 * override earlier ones in integers, and the first one counts in floats.
 *
 * 16u, 16s and 32f take scratch memory. The images may be misaligned in any way, and be the same one, but must
 * not overlap otherwise.
 *
 * C3, C4 and AC4 return lumStatusOk (0) or, tested in this order and before anything is written:
 *   lumStatusNullPointer (-8)  an image, values, levels or count is null
 *   for one channel after the other
 *     lumStatusNullPointer (-8)  its values or its levels are null
 *     lumStatusTooFewLutLevels (-106) its count is below 2
 *   lumStatusBadSize (-6)      roi.width or roi.height is below 1
 *   lumStatusBadStep (-14)     a step is below 1
 *   lumStatusNoMemory (-9)     there is no scratch memory
 * C1 returns lumStatusNoMemory (-9) too, after all others.
 *
 *   values     a value for each level
 *   levels     where the function changes
 *   count      how many levels
 *
 * Returns lumStatusOk (0) or, tested in this order and before anything is written (8u 16u 16s 32f: C1):
 *   lumStatusNullPointer (-8)  a pointer is null, plane pointers included
 *   lumStatusBadSize (-6)      roi.width or roi.height is below 1
 *   lumStatusBadStep (-14)     a step is below 1
 *   lumStatusTooFewLutLevels (-106) count is below 2
 */
LumStatus lumiLUT_Linear_16s_AC4IR(Lum16s* srcDst, int srcDstStep, LumiSize roi,
                                   const Lum32s* const values[3], const Lum32s* const levels[3],
                                   const int count[3]);
LumStatus lumiLUT_Linear_16s_AC4R(const Lum16s* src, int srcStep, Lum16s* dst, int dstStep, LumiSize roi,
                                  const Lum32s* const values[3], const Lum32s* const levels[3],
                                  const int count[3]);
LumStatus lumiLUT_Linear_16s_C1IR(Lum16s* srcDst, int srcDstStep, LumiSize roi, const Lum32s* values,
                                  const Lum32s* levels, int count);
LumStatus lumiLUT_Linear_16s_C1R(const Lum16s* src, int srcStep, Lum16s* dst, int dstStep, LumiSize roi,
                                 const Lum32s* values, const Lum32s* levels, int count);
LumStatus lumiLUT_Linear_16s_C3IR(Lum16s* srcDst, int srcDstStep, LumiSize roi, const Lum32s* const values[3],
                                  const Lum32s* const levels[3], const int count[3]);
LumStatus lumiLUT_Linear_16s_C3R(const Lum16s* src, int srcStep, Lum16s* dst, int dstStep, LumiSize roi,
                                 const Lum32s* const values[3], const Lum32s* const levels[3],
                                 const int count[3]);
LumStatus lumiLUT_Linear_16s_C4IR(Lum16s* srcDst, int srcDstStep, LumiSize roi, const Lum32s* const values[4],
                                  const Lum32s* const levels[4], const int count[4]);
LumStatus lumiLUT_Linear_16s_C4R(const Lum16s* src, int srcStep, Lum16s* dst, int dstStep, LumiSize roi,
                                 const Lum32s* const values[4], const Lum32s* const levels[4],
                                 const int count[4]);
LumStatus lumiLUT_Linear_16u_AC4IR(Lum16u* srcDst, int srcDstStep, LumiSize roi,
                                   const Lum32s* const values[3], const Lum32s* const levels[3],
                                   const int count[3]);
LumStatus lumiLUT_Linear_16u_AC4R(const Lum16u* src, int srcStep, Lum16u* dst, int dstStep, LumiSize roi,
                                  const Lum32s* const values[3], const Lum32s* const levels[3],
                                  const int count[3]);
LumStatus lumiLUT_Linear_16u_C1IR(Lum16u* srcDst, int srcDstStep, LumiSize roi, const Lum32s* values,
                                  const Lum32s* levels, int count);
LumStatus lumiLUT_Linear_16u_C1R(const Lum16u* src, int srcStep, Lum16u* dst, int dstStep, LumiSize roi,
                                 const Lum32s* values, const Lum32s* levels, int count);
LumStatus lumiLUT_Linear_16u_C3IR(Lum16u* srcDst, int srcDstStep, LumiSize roi, const Lum32s* const values[3],
                                  const Lum32s* const levels[3], const int count[3]);
LumStatus lumiLUT_Linear_16u_C3R(const Lum16u* src, int srcStep, Lum16u* dst, int dstStep, LumiSize roi,
                                 const Lum32s* const values[3], const Lum32s* const levels[3],
                                 const int count[3]);
LumStatus lumiLUT_Linear_16u_C4IR(Lum16u* srcDst, int srcDstStep, LumiSize roi, const Lum32s* const values[4],
                                  const Lum32s* const levels[4], const int count[4]);
LumStatus lumiLUT_Linear_16u_C4R(const Lum16u* src, int srcStep, Lum16u* dst, int dstStep, LumiSize roi,
                                 const Lum32s* const values[4], const Lum32s* const levels[4],
                                 const int count[4]);
LumStatus lumiLUT_Linear_32f_AC4IR(Lum32f* srcDst, int srcDstStep, LumiSize roi,
                                   const Lum32f* const values[3], const Lum32f* const levels[3],
                                   const int count[3]);
LumStatus lumiLUT_Linear_32f_AC4R(const Lum32f* src, int srcStep, Lum32f* dst, int dstStep, LumiSize roi,
                                  const Lum32f* const values[3], const Lum32f* const levels[3],
                                  const int count[3]);
LumStatus lumiLUT_Linear_32f_C1IR(Lum32f* srcDst, int srcDstStep, LumiSize roi, const Lum32f* values,
                                  const Lum32f* levels, int count);
LumStatus lumiLUT_Linear_32f_C1R(const Lum32f* src, int srcStep, Lum32f* dst, int dstStep, LumiSize roi,
                                 const Lum32f* values, const Lum32f* levels, int count);
LumStatus lumiLUT_Linear_32f_C3IR(Lum32f* srcDst, int srcDstStep, LumiSize roi, const Lum32f* const values[3],
                                  const Lum32f* const levels[3], const int count[3]);
LumStatus lumiLUT_Linear_32f_C3R(const Lum32f* src, int srcStep, Lum32f* dst, int dstStep, LumiSize roi,
                                 const Lum32f* const values[3], const Lum32f* const levels[3],
                                 const int count[3]);
LumStatus lumiLUT_Linear_32f_C4IR(Lum32f* srcDst, int srcDstStep, LumiSize roi, const Lum32f* const values[4],
                                  const Lum32f* const levels[4], const int count[4]);
LumStatus lumiLUT_Linear_32f_C4R(const Lum32f* src, int srcStep, Lum32f* dst, int dstStep, LumiSize roi,
                                 const Lum32f* const values[4], const Lum32f* const levels[4],
                                 const int count[4]);
LumStatus lumiLUT_Linear_8u_AC4IR(Lum8u* srcDst, int srcDstStep, LumiSize roi, const Lum32s* const values[3],
                                  const Lum32s* const levels[3], const int count[3]);
LumStatus lumiLUT_Linear_8u_AC4R(const Lum8u* src, int srcStep, Lum8u* dst, int dstStep, LumiSize roi,
                                 const Lum32s* const values[3], const Lum32s* const levels[3],
                                 const int count[3]);
LumStatus lumiLUT_Linear_8u_C1IR(Lum8u* srcDst, int srcDstStep, LumiSize roi, const Lum32s* values,
                                 const Lum32s* levels, int count);
LumStatus lumiLUT_Linear_8u_C1R(const Lum8u* src, int srcStep, Lum8u* dst, int dstStep, LumiSize roi,
                                const Lum32s* values, const Lum32s* levels, int count);
LumStatus lumiLUT_Linear_8u_C3IR(Lum8u* srcDst, int srcDstStep, LumiSize roi, const Lum32s* const values[3],
                                 const Lum32s* const levels[3], const int count[3]);
LumStatus lumiLUT_Linear_8u_C3R(const Lum8u* src, int srcStep, Lum8u* dst, int dstStep, LumiSize roi,
                                const Lum32s* const values[3], const Lum32s* const levels[3],
                                const int count[3]);
LumStatus lumiLUT_Linear_8u_C4IR(Lum8u* srcDst, int srcDstStep, LumiSize roi, const Lum32s* const values[4],
                                 const Lum32s* const levels[4], const int count[4]);
LumStatus lumiLUT_Linear_8u_C4R(const Lum8u* src, int srcStep, Lum8u* dst, int dstStep, LumiSize roi,
                                const Lum32s* const values[4], const Lum32s* const levels[4],
                                const int count[4]);

/**
 * Replaces samples by a function that is cubic between levels.
 *
 * Where levels[k] <= src(x, y) < levels[k + 1], dst(x, y) lies on the cubic curve through the points of the
 * levels k - 1 to k + 2; at either end of the list, of the first or the last four. Samples below the first
 * level, and from the last one on, stay as they are. If any channel has less than four levels, the call is
 * the one to lumiLUT_Linear.
 * Each channel has a function of its own, of two levels or more: with one channel the lists stand alone, with
 * more the arguments are arrays of them, three for AC4. AC4 leaves the destination's alpha as it was.
 *
 * With o the second of the four levels, v its value and t = x - o, the curve is A t^3 + B t^2 + C t + v. A, B
 * and C are found in Lum64f by Cramer's rule. Of integers the result is v + 0.5 + A t^3 + B t^2 + C t, summed
 * up from left to right, cut off towards zero and limited to the type's range; levels are limited as
 * lumiLUT_Linear does. Of floats it is
 *
 *   Lum32f((t * t * A + C) * t + (v + t * t * B))
 *
 * with differences in Lum32f and all else in Lum64f, and o is levels[k] but in the first piece, where it is
 * levels[1], and in the last, where it is levels[count - 3]. NaN stays as it is. A curve through two equal levels
 * is not defined; integer results that are no numbers become the type's lowest value.
 *
 * Levels should ascend; two equal ones have nothing between them. Where they do not, later pairs of levels
 * override earlier ones in integers, and the first one counts in floats.
 *
 * 16u, 16s and 32f take scratch memory. The images may be misaligned in any way, and be the same one, but must
 * not overlap otherwise.
 *
 * C3, C4 and AC4 return lumStatusOk (0) or, tested in this order and before anything is written:
 *   lumStatusNullPointer (-8)  an image, values, levels or count is null
 *   for one channel after the other
 *     lumStatusNullPointer (-8)  its values or its levels are null
 *     lumStatusTooFewLutLevels (-106) its count is below 2
 *   lumStatusBadSize (-6)      roi.width or roi.height is below 1
 *   lumStatusBadStep (-14)     a step is below 1
 *   lumStatusNoMemory (-9)     there is no scratch memory
 * C1 returns lumStatusNoMemory (-9) too, after all others.
 *
 *   values     a value for each level
 *   levels     where the function changes
 *   count      how many levels
 *
 * Returns lumStatusOk (0) or, tested in this order and before anything is written (8u 16u 16s 32f: C1):
 *   lumStatusNullPointer (-8)  a pointer is null, plane pointers included
 *   lumStatusBadSize (-6)      roi.width or roi.height is below 1
 *   lumStatusBadStep (-14)     a step is below 1
 *   lumStatusTooFewLutLevels (-106) count is below 2
 */
LumStatus lumiLUT_Cubic_16s_AC4IR(Lum16s* srcDst, int srcDstStep, LumiSize roi, const Lum32s* const values[3],
                                  const Lum32s* const levels[3], const int count[3]);
LumStatus lumiLUT_Cubic_16s_AC4R(const Lum16s* src, int srcStep, Lum16s* dst, int dstStep, LumiSize roi,
                                 const Lum32s* const values[3], const Lum32s* const levels[3],
                                 const int count[3]);
LumStatus lumiLUT_Cubic_16s_C1IR(Lum16s* srcDst, int srcDstStep, LumiSize roi, const Lum32s* values,
                                 const Lum32s* levels, int count);
LumStatus lumiLUT_Cubic_16s_C1R(const Lum16s* src, int srcStep, Lum16s* dst, int dstStep, LumiSize roi,
                                const Lum32s* values, const Lum32s* levels, int count);
LumStatus lumiLUT_Cubic_16s_C3IR(Lum16s* srcDst, int srcDstStep, LumiSize roi, const Lum32s* const values[3],
                                 const Lum32s* const levels[3], const int count[3]);
LumStatus lumiLUT_Cubic_16s_C3R(const Lum16s* src, int srcStep, Lum16s* dst, int dstStep, LumiSize roi,
                                const Lum32s* const values[3], const Lum32s* const levels[3],
                                const int count[3]);
LumStatus lumiLUT_Cubic_16s_C4IR(Lum16s* srcDst, int srcDstStep, LumiSize roi, const Lum32s* const values[4],
                                 const Lum32s* const levels[4], const int count[4]);
LumStatus lumiLUT_Cubic_16s_C4R(const Lum16s* src, int srcStep, Lum16s* dst, int dstStep, LumiSize roi,
                                const Lum32s* const values[4], const Lum32s* const levels[4],
                                const int count[4]);
LumStatus lumiLUT_Cubic_16u_AC4IR(Lum16u* srcDst, int srcDstStep, LumiSize roi, const Lum32s* const values[3],
                                  const Lum32s* const levels[3], const int count[3]);
LumStatus lumiLUT_Cubic_16u_AC4R(const Lum16u* src, int srcStep, Lum16u* dst, int dstStep, LumiSize roi,
                                 const Lum32s* const values[3], const Lum32s* const levels[3],
                                 const int count[3]);
LumStatus lumiLUT_Cubic_16u_C1IR(Lum16u* srcDst, int srcDstStep, LumiSize roi, const Lum32s* values,
                                 const Lum32s* levels, int count);
LumStatus lumiLUT_Cubic_16u_C1R(const Lum16u* src, int srcStep, Lum16u* dst, int dstStep, LumiSize roi,
                                const Lum32s* values, const Lum32s* levels, int count);
LumStatus lumiLUT_Cubic_16u_C3IR(Lum16u* srcDst, int srcDstStep, LumiSize roi, const Lum32s* const values[3],
                                 const Lum32s* const levels[3], const int count[3]);
LumStatus lumiLUT_Cubic_16u_C3R(const Lum16u* src, int srcStep, Lum16u* dst, int dstStep, LumiSize roi,
                                const Lum32s* const values[3], const Lum32s* const levels[3],
                                const int count[3]);
LumStatus lumiLUT_Cubic_16u_C4IR(Lum16u* srcDst, int srcDstStep, LumiSize roi, const Lum32s* const values[4],
                                 const Lum32s* const levels[4], const int count[4]);
LumStatus lumiLUT_Cubic_16u_C4R(const Lum16u* src, int srcStep, Lum16u* dst, int dstStep, LumiSize roi,
                                const Lum32s* const values[4], const Lum32s* const levels[4],
                                const int count[4]);
LumStatus lumiLUT_Cubic_32f_AC4IR(Lum32f* srcDst, int srcDstStep, LumiSize roi, const Lum32f* const values[3],
                                  const Lum32f* const levels[3], const int count[3]);
LumStatus lumiLUT_Cubic_32f_AC4R(const Lum32f* src, int srcStep, Lum32f* dst, int dstStep, LumiSize roi,
                                 const Lum32f* const values[3], const Lum32f* const levels[3],
                                 const int count[3]);
LumStatus lumiLUT_Cubic_32f_C1IR(Lum32f* srcDst, int srcDstStep, LumiSize roi, const Lum32f* values,
                                 const Lum32f* levels, int count);
LumStatus lumiLUT_Cubic_32f_C1R(const Lum32f* src, int srcStep, Lum32f* dst, int dstStep, LumiSize roi,
                                const Lum32f* values, const Lum32f* levels, int count);
LumStatus lumiLUT_Cubic_32f_C3IR(Lum32f* srcDst, int srcDstStep, LumiSize roi, const Lum32f* const values[3],
                                 const Lum32f* const levels[3], const int count[3]);
LumStatus lumiLUT_Cubic_32f_C3R(const Lum32f* src, int srcStep, Lum32f* dst, int dstStep, LumiSize roi,
                                const Lum32f* const values[3], const Lum32f* const levels[3],
                                const int count[3]);
LumStatus lumiLUT_Cubic_32f_C4IR(Lum32f* srcDst, int srcDstStep, LumiSize roi, const Lum32f* const values[4],
                                 const Lum32f* const levels[4], const int count[4]);
LumStatus lumiLUT_Cubic_32f_C4R(const Lum32f* src, int srcStep, Lum32f* dst, int dstStep, LumiSize roi,
                                const Lum32f* const values[4], const Lum32f* const levels[4],
                                const int count[4]);
LumStatus lumiLUT_Cubic_8u_AC4IR(Lum8u* srcDst, int srcDstStep, LumiSize roi, const Lum32s* const values[3],
                                 const Lum32s* const levels[3], const int count[3]);
LumStatus lumiLUT_Cubic_8u_AC4R(const Lum8u* src, int srcStep, Lum8u* dst, int dstStep, LumiSize roi,
                                const Lum32s* const values[3], const Lum32s* const levels[3],
                                const int count[3]);
LumStatus lumiLUT_Cubic_8u_C1IR(Lum8u* srcDst, int srcDstStep, LumiSize roi, const Lum32s* values,
                                const Lum32s* levels, int count);
LumStatus lumiLUT_Cubic_8u_C1R(const Lum8u* src, int srcStep, Lum8u* dst, int dstStep, LumiSize roi,
                               const Lum32s* values, const Lum32s* levels, int count);
LumStatus lumiLUT_Cubic_8u_C3IR(Lum8u* srcDst, int srcDstStep, LumiSize roi, const Lum32s* const values[3],
                                const Lum32s* const levels[3], const int count[3]);
LumStatus lumiLUT_Cubic_8u_C3R(const Lum8u* src, int srcStep, Lum8u* dst, int dstStep, LumiSize roi,
                               const Lum32s* const values[3], const Lum32s* const levels[3],
                               const int count[3]);
LumStatus lumiLUT_Cubic_8u_C4IR(Lum8u* srcDst, int srcDstStep, LumiSize roi, const Lum32s* const values[4],
                                const Lum32s* const levels[4], const int count[4]);
LumStatus lumiLUT_Cubic_8u_C4R(const Lum8u* src, int srcStep, Lum8u* dst, int dstStep, LumiSize roi,
                               const Lum32s* const values[4], const Lum32s* const levels[4],
                               const int count[4]);

#ifdef __cplusplus
}
#endif

#endif
