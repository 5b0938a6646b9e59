// SPDX-License-Identifier: MIT
// Kernel filtering with border, called by sample type and channels.
#pragma once

#include <gtest/gtest.h>

#include <string>
#include <type_traits>
#include <vector>

#include "lumi/filter_border.h"
#include "model/filters/filter_border.hpp"
#include "support/named_call.hpp"

namespace test::filter {

using model::Byte;
using model::FilterKernel;

inline const std::vector<int> kChannels = {1, 3, 4};

template <typename T>
constexpr LumiDataType dataType() {
  if (std::is_floating_point_v<T>) return lumiData32f;
  return sizeof(T) == 1 ? lumiData8u : std::is_signed_v<T> ? lumiData16s : lumiData16u;
}

template <typename T>
model::Image imageOf(std::vector<T>& samples, int step) {
  return {reinterpret_cast<Byte*>(samples.data()), step};
}

inline LumStatus getSize(const FilterKernel& k, LumiDataType type, int channels, LumiSize area,
                         int* specBytes, int* bufferBytes) {
  const LumiDataType taps = k.integers.empty() ? lumiData32f : lumiData16s;
  return lumiFilterBorderGetSize(k.size, area, type, taps, channels, specBytes, bufferBytes);
}

inline LumStatus init(const FilterKernel& k, LumiDataType type, int channels, Byte* spec) {
  auto* const object = reinterpret_cast<LumiFilterBorderSpec*>(spec);
  return k.integers.empty()
             ? lumiFilterBorderInit_32f(k.floats.data(), k.size, type, channels, k.roundMode, object)
             : lumiFilterBorderInit_16s(k.integers.data(), k.size, k.divisor, type, channels, k.roundMode,
                                        object);
}

inline std::string runName(const std::string& type, int channels) {
  return "lumiFilterBorder_" + type + "_C" + std::to_string(channels) + "R";
}

template <typename T>
NamedCall apply(int channels, model::Image src, model::Image dst, LumiSize roi, LumiBorderType border,
                const T* value, const Byte* spec, Byte* buffer) {
  const char* const kind = std::is_floating_point_v<T> ? "f" : std::is_signed_v<T> ? "s" : "u";
  NamedCall call(runName(std::to_string(8 * sizeof(T)) + kind, channels));
  call.image("src", src.first, src.step).image("dst", dst.first, dst.step);
  call.size("roi", roi).number("border", border).pointer("borderValue", value);
  return call.pointer("spec", spec).pointer("buffer", buffer);
}

// The object of a kernel, and a buffer for runs.
struct Work {
  Work(const FilterKernel& k, LumiDataType type, int channels, LumiSize area) {
    int specBytes = 0, bufferBytes = 0;
    EXPECT_EQ(getSize(k, type, channels, area, &specBytes, &bufferBytes), lumStatusOk);
    spec.resize(static_cast<size_t>(specBytes));
    buffer.resize(static_cast<size_t>(bufferBytes));
    EXPECT_EQ(init(k, type, channels, spec.data()), lumStatusOk);
  }

  std::vector<Byte> spec, buffer;
};

}  // namespace test::filter
