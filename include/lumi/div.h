/* SPDX-License-Identifier: MIT */
/* Generated from registry/arithmetic/div.reg by tools/lumigen; edit that instead. */
/** @file Division. */
#ifndef LUMI_DIV_H
#define LUMI_DIV_H

#include "types.h"

#ifdef __cplusplus
extern "C" {
#endif

/**
 * Divides two images; the first one divides.
 *
 * dst(x, y) = src2(x, y) / src1(x, y), in place srcDst(x, y) = srcDst(x, y) / src(x, y). The exact quotient,
 * divided by 2^scaleFactor or multiplied by 2^-scaleFactor, is rounded to an integer by the vector unit's
 * rounding control, which is to the nearest, ties to the even one, unless the caller changed it; then it is
 * limited to the sample type. AC4 leaves the fourth sample of every pixel as it was.
 *
 * Where src1 is 0 the result is 0 for 0, and else the limit of the type on the side of src2: 255 for 8u, 65535
 * for 16u, 32767 or -32768 for 16s. The call then returns lumStatusDivideByZeroWarning, with every pixel
 * written. A quotient that is not by zero is 0 above the scale factor 8 for 8u, 16 for 16u, 15 for 16s, and
 * leaves the type, unless it is 0, below -15, -31 and -30.
 *
 * Complex integers are divided as complex numbers, in doubles: each part of src2 times the conjugate of src1,
 * divided by the square of the size of src1, scaled, rounded and limited. By 0 both parts are 0, with the
 * warning. Those of 16 bits are 0 above the scale factor 32, and below -32 each part that is not 0 leaves the
 * type.
 *
 * Floats are divided by way of the processor's approximate reciprocal r of the divisor d: with e = 1 - d r and
 * q = n r the result is q + (q + q e) e, which may differ from the true quotient in its last bits, and does
 * not hold for divisors beyond 2^126 or below 2^-126 in size. By 0 it is infinite on the side of the dividend,
 * and for a dividend of 0 or no number the bits 0x7FBFFFFF, with the warning; by -0 it is -0, without. Complex
 * floats are true quotients to within 2^-20; by 0 both parts are 0x7FC00000, with the warning.
 *
 * The destination may be a source. Where it overlaps one otherwise, each row is done sample by sample in
 * order. Any alignment will do.
 *
 * Returns lumStatusOk (0) or, tested in this order and before anything is written (8u 16u 16s 16sc 32sc 32f 32fc: C1 AC4):
 *   lumStatusNullPointer (-8)  a pointer is null, plane pointers included
 *   lumStatusBadSize (-6)      roi.width or roi.height is below 1
 *   lumStatusBadStep (-14)     a step is below 1
 *
 * Returns lumStatusOk (0) or, tested in this order and before anything is written (8u 16u 16s 32f: C3 C4; 16sc 32sc 32fc: C3):
 *   lumStatusBadSize (-6)      roi.width is below 1
 *   lumStatusNullPointer (-8)  a pointer is null, plane pointers included
 *   lumStatusBadSize (-6)      roi.width or roi.height is below 1
 *   lumStatusBadStep (-14)     a step is below 1
 */
LumStatus lumiDiv_16s_AC4IRSfs(const Lum16s* src, int srcStep, Lum16s* srcDst, int srcDstStep, LumiSize roi,
                               int scaleFactor);
LumStatus lumiDiv_16s_AC4RSfs(const Lum16s* src1, int src1Step, const Lum16s* src2, int src2Step, Lum16s* dst,
                              int dstStep, LumiSize roi, int scaleFactor);
LumStatus lumiDiv_16s_C1IRSfs(const Lum16s* src, int srcStep, Lum16s* srcDst, int srcDstStep, LumiSize roi,
                              int scaleFactor);
LumStatus lumiDiv_16s_C1RSfs(const Lum16s* src1, int src1Step, const Lum16s* src2, int src2Step, Lum16s* dst,
                             int dstStep, LumiSize roi, int scaleFactor);
LumStatus lumiDiv_16s_C3IRSfs(const Lum16s* src, int srcStep, Lum16s* srcDst, int srcDstStep, LumiSize roi,
                              int scaleFactor);
LumStatus lumiDiv_16s_C3RSfs(const Lum16s* src1, int src1Step, const Lum16s* src2, int src2Step, Lum16s* dst,
                             int dstStep, LumiSize roi, int scaleFactor);
LumStatus lumiDiv_16s_C4IRSfs(const Lum16s* src, int srcStep, Lum16s* srcDst, int srcDstStep, LumiSize roi,
                              int scaleFactor);
LumStatus lumiDiv_16s_C4RSfs(const Lum16s* src1, int src1Step, const Lum16s* src2, int src2Step, Lum16s* dst,
                             int dstStep, LumiSize roi, int scaleFactor);
LumStatus lumiDiv_16sc_AC4IRSfs(const Lum16sc* src, int srcStep, Lum16sc* srcDst, int srcDstStep,
                                LumiSize roi, int scaleFactor);
LumStatus lumiDiv_16sc_AC4RSfs(const Lum16sc* src1, int src1Step, const Lum16sc* src2, int src2Step,
                               Lum16sc* dst, int dstStep, LumiSize roi, int scaleFactor);
LumStatus lumiDiv_16sc_C1IRSfs(const Lum16sc* src, int srcStep, Lum16sc* srcDst, int srcDstStep, LumiSize roi,
                               int scaleFactor);
LumStatus lumiDiv_16sc_C1RSfs(const Lum16sc* src1, int src1Step, const Lum16sc* src2, int src2Step,
                              Lum16sc* dst, int dstStep, LumiSize roi, int scaleFactor);
LumStatus lumiDiv_16sc_C3IRSfs(const Lum16sc* src, int srcStep, Lum16sc* srcDst, int srcDstStep, LumiSize roi,
                               int scaleFactor);
LumStatus lumiDiv_16sc_C3RSfs(const Lum16sc* src1, int src1Step, const Lum16sc* src2, int src2Step,
                              Lum16sc* dst, int dstStep, LumiSize roi, int scaleFactor);
LumStatus lumiDiv_16u_AC4IRSfs(const Lum16u* src, int srcStep, Lum16u* srcDst, int srcDstStep, LumiSize roi,
                               int scaleFactor);
LumStatus lumiDiv_16u_AC4RSfs(const Lum16u* src1, int src1Step, const Lum16u* src2, int src2Step, Lum16u* dst,
                              int dstStep, LumiSize roi, int scaleFactor);
LumStatus lumiDiv_16u_C1IRSfs(const Lum16u* src, int srcStep, Lum16u* srcDst, int srcDstStep, LumiSize roi,
                              int scaleFactor);
LumStatus lumiDiv_16u_C1RSfs(const Lum16u* src1, int src1Step, const Lum16u* src2, int src2Step, Lum16u* dst,
                             int dstStep, LumiSize roi, int scaleFactor);
LumStatus lumiDiv_16u_C3IRSfs(const Lum16u* src, int srcStep, Lum16u* srcDst, int srcDstStep, LumiSize roi,
                              int scaleFactor);
LumStatus lumiDiv_16u_C3RSfs(const Lum16u* src1, int src1Step, const Lum16u* src2, int src2Step, Lum16u* dst,
                             int dstStep, LumiSize roi, int scaleFactor);
LumStatus lumiDiv_16u_C4IRSfs(const Lum16u* src, int srcStep, Lum16u* srcDst, int srcDstStep, LumiSize roi,
                              int scaleFactor);
LumStatus lumiDiv_16u_C4RSfs(const Lum16u* src1, int src1Step, const Lum16u* src2, int src2Step, Lum16u* dst,
                             int dstStep, LumiSize roi, int scaleFactor);
LumStatus lumiDiv_32f_AC4IR(const Lum32f* src, int srcStep, Lum32f* srcDst, int srcDstStep, LumiSize roi);
LumStatus lumiDiv_32f_AC4R(const Lum32f* src1, int src1Step, const Lum32f* src2, int src2Step, Lum32f* dst,
                           int dstStep, LumiSize roi);
LumStatus lumiDiv_32f_C1IR(const Lum32f* src, int srcStep, Lum32f* srcDst, int srcDstStep, LumiSize roi);
LumStatus lumiDiv_32f_C1R(const Lum32f* src1, int src1Step, const Lum32f* src2, int src2Step, Lum32f* dst,
                          int dstStep, LumiSize roi);
LumStatus lumiDiv_32f_C3IR(const Lum32f* src, int srcStep, Lum32f* srcDst, int srcDstStep, LumiSize roi);
LumStatus lumiDiv_32f_C3R(const Lum32f* src1, int src1Step, const Lum32f* src2, int src2Step, Lum32f* dst,
                          int dstStep, LumiSize roi);
LumStatus lumiDiv_32f_C4IR(const Lum32f* src, int srcStep, Lum32f* srcDst, int srcDstStep, LumiSize roi);
LumStatus lumiDiv_32f_C4R(const Lum32f* src1, int src1Step, const Lum32f* src2, int src2Step, Lum32f* dst,
                          int dstStep, LumiSize roi);
LumStatus lumiDiv_32fc_AC4IR(const Lum32fc* src, int srcStep, Lum32fc* srcDst, int srcDstStep, LumiSize roi);
LumStatus lumiDiv_32fc_AC4R(const Lum32fc* src1, int src1Step, const Lum32fc* src2, int src2Step,
                            Lum32fc* dst, int dstStep, LumiSize roi);
LumStatus lumiDiv_32fc_C1IR(const Lum32fc* src, int srcStep, Lum32fc* srcDst, int srcDstStep, LumiSize roi);
LumStatus lumiDiv_32fc_C1R(const Lum32fc* src1, int src1Step, const Lum32fc* src2, int src2Step, Lum32fc* dst,
                           int dstStep, LumiSize roi);
LumStatus lumiDiv_32fc_C3IR(const Lum32fc* src, int srcStep, Lum32fc* srcDst, int srcDstStep, LumiSize roi);
LumStatus lumiDiv_32fc_C3R(const Lum32fc* src1, int src1Step, const Lum32fc* src2, int src2Step, Lum32fc* dst,
                           int dstStep, LumiSize roi);
LumStatus lumiDiv_32sc_AC4IRSfs(const Lum32sc* src, int srcStep, Lum32sc* srcDst, int srcDstStep,
                                LumiSize roi, int scaleFactor);
LumStatus lumiDiv_32sc_AC4RSfs(const Lum32sc* src1, int src1Step, const Lum32sc* src2, int src2Step,
                               Lum32sc* dst, int dstStep, LumiSize roi, int scaleFactor);
LumStatus lumiDiv_32sc_C1IRSfs(const Lum32sc* src, int srcStep, Lum32sc* srcDst, int srcDstStep, LumiSize roi,
                               int scaleFactor);
LumStatus lumiDiv_32sc_C1RSfs(const Lum32sc* src1, int src1Step, const Lum32sc* src2, int src2Step,
                              Lum32sc* dst, int dstStep, LumiSize roi, int scaleFactor);
LumStatus lumiDiv_32sc_C3IRSfs(const Lum32sc* src, int srcStep, Lum32sc* srcDst, int srcDstStep, LumiSize roi,
                               int scaleFactor);
LumStatus lumiDiv_32sc_C3RSfs(const Lum32sc* src1, int src1Step, const Lum32sc* src2, int src2Step,
                              Lum32sc* dst, int dstStep, LumiSize roi, int scaleFactor);
LumStatus lumiDiv_8u_AC4IRSfs(const Lum8u* src, int srcStep, Lum8u* srcDst, int srcDstStep, LumiSize roi,
                              int scaleFactor);
LumStatus lumiDiv_8u_AC4RSfs(const Lum8u* src1, int src1Step, const Lum8u* src2, int src2Step, Lum8u* dst,
                             int dstStep, LumiSize roi, int scaleFactor);
LumStatus lumiDiv_8u_C1IRSfs(const Lum8u* src, int srcStep, Lum8u* srcDst, int srcDstStep, LumiSize roi,
                             int scaleFactor);
LumStatus lumiDiv_8u_C1RSfs(const Lum8u* src1, int src1Step, const Lum8u* src2, int src2Step, Lum8u* dst,
                            int dstStep, LumiSize roi, int scaleFactor);
LumStatus lumiDiv_8u_C3IRSfs(const Lum8u* src, int srcStep, Lum8u* srcDst, int srcDstStep, LumiSize roi,
                             int scaleFactor);
LumStatus lumiDiv_8u_C3RSfs(const Lum8u* src1, int src1Step, const Lum8u* src2, int src2Step, Lum8u* dst,
                            int dstStep, LumiSize roi, int scaleFactor);
LumStatus lumiDiv_8u_C4IRSfs(const Lum8u* src, int srcStep, Lum8u* srcDst, int srcDstStep, LumiSize roi,
                             int scaleFactor);
LumStatus lumiDiv_8u_C4RSfs(const Lum8u* src1, int src1Step, const Lum8u* src2, int src2Step, Lum8u* dst,
                            int dstStep, LumiSize roi, int scaleFactor);

/**
 * Divides two images, rounding as an argument says; the first one divides.
 *
 * As lumiDiv, with quotients rounded by roundMode: lumRoundTowardZero cuts, lumRoundNearestEven rounds to the
 * nearest integer, ties to the even one, lumRoundHalfAway ties away from zero. The rounding control is neither
 * used nor changed.
 *
 *   roundMode  lumRoundTowardZero, lumRoundNearestEven or lumRoundHalfAway
 *
 * Returns lumStatusOk (0) or, tested in this order and before anything is written (8u 16u 16s: C1 AC4):
 *   lumStatusNullPointer (-8)  a pointer is null, plane pointers included
 *   lumStatusBadSize (-6)      roi.width or roi.height is below 1
 *   lumStatusBadStep (-14)     a step is below 1
 *   lumStatusBadRoundMode (-213) roundMode is refused
 *
 * Returns lumStatusOk (0) or, tested in this order and before anything is written (8u 16u 16s: C3 C4):
 *   lumStatusBadSize (-6)      roi.width is below 1
 *   lumStatusNullPointer (-8)  a pointer is null, plane pointers included
 *   lumStatusBadSize (-6)      roi.width or roi.height is below 1
 *   lumStatusBadStep (-14)     a step is below 1
 *   lumStatusBadRoundMode (-213) roundMode is refused
 */
LumStatus lumiDiv_Round_16s_AC4IRSfs(const Lum16s* src, int srcStep, Lum16s* srcDst, int srcDstStep,
                                     LumiSize roi, LumRoundMode roundMode, int scaleFactor);
LumStatus lumiDiv_Round_16s_AC4RSfs(const Lum16s* src1, int src1Step, const Lum16s* src2, int src2Step,
                                    Lum16s* dst, int dstStep, LumiSize roi, LumRoundMode roundMode,
                                    int scaleFactor);
LumStatus lumiDiv_Round_16s_C1IRSfs(const Lum16s* src, int srcStep, Lum16s* srcDst, int srcDstStep,
                                    LumiSize roi, LumRoundMode roundMode, int scaleFactor);
LumStatus lumiDiv_Round_16s_C1RSfs(const Lum16s* src1, int src1Step, const Lum16s* src2, int src2Step,
                                   Lum16s* dst, int dstStep, LumiSize roi, LumRoundMode roundMode,
                                   int scaleFactor);
LumStatus lumiDiv_Round_16s_C3IRSfs(const Lum16s* src, int srcStep, Lum16s* srcDst, int srcDstStep,
                                    LumiSize roi, LumRoundMode roundMode, int scaleFactor);
LumStatus lumiDiv_Round_16s_C3RSfs(const Lum16s* src1, int src1Step, const Lum16s* src2, int src2Step,
                                   Lum16s* dst, int dstStep, LumiSize roi, LumRoundMode roundMode,
                                   int scaleFactor);
LumStatus lumiDiv_Round_16s_C4IRSfs(const Lum16s* src, int srcStep, Lum16s* srcDst, int srcDstStep,
                                    LumiSize roi, LumRoundMode roundMode, int scaleFactor);
LumStatus lumiDiv_Round_16s_C4RSfs(const Lum16s* src1, int src1Step, const Lum16s* src2, int src2Step,
                                   Lum16s* dst, int dstStep, LumiSize roi, LumRoundMode roundMode,
                                   int scaleFactor);
LumStatus lumiDiv_Round_16u_AC4IRSfs(const Lum16u* src, int srcStep, Lum16u* srcDst, int srcDstStep,
                                     LumiSize roi, LumRoundMode roundMode, int scaleFactor);
LumStatus lumiDiv_Round_16u_AC4RSfs(const Lum16u* src1, int src1Step, const Lum16u* src2, int src2Step,
                                    Lum16u* dst, int dstStep, LumiSize roi, LumRoundMode roundMode,
                                    int scaleFactor);
LumStatus lumiDiv_Round_16u_C1IRSfs(const Lum16u* src, int srcStep, Lum16u* srcDst, int srcDstStep,
                                    LumiSize roi, LumRoundMode roundMode, int scaleFactor);
LumStatus lumiDiv_Round_16u_C1RSfs(const Lum16u* src1, int src1Step, const Lum16u* src2, int src2Step,
                                   Lum16u* dst, int dstStep, LumiSize roi, LumRoundMode roundMode,
                                   int scaleFactor);
LumStatus lumiDiv_Round_16u_C3IRSfs(const Lum16u* src, int srcStep, Lum16u* srcDst, int srcDstStep,
                                    LumiSize roi, LumRoundMode roundMode, int scaleFactor);
LumStatus lumiDiv_Round_16u_C3RSfs(const Lum16u* src1, int src1Step, const Lum16u* src2, int src2Step,
                                   Lum16u* dst, int dstStep, LumiSize roi, LumRoundMode roundMode,
                                   int scaleFactor);
LumStatus lumiDiv_Round_16u_C4IRSfs(const Lum16u* src, int srcStep, Lum16u* srcDst, int srcDstStep,
                                    LumiSize roi, LumRoundMode roundMode, int scaleFactor);
LumStatus lumiDiv_Round_16u_C4RSfs(const Lum16u* src1, int src1Step, const Lum16u* src2, int src2Step,
                                   Lum16u* dst, int dstStep, LumiSize roi, LumRoundMode roundMode,
                                   int scaleFactor);
LumStatus lumiDiv_Round_8u_AC4IRSfs(const Lum8u* src, int srcStep, Lum8u* srcDst, int srcDstStep,
                                    LumiSize roi, LumRoundMode roundMode, int scaleFactor);
LumStatus lumiDiv_Round_8u_AC4RSfs(const Lum8u* src1, int src1Step, const Lum8u* src2, int src2Step,
                                   Lum8u* dst, int dstStep, LumiSize roi, LumRoundMode roundMode,
                                   int scaleFactor);
LumStatus lumiDiv_Round_8u_C1IRSfs(const Lum8u* src, int srcStep, Lum8u* srcDst, int srcDstStep, LumiSize roi,
                                   LumRoundMode roundMode, int scaleFactor);
LumStatus lumiDiv_Round_8u_C1RSfs(const Lum8u* src1, int src1Step, const Lum8u* src2, int src2Step,
                                  Lum8u* dst, int dstStep, LumiSize roi, LumRoundMode roundMode,
                                  int scaleFactor);
LumStatus lumiDiv_Round_8u_C3IRSfs(const Lum8u* src, int srcStep, Lum8u* srcDst, int srcDstStep, LumiSize roi,
                                   LumRoundMode roundMode, int scaleFactor);
LumStatus lumiDiv_Round_8u_C3RSfs(const Lum8u* src1, int src1Step, const Lum8u* src2, int src2Step,
                                  Lum8u* dst, int dstStep, LumiSize roi, LumRoundMode roundMode,
                                  int scaleFactor);
LumStatus lumiDiv_Round_8u_C4IRSfs(const Lum8u* src, int srcStep, Lum8u* srcDst, int srcDstStep, LumiSize roi,
                                   LumRoundMode roundMode, int scaleFactor);
LumStatus lumiDiv_Round_8u_C4RSfs(const Lum8u* src1, int src1Step, const Lum8u* src2, int src2Step,
                                  Lum8u* dst, int dstStep, LumiSize roi, LumRoundMode roundMode,
                                  int scaleFactor);

/**
 * Divides every pixel by a constant.
 *
 * dst(x, y) = src(x, y) / value, in place srcDst(x, y) = srcDst(x, y) / value. C1 takes one value, C3 and AC4
 * three, C4 four, one for each channel; they are read before any pixel is touched. If any of them is 0,
 * lumStatusDivisionByZero is returned, after all other checks, and nothing is written. Scaling, rounding,
 * limits, AC4, overlap and alignment are as in lumiDiv.
 *
 * Floats are multiplied by 1 / value, and complex ones (re, im) by (re m, -(im m)) with m = 1 / (re^2 + im^2),
 * both rounded to floats: results may differ from true quotients in their last bits. A complex constant is 0
 * where re^2 + im^2 is.
 *
 * Above the scale factor 8 for 8u, 16 for 16u, 15 for 16s every result is 0, and no source is read. 16u
 * members take any step, zero and negative ones included.
 *
 * Returns lumStatusOk (0) or, tested in this order and before anything is written (8u 16s 32f: C1 C3 C4 AC4; 16sc 32sc 32fc: C1 C3 AC4):
 *   lumStatusNullPointer (-8)  a pointer is null, plane pointers included
 *   lumStatusBadSize (-6)      roi.width or roi.height is below 1
 *   lumStatusBadStep (-14)     a step is below 1
 *
 * Returns lumStatusOk (0) or, tested in this order and before anything is written (16u: C1 C3 C4 AC4):
 *   lumStatusNullPointer (-8)  a pointer is null, plane pointers included
 *   lumStatusBadSize (-6)      roi.width or roi.height is below 1
 */
LumStatus lumiDivC_16s_AC4IRSfs(const Lum16s value[3], Lum16s* srcDst, int srcDstStep, LumiSize roi,
                                int scaleFactor);
LumStatus lumiDivC_16s_AC4RSfs(const Lum16s* src, int srcStep, const Lum16s value[3], Lum16s* dst,
                               int dstStep, LumiSize roi, int scaleFactor);
LumStatus lumiDivC_16s_C1IRSfs(Lum16s value, Lum16s* srcDst, int srcDstStep, LumiSize roi, int scaleFactor);
LumStatus lumiDivC_16s_C1RSfs(const Lum16s* src, int srcStep, Lum16s value, Lum16s* dst, int dstStep,
                              LumiSize roi, int scaleFactor);
LumStatus lumiDivC_16s_C3IRSfs(const Lum16s value[3], Lum16s* srcDst, int srcDstStep, LumiSize roi,
                               int scaleFactor);
LumStatus lumiDivC_16s_C3RSfs(const Lum16s* src, int srcStep, const Lum16s value[3], Lum16s* dst, int dstStep,
                              LumiSize roi, int scaleFactor);
LumStatus lumiDivC_16s_C4IRSfs(const Lum16s value[4], Lum16s* srcDst, int srcDstStep, LumiSize roi,
                               int scaleFactor);
LumStatus lumiDivC_16s_C4RSfs(const Lum16s* src, int srcStep, const Lum16s value[4], Lum16s* dst, int dstStep,
                              LumiSize roi, int scaleFactor);
LumStatus lumiDivC_16sc_AC4IRSfs(const Lum16sc value[3], Lum16sc* srcDst, int srcDstStep, LumiSize roi,
                                 int scaleFactor);
LumStatus lumiDivC_16sc_AC4RSfs(const Lum16sc* src, int srcStep, const Lum16sc value[3], Lum16sc* dst,
                                int dstStep, LumiSize roi, int scaleFactor);
LumStatus lumiDivC_16sc_C1IRSfs(Lum16sc value, Lum16sc* srcDst, int srcDstStep, LumiSize roi,
                                int scaleFactor);
LumStatus lumiDivC_16sc_C1RSfs(const Lum16sc* src, int srcStep, Lum16sc value, Lum16sc* dst, int dstStep,
                               LumiSize roi, int scaleFactor);
LumStatus lumiDivC_16sc_C3IRSfs(const Lum16sc value[3], Lum16sc* srcDst, int srcDstStep, LumiSize roi,
                                int scaleFactor);
LumStatus lumiDivC_16sc_C3RSfs(const Lum16sc* src, int srcStep, const Lum16sc value[3], Lum16sc* dst,
                               int dstStep, LumiSize roi, int scaleFactor);
LumStatus lumiDivC_16u_AC4IRSfs(const Lum16u value[3], Lum16u* srcDst, int srcDstStep, LumiSize roi,
                                int scaleFactor);
LumStatus lumiDivC_16u_AC4RSfs(const Lum16u* src, int srcStep, const Lum16u value[3], Lum16u* dst,
                               int dstStep, LumiSize roi, int scaleFactor);
LumStatus lumiDivC_16u_C1IRSfs(Lum16u value, Lum16u* srcDst, int srcDstStep, LumiSize roi, int scaleFactor);
LumStatus lumiDivC_16u_C1RSfs(const Lum16u* src, int srcStep, Lum16u value, Lum16u* dst, int dstStep,
                              LumiSize roi, int scaleFactor);
LumStatus lumiDivC_16u_C3IRSfs(const Lum16u value[3], Lum16u* srcDst, int srcDstStep, LumiSize roi,
                               int scaleFactor);
LumStatus lumiDivC_16u_C3RSfs(const Lum16u* src, int srcStep, const Lum16u value[3], Lum16u* dst, int dstStep,
                              LumiSize roi, int scaleFactor);
LumStatus lumiDivC_16u_C4IRSfs(const Lum16u value[4], Lum16u* srcDst, int srcDstStep, LumiSize roi,
                               int scaleFactor);
LumStatus lumiDivC_16u_C4RSfs(const Lum16u* src, int srcStep, const Lum16u value[4], Lum16u* dst, int dstStep,
                              LumiSize roi, int scaleFactor);
LumStatus lumiDivC_32f_AC4IR(const Lum32f value[3], Lum32f* srcDst, int srcDstStep, LumiSize roi);
LumStatus lumiDivC_32f_AC4R(const Lum32f* src, int srcStep, const Lum32f value[3], Lum32f* dst, int dstStep,
                            LumiSize roi);
LumStatus lumiDivC_32f_C1IR(Lum32f value, Lum32f* srcDst, int srcDstStep, LumiSize roi);
LumStatus lumiDivC_32f_C1R(const Lum32f* src, int srcStep, Lum32f value, Lum32f* dst, int dstStep,
                           LumiSize roi);
LumStatus lumiDivC_32f_C3IR(const Lum32f value[3], Lum32f* srcDst, int srcDstStep, LumiSize roi);
LumStatus lumiDivC_32f_C3R(const Lum32f* src, int srcStep, const Lum32f value[3], Lum32f* dst, int dstStep,
                           LumiSize roi);
LumStatus lumiDivC_32f_C4IR(const Lum32f value[4], Lum32f* srcDst, int srcDstStep, LumiSize roi);
LumStatus lumiDivC_32f_C4R(const Lum32f* src, int srcStep, const Lum32f value[4], Lum32f* dst, int dstStep,
                           LumiSize roi);
LumStatus lumiDivC_32fc_AC4IR(const Lum32fc value[3], Lum32fc* srcDst, int srcDstStep, LumiSize roi);
LumStatus lumiDivC_32fc_AC4R(const Lum32fc* src, int srcStep, const Lum32fc value[3], Lum32fc* dst,
                             int dstStep, LumiSize roi);
LumStatus lumiDivC_32fc_C1IR(Lum32fc value, Lum32fc* srcDst, int srcDstStep, LumiSize roi);
LumStatus lumiDivC_32fc_C1R(const Lum32fc* src, int srcStep, Lum32fc value, Lum32fc* dst, int dstStep,
                            LumiSize roi);
LumStatus lumiDivC_32fc_C3IR(const Lum32fc value[3], Lum32fc* srcDst, int srcDstStep, LumiSize roi);
LumStatus lumiDivC_32fc_C3R(const Lum32fc* src, int srcStep, const Lum32fc value[3], Lum32fc* dst,
                            int dstStep, LumiSize roi);
LumStatus lumiDivC_32sc_AC4IRSfs(const Lum32sc value[3], Lum32sc* srcDst, int srcDstStep, LumiSize roi,
                                 int scaleFactor);
LumStatus lumiDivC_32sc_AC4RSfs(const Lum32sc* src, int srcStep, const Lum32sc value[3], Lum32sc* dst,
                                int dstStep, LumiSize roi, int scaleFactor);
LumStatus lumiDivC_32sc_C1IRSfs(Lum32sc value, Lum32sc* srcDst, int srcDstStep, LumiSize roi,
                                int scaleFactor);
LumStatus lumiDivC_32sc_C1RSfs(const Lum32sc* src, int srcStep, Lum32sc value, Lum32sc* dst, int dstStep,
                               LumiSize roi, int scaleFactor);
LumStatus lumiDivC_32sc_C3IRSfs(const Lum32sc value[3], Lum32sc* srcDst, int srcDstStep, LumiSize roi,
                                int scaleFactor);
LumStatus lumiDivC_32sc_C3RSfs(const Lum32sc* src, int srcStep, const Lum32sc value[3], Lum32sc* dst,
                               int dstStep, LumiSize roi, int scaleFactor);
LumStatus lumiDivC_8u_AC4IRSfs(const Lum8u value[3], Lum8u* srcDst, int srcDstStep, LumiSize roi,
                               int scaleFactor);
LumStatus lumiDivC_8u_AC4RSfs(const Lum8u* src, int srcStep, const Lum8u value[3], Lum8u* dst, int dstStep,
                              LumiSize roi, int scaleFactor);
LumStatus lumiDivC_8u_C1IRSfs(Lum8u value, Lum8u* srcDst, int srcDstStep, LumiSize roi, int scaleFactor);
LumStatus lumiDivC_8u_C1RSfs(const Lum8u* src, int srcStep, Lum8u value, Lum8u* dst, int dstStep,
                             LumiSize roi, int scaleFactor);
LumStatus lumiDivC_8u_C3IRSfs(const Lum8u value[3], Lum8u* srcDst, int srcDstStep, LumiSize roi,
                              int scaleFactor);
LumStatus lumiDivC_8u_C3RSfs(const Lum8u* src, int srcStep, const Lum8u value[3], Lum8u* dst, int dstStep,
                             LumiSize roi, int scaleFactor);
LumStatus lumiDivC_8u_C4IRSfs(const Lum8u value[4], Lum8u* srcDst, int srcDstStep, LumiSize roi,
                              int scaleFactor);
LumStatus lumiDivC_8u_C4RSfs(const Lum8u* src, int srcStep, const Lum8u value[4], Lum8u* dst, int dstStep,
                             LumiSize roi, int scaleFactor);

#ifdef __cplusplus
}
#endif

#endif
