// SPDX-License-Identifier: MIT
#include "kernels/statistics/moments.hpp"

#include <algorithm>
#include <cstring>
#include <type_traits>

#include "kernels/simd/elementary.hpp"
#include "kernels/simd/floats.hpp"
#include "kernels/simd/quads.hpp"
#include "kernels/simd/samples.hpp"

namespace lumi {
namespace {

using namespace simd;

// How samples are summed up: down a strip of rows in vectors V of kLanes sums, then along groups of columns
// in kWide vectors W. A strip has at most kRows rows and a part of it kGroups groups, so that no integer goes
// around.
template <typename T>
struct MomentLanes;

// Words hold 255 * C(10, 4), dwords 2550 * C(80, 4).
template <>
struct MomentLanes<uint8_t> {
  using V = U16;
  using W = U32;
  using Sum = uint32_t;
  static constexpr int kLanes = 8, kWide = 2, kRows = 10, kGroups = 80;

  static V none() { return broadcast16<uint16_t>(0); }
  static W noSums() { return broadcast16<uint32_t>(0); }
  static V load(const Byte* p) {
    return as<uint16_t>(interleaveLow(U8{loadFew<8>(p)}, broadcast16<uint8_t>(0)));
  }
  static void widen(V x, W* wide) {
    wide[0] = as<uint32_t>(interleaveLow(x, none()));
    wide[1] = as<uint32_t>(interleaveHigh(x, none()));
  }
};

// Dwords hold 65535 * C(32, 4), quads 2^21 * C(2048, 4).
template <>
struct MomentLanes<uint16_t> {
  using V = U32;
  using W = Quads;
  using Sum = uint64_t;
  static constexpr int kLanes = 4, kWide = 2, kRows = 32, kGroups = 2048;

  static V none() { return broadcast16<uint32_t>(0); }
  static W noSums() { return broadcastQuad(0); }
  static V load(const Byte* p) {
    return as<uint32_t>(interleaveLow(U16{loadFew<8>(p)}, broadcast16<uint16_t>(0)));
  }
  static void widen(V x, W* wide) {
    wide[0] = {interleaveLow(x, none()).v};
    wide[1] = {interleaveHigh(x, none()).v};
  }
};

template <>
struct MomentLanes<float> {
  using V = Doubles4;
  using W = Doubles4;
  using Sum = double;
  static constexpr int kLanes = 4, kWide = 1, kRows = 32, kGroups = 2048;

