// SPDX-License-Identifier: MIT
// All kernels work on blocks of sixteen bytes a plane, whatever the sample. A block of pixels is four
// groups; a group holds one dword of each channel (four 8-bit pixels, two of 16 bits, one of 32 bits).
// Shuffles sort the samples inside a group, dword moves the rest.
#include "kernels/copy_channels.hpp"

#include <atomic>

#include "kernels/simd/bytes.hpp"

namespace lumi {
namespace {

using namespace simd;

template <int sampleBytes>
constexpr size_t kBlock = 16 / sampleBytes;  // pixels

// Byte `byte` of channel `channel` of a group, as its offset among the group's pixels.
template <int sampleBytes, int channels>
constexpr int offsetInPixels(int channel, int byte) {
  return (byte / sampleBytes * channels + channel) * sampleBytes + byte % sampleBytes;
}

// From pixels to dwords by channel: dword c gets channel c. The group starts at byte `start` of the vector.
template <int sampleBytes, int channels>
constexpr Control gatherControl(int start) {
  Control c{};
  for (int j = 0; j < 16; ++j)
    c[j] = j / 4 < channels ? static_cast<Byte>(start + offsetInPixels<sampleBytes, channels>(j / 4, j % 4))
                            : kZero;
  return c;
}

// From dwords by channel to pixels; pixel byte k goes to position (first + k) mod 16. Channel 2 is taken
// from dword `third`.
template <int sampleBytes, int channels>
constexpr Control scatterControl(int first, int third) {
  Control c{};
  for (Byte& b : c) b = kZero;
  for (int channel = 0; channel < channels; ++channel)
    for (int byte = 0; byte < 4; ++byte) {
      const int k = offsetInPixels<sampleBytes, channels>(channel, byte);
      c[(first + k) % 16] = static_cast<Byte>((channel == 2 ? third : channel) * 4 + byte);
    }
  return c;
}

// The four groups of a block, each with a dword a channel. Three-channel groups are 12 bytes apart; the
// last is loaded from four bytes before its start, so as not to read past the block.
template <int sampleBytes, int channels>
Dwords4x4 loadGroups(const Byte* src) {
  if constexpr (channels == 4) {
    static constexpr Control control = gatherControl<sampleBytes, 4>(0);
    Dwords4x4 g{{load16(src), load16(src + 16), load16(src + 32), load16(src + 48)}};
    if constexpr (sampleBytes < 4)
      for (Bytes16& row : g.row) row = shuffle(row, vectorOf(control));
    return g;
  } else {
    static constexpr Control control = gatherControl<sampleBytes, 3>(0),
                             last = gatherControl<sampleBytes, 3>(4);
    Dwords4x4 g{{load16(src), load16(src + 12), load16(src + 24), shuffle(load16(src + 32), vectorOf(last))}};
    if constexpr (sampleBytes < 4)
      for (int i = 0; i < 3; ++i) g.row[i] = shuffle(g.row[i], vectorOf(control));
    return g;
  }
}

struct Cached {
  static void store(Byte* p, Bytes16 v) { store16(p, v); }
};
struct Streaming {
  static void store(Byte* p, Bytes16 v) { stream16(p, v); }
};

// Four groups of 12 bytes, each turned so that its bytes are where the joined 48 bytes need them.
template <typename Store>
void storeJoined(Byte* dst, Bytes16 a, Bytes16 b, Bytes16 c, Bytes16 d) {
  Store::store(dst, mergeDwords<0b1000>(a, b));
  Store::store(dst + 16, mergeDwords<0b1100>(b, c));
  Store::store(dst + 32, mergeDwords<0b1110>(c, d));
}

// Splits `count` blocks and then stores them plane by plane: a cache line of a plane is written in one go,
// which doubles the speed on images that the second-level cache does not hold.
template <int sampleBytes, int channels, typename Store, size_t count>
void splitBlocks(const Byte* src, const std::array<Byte*, channels>& planes, size_t offset) {
  Dwords4x4 blocks[count];
  for (size_t i = 0; i < count; ++i)
    blocks[i] = transposed(loadGroups<sampleBytes, channels>(src + 16 * channels * i));
  std::atomic_signal_fence(std::memory_order_seq_cst);  // keeps the compiler from mixing the stores in
  for (int c = 0; c < channels; ++c)
    for (size_t i = 0; i < count; ++i) Store::store(planes[c] + offset + 16 * i, blocks[i].row[c]);
}

template <int sampleBytes, int channels, typename Store>
void splitRowBy(const Byte* src, uint8_t* const* planes, size_t pixels) {
  constexpr size_t line = 64, vector = 16;
  std::array<Byte*, channels> to;  // a copy that no store of bytes can be thought to change
  for (int c = 0; c < channels; ++c) to[c] = planes[c];
  const size_t bytes = pixels * sampleBytes;
  size_t i = 0;
  for (; i + line <= bytes; i += line)
    splitBlocks<sampleBytes, channels, Store, line / vector>(src + channels * i, to, i);
  for (; i + vector <= bytes; i += vector)
    splitBlocks<sampleBytes, channels, Store, 1>(src + channels * i, to, i);
  for (; i < bytes; i += sampleBytes)
    for (int c = 0; c < channels; ++c) move<sampleBytes>(to[c] + i, src + channels * i + c * sampleBytes);
}

template <int sampleBytes, typename Store>
void mergeBlock(Byte* dst, Bytes16 p0, Bytes16 p1, Bytes16 p2, Bytes16 p3) {
  static constexpr Control control = scatterControl<sampleBytes, 4>(0, 2);
  const Dwords4x4 g = transposed({{p0, p1, p2, p3}});
  for (int i = 0; i < 4; ++i)
    Store::store(dst + 16 * i, sampleBytes < 4 ? shuffle(g.row[i], vectorOf(control)) : g.row[i]);
}

template <int sampleBytes, typename Store>
void mergeBlock(Byte* dst, Bytes16 p0, Bytes16 p1, Bytes16 p2) {
  static constexpr Control controls[] = {
      scatterControl<sampleBytes, 3>(0, 2), scatterControl<sampleBytes, 3>(12, 3),
      scatterControl<sampleBytes, 3>(8, 2), scatterControl<sampleBytes, 3>(4, 3)};
  // Dwords 0 and 1 are the group's first two channels; its third is dword 2 or 3.
  const Bytes16 low = _mm_unpacklo_epi32(p0, p1), high = _mm_unpackhi_epi32(p0, p1);
  storeJoined<Store>(dst, shuffle(_mm_unpacklo_epi64(low, p2), vectorOf(controls[0])),
                     shuffle(mergeHalves<1, 0>(low, p2), vectorOf(controls[1])),
                     shuffle(mergeHalves<0, 1>(high, p2), vectorOf(controls[2])),
                     shuffle(_mm_unpackhi_epi64(high, p2), vectorOf(controls[3])));
}

template <int sampleBytes, int channels, typename Store>
void mergeBlocks(const Byte* const* planes, Byte* dst, size_t blocks) {
  std::array<const Byte*, channels> from;
  for (int c = 0; c < channels; ++c) from[c] = planes[c];
  for (size_t i = 0; i < blocks; ++i) {
    const auto plane = [&](int c) { return load16(from[c] + 16 * i); };
    if constexpr (channels == 4)
      mergeBlock<sampleBytes, Store>(dst + 64 * i, plane(0), plane(1), plane(2), plane(3));
    else
      mergeBlock<sampleBytes, Store>(dst + 48 * i, plane(0), plane(1), plane(2));
  }
}

// One sample a pixel into a channel: vector `index` of the pixels takes its bytes from the plane's vector.
template <int sampleBytes, int channels>
constexpr Control spreadControl(int index, bool all) {
  Control c{};
  for (int j = 0; j < 16; ++j) {
    const int byte = index * 16 + j, pixel = byte / (sampleBytes * channels),
              within = byte % (sampleBytes * channels);
    c[j] =
        all || within < sampleBytes ? static_cast<Byte>(pixel * sampleBytes + within % sampleBytes) : kZero;
  }
  return c;
}

template <int sampleBytes, int channels>
constexpr auto spreadControls(bool all) {
  std::array<Control, channels> controls{};
  for (int i = 0; i < channels; ++i) controls[i] = spreadControl<sampleBytes, channels>(i, all);
  return controls;
}

// 0xFF over every sample but the chosen one.
template <int sampleBytes, int channels>
constexpr auto otherChannels() {
  auto masks = spreadControls<sampleBytes, channels>(false);
  for (Control& m : masks)
    for (Byte& b : m) b = b == kZero ? 0xFF : 0;
  return masks;
}

// Sorts 12 bytes of colour into 16 with room for alpha, and back.
template <int sampleBytes>
constexpr Control widenControl(int start) {
  Control c{};
  for (int j = 0; j < 16; ++j) {
    const int pixel = j / (4 * sampleBytes), within = j % (4 * sampleBytes);
    c[j] = within < 3 * sampleBytes ? static_cast<Byte>(start + pixel * 3 * sampleBytes + within) : kZero;
  }
  return c;
}

template <int sampleBytes>
constexpr Control narrowControl(int first) {
  Control c{};
  for (Byte& b : c) b = kZero;
  for (int k = 0; k < 12; ++k)
    c[(first + k) % 16] = static_cast<Byte>(k / (3 * sampleBytes) * 4 * sampleBytes + k % (3 * sampleBytes));
  return c;
}

template <int sampleBytes>
constexpr Control alphaMask() {
  Control c{};
  for (int j = 0; j < 16; ++j) c[j] = j % (4 * sampleBytes) < 3 * sampleBytes ? 0 : 0xFF;
  return c;
}

}  // namespace

template <int sampleBytes>
void copyColourToAlphaRow(const uint8_t* src, uint8_t* dst, size_t pixels) {
  static constexpr Control control = widenControl<sampleBytes>(0), last = widenControl<sampleBytes>(4),
                           alpha = alphaMask<sampleBytes>();
  for (; pixels >= kBlock<sampleBytes>; pixels -= kBlock<sampleBytes>, src += 48, dst += 64)
    for (int i = 0; i < 4; ++i) {
      const Bytes16 colour = i < 3 ? shuffle(load16(src + 12 * i), vectorOf(control))
                                   : shuffle(load16(src + 32), vectorOf(last));
      store16(dst + 16 * i, either(colour, both(load16(dst + 16 * i), vectorOf(alpha))));
    }
  for (; pixels; --pixels, src += 3 * sampleBytes, dst += 4 * sampleBytes) move<3 * sampleBytes>(dst, src);
}

template <int sampleBytes>
void copyColourFromAlphaRow(const uint8_t* src, uint8_t* dst, size_t pixels) {
  static constexpr Control controls[] = {narrowControl<sampleBytes>(0), narrowControl<sampleBytes>(12),
                                         narrowControl<sampleBytes>(8), narrowControl<sampleBytes>(4)};
  for (; pixels >= kBlock<sampleBytes>; pixels -= kBlock<sampleBytes>, src += 64, dst += 48) {
    const auto group = [&](int i) { return shuffle(load16(src + 16 * i), vectorOf(controls[i])); };
    storeJoined<Cached>(dst, group(0), group(1), group(2), group(3));
  }
  for (; pixels; --pixels, src += 4 * sampleBytes, dst += 3 * sampleBytes) move<3 * sampleBytes>(dst, src);
}

// A block ends with the last pixel's other channels, which lie outside the image when the chosen channel
// is not the first: these two leave at least one pixel for the tail. Samples of 32 bits go one by one: a
// vector of such pixels holds too few of them to gain.
template <int sampleBytes, int channels>
void planeToChannelRow(const uint8_t* src, uint8_t* dst, size_t pixels) {
  static constexpr auto controls = spreadControls<sampleBytes, channels>(false);
  static constexpr auto others = otherChannels<sampleBytes, channels>();
  for (; sampleBytes < 4 && pixels > kBlock<sampleBytes>;
       pixels -= kBlock<sampleBytes>, src += 16, dst += 16 * channels) {
    const Bytes16 samples = load16(src);
    for (int i = 0; i < channels; ++i)
      store16(dst + 16 * i, either(both(load16(dst + 16 * i), vectorOf(others[i])),
                                   shuffle(samples, vectorOf(controls[i]))));
  }
  for (; pixels; --pixels, src += sampleBytes, dst += sampleBytes * channels) move<sampleBytes>(dst, src);
}

template <int sampleBytes, int channels>
void channelToPlaneRow(const uint8_t* src, uint8_t* dst, size_t pixels) {
  for (; sampleBytes < 4 && pixels > kBlock<sampleBytes>;
       pixels -= kBlock<sampleBytes>, src += 16 * channels, dst += 16)
    store16(dst, transposed(loadGroups<sampleBytes, channels>(src)).row[0]);
  for (; pixels; --pixels, src += sampleBytes * channels, dst += sampleBytes) move<sampleBytes>(dst, src);
}

template <int sampleBytes, int channels>
void splitRow(const uint8_t* src, uint8_t* const* planes, size_t pixels, bool streaming) {
  if (streaming)
    splitRowBy<sampleBytes, channels, Streaming>(src, planes, pixels);
  else
    splitRowBy<sampleBytes, channels, Cached>(src, planes, pixels);
}

template <int sampleBytes, int channels>
void mergeRow(const uint8_t* const* planes, uint8_t* dst, size_t pixels, bool streaming) {
  const size_t blocks = pixels / kBlock<sampleBytes>;
  if (streaming)
    mergeBlocks<sampleBytes, channels, Streaming>(planes, dst, blocks);
  else
    mergeBlocks<sampleBytes, channels, Cached>(planes, dst, blocks);
  for (size_t i = blocks * kBlock<sampleBytes>; i < pixels; ++i)
    for (size_t c = 0; c < channels; ++c)
      move<sampleBytes>(dst + (i * channels + c) * sampleBytes, planes[c] + i * sampleBytes);
}

template <int channels>
void duplicateRow(const uint8_t* src, uint8_t* dst, size_t pixels) {
  static constexpr auto controls = spreadControls<1, channels>(true);
  for (; pixels >= 16; pixels -= 16, src += 16, dst += 16 * channels) {
    const Bytes16 samples = load16(src);
    for (int i = 0; i < channels; ++i) store16(dst + 16 * i, shuffle(samples, vectorOf(controls[i])));
  }
  for (; pixels; --pixels, ++src)
    for (int c = 0; c < channels; ++c) *dst++ = *src;
}

#define LUMI_CHANNELS(sample, channels)                                                    \
  template void planeToChannelRow<sample, channels>(const uint8_t*, uint8_t*, size_t);     \
  template void channelToPlaneRow<sample, channels>(const uint8_t*, uint8_t*, size_t);     \
  template void splitRow<sample, channels>(const uint8_t*, uint8_t* const*, size_t, bool); \
  template void mergeRow<sample, channels>(const uint8_t* const*, uint8_t*, size_t, bool);
#define LUMI_SAMPLES(sample)                                                    \
  LUMI_CHANNELS(sample, 3)                                                      \
  LUMI_CHANNELS(sample, 4)                                                      \
  template void copyColourToAlphaRow<sample>(const uint8_t*, uint8_t*, size_t); \
  template void copyColourFromAlphaRow<sample>(const uint8_t*, uint8_t*, size_t);
LUMI_SAMPLES(1)
LUMI_SAMPLES(2)
LUMI_SAMPLES(4)
template void duplicateRow<3>(const uint8_t*, uint8_t*, size_t);
template void duplicateRow<4>(const uint8_t*, uint8_t*, size_t);

}  // namespace lumi
