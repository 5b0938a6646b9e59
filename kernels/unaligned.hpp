// SPDX-License-Identifier: MIT
// Arrays of the caller's that may lie at any address.
#pragma once

#include <cstddef>
#include <cstring>

namespace lumi {

template <typename T>
struct Unaligned {
  const T* first;

  T operator[](size_t i) const {
    T element;
    std::memcpy(&element, reinterpret_cast<const char*>(first) + i * sizeof(T), sizeof(T));
    return element;
  }
  // Indices are never negative.
  T operator[](int i) const { return (*this)[static_cast<size_t>(i)]; }
};

}  // namespace lumi