  static V none() { return V{}; }
  static W noSums() { return W{}; }
  static V load(const Byte* p) { return doublesOf(loadFloats4(p)); }
  static void widen(V x, W* wide) { wide[0] = x; }
};

// Sums of C(r, q) * C(g, a) * sample, of row r and group g, for a from 0 to 3 - q: those of q behind those of
// q - 1.
constexpr int kFirst[] = {0, 4, 7, 9}, kSums = 10;

template <typename T>
struct GroupSums {
  using L = MomentLanes<T>;
  typename L::W of[L::kWide][kSums];
};

// Four lanes of a sum, from the first one on, as doubles.
inline Doubles4 fourLanes(const GroupSums<uint8_t>& sums, int first, size_t k) {
  return doublesOf(as<int32_t>(sums.of[first / 4][k]) ^ broadcast16(INT32_MIN)) + broadcastDouble(0x1p31);
}
inline Doubles4 fourLanes(const GroupSums<uint16_t>& sums, int, size_t k) {
  uint64_t lanes[4];
  store16(reinterpret_cast<Byte*>(lanes), sums.of[0][k].v);
  store16(reinterpret_cast<Byte*>(lanes + 2), sums.of[1][k].v);
  double doubles[4];
  for (int i = 0; i < 4; ++i) doubles[i] = static_cast<double>(static_cast<int64_t>(lanes[i]));  // below 2^61
  return loadDoubles4(doubles);
}
inline Doubles4 fourLanes(const GroupSums<float>& sums, int, size_t k) { return sums.of[0][k]; }

// Adds the samples of one vector, in each of the rows. From the last row to the first, each sum takes the one
// of the order below as it was: a sample is then added C(r, q) times to the sum of order q. Groups do the
// same.
template <typename T>
[[gnu::always_inline]] inline void addColumns(const Byte* first, ptrdiff_t step, int rows,
                                              GroupSums<T>& sums) {
  using L = MomentLanes<T>;
  typename L::V of[4] = {L::none(), L::none(), L::none(), L::none()};
  const Byte* row = first + step * (rows - 1);
  for (int r = rows; r > 0; --r, row -= step) {
    of[3] = of[3] + of[2];
    of[2] = of[2] + of[1];
    of[1] = of[1] + of[0];
    of[0] = of[0] + L::load(row);
  }
  typename L::W wide[4][L::kWide];
  for (int q = 0; q < 4; ++q) L::widen(of[q], wide[q]);
  for (int w = 0; w < L::kWide; ++w) {
    auto& e = sums.of[w];
    e[3] = e[3] + e[2], e[2] = e[2] + e[1], e[1] = e[1] + e[0], e[0] = e[0] + wide[0][w];
    e[6] = e[6] + e[5], e[5] = e[5] + e[4], e[4] = e[4] + wide[1][w];
    e[8] = e[8] + e[7], e[7] = e[7] + wide[2][w];
    e[9] = e[9] + wide[3][w];
  }
}

// A number in all lanes, where N has lanes.
template <typename N>
N constant(int x) {
  if constexpr (std::is_same_v<N, Doubles4>)
    return broadcastDouble(x);
  else
    return static_cast<N>(x);
}

// From sums with C(i, k) for k = 0 to 3 to such with i^k. Nothing is subtracted here or below.
template <typename N>
[[gnu::always_inline]] inline void toPowers(N* e, int count) {
  if (count > 3) e[3] = constant<N>(6) * (e[3] + e[2]) + e[1];
  if (count > 2) e[2] = constant<N>(2) * e[2] + e[1];
}

// From sums with i^k to such with (origin + scale * i)^k.
template <typename N>
[[gnu::always_inline]] inline void shift(N* e, int count, const N& origin, const N& scale) {
  if (count > 1) e[1] = scale * e[1];
  if (count > 2) e[2] = scale * scale * e[2];
  if (count > 3) e[3] = scale * scale * scale * e[3];
  if (count > 3)
    e[3] = e[3] + constant<N>(3) * origin * (e[2] + origin * e[1]) + origin * origin * origin * e[0];
  if (count > 2) e[2] = e[2] + origin * (constant<N>(2) * e[1] + origin * e[0]);
  if (count > 1) e[1] = e[1] + origin * e[0];
}

// From the sums of a lane to its moments, those of x^p * y^q at 4 * q + p: its group 0 is column x, its row 0
// is y.
template <typename N>
[[gnu::always_inline]] inline void toMoments(const N (&sums)[kSums], const N& x, const N& y, int groupPixels,
                                             N (&moments)[16]) {
  N down[4][4];  // of p, q: the sums of a column of moments
  for (int q = 0; q < 4; ++q) {
    N along[4];
    const int count = 4 - q;
    for (int a = 0; a < count; ++a) along[a] = sums[kFirst[q] + a];
    toPowers(along, count);
    shift(along, count, x, constant<N>(groupPixels));
    for (int p = 0; p < count; ++p) down[p][q] = along[p];
  }
  for (int p = 0; p < 4; ++p) {
    toPowers(down[p], 4 - p);
    shift(down[p], 4 - p, y, constant<N>(1));
    for (int q = 0; p + q < 4; ++q) moments[4 * q + p] = down[p][q];
  }
}

// Collects the moments of lanes, which lie in the order of the samples of a group.
template <typename T, typename N, int stored>
class LaneMoments {
  using Sum = typename MomentLanes<T>::Sum;

 public:
  // Of this sample of a group, which is that lane of the sums.
  [[gnu::noinline]] void add(int sample, const GroupSums<T>& sums, int lane, int x, int y) {
    constexpr int together = MomentLanes<T>::kLanes / MomentLanes<T>::kWide;
    N of[kSums], moments[16];
    for (size_t k = 0; k < kSums; ++k) {
      Sum all[together];
      std::memcpy(all, &sums.of[lane / together][k], sizeof all);
      of[k] = static_cast<N>(all[lane % together]);
    }
    toMoments(of, static_cast<N>(x + sample / stored), static_cast<N>(y), MomentLanes<T>::kLanes, moments);
    for (int p = 0; p < 4; ++p)
      for (int q = 0; p + q < 4; ++q) totals_[sample % stored].of[4 * q + p] += moments[4 * q + p];
  }
  void store(int used, ChannelMoments<N>* moments) const { std::copy(totals_, totals_ + used, moments); }

 private:
  ChannelMoments<N> totals_[stored] = {};
};

// As doubles, four lanes at once.
template <typename T, int stored>
class LaneMoments<T, double, stored> {
  static constexpr int kPatterns =
      stored == 3 ? 3 : 1;  // vectors after which the channels are the same again

 public:
  LaneMoments() { std::fill(&totals_[0][0], &totals_[0][0] + kPatterns * 16, Doubles4{}); }

