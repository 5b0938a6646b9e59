/* SPDX-License-Identifier: MIT */
/* Generated from registry/filters/separable.reg by tools/lumigen; edit that instead. */
/** @file Separable filtering. */
#ifndef LUMI_SEPARABLE_H
#define LUMI_SEPARABLE_H

#include "types.h"

#ifdef __cplusplus
extern "C" {
#endif

/**
 * Convolves rows with a kernel of one dimension.
 *
 * dst(x, y) = sum over i in 0..n-1 of K[i] src(x + anchor - i, y), each channel by itself. This reads the columns
 * anchor - n + 1 .. W - 1 + anchor, which have to be in memory. Any anchor is taken: it moves the result. AC4 does not
 * write the fourth sample of destination pixels.
 *
 * Integer taps have a divisor, which may be negative. Sums of 8u wrap at 32 bits. Divided by a power of two they are
 * rounded to nearest, ties to even; for any other divisor, and 1, the result is (float)sum * (1.0f / divisor), rounded
 * likewise. With 16u and 16s the taps become floats, (float)K[i] * (1.0f / divisor), and the call is one of
 * lumiFilterRow32f. All results are limited to the type.
 *
 * Sums of 32f and 64f are made in their own type: from the last tap to the first, one product after the other,
 * starting from 0.
 *
 * The row of a source step is (W + n - 1) pixels, that of a destination step W samples, not pixels. After the checks
 * lumStatusNoMemory (-9) tells that there is no scratch memory, which kernels of more than 64 integer taps may
 * take; nothing is written then.
 *
 * Images and taps may be misaligned in any way. Source and destination must not overlap, nor rows of the destination.
 *
 *   kernel     the taps
 *   kernelSize how many
 *   anchor     the tap over the result's pixel
 *   divisor    the sums are divided by it
 *
 * Returns lumStatusOk (0) or, tested in this order and before anything is written (8u 16u 16s: C1 C3 C4 AC4):
 *   lumStatusNullPointer (-8)  a pointer is null, plane pointers included
 *   lumStatusBadSize (-6)      roi.width or roi.height is below 1
 *   lumStatusBadSize (-6)      kernelSize is below 1
 *   lumStatusZeroDivisor (-51) divisor is 0
 *   lumStatusBadStep (-14)     a step is below the bytes of a row
 *
 * Returns lumStatusOk (0) or, tested in this order and before anything is written (32f: C1 C3 C4 AC4; 64f: C1):
 *   lumStatusNullPointer (-8)  a pointer is null, plane pointers included
 *   lumStatusBadSize (-6)      roi.width or roi.height is below 1
 *   lumStatusBadSize (-6)      kernelSize is below 1
 *   lumStatusBadStep (-14)     a step is below the bytes of a row
 */
LumStatus lumiFilterRow_16s_AC4R(const Lum16s* src, int srcStep, Lum16s* dst, int dstStep, LumiSize roi,
                                 const Lum32s* kernel, int kernelSize, int anchor, int divisor);
LumStatus lumiFilterRow_16s_C1R(const Lum16s* src, int srcStep, Lum16s* dst, int dstStep, LumiSize roi,
                                const Lum32s* kernel, int kernelSize, int anchor, int divisor);
LumStatus lumiFilterRow_16s_C3R(const Lum16s* src, int srcStep, Lum16s* dst, int dstStep, LumiSize roi,
                                const Lum32s* kernel, int kernelSize, int anchor, int divisor);
LumStatus lumiFilterRow_16s_C4R(const Lum16s* src, int srcStep, Lum16s* dst, int dstStep, LumiSize roi,
                                const Lum32s* kernel, int kernelSize, int anchor, int divisor);
LumStatus lumiFilterRow_16u_AC4R(const Lum16u* src, int srcStep, Lum16u* dst, int dstStep, LumiSize roi,
                                 const Lum32s* kernel, int kernelSize, int anchor, int divisor);
LumStatus lumiFilterRow_16u_C1R(const Lum16u* src, int srcStep, Lum16u* dst, int dstStep, LumiSize roi,
                                const Lum32s* kernel, int kernelSize, int anchor, int divisor);
LumStatus lumiFilterRow_16u_C3R(const Lum16u* src, int srcStep, Lum16u* dst, int dstStep, LumiSize roi,
                                const Lum32s* kernel, int kernelSize, int anchor, int divisor);
LumStatus lumiFilterRow_16u_C4R(const Lum16u* src, int srcStep, Lum16u* dst, int dstStep, LumiSize roi,
                                const Lum32s* kernel, int kernelSize, int anchor, int divisor);
LumStatus lumiFilterRow_32f_AC4R(const Lum32f* src, int srcStep, Lum32f* dst, int dstStep, LumiSize roi,
                                 const Lum32f* kernel, int kernelSize, int anchor);
LumStatus lumiFilterRow_32f_C1R(const Lum32f* src, int srcStep, Lum32f* dst, int dstStep, LumiSize roi,
                                const Lum32f* kernel, int kernelSize, int anchor);
LumStatus lumiFilterRow_32f_C3R(const Lum32f* src, int srcStep, Lum32f* dst, int dstStep, LumiSize roi,
                                const Lum32f* kernel, int kernelSize, int anchor);
LumStatus lumiFilterRow_32f_C4R(const Lum32f* src, int srcStep, Lum32f* dst, int dstStep, LumiSize roi,
                                const Lum32f* kernel, int kernelSize, int anchor);
LumStatus lumiFilterRow_64f_C1R(const Lum64f* src, int srcStep, Lum64f* dst, int dstStep, LumiSize roi,
                                const Lum64f* kernel, int kernelSize, int anchor);
LumStatus lumiFilterRow_8u_AC4R(const Lum8u* src, int srcStep, Lum8u* dst, int dstStep, LumiSize roi,
                                const Lum32s* kernel, int kernelSize, int anchor, int divisor);
LumStatus lumiFilterRow_8u_C1R(const Lum8u* src, int srcStep, Lum8u* dst, int dstStep, LumiSize roi,
                               const Lum32s* kernel, int kernelSize, int anchor, int divisor);
LumStatus lumiFilterRow_8u_C3R(const Lum8u* src, int srcStep, Lum8u* dst, int dstStep, LumiSize roi,
                               const Lum32s* kernel, int kernelSize, int anchor, int divisor);
LumStatus lumiFilterRow_8u_C4R(const Lum8u* src, int srcStep, Lum8u* dst, int dstStep, LumiSize roi,
                               const Lum32s* kernel, int kernelSize, int anchor, int divisor);

/**
 * Convolves columns with a kernel of one dimension.
 *
 * dst(x, y) = sum over i in 0..n-1 of K[i] src(x, y + anchor - i), which reads the rows anchor - n + 1 .. H - 1 + anchor. Sums
 * and results are those of lumiFilterRow.
 *
 * The row of a step, source or destination, is W samples, not pixels. After the checks lumStatusNoMemory (-9) tells that
 * there is no scratch memory, which kernels of more than 64 integer taps may take; nothing is written then.
 *
 * Images and taps may be misaligned in any way. Source and destination must not overlap, nor rows of the destination.
 *
 *   kernel     the taps
 *   kernelSize how many
 *   anchor     the tap over the result's pixel
 *   divisor    the sums are divided by it
 *
 * Returns lumStatusOk (0) or, tested in this order and before anything is written (8u 16u 16s: C1 C3 C4 AC4):
 *   lumStatusNullPointer (-8)  a pointer is null, plane pointers included
 *   lumStatusBadSize (-6)      roi.width or roi.height is below 1
 *   lumStatusBadSize (-6)      kernelSize is below 1
 *   lumStatusZeroDivisor (-51) divisor is 0
 *   lumStatusBadStep (-14)     a step is below the bytes of a row
 *
 * Returns lumStatusOk (0) or, tested in this order and before anything is written (32f: C1 C3 C4 AC4; 64f: C1):
 *   lumStatusNullPointer (-8)  a pointer is null, plane pointers included
 *   lumStatusBadSize (-6)      roi.width or roi.height is below 1
 *   lumStatusBadSize (-6)      kernelSize is below 1
 *   lumStatusBadStep (-14)     a step is below the bytes of a row
 */
LumStatus lumiFilterColumn_16s_AC4R(const Lum16s* src, int srcStep, Lum16s* dst, int dstStep, LumiSize roi,
                                    const Lum32s* kernel, int kernelSize, int anchor, int divisor);
LumStatus lumiFilterColumn_16s_C1R(const Lum16s* src, int srcStep, Lum16s* dst, int dstStep, LumiSize roi,
                                   const Lum32s* kernel, int kernelSize, int anchor, int divisor);
LumStatus lumiFilterColumn_16s_C3R(const Lum16s* src, int srcStep, Lum16s* dst, int dstStep, LumiSize roi,
                                   const Lum32s* kernel, int kernelSize, int anchor, int divisor);
LumStatus lumiFilterColumn_16s_C4R(const Lum16s* src, int srcStep, Lum16s* dst, int dstStep, LumiSize roi,
                                   const Lum32s* kernel, int kernelSize, int anchor, int divisor);
LumStatus lumiFilterColumn_16u_AC4R(const Lum16u* src, int srcStep, Lum16u* dst, int dstStep, LumiSize roi,
                                    const Lum32s* kernel, int kernelSize, int anchor, int divisor);
LumStatus lumiFilterColumn_16u_C1R(const Lum16u* src, int srcStep, Lum16u* dst, int dstStep, LumiSize roi,
                                   const Lum32s* kernel, int kernelSize, int anchor, int divisor);
LumStatus lumiFilterColumn_16u_C3R(const Lum16u* src, int srcStep, Lum16u* dst, int dstStep, LumiSize roi,
                                   const Lum32s* kernel, int kernelSize, int anchor, int divisor);
LumStatus lumiFilterColumn_16u_C4R(const Lum16u* src, int srcStep, Lum16u* dst, int dstStep, LumiSize roi,
                                   const Lum32s* kernel, int kernelSize, int anchor, int divisor);
LumStatus lumiFilterColumn_32f_AC4R(const Lum32f* src, int srcStep, Lum32f* dst, int dstStep, LumiSize roi,
                                    const Lum32f* kernel, int kernelSize, int anchor);
LumStatus lumiFilterColumn_32f_C1R(const Lum32f* src, int srcStep, Lum32f* dst, int dstStep, LumiSize roi,
                                   const Lum32f* kernel, int kernelSize, int anchor);
LumStatus lumiFilterColumn_32f_C3R(const Lum32f* src, int srcStep, Lum32f* dst, int dstStep, LumiSize roi,
                                   const Lum32f* kernel, int kernelSize, int anchor);
LumStatus lumiFilterColumn_32f_C4R(const Lum32f* src, int srcStep, Lum32f* dst, int dstStep, LumiSize roi,
                                   const Lum32f* kernel, int kernelSize, int anchor);
LumStatus lumiFilterColumn_64f_C1R(const Lum64f* src, int srcStep, Lum64f* dst, int dstStep, LumiSize roi,
                                   const Lum64f* kernel, int kernelSize, int anchor);
LumStatus lumiFilterColumn_8u_AC4R(const Lum8u* src, int srcStep, Lum8u* dst, int dstStep, LumiSize roi,
                                   const Lum32s* kernel, int kernelSize, int anchor, int divisor);
LumStatus lumiFilterColumn_8u_C1R(const Lum8u* src, int srcStep, Lum8u* dst, int dstStep, LumiSize roi,
                                  const Lum32s* kernel, int kernelSize, int anchor, int divisor);
LumStatus lumiFilterColumn_8u_C3R(const Lum8u* src, int srcStep, Lum8u* dst, int dstStep, LumiSize roi,
                                  const Lum32s* kernel, int kernelSize, int anchor, int divisor);
LumStatus lumiFilterColumn_8u_C4R(const Lum8u* src, int srcStep, Lum8u* dst, int dstStep, LumiSize roi,
                                  const Lum32s* kernel, int kernelSize, int anchor, int divisor);

/**
 * Convolves rows of integer samples with a kernel of floats.
 *
 * dst(x, y) = sum over i in 0..n-1 of K[i] src(x + anchor - i, y), which reads the columns anchor - n + 1 .. W - 1 + anchor. Sums
 * are Lum32f: from the last tap to the first, one product after the other, starting from 0. They are rounded to
 * nearest, ties to even, and limited to the type.
 *
 * The row of a source step is (W + n - 1) pixels, that of a destination step W samples, not pixels. Images and taps may
 * be misaligned in any way. Source and destination must not overlap, nor rows of the destination.
 *
 *   kernel     the taps
 *   kernelSize how many
 *   anchor     the tap over the result's pixel
 *
 * Returns lumStatusOk (0) or, tested in this order and before anything is written:
 *   lumStatusNullPointer (-8)  a pointer is null, plane pointers included
 *   lumStatusBadSize (-6)      roi.width or roi.height is below 1
 *   lumStatusBadSize (-6)      kernelSize is below 1
 *   lumStatusBadStep (-14)     a step is below the bytes of a row
 */
LumStatus lumiFilterRow32f_16s_AC4R(const Lum16s* src, int srcStep, Lum16s* dst, int dstStep, LumiSize roi,
                                    const Lum32f* kernel, int kernelSize, int anchor);
LumStatus lumiFilterRow32f_16s_C1R(const Lum16s* src, int srcStep, Lum16s* dst, int dstStep, LumiSize roi,
                                   const Lum32f* kernel, int kernelSize, int anchor);
LumStatus lumiFilterRow32f_16s_C3R(const Lum16s* src, int srcStep, Lum16s* dst, int dstStep, LumiSize roi,
                                   const Lum32f* kernel, int kernelSize, int anchor);
LumStatus lumiFilterRow32f_16s_C4R(const Lum16s* src, int srcStep, Lum16s* dst, int dstStep, LumiSize roi,
                                   const Lum32f* kernel, int kernelSize, int anchor);
LumStatus lumiFilterRow32f_16u_AC4R(const Lum16u* src, int srcStep, Lum16u* dst, int dstStep, LumiSize roi,
                                    const Lum32f* kernel, int kernelSize, int anchor);
LumStatus lumiFilterRow32f_16u_C1R(const Lum16u* src, int srcStep, Lum16u* dst, int dstStep, LumiSize roi,
                                   const Lum32f* kernel, int kernelSize, int anchor);
LumStatus lumiFilterRow32f_16u_C3R(const Lum16u* src, int srcStep, Lum16u* dst, int dstStep, LumiSize roi,
                                   const Lum32f* kernel, int kernelSize, int anchor);
LumStatus lumiFilterRow32f_16u_C4R(const Lum16u* src, int srcStep, Lum16u* dst, int dstStep, LumiSize roi,
                                   const Lum32f* kernel, int kernelSize, int anchor);
LumStatus lumiFilterRow32f_8u_AC4R(const Lum8u* src, int srcStep, Lum8u* dst, int dstStep, LumiSize roi,
                                   const Lum32f* kernel, int kernelSize, int anchor);
LumStatus lumiFilterRow32f_8u_C1R(const Lum8u* src, int srcStep, Lum8u* dst, int dstStep, LumiSize roi,
                                  const Lum32f* kernel, int kernelSize, int anchor);
LumStatus lumiFilterRow32f_8u_C3R(const Lum8u* src, int srcStep, Lum8u* dst, int dstStep, LumiSize roi,
                                  const Lum32f* kernel, int kernelSize, int anchor);
LumStatus lumiFilterRow32f_8u_C4R(const Lum8u* src, int srcStep, Lum8u* dst, int dstStep, LumiSize roi,
                                  const Lum32f* kernel, int kernelSize, int anchor);

/**
 * Convolves columns of integer samples with a kernel of floats.
 *
 * dst(x, y) = sum over i in 0..n-1 of K[i] src(x, y + anchor - i), which reads the rows anchor - n + 1 .. H - 1 + anchor. Sums
 * and results are those of lumiFilterRow32f.
 *
 * The row of a step, source or destination, is W samples, not pixels. Images and taps may be misaligned in any way.
 * Source and destination must not overlap, nor rows of the destination.
 *
 *   kernel     the taps
 *   kernelSize how many
 *   anchor     the tap over the result's pixel
 *
 * Returns lumStatusOk (0) or, tested in this order and before anything is written:
 *   lumStatusNullPointer (-8)  a pointer is null, plane pointers included
 *   lumStatusBadSize (-6)      roi.width or roi.height is below 1
 *   lumStatusBadSize (-6)      kernelSize is below 1
 *   lumStatusBadStep (-14)     a step is below the bytes of a row
 */
LumStatus lumiFilterColumn32f_16s_AC4R(const Lum16s* src, int srcStep, Lum16s* dst, int dstStep, LumiSize roi,
                                       const Lum32f* kernel, int kernelSize, int anchor);
LumStatus lumiFilterColumn32f_16s_C1R(const Lum16s* src, int srcStep, Lum16s* dst, int dstStep, LumiSize roi,
                                      const Lum32f* kernel, int kernelSize, int anchor);
LumStatus lumiFilterColumn32f_16s_C3R(const Lum16s* src, int srcStep, Lum16s* dst, int dstStep, LumiSize roi,
                                      const Lum32f* kernel, int kernelSize, int anchor);
LumStatus lumiFilterColumn32f_16s_C4R(const Lum16s* src, int srcStep, Lum16s* dst, int dstStep, LumiSize roi,
                                      const Lum32f* kernel, int kernelSize, int anchor);
LumStatus lumiFilterColumn32f_16u_AC4R(const Lum16u* src, int srcStep, Lum16u* dst, int dstStep, LumiSize roi,
                                       const Lum32f* kernel, int kernelSize, int anchor);
LumStatus lumiFilterColumn32f_16u_C1R(const Lum16u* src, int srcStep, Lum16u* dst, int dstStep, LumiSize roi,
                                      const Lum32f* kernel, int kernelSize, int anchor);
LumStatus lumiFilterColumn32f_16u_C3R(const Lum16u* src, int srcStep, Lum16u* dst, int dstStep, LumiSize roi,
                                      const Lum32f* kernel, int kernelSize, int anchor);
LumStatus lumiFilterColumn32f_16u_C4R(const Lum16u* src, int srcStep, Lum16u* dst, int dstStep, LumiSize roi,
                                      const Lum32f* kernel, int kernelSize, int anchor);
LumStatus lumiFilterColumn32f_8u_AC4R(const Lum8u* src, int srcStep, Lum8u* dst, int dstStep, LumiSize roi,
                                      const Lum32f* kernel, int kernelSize, int anchor);
LumStatus lumiFilterColumn32f_8u_C1R(const Lum8u* src, int srcStep, Lum8u* dst, int dstStep, LumiSize roi,
                                     const Lum32f* kernel, int kernelSize, int anchor);
LumStatus lumiFilterColumn32f_8u_C3R(const Lum8u* src, int srcStep, Lum8u* dst, int dstStep, LumiSize roi,
                                     const Lum32f* kernel, int kernelSize, int anchor);
LumStatus lumiFilterColumn32f_8u_C4R(const Lum8u* src, int srcStep, Lum8u* dst, int dstStep, LumiSize roi,
                                     const Lum32f* kernel, int kernelSize, int anchor);

#ifdef __cplusplus
}
#endif

#endif
