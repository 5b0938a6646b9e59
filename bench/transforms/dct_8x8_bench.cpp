// SPDX-License-Identifier: MIT
#include <algorithm>
#include <type_traits>

#include "bench/harness.hpp"
#include "bench/peers/fftw.hpp"
#include "bench/peers/opencv.hpp"
#include "lumi/dct_8x8.h"

namespace bench {
namespace {

// An image's memory as blocks, one behind the other; widths times heights are multiples of 64.
const std::vector<LumiSize> kBlocks{kCall, kSmall, {128, 64}, {512, 512}, kHd};

constexpr const char* kRounding = "rounds otherwise";

// work(block of the source, block of the destination) for each of them.
template <typename S, typename D, typename Work>
void forBlocks(const Image<S>& src, const Image<D>& dst, Work work) {
  const int blocks = src.roi.width * src.roi.height / 64;
  for (int i = 0; i < blocks; ++i) work(src.data() + 64 * i, dst.data() + 64 * i);
}

// Eight columns at once, by the usual butterflies: products have 13 bits of fraction.
using Ints = int[64];
void forwardColumns(const Ints& in, Ints& out, int shift) {
  const int half = 1 << (shift - 1);
  for (int c = 0; c < 8; ++c) {
    const int s0 = in[c] + in[56 + c], d0 = in[c] - in[56 + c], s1 = in[8 + c] + in[48 + c],
              d1 = in[8 + c] - in[48 + c], s2 = in[16 + c] + in[40 + c], d2 = in[16 + c] - in[40 + c],
              s3 = in[24 + c] + in[32 + c], d3 = in[24 + c] - in[32 + c];
    const int e0 = s0 + s3, e1 = s1 + s2, e2 = s0 - s3, e3 = s1 - s2;
    out[c] = (8192 * (e0 + e1) + half) >> shift;
    out[32 + c] = (8192 * (e0 - e1) + half) >> shift;
    out[16 + c] = (10703 * e2 + 4433 * e3 + half) >> shift;
    out[48 + c] = (4433 * e2 - 10703 * e3 + half) >> shift;
    out[8 + c] = (11363 * d0 + 9633 * d1 + 6436 * d2 + 2260 * d3 + half) >> shift;
    out[24 + c] = (9633 * d0 - 2260 * d1 - 11363 * d2 - 6436 * d3 + half) >> shift;
    out[40 + c] = (6436 * d0 - 11363 * d1 + 2260 * d2 + 9633 * d3 + half) >> shift;
    out[56 + c] = (2260 * d0 - 6436 * d1 + 9633 * d2 - 11363 * d3 + half) >> shift;
  }
}
void inverseColumns(const Ints& in, Ints& out, int shift) {
  const int half = 1 << (shift - 1);
  for (int c = 0; c < 8; ++c) {
    const int x0 = in[c], x1 = in[8 + c], x2 = in[16 + c], x3 = in[24 + c], x4 = in[32 + c], x5 = in[40 + c],
              x6 = in[48 + c], x7 = in[56 + c];
    const int a = 8192 * (x0 + x4) + half, b = 8192 * (x0 - x4) + half;
    const int t = 10703 * x2 + 4433 * x6, u = 4433 * x2 - 10703 * x6;
    const int o0 = 11363 * x1 + 9633 * x3 + 6436 * x5 + 2260 * x7,
              o1 = 9633 * x1 - 2260 * x3 - 11363 * x5 - 6436 * x7,
              o2 = 6436 * x1 - 11363 * x3 + 2260 * x5 + 9633 * x7,
              o3 = 2260 * x1 - 6436 * x3 + 9633 * x5 - 11363 * x7;
    out[c] = (a + t + o0) >> shift;
    out[56 + c] = (a + t - o0) >> shift;
    out[8 + c] = (b + u + o1) >> shift;
    out[48 + c] = (b + u - o1) >> shift;
    out[16 + c] = (b - u + o2) >> shift;
    out[40 + c] = (b - u - o2) >> shift;
    out[24 + c] = (a - t + o3) >> shift;
    out[32 + c] = (a - t - o3) >> shift;
  }
}
void transposeInts(const Ints& in, Ints& out) {
  for (int y = 0; y < 8; ++y)
    for (int x = 0; x < 8; ++x) out[8 * x + y] = in[8 * y + x];
}

// Rows of samples to rows of results, through both stages.
template <typename S, typename D>
void plainBlock(const S* src, std::ptrdiff_t srcStride, D* dst, std::ptrdiff_t dstStride, bool inverse,
                int level) {
  Ints a, b;
  const auto columns = inverse ? inverseColumns : forwardColumns;
  for (int y = 0; y < 8; ++y)
    for (int x = 0; x < 8; ++x) a[8 * y + x] = src[y * srcStride + x] + (inverse ? 0 : level);
  columns(a, b, 10);
  transposeInts(b, a);
  columns(a, b, 19);
  transposeInts(b, a);
  constexpr int kLeast = std::is_signed_v<D> ? -32768 : 0, kMost = std::is_signed_v<D> ? 32767 : 255;
  for (int y = 0; y < 8; ++y)
    for (int x = 0; x < 8; ++x)
      dst[y * dstStride + x] =
          static_cast<D>(std::clamp(a[8 * y + x] + (inverse ? level : 0), kLeast, kMost));
}

using Block16s = LumStatus (*)(const Lum16s*, Lum16s*);

Suite::Build words(Block16s call, bool inverse) {
  return [=](Scene& s) {
    const auto src = s.input<Lum16s>(1), dst = s.output<Lum16s>(1);
    s.ours([=] { forBlocks(src, dst, call); });
    Peer loop = peer("loop", [=] {
      forBlocks(src, dst, [=](const Lum16s* from, Lum16s* to) { plainBlock(from, 8, to, 8, inverse, 0); });
    });
    loop.differs = kRounding;
    s.peer(loop);
  };
}

// The whole inverse, and its means over squares of that side.
template <int side>
Suite::Build means(Block16s call) {
  return [=](Scene& s) {
    const auto src = s.input<Lum16s>(1), dst = s.output<Lum16s>(1);
    s.ours([=] { forBlocks(src, dst, call); });
    Peer loop = peer("loop", [=] {
      forBlocks(src, dst, [](const Lum16s* from, Lum16s* to) {
        Lum16s all[64];
        plainBlock(from, 8, all, 8, true, 0);
        for (int y = 0; y < 8 / side; ++y)
          for (int x = 0; x < 8 / side; ++x) {
            int sum = 0;
            for (int i = 0; i < side * side; ++i) sum += all[8 * (side * y + i / side) + side * x + i % side];
            to[8 / side * y + x] = static_cast<Lum16s>((sum + side * side / 2) / (side * side));
          }
      });
    });
    loop.differs = kRounding;
    s.peer(loop);
  };
}

Suite::Build floats(LumStatus (*call)(const Lum32f*, Lum32f*), fftw::Direction direction) {
  return [=](Scene& s) {
    const auto src = s.input<Lum32f>(1), dst = s.output<Lum32f>(1);
    s.ours([=] { forBlocks(src, dst, call); });
    s.peer(fftw::cosine8x8, src, dst, direction);
    if (opencv::cosine8x8 != nullptr) {
      Peer peer = opencv::cosine8x8(src, dst, direction == fftw::Direction::inverse);
      peer.differs = kRounding;
      s.peer(peer);
    }
  };
}

// Of an image of bytes, 8 x 8 pixels after one another; what is left at the edges stays.
template <typename Work>
void forTiles(LumiSize roi, Work work) {
  for (int y = 0; y + 8 <= roi.height; y += 8)
    for (int x = 0; x + 8 <= roi.width; x += 8) work(x, y);
}

void encode(Scene& s) {
  const auto src = s.input<Lum8u>(1);
  const auto dst = s.output<Lum16s>(1);
  const auto blockAt = [=](int x, int y) { return dst.data() + (y / 8 * (dst.roi.width / 8) + x / 8) * 64; };
  s.ours([=] {
    forTiles(src.roi,
             [=](int x, int y) { lumiDCT8x8FwdLS_8u16s_C1R(src.row(y) + x, src.step, blockAt(x, y), -128); });
  });
  Peer loop = peer("loop", [=] {
    forTiles(src.roi,
             [=](int x, int y) { plainBlock(src.row(y) + x, src.step, blockAt(x, y), 8, false, -128); });
  });
  loop.differs = kRounding;
  s.peer(loop);
}

void decode(Scene& s) {
  const auto src = s.input<Lum16s>(1);
  const auto dst = s.output<Lum8u>(1);
  const auto blockAt = [=](int x, int y) { return src.data() + (y / 8 * (src.roi.width / 8) + x / 8) * 64; };
  s.ours([=] {
    forTiles(dst.roi, [=](int x, int y) {
      lumiDCT8x8InvLSClip_16s8u_C1R(blockAt(x, y), dst.row(y) + x, dst.step, 128, 0, 255);
    });
  });
  Peer loop = peer("loop", [=] {
    forTiles(dst.roi,
             [=](int x, int y) { plainBlock(blockAt(x, y), 8, dst.row(y) + x, dst.step, true, 128); });
  });
  loop.differs = kRounding;
  s.peer(loop);
}

const Family family("dct_8x8", [](Suite& suite) {
  suite.row("dct 8x8 32f forward", kBlocks, floats(lumiDCT8x8Fwd_32f_C1, fftw::Direction::forward));
  suite.row("dct 8x8 32f inverse", kBlocks, floats(lumiDCT8x8Inv_32f_C1, fftw::Direction::inverse));
  suite.row("dct 8x8 16s forward", kBlocks, words(lumiDCT8x8Fwd_16s_C1, false));
  suite.row("dct 8x8 16s forward misaligned", {{128, 64}}, words(lumiDCT8x8Fwd_16s_C1, false),
            Placement::misaligned);
  suite.row("dct 8x8 16s inverse", kBlocks, words(lumiDCT8x8Inv_16s_C1, true));
  suite.row("dct 8x8 16s inverse of 2x2", kBlocks, words(lumiDCT8x8Inv_2x2_16s_C1, true));
  suite.row("dct 8x8 16s inverse of 4x4", kBlocks, words(lumiDCT8x8Inv_4x4_16s_C1, true));
  suite.row("dct 8x8 16s inverse A10", kBlocks, words(lumiDCT8x8Inv_A10_16s_C1, true));
  suite.row("dct 8x8 16s inverse to 2x2", kBlocks, means<4>(lumiDCT8x8To2x2Inv_16s_C1));
  suite.row("dct 8x8 16s inverse to 4x4", kBlocks, means<2>(lumiDCT8x8To4x4Inv_16s_C1));
  suite.row("dct 8x8 8u16s level shift", kUpToHd, encode);
  suite.row("dct 8x8 16s8u level shift", kUpToHd, decode);
});

}  // namespace
}  // namespace bench
