// SPDX-License-Identifier: MIT
// The loop of every operation that makes a sample from the samples at its own place. A kernel describes its
// rows as a rule and hands it to runRows; heads, tails, short rows, phases and overlap are taken care of
// here.
//
// A rule stands at a row, and says for byte offsets `at` into the destination's row:
//   kSample           bytes of a destination sample; every offset is a multiple of it
//   kPeriod           blocks after which constants repeat
//   phase(at)         what stays the same for the blocks at `at`, `at` + kPeriod blocks and so on
//   block(at, phase)  the 32 bytes of results there, as Bytes32 or Halves32
//   vector(at)        the kVectorBytes bytes of results there
//                     Either may be Marked: what runs the rule returns the marks of all samples.
//   advance(rows)     moves on to a later row
//   isApart(dst, bytes, rows)
//                     whether rows share memory with no source but sample for sample
//   kSources, describe(sources)
//                     the images that samples come from
//   onPieces(pieces, at)
//                     a copy of the rule whose sources begin at `at`, and lie where pieces point
#pragma once

#include <algorithm>
#include <array>
#include <utility>

#include "kernels/marks.hpp"
#include "kernels/path_count.hpp"
#include "kernels/pattern.hpp"
#include "kernels/pieces.hpp"
#include "kernels/rows.hpp"

namespace lumi::simd {

inline constexpr size_t kBlock = 32;

// Where the first and last block lie over others, all of them are made of what was there before: they are
// made first and stored last, so that the destination may be the source.
template <typename Store, typename Rule, typename Marks, size_t... k>
[[gnu::always_inline]] inline void runLong(Byte* d, size_t bytes, const Rule& rule, Marks& marks,
                                           std::index_sequence<k...>) {
  const size_t reach = reachPastBoundary(d, kBlock);
  const bool canAlign = reach % Rule::kSample == 0;
  const auto first = marks.take(rule.block(0, rule.phase(0)));
  const auto last = marks.take(rule.block(bytes - kBlock, rule.phase(bytes - kBlock)));
  size_t at = canAlign ? reach : kBlock;
  const typename Rule::Phase phases[] = {rule.phase(at + k % Rule::kPeriod * kBlock)...};
  constexpr size_t round = sizeof...(k) * kBlock;
  for (; at + round <= bytes; at += round)
    (Store::store(d + at + k * kBlock, marks.take(rule.block(at + k * kBlock, phases[k]))), ...);
  for (; at + kBlock <= bytes; at += kBlock)
    Cached::store(d + at, marks.take(rule.block(at, rule.phase(at))));
  Cached::store(d, first);
  Cached::store(d + bytes - kBlock, last);
}

// Up to here rows are done in unaligned blocks from their start on: less work than to find the boundaries.
inline constexpr size_t kShortRow = 8 * kBlock;

template <typename Rule, typename Marks, size_t... k>
[[gnu::always_inline]] inline void runShort(TargetRows dst, size_t bytes, int rows, Rule& rule, Marks& marks,
                                            std::index_sequence<k...>) {
  const typename Rule::Phase phases[] = {rule.phase(k * kBlock)...};
  const auto lastPhase = rule.phase(bytes - kBlock);
  for (int y = 0; y < rows; ++y, rule.advance(1)) {
    Byte* const d = dst.row(y);
    const auto last = marks.take(rule.block(bytes - kBlock, lastPhase));
    const auto one = [&](size_t at, const auto& phase) {
      if (at + kBlock >= bytes) return false;
      Cached::store(d + at, marks.take(rule.block(at, phase)));
      return true;
    };
    for (size_t at = 0; at + kBlock < bytes; at += sizeof...(k) * kBlock)
      static_cast<void>((one(at + k * kBlock, phases[k]) && ...));
    Cached::store(d + bytes - kBlock, last);
  }
}

// Rows of a vector or more that overlap no source but themselves. The length decides once for all of them.
template <typename Store, typename Rule>
[[gnu::always_inline]] inline MarksOf<Rule> runApart(TargetRows dst, size_t bytes, int rows, Rule rule) {
  MarksOf<Rule> marks;
  if constexpr (kVectorBytes < kBlock) {
    if (bytes < kBlock) {
      for (int y = 0; y < rows; ++y, rule.advance(1)) {
        Byte* const d = dst.row(y);
        const VectorBytes first = marks.take(rule.vector(0));
        if (bytes > kVectorBytes) {
          const VectorBytes last = marks.take(rule.vector(bytes - kVectorBytes));
          storeVector(d + bytes - kVectorBytes, last);
        }
        storeVector(d, first);
      }
      return marks;
    }
  }
  constexpr size_t round = Rule::kPeriod == 1 ? 2 : Rule::kPeriod;
  if (bytes <= kShortRow)
    runShort(dst, bytes, rows, rule, marks, std::make_index_sequence<Rule::kPeriod>());
  else
    for (int y = 0; y < rows; ++y, rule.advance(1))
      runLong<Store>(dst.row(y), bytes, rule, marks, std::make_index_sequence<round>());
  return marks;
}

// No sample of a row at an odd address starts on a boundary, and stores that bypass the cache need one.
template <size_t sample>
bool allAligned(TargetRows dst) {
  return (reinterpret_cast<uintptr_t>(dst.first) | static_cast<uintptr_t>(dst.step)) % sample == 0;
}

// What the length or the place of rows keeps from vectors, without another loop for each rule.
template <typename Rule>
[[gnu::noinline]] MarksOf<Rule> runCarefully(TargetRows dst, Extent extent, const Rule& rule) {
  struct Work {
    const Rule& rule;
    MarksOf<Rule> marks;

    static void make(void* work, const Byte* const* pieces, size_t at, size_t bytes, Byte* results) {
      auto& [of, marks] = *static_cast<Work*>(work);
      storeVector(results, marks.takeFirst(bytes, of.onPieces(pieces, at).vector(0)));
    }
  };
  PieceSource sources[Rule::kSources];
  rule.describe(sources);
  Work work{rule, {}};
  runInPieces(dst, extent, {Rule::kSample, sources, Rule::kSources, &work, Work::make});
  return work.marks;
}

// Makes rows of extent.length samples. A destination may be a source, sample for sample; where they overlap
// otherwise, the samples of a row are made one by one from the first to the last. Store is how whole blocks
// on boundaries are stored.
template <typename Store = Cached, typename Rule>
[[gnu::always_inline]] inline MarksOf<Rule> runRows(TargetRows dst, Extent extent, const Rule& rule) {
  const size_t bytes = extent.length * Rule::kSample;
  if (bytes < kVectorBytes || !rule.isApart(dst, bytes, extent.rows)) return runCarefully(dst, extent, rule);
  if (std::is_same_v<Store, Cached> || !allAligned<Rule::kSample>(dst))
    return runApart<Cached>(dst, bytes, extent.rows, rule);
  countPath(Path::StreamingRows);
  return runApart<Store>(dst, bytes, extent.rows, rule);
}

// An image of S samples, whose operation makes D samples of them.
template <typename S, typename D>
struct ImageRow {
  const Byte* first;
  ptrdiff_t step;

