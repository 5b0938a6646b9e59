/* SPDX-License-Identifier: MIT */
/* Generated from registry/filters/gradient_vector.reg by tools/lumigen; edit that instead. */
/** @file Gradient vectors. */
#ifndef LUMI_GRADIENT_VECTOR_H
#define LUMI_GRADIENT_VECTOR_H

#include "types.h"

#ifdef __cplusplus
extern "C" {
#endif

/**
 * Tells the size of the buffer of lumiGradientVectorSobel, Prewitt and Scharr.
 *
 * With k the side of the mask, m the larger and n the smaller of roi.width and roi.height, r = k / 2 where n is at
 * least 4 (of k = 3) or 8 (of k = 5) and n elsewhere, s the bytes of a sample of dataType, and w 2 for lumiData8u and
 * otherwise 4, it is (m + k - 1) * (r + k - 1) * channels * s + 2 * roi.width * w, modulo 2^32.
 *
 *   roi        of the runs
 *   mask       lumiMask3x3 or lumiMask5x5
 *   dataType   of the source: lumiData8u, lumiData16u, lumiData16s or lumiData32f
 *   channels   samples of a pixel: 1 or 3
 *   size       receives the size in bytes
 *
 * Returns lumStatusOk (0) or, tested in this order and before anything is written:
 *   lumStatusNullPointer (-8)  an image's pointer is null
 *   lumStatusBadSize (-6)      roi.width or roi.height is below 1
 *   lumStatusBadMaskSize (-33) mask is neither lumiMask3x3 nor lumiMask5x5
 *   lumStatusBadDataType (-12) dataType is none of these
 *   lumStatusBadChannelCount (-53) channels is neither 1 nor 3
 */
LumStatus lumiGradientVectorGetBufferSize(LumiSize roi, LumiMaskSize mask, LumiDataType dataType,
                                          int channels, int* size);

/**
 * Tells how steeply and in which direction an image rises, by masks of Sobel.
 *
 * Any of four images: both gradients, their magnitude and their angle; those that are null are not made. Of each
 * column of samples, from the row above to the row below, s is the smoothing and d the difference:
 *
 *   3 x 3: s = (s0 + s2) + 2 * s1, d = s2 - s0, gx(x) = s(x - 1) - s(x + 1), left minus right,
 *          gy(x) = (d(x - 1) + d(x + 1)) + 2 * d(x), bottom minus top
 *   5 x 5: s = ((s0 + s4) + 4 * (s1 + s3)) + 6 * s2, d = (s4 - s0) + 2 * (s3 - s1),
 *          gx(x) = (s(x - 2) - s(x + 2)) + 2 * (s(x - 1) - s(x + 1)),
 *          gy(x) = ((d(x - 2) + d(x + 2)) + 4 * (d(x - 1) + d(x + 1))) + 6 * d(x)
 *
 * Gradients of integers are exact; those of floats are formed in Lum32f as written. C3C1 takes for each pixel the
 * channel with the largest gx * gx + gy * gy, the first of equal ones. The magnitude is |gx| + |gy| for a norm of 2
 * and the root of gx * gx + gy * gy for one of 4, as Lum32f operations, whose last one is rounded to the nearest
 * integer, ties to even, in 8u16s. The angle is the arctangent of gy and gx from -pi to pi, with an error below two
 * units of its last place, and 0 where both are.
 *
 * Rows and columns outside the ROI are each taken by themselves: from memory where the border has the side's flag or is
 * lumiBorderInMemory, else the nearest one inside for lumiBorderReplicate and the constant for lumiBorderConst; a
 * corner is the constant where either is. Bits of border above the lowest eight are not looked at.
 *
 * Images may be misaligned. They must not overlap one another or the buffer, nor may rows of a result.
 *
 * Checked in this order; on an error nothing is written:
 *   lumStatusNullPointer (-8)  src is null
 *   lumStatusBadStep (-14)     srcStep is below 1
 *   lumStatusOddStep (-108)    it is no multiple of the sample size
 *   lumStatusNullPointer (-8)  buffer is null
 *   for gx, gy, magnitude and angle, each if it is given
 *     lumStatusBadStep (-14)     its step is below 1
 *     lumStatusOddStep (-108)    it is no multiple of its sample size
 *     lumStatusBadArgument (-5)  of the magnitude: norm is neither 2 nor 4
 *   lumStatusBadSize (-6)      roi.width or roi.height is below 1
 *   lumStatusBadArgument (-5)  the low four bits of border are not 0, 1 or 6
 *   lumStatusNullPointer (-8)  borderValue is null (C3C1)
 *   lumStatusBadMaskSize (-33) mask is neither lumiMask3x3 nor lumiMask5x5
 *
 *   gx         receives the horizontal gradients, or null
 *   gxStep     bytes between its rows
 *   gy         receives the vertical gradients, or null
 *   gyStep     bytes between its rows
 *   magnitude  receives the magnitudes, or null
 *   magnitudeStep bytes between its rows
 *   angle      receives the angles in radians, or null
 *   angleStep  bytes between its rows
 *   mask       lumiMask3x3 or lumiMask5x5
 *   norm       of the magnitude: 2 for the sum of both, 4 for the root of the sum of their squares
 *   border     lumiBorderConst, lumiBorderReplicate or lumiBorderInMemory, and flags
 *   borderValue the constant
 *   buffer     scratch memory of the size that lumiGradientVectorGetBufferSize tells
 */
LumStatus lumiGradientVectorSobel_16s32f_C1R(const Lum16s* src, int srcStep, Lum32f* gx, int gxStep,
                                             Lum32f* gy, int gyStep, Lum32f* magnitude, int magnitudeStep,
                                             Lum32f* angle, int angleStep, LumiSize roi, LumiMaskSize mask,
                                             int norm, LumiBorderType border, Lum16s borderValue,
                                             Lum8u* buffer);
LumStatus lumiGradientVectorSobel_16s32f_C3C1R(const Lum16s* src, int srcStep, Lum32f* gx, int gxStep,
                                               Lum32f* gy, int gyStep, Lum32f* magnitude, int magnitudeStep,
                                               Lum32f* angle, int angleStep, LumiSize roi, LumiMaskSize mask,
                                               int norm, LumiBorderType border, const Lum16s borderValue[3],
                                               Lum8u* buffer);
LumStatus lumiGradientVectorSobel_16u32f_C1R(const Lum16u* src, int srcStep, Lum32f* gx, int gxStep,
                                             Lum32f* gy, int gyStep, Lum32f* magnitude, int magnitudeStep,
                                             Lum32f* angle, int angleStep, LumiSize roi, LumiMaskSize mask,
                                             int norm, LumiBorderType border, Lum16u borderValue,
                                             Lum8u* buffer);
LumStatus lumiGradientVectorSobel_16u32f_C3C1R(const Lum16u* src, int srcStep, Lum32f* gx, int gxStep,
                                               Lum32f* gy, int gyStep, Lum32f* magnitude, int magnitudeStep,
                                               Lum32f* angle, int angleStep, LumiSize roi, LumiMaskSize mask,
                                               int norm, LumiBorderType border, const Lum16u borderValue[3],
                                               Lum8u* buffer);
LumStatus lumiGradientVectorSobel_32f_C1R(const Lum32f* src, int srcStep, Lum32f* gx, int gxStep, Lum32f* gy,
                                          int gyStep, Lum32f* magnitude, int magnitudeStep, Lum32f* angle,
                                          int angleStep, LumiSize roi, LumiMaskSize mask, int norm,
                                          LumiBorderType border, Lum32f borderValue, Lum8u* buffer);
LumStatus lumiGradientVectorSobel_32f_C3C1R(const Lum32f* src, int srcStep, Lum32f* gx, int gxStep,
                                            Lum32f* gy, int gyStep, Lum32f* magnitude, int magnitudeStep,
                                            Lum32f* angle, int angleStep, LumiSize roi, LumiMaskSize mask,
                                            int norm, LumiBorderType border, const Lum32f borderValue[3],
                                            Lum8u* buffer);
LumStatus lumiGradientVectorSobel_8u16s_C1R(const Lum8u* src, int srcStep, Lum16s* gx, int gxStep, Lum16s* gy,
                                            int gyStep, Lum16s* magnitude, int magnitudeStep, Lum32f* angle,
                                            int angleStep, LumiSize roi, LumiMaskSize mask, int norm,
                                            LumiBorderType border, Lum8u borderValue, Lum8u* buffer);
LumStatus lumiGradientVectorSobel_8u16s_C3C1R(const Lum8u* src, int srcStep, Lum16s* gx, int gxStep,
                                              Lum16s* gy, int gyStep, Lum16s* magnitude, int magnitudeStep,
                                              Lum32f* angle, int angleStep, LumiSize roi, LumiMaskSize mask,
                                              int norm, LumiBorderType border, const Lum8u borderValue[3],
                                              Lum8u* buffer);

/**
 * Tells how steeply and in which direction an image rises, by masks of Prewitt.
 *
 * As lumiGradientVectorSobel, with s = (s0 + s2) + s1 and gy(x) = (d(x - 1) + d(x + 1)) + d(x), of 3 x 3 alone: any other
 * mask gives lumStatusBadMaskSize (-33).
 *
 *   gx         receives the horizontal gradients, or null
 *   gxStep     bytes between its rows
 *   gy         receives the vertical gradients, or null
 *   gyStep     bytes between its rows
 *   magnitude  receives the magnitudes, or null
 *   magnitudeStep bytes between its rows
 *   angle      receives the angles in radians, or null
 *   angleStep  bytes between its rows
 *   mask       lumiMask3x3
 *   norm       of the magnitude: 2 for the sum of both, 4 for the root of the sum of their squares
 *   border     lumiBorderConst, lumiBorderReplicate or lumiBorderInMemory, and flags
 *   borderValue the constant
 *   buffer     scratch memory of the size that lumiGradientVectorGetBufferSize tells
 */
LumStatus lumiGradientVectorPrewitt_16s32f_C1R(const Lum16s* src, int srcStep, Lum32f* gx, int gxStep,
                                               Lum32f* gy, int gyStep, Lum32f* magnitude, int magnitudeStep,
                                               Lum32f* angle, int angleStep, LumiSize roi, LumiMaskSize mask,
                                               int norm, LumiBorderType border, Lum16s borderValue,
                                               Lum8u* buffer);
LumStatus lumiGradientVectorPrewitt_16s32f_C3C1R(const Lum16s* src, int srcStep, Lum32f* gx, int gxStep,
                                                 Lum32f* gy, int gyStep, Lum32f* magnitude, int magnitudeStep,
                                                 Lum32f* angle, int angleStep, LumiSize roi,
                                                 LumiMaskSize mask, int norm, LumiBorderType border,
                                                 const Lum16s borderValue[3], Lum8u* buffer);
LumStatus lumiGradientVectorPrewitt_16u32f_C1R(const Lum16u* src, int srcStep, Lum32f* gx, int gxStep,
                                               Lum32f* gy, int gyStep, Lum32f* magnitude, int magnitudeStep,
                                               Lum32f* angle, int angleStep, LumiSize roi, LumiMaskSize mask,
                                               int norm, LumiBorderType border, Lum16u borderValue,
                                               Lum8u* buffer);
LumStatus lumiGradientVectorPrewitt_16u32f_C3C1R(const Lum16u* src, int srcStep, Lum32f* gx, int gxStep,
                                                 Lum32f* gy, int gyStep, Lum32f* magnitude, int magnitudeStep,
                                                 Lum32f* angle, int angleStep, LumiSize roi,
                                                 LumiMaskSize mask, int norm, LumiBorderType border,
                                                 const Lum16u borderValue[3], Lum8u* buffer);
LumStatus lumiGradientVectorPrewitt_32f_C1R(const Lum32f* src, int srcStep, Lum32f* gx, int gxStep,
                                            Lum32f* gy, int gyStep, Lum32f* magnitude, int magnitudeStep,
                                            Lum32f* angle, int angleStep, LumiSize roi, LumiMaskSize mask,
                                            int norm, LumiBorderType border, Lum32f borderValue,
                                            Lum8u* buffer);
LumStatus lumiGradientVectorPrewitt_32f_C3C1R(const Lum32f* src, int srcStep, Lum32f* gx, int gxStep,
                                              Lum32f* gy, int gyStep, Lum32f* magnitude, int magnitudeStep,
                                              Lum32f* angle, int angleStep, LumiSize roi, LumiMaskSize mask,
                                              int norm, LumiBorderType border, const Lum32f borderValue[3],
                                              Lum8u* buffer);
LumStatus lumiGradientVectorPrewitt_8u16s_C1R(const Lum8u* src, int srcStep, Lum16s* gx, int gxStep,
                                              Lum16s* gy, int gyStep, Lum16s* magnitude, int magnitudeStep,
                                              Lum32f* angle, int angleStep, LumiSize roi, LumiMaskSize mask,
                                              int norm, LumiBorderType border, Lum8u borderValue,
                                              Lum8u* buffer);
LumStatus lumiGradientVectorPrewitt_8u16s_C3C1R(const Lum8u* src, int srcStep, Lum16s* gx, int gxStep,
                                                Lum16s* gy, int gyStep, Lum16s* magnitude, int magnitudeStep,
                                                Lum32f* angle, int angleStep, LumiSize roi, LumiMaskSize mask,
                                                int norm, LumiBorderType border, const Lum8u borderValue[3],
                                                Lum8u* buffer);

/**
 * Tells how steeply and in which direction an image rises, by masks of Scharr.
 *
 * As lumiGradientVectorSobel, with s = 3 * (s0 + s2) + 10 * s1 and gy(x) = 3 * (d(x - 1) + d(x + 1)) + 10 * d(x), of
 * 3 x 3 alone: any other mask gives lumStatusBadMaskSize (-33).
 *
 *   gx         receives the horizontal gradients, or null
 *   gxStep     bytes between its rows
 *   gy         receives the vertical gradients, or null
 *   gyStep     bytes between its rows
 *   magnitude  receives the magnitudes, or null
 *   magnitudeStep bytes between its rows
 *   angle      receives the angles in radians, or null
 *   angleStep  bytes between its rows
 *   mask       lumiMask3x3
 *   norm       of the magnitude: 2 for the sum of both, 4 for the root of the sum of their squares
 *   border     lumiBorderConst, lumiBorderReplicate or lumiBorderInMemory, and flags
 *   borderValue the constant
 *   buffer     scratch memory of the size that lumiGradientVectorGetBufferSize tells
 */
LumStatus lumiGradientVectorScharr_16s32f_C1R(const Lum16s* src, int srcStep, Lum32f* gx, int gxStep,
                                              Lum32f* gy, int gyStep, Lum32f* magnitude, int magnitudeStep,
                                              Lum32f* angle, int angleStep, LumiSize roi, LumiMaskSize mask,
                                              int norm, LumiBorderType border, Lum16s borderValue,
                                              Lum8u* buffer);
LumStatus lumiGradientVectorScharr_16s32f_C3C1R(const Lum16s* src, int srcStep, Lum32f* gx, int gxStep,
                                                Lum32f* gy, int gyStep, Lum32f* magnitude, int magnitudeStep,
                                                Lum32f* angle, int angleStep, LumiSize roi, LumiMaskSize mask,
                                                int norm, LumiBorderType border, const Lum16s borderValue[3],
                                                Lum8u* buffer);
LumStatus lumiGradientVectorScharr_16u32f_C1R(const Lum16u* src, int srcStep, Lum32f* gx, int gxStep,
                                              Lum32f* gy, int gyStep, Lum32f* magnitude, int magnitudeStep,
                                              Lum32f* angle, int angleStep, LumiSize roi, LumiMaskSize mask,
                                              int norm, LumiBorderType border, Lum16u borderValue,
                                              Lum8u* buffer);
LumStatus lumiGradientVectorScharr_16u32f_C3C1R(const Lum16u* src, int srcStep, Lum32f* gx, int gxStep,
                                                Lum32f* gy, int gyStep, Lum32f* magnitude, int magnitudeStep,
                                                Lum32f* angle, int angleStep, LumiSize roi, LumiMaskSize mask,
                                                int norm, LumiBorderType border, const Lum16u borderValue[3],
                                                Lum8u* buffer);
LumStatus lumiGradientVectorScharr_32f_C1R(const Lum32f* src, int srcStep, Lum32f* gx, int gxStep, Lum32f* gy,
                                           int gyStep, Lum32f* magnitude, int magnitudeStep, Lum32f* angle,
                                           int angleStep, LumiSize roi, LumiMaskSize mask, int norm,
                                           LumiBorderType border, Lum32f borderValue, Lum8u* buffer);
LumStatus lumiGradientVectorScharr_32f_C3C1R(const Lum32f* src, int srcStep, Lum32f* gx, int gxStep,
                                             Lum32f* gy, int gyStep, Lum32f* magnitude, int magnitudeStep,
                                             Lum32f* angle, int angleStep, LumiSize roi, LumiMaskSize mask,
                                             int norm, LumiBorderType border, const Lum32f borderValue[3],
                                             Lum8u* buffer);
LumStatus lumiGradientVectorScharr_8u16s_C1R(const Lum8u* src, int srcStep, Lum16s* gx, int gxStep,
                                             Lum16s* gy, int gyStep, Lum16s* magnitude, int magnitudeStep,
                                             Lum32f* angle, int angleStep, LumiSize roi, LumiMaskSize mask,
                                             int norm, LumiBorderType border, Lum8u borderValue,
                                             Lum8u* buffer);
LumStatus lumiGradientVectorScharr_8u16s_C3C1R(const Lum8u* src, int srcStep, Lum16s* gx, int gxStep,
                                               Lum16s* gy, int gyStep, Lum16s* magnitude, int magnitudeStep,
                                               Lum32f* angle, int angleStep, LumiSize roi, LumiMaskSize mask,
                                               int norm, LumiBorderType border, const Lum8u borderValue[3],
                                               Lum8u* buffer);

#ifdef __cplusplus
}
#endif

#endif
