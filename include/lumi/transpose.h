/* SPDX-License-Identifier: MIT */
/* Generated from registry/data/transpose.reg by tools/lumigen; edit that instead. */
/** @file Transposition. */
#ifndef LUMI_TRANSPOSE_H
#define LUMI_TRANSPOSE_H

#include "types.h"

#ifdef __cplusplus
extern "C" {
#endif

/**
 * Exchanges rows and columns.
 *
 * dst(y, x) = src(x, y): roi is the size of the source, and the destination is roi.height wide and roi.width
 * high. Where src and dst are equal, and their steps too, the call is the one in place, of a square.
 *
 * Any step is taken, negative ones included. Images may be misaligned in any way, but must not overlap
 * otherwise, nor the rows of the destination.
 *
 * Returns lumStatusOk (0) or, tested in this order and before anything is written (8u 16u 16s 32s 32f: C1 C3 C4):
 *   lumStatusNullPointer (-8)  a pointer is null, plane pointers included
 *   lumStatusBadSize (-6)      roi.width or roi.height is below 1
 *
 * Returns lumStatusOk (0) or, tested in this order and before anything is written (8u 16u 16s 32s 32f: C1 C3 C4):
 *   lumStatusNullPointer (-8)  a pointer is null, plane pointers included
 *   lumStatusBadSize (-6)      roi.width or roi.height is below 1
 *   lumStatusBadSize (-6)      roi.width and roi.height differ
 */
LumStatus lumiTranspose_16s_C1IR(Lum16s* srcDst, int srcDstStep, LumiSize roi);
LumStatus lumiTranspose_16s_C1R(const Lum16s* src, int srcStep, Lum16s* dst, int dstStep, LumiSize roi);
LumStatus lumiTranspose_16s_C3IR(Lum16s* srcDst, int srcDstStep, LumiSize roi);
LumStatus lumiTranspose_16s_C3R(const Lum16s* src, int srcStep, Lum16s* dst, int dstStep, LumiSize roi);
LumStatus lumiTranspose_16s_C4IR(Lum16s* srcDst, int srcDstStep, LumiSize roi);
LumStatus lumiTranspose_16s_C4R(const Lum16s* src, int srcStep, Lum16s* dst, int dstStep, LumiSize roi);
LumStatus lumiTranspose_16u_C1IR(Lum16u* srcDst, int srcDstStep, LumiSize roi);
LumStatus lumiTranspose_16u_C1R(const Lum16u* src, int srcStep, Lum16u* dst, int dstStep, LumiSize roi);
LumStatus lumiTranspose_16u_C3IR(Lum16u* srcDst, int srcDstStep, LumiSize roi);
LumStatus lumiTranspose_16u_C3R(const Lum16u* src, int srcStep, Lum16u* dst, int dstStep, LumiSize roi);
LumStatus lumiTranspose_16u_C4IR(Lum16u* srcDst, int srcDstStep, LumiSize roi);
LumStatus lumiTranspose_16u_C4R(const Lum16u* src, int srcStep, Lum16u* dst, int dstStep, LumiSize roi);
LumStatus lumiTranspose_32f_C1IR(Lum32f* srcDst, int srcDstStep, LumiSize roi);
LumStatus lumiTranspose_32f_C1R(const Lum32f* src, int srcStep, Lum32f* dst, int dstStep, LumiSize roi);
LumStatus lumiTranspose_32f_C3IR(Lum32f* srcDst, int srcDstStep, LumiSize roi);
LumStatus lumiTranspose_32f_C3R(const Lum32f* src, int srcStep, Lum32f* dst, int dstStep, LumiSize roi);
LumStatus lumiTranspose_32f_C4IR(Lum32f* srcDst, int srcDstStep, LumiSize roi);
LumStatus lumiTranspose_32f_C4R(const Lum32f* src, int srcStep, Lum32f* dst, int dstStep, LumiSize roi);
LumStatus lumiTranspose_32s_C1IR(Lum32s* srcDst, int srcDstStep, LumiSize roi);
LumStatus lumiTranspose_32s_C1R(const Lum32s* src, int srcStep, Lum32s* dst, int dstStep, LumiSize roi);
LumStatus lumiTranspose_32s_C3IR(Lum32s* srcDst, int srcDstStep, LumiSize roi);
LumStatus lumiTranspose_32s_C3R(const Lum32s* src, int srcStep, Lum32s* dst, int dstStep, LumiSize roi);
LumStatus lumiTranspose_32s_C4IR(Lum32s* srcDst, int srcDstStep, LumiSize roi);
LumStatus lumiTranspose_32s_C4R(const Lum32s* src, int srcStep, Lum32s* dst, int dstStep, LumiSize roi);
LumStatus lumiTranspose_8u_C1IR(Lum8u* srcDst, int srcDstStep, LumiSize roi);
LumStatus lumiTranspose_8u_C1R(const Lum8u* src, int srcStep, Lum8u* dst, int dstStep, LumiSize roi);
LumStatus lumiTranspose_8u_C3IR(Lum8u* srcDst, int srcDstStep, LumiSize roi);
LumStatus lumiTranspose_8u_C3R(const Lum8u* src, int srcStep, Lum8u* dst, int dstStep, LumiSize roi);
LumStatus lumiTranspose_8u_C4IR(Lum8u* srcDst, int srcDstStep, LumiSize roi);
LumStatus lumiTranspose_8u_C4R(const Lum8u* src, int srcStep, Lum8u* dst, int dstStep, LumiSize roi);

#ifdef __cplusplus
}
#endif

#endif
