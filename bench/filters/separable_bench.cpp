// SPDX-License-Identifier: MIT
#include <algorithm>
#include <cmath>
#include <limits>
#include <type_traits>
#include <vector>

#include "bench/harness.hpp"
#include "bench/peers/opencv.hpp"

namespace bench {
namespace {

enum class Direction { rows, columns };

template <typename T, typename Tap>
using Whole = LumStatus (*)(const T*, int, T*, int, LumiSize, const Tap*, int, int, int);
template <typename T, typename Tap>
using Plain = LumStatus (*)(const T*, int, T*, int, LumiSize, const Tap*, int, int);

// Binomial weights, alike in both directions; they add up to a power of two.
std::vector<Lum32s> hill(int count) {
  std::vector<Lum32s> taps(1, 1);
  while (static_cast<int>(taps.size()) < count) {
    taps.push_back(0);
    for (size_t i = taps.size() - 1; i > 0; --i) taps[i] += taps[i - 1];
  }
  return taps;
}

// An image with what the kernel reaches beyond the row's, and the part of it that is filtered.
template <typename T>
struct Source {
  Image<T> whole, part;
  LumiPoint at;
};

template <typename T>
Source<T> sourceOf(Scene& s, int channels, int count, Direction direction) {
  const LumiSize roi = s.roi();
  const bool along = direction == Direction::rows;
  Source<T> source;
  source.at = along ? LumiPoint{count / 2, 0} : LumiPoint{0, count / 2};
  source.whole =
      s.inputOf<T>(channels, {roi.width + (along ? count - 1 : 0), roi.height + (along ? 0 : count - 1)});
  source.part = source.whole;
  source.part.roi = roi;
  source.part.bytes += source.at.y * source.whole.step + source.at.x * source.whole.pixelBytes();
  return source;
}

template <typename T, typename Sum>
T sampleOf(Sum sum) {
  if constexpr (std::is_integral_v<T> && std::is_floating_point_v<Sum>) {
    using Limits = std::numeric_limits<T>;
    return static_cast<T>(std::nearbyint(std::clamp<Sum>(sum, Sum{Limits::min()}, Sum{Limits::max()})));
  } else if constexpr (std::is_integral_v<T>) {
    return static_cast<T>(
        std::clamp<Sum>(sum, Sum{std::numeric_limits<T>::min()}, Sum{std::numeric_limits<T>::max()}));
  } else {
    return static_cast<T>(sum);
  }
}

// Sums of a row at a time; finish(sum) is the sample.
template <typename T, typename Tap, typename Finish>
Peer loopLines(Image<T> src, Image<T> dst, int channels, std::vector<Tap> taps, Direction direction,
               Finish finish) {
  const int n = static_cast<int>(taps.size()), samples = src.roi.width * channels;
  const auto step = direction == Direction::rows ? src.pixelBytes() : src.step;
  return peer("loop", [=, sums = std::vector<Tap>(static_cast<size_t>(samples))]() mutable {
    for (int y = 0; y < src.roi.height; ++y) {
      Tap* __restrict sum = sums.data();
      for (int i = 0; i < n; ++i) {
        const T* __restrict s = reinterpret_cast<const T*>(reinterpret_cast<const char*>(src.row(y)) +
                                                           static_cast<std::ptrdiff_t>(i - n / 2) * step);
        const Tap tap = taps[static_cast<size_t>(i)];
        if (i == 0)
          for (int x = 0; x < samples; ++x) sum[x] = tap * static_cast<Tap>(s[x]);
        else
          for (int x = 0; x < samples; ++x) sum[x] += tap * static_cast<Tap>(s[x]);
      }
      T* __restrict d = dst.row(y);
      for (int x = 0; x < samples; ++x) d[x] = finish(sum[x]);
    }
  });
}

void addPeer(Scene& s, Peer peer, const char* differs) {
  if (peer.run && differs != nullptr) peer.differs = differs;
  s.peer(std::move(peer));
}

template <typename T>
void addOpencv(Scene& s, const Source<T>& source, Image<T> dst, const std::vector<float>& taps,
               Direction direction, const char* differs) {
  if (opencv::filterLines == nullptr) return;
  for (const bool separately : {false, true})
    addPeer(
        s,
        opencv::filterLines(source.whole, source.at, dst, taps, direction == Direction::columns, separately),
        differs);
}

constexpr auto kFloats = "sums of floats in another order";
constexpr auto kAlpha = "filters alpha too";

// Integer taps and a power of two.
template <int C, typename T>
Suite::Build integers(Direction direction, Whole<T, Lum32s> run, int count, bool keepsAlpha = false) {
  return [=](Scene& s) {
    const auto source = sourceOf<T>(s, C, count, direction);
    const auto dst = s.output<T>(C);
    const auto taps = hill(count);
    const int divisor = 1 << (count - 1), shift = count - 1;
    s.ours([=, src = source.part] {
      run(src.data(), src.step, dst.data(), dst.step, src.roi, taps.data(), count, count / 2, divisor);
    });
    std::vector<float> floats;
    for (const Lum32s tap : taps) floats.push_back(std::ldexp(static_cast<float>(tap), -shift));
    addOpencv(s, source, dst, floats, direction, keepsAlpha ? kAlpha : nullptr);
    addPeer(s,
            loopLines(source.part, dst, C, taps, direction,
                      [=](Lum32s sum) {
                        return sampleOf<T>((sum + (1 << (shift - 1)) - 1 + ((sum >> shift) & 1)) >> shift);
                      }),
            keepsAlpha ? kAlpha : nullptr);
  };
}

template <int C, typename T>
Suite::Build floats(Direction direction, Plain<T, Lum32f> run, int count) {
  return [=](Scene& s) {
    const auto source = sourceOf<T>(s, C, count, direction);
    const auto dst = s.output<T>(C);
    std::vector<float> taps;
    for (const Lum32s tap : hill(count))
      taps.push_back(std::ldexp(static_cast<float>(tap) * 1.01F, 1 - count));
    s.ours([=, src = source.part] {
      run(src.data(), src.step, dst.data(), dst.step, src.roi, taps.data(), count, count / 2);
    });
    addOpencv(s, source, dst, taps, direction, kFloats);
    addPeer(s, loopLines(source.part, dst, C, taps, direction, [](float sum) { return sampleOf<T>(sum); }),
            kFloats);
  };
}

// Doubles are pairs of floats here: the harness has no images of theirs.
Suite::Build doubles(Direction direction, Plain<Lum64f, Lum64f> run, int count) {
  return [=](Scene& s) {
    const auto source = sourceOf<Lum32f>(s, 2, count, direction);
    const auto dst = s.output<Lum32f>(2);
    std::vector<double> taps;
    for (const Lum32s tap : hill(count)) taps.push_back(std::ldexp(tap, 1 - count));
    const auto asDoubles = [](const Image<Lum32f>& image) {
      Image<Lum64f> result;
      static_cast<View&>(result) = image;
      return result;
    };
    const auto src = asDoubles(source.part), to = asDoubles(dst);
    s.ours([=] { run(src.data(), src.step, to.data(), to.step, src.roi, taps.data(), count, count / 2); });
    addPeer(s, loopLines(src, to, 1, taps, direction, [](double sum) { return sum; }), kFloats);
  };
}

const Family family("separable", [](Suite& suite) {
  constexpr auto rows = Direction::rows, columns = Direction::columns;
  suite.row("filter rows 8u C1 7", kEverySize, integers<1>(rows, lumiFilterRow_8u_C1R, 7));
  suite.row("filter rows 8u C1 9", kUpToHd, integers<1>(rows, lumiFilterRow_8u_C1R, 9));
  suite.row("filter rows 8u C3 7", kUpToHd, integers<3>(rows, lumiFilterRow_8u_C3R, 7));
  suite.row("filter rows 8u AC4 7", kUpToHd, integers<4>(rows, lumiFilterRow_8u_AC4R, 7, true));
  suite.row("filter rows 16s C1 7", kUpToHd, integers<1>(rows, lumiFilterRow_16s_C1R, 7));
  suite.row("filter rows 8u C1 7 float taps", kUpToHd, floats<1>(rows, lumiFilterRow32f_8u_C1R, 7));
  suite.row("filter rows 32f C1 3", kUpToHd, floats<1>(rows, lumiFilterRow_32f_C1R, 3));
  suite.row("filter rows 32f C1 7", kEverySize, floats<1>(rows, lumiFilterRow_32f_C1R, 7));
  suite.row("filter rows 32f C1 15", kUpToHd, floats<1>(rows, lumiFilterRow_32f_C1R, 15));
  suite.row("filter rows 64f C1 7", kUpToHd, doubles(rows, lumiFilterRow_64f_C1R, 7));
  suite.row("filter columns 8u C1 7", kEverySize, integers<1>(columns, lumiFilterColumn_8u_C1R, 7));
  suite.row("filter columns 8u C1 9", kUpToHd, integers<1>(columns, lumiFilterColumn_8u_C1R, 9));
  suite.row("filter columns 8u C3 7", kUpToHd, integers<3>(columns, lumiFilterColumn_8u_C3R, 7));
  suite.row("filter columns 8u AC4 7", kUpToHd, integers<4>(columns, lumiFilterColumn_8u_AC4R, 7, true));
  suite.row("filter columns 16s C1 7", kUpToHd, integers<1>(columns, lumiFilterColumn_16s_C1R, 7));
  suite.row("filter columns 8u C1 7 float taps", kUpToHd, floats<1>(columns, lumiFilterColumn32f_8u_C1R, 7));
  suite.row("filter columns 32f C1 3", kUpToHd, floats<1>(columns, lumiFilterColumn_32f_C1R, 3));
  suite.row("filter columns 32f C1 7", kEverySize, floats<1>(columns, lumiFilterColumn_32f_C1R, 7));
  suite.row("filter columns 32f C1 15", kUpToHd, floats<1>(columns, lumiFilterColumn_32f_C1R, 15));
  suite.row("filter columns 64f C1 7", kUpToHd, doubles(columns, lumiFilterColumn_64f_C1R, 7));
});

}  // namespace
}  // namespace bench
