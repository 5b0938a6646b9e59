// SPDX-License-Identifier: MIT
#include "kernels/data/swap_channels.hpp"

#include <algorithm>

#include "kernels/simd/pixels.hpp"
#include "kernels/simd/samples.hpp"

namespace lumi {
namespace {

using namespace simd;

constexpr size_t kHalf = sizeof(Bytes16);

// As many whole pixels as sixteen bytes have in both images, and what is made of them. Three samples a pixel
// are stored in four times twelve bytes.
template <int sampleBytes, int srcChannels, int dstChannels, int used>
class Swap {
 public:
  static constexpr size_t kSrcPixel = sampleBytes * srcChannels, kDstPixel = sampleBytes * dstChannels,
                          kPixels = 16 / (4 * sampleBytes), kSrcBytes = kPixels * kSrcPixel,
                          kDstBytes = kPixels * kDstPixel, kGroup = 4 * kPixels;
  static constexpr bool kInGroups = dstChannels == 3;
  static constexpr bool kMayLeaveMore =
      srcChannels != dstChannels && kHalf / std::min(kSrcPixel, kDstPixel) > kPixels;
  static constexpr bool kInserts = srcChannels == 3 && dstChannels == 4;

  explicit Swap(const ChannelSources& sources) {
    static constexpr auto spreading = spread();
    static constexpr Control starts = startsOfBytes();
    static constexpr auto alpha = pixelMask<kDstPixel, sampleBytes * used, kHalf>(0, 0xFF);
    const S32 order{load16(reinterpret_cast<const Byte*>(sources.channels))}, three = broadcast16(3);
    const auto toBytes = [](S32 v) { return U8{shuffleBytes(v.v, vectorOf(spreading))}; };
    const U8 firsts = toBytes(order << Shift(sampleBytes == 4 ? 2 : sampleBytes - 1)) + U8{vectorOf(starts)};
    control_ = firsts.v;
    value_ = kept_ = load16(alpha.bytes);
    if constexpr (kInserts) {
      const U8 isValue = toBytes(isEqual(order, three)), isKept = toBytes(isAboveSigned(order, three));
      control_ = (firsts | isValue | isKept).v;  // top bits, which give zeros
      value_ = bitAnd(isValue.v, broadcast16(sample(sources.value)).v);
      kept_ = isKept.v;
    }
    constexpr auto behind = static_cast<uint8_t>(kHalf - kSrcBytes);
    controlAtEnd_ = addSaturated(U8{control_}, broadcast16(behind)).v;
    if constexpr (kInGroups) {
      static constexpr Control turns[] = {turn(0), turn(12), turn(8), turn(4)};
      for (size_t i = 0; i < 4; ++i)
        turnedControls_[i] = shuffleBytes(i < 3 ? control_ : controlAtEnd_, vectorOf(turns[i]));
    }
  }

  static bool keeps(const ChannelSources& sources) {
    const auto& channels = sources.channels;
    return used < dstChannels || (kInserts && *std::max_element(channels, channels + 4) > 3);
  }

  // Rows of a group or more. The last one may lie over others: it is made before them, so that the image may
  // be the source.
  [[gnu::always_inline]] inline void rowInGroups(const Byte* src, Byte* dst, size_t pixels) const {
    const auto group = [&](size_t at) {
      const Byte* const s = src + at * kSrcPixel;
      const auto turned = [&](size_t i) {
        const Byte* const from = i < 3 ? s + i * kSrcBytes : s + 4 * kSrcBytes - kHalf;
        return shuffleBytes(load16(from), turnedControls_[i]);
      };
      return FourTwelves(turned(0), turned(1), turned(2), turned(3));
    };
    const FourTwelves last = group(pixels - kGroup);
    for (size_t at = 0; at + kGroup < pixels; at += kGroup) group(at).store(dst + at * kDstPixel);
    last.store(dst + (pixels - kGroup) * kDstPixel);
  }

  // The last vector may lie over others: it is made before them.
  template <bool keeping>
  [[gnu::always_inline]] inline void row(const Byte* src, Byte* dst, size_t pixels, size_t vectors) const {
    Byte* const lastDst = dst + (pixels - kPixels) * kDstPixel;
    const Bytes16 last = made<keeping>(load16(src + pixels * kSrcPixel - kHalf), controlAtEnd_, lastDst);
    for (; vectors; --vectors, src += kSrcBytes, dst += kDstBytes)
      store16(dst, made<keeping>(load16(src), control_, dst));
    // A vector of one image may end where the other has pixels left.
    if (kMayLeaveMore && dst < lastDst)
      store16(dst, made<keeping>(load16(src + kSrcBytes - kHalf), controlAtEnd_, dst));
    store16(lastDst, last);
  }

