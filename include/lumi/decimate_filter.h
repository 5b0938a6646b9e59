/* SPDX-License-Identifier: MIT */
/* Generated from registry/filters/decimate_filter.reg by tools/lumigen; edit that instead. */
/** @file Decimation with a filter. */
#ifndef LUMI_DECIMATE_FILTER_H
#define LUMI_DECIMATE_FILTER_H

#include "types.h"

#ifdef __cplusplus
extern "C" {
#endif

/**
 * Makes rows shorter by a fixed fraction, through a filter that keeps aliases away.
 *
 * roi is the size of the source. Of every group of samples fewer are made; what is left over of a row makes none, so
 * that the destination is roi.width / samples * results wide, and as high as the source.
 *
 *   fraction               0: 1/2  1: 3/5  2: 2/3  3: 7/10  4: 3/4
 *   samples of a group         2       5       3        10       4
 *   results of a group         1       3       2         7       3
 *   read before the first      4       4       3         3       3
 *   read behind the last       4       3       3         3       3
 *
 * A result is (sum of tap * sample + 128) >> 8, limited to 0..255. The taps of each result of a group add up to 256, so
 * that a flat image stays flat. The samples that are read before the first group and behind the last one have to be in
 * memory. Images may be misaligned in any way. They must not overlap, nor rows of the destination.
 *
 *   fraction   fraction is not one of those
 *
 * Returns lumStatusOk (0) or, tested in this order and before anything is written:
 *   lumStatusNullPointer (-8)  a pointer is null, plane pointers included
 *   lumStatusBadStep (-14)     a step is below 1
 *   lumStatusBadSize (-6)      roi.width or roi.height is below 1
 *   lumStatusBadDecimationFraction (-212) fraction is refused
 */
LumStatus lumiDecimateFilterRow_8u_C1R(const Lum8u* src, int srcStep, LumiSize roi, Lum8u* dst, int dstStep,
                                       int fraction);

/**
 * Makes columns shorter by a fixed fraction, through a filter that keeps aliases away.
 *
 * The same as lumiDecimateFilterRow with rows for columns: the destination is as wide as the source, and
 * roi.height / samples * results high.
 *
 *   fraction   fraction is not one of those
 *
 * Returns lumStatusOk (0) or, tested in this order and before anything is written:
 *   lumStatusNullPointer (-8)  a pointer is null, plane pointers included
 *   lumStatusBadStep (-14)     a step is below 1
 *   lumStatusBadSize (-6)      roi.width or roi.height is below 1
 *   lumStatusBadDecimationFraction (-212) fraction is refused
 */
LumStatus lumiDecimateFilterColumn_8u_C1R(const Lum8u* src, int srcStep, LumiSize roi, Lum8u* dst,
                                          int dstStep, int fraction);

#ifdef __cplusplus
}
#endif

#endif
