/* SPDX-License-Identifier: MIT */
/* Generated from registry/filters/lbp.reg by tools/lumigen; edit that instead. */
/** @file Local binary patterns. */
#ifndef LUMI_LBP_H
#define LUMI_LBP_H

#include "types.h"

#ifdef __cplusplus
extern "C" {
#endif

/**
 * Stores the local binary pattern of each pixel: which neighbours are not below it.
 *
 * The neighbours go clockwise from the top left corner, number 0, to the one on the left, number 7. Bit k of the result is
 * set unless neighbour k is below the pixel; where either is not a number it is set.
 *
 * The low four bits of border: with lumiBorderInMemory all pixels around the ROI are in memory, and are read as far as the
 * window reaches; with any other value those outside are the nearest ones of the ROI. Flags name sides whose pixels are
 * in memory with any type. borderValue is not looked at.
 *
 * Images may be misaligned in any way; zero and negative steps are taken. They must not overlap, and the rows of dst must
 * not overlap one another.
 *
 *   border     a type, and flags
 *   borderValue not used
 *
 * Returns lumStatusOk (0) or, tested in this order and before anything is written:
 *   lumStatusNullPointer (-8)  a pointer is null, plane pointers included
 *   lumStatusBadSize (-6)      roi.width or roi.height is below 1
 */
LumStatus lumiLBPImage3x3_32f8u_C1R(const Lum32f* src, int srcStep, Lum8u* dst, int dstStep, LumiSize roi,
                                    LumiBorderType border, Lum32f borderValue);
LumStatus lumiLBPImage3x3_8u_C1R(const Lum8u* src, int srcStep, Lum8u* dst, int dstStep, LumiSize roi,
                                 LumiBorderType border, Lum8u borderValue);

/**
 * Stores the local binary pattern of each pixel in a window of 5 x 5.
 *
 * A result of bytes has eight neighbours: the corners of 3 x 3, and between them the pixels two steps above, to the right,
 * below and to the left. One of words has sixteen, in which those beside the corners and the middles of 5 x 5 stand too,
 * clockwise from (-2, -1) over (-1, -1), (-1, -2) and (0, -2) to (-2, 0). Bit k is that of neighbour k.
 * Comparisons, border and overlap are as in lumiLBPImage3x3.
 *
 *   border     a type, and flags
 *   borderValue not used
 *
 * Returns lumStatusOk (0) or, tested in this order and before anything is written:
 *   lumStatusNullPointer (-8)  a pointer is null, plane pointers included
 *   lumStatusBadSize (-6)      roi.width or roi.height is below 1
 */
LumStatus lumiLBPImage5x5_32f16u_C1R(const Lum32f* src, int srcStep, Lum16u* dst, int dstStep, LumiSize roi,
                                     LumiBorderType border, Lum32f borderValue);
LumStatus lumiLBPImage5x5_32f8u_C1R(const Lum32f* src, int srcStep, Lum8u* dst, int dstStep, LumiSize roi,
                                    LumiBorderType border, Lum32f borderValue);
LumStatus lumiLBPImage5x5_8u16u_C1R(const Lum8u* src, int srcStep, Lum16u* dst, int dstStep, LumiSize roi,
                                    LumiBorderType border, Lum8u borderValue);
LumStatus lumiLBPImage5x5_8u_C1R(const Lum8u* src, int srcStep, Lum8u* dst, int dstStep, LumiSize roi,
                                 LumiBorderType border, Lum8u borderValue);

/**
 * Does what lumiLBPImage3x3 does, with the bits in an order by choice.
 *
 * Of n neighbours the first, number 0, and number k above it go to the bits
 *
 *   mode 0: 0 and n - k
 *   mode 1: 0 and k, as in lumiLBPImage3x3
 *   mode 2: n - 1 and n - 1 - k
 *   mode 3: 1 and k + 1, the last one to bit 0
 *
 * Only the low two bits of mode are looked at.
 *
 *   mode       the order of the bits
 *   border     a type, and flags
 *   borderValue not used
 *
 * Returns lumStatusOk (0) or, tested in this order and before anything is written:
 *   lumStatusNullPointer (-8)  a pointer is null, plane pointers included
 *   lumStatusBadSize (-6)      roi.width or roi.height is below 1
 */
LumStatus lumiLBPImageMode3x3_32f8u_C1R(const Lum32f* src, int srcStep, Lum8u* dst, int dstStep, LumiSize roi,
                                        Lum8u mode, LumiBorderType border, Lum32f borderValue);
LumStatus lumiLBPImageMode3x3_8u_C1R(const Lum8u* src, int srcStep, Lum8u* dst, int dstStep, LumiSize roi,
                                     Lum8u mode, LumiBorderType border, Lum8u borderValue);

/**
 * Does what lumiLBPImage5x5 does, with the bits in an order by choice.
 *
 * The modes are those of lumiLBPImageMode3x3.
 *
 *   mode       the order of the bits
 *   border     a type, and flags
 *   borderValue not used
 *
 * Returns lumStatusOk (0) or, tested in this order and before anything is written:
 *   lumStatusNullPointer (-8)  a pointer is null, plane pointers included
 *   lumStatusBadSize (-6)      roi.width or roi.height is below 1
 */
LumStatus lumiLBPImageMode5x5_32f16u_C1R(const Lum32f* src, int srcStep, Lum16u* dst, int dstStep,
                                         LumiSize roi, Lum8u mode, LumiBorderType border, Lum32f borderValue);
LumStatus lumiLBPImageMode5x5_32f8u_C1R(const Lum32f* src, int srcStep, Lum8u* dst, int dstStep, LumiSize roi,
                                        Lum8u mode, LumiBorderType border, Lum32f borderValue);
LumStatus lumiLBPImageMode5x5_8u16u_C1R(const Lum8u* src, int srcStep, Lum16u* dst, int dstStep, LumiSize roi,
                                        Lum8u mode, LumiBorderType border, Lum8u borderValue);
LumStatus lumiLBPImageMode5x5_8u_C1R(const Lum8u* src, int srcStep, Lum8u* dst, int dstStep, LumiSize roi,
                                     Lum8u mode, LumiBorderType border, Lum8u borderValue);

/**
 * Counts in how many bits two images of patterns differ about each pixel, with one of them shifted.
 *
 * With s the shift, limited to -roi.width .. roi.width,
 *
 *   dst(x, y) = sum over dx, dy from -2 to 2 of the bits set in src1(x + dx, y + dy) ^ src2(x + dx + s, y + dy)
 *
 * which is 200 at most for bytes and 400 for words. The border is that of lumiLBPImage3x3, for each image by itself:
 * columns of src2 are limited after the shift. Where a side is in memory src2 is read there up to the shift and two pixels
 * beyond the ROI.
 *
 * Images may be misaligned in any way; zero and negative steps are taken. dst must not overlap the others, nor may
 * its rows overlap one another.
 *
 *   shift      pixels from src1 to src2
 *   border     a type, and flags
 *   borderValue not used
 *
 * Returns lumStatusOk (0) or, tested in this order and before anything is written:
 *   lumStatusNullPointer (-8)  a pointer is null, plane pointers included
 *   lumStatusBadSize (-6)      roi.width or roi.height is below 1
 */
LumStatus lumiLBPImageHorizCorr_16u_C1R(const Lum16u* src1, int src1Step, const Lum16u* src2, int src2Step,
                                        Lum16u* dst, int dstStep, LumiSize roi, Lum32s shift,
                                        LumiBorderType border, Lum16u borderValue);
LumStatus lumiLBPImageHorizCorr_8u_C1R(const Lum8u* src1, int src1Step, const Lum8u* src2, int src2Step,
                                       Lum8u* dst, int dstStep, LumiSize roi, Lum32s shift,
                                       LumiBorderType border, Lum8u borderValue);

#ifdef __cplusplus
}
#endif

#endif
