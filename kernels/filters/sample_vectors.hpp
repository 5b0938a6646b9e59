// SPDX-License-Identifier: MIT
// The build's vector of any sample type, floats included.
#pragma once

#include "kernels/simd/floats.hpp"

namespace lumi::simd {

template <typename T>
struct VectorOf {
  using Type = Samples<T>;
};
template <>
struct VectorOf<float> {
  using Type = Floats8;
};
template <typename T>
using Vector = typename VectorOf<T>::Type;
template <typename T>
inline constexpr size_t kLanesOf = sizeof(Vector<T>) / sizeof(T);

// For samples that are used more than once, which compilers would load as often.
template <typename T>
Vector<T> loadOnce(const Byte* p) {
  if constexpr (std::is_floating_point_v<T>)
    return {asFloats(load32Once(p))};
  else if constexpr (kVectorBytes == 32)
    return {load32Once(p)};
  else
    return {load16Once(p)};
}

template <typename T>
Vector<T> loadAt(const T* p) {
  const auto* const bytes = reinterpret_cast<const Byte*>(p);
  if constexpr (std::is_floating_point_v<T>)
    return {asFloats(load32(bytes))};
  else
    return {loadVector(bytes)};
}

template <typename V>
[[gnu::always_inline]] inline void store(Byte* p, V x) {
  if constexpr (std::is_same_v<V, Floats8>)
    store32(p, asBytes(x.v));
  else
    storeVector(p, x.v);
}

}  // namespace lumi::simd
