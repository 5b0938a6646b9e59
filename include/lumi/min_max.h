/* SPDX-License-Identifier: MIT */
/* Generated from registry/statistics/min_max.reg by tools/lumigen; edit that instead. */
/** @file Least and greatest samples. */
#ifndef LUMI_MIN_MAX_H
#define LUMI_MIN_MAX_H

#include "types.h"

#ifdef __cplusplus
extern "C" {
#endif

/**
 * Finds the least sample of each channel.
 *
 * C1 has one result, C3 and AC4 three, C4 four; alpha is not looked at. Steps are not checked: 0 takes the same row
 * again and again. Results are stored at the end, in memory that is no part of the image. 8u C1 does not read rows
 * behind one that holds 0.
 *
 * Of floats it is FLT_MAX at most, even where all are +infinity. A sample that is NaN is passed over. Which of two
 * zeros is stored is not told.
 *
 *   min        receives the least samples
 *
 * Returns lumStatusOk (0) or, tested in this order and before anything is written:
 *   lumStatusNullPointer (-8)  a pointer is null, plane pointers included
 *   lumStatusBadSize (-6)      roi.width or roi.height is below 1
 */
LumStatus lumiMin_16s_AC4R(const Lum16s* src, int srcStep, LumiSize roi, Lum16s min[3]);
LumStatus lumiMin_16s_C1R(const Lum16s* src, int srcStep, LumiSize roi, Lum16s* min);
LumStatus lumiMin_16s_C3R(const Lum16s* src, int srcStep, LumiSize roi, Lum16s min[3]);
LumStatus lumiMin_16s_C4R(const Lum16s* src, int srcStep, LumiSize roi, Lum16s min[4]);
LumStatus lumiMin_16u_AC4R(const Lum16u* src, int srcStep, LumiSize roi, Lum16u min[3]);
LumStatus lumiMin_16u_C1R(const Lum16u* src, int srcStep, LumiSize roi, Lum16u* min);
LumStatus lumiMin_16u_C3R(const Lum16u* src, int srcStep, LumiSize roi, Lum16u min[3]);
LumStatus lumiMin_16u_C4R(const Lum16u* src, int srcStep, LumiSize roi, Lum16u min[4]);
LumStatus lumiMin_32f_AC4R(const Lum32f* src, int srcStep, LumiSize roi, Lum32f min[3]);
LumStatus lumiMin_32f_C1R(const Lum32f* src, int srcStep, LumiSize roi, Lum32f* min);
LumStatus lumiMin_32f_C3R(const Lum32f* src, int srcStep, LumiSize roi, Lum32f min[3]);
LumStatus lumiMin_32f_C4R(const Lum32f* src, int srcStep, LumiSize roi, Lum32f min[4]);
LumStatus lumiMin_8u_AC4R(const Lum8u* src, int srcStep, LumiSize roi, Lum8u min[3]);
LumStatus lumiMin_8u_C1R(const Lum8u* src, int srcStep, LumiSize roi, Lum8u* min);
LumStatus lumiMin_8u_C3R(const Lum8u* src, int srcStep, LumiSize roi, Lum8u min[3]);
LumStatus lumiMin_8u_C4R(const Lum8u* src, int srcStep, LumiSize roi, Lum8u min[4]);

/**
 * Finds the greatest sample of each channel.
 *
 * As lumiMin; 8u C1 does not read rows behind one that holds 255, and of floats the result is -FLT_MAX at least.
 *
 *   max        receives the greatest samples
 *
 * Returns lumStatusOk (0) or, tested in this order and before anything is written:
 *   lumStatusNullPointer (-8)  a pointer is null, plane pointers included
 *   lumStatusBadSize (-6)      roi.width or roi.height is below 1
 */
LumStatus lumiMax_16s_AC4R(const Lum16s* src, int srcStep, LumiSize roi, Lum16s max[3]);
LumStatus lumiMax_16s_C1R(const Lum16s* src, int srcStep, LumiSize roi, Lum16s* max);
LumStatus lumiMax_16s_C3R(const Lum16s* src, int srcStep, LumiSize roi, Lum16s max[3]);
LumStatus lumiMax_16s_C4R(const Lum16s* src, int srcStep, LumiSize roi, Lum16s max[4]);
LumStatus lumiMax_16u_AC4R(const Lum16u* src, int srcStep, LumiSize roi, Lum16u max[3]);
LumStatus lumiMax_16u_C1R(const Lum16u* src, int srcStep, LumiSize roi, Lum16u* max);
LumStatus lumiMax_16u_C3R(const Lum16u* src, int srcStep, LumiSize roi, Lum16u max[3]);
LumStatus lumiMax_16u_C4R(const Lum16u* src, int srcStep, LumiSize roi, Lum16u max[4]);
LumStatus lumiMax_32f_AC4R(const Lum32f* src, int srcStep, LumiSize roi, Lum32f max[3]);
LumStatus lumiMax_32f_C1R(const Lum32f* src, int srcStep, LumiSize roi, Lum32f* max);
LumStatus lumiMax_32f_C3R(const Lum32f* src, int srcStep, LumiSize roi, Lum32f max[3]);
LumStatus lumiMax_32f_C4R(const Lum32f* src, int srcStep, LumiSize roi, Lum32f max[4]);
LumStatus lumiMax_8u_AC4R(const Lum8u* src, int srcStep, LumiSize roi, Lum8u max[3]);
LumStatus lumiMax_8u_C1R(const Lum8u* src, int srcStep, LumiSize roi, Lum8u* max);
LumStatus lumiMax_8u_C3R(const Lum8u* src, int srcStep, LumiSize roi, Lum8u max[3]);
LumStatus lumiMax_8u_C4R(const Lum8u* src, int srcStep, LumiSize roi, Lum8u max[4]);

/**
 * Finds the least and the greatest sample of each channel.
 *
 * Both as by lumiMin and lumiMax, but all rows are read. Floats of images below 11 pixels wide that are all +infinity
 * have +infinity as the least one, all -infinity that as the greatest one; wider ones have the finite limits.
 *
 *   min        receives the least samples
 *   max        receives the greatest samples
 *
 * Returns lumStatusOk (0) or, tested in this order and before anything is written:
 *   lumStatusNullPointer (-8)  a pointer is null, plane pointers included
 *   lumStatusBadSize (-6)      roi.width or roi.height is below 1
 */
LumStatus lumiMinMax_16s_AC4R(const Lum16s* src, int srcStep, LumiSize roi, Lum16s min[3], Lum16s max[3]);
LumStatus lumiMinMax_16s_C1R(const Lum16s* src, int srcStep, LumiSize roi, Lum16s* min, Lum16s* max);
LumStatus lumiMinMax_16s_C3R(const Lum16s* src, int srcStep, LumiSize roi, Lum16s min[3], Lum16s max[3]);
LumStatus lumiMinMax_16s_C4R(const Lum16s* src, int srcStep, LumiSize roi, Lum16s min[4], Lum16s max[4]);
LumStatus lumiMinMax_16u_AC4R(const Lum16u* src, int srcStep, LumiSize roi, Lum16u min[3], Lum16u max[3]);
LumStatus lumiMinMax_16u_C1R(const Lum16u* src, int srcStep, LumiSize roi, Lum16u* min, Lum16u* max);
LumStatus lumiMinMax_16u_C3R(const Lum16u* src, int srcStep, LumiSize roi, Lum16u min[3], Lum16u max[3]);
LumStatus lumiMinMax_16u_C4R(const Lum16u* src, int srcStep, LumiSize roi, Lum16u min[4], Lum16u max[4]);
LumStatus lumiMinMax_32f_AC4R(const Lum32f* src, int srcStep, LumiSize roi, Lum32f min[3], Lum32f max[3]);
LumStatus lumiMinMax_32f_C1R(const Lum32f* src, int srcStep, LumiSize roi, Lum32f* min, Lum32f* max);
LumStatus lumiMinMax_32f_C3R(const Lum32f* src, int srcStep, LumiSize roi, Lum32f min[3], Lum32f max[3]);
LumStatus lumiMinMax_32f_C4R(const Lum32f* src, int srcStep, LumiSize roi, Lum32f min[4], Lum32f max[4]);
LumStatus lumiMinMax_8u_AC4R(const Lum8u* src, int srcStep, LumiSize roi, Lum8u min[3], Lum8u max[3]);
LumStatus lumiMinMax_8u_C1R(const Lum8u* src, int srcStep, LumiSize roi, Lum8u* min, Lum8u* max);
LumStatus lumiMinMax_8u_C3R(const Lum8u* src, int srcStep, LumiSize roi, Lum8u min[3], Lum8u max[3]);
LumStatus lumiMinMax_8u_C4R(const Lum8u* src, int srcStep, LumiSize roi, Lum8u min[4], Lum8u max[4]);

#ifdef __cplusplus
}
#endif

#endif
