/* SPDX-License-Identifier: MIT */
/* Generated from registry/transforms/dft.reg by tools/lumigen; edit that instead. */
/** @file Fourier transforms of any size. */
#ifndef LUMI_DFT_H
#define LUMI_DFT_H

#include "types.h"

#ifdef __cplusplus
extern "C" {
#endif

/**
 * Tells how much memory a transform of a complex image takes.
 *
 * Everything is as with lumiFFTGetSize_C_32fc, which tells of objects, definitions and flags, but that images have
 * any width and height. Lengths whose prime factors are small go by passes of mixed radices; others as convolutions of
 * a power of two or of another good length.
 *
 * Returns lumStatusOk (0) or, tested in this order and with nothing written:
 *   lumStatusNullPointer (-8)       a result pointer is null
 *   lumStatusBadSize (-6)           width or height is below 1
 *   lumStatusBadTransformFlag (-16) flag is not 1, 2, 4 or 8
 *   lumStatusBadSize (-6)           one of them is above 0x7ffffff, or above 0x3ffffff and has a large prime factor
 *
 *   width      columns of the images
 *   height     rows of the images
 *   flag       where results are scaled
 *   hint       selects nothing
 *   objectSize receives the bytes of an object
 *   initSize   receives the bytes of scratch that Init takes
 *   bufferSize receives the bytes of scratch that a run takes
 */
LumStatus lumiDFTGetSize_C_32fc(int width, int height, Lum32s flag, LumAlgorithmHint hint, Lum32s* objectSize,
                                Lum32s* initSize, Lum32s* bufferSize);

/**
 * Tells how much memory a transform of a real image takes.
 *
 * As lumiDFTGetSize_C_32fc, which tells what is common to all members.
 *
 *   width      columns of the images
 *   height     rows of the images
 *   flag       where results are scaled
 *   hint       selects nothing
 *   objectSize receives the bytes of an object
 *   initSize   receives the bytes of scratch that Init takes
 *   bufferSize receives the bytes of scratch that a run takes
 */
LumStatus lumiDFTGetSize_R_32f(int width, int height, Lum32s flag, LumAlgorithmHint hint, Lum32s* objectSize,
                               Lum32s* initSize, Lum32s* bufferSize);

/**
 * Makes the object of a transform of complex images.
 *
 * Returns lumStatusOk (0) or, tested in this order and with nothing written:
 *   lumStatusNullPointer (-8)   object is null
 *   the tests of sizes and flag that lumiDFTGetSize_C_32fc makes
 *   lumStatusNullPointer (-8)   scratch is null, and lumiDFTGetSize_C_32fc tells that some is needed
 *   lumStatusNoMemory (-9)      the object or the scratch is larger than 31 bits tell
 *
 *   width      columns of the images
 *   height     rows of the images
 *   flag       where results are scaled
 *   hint       selects nothing
 *   object     memory of the object
 *   scratch    scratch of this call, if some is needed
 */
LumStatus lumiDFTInit_C_32fc(int width, int height, Lum32s flag, LumAlgorithmHint hint,
                             LumiDFTSpec_C_32fc* object, Lum8u* scratch);

/**
 * Makes the object of a transform of real images.
 *
 * As lumiDFTInit_C_32fc.
 *
 *   width      columns of the images
 *   height     rows of the images
 *   flag       where results are scaled
 *   hint       selects nothing
 *   object     memory of the object
 *   scratch    scratch of this call, if some is needed
 */
LumStatus lumiDFTInit_R_32f(int width, int height, Lum32s flag, LumAlgorithmHint hint,
                            LumiDFTSpec_R_32f* object, Lum8u* scratch);

/**
 * Allocates and makes the object of a transform of complex images.
 *
 * Returns lumStatusOk (0) or, tested in this order and with nothing written:
 *   lumStatusNullPointer (-8)   object is null
 *   the tests of sizes and flag that lumiDFTGetSize_C_32fc makes
 *   lumStatusNoMemory (-9)      there is no memory for the object
 *
 *   width      columns of the images
 *   height     rows of the images
 *   flag       where results are scaled
 *   hint       selects nothing
 *   object     receives the object
 */
LumStatus lumiDFTInitAlloc_C_32fc(LumiDFTSpec_C_32fc** object, int width, int height, Lum32s flag,
                                  LumAlgorithmHint hint);

/**
 * Allocates and makes the object of a transform of real images, or of integers.
 *
 * As lumiDFTInitAlloc_C_32fc. The object of integers (32s) is made by this alone.
 *
 *   width      columns of the images
 *   height     rows of the images
 *   flag       where results are scaled
 *   hint       selects nothing
 *   object     receives the object
 */
LumStatus lumiDFTInitAlloc_R_32f(LumiDFTSpec_R_32f** object, int width, int height, Lum32s flag,
                                 LumAlgorithmHint hint);
LumStatus lumiDFTInitAlloc_R_32s(LumiDFTSpec_R_32s** object, int width, int height, Lum32s flag,
                                 LumAlgorithmHint hint);

/**
 * Releases an object that lumiDFTInitAlloc_C_32fc made.
 *
 * Returns lumStatusOk (0) or, tested in this order:
 *   lumStatusNullPointer (-8)  object is null
 *   lumStatusBadContext (-17)  it is no object of this kind
 *
 *   object     the object
 */
LumStatus lumiDFTFree_C_32fc(LumiDFTSpec_C_32fc* object);

/**
 * Releases an object that lumiDFTInitAlloc_R_32f or lumiDFTInitAlloc_R_32s made.
 *
 * As lumiDFTFree_C_32fc.
 *
 *   object     the object
 */
LumStatus lumiDFTFree_R_32f(LumiDFTSpec_R_32f* object);
LumStatus lumiDFTFree_R_32s(LumiDFTSpec_R_32s* object);

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
LumStatus lumiDFTGetBufSize_C_32fc(const LumiDFTSpec_C_32fc* object, Lum32s* bufferSize);

/**
 * Tells how much scratch a run takes.
 *
 * As lumiDFTGetBufSize_C_32fc.
 *
 *   object     the object
 *   bufferSize receives the bytes of scratch
 */
LumStatus lumiDFTGetBufSize_R_32f(const LumiDFTSpec_R_32f* object, Lum32s* bufferSize);
LumStatus lumiDFTGetBufSize_R_32s(const LumiDFTSpec_R_32s* object, Lum32s* bufferSize);

/**
 * Transforms a complex image.
 *
 * dst = the spectrum of src, by the definition of lumiDFTGetSize_C_32fc. src may be dst, otherwise the images must
 * not overlap. Scratch may lie at any address and may be null: then there is memory for the call. Runs at the same
 * time need scratch each of their own. The relative error of the whole image is below 2.5e-7 times the logarithm of width times height to base 2
 * (root of the mean of squares).
 *
 * Returns lumStatusOk (0) or, tested in this order and before anything is written:
 *   lumStatusNullPointer (-8)  object is null
 *   lumStatusBadContext (-17)  it is no object of this kind
 *   lumStatusNullPointer (-8)  src or dst is null
 *   lumStatusBadStep (-14)     a step is below 1
 *   lumStatusNoMemory (-9)     buffer is null, and there is no memory
 *
 *   object     the object
 *   buffer     scratch, as large as lumiDFTGetBufSize_C_32fc tells
 */
LumStatus lumiDFTFwd_CToC_32fc_C1IR(Lum32fc* srcDst, int srcDstStep, const LumiDFTSpec_C_32fc* object,
                                    Lum8u* buffer);
LumStatus lumiDFTFwd_CToC_32fc_C1R(const Lum32fc* src, int srcStep, Lum32fc* dst, int dstStep,
                                   const LumiDFTSpec_C_32fc* object, Lum8u* buffer);

/**
 * Transforms a spectrum back into a complex image.
 *
 * As lumiDFTFwd_CToC.
 *
 *   object     the object
 *   buffer     scratch, as large as lumiDFTGetBufSize_C_32fc tells
 */
LumStatus lumiDFTInv_CToC_32fc_C1IR(Lum32fc* srcDst, int srcDstStep, const LumiDFTSpec_C_32fc* object,
                                    Lum8u* buffer);
LumStatus lumiDFTInv_CToC_32fc_C1R(const Lum32fc* src, int srcStep, Lum32fc* dst, int dstStep,
                                   const LumiDFTSpec_C_32fc* object, Lum8u* buffer);

/**
 * Transforms a real image into a packed spectrum of the same size.
 *
 * The format is that of lumiFFTFwd_RToPack. An odd width has no column of its own for the last value of a row, which
 * is complex:
 *
 *   column  0         1         2         3         4        ...  n - 2               n - 1
 *           Re F(0)   Re F(1)   Im F(1)   Re F(2)   Im F(2)  ...  Re F((n - 1) / 2)   Im F((n - 1) / 2)
 *
 * so that the first column alone is the packed spectrum of a real one, down which an odd height is packed in the
 * same way.
 *
 * Members 8u32s round the spectrum, times 2^-scaleFactor, to the nearest integer, ties to the even one, limited to
 * the range of 32 bits: what is above becomes at least 2147483520, as floats do. Their images must not overlap.
 * For the rest see lumiDFTFwd_CToC.
 *
 *   object     the object
 *   buffer     scratch, as large as lumiDFTGetBufSize_R_32f tells
 *   buffer     scratch, as large as lumiDFTGetBufSize_R_32s tells
 */
LumStatus lumiDFTFwd_RToPack_32f_AC4IR(Lum32f* srcDst, int srcDstStep, const LumiDFTSpec_R_32f* object,
                                       Lum8u* buffer);
LumStatus lumiDFTFwd_RToPack_32f_AC4R(const Lum32f* src, int srcStep, Lum32f* dst, int dstStep,
                                      const LumiDFTSpec_R_32f* object, Lum8u* buffer);
LumStatus lumiDFTFwd_RToPack_32f_C1IR(Lum32f* srcDst, int srcDstStep, const LumiDFTSpec_R_32f* object,
                                      Lum8u* buffer);
LumStatus lumiDFTFwd_RToPack_32f_C1R(const Lum32f* src, int srcStep, Lum32f* dst, int dstStep,
                                     const LumiDFTSpec_R_32f* object, Lum8u* buffer);
LumStatus lumiDFTFwd_RToPack_32f_C3IR(Lum32f* srcDst, int srcDstStep, const LumiDFTSpec_R_32f* object,
                                      Lum8u* buffer);
LumStatus lumiDFTFwd_RToPack_32f_C3R(const Lum32f* src, int srcStep, Lum32f* dst, int dstStep,
                                     const LumiDFTSpec_R_32f* object, Lum8u* buffer);
LumStatus lumiDFTFwd_RToPack_32f_C4IR(Lum32f* srcDst, int srcDstStep, const LumiDFTSpec_R_32f* object,
                                      Lum8u* buffer);
LumStatus lumiDFTFwd_RToPack_32f_C4R(const Lum32f* src, int srcStep, Lum32f* dst, int dstStep,
                                     const LumiDFTSpec_R_32f* object, Lum8u* buffer);
LumStatus lumiDFTFwd_RToPack_8u32s_AC4RSfs(const Lum8u* src, int srcStep, Lum32s* dst, int dstStep,
                                           const LumiDFTSpec_R_32s* object, int scaleFactor, Lum8u* buffer);
LumStatus lumiDFTFwd_RToPack_8u32s_C1RSfs(const Lum8u* src, int srcStep, Lum32s* dst, int dstStep,
                                          const LumiDFTSpec_R_32s* object, int scaleFactor, Lum8u* buffer);
LumStatus lumiDFTFwd_RToPack_8u32s_C3RSfs(const Lum8u* src, int srcStep, Lum32s* dst, int dstStep,
                                          const LumiDFTSpec_R_32s* object, int scaleFactor, Lum8u* buffer);
LumStatus lumiDFTFwd_RToPack_8u32s_C4RSfs(const Lum8u* src, int srcStep, Lum32s* dst, int dstStep,
                                          const LumiDFTSpec_R_32s* object, int scaleFactor, Lum8u* buffer);

/**
 * Transforms a packed spectrum back into a real image.
 *
 * As lumiDFTFwd_RToPack, which tells of the format. Members 32s8u round the image, times 2^-scaleFactor, to the
 * nearest integer, ties to the even one, limited to 0 to 255.
 *
 *   object     the object
 *   buffer     scratch, as large as lumiDFTGetBufSize_R_32f tells
 *   buffer     scratch, as large as lumiDFTGetBufSize_R_32s tells
 */
LumStatus lumiDFTInv_PackToR_32f_AC4IR(Lum32f* srcDst, int srcDstStep, const LumiDFTSpec_R_32f* object,
                                       Lum8u* buffer);
LumStatus lumiDFTInv_PackToR_32f_AC4R(const Lum32f* src, int srcStep, Lum32f* dst, int dstStep,
                                      const LumiDFTSpec_R_32f* object, Lum8u* buffer);
LumStatus lumiDFTInv_PackToR_32f_C1IR(Lum32f* srcDst, int srcDstStep, const LumiDFTSpec_R_32f* object,
                                      Lum8u* buffer);
LumStatus lumiDFTInv_PackToR_32f_C1R(const Lum32f* src, int srcStep, Lum32f* dst, int dstStep,
                                     const LumiDFTSpec_R_32f* object, Lum8u* buffer);
LumStatus lumiDFTInv_PackToR_32f_C3IR(Lum32f* srcDst, int srcDstStep, const LumiDFTSpec_R_32f* object,
                                      Lum8u* buffer);
LumStatus lumiDFTInv_PackToR_32f_C3R(const Lum32f* src, int srcStep, Lum32f* dst, int dstStep,
                                     const LumiDFTSpec_R_32f* object, Lum8u* buffer);
LumStatus lumiDFTInv_PackToR_32f_C4IR(Lum32f* srcDst, int srcDstStep, const LumiDFTSpec_R_32f* object,
                                      Lum8u* buffer);
LumStatus lumiDFTInv_PackToR_32f_C4R(const Lum32f* src, int srcStep, Lum32f* dst, int dstStep,
                                     const LumiDFTSpec_R_32f* object, Lum8u* buffer);
LumStatus lumiDFTInv_PackToR_32s8u_AC4RSfs(const Lum32s* src, int srcStep, Lum8u* dst, int dstStep,
                                           const LumiDFTSpec_R_32s* object, int scaleFactor, Lum8u* buffer);
LumStatus lumiDFTInv_PackToR_32s8u_C1RSfs(const Lum32s* src, int srcStep, Lum8u* dst, int dstStep,
                                          const LumiDFTSpec_R_32s* object, int scaleFactor, Lum8u* buffer);
LumStatus lumiDFTInv_PackToR_32s8u_C3RSfs(const Lum32s* src, int srcStep, Lum8u* dst, int dstStep,
                                          const LumiDFTSpec_R_32s* object, int scaleFactor, Lum8u* buffer);
LumStatus lumiDFTInv_PackToR_32s8u_C4RSfs(const Lum32s* src, int srcStep, Lum8u* dst, int dstStep,
                                          const LumiDFTSpec_R_32s* object, int scaleFactor, Lum8u* buffer);

#ifdef __cplusplus
}
#endif

#endif
