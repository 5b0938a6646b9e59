/* SPDX-License-Identifier: MIT */
/* Generated from registry/data/mirror.reg by tools/lumigen; edit that instead. */
/** @file Mirrors. */
#ifndef LUMI_MIRROR_H
#define LUMI_MIRROR_H

#include "types.h"

#ifdef __cplusplus
extern "C" {
#endif

/**
 * Flips an image about an axis or a diagonal.
 *
 * For a source of width w and height h:
 *
 *   0  about the horizontal axis    dst(x, y) = src(x, h - 1 - y)
 *   1  about the vertical axis      dst(x, y) = src(w - 1 - x, y)
 *   2  about both                   dst(x, y) = src(w - 1 - x, h - 1 - y)
 *   3  about the main diagonal      dst(y, x) = src(x, y)
 *   4  about the other diagonal     dst(h - 1 - y, w - 1 - x) = src(x, y)
 *
 * AC4 leaves the fourth sample of every pixel of the destination where it was, in place too.
 *
 * An axis with nothing to flip is a bad size (-6): a height of 1 with axes 0 and 2, a width of 1 with axes 1
 * and 2. Where src and dst are equal, and their steps too, the call is the one in place. Any step is taken,
 * negative ones included; images may be misaligned in any way, but must not overlap otherwise, nor the rows of
 * the destination.
 *
 * Diagonals are for one channel, and not in place. They have an order of checks of their own: null pointers
 * (-8), a step below 1 or one that is no multiple of the sample (-14), sizes (-6). Images of which one has a
 * corner among the other's rows are refused then (-9999), so that the same image is.
 *
 *   flip       no axis, or a diagonal where there is none
 *
 * Returns lumStatusOk (0) or, tested in this order and before anything is written:
 *   lumStatusNullPointer (-8)  a pointer is null, plane pointers included
 *   lumStatusBadSize (-6)      roi.width or roi.height is below 1
 *   lumStatusBadMirrorAxis (-21) flip is refused
 */
LumStatus lumiMirror_16s_AC4IR(Lum16s* srcDst, int srcDstStep, LumiSize roi, int flip);
LumStatus lumiMirror_16s_AC4R(const Lum16s* src, int srcStep, Lum16s* dst, int dstStep, LumiSize roi,
                              int flip);
LumStatus lumiMirror_16s_C1IR(Lum16s* srcDst, int srcDstStep, LumiSize roi, int flip);
LumStatus lumiMirror_16s_C1R(const Lum16s* src, int srcStep, Lum16s* dst, int dstStep, LumiSize roi,
                             int flip);
LumStatus lumiMirror_16s_C3IR(Lum16s* srcDst, int srcDstStep, LumiSize roi, int flip);
LumStatus lumiMirror_16s_C3R(const Lum16s* src, int srcStep, Lum16s* dst, int dstStep, LumiSize roi,
                             int flip);
LumStatus lumiMirror_16s_C4IR(Lum16s* srcDst, int srcDstStep, LumiSize roi, int flip);
LumStatus lumiMirror_16s_C4R(const Lum16s* src, int srcStep, Lum16s* dst, int dstStep, LumiSize roi,
                             int flip);
LumStatus lumiMirror_16u_AC4IR(Lum16u* srcDst, int srcDstStep, LumiSize roi, int flip);
LumStatus lumiMirror_16u_AC4R(const Lum16u* src, int srcStep, Lum16u* dst, int dstStep, LumiSize roi,
                              int flip);
LumStatus lumiMirror_16u_C1IR(Lum16u* srcDst, int srcDstStep, LumiSize roi, int flip);
LumStatus lumiMirror_16u_C1R(const Lum16u* src, int srcStep, Lum16u* dst, int dstStep, LumiSize roi,
                             int flip);
LumStatus lumiMirror_16u_C3IR(Lum16u* srcDst, int srcDstStep, LumiSize roi, int flip);
LumStatus lumiMirror_16u_C3R(const Lum16u* src, int srcStep, Lum16u* dst, int dstStep, LumiSize roi,
                             int flip);
LumStatus lumiMirror_16u_C4IR(Lum16u* srcDst, int srcDstStep, LumiSize roi, int flip);
LumStatus lumiMirror_16u_C4R(const Lum16u* src, int srcStep, Lum16u* dst, int dstStep, LumiSize roi,
                             int flip);
LumStatus lumiMirror_32f_AC4IR(Lum32f* srcDst, int srcDstStep, LumiSize roi, int flip);
LumStatus lumiMirror_32f_AC4R(const Lum32f* src, int srcStep, Lum32f* dst, int dstStep, LumiSize roi,
                              int flip);
LumStatus lumiMirror_32f_C1IR(Lum32f* srcDst, int srcDstStep, LumiSize roi, int flip);
LumStatus lumiMirror_32f_C1R(const Lum32f* src, int srcStep, Lum32f* dst, int dstStep, LumiSize roi,
                             int flip);
LumStatus lumiMirror_32f_C3IR(Lum32f* srcDst, int srcDstStep, LumiSize roi, int flip);
LumStatus lumiMirror_32f_C3R(const Lum32f* src, int srcStep, Lum32f* dst, int dstStep, LumiSize roi,
                             int flip);
LumStatus lumiMirror_32f_C4IR(Lum32f* srcDst, int srcDstStep, LumiSize roi, int flip);
LumStatus lumiMirror_32f_C4R(const Lum32f* src, int srcStep, Lum32f* dst, int dstStep, LumiSize roi,
                             int flip);
LumStatus lumiMirror_32s_AC4IR(Lum32s* srcDst, int srcDstStep, LumiSize roi, int flip);
LumStatus lumiMirror_32s_AC4R(const Lum32s* src, int srcStep, Lum32s* dst, int dstStep, LumiSize roi,
                              int flip);
LumStatus lumiMirror_32s_C1IR(Lum32s* srcDst, int srcDstStep, LumiSize roi, int flip);
LumStatus lumiMirror_32s_C1R(const Lum32s* src, int srcStep, Lum32s* dst, int dstStep, LumiSize roi,
                             int flip);
LumStatus lumiMirror_32s_C3IR(Lum32s* srcDst, int srcDstStep, LumiSize roi, int flip);
LumStatus lumiMirror_32s_C3R(const Lum32s* src, int srcStep, Lum32s* dst, int dstStep, LumiSize roi,
                             int flip);
LumStatus lumiMirror_32s_C4IR(Lum32s* srcDst, int srcDstStep, LumiSize roi, int flip);
LumStatus lumiMirror_32s_C4R(const Lum32s* src, int srcStep, Lum32s* dst, int dstStep, LumiSize roi,
                             int flip);
LumStatus lumiMirror_8u_AC4IR(Lum8u* srcDst, int srcDstStep, LumiSize roi, int flip);
LumStatus lumiMirror_8u_AC4R(const Lum8u* src, int srcStep, Lum8u* dst, int dstStep, LumiSize roi, int flip);
LumStatus lumiMirror_8u_C1IR(Lum8u* srcDst, int srcDstStep, LumiSize roi, int flip);
LumStatus lumiMirror_8u_C1R(const Lum8u* src, int srcStep, Lum8u* dst, int dstStep, LumiSize roi, int flip);
LumStatus lumiMirror_8u_C3IR(Lum8u* srcDst, int srcDstStep, LumiSize roi, int flip);
LumStatus lumiMirror_8u_C3R(const Lum8u* src, int srcStep, Lum8u* dst, int dstStep, LumiSize roi, int flip);
LumStatus lumiMirror_8u_C4IR(Lum8u* srcDst, int srcDstStep, LumiSize roi, int flip);
LumStatus lumiMirror_8u_C4R(const Lum8u* src, int srcStep, Lum8u* dst, int dstStep, LumiSize roi, int flip);

#ifdef __cplusplus
}
#endif

#endif
