/* SPDX-License-Identifier: MIT */
/* Generated from registry/statistics/block_min_max.reg by tools/lumigen; edit that instead. */
/** @file Extremes of blocks. */
#ifndef LUMI_BLOCK_MIN_MAX_H
#define LUMI_BLOCK_MIN_MAX_H

#include "types.h"

#ifdef __cplusplus
extern "C" {
#endif

/**
 * Finds the least and the greatest sample of each block, and of all.
 *
 * Blocks lie side by side from the first pixel on; those at the right and at the lower edge have what is left. Each
 * block has an entry in the map of least samples, in that of greatest ones, or in both. Maps have ceil(width /
 * blockSize.width) entries a row and ceil(height / blockSize.height) rows.
 *
 * min and max begin with the first sample, and each block's extreme takes them on. Without a map no extremes of its
 * kind are found: then min, or max, is the first sample. Infinities are samples as others are. A sample that is NaN is
 * passed over, but for the first one in min and max; of a block without a number nothing is told, nor which of two
 * zeros is stored. Nothing that is stored may lie in the source.
 *
 * Returns lumStatusOk (0) or, tested in this order and with nothing written:
 *   lumStatusNullPointer (-8) src is null, or both maps are
 *   lumStatusBadSize (-6)     width, height, or a side of the blocks is below 1
 *   lumStatusBadStep (-14)    srcStep is below the bytes of a row, or the step of a map that is there below the bytes
 *                             of its row
 *
 *   minMap     receives the least sample of each block
 *   minMapStep distance between its rows, in bytes
 *   maxMap     receives the greatest sample of each block
 *   maxMapStep distance between its rows, in bytes
 *   blockSize  width and height of a block
 *   min        receives the least sample of all
 *   max        receives the greatest sample of all
 */
LumStatus lumiBlockMinMax_16s_C1R(const Lum16s* src, int srcStep, LumiSize roi, Lum16s* minMap,
                                  int minMapStep, Lum16s* maxMap, int maxMapStep, LumiSize blockSize,
                                  Lum16s* min, Lum16s* max);
LumStatus lumiBlockMinMax_16u_C1R(const Lum16u* src, int srcStep, LumiSize roi, Lum16u* minMap,
                                  int minMapStep, Lum16u* maxMap, int maxMapStep, LumiSize blockSize,
                                  Lum16u* min, Lum16u* max);
LumStatus lumiBlockMinMax_32f_C1R(const Lum32f* src, int srcStep, LumiSize roi, Lum32f* minMap,
                                  int minMapStep, Lum32f* maxMap, int maxMapStep, LumiSize blockSize,
                                  Lum32f* min, Lum32f* max);
LumStatus lumiBlockMinMax_8u_C1R(const Lum8u* src, int srcStep, LumiSize roi, Lum8u* minMap, int minMapStep,
                                 Lum8u* maxMap, int maxMapStep, LumiSize blockSize, Lum8u* min, Lum8u* max);

#ifdef __cplusplus
}
#endif

#endif
