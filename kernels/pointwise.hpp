// SPDX-License-Identifier: MIT
// The loop of every operation that makes a sample from the samples at its own place. A kernel describes its
// row as a rule and hands it to runRow; heads, tails, short rows, phases and overlap are taken care of here.
//
// A rule says, for byte offsets `at` into the destination's row:
//   kSample           bytes of a destination sample; every offset is a multiple of it
//   kPeriod           blocks after which constants repeat
//   phase(at)         what stays the same for the blocks at `at`, `at` + kPeriod blocks and so on
//   block(at, phase)  the 32 bytes of results there, as Bytes32 or Halves32
//   half(at)          the 16 bytes of results there
//   distance(d, n)    how far from d a source begins that shares some of the n bytes there, but does not
//   begin
//                     with them; n if there is none
//   Room, gathered(room, at, n)
//                     a copy of the rule whose sources begin at `at` and hold n bytes' worth of samples, in
//                     `room` where they come from memory: what lies behind may be read
#pragma once

#include <algorithm>
#include <utility>

#include "kernels/pattern.hpp"
#include "kernels/simd/samples.hpp"

namespace lumi::simd {

inline constexpr size_t kBlock = 32, kHalf = 16;

// Few bytes, by their count's bits.
inline void copyFew(Byte* to, const Byte* from, size_t bytes) {
  size_t at = 0;
  for (; at + 16 <= bytes; at += 16) move<16>(to + at, from + at);
  const auto piece = [&](auto n) {
    if (bytes & n) move<n>(to + at, from + at), at += n;
  };
  piece(std::integral_constant<size_t, 8>());
  piece(std::integral_constant<size_t, 4>());
  piece(std::integral_constant<size_t, 2>());
  piece(std::integral_constant<size_t, 1>());
}

// Results in steps of a half or less, each made in a copy of its samples, strictly in order.
template <typename Rule>
[[gnu::noinline, gnu::flatten]] void runInSteps(Byte* d, size_t at, size_t bytes, size_t step,
                                                const Rule& rule) {
  for (; at < bytes; at += step) {
    typename Rule::Room room{};
    alignas(kHalf) Byte results[kHalf];
    store16(results, rule.gathered(room, at, step).half(0));
    copyFew(d + at, results, step);
  }
}

// Where the first and last block lie over others, all of them are made of what was there before: they are
// made first and stored last, so that the destination may be the source.
template <typename Store, typename Rule, size_t... k, size_t... rest>
[[gnu::noinline, gnu::flatten]] void runLong(Byte* d, size_t bytes, const Rule& given,
                                             std::index_sequence<k...>, std::index_sequence<rest...>) {
  const Rule rule = given;  // of our own: bytes stored could change the other, for all that compilers know
  const size_t reach = reachPastBoundary(d, kBlock);
  const bool canAlign = reach % Rule::kSample == 0;
  const auto first = rule.block(0, rule.phase(0));
  const auto last = rule.block(bytes - kBlock, rule.phase(bytes - kBlock));
  size_t at = canAlign ? reach : kBlock;
  const typename Rule::Phase phases[] = {rule.phase(at + k % Rule::kPeriod * kBlock)...};
  constexpr size_t round = sizeof...(k) * kBlock;
  for (; at + round <= bytes; at += round)
    (Store::store(d + at + k * kBlock, rule.block(at + k * kBlock, phases[k])), ...);
  const auto one = [&](const auto& phase) {
    if (at + kBlock > bytes) return false;
    Cached::store(d + at, rule.block(at, phase));
    at += kBlock;
    return true;
  };
  static_cast<void>((one(phases[rest]) && ...));
  Cached::store(d, first);
  Cached::store(d + bytes - kBlock, last);
}

// Rows that overlap a source: as if each sample were made and stored before the next is read. From a block's
// distance on, whole blocks in order see to that too.
template <typename Rule>
[[gnu::noinline, gnu::flatten]] void runOverlapping(Byte* d, size_t bytes, size_t distance,
                                                    const Rule& rule) {
  size_t at = 0;
  if (distance >= kBlock)
    for (; at + kBlock <= bytes; at += kBlock) Cached::store(d + at, rule.block(at, rule.phase(at)));
  runInSteps(d, at, bytes, Rule::kSample, rule);
}

// Makes a row of `bytes` bytes at d. A destination may be a source, sample for sample; where they overlap
// otherwise, the samples are made one by one from the first to the last. Store is how whole blocks on
// boundaries are stored.
template <typename Store = Cached, typename Rule>
[[gnu::flatten]] void runRow(Byte* d, size_t bytes, const Rule& rule) {
  const size_t distance = rule.distance(d, bytes);
  if (distance < bytes) return runOverlapping(d, bytes, distance, rule);
  if (bytes < kHalf) return runInSteps(d, 0, bytes, bytes, rule);
  if (bytes < kBlock) {
    const Bytes16 first = rule.half(0), last = rule.half(bytes - kHalf);
    store16(d, first);
    store16(d + bytes - kHalf, last);
    return;
  }
  if (bytes <= 2 * kBlock) {
    const auto first = rule.block(0, rule.phase(0));
    const auto last = rule.block(bytes - kBlock, rule.phase(bytes - kBlock));
    Cached::store(d, first);
    Cached::store(d + bytes - kBlock, last);
    return;
  }
  constexpr size_t round = Rule::kPeriod == 1 ? 2 : Rule::kPeriod;
  const auto run = [&](auto store) {
    runLong<decltype(store)>(d, bytes, rule, std::make_index_sequence<round>(),
                             std::make_index_sequence<round - 1>());
  };
  // No sample of a row at an odd address starts on a boundary, and stores that bypass the cache need one.
  if (isAligned(d, Rule::kSample))
    run(Store());
  else
    run(Cached());
}

// A row of S samples that becomes one of D samples.
template <typename S, typename D>
struct ImageRow {
  const Byte* first;

