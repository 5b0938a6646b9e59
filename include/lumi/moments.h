/* SPDX-License-Identifier: MIT */
/* Generated from registry/statistics/moments.reg by tools/lumigen; edit that instead. */
/** @file Moments. */
#ifndef LUMI_MOMENTS_H
#define LUMI_MOMENTS_H

#include "types.h"

#ifdef __cplusplus
extern "C" {
#endif

/**
 * Tells the size of a state of moments: 400 bytes.
 *
 * Checked in this order; on an error nothing is written:
 *   lumStatusNullPointer (-8)  size is null
 *
 *   hint       not used
 *   size       receives the size, in bytes
 *
 * Returns lumStatusOk (0) or, tested in this order and before anything is written:
 *   lumStatusNullPointer (-8)  a pointer is null, plane pointers included
 */
LumStatus lumiMomentGetStateSize_64f(LumAlgorithmHint hint, int* size);
LumStatus lumiMomentGetStateSize_64s(LumAlgorithmHint hint, int* size);

/**
 * Makes a state of moments in the caller's memory, at any address.
 *
 * A state has no moments until lumiMoments64f or lumiMoments64s, for states of _64s, has scanned an image.
 *
 *   state      memory of 400 bytes
 *   hint       kept in the state, and not used
 *
 * Returns lumStatusOk (0) or, tested in this order and before anything is written:
 *   lumStatusNullPointer (-8)  a pointer is null, plane pointers included
 */
LumStatus lumiMomentInit_64f(LumiMomentState* state, LumAlgorithmHint hint);
LumStatus lumiMomentInit_64s(LumiMomentState* state, LumAlgorithmHint hint);

/**
 * Allocates a state of moments, which lives until lumiMomentFree.
 *
 * After the check below lumStatusNoMemory (-9) tells that there is no memory; nothing is written then.
 *
 *   state      receives the state
 *   hint       kept in the state, and not used
 *
 * Returns lumStatusOk (0) or, tested in this order and before anything is written:
 *   lumStatusNullPointer (-8)  a pointer is null, plane pointers included
 */
LumStatus lumiMomentInitAlloc_64f(LumiMomentState** state, LumAlgorithmHint hint);
LumStatus lumiMomentInitAlloc_64s(LumiMomentState** state, LumAlgorithmHint hint);

/**
 * Gives back a state that lumiMomentInitAlloc has allocated.
 *
 * Checked in this order; on an error nothing is written:
 *   lumStatusNullPointer (-8)  state is null
 *   lumStatusBadContext (-17)  state is none of this type
 *
 *   state      the state; none any more afterwards
 */
LumStatus lumiMomentFree_64f(LumiMomentState* state);
LumStatus lumiMomentFree_64s(LumiMomentState* state);

/**
 * Computes all moments of an image up to the third order, as floats.
 *
 * The moment of the orders p and q is the sum of x^p * y^q * src(x, y), for p + q up to 3; x and y count from the
 * first pixel of the ROI. Each channel has its own; of AC4, the three of colour. The moments that the state had are
 * replaced.
 *
 * Moments of integers are exact up to 2^53. Beyond, and of 32f, there are at most 5 * (width + height) + 200 roundings
 * to Lum64f of sums of the products' magnitudes.
 *
 * Checked in this order; on an error nothing is written:
 *   lumStatusNullPointer (-8)  src or state is null
 *   lumStatusBadContext (-17)  state is no state of 64f
 *   lumStatusBadStep (-14)     the step is below 1
 *   lumStatusBadSize (-6)      roi.width or roi.height is below 1
 *   lumStatusStepTooSmall (-37) the step is below the bytes of a row
 *
 *   state      receives the moments
 */
LumStatus lumiMoments64f_16u_AC4R(const Lum16u* src, int srcStep, LumiSize roi, LumiMomentState* state);
LumStatus lumiMoments64f_16u_C1R(const Lum16u* src, int srcStep, LumiSize roi, LumiMomentState* state);
LumStatus lumiMoments64f_16u_C3R(const Lum16u* src, int srcStep, LumiSize roi, LumiMomentState* state);
LumStatus lumiMoments64f_32f_AC4R(const Lum32f* src, int srcStep, LumiSize roi, LumiMomentState* state);
LumStatus lumiMoments64f_32f_C1R(const Lum32f* src, int srcStep, LumiSize roi, LumiMomentState* state);
LumStatus lumiMoments64f_32f_C3R(const Lum32f* src, int srcStep, LumiSize roi, LumiMomentState* state);
LumStatus lumiMoments64f_8u_AC4R(const Lum8u* src, int srcStep, LumiSize roi, LumiMomentState* state);
LumStatus lumiMoments64f_8u_C1R(const Lum8u* src, int srcStep, LumiSize roi, LumiMomentState* state);
LumStatus lumiMoments64f_8u_C3R(const Lum8u* src, int srcStep, LumiSize roi, LumiMomentState* state);

/**
 * Computes all moments of an image up to the third order, as integers.
 *
 * As lumiMoments64f, exactly, in a state of 64s; moments beyond 64 bits are modulo 2^64.
 *
 * Checked in this order; on an error nothing is written:
 *   lumStatusNullPointer (-8)  src or state is null
 *   lumStatusBadContext (-17)  state is no state of 64s
 *   lumStatusBadStep (-14)     the step is below 1
 *   lumStatusBadSize (-6)      roi.width or roi.height is below 1
 *   lumStatusStepTooSmall (-37) the step is below the bytes of a row
 *
 *   state      receives the moments
 */
LumStatus lumiMoments64s_16u_AC4R(const Lum16u* src, int srcStep, LumiSize roi, LumiMomentState* state);
LumStatus lumiMoments64s_16u_C1R(const Lum16u* src, int srcStep, LumiSize roi, LumiMomentState* state);
LumStatus lumiMoments64s_16u_C3R(const Lum16u* src, int srcStep, LumiSize roi, LumiMomentState* state);
LumStatus lumiMoments64s_8u_AC4R(const Lum8u* src, int srcStep, LumiSize roi, LumiMomentState* state);
LumStatus lumiMoments64s_8u_C1R(const Lum8u* src, int srcStep, LumiSize roi, LumiMomentState* state);
LumStatus lumiMoments64s_8u_C3R(const Lum8u* src, int srcStep, LumiSize roi, LumiMomentState* state);

/**
 * Tells the moment about a point.
 *
 * The sum of (x + offset.x)^m * (y + offset.y)^n * src(x, y), computed in Lum64f from the moments of the state. As
 * Lum64s it is divided by 2^scaleFactor, cut off towards zero and limited to 64 bits.
 *
 * Checked in this order; on an error nothing is written:
 *   lumStatusNullPointer (-8)  state or value is null
 *   lumStatusBadContext (-17)  state is none of this type
 *   lumStatusBadSize (-6)      m + n is above 3
 *   lumStatusBadChannel (-47)  channel is below 0 or not below the image's count; before any scan always
 * With a negative order nothing is written either, and the status is lumStatusOk (0).
 *
 *   state      the state
 *   m          order along x
 *   n          order along y
 *   channel    of the image
 *   offset     what is added to x and y
 *   value      receives the moment
 *   scaleFactor the moment is divided by 2^scaleFactor
 */
LumStatus lumiGetSpatialMoment_64f(const LumiMomentState* state, int m, int n, int channel, LumiPoint offset,
                                   Lum64f* value);
LumStatus lumiGetSpatialMoment_64s(const LumiMomentState* state, int m, int n, int channel, LumiPoint offset,
                                   Lum64s* value, int scaleFactor);

/**
 * Tells the moment about the centre of gravity.
 *
 * The sum of (x - xc)^m * (y - yc)^n * src(x, y), with xc = m10 / m00 and yc = m01 / m00, computed in Lum64f from the
 * moments of the state. As Lum64s it is divided by 2^scaleFactor, cut off towards zero and limited to 64 bits.
 *
 * Checked in this order; on an error nothing is written:
 *   lumStatusNullPointer (-8)  state or value is null
 *   lumStatusBadContext (-17)  state is none of this type
 *   lumStatusBadSize (-6)      m + n is above 3
 *   lumStatusBadChannel (-47)  channel is below 0 or not below the image's count; before any scan always
 *   lumStatusZeroMoment (-20)  m00 is 0, or as Lum64f not above 2^-52 in magnitude
 * With a negative order nothing is written either, and the status is lumStatusOk (0).
 *
 *   state      the state
 *   m          order along x
 *   n          order along y
 *   channel    of the image
 *   value      receives the moment
 *   scaleFactor the moment is divided by 2^scaleFactor
 */
LumStatus lumiGetCentralMoment_64f(const LumiMomentState* state, int m, int n, int channel, Lum64f* value);
LumStatus lumiGetCentralMoment_64s(const LumiMomentState* state, int m, int n, int channel, Lum64s* value,
                                   int scaleFactor);

/**
 * Tells the moment about a point, made independent of the image's total.
 *
 * The moment of lumiGetSpatialMoment times m00^(-(m + n + 2) / 2). As Lum64s the moment is cut off before it is
 * multiplied, and the product is divided by 2^scaleFactor, cut off towards zero and limited to 64 bits.
 *
 * Statuses as of lumiGetCentralMoment.
 *
 *   state      the state
 *   m          order along x
 *   n          order along y
 *   channel    of the image
 *   offset     what is added to x and y
 *   value      receives the moment
 *   scaleFactor the moment is divided by 2^scaleFactor
 */
LumStatus lumiGetNormalizedSpatialMoment_64f(const LumiMomentState* state, int m, int n, int channel,
                                             LumiPoint offset, Lum64f* value);
LumStatus lumiGetNormalizedSpatialMoment_64s(const LumiMomentState* state, int m, int n, int channel,
                                             LumiPoint offset, Lum64s* value, int scaleFactor);

/**
 * Tells the moment about the centre of gravity, made independent of the image's total.
 *
 * The moment of lumiGetCentralMoment times m00^(-(m + n + 2) / 2). As Lum64s the moment is cut off before it is
 * multiplied, and the product is divided by 2^scaleFactor, cut off towards zero and limited to 64 bits.
 *
 * Statuses as of lumiGetCentralMoment.
 *
 *   state      the state
 *   m          order along x
 *   n          order along y
 *   channel    of the image
 *   value      receives the moment
 *   scaleFactor the moment is divided by 2^scaleFactor
 */
LumStatus lumiGetNormalizedCentralMoment_64f(const LumiMomentState* state, int m, int n, int channel,
                                             Lum64f* value);
LumStatus lumiGetNormalizedCentralMoment_64s(const LumiMomentState* state, int m, int n, int channel,
                                             Lum64s* value, int scaleFactor);

/**
 * Tells the seven moments of Hu, which neither shifts nor turns nor other sizes change.
 *
 * They follow from the normalized central moments, in Lum64f throughout, but for the fifth: where the sixth and the
 * seventh have n30 + n12, the first of its brackets has n12 + n03. As Lum64s each is divided by 2^scaleFactor, cut off
 * towards zero and limited to 64 bits.
 *
 * Checked in this order; on an error nothing is written:
 *   lumStatusNullPointer (-8)  state or values is null
 *   lumStatusBadContext (-17)  state is none of this type
 *   lumStatusBadChannel (-47)  channel is below 0 or not below the image's count; before any scan always
 *   lumStatusZeroMoment (-20)  m00 is 0, or as Lum64f not above 2^-52 in magnitude
 *
 *   state      the state
 *   channel    of the image
 *   values     receives seven numbers
 *   scaleFactor the moments are divided by 2^scaleFactor
 */
LumStatus lumiGetHuMoments_64f(const LumiMomentState* state, int channel, Lum64f* values);
LumStatus lumiGetHuMoments_64s(const LumiMomentState* state, int channel, Lum64s* values, int scaleFactor);

#ifdef __cplusplus
}
#endif

#endif
