/* SPDX-License-Identifier: MIT */
/* Generated from registry/transforms/wavelet.reg by tools/lumigen; edit that instead. */
/** @file Wavelet transforms. */
#ifndef LUMI_WAVELET_H
#define LUMI_WAVELET_H

#include "types.h"

#ifdef __cplusplus
extern "C" {
#endif

/**
 * Allocates the object of lumiWTFwd, which holds copies of two filters.
 *
 * A filter of n taps with anchor a has the left extent n - a - 1 and the right extent a - 1, which may be -1. Its
 * first tap lies on the sample as far to the left of an even one, or above it, as the left extent tells. After the
 * checks below lumStatusNoMemory (-9) tells that there is no memory, or that scratch would be 2^31 bytes or more;
 * nothing is written then.
 *
 *   spec       receives the object, which lives until lumiWTFwdFree
 *   lowTaps    the low-pass filter
 *   lowLength  how many taps it has
 *   lowAnchor  its anchor
 *   highTaps   the high-pass filter
 *   highLength how many taps it has
 *   highAnchor its anchor
 *
 * Returns lumStatusOk (0) or, tested in this order and before anything is written:
 *   lumStatusNullPointer (-8)  a pointer is null, plane pointers included
 *   lumStatusBadSize (-6)      a length is below 2
 *   lumStatusBadSize (-6)      highLength is refused
 *   lumStatusBadAnchor (-34)   an anchor is below 0, or not below the length
 *   lumStatusBadAnchor (-34)   highAnchor is refused
 */
LumStatus lumiWTFwdInitAlloc_32f_C1R(LumiWTFwdSpec_32f_C1R** spec, const Lum32f* lowTaps, int lowLength,
                                     int lowAnchor, const Lum32f* highTaps, int highLength, int highAnchor);
LumStatus lumiWTFwdInitAlloc_32f_C3R(LumiWTFwdSpec_32f_C3R** spec, const Lum32f* lowTaps, int lowLength,
                                     int lowAnchor, const Lum32f* highTaps, int highLength, int highAnchor);

/**
 * Gives back an object of lumiWTFwd.
 *
 * Checked in this order; on an error nothing is written:
 *   lumStatusNullPointer (-8)  spec is null
 *   lumStatusBadContext (-17)  spec is no object of lumiWTFwd
 *
 *   spec       the object; none any more afterwards
 */
LumStatus lumiWTFwdFree_32f_C1R(LumiWTFwdSpec_32f_C1R* spec);
LumStatus lumiWTFwdFree_32f_C3R(LumiWTFwdSpec_32f_C3R* spec);

/**
 * Tells the size of the scratch memory of lumiWTFwd.
 *
 * With row = the larger left extent + the larger right extent + 512 it is 4 row + (4 row rounded up to a multiple of
 * 32) bytes, and three times that of three channels.
 *
 * Checked in this order; on an error nothing is written:
 *   lumStatusNullPointer (-8)  spec is null
 *   lumStatusBadContext (-17)  spec is no object of lumiWTFwd
 *   lumStatusNullPointer (-8)  size is null
 *
 *   spec       the object
 *   size       receives the bytes
 */
LumStatus lumiWTFwdGetBufSize_C1R(const LumiWTFwdSpec_32f_C1R* spec, int* size);
LumStatus lumiWTFwdGetBufSize_C3R(const LumiWTFwdSpec_32f_C3R* spec, int* size);

/**
 * Splits an image into four bands of half its size: one level of a wavelet transform.
 *
 * For each destination pixel (x, y), a filter of n taps t with the left extent l makes of rows, and then of columns,
 *
 *   rows(i) = sum over k from 0 to n - 1 of t(k) src(i, 2y - l + k)
 *   dst(x, y) = sum over k from 0 to n - 1 of t(k) rows(2x - l + k)
 *
 * each with the filter of its direction, in Lum32f, products and sums one after the other. The image has twice the
 * width and the height of a band; beside that, the caller provides as many pixels around it as the larger left and
 * the larger right extent tell, to the left of it and above it, and to the right of it and below: they are read, and
 * no others.
 *
 * No band may overlap the image or another band. Each thread needs scratch of its own; the object is only read.
 *
 * Returns lumStatusOk (0) or, tested in this order and with nothing written:
 *   lumStatusNullPointer (-8)  spec is null
 *   lumStatusBadContext (-17)  spec is no object of lumiWTFwd
 *   lumStatusNullPointer (-8)  another pointer is null
 *   lumStatusBadSize (-6)      dstSize.width or dstSize.height is below 1
 *   lumStatusBadStep (-14)     a step is below 1
 *
 *   approx     receives the band that is low-pass both ways
 *   approxStep bytes between its rows
 *   detail1    receives the band that is high-pass from row to row, low-pass along them
 *   detail1Step bytes between its rows
 *   detail2    receives the band that is low-pass from row to row, high-pass along them
 *   detail2Step bytes between its rows
 *   detail3    receives the band that is high-pass both ways
 *   detail3Step bytes between its rows
 *   dstSize    size of a band
 *   spec       the object
 *   buffer     scratch memory of the size that lumiWTFwdGetBufSize tells, at any address
 */
LumStatus lumiWTFwd_32f_C1R(const Lum32f* src, int srcStep, Lum32f* approx, int approxStep, Lum32f* detail1,
                            int detail1Step, Lum32f* detail2, int detail2Step, Lum32f* detail3,
                            int detail3Step, LumiSize dstSize, const LumiWTFwdSpec_32f_C1R* spec,
                            Lum8u* buffer);
LumStatus lumiWTFwd_32f_C3R(const Lum32f* src, int srcStep, Lum32f* approx, int approxStep, Lum32f* detail1,
                            int detail1Step, Lum32f* detail2, int detail2Step, Lum32f* detail3,
                            int detail3Step, LumiSize dstSize, const LumiWTFwdSpec_32f_C3R* spec,
                            Lum8u* buffer);

/**
 * Allocates the object of lumiWTInv, which holds copies of two filters.
 *
 * Filters are those that each coefficient is multiplied with on its way to the samples: taps in their order, the
 * first of them n - a - 1 samples to the left of the even one that the coefficient belongs to, or above it, for n
 * taps and an anchor a. So filters that are orthonormal undo their own forward transform, with the same anchors.
 * After the checks below lumStatusNoMemory (-9) tells that there is no memory, or that scratch would be 2^31 bytes or
 * more; nothing is written then.
 *
 *   spec       receives the object, which lives until lumiWTInvFree
 *   lowTaps    the low-pass filter
 *   lowLength  how many taps it has
 *   lowAnchor  its anchor
 *   highTaps   the high-pass filter
 *   highLength how many taps it has
 *   highAnchor its anchor
 *
 * Returns lumStatusOk (0) or, tested in this order and before anything is written:
 *   lumStatusNullPointer (-8)  a pointer is null, plane pointers included
 *   lumStatusBadSize (-6)      a length is below 2
 *   lumStatusBadSize (-6)      highLength is refused
 *   lumStatusBadAnchor (-34)   an anchor is below 0, or not below the length
 *   lumStatusBadAnchor (-34)   highAnchor is refused
 */
LumStatus lumiWTInvInitAlloc_32f_C1R(LumiWTInvSpec_32f_C1R** spec, const Lum32f* lowTaps, int lowLength,
                                     int lowAnchor, const Lum32f* highTaps, int highLength, int highAnchor);
LumStatus lumiWTInvInitAlloc_32f_C3R(LumiWTInvSpec_32f_C3R** spec, const Lum32f* lowTaps, int lowLength,
                                     int lowAnchor, const Lum32f* highTaps, int highLength, int highAnchor);

/**
 * Gives back an object of lumiWTInv.
 *
 * Checked in this order; on an error nothing is written:
 *   lumStatusNullPointer (-8)  spec is null
 *   lumStatusBadContext (-17)  spec is no object of lumiWTInv
 *
 *   spec       the object; none any more afterwards
 */
LumStatus lumiWTInvFree_32f_C1R(LumiWTInvSpec_32f_C1R* spec);
LumStatus lumiWTInvFree_32f_C3R(LumiWTInvSpec_32f_C3R* spec);

/**
 * Tells the size of the scratch memory of lumiWTInv.
 *
 * With row = a / 2 + (n - a) / 2 + 256, rounded down, for a filter of n taps with anchor a, it is twice the sum of 4
 * row rounded up to a multiple of 32 for both filters, and three times that of three channels.
 *
 * Checked in this order; on an error nothing is written:
 *   lumStatusNullPointer (-8)  spec is null
 *   lumStatusBadContext (-17)  spec is no object of lumiWTInv
 *   lumStatusNullPointer (-8)  size is null
 *
 *   spec       the object
 *   size       receives the bytes
 */
LumStatus lumiWTInvGetBufSize_C1R(const LumiWTInvSpec_32f_C1R* spec, int* size);
LumStatus lumiWTInvGetBufSize_C3R(const LumiWTInvSpec_32f_C3R* spec, int* size);

/**
 * Joins four bands to an image of twice their size: one level of an inverse wavelet transform.
 *
 * For each destination pixel (x, y), a filter of n taps t with anchor a and l = n - a - 1 makes of the rows of a
 * band, and then of columns,
 *
 *   rows(i) = sum over k, where 2j = y + l - k, of t(k) band(i, j)
 *   value = sum over k, where 2j = x + l - k, of t(k) rows(j)
 *
 * each k from 0 to n - 1 for which there is such a j, ascending. Rows of approx by the low-pass filter and of detail1
 * by the high-pass filter are added, and go through the low-pass filter along rows; those of detail2 and detail3
 * likewise through the high-pass filter; the destination is the sum of the two values. All is done in Lum32f,
 * products and sums one after the other.
 *
 * Beside each band, pixels are read that the filters reach: a / 2 columns or rows before it and (n - a) / 2 behind
 * it, rounded down, as the band's filter along rows, or from row to row, has n and a. The caller provides them; no
 * others are read. The destination may overlap no band. Each thread needs scratch of its own; the object is only
 * read.
 *
 * Returns lumStatusOk (0) or, tested in this order and with nothing written:
 *   lumStatusNullPointer (-8)  spec is null
 *   lumStatusBadContext (-17)  spec is no object of lumiWTInv
 *   lumStatusNullPointer (-8)  another pointer is null
 *   lumStatusBadSize (-6)      srcSize.width or srcSize.height is below 1
 *   lumStatusBadStep (-14)     a step is below 1
 *
 *   approx     band that is low-pass both ways
 *   approxStep bytes between its rows
 *   detail1    band that is high-pass from row to row, low-pass along them
 *   detail1Step bytes between its rows
 *   detail2    band that is low-pass from row to row, high-pass along them
 *   detail2Step bytes between its rows
 *   detail3    band that is high-pass both ways
 *   detail3Step bytes between its rows
 *   srcSize    size of a band
 *   spec       the object
 *   buffer     scratch memory of the size that lumiWTInvGetBufSize tells, at any address
 */
LumStatus lumiWTInv_32f_C1R(const Lum32f* approx, int approxStep, const Lum32f* detail1, int detail1Step,
                            const Lum32f* detail2, int detail2Step, const Lum32f* detail3, int detail3Step,
                            LumiSize srcSize, Lum32f* dst, int dstStep, const LumiWTInvSpec_32f_C1R* spec,
                            Lum8u* buffer);
LumStatus lumiWTInv_32f_C3R(const Lum32f* approx, int approxStep, const Lum32f* detail1, int detail1Step,
                            const Lum32f* detail2, int detail2Step, const Lum32f* detail3, int detail3Step,
                            LumiSize srcSize, Lum32f* dst, int dstStep, const LumiWTInvSpec_32f_C3R* spec,
                            Lum8u* buffer);

#ifdef __cplusplus
}
#endif

#endif
