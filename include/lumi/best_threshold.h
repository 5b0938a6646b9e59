/* SPDX-License-Identifier: MIT */
/* Generated from registry/data/best_threshold.reg by tools/lumigen; edit that instead. */
/** @file Best threshold of an image. */
#ifndef LUMI_BEST_THRESHOLD_H
#define LUMI_BEST_THRESHOLD_H

#include "types.h"

#ifdef __cplusplus
extern "C" {
#endif

/**
 * Finds the threshold that parts an image best into dark and bright.
 *
 * It is the sample t for which the variance between the classes of samples up to t and of those above t is
 * largest, the lowest one of several: with the share q of samples up to t and the means m and n of both
 * classes, q * (1 - q) * (m - n)^2. Classes with a share of less than 2^-23 do not count; an image of one grey
 * level has 0. lumiThreshold_LTValGTVal with this
 * threshold for both sides, or lumiThreshold_GTVal, makes the parts visible.
 *
 * A step below the width is a bad step, too.
 *
 *   threshold  receives the threshold
 *
 * Returns lumStatusOk (0) or, tested in this order and before anything is written:
 *   lumStatusNullPointer (-8)  a pointer is null, plane pointers included
 *   lumStatusBadSize (-6)      roi.width or roi.height is below 1
 *   lumStatusBadStep (-14)     a step is below 1
 */
LumStatus lumiComputeThreshold_Otsu_8u_C1R(const Lum8u* src, int srcStep, LumiSize roi, Lum8u* threshold);

#ifdef __cplusplus
}
#endif

#endif
