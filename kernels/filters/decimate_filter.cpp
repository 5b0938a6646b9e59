// SPDX-License-Identifier: MIT
#include "kernels/filters/decimate_filter.hpp"

#include <algorithm>
#include <array>
#include <utility>

#include "kernels/filters/filter_blocks.hpp"
#include "kernels/filters/tap_lines.hpp"

namespace lumi {
namespace {

using namespace simd;

constexpr DecimationPhase kHalf[] = {{-4, 10, {2, -6, -15, 33, 114, 114, 33, -15, -6, 2}}};
constexpr DecimationPhase kThreeFifths[] = {{-4, 9, {1, -2, -18, 49, 151, 92, -10, -9, 2}},
                                            {-2, 9, {2, -9, -10, 92, 151, 49, -18, -2, 1}},
                                            {0, 8, {1, -16, 13, 130, 130, 13, -16, 1}}};
constexpr DecimationPhase kTwoThirds[] = {{-3, 8, {2, -18, 27, 163, 102, -16, -5, 1}},
                                          {-2, 8, {1, -5, -16, 102, 163, 27, -18, 2}}};
constexpr DecimationPhase kSevenTenths[] = {
    {-3, 8, {3, -17, 25, 171, 94, -20, -1, 1}}, {-2, 8, {1, -5, -15, 119, 160, 7, -13, 2}},
    {0, 7, {2, -21, 46, 180, 70, -22, 1}},      {1, 8, {2, -9, -6, 141, 141, -6, -9, 2}},
    {3, 7, {1, -22, 70, 180, 46, -21, 2}},      {4, 8, {2, -13, 7, 160, 119, -15, -5, 1}},
    {5, 8, {1, -1, -20, 94, 171, 25, -17, 3}}};
constexpr DecimationPhase kThreeQuarters[] = {{-3, 7, {2, -15, 22, 187, 81, -23, 2}},
                                              {-2, 8, {1, -4, -14, 145, 145, -14, -4, 1}},
                                              {0, 7, {2, -23, 81, 187, 22, -15, 2}}};

constexpr Decimation kFractions[kDecimations] = {
    {2, 1, kHalf}, {5, 3, kThreeFifths}, {3, 2, kTwoThirds}, {10, 7, kSevenTenths}, {4, 3, kThreeQuarters}};

constexpr int kMostPhases = 7, kPairs = 5;
constexpr size_t kBlock = 8;  // results that are made at once

// Weights of a phase as sums of pairs take them.
struct alignas(16) PhasePairs {
  int16_t pair[kPairs][8];
};
using FractionPairs = std::array<PhasePairs, kMostPhases>;

constexpr FractionPairs pairsOf(const Decimation& d) {
  FractionPairs all{};
  for (int phase = 0; phase < d.results; ++phase)
    for (int i = 0; i < kPairs; ++i)
      for (int k = 0; k < 8; ++k)
        all[static_cast<size_t>(phase)].pair[i][k] = d.phases[phase].taps[2 * i + k % 2];
  return all;
}
constexpr FractionPairs kFractionPairs[kDecimations] = {pairsOf(kFractions[0]), pairsOf(kFractions[1]),
                                                        pairsOf(kFractions[2]), pairsOf(kFractions[3]),
                                                        pairsOf(kFractions[4])};

// Four results that follow one another lie under sixteen samples. Shuffles bring those under each pair of
// weights to the result's dword, as words.
struct Gather {
  int first;
  alignas(16) Control controls[kPairs];
  int16_t taps[kPairs][8];
};
// Blocks of results repeat themselves after as many as a group has.
using Gathers = std::array<std::array<Gather, 2>, kMostPhases>;

constexpr int firstSample(const Decimation& d, int result) {
  return result / d.results * d.samples + d.phases[result % d.results].first;
}

constexpr Gather gatherOf(const Decimation& d, int result) {
  Gather g{firstSample(d, result), {}, {}};
  for (int lane = 0; lane < 4; ++lane)
    for (int i = 0; i < kPairs; ++i)
      for (int k = 0; k < 2; ++k) {
        const int at = firstSample(d, result + lane) - g.first + 2 * i + k;
        const int16_t tap = d.phases[(result + lane) % d.results].taps[2 * i + k];
        const auto byte = static_cast<size_t>(4 * lane + 2 * k);
        g.controls[i][byte] = tap == 0 ? kZero : static_cast<Byte>(at);
        g.controls[i][byte + 1] = kZero;
        g.taps[i][2 * lane + k] = tap;
      }
  return g;
}

constexpr Gathers gathersOf(const Decimation& d) {
  Gathers all{};
  for (int block = 0; block < d.results; ++block)
    for (int half = 0; half < 2; ++half)
      all[static_cast<size_t>(block)][static_cast<size_t>(half)] = gatherOf(d, 8 * block + 4 * half);
  return all;
}
constexpr Gathers kGathers[kDecimations] = {gathersOf(kFractions[0]), gathersOf(kFractions[1]),
                                            gathersOf(kFractions[2]), gathersOf(kFractions[3]),
                                            gathersOf(kFractions[4])};

// (sum + 128) >> 8.
struct By256 {
  template <size_t bytes>
  SamplesOf<int32_t, bytes> operator()(SamplesOf<int32_t, bytes> sum) const {
    return shiftRight<8>(sum + broadcastLike(sum, 128));
  }
};

template <int pairs>
S32 sumsOf(const Gather& g, Bytes16 samples) {
  S32 sums{};
  for (int i = 0; i < pairs; ++i)
    sums = sums + multiplyAddPairs(S16{shuffleBytes(samples, vectorOf(g.controls[i]))},
                                   S16{load16(reinterpret_cast<const Byte*>(g.taps[i]))});
  return sums;
}

// Stores a block; `p` is where its first sample would be.
template <int pairs>
[[gnu::always_inline]] inline void storeBlock(const std::array<Gather, 2>& gather, const Byte* p, Byte* dst) {
  Sums<2, 16> sums;
  const ptrdiff_t between = gather[1].first - gather[0].first;
  sums.at[0] = sumsOf<pairs>(gather[0], load16(p));
  sums.at[1] = sumsOf<pairs>(gather[1], load16(p + between));
  storeSums<uint8_t>(dst, sums, By256());
}

// The samples that the last block loads.
ptrdiff_t reachOf(const std::array<Gather, 2>& gather) { return gather[1].first - gather[0].first + 16; }

// A row's results. At its end blocks are made of copies, since their loads reach further than their weights.
template <int pairs>
void decimateRow(int fraction, const Byte* src, Byte* dst, int groups) {
  const Decimation& d = kFractions[fraction];
  const auto blocks = static_cast<size_t>(d.results);
  const size_t results = static_cast<size_t>(groups) * blocks;
  const DecimationPhase* const last =
      std::max_element(d.phases, d.phases + blocks,
                       [](const auto& a, const auto& b) { return a.first + a.count < b.first + b.count; });
  const Byte* const end = src + ptrdiff_t{groups - 1} * d.samples + last->first + last->count;
  const Byte* period = src;  // of as many blocks as a group has results
  for (size_t i = 0, block = 0; i < results; i += kBlock) {
    const auto& gather = kGathers[fraction][block];
    const Byte* const p = period + gather[0].first;
    if (end - p >= reachOf(gather) && results - i >= kBlock) {
      storeBlock<pairs>(gather, p, dst + i);
    } else {
      Byte samples[2 * 16] = {}, made[kBlock];
      std::copy_n(p, std::min<ptrdiff_t>(end - p, reachOf(gather)), samples);
      storeBlock<pairs>(gather, samples, made);
      std::copy_n(made, std::min(kBlock, results - i), dst + i);
    }
    if (++block == blocks) block = 0, period += static_cast<ptrdiff_t>(kBlock) * d.samples;
  }
}

// Less samples than a block has.
void decimateFew(const TapPairs& pairs, SourceRows src, Byte* dst, size_t samples) {
  Byte copied[2 * kPairs][kBlock] = {}, made[kBlock];
  for (int i = 0; i < pairs.count; ++i) std::copy_n(src.row(i), samples, copied[i]);
  storeTapSums<InDwords, 1, kBlock>(pairs, copied[0], kBlock, {made, 0}, By256());
  std::copy_n(made, samples, dst);
}

}  // namespace

const Decimation& decimationOf(int fraction) { return kFractions[fraction]; }

void decimateRows(int fraction, SourceRows src, TargetRows dst, int groups, int rows) {
  const bool isLong = kFractions[fraction].phases[0].count > 8;
  walkRows(
      rows,
      [&](const Byte* s, Byte* d) {
        isLong ? decimateRow<kPairs>(fraction, s, d, groups)
               : decimateRow<kPairs - 1>(fraction, s, d, groups);
      },
      src, dst);
}

void decimateColumns(int fraction, SourceRows src, TargetRows dst, size_t samples, int groups) {
  const Decimation& d = kFractions[fraction];
  for (int group = 0; group < groups; ++group)
    for (int phase = 0; phase < d.results; ++phase) {
      const DecimationPhase& its = d.phases[phase];
      const auto& pair = kFractionPairs[fraction][static_cast<size_t>(phase)].pair;
      const TapPairs pairs{its.count, reinterpret_cast<const Byte*>(pair), nullptr};
      const SourceRows from{src.row(group * d.samples + its.first), src.step};
      Byte* const to = dst.row(group * d.results + phase);
      if (samples < kBlock) {
        decimateFew(pairs, from, to, samples);
        continue;
      }
      inVectorBlocks(samples, [&](auto size, size_t i) {
        storeTapSums<InDwords, 1, decltype(size)::value>(pairs, from.first + i, from.step, {to + i, 0},
                                                         By256());
      });
    }
}

}  // namespace lumi
