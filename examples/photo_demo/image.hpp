// SPDX-License-Identifier: MIT
// An image in memory of lumi, with padded rows.
#pragma once

#include <lumi.h>

#include <cstddef>
#include <memory>
#include <new>
#include <variant>

template <int channels, typename Sample = Lum8u>
class Image {
 public:
  static constexpr int kChannels = channels;

  explicit Image(LumiSize size) : size_(size), first_(allocate(), lumiFree) {
    if (!first_) throw std::bad_alloc();
  }

  LumiSize size() const { return size_; }
  int step() const { return step_; }
  Sample* at(int x, int y) { return first_.get() + offset(x, y); }
  const Sample* at(int x, int y) const { return first_.get() + offset(x, y); }
  Sample* data() { return first_.get(); }
  const Sample* data() const { return first_.get(); }

 private:
  // Rows of bytes serve every type: they start on multiples of 64.
  Sample* allocate() {
    constexpr int pixel = channels * int{sizeof(Sample)};
    return reinterpret_cast<Sample*>(lumiMalloc_8u_C1(size_.width * pixel, size_.height, &step_));
  }
  // In samples.
  ptrdiff_t offset(int x, int y) const {
    return ptrdiff_t{y} * (step_ / ptrdiff_t{sizeof(Sample)}) + ptrdiff_t{x} * channels;
  }

  LumiSize size_;
  int step_ = 0;
  std::unique_ptr<Sample, decltype(&lumiFree)> first_;
};

using Grey = Image<1>;
using Colour = Image<3>;
using ColourAlpha = Image<4>;
using Colour16 = Image<3, Lum16u>;
using ColourFloat = Image<3, Lum32f>;
using AnyImage = std::variant<Grey, Colour, ColourAlpha>;
