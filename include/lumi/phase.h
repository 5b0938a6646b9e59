/* SPDX-License-Identifier: MIT */
/* Generated from registry/transforms/phase.reg by tools/lumigen; edit that instead. */
/** @file Phase of complex samples. */
#ifndef LUMI_PHASE_H
#define LUMI_PHASE_H

#include "types.h"

#ifdef __cplusplus
extern "C" {
#endif

/**
 * Stores the phase of each complex sample, in radians.
 *
 * dst = atan2(im, re), from -pi to pi, and 0 where both parts are 0. Of floats the error is below 2 units of the
 * last place; zeros of either sign and infinities give what C's atan2f does, NaNs a NaN. Of integers the phase
 * is multiplied by 2^-scaleFactor, rounded to the nearest integer, ties to even, and limited to the type:
 * exactly of 16-bit parts; of 32-bit parts the result is the right one unless the exact one is within
 * 2^-51 2^-scaleFactor of a tie. src and dst must not overlap.
 *
 * Returns lumStatusOk (0) or, tested in this order and before anything is written:
 *   lumStatusNullPointer (-8)  a pointer is null, plane pointers included
 *   lumStatusBadSize (-6)      roi.width or roi.height is below 1
 *   lumStatusBadStep (-14)     a step is below 1
 */
LumStatus lumiPhase_16sc16s_C1RSfs(const Lum16sc* src, int srcStep, Lum16s* dst, int dstStep, LumiSize roi,
                                   int scaleFactor);
LumStatus lumiPhase_16sc16s_C3RSfs(const Lum16sc* src, int srcStep, Lum16s* dst, int dstStep, LumiSize roi,
                                   int scaleFactor);
LumStatus lumiPhase_16uc16u_C1RSfs(const Lum16uc* src, int srcStep, Lum16u* dst, int dstStep, LumiSize roi,
                                   int scaleFactor);
LumStatus lumiPhase_16uc16u_C3RSfs(const Lum16uc* src, int srcStep, Lum16u* dst, int dstStep, LumiSize roi,
                                   int scaleFactor);
LumStatus lumiPhase_32fc32f_C1R(const Lum32fc* src, int srcStep, Lum32f* dst, int dstStep, LumiSize roi);
LumStatus lumiPhase_32fc32f_C3R(const Lum32fc* src, int srcStep, Lum32f* dst, int dstStep, LumiSize roi);
LumStatus lumiPhase_32sc32s_C1RSfs(const Lum32sc* src, int srcStep, Lum32s* dst, int dstStep, LumiSize roi,
                                   int scaleFactor);
LumStatus lumiPhase_32sc32s_C3RSfs(const Lum32sc* src, int srcStep, Lum32s* dst, int dstStep, LumiSize roi,
                                   int scaleFactor);

#ifdef __cplusplus
}
#endif

#endif
