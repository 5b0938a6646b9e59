/* SPDX-License-Identifier: MIT */
/* Generated from registry/data/scale.reg by tools/lumigen; edit that instead. */
/** @file Scale between sample types. */
#ifndef LUMI_SCALE_H
#define LUMI_SCALE_H

#include "types.h"

#ifdef __cplusplus
extern "C" {
#endif

/**
 * Maps the full range of one sample type onto that of another.
 *
 * From 8u, with v = src(x, y):
 *
 *   8u16u  v * 257
 *   8u16s  v * 257 - 32768
 *   8u32s  v * 16843009 - 2147483648
 *   8u32f  lower + v * ((upper - lower) / 255), each step rounded to Lum32f
 *
 * To 8u, with v = src(x, y), and w = v or, of 16u, v - 32768. Shifts are arithmetic; accurate results
 * are rounded to the nearest integer and limited to 0 to 255:
 *
 *          fast                           accurate
 *   16s8u  ((w - (w >> 8)) >> 8) + 128    Lum32f(v + 32768) * 0.0038910506
 *   16u8u  ((w - (w >> 8)) >> 8) + 128    Lum32f(v) * 0.0038910506
 *   32s8u  ((w - (w >> 8)) >> 24) + 128   Lum64f(v) * 5.937181414556033e-08 + 127.5000000296859
 *   32f8u                                 v * f - f * lower, with f = 255 / (upper - lower), each step
 *                                         rounded to Lum32f; NaN gives 0
 *
 * AC4 maps the three colour samples and leaves the destination's alpha as it was. Images may be
 * misaligned in any way, but must not overlap.
 *
 * Members with bounds refuse them if upper - lower is not above 0, NaN included, before any pointer is
 * looked at.
 *
 * Accurate narrowing and 32f8u work with the thread's vector unit rounding to nearest, which is set
 * before the arguments are tested. A call that succeeds puts the rounding back; one that fails does not.
 * 8u32f rounds as the unit is set.
 *
 *   hint       2 takes the accurate way, any other value the fast one
 *
 * Returns lumStatusOk (0) or, tested in this order and before anything is written (8u16s 8u16u 8u32s 16s8u 16u8u 32s8u: C1 C3 C4 AC4):
 *   lumStatusNullPointer (-8)  a pointer is null, plane pointers included
 *   lumStatusBadSize (-6)      roi.width or roi.height is below 1
 *   lumStatusBadStep (-14)     a step is below 1
 *
 * Returns lumStatusOk (0) or, tested in this order and before anything is written (8u32f 32f8u: C1 C3 C4 AC4):
 *   lumStatusBadDataRange (-13) upper is not above lower
 *   lumStatusNullPointer (-8)  a pointer is null, plane pointers included
 *   lumStatusBadSize (-6)      roi.width or roi.height is below 1
 *   lumStatusBadStep (-14)     a step is below 1
 */
LumStatus lumiScale_16s8u_AC4R(const Lum16s* src, int srcStep, Lum8u* dst, int dstStep, LumiSize roi,
                               LumAlgorithmHint hint);
LumStatus lumiScale_16s8u_C1R(const Lum16s* src, int srcStep, Lum8u* dst, int dstStep, LumiSize roi,
                              LumAlgorithmHint hint);
LumStatus lumiScale_16s8u_C3R(const Lum16s* src, int srcStep, Lum8u* dst, int dstStep, LumiSize roi,
                              LumAlgorithmHint hint);
LumStatus lumiScale_16s8u_C4R(const Lum16s* src, int srcStep, Lum8u* dst, int dstStep, LumiSize roi,
                              LumAlgorithmHint hint);
LumStatus lumiScale_16u8u_AC4R(const Lum16u* src, int srcStep, Lum8u* dst, int dstStep, LumiSize roi,
                               LumAlgorithmHint hint);
LumStatus lumiScale_16u8u_C1R(const Lum16u* src, int srcStep, Lum8u* dst, int dstStep, LumiSize roi,
                              LumAlgorithmHint hint);
LumStatus lumiScale_16u8u_C3R(const Lum16u* src, int srcStep, Lum8u* dst, int dstStep, LumiSize roi,
                              LumAlgorithmHint hint);
LumStatus lumiScale_16u8u_C4R(const Lum16u* src, int srcStep, Lum8u* dst, int dstStep, LumiSize roi,
                              LumAlgorithmHint hint);
LumStatus lumiScale_32f8u_AC4R(const Lum32f* src, int srcStep, Lum8u* dst, int dstStep, LumiSize roi,
                               Lum32f lower, Lum32f upper);
LumStatus lumiScale_32f8u_C1R(const Lum32f* src, int srcStep, Lum8u* dst, int dstStep, LumiSize roi,
                              Lum32f lower, Lum32f upper);
LumStatus lumiScale_32f8u_C3R(const Lum32f* src, int srcStep, Lum8u* dst, int dstStep, LumiSize roi,
                              Lum32f lower, Lum32f upper);
LumStatus lumiScale_32f8u_C4R(const Lum32f* src, int srcStep, Lum8u* dst, int dstStep, LumiSize roi,
                              Lum32f lower, Lum32f upper);
LumStatus lumiScale_32s8u_AC4R(const Lum32s* src, int srcStep, Lum8u* dst, int dstStep, LumiSize roi,
                               LumAlgorithmHint hint);
LumStatus lumiScale_32s8u_C1R(const Lum32s* src, int srcStep, Lum8u* dst, int dstStep, LumiSize roi,
                              LumAlgorithmHint hint);
LumStatus lumiScale_32s8u_C3R(const Lum32s* src, int srcStep, Lum8u* dst, int dstStep, LumiSize roi,
                              LumAlgorithmHint hint);
LumStatus lumiScale_32s8u_C4R(const Lum32s* src, int srcStep, Lum8u* dst, int dstStep, LumiSize roi,
                              LumAlgorithmHint hint);
LumStatus lumiScale_8u16s_AC4R(const Lum8u* src, int srcStep, Lum16s* dst, int dstStep, LumiSize roi);
LumStatus lumiScale_8u16s_C1R(const Lum8u* src, int srcStep, Lum16s* dst, int dstStep, LumiSize roi);
LumStatus lumiScale_8u16s_C3R(const Lum8u* src, int srcStep, Lum16s* dst, int dstStep, LumiSize roi);
LumStatus lumiScale_8u16s_C4R(const Lum8u* src, int srcStep, Lum16s* dst, int dstStep, LumiSize roi);
LumStatus lumiScale_8u16u_AC4R(const Lum8u* src, int srcStep, Lum16u* dst, int dstStep, LumiSize roi);
LumStatus lumiScale_8u16u_C1R(const Lum8u* src, int srcStep, Lum16u* dst, int dstStep, LumiSize roi);
LumStatus lumiScale_8u16u_C3R(const Lum8u* src, int srcStep, Lum16u* dst, int dstStep, LumiSize roi);
LumStatus lumiScale_8u16u_C4R(const Lum8u* src, int srcStep, Lum16u* dst, int dstStep, LumiSize roi);
LumStatus lumiScale_8u32f_AC4R(const Lum8u* src, int srcStep, Lum32f* dst, int dstStep, LumiSize roi,
                               Lum32f lower, Lum32f upper);
LumStatus lumiScale_8u32f_C1R(const Lum8u* src, int srcStep, Lum32f* dst, int dstStep, LumiSize roi,
                              Lum32f lower, Lum32f upper);
LumStatus lumiScale_8u32f_C3R(const Lum8u* src, int srcStep, Lum32f* dst, int dstStep, LumiSize roi,
                              Lum32f lower, Lum32f upper);
LumStatus lumiScale_8u32f_C4R(const Lum8u* src, int srcStep, Lum32f* dst, int dstStep, LumiSize roi,
                              Lum32f lower, Lum32f upper);
LumStatus lumiScale_8u32s_AC4R(const Lum8u* src, int srcStep, Lum32s* dst, int dstStep, LumiSize roi);
LumStatus lumiScale_8u32s_C1R(const Lum8u* src, int srcStep, Lum32s* dst, int dstStep, LumiSize roi);
LumStatus lumiScale_8u32s_C3R(const Lum8u* src, int srcStep, Lum32s* dst, int dstStep, LumiSize roi);
LumStatus lumiScale_8u32s_C4R(const Lum8u* src, int srcStep, Lum32s* dst, int dstStep, LumiSize roi);

#ifdef __cplusplus
}
#endif

#endif
