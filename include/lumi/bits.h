/* SPDX-License-Identifier: MIT */
/* Generated from registry/data/bits.reg by tools/lumigen; edit that instead. */
/** @file Bit images. */
#ifndef LUMI_BITS_H
#define LUMI_BITS_H

#include "types.h"

#ifdef __cplusplus
extern "C" {
#endif

/**
 * Stores one of two grey values for each bit.
 *
 * dst(x, y) = oneValue where src(x, y) is 1, zeroValue where it is 0.
 *
 * A row of bits begins in its first byte, at the bit that the offset's three low bits tell; an offset of 8
 * or more does not move the pointer. Bits count from the low end of a byte: the first pixel is bit 0 for
 * offset 0. No byte without a bit of the ROI is read. The images may be misaligned in any way, but must
 * not overlap.
 *
 *   zeroValue  grey value of a 0 bit
 *   oneValue   grey value of a 1 bit
 *
 * Returns lumStatusOk (0) or, tested in this order and before anything is written:
 *   lumStatusNullPointer (-8)  a pointer is null, plane pointers included
 *   lumStatusBadSize (-6)      roi.width or roi.height is below 1
 *   lumStatusBadStep (-14)     a step is below 1
 *   lumStatusBadSize (-6)      a bit offset is negative
 */
LumStatus lumiBinToGray_1u16s_C1R(const Lum8u* src, int srcStep, int srcBitOffset, Lum16s* dst, int dstStep,
                                  LumiSize roi, Lum16s zeroValue, Lum16s oneValue);
LumStatus lumiBinToGray_1u16u_C1R(const Lum8u* src, int srcStep, int srcBitOffset, Lum16u* dst, int dstStep,
                                  LumiSize roi, Lum16u zeroValue, Lum16u oneValue);
LumStatus lumiBinToGray_1u32f_C1R(const Lum8u* src, int srcStep, int srcBitOffset, Lum32f* dst, int dstStep,
                                  LumiSize roi, Lum32f zeroValue, Lum32f oneValue);
LumStatus lumiBinToGray_1u8u_C1R(const Lum8u* src, int srcStep, int srcBitOffset, Lum8u* dst, int dstStep,
                                 LumiSize roi, Lum8u zeroValue, Lum8u oneValue);

/**
 * Stores a bit for each sample: whether it is above a threshold.
 *
 * dst(x, y) = 1 where threshold < src(x, y), else 0; a NaN on either side gives 0.
 *
 * A row of bits begins in its first byte, at the bit that the offset's three low bits tell; an offset of 8
 * or more does not move the pointer. Bits count from the low end of a byte: the first pixel is bit 0 for
 * offset 0. The other bits of the row's first and last byte keep their value, and no byte without a bit of
 * the ROI is touched. The images may be misaligned in any way, but must not overlap.
 *
 *   threshold  the largest sample that gives 0
 *
 * Returns lumStatusOk (0) or, tested in this order and before anything is written:
 *   lumStatusNullPointer (-8)  a pointer is null, plane pointers included
 *   lumStatusBadSize (-6)      roi.width or roi.height is below 1
 *   lumStatusBadStep (-14)     a step is below 1
 *   lumStatusBadSize (-6)      a bit offset is negative
 */
LumStatus lumiGrayToBin_16s1u_C1R(const Lum16s* src, int srcStep, Lum8u* dst, int dstStep, int dstBitOffset,
                                  LumiSize roi, Lum16s threshold);
LumStatus lumiGrayToBin_16u1u_C1R(const Lum16u* src, int srcStep, Lum8u* dst, int dstStep, int dstBitOffset,
                                  LumiSize roi, Lum16u threshold);
LumStatus lumiGrayToBin_32f1u_C1R(const Lum32f* src, int srcStep, Lum8u* dst, int dstStep, int dstBitOffset,
                                  LumiSize roi, Lum32f threshold);
LumStatus lumiGrayToBin_8u1u_C1R(const Lum8u* src, int srcStep, Lum8u* dst, int dstStep, int dstBitOffset,
                                 LumiSize roi, Lum8u threshold);

/**
 * Stores 255 for a 1 bit and 0 for a 0 bit.
 *
 * A row of bits begins in its first byte, at the bit that the offset's three low bits tell; an offset of 8
 * or more does not move the pointer. Bits count from the high end of a byte: the first pixel is bit 7 for
 * offset 0. No byte without a bit of the ROI is read. The images may be misaligned in any way, but must
 * not overlap.
 *
 * Returns lumStatusOk (0) or, tested in this order and before anything is written:
 *   lumStatusNullPointer (-8)  a pointer is null, plane pointers included
 *   lumStatusBadSize (-6)      roi.width or roi.height is below 1
 *   lumStatusBadStep (-14)     a step is below 1
 *   lumStatusBadSize (-6)      a bit offset is negative
 */
LumStatus lumiConvert_1u8u_C1R(const Lum8u* src, int srcStep, int srcBitOffset, Lum8u* dst, int dstStep,
                               LumiSize roi);

#ifdef __cplusplus
}
#endif

#endif