  static constexpr size_t kBlocks = 1;
  struct Phase {};
  // Never less than a vector: pieces are gathered in steps of up to eight bytes, however few there are.
  struct Room {
    alignas(kHalf) Byte bytes[std::max(kHalf, kHalf / sizeof(D) * sizeof(S))];
  };
  static constexpr size_t sourceBytes(size_t bytes) { return bytes / sizeof(D) * sizeof(S); }

  const Byte* operator()(size_t at) const { return first + sourceBytes(at); }
  Phase phase(size_t) const { return {}; }
  Bytes32 block(size_t at, Phase) const {
    return std::is_same_v<S, float> ? load32(first + at) : load32Once(first + at);
  }
  Bytes16 half(size_t at) const { return load16(first + at); }
  size_t distance(const Byte* d, size_t bytes) const {
    if (sizeof(S) != sizeof(D) || d == first) return bytes;
    return std::min(bytes, static_cast<size_t>(d < first ? first - d : d - first));
  }
  ImageRow gathered(Room& room, size_t at, size_t bytes) const {
    copyFew(room.bytes, (*this)(at), sourceBytes(bytes));
    return {room.bytes};
  }
};

// A constant pixel over and over: one whose size divides a block, or one of three samples.
template <bool ofThree>
struct ConstantRow {
  const PixelPattern& pattern;
  size_t start = 0;

  static constexpr size_t kBlocks = ofThree ? PixelPattern::kPeriod / kBlock : 1;
  using Phase = Bytes32;
  struct Room {};

  const Byte* from(size_t at) const { return pattern.bytes + (start + at) % (kBlocks * kBlock); }
  Phase phase(size_t at) const { return load32(from(at)); }
  Bytes32 block(size_t, Phase phase) const { return phase; }
  Bytes16 half(size_t at) const { return load16(from(at)); }
  size_t distance(const Byte*, size_t bytes) const { return bytes; }
  ConstantRow gathered(Room&, size_t at, size_t) const { return {pattern, start + at}; }
};

// Applies f, which takes vectors of T samples, to 32 bytes of each operand. Floats go at once; integers have
// no vectors of that width and go by halves.
template <typename T, typename F, typename... Operand>
auto applyToBlock(const F& f, Operand... operands) {
  if constexpr (std::is_same_v<T, float>)
    return asBytes(f(Floats8{asFloats(operands)}...).v);
  else
    return Halves32{bytesOf(f(samplesOf<T>(lowHalf(operands))...)),
                    bytesOf(f(samplesOf<T>(highHalf(operands))...))};
}

// d = f(a, b), samples of one type T.
template <typename T, typename F, typename A, typename B>
struct Binary {
  A a;
  B b;
  F f;

