/* SPDX-License-Identifier: MIT */
/* Generated from registry/data/copy.reg by tools/lumigen; edit that instead. */
/** @file Copy. */
#ifndef LUMI_COPY_H
#define LUMI_COPY_H

#include "types.h"

#ifdef __cplusplus
extern "C" {
#endif

/**
 * Copies the pixels of the ROI, all of them or those that a mask chooses.
 *
 * dst(x, y) = src(x, y). AC4 copies the three colour samples and leaves the destination's alpha as it
 * was; C3C and C4C copy one chosen channel, both pointers being at that channel's sample of the first
 * pixel. Masked members (M) copy the pixels whose mask sample is not zero.
 *
 * Any step is taken, zero and negative ones included; rows are then done in order. Both images may be
 * misaligned in any way, but must not overlap unless they are the very same image.
 *
 * Returns lumStatusOk (0) or, tested in this order and before anything is written:
 *   lumStatusNullPointer (-8)  a pointer is null, plane pointers included
 *   lumStatusBadSize (-6)      roi.width or roi.height is below 1
 */
LumStatus lumiCopy_16s_AC4MR(const Lum16s* src, int srcStep, Lum16s* dst, int dstStep, LumiSize roi,
                             const Lum8u* mask, int maskStep);
LumStatus lumiCopy_16s_AC4R(const Lum16s* src, int srcStep, Lum16s* dst, int dstStep, LumiSize roi);
LumStatus lumiCopy_16s_C1MR(const Lum16s* src, int srcStep, Lum16s* dst, int dstStep, LumiSize roi,
                            const Lum8u* mask, int maskStep);
LumStatus lumiCopy_16s_C1R(const Lum16s* src, int srcStep, Lum16s* dst, int dstStep, LumiSize roi);
LumStatus lumiCopy_16s_C3CR(const Lum16s* src, int srcStep, Lum16s* dst, int dstStep, LumiSize roi);
LumStatus lumiCopy_16s_C3MR(const Lum16s* src, int srcStep, Lum16s* dst, int dstStep, LumiSize roi,
                            const Lum8u* mask, int maskStep);
LumStatus lumiCopy_16s_C3R(const Lum16s* src, int srcStep, Lum16s* dst, int dstStep, LumiSize roi);
LumStatus lumiCopy_16s_C4CR(const Lum16s* src, int srcStep, Lum16s* dst, int dstStep, LumiSize roi);
LumStatus lumiCopy_16s_C4MR(const Lum16s* src, int srcStep, Lum16s* dst, int dstStep, LumiSize roi,
                            const Lum8u* mask, int maskStep);
LumStatus lumiCopy_16s_C4R(const Lum16s* src, int srcStep, Lum16s* dst, int dstStep, LumiSize roi);
LumStatus lumiCopy_16u_AC4MR(const Lum16u* src, int srcStep, Lum16u* dst, int dstStep, LumiSize roi,
                             const Lum8u* mask, int maskStep);
LumStatus lumiCopy_16u_AC4R(const Lum16u* src, int srcStep, Lum16u* dst, int dstStep, LumiSize roi);
LumStatus lumiCopy_16u_C1MR(const Lum16u* src, int srcStep, Lum16u* dst, int dstStep, LumiSize roi,
                            const Lum8u* mask, int maskStep);
LumStatus lumiCopy_16u_C1R(const Lum16u* src, int srcStep, Lum16u* dst, int dstStep, LumiSize roi);
LumStatus lumiCopy_16u_C3CR(const Lum16u* src, int srcStep, Lum16u* dst, int dstStep, LumiSize roi);
LumStatus lumiCopy_16u_C3MR(const Lum16u* src, int srcStep, Lum16u* dst, int dstStep, LumiSize roi,
                            const Lum8u* mask, int maskStep);
LumStatus lumiCopy_16u_C3R(const Lum16u* src, int srcStep, Lum16u* dst, int dstStep, LumiSize roi);
LumStatus lumiCopy_16u_C4CR(const Lum16u* src, int srcStep, Lum16u* dst, int dstStep, LumiSize roi);
LumStatus lumiCopy_16u_C4MR(const Lum16u* src, int srcStep, Lum16u* dst, int dstStep, LumiSize roi,
                            const Lum8u* mask, int maskStep);
LumStatus lumiCopy_16u_C4R(const Lum16u* src, int srcStep, Lum16u* dst, int dstStep, LumiSize roi);
LumStatus lumiCopy_32f_AC4MR(const Lum32f* src, int srcStep, Lum32f* dst, int dstStep, LumiSize roi,
                             const Lum8u* mask, int maskStep);
LumStatus lumiCopy_32f_AC4R(const Lum32f* src, int srcStep, Lum32f* dst, int dstStep, LumiSize roi);
LumStatus lumiCopy_32f_C1MR(const Lum32f* src, int srcStep, Lum32f* dst, int dstStep, LumiSize roi,
                            const Lum8u* mask, int maskStep);
LumStatus lumiCopy_32f_C1R(const Lum32f* src, int srcStep, Lum32f* dst, int dstStep, LumiSize roi);
LumStatus lumiCopy_32f_C3CR(const Lum32f* src, int srcStep, Lum32f* dst, int dstStep, LumiSize roi);
LumStatus lumiCopy_32f_C3MR(const Lum32f* src, int srcStep, Lum32f* dst, int dstStep, LumiSize roi,
                            const Lum8u* mask, int maskStep);
LumStatus lumiCopy_32f_C3R(const Lum32f* src, int srcStep, Lum32f* dst, int dstStep, LumiSize roi);
LumStatus lumiCopy_32f_C4CR(const Lum32f* src, int srcStep, Lum32f* dst, int dstStep, LumiSize roi);
LumStatus lumiCopy_32f_C4MR(const Lum32f* src, int srcStep, Lum32f* dst, int dstStep, LumiSize roi,
                            const Lum8u* mask, int maskStep);
LumStatus lumiCopy_32f_C4R(const Lum32f* src, int srcStep, Lum32f* dst, int dstStep, LumiSize roi);
LumStatus lumiCopy_32s_AC4MR(const Lum32s* src, int srcStep, Lum32s* dst, int dstStep, LumiSize roi,
                             const Lum8u* mask, int maskStep);
LumStatus lumiCopy_32s_AC4R(const Lum32s* src, int srcStep, Lum32s* dst, int dstStep, LumiSize roi);
LumStatus lumiCopy_32s_C1MR(const Lum32s* src, int srcStep, Lum32s* dst, int dstStep, LumiSize roi,
                            const Lum8u* mask, int maskStep);
LumStatus lumiCopy_32s_C1R(const Lum32s* src, int srcStep, Lum32s* dst, int dstStep, LumiSize roi);
LumStatus lumiCopy_32s_C3CR(const Lum32s* src, int srcStep, Lum32s* dst, int dstStep, LumiSize roi);
LumStatus lumiCopy_32s_C3MR(const Lum32s* src, int srcStep, Lum32s* dst, int dstStep, LumiSize roi,
                            const Lum8u* mask, int maskStep);
LumStatus lumiCopy_32s_C3R(const Lum32s* src, int srcStep, Lum32s* dst, int dstStep, LumiSize roi);
LumStatus lumiCopy_32s_C4CR(const Lum32s* src, int srcStep, Lum32s* dst, int dstStep, LumiSize roi);
LumStatus lumiCopy_32s_C4MR(const Lum32s* src, int srcStep, Lum32s* dst, int dstStep, LumiSize roi,
                            const Lum8u* mask, int maskStep);
LumStatus lumiCopy_32s_C4R(const Lum32s* src, int srcStep, Lum32s* dst, int dstStep, LumiSize roi);
LumStatus lumiCopy_8u_AC4MR(const Lum8u* src, int srcStep, Lum8u* dst, int dstStep, LumiSize roi,
                            const Lum8u* mask, int maskStep);
LumStatus lumiCopy_8u_AC4R(const Lum8u* src, int srcStep, Lum8u* dst, int dstStep, LumiSize roi);
LumStatus lumiCopy_8u_C1MR(const Lum8u* src, int srcStep, Lum8u* dst, int dstStep, LumiSize roi,
                           const Lum8u* mask, int maskStep);
LumStatus lumiCopy_8u_C1R(const Lum8u* src, int srcStep, Lum8u* dst, int dstStep, LumiSize roi);
LumStatus lumiCopy_8u_C3CR(const Lum8u* src, int srcStep, Lum8u* dst, int dstStep, LumiSize roi);
LumStatus lumiCopy_8u_C3MR(const Lum8u* src, int srcStep, Lum8u* dst, int dstStep, LumiSize roi,
                           const Lum8u* mask, int maskStep);
LumStatus lumiCopy_8u_C3R(const Lum8u* src, int srcStep, Lum8u* dst, int dstStep, LumiSize roi);
LumStatus lumiCopy_8u_C4CR(const Lum8u* src, int srcStep, Lum8u* dst, int dstStep, LumiSize roi);
LumStatus lumiCopy_8u_C4MR(const Lum8u* src, int srcStep, Lum8u* dst, int dstStep, LumiSize roi,
                           const Lum8u* mask, int maskStep);
LumStatus lumiCopy_8u_C4R(const Lum8u* src, int srcStep, Lum8u* dst, int dstStep, LumiSize roi);

/**
 * Copies the pixels of the ROI; the caller decides about the cache.
 *
 * dst(x, y) = src(x, y). Bit 0 of flags asks for stores that bypass the cache, bit 1 for streaming
 * loads; other bits are ignored. The bytes stored do not depend on flags. The images must not overlap.
 *
 *   flags      1 non-temporal stores, 2 streaming loads, or both
 *
 * Returns lumStatusOk (0) or, tested in this order and before anything is written:
 *   lumStatusNullPointer (-8)  a pointer is null, plane pointers included
 *   lumStatusBadSize (-6)      roi.width or roi.height is below 1
 */
LumStatus lumiCopyManaged_8u_C1R(const Lum8u* src, int srcStep, Lum8u* dst, int dstStep, LumiSize roi,
                                 int flags);

#ifdef __cplusplus
}
#endif

#endif
