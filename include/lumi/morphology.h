/* SPDX-License-Identifier: MIT */
/* Generated from registry/filters/morphology.reg by tools/lumigen; edit that instead. */
/** @file Dilation and erosion. */
#ifndef LUMI_MORPHOLOGY_H
#define LUMI_MORPHOLOGY_H

#include "types.h"

#ifdef __cplusplus
extern "C" {
#endif

/**
 * Replaces each sample by the largest one of those that a mask selects around it, channel by channel.
 *
 * The mask is maskSize.width * maskSize.height bytes, row after row without gaps. Where its element (i, j), in
 * column i and row j, is not zero,
 *
 *   src(x + i - anchor.x, y + j - anchor.y)
 *
 * is one of the samples whose largest is dst(x, y). The mask is not turned: what grows in the image is its
 * reflection. All pixels of the rectangle may be read, those that the mask leaves out and those outside the
 * ROI too: the caller sees to it that they are in memory. AC4 leaves the fourth sample of every pixel as it was.
 *
 * In 32f results are finite: infinities count as the largest number of their sign, and a NaN as the least
 * one, -FLT_MAX. Where zeros of both signs are the largest, the one that comes first in the mask, row after
 * row, is stored.
 *
 * Source and destination may be the same image of one step, which gives what separate ones do; they must not
 * overlap otherwise.
 *
 * Checked in this order; on an error nothing is written:
 *   lumStatusNullPointer (-8)   src, dst or mask is null
 *   lumStatusBadStep (-14)      a step is below 1
 *   lumStatusBadSize (-6)       roi.width or roi.height is below 1
 *   lumStatusBadMaskSize (-33)  maskSize.width or maskSize.height is below 1
 *   lumStatusZeroMask (-59)     all of the mask is zero
 *   lumStatusBadAnchor (-34)    anchor is outside the mask
 *   lumStatusStepTooSmall (-37) srcStep is below the bytes of roi.width + maskSize.width - 1 pixels, or dstStep
 *                               below those of roi.width
 *   lumStatusNoMemory (-9)      no memory for what the call needs
 *
 *   mask       what is selected, not zero
 *   maskSize   columns and rows of the mask
 *   anchor     the pixel's column and row in the mask
 */
LumStatus lumiDilate_16u_AC4IR(Lum16u* srcDst, int srcDstStep, LumiSize roi, const Lum8u* mask,
                               LumiSize maskSize, LumiPoint anchor);
LumStatus lumiDilate_16u_AC4R(const Lum16u* src, int srcStep, Lum16u* dst, int dstStep, LumiSize roi,
                              const Lum8u* mask, LumiSize maskSize, LumiPoint anchor);
LumStatus lumiDilate_16u_C1IR(Lum16u* srcDst, int srcDstStep, LumiSize roi, const Lum8u* mask,
                              LumiSize maskSize, LumiPoint anchor);
LumStatus lumiDilate_16u_C1R(const Lum16u* src, int srcStep, Lum16u* dst, int dstStep, LumiSize roi,
                             const Lum8u* mask, LumiSize maskSize, LumiPoint anchor);
LumStatus lumiDilate_16u_C3IR(Lum16u* srcDst, int srcDstStep, LumiSize roi, const Lum8u* mask,
                              LumiSize maskSize, LumiPoint anchor);
LumStatus lumiDilate_16u_C3R(const Lum16u* src, int srcStep, Lum16u* dst, int dstStep, LumiSize roi,
                             const Lum8u* mask, LumiSize maskSize, LumiPoint anchor);
LumStatus lumiDilate_16u_C4R(const Lum16u* src, int srcStep, Lum16u* dst, int dstStep, LumiSize roi,
                             const Lum8u* mask, LumiSize maskSize, LumiPoint anchor);
LumStatus lumiDilate_32f_AC4IR(Lum32f* srcDst, int srcDstStep, LumiSize roi, const Lum8u* mask,
                               LumiSize maskSize, LumiPoint anchor);
LumStatus lumiDilate_32f_AC4R(const Lum32f* src, int srcStep, Lum32f* dst, int dstStep, LumiSize roi,
                              const Lum8u* mask, LumiSize maskSize, LumiPoint anchor);
LumStatus lumiDilate_32f_C1IR(Lum32f* srcDst, int srcDstStep, LumiSize roi, const Lum8u* mask,
                              LumiSize maskSize, LumiPoint anchor);
LumStatus lumiDilate_32f_C1R(const Lum32f* src, int srcStep, Lum32f* dst, int dstStep, LumiSize roi,
                             const Lum8u* mask, LumiSize maskSize, LumiPoint anchor);
LumStatus lumiDilate_32f_C3IR(Lum32f* srcDst, int srcDstStep, LumiSize roi, const Lum8u* mask,
                              LumiSize maskSize, LumiPoint anchor);
LumStatus lumiDilate_32f_C3R(const Lum32f* src, int srcStep, Lum32f* dst, int dstStep, LumiSize roi,
                             const Lum8u* mask, LumiSize maskSize, LumiPoint anchor);
LumStatus lumiDilate_32f_C4R(const Lum32f* src, int srcStep, Lum32f* dst, int dstStep, LumiSize roi,
                             const Lum8u* mask, LumiSize maskSize, LumiPoint anchor);
LumStatus lumiDilate_8u_AC4IR(Lum8u* srcDst, int srcDstStep, LumiSize roi, const Lum8u* mask,
                              LumiSize maskSize, LumiPoint anchor);
LumStatus lumiDilate_8u_AC4R(const Lum8u* src, int srcStep, Lum8u* dst, int dstStep, LumiSize roi,
                             const Lum8u* mask, LumiSize maskSize, LumiPoint anchor);
LumStatus lumiDilate_8u_C1IR(Lum8u* srcDst, int srcDstStep, LumiSize roi, const Lum8u* mask,
                             LumiSize maskSize, LumiPoint anchor);
LumStatus lumiDilate_8u_C1R(const Lum8u* src, int srcStep, Lum8u* dst, int dstStep, LumiSize roi,
                            const Lum8u* mask, LumiSize maskSize, LumiPoint anchor);
LumStatus lumiDilate_8u_C3IR(Lum8u* srcDst, int srcDstStep, LumiSize roi, const Lum8u* mask,
                             LumiSize maskSize, LumiPoint anchor);
LumStatus lumiDilate_8u_C3R(const Lum8u* src, int srcStep, Lum8u* dst, int dstStep, LumiSize roi,
                            const Lum8u* mask, LumiSize maskSize, LumiPoint anchor);
LumStatus lumiDilate_8u_C4R(const Lum8u* src, int srcStep, Lum8u* dst, int dstStep, LumiSize roi,
                            const Lum8u* mask, LumiSize maskSize, LumiPoint anchor);

/**
 * Replaces each sample by the smallest one of those that a mask selects around it, channel by channel.
 *
 * All is as in lumiDilate, but that a NaN counts as FLT_MAX. The statuses are:
 *
 *   lumStatusNullPointer (-8)   src, dst or mask is null
 *   lumStatusBadStep (-14)      a step is below 1
 *   lumStatusBadSize (-6)       roi.width or roi.height is below 1
 *   lumStatusBadMaskSize (-33)  maskSize.width or maskSize.height is below 1
 *   lumStatusZeroMask (-59)     all of the mask is zero
 *   lumStatusBadAnchor (-34)    anchor is outside the mask
 *   lumStatusStepTooSmall (-37) srcStep is below the bytes of roi.width + maskSize.width - 1 pixels, or dstStep
 *                               below those of roi.width
 *   lumStatusNoMemory (-9)      no memory for what the call needs
 *
 *   mask       what is selected, not zero
 *   maskSize   columns and rows of the mask
 *   anchor     the pixel's column and row in the mask
 */
LumStatus lumiErode_16u_AC4IR(Lum16u* srcDst, int srcDstStep, LumiSize roi, const Lum8u* mask,
                              LumiSize maskSize, LumiPoint anchor);
LumStatus lumiErode_16u_AC4R(const Lum16u* src, int srcStep, Lum16u* dst, int dstStep, LumiSize roi,
                             const Lum8u* mask, LumiSize maskSize, LumiPoint anchor);
LumStatus lumiErode_16u_C1IR(Lum16u* srcDst, int srcDstStep, LumiSize roi, const Lum8u* mask,
                             LumiSize maskSize, LumiPoint anchor);
LumStatus lumiErode_16u_C1R(const Lum16u* src, int srcStep, Lum16u* dst, int dstStep, LumiSize roi,
                            const Lum8u* mask, LumiSize maskSize, LumiPoint anchor);
LumStatus lumiErode_16u_C3IR(Lum16u* srcDst, int srcDstStep, LumiSize roi, const Lum8u* mask,
                             LumiSize maskSize, LumiPoint anchor);
LumStatus lumiErode_16u_C3R(const Lum16u* src, int srcStep, Lum16u* dst, int dstStep, LumiSize roi,
                            const Lum8u* mask, LumiSize maskSize, LumiPoint anchor);
LumStatus lumiErode_16u_C4R(const Lum16u* src, int srcStep, Lum16u* dst, int dstStep, LumiSize roi,
                            const Lum8u* mask, LumiSize maskSize, LumiPoint anchor);
LumStatus lumiErode_32f_AC4IR(Lum32f* srcDst, int srcDstStep, LumiSize roi, const Lum8u* mask,
                              LumiSize maskSize, LumiPoint anchor);
LumStatus lumiErode_32f_AC4R(const Lum32f* src, int srcStep, Lum32f* dst, int dstStep, LumiSize roi,
                             const Lum8u* mask, LumiSize maskSize, LumiPoint anchor);
LumStatus lumiErode_32f_C1IR(Lum32f* srcDst, int srcDstStep, LumiSize roi, const Lum8u* mask,
                             LumiSize maskSize, LumiPoint anchor);
LumStatus lumiErode_32f_C1R(const Lum32f* src, int srcStep, Lum32f* dst, int dstStep, LumiSize roi,
                            const Lum8u* mask, LumiSize maskSize, LumiPoint anchor);
LumStatus lumiErode_32f_C3IR(Lum32f* srcDst, int srcDstStep, LumiSize roi, const Lum8u* mask,
                             LumiSize maskSize, LumiPoint anchor);
LumStatus lumiErode_32f_C3R(const Lum32f* src, int srcStep, Lum32f* dst, int dstStep, LumiSize roi,
                            const Lum8u* mask, LumiSize maskSize, LumiPoint anchor);
LumStatus lumiErode_32f_C4R(const Lum32f* src, int srcStep, Lum32f* dst, int dstStep, LumiSize roi,
                            const Lum8u* mask, LumiSize maskSize, LumiPoint anchor);
LumStatus lumiErode_8u_AC4IR(Lum8u* srcDst, int srcDstStep, LumiSize roi, const Lum8u* mask,
                             LumiSize maskSize, LumiPoint anchor);
LumStatus lumiErode_8u_AC4R(const Lum8u* src, int srcStep, Lum8u* dst, int dstStep, LumiSize roi,
                            const Lum8u* mask, LumiSize maskSize, LumiPoint anchor);
LumStatus lumiErode_8u_C1IR(Lum8u* srcDst, int srcDstStep, LumiSize roi, const Lum8u* mask, LumiSize maskSize,
                            LumiPoint anchor);
LumStatus lumiErode_8u_C1R(const Lum8u* src, int srcStep, Lum8u* dst, int dstStep, LumiSize roi,
                           const Lum8u* mask, LumiSize maskSize, LumiPoint anchor);
LumStatus lumiErode_8u_C3IR(Lum8u* srcDst, int srcDstStep, LumiSize roi, const Lum8u* mask, LumiSize maskSize,
                            LumiPoint anchor);
LumStatus lumiErode_8u_C3R(const Lum8u* src, int srcStep, Lum8u* dst, int dstStep, LumiSize roi,
                           const Lum8u* mask, LumiSize maskSize, LumiPoint anchor);
LumStatus lumiErode_8u_C4R(const Lum8u* src, int srcStep, Lum8u* dst, int dstStep, LumiSize roi,
                           const Lum8u* mask, LumiSize maskSize, LumiPoint anchor);

#ifdef __cplusplus
}
#endif

#endif