  explicit ImageRow(SourceRows rows) : first(rows.first), step(rows.step) {}
  explicit ImageRow(const Byte* piece) : first(piece), step(0) {}

  static constexpr size_t kBlocks = 1;
  static constexpr int kSources = 1;
  struct Phase {};
  static constexpr size_t sourceBytes(size_t bytes) { return bytes / sizeof(D) * sizeof(S); }

  const Byte* operator()(size_t at) const { return first + sourceBytes(at); }
  Phase phase(size_t) const { return {}; }
  Bytes32 block(size_t at, Phase) const {
    return std::is_floating_point_v<S> || kVectorBytes == 32 ? load32(first + at) : load32Once(first + at);
  }
  VectorBytes vector(size_t at) const { return loadVector(first + at); }
  void advance(int rows) { first = SourceRows{first, step}.row(rows); }
  bool isApart(TargetRows dst, size_t bytes, int rows) const {
    return sizeof(S) != sizeof(D) || areApart({first, step}, dst, bytes, rows);
  }
  void describe(PieceSource* source) const { *source = {{first, step}, sizeof(S), sizeof(S) == sizeof(D)}; }
  ImageRow onPieces(const Byte* const* pieces, size_t) const { return ImageRow(*pieces); }
};

// A constant pixel over and over: one whose size divides a block, or one of three samples.
template <bool ofThree>
struct ConstantRow {
  const PixelPattern& pattern;
  size_t start = 0;

  static constexpr size_t kBlocks = ofThree ? PixelPattern::kPeriod / kBlock : 1;
  static constexpr int kSources = 0;
  using Phase = Bytes32;

