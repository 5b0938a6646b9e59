/* SPDX-License-Identifier: MIT */
/* Generated from registry/transforms/dct.reg by tools/lumigen; edit that instead. */
/** @file Cosine transforms. */
#ifndef LUMI_DCT_H
#define LUMI_DCT_H

#include "types.h"

#ifdef __cplusplus
extern "C" {
#endif

/**
 * Tells how much memory a cosine transform takes.
 *
 * An object is made once for a size of images, by an Init in memory of the caller's or by an InitAlloc, which a
 * Free releases, and then only read. The blocks may start at any address. An object holds pointers into itself: it
 * must be neither moved nor copied. The scratch of an Init is needed for every size but 8 x 8.
 *
 * Returns lumStatusOk (0) or, tested in this order and with nothing written:
 *   lumStatusNullPointer (-8)  a result pointer is null
 *   lumStatusBadSize (-6)      width or height is below 1
 *   lumStatusBadSize (-6)      one of them is above 0xfffffff, or above 0x3ffffff and no power of two
 *
 *   width      columns of the images
 *   height     rows of the images
 *   objectSize receives the bytes of an object
 *   initSize   receives the bytes of scratch that Init takes
 *   bufferSize receives the bytes of scratch that a run takes
 */
LumStatus lumiDCTFwdGetSize_32f(int width, int height, Lum32s* objectSize, Lum32s* initSize,
                                Lum32s* bufferSize);

/**
 * Makes the object of a cosine transform.
 *
 * Returns lumStatusOk (0) or, tested in this order and with nothing written:
 *   lumStatusNullPointer (-8)  object is null
 *   lumStatusBadSize (-6)      width or height is below 1
 *   lumStatusNullPointer (-8)  scratch is null, and the size is not 8 x 8
 *   lumStatusBadSize (-6)      one of them is above its limit
 *   lumStatusNoMemory (-9)     the object or the scratch is larger than 31 bits tell
 *
 *   width      columns of the images
 *   height     rows of the images
 *   object     memory of the object
 *   scratch    scratch of this call
 */
LumStatus lumiDCTFwdInit_32f(int width, int height, LumiDCTFwdSpec_32f* object, Lum8u* scratch);

/**
 * Allocates and makes the object of a cosine transform.
 *
 * Returns lumStatusOk (0) or, tested in this order and with nothing written:
 *   lumStatusNullPointer (-8)  object is null
 *   lumStatusBadSize (-6)      width or height is below 1
 *   lumStatusBadSize (-6)      one of them is above its limit
 *   lumStatusNoMemory (-9)     there is no memory for the object, or for what makes it
 *
 *   width      columns of the images
 *   height     rows of the images
 *   object     receives the object
 */
LumStatus lumiDCTFwdInitAlloc_32f(LumiDCTFwdSpec_32f** object, int width, int height);

/**
 * Releases an object that lumiDCTFwdInitAlloc_32f made.
 *
 * Returns lumStatusOk (0) or, tested in this order:
 *   lumStatusNullPointer (-8)  object is null
 *   lumStatusBadContext (-17)  it is no object of this kind
 *
 *   object     the object
 */
LumStatus lumiDCTFwdFree_32f(LumiDCTFwdSpec_32f* object);

/**
 * Tells how much scratch a run takes.
 *
 * Returns lumStatusOk (0) or, tested in this order and with nothing written:
 *   lumStatusNullPointer (-8)  a pointer is null
 *   lumStatusBadContext (-17)  the object is none of this kind
 *
 *   object     the object
 *   bufferSize receives the bytes of scratch
 */
LumStatus lumiDCTFwdGetBufSize_32f(const LumiDCTFwdSpec_32f* object, Lum32s* bufferSize);

/**
 * Tells how much memory an inverse cosine transform takes.
 *
 * An object is made once for a size of images, by an Init in memory of the caller's or by an InitAlloc, which a
 * Free releases, and then only read. The blocks may start at any address. An object holds pointers into itself: it
 * must be neither moved nor copied. The scratch of an Init is needed for every size but 8 x 8.
 *
 * Returns lumStatusOk (0) or, tested in this order and with nothing written:
 *   lumStatusNullPointer (-8)  a result pointer is null
 *   lumStatusBadSize (-6)      width or height is below 1
 *   lumStatusBadSize (-6)      one of them is above 0xfffffff, or above 0x3ffffff and no power of two
 *
 *   width      columns of the images
 *   height     rows of the images
 *   objectSize receives the bytes of an object
 *   initSize   receives the bytes of scratch that Init takes
 *   bufferSize receives the bytes of scratch that a run takes
 */
LumStatus lumiDCTInvGetSize_32f(int width, int height, Lum32s* objectSize, Lum32s* initSize,
                                Lum32s* bufferSize);

/**
 * Makes the object of an inverse cosine transform.
 *
 * Returns lumStatusOk (0) or, tested in this order and with nothing written:
 *   lumStatusNullPointer (-8)  object is null
 *   lumStatusBadSize (-6)      width or height is below 1
 *   lumStatusNullPointer (-8)  scratch is null, and the size is not 8 x 8
 *   lumStatusBadSize (-6)      one of them is above its limit
 *   lumStatusNoMemory (-9)     the object or the scratch is larger than 31 bits tell
 *
 *   width      columns of the images
 *   height     rows of the images
 *   object     memory of the object
 *   scratch    scratch of this call
 */
LumStatus lumiDCTInvInit_32f(int width, int height, LumiDCTInvSpec_32f* object, Lum8u* scratch);

/**
 * Allocates and makes the object of an inverse cosine transform.
 *
 * Returns lumStatusOk (0) or, tested in this order and with nothing written:
 *   lumStatusNullPointer (-8)  object is null
 *   lumStatusBadSize (-6)      width or height is below 1
 *   lumStatusBadSize (-6)      one of them is above its limit
 *   lumStatusNoMemory (-9)     there is no memory for the object, or for what makes it
 *
 *   width      columns of the images
 *   height     rows of the images
 *   object     receives the object
 */
LumStatus lumiDCTInvInitAlloc_32f(LumiDCTInvSpec_32f** object, int width, int height);

/**
 * Releases an object that lumiDCTInvInitAlloc_32f made.
 *
 * Returns lumStatusOk (0) or, tested in this order:
 *   lumStatusNullPointer (-8)  object is null
 *   lumStatusBadContext (-17)  it is no object of this kind
 *
 *   object     the object
 */
LumStatus lumiDCTInvFree_32f(LumiDCTInvSpec_32f* object);

/**
 * Tells how much scratch a run takes.
 *
 * Returns lumStatusOk (0) or, tested in this order and with nothing written:
 *   lumStatusNullPointer (-8)  a pointer is null
 *   lumStatusBadContext (-17)  the object is none of this kind
 *
 *   object     the object
 *   bufferSize receives the bytes of scratch
 */
LumStatus lumiDCTInvGetBufSize_32f(const LumiDCTInvSpec_32f* object, Lum32s* bufferSize);

/**
 * Transforms an image into the coefficients of cosines.
 *
 * Along each row of n samples, then down each column, orthonormally:
 *
 *   y(0) = (f(0) + ... + f(n - 1)) / sqrt(n)
 *   y(k) = sqrt(2 / n) sum of f(x) cos((2 x + 1) k pi / (2 n))
 *
 * 1 / sqrt(n) is the processor's estimate after one step of Newton's in single precision, so that the last bit of the
 * first coefficients is that of the processor. Each channel is an image of its own; AC4 transforms three and leaves
 * the destination's alpha as it was. src may be dst, otherwise the images must not overlap. Scratch may lie at any
 * address and may be null: then there is memory for the call. One channel of 8 x 8 samples with both steps 32 is
 * transformed without scratch. The relative error of the whole image is below 2.5e-7 times the logarithm of width
 * times height to base 2 (root of the mean of squares).
 *
 * Returns lumStatusOk (0) or, tested in this order and before anything is written:
 *   lumStatusNullPointer (-8)  object is null
 *   lumStatusBadContext (-17)  it is no object of this kind
 *   lumStatusNullPointer (-8)  src or dst is null
 *   lumStatusBadStep (-14)     a step is below 1
 *   lumStatusNoMemory (-9)     buffer is null, and there is no memory
 *
 *   object     the object
 *   buffer     scratch, as large as lumiDCTFwdGetBufSize_32f tells
 */
LumStatus lumiDCTFwd_32f_AC4R(const Lum32f* src, int srcStep, Lum32f* dst, int dstStep,
                              const LumiDCTFwdSpec_32f* object, Lum8u* buffer);
LumStatus lumiDCTFwd_32f_C1R(const Lum32f* src, int srcStep, Lum32f* dst, int dstStep,
                             const LumiDCTFwdSpec_32f* object, Lum8u* buffer);
LumStatus lumiDCTFwd_32f_C3R(const Lum32f* src, int srcStep, Lum32f* dst, int dstStep,
                             const LumiDCTFwdSpec_32f* object, Lum8u* buffer);
LumStatus lumiDCTFwd_32f_C4R(const Lum32f* src, int srcStep, Lum32f* dst, int dstStep,
                             const LumiDCTFwdSpec_32f* object, Lum8u* buffer);

/**
 * Transforms coefficients of cosines back into an image.
 *
 * As lumiDCTFwd, whose inverse it is: f(x) = y(0) / sqrt(n) + sqrt(2 / n) sum of y(k) cos((2 x + 1) k pi / (2 n)) over k
 * from 1 on.
 *
 *   object     the object
 *   buffer     scratch, as large as lumiDCTInvGetBufSize_32f tells
 */
LumStatus lumiDCTInv_32f_AC4R(const Lum32f* src, int srcStep, Lum32f* dst, int dstStep,
                              const LumiDCTInvSpec_32f* object, Lum8u* buffer);
LumStatus lumiDCTInv_32f_C1R(const Lum32f* src, int srcStep, Lum32f* dst, int dstStep,
                             const LumiDCTInvSpec_32f* object, Lum8u* buffer);
LumStatus lumiDCTInv_32f_C3R(const Lum32f* src, int srcStep, Lum32f* dst, int dstStep,
                             const LumiDCTInvSpec_32f* object, Lum8u* buffer);
LumStatus lumiDCTInv_32f_C4R(const Lum32f* src, int srcStep, Lum32f* dst, int dstStep,
                             const LumiDCTInvSpec_32f* object, Lum8u* buffer);

#ifdef __cplusplus
}
#endif

#endif
