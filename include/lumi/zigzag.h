/* SPDX-License-Identifier: MIT */
/* Generated from registry/transforms/zigzag.reg by tools/lumigen; edit that instead. */
/** @file Zigzag order of 8 x 8 blocks. */
#ifndef LUMI_ZIGZAG_H
#define LUMI_ZIGZAG_H

#include "types.h"

#ifdef __cplusplus
extern "C" {
#endif

/**
 * Puts the values of a block in zigzag order, as JPEG has them.
 *
 * dst(i) = src(Z(i)). The order ascends along diagonals from the first value to the last, which puts coefficients of
 * low frequencies before those of high ones; Z is
 *
 *   0   1   8  16   9   2   3  10  17  24  32  25  18  11   4   5
 *  12  19  26  33  40  48  41  34  27  20  13   6   7  14  21  28
 *  35  42  49  56  57  50  43  36  29  22  15  23  30  37  44  51
 *  58  59  52  45  38  31  39  46  53  60  61  54  47  55  62  63
 *
 * Blocks are 64 values without gaps, of any alignment. Source and destination may be the same block.
 *
 *   srcBlock   64 values, row after row
 *   dstBlock   receives them in zigzag order
 *
 * Returns lumStatusOk (0) or, tested in this order and before anything is written:
 *   lumStatusNullPointer (-8)  a pointer is null, plane pointers included
 */
LumStatus lumiZigzagFwd8x8_16s_C1(const Lum16s* srcBlock, Lum16s* dstBlock);

/**
 * Puts the values of a block back from zigzag order.
 *
 * dst(Z(i)) = src(i), with the order of lumiZigzagFwd8x8. Source and destination may be the same block.
 *
 *   srcBlock   64 values in zigzag order
 *   dstBlock   receives them row after row
 *
 * Returns lumStatusOk (0) or, tested in this order and before anything is written:
 *   lumStatusNullPointer (-8)  a pointer is null, plane pointers included
 */
LumStatus lumiZigzagInv8x8_16s_C1(const Lum16s* srcBlock, Lum16s* dstBlock);

#ifdef __cplusplus
}
#endif

#endif