  const Byte* from(size_t at) const { return pattern.bytes + (start + at) % (kBlocks * kBlock); }
  Phase phase(size_t at) const { return load32(from(at)); }
  Bytes32 block(size_t, Phase phase) const { return phase; }
  VectorBytes vector(size_t at) const { return loadVector(from(at)); }
  void advance(int) {}
  static bool isApart(TargetRows, size_t, int) { return true; }
  void describe(PieceSource*) const {}
  ConstantRow onPieces(const Byte* const*, size_t at) const { return {pattern, start + at}; }
};

// Vectors side by side, as one operand of a function, and their bytes. Those of half a block stand for either
// half.
template <size_t n, typename V>
struct Several {
  V each[n];

  const V& operator[](size_t i) const { return each[i]; }
};
template <size_t n, size_t bytes>
struct SeveralBytes {
  typename Register<bytes>::Type each[n];
};
template <size_t n>
SeveralBytes<n, 16> lowHalf(const SeveralBytes<n, 16>& v) {
  return v;
}
template <size_t n>
SeveralBytes<n, 16> highHalf(const SeveralBytes<n, 16>& v) {
  return v;
}
template <size_t n>
SeveralBytes<n, 16> lowHalf(const SeveralBytes<n, 32>& v) {
  SeveralBytes<n, 16> half;
  for (size_t i = 0; i < n; ++i) half.each[i] = lowHalf(v.each[i]);
  return half;
}
template <size_t n>
SeveralBytes<n, 16> highHalf(const SeveralBytes<n, 32>& v) {
  SeveralBytes<n, 16> half;
  for (size_t i = 0; i < n; ++i) half.each[i] = highHalf(v.each[i]);
  return half;
}
template <typename T, size_t n, size_t bytes>
auto samplesOf(const SeveralBytes<n, bytes>& v) {
  Several<n, decltype(samplesOf<T>(v.each[0]))> samples;
  for (size_t i = 0; i < n; ++i) samples.each[i] = samplesOf<T>(v.each[i]);
  return samples;
}

// Images of T samples side by side: functions take them as Several.
template <typename T, size_t n>
struct ImageRows {
  using Row = ImageRow<T, T>;
  std::array<Row, n> rows;

  static constexpr size_t kBlocks = 1;
  static constexpr int kSources = static_cast<int>(n);
  struct Phase {};

  Phase phase(size_t) const { return {}; }
  SeveralBytes<n, kBlock> block(size_t at, Phase) const {
    SeveralBytes<n, kBlock> blocks;
    for (size_t i = 0; i < n; ++i) blocks.each[i] = rows[i].block(at, {});
    return blocks;
  }
  SeveralBytes<n, kVectorBytes> vector(size_t at) const {
    SeveralBytes<n, kVectorBytes> vectors;
    for (size_t i = 0; i < n; ++i) vectors.each[i] = rows[i].vector(at);
    return vectors;
  }
  void advance(int by) {
    for (Row& row : rows) row.advance(by);
  }
  bool isApart(TargetRows dst, size_t bytes, int height) const {
    bool apart = true;
    for (const Row& row : rows) apart = apart && row.isApart(dst, bytes, height);
    return apart;
  }
  void describe(PieceSource* sources) const {
    for (size_t i = 0; i < n; ++i) rows[i].describe(sources + i);
  }
  ImageRows onPieces(const Byte* const* pieces, size_t at) const {
    ImageRows result = *this;
    for (size_t i = 0; i < n; ++i) result.rows[i] = rows[i].onPieces(pieces + i, at);
    return result;
  }
};

// Constant pixels of T samples, each over and over: functions take them as Several. Pixels of three samples,
// or of up to sixteen bytes.
template <typename T, size_t n, bool ofThree>
struct ConstantRows {
  const PixelPattern* patterns;
  size_t start = 0;

  static constexpr size_t kBlocks = ConstantRow<ofThree>::kBlocks;
  static constexpr int kSources = 0;
  // Half a block of pixels that divide it is the same as the other half, and takes fewer registers.
  static constexpr bool kHalf = !ofThree && !std::is_floating_point_v<T>;
  using Phase = SeveralBytes<n, kHalf ? kVectorBytes : kBlock>;

