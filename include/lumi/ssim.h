/* SPDX-License-Identifier: MIT */
/* Generated from registry/statistics/ssim.reg by tools/lumigen; edit that instead. */
/** @file Structural similarity. */
#ifndef LUMI_SSIM_H
#define LUMI_SSIM_H

#include "types.h"

#ifdef __cplusplus
extern "C" {
#endif

/**
 * Makes the map of structural similarity of two images from their local statistics.
 *
 * With a and b the local means of the images, aa and bb those of their squares, ab that of their product, and
 * c1 and c2 the stabilising constants:
 *   t = 2 a b, s = a^2 + b^2
 *   dst = (t + c1) ((2 ab - t) + c2) / ((s + c1) ((aa + bb - s) + c2))
 * in the order in which it is written. Equal images give 1 up to rounding. Local means are what a filter makes of
 * the images; the formula is that of Wang, Bovik, Sheikh and Simoncelli, "Image quality assessment: from error
 * visibility to structural similarity", 2004.
 *
 * The destination may be any of the sources.
 *
 *   mean1      local means of the first image
 *   mean1Step  bytes between its rows
 *   mean2      local means of the second image
 *   mean2Step  bytes between its rows
 *   meanSquare1 local means of the squares of the first image
 *   meanSquare1Step bytes between its rows
 *   meanSquare2 local means of the squares of the second image
 *   meanSquare2Step bytes between its rows
 *   meanProduct local means of the images' product
 *   meanProductStep bytes between its rows
 *   c1         for means near zero, above 2^-23; (0.01 * 255)^2 is usual for samples up to 255
 *   c2         for variances near zero, above 2^-23; (0.03 * 255)^2 is usual
 *   hint       2 asks for Lum64f arithmetic, 0 and 1 for Lum32f
 *
 * Returns lumStatusOk (0) or, tested in this order and before anything is written:
 *   lumStatusNullPointer (-8)  a pointer is null, plane pointers included
 *   lumStatusBadSize (-6)      roi.width or roi.height is below 1
 *   lumStatusBadStep (-14)     a step is below 1
 *   lumStatusBadArgument (-5)  c1 or c2 is not above 2^-23
 *   lumStatusBadArgument (-5)  hint is none of these
 */
LumStatus lumiSSIM_32f_C1R(const Lum32f* mean1, int mean1Step, const Lum32f* mean2, int mean2Step,
                           const Lum32f* meanSquare1, int meanSquare1Step, const Lum32f* meanSquare2,
                           int meanSquare2Step, const Lum32f* meanProduct, int meanProductStep, Lum32f* dst,
                           int dstStep, LumiSize roi, Lum32f c1, Lum32f c2, int hint);

#ifdef __cplusplus
}
#endif

#endif
