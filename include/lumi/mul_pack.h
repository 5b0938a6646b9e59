/* SPDX-License-Identifier: MIT */
/* Generated from registry/transforms/mul_pack.reg by tools/lumigen; edit that instead. */
/** @file Products of packed spectra. */
#ifndef LUMI_MUL_PACK_H
#define LUMI_MUL_PACK_H

#include "types.h"

#ifdef __cplusplus
extern "C" {
#endif

/**
 * Multiplies two packed spectra.
 *
 * The spectrum of a real image is packed into an image of its size. In every row the pixels (1, 2), (3, 4) and
 * so on are the real and the imaginary part of a complex number. The first column and, where the width is even,
 * the last one hold such pairs one below the other, in rows (1, 2), (3, 4) and so on; what is left of them, in
 * row 0 and, where the height is even, in the last row, is real. Complex numbers are multiplied as such,
 * (a + b i) (c + d i) = (a c - b d) + (a d + b c) i, real ones as real ones, each channel by itself; the result is
 * packed likewise. In place srcDst = src srcDst.
 *
 * Integer members multiply the exact result by 2^-scaleFactor, any int, round down, and limit it to the sample
 * type. In 16s members the imaginary part is a d alone wherever that is 2^30, the product of -32768 and -32768.
 * Float members round each product and sum by itself. AC4 leaves the fourth sample of every pixel as it was.
 *
 * The destination may be either source or both, with the same step; otherwise it must not overlap them, nor its
 * rows one another. Images may be misaligned in any way.
 *
 * Returns lumStatusOk (0) or, tested in this order and before anything is written:
 *   lumStatusNullPointer (-8)  a pointer is null, plane pointers included
 *   lumStatusBadStep (-14)     a step is below 1
 *   lumStatusBadSize (-6)      roi.width or roi.height is below 1
 */
LumStatus lumiMulPack_16s_AC4IRSfs(const Lum16s* src, int srcStep, Lum16s* srcDst, int srcDstStep,
                                   LumiSize roi, int scaleFactor);
LumStatus lumiMulPack_16s_AC4RSfs(const Lum16s* src1, int src1Step, const Lum16s* src2, int src2Step,
                                  Lum16s* dst, int dstStep, LumiSize roi, int scaleFactor);
LumStatus lumiMulPack_16s_C1IRSfs(const Lum16s* src, int srcStep, Lum16s* srcDst, int srcDstStep,
                                  LumiSize roi, int scaleFactor);
LumStatus lumiMulPack_16s_C1RSfs(const Lum16s* src1, int src1Step, const Lum16s* src2, int src2Step,
                                 Lum16s* dst, int dstStep, LumiSize roi, int scaleFactor);
LumStatus lumiMulPack_16s_C3IRSfs(const Lum16s* src, int srcStep, Lum16s* srcDst, int srcDstStep,
                                  LumiSize roi, int scaleFactor);
LumStatus lumiMulPack_16s_C3RSfs(const Lum16s* src1, int src1Step, const Lum16s* src2, int src2Step,
                                 Lum16s* dst, int dstStep, LumiSize roi, int scaleFactor);
LumStatus lumiMulPack_16s_C4IRSfs(const Lum16s* src, int srcStep, Lum16s* srcDst, int srcDstStep,
                                  LumiSize roi, int scaleFactor);
LumStatus lumiMulPack_16s_C4RSfs(const Lum16s* src1, int src1Step, const Lum16s* src2, int src2Step,
                                 Lum16s* dst, int dstStep, LumiSize roi, int scaleFactor);
LumStatus lumiMulPack_32f_AC4IR(const Lum32f* src, int srcStep, Lum32f* srcDst, int srcDstStep, LumiSize roi);
LumStatus lumiMulPack_32f_AC4R(const Lum32f* src1, int src1Step, const Lum32f* src2, int src2Step,
                               Lum32f* dst, int dstStep, LumiSize roi);
LumStatus lumiMulPack_32f_C1IR(const Lum32f* src, int srcStep, Lum32f* srcDst, int srcDstStep, LumiSize roi);
LumStatus lumiMulPack_32f_C1R(const Lum32f* src1, int src1Step, const Lum32f* src2, int src2Step, Lum32f* dst,
                              int dstStep, LumiSize roi);
LumStatus lumiMulPack_32f_C3IR(const Lum32f* src, int srcStep, Lum32f* srcDst, int srcDstStep, LumiSize roi);
LumStatus lumiMulPack_32f_C3R(const Lum32f* src1, int src1Step, const Lum32f* src2, int src2Step, Lum32f* dst,
                              int dstStep, LumiSize roi);
LumStatus lumiMulPack_32f_C4IR(const Lum32f* src, int srcStep, Lum32f* srcDst, int srcDstStep, LumiSize roi);
LumStatus lumiMulPack_32f_C4R(const Lum32f* src1, int src1Step, const Lum32f* src2, int src2Step, Lum32f* dst,
                              int dstStep, LumiSize roi);
LumStatus lumiMulPack_32s_AC4IRSfs(const Lum32s* src, int srcStep, Lum32s* srcDst, int srcDstStep,
                                   LumiSize roi, int scaleFactor);
LumStatus lumiMulPack_32s_AC4RSfs(const Lum32s* src1, int src1Step, const Lum32s* src2, int src2Step,
                                  Lum32s* dst, int dstStep, LumiSize roi, int scaleFactor);
LumStatus lumiMulPack_32s_C1IRSfs(const Lum32s* src, int srcStep, Lum32s* srcDst, int srcDstStep,
                                  LumiSize roi, int scaleFactor);
LumStatus lumiMulPack_32s_C1RSfs(const Lum32s* src1, int src1Step, const Lum32s* src2, int src2Step,
                                 Lum32s* dst, int dstStep, LumiSize roi, int scaleFactor);
LumStatus lumiMulPack_32s_C3IRSfs(const Lum32s* src, int srcStep, Lum32s* srcDst, int srcDstStep,
                                  LumiSize roi, int scaleFactor);
LumStatus lumiMulPack_32s_C3RSfs(const Lum32s* src1, int src1Step, const Lum32s* src2, int src2Step,
                                 Lum32s* dst, int dstStep, LumiSize roi, int scaleFactor);
LumStatus lumiMulPack_32s_C4IRSfs(const Lum32s* src, int srcStep, Lum32s* srcDst, int srcDstStep,
                                  LumiSize roi, int scaleFactor);
LumStatus lumiMulPack_32s_C4RSfs(const Lum32s* src1, int src1Step, const Lum32s* src2, int src2Step,
                                 Lum32s* dst, int dstStep, LumiSize roi, int scaleFactor);

/**
 * Multiplies a packed spectrum by the conjugate of another one.
 *
 * As lumiMulPack, but for complex numbers: (a + b i) (c - d i) = (a c + b d) + (b c - a d) i, where c + d i is of
 * src2, in place of srcDst.
 *
 * Returns lumStatusOk (0) or, tested in this order and before anything is written:
 *   lumStatusNullPointer (-8)  a pointer is null, plane pointers included
 *   lumStatusBadStep (-14)     a step is below 1
 *   lumStatusBadSize (-6)      roi.width or roi.height is below 1
 */
LumStatus lumiMulPackConj_32f_AC4IR(const Lum32f* src, int srcStep, Lum32f* srcDst, int srcDstStep,
                                    LumiSize roi);
LumStatus lumiMulPackConj_32f_AC4R(const Lum32f* src1, int src1Step, const Lum32f* src2, int src2Step,
                                   Lum32f* dst, int dstStep, LumiSize roi);
LumStatus lumiMulPackConj_32f_C1IR(const Lum32f* src, int srcStep, Lum32f* srcDst, int srcDstStep,
                                   LumiSize roi);
LumStatus lumiMulPackConj_32f_C1R(const Lum32f* src1, int src1Step, const Lum32f* src2, int src2Step,
                                  Lum32f* dst, int dstStep, LumiSize roi);
LumStatus lumiMulPackConj_32f_C3IR(const Lum32f* src, int srcStep, Lum32f* srcDst, int srcDstStep,
                                   LumiSize roi);
LumStatus lumiMulPackConj_32f_C3R(const Lum32f* src1, int src1Step, const Lum32f* src2, int src2Step,
                                  Lum32f* dst, int dstStep, LumiSize roi);
LumStatus lumiMulPackConj_32f_C4IR(const Lum32f* src, int srcStep, Lum32f* srcDst, int srcDstStep,
                                   LumiSize roi);
LumStatus lumiMulPackConj_32f_C4R(const Lum32f* src1, int src1Step, const Lum32f* src2, int src2Step,
                                  Lum32f* dst, int dstStep, LumiSize roi);

#ifdef __cplusplus
}
#endif

#endif
