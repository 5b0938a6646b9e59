/* SPDX-License-Identifier: MIT */
/* Generated from registry/data/threshold.reg by tools/lumigen; edit that instead. */
/** @file Thresholds. */
#ifndef LUMI_THRESHOLD_H
#define LUMI_THRESHOLD_H

#include "types.h"

#ifdef __cplusplus
extern "C" {
#endif

/**
 * Limits samples to a threshold.
 *
 * lumCmpOpLess: samples below the threshold become the threshold. lumCmpOpGreater: samples above it do. Other
 * samples stay, among them those that are equal to it. C1 takes one threshold, C3 and AC4 three, one for each
 * channel; they are read before any pixel is touched. AC4 leaves the fourth sample of every pixel as it was.
 *
 * Floats are compared by the vector minimum and maximum, with the sample as first operand: a NaN becomes the
 * threshold, every sample becomes a threshold that is NaN, and of two zeros the threshold's sign is taken.
 *
 * The destination may be the source. Where it overlaps it otherwise, each row is done sample by sample in
 * order. Images may be misaligned in any way.
 *
 * Stores of 16u without alpha bypass the cache where the results take more than 256 KiB and more than half of
 * the largest cache, and the destination is not the source; no fence follows.
 *
 *   threshold  the limit
 *   cmpOp      lumCmpOpLess or lumCmpOpGreater
 *
 * Returns lumStatusOk (0) or, tested in this order and before anything is written (8u 16u 16s 32f: C1):
 *   lumStatusNullPointer (-8)  a pointer is null, plane pointers included
 *   lumStatusBadSize (-6)      roi.width or roi.height is below 1
 *   lumStatusBadStep (-14)     a step is below 1
 *   lumStatusUnsupportedMode (-9999) cmpOp is neither lumCmpOpLess nor lumCmpOpGreater
 *
 * Returns lumStatusOk (0) or, tested in this order and before anything is written (8u 16u 16s 32f: C3 AC4):
 *   lumStatusNullPointer (-8)  an image's pointer is null
 *   lumStatusBadSize (-6)      roi.width or roi.height is below 1
 *   lumStatusBadStep (-14)     a step is below 1
 *   lumStatusNullPointer (-8)  threshold is null
 *   lumStatusUnsupportedMode (-9999) cmpOp is neither lumCmpOpLess nor lumCmpOpGreater
 */
LumStatus lumiThreshold_16s_AC4IR(Lum16s* srcDst, int srcDstStep, LumiSize roi, const Lum16s threshold[3],
                                  LumCmpOp cmpOp);
LumStatus lumiThreshold_16s_AC4R(const Lum16s* src, int srcStep, Lum16s* dst, int dstStep, LumiSize roi,
                                 const Lum16s threshold[3], LumCmpOp cmpOp);
LumStatus lumiThreshold_16s_C1IR(Lum16s* srcDst, int srcDstStep, LumiSize roi, Lum16s threshold,
                                 LumCmpOp cmpOp);
LumStatus lumiThreshold_16s_C1R(const Lum16s* src, int srcStep, Lum16s* dst, int dstStep, LumiSize roi,
                                Lum16s threshold, LumCmpOp cmpOp);
LumStatus lumiThreshold_16s_C3IR(Lum16s* srcDst, int srcDstStep, LumiSize roi, const Lum16s threshold[3],
                                 LumCmpOp cmpOp);
LumStatus lumiThreshold_16s_C3R(const Lum16s* src, int srcStep, Lum16s* dst, int dstStep, LumiSize roi,
                                const Lum16s threshold[3], LumCmpOp cmpOp);
LumStatus lumiThreshold_16u_AC4IR(Lum16u* srcDst, int srcDstStep, LumiSize roi, const Lum16u threshold[3],
                                  LumCmpOp cmpOp);
LumStatus lumiThreshold_16u_AC4R(const Lum16u* src, int srcStep, Lum16u* dst, int dstStep, LumiSize roi,
                                 const Lum16u threshold[3], LumCmpOp cmpOp);
LumStatus lumiThreshold_16u_C1IR(Lum16u* srcDst, int srcDstStep, LumiSize roi, Lum16u threshold,
                                 LumCmpOp cmpOp);
LumStatus lumiThreshold_16u_C1R(const Lum16u* src, int srcStep, Lum16u* dst, int dstStep, LumiSize roi,
                                Lum16u threshold, LumCmpOp cmpOp);
LumStatus lumiThreshold_16u_C3IR(Lum16u* srcDst, int srcDstStep, LumiSize roi, const Lum16u threshold[3],
                                 LumCmpOp cmpOp);
LumStatus lumiThreshold_16u_C3R(const Lum16u* src, int srcStep, Lum16u* dst, int dstStep, LumiSize roi,
                                const Lum16u threshold[3], LumCmpOp cmpOp);
LumStatus lumiThreshold_32f_AC4IR(Lum32f* srcDst, int srcDstStep, LumiSize roi, const Lum32f threshold[3],
                                  LumCmpOp cmpOp);
LumStatus lumiThreshold_32f_AC4R(const Lum32f* src, int srcStep, Lum32f* dst, int dstStep, LumiSize roi,
                                 const Lum32f threshold[3], LumCmpOp cmpOp);
LumStatus lumiThreshold_32f_C1IR(Lum32f* srcDst, int srcDstStep, LumiSize roi, Lum32f threshold,
                                 LumCmpOp cmpOp);
LumStatus lumiThreshold_32f_C1R(const Lum32f* src, int srcStep, Lum32f* dst, int dstStep, LumiSize roi,
                                Lum32f threshold, LumCmpOp cmpOp);
LumStatus lumiThreshold_32f_C3IR(Lum32f* srcDst, int srcDstStep, LumiSize roi, const Lum32f threshold[3],
                                 LumCmpOp cmpOp);
LumStatus lumiThreshold_32f_C3R(const Lum32f* src, int srcStep, Lum32f* dst, int dstStep, LumiSize roi,
                                const Lum32f threshold[3], LumCmpOp cmpOp);
LumStatus lumiThreshold_8u_AC4IR(Lum8u* srcDst, int srcDstStep, LumiSize roi, const Lum8u threshold[3],
                                 LumCmpOp cmpOp);
LumStatus lumiThreshold_8u_AC4R(const Lum8u* src, int srcStep, Lum8u* dst, int dstStep, LumiSize roi,
                                const Lum8u threshold[3], LumCmpOp cmpOp);
LumStatus lumiThreshold_8u_C1IR(Lum8u* srcDst, int srcDstStep, LumiSize roi, Lum8u threshold, LumCmpOp cmpOp);
LumStatus lumiThreshold_8u_C1R(const Lum8u* src, int srcStep, Lum8u* dst, int dstStep, LumiSize roi,
                               Lum8u threshold, LumCmpOp cmpOp);
LumStatus lumiThreshold_8u_C3IR(Lum8u* srcDst, int srcDstStep, LumiSize roi, const Lum8u threshold[3],
                                LumCmpOp cmpOp);
LumStatus lumiThreshold_8u_C3R(const Lum8u* src, int srcStep, Lum8u* dst, int dstStep, LumiSize roi,
                               const Lum8u threshold[3], LumCmpOp cmpOp);

/**
 * Limits samples above a threshold to it.
 *
 * As lumiThreshold with lumCmpOpGreater.
 *
 *   threshold  the upper limit
 *
 * Returns lumStatusOk (0) or, tested in this order and before anything is written (8u 16u 16s 32f: C1):
 *   lumStatusNullPointer (-8)  a pointer is null, plane pointers included
 *   lumStatusBadSize (-6)      roi.width or roi.height is below 1
 *   lumStatusBadStep (-14)     a step is below 1
 *
 * Returns lumStatusOk (0) or, tested in this order and before anything is written (8u 16u 16s 32f: C3 AC4):
 *   lumStatusNullPointer (-8)  an image's pointer is null
 *   lumStatusBadSize (-6)      roi.width or roi.height is below 1
 *   lumStatusBadStep (-14)     a step is below 1
 *   lumStatusNullPointer (-8)  threshold is null
 */
LumStatus lumiThreshold_GT_16s_AC4IR(Lum16s* srcDst, int srcDstStep, LumiSize roi, const Lum16s threshold[3]);
LumStatus lumiThreshold_GT_16s_AC4R(const Lum16s* src, int srcStep, Lum16s* dst, int dstStep, LumiSize roi,
                                    const Lum16s threshold[3]);
LumStatus lumiThreshold_GT_16s_C1IR(Lum16s* srcDst, int srcDstStep, LumiSize roi, Lum16s threshold);
LumStatus lumiThreshold_GT_16s_C1R(const Lum16s* src, int srcStep, Lum16s* dst, int dstStep, LumiSize roi,
                                   Lum16s threshold);
LumStatus lumiThreshold_GT_16s_C3IR(Lum16s* srcDst, int srcDstStep, LumiSize roi, const Lum16s threshold[3]);
LumStatus lumiThreshold_GT_16s_C3R(const Lum16s* src, int srcStep, Lum16s* dst, int dstStep, LumiSize roi,
                                   const Lum16s threshold[3]);
LumStatus lumiThreshold_GT_16u_AC4IR(Lum16u* srcDst, int srcDstStep, LumiSize roi, const Lum16u threshold[3]);
LumStatus lumiThreshold_GT_16u_AC4R(const Lum16u* src, int srcStep, Lum16u* dst, int dstStep, LumiSize roi,
                                    const Lum16u threshold[3]);
LumStatus lumiThreshold_GT_16u_C1IR(Lum16u* srcDst, int srcDstStep, LumiSize roi, Lum16u threshold);
LumStatus lumiThreshold_GT_16u_C1R(const Lum16u* src, int srcStep, Lum16u* dst, int dstStep, LumiSize roi,
                                   Lum16u threshold);
LumStatus lumiThreshold_GT_16u_C3IR(Lum16u* srcDst, int srcDstStep, LumiSize roi, const Lum16u threshold[3]);
LumStatus lumiThreshold_GT_16u_C3R(const Lum16u* src, int srcStep, Lum16u* dst, int dstStep, LumiSize roi,
                                   const Lum16u threshold[3]);
LumStatus lumiThreshold_GT_32f_AC4IR(Lum32f* srcDst, int srcDstStep, LumiSize roi, const Lum32f threshold[3]);
LumStatus lumiThreshold_GT_32f_AC4R(const Lum32f* src, int srcStep, Lum32f* dst, int dstStep, LumiSize roi,
                                    const Lum32f threshold[3]);
LumStatus lumiThreshold_GT_32f_C1IR(Lum32f* srcDst, int srcDstStep, LumiSize roi, Lum32f threshold);
LumStatus lumiThreshold_GT_32f_C1R(const Lum32f* src, int srcStep, Lum32f* dst, int dstStep, LumiSize roi,
                                   Lum32f threshold);
LumStatus lumiThreshold_GT_32f_C3IR(Lum32f* srcDst, int srcDstStep, LumiSize roi, const Lum32f threshold[3]);
LumStatus lumiThreshold_GT_32f_C3R(const Lum32f* src, int srcStep, Lum32f* dst, int dstStep, LumiSize roi,
                                   const Lum32f threshold[3]);
LumStatus lumiThreshold_GT_8u_AC4IR(Lum8u* srcDst, int srcDstStep, LumiSize roi, const Lum8u threshold[3]);
LumStatus lumiThreshold_GT_8u_AC4R(const Lum8u* src, int srcStep, Lum8u* dst, int dstStep, LumiSize roi,
                                   const Lum8u threshold[3]);
LumStatus lumiThreshold_GT_8u_C1IR(Lum8u* srcDst, int srcDstStep, LumiSize roi, Lum8u threshold);
LumStatus lumiThreshold_GT_8u_C1R(const Lum8u* src, int srcStep, Lum8u* dst, int dstStep, LumiSize roi,
                                  Lum8u threshold);
LumStatus lumiThreshold_GT_8u_C3IR(Lum8u* srcDst, int srcDstStep, LumiSize roi, const Lum8u threshold[3]);
LumStatus lumiThreshold_GT_8u_C3R(const Lum8u* src, int srcStep, Lum8u* dst, int dstStep, LumiSize roi,
                                  const Lum8u threshold[3]);

/**
 * Limits samples below a threshold to it.
 *
 * As lumiThreshold with lumCmpOpLess.
 *
 *   threshold  the lower limit
 *
 * Returns lumStatusOk (0) or, tested in this order and before anything is written (8u 16u 16s 32f: C1):
 *   lumStatusNullPointer (-8)  a pointer is null, plane pointers included
 *   lumStatusBadSize (-6)      roi.width or roi.height is below 1
 *   lumStatusBadStep (-14)     a step is below 1
 *
 * Returns lumStatusOk (0) or, tested in this order and before anything is written (8u 16u 16s 32f: C3 AC4):
 *   lumStatusNullPointer (-8)  an image's pointer is null
 *   lumStatusBadSize (-6)      roi.width or roi.height is below 1
 *   lumStatusBadStep (-14)     a step is below 1
 *   lumStatusNullPointer (-8)  threshold is null
 */
LumStatus lumiThreshold_LT_16s_AC4IR(Lum16s* srcDst, int srcDstStep, LumiSize roi, const Lum16s threshold[3]);
LumStatus lumiThreshold_LT_16s_AC4R(const Lum16s* src, int srcStep, Lum16s* dst, int dstStep, LumiSize roi,
                                    const Lum16s threshold[3]);
LumStatus lumiThreshold_LT_16s_C1IR(Lum16s* srcDst, int srcDstStep, LumiSize roi, Lum16s threshold);
LumStatus lumiThreshold_LT_16s_C1R(const Lum16s* src, int srcStep, Lum16s* dst, int dstStep, LumiSize roi,
                                   Lum16s threshold);
LumStatus lumiThreshold_LT_16s_C3IR(Lum16s* srcDst, int srcDstStep, LumiSize roi, const Lum16s threshold[3]);
LumStatus lumiThreshold_LT_16s_C3R(const Lum16s* src, int srcStep, Lum16s* dst, int dstStep, LumiSize roi,
                                   const Lum16s threshold[3]);
LumStatus lumiThreshold_LT_16u_AC4IR(Lum16u* srcDst, int srcDstStep, LumiSize roi, const Lum16u threshold[3]);
LumStatus lumiThreshold_LT_16u_AC4R(const Lum16u* src, int srcStep, Lum16u* dst, int dstStep, LumiSize roi,
                                    const Lum16u threshold[3]);
LumStatus lumiThreshold_LT_16u_C1IR(Lum16u* srcDst, int srcDstStep, LumiSize roi, Lum16u threshold);
LumStatus lumiThreshold_LT_16u_C1R(const Lum16u* src, int srcStep, Lum16u* dst, int dstStep, LumiSize roi,
                                   Lum16u threshold);
LumStatus lumiThreshold_LT_16u_C3IR(Lum16u* srcDst, int srcDstStep, LumiSize roi, const Lum16u threshold[3]);
LumStatus lumiThreshold_LT_16u_C3R(const Lum16u* src, int srcStep, Lum16u* dst, int dstStep, LumiSize roi,
                                   const Lum16u threshold[3]);
LumStatus lumiThreshold_LT_32f_AC4IR(Lum32f* srcDst, int srcDstStep, LumiSize roi, const Lum32f threshold[3]);
LumStatus lumiThreshold_LT_32f_AC4R(const Lum32f* src, int srcStep, Lum32f* dst, int dstStep, LumiSize roi,
                                    const Lum32f threshold[3]);
LumStatus lumiThreshold_LT_32f_C1IR(Lum32f* srcDst, int srcDstStep, LumiSize roi, Lum32f threshold);
LumStatus lumiThreshold_LT_32f_C1R(const Lum32f* src, int srcStep, Lum32f* dst, int dstStep, LumiSize roi,
                                   Lum32f threshold);
LumStatus lumiThreshold_LT_32f_C3IR(Lum32f* srcDst, int srcDstStep, LumiSize roi, const Lum32f threshold[3]);
LumStatus lumiThreshold_LT_32f_C3R(const Lum32f* src, int srcStep, Lum32f* dst, int dstStep, LumiSize roi,
                                   const Lum32f threshold[3]);
LumStatus lumiThreshold_LT_8u_AC4IR(Lum8u* srcDst, int srcDstStep, LumiSize roi, const Lum8u threshold[3]);
LumStatus lumiThreshold_LT_8u_AC4R(const Lum8u* src, int srcStep, Lum8u* dst, int dstStep, LumiSize roi,
                                   const Lum8u threshold[3]);
LumStatus lumiThreshold_LT_8u_C1IR(Lum8u* srcDst, int srcDstStep, LumiSize roi, Lum8u threshold);
LumStatus lumiThreshold_LT_8u_C1R(const Lum8u* src, int srcStep, Lum8u* dst, int dstStep, LumiSize roi,
                                  Lum8u threshold);
LumStatus lumiThreshold_LT_8u_C3IR(Lum8u* srcDst, int srcDstStep, LumiSize roi, const Lum8u threshold[3]);
LumStatus lumiThreshold_LT_8u_C3R(const Lum8u* src, int srcStep, Lum8u* dst, int dstStep, LumiSize roi,
                                  const Lum8u threshold[3]);

/**
 * Replaces samples beyond a threshold by a value.
 *
 * lumCmpOpLess: samples below the threshold become the value. lumCmpOpGreater: samples above it do. Other
 * samples stay, among them those that are equal to it. C1 takes one threshold and one value, C3 and AC4 three
 * of each, one for each channel; they are read before any pixel is touched. AC4 leaves the fourth sample of
 * every pixel as it was.
 *
 * A sample that is NaN stays with lumCmpOpGreater, and becomes the value with lumCmpOpLess. All samples do so
 * where the threshold is NaN.
 *
 * The destination may be the source. Where it overlaps it otherwise, each row is done sample by sample in
 * order. Images may be misaligned in any way. Large images of 16u bypass the cache as in lumiThreshold.
 *
 *   threshold  what samples are compared with
 *   cmpOp      lumCmpOpLess or lumCmpOpGreater
 *
 * Returns lumStatusOk (0) or, tested in this order and before anything is written (8u 16u 16s 32f: C1):
 *   lumStatusUnsupportedMode (-9999) cmpOp is neither lumCmpOpLess nor lumCmpOpGreater
 *   lumStatusNullPointer (-8)  a pointer is null, plane pointers included
 *   lumStatusBadSize (-6)      roi.width or roi.height is below 1
 *   lumStatusBadStep (-14)     a step is below 1
 *
 * Returns lumStatusOk (0) or, tested in this order and before anything is written (8u 16u 16s 32f: C3 AC4):
 *   lumStatusUnsupportedMode (-9999) cmpOp is neither lumCmpOpLess nor lumCmpOpGreater
 *   lumStatusNullPointer (-8)  an image's pointer is null
 *   lumStatusBadSize (-6)      roi.width or roi.height is below 1
 *   lumStatusBadStep (-14)     a step is below 1
 *   lumStatusNullPointer (-8)  threshold or value is null
 */
LumStatus lumiThreshold_Val_16s_AC4IR(Lum16s* srcDst, int srcDstStep, LumiSize roi, const Lum16s threshold[3],
                                      const Lum16s value[3], LumCmpOp cmpOp);
LumStatus lumiThreshold_Val_16s_AC4R(const Lum16s* src, int srcStep, Lum16s* dst, int dstStep, LumiSize roi,
                                     const Lum16s threshold[3], const Lum16s value[3], LumCmpOp cmpOp);
LumStatus lumiThreshold_Val_16s_C1IR(Lum16s* srcDst, int srcDstStep, LumiSize roi, Lum16s threshold,
                                     Lum16s value, LumCmpOp cmpOp);
LumStatus lumiThreshold_Val_16s_C1R(const Lum16s* src, int srcStep, Lum16s* dst, int dstStep, LumiSize roi,
                                    Lum16s threshold, Lum16s value, LumCmpOp cmpOp);
LumStatus lumiThreshold_Val_16s_C3IR(Lum16s* srcDst, int srcDstStep, LumiSize roi, const Lum16s threshold[3],
                                     const Lum16s value[3], LumCmpOp cmpOp);
LumStatus lumiThreshold_Val_16s_C3R(const Lum16s* src, int srcStep, Lum16s* dst, int dstStep, LumiSize roi,
                                    const Lum16s threshold[3], const Lum16s value[3], LumCmpOp cmpOp);
LumStatus lumiThreshold_Val_16u_AC4IR(Lum16u* srcDst, int srcDstStep, LumiSize roi, const Lum16u threshold[3],
                                      const Lum16u value[3], LumCmpOp cmpOp);
LumStatus lumiThreshold_Val_16u_AC4R(const Lum16u* src, int srcStep, Lum16u* dst, int dstStep, LumiSize roi,
                                     const Lum16u threshold[3], const Lum16u value[3], LumCmpOp cmpOp);
LumStatus lumiThreshold_Val_16u_C1IR(Lum16u* srcDst, int srcDstStep, LumiSize roi, Lum16u threshold,
                                     Lum16u value, LumCmpOp cmpOp);
LumStatus lumiThreshold_Val_16u_C1R(const Lum16u* src, int srcStep, Lum16u* dst, int dstStep, LumiSize roi,
                                    Lum16u threshold, Lum16u value, LumCmpOp cmpOp);
LumStatus lumiThreshold_Val_16u_C3IR(Lum16u* srcDst, int srcDstStep, LumiSize roi, const Lum16u threshold[3],
                                     const Lum16u value[3], LumCmpOp cmpOp);
LumStatus lumiThreshold_Val_16u_C3R(const Lum16u* src, int srcStep, Lum16u* dst, int dstStep, LumiSize roi,
                                    const Lum16u threshold[3], const Lum16u value[3], LumCmpOp cmpOp);
LumStatus lumiThreshold_Val_32f_AC4IR(Lum32f* srcDst, int srcDstStep, LumiSize roi, const Lum32f threshold[3],
                                      const Lum32f value[3], LumCmpOp cmpOp);
LumStatus lumiThreshold_Val_32f_AC4R(const Lum32f* src, int srcStep, Lum32f* dst, int dstStep, LumiSize roi,
                                     const Lum32f threshold[3], const Lum32f value[3], LumCmpOp cmpOp);
LumStatus lumiThreshold_Val_32f_C1IR(Lum32f* srcDst, int srcDstStep, LumiSize roi, Lum32f threshold,
                                     Lum32f value, LumCmpOp cmpOp);
LumStatus lumiThreshold_Val_32f_C1R(const Lum32f* src, int srcStep, Lum32f* dst, int dstStep, LumiSize roi,
                                    Lum32f threshold, Lum32f value, LumCmpOp cmpOp);
LumStatus lumiThreshold_Val_32f_C3IR(Lum32f* srcDst, int srcDstStep, LumiSize roi, const Lum32f threshold[3],
                                     const Lum32f value[3], LumCmpOp cmpOp);
LumStatus lumiThreshold_Val_32f_C3R(const Lum32f* src, int srcStep, Lum32f* dst, int dstStep, LumiSize roi,
                                    const Lum32f threshold[3], const Lum32f value[3], LumCmpOp cmpOp);
LumStatus lumiThreshold_Val_8u_AC4IR(Lum8u* srcDst, int srcDstStep, LumiSize roi, const Lum8u threshold[3],
                                     const Lum8u value[3], LumCmpOp cmpOp);
LumStatus lumiThreshold_Val_8u_AC4R(const Lum8u* src, int srcStep, Lum8u* dst, int dstStep, LumiSize roi,
                                    const Lum8u threshold[3], const Lum8u value[3], LumCmpOp cmpOp);
LumStatus lumiThreshold_Val_8u_C1IR(Lum8u* srcDst, int srcDstStep, LumiSize roi, Lum8u threshold, Lum8u value,
                                    LumCmpOp cmpOp);
LumStatus lumiThreshold_Val_8u_C1R(const Lum8u* src, int srcStep, Lum8u* dst, int dstStep, LumiSize roi,
                                   Lum8u threshold, Lum8u value, LumCmpOp cmpOp);
LumStatus lumiThreshold_Val_8u_C3IR(Lum8u* srcDst, int srcDstStep, LumiSize roi, const Lum8u threshold[3],
                                    const Lum8u value[3], LumCmpOp cmpOp);
LumStatus lumiThreshold_Val_8u_C3R(const Lum8u* src, int srcStep, Lum8u* dst, int dstStep, LumiSize roi,
                                   const Lum8u threshold[3], const Lum8u value[3], LumCmpOp cmpOp);

/**
 * Replaces samples above a threshold by a value.
 *
 * As lumiThreshold_Val with lumCmpOpGreater; C4 takes four thresholds and values.
 *
 *   threshold  the samples above it are replaced
 *
 * Returns lumStatusOk (0) or, tested in this order and before anything is written (8u 16u 16s 32f: C1):
 *   lumStatusNullPointer (-8)  a pointer is null, plane pointers included
 *   lumStatusBadSize (-6)      roi.width or roi.height is below 1
 *   lumStatusBadStep (-14)     a step is below 1
 *
 * Returns lumStatusOk (0) or, tested in this order and before anything is written (8u 16u 16s 32f: C3 AC4 C4):
 *   lumStatusNullPointer (-8)  an image's pointer is null
 *   lumStatusBadSize (-6)      roi.width or roi.height is below 1
 *   lumStatusBadStep (-14)     a step is below 1
 *   lumStatusNullPointer (-8)  threshold or value is null
 */
LumStatus lumiThreshold_GTVal_16s_AC4IR(Lum16s* srcDst, int srcDstStep, LumiSize roi,
                                        const Lum16s threshold[3], const Lum16s value[3]);
LumStatus lumiThreshold_GTVal_16s_AC4R(const Lum16s* src, int srcStep, Lum16s* dst, int dstStep, LumiSize roi,
                                       const Lum16s threshold[3], const Lum16s value[3]);
LumStatus lumiThreshold_GTVal_16s_C1IR(Lum16s* srcDst, int srcDstStep, LumiSize roi, Lum16s threshold,
                                       Lum16s value);
LumStatus lumiThreshold_GTVal_16s_C1R(const Lum16s* src, int srcStep, Lum16s* dst, int dstStep, LumiSize roi,
                                      Lum16s threshold, Lum16s value);
LumStatus lumiThreshold_GTVal_16s_C3IR(Lum16s* srcDst, int srcDstStep, LumiSize roi,
                                       const Lum16s threshold[3], const Lum16s value[3]);
LumStatus lumiThreshold_GTVal_16s_C3R(const Lum16s* src, int srcStep, Lum16s* dst, int dstStep, LumiSize roi,
                                      const Lum16s threshold[3], const Lum16s value[3]);
LumStatus lumiThreshold_GTVal_16s_C4IR(Lum16s* srcDst, int srcDstStep, LumiSize roi,
                                       const Lum16s threshold[4], const Lum16s value[4]);
LumStatus lumiThreshold_GTVal_16s_C4R(const Lum16s* src, int srcStep, Lum16s* dst, int dstStep, LumiSize roi,
                                      const Lum16s threshold[4], const Lum16s value[4]);
LumStatus lumiThreshold_GTVal_16u_AC4IR(Lum16u* srcDst, int srcDstStep, LumiSize roi,
                                        const Lum16u threshold[3], const Lum16u value[3]);
LumStatus lumiThreshold_GTVal_16u_AC4R(const Lum16u* src, int srcStep, Lum16u* dst, int dstStep, LumiSize roi,
                                       const Lum16u threshold[3], const Lum16u value[3]);
LumStatus lumiThreshold_GTVal_16u_C1IR(Lum16u* srcDst, int srcDstStep, LumiSize roi, Lum16u threshold,
                                       Lum16u value);
LumStatus lumiThreshold_GTVal_16u_C1R(const Lum16u* src, int srcStep, Lum16u* dst, int dstStep, LumiSize roi,
                                      Lum16u threshold, Lum16u value);
LumStatus lumiThreshold_GTVal_16u_C3IR(Lum16u* srcDst, int srcDstStep, LumiSize roi,
                                       const Lum16u threshold[3], const Lum16u value[3]);
LumStatus lumiThreshold_GTVal_16u_C3R(const Lum16u* src, int srcStep, Lum16u* dst, int dstStep, LumiSize roi,
                                      const Lum16u threshold[3], const Lum16u value[3]);
LumStatus lumiThreshold_GTVal_16u_C4IR(Lum16u* srcDst, int srcDstStep, LumiSize roi,
                                       const Lum16u threshold[4], const Lum16u value[4]);
LumStatus lumiThreshold_GTVal_16u_C4R(const Lum16u* src, int srcStep, Lum16u* dst, int dstStep, LumiSize roi,
                                      const Lum16u threshold[4], const Lum16u value[4]);
LumStatus lumiThreshold_GTVal_32f_AC4IR(Lum32f* srcDst, int srcDstStep, LumiSize roi,
                                        const Lum32f threshold[3], const Lum32f value[3]);
LumStatus lumiThreshold_GTVal_32f_AC4R(const Lum32f* src, int srcStep, Lum32f* dst, int dstStep, LumiSize roi,
                                       const Lum32f threshold[3], const Lum32f value[3]);
LumStatus lumiThreshold_GTVal_32f_C1IR(Lum32f* srcDst, int srcDstStep, LumiSize roi, Lum32f threshold,
                                       Lum32f value);
LumStatus lumiThreshold_GTVal_32f_C1R(const Lum32f* src, int srcStep, Lum32f* dst, int dstStep, LumiSize roi,
                                      Lum32f threshold, Lum32f value);
LumStatus lumiThreshold_GTVal_32f_C3IR(Lum32f* srcDst, int srcDstStep, LumiSize roi,
                                       const Lum32f threshold[3], const Lum32f value[3]);
LumStatus lumiThreshold_GTVal_32f_C3R(const Lum32f* src, int srcStep, Lum32f* dst, int dstStep, LumiSize roi,
                                      const Lum32f threshold[3], const Lum32f value[3]);
LumStatus lumiThreshold_GTVal_32f_C4IR(Lum32f* srcDst, int srcDstStep, LumiSize roi,
                                       const Lum32f threshold[4], const Lum32f value[4]);
LumStatus lumiThreshold_GTVal_32f_C4R(const Lum32f* src, int srcStep, Lum32f* dst, int dstStep, LumiSize roi,
                                      const Lum32f threshold[4], const Lum32f value[4]);
LumStatus lumiThreshold_GTVal_8u_AC4IR(Lum8u* srcDst, int srcDstStep, LumiSize roi, const Lum8u threshold[3],
                                       const Lum8u value[3]);
LumStatus lumiThreshold_GTVal_8u_AC4R(const Lum8u* src, int srcStep, Lum8u* dst, int dstStep, LumiSize roi,
                                      const Lum8u threshold[3], const Lum8u value[3]);
LumStatus lumiThreshold_GTVal_8u_C1IR(Lum8u* srcDst, int srcDstStep, LumiSize roi, Lum8u threshold,
                                      Lum8u value);
LumStatus lumiThreshold_GTVal_8u_C1R(const Lum8u* src, int srcStep, Lum8u* dst, int dstStep, LumiSize roi,
                                     Lum8u threshold, Lum8u value);
LumStatus lumiThreshold_GTVal_8u_C3IR(Lum8u* srcDst, int srcDstStep, LumiSize roi, const Lum8u threshold[3],
                                      const Lum8u value[3]);
LumStatus lumiThreshold_GTVal_8u_C3R(const Lum8u* src, int srcStep, Lum8u* dst, int dstStep, LumiSize roi,
                                     const Lum8u threshold[3], const Lum8u value[3]);
LumStatus lumiThreshold_GTVal_8u_C4IR(Lum8u* srcDst, int srcDstStep, LumiSize roi, const Lum8u threshold[4],
                                      const Lum8u value[4]);
LumStatus lumiThreshold_GTVal_8u_C4R(const Lum8u* src, int srcStep, Lum8u* dst, int dstStep, LumiSize roi,
                                     const Lum8u threshold[4], const Lum8u value[4]);

/**
 * Replaces samples below a threshold by a value.
 *
 * As lumiThreshold_Val with lumCmpOpLess; C4 takes four thresholds and values.
 *
 *   threshold  the samples below it are replaced
 *
 * Returns lumStatusOk (0) or, tested in this order and before anything is written (8u 16u 16s 32f: C1):
 *   lumStatusNullPointer (-8)  a pointer is null, plane pointers included
 *   lumStatusBadSize (-6)      roi.width or roi.height is below 1
 *   lumStatusBadStep (-14)     a step is below 1
 *
 * Returns lumStatusOk (0) or, tested in this order and before anything is written (8u 16u 16s 32f: C3 AC4 C4):
 *   lumStatusNullPointer (-8)  an image's pointer is null
 *   lumStatusBadSize (-6)      roi.width or roi.height is below 1
 *   lumStatusBadStep (-14)     a step is below 1
 *   lumStatusNullPointer (-8)  threshold or value is null
 */
LumStatus lumiThreshold_LTVal_16s_AC4IR(Lum16s* srcDst, int srcDstStep, LumiSize roi,
                                        const Lum16s threshold[3], const Lum16s value[3]);
LumStatus lumiThreshold_LTVal_16s_AC4R(const Lum16s* src, int srcStep, Lum16s* dst, int dstStep, LumiSize roi,
                                       const Lum16s threshold[3], const Lum16s value[3]);
LumStatus lumiThreshold_LTVal_16s_C1IR(Lum16s* srcDst, int srcDstStep, LumiSize roi, Lum16s threshold,
                                       Lum16s value);
LumStatus lumiThreshold_LTVal_16s_C1R(const Lum16s* src, int srcStep, Lum16s* dst, int dstStep, LumiSize roi,
                                      Lum16s threshold, Lum16s value);
LumStatus lumiThreshold_LTVal_16s_C3IR(Lum16s* srcDst, int srcDstStep, LumiSize roi,
                                       const Lum16s threshold[3], const Lum16s value[3]);
LumStatus lumiThreshold_LTVal_16s_C3R(const Lum16s* src, int srcStep, Lum16s* dst, int dstStep, LumiSize roi,
                                      const Lum16s threshold[3], const Lum16s value[3]);
LumStatus lumiThreshold_LTVal_16s_C4IR(Lum16s* srcDst, int srcDstStep, LumiSize roi,
                                       const Lum16s threshold[4], const Lum16s value[4]);
LumStatus lumiThreshold_LTVal_16s_C4R(const Lum16s* src, int srcStep, Lum16s* dst, int dstStep, LumiSize roi,
                                      const Lum16s threshold[4], const Lum16s value[4]);
LumStatus lumiThreshold_LTVal_16u_AC4IR(Lum16u* srcDst, int srcDstStep, LumiSize roi,
                                        const Lum16u threshold[3], const Lum16u value[3]);
LumStatus lumiThreshold_LTVal_16u_AC4R(const Lum16u* src, int srcStep, Lum16u* dst, int dstStep, LumiSize roi,
                                       const Lum16u threshold[3], const Lum16u value[3]);
LumStatus lumiThreshold_LTVal_16u_C1IR(Lum16u* srcDst, int srcDstStep, LumiSize roi, Lum16u threshold,
                                       Lum16u value);
LumStatus lumiThreshold_LTVal_16u_C1R(const Lum16u* src, int srcStep, Lum16u* dst, int dstStep, LumiSize roi,
                                      Lum16u threshold, Lum16u value);
LumStatus lumiThreshold_LTVal_16u_C3IR(Lum16u* srcDst, int srcDstStep, LumiSize roi,
                                       const Lum16u threshold[3], const Lum16u value[3]);
LumStatus lumiThreshold_LTVal_16u_C3R(const Lum16u* src, int srcStep, Lum16u* dst, int dstStep, LumiSize roi,
                                      const Lum16u threshold[3], const Lum16u value[3]);
LumStatus lumiThreshold_LTVal_16u_C4IR(Lum16u* srcDst, int srcDstStep, LumiSize roi,
                                       const Lum16u threshold[4], const Lum16u value[4]);
LumStatus lumiThreshold_LTVal_16u_C4R(const Lum16u* src, int srcStep, Lum16u* dst, int dstStep, LumiSize roi,
                                      const Lum16u threshold[4], const Lum16u value[4]);
LumStatus lumiThreshold_LTVal_32f_AC4IR(Lum32f* srcDst, int srcDstStep, LumiSize roi,
                                        const Lum32f threshold[3], const Lum32f value[3]);
LumStatus lumiThreshold_LTVal_32f_AC4R(const Lum32f* src, int srcStep, Lum32f* dst, int dstStep, LumiSize roi,
                                       const Lum32f threshold[3], const Lum32f value[3]);
LumStatus lumiThreshold_LTVal_32f_C1IR(Lum32f* srcDst, int srcDstStep, LumiSize roi, Lum32f threshold,
                                       Lum32f value);
LumStatus lumiThreshold_LTVal_32f_C1R(const Lum32f* src, int srcStep, Lum32f* dst, int dstStep, LumiSize roi,
                                      Lum32f threshold, Lum32f value);
LumStatus lumiThreshold_LTVal_32f_C3IR(Lum32f* srcDst, int srcDstStep, LumiSize roi,
                                       const Lum32f threshold[3], const Lum32f value[3]);
LumStatus lumiThreshold_LTVal_32f_C3R(const Lum32f* src, int srcStep, Lum32f* dst, int dstStep, LumiSize roi,
                                      const Lum32f threshold[3], const Lum32f value[3]);
LumStatus lumiThreshold_LTVal_32f_C4IR(Lum32f* srcDst, int srcDstStep, LumiSize roi,
                                       const Lum32f threshold[4], const Lum32f value[4]);
LumStatus lumiThreshold_LTVal_32f_C4R(const Lum32f* src, int srcStep, Lum32f* dst, int dstStep, LumiSize roi,
                                      const Lum32f threshold[4], const Lum32f value[4]);
LumStatus lumiThreshold_LTVal_8u_AC4IR(Lum8u* srcDst, int srcDstStep, LumiSize roi, const Lum8u threshold[3],
                                       const Lum8u value[3]);
LumStatus lumiThreshold_LTVal_8u_AC4R(const Lum8u* src, int srcStep, Lum8u* dst, int dstStep, LumiSize roi,
                                      const Lum8u threshold[3], const Lum8u value[3]);
LumStatus lumiThreshold_LTVal_8u_C1IR(Lum8u* srcDst, int srcDstStep, LumiSize roi, Lum8u threshold,
                                      Lum8u value);
LumStatus lumiThreshold_LTVal_8u_C1R(const Lum8u* src, int srcStep, Lum8u* dst, int dstStep, LumiSize roi,
                                     Lum8u threshold, Lum8u value);
LumStatus lumiThreshold_LTVal_8u_C3IR(Lum8u* srcDst, int srcDstStep, LumiSize roi, const Lum8u threshold[3],
                                      const Lum8u value[3]);
LumStatus lumiThreshold_LTVal_8u_C3R(const Lum8u* src, int srcStep, Lum8u* dst, int dstStep, LumiSize roi,
                                     const Lum8u threshold[3], const Lum8u value[3]);
LumStatus lumiThreshold_LTVal_8u_C4IR(Lum8u* srcDst, int srcDstStep, LumiSize roi, const Lum8u threshold[4],
                                      const Lum8u value[4]);
LumStatus lumiThreshold_LTVal_8u_C4R(const Lum8u* src, int srcStep, Lum8u* dst, int dstStep, LumiSize roi,
                                     const Lum8u threshold[4], const Lum8u value[4]);

/**
 * Replaces samples below one threshold and above another by a value for each.
 *
 * Samples below thresholdLT become valueLT, those above thresholdGT become valueGT, others stay. All else is
 * as in lumiThreshold_Val, but for NaN, which becomes valueLT. Thresholds may be equal. A thresholdGT that is
 * NaN has no samples above it; with a thresholdLT that is NaN all samples become valueLT but those above
 * thresholdGT.
 *
 *   thresholdLT the samples below it are replaced
 *   valueLT    what they become
 *   thresholdGT the samples above it are replaced
 *   valueGT    what they become
 *
 * Returns lumStatusOk (0) or, tested in this order and before anything is written (8u 16u 16s 32f: C1):
 *   lumStatusNullPointer (-8)  a pointer is null, plane pointers included
 *   lumStatusBadSize (-6)      roi.width or roi.height is below 1
 *   lumStatusBadStep (-14)     a step is below 1
 *   lumStatusBadThresholdOrder (-18) thresholdLT is above thresholdGT, in any channel
 *
 * Returns lumStatusOk (0) or, tested in this order and before anything is written (8u 16u 16s 32f: C3 AC4):
 *   lumStatusNullPointer (-8)  an image's pointer is null
 *   lumStatusBadSize (-6)      roi.width or roi.height is below 1
 *   lumStatusBadStep (-14)     a step is below 1
 *   lumStatusNullPointer (-8)  thresholdLT or valueLT or thresholdGT or valueGT is null
 *   lumStatusBadThresholdOrder (-18) thresholdLT is above thresholdGT, in any channel
 */
LumStatus lumiThreshold_LTValGTVal_16s_AC4IR(Lum16s* srcDst, int srcDstStep, LumiSize roi,
                                             const Lum16s thresholdLT[3], const Lum16s valueLT[3],
                                             const Lum16s thresholdGT[3], const Lum16s valueGT[3]);
LumStatus lumiThreshold_LTValGTVal_16s_AC4R(const Lum16s* src, int srcStep, Lum16s* dst, int dstStep,
                                            LumiSize roi, const Lum16s thresholdLT[3],
                                            const Lum16s valueLT[3], const Lum16s thresholdGT[3],
                                            const Lum16s valueGT[3]);
LumStatus lumiThreshold_LTValGTVal_16s_C1IR(Lum16s* srcDst, int srcDstStep, LumiSize roi, Lum16s thresholdLT,
                                            Lum16s valueLT, Lum16s thresholdGT, Lum16s valueGT);
LumStatus lumiThreshold_LTValGTVal_16s_C1R(const Lum16s* src, int srcStep, Lum16s* dst, int dstStep,
                                           LumiSize roi, Lum16s thresholdLT, Lum16s valueLT,
                                           Lum16s thresholdGT, Lum16s valueGT);
LumStatus lumiThreshold_LTValGTVal_16s_C3IR(Lum16s* srcDst, int srcDstStep, LumiSize roi,
                                            const Lum16s thresholdLT[3], const Lum16s valueLT[3],
                                            const Lum16s thresholdGT[3], const Lum16s valueGT[3]);
LumStatus lumiThreshold_LTValGTVal_16s_C3R(const Lum16s* src, int srcStep, Lum16s* dst, int dstStep,
                                           LumiSize roi, const Lum16s thresholdLT[3], const Lum16s valueLT[3],
                                           const Lum16s thresholdGT[3], const Lum16s valueGT[3]);
LumStatus lumiThreshold_LTValGTVal_16u_AC4IR(Lum16u* srcDst, int srcDstStep, LumiSize roi,
                                             const Lum16u thresholdLT[3], const Lum16u valueLT[3],
                                             const Lum16u thresholdGT[3], const Lum16u valueGT[3]);
LumStatus lumiThreshold_LTValGTVal_16u_AC4R(const Lum16u* src, int srcStep, Lum16u* dst, int dstStep,
                                            LumiSize roi, const Lum16u thresholdLT[3],
                                            const Lum16u valueLT[3], const Lum16u thresholdGT[3],
                                            const Lum16u valueGT[3]);
LumStatus lumiThreshold_LTValGTVal_16u_C1IR(Lum16u* srcDst, int srcDstStep, LumiSize roi, Lum16u thresholdLT,
                                            Lum16u valueLT, Lum16u thresholdGT, Lum16u valueGT);
LumStatus lumiThreshold_LTValGTVal_16u_C1R(const Lum16u* src, int srcStep, Lum16u* dst, int dstStep,
                                           LumiSize roi, Lum16u thresholdLT, Lum16u valueLT,
                                           Lum16u thresholdGT, Lum16u valueGT);
LumStatus lumiThreshold_LTValGTVal_16u_C3IR(Lum16u* srcDst, int srcDstStep, LumiSize roi,
                                            const Lum16u thresholdLT[3], const Lum16u valueLT[3],
                                            const Lum16u thresholdGT[3], const Lum16u valueGT[3]);
LumStatus lumiThreshold_LTValGTVal_16u_C3R(const Lum16u* src, int srcStep, Lum16u* dst, int dstStep,
                                           LumiSize roi, const Lum16u thresholdLT[3], const Lum16u valueLT[3],
                                           const Lum16u thresholdGT[3], const Lum16u valueGT[3]);
LumStatus lumiThreshold_LTValGTVal_32f_AC4IR(Lum32f* srcDst, int srcDstStep, LumiSize roi,
                                             const Lum32f thresholdLT[3], const Lum32f valueLT[3],
                                             const Lum32f thresholdGT[3], const Lum32f valueGT[3]);
LumStatus lumiThreshold_LTValGTVal_32f_AC4R(const Lum32f* src, int srcStep, Lum32f* dst, int dstStep,
                                            LumiSize roi, const Lum32f thresholdLT[3],
                                            const Lum32f valueLT[3], const Lum32f thresholdGT[3],
                                            const Lum32f valueGT[3]);
LumStatus lumiThreshold_LTValGTVal_32f_C1IR(Lum32f* srcDst, int srcDstStep, LumiSize roi, Lum32f thresholdLT,
                                            Lum32f valueLT, Lum32f thresholdGT, Lum32f valueGT);
LumStatus lumiThreshold_LTValGTVal_32f_C1R(const Lum32f* src, int srcStep, Lum32f* dst, int dstStep,
                                           LumiSize roi, Lum32f thresholdLT, Lum32f valueLT,
                                           Lum32f thresholdGT, Lum32f valueGT);
LumStatus lumiThreshold_LTValGTVal_32f_C3IR(Lum32f* srcDst, int srcDstStep, LumiSize roi,
                                            const Lum32f thresholdLT[3], const Lum32f valueLT[3],
                                            const Lum32f thresholdGT[3], const Lum32f valueGT[3]);
LumStatus lumiThreshold_LTValGTVal_32f_C3R(const Lum32f* src, int srcStep, Lum32f* dst, int dstStep,
                                           LumiSize roi, const Lum32f thresholdLT[3], const Lum32f valueLT[3],
                                           const Lum32f thresholdGT[3], const Lum32f valueGT[3]);
LumStatus lumiThreshold_LTValGTVal_8u_AC4IR(Lum8u* srcDst, int srcDstStep, LumiSize roi,
                                            const Lum8u thresholdLT[3], const Lum8u valueLT[3],
                                            const Lum8u thresholdGT[3], const Lum8u valueGT[3]);
LumStatus lumiThreshold_LTValGTVal_8u_AC4R(const Lum8u* src, int srcStep, Lum8u* dst, int dstStep,
                                           LumiSize roi, const Lum8u thresholdLT[3], const Lum8u valueLT[3],
                                           const Lum8u thresholdGT[3], const Lum8u valueGT[3]);
LumStatus lumiThreshold_LTValGTVal_8u_C1IR(Lum8u* srcDst, int srcDstStep, LumiSize roi, Lum8u thresholdLT,
                                           Lum8u valueLT, Lum8u thresholdGT, Lum8u valueGT);
LumStatus lumiThreshold_LTValGTVal_8u_C1R(const Lum8u* src, int srcStep, Lum8u* dst, int dstStep,
                                          LumiSize roi, Lum8u thresholdLT, Lum8u valueLT, Lum8u thresholdGT,
                                          Lum8u valueGT);
LumStatus lumiThreshold_LTValGTVal_8u_C3IR(Lum8u* srcDst, int srcDstStep, LumiSize roi,
                                           const Lum8u thresholdLT[3], const Lum8u valueLT[3],
                                           const Lum8u thresholdGT[3], const Lum8u valueGT[3]);
LumStatus lumiThreshold_LTValGTVal_8u_C3R(const Lum8u* src, int srcStep, Lum8u* dst, int dstStep,
                                          LumiSize roi, const Lum8u thresholdLT[3], const Lum8u valueLT[3],
                                          const Lum8u thresholdGT[3], const Lum8u valueGT[3]);

#ifdef __cplusplus
}
#endif

#endif
