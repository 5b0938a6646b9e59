// SPDX-License-Identifier: MIT
#include "bench/harness.hpp"
#include "bench/peers/loop.hpp"
#include "bench/peers/opencv.hpp"

namespace bench {
namespace {

// Bit x of a row, from one end of the bytes or the other.
inline int lowFirst(const Lum8u* row, int x) { return row[x / 8] >> x % 8 & 1; }
inline int highFirst(const Lum8u* row, int x) { return row[x / 8] >> (7 - x % 8) & 1; }

template <typename T, typename Bit>
Peer loopExpand(Image<Lum8u> src, int offset, Image<T> dst, LumiSize roi, T zero, T one, Bit bit) {
  return loop::rows(roi, [=](int y, int width) {
    const Lum8u* __restrict s = src.row(y);
    T* __restrict d = dst.row(y);
    const T both[] = {zero, one};  // no branch, which random bits would make dear
    for (int x = 0; x < width; ++x) d[x] = both[bit(s, offset + x)];
  });
}

// Eight samples a byte; the widths here are multiples.
template <typename T>
Peer loopCompare(Image<T> src, Image<Lum8u> dst, T threshold) {
  return loop::rows(src.roi, [=](int y, int width) {
    const T* __restrict s = src.row(y);
    Lum8u* __restrict d = dst.row(y);
    for (int x = 0; x < width / 8; ++x) {
      unsigned bits = 0;
      for (int k = 0; k < 8; ++k) bits |= static_cast<unsigned>(threshold < s[8 * x + k]) << k;
      d[x] = static_cast<Lum8u>(bits);
    }
  });
}

template <typename T>
Suite::Build expand(LumStatus (*lumi)(const Lum8u*, int, int, T*, int, LumiSize, T, T)) {
  return [=](Scene& s) {
    const auto src = s.inputBits();
    const auto dst = s.output<T>(1);
    s.ours([=] { lumi(src.data(), src.step, 0, dst.data(), dst.step, dst.roi, T{3}, T{77}); });
    s.peer(loopExpand(src, 0, dst, dst.roi, T{3}, T{77}, lowFirst));
  };
}

// From bit `offset` on: a row has as many pixels less than it has bits.
Suite::Build expandToFull(int offset) {
  return [=](Scene& s) {
    const auto src = s.inputBits();
    const auto dst = s.output<Lum8u>(1);
    const LumiSize roi{dst.roi.width - offset, dst.roi.height};
    s.ours([=] { lumiConvert_1u8u_C1R(src.data(), src.step, offset, dst.data(), dst.step, roi); });
    s.peer(loopExpand<Lum8u>(src, offset, dst, roi, 0, 255, highFirst));
  };
}

template <typename T>
Suite::Build compare(LumStatus (*lumi)(const T*, int, Lum8u*, int, int, LumiSize, T), T threshold) {
  return [=](Scene& s) {
    const auto src = s.input<T>(1);
    const auto dst = s.outputBits();
    s.ours([=] { lumi(src.data(), src.step, dst.data(), dst.step, 0, src.roi, threshold); });
    if (opencv::above != nullptr) {
      Peer peer = opencv::above(src, threshold);
      peer.differs = "stores a byte for each bit";
      s.peer(peer);
    }
    s.peer(loopCompare(src, dst, threshold));
  };
}

const Family family("bits", [](Suite& suite) {
  suite.row("bits to gray 8u", kEverySize, expand(lumiBinToGray_1u8u_C1R));
  suite.row("bits to gray 16u", kUpToHd, expand(lumiBinToGray_1u16u_C1R));
  suite.row("bits to gray 32f", kEverySize, expand(lumiBinToGray_1u32f_C1R));
  suite.row("bits to full 8u", kEverySize, expandToFull(0));
  suite.row("bits to full 8u offset 3", kCachedAndHd, expandToFull(3));
  suite.row("gray to bits 8u", kEverySize, compare<Lum8u>(lumiGrayToBin_8u1u_C1R, 100));
  suite.row("gray to bits 16u", kUpToHd, compare<Lum16u>(lumiGrayToBin_16u1u_C1R, 30000));
  suite.row("gray to bits 16s", kUpToHd, compare<Lum16s>(lumiGrayToBin_16s1u_C1R, 100));
  suite.row("gray to bits 32f", kEverySize, compare<Lum32f>(lumiGrayToBin_32f1u_C1R, 1.5F));
});

}  // namespace
}  // namespace bench
