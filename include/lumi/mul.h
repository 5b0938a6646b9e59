/* SPDX-License-Identifier: MIT */
/* Generated from registry/arithmetic/mul.reg by tools/lumigen; edit that instead. */
/** @file Multiplication. */
#ifndef LUMI_MUL_H
#define LUMI_MUL_H

#include "types.h"

#ifdef __cplusplus
extern "C" {
#endif

/**
 * Multiplies two images.
 *
 * dst(x, y) = src1(x, y) * src2(x, y), in place srcDst(x, y) = srcDst(x, y) * src(x, y). Integer members (Sfs)
 * divide the exact product by 2^scaleFactor, to the nearest integer, ties to the even one, or multiply it by
 * 2^-scaleFactor, and limit the result to the sample type; nothing wraps. Float members multiply in their
 * precision, with the processor's rounding. Complex samples are multiplied as complex numbers:
 * (ar br - ai bi, ar bi + ai br). AC4 leaves the fourth sample of every pixel as it was.
 *
 * A scale factor beyond which every result is 0 fills with 0 and reads no source: above 16 for 8u, 32 for 16u,
 * 30 for 16s, 31 for 16sc. So do those above 32 for 32sc. The destination may be a source. Where it overlaps
 * one otherwise, each row is done sample by sample in order. Real members take any step, zero and negative
 * ones included, and any alignment.
 *
 * Returns lumStatusOk (0) or, tested in this order and before anything is written (8u 16u 16s 32f: C1 AC4):
 *   lumStatusNullPointer (-8)  a pointer is null, plane pointers included
 *   lumStatusBadSize (-6)      roi.width or roi.height is below 1
 *
 * Returns lumStatusOk (0) or, tested in this order and before anything is written (8u 16u 16s 32f: C3 C4):
 *   lumStatusBadSize (-6)      roi.width is below 1
 *   lumStatusNullPointer (-8)  a pointer is null, plane pointers included
 *   lumStatusBadSize (-6)      roi.width or roi.height is below 1
 *
 * Returns lumStatusOk (0) or, tested in this order and before anything is written (16sc 32sc 32fc: C1 AC4):
 *   lumStatusNullPointer (-8)  a pointer is null, plane pointers included
 *   lumStatusBadSize (-6)      roi.width or roi.height is below 1
 *   lumStatusBadStep (-14)     a step is below 1
 *
 * Returns lumStatusOk (0) or, tested in this order and before anything is written (16sc 32sc 32fc: C3):
 *   lumStatusBadSize (-6)      roi.width is below 1
 *   lumStatusNullPointer (-8)  a pointer is null, plane pointers included
 *   lumStatusBadSize (-6)      roi.width or roi.height is below 1
 *   lumStatusBadStep (-14)     a step is below 1
 */
LumStatus lumiMul_16s_AC4IRSfs(const Lum16s* src, int srcStep, Lum16s* srcDst, int srcDstStep, LumiSize roi,
                               int scaleFactor);
LumStatus lumiMul_16s_AC4RSfs(const Lum16s* src1, int src1Step, const Lum16s* src2, int src2Step, Lum16s* dst,
                              int dstStep, LumiSize roi, int scaleFactor);
LumStatus lumiMul_16s_C1IRSfs(const Lum16s* src, int srcStep, Lum16s* srcDst, int srcDstStep, LumiSize roi,
                              int scaleFactor);
LumStatus lumiMul_16s_C1RSfs(const Lum16s* src1, int src1Step, const Lum16s* src2, int src2Step, Lum16s* dst,
                             int dstStep, LumiSize roi, int scaleFactor);
LumStatus lumiMul_16s_C3IRSfs(const Lum16s* src, int srcStep, Lum16s* srcDst, int srcDstStep, LumiSize roi,
                              int scaleFactor);
LumStatus lumiMul_16s_C3RSfs(const Lum16s* src1, int src1Step, const Lum16s* src2, int src2Step, Lum16s* dst,
                             int dstStep, LumiSize roi, int scaleFactor);
LumStatus lumiMul_16s_C4IRSfs(const Lum16s* src, int srcStep, Lum16s* srcDst, int srcDstStep, LumiSize roi,
                              int scaleFactor);
LumStatus lumiMul_16s_C4RSfs(const Lum16s* src1, int src1Step, const Lum16s* src2, int src2Step, Lum16s* dst,
                             int dstStep, LumiSize roi, int scaleFactor);
LumStatus lumiMul_16sc_AC4IRSfs(const Lum16sc* src, int srcStep, Lum16sc* srcDst, int srcDstStep,
                                LumiSize roi, int scaleFactor);
LumStatus lumiMul_16sc_AC4RSfs(const Lum16sc* src1, int src1Step, const Lum16sc* src2, int src2Step,
                               Lum16sc* dst, int dstStep, LumiSize roi, int scaleFactor);
LumStatus lumiMul_16sc_C1IRSfs(const Lum16sc* src, int srcStep, Lum16sc* srcDst, int srcDstStep, LumiSize roi,
                               int scaleFactor);
LumStatus lumiMul_16sc_C1RSfs(const Lum16sc* src1, int src1Step, const Lum16sc* src2, int src2Step,
                              Lum16sc* dst, int dstStep, LumiSize roi, int scaleFactor);
LumStatus lumiMul_16sc_C3IRSfs(const Lum16sc* src, int srcStep, Lum16sc* srcDst, int srcDstStep, LumiSize roi,
                               int scaleFactor);
LumStatus lumiMul_16sc_C3RSfs(const Lum16sc* src1, int src1Step, const Lum16sc* src2, int src2Step,
                              Lum16sc* dst, int dstStep, LumiSize roi, int scaleFactor);
LumStatus lumiMul_16u_AC4IRSfs(const Lum16u* src, int srcStep, Lum16u* srcDst, int srcDstStep, LumiSize roi,
                               int scaleFactor);
LumStatus lumiMul_16u_AC4RSfs(const Lum16u* src1, int src1Step, const Lum16u* src2, int src2Step, Lum16u* dst,
                              int dstStep, LumiSize roi, int scaleFactor);
LumStatus lumiMul_16u_C1IRSfs(const Lum16u* src, int srcStep, Lum16u* srcDst, int srcDstStep, LumiSize roi,
                              int scaleFactor);
LumStatus lumiMul_16u_C1RSfs(const Lum16u* src1, int src1Step, const Lum16u* src2, int src2Step, Lum16u* dst,
                             int dstStep, LumiSize roi, int scaleFactor);
LumStatus lumiMul_16u_C3IRSfs(const Lum16u* src, int srcStep, Lum16u* srcDst, int srcDstStep, LumiSize roi,
                              int scaleFactor);
LumStatus lumiMul_16u_C3RSfs(const Lum16u* src1, int src1Step, const Lum16u* src2, int src2Step, Lum16u* dst,
                             int dstStep, LumiSize roi, int scaleFactor);
LumStatus lumiMul_16u_C4IRSfs(const Lum16u* src, int srcStep, Lum16u* srcDst, int srcDstStep, LumiSize roi,
                              int scaleFactor);
LumStatus lumiMul_16u_C4RSfs(const Lum16u* src1, int src1Step, const Lum16u* src2, int src2Step, Lum16u* dst,
                             int dstStep, LumiSize roi, int scaleFactor);
LumStatus lumiMul_32f_AC4IR(const Lum32f* src, int srcStep, Lum32f* srcDst, int srcDstStep, LumiSize roi);
LumStatus lumiMul_32f_AC4R(const Lum32f* src1, int src1Step, const Lum32f* src2, int src2Step, Lum32f* dst,
                           int dstStep, LumiSize roi);
LumStatus lumiMul_32f_C1IR(const Lum32f* src, int srcStep, Lum32f* srcDst, int srcDstStep, LumiSize roi);
LumStatus lumiMul_32f_C1R(const Lum32f* src1, int src1Step, const Lum32f* src2, int src2Step, Lum32f* dst,
                          int dstStep, LumiSize roi);
LumStatus lumiMul_32f_C3IR(const Lum32f* src, int srcStep, Lum32f* srcDst, int srcDstStep, LumiSize roi);
LumStatus lumiMul_32f_C3R(const Lum32f* src1, int src1Step, const Lum32f* src2, int src2Step, Lum32f* dst,
                          int dstStep, LumiSize roi);
LumStatus lumiMul_32f_C4IR(const Lum32f* src, int srcStep, Lum32f* srcDst, int srcDstStep, LumiSize roi);
LumStatus lumiMul_32f_C4R(const Lum32f* src1, int src1Step, const Lum32f* src2, int src2Step, Lum32f* dst,
                          int dstStep, LumiSize roi);
LumStatus lumiMul_32fc_AC4IR(const Lum32fc* src, int srcStep, Lum32fc* srcDst, int srcDstStep, LumiSize roi);
LumStatus lumiMul_32fc_AC4R(const Lum32fc* src1, int src1Step, const Lum32fc* src2, int src2Step,
                            Lum32fc* dst, int dstStep, LumiSize roi);
LumStatus lumiMul_32fc_C1IR(const Lum32fc* src, int srcStep, Lum32fc* srcDst, int srcDstStep, LumiSize roi);
LumStatus lumiMul_32fc_C1R(const Lum32fc* src1, int src1Step, const Lum32fc* src2, int src2Step, Lum32fc* dst,
                           int dstStep, LumiSize roi);
LumStatus lumiMul_32fc_C3IR(const Lum32fc* src, int srcStep, Lum32fc* srcDst, int srcDstStep, LumiSize roi);
LumStatus lumiMul_32fc_C3R(const Lum32fc* src1, int src1Step, const Lum32fc* src2, int src2Step, Lum32fc* dst,
                           int dstStep, LumiSize roi);
LumStatus lumiMul_32sc_AC4IRSfs(const Lum32sc* src, int srcStep, Lum32sc* srcDst, int srcDstStep,
                                LumiSize roi, int scaleFactor);
LumStatus lumiMul_32sc_AC4RSfs(const Lum32sc* src1, int src1Step, const Lum32sc* src2, int src2Step,
                               Lum32sc* dst, int dstStep, LumiSize roi, int scaleFactor);
LumStatus lumiMul_32sc_C1IRSfs(const Lum32sc* src, int srcStep, Lum32sc* srcDst, int srcDstStep, LumiSize roi,
                               int scaleFactor);
LumStatus lumiMul_32sc_C1RSfs(const Lum32sc* src1, int src1Step, const Lum32sc* src2, int src2Step,
                              Lum32sc* dst, int dstStep, LumiSize roi, int scaleFactor);
LumStatus lumiMul_32sc_C3IRSfs(const Lum32sc* src, int srcStep, Lum32sc* srcDst, int srcDstStep, LumiSize roi,
                               int scaleFactor);
LumStatus lumiMul_32sc_C3RSfs(const Lum32sc* src1, int src1Step, const Lum32sc* src2, int src2Step,
                              Lum32sc* dst, int dstStep, LumiSize roi, int scaleFactor);
LumStatus lumiMul_8u_AC4IRSfs(const Lum8u* src, int srcStep, Lum8u* srcDst, int srcDstStep, LumiSize roi,
                              int scaleFactor);
LumStatus lumiMul_8u_AC4RSfs(const Lum8u* src1, int src1Step, const Lum8u* src2, int src2Step, Lum8u* dst,
                             int dstStep, LumiSize roi, int scaleFactor);
LumStatus lumiMul_8u_C1IRSfs(const Lum8u* src, int srcStep, Lum8u* srcDst, int srcDstStep, LumiSize roi,
                             int scaleFactor);
LumStatus lumiMul_8u_C1RSfs(const Lum8u* src1, int src1Step, const Lum8u* src2, int src2Step, Lum8u* dst,
                            int dstStep, LumiSize roi, int scaleFactor);
LumStatus lumiMul_8u_C3IRSfs(const Lum8u* src, int srcStep, Lum8u* srcDst, int srcDstStep, LumiSize roi,
                             int scaleFactor);
LumStatus lumiMul_8u_C3RSfs(const Lum8u* src1, int src1Step, const Lum8u* src2, int src2Step, Lum8u* dst,
                            int dstStep, LumiSize roi, int scaleFactor);
LumStatus lumiMul_8u_C4IRSfs(const Lum8u* src, int srcStep, Lum8u* srcDst, int srcDstStep, LumiSize roi,
                             int scaleFactor);
LumStatus lumiMul_8u_C4RSfs(const Lum8u* src1, int src1Step, const Lum8u* src2, int src2Step, Lum8u* dst,
                            int dstStep, LumiSize roi, int scaleFactor);

/**
 * Multiplies every pixel by a constant.
 *
 * dst(x, y) = src(x, y) * value, in place srcDst(x, y) = srcDst(x, y) * value. C1 takes one value, C3 and
 * AC4 three, C4 four, one for each channel; they are read before any pixel is touched. In C1 members of real
 * integers the constant 0 fills with 0 and reads no source. Scaling, limits, float, complex and AC4 members,
 * overlap, steps and alignment are as in lumiMul.
 *
 * Returns lumStatusOk (0) or, tested in this order and before anything is written (8u 16u 16s 32f: C1 C3 C4 AC4):
 *   lumStatusNullPointer (-8)  a pointer is null, plane pointers included
 *   lumStatusBadSize (-6)      roi.width or roi.height is below 1
 *
 * Returns lumStatusOk (0) or, tested in this order and before anything is written (16sc 32sc 32fc: C1 C3 AC4):
 *   lumStatusNullPointer (-8)  a pointer is null, plane pointers included
 *   lumStatusBadSize (-6)      roi.width or roi.height is below 1
 *   lumStatusBadStep (-14)     a step is below 1
 */
LumStatus lumiMulC_16s_AC4IRSfs(const Lum16s value[3], Lum16s* srcDst, int srcDstStep, LumiSize roi,
                                int scaleFactor);
LumStatus lumiMulC_16s_AC4RSfs(const Lum16s* src, int srcStep, const Lum16s value[3], Lum16s* dst,
                               int dstStep, LumiSize roi, int scaleFactor);
LumStatus lumiMulC_16s_C1IRSfs(Lum16s value, Lum16s* srcDst, int srcDstStep, LumiSize roi, int scaleFactor);
LumStatus lumiMulC_16s_C1RSfs(const Lum16s* src, int srcStep, Lum16s value, Lum16s* dst, int dstStep,
                              LumiSize roi, int scaleFactor);
LumStatus lumiMulC_16s_C3IRSfs(const Lum16s value[3], Lum16s* srcDst, int srcDstStep, LumiSize roi,
                               int scaleFactor);
LumStatus lumiMulC_16s_C3RSfs(const Lum16s* src, int srcStep, const Lum16s value[3], Lum16s* dst, int dstStep,
                              LumiSize roi, int scaleFactor);
LumStatus lumiMulC_16s_C4IRSfs(const Lum16s value[4], Lum16s* srcDst, int srcDstStep, LumiSize roi,
                               int scaleFactor);
LumStatus lumiMulC_16s_C4RSfs(const Lum16s* src, int srcStep, const Lum16s value[4], Lum16s* dst, int dstStep,
                              LumiSize roi, int scaleFactor);
LumStatus lumiMulC_16sc_AC4IRSfs(const Lum16sc value[3], Lum16sc* srcDst, int srcDstStep, LumiSize roi,
                                 int scaleFactor);
LumStatus lumiMulC_16sc_AC4RSfs(const Lum16sc* src, int srcStep, const Lum16sc value[3], Lum16sc* dst,
                                int dstStep, LumiSize roi, int scaleFactor);
LumStatus lumiMulC_16sc_C1IRSfs(Lum16sc value, Lum16sc* srcDst, int srcDstStep, LumiSize roi,
                                int scaleFactor);
LumStatus lumiMulC_16sc_C1RSfs(const Lum16sc* src, int srcStep, Lum16sc value, Lum16sc* dst, int dstStep,
                               LumiSize roi, int scaleFactor);
LumStatus lumiMulC_16sc_C3IRSfs(const Lum16sc value[3], Lum16sc* srcDst, int srcDstStep, LumiSize roi,
                                int scaleFactor);
LumStatus lumiMulC_16sc_C3RSfs(const Lum16sc* src, int srcStep, const Lum16sc value[3], Lum16sc* dst,
                               int dstStep, LumiSize roi, int scaleFactor);
LumStatus lumiMulC_16u_AC4IRSfs(const Lum16u value[3], Lum16u* srcDst, int srcDstStep, LumiSize roi,
                                int scaleFactor);
LumStatus lumiMulC_16u_AC4RSfs(const Lum16u* src, int srcStep, const Lum16u value[3], Lum16u* dst,
                               int dstStep, LumiSize roi, int scaleFactor);
LumStatus lumiMulC_16u_C1IRSfs(Lum16u value, Lum16u* srcDst, int srcDstStep, LumiSize roi, int scaleFactor);
LumStatus lumiMulC_16u_C1RSfs(const Lum16u* src, int srcStep, Lum16u value, Lum16u* dst, int dstStep,
                              LumiSize roi, int scaleFactor);
LumStatus lumiMulC_16u_C3IRSfs(const Lum16u value[3], Lum16u* srcDst, int srcDstStep, LumiSize roi,
                               int scaleFactor);
LumStatus lumiMulC_16u_C3RSfs(const Lum16u* src, int srcStep, const Lum16u value[3], Lum16u* dst, int dstStep,
                              LumiSize roi, int scaleFactor);
LumStatus lumiMulC_16u_C4IRSfs(const Lum16u value[4], Lum16u* srcDst, int srcDstStep, LumiSize roi,
                               int scaleFactor);
LumStatus lumiMulC_16u_C4RSfs(const Lum16u* src, int srcStep, const Lum16u value[4], Lum16u* dst, int dstStep,
                              LumiSize roi, int scaleFactor);
LumStatus lumiMulC_32f_AC4IR(const Lum32f value[3], Lum32f* srcDst, int srcDstStep, LumiSize roi);
LumStatus lumiMulC_32f_AC4R(const Lum32f* src, int srcStep, const Lum32f value[3], Lum32f* dst, int dstStep,
                            LumiSize roi);
LumStatus lumiMulC_32f_C1IR(Lum32f value, Lum32f* srcDst, int srcDstStep, LumiSize roi);
LumStatus lumiMulC_32f_C1R(const Lum32f* src, int srcStep, Lum32f value, Lum32f* dst, int dstStep,
                           LumiSize roi);
LumStatus lumiMulC_32f_C3IR(const Lum32f value[3], Lum32f* srcDst, int srcDstStep, LumiSize roi);
LumStatus lumiMulC_32f_C3R(const Lum32f* src, int srcStep, const Lum32f value[3], Lum32f* dst, int dstStep,
                           LumiSize roi);
LumStatus lumiMulC_32f_C4IR(const Lum32f value[4], Lum32f* srcDst, int srcDstStep, LumiSize roi);
LumStatus lumiMulC_32f_C4R(const Lum32f* src, int srcStep, const Lum32f value[4], Lum32f* dst, int dstStep,
                           LumiSize roi);
LumStatus lumiMulC_32fc_AC4IR(const Lum32fc value[3], Lum32fc* srcDst, int srcDstStep, LumiSize roi);
LumStatus lumiMulC_32fc_AC4R(const Lum32fc* src, int srcStep, const Lum32fc value[3], Lum32fc* dst,
                             int dstStep, LumiSize roi);
LumStatus lumiMulC_32fc_C1IR(Lum32fc value, Lum32fc* srcDst, int srcDstStep, LumiSize roi);
LumStatus lumiMulC_32fc_C1R(const Lum32fc* src, int srcStep, Lum32fc value, Lum32fc* dst, int dstStep,
                            LumiSize roi);
LumStatus lumiMulC_32fc_C3IR(const Lum32fc value[3], Lum32fc* srcDst, int srcDstStep, LumiSize roi);
LumStatus lumiMulC_32fc_C3R(const Lum32fc* src, int srcStep, const Lum32fc value[3], Lum32fc* dst,
                            int dstStep, LumiSize roi);
LumStatus lumiMulC_32sc_AC4IRSfs(const Lum32sc value[3], Lum32sc* srcDst, int srcDstStep, LumiSize roi,
                                 int scaleFactor);
LumStatus lumiMulC_32sc_AC4RSfs(const Lum32sc* src, int srcStep, const Lum32sc value[3], Lum32sc* dst,
                                int dstStep, LumiSize roi, int scaleFactor);
LumStatus lumiMulC_32sc_C1IRSfs(Lum32sc value, Lum32sc* srcDst, int srcDstStep, LumiSize roi,
                                int scaleFactor);
LumStatus lumiMulC_32sc_C1RSfs(const Lum32sc* src, int srcStep, Lum32sc value, Lum32sc* dst, int dstStep,
                               LumiSize roi, int scaleFactor);
LumStatus lumiMulC_32sc_C3IRSfs(const Lum32sc value[3], Lum32sc* srcDst, int srcDstStep, LumiSize roi,
                                int scaleFactor);
LumStatus lumiMulC_32sc_C3RSfs(const Lum32sc* src, int srcStep, const Lum32sc value[3], Lum32sc* dst,
                               int dstStep, LumiSize roi, int scaleFactor);
LumStatus lumiMulC_8u_AC4IRSfs(const Lum8u value[3], Lum8u* srcDst, int srcDstStep, LumiSize roi,
                               int scaleFactor);
LumStatus lumiMulC_8u_AC4RSfs(const Lum8u* src, int srcStep, const Lum8u value[3], Lum8u* dst, int dstStep,
                              LumiSize roi, int scaleFactor);
LumStatus lumiMulC_8u_C1IRSfs(Lum8u value, Lum8u* srcDst, int srcDstStep, LumiSize roi, int scaleFactor);
LumStatus lumiMulC_8u_C1RSfs(const Lum8u* src, int srcStep, Lum8u value, Lum8u* dst, int dstStep,
                             LumiSize roi, int scaleFactor);
LumStatus lumiMulC_8u_C3IRSfs(const Lum8u value[3], Lum8u* srcDst, int srcDstStep, LumiSize roi,
                              int scaleFactor);
LumStatus lumiMulC_8u_C3RSfs(const Lum8u* src, int srcStep, const Lum8u value[3], Lum8u* dst, int dstStep,
                             LumiSize roi, int scaleFactor);
LumStatus lumiMulC_8u_C4IRSfs(const Lum8u value[4], Lum8u* srcDst, int srcDstStep, LumiSize roi,
                              int scaleFactor);
LumStatus lumiMulC_8u_C4RSfs(const Lum8u* src, int srcStep, const Lum8u value[4], Lum8u* dst, int dstStep,
                             LumiSize roi, int scaleFactor);

#ifdef __cplusplus
}
#endif

#endif
