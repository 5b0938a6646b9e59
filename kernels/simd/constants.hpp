// SPDX-License-Identifier: MIT
// Constants over whole vectors in memory, where instructions take them from. Compilers that know what is
// there would load and spread single ones anew in every round: more work than the arithmetic leaves room for.
#pragma once

#include "kernels/simd/floats.hpp"

namespace lumi::simd {

template <typename T, size_t count>
struct SpreadReals {
  alignas(sizeof(Bytes32)) T values[count][sizeof(Bytes32) / sizeof(T)];
};
template <typename T, typename... Each>
constexpr SpreadReals<T, 1 + sizeof...(Each)> spread(T first, Each... each) {
  SpreadReals<T, 1 + sizeof...(Each)> result{};
  size_t i = 0;
  for (T value : {first, each...}) {
    for (T& place : result.values[i]) place = value;
    ++i;
  }
  return result;
}

class Constants {
 public:
  template <typename T, size_t count>
  explicit Constants(const SpreadReals<T, count>& table)
      : values_(reinterpret_cast<const Byte*>(table.values)) {
    asm("" : "+r"(values_));
  }
  template <typename V>
  V get(int which) const {
    const Byte* const p = values_ + static_cast<ptrdiff_t>(which) * static_cast<ptrdiff_t>(sizeof(Bytes32));
    if constexpr (std::is_same_v<V, Floats8>)
      return loadFloats8(p);
    else if constexpr (std::is_same_v<V, Floats4>)
      return loadFloats4(p);
    else
      return samplesOf<double>(load32(p));
  }

 private:
  const Byte* values_;
};

}  // namespace lumi::simd