  template <bool keeping>
  void byPixels(const Byte* src, Byte* dst, size_t pixels) const {
    for (; pixels; --pixels, src += kSrcPixel, dst += kDstPixel) {
      Bytes16 v = withValue(shuffleBytes(loadPixel<kSrcPixel>(src), control_));
      if constexpr (keeping) v = bitOr(v, bitAnd(loadPixel<kDstPixel>(dst), kept_));
      storePixel<static_cast<int>(kDstPixel)>(dst, v);
    }
  }

  static bool isShort(size_t pixels) {
    return kInGroups ? pixels < kGroup : pixels * std::min(kSrcPixel, kDstPixel) < kHalf;
  }
  // How many vectors may be read and stored from the start of such a row on, before its last one.
  static size_t vectorsOf(size_t pixels) {
    const size_t within =
        std::min((pixels * kSrcPixel - kHalf) / kSrcBytes, (pixels * kDstPixel - kHalf) / kDstBytes);
    return std::min(within + 1, (pixels - 1) / kPixels);
  }

 private:
  // Each byte takes the low one of its channel's dword.
  static constexpr Control spread() {
    Control c{};
    for (size_t j = 0; j < kHalf; ++j)
      c[j] = isStored(j) ? static_cast<Byte>(j % kDstPixel / sampleBytes * 4) : kZero;
    return c;
  }
  // Where a byte comes from, were its channel the first.
  static constexpr Control startsOfBytes() {
    Control c{};
    for (size_t j = 0; j < kHalf; ++j)
      c[j] = isStored(j) ? static_cast<Byte>(j / kDstPixel * kSrcPixel + j % sampleBytes) : kZero;
    return c;
  }
  // Moves the first byte to another place.
  static constexpr Control turn(size_t first) {
    Control c{};
    for (size_t j = 0; j < kHalf; ++j) c[j] = static_cast<Byte>((kHalf + j - first) % kHalf);
    return c;
  }
  static constexpr bool isStored(size_t j) { return j < kDstBytes && j % kDstPixel < sampleBytes * used; }

  static auto sample(uint32_t bits) {
    if constexpr (sampleBytes == 1)
      return static_cast<uint8_t>(bits);
    else if constexpr (sampleBytes == 2)
      return static_cast<uint16_t>(bits);
    else
      return bits;
  }
  [[gnu::always_inline]] inline Bytes16 withValue(Bytes16 v) const { return kInserts ? bitOr(v, value_) : v; }
  template <bool keeping>
  [[gnu::always_inline]] inline Bytes16 made(Bytes16 src, Bytes16 control, const Byte* dst) const {
    const Bytes16 v = withValue(shuffleBytes(src, control));
    if constexpr (keeping)
      return bitOr(v, bitAnd(load16(dst), kept_));
    else
      return v;
  }

  Bytes16 control_, controlAtEnd_;  // of vectors that begin with the pixels, and that end with them
  Bytes16 turnedControls_[kInGroups ? 4 : 1];
  Bytes16 value_, kept_;
};

}  // namespace

template <int sampleBytes, int srcChannels, int dstChannels, int used>
void swapChannelRows(SourceRows src, TargetRows dst, Extent pixels, const ChannelSources& sources) {
  using S = Swap<sampleBytes, srcChannels, dstChannels, used>;
  const S swap(sources);
  const size_t length = pixels.length;
  const auto walk = [&](auto keeping) {
    const auto each = [&](auto row) { walkRows(pixels.rows, row, src, dst); };
    if (S::isShort(length))
      return each([=](const Byte* s, Byte* d) { swap.template byPixels<keeping.value>(s, d, length); });
    if constexpr (S::kInGroups)
      each([=](const Byte* s, Byte* d) { swap.rowInGroups(s, d, length); });
    else
      each([=, vectors = S::vectorsOf(length)](const Byte* s, Byte* d) {
        swap.template row<keeping.value>(s, d, length, vectors);
      });
  };
  if constexpr (S::kInserts || used < dstChannels) {
    if (S::keeps(sources)) return walk(std::true_type());
  }
  if constexpr (used == dstChannels) walk(std::false_type());
}

#define LUMI_SWAP(sample, from, to, used)                                               \
  template void swapChannelRows<sample, from, to, used>(SourceRows, TargetRows, Extent, \
                                                        const ChannelSources&);
#define LUMI_LAYOUTS(sample) \
  LUMI_SWAP(sample, 3, 3, 3) \
  LUMI_SWAP(sample, 4, 4, 4) LUMI_SWAP(sample, 4, 4, 3) LUMI_SWAP(sample, 3, 4, 4) LUMI_SWAP(sample, 4, 3, 3)
LUMI_LAYOUTS(1)
LUMI_LAYOUTS(2)
LUMI_LAYOUTS(4)

}  // namespace lumi
