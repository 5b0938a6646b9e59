/* SPDX-License-Identifier: MIT */
/* Generated from registry/geometry/resize.reg by tools/lumigen; edit that instead. */
/** @file Resize by nearest and linear interpolation. */
#ifndef LUMI_RESIZE_H
#define LUMI_RESIZE_H

#include "types.h"

#ifdef __cplusplus
extern "C" {
#endif

/**
 * Tells how much memory a plan and its Init take.
 *
 * A resize is planned once for a pair of image sizes, and then run over the whole destination or over any
 * tiles of it. The caller provides a block of *objectSize bytes at any address; an Init makes the plan in it.
 * The plan holds pointers into itself: it must be neither moved nor copied, and is only read afterwards, so
 * that any number of threads may use it at once. Neither Init of this header takes scratch.
 *
 * Returns lumStatusOk (0) or, tested in this order and with nothing written:
 *   lumStatusNullPointer (-8)        a result pointer is null
 *   lumStatusNothingToDo (1)         one of the four sizes is zero
 *   lumStatusBadSize (-6)            one of them is below 1
 *   lumStatusBadInterpolation (-22)  interpolation is no LumiInterpolationType
 *   lumStatusUnsupportedMode (-9999) antialiasing with lumInterpNearest or lumInterpSuper
 *   lumStatusUnsupportedMode (-9999) lumInterpNone; of 64f also lumInterpNearest, lumInterpCubic and
 *                                    lumInterpLanczos
 *   lumStatusBadSize (-6)            the source is below 2 x 2 for lumInterpLinear, below 4 x 4 for
 *                                    lumInterpCubic and lumInterpLanczos, smaller than the destination on an
 *                                    axis for lumInterpSuper
 *   lumStatusUnsupportedMode (-9999) of 64f: lumInterpSuper
 *   lumStatusBadSize (-6)            a result of 2^31 or more
 *
 *   srcSize    size of the whole source
 *   dstSize    size of the whole destination
 *   interpolation how pixels are found
 *   antialiasing not zero for an antialiasing Init
 *   objectSize receives the bytes of a plan
 *   initSize   receives the bytes of scratch that its Init takes
 */
LumStatus lumiResizeGetSize_16s(LumiSize srcSize, LumiSize dstSize, LumiInterpolationType interpolation,
                                Lum32u antialiasing, Lum32s* objectSize, Lum32s* initSize);
LumStatus lumiResizeGetSize_16u(LumiSize srcSize, LumiSize dstSize, LumiInterpolationType interpolation,
                                Lum32u antialiasing, Lum32s* objectSize, Lum32s* initSize);
LumStatus lumiResizeGetSize_32f(LumiSize srcSize, LumiSize dstSize, LumiInterpolationType interpolation,
                                Lum32u antialiasing, Lum32s* objectSize, Lum32s* initSize);
LumStatus lumiResizeGetSize_64f(LumiSize srcSize, LumiSize dstSize, LumiInterpolationType interpolation,
                                Lum32u antialiasing, Lum32s* objectSize, Lum32s* initSize);
LumStatus lumiResizeGetSize_8u(LumiSize srcSize, LumiSize dstSize, LumiInterpolationType interpolation,
                               Lum32u antialiasing, Lum32s* objectSize, Lum32s* initSize);

/**
 * Plans a resize by the nearest pixel.
 *
 * Destination column i takes source column trunc((i + 0.5) * s - 1e-10), computed in double precision with s =
 * source width / destination width: of two columns equally near, the lower one. Rows likewise.
 *
 * Returns lumStatusOk (0) or, tested in this order and with nothing written:
 *   lumStatusNullPointer (-8) object is null
 *   lumStatusNothingToDo (1)  one of the four sizes is zero
 *   lumStatusBadSize (-6)     one of them is below 1
 *
 *   srcSize    size of the whole source
 *   dstSize    size of the whole destination
 *   object     memory of the plan, as large as lumiResizeGetSize tells
 */
LumStatus lumiResizeNearestInit_16s(LumiSize srcSize, LumiSize dstSize, LumiResizeSpec* object);
LumStatus lumiResizeNearestInit_16u(LumiSize srcSize, LumiSize dstSize, LumiResizeSpec* object);
LumStatus lumiResizeNearestInit_32f(LumiSize srcSize, LumiSize dstSize, LumiResizeSpec* object);
LumStatus lumiResizeNearestInit_8u(LumiSize srcSize, LumiSize dstSize, LumiResizeSpec* object);

/**
 * Plans a resize with two taps an axis.
 *
 * The centre of destination column i is at c = (i + 0.5) * s - 0.5 in the source, computed in double precision with
 * s = source width / destination width. It lies between columns floor(c) and floor(c) + 1; the second one's
 * weight is f = c - floor(c), of 8u trunc(f * 16384 + 1e-7) / 16384, of 16u, 16s and 32f rounded to Lum32f. Rows
 * likewise.
 *
 * Returns lumStatusOk (0) or, tested in this order and with nothing written:
 *   lumStatusNullPointer (-8) object is null
 *   lumStatusNothingToDo (1)  one of the four sizes is zero
 *   lumStatusBadSize (-6)     one of them is below 1, or one of the source's below 2
 *
 *   srcSize    size of the whole source
 *   dstSize    size of the whole destination
 *   object     memory of the plan, as large as lumiResizeGetSize tells
 *   object     the same, of 64f
 */
LumStatus lumiResizeLinearInit_16s(LumiSize srcSize, LumiSize dstSize, LumiResizeSpec* object);
LumStatus lumiResizeLinearInit_16u(LumiSize srcSize, LumiSize dstSize, LumiResizeSpec* object);
LumStatus lumiResizeLinearInit_32f(LumiSize srcSize, LumiSize dstSize, LumiResizeSpec* object);
LumStatus lumiResizeLinearInit_64f(LumiSize srcSize, LumiSize dstSize, LumiResizeSpec64f* object);
LumStatus lumiResizeLinearInit_8u(LumiSize srcSize, LumiSize dstSize, LumiResizeSpec* object);

/**
 * Tells how much scratch a run over a tile takes.
 *
 * Scratch may lie at any address. Runs at the same time need scratch each of their own.
 *
 * Returns lumStatusOk (0) or, tested in this order:
 *   lumStatusNullPointer (-8)      object or bufferSize is null
 *   lumStatusNothingToDo (1)       the tile's width or height is zero
 *   lumStatusBadContext (-17)      the object is no plan of this kind
 *   lumStatusBadChannelCount (-53) channels is not 1, 3 or 4
 *   lumStatusBadSize (-6)          the tile's width or height is below 1
 *   lumStatusBadSize (-6)          a result of 2^31 or more
 *   lumStatusSizeAboveSpec (48)    the tile is wider or higher than the whole destination; the result is that
 *                                  of the tile without what is beyond
 * Results are written with lumStatusOk and lumStatusSizeAboveSpec only.
 *
 *   object     the plan
 *   dstSize    size of the tile
 *   channels   samples of a pixel
 *   bufferSize receives the bytes of scratch
 *   object     the same, of 64f
 */
LumStatus lumiResizeGetBufferSize_16s(const LumiResizeSpec* object, LumiSize dstSize, Lum32u channels,
                                      Lum32s* bufferSize);
LumStatus lumiResizeGetBufferSize_16u(const LumiResizeSpec* object, LumiSize dstSize, Lum32u channels,
                                      Lum32s* bufferSize);
LumStatus lumiResizeGetBufferSize_32f(const LumiResizeSpec* object, LumiSize dstSize, Lum32u channels,
                                      Lum32s* bufferSize);
LumStatus lumiResizeGetBufferSize_64f(const LumiResizeSpec64f* object, LumiSize dstSize, Lum32u channels,
                                      Lum32s* bufferSize);
LumStatus lumiResizeGetBufferSize_8u(const LumiResizeSpec* object, LumiSize dstSize, Lum32u channels,
                                     Lum32s* bufferSize);

/**
 * Tells how many source pixels outside a tile's own a run reads on each side.
 *
 * All are 1 for a linear plan and 0 for a nearest one.
 *
 * Returns lumStatusOk (0) or, tested in this order and with nothing written:
 *   lumStatusNullPointer (-8) a pointer is null
 *   lumStatusBadContext (-17) the object is no plan of this kind
 *
 *   object     the plan
 *   borderSize receives the four counts
 *   object     the same, of 64f
 */
LumStatus lumiResizeGetBorderSize_16s(const LumiResizeSpec* object, LumiBorderSize* borderSize);
LumStatus lumiResizeGetBorderSize_16u(const LumiResizeSpec* object, LumiBorderSize* borderSize);
LumStatus lumiResizeGetBorderSize_32f(const LumiResizeSpec* object, LumiBorderSize* borderSize);
LumStatus lumiResizeGetBorderSize_64f(const LumiResizeSpec64f* object, LumiBorderSize* borderSize);
LumStatus lumiResizeGetBorderSize_8u(const LumiResizeSpec* object, LumiBorderSize* borderSize);

/**
 * Tells the source pixel where a tile starts.
 *
 * (floor(x * sx), floor(y * sy)) of the tile's first pixel (x, y), with sx = source width / destination width and sy
 * alike, computed in double precision. A run takes the pointer of this pixel.
 *
 * Returns lumStatusOk (0) or, tested in this order and with nothing written:
 *   lumStatusNullPointer (-8) a pointer is null
 *   lumStatusBadContext (-17) the object is no plan of this kind
 *   lumStatusOutOfRange (-11) dstOffset lies outside the destination
 *
 *   object     the plan
 *   dstOffset  first pixel of the tile
 *   srcOffset  receives the source pixel
 *   object     the same, of 64f
 */
LumStatus lumiResizeGetSrcOffset_16s(const LumiResizeSpec* object, LumiPoint dstOffset, LumiPoint* srcOffset);
LumStatus lumiResizeGetSrcOffset_16u(const LumiResizeSpec* object, LumiPoint dstOffset, LumiPoint* srcOffset);
LumStatus lumiResizeGetSrcOffset_32f(const LumiResizeSpec* object, LumiPoint dstOffset, LumiPoint* srcOffset);
LumStatus lumiResizeGetSrcOffset_64f(const LumiResizeSpec64f* object, LumiPoint dstOffset,
                                     LumiPoint* srcOffset);
LumStatus lumiResizeGetSrcOffset_8u(const LumiResizeSpec* object, LumiPoint dstOffset, LumiPoint* srcOffset);

/**
 * Tells the source pixels of a tile.
 *
 * The offset is that of lumiResizeGetSrcOffset; the size reaches to the first tap of the tile's last pixel. Further
 * taps are not counted: a linear run reads up to a pixel more on each side, as lumiResizeGetBorderSize tells. What is
 * beyond the destination is left out of the tile.
 *
 * Returns lumStatusOk (0) or, tested in this order:
 *   lumStatusNullPointer (-8)   a pointer is null
 *   lumStatusBadSize (-6)       the tile's width or height is below 1
 *   lumStatusBadContext (-17)   the object is no plan of this kind
 *   lumStatusOutOfRange (-11)   dstOffset lies outside the destination
 *   lumStatusSizeAboveSpec (48) the tile is wider or higher than the whole destination
 * Results are written with lumStatusOk and lumStatusSizeAboveSpec only.
 *
 *   object     the plan
 *   dstOffset  first pixel of the tile
 *   dstSize    size of the tile
 *   srcOffset  receives the first source pixel
 *   srcSize    receives the size
 *   object     the same, of 64f
 */
LumStatus lumiResizeGetSrcRoi_16s(const LumiResizeSpec* object, LumiPoint dstOffset, LumiSize dstSize,
                                  LumiPoint* srcOffset, LumiSize* srcSize);
LumStatus lumiResizeGetSrcRoi_16u(const LumiResizeSpec* object, LumiPoint dstOffset, LumiSize dstSize,
                                  LumiPoint* srcOffset, LumiSize* srcSize);
LumStatus lumiResizeGetSrcRoi_32f(const LumiResizeSpec* object, LumiPoint dstOffset, LumiSize dstSize,
                                  LumiPoint* srcOffset, LumiSize* srcSize);
LumStatus lumiResizeGetSrcRoi_64f(const LumiResizeSpec64f* object, LumiPoint dstOffset, LumiSize dstSize,
                                  LumiPoint* srcOffset, LumiSize* srcSize);
LumStatus lumiResizeGetSrcRoi_8u(const LumiResizeSpec* object, LumiPoint dstOffset, LumiSize dstSize,
                                 LumiPoint* srcOffset, LumiSize* srcSize);

/**
 * Resizes a tile by the nearest pixel.
 *
 * dst(x, y) = src(index of column x, index of row y), with the indices of lumiResizeNearestInit. src points at the
 * pixel that lumiResizeGetSrcOffset names for the tile, dst at the tile's first pixel. A tile that reaches beyond
 * the destination is clipped. Steps may be negative. The images must not overlap. Only source pixels that
 * lumiResizeGetSrcRoi reports are read.
 *
 * Returns lumStatusOk (0) or, tested in this order and before anything is written:
 *   lumStatusNullPointer (-8)        src, dst, object or buffer is null
 *   lumStatusNothingToDo (1)         the tile's width or height is zero
 *   lumStatusBadContext (-17)        the object is no plan of this kind
 *   lumStatusBadSize (-6)            the tile's width or height is below 1
 *   lumStatusBadStep (-14)           a step is not a multiple of the sample's size
 *   lumStatusOutOfRange (-11)        dstOffset lies outside the destination
 *   lumStatusUnsupportedMode (-9999) the plan was not made by lumiResizeNearestInit
 *   lumStatusSizeAboveSpec (48)      done; the tile is wider or higher than the whole destination. A tile that
 *                                    reaches beyond the edge only because of its offset gives 0.
 *
 *   dstOffset  first pixel of the tile
 *   dstSize    size of the tile
 *   object     the plan
 *   buffer     scratch, as large as lumiResizeGetBufferSize tells
 */
LumStatus lumiResizeNearest_16s_C1R(const Lum16s* src, int srcStep, Lum16s* dst, int dstStep,
                                    LumiPoint dstOffset, LumiSize dstSize, const LumiResizeSpec* object,
                                    Lum8u* buffer);
LumStatus lumiResizeNearest_16s_C3R(const Lum16s* src, int srcStep, Lum16s* dst, int dstStep,
                                    LumiPoint dstOffset, LumiSize dstSize, const LumiResizeSpec* object,
                                    Lum8u* buffer);
LumStatus lumiResizeNearest_16s_C4R(const Lum16s* src, int srcStep, Lum16s* dst, int dstStep,
                                    LumiPoint dstOffset, LumiSize dstSize, const LumiResizeSpec* object,
                                    Lum8u* buffer);
LumStatus lumiResizeNearest_16u_C1R(const Lum16u* src, int srcStep, Lum16u* dst, int dstStep,
                                    LumiPoint dstOffset, LumiSize dstSize, const LumiResizeSpec* object,
                                    Lum8u* buffer);
LumStatus lumiResizeNearest_16u_C3R(const Lum16u* src, int srcStep, Lum16u* dst, int dstStep,
                                    LumiPoint dstOffset, LumiSize dstSize, const LumiResizeSpec* object,
                                    Lum8u* buffer);
LumStatus lumiResizeNearest_16u_C4R(const Lum16u* src, int srcStep, Lum16u* dst, int dstStep,
                                    LumiPoint dstOffset, LumiSize dstSize, const LumiResizeSpec* object,
                                    Lum8u* buffer);
LumStatus lumiResizeNearest_32f_C1R(const Lum32f* src, int srcStep, Lum32f* dst, int dstStep,
                                    LumiPoint dstOffset, LumiSize dstSize, const LumiResizeSpec* object,
                                    Lum8u* buffer);
LumStatus lumiResizeNearest_32f_C3R(const Lum32f* src, int srcStep, Lum32f* dst, int dstStep,
                                    LumiPoint dstOffset, LumiSize dstSize, const LumiResizeSpec* object,
                                    Lum8u* buffer);
LumStatus lumiResizeNearest_32f_C4R(const Lum32f* src, int srcStep, Lum32f* dst, int dstStep,
                                    LumiPoint dstOffset, LumiSize dstSize, const LumiResizeSpec* object,
                                    Lum8u* buffer);
LumStatus lumiResizeNearest_8u_C1R(const Lum8u* src, int srcStep, Lum8u* dst, int dstStep,
                                   LumiPoint dstOffset, LumiSize dstSize, const LumiResizeSpec* object,
                                   Lum8u* buffer);
LumStatus lumiResizeNearest_8u_C3R(const Lum8u* src, int srcStep, Lum8u* dst, int dstStep,
                                   LumiPoint dstOffset, LumiSize dstSize, const LumiResizeSpec* object,
                                   Lum8u* buffer);
LumStatus lumiResizeNearest_8u_C4R(const Lum8u* src, int srcStep, Lum8u* dst, int dstStep,
                                   LumiPoint dstOffset, LumiSize dstSize, const LumiResizeSpec* object,
                                   Lum8u* buffer);

/**
 * Resizes a tile with two taps an axis.
 *
 * Blends the source's columns first, then its rows; indices and weights are those of lumiResizeLinearInit. With
 * samples a and b and the second one's weight f (of 8u, with c = f * 16384):
 *
 *   8u        columns p = (a * (16384 - c) + b * c + 128) >> 8
 *             rows    (p * (16384 - c) + q * c + 0x80000) >> 20
 *   16u, 16s  columns a + (b - a) * f in Lum32f; rows p + (q - p) * f, then rounded to nearest even and saturated
 *   32f, 64f  columns a + (b - a) * f; rows p + (q - p) * f, in the sample's own type
 *
 * src points at the pixel that lumiResizeGetSrcOffset names for the tile, dst at the tile's first pixel. A tile that
 * reaches beyond the destination is clipped. Steps may be negative. The images must not overlap.
 *
 * lumiBorderReplicate: where taps fall outside the source image, its edge pixels stand for them. Such destination
 * pixels are blended in one stage, of 8u by t = a * (16384 - c) + b * c and (t + ((t >> 14) & 1) + 8192) >> 14,
 * which may differ by one from the two stages. Flags of sides say that there the pixels outside are in memory;
 * all four together, and lumiBorderInMemory, that they all are. Then everything is blended in two stages.
 *
 * Returns lumStatusOk (0) or, tested in this order and before anything is written:
 *   lumStatusNullPointer (-8)        src, dst, object or buffer is null
 *   lumStatusNothingToDo (1)         the tile's width or height is zero
 *   lumStatusBadContext (-17)        the object is no plan of this kind
 *   lumStatusBadSize (-6)            the tile's width or height is below 1
 *   lumStatusBadStep (-14)           a step is not a multiple of the sample's size
 *   lumStatusOutOfRange (-11)        dstOffset lies outside the destination
 *   lumStatusUnsupportedMode (-9999) the plan was not made by lumiResizeLinearInit, or with weights of another
 *                                    kind: integers for 8u, floats for 16u, 16s and 32f
 *   lumStatusBadBorder (-225)        bit 3 of border is set, or one above bit 7
 *   lumStatusUnsupportedMode (-9999) its low three bits are neither lumiBorderReplicate nor lumiBorderInMemory
 *   lumStatusSizeAboveSpec (48)      done; the tile is wider or higher than the whole destination. A tile that
 *                                    reaches beyond the edge only because of its offset gives 0.
 *
 *   dstOffset  first pixel of the tile
 *   dstSize    size of the tile
 *   border     lumiBorderReplicate or lumiBorderInMemory, with any of the flags
 *   borderValue never read
 *   object     the plan
 *   buffer     scratch, as large as lumiResizeGetBufferSize tells
 *   object     the same, of 64f
 */
LumStatus lumiResizeLinear_16s_C1R(const Lum16s* src, int srcStep, Lum16s* dst, int dstStep,
                                   LumiPoint dstOffset, LumiSize dstSize, LumiBorderType border,
                                   const Lum16s* borderValue, const LumiResizeSpec* object, Lum8u* buffer);
LumStatus lumiResizeLinear_16s_C3R(const Lum16s* src, int srcStep, Lum16s* dst, int dstStep,
                                   LumiPoint dstOffset, LumiSize dstSize, LumiBorderType border,
                                   const Lum16s* borderValue, const LumiResizeSpec* object, Lum8u* buffer);
LumStatus lumiResizeLinear_16s_C4R(const Lum16s* src, int srcStep, Lum16s* dst, int dstStep,
                                   LumiPoint dstOffset, LumiSize dstSize, LumiBorderType border,
                                   const Lum16s* borderValue, const LumiResizeSpec* object, Lum8u* buffer);
LumStatus lumiResizeLinear_16u_C1R(const Lum16u* src, int srcStep, Lum16u* dst, int dstStep,
                                   LumiPoint dstOffset, LumiSize dstSize, LumiBorderType border,
                                   const Lum16u* borderValue, const LumiResizeSpec* object, Lum8u* buffer);
LumStatus lumiResizeLinear_16u_C3R(const Lum16u* src, int srcStep, Lum16u* dst, int dstStep,
                                   LumiPoint dstOffset, LumiSize dstSize, LumiBorderType border,
                                   const Lum16u* borderValue, const LumiResizeSpec* object, Lum8u* buffer);
LumStatus lumiResizeLinear_16u_C4R(const Lum16u* src, int srcStep, Lum16u* dst, int dstStep,
                                   LumiPoint dstOffset, LumiSize dstSize, LumiBorderType border,
                                   const Lum16u* borderValue, const LumiResizeSpec* object, Lum8u* buffer);
LumStatus lumiResizeLinear_32f_C1R(const Lum32f* src, int srcStep, Lum32f* dst, int dstStep,
                                   LumiPoint dstOffset, LumiSize dstSize, LumiBorderType border,
                                   const Lum32f* borderValue, const LumiResizeSpec* object, Lum8u* buffer);
LumStatus lumiResizeLinear_32f_C3R(const Lum32f* src, int srcStep, Lum32f* dst, int dstStep,
                                   LumiPoint dstOffset, LumiSize dstSize, LumiBorderType border,
                                   const Lum32f* borderValue, const LumiResizeSpec* object, Lum8u* buffer);
LumStatus lumiResizeLinear_32f_C4R(const Lum32f* src, int srcStep, Lum32f* dst, int dstStep,
                                   LumiPoint dstOffset, LumiSize dstSize, LumiBorderType border,
                                   const Lum32f* borderValue, const LumiResizeSpec* object, Lum8u* buffer);
LumStatus lumiResizeLinear_64f_C1R(const Lum64f* src, int srcStep, Lum64f* dst, int dstStep,
                                   LumiPoint dstOffset, LumiSize dstSize, LumiBorderType border,
                                   const Lum64f* borderValue, const LumiResizeSpec64f* object, Lum8u* buffer);
LumStatus lumiResizeLinear_64f_C3R(const Lum64f* src, int srcStep, Lum64f* dst, int dstStep,
                                   LumiPoint dstOffset, LumiSize dstSize, LumiBorderType border,
                                   const Lum64f* borderValue, const LumiResizeSpec64f* object, Lum8u* buffer);
LumStatus lumiResizeLinear_64f_C4R(const Lum64f* src, int srcStep, Lum64f* dst, int dstStep,
                                   LumiPoint dstOffset, LumiSize dstSize, LumiBorderType border,
                                   const Lum64f* borderValue, const LumiResizeSpec64f* object, Lum8u* buffer);
LumStatus lumiResizeLinear_8u_C1R(const Lum8u* src, int srcStep, Lum8u* dst, int dstStep, LumiPoint dstOffset,
                                  LumiSize dstSize, LumiBorderType border, const Lum8u* borderValue,
                                  const LumiResizeSpec* object, Lum8u* buffer);
LumStatus lumiResizeLinear_8u_C3R(const Lum8u* src, int srcStep, Lum8u* dst, int dstStep, LumiPoint dstOffset,
                                  LumiSize dstSize, LumiBorderType border, const Lum8u* borderValue,
                                  const LumiResizeSpec* object, Lum8u* buffer);
LumStatus lumiResizeLinear_8u_C4R(const Lum8u* src, int srcStep, Lum8u* dst, int dstStep, LumiPoint dstOffset,
                                  LumiSize dstSize, LumiBorderType border, const Lum8u* borderValue,
                                  const LumiResizeSpec* object, Lum8u* buffer);

#ifdef __cplusplus
}
#endif

#endif
