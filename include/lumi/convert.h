/* SPDX-License-Identifier: MIT */
/* Generated from registry/data/convert.reg by tools/lumigen; edit that instead. */
/** @file Change of sample type. */
#ifndef LUMI_CONVERT_H
#define LUMI_CONVERT_H

#include "types.h"

#ifdef __cplusplus
extern "C" {
#endif

/**
 * Converts samples to another type: the same value where it can hold that, the nearest limit otherwise.
 *
 * Without a scale factor dst(x, y) = src(x, y), limited to the destination's range; there a negative
 * sample becomes 0 in an unsigned type. Integers that a float cannot hold (32s32f, 32u32f) are rounded
 * once, by the rounding control of the calling thread.
 *
 * Members with a round mode first round to an integer: to zero, to nearest with ties to even, or, for any
 * other value of roundMode, to nearest with ties away from zero. Negative numbers round like positive
 * ones. NaN gives the lowest value of the destination's type, and so 0 in an unsigned one.
 *
 * Members with a scale factor (Sfs) convert src(x, y) / 2^scaleFactor, any int. For integers the result
 * is exact, but for the ends of the range of scale factors:
 *
 *   member         8u8s 16s8s 16u8s 16u16s 32s16s 32s16u 32u8s 32u8u 32u16s 32u16u 32u32s
 *   zero above        8    17    15     16     32     33    15    15     31     33     32
 *   extreme below    -6    -6    -6    -14    -14    -14    -6    -6    -15    -15    -30
 *
 * Above the first the ROI is filled with 0 and src is not read. Below the second a positive sample gives
 * the highest value of the destination's type and a negative one the lowest. Floats are multiplied by
 * 2^-scaleFactor as a float, which is infinite below -127 and 0 above 149: 0 times infinity is NaN.
 *
 * AC4 converts the three colour samples and leaves the destination's alpha as it was. Members Rs and Sfs
 * take any step, zero and negative ones included; rows are then done in order. Images may be misaligned in
 * any way. They must not overlap, but where samples of both have the same size dst may be src. The members
 * C1R, C3R and C4R of 8u16s, 8u16u, 8u32s, 8u32f, 8s32s, 8s32f, 16s32f, 16u32f, 16s8u and 16u8u bypass the
 * processor's cache where the images are larger than it.
 *
 *   roundMode  lumRoundTowardZero, lumRoundNearestEven, lumRoundHalfAway or any other value
 *
 * Returns lumStatusOk (0) or, tested in this order and before anything is written (8u16s 8u16u 8u32s 8u32f 8s32s 8s32f 16s32f 16u32f 16s8u 16u8u 16s32s 16u32s 32s8u 32s8s 32f8u 32f8s 32f16u 32f16s: C1 C3 C4 AC4; 8s16s 16u32u 32s32f 32u32f: C1):
 *   lumStatusNullPointer (-8)  a pointer is null, plane pointers included
 *   lumStatusBadSize (-6)      roi.width or roi.height is below 1
 *   lumStatusBadStep (-14)     a step is below 1
 *
 * Returns lumStatusOk (0) or, tested in this order and before anything is written (8s8u 8s16u 8s32u 16s16u 16s32u 32s32u 8u8s 16s8s 16u8s 16u16s 32s16s 32s16u 32u8s 32u8u 32u16s 32u16u 32u32s 32f8u 32f8s 32f16u 32f16s 32f32s 32f32u: C1):
 *   lumStatusNullPointer (-8)  a pointer is null, plane pointers included
 *   lumStatusBadSize (-6)      roi.width or roi.height is below 1
 */
LumStatus lumiConvert_16s16u_C1Rs(const Lum16s* src, int srcStep, Lum16u* dst, int dstStep, LumiSize roi);
LumStatus lumiConvert_16s32f_AC4R(const Lum16s* src, int srcStep, Lum32f* dst, int dstStep, LumiSize roi);
LumStatus lumiConvert_16s32f_C1R(const Lum16s* src, int srcStep, Lum32f* dst, int dstStep, LumiSize roi);
LumStatus lumiConvert_16s32f_C3R(const Lum16s* src, int srcStep, Lum32f* dst, int dstStep, LumiSize roi);
LumStatus lumiConvert_16s32f_C4R(const Lum16s* src, int srcStep, Lum32f* dst, int dstStep, LumiSize roi);
LumStatus lumiConvert_16s32s_AC4R(const Lum16s* src, int srcStep, Lum32s* dst, int dstStep, LumiSize roi);
LumStatus lumiConvert_16s32s_C1R(const Lum16s* src, int srcStep, Lum32s* dst, int dstStep, LumiSize roi);
LumStatus lumiConvert_16s32s_C3R(const Lum16s* src, int srcStep, Lum32s* dst, int dstStep, LumiSize roi);
LumStatus lumiConvert_16s32s_C4R(const Lum16s* src, int srcStep, Lum32s* dst, int dstStep, LumiSize roi);
LumStatus lumiConvert_16s32u_C1Rs(const Lum16s* src, int srcStep, Lum32u* dst, int dstStep, LumiSize roi);
LumStatus lumiConvert_16s8s_C1RSfs(const Lum16s* src, int srcStep, Lum8s* dst, int dstStep, LumiSize roi,
                                   LumRoundMode roundMode, int scaleFactor);
LumStatus lumiConvert_16s8u_AC4R(const Lum16s* src, int srcStep, Lum8u* dst, int dstStep, LumiSize roi);
LumStatus lumiConvert_16s8u_C1R(const Lum16s* src, int srcStep, Lum8u* dst, int dstStep, LumiSize roi);
LumStatus lumiConvert_16s8u_C3R(const Lum16s* src, int srcStep, Lum8u* dst, int dstStep, LumiSize roi);
LumStatus lumiConvert_16s8u_C4R(const Lum16s* src, int srcStep, Lum8u* dst, int dstStep, LumiSize roi);
LumStatus lumiConvert_16u16s_C1RSfs(const Lum16u* src, int srcStep, Lum16s* dst, int dstStep, LumiSize roi,
                                    LumRoundMode roundMode, int scaleFactor);
LumStatus lumiConvert_16u32f_AC4R(const Lum16u* src, int srcStep, Lum32f* dst, int dstStep, LumiSize roi);
LumStatus lumiConvert_16u32f_C1R(const Lum16u* src, int srcStep, Lum32f* dst, int dstStep, LumiSize roi);
LumStatus lumiConvert_16u32f_C3R(const Lum16u* src, int srcStep, Lum32f* dst, int dstStep, LumiSize roi);
LumStatus lumiConvert_16u32f_C4R(const Lum16u* src, int srcStep, Lum32f* dst, int dstStep, LumiSize roi);
LumStatus lumiConvert_16u32s_AC4R(const Lum16u* src, int srcStep, Lum32s* dst, int dstStep, LumiSize roi);
LumStatus lumiConvert_16u32s_C1R(const Lum16u* src, int srcStep, Lum32s* dst, int dstStep, LumiSize roi);
LumStatus lumiConvert_16u32s_C3R(const Lum16u* src, int srcStep, Lum32s* dst, int dstStep, LumiSize roi);
LumStatus lumiConvert_16u32s_C4R(const Lum16u* src, int srcStep, Lum32s* dst, int dstStep, LumiSize roi);
LumStatus lumiConvert_16u32u_C1R(const Lum16u* src, int srcStep, Lum32u* dst, int dstStep, LumiSize roi);
LumStatus lumiConvert_16u8s_C1RSfs(const Lum16u* src, int srcStep, Lum8s* dst, int dstStep, LumiSize roi,
                                   LumRoundMode roundMode, int scaleFactor);
LumStatus lumiConvert_16u8u_AC4R(const Lum16u* src, int srcStep, Lum8u* dst, int dstStep, LumiSize roi);
LumStatus lumiConvert_16u8u_C1R(const Lum16u* src, int srcStep, Lum8u* dst, int dstStep, LumiSize roi);
LumStatus lumiConvert_16u8u_C3R(const Lum16u* src, int srcStep, Lum8u* dst, int dstStep, LumiSize roi);
LumStatus lumiConvert_16u8u_C4R(const Lum16u* src, int srcStep, Lum8u* dst, int dstStep, LumiSize roi);
LumStatus lumiConvert_32f16s_AC4R(const Lum32f* src, int srcStep, Lum16s* dst, int dstStep, LumiSize roi,
                                  LumRoundMode roundMode);
LumStatus lumiConvert_32f16s_C1R(const Lum32f* src, int srcStep, Lum16s* dst, int dstStep, LumiSize roi,
                                 LumRoundMode roundMode);
LumStatus lumiConvert_32f16s_C1RSfs(const Lum32f* src, int srcStep, Lum16s* dst, int dstStep, LumiSize roi,
                                    LumRoundMode roundMode, int scaleFactor);
LumStatus lumiConvert_32f16s_C3R(const Lum32f* src, int srcStep, Lum16s* dst, int dstStep, LumiSize roi,
                                 LumRoundMode roundMode);
LumStatus lumiConvert_32f16s_C4R(const Lum32f* src, int srcStep, Lum16s* dst, int dstStep, LumiSize roi,
                                 LumRoundMode roundMode);
LumStatus lumiConvert_32f16u_AC4R(const Lum32f* src, int srcStep, Lum16u* dst, int dstStep, LumiSize roi,
                                  LumRoundMode roundMode);
LumStatus lumiConvert_32f16u_C1R(const Lum32f* src, int srcStep, Lum16u* dst, int dstStep, LumiSize roi,
                                 LumRoundMode roundMode);
LumStatus lumiConvert_32f16u_C1RSfs(const Lum32f* src, int srcStep, Lum16u* dst, int dstStep, LumiSize roi,
                                    LumRoundMode roundMode, int scaleFactor);
LumStatus lumiConvert_32f16u_C3R(const Lum32f* src, int srcStep, Lum16u* dst, int dstStep, LumiSize roi,
                                 LumRoundMode roundMode);
LumStatus lumiConvert_32f16u_C4R(const Lum32f* src, int srcStep, Lum16u* dst, int dstStep, LumiSize roi,
                                 LumRoundMode roundMode);
LumStatus lumiConvert_32f32s_C1RSfs(const Lum32f* src, int srcStep, Lum32s* dst, int dstStep, LumiSize roi,
                                    LumRoundMode roundMode, int scaleFactor);
LumStatus lumiConvert_32f32u_C1IRSfs(Lum32u* srcDst, int srcDstStep, LumiSize roi, LumRoundMode roundMode,
                                     int scaleFactor);
LumStatus lumiConvert_32f32u_C1RSfs(const Lum32f* src, int srcStep, Lum32u* dst, int dstStep, LumiSize roi,
                                    LumRoundMode roundMode, int scaleFactor);
LumStatus lumiConvert_32f8s_AC4R(const Lum32f* src, int srcStep, Lum8s* dst, int dstStep, LumiSize roi,
                                 LumRoundMode roundMode);
LumStatus lumiConvert_32f8s_C1R(const Lum32f* src, int srcStep, Lum8s* dst, int dstStep, LumiSize roi,
                                LumRoundMode roundMode);
LumStatus lumiConvert_32f8s_C1RSfs(const Lum32f* src, int srcStep, Lum8s* dst, int dstStep, LumiSize roi,
                                   LumRoundMode roundMode, int scaleFactor);
LumStatus lumiConvert_32f8s_C3R(const Lum32f* src, int srcStep, Lum8s* dst, int dstStep, LumiSize roi,
                                LumRoundMode roundMode);
LumStatus lumiConvert_32f8s_C4R(const Lum32f* src, int srcStep, Lum8s* dst, int dstStep, LumiSize roi,
                                LumRoundMode roundMode);
LumStatus lumiConvert_32f8u_AC4R(const Lum32f* src, int srcStep, Lum8u* dst, int dstStep, LumiSize roi,
                                 LumRoundMode roundMode);
LumStatus lumiConvert_32f8u_C1R(const Lum32f* src, int srcStep, Lum8u* dst, int dstStep, LumiSize roi,
                                LumRoundMode roundMode);
LumStatus lumiConvert_32f8u_C1RSfs(const Lum32f* src, int srcStep, Lum8u* dst, int dstStep, LumiSize roi,
                                   LumRoundMode roundMode, int scaleFactor);
LumStatus lumiConvert_32f8u_C3R(const Lum32f* src, int srcStep, Lum8u* dst, int dstStep, LumiSize roi,
                                LumRoundMode roundMode);
LumStatus lumiConvert_32f8u_C4R(const Lum32f* src, int srcStep, Lum8u* dst, int dstStep, LumiSize roi,
                                LumRoundMode roundMode);
LumStatus lumiConvert_32s16s_C1RSfs(const Lum32s* src, int srcStep, Lum16s* dst, int dstStep, LumiSize roi,
                                    LumRoundMode roundMode, int scaleFactor);
LumStatus lumiConvert_32s16u_C1RSfs(const Lum32s* src, int srcStep, Lum16u* dst, int dstStep, LumiSize roi,
                                    LumRoundMode roundMode, int scaleFactor);
LumStatus lumiConvert_32s32f_C1R(const Lum32s* src, int srcStep, Lum32f* dst, int dstStep, LumiSize roi);
LumStatus lumiConvert_32s32u_C1Rs(const Lum32s* src, int srcStep, Lum32u* dst, int dstStep, LumiSize roi);
LumStatus lumiConvert_32s8s_AC4R(const Lum32s* src, int srcStep, Lum8s* dst, int dstStep, LumiSize roi);
LumStatus lumiConvert_32s8s_C1R(const Lum32s* src, int srcStep, Lum8s* dst, int dstStep, LumiSize roi);
LumStatus lumiConvert_32s8s_C3R(const Lum32s* src, int srcStep, Lum8s* dst, int dstStep, LumiSize roi);
LumStatus lumiConvert_32s8s_C4R(const Lum32s* src, int srcStep, Lum8s* dst, int dstStep, LumiSize roi);
LumStatus lumiConvert_32s8u_AC4R(const Lum32s* src, int srcStep, Lum8u* dst, int dstStep, LumiSize roi);
LumStatus lumiConvert_32s8u_C1R(const Lum32s* src, int srcStep, Lum8u* dst, int dstStep, LumiSize roi);
LumStatus lumiConvert_32s8u_C3R(const Lum32s* src, int srcStep, Lum8u* dst, int dstStep, LumiSize roi);
LumStatus lumiConvert_32s8u_C4R(const Lum32s* src, int srcStep, Lum8u* dst, int dstStep, LumiSize roi);
LumStatus lumiConvert_32u16s_C1RSfs(const Lum32u* src, int srcStep, Lum16s* dst, int dstStep, LumiSize roi,
                                    LumRoundMode roundMode, int scaleFactor);
LumStatus lumiConvert_32u16u_C1RSfs(const Lum32u* src, int srcStep, Lum16u* dst, int dstStep, LumiSize roi,
                                    LumRoundMode roundMode, int scaleFactor);
LumStatus lumiConvert_32u32f_C1R(const Lum32u* src, int srcStep, Lum32f* dst, int dstStep, LumiSize roi);
LumStatus lumiConvert_32u32s_C1RSfs(const Lum32u* src, int srcStep, Lum32s* dst, int dstStep, LumiSize roi,
                                    LumRoundMode roundMode, int scaleFactor);
LumStatus lumiConvert_32u8s_C1RSfs(const Lum32u* src, int srcStep, Lum8s* dst, int dstStep, LumiSize roi,
                                   LumRoundMode roundMode, int scaleFactor);
LumStatus lumiConvert_32u8u_C1RSfs(const Lum32u* src, int srcStep, Lum8u* dst, int dstStep, LumiSize roi,
                                   LumRoundMode roundMode, int scaleFactor);
LumStatus lumiConvert_8s16s_C1R(const Lum8s* src, int srcStep, Lum16s* dst, int dstStep, LumiSize roi);
LumStatus lumiConvert_8s16u_C1Rs(const Lum8s* src, int srcStep, Lum16u* dst, int dstStep, LumiSize roi);
LumStatus lumiConvert_8s32f_AC4R(const Lum8s* src, int srcStep, Lum32f* dst, int dstStep, LumiSize roi);
LumStatus lumiConvert_8s32f_C1R(const Lum8s* src, int srcStep, Lum32f* dst, int dstStep, LumiSize roi);
LumStatus lumiConvert_8s32f_C3R(const Lum8s* src, int srcStep, Lum32f* dst, int dstStep, LumiSize roi);
LumStatus lumiConvert_8s32f_C4R(const Lum8s* src, int srcStep, Lum32f* dst, int dstStep, LumiSize roi);
LumStatus lumiConvert_8s32s_AC4R(const Lum8s* src, int srcStep, Lum32s* dst, int dstStep, LumiSize roi);
LumStatus lumiConvert_8s32s_C1R(const Lum8s* src, int srcStep, Lum32s* dst, int dstStep, LumiSize roi);
LumStatus lumiConvert_8s32s_C3R(const Lum8s* src, int srcStep, Lum32s* dst, int dstStep, LumiSize roi);
LumStatus lumiConvert_8s32s_C4R(const Lum8s* src, int srcStep, Lum32s* dst, int dstStep, LumiSize roi);
LumStatus lumiConvert_8s32u_C1Rs(const Lum8s* src, int srcStep, Lum32u* dst, int dstStep, LumiSize roi);
LumStatus lumiConvert_8s8u_C1Rs(const Lum8s* src, int srcStep, Lum8u* dst, int dstStep, LumiSize roi);
LumStatus lumiConvert_8u16s_AC4R(const Lum8u* src, int srcStep, Lum16s* dst, int dstStep, LumiSize roi);
LumStatus lumiConvert_8u16s_C1R(const Lum8u* src, int srcStep, Lum16s* dst, int dstStep, LumiSize roi);
LumStatus lumiConvert_8u16s_C3R(const Lum8u* src, int srcStep, Lum16s* dst, int dstStep, LumiSize roi);
LumStatus lumiConvert_8u16s_C4R(const Lum8u* src, int srcStep, Lum16s* dst, int dstStep, LumiSize roi);
LumStatus lumiConvert_8u16u_AC4R(const Lum8u* src, int srcStep, Lum16u* dst, int dstStep, LumiSize roi);
LumStatus lumiConvert_8u16u_C1R(const Lum8u* src, int srcStep, Lum16u* dst, int dstStep, LumiSize roi);
LumStatus lumiConvert_8u16u_C3R(const Lum8u* src, int srcStep, Lum16u* dst, int dstStep, LumiSize roi);
LumStatus lumiConvert_8u16u_C4R(const Lum8u* src, int srcStep, Lum16u* dst, int dstStep, LumiSize roi);
LumStatus lumiConvert_8u32f_AC4R(const Lum8u* src, int srcStep, Lum32f* dst, int dstStep, LumiSize roi);
LumStatus lumiConvert_8u32f_C1R(const Lum8u* src, int srcStep, Lum32f* dst, int dstStep, LumiSize roi);
LumStatus lumiConvert_8u32f_C3R(const Lum8u* src, int srcStep, Lum32f* dst, int dstStep, LumiSize roi);
LumStatus lumiConvert_8u32f_C4R(const Lum8u* src, int srcStep, Lum32f* dst, int dstStep, LumiSize roi);
LumStatus lumiConvert_8u32s_AC4R(const Lum8u* src, int srcStep, Lum32s* dst, int dstStep, LumiSize roi);
LumStatus lumiConvert_8u32s_C1R(const Lum8u* src, int srcStep, Lum32s* dst, int dstStep, LumiSize roi);
LumStatus lumiConvert_8u32s_C3R(const Lum8u* src, int srcStep, Lum32s* dst, int dstStep, LumiSize roi);
LumStatus lumiConvert_8u32s_C4R(const Lum8u* src, int srcStep, Lum32s* dst, int dstStep, LumiSize roi);
LumStatus lumiConvert_8u8s_C1RSfs(const Lum8u* src, int srcStep, Lum8s* dst, int dstStep, LumiSize roi,
                                  LumRoundMode roundMode, int scaleFactor);

#ifdef __cplusplus
}
#endif

#endif
