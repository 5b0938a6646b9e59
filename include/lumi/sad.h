/* SPDX-License-Identifier: MIT */
/* Generated from registry/statistics/sad.reg by tools/lumigen; edit that instead. */
/** @file Sums of absolute differences between a template and all windows of an image. */
#ifndef LUMI_SAD_H
#define LUMI_SAD_H

#include "types.h"

#ifdef __cplusplus
extern "C" {
#endif

/**
 * Tells the size of the buffer that lumiSAD takes: 0 bytes.
 *
 * For programs that ask it of every operation. lumiSAD does not touch its buffer.
 *
 *   srcSize    size of the image
 *   tplSize    size of the template
 *   dataType   of the image: lumiData8u, lumiData16u, lumiData16s or lumiData32f
 *   channels   samples of a pixel, 1
 *   mode       0x10000, destinations of windows that lie inside the image
 *   bufferSize receives 0
 *
 * Returns lumStatusOk (0) or, tested in this order and before anything is written:
 *   lumStatusNullPointer (-8)  a pointer is null, plane pointers included
 *   lumStatusBadSize (-6)      a width or a height is below 1
 *   lumStatusBadDataType (-12) dataType is none of those named
 *   lumStatusUnsupportedMode (-9999) channels is not 1, or mode is not 0x10000
 */
LumStatus lumiSADGetBufferSize(LumiSize srcSize, LumiSize tplSize, LumiDataType dataType, int channels,
                               int mode, Lum32s* bufferSize);

/**
 * Sums the absolute differences between a template and each window of its size in an image.
 *
 * dst(x, y) = sum over all (i, j) of the template of |src(x + i, y + j) - tpl(i, j)|. The destination is
 * srcSize.width - tplSize.width + 1 wide and srcSize.height - tplSize.height + 1 high; where the template is
 * larger than the image there is none, and nothing is stored.
 *
 * Integers: the sum is a 32-bit unsigned number, modulo 2^32; divided by 2^scaleFactor to the nearest, ties to
 * the even neighbour; what is above 2^31 - 1 becomes that. 32f: differences are added in Lum32f, row after row
 * of the template, each from left to right.
 *
 * Destinations may start at any address. That the destination overlaps an image is found by its corners: it does
 * if the first byte of a corner's sample lies within a row of the image or of the template.
 * A destination step that is no multiple of 4, of 32f any step that is not, gives lumStatusBadStep too.
 *
 *   srcSize    size of the image
 *   tpl        first sample of the template
 *   tplStep    bytes between its rows
 *   tplSize    size of the template
 *   mode       0x10000, destinations of windows that lie inside the image
 *   scaleFactor sums are divided by 2^scaleFactor
 *   buffer     not used, and may be null
 *
 * Returns lumStatusOk (0) or, tested in this order and before anything is written (8u32s 16u32s 16s32s: C1):
 *   lumStatusNullPointer (-8)  a pointer is null, plane pointers included
 *   lumStatusBadStep (-14)     a step is below 1
 *   lumStatusBadSize (-6)      a width or a height is below 1
 *   lumStatusUnsupportedMode (-9999) mode is not 0x10000, or the destination overlaps an image
 *   lumStatusBadArgument (-5)  scaleFactor is below 0
 *
 * Returns lumStatusOk (0) or, tested in this order and before anything is written (32f: C1):
 *   lumStatusNullPointer (-8)  a pointer is null, plane pointers included
 *   lumStatusBadStep (-14)     a step is below 1
 *   lumStatusBadSize (-6)      a width or a height is below 1
 *   lumStatusUnsupportedMode (-9999) mode is not 0x10000, or the destination overlaps an image
 */
LumStatus lumiSAD_16s32s_C1RSfs(const Lum16s* src, int srcStep, LumiSize srcSize, const Lum16s* tpl,
                                int tplStep, LumiSize tplSize, Lum32s* dst, int dstStep, int mode,
                                int scaleFactor, Lum8u* buffer);
LumStatus lumiSAD_16u32s_C1RSfs(const Lum16u* src, int srcStep, LumiSize srcSize, const Lum16u* tpl,
                                int tplStep, LumiSize tplSize, Lum32s* dst, int dstStep, int mode,
                                int scaleFactor, Lum8u* buffer);
LumStatus lumiSAD_32f_C1R(const Lum32f* src, int srcStep, LumiSize srcSize, const Lum32f* tpl, int tplStep,
                          LumiSize tplSize, Lum32f* dst, int dstStep, int mode, Lum8u* buffer);
LumStatus lumiSAD_8u32s_C1RSfs(const Lum8u* src, int srcStep, LumiSize srcSize, const Lum8u* tpl, int tplStep,
                               LumiSize tplSize, Lum32s* dst, int dstStep, int mode, int scaleFactor,
                               Lum8u* buffer);

#ifdef __cplusplus
}
#endif

#endif