  ConstantRow<ofThree> row(size_t i) const { return {patterns[i], start}; }
  Phase phase(size_t at) const {
    Phase phase;
    for (size_t i = 0; i < n; ++i)
      if constexpr (kHalf)
        phase.each[i] = row(i).vector(at);
      else
        phase.each[i] = row(i).phase(at);
    return phase;
  }
  Phase block(size_t, const Phase& phase) const { return phase; }
  SeveralBytes<n, kVectorBytes> vector(size_t at) const {
    SeveralBytes<n, kVectorBytes> vectors;
    for (size_t i = 0; i < n; ++i) vectors.each[i] = row(i).vector(at);
    return vectors;
  }
  void advance(int) {}
  static bool isApart(TargetRows, size_t, int) { return true; }
  void describe(PieceSource*) const {}
  ConstantRows onPieces(const Byte* const*, size_t at) const { return {patterns, start + at}; }
};

// Whether a function is so little work that the stores bound it: F::kStoresBind. A store of half a block
// takes as long as one of it, but to join halves takes a shuffle, which dearer functions have no room for.
template <typename F, typename = void>
inline constexpr bool kStoresBind = false;
template <typename F>
inline constexpr bool kStoresBind<F, std::enable_if_t<F::kStoresBind>> = true;

// Whether a function takes the 32 bytes of a block at once in every build, as F::Block.
template <typename F, typename = void>
inline constexpr bool kTakesBlocks = false;
template <typename F>
inline constexpr bool kTakesBlocks<F, std::void_t<typename F::Block>> = true;

// Applies f, which takes vectors of T samples, to 32 bytes of each operand. Floats go at once; integers go by
// halves where the build has no wider ones and f does not say otherwise.
template <typename T, typename F, typename... Operand>
[[gnu::always_inline]] inline auto applyToBlock(const F& f, Operand... operands) {
  if constexpr (kTakesBlocks<F>)
    return bytesOf(f(blockAs<typename F::Block>(operands)...));
  else if constexpr (std::is_floating_point_v<T> || kVectorBytes == 32)
    return bytesOf(f(samplesOf<T>(operands)...));
  else if constexpr (kStoresBind<F>)
    return joined(halves(bytesOf(f(samplesOf<T>(lowHalf(operands))...)),
                         bytesOf(f(samplesOf<T>(highHalf(operands))...))));
  else
    return halves(bytesOf(f(samplesOf<T>(lowHalf(operands))...)),
                  bytesOf(f(samplesOf<T>(highHalf(operands))...)));
}

// A function of sixteen bytes, for vectors of any width.
template <typename F>
struct InSixteens {
  F f;

  InSixteens() = default;
  template <typename... Argument>
  explicit InSixteens(Argument... argument) : f(argument...) {}
  template <typename T>
  auto operator()(Samples16<T> a, Samples16<T> b) const {
    return f(a, b);
  }
  template <typename T>
  auto operator()(Samples32<T> a, Samples32<T> b) const {
    return joined(f(Samples16<T>{lowHalf(a.v)}, Samples16<T>{lowHalf(b.v)}),
                  f(Samples16<T>{highHalf(a.v)}, Samples16<T>{highHalf(b.v)}));
  }
};

// d = f(a, b), samples of one type T.
template <typename T, typename F, typename A, typename B>
struct Binary {
  A a;
  B b;
  F f;

  static constexpr size_t kSample = sizeof(T), kPeriod = std::max(A::kBlocks, B::kBlocks);
  static constexpr int kSources = A::kSources + B::kSources;
  struct Phase {
    typename A::Phase a;
    typename B::Phase b;
  };

  Phase phase(size_t at) const { return {a.phase(at), b.phase(at)}; }
  [[gnu::always_inline]] auto block(size_t at, const Phase& phase) const {
    return applyToBlock<T>(f, a.block(at, phase.a), b.block(at, phase.b));
  }
  [[gnu::always_inline]] auto vector(size_t at) const {
    return bytesOf(f(samplesOf<T>(a.vector(at)), samplesOf<T>(b.vector(at))));
  }
  void advance(int rows) {
    a.advance(rows);
    b.advance(rows);
  }
  bool isApart(TargetRows dst, size_t bytes, int rows) const {
    return a.isApart(dst, bytes, rows) && b.isApart(dst, bytes, rows);
  }
  void describe(PieceSource* sources) const {
    a.describe(sources);
    b.describe(sources + A::kSources);
  }
  Binary onPieces(const Byte* const* pieces, size_t at) const {
    return {a.onPieces(pieces, at), b.onPieces(pieces + A::kSources, at), f};
  }
};

// d = f(a), of S samples a sample D. f.vector(p) makes a vector of results from the samples that begin at p.
// An f that thinks in sixteen bytes has half(p) and block(p) instead: 16 and 32 bytes of results.
template <typename F, typename = void>
inline constexpr bool kHasBlock = false;
template <typename F>
inline constexpr bool kHasBlock<F, decltype(static_cast<void>(std::declval<const F&>().block(nullptr)))> =
    true;

template <typename S, typename D, typename F>
[[gnu::always_inline]] inline auto blockOf(const F& f, const Byte* p) {
  if constexpr (kHasBlock<F>)
    return f.block(p);
  else if constexpr (kVectorBytes == kBlock)
    return f.vector(p);
  else if constexpr (sizeof(S) <= sizeof(D))
    return joined(halves(f.vector(p), f.vector(p + kVectorBytes / sizeof(D) * sizeof(S))));
  else  // shuffles bound what narrows, and joining would be one more
    return halves(f.vector(p), f.vector(p + kVectorBytes / sizeof(D) * sizeof(S)));
}
template <typename F>
[[gnu::always_inline]] inline auto vectorOf(const F& f, const Byte* p) {
  if constexpr (!kHasBlock<F>)
    return f.vector(p);
  else if constexpr (kVectorBytes == kBlock)
    return joined(f.block(p));
  else
    return f.half(p);
}

template <typename S, typename D, typename F>
struct Unary {
  ImageRow<S, D> a;
  F f;

