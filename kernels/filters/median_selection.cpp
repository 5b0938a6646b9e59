// SPDX-License-Identifier: MIT
#include "kernels/filters/median_selection.hpp"

#include "kernels/filters/sample_order.hpp"

namespace lumi {
namespace {

// Calls each(sample) for a column of a window.
template <typename Each>
void inColumn(const MedianRows& src, int64_t x, const Each& each) {
  const uint8_t* sample = src.first + static_cast<ptrdiff_t>(x) * src.pixelBytes;
  for (int y = 0; y < src.rows; ++y, sample += src.step) each(sample);
}

// A histogram of bytes that follows a window, and the byte of a rank, which hardly moves from one window to
// the next. Windows have fewer than 2^62 samples. Source: T. S. Huang et al., A fast two-dimensional median
// filtering algorithm, 1979.
class ByteHistogram {
 public:
  void add(unsigned byte) {
    ++counts_[byte];
    below_ += byte < byte_;
  }
  void remove(unsigned byte) {
    --counts_[byte];
    below_ -= byte < byte_;
  }
  // The byte with at most so many below it, and more with it.
  unsigned byteOf(int64_t rank) {
    while (below_ > rank) below_ -= counts_[--byte_];
    while (below_ + counts_[byte_] <= rank) below_ += counts_[byte_++];
    return byte_;
  }
  int64_t below() const { return below_; }  // that byte

 private:
  int64_t counts_[256] = {};
  int64_t below_ = 0;
  unsigned byte_ = 0;
};

// A median of windows of which the upper byte is known, and how many samples with that byte are below: the
// bytes under it, one after the other, of the samples that agree in those before.
template <typename T>
typename SampleOrder<T>::Key lowerBytes(const MedianRows& src, int64_t x, unsigned byte, int64_t rank) {
  uint64_t known = byte;
  for (int shift = 8 * static_cast<int>(sizeof(T)) - 16; shift >= 0; shift -= 8) {
    ByteHistogram histogram;
    for (int i = 0; i < src.columns; ++i)
      inColumn(src, x + i, [&](const uint8_t* p) {
        const uint64_t key = SampleOrder<T>::keyAt(p);
        if (key >> (shift + 8) == known) histogram.add(static_cast<unsigned>(key >> shift) & 0xFF);
      });
    known = known << 8 | histogram.byteOf(rank);
    rank -= histogram.below();
  }
  return static_cast<typename SampleOrder<T>::Key>(known);
}

}  // namespace

template <typename T>
void selectMedians(const MedianRows& src, uint8_t* dst, int count) {
  const int64_t rank = int64_t{src.rows} * src.columns / 2;
  constexpr int kUpper = 8 * static_cast<int>(sizeof(T)) - 8;
  ByteHistogram histogram;
  const auto upper = [](const uint8_t* p) {
    return static_cast<unsigned>(SampleOrder<T>::keyAt(p) >> kUpper);
  };
  const auto add = [&](const uint8_t* p) { histogram.add(upper(p)); };
  for (int i = 0; i < src.columns; ++i) inColumn(src, i, add);
  for (int64_t x = 0;; ++x, dst += src.pixelBytes) {
    const unsigned byte = histogram.byteOf(rank);
    SampleOrder<T>::store(dst, lowerBytes<T>(src, x, byte, rank - histogram.below()));
    if (x + 1 == count) return;
    inColumn(src, x, [&](const uint8_t* p) { histogram.remove(upper(p)); });
    inColumn(src, x + src.columns, add);
  }
}

template void selectMedians<uint8_t>(const MedianRows&, uint8_t*, int);
template void selectMedians<uint16_t>(const MedianRows&, uint8_t*, int);
template void selectMedians<int16_t>(const MedianRows&, uint8_t*, int);
template void selectMedians<float>(const MedianRows&, uint8_t*, int);
template void selectMedians<double>(const MedianRows&, uint8_t*, int);

}  // namespace lumi
