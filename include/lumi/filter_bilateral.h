/* SPDX-License-Identifier: MIT */
/* Generated from registry/filters/filter_bilateral.reg by tools/lumigen; edit that instead. */
/** @file Bilateral filters. */
#ifndef LUMI_FILTER_BILATERAL_H
#define LUMI_FILTER_BILATERAL_H

#include "types.h"

#ifdef __cplusplus
extern "C" {
#endif

/**
 * Tells the sizes of the object and of the buffer of lumiFilterBilateralBorder.
 *
 * Sizes are modulo 2^32: those beyond 2 GiB must be ruled out by the caller. The buffer serves runs of this ROI.
 *
 * Returns lumStatusOk (0) or, tested in this order and with nothing written:
 *   lumStatusNullPointer (-8)        specSize or bufferSize is null
 *   lumStatusBadSize (-6)            roi.width or roi.height is below 1
 *   lumStatusBadMaskSize (-33)       radius is below 1
 *   lumStatusUnsupportedMode (-9999) filterType is not 100, or distanceMethod not 2
 *   lumStatusBadDataType (-12)       dataType is not lumiData8u or lumiData32f
 *   lumStatusBadChannelCount (-53)   channels is not 1 or 3
 *
 *   filterType the weights: 100, of Gaussians
 *   roi        of the runs
 *   radius     of the disc of pixels around each one
 *   dataType   lumiData8u or lumiData32f
 *   channels   samples of a pixel: 1 or 3
 *   distanceMethod how pixels differ: 2, by the sum of their channels' absolute differences
 *   specSize   receives the bytes of the object
 *   bufferSize receives the bytes of the buffer
 */
LumStatus lumiFilterBilateralBorderGetBufferSize(int filterType, LumiSize roi, int radius,
                                                 LumiDataType dataType, int channels, int distanceMethod,
                                                 int* specSize, int* bufferSize);

/**
 * Makes the object of lumiFilterBilateralBorder: the weights of differences and of positions.
 *
 * With v = -1 / (2 * valueVariance) a difference d weighs exp(d^2 * v). Of 8u there is a table of it, for d up to 255 of
 * one channel and 767 of three, that is 0 from the first weight below 1e-10 on. With p = -1 / (2 * positionVariance) a
 * pixel at a distance of dx and dy weighs exp((dx^2 + dy^2) * p). Weights are rounded once to Lum32f. For a radius of 1 the
 * table of 8u holds products with the only weight of a position, and is again 0 from the first one below 1e-10 on. A variance
 * of 0 leaves only pixels that do not differ, or none but the one in the middle.
 *
 * The memory may have any address; its first byte tells where the object is. The object is read by any number of runs
 * at once. Statuses and their order are those of lumiFilterBilateralBorderGetBufferSize.
 *
 *   filterType the weights: 100, of Gaussians
 *   roi        of the runs
 *   radius     of the disc of pixels around each one
 *   dataType   lumiData8u or lumiData32f
 *   channels   samples of a pixel: 1 or 3
 *   distanceMethod how pixels differ: 2, by the sum of their channels' absolute differences
 *   valueVariance the square of the sigma of differences
 *   positionVariance the square of the sigma of positions, in pixels
 *   spec       memory of the object
 */
LumStatus lumiFilterBilateralBorderInit(int filterType, LumiSize roi, int radius, LumiDataType dataType,
                                        int channels, int distanceMethod, Lum32f valueVariance,
                                        Lum32f positionVariance, LumiFilterBilateralBorderSpec* spec);

/**
 * Stores for each pixel the mean of those around it, weighted by distance and by likeness.
 *
 * The pixels q of a disc, with dx^2 + dy^2 <= radius^2, weigh w(q) = position(q) * value(d), where d is the sum of the
 * absolute differences of all channels from the pixel p in the middle, which weighs 1.
 *
 * 8u:  dst = (p + sum of w(q) * q) / (1 + sum of w(q)), to the nearest integer, ties to even
 * 32f: dst = p + (sum of w(q) * (q - p)) / (1 + sum of w(q))
 *
 * Sums are of Lum32f, in the order of rows, and the same in every build; weights of 32f have an error below 2^-18 of
 * them for exponents from -5 to 0, which grows in proportion; those below 2^-100 count as 0.
 *
 * The low four bits of border say where pixels outside the ROI come from: lumiBorderConst takes borderValue, or black
 * if that is null; lumiBorderReplicate the nearest pixel; with lumiBorderInMemory they are in memory. Flags name sides
 * whose pixels are in memory with any type. Rows and columns are taken each by itself.
 *
 * Images may be misaligned in any way; zero and negative steps are taken. They must not overlap one another or the
 * buffer, nor may rows of dst overlap.
 *
 * Returns lumStatusOk (0) or, tested in this order and with nothing written:
 *   lumStatusNullPointer (-8) src, dst, spec or buffer is null
 *   lumStatusBadSize (-6)     roi.width or roi.height is below 1
 *   lumStatusBadBorder (-225) the type is none of these
 *   lumStatusBadContext (-17) spec is no object of lumiFilterBilateralBorderInit, or of another sample type or channel count
 *
 *   border     a type, and flags
 *   borderValue the pixel of a constant border
 *   spec       the object
 *   buffer     scratch memory of the size that lumiFilterBilateralBorderGetBufferSize tells
 */
LumStatus lumiFilterBilateralBorder_32f_C1R(const Lum32f* src, int srcStep, Lum32f* dst, int dstStep,
                                            LumiSize roi, LumiBorderType border, const Lum32f* borderValue,
                                            const LumiFilterBilateralBorderSpec* spec, Lum8u* buffer);
LumStatus lumiFilterBilateralBorder_32f_C3R(const Lum32f* src, int srcStep, Lum32f* dst, int dstStep,
                                            LumiSize roi, LumiBorderType border, const Lum32f* borderValue,
                                            const LumiFilterBilateralBorderSpec* spec, Lum8u* buffer);
LumStatus lumiFilterBilateralBorder_8u_C1R(const Lum8u* src, int srcStep, Lum8u* dst, int dstStep,
                                           LumiSize roi, LumiBorderType border, const Lum8u* borderValue,
                                           const LumiFilterBilateralBorderSpec* spec, Lum8u* buffer);
LumStatus lumiFilterBilateralBorder_8u_C3R(const Lum8u* src, int srcStep, Lum8u* dst, int dstStep,
                                           LumiSize roi, LumiBorderType border, const Lum8u* borderValue,
                                           const LumiFilterBilateralBorderSpec* spec, Lum8u* buffer);

/**
 * Tells the size of the object of lumiFilterBilateral.
 *
 * Returns lumStatusOk (0) or, tested in this order and with nothing written:
 *   lumStatusNullPointer (-8)        size is null
 *   lumStatusBadSize (-6)            roi.width or roi.height is below 1
 *   lumStatusBadMaskSize (-33)       a side of the mask is below 1
 *   lumStatusUnsupportedMode (-9999) filterType is not 100 or 101
 *
 *   filterType the weights: 100 or 101, both of Gaussians
 *   maskSize   sides of the mask
 *   size       receives the size in bytes
 */
LumStatus lumiFilterBilateralGetBufSize_8u_C1R(int filterType, LumiSize roi, LumiSize maskSize, int* size);

/**
 * Makes the object of lumiFilterBilateral: the weights of differences and of positions.
 *
 * A difference d weighs exp(-d^2 / (2 * valueSigma)), and 0 from
 *
 *   min(trunc(sqrt(valueSigma * 1.42 * (ln(maskSize.width * maskSize.height) + 6.3))) + 1, 256)
 *
 * on; a distance d along an axis weighs exp(-d^2 / (2 * positionSigma)). Both sigmas are squares. Weights are rounded once to
 * Lum32f. Both types of weights are the same.
 *
 * Memory of any address will do. The object is read by any number of runs at once; it may be moved.
 *
 * Returns lumStatusOk (0) or, tested in this order and with nothing written:
 *   lumStatusNullPointer (-8)        spec is null
 *   lumStatusBadMaskSize (-33)       a side of the mask is below 1
 *   lumStatusBadArgument (-5)        a sigma is not above 0, or step is below 1
 *   lumStatusUnsupportedMode (-9999) filterType is not 100 or 101
 *   lumStatusBadMaskSize (-33)       the mask reaches farther than 255 pixels: half a side, rounded down to a multiple of step
 *
 *   filterType the weights: 100 or 101, both of Gaussians
 *   maskSize   sides of the mask
 *   valueSigma the squared sigma of differences
 *   positionSigma the squared sigma of distances, in pixels
 *   step       from one pixel of the mask that counts to the next
 *   spec       memory of the object, of the size that lumiFilterBilateralGetBufSize tells
 */
LumStatus lumiFilterBilateralInit_8u_C1R(int filterType, LumiSize maskSize, Lum32f valueSigma,
                                         Lum32f positionSigma, int step, LumiFilterBilateralSpec* spec);

/**
 * Stores for each pixel the mean of a grid of those around it, weighted by distance and by likeness.
 *
 * dst = (sum of w * q) / (sum of w), to the nearest integer, ties to even, over the pixels q at dx and dy, multiples of
 * the object's step up to (maskSize.width - 1) / 2 and (maskSize.height - 1) / 2 on both sides, with w the product of the
 * weights of |q - p|, |dx| and |dy|. Sums are of Lum32f, in the order of rows, after the pixel p in the middle. A
 * mask beyond that of the object counts as far as the object's.
 *
 * The pixels around the ROI that the grid covers must be in memory. Images may be misaligned in any way; they must not
 * overlap, and the rows of dst must not overlap one another.
 *
 * Returns lumStatusOk (0) or, tested in this order and with nothing written:
 *   lumStatusNullPointer (-8) src, dst or spec is null
 *   lumStatusBadSize (-6)     a side of roi or of maskSize is below 1
 *   lumStatusBadStep (-14)    a step is below 1
 *   lumStatusBadContext (-17) spec is no object of lumiFilterBilateralInit
 *
 *   maskSize   sides of the mask
 *   spec       the object
 */
LumStatus lumiFilterBilateral_8u_C1R(const Lum8u* src, int srcStep, Lum8u* dst, int dstStep, LumiSize roi,
                                     LumiSize maskSize, const LumiFilterBilateralSpec* spec);

#ifdef __cplusplus
}
#endif

#endif
