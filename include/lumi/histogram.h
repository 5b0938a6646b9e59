/* SPDX-License-Identifier: MIT */
/* Generated from registry/statistics/histogram.reg by tools/lumigen; edit that instead. */
/** @file Histograms. */
#ifndef LUMI_HISTOGRAM_H
#define LUMI_HISTOGRAM_H

#include "types.h"

#ifdef __cplusplus
extern "C" {
#endif

/**
 * Counts the samples of each channel in bins between levels.
 *
 * count levels make count - 1 bins: histogram[k] = how many samples there are with
 *
 *   levels[k] <= src(x, y) < levels[k + 1]
 *
 * so that samples below the first level, and from the last one on, are counted nowhere, nor is NaN. Levels
 * need not ascend: each bin counts by its own two, and one whose levels do not ascend is empty. Counts are
 * modulo 2^32. Each channel has levels and a histogram of its own: with one channel the arrays stand alone, with
 * more the arguments are arrays of them, three for AC4, whose alpha is not looked at. All of them may be
 * misaligned, and must not overlap one another or the image.
 *
 * 16u and 16s count by a table of 65536 entries, scratch of the call, where a channel has more levels than the
 * number that belongs to its count of pixels:
 *
 *   pixels from  6400  9216  12544  16384  20736  25600  36864
 *   levels        134    78     50     34     22      6      2
 *
 * and, where its levels do not ascend strictly,
 *
 *   pixels from  1024  2304  4096  6400  9216  12544  16384  20736  25600  30976  43264
 *   levels        434   222   126    78    50     34     22     14     10      6      2
 *
 * C1 returns lumStatusNoMemory (-9) after all others where there is no memory for it.
 * C3, C4 and AC4 return lumStatusOk (0) or, tested in this order and before anything is written:
 *   lumStatusNullPointer (-8)  src, histogram, levels or count is null
 *   for one channel after the other
 *     lumStatusNullPointer (-8)  its histogram or its levels are null
 *     lumStatusTooFewHistogramLevels (-107) its count is below 2
 *   lumStatusBadSize (-6)      roi.width or roi.height is below 1
 *   lumStatusBadStep (-14)     the step is below 1
 *   lumStatusNoMemory (-9)     there is no scratch memory
 *
 *   histogram  receives count - 1 numbers
 *   levels     where the bins begin and end
 *   count      how many levels
 *
 * Returns lumStatusOk (0) or, tested in this order and before anything is written (8u 16u 16s 32f: C1):
 *   lumStatusNullPointer (-8)  a pointer is null, plane pointers included
 *   lumStatusBadSize (-6)      roi.width or roi.height is below 1
 *   lumStatusBadStep (-14)     a step is below 1
 *   lumStatusTooFewHistogramLevels (-107) count is below 2
 */
LumStatus lumiHistogramRange_16s_AC4R(const Lum16s* src, int srcStep, LumiSize roi,
                                      Lum32s* const histogram[3], const Lum32s* const levels[3],
                                      const int count[3]);
LumStatus lumiHistogramRange_16s_C1R(const Lum16s* src, int srcStep, LumiSize roi, Lum32s* histogram,
                                     const Lum32s* levels, int count);
LumStatus lumiHistogramRange_16s_C3R(const Lum16s* src, int srcStep, LumiSize roi, Lum32s* const histogram[3],
                                     const Lum32s* const levels[3], const int count[3]);
LumStatus lumiHistogramRange_16s_C4R(const Lum16s* src, int srcStep, LumiSize roi, Lum32s* const histogram[4],
                                     const Lum32s* const levels[4], const int count[4]);
LumStatus lumiHistogramRange_16u_AC4R(const Lum16u* src, int srcStep, LumiSize roi,
                                      Lum32s* const histogram[3], const Lum32s* const levels[3],
                                      const int count[3]);
LumStatus lumiHistogramRange_16u_C1R(const Lum16u* src, int srcStep, LumiSize roi, Lum32s* histogram,
                                     const Lum32s* levels, int count);
LumStatus lumiHistogramRange_16u_C3R(const Lum16u* src, int srcStep, LumiSize roi, Lum32s* const histogram[3],
                                     const Lum32s* const levels[3], const int count[3]);
LumStatus lumiHistogramRange_16u_C4R(const Lum16u* src, int srcStep, LumiSize roi, Lum32s* const histogram[4],
                                     const Lum32s* const levels[4], const int count[4]);
LumStatus lumiHistogramRange_32f_AC4R(const Lum32f* src, int srcStep, LumiSize roi,
                                      Lum32s* const histogram[3], const Lum32f* const levels[3],
                                      const int count[3]);
LumStatus lumiHistogramRange_32f_C1R(const Lum32f* src, int srcStep, LumiSize roi, Lum32s* histogram,
                                     const Lum32f* levels, int count);
LumStatus lumiHistogramRange_32f_C3R(const Lum32f* src, int srcStep, LumiSize roi, Lum32s* const histogram[3],
                                     const Lum32f* const levels[3], const int count[3]);
LumStatus lumiHistogramRange_32f_C4R(const Lum32f* src, int srcStep, LumiSize roi, Lum32s* const histogram[4],
                                     const Lum32f* const levels[4], const int count[4]);
LumStatus lumiHistogramRange_8u_AC4R(const Lum8u* src, int srcStep, LumiSize roi, Lum32s* const histogram[3],
                                     const Lum32s* const levels[3], const int count[3]);
LumStatus lumiHistogramRange_8u_C1R(const Lum8u* src, int srcStep, LumiSize roi, Lum32s* histogram,
                                    const Lum32s* levels, int count);
LumStatus lumiHistogramRange_8u_C3R(const Lum8u* src, int srcStep, LumiSize roi, Lum32s* const histogram[3],
                                    const Lum32s* const levels[3], const int count[3]);
LumStatus lumiHistogramRange_8u_C4R(const Lum8u* src, int srcStep, LumiSize roi, Lum32s* const histogram[4],
                                    const Lum32s* const levels[4], const int count[4]);

/**
 * Counts the samples of each channel in bins that divide a range evenly, and tells the levels.
 *
 * The range from lower to upper becomes count levels: levels[0] = lower, and each of the others lies
 * (upper - lower) / (count - 1) above the one before it, as integers divide; of a remainder, one each goes to the
 * first bins, which are wider by 1 (narrower, and by as many, where the range is negative). Bins are counted as
 * lumiHistogramRange does, and with the same scratch, but in C1 of 16u and 16s that has no remainder and fewer than
 * 65536 pixels: there a sample between the first level and the last goes to the bin
 *
 *   (int)((float)(src(x, y) - levels[0]) / (float)(levels[1] - levels[0]))
 *
 * which rounds where levels are beyond 2^24, and no scratch is needed.
 *
 * C1 returns lumStatusNoMemory (-9) after all others where there is no scratch memory.
 * C3, C4 and AC4 return lumStatusOk (0) or, tested in this order and before anything is written:
 *   lumStatusNullPointer (-8)  src, histogram, levels, count, lower or upper is null
 *   for one channel after the other
 *     lumStatusNullPointer (-8)  its histogram or its levels are null
 *     lumStatusTooFewHistogramLevels (-107) its count is below 2
 *   lumStatusBadSize (-6)      roi.width or roi.height is below 1
 *   lumStatusBadStep (-14)     the step is below 1
 *   lumStatusNoMemory (-9)     there is no scratch memory
 * Where there is no memory, the levels are written all the same.
 *
 *   histogram  receives count - 1 numbers
 *   levels     receives count levels
 *   count      how many levels
 *   lower      the first level
 *   upper      the last level
 *
 * Returns lumStatusOk (0) or, tested in this order and before anything is written (8u 16u 16s: C1):
 *   lumStatusNullPointer (-8)  a pointer is null, plane pointers included
 *   lumStatusBadSize (-6)      roi.width or roi.height is below 1
 *   lumStatusBadStep (-14)     a step is below 1
 *   lumStatusTooFewHistogramLevels (-107) count is below 2
 */
LumStatus lumiHistogramEven_16s_AC4R(const Lum16s* src, int srcStep, LumiSize roi, Lum32s* const histogram[3],
                                     Lum32s* const levels[3], const int count[3], const Lum32s lower[3],
                                     const Lum32s upper[3]);
LumStatus lumiHistogramEven_16s_C1R(const Lum16s* src, int srcStep, LumiSize roi, Lum32s* histogram,
                                    Lum32s* levels, int count, Lum32s lower, Lum32s upper);
LumStatus lumiHistogramEven_16s_C3R(const Lum16s* src, int srcStep, LumiSize roi, Lum32s* const histogram[3],
                                    Lum32s* const levels[3], const int count[3], const Lum32s lower[3],
                                    const Lum32s upper[3]);
LumStatus lumiHistogramEven_16s_C4R(const Lum16s* src, int srcStep, LumiSize roi, Lum32s* const histogram[4],
                                    Lum32s* const levels[4], const int count[4], const Lum32s lower[4],
                                    const Lum32s upper[4]);
LumStatus lumiHistogramEven_16u_AC4R(const Lum16u* src, int srcStep, LumiSize roi, Lum32s* const histogram[3],
                                     Lum32s* const levels[3], const int count[3], const Lum32s lower[3],
                                     const Lum32s upper[3]);
LumStatus lumiHistogramEven_16u_C1R(const Lum16u* src, int srcStep, LumiSize roi, Lum32s* histogram,
                                    Lum32s* levels, int count, Lum32s lower, Lum32s upper);
LumStatus lumiHistogramEven_16u_C3R(const Lum16u* src, int srcStep, LumiSize roi, Lum32s* const histogram[3],
                                    Lum32s* const levels[3], const int count[3], const Lum32s lower[3],
                                    const Lum32s upper[3]);
LumStatus lumiHistogramEven_16u_C4R(const Lum16u* src, int srcStep, LumiSize roi, Lum32s* const histogram[4],
                                    Lum32s* const levels[4], const int count[4], const Lum32s lower[4],
                                    const Lum32s upper[4]);
LumStatus lumiHistogramEven_8u_AC4R(const Lum8u* src, int srcStep, LumiSize roi, Lum32s* const histogram[3],
                                    Lum32s* const levels[3], const int count[3], const Lum32s lower[3],
                                    const Lum32s upper[3]);
LumStatus lumiHistogramEven_8u_C1R(const Lum8u* src, int srcStep, LumiSize roi, Lum32s* histogram,
                                   Lum32s* levels, int count, Lum32s lower, Lum32s upper);
LumStatus lumiHistogramEven_8u_C3R(const Lum8u* src, int srcStep, LumiSize roi, Lum32s* const histogram[3],
                                   Lum32s* const levels[3], const int count[3], const Lum32s lower[3],
                                   const Lum32s upper[3]);
LumStatus lumiHistogramEven_8u_C4R(const Lum8u* src, int srcStep, LumiSize roi, Lum32s* const histogram[4],
                                   Lum32s* const levels[4], const int count[4], const Lum32s lower[4],
                                   const Lum32s upper[4]);

/**
 * Tells the sizes of the object and of the buffer that lumiHistogram needs.
 *
 * The first step of three: sizes, object (lumiHistogramInit or lumiHistogramUniformInit), and any number of runs
 * (lumiHistogram). Both blocks are the caller's, and may start at any address.
 *
 * The object takes 48 bytes, 64 where pointers have 64 bits, and 4 for each level; the buffer 1024 bytes a channel
 * for 8u, 262144 for 16u and 16s, and none for 32f. Sizes are modulo 2^32: what is beyond 2 GiB must be ruled out
 * by the caller.
 *
 * Checked in this order; on an error nothing is written, but for the last one:
 *   lumStatusNullPointer (-8)            a pointer is null
 *   lumStatusBadSize (-6)                roi.width or roi.height is below 1
 *   lumStatusBadChannelCount (-53)       channels is not 1, 3 or 4
 *   lumStatusTooFewHistogramLevels (-107) a count is below 2
 *   lumStatusBadDataType (-12)           dataType is not lumiData8u, 16u, 16s or 32f; the object's size and 0 for
 *                                        the buffer's are stored
 *
 *   dataType   of the images: lumiData8u, lumiData16u, lumiData16s or lumiData32f
 *   roi        of the runs
 *   count      how many levels each channel has
 *   channels   samples of a pixel: 1, 3 or 4
 *   uniform    not used
 *   specSize   receives the size of the object, in bytes
 *   bufferSize receives the size of the buffer of one run, in bytes
 */
LumStatus lumiHistogramGetBufferSize(LumiDataType dataType, LumiSize roi, const int* count, int channels,
                                     int uniform, int* specSize, int* bufferSize);

/**
 * Makes the object of lumiHistogram, of levels for each channel.
 *
 * Levels are copied, for integer types cut off towards zero and limited to 32 bits. The object holds pointers into
 * itself: it must not be moved. Runs only read it, so that several of them may share it.
 *
 * Checked in this order; on an error nothing is written:
 *   lumStatusBadDataType (-12)           dataType is not lumiData8u, 16u, 16s or 32f
 *   lumStatusNullPointer (-8)            levels, count or spec is null
 *   lumStatusBadChannelCount (-53)       channels is not 1, 3 or 4
 *   for one channel after the other
 *     lumStatusNullPointer (-8)            its levels are null
 *     lumStatusTooFewHistogramLevels (-107) its count is below 2
 *     lumStatusBadRange (-7)               its levels do not ascend strictly
 *
 *   dataType   of the images
 *   levels     the levels of each channel
 *   count      how many they are
 *   channels   samples of a pixel: 1, 3 or 4
 *   spec       memory of the object, of the size that lumiHistogramGetBufferSize tells
 */
LumStatus lumiHistogramInit(LumiDataType dataType, const Lum32f* const* levels, const int* count,
                            int channels, LumiHistogramSpec* spec);

/**
 * Makes the object of lumiHistogram, of levels that divide a range evenly.
 *
 * Of 32f, levels[k] = (float)(lower + step * k), with the step in floats, and the last level is upper. Of integers
 * levels[k] = lower + (upper - lower) / (count - 1) * k, in doubles, cut off towards zero; where such a step is below
 * 1 the object is complete, and the warning lumStatusSizeAboveSpec (48) tells that bins will be empty.
 *
 * Checked in this order; on an error nothing is written:
 *   lumStatusBadDataType (-12)           dataType is not lumiData8u, 16u, 16s or 32f
 *   lumStatusNullPointer (-8)            a pointer is null
 *   lumStatusBadChannelCount (-53)       channels is not 1, 3 or 4
 *   for one channel after the other
 *     lumStatusTooFewHistogramLevels (-107) its count is below 2
 *     lumStatusBadRange (-7)               its lower bound is not below its upper one
 *
 *   dataType   of the images
 *   lower      the first level of each channel
 *   upper      the last level of each channel
 *   count      how many levels each channel has
 *   channels   samples of a pixel: 1, 3 or 4
 *   spec       memory of the object, of the size that lumiHistogramGetBufferSize tells
 */
LumStatus lumiHistogramUniformInit(LumiDataType dataType, const Lum32f* lower, const Lum32f* upper,
                                   const int* count, int channels, LumiHistogramSpec* spec);

/**
 * Tells the levels of an object, as floats.
 *
 * Checked in this order; on an error nothing is written:
 *   lumStatusNullPointer (-8)  a pointer is null
 *   lumStatusBadArgument (-5)  spec is no object
 *   lumStatusNullPointer (-8)  the array of a channel is null
 *
 *   spec       the object
 *   levels     an array for each channel, as long as its count of levels
 */
LumStatus lumiHistogramGetLevels(const LumiHistogramSpec* spec, Lum32f* const* levels);

/**
 * Counts the samples of each channel in the bins of an object.
 *
 * Bins are those of lumiHistogramRange; with one channel the histogram stands alone, with more the argument is an
 * array of them. Of 16u and 16s, where the object is one of lumiHistogramUniformInit, an image has fewer than 65536
 * pixels and last - first, the difference of a channel's outermost levels, is a multiple of count - 1, a sample
 * between them goes to the bin
 *
 *   (int)((float)(src(x, y) - first) / (float)((last - first) / (count - 1)))
 *
 * The type of the object is not looked at. After the checks below, lumStatusBadArgument (-5) tells that spec is no
 * object.
 *
 *   histogram  receives a number for each bin
 *   spec       the object
 *   buffer     scratch memory of the size that lumiHistogramGetBufferSize tells
 *   buffer     is not used, and may be null
 *
 * Returns lumStatusOk (0) or, tested in this order and before anything is written (8u 16u 16s 32f: C1):
 *   lumStatusNullPointer (-8)  a pointer is null, plane pointers included
 *   lumStatusBadSize (-6)      roi.width or roi.height is below 1
 *   lumStatusBadStep (-14)     a step is below the bytes of a row
 *
 * Returns lumStatusOk (0) or, tested in this order and before anything is written (8u 16u 16s 32f: C3 C4):
 *   lumStatusNullPointer (-8)  a pointer is null
 *   lumStatusNullPointer (-8)  one of an array of pointers is null
 *   lumStatusBadSize (-6)      roi.width or roi.height is below 1
 *   lumStatusBadStep (-14)     a step is below the bytes of a row
 */
LumStatus lumiHistogram_16s_C1R(const Lum16s* src, int srcStep, LumiSize roi, Lum32s* histogram,
                                const LumiHistogramSpec* spec, Lum8u* buffer);
LumStatus lumiHistogram_16s_C3R(const Lum16s* src, int srcStep, LumiSize roi, Lum32s* const histogram[3],
                                const LumiHistogramSpec* spec, Lum8u* buffer);
LumStatus lumiHistogram_16s_C4R(const Lum16s* src, int srcStep, LumiSize roi, Lum32s* const histogram[4],
                                const LumiHistogramSpec* spec, Lum8u* buffer);
LumStatus lumiHistogram_16u_C1R(const Lum16u* src, int srcStep, LumiSize roi, Lum32s* histogram,
                                const LumiHistogramSpec* spec, Lum8u* buffer);
LumStatus lumiHistogram_16u_C3R(const Lum16u* src, int srcStep, LumiSize roi, Lum32s* const histogram[3],
                                const LumiHistogramSpec* spec, Lum8u* buffer);
LumStatus lumiHistogram_16u_C4R(const Lum16u* src, int srcStep, LumiSize roi, Lum32s* const histogram[4],
                                const LumiHistogramSpec* spec, Lum8u* buffer);
LumStatus lumiHistogram_32f_C1R(const Lum32f* src, int srcStep, LumiSize roi, Lum32s* histogram,
                                const LumiHistogramSpec* spec, Lum8u* buffer);
LumStatus lumiHistogram_32f_C3R(const Lum32f* src, int srcStep, LumiSize roi, Lum32s* const histogram[3],
                                const LumiHistogramSpec* spec, Lum8u* buffer);
LumStatus lumiHistogram_32f_C4R(const Lum32f* src, int srcStep, LumiSize roi, Lum32s* const histogram[4],
                                const LumiHistogramSpec* spec, Lum8u* buffer);
LumStatus lumiHistogram_8u_C1R(const Lum8u* src, int srcStep, LumiSize roi, Lum32s* histogram,
                               const LumiHistogramSpec* spec, Lum8u* buffer);
LumStatus lumiHistogram_8u_C3R(const Lum8u* src, int srcStep, LumiSize roi, Lum32s* const histogram[3],
                               const LumiHistogramSpec* spec, Lum8u* buffer);
LumStatus lumiHistogram_8u_C4R(const Lum8u* src, int srcStep, LumiSize roi, Lum32s* const histogram[4],
                               const LumiHistogramSpec* spec, Lum8u* buffer);

#ifdef __cplusplus
}
#endif

#endif
