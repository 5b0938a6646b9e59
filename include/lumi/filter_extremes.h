/* SPDX-License-Identifier: MIT */
/* Generated from registry/filters/filter_extremes.reg by tools/lumigen; edit that instead. */
/** @file Maximum and minimum filters. */
#ifndef LUMI_FILTER_EXTREMES_H
#define LUMI_FILTER_EXTREMES_H

#include "types.h"

#ifdef __cplusplus
extern "C" {
#endif

/**
 * Replaces each sample by the largest one of a rectangle around it, of any size, channel by channel.
 *
 * The window of pixel (x, y) has its first column and row at (x - anchor.x, y - anchor.y). All pixels that
 * windows cover are read, outside the ROI too: the caller sees to it that they are in memory. AC4 leaves
 * the fourth sample of every pixel as it was. A window of one pixel copies.
 *
 * In larger windows of 32f a NaN counts as minus infinity, the least of all. Where zeros of both signs are the
 * largest, the one that comes first in the window, row after row, is stored.
 *
 * Source and destination may be the same image, where no step is below the bytes that the windows of a row
 * cover; they must not overlap otherwise, nor may rows of the destination. Where a call needs memory that is
 * not to be had it returns lumStatusNoMemory (-9), and nothing is written.
 *
 *   maskSize   columns and rows of the window
 *   anchor     the pixel's column and row in its window
 *
 * Returns lumStatusOk (0) or, tested in this order and before anything is written:
 *   lumStatusNullPointer (-8)  a pointer is null, plane pointers included
 *   lumStatusBadSize (-6)      a width or a height is below 1
 *   lumStatusBadStep (-14)     a step is below 1
 *   lumStatusBadMaskSize (-33) a side is below 1
 *   lumStatusBadAnchor (-34)   it is outside the window
 */
LumStatus lumiFilterMax_16s_AC4R(const Lum16s* src, int srcStep, Lum16s* dst, int dstStep, LumiSize roi,
                                 LumiSize maskSize, LumiPoint anchor);
LumStatus lumiFilterMax_16s_C1R(const Lum16s* src, int srcStep, Lum16s* dst, int dstStep, LumiSize roi,
                                LumiSize maskSize, LumiPoint anchor);
LumStatus lumiFilterMax_16s_C3R(const Lum16s* src, int srcStep, Lum16s* dst, int dstStep, LumiSize roi,
                                LumiSize maskSize, LumiPoint anchor);
LumStatus lumiFilterMax_16s_C4R(const Lum16s* src, int srcStep, Lum16s* dst, int dstStep, LumiSize roi,
                                LumiSize maskSize, LumiPoint anchor);
LumStatus lumiFilterMax_16u_AC4R(const Lum16u* src, int srcStep, Lum16u* dst, int dstStep, LumiSize roi,
                                 LumiSize maskSize, LumiPoint anchor);
LumStatus lumiFilterMax_16u_C1R(const Lum16u* src, int srcStep, Lum16u* dst, int dstStep, LumiSize roi,
                                LumiSize maskSize, LumiPoint anchor);
LumStatus lumiFilterMax_16u_C3R(const Lum16u* src, int srcStep, Lum16u* dst, int dstStep, LumiSize roi,
                                LumiSize maskSize, LumiPoint anchor);
LumStatus lumiFilterMax_16u_C4R(const Lum16u* src, int srcStep, Lum16u* dst, int dstStep, LumiSize roi,
                                LumiSize maskSize, LumiPoint anchor);
LumStatus lumiFilterMax_32f_AC4R(const Lum32f* src, int srcStep, Lum32f* dst, int dstStep, LumiSize roi,
                                 LumiSize maskSize, LumiPoint anchor);
LumStatus lumiFilterMax_32f_C1R(const Lum32f* src, int srcStep, Lum32f* dst, int dstStep, LumiSize roi,
                                LumiSize maskSize, LumiPoint anchor);
LumStatus lumiFilterMax_32f_C3R(const Lum32f* src, int srcStep, Lum32f* dst, int dstStep, LumiSize roi,
                                LumiSize maskSize, LumiPoint anchor);
LumStatus lumiFilterMax_32f_C4R(const Lum32f* src, int srcStep, Lum32f* dst, int dstStep, LumiSize roi,
                                LumiSize maskSize, LumiPoint anchor);
LumStatus lumiFilterMax_8u_AC4R(const Lum8u* src, int srcStep, Lum8u* dst, int dstStep, LumiSize roi,
                                LumiSize maskSize, LumiPoint anchor);
LumStatus lumiFilterMax_8u_C1R(const Lum8u* src, int srcStep, Lum8u* dst, int dstStep, LumiSize roi,
                               LumiSize maskSize, LumiPoint anchor);
LumStatus lumiFilterMax_8u_C3R(const Lum8u* src, int srcStep, Lum8u* dst, int dstStep, LumiSize roi,
                               LumiSize maskSize, LumiPoint anchor);
LumStatus lumiFilterMax_8u_C4R(const Lum8u* src, int srcStep, Lum8u* dst, int dstStep, LumiSize roi,
                               LumiSize maskSize, LumiPoint anchor);

/**
 * Replaces each sample by the smallest one of a rectangle around it, of any size, channel by channel.
 *
 * All is as in lumiFilterMax, but that a NaN counts as infinity.
 *
 *   maskSize   columns and rows of the window
 *   anchor     the pixel's column and row in its window
 *
 * Returns lumStatusOk (0) or, tested in this order and before anything is written:
 *   lumStatusNullPointer (-8)  a pointer is null, plane pointers included
 *   lumStatusBadSize (-6)      a width or a height is below 1
 *   lumStatusBadStep (-14)     a step is below 1
 *   lumStatusBadMaskSize (-33) a side is below 1
 *   lumStatusBadAnchor (-34)   it is outside the window
 */
LumStatus lumiFilterMin_16s_AC4R(const Lum16s* src, int srcStep, Lum16s* dst, int dstStep, LumiSize roi,
                                 LumiSize maskSize, LumiPoint anchor);
LumStatus lumiFilterMin_16s_C1R(const Lum16s* src, int srcStep, Lum16s* dst, int dstStep, LumiSize roi,
                                LumiSize maskSize, LumiPoint anchor);
LumStatus lumiFilterMin_16s_C3R(const Lum16s* src, int srcStep, Lum16s* dst, int dstStep, LumiSize roi,
                                LumiSize maskSize, LumiPoint anchor);
LumStatus lumiFilterMin_16s_C4R(const Lum16s* src, int srcStep, Lum16s* dst, int dstStep, LumiSize roi,
                                LumiSize maskSize, LumiPoint anchor);
LumStatus lumiFilterMin_16u_AC4R(const Lum16u* src, int srcStep, Lum16u* dst, int dstStep, LumiSize roi,
                                 LumiSize maskSize, LumiPoint anchor);
LumStatus lumiFilterMin_16u_C1R(const Lum16u* src, int srcStep, Lum16u* dst, int dstStep, LumiSize roi,
                                LumiSize maskSize, LumiPoint anchor);
LumStatus lumiFilterMin_16u_C3R(const Lum16u* src, int srcStep, Lum16u* dst, int dstStep, LumiSize roi,
                                LumiSize maskSize, LumiPoint anchor);
LumStatus lumiFilterMin_16u_C4R(const Lum16u* src, int srcStep, Lum16u* dst, int dstStep, LumiSize roi,
                                LumiSize maskSize, LumiPoint anchor);
LumStatus lumiFilterMin_32f_AC4R(const Lum32f* src, int srcStep, Lum32f* dst, int dstStep, LumiSize roi,
                                 LumiSize maskSize, LumiPoint anchor);
LumStatus lumiFilterMin_32f_C1R(const Lum32f* src, int srcStep, Lum32f* dst, int dstStep, LumiSize roi,
                                LumiSize maskSize, LumiPoint anchor);
LumStatus lumiFilterMin_32f_C3R(const Lum32f* src, int srcStep, Lum32f* dst, int dstStep, LumiSize roi,
                                LumiSize maskSize, LumiPoint anchor);
LumStatus lumiFilterMin_32f_C4R(const Lum32f* src, int srcStep, Lum32f* dst, int dstStep, LumiSize roi,
                                LumiSize maskSize, LumiPoint anchor);
LumStatus lumiFilterMin_8u_AC4R(const Lum8u* src, int srcStep, Lum8u* dst, int dstStep, LumiSize roi,
                                LumiSize maskSize, LumiPoint anchor);
LumStatus lumiFilterMin_8u_C1R(const Lum8u* src, int srcStep, Lum8u* dst, int dstStep, LumiSize roi,
                               LumiSize maskSize, LumiPoint anchor);
LumStatus lumiFilterMin_8u_C3R(const Lum8u* src, int srcStep, Lum8u* dst, int dstStep, LumiSize roi,
                               LumiSize maskSize, LumiPoint anchor);
LumStatus lumiFilterMin_8u_C4R(const Lum8u* src, int srcStep, Lum8u* dst, int dstStep, LumiSize roi,
                               LumiSize maskSize, LumiPoint anchor);

#ifdef __cplusplus
}
#endif

#endif
