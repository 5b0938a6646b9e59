/* SPDX-License-Identifier: MIT */
/* Generated from registry/filters/hog.reg by tools/lumigen; edit that instead. */
/** @file Histograms of oriented gradients. */
#ifndef LUMI_HOG_H
#define LUMI_HOG_H

#include "types.h"

#ifdef __cplusplus
extern "C" {
#endif

/**
 * Tells the size of the object that lumiHOGInit makes.
 *
 * 72 bytes and 16 for each pixel of a block.
 *
 * Checked in this order; on an error nothing is written:
 *   lumStatusNullPointer (-8)        a pointer is null
 *   lumStatusUnsupportedMode (-9999) cellSize or binCount is not 2 to 16, blockSize not twice the cell's, blockStride no
 *                                    positive multiple of the cell's, sigma or clipping not above 0
 *   lumStatusBadSize (-6)            the window is smaller than a block, or exceeds it by no multiple of blockStride
 *
 *   config     the configuration
 *   size       receives the size in bytes
 */
LumStatus lumiHOGGetSize(const LumiHOGConfig* config, int* size);

/**
 * Makes the object of lumiHOG: a copy of the configuration, and the weights of a block's pixels.
 *
 * A pixel at (x, y) of a block counts in its four cells by w(x, y) in the top left one, w(x, B-1-y) in the bottom left
 * one, w(B-1-x, y) in the top right one and w(B-1-x, B-1-y) in the bottom right one. With the cell's side c and the
 * block's side B
 *
 *   w(x, y) = g(x) * g(y), and 0 where x or y is at least B - c / 2
 *   g(x) = (1 - |(x + 0.5) / c - 0.5|) * exp(-(x + 0.5 - c)^2 / (2 * sigma^2))
 *
 * formed in doubles, with errors of a few units of their last place, and rounded once to Lum32f.
 *
 * Memory of any address will do. The object is read by any number of runs at once; it may be moved. Statuses and their
 * order are those of lumiHOGGetSize.
 *
 *   config     the configuration
 *   spec       memory of the object, of the size that lumiHOGGetSize tells
 */
LumStatus lumiHOGInit(const LumiHOGConfig* config, LumiHOGSpec* spec);

/**
 * Tells the size of the buffer that a run needs: 12 bytes for each pixel of the ROI.
 *
 * Arithmetic is modulo 2^32: sizes beyond 2 GiB must be ruled out by the caller.
 *
 * Checked in this order; on an error nothing is written:
 *   lumStatusNullPointer (-8)  a pointer is null
 *   lumStatusBadContext (-17)  spec is no object of lumiHOGInit
 *   lumStatusBadSize (-6)      the ROI is narrower or lower than the window
 *
 *   spec       the object
 *   roi        of the runs
 *   size       receives the size in bytes
 */
LumStatus lumiHOGGetBufferSize(const LumiHOGSpec* spec, LumiSize roi, int* size);

/**
 * Tells the bytes of a window's descriptor.
 *
 * 16 for each bin of each block, modulo 2^32.
 *
 * Checked in this order; on an error nothing is written:
 *   lumStatusNullPointer (-8)  a pointer is null
 *   lumStatusBadContext (-17)  spec is no object of lumiHOGInit
 *
 *   spec       the object
 *   size       receives the size in bytes
 */
LumStatus lumiHOGGetDescriptorSize(const LumiHOGSpec* spec, int* size);

/**
 * Describes windows of an image by histograms of the directions in which it rises.
 *
 * Each window of the list gives a descriptor: for each block, in the order of the configuration, four cells (top left,
 * bottom left, top right, bottom right), and for each of them its bins. Descriptors follow one another without gaps.
 * Windows that do not lie within the image are skipped: nothing is stored for them, and the next descriptor takes the
 * place.
 *
 * The image is the ROI, cut to the width and the height that the grid of blocks fits: the largest blockSize +
 * n * blockStride. All arithmetic is that of Lum32f, each operation rounded by itself, in this order:
 *
 *   dx = src(x + 1, y) - src(x - 1, y), dy = src(x, y + 1) - src(x, y - 1)
 *   C3 takes the channel of the largest dx * dx + dy * dy: the second where it is not below the first one, the third
 *   where it is above both
 *   angle = dx * dy / (e + dx * dx + 0.28 * (dy * dy)) + (0, or pi where dx < 0, or else 2 pi where dy < 0)
 *           where dx * dx >= dy * dy,
 *           (pi / 2, or 3 pi / 2 where dy < 0) - dx * dy / (e + 0.28 * (dx * dx) + dy * dy) elsewhere,
 *           with e = 2.220446e-16, nearly the arctangent of dy and dx
 *   b = angle * (binCount / pi) - 0.5, k = floor(b), f = b - k, m = sqrt(dx * dx + dy * dy)
 *   m * (1 - f) counts in bin k modulo binCount, m * f in the next one, both times the cell's weight
 *
 * The pixels of a block are added up row after row. A block's histogram h then becomes h / sqrt(s + 1.1920929e-7), with
 * s the sum of its squares: over the bins of each cell, in their order, then ((top left + bottom left) + top right) +
 * bottom right. It is limited to clipping, and divided in the same way once more.
 *
 * Outside the image the border type decides, for each side that has no flag: lumiBorderConst, lumiBorderReplicate or
 * lumiBorderMirror. Sides with a flag, and all of them with lumiBorderInMemory, have real pixels: one row or column
 * beyond the image, without the corners. Bits above the lowest eight are not looked at. Gradients that are no numbers,
 * or whose squares are beyond Lum32f, make values of their blocks that are not told.
 *
 * Images may be misaligned, and so may all memory. Images, descriptors and the buffer must not overlap.
 *
 * Checked in this order; on an error nothing is written:
 *   lumStatusNullPointer (-8)  src, descriptors, spec, buffer or (C3) borderValue is null
 *   lumStatusBadContext (-17)  spec is no object of lumiHOGInit
 *   lumStatusBadStep (-14)     the step is below 1
 *   lumStatusOddStep (-108)    the step is no multiple of the sample size
 *   lumStatusBadSize (-6)      the ROI is narrower or lower than the window
 *   lumStatusBadArgument (-5)  locationCount is below 1
 *   lumStatusNullPointer (-8)  locations is null and locationCount above 1
 *   lumStatusBadBorder (-225)  the low four bits of border are not 0, 1, 3 or 6
 *
 *   locations  top left corners of the windows, from the ROI's first pixel on; null for one at (0, 0)
 *   locationCount how many windows
 *   descriptors receives the descriptors
 *   spec       the object
 *   border     lumiBorderConst, lumiBorderReplicate, lumiBorderMirror or lumiBorderInMemory, and flags
 *   borderValue the constant
 *   buffer     scratch memory of the size that lumiHOGGetBufferSize tells
 */
LumStatus lumiHOG_16s32f_C1R(const Lum16s* src, int srcStep, LumiSize roi, const LumiPoint* locations,
                             int locationCount, Lum32f* descriptors, const LumiHOGSpec* spec,
                             LumiBorderType border, Lum16s borderValue, Lum8u* buffer);
LumStatus lumiHOG_16s32f_C3R(const Lum16s* src, int srcStep, LumiSize roi, const LumiPoint* locations,
                             int locationCount, Lum32f* descriptors, const LumiHOGSpec* spec,
                             LumiBorderType border, const Lum16s borderValue[3], Lum8u* buffer);
LumStatus lumiHOG_16u32f_C1R(const Lum16u* src, int srcStep, LumiSize roi, const LumiPoint* locations,
                             int locationCount, Lum32f* descriptors, const LumiHOGSpec* spec,
                             LumiBorderType border, Lum16u borderValue, Lum8u* buffer);
LumStatus lumiHOG_16u32f_C3R(const Lum16u* src, int srcStep, LumiSize roi, const LumiPoint* locations,
                             int locationCount, Lum32f* descriptors, const LumiHOGSpec* spec,
                             LumiBorderType border, const Lum16u borderValue[3], Lum8u* buffer);
LumStatus lumiHOG_32f_C1R(const Lum32f* src, int srcStep, LumiSize roi, const LumiPoint* locations,
                          int locationCount, Lum32f* descriptors, const LumiHOGSpec* spec,
                          LumiBorderType border, Lum32f borderValue, Lum8u* buffer);
LumStatus lumiHOG_32f_C3R(const Lum32f* src, int srcStep, LumiSize roi, const LumiPoint* locations,
                          int locationCount, Lum32f* descriptors, const LumiHOGSpec* spec,
                          LumiBorderType border, const Lum32f borderValue[3], Lum8u* buffer);
LumStatus lumiHOG_8u32f_C1R(const Lum8u* src, int srcStep, LumiSize roi, const LumiPoint* locations,
                            int locationCount, Lum32f* descriptors, const LumiHOGSpec* spec,
                            LumiBorderType border, Lum8u borderValue, Lum8u* buffer);
LumStatus lumiHOG_8u32f_C3R(const Lum8u* src, int srcStep, LumiSize roi, const LumiPoint* locations,
                            int locationCount, Lum32f* descriptors, const LumiHOGSpec* spec,
                            LumiBorderType border, const Lum8u borderValue[3], Lum8u* buffer);

#ifdef __cplusplus
}
#endif

#endif
