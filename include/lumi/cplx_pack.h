/* SPDX-License-Identifier: MIT */
/* Generated from registry/transforms/cplx_pack.reg by tools/lumigen; edit that instead. */
/** @file Complex spectra to packed ones and back. */
#ifndef LUMI_CPLX_PACK_H
#define LUMI_CPLX_PACK_H

#include "types.h"

#ifdef __cplusplus
extern "C" {
#endif

/**
 * Packs the complex spectrum of a real image.
 *
 * Of a spectrum F that is roi.width wide and roi.height high, F(height - y, width - x) is the conjugate of
 * F(y, x), so that about half of it tells all. The packed spectrum has in row y the real and the imaginary part of
 * F(y, k) in pixels 2 k - 1 and 2 k, for 1 <= k <= (width - 1) / 2. Column 0 has those of F(j, 0) in rows 2 j - 1
 * and 2 j, for 1 <= j <= (height - 1) / 2, F(0, 0) in row 0 and, if the height is even, F(height / 2, 0) in the last
 * row, both real; the last column of an even width has those of F(j, width / 2) likewise. Each channel is packed by
 * itself. No other sample of the source is read, nor any imaginary part that is 0 by symmetry.
 *
 * The images must not overlap, nor the rows of the destination one another. They may be misaligned in any way.
 *
 * Returns lumStatusOk (0) or, tested in this order and before anything is written:
 *   lumStatusNullPointer (-8)  a pointer is null, plane pointers included
 *   lumStatusBadSize (-6)      roi.width or roi.height is below 1
 *   lumStatusBadStep (-14)     a step is below 1
 */
LumStatus lumiCplxExtendToPack_16sc16s_C1R(const Lum16sc* src, int srcStep, LumiSize roi, Lum16s* dst,
                                           int dstStep);
LumStatus lumiCplxExtendToPack_16sc16s_C3R(const Lum16sc* src, int srcStep, LumiSize roi, Lum16s* dst,
                                           int dstStep);
LumStatus lumiCplxExtendToPack_32fc32f_C1R(const Lum32fc* src, int srcStep, LumiSize roi, Lum32f* dst,
                                           int dstStep);
LumStatus lumiCplxExtendToPack_32fc32f_C3R(const Lum32fc* src, int srcStep, LumiSize roi, Lum32f* dst,
                                           int dstStep);
LumStatus lumiCplxExtendToPack_32sc32s_C1R(const Lum32sc* src, int srcStep, LumiSize roi, Lum32s* dst,
                                           int dstStep);
LumStatus lumiCplxExtendToPack_32sc32s_C3R(const Lum32sc* src, int srcStep, LumiSize roi, Lum32s* dst,
                                           int dstStep);

/**
 * Makes a complex spectrum of a packed one.
 *
 * The way back from lumiCplxExtendToPack: all of the complex spectrum, roi.width wide and roi.height high, the
 * conjugate half included. Imaginary parts of what is real are 0. The conjugate of an imaginary part of -2^31 in
 * 32s32sc is 2^31 - 1.
 *
 * The images must not overlap, nor the rows of the destination one another. They may be misaligned in any way.
 *
 *   src        first sample of the packed spectrum
 *   srcStep    bytes between its rows
 *
 * Returns lumStatusOk (0) or, tested in this order and before anything is written:
 *   lumStatusNullPointer (-8)  a pointer is null, plane pointers included
 *   lumStatusBadSize (-6)      roi.width or roi.height is below 1
 *   lumStatusBadStep (-14)     a step is below 1
 */
LumStatus lumiPackToCplxExtend_32f32fc_C1R(const Lum32f* src, LumiSize roi, int srcStep, Lum32fc* dst,
                                           int dstStep);
LumStatus lumiPackToCplxExtend_32s32sc_C1R(const Lum32s* src, LumiSize roi, int srcStep, Lum32sc* dst,
                                           int dstStep);

#ifdef __cplusplus
}
#endif

#endif
