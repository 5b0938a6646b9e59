/* SPDX-License-Identifier: MIT */
/* Generated from registry/statistics/dot_prod.reg by tools/lumigen; edit that instead. */
/** @file Dot products. */
#ifndef LUMI_DOT_PROD_H
#define LUMI_DOT_PROD_H

#include "types.h"

#ifdef __cplusplus
extern "C" {
#endif

/**
 * Adds up the products of the samples of two images, for each channel.
 *
 * product = sum of src1(x, y) * src2(x, y) over the ROI, one for C1, three for C3 and AC4 (alpha is not looked
 * at), four for C4. Products and sums are made in doubles, in an order of their own that neither the
 * machine nor the place of the images changes; of 8-bit and 16-bit integers they are exact as long as
 * no sum reaches 2^53.
 *
 * Floats of C1 and C3 are multiplied and added up in single precision, and only with hint 2 in doubles;
 * those of C4 and AC4 always are in doubles.
 *
 * Steps may be negative. The results are stored at the end, in memory that is no part of an image.
 *
 *   product    receives the sums
 *   hint       2 for sums in doubles, any other value for fast ones
 *
 * Returns lumStatusOk (0) or, tested in this order and before anything is written:
 *   lumStatusNullPointer (-8)  a pointer is null, plane pointers included
 *   lumStatusBadSize (-6)      roi.width or roi.height is below 1
 *   lumStatusBadSize (-6)      a step is 0
 */
LumStatus lumiDotProd_16s64f_AC4R(const Lum16s* src1, int src1Step, const Lum16s* src2, int src2Step,
                                  LumiSize roi, Lum64f product[3]);
LumStatus lumiDotProd_16s64f_C1R(const Lum16s* src1, int src1Step, const Lum16s* src2, int src2Step,
                                 LumiSize roi, Lum64f* product);
LumStatus lumiDotProd_16s64f_C3R(const Lum16s* src1, int src1Step, const Lum16s* src2, int src2Step,
                                 LumiSize roi, Lum64f product[3]);
LumStatus lumiDotProd_16s64f_C4R(const Lum16s* src1, int src1Step, const Lum16s* src2, int src2Step,
                                 LumiSize roi, Lum64f product[4]);
LumStatus lumiDotProd_16u64f_AC4R(const Lum16u* src1, int src1Step, const Lum16u* src2, int src2Step,
                                  LumiSize roi, Lum64f product[3]);
LumStatus lumiDotProd_16u64f_C1R(const Lum16u* src1, int src1Step, const Lum16u* src2, int src2Step,
                                 LumiSize roi, Lum64f* product);
LumStatus lumiDotProd_16u64f_C3R(const Lum16u* src1, int src1Step, const Lum16u* src2, int src2Step,
                                 LumiSize roi, Lum64f product[3]);
LumStatus lumiDotProd_16u64f_C4R(const Lum16u* src1, int src1Step, const Lum16u* src2, int src2Step,
                                 LumiSize roi, Lum64f product[4]);
LumStatus lumiDotProd_32f64f_AC4R(const Lum32f* src1, int src1Step, const Lum32f* src2, int src2Step,
                                  LumiSize roi, Lum64f product[3], int hint);
LumStatus lumiDotProd_32f64f_C1R(const Lum32f* src1, int src1Step, const Lum32f* src2, int src2Step,
                                 LumiSize roi, Lum64f* product, int hint);
LumStatus lumiDotProd_32f64f_C3R(const Lum32f* src1, int src1Step, const Lum32f* src2, int src2Step,
                                 LumiSize roi, Lum64f product[3], int hint);
LumStatus lumiDotProd_32f64f_C4R(const Lum32f* src1, int src1Step, const Lum32f* src2, int src2Step,
                                 LumiSize roi, Lum64f product[4], int hint);
LumStatus lumiDotProd_32s64f_AC4R(const Lum32s* src1, int src1Step, const Lum32s* src2, int src2Step,
                                  LumiSize roi, Lum64f product[3]);
LumStatus lumiDotProd_32s64f_C1R(const Lum32s* src1, int src1Step, const Lum32s* src2, int src2Step,
                                 LumiSize roi, Lum64f* product);
LumStatus lumiDotProd_32s64f_C3R(const Lum32s* src1, int src1Step, const Lum32s* src2, int src2Step,
                                 LumiSize roi, Lum64f product[3]);
LumStatus lumiDotProd_32s64f_C4R(const Lum32s* src1, int src1Step, const Lum32s* src2, int src2Step,
                                 LumiSize roi, Lum64f product[4]);
LumStatus lumiDotProd_32u64f_AC4R(const Lum32u* src1, int src1Step, const Lum32u* src2, int src2Step,
                                  LumiSize roi, Lum64f product[3]);
LumStatus lumiDotProd_32u64f_C1R(const Lum32u* src1, int src1Step, const Lum32u* src2, int src2Step,
                                 LumiSize roi, Lum64f* product);
LumStatus lumiDotProd_32u64f_C3R(const Lum32u* src1, int src1Step, const Lum32u* src2, int src2Step,
                                 LumiSize roi, Lum64f product[3]);
LumStatus lumiDotProd_32u64f_C4R(const Lum32u* src1, int src1Step, const Lum32u* src2, int src2Step,
                                 LumiSize roi, Lum64f product[4]);
LumStatus lumiDotProd_8s64f_AC4R(const Lum8s* src1, int src1Step, const Lum8s* src2, int src2Step,
                                 LumiSize roi, Lum64f product[3]);
LumStatus lumiDotProd_8s64f_C1R(const Lum8s* src1, int src1Step, const Lum8s* src2, int src2Step,
                                LumiSize roi, Lum64f* product);
LumStatus lumiDotProd_8s64f_C3R(const Lum8s* src1, int src1Step, const Lum8s* src2, int src2Step,
                                LumiSize roi, Lum64f product[3]);
LumStatus lumiDotProd_8s64f_C4R(const Lum8s* src1, int src1Step, const Lum8s* src2, int src2Step,
                                LumiSize roi, Lum64f product[4]);
LumStatus lumiDotProd_8u64f_AC4R(const Lum8u* src1, int src1Step, const Lum8u* src2, int src2Step,
                                 LumiSize roi, Lum64f product[3]);
LumStatus lumiDotProd_8u64f_C1R(const Lum8u* src1, int src1Step, const Lum8u* src2, int src2Step,
                                LumiSize roi, Lum64f* product);
LumStatus lumiDotProd_8u64f_C3R(const Lum8u* src1, int src1Step, const Lum8u* src2, int src2Step,
                                LumiSize roi, Lum64f product[3]);
LumStatus lumiDotProd_8u64f_C4R(const Lum8u* src1, int src1Step, const Lum8u* src2, int src2Step,
                                LumiSize roi, Lum64f product[4]);

/**
 * Adds up weighted rows.
 *
 * dst[x] = rows[0][x] * weights[0] + rows[1][x] * weights[1] + ... for x = 0 ... length - 1, each product and
 * each sum rounded to the type of the rows, in this order.
 *
 * dst must not overlap a row. Rows and weights may be misaligned in any way. After the other checks, a row
 * that is null gives lumStatusNullPointer (-8).
 *
 *   rows       the rows, of length samples each
 *   weights    a weight for each row
 *   count      number of rows
 *   dst        receives length sums
 *   length     samples of a row
 *
 * Returns lumStatusOk (0) or, tested in this order and before anything is written:
 *   lumStatusNullPointer (-8)  a pointer is null, plane pointers included
 *   lumStatusBadSize (-6)      count is below 1
 *   lumStatusBadSize (-6)      length is below 1
 */
LumStatus lumiDotProdCol_32f_L2(const Lum32f* const* rows, const Lum32f* weights, int count, Lum32f* dst,
                                int length);
LumStatus lumiDotProdCol_64f_L2(const Lum64f* const* rows, const Lum64f* weights, int count, Lum64f* dst,
                                int length);

#ifdef __cplusplus
}
#endif

#endif
