/* SPDX-License-Identifier: MIT */
/* Generated from registry/arithmetic/mul_scale.reg by tools/lumigen; edit that instead. */
/** @file Multiplication of fractions. */
#ifndef LUMI_MUL_SCALE_H
#define LUMI_MUL_SCALE_H

#include "types.h"

#ifdef __cplusplus
extern "C" {
#endif

/**
 * Multiplies two images as fractions of the largest sample.
 *
 * dst(x, y) = src1(x, y) * src2(x, y) / 255 (8u) or 65535 (16u), rounded down, in place with srcDst in place
 * of src2 and dst: the largest sample leaves the other factor as it is. AC4 leaves the fourth sample of every
 * pixel as it was. The destination may be a source. Where it overlaps one otherwise, each row is done sample
 * by sample in order.
 *
 * Returns lumStatusOk (0) or, tested in this order and before anything is written (8u 16u: C1 AC4):
 *   lumStatusNullPointer (-8)  a pointer is null, plane pointers included
 *   lumStatusBadStep (-14)     a step is below 1
 *   lumStatusBadSize (-6)      roi.width or roi.height is below 1
 *
 * Returns lumStatusOk (0) or, tested in this order and before anything is written (8u 16u: C3 C4):
 *   lumStatusBadSize (-6)      roi.width is below 1
 *   lumStatusNullPointer (-8)  a pointer is null, plane pointers included
 *   lumStatusBadStep (-14)     a step is below 1
 *   lumStatusBadSize (-6)      roi.width or roi.height is below 1
 */
LumStatus lumiMulScale_16u_AC4IR(const Lum16u* src, int srcStep, Lum16u* srcDst, int srcDstStep,
                                 LumiSize roi);
LumStatus lumiMulScale_16u_AC4R(const Lum16u* src1, int src1Step, const Lum16u* src2, int src2Step,
                                Lum16u* dst, int dstStep, LumiSize roi);
LumStatus lumiMulScale_16u_C1IR(const Lum16u* src, int srcStep, Lum16u* srcDst, int srcDstStep, LumiSize roi);
LumStatus lumiMulScale_16u_C1R(const Lum16u* src1, int src1Step, const Lum16u* src2, int src2Step,
                               Lum16u* dst, int dstStep, LumiSize roi);
LumStatus lumiMulScale_16u_C3IR(const Lum16u* src, int srcStep, Lum16u* srcDst, int srcDstStep, LumiSize roi);
LumStatus lumiMulScale_16u_C3R(const Lum16u* src1, int src1Step, const Lum16u* src2, int src2Step,
                               Lum16u* dst, int dstStep, LumiSize roi);
LumStatus lumiMulScale_16u_C4IR(const Lum16u* src, int srcStep, Lum16u* srcDst, int srcDstStep, LumiSize roi);
LumStatus lumiMulScale_16u_C4R(const Lum16u* src1, int src1Step, const Lum16u* src2, int src2Step,
                               Lum16u* dst, int dstStep, LumiSize roi);
LumStatus lumiMulScale_8u_AC4IR(const Lum8u* src, int srcStep, Lum8u* srcDst, int srcDstStep, LumiSize roi);
LumStatus lumiMulScale_8u_AC4R(const Lum8u* src1, int src1Step, const Lum8u* src2, int src2Step, Lum8u* dst,
                               int dstStep, LumiSize roi);
LumStatus lumiMulScale_8u_C1IR(const Lum8u* src, int srcStep, Lum8u* srcDst, int srcDstStep, LumiSize roi);
LumStatus lumiMulScale_8u_C1R(const Lum8u* src1, int src1Step, const Lum8u* src2, int src2Step, Lum8u* dst,
                              int dstStep, LumiSize roi);
LumStatus lumiMulScale_8u_C3IR(const Lum8u* src, int srcStep, Lum8u* srcDst, int srcDstStep, LumiSize roi);
LumStatus lumiMulScale_8u_C3R(const Lum8u* src1, int src1Step, const Lum8u* src2, int src2Step, Lum8u* dst,
                              int dstStep, LumiSize roi);
LumStatus lumiMulScale_8u_C4IR(const Lum8u* src, int srcStep, Lum8u* srcDst, int srcDstStep, LumiSize roi);
LumStatus lumiMulScale_8u_C4R(const Lum8u* src1, int src1Step, const Lum8u* src2, int src2Step, Lum8u* dst,
                              int dstStep, LumiSize roi);

/**
 * Multiplies every pixel by a constant, as fractions of the largest sample.
 *
 * dst(x, y) = src(x, y) * value / 255 (8u) or 65535 (16u), rounded down, in place with srcDst in place of src
 * and dst. C1 takes one value, C3 and AC4 three, C4 four, one for each channel; they are read before any pixel
 * is touched. AC4 members and overlap are as in lumiMulScale.
 *
 * Returns lumStatusOk (0) or, tested in this order and before anything is written:
 *   lumStatusNullPointer (-8)  a pointer is null, plane pointers included
 *   lumStatusBadStep (-14)     a step is below 1
 *   lumStatusBadSize (-6)      roi.width or roi.height is below 1
 */
LumStatus lumiMulCScale_16u_AC4IR(const Lum16u value[3], Lum16u* srcDst, int srcDstStep, LumiSize roi);
LumStatus lumiMulCScale_16u_AC4R(const Lum16u* src, int srcStep, const Lum16u value[3], Lum16u* dst,
                                 int dstStep, LumiSize roi);
LumStatus lumiMulCScale_16u_C1IR(Lum16u value, Lum16u* srcDst, int srcDstStep, LumiSize roi);
LumStatus lumiMulCScale_16u_C1R(const Lum16u* src, int srcStep, Lum16u value, Lum16u* dst, int dstStep,
                                LumiSize roi);
LumStatus lumiMulCScale_16u_C3IR(const Lum16u value[3], Lum16u* srcDst, int srcDstStep, LumiSize roi);
LumStatus lumiMulCScale_16u_C3R(const Lum16u* src, int srcStep, const Lum16u value[3], Lum16u* dst,
                                int dstStep, LumiSize roi);
LumStatus lumiMulCScale_16u_C4IR(const Lum16u value[4], Lum16u* srcDst, int srcDstStep, LumiSize roi);
LumStatus lumiMulCScale_16u_C4R(const Lum16u* src, int srcStep, const Lum16u value[4], Lum16u* dst,
                                int dstStep, LumiSize roi);
LumStatus lumiMulCScale_8u_AC4IR(const Lum8u value[3], Lum8u* srcDst, int srcDstStep, LumiSize roi);
LumStatus lumiMulCScale_8u_AC4R(const Lum8u* src, int srcStep, const Lum8u value[3], Lum8u* dst, int dstStep,
                                LumiSize roi);
LumStatus lumiMulCScale_8u_C1IR(Lum8u value, Lum8u* srcDst, int srcDstStep, LumiSize roi);
LumStatus lumiMulCScale_8u_C1R(const Lum8u* src, int srcStep, Lum8u value, Lum8u* dst, int dstStep,
                               LumiSize roi);
LumStatus lumiMulCScale_8u_C3IR(const Lum8u value[3], Lum8u* srcDst, int srcDstStep, LumiSize roi);
LumStatus lumiMulCScale_8u_C3R(const Lum8u* src, int srcStep, const Lum8u value[3], Lum8u* dst, int dstStep,
                               LumiSize roi);
LumStatus lumiMulCScale_8u_C4IR(const Lum8u value[4], Lum8u* srcDst, int srcDstStep, LumiSize roi);
LumStatus lumiMulCScale_8u_C4R(const Lum8u* src, int srcStep, const Lum8u value[4], Lum8u* dst, int dstStep,
                               LumiSize roi);

#ifdef __cplusplus
}
#endif

#endif
