// SPDX-License-Identifier: MIT
#include <algorithm>
#include <array>
#include <vector>

#include "bench/harness.hpp"

namespace bench {
namespace {

using Decimate = LumStatus (*)(const Lum8u*, int, LumiSize, Lum8u*, int, int);

constexpr int kTaps = 10, kAround = 4;

struct Phase {
  int first;
  std::array<int, kTaps> taps;
};
struct Fraction {
  const char* name;
  int number, results, samples;
  std::array<Phase, 7> phases;
};

constexpr Fraction kHalf{"1/2", 0, 1, 2, {{{-4, {2, -6, -15, 33, 114, 114, 33, -15, -6, 2}}}}};
constexpr Fraction kTwoThirds{
    "2/3", 2, 2, 3, {{{-3, {2, -18, 27, 163, 102, -16, -5, 1}}, {-2, {1, -5, -16, 102, 163, 27, -18, 2}}}}};
constexpr Fraction kThreeQuarters{"3/4",
                                  4,
                                  3,
                                  4,
                                  {{{-3, {2, -15, 22, 187, 81, -23, 2}},
                                    {-2, {1, -4, -14, 145, 145, -14, -4, 1}},
                                    {0, {2, -23, 81, 187, 22, -15, 2}}}}};

Lum8u sampleOf(int sum) { return static_cast<Lum8u>(std::clamp((sum + 128) >> 8, 0, 255)); }

// Phase by phase, so that the number of taps is known.
Peer loopRows(Image<Lum8u> src, Image<Lum8u> dst, Fraction f) {
  return peer("loop", [=] {
    for (int y = 0; y < src.roi.height; ++y) {
      const Lum8u* __restrict s = src.row(y);
      Lum8u* __restrict d = dst.row(y);
      for (int phase = 0; phase < f.results; ++phase) {
        const Phase its = f.phases[static_cast<size_t>(phase)];
        for (int group = 0; group < src.roi.width / f.samples; ++group) {
          const Lum8u* const from = s + group * f.samples + its.first;
          int sum = 0;
          for (int i = 0; i < kTaps; ++i) sum += from[i] * its.taps[static_cast<size_t>(i)];
          d[group * f.results + phase] = sampleOf(sum);
        }
      }
    }
  });
}

Peer loopColumns(Image<Lum8u> src, Image<Lum8u> dst, Fraction f) {
  return peer("loop", [=] {
    for (int y = 0; y < dst.roi.height; ++y) {
      const Phase its = f.phases[static_cast<size_t>(y % f.results)];
      const Lum8u* const s = src.row(y / f.results * f.samples + its.first);
      Lum8u* __restrict d = dst.row(y);
      const std::ptrdiff_t step = src.step;
      for (int x = 0; x < dst.roi.width; ++x) {
        int sum = 0;
        for (int i = 0; i < kTaps; ++i) sum += s[x + i * step] * its.taps[static_cast<size_t>(i)];
        d[x] = sampleOf(sum);
      }
    }
  });
}

// The row's size is the destination's; the source has what its filter reaches around it.
template <typename Loop>
Suite::Build decimated(Decimate run, const Fraction& f, bool isColumn, Loop loop) {
  return [=](Scene& s) {
    const LumiSize made{isColumn ? s.roi().width : s.roi().width / f.results * f.results,
                        isColumn ? s.roi().height / f.results * f.results : s.roi().height};
    const LumiSize size{isColumn ? made.width : made.width / f.results * f.samples,
                        isColumn ? made.height / f.results * f.samples : made.height};
    Image<Lum8u> src = s.inputOf<Lum8u>(1, {size.width + 4 * kAround, size.height + 4 * kAround});
    src.bytes += kAround * src.step + kAround;
    src.roi = size;
    const auto dst = s.outputOf<Lum8u>(1, made);
    s.ours([=] { run(src.data(), src.step, size, dst.data(), dst.step, f.number); });
    s.peer(loop(src, dst, f));
  };
}

const Family family("decimate_filter", [](Suite& suite) {
  for (const Fraction& f : {kHalf, kTwoThirds, kThreeQuarters})
    suite.row(std::string("decimate rows 8u C1 ") + f.name, kUpToHd,
              decimated(lumiDecimateFilterRow_8u_C1R, f, false, loopRows));
  for (const Fraction& f : {kHalf, kTwoThirds, kThreeQuarters})
    suite.row(std::string("decimate columns 8u C1 ") + f.name, kUpToHd,
              decimated(lumiDecimateFilterColumn_8u_C1R, f, true, loopColumns));
});

}  // namespace
}  // namespace bench
