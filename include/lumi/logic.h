/* SPDX-License-Identifier: MIT */
/* Generated from registry/arithmetic/logic.reg by tools/lumigen; edit that instead. */
/** @file Bitwise logic. */
#ifndef LUMI_LOGIC_H
#define LUMI_LOGIC_H

#include "types.h"

#ifdef __cplusplus
extern "C" {
#endif

/**
 * Combines the bits of two images by AND.
 *
 * dst(x, y) = src1(x, y) & src2(x, y), in place srcDst(x, y) = srcDst(x, y) & src(x, y). AC4 leaves the
 * fourth sample of every pixel as it was.
 *
 * The destination may be a source. Where it overlaps one otherwise, each row is done byte by byte in order.
 * Images may be misaligned in any way.
 *
 * Returns lumStatusOk (0) or, tested in this order and before anything is written:
 *   lumStatusNullPointer (-8)  a pointer is null, plane pointers included
 *   lumStatusBadStep (-14)     a step is below 1
 *   lumStatusBadSize (-6)      roi.width or roi.height is below 1
 */
LumStatus lumiAnd_16u_AC4IR(const Lum16u* src, int srcStep, Lum16u* srcDst, int srcDstStep, LumiSize roi);
LumStatus lumiAnd_16u_AC4R(const Lum16u* src1, int src1Step, const Lum16u* src2, int src2Step, Lum16u* dst,
                           int dstStep, LumiSize roi);
LumStatus lumiAnd_16u_C1IR(const Lum16u* src, int srcStep, Lum16u* srcDst, int srcDstStep, LumiSize roi);
LumStatus lumiAnd_16u_C1R(const Lum16u* src1, int src1Step, const Lum16u* src2, int src2Step, Lum16u* dst,
                          int dstStep, LumiSize roi);
LumStatus lumiAnd_16u_C3IR(const Lum16u* src, int srcStep, Lum16u* srcDst, int srcDstStep, LumiSize roi);
LumStatus lumiAnd_16u_C3R(const Lum16u* src1, int src1Step, const Lum16u* src2, int src2Step, Lum16u* dst,
                          int dstStep, LumiSize roi);
LumStatus lumiAnd_16u_C4IR(const Lum16u* src, int srcStep, Lum16u* srcDst, int srcDstStep, LumiSize roi);
LumStatus lumiAnd_16u_C4R(const Lum16u* src1, int src1Step, const Lum16u* src2, int src2Step, Lum16u* dst,
                          int dstStep, LumiSize roi);
LumStatus lumiAnd_32s_AC4IR(const Lum32s* src, int srcStep, Lum32s* srcDst, int srcDstStep, LumiSize roi);
LumStatus lumiAnd_32s_AC4R(const Lum32s* src1, int src1Step, const Lum32s* src2, int src2Step, Lum32s* dst,
                           int dstStep, LumiSize roi);
LumStatus lumiAnd_32s_C1IR(const Lum32s* src, int srcStep, Lum32s* srcDst, int srcDstStep, LumiSize roi);
LumStatus lumiAnd_32s_C1R(const Lum32s* src1, int src1Step, const Lum32s* src2, int src2Step, Lum32s* dst,
                          int dstStep, LumiSize roi);
LumStatus lumiAnd_32s_C3IR(const Lum32s* src, int srcStep, Lum32s* srcDst, int srcDstStep, LumiSize roi);
LumStatus lumiAnd_32s_C3R(const Lum32s* src1, int src1Step, const Lum32s* src2, int src2Step, Lum32s* dst,
                          int dstStep, LumiSize roi);
LumStatus lumiAnd_32s_C4IR(const Lum32s* src, int srcStep, Lum32s* srcDst, int srcDstStep, LumiSize roi);
LumStatus lumiAnd_32s_C4R(const Lum32s* src1, int src1Step, const Lum32s* src2, int src2Step, Lum32s* dst,
                          int dstStep, LumiSize roi);
LumStatus lumiAnd_8u_AC4IR(const Lum8u* src, int srcStep, Lum8u* srcDst, int srcDstStep, LumiSize roi);
LumStatus lumiAnd_8u_AC4R(const Lum8u* src1, int src1Step, const Lum8u* src2, int src2Step, Lum8u* dst,
                          int dstStep, LumiSize roi);
LumStatus lumiAnd_8u_C1IR(const Lum8u* src, int srcStep, Lum8u* srcDst, int srcDstStep, LumiSize roi);
LumStatus lumiAnd_8u_C1R(const Lum8u* src1, int src1Step, const Lum8u* src2, int src2Step, Lum8u* dst,
                         int dstStep, LumiSize roi);
LumStatus lumiAnd_8u_C3IR(const Lum8u* src, int srcStep, Lum8u* srcDst, int srcDstStep, LumiSize roi);
LumStatus lumiAnd_8u_C3R(const Lum8u* src1, int src1Step, const Lum8u* src2, int src2Step, Lum8u* dst,
                         int dstStep, LumiSize roi);
LumStatus lumiAnd_8u_C4IR(const Lum8u* src, int srcStep, Lum8u* srcDst, int srcDstStep, LumiSize roi);
LumStatus lumiAnd_8u_C4R(const Lum8u* src1, int src1Step, const Lum8u* src2, int src2Step, Lum8u* dst,
                         int dstStep, LumiSize roi);

/**
 * Combines the bits of two images by OR.
 *
 * dst(x, y) = src1(x, y) | src2(x, y), in place srcDst(x, y) = srcDst(x, y) | src(x, y). All else is as in
 * lumiAnd.
 *
 * Returns lumStatusOk (0) or, tested in this order and before anything is written:
 *   lumStatusNullPointer (-8)  a pointer is null, plane pointers included
 *   lumStatusBadStep (-14)     a step is below 1
 *   lumStatusBadSize (-6)      roi.width or roi.height is below 1
 */
LumStatus lumiOr_16u_AC4IR(const Lum16u* src, int srcStep, Lum16u* srcDst, int srcDstStep, LumiSize roi);
LumStatus lumiOr_16u_AC4R(const Lum16u* src1, int src1Step, const Lum16u* src2, int src2Step, Lum16u* dst,
                          int dstStep, LumiSize roi);
LumStatus lumiOr_16u_C1IR(const Lum16u* src, int srcStep, Lum16u* srcDst, int srcDstStep, LumiSize roi);
LumStatus lumiOr_16u_C1R(const Lum16u* src1, int src1Step, const Lum16u* src2, int src2Step, Lum16u* dst,
                         int dstStep, LumiSize roi);
LumStatus lumiOr_16u_C3IR(const Lum16u* src, int srcStep, Lum16u* srcDst, int srcDstStep, LumiSize roi);
LumStatus lumiOr_16u_C3R(const Lum16u* src1, int src1Step, const Lum16u* src2, int src2Step, Lum16u* dst,
                         int dstStep, LumiSize roi);
LumStatus lumiOr_16u_C4IR(const Lum16u* src, int srcStep, Lum16u* srcDst, int srcDstStep, LumiSize roi);
LumStatus lumiOr_16u_C4R(const Lum16u* src1, int src1Step, const Lum16u* src2, int src2Step, Lum16u* dst,
                         int dstStep, LumiSize roi);
LumStatus lumiOr_32s_AC4IR(const Lum32s* src, int srcStep, Lum32s* srcDst, int srcDstStep, LumiSize roi);
LumStatus lumiOr_32s_AC4R(const Lum32s* src1, int src1Step, const Lum32s* src2, int src2Step, Lum32s* dst,
                          int dstStep, LumiSize roi);
LumStatus lumiOr_32s_C1IR(const Lum32s* src, int srcStep, Lum32s* srcDst, int srcDstStep, LumiSize roi);
LumStatus lumiOr_32s_C1R(const Lum32s* src1, int src1Step, const Lum32s* src2, int src2Step, Lum32s* dst,
                         int dstStep, LumiSize roi);
LumStatus lumiOr_32s_C3IR(const Lum32s* src, int srcStep, Lum32s* srcDst, int srcDstStep, LumiSize roi);
LumStatus lumiOr_32s_C3R(const Lum32s* src1, int src1Step, const Lum32s* src2, int src2Step, Lum32s* dst,
                         int dstStep, LumiSize roi);
LumStatus lumiOr_32s_C4IR(const Lum32s* src, int srcStep, Lum32s* srcDst, int srcDstStep, LumiSize roi);
LumStatus lumiOr_32s_C4R(const Lum32s* src1, int src1Step, const Lum32s* src2, int src2Step, Lum32s* dst,
                         int dstStep, LumiSize roi);
LumStatus lumiOr_8u_AC4IR(const Lum8u* src, int srcStep, Lum8u* srcDst, int srcDstStep, LumiSize roi);
LumStatus lumiOr_8u_AC4R(const Lum8u* src1, int src1Step, const Lum8u* src2, int src2Step, Lum8u* dst,
                         int dstStep, LumiSize roi);
LumStatus lumiOr_8u_C1IR(const Lum8u* src, int srcStep, Lum8u* srcDst, int srcDstStep, LumiSize roi);
LumStatus lumiOr_8u_C1R(const Lum8u* src1, int src1Step, const Lum8u* src2, int src2Step, Lum8u* dst,
                        int dstStep, LumiSize roi);
LumStatus lumiOr_8u_C3IR(const Lum8u* src, int srcStep, Lum8u* srcDst, int srcDstStep, LumiSize roi);
LumStatus lumiOr_8u_C3R(const Lum8u* src1, int src1Step, const Lum8u* src2, int src2Step, Lum8u* dst,
                        int dstStep, LumiSize roi);
LumStatus lumiOr_8u_C4IR(const Lum8u* src, int srcStep, Lum8u* srcDst, int srcDstStep, LumiSize roi);
LumStatus lumiOr_8u_C4R(const Lum8u* src1, int src1Step, const Lum8u* src2, int src2Step, Lum8u* dst,
                        int dstStep, LumiSize roi);

/**
 * Combines the bits of two images by exclusive OR.
 *
 * dst(x, y) = src1(x, y) ^ src2(x, y), in place srcDst(x, y) = srcDst(x, y) ^ src(x, y). All else is as in
 * lumiAnd.
 *
 * Returns lumStatusOk (0) or, tested in this order and before anything is written:
 *   lumStatusNullPointer (-8)  a pointer is null, plane pointers included
 *   lumStatusBadStep (-14)     a step is below 1
 *   lumStatusBadSize (-6)      roi.width or roi.height is below 1
 */
LumStatus lumiXor_16u_AC4IR(const Lum16u* src, int srcStep, Lum16u* srcDst, int srcDstStep, LumiSize roi);
LumStatus lumiXor_16u_AC4R(const Lum16u* src1, int src1Step, const Lum16u* src2, int src2Step, Lum16u* dst,
                           int dstStep, LumiSize roi);
LumStatus lumiXor_16u_C1IR(const Lum16u* src, int srcStep, Lum16u* srcDst, int srcDstStep, LumiSize roi);
LumStatus lumiXor_16u_C1R(const Lum16u* src1, int src1Step, const Lum16u* src2, int src2Step, Lum16u* dst,
                          int dstStep, LumiSize roi);
LumStatus lumiXor_16u_C3IR(const Lum16u* src, int srcStep, Lum16u* srcDst, int srcDstStep, LumiSize roi);
LumStatus lumiXor_16u_C3R(const Lum16u* src1, int src1Step, const Lum16u* src2, int src2Step, Lum16u* dst,
                          int dstStep, LumiSize roi);
LumStatus lumiXor_16u_C4IR(const Lum16u* src, int srcStep, Lum16u* srcDst, int srcDstStep, LumiSize roi);
LumStatus lumiXor_16u_C4R(const Lum16u* src1, int src1Step, const Lum16u* src2, int src2Step, Lum16u* dst,
                          int dstStep, LumiSize roi);
LumStatus lumiXor_32s_AC4IR(const Lum32s* src, int srcStep, Lum32s* srcDst, int srcDstStep, LumiSize roi);
LumStatus lumiXor_32s_AC4R(const Lum32s* src1, int src1Step, const Lum32s* src2, int src2Step, Lum32s* dst,
                           int dstStep, LumiSize roi);
LumStatus lumiXor_32s_C1IR(const Lum32s* src, int srcStep, Lum32s* srcDst, int srcDstStep, LumiSize roi);
LumStatus lumiXor_32s_C1R(const Lum32s* src1, int src1Step, const Lum32s* src2, int src2Step, Lum32s* dst,
                          int dstStep, LumiSize roi);
LumStatus lumiXor_32s_C3IR(const Lum32s* src, int srcStep, Lum32s* srcDst, int srcDstStep, LumiSize roi);
LumStatus lumiXor_32s_C3R(const Lum32s* src1, int src1Step, const Lum32s* src2, int src2Step, Lum32s* dst,
                          int dstStep, LumiSize roi);
LumStatus lumiXor_32s_C4IR(const Lum32s* src, int srcStep, Lum32s* srcDst, int srcDstStep, LumiSize roi);
LumStatus lumiXor_32s_C4R(const Lum32s* src1, int src1Step, const Lum32s* src2, int src2Step, Lum32s* dst,
                          int dstStep, LumiSize roi);
LumStatus lumiXor_8u_AC4IR(const Lum8u* src, int srcStep, Lum8u* srcDst, int srcDstStep, LumiSize roi);
LumStatus lumiXor_8u_AC4R(const Lum8u* src1, int src1Step, const Lum8u* src2, int src2Step, Lum8u* dst,
                          int dstStep, LumiSize roi);
LumStatus lumiXor_8u_C1IR(const Lum8u* src, int srcStep, Lum8u* srcDst, int srcDstStep, LumiSize roi);
LumStatus lumiXor_8u_C1R(const Lum8u* src1, int src1Step, const Lum8u* src2, int src2Step, Lum8u* dst,
                         int dstStep, LumiSize roi);
LumStatus lumiXor_8u_C3IR(const Lum8u* src, int srcStep, Lum8u* srcDst, int srcDstStep, LumiSize roi);
LumStatus lumiXor_8u_C3R(const Lum8u* src1, int src1Step, const Lum8u* src2, int src2Step, Lum8u* dst,
                         int dstStep, LumiSize roi);
LumStatus lumiXor_8u_C4IR(const Lum8u* src, int srcStep, Lum8u* srcDst, int srcDstStep, LumiSize roi);
LumStatus lumiXor_8u_C4R(const Lum8u* src1, int src1Step, const Lum8u* src2, int src2Step, Lum8u* dst,
                         int dstStep, LumiSize roi);

/**
 * Combines the bits of every pixel with those of a constant by AND.
 *
 * dst(x, y) = src(x, y) & value, in place srcDst(x, y) = srcDst(x, y) & value. C1 takes one value, C3 and
 * AC4 three, C4 four, one for each channel; they are read before any pixel is touched. AC4 leaves the
 * fourth sample of every pixel as it was.
 *
 * C3 with three equal values is done as a row of samples: its width is multiplied by 3, as 32 bits that wrap,
 * and is a bad size (-6) where the product is below 1.
 *
 * The destination may be the source. Where it overlaps it otherwise, each row is done byte by byte in order.
 * Images may be misaligned in any way.
 *
 * Returns lumStatusOk (0) or, tested in this order and before anything is written:
 *   lumStatusNullPointer (-8)  a pointer is null, plane pointers included
 *   lumStatusBadStep (-14)     a step is below 1
 *   lumStatusBadSize (-6)      roi.width or roi.height is below 1
 */
LumStatus lumiAndC_16u_AC4IR(const Lum16u value[3], Lum16u* srcDst, int srcDstStep, LumiSize roi);
LumStatus lumiAndC_16u_AC4R(const Lum16u* src, int srcStep, const Lum16u value[3], Lum16u* dst, int dstStep,
                            LumiSize roi);
LumStatus lumiAndC_16u_C1IR(Lum16u value, Lum16u* srcDst, int srcDstStep, LumiSize roi);
LumStatus lumiAndC_16u_C1R(const Lum16u* src, int srcStep, Lum16u value, Lum16u* dst, int dstStep,
                           LumiSize roi);
LumStatus lumiAndC_16u_C3IR(const Lum16u value[3], Lum16u* srcDst, int srcDstStep, LumiSize roi);
LumStatus lumiAndC_16u_C3R(const Lum16u* src, int srcStep, const Lum16u value[3], Lum16u* dst, int dstStep,
                           LumiSize roi);
LumStatus lumiAndC_16u_C4IR(const Lum16u value[4], Lum16u* srcDst, int srcDstStep, LumiSize roi);
LumStatus lumiAndC_16u_C4R(const Lum16u* src, int srcStep, const Lum16u value[4], Lum16u* dst, int dstStep,
                           LumiSize roi);
LumStatus lumiAndC_32s_AC4IR(const Lum32s value[3], Lum32s* srcDst, int srcDstStep, LumiSize roi);
LumStatus lumiAndC_32s_AC4R(const Lum32s* src, int srcStep, const Lum32s value[3], Lum32s* dst, int dstStep,
                            LumiSize roi);
LumStatus lumiAndC_32s_C1IR(Lum32s value, Lum32s* srcDst, int srcDstStep, LumiSize roi);
LumStatus lumiAndC_32s_C1R(const Lum32s* src, int srcStep, Lum32s value, Lum32s* dst, int dstStep,
                           LumiSize roi);
LumStatus lumiAndC_32s_C3IR(const Lum32s value[3], Lum32s* srcDst, int srcDstStep, LumiSize roi);
LumStatus lumiAndC_32s_C3R(const Lum32s* src, int srcStep, const Lum32s value[3], Lum32s* dst, int dstStep,
                           LumiSize roi);
LumStatus lumiAndC_32s_C4IR(const Lum32s value[4], Lum32s* srcDst, int srcDstStep, LumiSize roi);
LumStatus lumiAndC_32s_C4R(const Lum32s* src, int srcStep, const Lum32s value[4], Lum32s* dst, int dstStep,
                           LumiSize roi);
LumStatus lumiAndC_8u_AC4IR(const Lum8u value[3], Lum8u* srcDst, int srcDstStep, LumiSize roi);
LumStatus lumiAndC_8u_AC4R(const Lum8u* src, int srcStep, const Lum8u value[3], Lum8u* dst, int dstStep,
                           LumiSize roi);
LumStatus lumiAndC_8u_C1IR(Lum8u value, Lum8u* srcDst, int srcDstStep, LumiSize roi);
LumStatus lumiAndC_8u_C1R(const Lum8u* src, int srcStep, Lum8u value, Lum8u* dst, int dstStep, LumiSize roi);
LumStatus lumiAndC_8u_C3IR(const Lum8u value[3], Lum8u* srcDst, int srcDstStep, LumiSize roi);
LumStatus lumiAndC_8u_C3R(const Lum8u* src, int srcStep, const Lum8u value[3], Lum8u* dst, int dstStep,
                          LumiSize roi);
LumStatus lumiAndC_8u_C4IR(const Lum8u value[4], Lum8u* srcDst, int srcDstStep, LumiSize roi);
LumStatus lumiAndC_8u_C4R(const Lum8u* src, int srcStep, const Lum8u value[4], Lum8u* dst, int dstStep,
                          LumiSize roi);

/**
 * Combines the bits of every pixel with those of a constant by OR.
 *
 * dst(x, y) = src(x, y) | value, in place srcDst(x, y) = srcDst(x, y) | value. All else is as in lumiAndC.
 *
 * Returns lumStatusOk (0) or, tested in this order and before anything is written:
 *   lumStatusNullPointer (-8)  a pointer is null, plane pointers included
 *   lumStatusBadStep (-14)     a step is below 1
 *   lumStatusBadSize (-6)      roi.width or roi.height is below 1
 */
LumStatus lumiOrC_16u_AC4IR(const Lum16u value[3], Lum16u* srcDst, int srcDstStep, LumiSize roi);
LumStatus lumiOrC_16u_AC4R(const Lum16u* src, int srcStep, const Lum16u value[3], Lum16u* dst, int dstStep,
                           LumiSize roi);
LumStatus lumiOrC_16u_C1IR(Lum16u value, Lum16u* srcDst, int srcDstStep, LumiSize roi);
LumStatus lumiOrC_16u_C1R(const Lum16u* src, int srcStep, Lum16u value, Lum16u* dst, int dstStep,
                          LumiSize roi);
LumStatus lumiOrC_16u_C3IR(const Lum16u value[3], Lum16u* srcDst, int srcDstStep, LumiSize roi);
LumStatus lumiOrC_16u_C3R(const Lum16u* src, int srcStep, const Lum16u value[3], Lum16u* dst, int dstStep,
                          LumiSize roi);
LumStatus lumiOrC_16u_C4IR(const Lum16u value[4], Lum16u* srcDst, int srcDstStep, LumiSize roi);
LumStatus lumiOrC_16u_C4R(const Lum16u* src, int srcStep, const Lum16u value[4], Lum16u* dst, int dstStep,
                          LumiSize roi);
LumStatus lumiOrC_32s_AC4IR(const Lum32s value[3], Lum32s* srcDst, int srcDstStep, LumiSize roi);
LumStatus lumiOrC_32s_AC4R(const Lum32s* src, int srcStep, const Lum32s value[3], Lum32s* dst, int dstStep,
                           LumiSize roi);
LumStatus lumiOrC_32s_C1IR(Lum32s value, Lum32s* srcDst, int srcDstStep, LumiSize roi);
LumStatus lumiOrC_32s_C1R(const Lum32s* src, int srcStep, Lum32s value, Lum32s* dst, int dstStep,
                          LumiSize roi);
LumStatus lumiOrC_32s_C3IR(const Lum32s value[3], Lum32s* srcDst, int srcDstStep, LumiSize roi);
LumStatus lumiOrC_32s_C3R(const Lum32s* src, int srcStep, const Lum32s value[3], Lum32s* dst, int dstStep,
                          LumiSize roi);
LumStatus lumiOrC_32s_C4IR(const Lum32s value[4], Lum32s* srcDst, int srcDstStep, LumiSize roi);
LumStatus lumiOrC_32s_C4R(const Lum32s* src, int srcStep, const Lum32s value[4], Lum32s* dst, int dstStep,
                          LumiSize roi);
LumStatus lumiOrC_8u_AC4IR(const Lum8u value[3], Lum8u* srcDst, int srcDstStep, LumiSize roi);
LumStatus lumiOrC_8u_AC4R(const Lum8u* src, int srcStep, const Lum8u value[3], Lum8u* dst, int dstStep,
                          LumiSize roi);
LumStatus lumiOrC_8u_C1IR(Lum8u value, Lum8u* srcDst, int srcDstStep, LumiSize roi);
LumStatus lumiOrC_8u_C1R(const Lum8u* src, int srcStep, Lum8u value, Lum8u* dst, int dstStep, LumiSize roi);
LumStatus lumiOrC_8u_C3IR(const Lum8u value[3], Lum8u* srcDst, int srcDstStep, LumiSize roi);
LumStatus lumiOrC_8u_C3R(const Lum8u* src, int srcStep, const Lum8u value[3], Lum8u* dst, int dstStep,
                         LumiSize roi);
LumStatus lumiOrC_8u_C4IR(const Lum8u value[4], Lum8u* srcDst, int srcDstStep, LumiSize roi);
LumStatus lumiOrC_8u_C4R(const Lum8u* src, int srcStep, const Lum8u value[4], Lum8u* dst, int dstStep,
                         LumiSize roi);

/**
 * Combines the bits of every pixel with those of a constant by exclusive OR.
 *
 * dst(x, y) = src(x, y) ^ value, in place srcDst(x, y) = srcDst(x, y) ^ value. All else is as in lumiAndC.
 *
 * Returns lumStatusOk (0) or, tested in this order and before anything is written:
 *   lumStatusNullPointer (-8)  a pointer is null, plane pointers included
 *   lumStatusBadStep (-14)     a step is below 1
 *   lumStatusBadSize (-6)      roi.width or roi.height is below 1
 */
LumStatus lumiXorC_16u_AC4IR(const Lum16u value[3], Lum16u* srcDst, int srcDstStep, LumiSize roi);
LumStatus lumiXorC_16u_AC4R(const Lum16u* src, int srcStep, const Lum16u value[3], Lum16u* dst, int dstStep,
                            LumiSize roi);
LumStatus lumiXorC_16u_C1IR(Lum16u value, Lum16u* srcDst, int srcDstStep, LumiSize roi);
LumStatus lumiXorC_16u_C1R(const Lum16u* src, int srcStep, Lum16u value, Lum16u* dst, int dstStep,
                           LumiSize roi);
LumStatus lumiXorC_16u_C3IR(const Lum16u value[3], Lum16u* srcDst, int srcDstStep, LumiSize roi);
LumStatus lumiXorC_16u_C3R(const Lum16u* src, int srcStep, const Lum16u value[3], Lum16u* dst, int dstStep,
                           LumiSize roi);
LumStatus lumiXorC_16u_C4IR(const Lum16u value[4], Lum16u* srcDst, int srcDstStep, LumiSize roi);
LumStatus lumiXorC_16u_C4R(const Lum16u* src, int srcStep, const Lum16u value[4], Lum16u* dst, int dstStep,
                           LumiSize roi);
LumStatus lumiXorC_32s_AC4IR(const Lum32s value[3], Lum32s* srcDst, int srcDstStep, LumiSize roi);
LumStatus lumiXorC_32s_AC4R(const Lum32s* src, int srcStep, const Lum32s value[3], Lum32s* dst, int dstStep,
                            LumiSize roi);
LumStatus lumiXorC_32s_C1IR(Lum32s value, Lum32s* srcDst, int srcDstStep, LumiSize roi);
LumStatus lumiXorC_32s_C1R(const Lum32s* src, int srcStep, Lum32s value, Lum32s* dst, int dstStep,
                           LumiSize roi);
LumStatus lumiXorC_32s_C3IR(const Lum32s value[3], Lum32s* srcDst, int srcDstStep, LumiSize roi);
LumStatus lumiXorC_32s_C3R(const Lum32s* src, int srcStep, const Lum32s value[3], Lum32s* dst, int dstStep,
                           LumiSize roi);
LumStatus lumiXorC_32s_C4IR(const Lum32s value[4], Lum32s* srcDst, int srcDstStep, LumiSize roi);
LumStatus lumiXorC_32s_C4R(const Lum32s* src, int srcStep, const Lum32s value[4], Lum32s* dst, int dstStep,
                           LumiSize roi);
LumStatus lumiXorC_8u_AC4IR(const Lum8u value[3], Lum8u* srcDst, int srcDstStep, LumiSize roi);
LumStatus lumiXorC_8u_AC4R(const Lum8u* src, int srcStep, const Lum8u value[3], Lum8u* dst, int dstStep,
                           LumiSize roi);
LumStatus lumiXorC_8u_C1IR(Lum8u value, Lum8u* srcDst, int srcDstStep, LumiSize roi);
LumStatus lumiXorC_8u_C1R(const Lum8u* src, int srcStep, Lum8u value, Lum8u* dst, int dstStep, LumiSize roi);
LumStatus lumiXorC_8u_C3IR(const Lum8u value[3], Lum8u* srcDst, int srcDstStep, LumiSize roi);
LumStatus lumiXorC_8u_C3R(const Lum8u* src, int srcStep, const Lum8u value[3], Lum8u* dst, int dstStep,
                          LumiSize roi);
LumStatus lumiXorC_8u_C4IR(const Lum8u value[4], Lum8u* srcDst, int srcDstStep, LumiSize roi);
LumStatus lumiXorC_8u_C4R(const Lum8u* src, int srcStep, const Lum8u value[4], Lum8u* dst, int dstStep,
                          LumiSize roi);

/**
 * Inverts every bit.
 *
 * dst(x, y) = ~src(x, y), in place srcDst(x, y) = ~srcDst(x, y), which is lumiXorC with values of ones: all
 * else is as in lumiAndC.
 *
 * Returns lumStatusOk (0) or, tested in this order and before anything is written:
 *   lumStatusNullPointer (-8)  a pointer is null, plane pointers included
 *   lumStatusBadStep (-14)     a step is below 1
 *   lumStatusBadSize (-6)      roi.width or roi.height is below 1
 */
LumStatus lumiNot_8u_AC4IR(Lum8u* srcDst, int srcDstStep, LumiSize roi);
LumStatus lumiNot_8u_AC4R(const Lum8u* src, int srcStep, Lum8u* dst, int dstStep, LumiSize roi);
LumStatus lumiNot_8u_C1IR(Lum8u* srcDst, int srcDstStep, LumiSize roi);
LumStatus lumiNot_8u_C1R(const Lum8u* src, int srcStep, Lum8u* dst, int dstStep, LumiSize roi);
LumStatus lumiNot_8u_C3IR(Lum8u* srcDst, int srcDstStep, LumiSize roi);
LumStatus lumiNot_8u_C3R(const Lum8u* src, int srcStep, Lum8u* dst, int dstStep, LumiSize roi);
LumStatus lumiNot_8u_C4IR(Lum8u* srcDst, int srcDstStep, LumiSize roi);
LumStatus lumiNot_8u_C4R(const Lum8u* src, int srcStep, Lum8u* dst, int dstStep, LumiSize roi);

#ifdef __cplusplus
}
#endif

#endif
