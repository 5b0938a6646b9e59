/* SPDX-License-Identifier: MIT */
/* Generated from registry/transforms/fft.reg by tools/lumigen; edit that instead. */
/** @file Fast Fourier transforms. */
#ifndef LUMI_FFT_H
#define LUMI_FFT_H

#include "types.h"

#ifdef __cplusplus
extern "C" {
#endif

/**
 * Tells how much memory a transform of a complex image takes.
 *
 * An object is made once for a size of images, by an Init in memory of the caller's or by an InitAlloc, which a
 * Free releases, and then only read, so that any number of threads may run with it at once. Images are
 * 2^orderX samples wide and 2^orderY high. With n the width or the height,
 *
 *   forward  F(k) = sum of f(x) exp(-2 pi i k x / n)
 *   inverse  f(x) = sum of F(k) exp(+2 pi i k x / n)
 *
 * along each row and down each column, times a factor that the flag tells:
 *
 *   flag     1      2      4            8
 *   forward  1 / n  1      1 / sqrt(n)  1
 *   inverse  1      1 / n  1 / sqrt(n)  1
 *
 * The hint selects nothing. The blocks may start at any address. An object holds pointers into itself: it must be
 * neither moved nor copied. Sizes that 31 bits do not tell are told as 2^31 - 1, and runs have no memory then.
 *
 * The transforms of rows and of columns are tested one after the other. Returns lumStatusOk (0) or, tested in this
 * order and with nothing written:
 *   lumStatusNullPointer (-8)       a result pointer is null
 *   for orderX, then for orderY
 *     lumStatusBadFftOrder (-15)      it is below 0 or above 30
 *     lumStatusBadTransformFlag (-16) flag is not 1, 2, 4 or 8
 *     lumStatusBadFftOrder (-15)      it is above 28; of real images 29 for orderX
 *
 *   orderX     logarithm of the width
 *   orderY     logarithm of the height
 *   flag       where results are scaled
 *   hint       selects nothing
 *   objectSize receives the bytes of an object
 *   initSize   receives the bytes of scratch that Init takes
 *   bufferSize receives the bytes of scratch that a run takes
 */
LumStatus lumiFFTGetSize_C_32fc(int orderX, int orderY, Lum32s flag, LumAlgorithmHint hint,
                                Lum32s* objectSize, Lum32s* initSize, Lum32s* bufferSize);

/**
 * Tells how much memory a transform of a real image takes.
 *
 * As lumiFFTGetSize_C_32fc, which tells what is common to all members.
 *
 *   orderX     logarithm of the width
 *   orderY     logarithm of the height
 *   flag       where results are scaled
 *   hint       selects nothing
 *   objectSize receives the bytes of an object
 *   initSize   receives the bytes of scratch that Init takes
 *   bufferSize receives the bytes of scratch that a run takes
 */
LumStatus lumiFFTGetSize_R_32f(int orderX, int orderY, Lum32s flag, LumAlgorithmHint hint, Lum32s* objectSize,
                               Lum32s* initSize, Lum32s* bufferSize);

/**
 * Makes the object of a transform of complex images.
 *
 * Returns lumStatusOk (0) or, tested in this order and with nothing written:
 *   lumStatusBadFftOrder (-15)  an order is above 30
 *   lumStatusNullPointer (-8)   object is null
 *   the tests of orders and flag that lumiFFTGetSize_C_32fc makes
 *   lumStatusNullPointer (-8)   an order is above 10, and scratch is null
 *
 *   orderX     logarithm of the width
 *   orderY     logarithm of the height
 *   flag       where results are scaled
 *   hint       selects nothing
 *   object     memory of the object
 *   scratch    scratch of this call; none is needed for orders up to 10
 */
LumStatus lumiFFTInit_C_32fc(int orderX, int orderY, Lum32s flag, LumAlgorithmHint hint,
                             LumiFFTSpec_C_32fc* object, Lum8u* scratch);

/**
 * Makes the object of a transform of real images.
 *
 * As lumiFFTInit_C_32fc.
 *
 *   orderX     logarithm of the width
 *   orderY     logarithm of the height
 *   flag       where results are scaled
 *   hint       selects nothing
 *   object     memory of the object
 *   scratch    scratch of this call; none is needed for orders up to 10
 */
LumStatus lumiFFTInit_R_32f(int orderX, int orderY, Lum32s flag, LumAlgorithmHint hint,
                            LumiFFTSpec_R_32f* object, Lum8u* scratch);

/**
 * Allocates and makes the object of a transform of complex images.
 *
 * Returns lumStatusOk (0) or, tested in this order and with nothing written:
 *   lumStatusNullPointer (-8)   object is null
 *   the tests of orders and flag that lumiFFTGetSize_C_32fc makes
 *   lumStatusNoMemory (-9)      there is no memory for the object
 *
 *   orderX     logarithm of the width
 *   orderY     logarithm of the height
 *   flag       where results are scaled
 *   hint       selects nothing
 *   object     receives the object
 */
LumStatus lumiFFTInitAlloc_C_32fc(LumiFFTSpec_C_32fc** object, int orderX, int orderY, Lum32s flag,
                                  LumAlgorithmHint hint);

/**
 * Allocates and makes the object of a transform of real images, or of integers.
 *
 * As lumiFFTInitAlloc_C_32fc. The object of integers (32s) is made by this alone.
 *
 *   orderX     logarithm of the width
 *   orderY     logarithm of the height
 *   flag       where results are scaled
 *   hint       selects nothing
 *   object     receives the object
 */
LumStatus lumiFFTInitAlloc_R_32f(LumiFFTSpec_R_32f** object, int orderX, int orderY, Lum32s flag,
                                 LumAlgorithmHint hint);
LumStatus lumiFFTInitAlloc_R_32s(LumiFFTSpec_R_32s** object, int orderX, int orderY, Lum32s flag,
                                 LumAlgorithmHint hint);

/**
 * Releases an object that lumiFFTInitAlloc_C_32fc made.
 *
 * Returns lumStatusOk (0) or, tested in this order:
 *   lumStatusNullPointer (-8)  object is null
 *   lumStatusBadContext (-17)  it is no object of this kind
 *
 *   object     the object
 */
LumStatus lumiFFTFree_C_32fc(LumiFFTSpec_C_32fc* object);

/**
 * Releases an object that lumiFFTInitAlloc_R_32f or lumiFFTInitAlloc_R_32s made.
 *
 * As lumiFFTFree_C_32fc.
 *
 *   object     the object
 */
LumStatus lumiFFTFree_R_32f(LumiFFTSpec_R_32f* object);
LumStatus lumiFFTFree_R_32s(LumiFFTSpec_R_32s* object);

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
LumStatus lumiFFTGetBufSize_C_32fc(const LumiFFTSpec_C_32fc* object, Lum32s* bufferSize);

/**
 * Tells how much scratch a run takes.
 *
 * As lumiFFTGetBufSize_C_32fc.
 *
 *   object     the object
 *   bufferSize receives the bytes of scratch
 */
LumStatus lumiFFTGetBufSize_R_32f(const LumiFFTSpec_R_32f* object, Lum32s* bufferSize);
LumStatus lumiFFTGetBufSize_R_32s(const LumiFFTSpec_R_32s* object, Lum32s* bufferSize);

/**
 * Transforms a complex image.
 *
 * dst = the spectrum of src, by the definition of lumiFFTGetSize_C_32fc. src may be dst, otherwise the images must
 * not overlap. Scratch may lie at any address and may be null: then there is memory for the call. Runs at the same
 * time need scratch each of their own. The relative error of the whole image is below 2.5e-7 times orderX + orderY
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
 *   buffer     scratch, as large as lumiFFTGetBufSize_C_32fc tells
 */
LumStatus lumiFFTFwd_CToC_32fc_C1IR(Lum32fc* srcDst, int srcDstStep, const LumiFFTSpec_C_32fc* object,
                                    Lum8u* buffer);
LumStatus lumiFFTFwd_CToC_32fc_C1R(const Lum32fc* src, int srcStep, Lum32fc* dst, int dstStep,
                                   const LumiFFTSpec_C_32fc* object, Lum8u* buffer);

/**
 * Transforms a spectrum back into a complex image.
 *
 * As lumiFFTFwd_CToC.
 *
 *   object     the object
 *   buffer     scratch, as large as lumiFFTGetBufSize_C_32fc tells
 */
LumStatus lumiFFTInv_CToC_32fc_C1IR(Lum32fc* srcDst, int srcDstStep, const LumiFFTSpec_C_32fc* object,
                                    Lum8u* buffer);
LumStatus lumiFFTInv_CToC_32fc_C1R(const Lum32fc* src, int srcStep, Lum32fc* dst, int dstStep,
                                   const LumiFFTSpec_C_32fc* object, Lum8u* buffer);

/**
 * Transforms a real image into a packed spectrum of the same size.
 *
 * Of a row of n samples only the spectrum's values 0 to n / 2 are stored, and of these only the parts that are not
 * always zero:
 *
 *   column  0         1         2         3         4        ...  n - 1
 *           Re F(0)   Re F(1)   Im F(1)   Re F(2)   Im F(2)  ...  Re F(n / 2)
 *
 * The first column and the last one, F(v, 0) and F(v, n / 2) for all rows v, are spectra of real columns, and are
 * packed down the column in the same way: rows 2 j - 1 and 2 j hold the real and the imaginary part of F(j, 0), row
 * 0 the real F(0, 0) and the last row F(height / 2, 0). All other columns are complex, in pairs. An image of
 * one column holds a packed column, one of one row a packed row. Each channel is an image of its own; AC4 transforms
 * three and leaves the destination's alpha as it was.
 *
 * Members 8u32s round the spectrum, times 2^-scaleFactor, to the nearest integer, ties to the even one, limited to
 * the range of 32 bits: what is above becomes at least 2147483520, as floats do. Their images must not overlap.
 * For the rest see lumiFFTFwd_CToC.
 *
 *   object     the object
 *   buffer     scratch, as large as lumiFFTGetBufSize_R_32f tells
 *   buffer     scratch, as large as lumiFFTGetBufSize_R_32s tells
 */
LumStatus lumiFFTFwd_RToPack_32f_AC4IR(Lum32f* srcDst, int srcDstStep, const LumiFFTSpec_R_32f* object,
                                       Lum8u* buffer);
LumStatus lumiFFTFwd_RToPack_32f_AC4R(const Lum32f* src, int srcStep, Lum32f* dst, int dstStep,
                                      const LumiFFTSpec_R_32f* object, Lum8u* buffer);
LumStatus lumiFFTFwd_RToPack_32f_C1IR(Lum32f* srcDst, int srcDstStep, const LumiFFTSpec_R_32f* object,
                                      Lum8u* buffer);
LumStatus lumiFFTFwd_RToPack_32f_C1R(const Lum32f* src, int srcStep, Lum32f* dst, int dstStep,
                                     const LumiFFTSpec_R_32f* object, Lum8u* buffer);
LumStatus lumiFFTFwd_RToPack_32f_C3IR(Lum32f* srcDst, int srcDstStep, const LumiFFTSpec_R_32f* object,
                                      Lum8u* buffer);
LumStatus lumiFFTFwd_RToPack_32f_C3R(const Lum32f* src, int srcStep, Lum32f* dst, int dstStep,
                                     const LumiFFTSpec_R_32f* object, Lum8u* buffer);
LumStatus lumiFFTFwd_RToPack_32f_C4IR(Lum32f* srcDst, int srcDstStep, const LumiFFTSpec_R_32f* object,
                                      Lum8u* buffer);
LumStatus lumiFFTFwd_RToPack_32f_C4R(const Lum32f* src, int srcStep, Lum32f* dst, int dstStep,
                                     const LumiFFTSpec_R_32f* object, Lum8u* buffer);
LumStatus lumiFFTFwd_RToPack_8u32s_AC4RSfs(const Lum8u* src, int srcStep, Lum32s* dst, int dstStep,
                                           const LumiFFTSpec_R_32s* object, int scaleFactor, Lum8u* buffer);
LumStatus lumiFFTFwd_RToPack_8u32s_C1RSfs(const Lum8u* src, int srcStep, Lum32s* dst, int dstStep,
                                          const LumiFFTSpec_R_32s* object, int scaleFactor, Lum8u* buffer);
LumStatus lumiFFTFwd_RToPack_8u32s_C3RSfs(const Lum8u* src, int srcStep, Lum32s* dst, int dstStep,
                                          const LumiFFTSpec_R_32s* object, int scaleFactor, Lum8u* buffer);
LumStatus lumiFFTFwd_RToPack_8u32s_C4RSfs(const Lum8u* src, int srcStep, Lum32s* dst, int dstStep,
                                          const LumiFFTSpec_R_32s* object, int scaleFactor, Lum8u* buffer);

/**
 * Transforms a packed spectrum back into a real image.
 *
 * As lumiFFTFwd_RToPack, which tells of the format. Members 32s8u round the image, times 2^-scaleFactor, to the
 * nearest integer, ties to the even one, limited to 0 to 255.
 *
 *   object     the object
 *   buffer     scratch, as large as lumiFFTGetBufSize_R_32f tells
 *   buffer     scratch, as large as lumiFFTGetBufSize_R_32s tells
 */
LumStatus lumiFFTInv_PackToR_32f_AC4IR(Lum32f* srcDst, int srcDstStep, const LumiFFTSpec_R_32f* object,
                                       Lum8u* buffer);
LumStatus lumiFFTInv_PackToR_32f_AC4R(const Lum32f* src, int srcStep, Lum32f* dst, int dstStep,
                                      const LumiFFTSpec_R_32f* object, Lum8u* buffer);
LumStatus lumiFFTInv_PackToR_32f_C1IR(Lum32f* srcDst, int srcDstStep, const LumiFFTSpec_R_32f* object,
                                      Lum8u* buffer);
LumStatus lumiFFTInv_PackToR_32f_C1R(const Lum32f* src, int srcStep, Lum32f* dst, int dstStep,
                                     const LumiFFTSpec_R_32f* object, Lum8u* buffer);
LumStatus lumiFFTInv_PackToR_32f_C3IR(Lum32f* srcDst, int srcDstStep, const LumiFFTSpec_R_32f* object,
                                      Lum8u* buffer);
LumStatus lumiFFTInv_PackToR_32f_C3R(const Lum32f* src, int srcStep, Lum32f* dst, int dstStep,
                                     const LumiFFTSpec_R_32f* object, Lum8u* buffer);
LumStatus lumiFFTInv_PackToR_32f_C4IR(Lum32f* srcDst, int srcDstStep, const LumiFFTSpec_R_32f* object,
                                      Lum8u* buffer);
LumStatus lumiFFTInv_PackToR_32f_C4R(const Lum32f* src, int srcStep, Lum32f* dst, int dstStep,
                                     const LumiFFTSpec_R_32f* object, Lum8u* buffer);
LumStatus lumiFFTInv_PackToR_32s8u_AC4RSfs(const Lum32s* src, int srcStep, Lum8u* dst, int dstStep,
                                           const LumiFFTSpec_R_32s* object, int scaleFactor, Lum8u* buffer);
LumStatus lumiFFTInv_PackToR_32s8u_C1RSfs(const Lum32s* src, int srcStep, Lum8u* dst, int dstStep,
                                          const LumiFFTSpec_R_32s* object, int scaleFactor, Lum8u* buffer);
LumStatus lumiFFTInv_PackToR_32s8u_C3RSfs(const Lum32s* src, int srcStep, Lum8u* dst, int dstStep,
                                          const LumiFFTSpec_R_32s* object, int scaleFactor, Lum8u* buffer);
LumStatus lumiFFTInv_PackToR_32s8u_C4RSfs(const Lum32s* src, int srcStep, Lum8u* dst, int dstStep,
                                          const LumiFFTSpec_R_32s* object, int scaleFactor, Lum8u* buffer);

#ifdef __cplusplus
}
#endif

#endif
