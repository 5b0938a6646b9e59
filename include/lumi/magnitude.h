/* SPDX-License-Identifier: MIT */
/* Generated from registry/transforms/magnitude.reg by tools/lumigen; edit that instead. */
/** @file Magnitude of complex samples. */
#ifndef LUMI_MAGNITUDE_H
#define LUMI_MAGNITUDE_H

#include "types.h"

#ifdef __cplusplus
extern "C" {
#endif

/**
 * Stores the magnitude of each complex sample.
 *
 * dst = sqrt(re^2 + im^2). Of floats each square, their sum and its root are rounded to a float, so that a sum
 * beyond the largest float gives infinity. Of integers the root is multiplied by 2^-scaleFactor, rounded to the
 * nearest integer, ties to even, and limited to the type: exactly of 16-bit parts; of 32-bit parts squares, sum
 * and root are rounded to doubles, and the result is the right one unless the exact one is within
 * 2^-20 2^-scaleFactor of a tie. src and dst must not overlap.
 *
 * Returns lumStatusOk (0) or, tested in this order and before anything is written:
 *   lumStatusNullPointer (-8)  a pointer is null, plane pointers included
 *   lumStatusBadSize (-6)      roi.width or roi.height is below 1
 *   lumStatusBadStep (-14)     a step is below 1
 */
LumStatus lumiMagnitude_16sc16s_C1RSfs(const Lum16sc* src, int srcStep, Lum16s* dst, int dstStep,
                                       LumiSize roi, int scaleFactor);
LumStatus lumiMagnitude_16sc16s_C3RSfs(const Lum16sc* src, int srcStep, Lum16s* dst, int dstStep,
                                       LumiSize roi, int scaleFactor);
LumStatus lumiMagnitude_16uc16u_C1RSfs(const Lum16uc* src, int srcStep, Lum16u* dst, int dstStep,
                                       LumiSize roi, int scaleFactor);
LumStatus lumiMagnitude_16uc16u_C3RSfs(const Lum16uc* src, int srcStep, Lum16u* dst, int dstStep,
                                       LumiSize roi, int scaleFactor);
LumStatus lumiMagnitude_32fc32f_C1R(const Lum32fc* src, int srcStep, Lum32f* dst, int dstStep, LumiSize roi);
LumStatus lumiMagnitude_32fc32f_C3R(const Lum32fc* src, int srcStep, Lum32f* dst, int dstStep, LumiSize roi);
LumStatus lumiMagnitude_32sc32s_C1RSfs(const Lum32sc* src, int srcStep, Lum32s* dst, int dstStep,
                                       LumiSize roi, int scaleFactor);
LumStatus lumiMagnitude_32sc32s_C3RSfs(const Lum32sc* src, int srcStep, Lum32s* dst, int dstStep,
                                       LumiSize roi, int scaleFactor);

#ifdef __cplusplus
}
#endif

#endif
