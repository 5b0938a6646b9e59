// SPDX-License-Identifier: MIT
#include <cstring>
#include <vector>

#include "bench/harness.hpp"
#include "bench/peers/loop.hpp"
#include "bench/peers/opencv.hpp"
#include "lumi/lut_palette.h"

namespace bench {
namespace {

// Entries of n bytes, as many as the bits tell.
std::vector<Lum8u> entries(int bits, int bytes, unsigned seed) {
  std::vector<Lum8u> all((std::size_t{1} << bits) * static_cast<std::size_t>(bytes));
  for (Lum8u& each : all) each = static_cast<Lum8u>((seed = seed * 1664525 + 1013904223) >> 24);
  return all;
}

// E samples of D make an entry, and a pixel of the destination.
template <int E, typename S, typename D>
Suite::Build palette(LumStatus (*lumi)(const S*, int, D*, int, LumiSize, const D*, int), int bits) {
  return [=](Scene& s) {
    // Unsigned dwords are the same bytes as signed ones.
    using Sample = std::conditional_t<sizeof(D) == 4, Lum32s, D>;
    const auto src = s.input<S>(1);
    const auto dst = s.output<Sample>(E);
    const auto table = entries(bits, E * static_cast<int>(sizeof(D)), 1);
    const auto* const first = reinterpret_cast<const D*>(table.data());
    s.ours([=, keep = table] {
      lumi(src.data(), src.step, reinterpret_cast<D*>(dst.data()), dst.step, src.roi,
           reinterpret_cast<const D*>(keep.data()), bits);
    });
    if constexpr (sizeof(S) == 1 && sizeof(D) == 1 && E == 1)
      if (bits == 8) s.peer(opencv::lookUp, src, dst, table);
    std::vector<Sample> samples(reinterpret_cast<const Sample*>(first),
                                reinterpret_cast<const Sample*>(first) + table.size() / sizeof(D));
    s.peer(loop::rows(src.roi, [=](int y, int width) {
      const S* __restrict from = src.row(y);
      Sample* __restrict to = dst.row(y);
      const Sample* const t = samples.data();
      const int mask = (1 << bits) - 1;
      for (int x = 0; x < width; ++x)
        for (int e = 0; e < E; ++e) to[x * E + e] = t[(from[x] & mask) * E + e];
    }));
  };
}

template <typename T>
using Palettes = LumStatus (*)(const T*, int, T*, int, LumiSize, const T* const*, int);
template <typename T>
using WithAlpha = LumStatus (*)(const T*, int, int, T*, int, LumiSize, const T* const*, int);

// Channel c goes to sample `first` + `way` * c of D; alpha, where there is one, to the sample that is left.
template <int S, int D, int used, int first, int way, typename T, typename Call>
Suite::Build palettes(Call call) {
  return [=](Scene& s) {
    constexpr int bits = 8 * sizeof(T), alpha = D > S ? (first == 1 ? 0 : 3) : -1;
    const auto src = s.input<T>(S);
    const auto dst = s.output<T>(D);
    std::vector<std::vector<Lum8u>> bytes;
    for (unsigned c = 0; c < 4; ++c) bytes.push_back(entries(bits, sizeof(T), c + 1));
    s.ours([=] {
      const T* tables[4];
      for (std::size_t c = 0; c < 4; ++c) tables[c] = reinterpret_cast<const T*>(bytes[c].data());
      call(src, dst, tables, bits);
    });
    s.peer(loop::rows(src.roi, [=](int y, int width) {
      const T* __restrict from = src.row(y);
      T* __restrict to = dst.row(y);
      const T* t[used];
      for (std::size_t c = 0; c < used; ++c) t[c] = reinterpret_cast<const T*>(bytes[c].data());
      for (int x = 0; x < width; ++x) {
        for (int c = 0; c < used; ++c) to[x * D + first + way * c] = t[c][from[x * S + c]];
        if (alpha >= 0) to[x * D + alpha] = 255;
      }
    }));
  };
}

template <typename T>
auto plain(Palettes<T> lumi) {
  return [=](const auto& src, const auto& dst, const T* const* tables, int bits) {
    lumi(src.data(), src.step, dst.data(), dst.step, src.roi, tables, bits);
  };
}
template <typename T>
auto withAlpha(WithAlpha<T> lumi) {
  return [=](const auto& src, const auto& dst, const T* const* tables, int bits) {
    lumi(src.data(), src.step, 255, dst.data(), dst.step, src.roi, tables, bits);
  };
}

const Family family("lut_palette", [](Suite& suite) {
  suite.row("palette 8u C1", kUpToHd, palette<1>(lumiLUTPalette_8u_C1R, 8));
  suite.row("palette 8u C1 of 4 bits", kUpToHd, palette<1>(lumiLUTPalette_8u_C1R, 4));
  suite.row("palette 16u C1", kUpToHd, palette<1>(lumiLUTPalette_16u_C1R, 12));
  suite.row("palette 16u8u C1", kUpToHd, palette<1>(lumiLUTPalette_16u8u_C1R, 12));
  suite.row("palette 8u24u C1", kUpToHd, palette<3>(lumiLUTPalette_8u24u_C1R, 8));
  suite.row("palette 16u24u C1", kCachedAndHd, palette<3>(lumiLUTPalette_16u24u_C1R, 12));
  suite.row("palette 8u32u C1", kUpToHd, palette<1>(lumiLUTPalette_8u32u_C1R, 8));
  suite.row("palette 16u32u C1", kCachedAndHd, palette<1>(lumiLUTPalette_16u32u_C1R, 12));
  suite.row("palette 8u C3", kUpToHd, palettes<3, 3, 3, 0, 1, Lum8u>(plain<Lum8u>(lumiLUTPalette_8u_C3R)));
  suite.row("palette 8u C4", kUpToHd, palettes<4, 4, 4, 0, 1, Lum8u>(plain<Lum8u>(lumiLUTPalette_8u_C4R)));
  suite.row("palette 8u AC4", kUpToHd, palettes<4, 4, 3, 0, 1, Lum8u>(plain<Lum8u>(lumiLUTPalette_8u_AC4R)));
  suite.row("palette 8u C3A0C4", kUpToHd,
            palettes<3, 4, 3, 1, 1, Lum8u>(withAlpha<Lum8u>(lumiLUTPalette_8u_C3A0C4R)));
  suite.row("palette swap 8u C3A0C4", kUpToHd,
            palettes<3, 4, 3, 2, -1, Lum8u>(withAlpha<Lum8u>(lumiLUTPaletteSwap_8u_C3A0C4R)));
  suite.row("palette 16u C3", kCachedAndHd,
            palettes<3, 3, 3, 0, 1, Lum16u>(plain<Lum16u>(lumiLUTPalette_16u_C3R)));
});

}  // namespace
}  // namespace bench
