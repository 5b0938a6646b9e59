/* SPDX-License-Identifier: MIT */
/* Generated from registry/statistics/min_max_index.reg by tools/lumigen; edit that instead. */
/** @file Places of extremes. */
#ifndef LUMI_MIN_MAX_INDEX_H
#define LUMI_MIN_MAX_INDEX_H

#include "types.h"

#ifdef __cplusplus
extern "C" {
#endif

/**
 * Finds the least sample of each channel, and where it is.
 *
 * C1 has one result, C3 and AC4 three, C4 four; alpha is not looked at. Of equal samples the first one counts: that
 * with the least y and, in its row, the least x. Results are stored at the end, in memory that is no part of the image.
 * Steps are not checked: 0 takes the same row again and again. Rows of integers are not read behind one with which all
 * channels have come to the least value of the type.
 *
 * A sample that is NaN is passed over. 32f C1 finds FLT_MAX at (0, 0) where all samples are +infinity or NaN; the other
 * layouts find +infinity at its first place in row 0.
 *
 *   min        receives the least samples
 *   x          receives their columns
 *   y          receives their rows
 *
 * Returns lumStatusOk (0) or, tested in this order and before anything is written:
 *   lumStatusNullPointer (-8)  a pointer is null, plane pointers included
 *   lumStatusBadSize (-6)      roi.width or roi.height is below 1
 */
LumStatus lumiMinIndx_16s_AC4R(const Lum16s* src, int srcStep, LumiSize roi, Lum16s min[3], Lum32s x[3],
                               Lum32s y[3]);
LumStatus lumiMinIndx_16s_C1R(const Lum16s* src, int srcStep, LumiSize roi, Lum16s* min, Lum32s* x,
                              Lum32s* y);
LumStatus lumiMinIndx_16s_C3R(const Lum16s* src, int srcStep, LumiSize roi, Lum16s min[3], Lum32s x[3],
                              Lum32s y[3]);
LumStatus lumiMinIndx_16s_C4R(const Lum16s* src, int srcStep, LumiSize roi, Lum16s min[4], Lum32s x[4],
                              Lum32s y[4]);
LumStatus lumiMinIndx_16u_AC4R(const Lum16u* src, int srcStep, LumiSize roi, Lum16u min[3], Lum32s x[3],
                               Lum32s y[3]);
LumStatus lumiMinIndx_16u_C1R(const Lum16u* src, int srcStep, LumiSize roi, Lum16u* min, Lum32s* x,
                              Lum32s* y);
LumStatus lumiMinIndx_16u_C3R(const Lum16u* src, int srcStep, LumiSize roi, Lum16u min[3], Lum32s x[3],
                              Lum32s y[3]);
LumStatus lumiMinIndx_16u_C4R(const Lum16u* src, int srcStep, LumiSize roi, Lum16u min[4], Lum32s x[4],
                              Lum32s y[4]);
LumStatus lumiMinIndx_32f_AC4R(const Lum32f* src, int srcStep, LumiSize roi, Lum32f min[3], Lum32s x[3],
                               Lum32s y[3]);
LumStatus lumiMinIndx_32f_C1R(const Lum32f* src, int srcStep, LumiSize roi, Lum32f* min, Lum32s* x,
                              Lum32s* y);
LumStatus lumiMinIndx_32f_C3R(const Lum32f* src, int srcStep, LumiSize roi, Lum32f min[3], Lum32s x[3],
                              Lum32s y[3]);
LumStatus lumiMinIndx_32f_C4R(const Lum32f* src, int srcStep, LumiSize roi, Lum32f min[4], Lum32s x[4],
                              Lum32s y[4]);
LumStatus lumiMinIndx_8u_AC4R(const Lum8u* src, int srcStep, LumiSize roi, Lum8u min[3], Lum32s x[3],
                              Lum32s y[3]);
LumStatus lumiMinIndx_8u_C1R(const Lum8u* src, int srcStep, LumiSize roi, Lum8u* min, Lum32s* x, Lum32s* y);
LumStatus lumiMinIndx_8u_C3R(const Lum8u* src, int srcStep, LumiSize roi, Lum8u min[3], Lum32s x[3],
                             Lum32s y[3]);
LumStatus lumiMinIndx_8u_C4R(const Lum8u* src, int srcStep, LumiSize roi, Lum8u min[4], Lum32s x[4],
                             Lum32s y[4]);

/**
 * Finds the greatest sample of each channel, and where it is.
 *
 * As lumiMinIndx, with the greatest value of the type, -FLT_MAX and -infinity.
 *
 *   max        receives the greatest samples
 *   x          receives their columns
 *   y          receives their rows
 *
 * Returns lumStatusOk (0) or, tested in this order and before anything is written:
 *   lumStatusNullPointer (-8)  a pointer is null, plane pointers included
 *   lumStatusBadSize (-6)      roi.width or roi.height is below 1
 */
LumStatus lumiMaxIndx_16s_AC4R(const Lum16s* src, int srcStep, LumiSize roi, Lum16s max[3], Lum32s x[3],
                               Lum32s y[3]);
LumStatus lumiMaxIndx_16s_C1R(const Lum16s* src, int srcStep, LumiSize roi, Lum16s* max, Lum32s* x,
                              Lum32s* y);
LumStatus lumiMaxIndx_16s_C3R(const Lum16s* src, int srcStep, LumiSize roi, Lum16s max[3], Lum32s x[3],
                              Lum32s y[3]);
LumStatus lumiMaxIndx_16s_C4R(const Lum16s* src, int srcStep, LumiSize roi, Lum16s max[4], Lum32s x[4],
                              Lum32s y[4]);
LumStatus lumiMaxIndx_16u_AC4R(const Lum16u* src, int srcStep, LumiSize roi, Lum16u max[3], Lum32s x[3],
                               Lum32s y[3]);
LumStatus lumiMaxIndx_16u_C1R(const Lum16u* src, int srcStep, LumiSize roi, Lum16u* max, Lum32s* x,
                              Lum32s* y);
LumStatus lumiMaxIndx_16u_C3R(const Lum16u* src, int srcStep, LumiSize roi, Lum16u max[3], Lum32s x[3],
                              Lum32s y[3]);
LumStatus lumiMaxIndx_16u_C4R(const Lum16u* src, int srcStep, LumiSize roi, Lum16u max[4], Lum32s x[4],
                              Lum32s y[4]);
LumStatus lumiMaxIndx_32f_AC4R(const Lum32f* src, int srcStep, LumiSize roi, Lum32f max[3], Lum32s x[3],
                               Lum32s y[3]);
LumStatus lumiMaxIndx_32f_C1R(const Lum32f* src, int srcStep, LumiSize roi, Lum32f* max, Lum32s* x,
                              Lum32s* y);
LumStatus lumiMaxIndx_32f_C3R(const Lum32f* src, int srcStep, LumiSize roi, Lum32f max[3], Lum32s x[3],
                              Lum32s y[3]);
LumStatus lumiMaxIndx_32f_C4R(const Lum32f* src, int srcStep, LumiSize roi, Lum32f max[4], Lum32s x[4],
                              Lum32s y[4]);
LumStatus lumiMaxIndx_8u_AC4R(const Lum8u* src, int srcStep, LumiSize roi, Lum8u max[3], Lum32s x[3],
                              Lum32s y[3]);
LumStatus lumiMaxIndx_8u_C1R(const Lum8u* src, int srcStep, LumiSize roi, Lum8u* max, Lum32s* x, Lum32s* y);
LumStatus lumiMaxIndx_8u_C3R(const Lum8u* src, int srcStep, LumiSize roi, Lum8u max[3], Lum32s x[3],
                             Lum32s y[3]);
LumStatus lumiMaxIndx_8u_C4R(const Lum8u* src, int srcStep, LumiSize roi, Lum8u max[4], Lum32s x[4],
                             Lum32s y[4]);

#ifdef __cplusplus
}
#endif

#endif