  static constexpr size_t kSample = sizeof(D), kPeriod = 1;
  static constexpr int kSources = 1;
  struct Phase {};

  Phase phase(size_t) const { return {}; }
  [[gnu::always_inline]] auto block(size_t at, Phase) const { return blockOf<S, D>(f, a(at)); }
  [[gnu::always_inline]] auto vector(size_t at) const { return vectorOf(f, a(at)); }
  void advance(int rows) { a.advance(rows); }
  bool isApart(TargetRows dst, size_t bytes, int rows) const { return a.isApart(dst, bytes, rows); }
  void describe(PieceSource* sources) const { a.describe(sources); }
  Unary onPieces(const Byte* const* pieces, size_t at) const { return {a.onPieces(pieces, at), f}; }
};

// Another rule's results in the first bytes of every pixel; the others, alpha, keep what the destination has.
template <size_t pixelBytes, size_t usedBytes, typename Rule>
struct KeepAlpha {
  Rule rule;
  ImageRow<Byte, Byte> old;
  size_t start = 0;

  static constexpr size_t kSample = Rule::kSample, kPeriod = Rule::kPeriod;
  static constexpr int kSources = Rule::kSources + 1;
  struct Phase {
    typename Rule::Phase rule;
    Bytes32 mask;
  };
  static constexpr auto kUsed = pixelMask<pixelBytes, usedBytes, 2 * kBlock>();

  const Byte* maskFrom(size_t at) const { return kUsed.bytes + (start + at) % pixelBytes; }
  Phase phase(size_t at) const { return {rule.phase(at), load32(maskFrom(at))}; }
  [[gnu::always_inline]] auto block(size_t at, const Phase& phase) const {
    return ifThenElse(phase.mask, rule.block(at, phase.rule), old.block(at, {}));
  }
  [[gnu::always_inline]] auto vector(size_t at) const {
    return ifThenElse(loadVector(maskFrom(at)), rule.vector(at), old.vector(at));
  }
  void advance(int rows) {
    rule.advance(rows);
    old.advance(rows);
  }
  bool isApart(TargetRows dst, size_t bytes, int rows) const { return rule.isApart(dst, bytes, rows); }
  // The destination itself, which overlaps nothing that it should not.
  void describe(PieceSource* sources) const {
    rule.describe(sources);
    sources[Rule::kSources] = {{old.first, old.step}, kSample, false};
  }
  KeepAlpha onPieces(const Byte* const* pieces, size_t at) const {
    return {rule.onPieces(pieces, at), old.onPieces(pieces + Rule::kSources, at), start + at};
  }
};

// Runs a rule over the samples of a layout: all of them, or the colour of pixels with alpha.
template <size_t pixelBytes, size_t usedBytes, typename Store = Cached, typename Rule>
[[gnu::always_inline]] inline MarksOf<Rule> runPixels(TargetRows dst, Extent samples, const Rule& rule) {
  if constexpr (usedBytes == pixelBytes)
    return runRows<Store>(dst, samples, rule);
  else
    return runRows<Store>(
        dst, samples,
        KeepAlpha<pixelBytes, usedBytes, Rule>{rule, ImageRow<Byte, Byte>(SourceRows{dst.first, dst.step})});
}

}  // namespace lumi::simd
