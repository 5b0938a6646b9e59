// SPDX-License-Identifier: MIT
#include "kernels/transforms/columns.hpp"

#include <cstring>

#include "kernels/simd/pairs.hpp"
#include "kernels/transforms/split_transform.hpp"

namespace lumi::transforms {
namespace {

// How many pairs fill the lanes, and the way of their bytes to lanes and back.
template <int stored, int used>
struct Pixel {
  static constexpr int kStored = stored, kUsed = used;
};
using C1 = Pixel<1, 1>;
using C3 = Pixel<3, 3>;
using C4 = Pixel<4, 4>;
using AC4 = Pixel<4, 3>;

template <typename Layout>
struct PairsOf {
  using Form = DwordPairs<Layout::kStored, Layout::kUsed, 32>;
  static constexpr size_t kPairs = Form::kBytes / (2 * sizeof(float) * Layout::kStored);

  // The lane of a pair's first sample.
  static constexpr size_t laneOf(size_t pair) {
    constexpr size_t kLaneOf[] = {0, 1, 4, 5, 2, 3, 6, 7};
    return kPairs == 8 ? kLaneOf[pair] : 4 * pair;
  }
  static Complex<Lanes> load(const Byte* p) { return lanesOf(Form::load(p)); }
  static void store(Byte* p, Complex<Lanes> x) { Form::store(p, {bytesOf(x.re), bytesOf(x.im)}); }

 private:
  static Complex<Lanes> lanesOf(const Parts<32>& x) {
    return {samplesOf<float>(x.real), samplesOf<float>(x.imaginary)};
  }
};

// Seven pairs of one channel, and one that is not in memory behind them.
Complex<Lanes> loadSeven(const Byte* p, float re, float im) {
  const Floats8 a = loadFloats8(p), b = joined(loadFloats4(p + 32), pairOf(p + 48, re, im));
  return {evenLanes(a, b), oddLanes(a, b)};
}
void storeSeven(Byte* p, Complex<Lanes> x) {
  const Bytes32 last = bytesOf(interleaveHighLanes(x.re, x.im));
  store32(p, bytesOf(interleaveLowLanes(x.re, x.im)));
  store16(p + 32, lowHalf(last));
  storeFirst8(p + 48, highHalf(last));
}

template <typename Layout>
constexpr size_t kPixel = sizeof(float) * Layout::kStored;
template <typename Layout>
constexpr size_t kPair = 2 * kPixel<Layout>;

template <bool inverse>
Complex<Lanes> inTurn(Complex<Lanes> x) {
  if constexpr (inverse)
    return exchanged(x);
  else
    return x;
}

// As many columns as there are lanes.
template <typename Layout, bool inverse>
void transformGroup(const Transform& transform, float scale, SourceRows src, TargetRows dst, float* scratch) {
  const auto load = [=](size_t n) {
    return inTurn<inverse>(PairsOf<Layout>::load(src.first + static_cast<ptrdiff_t>(n) * src.step));
  };
  const auto store = [=](size_t k, Complex<Lanes> x) {
    const Lanes s = broadcastLane<Lanes>(&scale);
    PairsOf<Layout>::store(dst.first + static_cast<ptrdiff_t>(k) * dst.step,
                           inTurn<inverse>({x.re * s, x.im * s}));
  };
  if (!transform.isPowerOfTwo) {
    for (size_t n = 0; n < transform.length; ++n)
      storePoint(scratch + transform.slotOfPlace(n) * kPointFloats, load(n));
    transformPoints(transform, scratch, scratch + transform.length * kPointFloats);
    for (size_t k = 0; k < transform.length; ++k)
      store(k, loadPoint<Lanes>(scratch + transform.slotOfFrequency(k) * kPointFloats));
    return;
  }
  if (!transform.isSplit()) return runPowerOfTwo<Lanes>(transform.inner, load, scratch, store);
  float* const local = scratch + transform.length * kPointFloats;
  runOuter(transform, load, scratch, local);
  const size_t outer = transform.outer.length, inner = transform.inner.length;
  for (size_t k = 0; k < outer; ++k) {
    const float* const row = scratch + k * inner * kPointFloats;
    runPowerOfTwo<Lanes>(
        transform.inner, [=](size_t c) { return loadPoint<Lanes>(row + c * kPointFloats); }, local,
        [=](size_t j, Complex<Lanes> x) { store(k + outer * j, x); });
  }
}

// A pair of pixels, as numbers.
template <typename Layout>
struct Pair {
  float re[Layout::kStored], im[Layout::kStored];
};

// Columns that are fewer than lanes; behind them, the first and last columns of a packed spectrum as the
// parts of one complex sequence.
template <typename Layout, bool inverse>
class FewColumns {
 public:
  FewColumns(const Transform& transform, float scale, SourceRows src, TargetRows dst, const Columns& columns,
             size_t done, float* scratch)
      : transform_(transform),
        scale_(scale),
        src_(src),
        dst_(dst),
        columns_(columns),
        height_(transform.length),
        offset_((columns.firstPair + 2 * done) * kPixel<Layout>),
        pairs_(columns.pairs - done),
        points_(scratch) {}

