/* SPDX-License-Identifier: MIT */
/* Generated from registry/data/count_in_range.reg by tools/lumigen; edit that instead. */
/** @file Counts of samples in a range. */
#ifndef LUMI_COUNT_IN_RANGE_H
#define LUMI_COUNT_IN_RANGE_H

#include "types.h"

#ifdef __cplusplus
extern "C" {
#endif

/**
 * Counts the samples of each channel that lie in a range.
 *
 * A sample counts where lower <= src(x, y) <= upper, both bounds included. C1 has one count and one range, C3
 * and AC4 three of each, one for each channel; alpha is not looked at. A sample that is NaN never counts, nor
 * does any beside a lower bound that is NaN; an upper bound that is NaN is no bound.
 *
 * The counts are stored at the end, in memory that is no part of the image; of an image of 2^32 samples or
 * more in a channel they are what 32 bits hold.
 *
 *   count      receives the counts
 *   lower      the least sample that counts
 *   upper      the greatest sample that counts
 *
 * Returns lumStatusOk (0) or, tested in this order and before anything is written (8u 32f: C1):
 *   lumStatusNullPointer (-8)  a pointer is null, plane pointers included
 *   lumStatusBadStep (-14)     a step is below 1
 *   lumStatusBadSize (-6)      roi.width or roi.height is below 1
 *   lumStatusBadRange (-7)     lower is above upper, in any channel
 *
 * Returns lumStatusOk (0) or, tested in this order and before anything is written (8u 32f: C3 AC4):
 *   lumStatusNullPointer (-8)  an image's pointer is null
 *   lumStatusNullPointer (-8)  lower or upper is null
 *   lumStatusBadStep (-14)     a step is below 1
 *   lumStatusBadSize (-6)      roi.width or roi.height is below 1
 *   lumStatusBadRange (-7)     lower is above upper, in any channel
 */
LumStatus lumiCountInRange_32f_AC4R(const Lum32f* src, int srcStep, LumiSize roi, Lum32s count[3],
                                    const Lum32f lower[3], const Lum32f upper[3]);
LumStatus lumiCountInRange_32f_C1R(const Lum32f* src, int srcStep, LumiSize roi, Lum32s* count, Lum32f lower,
                                   Lum32f upper);
LumStatus lumiCountInRange_32f_C3R(const Lum32f* src, int srcStep, LumiSize roi, Lum32s count[3],
                                   const Lum32f lower[3], const Lum32f upper[3]);
LumStatus lumiCountInRange_8u_AC4R(const Lum8u* src, int srcStep, LumiSize roi, Lum32s count[3],
                                   const Lum8u lower[3], const Lum8u upper[3]);
LumStatus lumiCountInRange_8u_C1R(const Lum8u* src, int srcStep, LumiSize roi, Lum32s* count, Lum8u lower,
                                  Lum8u upper);
LumStatus lumiCountInRange_8u_C3R(const Lum8u* src, int srcStep, LumiSize roi, Lum32s count[3],
                                  const Lum8u lower[3], const Lum8u upper[3]);

#ifdef __cplusplus
}
#endif

#endif
