// SPDX-License-Identifier: MIT
#include "kernels/transforms/mul_pack.hpp"

#include "kernels/path_count.hpp"
#include "kernels/transforms/mul_pack_functions.hpp"

namespace lumi {
namespace {

using namespace simd;

// How pairs of pixels of T are done: in wide groups where rows have room for one, in small ones, and one
// below the other, where pixels of at most four samples are a pair.
template <typename T, int stored, int used>
struct Packing {
  using Wide = DwordPairs<stored, used, std::is_same_v<T, float> ? 32 : 16>;
  using Small = DwordPairs<stored, used, 16>;

  static Parts<16> together(Bytes16 real, Bytes16 imaginary) { return {real, imaginary}; }
  static Parts<16> apart(Parts<16> x) { return x; }
};
template <int stored, int used>
struct Packing<int16_t, stored, used> {
  using Wide = WordPairs<stored, used>;
  using Small = Wide;

  static Bytes16 together(Bytes16 real, Bytes16 imaginary) {
    return interleaveLow(S16{real}, S16{imaginary}).v;
  }
  static Parts<16> apart(Bytes16 x) { return {x, bytesFrom<8>(x)}; }
};

template <int bytes>
void storeUsed(Byte* p, Bytes16 x) {
  if constexpr (bytes == 2) {
    const uint32_t first = firstDword(x);
    std::memcpy(p, &first, 2);
  } else {
    storePixel<bytes>(p, x);
  }
}

template <typename T, int stored, int used, typename F>
class PackProduct {
 public:
  PackProduct(SourceRows a, SourceRows b, TargetRows dst, Extent pixels, const F& f)
      : a_(a), b_(b), dst_(dst), f_(f), pixels_(pixels), bytes_((pixels.length - 1) / 2 * 2 * kPixel) {}

  // The numbers of the columns follow the rows that they lie in, while these are at hand.
  void run() const {
    if (hasWideRows()) countPath(Path::WidePairs);
    for (int y = 0; y < pixels_.rows; ++y) {
      row(y);
      const bool isOdd = y % 2 != 0, isLast = y == pixels_.rows - 1;
      if (y > 0 && !isOdd) inColumns([=](size_t at) { below(y - 1, at); });
      if (y == 0 || (isOdd && isLast)) inColumns([=](size_t at) { real(y, at); });
    }
  }

 private:
  using Its = Packing<T, stored, used>;
  static constexpr size_t kPixel = stored * sizeof(T);
  static constexpr int kUsed = used * static_cast<int>(sizeof(T));

  // Calls work(byte of the column) for those that are packed downwards.
  template <typename Work>
  [[gnu::always_inline]] void inColumns(const Work& work) const {
    const size_t step = (pixels_.length - 1) * kPixel;
    for (size_t i = 0; i < 2 - pixels_.length % 2; ++i) work(i * step);
  }

  bool hasWideRows() const {
    return !std::is_same_v<typename Its::Wide, typename Its::Small> && bytes_ >= Its::Wide::kBytes;
  }

  // Which way follows from the length, and is foreseen from the second row on.
  [[gnu::always_inline]] void row(int y) const {
    using Small = typename Its::Small;
    if (hasWideRows()) return groups<typename Its::Wide>(y);
    if (bytes_ >= Small::kBytes) return groups<Small>(y);
    if constexpr (Small::kBytes > 2 * kPixel)
      if (bytes_ > 0) shortRow(y);
  }

  // The last group may lie over the one before it: both are made of what was there before. Made ahead of all
  // others, the last one would keep them waiting where the row is not in the cache.
  template <typename Form>
  [[gnu::always_inline]] void groups(int y) const {
    const Byte *const a = a_.row(y) + kPixel, *const b = b_.row(y) + kPixel;
    Byte* const d = dst_.row(y) + kPixel;
    const F f = f_;  // no store changes a copy
    const auto group = [&](size_t at) { return f(Form::load(a + at), Form::load(b + at)); };
    const size_t last = bytes_ - Form::kBytes;
    size_t at = 0;
    for (; at + Form::kBytes <= last; at += Form::kBytes) Form::store(d + at, group(at));
    const auto before = group(at), end = group(last);
    Form::store(d + at, before);
    Form::store(d + last, end);
  }

  // Fewer pairs than a group has.
  static void copyPairs(const Byte* from, Byte* to, size_t bytes) {
    constexpr size_t pair = 2 * kPixel, most = Its::Small::kBytes / pair - 1;
    for (size_t i = 0; i < most; ++i)
      if (i * pair < bytes) move<pair>(to + i * pair, from + i * pair);
  }

  void shortRow(int y) const {
    using Form = typename Its::Small;
    alignas(16) Byte first[Form::kBytes] = {}, second[Form::kBytes] = {}, results[Form::kBytes];
    copyPairs(a_.row(y) + kPixel, first, bytes_);
    copyPairs(b_.row(y) + kPixel, second, bytes_);
    Form::store(results, f_(Form::load(first), Form::load(second)));
    copyPairs(results, dst_.row(y) + kPixel, bytes_);
  }

  static Bytes16 pixel(SourceRows of, int y, size_t at) { return loadPixel<kUsed>(of.row(y) + at); }

  [[gnu::always_inline]] void below(int y, size_t at) const {
    const auto parts = [&](SourceRows of) { return Its::together(pixel(of, y, at), pixel(of, y + 1, at)); };
    const Parts<16> product = Its::apart(f_(parts(a_), parts(b_)));
    storeUsed<kUsed>(dst_.row(y) + at, product.real);
    storeUsed<kUsed>(dst_.row(y + 1) + at, product.imaginary);
  }

  [[gnu::always_inline]] void real(int y, size_t at) const {
    const Bytes16 a = pixel(a_, y, at), b = pixel(b_, y, at), none = dwordsOf(0, 0, 0);
    Byte* const d = dst_.row(y) + at;
    if constexpr (std::is_same_v<T, float>)
      storeUsed<kUsed>(d, f_.reals(a, b));
    else
      storeUsed<kUsed>(d, Its::apart(f_(Its::together(a, none), Its::together(b, none))).real);
  }

  SourceRows a_, b_;
  TargetRows dst_;
  F f_;
  Extent pixels_;
  size_t bytes_;  // of the pairs of a row
};

}  // namespace

template <typename T, int stored, int used>
void multiplyPacks(SourceRows a, SourceRows b, TargetRows dst, Extent pixels, int scaleFactor) {
  choosePairProduct<T>(scaleFactor, [&](const auto& f) {
    PackProduct<T, stored, used, std::decay_t<decltype(f)>>(a, b, dst, pixels, f).run();
  });
}

template <int stored, int used>
void multiplyPacksConjugate(SourceRows a, SourceRows b, TargetRows dst, Extent pixels) {
  PackProduct<float, stored, used, FloatPairProduct<true>>(a, b, dst, pixels, {}).run();
}

#define LUMI_PACKS(stored, used)                                                                       \
  template void multiplyPacks<int16_t, stored, used>(SourceRows, SourceRows, TargetRows, Extent, int); \
  template void multiplyPacks<int32_t, stored, used>(SourceRows, SourceRows, TargetRows, Extent, int); \
  template void multiplyPacks<float, stored, used>(SourceRows, SourceRows, TargetRows, Extent, int);   \
  template void multiplyPacksConjugate<stored, used>(SourceRows, SourceRows, TargetRows, Extent);
LUMI_PACKS(1, 1)
LUMI_PACKS(3, 3)
LUMI_PACKS(4, 4)
LUMI_PACKS(4, 3)

}  // namespace lumi
