/* SPDX-License-Identifier: MIT */
/* Generated from registry/data/extremes.reg by tools/lumigen; edit that instead. */
/** @file The larger or the smaller of two samples. */
#ifndef LUMI_EXTREMES_H
#define LUMI_EXTREMES_H

#include "types.h"

#ifdef __cplusplus
extern "C" {
#endif

/**
 * Stores the larger of two samples.
 *
 * srcDst(x, y) = max(src(x, y), srcDst(x, y)) in each channel. AC4 leaves the fourth sample of every pixel as
 * it was. Of floats, srcDst stays where either is NaN, and where both are zero.
 *
 * Both images may be one. Where they overlap otherwise, each row is done sample by sample in order. Images may
 * be misaligned in any way.
 *
 * Returns lumStatusOk (0) or, tested in this order and before anything is written:
 *   lumStatusNullPointer (-8)  a pointer is null, plane pointers included
 *   lumStatusBadSize (-6)      roi.width or roi.height is below 1
 *   lumStatusBadStep (-14)     a step is below 1
 */
LumStatus lumiMaxEvery_16s_AC4IR(const Lum16s* src, int srcStep, Lum16s* srcDst, int srcDstStep,
                                 LumiSize roi);
LumStatus lumiMaxEvery_16s_C1IR(const Lum16s* src, int srcStep, Lum16s* srcDst, int srcDstStep, LumiSize roi);
LumStatus lumiMaxEvery_16s_C3IR(const Lum16s* src, int srcStep, Lum16s* srcDst, int srcDstStep, LumiSize roi);
LumStatus lumiMaxEvery_16s_C4IR(const Lum16s* src, int srcStep, Lum16s* srcDst, int srcDstStep, LumiSize roi);
LumStatus lumiMaxEvery_16u_AC4IR(const Lum16u* src, int srcStep, Lum16u* srcDst, int srcDstStep,
                                 LumiSize roi);
LumStatus lumiMaxEvery_16u_C1IR(const Lum16u* src, int srcStep, Lum16u* srcDst, int srcDstStep, LumiSize roi);
LumStatus lumiMaxEvery_16u_C3IR(const Lum16u* src, int srcStep, Lum16u* srcDst, int srcDstStep, LumiSize roi);
LumStatus lumiMaxEvery_16u_C4IR(const Lum16u* src, int srcStep, Lum16u* srcDst, int srcDstStep, LumiSize roi);
LumStatus lumiMaxEvery_32f_AC4IR(const Lum32f* src, int srcStep, Lum32f* srcDst, int srcDstStep,
                                 LumiSize roi);
LumStatus lumiMaxEvery_32f_C1IR(const Lum32f* src, int srcStep, Lum32f* srcDst, int srcDstStep, LumiSize roi);
LumStatus lumiMaxEvery_32f_C3IR(const Lum32f* src, int srcStep, Lum32f* srcDst, int srcDstStep, LumiSize roi);
LumStatus lumiMaxEvery_32f_C4IR(const Lum32f* src, int srcStep, Lum32f* srcDst, int srcDstStep, LumiSize roi);
LumStatus lumiMaxEvery_8u_AC4IR(const Lum8u* src, int srcStep, Lum8u* srcDst, int srcDstStep, LumiSize roi);
LumStatus lumiMaxEvery_8u_C1IR(const Lum8u* src, int srcStep, Lum8u* srcDst, int srcDstStep, LumiSize roi);
LumStatus lumiMaxEvery_8u_C3IR(const Lum8u* src, int srcStep, Lum8u* srcDst, int srcDstStep, LumiSize roi);
LumStatus lumiMaxEvery_8u_C4IR(const Lum8u* src, int srcStep, Lum8u* srcDst, int srcDstStep, LumiSize roi);

/**
 * Stores the smaller of two samples.
 *
 * srcDst(x, y) = min(src(x, y), srcDst(x, y)) in each channel. All else is as in lumiMaxEvery.
 *
 * Returns lumStatusOk (0) or, tested in this order and before anything is written:
 *   lumStatusNullPointer (-8)  a pointer is null, plane pointers included
 *   lumStatusBadSize (-6)      roi.width or roi.height is below 1
 *   lumStatusBadStep (-14)     a step is below 1
 */
LumStatus lumiMinEvery_16s_AC4IR(const Lum16s* src, int srcStep, Lum16s* srcDst, int srcDstStep,
                                 LumiSize roi);
LumStatus lumiMinEvery_16s_C1IR(const Lum16s* src, int srcStep, Lum16s* srcDst, int srcDstStep, LumiSize roi);
LumStatus lumiMinEvery_16s_C3IR(const Lum16s* src, int srcStep, Lum16s* srcDst, int srcDstStep, LumiSize roi);
LumStatus lumiMinEvery_16s_C4IR(const Lum16s* src, int srcStep, Lum16s* srcDst, int srcDstStep, LumiSize roi);
LumStatus lumiMinEvery_16u_AC4IR(const Lum16u* src, int srcStep, Lum16u* srcDst, int srcDstStep,
                                 LumiSize roi);
LumStatus lumiMinEvery_16u_C1IR(const Lum16u* src, int srcStep, Lum16u* srcDst, int srcDstStep, LumiSize roi);
LumStatus lumiMinEvery_16u_C3IR(const Lum16u* src, int srcStep, Lum16u* srcDst, int srcDstStep, LumiSize roi);
LumStatus lumiMinEvery_16u_C4IR(const Lum16u* src, int srcStep, Lum16u* srcDst, int srcDstStep, LumiSize roi);
LumStatus lumiMinEvery_32f_AC4IR(const Lum32f* src, int srcStep, Lum32f* srcDst, int srcDstStep,
                                 LumiSize roi);
LumStatus lumiMinEvery_32f_C1IR(const Lum32f* src, int srcStep, Lum32f* srcDst, int srcDstStep, LumiSize roi);
LumStatus lumiMinEvery_32f_C3IR(const Lum32f* src, int srcStep, Lum32f* srcDst, int srcDstStep, LumiSize roi);
LumStatus lumiMinEvery_32f_C4IR(const Lum32f* src, int srcStep, Lum32f* srcDst, int srcDstStep, LumiSize roi);
LumStatus lumiMinEvery_8u_AC4IR(const Lum8u* src, int srcStep, Lum8u* srcDst, int srcDstStep, LumiSize roi);
LumStatus lumiMinEvery_8u_C1IR(const Lum8u* src, int srcStep, Lum8u* srcDst, int srcDstStep, LumiSize roi);
LumStatus lumiMinEvery_8u_C3IR(const Lum8u* src, int srcStep, Lum8u* srcDst, int srcDstStep, LumiSize roi);
LumStatus lumiMinEvery_8u_C4IR(const Lum8u* src, int srcStep, Lum8u* srcDst, int srcDstStep, LumiSize roi);

#ifdef __cplusplus
}
#endif

#endif
