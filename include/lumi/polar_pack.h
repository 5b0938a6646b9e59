/* SPDX-License-Identifier: MIT */
/* Generated from registry/transforms/polar_pack.reg by tools/lumigen; edit that instead. */
/** @file Magnitudes and phases of packed spectra. */
#ifndef LUMI_POLAR_PACK_H
#define LUMI_POLAR_PACK_H

#include "types.h"

#ifdef __cplusplus
extern "C" {
#endif

/**
 * Computes the magnitudes of a packed spectrum.
 *
 * dst(x, y) = |F(y, x)|, where F is the complex spectrum that lumiPackToCplxExtend makes of src, each channel by
 * itself: all of its width and height, the conjugate half included. Magnitudes are those of lumiMagnitude.
 *
 * The images must not overlap, nor the rows of the destination one another. They may be misaligned in any way.
 * Scratch memory that is not to be had gives lumStatusNullPointer (-8).
 *
 * Returns lumStatusOk (0) or, tested in this order and before anything is written:
 *   lumStatusNullPointer (-8)  a pointer is null, plane pointers included
 *   lumStatusBadSize (-6)      roi.width or roi.height is below 1
 *   lumStatusBadStep (-14)     a step is below 1
 */
LumStatus lumiMagnitudePack_16s_C1RSfs(const Lum16s* src, int srcStep, Lum16s* dst, int dstStep, LumiSize roi,
                                       int scaleFactor);
LumStatus lumiMagnitudePack_16s_C3RSfs(const Lum16s* src, int srcStep, Lum16s* dst, int dstStep, LumiSize roi,
                                       int scaleFactor);
LumStatus lumiMagnitudePack_32f_C1R(const Lum32f* src, int srcStep, Lum32f* dst, int dstStep, LumiSize roi);
LumStatus lumiMagnitudePack_32f_C3R(const Lum32f* src, int srcStep, Lum32f* dst, int dstStep, LumiSize roi);
LumStatus lumiMagnitudePack_32s_C1RSfs(const Lum32s* src, int srcStep, Lum32s* dst, int dstStep, LumiSize roi,
                                       int scaleFactor);
LumStatus lumiMagnitudePack_32s_C3RSfs(const Lum32s* src, int srcStep, Lum32s* dst, int dstStep, LumiSize roi,
                                       int scaleFactor);

/**
 * Computes the phases of a packed spectrum, in radians.
 *
 * dst(x, y) = the angle of F(y, x), as in lumiMagnitudePack. Angles are those of lumiPhase, from -pi to pi. That of
 * a conjugate is the negative one, but of integers on the negative real axis, where both are pi.
 *
 * What is said of images and scratch memory of lumiMagnitudePack holds here.
 *
 * Returns lumStatusOk (0) or, tested in this order and before anything is written:
 *   lumStatusNullPointer (-8)  a pointer is null, plane pointers included
 *   lumStatusBadSize (-6)      roi.width or roi.height is below 1
 *   lumStatusBadStep (-14)     a step is below 1
 */
LumStatus lumiPhasePack_16s_C1RSfs(const Lum16s* src, int srcStep, Lum16s* dst, int dstStep, LumiSize roi,
                                   int scaleFactor);
LumStatus lumiPhasePack_16s_C3RSfs(const Lum16s* src, int srcStep, Lum16s* dst, int dstStep, LumiSize roi,
                                   int scaleFactor);
LumStatus lumiPhasePack_32f_C1R(const Lum32f* src, int srcStep, Lum32f* dst, int dstStep, LumiSize roi);
LumStatus lumiPhasePack_32f_C3R(const Lum32f* src, int srcStep, Lum32f* dst, int dstStep, LumiSize roi);
LumStatus lumiPhasePack_32s_C1RSfs(const Lum32s* src, int srcStep, Lum32s* dst, int dstStep, LumiSize roi,
                                   int scaleFactor);
LumStatus lumiPhasePack_32s_C3RSfs(const Lum32s* src, int srcStep, Lum32s* dst, int dstStep, LumiSize roi,
                                   int scaleFactor);

#ifdef __cplusplus
}
#endif

#endif
