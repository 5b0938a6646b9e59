/* SPDX-License-Identifier: MIT */
/* Generated from registry/transforms/polar_to_cart.reg by tools/lumigen; edit that instead. */
/** @file Complex samples of magnitudes and phases. */
#ifndef LUMI_POLAR_TO_CART_H
#define LUMI_POLAR_TO_CART_H

#include "types.h"

#ifdef __cplusplus
extern "C" {
#endif

/**
 * Stores the complex samples that have these magnitudes and phases.
 *
 * dst = (m cos p, m sin p) of a magnitude m and a phase p in radians, samples of two float images of one step.
 * Sine and cosine have an error below 1.6 units of their last place, whatever the phase; their products with m
 * are rounded to floats. A phase that is infinite or no number gives NaNs.
 *
 * Of 16sc and 32sc these floats are multiplied by 2^-scaleFactor, rounded to the nearest integer, ties to even,
 * and limited to the type; a NaN gives the least integer. dst must not overlap the other images.
 *
 *   magnitude  magnitudes
 *   phase      phases in radians
 *   srcStep    bytes from one row of these images to the next
 *   scaleFactor of integers
 *
 * Returns lumStatusOk (0) or, tested in this order and before anything is written:
 *   lumStatusNullPointer (-8)  a pointer is null, plane pointers included
 *   lumStatusBadSize (-6)      roi.width or roi.height is below 1
 *   lumStatusBadStep (-14)     a step is below 1
 */
LumStatus lumiPolarToCart_16sc_C1R(const Lum32f* magnitude, const Lum32f* phase, int srcStep, int scaleFactor,
                                   LumiSize roi, Lum16sc* dst, int dstStep);
LumStatus lumiPolarToCart_16sc_C3R(const Lum32f* magnitude, const Lum32f* phase, int srcStep, int scaleFactor,
                                   LumiSize roi, Lum16sc* dst, int dstStep);
LumStatus lumiPolarToCart_32f32fc_P2C1R(const Lum32f* magnitude, const Lum32f* phase, int srcStep,
                                        Lum32fc* dst, int dstStep, LumiSize roi);
LumStatus lumiPolarToCart_32fc_C1R(const Lum32f* magnitude, const Lum32f* phase, int srcStep, LumiSize roi,
                                   Lum32fc* dst, int dstStep);
LumStatus lumiPolarToCart_32fc_C3R(const Lum32f* magnitude, const Lum32f* phase, int srcStep, LumiSize roi,
                                   Lum32fc* dst, int dstStep);
LumStatus lumiPolarToCart_32sc_C1R(const Lum32f* magnitude, const Lum32f* phase, int srcStep, int scaleFactor,
                                   LumiSize roi, Lum32sc* dst, int dstStep);
LumStatus lumiPolarToCart_32sc_C3R(const Lum32f* magnitude, const Lum32f* phase, int srcStep, int scaleFactor,
                                   LumiSize roi, Lum32sc* dst, int dstStep);

#ifdef __cplusplus
}
#endif

#endif