  void run() {
    for (size_t n = 0; n < height_; ++n) fill(n);
    transformPoints(transform_, points_, points_ + height_ * kPointFloats);
    for (size_t k = 0; k < height_; ++k) drain(k);
    if (columns_.realColumns == 0) return;
    if constexpr (inverse) {
      for (size_t k = 0; k < height_; ++k) storeEdges(k, edgesAt(k));
    } else {
      storeSpectra();
    }
  }

 private:
  using Group = PairsOf<Layout>;
  using Bytes = Byte[Group::kPairs * kPair<Layout>];

  const Byte* sourceRow(size_t n) const { return src_.first + static_cast<ptrdiff_t>(n) * src_.step; }
  Byte* targetRow(size_t n) const { return dst_.first + static_cast<ptrdiff_t>(n) * dst_.step; }

  // What power-of-two widths leave.
  bool areSeven() const { return Layout::kStored == 1 && pairs_ == 7 && columns_.realColumns != 0; }

  void fill(size_t n) {
    const Byte* const row = sourceRow(n) + offset_;
    Pair<Layout> edges = {};
    if (columns_.realColumns != 0) edges = inverse ? mixed(n) : loadEdges(n);
    float* const point = points_ + transform_.slotOfPlace(n) * kPointFloats;
    if constexpr (Layout::kStored == 1)
      if (areSeven()) return storePoint(point, inTurn<inverse>(loadSeven(row, edges.re[0], edges.im[0])));
    Bytes bytes = {};
    std::memcpy(bytes, row, pairs_ * kPair<Layout>);
    if (columns_.realColumns != 0) std::memcpy(bytes + pairs_ * kPair<Layout>, &edges, sizeof(edges));
    storePoint(point, inTurn<inverse>(Group::load(bytes)));
  }

  Complex<Lanes> resultAt(size_t k) const {
    const Complex<Lanes> x = loadPoint<Lanes>(points_ + transform_.slotOfFrequency(k) * kPointFloats);
    const Lanes s = broadcastLane<Lanes>(&scale_);
    return inTurn<inverse>({x.re * s, x.im * s});
  }

  void drain(size_t k) {
    Byte* const row = targetRow(k) + offset_;
    if constexpr (Layout::kStored == 1)
      if (areSeven()) return storeSeven(row, resultAt(k));
    Bytes bytes;
    PairsOf<WithAlpha>::store(bytes, resultAt(k));
    if constexpr (Layout::kUsed == Layout::kStored) {
      std::memcpy(row, bytes, pairs_ * kPair<Layout>);
    } else {
      for (size_t i = 0; i < 2 * pairs_; ++i)
        std::memcpy(row + i * kPixel<Layout>, bytes + i * kPixel<Layout>, sizeof(float) * Layout::kUsed);
    }
  }
  using WithAlpha = std::conditional_t<std::is_same_v<Layout, AC4>, C4, Layout>;

  Pair<Layout> edgesAt(size_t k) const {
    const float* const point = points_ + transform_.slotOfFrequency(k) * kPointFloats + Group::laneOf(pairs_);
    Pair<Layout> edges;
    for (int c = 0; c < Layout::kStored; ++c) {
      edges.re[c] = point[c + (inverse ? kLanes : 0)] * scale_;
      edges.im[c] = point[c + (inverse ? 0 : kLanes)] * scale_;
    }
    return edges;
  }

