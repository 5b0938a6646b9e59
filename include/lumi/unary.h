/* SPDX-License-Identifier: MIT */
/* Generated from registry/arithmetic/unary.reg by tools/lumigen; edit that instead. */
/** @file Unary mathematics. */
#ifndef LUMI_UNARY_H
#define LUMI_UNARY_H

#include "types.h"

#ifdef __cplusplus
extern "C" {
#endif

/**
 * Stores the absolute value of each sample.
 *
 * dst(x, y) = |src(x, y)|, in place srcDst(x, y) = |srcDst(x, y)|; the 16s sample -32768 gives 32767. Of
 * floats the sign is cleared, whatever they are. AC4 leaves the fourth sample of every pixel as it was.
 *
 * C1 and C3 members round each step down to a multiple of the sample size, once it has been checked; C4 and
 * AC4 members take it as it is. Pointers may be misaligned in any way. The destination may be the source.
 * Where it overlaps the source otherwise, each row is done sample by sample in order.
 *
 * Returns lumStatusOk (0) or, tested in this order and before anything is written:
 *   lumStatusNullPointer (-8)  a pointer is null, plane pointers included
 *   lumStatusBadSize (-6)      roi.width or roi.height is below 1
 *   lumStatusBadStep (-14)     a step is below 1
 */
LumStatus lumiAbs_16s_AC4IR(Lum16s* srcDst, int srcDstStep, LumiSize roi);
LumStatus lumiAbs_16s_AC4R(const Lum16s* src, int srcStep, Lum16s* dst, int dstStep, LumiSize roi);
LumStatus lumiAbs_16s_C1IR(Lum16s* srcDst, int srcDstStep, LumiSize roi);
LumStatus lumiAbs_16s_C1R(const Lum16s* src, int srcStep, Lum16s* dst, int dstStep, LumiSize roi);
LumStatus lumiAbs_16s_C3IR(Lum16s* srcDst, int srcDstStep, LumiSize roi);
LumStatus lumiAbs_16s_C3R(const Lum16s* src, int srcStep, Lum16s* dst, int dstStep, LumiSize roi);
LumStatus lumiAbs_16s_C4IR(Lum16s* srcDst, int srcDstStep, LumiSize roi);
LumStatus lumiAbs_16s_C4R(const Lum16s* src, int srcStep, Lum16s* dst, int dstStep, LumiSize roi);
LumStatus lumiAbs_32f_AC4IR(Lum32f* srcDst, int srcDstStep, LumiSize roi);
LumStatus lumiAbs_32f_AC4R(const Lum32f* src, int srcStep, Lum32f* dst, int dstStep, LumiSize roi);
LumStatus lumiAbs_32f_C1IR(Lum32f* srcDst, int srcDstStep, LumiSize roi);
LumStatus lumiAbs_32f_C1R(const Lum32f* src, int srcStep, Lum32f* dst, int dstStep, LumiSize roi);
LumStatus lumiAbs_32f_C3IR(Lum32f* srcDst, int srcDstStep, LumiSize roi);
LumStatus lumiAbs_32f_C3R(const Lum32f* src, int srcStep, Lum32f* dst, int dstStep, LumiSize roi);
LumStatus lumiAbs_32f_C4IR(Lum32f* srcDst, int srcDstStep, LumiSize roi);
LumStatus lumiAbs_32f_C4R(const Lum32f* src, int srcStep, Lum32f* dst, int dstStep, LumiSize roi);

/**
 * Multiplies each sample by itself.
 *
 * dst(x, y) = src(x, y) * src(x, y), in place srcDst(x, y) = srcDst(x, y) * srcDst(x, y). Integer members
 * (Sfs) divide the exact square by 2^scaleFactor, to the nearest integer, ties to the even one, or multiply
 * it by 2^-scaleFactor, and limit the result to the sample type. Float members have the processor's
 * rounding. AC4 leaves the fourth sample of every pixel as it was.
 *
 * A scale factor beyond which every result is 0 (above 16 of 8u, 30 of 16s, 32 of 16u) fills with 0 and
 * reads no source. C1 and C3 members of 16u and 16s round each step down to a multiple of the sample size;
 * all others take it as it is. Overlap and alignment are as in lumiAbs.
 *
 * Returns lumStatusOk (0) or, tested in this order and before anything is written:
 *   lumStatusNullPointer (-8)  a pointer is null, plane pointers included
 *   lumStatusBadSize (-6)      roi.width or roi.height is below 1
 *   lumStatusBadStep (-14)     a step is below 1
 */
LumStatus lumiSqr_16s_AC4IRSfs(Lum16s* srcDst, int srcDstStep, LumiSize roi, int scaleFactor);
LumStatus lumiSqr_16s_AC4RSfs(const Lum16s* src, int srcStep, Lum16s* dst, int dstStep, LumiSize roi,
                              int scaleFactor);
LumStatus lumiSqr_16s_C1IRSfs(Lum16s* srcDst, int srcDstStep, LumiSize roi, int scaleFactor);
LumStatus lumiSqr_16s_C1RSfs(const Lum16s* src, int srcStep, Lum16s* dst, int dstStep, LumiSize roi,
                             int scaleFactor);
LumStatus lumiSqr_16s_C3IRSfs(Lum16s* srcDst, int srcDstStep, LumiSize roi, int scaleFactor);
LumStatus lumiSqr_16s_C3RSfs(const Lum16s* src, int srcStep, Lum16s* dst, int dstStep, LumiSize roi,
                             int scaleFactor);
LumStatus lumiSqr_16s_C4IRSfs(Lum16s* srcDst, int srcDstStep, LumiSize roi, int scaleFactor);
LumStatus lumiSqr_16s_C4RSfs(const Lum16s* src, int srcStep, Lum16s* dst, int dstStep, LumiSize roi,
                             int scaleFactor);
LumStatus lumiSqr_16u_AC4IRSfs(Lum16u* srcDst, int srcDstStep, LumiSize roi, int scaleFactor);
LumStatus lumiSqr_16u_AC4RSfs(const Lum16u* src, int srcStep, Lum16u* dst, int dstStep, LumiSize roi,
                              int scaleFactor);
LumStatus lumiSqr_16u_C1IRSfs(Lum16u* srcDst, int srcDstStep, LumiSize roi, int scaleFactor);
LumStatus lumiSqr_16u_C1RSfs(const Lum16u* src, int srcStep, Lum16u* dst, int dstStep, LumiSize roi,
                             int scaleFactor);
LumStatus lumiSqr_16u_C3IRSfs(Lum16u* srcDst, int srcDstStep, LumiSize roi, int scaleFactor);
LumStatus lumiSqr_16u_C3RSfs(const Lum16u* src, int srcStep, Lum16u* dst, int dstStep, LumiSize roi,
                             int scaleFactor);
LumStatus lumiSqr_16u_C4IRSfs(Lum16u* srcDst, int srcDstStep, LumiSize roi, int scaleFactor);
LumStatus lumiSqr_16u_C4RSfs(const Lum16u* src, int srcStep, Lum16u* dst, int dstStep, LumiSize roi,
                             int scaleFactor);
LumStatus lumiSqr_32f_AC4IR(Lum32f* srcDst, int srcDstStep, LumiSize roi);
LumStatus lumiSqr_32f_AC4R(const Lum32f* src, int srcStep, Lum32f* dst, int dstStep, LumiSize roi);
LumStatus lumiSqr_32f_C1IR(Lum32f* srcDst, int srcDstStep, LumiSize roi);
LumStatus lumiSqr_32f_C1R(const Lum32f* src, int srcStep, Lum32f* dst, int dstStep, LumiSize roi);
LumStatus lumiSqr_32f_C3IR(Lum32f* srcDst, int srcDstStep, LumiSize roi);
LumStatus lumiSqr_32f_C3R(const Lum32f* src, int srcStep, Lum32f* dst, int dstStep, LumiSize roi);
LumStatus lumiSqr_32f_C4IR(Lum32f* srcDst, int srcDstStep, LumiSize roi);
LumStatus lumiSqr_32f_C4R(const Lum32f* src, int srcStep, Lum32f* dst, int dstStep, LumiSize roi);
LumStatus lumiSqr_8u_AC4IRSfs(Lum8u* srcDst, int srcDstStep, LumiSize roi, int scaleFactor);
LumStatus lumiSqr_8u_AC4RSfs(const Lum8u* src, int srcStep, Lum8u* dst, int dstStep, LumiSize roi,
                             int scaleFactor);
LumStatus lumiSqr_8u_C1IRSfs(Lum8u* srcDst, int srcDstStep, LumiSize roi, int scaleFactor);
LumStatus lumiSqr_8u_C1RSfs(const Lum8u* src, int srcStep, Lum8u* dst, int dstStep, LumiSize roi,
                            int scaleFactor);
LumStatus lumiSqr_8u_C3IRSfs(Lum8u* srcDst, int srcDstStep, LumiSize roi, int scaleFactor);
LumStatus lumiSqr_8u_C3RSfs(const Lum8u* src, int srcStep, Lum8u* dst, int dstStep, LumiSize roi,
                            int scaleFactor);
LumStatus lumiSqr_8u_C4IRSfs(Lum8u* srcDst, int srcDstStep, LumiSize roi, int scaleFactor);
LumStatus lumiSqr_8u_C4RSfs(const Lum8u* src, int srcStep, Lum8u* dst, int dstStep, LumiSize roi,
                            int scaleFactor);

/**
 * Stores the square root of each sample.
 *
 * dst(x, y) = sqrt(src(x, y)), in place srcDst(x, y) = sqrt(srcDst(x, y)). Integer members (Sfs) multiply the
 * exact root by 2^-scaleFactor, round to the nearest integer, ties to the even one, and limit the result to
 * the sample type. Float members store the IEEE root. AC4 leaves the fourth sample of every pixel as it was.
 *
 * A negative sample, which -0.0 is not, gives 0, in float members NaN; all others are done, and the call
 * returns lumStatusSqrtOfNegative (3).
 *
 * C1 and C3 members of 16u, 16s and 32f round each step down to a multiple of the sample size; all others
 * take it as it is. Overlap and alignment are as in lumiAbs.
 *
 * Returns lumStatusOk (0) or, tested in this order and before anything is written:
 *   lumStatusNullPointer (-8)  a pointer is null, plane pointers included
 *   lumStatusBadSize (-6)      roi.width or roi.height is below 1
 *   lumStatusBadStep (-14)     a step is below 1
 */
LumStatus lumiSqrt_16s_AC4IRSfs(Lum16s* srcDst, int srcDstStep, LumiSize roi, int scaleFactor);
LumStatus lumiSqrt_16s_AC4RSfs(const Lum16s* src, int srcStep, Lum16s* dst, int dstStep, LumiSize roi,
                               int scaleFactor);
LumStatus lumiSqrt_16s_C1IRSfs(Lum16s* srcDst, int srcDstStep, LumiSize roi, int scaleFactor);
LumStatus lumiSqrt_16s_C1RSfs(const Lum16s* src, int srcStep, Lum16s* dst, int dstStep, LumiSize roi,
                              int scaleFactor);
LumStatus lumiSqrt_16s_C3IRSfs(Lum16s* srcDst, int srcDstStep, LumiSize roi, int scaleFactor);
LumStatus lumiSqrt_16s_C3RSfs(const Lum16s* src, int srcStep, Lum16s* dst, int dstStep, LumiSize roi,
                              int scaleFactor);
LumStatus lumiSqrt_16u_AC4IRSfs(Lum16u* srcDst, int srcDstStep, LumiSize roi, int scaleFactor);
LumStatus lumiSqrt_16u_AC4RSfs(const Lum16u* src, int srcStep, Lum16u* dst, int dstStep, LumiSize roi,
                               int scaleFactor);
LumStatus lumiSqrt_16u_C1IRSfs(Lum16u* srcDst, int srcDstStep, LumiSize roi, int scaleFactor);
LumStatus lumiSqrt_16u_C1RSfs(const Lum16u* src, int srcStep, Lum16u* dst, int dstStep, LumiSize roi,
                              int scaleFactor);
LumStatus lumiSqrt_16u_C3IRSfs(Lum16u* srcDst, int srcDstStep, LumiSize roi, int scaleFactor);
LumStatus lumiSqrt_16u_C3RSfs(const Lum16u* src, int srcStep, Lum16u* dst, int dstStep, LumiSize roi,
                              int scaleFactor);
LumStatus lumiSqrt_32f_AC4IR(Lum32f* srcDst, int srcDstStep, LumiSize roi);
LumStatus lumiSqrt_32f_AC4R(const Lum32f* src, int srcStep, Lum32f* dst, int dstStep, LumiSize roi);
LumStatus lumiSqrt_32f_C1IR(Lum32f* srcDst, int srcDstStep, LumiSize roi);
LumStatus lumiSqrt_32f_C1R(const Lum32f* src, int srcStep, Lum32f* dst, int dstStep, LumiSize roi);
LumStatus lumiSqrt_32f_C3IR(Lum32f* srcDst, int srcDstStep, LumiSize roi);
LumStatus lumiSqrt_32f_C3R(const Lum32f* src, int srcStep, Lum32f* dst, int dstStep, LumiSize roi);
LumStatus lumiSqrt_32f_C4IR(Lum32f* srcDst, int srcDstStep, LumiSize roi);
LumStatus lumiSqrt_8u_AC4IRSfs(Lum8u* srcDst, int srcDstStep, LumiSize roi, int scaleFactor);
LumStatus lumiSqrt_8u_AC4RSfs(const Lum8u* src, int srcStep, Lum8u* dst, int dstStep, LumiSize roi,
                              int scaleFactor);
LumStatus lumiSqrt_8u_C1IRSfs(Lum8u* srcDst, int srcDstStep, LumiSize roi, int scaleFactor);
LumStatus lumiSqrt_8u_C1RSfs(const Lum8u* src, int srcStep, Lum8u* dst, int dstStep, LumiSize roi,
                             int scaleFactor);
LumStatus lumiSqrt_8u_C3IRSfs(Lum8u* srcDst, int srcDstStep, LumiSize roi, int scaleFactor);
LumStatus lumiSqrt_8u_C3RSfs(const Lum8u* src, int srcStep, Lum8u* dst, int dstStep, LumiSize roi,
                             int scaleFactor);

/**
 * Stores the natural logarithm of each sample.
 *
 * dst(x, y) = ln(src(x, y)), in place srcDst(x, y) = ln(srcDst(x, y)). Integer members (Sfs) multiply the
 * exact logarithm by 2^-scaleFactor, round to the nearest integer, and limit the result to the sample type.
 * Float results differ from the exact logarithm by less than one unit in the last place, the same on every
 * processor; the processor's rounding mode should be to nearest.
 *
 * Where there is no logarithm, all other samples are done, and the call returns a warning. Integer members
 * store 0 for 0 and for negative samples, and return lumStatusLogOfZero (2). Float members store minus
 * infinity for zeros and NaN for negative samples; they return lumStatusLogSingularity (7) if the first row
 * that has any has a zero, else lumStatusLogDomain (8).
 *
 * Steps are taken as they are. Overlap and alignment are as in lumiAbs.
 *
 * Returns lumStatusOk (0) or, tested in this order and before anything is written:
 *   lumStatusNullPointer (-8)  a pointer is null, plane pointers included
 *   lumStatusBadSize (-6)      roi.width or roi.height is below 1
 *   lumStatusBadStep (-14)     a step is below 1
 */
LumStatus lumiLn_16s_C1IRSfs(Lum16s* srcDst, int srcDstStep, LumiSize roi, int scaleFactor);
LumStatus lumiLn_16s_C1RSfs(const Lum16s* src, int srcStep, Lum16s* dst, int dstStep, LumiSize roi,
                            int scaleFactor);
LumStatus lumiLn_16s_C3IRSfs(Lum16s* srcDst, int srcDstStep, LumiSize roi, int scaleFactor);
LumStatus lumiLn_16s_C3RSfs(const Lum16s* src, int srcStep, Lum16s* dst, int dstStep, LumiSize roi,
                            int scaleFactor);
LumStatus lumiLn_16u_C1IRSfs(Lum16u* srcDst, int srcDstStep, LumiSize roi, int scaleFactor);
LumStatus lumiLn_16u_C1RSfs(const Lum16u* src, int srcStep, Lum16u* dst, int dstStep, LumiSize roi,
                            int scaleFactor);
LumStatus lumiLn_16u_C3IRSfs(Lum16u* srcDst, int srcDstStep, LumiSize roi, int scaleFactor);
LumStatus lumiLn_16u_C3RSfs(const Lum16u* src, int srcStep, Lum16u* dst, int dstStep, LumiSize roi,
                            int scaleFactor);
LumStatus lumiLn_32f_C1IR(Lum32f* srcDst, int srcDstStep, LumiSize roi);
LumStatus lumiLn_32f_C1R(const Lum32f* src, int srcStep, Lum32f* dst, int dstStep, LumiSize roi);
LumStatus lumiLn_32f_C3IR(Lum32f* srcDst, int srcDstStep, LumiSize roi);
LumStatus lumiLn_32f_C3R(const Lum32f* src, int srcStep, Lum32f* dst, int dstStep, LumiSize roi);
LumStatus lumiLn_8u_C1IRSfs(Lum8u* srcDst, int srcDstStep, LumiSize roi, int scaleFactor);
LumStatus lumiLn_8u_C1RSfs(const Lum8u* src, int srcStep, Lum8u* dst, int dstStep, LumiSize roi,
                           int scaleFactor);
LumStatus lumiLn_8u_C3IRSfs(Lum8u* srcDst, int srcDstStep, LumiSize roi, int scaleFactor);
LumStatus lumiLn_8u_C3RSfs(const Lum8u* src, int srcStep, Lum8u* dst, int dstStep, LumiSize roi,
                           int scaleFactor);

/**
 * Stores the exponential of each sample.
 *
 * dst(x, y) = e^src(x, y), in place srcDst(x, y) = e^srcDst(x, y). Integer members (Sfs) multiply the exact
 * power by 2^-scaleFactor, round to the nearest integer, ties to the even one, and limit the result to the
 * sample type. A scale factor at which every result is 0 (above 368 of 8u, 47273 of 16s, 94548 of 16u)
 * fills with 0 and reads no source.
 *
 * Float results differ from the exact power by less than one unit in the last place, the same on every
 * processor. What is too large gives infinity, what is too small a denormal or 0; NaN stays. The
 * processor's rounding mode should be to nearest.
 *
 * Steps are taken as they are. Overlap and alignment are as in lumiAbs.
 *
 * Returns lumStatusOk (0) or, tested in this order and before anything is written:
 *   lumStatusNullPointer (-8)  a pointer is null, plane pointers included
 *   lumStatusBadSize (-6)      roi.width or roi.height is below 1
 *   lumStatusBadStep (-14)     a step is below 1
 */
LumStatus lumiExp_16s_C1IRSfs(Lum16s* srcDst, int srcDstStep, LumiSize roi, int scaleFactor);
LumStatus lumiExp_16s_C1RSfs(const Lum16s* src, int srcStep, Lum16s* dst, int dstStep, LumiSize roi,
                             int scaleFactor);
LumStatus lumiExp_16s_C3IRSfs(Lum16s* srcDst, int srcDstStep, LumiSize roi, int scaleFactor);
LumStatus lumiExp_16s_C3RSfs(const Lum16s* src, int srcStep, Lum16s* dst, int dstStep, LumiSize roi,
                             int scaleFactor);
LumStatus lumiExp_16u_C1IRSfs(Lum16u* srcDst, int srcDstStep, LumiSize roi, int scaleFactor);
LumStatus lumiExp_16u_C1RSfs(const Lum16u* src, int srcStep, Lum16u* dst, int dstStep, LumiSize roi,
                             int scaleFactor);
LumStatus lumiExp_16u_C3IRSfs(Lum16u* srcDst, int srcDstStep, LumiSize roi, int scaleFactor);
LumStatus lumiExp_16u_C3RSfs(const Lum16u* src, int srcStep, Lum16u* dst, int dstStep, LumiSize roi,
                             int scaleFactor);
LumStatus lumiExp_32f_C1IR(Lum32f* srcDst, int srcDstStep, LumiSize roi);
LumStatus lumiExp_32f_C1R(const Lum32f* src, int srcStep, Lum32f* dst, int dstStep, LumiSize roi);
LumStatus lumiExp_32f_C3IR(Lum32f* srcDst, int srcDstStep, LumiSize roi);
LumStatus lumiExp_32f_C3R(const Lum32f* src, int srcStep, Lum32f* dst, int dstStep, LumiSize roi);
LumStatus lumiExp_8u_C1IRSfs(Lum8u* srcDst, int srcDstStep, LumiSize roi, int scaleFactor);
LumStatus lumiExp_8u_C1RSfs(const Lum8u* src, int srcStep, Lum8u* dst, int dstStep, LumiSize roi,
                            int scaleFactor);
LumStatus lumiExp_8u_C3IRSfs(Lum8u* srcDst, int srcDstStep, LumiSize roi, int scaleFactor);
LumStatus lumiExp_8u_C3RSfs(const Lum8u* src, int srcStep, Lum8u* dst, int dstStep, LumiSize roi,
                            int scaleFactor);

/**
 * Turns two's complement into sign and magnitude, and back.
 *
 * A sample that is not negative stays; a negative one becomes its absolute value with the top bit set, and
 * -2147483648 stays. Applied twice it gives the image back. Any alignment will do.
 *
 * Returns lumStatusOk (0) or, tested in this order and before anything is written:
 *   lumStatusNullPointer (-8)  a pointer is null, plane pointers included
 *   lumStatusBadStep (-14)     a step is below 1
 *   lumStatusBadSize (-6)      roi.width or roi.height is below 1
 */
LumStatus lumiComplement_32s_C1IR(Lum32s* srcDst, int srcDstStep, LumiSize roi);

#ifdef __cplusplus
}
#endif

#endif
