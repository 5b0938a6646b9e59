/* SPDX-License-Identifier: MIT */
/* Generated from registry/data/lut_palette.reg by tools/lumigen; edit that instead. */
/** @file Look-up in palettes. */
#ifndef LUMI_LUT_PALETTE_H
#define LUMI_LUT_PALETTE_H

#include "types.h"

#ifdef __cplusplus
extern "C" {
#endif

/**
 * Replaces samples by the entries of a table.
 *
 * dst(x, y) = table[i], where i has the low bitSize bits of src(x, y). A table has 2^bitSize entries, and the
 * caller sees to that. One channel takes one table; its entries may be of another type than the source: 24u
 * ones have three bytes, stored in their order, and entry i begins at byte 3 * i. More channels take an array
 * of a table for each, three for AC4, which leaves the destination's alpha as it was.
 *
 * C3A0C4 puts alpha before the three channels. Its sample is the given alpha; if that, as an unsigned number,
 * is above the type's range, the destination's alpha stays as it was.
 *
 * The images may be misaligned in any way. Those with samples of one size and pixels of as many may be the
 * same one; otherwise they must not overlap, and tables never lie in the destination.
 *
 *   alpha      0 to 255 for 8u, 0 to 65535 for 16u; any other value keeps the destination's
 *   table      2^bitSize entries
 *   bitSize    how many bits count: 1 to 8 of 8u, 1 to 16 of 16u
 *
 * Returns lumStatusOk (0) or, tested in this order and before anything is written (8u 8u32u 8u24u 16u 16u8u 16u32u 16u24u: C1):
 *   lumStatusNullPointer (-8)  a pointer is null, plane pointers included
 *   lumStatusBadSize (-6)      roi.width or roi.height is below 1
 *   lumStatusOutOfRange (-11)  bitSize is below 1, or above the bits of a source sample
 *   lumStatusBadStep (-14)     a step is below the bytes of a row
 *
 * Returns lumStatusOk (0) or, tested in this order and before anything is written (8u 16u: C3 C4 AC4 C3A0C4):
 *   lumStatusNullPointer (-8)  a pointer is null
 *   lumStatusBadSize (-6)      roi.width or roi.height is below 1
 *   lumStatusNullPointer (-8)  one of an array of pointers is null
 *   lumStatusOutOfRange (-11)  bitSize is below 1, or above the bits of a source sample
 *   lumStatusBadStep (-14)     a step is below the bytes of a row
 */
LumStatus lumiLUTPalette_16u24u_C1R(const Lum16u* src, int srcStep, Lum8u* dst, int dstStep, LumiSize roi,
                                    const Lum8u* table, int bitSize);
LumStatus lumiLUTPalette_16u32u_C1R(const Lum16u* src, int srcStep, Lum32u* dst, int dstStep, LumiSize roi,
                                    const Lum32u* table, int bitSize);
LumStatus lumiLUTPalette_16u8u_C1R(const Lum16u* src, int srcStep, Lum8u* dst, int dstStep, LumiSize roi,
                                   const Lum8u* table, int bitSize);
LumStatus lumiLUTPalette_16u_AC4R(const Lum16u* src, int srcStep, Lum16u* dst, int dstStep, LumiSize roi,
                                  const Lum16u* const table[3], int bitSize);
LumStatus lumiLUTPalette_16u_C1R(const Lum16u* src, int srcStep, Lum16u* dst, int dstStep, LumiSize roi,
                                 const Lum16u* table, int bitSize);
LumStatus lumiLUTPalette_16u_C3A0C4R(const Lum16u* src, int srcStep, int alpha, Lum16u* dst, int dstStep,
                                     LumiSize roi, const Lum16u* const table[3], int bitSize);
LumStatus lumiLUTPalette_16u_C3R(const Lum16u* src, int srcStep, Lum16u* dst, int dstStep, LumiSize roi,
                                 const Lum16u* const table[3], int bitSize);
LumStatus lumiLUTPalette_16u_C4R(const Lum16u* src, int srcStep, Lum16u* dst, int dstStep, LumiSize roi,
                                 const Lum16u* const table[4], int bitSize);
LumStatus lumiLUTPalette_8u24u_C1R(const Lum8u* src, int srcStep, Lum8u* dst, int dstStep, LumiSize roi,
                                   const Lum8u* table, int bitSize);
LumStatus lumiLUTPalette_8u32u_C1R(const Lum8u* src, int srcStep, Lum32u* dst, int dstStep, LumiSize roi,
                                   const Lum32u* table, int bitSize);
LumStatus lumiLUTPalette_8u_AC4R(const Lum8u* src, int srcStep, Lum8u* dst, int dstStep, LumiSize roi,
                                 const Lum8u* const table[3], int bitSize);
LumStatus lumiLUTPalette_8u_C1R(const Lum8u* src, int srcStep, Lum8u* dst, int dstStep, LumiSize roi,
                                const Lum8u* table, int bitSize);
LumStatus lumiLUTPalette_8u_C3A0C4R(const Lum8u* src, int srcStep, int alpha, Lum8u* dst, int dstStep,
                                    LumiSize roi, const Lum8u* const table[3], int bitSize);
LumStatus lumiLUTPalette_8u_C3R(const Lum8u* src, int srcStep, Lum8u* dst, int dstStep, LumiSize roi,
                                const Lum8u* const table[3], int bitSize);
LumStatus lumiLUTPalette_8u_C4R(const Lum8u* src, int srcStep, Lum8u* dst, int dstStep, LumiSize roi,
                                const Lum8u* const table[4], int bitSize);

/**
 * Replaces samples by the entries of tables, and turns the order of the channels round.
 *
 * dst(x, y) has the channels 2, 1 and 0 of src(x, y), then alpha; each is the entry of its channel's table at
 * the low bitSize bits of the source's sample. Alpha is the given one; if that, as an unsigned number, is above
 * the type's range, the destination's alpha stays as it was. A table has 2^bitSize entries, and the caller sees
 * to that. The images may be misaligned in any way, but must not overlap.
 *
 *   alpha      0 to 255 for 8u, 0 to 65535 for 16u; any other value keeps the destination's
 *   table      2^bitSize entries
 *   bitSize    how many bits count: 1 to 8 of 8u, 1 to 16 of 16u
 *
 * Returns lumStatusOk (0) or, tested in this order and before anything is written:
 *   lumStatusNullPointer (-8)  a pointer is null
 *   lumStatusBadSize (-6)      roi.width or roi.height is below 1
 *   lumStatusNullPointer (-8)  one of an array of pointers is null
 *   lumStatusOutOfRange (-11)  bitSize is below 1, or above the bits of a source sample
 *   lumStatusBadStep (-14)     a step is below the bytes of a row
 */
LumStatus lumiLUTPaletteSwap_16u_C3A0C4R(const Lum16u* src, int srcStep, int alpha, Lum16u* dst, int dstStep,
                                         LumiSize roi, const Lum16u* const table[3], int bitSize);
LumStatus lumiLUTPaletteSwap_8u_C3A0C4R(const Lum8u* src, int srcStep, int alpha, Lum8u* dst, int dstStep,
                                        LumiSize roi, const Lum8u* const table[3], int bitSize);

#ifdef __cplusplus
}
#endif

#endif
