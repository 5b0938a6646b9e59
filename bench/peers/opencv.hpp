// SPDX-License-Identifier: MIT
// OpenCV's core and imgproc, on one thread.
#pragma once

#include "bench/harness.hpp"

namespace bench::opencv {

[[gnu::weak]] void prepare();
[[gnu::weak]] Library library();

[[gnu::weak]] Peer fill(View dst, Value value);
[[gnu::weak]] Peer fillMasked(View dst, Value value, View mask);
[[gnu::weak]] Peer copy(View src, View dst);
[[gnu::weak]] Peer copyMasked(View src, View dst, View mask);
[[gnu::weak]] Peer split(View src, std::vector<View> dst);
[[gnu::weak]] Peer merge(std::vector<View> src, View dst);
// Channels from .. from + count - 1 of src become those of dst, starting at channel to.
[[gnu::weak]] Peer move(View src, View dst, int from, int to, int count);
[[gnu::weak]] Peer dropAlpha(View src, View dst);
[[gnu::weak]] Peer spread(View src, View dst);
[[gnu::weak]] Peer add(View a, View b, View dst);
// The first operand from the second.
[[gnu::weak]] Peer subtract(View a, View b, View dst);
[[gnu::weak]] Peer addConstant(View src, View dst, Value value);
[[gnu::weak]] Peer multiply(View a, View b, View dst);
[[gnu::weak]] Peer multiplyByConstant(View src, View dst, Value value);
// The second image by the first.
[[gnu::weak]] Peer divide(View divisor, View dividend, View dst);
[[gnu::weak]] Peer divideByConstant(View src, View dst, Value value);
// Bit by bit.
enum class Logic { conjunction, disjunction, exclusive };
[[gnu::weak]] Peer logic(View a, View b, View dst, Logic operation);
[[gnu::weak]] Peer logicConstant(View src, View dst, Value value, Logic operation);
[[gnu::weak]] Peer invert(View src, View dst);
// src * alpha + beta.
[[gnu::weak]] Peer scale(View src, View dst, double alpha, double beta);
[[gnu::weak]] Peer absolute(View src, View dst);
[[gnu::weak]] Peer square(View src, View dst);
// Of floats.
[[gnu::weak]] Peer root(View src, View dst);
[[gnu::weak]] Peer logarithm(View src, View dst);
[[gnu::weak]] Peer exponential(View src, View dst);
// Of complex floats, whose parts it takes from images of their own.
[[gnu::weak]] Peer magnitude(View src, View dst);
[[gnu::weak]] Peer phase(View src, View dst);
// To parts in images of their own.
[[gnu::weak]] Peer polarToCart(View magnitude, View phase);
// A window made of raised cosines, and the product with it.
[[gnu::weak]] Peer window(View src, View dst);
// Bytes by a table of 256 entries for each of the source's channels, or one for all.
[[gnu::weak]] Peer lookUp(View src, View dst, std::vector<Lum8u> tables);
// 255 for samples above the threshold, else 0: a byte for each bit.
[[gnu::weak]] Peer above(View src, double threshold);
// Samples above the thresholds become those, or 0.
[[gnu::weak]] Peer limitAbove(View src, View dst, Value thresholds);
[[gnu::weak]] Peer zeroAbove(View src, View dst, double threshold);
// The larger or the smaller samples of both, in dst.
[[gnu::weak]] Peer extreme(View src, View dst, bool larger);
// 255 where samples compare as a LumCmpOp says, else 0.
[[gnu::weak]] Peer compare(View a, View b, View dst, int cmpOp);
[[gnu::weak]] Peer compareConstant(View src, View dst, double value, int cmpOp);
// The best threshold of bytes; stores which of them are above it.
[[gnu::weak]] Peer bestThreshold(View src);
// The counts of one channel in bins of one width, as floats.
[[gnu::weak]] Peer histogram(View src, int bins, double lower, double upper);
// All moments of one channel up to the third order; stores the first of them, its total.
[[gnu::weak]] Peer moments(View src, View total);
// Doubles, one for each channel, in results of eight bytes each.
[[gnu::weak]] Peer sum(View src, View sums);
[[gnu::weak]] Peer mean(View src, View means);
// Samples of one channel; x and y are Lum32s.
[[gnu::weak]] Peer leastAndGreatest(View src, View min, View max);
[[gnu::weak]] Peer extremePlace(View src, View value, View x, View y, bool greatest);
// To the destination's type.
[[gnu::weak]] Peer convert(View src, View dst);
enum class Border { constant, replicate, wrap };
[[gnu::weak]] Peer border(View src, View dst, int top, int left, Border kind, Value value);
[[gnu::weak]] Peer transpose(View src, View dst);
// About the horizontal axis, the vertical one, or both.
enum class Flip { horizontal, vertical, both };
[[gnu::weak]] Peer flip(View src, View dst, Flip axis);
// Channel c of dst from channel order[c] of src.
[[gnu::weak]] Peer permute(View src, View dst, std::vector<int> order);
// Red and blue exchanged.
[[gnu::weak]] Peer swapRedBlue(View src, View dst);
// Correlation with a kernel of floats, to the type of dst; the nearest pixel is repeated outside.
[[gnu::weak]] Peer filter(View src, View dst, std::vector<float> taps, LumiSize size);
// The ROI of dst lies `reach` pixels inside `around`, whose other pixels are read. Gradients are those of
// rising samples.
enum class Gradient { sobelX, sobelY, scharrX, scharrY, laplace };
[[gnu::weak]] Peer gradient(View around, View dst, int reach, Gradient kind, int side);
[[gnu::weak]] Peer gauss(View around, View dst, int reach, int side);
[[gnu::weak]] Peer box(View around, View dst, int reach, int side);
// Symmetric taps along the rows or down the columns of an image inside a larger one, as one kernel or as two
// kernels of one dimension.
[[gnu::weak]] Peer filterLines(View whole, LumiPoint at, View dst, std::vector<float> taps, bool isColumn,
                               bool separately);
// Means of windows, whose centre is the pixel. The source has the pixels around the destination's, or the
// nearest ones are repeated outside.
[[gnu::weak]] Peer boxFilter(View src, View dst, LumiSize window);
// Bytes: 200 where a pixel is above the mean of its square window, or its weighted one, less delta; otherwise
// 0.
[[gnu::weak]] Peer adaptiveThreshold(View src, View dst, int side, double delta, bool weighted);
// Medians of square windows: of 3 and 5 of 8u, 16u, 16s and 32f, larger ones of 8u. The source has the pixels
// around the destination's, or the nearest ones are repeated outside.
[[gnu::weak]] Peer medianBlur(View src, View dst, int side);
// The largest samples, or the smallest, under a mask whose centre is the pixel. The source has the pixels
// around the destination's.
[[gnu::weak]] Peer morphology(View around, View dst, std::vector<Lum8u> mask, LumiSize size, bool dilates);
// Both derivatives by Sobel masks, right minus left and bottom minus top, of the type of their images; and
// their magnitude. The nearest pixel is repeated outside.
[[gnu::weak]] Peer sobel(View src, View x, View y, int side);
[[gnu::weak]] Peer sobelMagnitude(View src, View dst, int side, bool isRootOfSquares);
// Means weighted by distance and likeness within a circle; the nearest pixel is repeated outside.
[[gnu::weak]] Peer bilateral(View src, View dst, int radius, double valueSigma, double positionSigma);

// To the destination's size.
[[gnu::weak]] Peer resizeNearest(View src, View dst);
[[gnu::weak]] Peer resizeLinear(View src, View dst);

// Fourier transforms of complex images, or of real ones as packed spectra, without a scale.
[[gnu::weak]] Peer fourier(View src, View dst, bool inverse);
// Cosine transforms of floats, of whole images of even sides, and of their memory as blocks of 64 values
// each.
[[gnu::weak]] Peer cosine(View src, View dst, bool inverse);
[[gnu::weak]] Peer cosine8x8(View src, View dst, bool inverse);
// Every other pixel of the source filtered by columns and rows: low low, high low, low high, high high.
[[gnu::weak]] Peer waveletBands(View src, std::vector<View> dst, std::vector<float> low,
                                std::vector<float> high);

// Stores a double. Of one image, of the differences of two, or of those beside the second's.
enum class Norm { infinity, sum, squares };
[[gnu::weak]] Peer norm(View src, View result, Norm kind);
[[gnu::weak]] Peer normOfDifference(View a, View b, View result, Norm kind);
[[gnu::weak]] Peer relativeNorm(View a, View b, View result, Norm kind);
[[gnu::weak]] Peer dotProduct(View a, View b, View result);
// Of packed floats, by the second or by its conjugate.
[[gnu::weak]] Peer multiplySpectra(View a, View b, View dst, bool conjugate);
// Stores nothing.
[[gnu::weak]] Peer meanAndDeviation(View src);

}  // namespace bench::opencv
