/* SPDX-License-Identifier: MIT */
/* Generated from registry/filters/filter_wiener.reg by tools/lumigen; edit that instead. */
/** @file Wiener filters. */
#ifndef LUMI_FILTER_WIENER_H
#define LUMI_FILTER_WIENER_H

#include "types.h"

#ifdef __cplusplus
extern "C" {
#endif

/**
 * Tells the size of the buffer that lumiFilterWiener needs.
 *
 * Sizes are modulo 2^32: those beyond 2 GiB must be ruled out by the caller.
 *
 * Returns lumStatusOk (0) or, tested in this order and with nothing written:
 *   lumStatusNullPointer (-8)      size is null
 *   lumStatusBadSize (-6)          roi.width or roi.height is below 1
 *   lumStatusBadChannelCount (-53) channels is not 1, 3 or 4
 *   lumStatusBadMaskSize (-33)     a side of the mask is below 2
 *
 *   roi        of the runs
 *   maskSize   sides of the window
 *   channels   samples of a pixel: 1, 3 or 4
 *   size       receives the size in bytes
 */
LumStatus lumiFilterWienerGetBufferSize(LumiSize roi, LumiSize maskSize, int channels, int* size);

/**
 * Moves each pixel towards the mean of its window, the farther the less the window varies beside the noise.
 *
 * With the mean m and the variance v of the n = maskSize.width * maskSize.height samples of a channel in the window about a
 * pixel, which has the place `anchor` in it, and the noise N = noise * S, where S is 65025 for 8u, 4294836224 for 16s and
 * 1 for 32f:
 *
 *   dst = src + (m - src) * N / max(v, N), and src where that divides 0 by 0
 *
 * formed in doubles from the sums of samples and of their squares, which are exact for integers. 8u and 16s results are
 * rounded to nearest, ties to even. Sums of 32f go on from row to row, in doubles too: after a sample that is not
 * a number, or is infinite, results to the right of it and below are not told.
 *
 * If every channel's noise is below 1.1920929e-7 it is estimated, and stored: the mean over all rows of the rows' means of
 * v, divided by S.
 *
 * AC4 has three noises, and leaves the fourth sample of every pixel of dst as it was. The pixels around the ROI that windows
 * cover are read and must be in memory. Images may be misaligned in any way; they must not overlap one another or the buffer,
 * and the rows of dst must not overlap one another.
 *
 * Returns lumStatusOk (0) or, tested in this order and with nothing written:
 *   lumStatusNullPointer (-8)     src, dst, noise or buffer is null
 *   lumStatusBadSize (-6)         roi.width or roi.height is below 1
 *   lumStatusBadMaskSize (-33)    a side of the mask is below 2
 *   lumStatusBadAnchor (-34)      anchor is outside the mask
 *   lumStatusBadStep (-14)        a step is below 1
 *   lumStatusBadNoiseLevel (-125) a noise of the channels that are filtered is below 0, at least 1, or not a number
 *
 *   maskSize   sides of the window
 *   anchor     the pixel's place in its window
 *   noise      for each channel the variance of the noise as a part of S, or 0, which receives an estimate
 *   buffer     scratch memory of the size that lumiFilterWienerGetBufferSize tells
 */
LumStatus lumiFilterWiener_16s_AC4R(const Lum16s* src, int srcStep, Lum16s* dst, int dstStep, LumiSize roi,
                                    LumiSize maskSize, LumiPoint anchor, Lum32f* noise, Lum8u* buffer);
LumStatus lumiFilterWiener_16s_C1R(const Lum16s* src, int srcStep, Lum16s* dst, int dstStep, LumiSize roi,
                                   LumiSize maskSize, LumiPoint anchor, Lum32f* noise, Lum8u* buffer);
LumStatus lumiFilterWiener_16s_C3R(const Lum16s* src, int srcStep, Lum16s* dst, int dstStep, LumiSize roi,
                                   LumiSize maskSize, LumiPoint anchor, Lum32f* noise, Lum8u* buffer);
LumStatus lumiFilterWiener_16s_C4R(const Lum16s* src, int srcStep, Lum16s* dst, int dstStep, LumiSize roi,
                                   LumiSize maskSize, LumiPoint anchor, Lum32f* noise, Lum8u* buffer);
LumStatus lumiFilterWiener_32f_AC4R(const Lum32f* src, int srcStep, Lum32f* dst, int dstStep, LumiSize roi,
                                    LumiSize maskSize, LumiPoint anchor, Lum32f* noise, Lum8u* buffer);
LumStatus lumiFilterWiener_32f_C1R(const Lum32f* src, int srcStep, Lum32f* dst, int dstStep, LumiSize roi,
                                   LumiSize maskSize, LumiPoint anchor, Lum32f* noise, Lum8u* buffer);
LumStatus lumiFilterWiener_32f_C3R(const Lum32f* src, int srcStep, Lum32f* dst, int dstStep, LumiSize roi,
                                   LumiSize maskSize, LumiPoint anchor, Lum32f* noise, Lum8u* buffer);
LumStatus lumiFilterWiener_32f_C4R(const Lum32f* src, int srcStep, Lum32f* dst, int dstStep, LumiSize roi,
                                   LumiSize maskSize, LumiPoint anchor, Lum32f* noise, Lum8u* buffer);
LumStatus lumiFilterWiener_8u_AC4R(const Lum8u* src, int srcStep, Lum8u* dst, int dstStep, LumiSize roi,
                                   LumiSize maskSize, LumiPoint anchor, Lum32f* noise, Lum8u* buffer);
LumStatus lumiFilterWiener_8u_C1R(const Lum8u* src, int srcStep, Lum8u* dst, int dstStep, LumiSize roi,
                                  LumiSize maskSize, LumiPoint anchor, Lum32f* noise, Lum8u* buffer);
LumStatus lumiFilterWiener_8u_C3R(const Lum8u* src, int srcStep, Lum8u* dst, int dstStep, LumiSize roi,
                                  LumiSize maskSize, LumiPoint anchor, Lum32f* noise, Lum8u* buffer);
LumStatus lumiFilterWiener_8u_C4R(const Lum8u* src, int srcStep, Lum8u* dst, int dstStep, LumiSize roi,
                                  LumiSize maskSize, LumiPoint anchor, Lum32f* noise, Lum8u* buffer);

#ifdef __cplusplus
}
#endif

#endif
