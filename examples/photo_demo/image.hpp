// SPDX-License-Identifier: MIT
// An image of 8-bit samples in memory of lumi, with padded rows.
#pragma once

#include <lumi.h>

#include <cstddef>
#include <memory>
#include <new>
#include <variant>

template <int channels>
class Image {
 public:
  static constexpr int kChannels = channels;

  explicit Image(LumiSize size) : size_(size), first_(allocate(), lumiFree) {
    if (!first_) throw std::bad_alloc();
  }

  LumiSize size() const { return size_; }
  int step() const { return step_; }
  Lum8u* at(int x, int y) { return first_.get() + offset(x, y); }
  const Lum8u* at(int x, int y) const { return first_.get() + offset(x, y); }
  Lum8u* data() { return first_.get(); }
  const Lum8u* data() const { return first_.get(); }

 private:
  Lum8u* allocate() {
    constexpr auto allocateMember = channels == 1   ? lumiMalloc_8u_C1
                                    : channels == 3 ? lumiMalloc_8u_C3
                                                    : lumiMalloc_8u_C4;
    return allocateMember(size_.width, size_.height, &step_);
  }
  ptrdiff_t offset(int x, int y) const { return ptrdiff_t{y} * step_ + ptrdiff_t{x} * channels; }

  LumiSize size_;
  int step_ = 0;
  std::unique_ptr<Lum8u, decltype(&lumiFree)> first_;
};

using Grey = Image<1>;
using Colour = Image<3>;
using ColourAlpha = Image<4>;
using AnyImage = std::variant<Grey, Colour, ColourAlpha>;
