/* SPDX-License-Identifier: MIT */
/* Generated from registry/data/compare.reg by tools/lumigen; edit that instead. */
/** @file Comparison. */
#ifndef LUMI_COMPARE_H
#define LUMI_COMPARE_H

#include "types.h"

#ifdef __cplusplus
extern "C" {
#endif

/**
 * Stores a mask of the pixels of two images that compare as wanted.
 *
 * dstMask(x, y) is 255 where src1(x, y) compares with src2(x, y) as cmpOp says, and 0 elsewhere: lumCmpOpLess
 * where src1 is below src2, and so on. Of several channels all have to; AC4 looks at the first three. Nothing
 * holds where a sample is NaN. Any other operator stores nothing, and is no error: the status is 0.
 *
 * The mask of an 8u C1 image may be that image; where it overlaps it otherwise, each row is done byte by byte
 * in order. It shares no memory with any other image. Images may be misaligned in any way.
 *
 *   cmpOp      one of LumCmpOp
 *
 * Returns lumStatusOk (0) or, tested in this order and before anything is written:
 *   lumStatusNullPointer (-8)  a pointer is null, plane pointers included
 *   lumStatusBadStep (-14)     a step is below 1
 *   lumStatusBadSize (-6)      roi.width or roi.height is below 1
 */
LumStatus lumiCompare_16s_AC4R(const Lum16s* src1, int src1Step, const Lum16s* src2, int src2Step,
                               Lum8u* dstMask, int dstMaskStep, LumiSize roi, LumCmpOp cmpOp);
LumStatus lumiCompare_16s_C1R(const Lum16s* src1, int src1Step, const Lum16s* src2, int src2Step,
                              Lum8u* dstMask, int dstMaskStep, LumiSize roi, LumCmpOp cmpOp);
LumStatus lumiCompare_16s_C3R(const Lum16s* src1, int src1Step, const Lum16s* src2, int src2Step,
                              Lum8u* dstMask, int dstMaskStep, LumiSize roi, LumCmpOp cmpOp);
LumStatus lumiCompare_16s_C4R(const Lum16s* src1, int src1Step, const Lum16s* src2, int src2Step,
                              Lum8u* dstMask, int dstMaskStep, LumiSize roi, LumCmpOp cmpOp);
LumStatus lumiCompare_16u_AC4R(const Lum16u* src1, int src1Step, const Lum16u* src2, int src2Step,
                               Lum8u* dstMask, int dstMaskStep, LumiSize roi, LumCmpOp cmpOp);
LumStatus lumiCompare_16u_C1R(const Lum16u* src1, int src1Step, const Lum16u* src2, int src2Step,
                              Lum8u* dstMask, int dstMaskStep, LumiSize roi, LumCmpOp cmpOp);
LumStatus lumiCompare_16u_C3R(const Lum16u* src1, int src1Step, const Lum16u* src2, int src2Step,
                              Lum8u* dstMask, int dstMaskStep, LumiSize roi, LumCmpOp cmpOp);
LumStatus lumiCompare_16u_C4R(const Lum16u* src1, int src1Step, const Lum16u* src2, int src2Step,
                              Lum8u* dstMask, int dstMaskStep, LumiSize roi, LumCmpOp cmpOp);
LumStatus lumiCompare_32f_AC4R(const Lum32f* src1, int src1Step, const Lum32f* src2, int src2Step,
                               Lum8u* dstMask, int dstMaskStep, LumiSize roi, LumCmpOp cmpOp);
LumStatus lumiCompare_32f_C1R(const Lum32f* src1, int src1Step, const Lum32f* src2, int src2Step,
                              Lum8u* dstMask, int dstMaskStep, LumiSize roi, LumCmpOp cmpOp);
LumStatus lumiCompare_32f_C3R(const Lum32f* src1, int src1Step, const Lum32f* src2, int src2Step,
                              Lum8u* dstMask, int dstMaskStep, LumiSize roi, LumCmpOp cmpOp);
LumStatus lumiCompare_32f_C4R(const Lum32f* src1, int src1Step, const Lum32f* src2, int src2Step,
                              Lum8u* dstMask, int dstMaskStep, LumiSize roi, LumCmpOp cmpOp);
LumStatus lumiCompare_8u_AC4R(const Lum8u* src1, int src1Step, const Lum8u* src2, int src2Step,
                              Lum8u* dstMask, int dstMaskStep, LumiSize roi, LumCmpOp cmpOp);
LumStatus lumiCompare_8u_C1R(const Lum8u* src1, int src1Step, const Lum8u* src2, int src2Step, Lum8u* dstMask,
                             int dstMaskStep, LumiSize roi, LumCmpOp cmpOp);
LumStatus lumiCompare_8u_C3R(const Lum8u* src1, int src1Step, const Lum8u* src2, int src2Step, Lum8u* dstMask,
                             int dstMaskStep, LumiSize roi, LumCmpOp cmpOp);
LumStatus lumiCompare_8u_C4R(const Lum8u* src1, int src1Step, const Lum8u* src2, int src2Step, Lum8u* dstMask,
                             int dstMaskStep, LumiSize roi, LumCmpOp cmpOp);

/**
 * Stores a mask of the pixels that compare with a constant as wanted.
 *
 * dstMask(x, y) is 255 where src(x, y) compares with value as cmpOp says, and 0 elsewhere. C1 takes one value,
 * C3 and AC4 three, C4 four, one for each channel; they are read before any pixel is touched. All else is as
 * in lumiCompare.
 *
 *   cmpOp      one of LumCmpOp
 *
 * Returns lumStatusOk (0) or, tested in this order and before anything is written:
 *   lumStatusNullPointer (-8)  a pointer is null, plane pointers included
 *   lumStatusBadStep (-14)     a step is below 1
 *   lumStatusBadSize (-6)      roi.width or roi.height is below 1
 */
LumStatus lumiCompareC_16s_AC4R(const Lum16s* src, int srcStep, const Lum16s value[3], Lum8u* dstMask,
                                int dstMaskStep, LumiSize roi, LumCmpOp cmpOp);
LumStatus lumiCompareC_16s_C1R(const Lum16s* src, int srcStep, Lum16s value, Lum8u* dstMask, int dstMaskStep,
                               LumiSize roi, LumCmpOp cmpOp);
LumStatus lumiCompareC_16s_C3R(const Lum16s* src, int srcStep, const Lum16s value[3], Lum8u* dstMask,
                               int dstMaskStep, LumiSize roi, LumCmpOp cmpOp);
LumStatus lumiCompareC_16s_C4R(const Lum16s* src, int srcStep, const Lum16s value[4], Lum8u* dstMask,
                               int dstMaskStep, LumiSize roi, LumCmpOp cmpOp);
LumStatus lumiCompareC_16u_AC4R(const Lum16u* src, int srcStep, const Lum16u value[3], Lum8u* dstMask,
                                int dstMaskStep, LumiSize roi, LumCmpOp cmpOp);
LumStatus lumiCompareC_16u_C1R(const Lum16u* src, int srcStep, Lum16u value, Lum8u* dstMask, int dstMaskStep,
                               LumiSize roi, LumCmpOp cmpOp);
LumStatus lumiCompareC_16u_C3R(const Lum16u* src, int srcStep, const Lum16u value[3], Lum8u* dstMask,
                               int dstMaskStep, LumiSize roi, LumCmpOp cmpOp);
LumStatus lumiCompareC_16u_C4R(const Lum16u* src, int srcStep, const Lum16u value[4], Lum8u* dstMask,
                               int dstMaskStep, LumiSize roi, LumCmpOp cmpOp);
LumStatus lumiCompareC_32f_AC4R(const Lum32f* src, int srcStep, const Lum32f value[3], Lum8u* dstMask,
                                int dstMaskStep, LumiSize roi, LumCmpOp cmpOp);
LumStatus lumiCompareC_32f_C1R(const Lum32f* src, int srcStep, Lum32f value, Lum8u* dstMask, int dstMaskStep,
                               LumiSize roi, LumCmpOp cmpOp);
LumStatus lumiCompareC_32f_C3R(const Lum32f* src, int srcStep, const Lum32f value[3], Lum8u* dstMask,
                               int dstMaskStep, LumiSize roi, LumCmpOp cmpOp);
LumStatus lumiCompareC_32f_C4R(const Lum32f* src, int srcStep, const Lum32f value[4], Lum8u* dstMask,
                               int dstMaskStep, LumiSize roi, LumCmpOp cmpOp);
LumStatus lumiCompareC_8u_AC4R(const Lum8u* src, int srcStep, const Lum8u value[3], Lum8u* dstMask,
                               int dstMaskStep, LumiSize roi, LumCmpOp cmpOp);
LumStatus lumiCompareC_8u_C1R(const Lum8u* src, int srcStep, Lum8u value, Lum8u* dstMask, int dstMaskStep,
                              LumiSize roi, LumCmpOp cmpOp);
LumStatus lumiCompareC_8u_C3R(const Lum8u* src, int srcStep, const Lum8u value[3], Lum8u* dstMask,
                              int dstMaskStep, LumiSize roi, LumCmpOp cmpOp);
LumStatus lumiCompareC_8u_C4R(const Lum8u* src, int srcStep, const Lum8u value[4], Lum8u* dstMask,
                              int dstMaskStep, LumiSize roi, LumCmpOp cmpOp);

/**
 * Stores a mask of the pixels of two images that hardly differ.
 *
 * dstMask(x, y) is 255 where |src1(x, y) - src2(x, y)| <= tolerance, the difference in Lum32f, and 0
 * elsewhere. Of several channels all have to hold; AC4 looks at the first three. Nothing holds where a sample
 * or the tolerance is NaN, nor for the difference of equal infinities.
 *
 * The mask shares no memory with a source. Images may be misaligned in any way.
 *
 *   tolerance  the largest difference; below 0 it is refused
 *
 * Returns lumStatusOk (0) or, tested in this order and before anything is written:
 *   lumStatusNullPointer (-8)  a pointer is null, plane pointers included
 *   lumStatusBadStep (-14)     a step is below 1
 *   lumStatusBadSize (-6)      roi.width or roi.height is below 1
 *   lumStatusBadEpsilon (-36)  tolerance is refused
 */
LumStatus lumiCompareEqualEps_32f_AC4R(const Lum32f* src1, int src1Step, const Lum32f* src2, int src2Step,
                                       Lum8u* dstMask, int dstMaskStep, LumiSize roi, Lum32f tolerance);
LumStatus lumiCompareEqualEps_32f_C1R(const Lum32f* src1, int src1Step, const Lum32f* src2, int src2Step,
                                      Lum8u* dstMask, int dstMaskStep, LumiSize roi, Lum32f tolerance);
LumStatus lumiCompareEqualEps_32f_C3R(const Lum32f* src1, int src1Step, const Lum32f* src2, int src2Step,
                                      Lum8u* dstMask, int dstMaskStep, LumiSize roi, Lum32f tolerance);
LumStatus lumiCompareEqualEps_32f_C4R(const Lum32f* src1, int src1Step, const Lum32f* src2, int src2Step,
                                      Lum8u* dstMask, int dstMaskStep, LumiSize roi, Lum32f tolerance);

/**
 * Stores a mask of the pixels that hardly differ from a constant.
 *
 * dstMask(x, y) is 255 where |src(x, y) - value| <= tolerance, and 0 elsewhere. C1 takes one value, C3 and AC4
 * three, C4 four, one for each channel; they are read before any pixel is touched. All else is as in
 * lumiCompareEqualEps.
 *
 *   tolerance  the largest difference; below 0 it is refused
 *
 * Returns lumStatusOk (0) or, tested in this order and before anything is written:
 *   lumStatusNullPointer (-8)  a pointer is null, plane pointers included
 *   lumStatusBadStep (-14)     a step is below 1
 *   lumStatusBadSize (-6)      roi.width or roi.height is below 1
 *   lumStatusBadEpsilon (-36)  tolerance is refused
 */
LumStatus lumiCompareEqualEpsC_32f_AC4R(const Lum32f* src, int srcStep, const Lum32f value[3], Lum8u* dstMask,
                                        int dstMaskStep, LumiSize roi, Lum32f tolerance);
LumStatus lumiCompareEqualEpsC_32f_C1R(const Lum32f* src, int srcStep, Lum32f value, Lum8u* dstMask,
                                       int dstMaskStep, LumiSize roi, Lum32f tolerance);
LumStatus lumiCompareEqualEpsC_32f_C3R(const Lum32f* src, int srcStep, const Lum32f value[3], Lum8u* dstMask,
                                       int dstMaskStep, LumiSize roi, Lum32f tolerance);
LumStatus lumiCompareEqualEpsC_32f_C4R(const Lum32f* src, int srcStep, const Lum32f value[4], Lum8u* dstMask,
                                       int dstMaskStep, LumiSize roi, Lum32f tolerance);

#ifdef __cplusplus
}
#endif

#endif
