/* SPDX-License-Identifier: MIT */
/* Generated from registry/transforms/dct_8x8.reg by tools/lumigen; edit that instead. */
/** @file Cosine transforms of 8 x 8 blocks. */
#ifndef LUMI_DCT_8X8_H
#define LUMI_DCT_8X8_H

#include "types.h"

#ifdef __cplusplus
extern "C" {
#endif

/**
 * Stores the cosine transform (DCT-II) of a block of 8 x 8 samples.
 *
 * A block is 64 values, row after row without gaps, and may have any alignment. Source and destination may be
 * the same block. With a(0) = sqrt(1/8) and a(u) = 1/2 for all other u,
 *
 *   dst(u, v) = a(u) a(v) * sum over x, y from 0 to 7 of src(x, y) cos((2x + 1) u pi / 16) cos((2y + 1) v pi / 16)
 *
 * 32f: each coefficient lies within 2^-20 of the root of the sum of all squared samples.
 *
 * Integers: columns are transformed first, into words with three more bits, then rows. For samples between -255 and
 * 255 each coefficient lies within 1 of the exact one. Sums of larger ones saturate.
 *
 *   srcBlock   64 samples
 *   dstBlock   receives 64 coefficients
 *   block      64 samples, which become coefficients
 *
 * Returns lumStatusOk (0) or, tested in this order and before anything is written (16s 32f: C1):
 *   lumStatusNullPointer (-8)  a pointer is null, plane pointers included
 *
 * Returns lumStatusOk (0) or, tested in this order and before anything is written (16s 8u16s: C1):
 *   lumStatusNullPointer (-8)  a pointer is null, plane pointers included
 *   lumStatusBadStep (-14)     a step is below 1
 */
LumStatus lumiDCT8x8Fwd_16s_C1(const Lum16s* srcBlock, Lum16s* dstBlock);
LumStatus lumiDCT8x8Fwd_16s_C1I(Lum16s* block);
LumStatus lumiDCT8x8Fwd_16s_C1R(const Lum16s* src, int srcStep, Lum16s* dstBlock);
LumStatus lumiDCT8x8Fwd_32f_C1(const Lum32f* srcBlock, Lum32f* dstBlock);
LumStatus lumiDCT8x8Fwd_32f_C1I(Lum32f* block);
LumStatus lumiDCT8x8Fwd_8u16s_C1R(const Lum8u* src, int srcStep, Lum16s* dstBlock);

/**
 * Stores the cosine transform of a block of bytes that are shifted to another level.
 *
 * levelShift is added to each sample, modulo 2^16; then follows lumiDCT8x8Fwd_16s. A level shift of -128 makes bytes
 * centred: a block of equal samples v becomes 8 (v - 128) and 63 zeros.
 *
 *   dstBlock   receives 64 coefficients
 *   levelShift added to each sample
 *
 * Returns lumStatusOk (0) or, tested in this order and before anything is written:
 *   lumStatusNullPointer (-8)  a pointer is null, plane pointers included
 *   lumStatusBadStep (-14)     a step is below 1
 */
LumStatus lumiDCT8x8FwdLS_8u16s_C1R(const Lum8u* src, int srcStep, Lum16s* dstBlock, Lum16s levelShift);

/**
 * Stores the block whose cosine transform is given.
 *
 * The inverse of lumiDCT8x8Fwd: with a(0) = sqrt(1/8) and a(u) = 1/2 for all other u,
 *
 *   dst(x, y) = sum over u, v from 0 to 7 of a(u) a(v) src(u, v) cos((2x + 1) u pi / 16) cos((2y + 1) v pi / 16)
 *
 * 32f: each sample lies within 2^-20 of the root of the sum of all squared coefficients. Source and
 * destination may be the same block.
 *
 * Integers: where all samples lie between -511 and 511, each result lies within 0.56 + S / 45000 of the exact one,
 * with S the sum of the magnitudes of all coefficients; others saturate. 16s8u: what is below 0 becomes 0, and
 * what is above 255 becomes 255.
 *
 *   srcBlock   64 coefficients
 *   dstBlock   receives 64 samples
 *   block      64 coefficients, which become samples
 *
 * Returns lumStatusOk (0) or, tested in this order and before anything is written (16s 32f: C1):
 *   lumStatusNullPointer (-8)  a pointer is null, plane pointers included
 *
 * Returns lumStatusOk (0) or, tested in this order and before anything is written (16s 16s8u: C1):
 *   lumStatusNullPointer (-8)  a pointer is null, plane pointers included
 *   lumStatusBadStep (-14)     a step is below 1
 */
LumStatus lumiDCT8x8Inv_16s8u_C1R(const Lum16s* srcBlock, Lum8u* dst, int dstStep);
LumStatus lumiDCT8x8Inv_16s_C1(const Lum16s* srcBlock, Lum16s* dstBlock);
LumStatus lumiDCT8x8Inv_16s_C1I(Lum16s* block);
LumStatus lumiDCT8x8Inv_16s_C1R(const Lum16s* srcBlock, Lum16s* dst, int dstStep);
LumStatus lumiDCT8x8Inv_32f_C1(const Lum32f* srcBlock, Lum32f* dstBlock);
LumStatus lumiDCT8x8Inv_32f_C1I(Lum32f* block);

/**
 * Stores the block of bytes whose cosine transform is given, shifted to another level and limited.
 *
 * levelShift is added to each sample of lumiDCT8x8Inv_16s, saturating; what is then below minimum becomes minimum, and
 * what is above maximum becomes maximum.
 *
 *   srcBlock   64 coefficients
 *   levelShift added to each sample
 *   minimum    the least result
 *   maximum    the greatest result
 *
 * Returns lumStatusOk (0) or, tested in this order and before anything is written:
 *   lumStatusNullPointer (-8)  a pointer is null, plane pointers included
 *   lumStatusBadStep (-14)     a step is below 1
 */
LumStatus lumiDCT8x8InvLSClip_16s8u_C1R(const Lum16s* srcBlock, Lum8u* dst, int dstStep, Lum16s levelShift,
                                        Lum8u minimum, Lum8u maximum);

/**
 * Stores the block whose cosine transform has four coefficients, those of the lowest frequencies.
 *
 * As lumiDCT8x8Inv with zeros in place of all coefficients but src(0, 0), src(1, 0), src(0, 1) and src(1, 1).
 *
 *   srcBlock   64 coefficients
 *   dstBlock   receives 64 samples
 *   block      64 coefficients, which become samples
 *
 * Returns lumStatusOk (0) or, tested in this order and before anything is written:
 *   lumStatusNullPointer (-8)  a pointer is null, plane pointers included
 */
LumStatus lumiDCT8x8Inv_2x2_16s_C1(const Lum16s* srcBlock, Lum16s* dstBlock);
LumStatus lumiDCT8x8Inv_2x2_16s_C1I(Lum16s* block);

/**
 * Stores the block whose cosine transform has sixteen coefficients, those of the lowest frequencies.
 *
 * As lumiDCT8x8Inv with zeros in place of all coefficients but those with u and v below 4.
 *
 *   srcBlock   64 coefficients
 *   dstBlock   receives 64 samples
 *   block      64 coefficients, which become samples
 *
 * Returns lumStatusOk (0) or, tested in this order and before anything is written:
 *   lumStatusNullPointer (-8)  a pointer is null, plane pointers included
 */
LumStatus lumiDCT8x8Inv_4x4_16s_C1(const Lum16s* srcBlock, Lum16s* dstBlock);
LumStatus lumiDCT8x8Inv_4x4_16s_C1I(Lum16s* block);

/**
 * Stores the block whose cosine transform is given, of samples up to twice as large.
 *
 * As lumiDCT8x8Inv, with one bit less between its two stages: where all samples lie between -1023 and 1023, each result
 * lies within 0.62 + S / 45000 of the exact one, with S the sum of the magnitudes of all coefficients.
 *
 *   srcBlock   64 coefficients
 *   dstBlock   receives 64 samples
 *   block      64 coefficients, which become samples
 *
 * Returns lumStatusOk (0) or, tested in this order and before anything is written:
 *   lumStatusNullPointer (-8)  a pointer is null, plane pointers included
 */
LumStatus lumiDCT8x8Inv_A10_16s_C1(const Lum16s* srcBlock, Lum16s* dstBlock);
LumStatus lumiDCT8x8Inv_A10_16s_C1I(Lum16s* block);

/**
 * Stores the means of the quarters of the block whose cosine transform is given.
 *
 * dst(x, y) = the mean of the inverse's 4 x 4 samples from (4x, 4y) on, for x and y from 0 to 1: four values, one
 * behind the other; nothing behind them is written. The errors are those of lumiDCT8x8Inv_A10.
 *
 *   srcBlock   64 coefficients
 *   dstBlock   receives 4 samples
 *   block      64 coefficients, of which the first 4 become samples
 *
 * Returns lumStatusOk (0) or, tested in this order and before anything is written:
 *   lumStatusNullPointer (-8)  a pointer is null, plane pointers included
 */
LumStatus lumiDCT8x8To2x2Inv_16s_C1(const Lum16s* srcBlock, Lum16s* dstBlock);
LumStatus lumiDCT8x8To2x2Inv_16s_C1I(Lum16s* block);

/**
 * Stores the means of 2 x 2 samples each of the block whose cosine transform is given.
 *
 * dst(x, y) = the mean of the inverse's 2 x 2 samples from (2x, 2y) on, for x and y from 0 to 3: sixteen values, one
 * behind the other; nothing behind them is written. The errors are those of lumiDCT8x8Inv_A10.
 *
 *   srcBlock   64 coefficients
 *   dstBlock   receives 16 samples
 *   block      64 coefficients, of which the first 16 become samples
 *
 * Returns lumStatusOk (0) or, tested in this order and before anything is written:
 *   lumStatusNullPointer (-8)  a pointer is null, plane pointers included
 */
LumStatus lumiDCT8x8To4x4Inv_16s_C1(const Lum16s* srcBlock, Lum16s* dstBlock);
LumStatus lumiDCT8x8To4x4Inv_16s_C1I(Lum16s* block);

#ifdef __cplusplus
}
#endif

#endif