  static constexpr size_t kSample = sizeof(T);
  static constexpr size_t periodOf(size_t x, size_t y) { return x > y ? x : y; }
  static constexpr size_t kPeriod = periodOf(A::kBlocks, B::kBlocks);
  struct Phase {
    typename A::Phase a;
    typename B::Phase b;
  };
  struct Room {
    typename A::Room a;
    typename B::Room b;
  };

  Phase phase(size_t at) const { return {a.phase(at), b.phase(at)}; }
  auto block(size_t at, const Phase& phase) const {
    return applyToBlock<T>(f, a.block(at, phase.a), b.block(at, phase.b));
  }
  Bytes16 half(size_t at) const { return bytesOf(f(samplesOf<T>(a.half(at)), samplesOf<T>(b.half(at)))); }
  size_t distance(const Byte* d, size_t bytes) const {
    return std::min(a.distance(d, bytes), b.distance(d, bytes));
  }
  Binary gathered(Room& room, size_t at, size_t bytes) const {
    return {a.gathered(room.a, at, bytes), b.gathered(room.b, at, bytes), f};
  }
};

// d = f(a), of S samples a sample D. f has block(p) and half(p): 32 and 16 bytes of results from the samples
// that begin at p.
template <typename S, typename D, typename F>
struct Unary {
  ImageRow<S, D> a;
  F f;

  static constexpr size_t kSample = sizeof(D), kPeriod = 1;
  struct Phase {};
  using Room = typename ImageRow<S, D>::Room;

  Phase phase(size_t) const { return {}; }
  auto block(size_t at, Phase) const { return f.block(a(at)); }
  Bytes16 half(size_t at) const { return f.half(a(at)); }
  size_t distance(const Byte* d, size_t bytes) const { return a.distance(d, bytes); }
  Unary gathered(Room& room, size_t at, size_t bytes) const { return {a.gathered(room, at, bytes), f}; }
};

// Another rule's results in the first bytes of every pixel; the others, alpha, keep what the destination has.
template <size_t pixelBytes, size_t usedBytes, typename Rule>
struct KeepAlpha {
  Rule rule;
  ImageRow<Byte, Byte> old;
  size_t start = 0;

  static constexpr size_t kSample = Rule::kSample, kPeriod = Rule::kPeriod;
  struct Phase {
    typename Rule::Phase rule;
    Bytes32 mask;
  };
  struct Room {
    typename Rule::Room rule;
    ImageRow<Byte, Byte>::Room old;
  };
  struct Masks {
    alignas(kBlock) Byte bytes[2 * kBlock];  // 0xFF where results go
  };
  static constexpr Masks masks() {
    Masks m{};
    for (size_t i = 0; i < sizeof m.bytes; ++i) m.bytes[i] = i % pixelBytes < usedBytes ? 0xFF : 0;
    return m;
  }
  static constexpr Masks kMasks = masks();

  const Byte* maskFrom(size_t at) const { return kMasks.bytes + (start + at) % pixelBytes; }
  Phase phase(size_t at) const { return {rule.phase(at), load32(maskFrom(at))}; }
  auto block(size_t at, const Phase& phase) const {
    return ifThenElse(phase.mask, rule.block(at, phase.rule), old.block(at, {}));
  }
  Bytes16 half(size_t at) const { return ifThenElse(load16(maskFrom(at)), rule.half(at), old.half(at)); }
  size_t distance(const Byte* d, size_t bytes) const { return rule.distance(d, bytes); }
  KeepAlpha gathered(Room& room, size_t at, size_t bytes) const {
    return {rule.gathered(room.rule, at, bytes), old.gathered(room.old, at, bytes), start + at};
  }
};

// Runs a rule over the samples of a layout: all of them, or the colour of pixels with alpha.
template <size_t pixelBytes, size_t usedBytes, typename Store = Cached, typename Rule>
void runPixels(Byte* d, size_t bytes, const Rule& rule) {
  if constexpr (usedBytes == pixelBytes)
    runRow<Store>(d, bytes, rule);
  else
    runRow<Store>(d, bytes, KeepAlpha<pixelBytes, usedBytes, Rule>{rule, {d}});
}

}  // namespace lumi::simd