  // From this sample of a group on, which is that lane of the sums.
  [[gnu::noinline]] void add(int sample, const GroupSums<T>& sums, int lane, int x, int y) {
    double columns[4];
    for (int i = 0; i < 4; ++i) columns[i] = x + (sample + i) / stored;
    Doubles4 of[kSums], moments[16];
    for (size_t k = 0; k < kSums; ++k) of[k] = fourLanes(sums, lane, k);
    toMoments(of, loadDoubles4(columns), broadcastDouble(y), MomentLanes<T>::kLanes, moments);
    auto& totals = totals_[sample / 4 % kPatterns];
    for (int p = 0; p < 4; ++p)
      for (int q = 0; p + q < 4; ++q) totals[4 * q + p] = totals[4 * q + p] + moments[4 * q + p];
  }
  void store(int used, ChannelMoments<double>* moments) const {
    for (int c = 0; c < used; ++c) moments[c] = {};
    for (int i = 0; i < 4 * kPatterns; ++i) {
      if (i % stored >= used) continue;
      for (int p = 0; p < 4; ++p)
        for (int q = 0; p + q < 4; ++q) {
          double lanes[4];
          store32(reinterpret_cast<Byte*>(lanes), bytesOf(totals_[i / 4][4 * q + p]));
          moments[i % stored].of[4 * q + p] += lanes[i % 4];
        }
    }
  }

 private:
  Doubles4 totals_[kPatterns][16];
};

// A part of a strip: so many pixels of each of its rows, from column x and row y on.
struct Part {
  const Byte* first;
  ptrdiff_t step;
  int x, y, columns, rows;
};

template <typename T, typename N, int stored>
class Scan {
  using L = MomentLanes<T>;
  static constexpr int kVectorBytes = L::kLanes * static_cast<int>(sizeof(T)),
                       kGroupBytes = kVectorBytes * stored;
  static constexpr int kPixelBytes = static_cast<int>(sizeof(T)) * stored;

 public:
  void store(int used, ChannelMoments<N>* moments) const { moments_.store(used, moments); }

  void add(const Part& part) {
    for (auto& group : sums_)
      for (auto& wide : group.of)
        for (auto& sum : wide) sum = L::noSums();
    const int groups = part.columns / L::kLanes, rest = part.columns % L::kLanes;
    if (rest > 0) addRest(part, groups, rest);
    for (int g = groups; g-- > 0;) addGroup(part.first + ptrdiff_t{g} * kGroupBytes, part.step, part.rows);
    join(part);
  }

 private:
  void addGroup(const Byte* first, ptrdiff_t step, int rows) {
    for (int v = 0; v < stored; ++v) addColumns<T>(first + v * kVectorBytes, step, rows, sums_[v]);
  }
  // The pixels behind the last whole group, and zeros.
  void addRest(const Part& part, int groups, int rest) {
    Byte copies[L::kRows * kGroupBytes] = {};
    const Byte* from = part.first + ptrdiff_t{groups} * kGroupBytes;
    for (int r = 0; r < part.rows; ++r, from += part.step)
      std::memcpy(copies + r * kGroupBytes, from, static_cast<size_t>(rest * kPixelBytes));
    addGroup(copies, kGroupBytes, part.rows);
  }
  void join(const Part& part) {
    for (int v = 0; v < stored; ++v) {
      constexpr int together = std::is_same_v<N, double> ? 4 : 1;
      for (int lane = 0; lane < L::kLanes; lane += together)
        moments_.add(v * L::kLanes + lane, sums_[v], lane, part.x, part.y);
    }
  }

  LaneMoments<T, N, stored> moments_;
  GroupSums<T> sums_[stored];
};

template <typename T, typename N, int stored>
void scan(SourceRows src, Extent pixels, int used, ChannelMoments<N>* moments) {
  using L = MomentLanes<T>;
  constexpr int kColumns = L::kLanes * L::kGroups;
  Scan<T, N, stored> scan;
  const int width = static_cast<int>(pixels.length);
  for (int y = 0; y < pixels.rows; y += L::kRows) {
    const int rows = std::min(L::kRows, pixels.rows - y);
    for (int x = 0; x < width;) {
      const int columns = std::min(kColumns, width - x);
      scan.add({src.row(y) + ptrdiff_t{x} * stored * static_cast<ptrdiff_t>(sizeof(T)), src.step, x, y,
                columns, rows});
      x += columns;
      if (x == width) break;
    }
    if (rows < L::kRows) break;
  }
  scan.store(used, moments);
}

}  // namespace

template <typename T, typename N>
void momentsOf(SourceRows src, Extent pixels, int stored, int used, ChannelMoments<N>* moments) {
  if (stored == 1) return scan<T, N, 1>(src, pixels, used, moments);
  if (stored == 3) return scan<T, N, 3>(src, pixels, used, moments);
  scan<T, N, 4>(src, pixels, used, moments);
}

#define LUMI_MOMENTS(T, N) template void momentsOf<T>(SourceRows, Extent, int, int, ChannelMoments<N>*);
LUMI_MOMENTS(uint8_t, double)
LUMI_MOMENTS(uint16_t, double)
LUMI_MOMENTS(float, double)
LUMI_MOMENTS(uint8_t, uint64_t)
LUMI_MOMENTS(uint16_t, uint64_t)

}  // namespace lumi
