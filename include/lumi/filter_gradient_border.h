/* SPDX-License-Identifier: MIT */
/* Generated from registry/filters/filter_gradient_border.reg by tools/lumigen; edit that instead. */
/** @file Gradient filters with border. */
#ifndef LUMI_FILTER_GRADIENT_BORDER_H
#define LUMI_FILTER_GRADIENT_BORDER_H

#include "types.h"

#ifdef __cplusplus
extern "C" {
#endif

/**
 * Applies the Sobel kernel of horizontal lines, with a border.
 *
 * The kernel is that of lumiFilterSobelHoriz. Sums are exact; those of 16s are limited to the type, those of 8u fit, those
 * of 32f are Lum32f. Nothing but the ROI is read, unless the border says so.
 *
 * The type (the low four bits of border) says where pixels outside the ROI come from: lumiBorderConst takes
 * borderValue, lumiBorderReplicate the nearest edge pixel, lumiBorderMirror and lumiBorderMirrorEdge a reflection,
 * which goes to and fro in an image that is smaller than the window; with lumiBorderInMemory they are in memory.
 * Flags name sides whose pixels are in memory with any type. Rows and columns are taken each by itself: beyond
 * a corner a pixel is the constant if either of them is.
 *
 * Images may be misaligned in any way; zero and negative steps are taken. They must not overlap one another or
 * the buffer, nor may rows of dst overlap.
 *
 * Returns lumStatusOk (0) or, tested in this order and with nothing written:
 *   lumStatusNullPointer (-8)  src, dst or buffer is null
 *   lumStatusBadSize (-6)      roi.width or roi.height is below 1
 *   lumStatusOddStep (-108)    a step is no multiple of its samples' bytes
 *   lumStatusBadMaskSize (-33) maskSize is not lumiMask3x3 or lumiMask5x5
 *   lumStatusBadArgument (-5)  border is above 255, or its type is none of these
 *
 *   border     a type, and flags
 *   borderValue the constant
 *   buffer     scratch memory of the size that the query of this operation tells
 *   maskSize   the window: lumiMask3x3 or lumiMask5x5
 */
LumStatus lumiFilterSobelHorizBorder_16s_C1R(const Lum16s* src, int srcStep, Lum16s* dst, int dstStep,
                                             LumiSize roi, LumiMaskSize maskSize, LumiBorderType border,
                                             Lum16s borderValue, Lum8u* buffer);
LumStatus lumiFilterSobelHorizBorder_32f_C1R(const Lum32f* src, int srcStep, Lum32f* dst, int dstStep,
                                             LumiSize roi, LumiMaskSize maskSize, LumiBorderType border,
                                             Lum32f borderValue, Lum8u* buffer);
LumStatus lumiFilterSobelHorizBorder_8u16s_C1R(const Lum8u* src, int srcStep, Lum16s* dst, int dstStep,
                                               LumiSize roi, LumiMaskSize maskSize, LumiBorderType border,
                                               Lum8u borderValue, Lum8u* buffer);

/**
 * Tells the size of the buffer that lumiFilterSobelHorizBorder needs.
 *
 * The buffer serves images that are not larger than area. Sizes are modulo 2^32.
 *
 * Returns lumStatusOk (0) or, tested in this order and with nothing written:
 *   lumStatusNullPointer (-8)      bufferSize is null
 *   lumStatusBadSize (-6)          a side of area is below 1
 *   lumStatusBadMaskSize (-33)     maskSize is not lumiMask3x3 or lumiMask5x5
 *   lumStatusBadDataType (-12)     the types are not 8u to 16s, 16s to 16s or 32f to 32f
 *   lumStatusBadChannelCount (-53) channels is not 1
 *
 *   area       the largest ROI
 *   maskSize   the window: lumiMask3x3 or lumiMask5x5
 *   srcType    of the source: lumiData8u, lumiData16s or lumiData32f
 *   dstType    of the destination: lumiData16s or lumiData32f
 *   channels   samples of a pixel
 *   bufferSize receives the bytes
 */
LumStatus lumiFilterSobelHorizBorderGetBufferSize(LumiSize area, LumiMaskSize maskSize, LumiDataType srcType,
                                                  LumiDataType dstType, int channels, int* bufferSize);

/**
 * Applies the Sobel kernel of vertical lines, with a border.
 *
 * The kernel is that of lumiFilterSobelVert. Types, border, memory and statuses are as in lumiFilterSobelHorizBorder;
 * maskSize is lumiMask3x3 or lumiMask5x5.
 *
 *   border     a type, and flags
 *   borderValue the constant
 *   buffer     scratch memory of the size that the query of this operation tells
 *   maskSize   the window: lumiMask3x3 or lumiMask5x5
 */
LumStatus lumiFilterSobelVertBorder_16s_C1R(const Lum16s* src, int srcStep, Lum16s* dst, int dstStep,
                                            LumiSize roi, LumiMaskSize maskSize, LumiBorderType border,
                                            Lum16s borderValue, Lum8u* buffer);
LumStatus lumiFilterSobelVertBorder_32f_C1R(const Lum32f* src, int srcStep, Lum32f* dst, int dstStep,
                                            LumiSize roi, LumiMaskSize maskSize, LumiBorderType border,
                                            Lum32f borderValue, Lum8u* buffer);
LumStatus lumiFilterSobelVertBorder_8u16s_C1R(const Lum8u* src, int srcStep, Lum16s* dst, int dstStep,
                                              LumiSize roi, LumiMaskSize maskSize, LumiBorderType border,
                                              Lum8u borderValue, Lum8u* buffer);

/**
 * Tells the size of the buffer that lumiFilterSobelVertBorder needs.
 *
 * The buffer serves images that are not larger than area. Sizes are modulo 2^32.
 *
 * Returns lumStatusOk (0) or, tested in this order and with nothing written:
 *   lumStatusNullPointer (-8)      bufferSize is null
 *   lumStatusBadSize (-6)          a side of area is below 1
 *   lumStatusBadMaskSize (-33)     maskSize is not lumiMask3x3 or lumiMask5x5
 *   lumStatusBadDataType (-12)     the types are not 8u to 16s, 16s to 16s or 32f to 32f
 *   lumStatusBadChannelCount (-53) channels is not 1
 *
 *   area       the largest ROI
 *   maskSize   the window: lumiMask3x3 or lumiMask5x5
 *   srcType    of the source: lumiData8u, lumiData16s or lumiData32f
 *   dstType    of the destination: lumiData16s or lumiData32f
 *   channels   samples of a pixel
 *   bufferSize receives the bytes
 */
LumStatus lumiFilterSobelVertBorderGetBufferSize(LumiSize area, LumiMaskSize maskSize, LumiDataType srcType,
                                                 LumiDataType dstType, int channels, int* bufferSize);

/**
 * Applies the Prewitt kernel of horizontal lines, with a border.
 *
 * The kernel is that of lumiFilterPrewittHoriz. Types, border, memory and statuses are as in lumiFilterSobelHorizBorder;
 * maskSize is lumiMask3x3.
 *
 *   border     a type, and flags
 *   borderValue the constant
 *   buffer     scratch memory of the size that the query of this operation tells
 *   maskSize   the window: lumiMask3x3
 */
LumStatus lumiFilterPrewittHorizBorder_16s_C1R(const Lum16s* src, int srcStep, Lum16s* dst, int dstStep,
                                               LumiSize roi, LumiMaskSize maskSize, LumiBorderType border,
                                               Lum16s borderValue, Lum8u* buffer);
LumStatus lumiFilterPrewittHorizBorder_32f_C1R(const Lum32f* src, int srcStep, Lum32f* dst, int dstStep,
                                               LumiSize roi, LumiMaskSize maskSize, LumiBorderType border,
                                               Lum32f borderValue, Lum8u* buffer);
LumStatus lumiFilterPrewittHorizBorder_8u16s_C1R(const Lum8u* src, int srcStep, Lum16s* dst, int dstStep,
                                                 LumiSize roi, LumiMaskSize maskSize, LumiBorderType border,
                                                 Lum8u borderValue, Lum8u* buffer);

/**
 * Tells the size of the buffer that lumiFilterPrewittHorizBorder needs.
 *
 * The buffer serves images that are not larger than area. Sizes are modulo 2^32.
 *
 * Returns lumStatusOk (0) or, tested in this order and with nothing written:
 *   lumStatusBadMaskSize (-33)     maskSize is not lumiMask3x3
 *   lumStatusNullPointer (-8)      bufferSize is null
 *   lumStatusBadSize (-6)          a side of area is below 1
 *   lumStatusBadDataType (-12)     the types are not 8u to 16s, 16s to 16s or 32f to 32f
 *   lumStatusBadChannelCount (-53) channels is not 1
 *
 *   area       the largest ROI
 *   maskSize   the window: lumiMask3x3
 *   srcType    of the source: lumiData8u, lumiData16s or lumiData32f
 *   dstType    of the destination: lumiData16s or lumiData32f
 *   channels   samples of a pixel
 *   bufferSize receives the bytes
 */
LumStatus lumiFilterPrewittHorizBorderGetBufferSize(LumiSize area, LumiMaskSize maskSize,
                                                    LumiDataType srcType, LumiDataType dstType, int channels,
                                                    int* bufferSize);

/**
 * Applies the Prewitt kernel of vertical lines, with a border.
 *
 * The kernel is that of lumiFilterPrewittVert. Types, border, memory and statuses are as in lumiFilterSobelHorizBorder;
 * maskSize is lumiMask3x3.
 *
 *   border     a type, and flags
 *   borderValue the constant
 *   buffer     scratch memory of the size that the query of this operation tells
 *   maskSize   the window: lumiMask3x3
 */
LumStatus lumiFilterPrewittVertBorder_16s_C1R(const Lum16s* src, int srcStep, Lum16s* dst, int dstStep,
                                              LumiSize roi, LumiMaskSize maskSize, LumiBorderType border,
                                              Lum16s borderValue, Lum8u* buffer);
LumStatus lumiFilterPrewittVertBorder_32f_C1R(const Lum32f* src, int srcStep, Lum32f* dst, int dstStep,
                                              LumiSize roi, LumiMaskSize maskSize, LumiBorderType border,
                                              Lum32f borderValue, Lum8u* buffer);
LumStatus lumiFilterPrewittVertBorder_8u16s_C1R(const Lum8u* src, int srcStep, Lum16s* dst, int dstStep,
                                                LumiSize roi, LumiMaskSize maskSize, LumiBorderType border,
                                                Lum8u borderValue, Lum8u* buffer);

/**
 * Tells the size of the buffer that lumiFilterPrewittVertBorder needs.
 *
 * The buffer serves images that are not larger than area. Sizes are modulo 2^32.
 *
 * Returns lumStatusOk (0) or, tested in this order and with nothing written:
 *   lumStatusBadMaskSize (-33)     maskSize is not lumiMask3x3
 *   lumStatusNullPointer (-8)      bufferSize is null
 *   lumStatusBadSize (-6)          a side of area is below 1
 *   lumStatusBadDataType (-12)     the types are not 8u to 16s, 16s to 16s or 32f to 32f
 *   lumStatusBadChannelCount (-53) channels is not 1
 *
 *   area       the largest ROI
 *   maskSize   the window: lumiMask3x3
 *   srcType    of the source: lumiData8u, lumiData16s or lumiData32f
 *   dstType    of the destination: lumiData16s or lumiData32f
 *   channels   samples of a pixel
 *   bufferSize receives the bytes
 */
LumStatus lumiFilterPrewittVertBorderGetBufferSize(LumiSize area, LumiMaskSize maskSize, LumiDataType srcType,
                                                   LumiDataType dstType, int channels, int* bufferSize);

/**
 * Applies the Scharr kernel of horizontal lines, with a border.
 *
 * The kernel is that of lumiFilterScharrHoriz. Types, border, memory and statuses are as in lumiFilterSobelHorizBorder;
 * maskSize is lumiMask3x3.
 *
 *   border     a type, and flags
 *   borderValue the constant
 *   buffer     scratch memory of the size that the query of this operation tells
 *   maskSize   the window: lumiMask3x3
 */
LumStatus lumiFilterScharrHorizMaskBorder_16s_C1R(const Lum16s* src, int srcStep, Lum16s* dst, int dstStep,
                                                  LumiSize roi, LumiMaskSize maskSize, LumiBorderType border,
                                                  Lum16s borderValue, Lum8u* buffer);
LumStatus lumiFilterScharrHorizMaskBorder_32f_C1R(const Lum32f* src, int srcStep, Lum32f* dst, int dstStep,
                                                  LumiSize roi, LumiMaskSize maskSize, LumiBorderType border,
                                                  Lum32f borderValue, Lum8u* buffer);
LumStatus lumiFilterScharrHorizMaskBorder_8u16s_C1R(const Lum8u* src, int srcStep, Lum16s* dst, int dstStep,
                                                    LumiSize roi, LumiMaskSize maskSize,
                                                    LumiBorderType border, Lum8u borderValue, Lum8u* buffer);

/**
 * Tells the size of the buffer that lumiFilterScharrHorizMaskBorder needs.
 *
 * The buffer serves images that are not larger than area. Sizes are modulo 2^32.
 *
 * Returns lumStatusOk (0) or, tested in this order and with nothing written:
 *   lumStatusBadMaskSize (-33)     maskSize is not lumiMask3x3
 *   lumStatusNullPointer (-8)      bufferSize is null
 *   lumStatusBadSize (-6)          a side of area is below 1
 *   lumStatusBadDataType (-12)     the types are not 8u to 16s, 16s to 16s or 32f to 32f
 *   lumStatusBadChannelCount (-53) channels is not 1
 *
 *   area       the largest ROI
 *   maskSize   the window: lumiMask3x3
 *   srcType    of the source: lumiData8u, lumiData16s or lumiData32f
 *   dstType    of the destination: lumiData16s or lumiData32f
 *   channels   samples of a pixel
 *   bufferSize receives the bytes
 */
LumStatus lumiFilterScharrHorizMaskBorderGetBufferSize(LumiSize area, LumiMaskSize maskSize,
                                                       LumiDataType srcType, LumiDataType dstType,
                                                       int channels, int* bufferSize);

/**
 * Applies the Scharr kernel of vertical lines, with a border.
 *
 * The kernel is that of lumiFilterScharrVert. Types, border, memory and statuses are as in lumiFilterSobelHorizBorder;
 * maskSize is lumiMask3x3.
 *
 *   border     a type, and flags
 *   borderValue the constant
 *   buffer     scratch memory of the size that the query of this operation tells
 *   maskSize   the window: lumiMask3x3
 */
LumStatus lumiFilterScharrVertMaskBorder_16s_C1R(const Lum16s* src, int srcStep, Lum16s* dst, int dstStep,
                                                 LumiSize roi, LumiMaskSize maskSize, LumiBorderType border,
                                                 Lum16s borderValue, Lum8u* buffer);
LumStatus lumiFilterScharrVertMaskBorder_32f_C1R(const Lum32f* src, int srcStep, Lum32f* dst, int dstStep,
                                                 LumiSize roi, LumiMaskSize maskSize, LumiBorderType border,
                                                 Lum32f borderValue, Lum8u* buffer);
LumStatus lumiFilterScharrVertMaskBorder_8u16s_C1R(const Lum8u* src, int srcStep, Lum16s* dst, int dstStep,
                                                   LumiSize roi, LumiMaskSize maskSize, LumiBorderType border,
                                                   Lum8u borderValue, Lum8u* buffer);

/**
 * Tells the size of the buffer that lumiFilterScharrVertMaskBorder needs.
 *
 * The buffer serves images that are not larger than area. Sizes are modulo 2^32.
 *
 * Returns lumStatusOk (0) or, tested in this order and with nothing written:
 *   lumStatusBadMaskSize (-33)     maskSize is not lumiMask3x3
 *   lumStatusNullPointer (-8)      bufferSize is null
 *   lumStatusBadSize (-6)          a side of area is below 1
 *   lumStatusBadDataType (-12)     the types are not 8u to 16s, 16s to 16s or 32f to 32f
 *   lumStatusBadChannelCount (-53) channels is not 1
 *
 *   area       the largest ROI
 *   maskSize   the window: lumiMask3x3
 *   srcType    of the source: lumiData8u, lumiData16s or lumiData32f
 *   dstType    of the destination: lumiData16s or lumiData32f
 *   channels   samples of a pixel
 *   bufferSize receives the bytes
 */
LumStatus lumiFilterScharrVertMaskBorderGetBufferSize(LumiSize area, LumiMaskSize maskSize,
                                                      LumiDataType srcType, LumiDataType dstType,
                                                      int channels, int* bufferSize);

/**
 * Subtracts the pixel above and to the left from each pixel, with a border.
 *
 * The kernel is that of lumiFilterRobertsDown. Types, border, memory and statuses are as in lumiFilterSobelHorizBorder;
 * maskSize is lumiMask3x3.
 *
 *   border     a type, and flags
 *   borderValue the constant
 *   buffer     scratch memory of the size that the query of this operation tells
 *   maskSize   the window: lumiMask3x3
 */
LumStatus lumiFilterRobertsDownBorder_16s_C1R(const Lum16s* src, int srcStep, Lum16s* dst, int dstStep,
                                              LumiSize roi, LumiMaskSize maskSize, LumiBorderType border,
                                              Lum16s borderValue, Lum8u* buffer);
LumStatus lumiFilterRobertsDownBorder_32f_C1R(const Lum32f* src, int srcStep, Lum32f* dst, int dstStep,
                                              LumiSize roi, LumiMaskSize maskSize, LumiBorderType border,
                                              Lum32f borderValue, Lum8u* buffer);
LumStatus lumiFilterRobertsDownBorder_8u16s_C1R(const Lum8u* src, int srcStep, Lum16s* dst, int dstStep,
                                                LumiSize roi, LumiMaskSize maskSize, LumiBorderType border,
                                                Lum8u borderValue, Lum8u* buffer);

/**
 * Tells the size of the buffer that lumiFilterRobertsDownBorder needs.
 *
 * The buffer serves images that are not larger than area. Sizes are modulo 2^32.
 *
 * Returns lumStatusOk (0) or, tested in this order and with nothing written:
 *   lumStatusBadMaskSize (-33)     maskSize is not lumiMask3x3
 *   lumStatusNullPointer (-8)      bufferSize is null
 *   lumStatusBadSize (-6)          a side of area is below 1
 *   lumStatusBadDataType (-12)     the types are not 8u to 16s, 16s to 16s or 32f to 32f
 *   lumStatusBadChannelCount (-53) channels is not 1
 *
 *   area       the largest ROI
 *   maskSize   the window: lumiMask3x3
 *   srcType    of the source: lumiData8u, lumiData16s or lumiData32f
 *   dstType    of the destination: lumiData16s or lumiData32f
 *   channels   samples of a pixel
 *   bufferSize receives the bytes
 */
LumStatus lumiFilterRobertsDownBorderGetBufferSize(LumiSize area, LumiMaskSize maskSize, LumiDataType srcType,
                                                   LumiDataType dstType, int channels, int* bufferSize);

/**
 * Subtracts the pixel above and to the right from each pixel, with a border.
 *
 * The kernel is that of lumiFilterRobertsUp. Types, border, memory and statuses are as in lumiFilterSobelHorizBorder;
 * maskSize is lumiMask3x3.
 *
 *   border     a type, and flags
 *   borderValue the constant
 *   buffer     scratch memory of the size that the query of this operation tells
 *   maskSize   the window: lumiMask3x3
 */
LumStatus lumiFilterRobertsUpBorder_16s_C1R(const Lum16s* src, int srcStep, Lum16s* dst, int dstStep,
                                            LumiSize roi, LumiMaskSize maskSize, LumiBorderType border,
                                            Lum16s borderValue, Lum8u* buffer);
LumStatus lumiFilterRobertsUpBorder_32f_C1R(const Lum32f* src, int srcStep, Lum32f* dst, int dstStep,
                                            LumiSize roi, LumiMaskSize maskSize, LumiBorderType border,
                                            Lum32f borderValue, Lum8u* buffer);
LumStatus lumiFilterRobertsUpBorder_8u16s_C1R(const Lum8u* src, int srcStep, Lum16s* dst, int dstStep,
                                              LumiSize roi, LumiMaskSize maskSize, LumiBorderType border,
                                              Lum8u borderValue, Lum8u* buffer);

/**
 * Tells the size of the buffer that lumiFilterRobertsUpBorder needs.
 *
 * The buffer serves images that are not larger than area. Sizes are modulo 2^32.
 *
 * Returns lumStatusOk (0) or, tested in this order and with nothing written:
 *   lumStatusBadMaskSize (-33)     maskSize is not lumiMask3x3
 *   lumStatusNullPointer (-8)      bufferSize is null
 *   lumStatusBadSize (-6)          a side of area is below 1
 *   lumStatusBadDataType (-12)     the types are not 8u to 16s, 16s to 16s or 32f to 32f
 *   lumStatusBadChannelCount (-53) channels is not 1
 *
 *   area       the largest ROI
 *   maskSize   the window: lumiMask3x3
 *   srcType    of the source: lumiData8u, lumiData16s or lumiData32f
 *   dstType    of the destination: lumiData16s or lumiData32f
 *   channels   samples of a pixel
 *   bufferSize receives the bytes
 */
LumStatus lumiFilterRobertsUpBorderGetBufferSize(LumiSize area, LumiMaskSize maskSize, LumiDataType srcType,
                                                 LumiDataType dstType, int channels, int* bufferSize);

/**
 * Tells the size of a buffer for lumiFilterSobelHoriz of other interfaces.
 *
 * No operation of this library takes it. Of 32f it is what lumiFilterSobelHorizBorderGetBufferSize tells.
 *
 *   maskSize   the window: lumiMask3x3 or lumiMask5x5
 *   bufferSize receives the bytes
 *
 * Returns lumStatusOk (0) or, tested in this order and before anything is written:
 *   lumStatusNullPointer (-8)  a pointer is null, plane pointers included
 *   lumStatusBadSize (-6)      roi.width or roi.height is below 1
 *   lumStatusBadMaskSize (-33) maskSize is refused
 */
LumStatus lumiFilterSobelHorizGetBufferSize_32f_C1R(LumiSize roi, LumiMaskSize maskSize, int* bufferSize);
LumStatus lumiFilterSobelHorizGetBufferSize_8u16s_C1R(LumiSize roi, LumiMaskSize maskSize, int* bufferSize);

/**
 * Tells the size of a buffer for lumiFilterSobelVert of other interfaces.
 *
 * No operation of this library takes it. Of 32f it is what lumiFilterSobelVertBorderGetBufferSize tells.
 *
 *   maskSize   the window: lumiMask3x3 or lumiMask5x5
 *   bufferSize receives the bytes
 *
 * Returns lumStatusOk (0) or, tested in this order and before anything is written:
 *   lumStatusNullPointer (-8)  a pointer is null, plane pointers included
 *   lumStatusBadSize (-6)      roi.width or roi.height is below 1
 *   lumStatusBadMaskSize (-33) maskSize is refused
 */
LumStatus lumiFilterSobelVertGetBufferSize_32f_C1R(LumiSize roi, LumiMaskSize maskSize, int* bufferSize);
LumStatus lumiFilterSobelVertGetBufferSize_8u16s_C1R(LumiSize roi, LumiMaskSize maskSize, int* bufferSize);

#ifdef __cplusplus
}
#endif

#endif