  // The first and the last column of a row.
  Pair<Layout> loadEdges(size_t n) const {
    Pair<Layout> edges = {};
    std::memcpy(edges.re, sourceRow(n), kPixel<Layout>);
    if (columns_.realColumns == 2)
      std::memcpy(edges.im, sourceRow(n) + columns_.lastColumn * kPixel<Layout>, kPixel<Layout>);
    return edges;
  }
  void storeEdges(size_t n, const Pair<Layout>& edges) const {
    constexpr size_t kUsedBytes = sizeof(float) * Layout::kUsed;
    std::memcpy(targetRow(n), edges.re, kUsedBytes);
    if (columns_.realColumns == 2)
      std::memcpy(targetRow(n) + columns_.lastColumn * kPixel<Layout>, edges.im, kUsedBytes);
  }

  // Value n of F + iG, of two packed spectra: F(n) is (re, im) of rows 2n - 1 and 2n, and the conjugate of
  // F(height - n).
  Pair<Layout> mixed(size_t n) const {
    const size_t k = n <= height_ / 2 ? n : height_ - n;
    if (k == 0 || 2 * k == height_) return loadEdges(k == 0 ? 0 : height_ - 1);
    const Pair<Layout> re = loadEdges(2 * k - 1), im = loadEdges(2 * k);
    const float sign = k == n ? 1.0f : -1.0f;
    Pair<Layout> sum;
    for (int c = 0; c < Layout::kStored; ++c) {
      sum.re[c] = re.re[c] - sign * im.im[c];
      sum.im[c] = sign * im.re[c] + re.im[c];
    }
    return sum;
  }

  // F and G out of F + iG.
  void storeSpectra() const {
    storeEdges(0, edgesAt(0));
    for (size_t k = 1; 2 * k < height_; ++k) {
      const Pair<Layout> a = edgesAt(k), b = edgesAt(height_ - k);
      Pair<Layout> re, im;
      for (int c = 0; c < Layout::kStored; ++c) {
        re.re[c] = 0.5f * (a.re[c] + b.re[c]);
        im.re[c] = 0.5f * (a.im[c] - b.im[c]);
        re.im[c] = 0.5f * (a.im[c] + b.im[c]);
        im.im[c] = 0.5f * (b.re[c] - a.re[c]);
      }
      storeEdges(2 * k - 1, re);
      storeEdges(2 * k, im);
    }
    if (height_ % 2 == 0) storeEdges(height_ - 1, edgesAt(height_ / 2));
  }

  const Transform& transform_;
  const float scale_;
  const SourceRows src_;
  const TargetRows dst_;
  const Columns& columns_;
  const size_t height_, offset_, pairs_;
  float* const points_;
};

template <typename Layout, bool inverse>
void transformAll(const Transform& transform, float scale, SourceRows src, TargetRows dst,
                  const Columns& columns, float* scratch) {
  size_t done = 0;
  for (; columns.pairs - done >= PairsOf<Layout>::kPairs; done += PairsOf<Layout>::kPairs) {
    const size_t at = (columns.firstPair + 2 * done) * kPixel<Layout>;
    transformGroup<Layout, inverse>(transform, scale, {src.first + at, src.step}, {dst.first + at, dst.step},
                                    scratch);
  }
  if (done < columns.pairs || columns.realColumns != 0)
    FewColumns<Layout, inverse>(transform, scale, src, dst, columns, done, scratch).run();
}

}  // namespace

template <int stored, int used>
void transformColumns(const Transform& transform, bool inverse, float scale, SourceRows src, TargetRows dst,
                      const Columns& columns, float* scratch) {
  if (inverse)
    transformAll<Pixel<stored, used>, true>(transform, scale, src, dst, columns, scratch);
  else
    transformAll<Pixel<stored, used>, false>(transform, scale, src, dst, columns, scratch);
}

template void transformColumns<1, 1>(const Transform&, bool, float, SourceRows, TargetRows, const Columns&,
                                     float*);
template void transformColumns<3, 3>(const Transform&, bool, float, SourceRows, TargetRows, const Columns&,
                                     float*);
template void transformColumns<4, 4>(const Transform&, bool, float, SourceRows, TargetRows, const Columns&,
                                     float*);
template void transformColumns<4, 3>(const Transform&, bool, float, SourceRows, TargetRows, const Columns&,
                                     float*);

}  // namespace lumi::transforms
