/* SPDX-License-Identifier: MIT */
/* Generated from registry/filters/filter_sobel.reg by tools/lumigen; edit that instead. */
/** @file Sobel magnitudes. */
#ifndef LUMI_FILTER_SOBEL_H
#define LUMI_FILTER_SOBEL_H

#include "types.h"

#ifdef __cplusplus
extern "C" {
#endif

/**
 * Tells the size of the buffer of lumiFilterSobel.
 *
 * It is that of lumiGradientVectorGetBufferSize for the source's type.
 *
 * Checked in this order; on an error nothing is written:
 *   lumStatusBadMaskSize (-33)      mask is neither lumiMask3x3 nor lumiMask5x5
 *   lumStatusBadArgument (-5)       norm is neither 2 nor 4
 *   lumStatusBadDataType (-12)      the types are not lumiData8u and lumiData16s, nor lumiData16u, 16s or 32f and
 *                                   lumiData32f
 *   lumStatusBadChannelCount (-53)  channels is not 1
 *   lumStatusNullPointer (-8)       size is null
 *   lumStatusBadSize (-6)           roi.width or roi.height is below 1
 *
 *   roi        of the runs
 *   mask       lumiMask3x3 or lumiMask5x5
 *   norm       2 or 4
 *   srcType    of the source
 *   dstType    of the destination
 *   channels   samples of a pixel: 1
 *   size       receives the size in bytes
 */
LumStatus lumiFilterSobelGetBufferSize(LumiSize roi, LumiMaskSize mask, int norm, LumiDataType srcType,
                                       LumiDataType dstType, int channels, int* size);

/**
 * Stores how steeply an image rises, by masks of Sobel.
 *
 * dst is what lumiGradientVectorSobel stores as the magnitude, by the same masks, norms and borders.
 *
 * Checked in this order; on an error nothing is written:
 *   lumStatusNullPointer (-8)  src, dst or buffer is null
 *   lumStatusBadSize (-6)      roi.width or roi.height is below 1
 *   lumStatusOddStep (-108)    a step is no multiple of its sample size
 *   lumStatusBadMaskSize (-33) mask is neither lumiMask3x3 nor lumiMask5x5
 *   lumStatusBadArgument (-5)  norm is neither 2 nor 4
 *   lumStatusBadArgument (-5)  the low four bits of border are not 0, 1 or 6, or border is above 255
 *   lumStatusBadStep (-14)     a step is below 1
 *
 *   mask       lumiMask3x3 or lumiMask5x5
 *   norm       2 for |gx| + |gy|, 4 for the root of gx * gx + gy * gy
 *   border     lumiBorderConst, lumiBorderReplicate or lumiBorderInMemory, and flags
 *   borderValue the constant
 *   buffer     scratch memory of the size that lumiFilterSobelGetBufferSize tells
 */
LumStatus lumiFilterSobel_16s32f_C1R(const Lum16s* src, int srcStep, Lum32f* dst, int dstStep, LumiSize roi,
                                     LumiMaskSize mask, int norm, LumiBorderType border, Lum16s borderValue,
                                     Lum8u* buffer);
LumStatus lumiFilterSobel_16u32f_C1R(const Lum16u* src, int srcStep, Lum32f* dst, int dstStep, LumiSize roi,
                                     LumiMaskSize mask, int norm, LumiBorderType border, Lum16u borderValue,
                                     Lum8u* buffer);
LumStatus lumiFilterSobel_32f_C1R(const Lum32f* src, int srcStep, Lum32f* dst, int dstStep, LumiSize roi,
                                  LumiMaskSize mask, int norm, LumiBorderType border, Lum32f borderValue,
                                  Lum8u* buffer);
LumStatus lumiFilterSobel_8u16s_C1R(const Lum8u* src, int srcStep, Lum16s* dst, int dstStep, LumiSize roi,
                                    LumiMaskSize mask, int norm, LumiBorderType border, Lum8u borderValue,
                                    Lum8u* buffer);

#ifdef __cplusplus
}
#endif

#endif
