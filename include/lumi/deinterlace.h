/* SPDX-License-Identifier: MIT */
/* Generated from registry/filters/deinterlace.reg by tools/lumigen; edit that instead. */
/** @file Deinterlacing. */
#ifndef LUMI_DEINTERLACE_H
#define LUMI_DEINTERLACE_H

#include "types.h"

#ifdef __cplusplus
extern "C" {
#endif

/**
 * Keeps the even rows of an interlaced image, and makes the odd ones from those around them.
 *
 * With e, a, u, c, d, b, f the samples of rows y - 3 to y + 3, of an odd row y,
 *
 *   D = 8 * c - 4 * a - 4 * b
 *   dst = (7 * (u + d) + D + e + f + 8) >> 4
 *
 * limited to min(u, d) .. max(u, d) if |D| is below threshold, and in any case to 0 .. 255. For a row that is not there the
 * nearest one of the same parity stands.
 *
 * Images may be misaligned in any way; steps of any sign and zero are taken. dst may be src: rows are made one after
 * the other, so that a is then a row that was made before. Otherwise they must not overlap, nor may rows of dst
 * overlap one another.
 *
 * Returns lumStatusOk (0) or, tested in this order and with nothing written:
 *   lumStatusNullPointer (-8)  src or dst is null
 *   lumStatusBadSize (-6)      roi.width is below 1, or roi.height odd or below 8
 *
 *   threshold  below which an odd row's own detail is limited
 */
LumStatus lumiDeinterlaceFilterCAVT_8u_C1R(const Lum8u* src, int srcStep, Lum8u* dst, int dstStep,
                                           Lum16u threshold, LumiSize roi);

#ifdef __cplusplus
}
#endif

#endif
