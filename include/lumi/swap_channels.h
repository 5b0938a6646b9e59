/* SPDX-License-Identifier: MIT */
/* Generated from registry/data/swap_channels.reg by tools/lumigen; edit that instead. */
/** @file Channel swaps. */
#ifndef LUMI_SWAP_CHANNELS_H
#define LUMI_SWAP_CHANNELS_H

#include "types.h"

#ifdef __cplusplus
extern "C" {
#endif

/**
 * Takes each channel of a pixel from any channel of the source.
 *
 * dst(x, y, c) = src(x, y, order[c]), with an entry of order for each channel that is stored: three for C3, AC4
 * and C4C3, four for C4 and C3C4. One channel may go to several. AC4 leaves the fourth sample of every pixel of
 * the destination as it was.
 *
 * In C3C4 an entry of 3 stores value, and a larger one leaves the channel as it was. Elsewhere an entry is a
 * channel of the source. Others are refused as a bad channel order (-60), after all that is tested below.
 *
 * The images must not overlap; of lumiSwapChannels_8u_C3R alone they may be the same, which then is in place
 * with dstStep. Steps may be negative; rows are done in order. Images may be misaligned in any way.
 *
 *   order      a source channel for each stored one, read before any pixel is touched
 *   value      sample of channels that are ordered as 3
 *
 * Returns lumStatusOk (0) or, tested in this order and before anything is written (8u: C3 C4C3 C3C4; 16u 16s 32s 32f: C4C3 C3C4):
 *   lumStatusNullPointer (-8)  a pointer is null, plane pointers included
 *   lumStatusBadSize (-6)      roi.width or roi.height is below 1
 *   lumStatusBadStep (-14)     a step is 0
 *
 * Returns lumStatusOk (0) or, tested in this order and before anything is written (8u: C4 AC4 C3; 16u 16s 32s 32f: C3 C4 AC4):
 *   lumStatusNullPointer (-8)  an image's pointer is null
 *   lumStatusBadStep (-14)     a step is 0
 *   lumStatusBadSize (-6)      roi.width or roi.height is below 1
 *   lumStatusNullPointer (-8)  order is null
 *
 * Returns lumStatusOk (0) or, tested in this order and before anything is written (8u: C4):
 *   lumStatusNullPointer (-8)  a pointer is null, plane pointers included
 *   lumStatusBadStep (-14)     a step is 0
 *   lumStatusBadSize (-6)      roi.width or roi.height is below 1
 */
LumStatus lumiSwapChannels_16s_AC4R(const Lum16s* src, int srcStep, Lum16s* dst, int dstStep, LumiSize roi,
                                    const Lum32s* order);
LumStatus lumiSwapChannels_16s_C3C4R(const Lum16s* src, int srcStep, Lum16s* dst, int dstStep, LumiSize roi,
                                     const Lum32s* order, Lum16s value);
LumStatus lumiSwapChannels_16s_C3R(const Lum16s* src, int srcStep, Lum16s* dst, int dstStep, LumiSize roi,
                                   const Lum32s* order);
LumStatus lumiSwapChannels_16s_C4C3R(const Lum16s* src, int srcStep, Lum16s* dst, int dstStep, LumiSize roi,
                                     const Lum32s* order);
LumStatus lumiSwapChannels_16s_C4R(const Lum16s* src, int srcStep, Lum16s* dst, int dstStep, LumiSize roi,
                                   const Lum32s* order);
LumStatus lumiSwapChannels_16u_AC4R(const Lum16u* src, int srcStep, Lum16u* dst, int dstStep, LumiSize roi,
                                    const Lum32s* order);
LumStatus lumiSwapChannels_16u_C3C4R(const Lum16u* src, int srcStep, Lum16u* dst, int dstStep, LumiSize roi,
                                     const Lum32s* order, Lum16u value);
LumStatus lumiSwapChannels_16u_C3R(const Lum16u* src, int srcStep, Lum16u* dst, int dstStep, LumiSize roi,
                                   const Lum32s* order);
LumStatus lumiSwapChannels_16u_C4C3R(const Lum16u* src, int srcStep, Lum16u* dst, int dstStep, LumiSize roi,
                                     const Lum32s* order);
LumStatus lumiSwapChannels_16u_C4R(const Lum16u* src, int srcStep, Lum16u* dst, int dstStep, LumiSize roi,
                                   const Lum32s* order);
LumStatus lumiSwapChannels_32f_AC4R(const Lum32f* src, int srcStep, Lum32f* dst, int dstStep, LumiSize roi,
                                    const Lum32s* order);
LumStatus lumiSwapChannels_32f_C3C4R(const Lum32f* src, int srcStep, Lum32f* dst, int dstStep, LumiSize roi,
                                     const Lum32s* order, Lum32f value);
LumStatus lumiSwapChannels_32f_C3R(const Lum32f* src, int srcStep, Lum32f* dst, int dstStep, LumiSize roi,
                                   const Lum32s* order);
LumStatus lumiSwapChannels_32f_C4C3R(const Lum32f* src, int srcStep, Lum32f* dst, int dstStep, LumiSize roi,
                                     const Lum32s* order);
LumStatus lumiSwapChannels_32f_C4R(const Lum32f* src, int srcStep, Lum32f* dst, int dstStep, LumiSize roi,
                                   const Lum32s* order);
LumStatus lumiSwapChannels_32s_AC4R(const Lum32s* src, int srcStep, Lum32s* dst, int dstStep, LumiSize roi,
                                    const Lum32s* order);
LumStatus lumiSwapChannels_32s_C3C4R(const Lum32s* src, int srcStep, Lum32s* dst, int dstStep, LumiSize roi,
                                     const Lum32s* order, Lum32s value);
LumStatus lumiSwapChannels_32s_C3R(const Lum32s* src, int srcStep, Lum32s* dst, int dstStep, LumiSize roi,
                                   const Lum32s* order);
LumStatus lumiSwapChannels_32s_C4C3R(const Lum32s* src, int srcStep, Lum32s* dst, int dstStep, LumiSize roi,
                                     const Lum32s* order);
LumStatus lumiSwapChannels_32s_C4R(const Lum32s* src, int srcStep, Lum32s* dst, int dstStep, LumiSize roi,
                                   const Lum32s* order);
LumStatus lumiSwapChannels_8u_AC4R(const Lum8u* src, int srcStep, Lum8u* dst, int dstStep, LumiSize roi,
                                   const Lum32s* order);
LumStatus lumiSwapChannels_8u_C3C4R(const Lum8u* src, int srcStep, Lum8u* dst, int dstStep, LumiSize roi,
                                    const Lum32s* order, Lum8u value);
LumStatus lumiSwapChannels_8u_C3IR(Lum8u* srcDst, int srcDstStep, LumiSize roi, const Lum32s* order);
LumStatus lumiSwapChannels_8u_C3R(const Lum8u* src, int srcStep, Lum8u* dst, int dstStep, LumiSize roi,
                                  const Lum32s* order);
LumStatus lumiSwapChannels_8u_C4C3R(const Lum8u* src, int srcStep, Lum8u* dst, int dstStep, LumiSize roi,
                                    const Lum32s* order);
LumStatus lumiSwapChannels_8u_C4IR(Lum8u* srcDst, int srcDstStep, LumiSize roi, const Lum32s* order);
LumStatus lumiSwapChannels_8u_C4R(const Lum8u* src, int srcStep, Lum8u* dst, int dstStep, LumiSize roi,
                                  const Lum32s* order);

#ifdef __cplusplus
}
#endif

#endif
