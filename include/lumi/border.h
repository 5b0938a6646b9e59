/* SPDX-License-Identifier: MIT */
/* Generated from registry/data/border.reg by tools/lumigen; edit that instead. */
/** @file Border extension. */
#ifndef LUMI_BORDER_H
#define LUMI_BORDER_H

#include "types.h"

#ifdef __cplusplus
extern "C" {
#endif

/**
 * Copies an image into a larger one and fills the frame around it with a value.
 *
 * dst(x, y) = src(x - left, y - top) inside the image, value elsewhere; dst is the top left pixel of the
 * frame. The frame is what dstRoi has more than srcRoi: top rows above, left columns to the left, the rest
 * below and to the right; any side may be empty, or larger than the image. C3 and AC4 take three values, C4
 * four, read before any pixel is touched; AC4 leaves the fourth sample of every pixel as it was, in the
 * image too.
 *
 * The image may lie at its place inside dst already; otherwise src and dst must not overlap, nor the rows
 * of dst. Both may be misaligned in any way.
 *
 *   srcRoi     size of the image
 *   dstRoi     size of the image with its frame
 *   top        rows of the frame above the image
 *   left       columns of the frame to the left of the image
 *
 * Returns lumStatusOk (0) or, tested in this order and before anything is written (8u 16s 16u 32s 32f: C1):
 *   lumStatusNullPointer (-8)  a pointer is null, plane pointers included
 *   lumStatusBadStep (-14)     a step is below 1
 *   lumStatusBadSize (-6)      a width or a height is below 1
 *   lumStatusBadSize (-6)      top or left is negative, or dstRoi does not hold srcRoi at that place
 *
 * Returns lumStatusOk (0) or, tested in this order and before anything is written (8u 16s 16u 32s 32f: C3 C4 AC4):
 *   lumStatusNullPointer (-8)  an image's pointer is null
 *   lumStatusBadStep (-14)     a step is below 1
 *   lumStatusBadSize (-6)      a width or a height is below 1
 *   lumStatusBadSize (-6)      top or left is negative, or dstRoi does not hold srcRoi at that place
 *   lumStatusNullPointer (-8)  value is null
 */
LumStatus lumiCopyConstBorder_16s_AC4R(const Lum16s* src, int srcStep, LumiSize srcRoi, Lum16s* dst,
                                       int dstStep, LumiSize dstRoi, int top, int left,
                                       const Lum16s value[3]);
LumStatus lumiCopyConstBorder_16s_C1R(const Lum16s* src, int srcStep, LumiSize srcRoi, Lum16s* dst,
                                      int dstStep, LumiSize dstRoi, int top, int left, Lum16s value);
LumStatus lumiCopyConstBorder_16s_C3R(const Lum16s* src, int srcStep, LumiSize srcRoi, Lum16s* dst,
                                      int dstStep, LumiSize dstRoi, int top, int left, const Lum16s value[3]);
LumStatus lumiCopyConstBorder_16s_C4R(const Lum16s* src, int srcStep, LumiSize srcRoi, Lum16s* dst,
                                      int dstStep, LumiSize dstRoi, int top, int left, const Lum16s value[4]);
LumStatus lumiCopyConstBorder_16u_AC4R(const Lum16u* src, int srcStep, LumiSize srcRoi, Lum16u* dst,
                                       int dstStep, LumiSize dstRoi, int top, int left,
                                       const Lum16u value[3]);
LumStatus lumiCopyConstBorder_16u_C1R(const Lum16u* src, int srcStep, LumiSize srcRoi, Lum16u* dst,
                                      int dstStep, LumiSize dstRoi, int top, int left, Lum16u value);
LumStatus lumiCopyConstBorder_16u_C3R(const Lum16u* src, int srcStep, LumiSize srcRoi, Lum16u* dst,
                                      int dstStep, LumiSize dstRoi, int top, int left, const Lum16u value[3]);
LumStatus lumiCopyConstBorder_16u_C4R(const Lum16u* src, int srcStep, LumiSize srcRoi, Lum16u* dst,
                                      int dstStep, LumiSize dstRoi, int top, int left, const Lum16u value[4]);
LumStatus lumiCopyConstBorder_32f_AC4R(const Lum32f* src, int srcStep, LumiSize srcRoi, Lum32f* dst,
                                       int dstStep, LumiSize dstRoi, int top, int left,
                                       const Lum32f value[3]);
LumStatus lumiCopyConstBorder_32f_C1R(const Lum32f* src, int srcStep, LumiSize srcRoi, Lum32f* dst,
                                      int dstStep, LumiSize dstRoi, int top, int left, Lum32f value);
LumStatus lumiCopyConstBorder_32f_C3R(const Lum32f* src, int srcStep, LumiSize srcRoi, Lum32f* dst,
                                      int dstStep, LumiSize dstRoi, int top, int left, const Lum32f value[3]);
LumStatus lumiCopyConstBorder_32f_C4R(const Lum32f* src, int srcStep, LumiSize srcRoi, Lum32f* dst,
                                      int dstStep, LumiSize dstRoi, int top, int left, const Lum32f value[4]);
LumStatus lumiCopyConstBorder_32s_AC4R(const Lum32s* src, int srcStep, LumiSize srcRoi, Lum32s* dst,
                                       int dstStep, LumiSize dstRoi, int top, int left,
                                       const Lum32s value[3]);
LumStatus lumiCopyConstBorder_32s_C1R(const Lum32s* src, int srcStep, LumiSize srcRoi, Lum32s* dst,
                                      int dstStep, LumiSize dstRoi, int top, int left, Lum32s value);
LumStatus lumiCopyConstBorder_32s_C3R(const Lum32s* src, int srcStep, LumiSize srcRoi, Lum32s* dst,
                                      int dstStep, LumiSize dstRoi, int top, int left, const Lum32s value[3]);
LumStatus lumiCopyConstBorder_32s_C4R(const Lum32s* src, int srcStep, LumiSize srcRoi, Lum32s* dst,
                                      int dstStep, LumiSize dstRoi, int top, int left, const Lum32s value[4]);
LumStatus lumiCopyConstBorder_8u_AC4R(const Lum8u* src, int srcStep, LumiSize srcRoi, Lum8u* dst, int dstStep,
                                      LumiSize dstRoi, int top, int left, const Lum8u value[3]);
LumStatus lumiCopyConstBorder_8u_C1R(const Lum8u* src, int srcStep, LumiSize srcRoi, Lum8u* dst, int dstStep,
                                     LumiSize dstRoi, int top, int left, Lum8u value);
LumStatus lumiCopyConstBorder_8u_C3R(const Lum8u* src, int srcStep, LumiSize srcRoi, Lum8u* dst, int dstStep,
                                     LumiSize dstRoi, int top, int left, const Lum8u value[3]);
LumStatus lumiCopyConstBorder_8u_C4R(const Lum8u* src, int srcStep, LumiSize srcRoi, Lum8u* dst, int dstStep,
                                     LumiSize dstRoi, int top, int left, const Lum8u value[4]);

/**
 * Copies an image into a larger one and repeats its edge pixels in the frame around it.
 *
 * dst(x, y) = src(x - left, y - top), coordinates outside the image being replaced by the nearest inside.
 * The frame is what dstRoi has more than srcRoi: top rows above, left columns to the left, the rest below
 * and to the right; any side may be empty, or larger than the image. AC4 leaves the fourth sample of every
 * pixel of dst as it was.
 *
 * In place (I) the image is there already: srcDst is its first pixel, and the frame lies around it. With
 * src equal to dst the call is the one in place on dst and dstStep, from the checks on; srcStep is ignored.
 * Otherwise src and dst must not overlap, nor the rows of dst. Images may be misaligned in any way.
 *
 *   srcRoi     size of the image
 *   dstRoi     size of the image with its frame
 *   top        rows of the frame above the image
 *   left       columns of the frame to the left of the image
 *
 * Returns lumStatusOk (0) or, tested in this order and before anything is written:
 *   lumStatusNullPointer (-8)  a pointer is null, plane pointers included
 *   lumStatusBadStep (-14)     a step is below 1
 *   lumStatusBadSize (-6)      a width or a height is below 1
 *   lumStatusBadSize (-6)      top or left is negative, or dstRoi does not hold srcRoi at that place
 */
LumStatus lumiCopyReplicateBorder_16s_AC4IR(Lum16s* srcDst, int srcDstStep, LumiSize srcRoi, LumiSize dstRoi,
                                            int top, int left);
LumStatus lumiCopyReplicateBorder_16s_AC4R(const Lum16s* src, int srcStep, LumiSize srcRoi, Lum16s* dst,
                                           int dstStep, LumiSize dstRoi, int top, int left);
LumStatus lumiCopyReplicateBorder_16s_C1IR(Lum16s* srcDst, int srcDstStep, LumiSize srcRoi, LumiSize dstRoi,
                                           int top, int left);
LumStatus lumiCopyReplicateBorder_16s_C1R(const Lum16s* src, int srcStep, LumiSize srcRoi, Lum16s* dst,
                                          int dstStep, LumiSize dstRoi, int top, int left);
LumStatus lumiCopyReplicateBorder_16s_C3IR(Lum16s* srcDst, int srcDstStep, LumiSize srcRoi, LumiSize dstRoi,
                                           int top, int left);
LumStatus lumiCopyReplicateBorder_16s_C3R(const Lum16s* src, int srcStep, LumiSize srcRoi, Lum16s* dst,
                                          int dstStep, LumiSize dstRoi, int top, int left);
LumStatus lumiCopyReplicateBorder_16s_C4IR(Lum16s* srcDst, int srcDstStep, LumiSize srcRoi, LumiSize dstRoi,
                                           int top, int left);
LumStatus lumiCopyReplicateBorder_16s_C4R(const Lum16s* src, int srcStep, LumiSize srcRoi, Lum16s* dst,
                                          int dstStep, LumiSize dstRoi, int top, int left);
LumStatus lumiCopyReplicateBorder_16u_AC4IR(Lum16u* srcDst, int srcDstStep, LumiSize srcRoi, LumiSize dstRoi,
                                            int top, int left);
LumStatus lumiCopyReplicateBorder_16u_AC4R(const Lum16u* src, int srcStep, LumiSize srcRoi, Lum16u* dst,
                                           int dstStep, LumiSize dstRoi, int top, int left);
LumStatus lumiCopyReplicateBorder_16u_C1IR(Lum16u* srcDst, int srcDstStep, LumiSize srcRoi, LumiSize dstRoi,
                                           int top, int left);
LumStatus lumiCopyReplicateBorder_16u_C1R(const Lum16u* src, int srcStep, LumiSize srcRoi, Lum16u* dst,
                                          int dstStep, LumiSize dstRoi, int top, int left);
LumStatus lumiCopyReplicateBorder_16u_C3IR(Lum16u* srcDst, int srcDstStep, LumiSize srcRoi, LumiSize dstRoi,
                                           int top, int left);
LumStatus lumiCopyReplicateBorder_16u_C3R(const Lum16u* src, int srcStep, LumiSize srcRoi, Lum16u* dst,
                                          int dstStep, LumiSize dstRoi, int top, int left);
LumStatus lumiCopyReplicateBorder_16u_C4IR(Lum16u* srcDst, int srcDstStep, LumiSize srcRoi, LumiSize dstRoi,
                                           int top, int left);
LumStatus lumiCopyReplicateBorder_16u_C4R(const Lum16u* src, int srcStep, LumiSize srcRoi, Lum16u* dst,
                                          int dstStep, LumiSize dstRoi, int top, int left);
LumStatus lumiCopyReplicateBorder_32f_AC4IR(Lum32f* srcDst, int srcDstStep, LumiSize srcRoi, LumiSize dstRoi,
                                            int top, int left);
LumStatus lumiCopyReplicateBorder_32f_AC4R(const Lum32f* src, int srcStep, LumiSize srcRoi, Lum32f* dst,
                                           int dstStep, LumiSize dstRoi, int top, int left);
LumStatus lumiCopyReplicateBorder_32f_C1IR(Lum32f* srcDst, int srcDstStep, LumiSize srcRoi, LumiSize dstRoi,
                                           int top, int left);
LumStatus lumiCopyReplicateBorder_32f_C1R(const Lum32f* src, int srcStep, LumiSize srcRoi, Lum32f* dst,
                                          int dstStep, LumiSize dstRoi, int top, int left);
LumStatus lumiCopyReplicateBorder_32f_C3IR(Lum32f* srcDst, int srcDstStep, LumiSize srcRoi, LumiSize dstRoi,
                                           int top, int left);
LumStatus lumiCopyReplicateBorder_32f_C3R(const Lum32f* src, int srcStep, LumiSize srcRoi, Lum32f* dst,
                                          int dstStep, LumiSize dstRoi, int top, int left);
LumStatus lumiCopyReplicateBorder_32f_C4IR(Lum32f* srcDst, int srcDstStep, LumiSize srcRoi, LumiSize dstRoi,
                                           int top, int left);
LumStatus lumiCopyReplicateBorder_32f_C4R(const Lum32f* src, int srcStep, LumiSize srcRoi, Lum32f* dst,
                                          int dstStep, LumiSize dstRoi, int top, int left);
LumStatus lumiCopyReplicateBorder_32s_AC4IR(Lum32s* srcDst, int srcDstStep, LumiSize srcRoi, LumiSize dstRoi,
                                            int top, int left);
LumStatus lumiCopyReplicateBorder_32s_AC4R(const Lum32s* src, int srcStep, LumiSize srcRoi, Lum32s* dst,
                                           int dstStep, LumiSize dstRoi, int top, int left);
LumStatus lumiCopyReplicateBorder_32s_C1IR(Lum32s* srcDst, int srcDstStep, LumiSize srcRoi, LumiSize dstRoi,
                                           int top, int left);
LumStatus lumiCopyReplicateBorder_32s_C1R(const Lum32s* src, int srcStep, LumiSize srcRoi, Lum32s* dst,
                                          int dstStep, LumiSize dstRoi, int top, int left);
LumStatus lumiCopyReplicateBorder_32s_C3IR(Lum32s* srcDst, int srcDstStep, LumiSize srcRoi, LumiSize dstRoi,
                                           int top, int left);
LumStatus lumiCopyReplicateBorder_32s_C3R(const Lum32s* src, int srcStep, LumiSize srcRoi, Lum32s* dst,
                                          int dstStep, LumiSize dstRoi, int top, int left);
LumStatus lumiCopyReplicateBorder_32s_C4IR(Lum32s* srcDst, int srcDstStep, LumiSize srcRoi, LumiSize dstRoi,
                                           int top, int left);
LumStatus lumiCopyReplicateBorder_32s_C4R(const Lum32s* src, int srcStep, LumiSize srcRoi, Lum32s* dst,
                                          int dstStep, LumiSize dstRoi, int top, int left);
LumStatus lumiCopyReplicateBorder_8u_AC4IR(Lum8u* srcDst, int srcDstStep, LumiSize srcRoi, LumiSize dstRoi,
                                           int top, int left);
LumStatus lumiCopyReplicateBorder_8u_AC4R(const Lum8u* src, int srcStep, LumiSize srcRoi, Lum8u* dst,
                                          int dstStep, LumiSize dstRoi, int top, int left);
LumStatus lumiCopyReplicateBorder_8u_C1IR(Lum8u* srcDst, int srcDstStep, LumiSize srcRoi, LumiSize dstRoi,
                                          int top, int left);
LumStatus lumiCopyReplicateBorder_8u_C1R(const Lum8u* src, int srcStep, LumiSize srcRoi, Lum8u* dst,
                                         int dstStep, LumiSize dstRoi, int top, int left);
LumStatus lumiCopyReplicateBorder_8u_C3IR(Lum8u* srcDst, int srcDstStep, LumiSize srcRoi, LumiSize dstRoi,
                                          int top, int left);
LumStatus lumiCopyReplicateBorder_8u_C3R(const Lum8u* src, int srcStep, LumiSize srcRoi, Lum8u* dst,
                                         int dstStep, LumiSize dstRoi, int top, int left);
LumStatus lumiCopyReplicateBorder_8u_C4IR(Lum8u* srcDst, int srcDstStep, LumiSize srcRoi, LumiSize dstRoi,
                                          int top, int left);
LumStatus lumiCopyReplicateBorder_8u_C4R(const Lum8u* src, int srcStep, LumiSize srcRoi, Lum8u* dst,
                                         int dstStep, LumiSize dstRoi, int top, int left);

/**
 * Copies an image into a larger one and continues it periodically in the frame around it.
 *
 * dst(x, y) = src((x - left) mod srcRoi.width, (y - top) mod srcRoi.height), each remainder inside the image.
 * The frame is what dstRoi has more than srcRoi: top rows above, left columns to the left, the rest below
 * and to the right; any side may be empty, or larger than the image.
 *
 * In place (I) the image is there already: srcDst is its first pixel, and the frame lies around it. With
 * src equal to dst the call is the one in place on dst and dstStep, once all arguments are checked.
 * Otherwise src and dst must not overlap, nor the rows of dst. Images may be misaligned in any way.
 *
 *   srcRoi     size of the image
 *   dstRoi     size of the image with its frame
 *   top        rows of the frame above the image
 *   left       columns of the frame to the left of the image
 *
 * Returns lumStatusOk (0) or, tested in this order and before anything is written:
 *   lumStatusNullPointer (-8)  a pointer is null, plane pointers included
 *   lumStatusBadStep (-14)     a step is below 1
 *   lumStatusBadSize (-6)      a width or a height is below 1
 *   lumStatusBadSize (-6)      top or left is negative, or dstRoi does not hold srcRoi at that place
 */
LumStatus lumiCopyWrapBorder_32f_C1IR(Lum32f* srcDst, int srcDstStep, LumiSize srcRoi, LumiSize dstRoi,
                                      int top, int left);
LumStatus lumiCopyWrapBorder_32f_C1R(const Lum32f* src, int srcStep, LumiSize srcRoi, Lum32f* dst,
                                     int dstStep, LumiSize dstRoi, int top, int left);
LumStatus lumiCopyWrapBorder_32s_C1IR(Lum32s* srcDst, int srcDstStep, LumiSize srcRoi, LumiSize dstRoi,
                                      int top, int left);
LumStatus lumiCopyWrapBorder_32s_C1R(const Lum32s* src, int srcStep, LumiSize srcRoi, Lum32s* dst,
                                     int dstStep, LumiSize dstRoi, int top, int left);

#ifdef __cplusplus
}
#endif

#endif
