// SPDX-License-Identifier: MIT
// Samples as unsigned numbers with the same order. That of floats is total: negative zero is below zero, and
// what is no number is beyond the infinity of its sign.
#pragma once

#include <cstdint>
#include <cstring>
#include <type_traits>

namespace lumi {

template <typename T>
struct SampleOrder {
  using Key = std::conditional_t<
      sizeof(T) == 1, uint8_t,
      std::conditional_t<sizeof(T) == 2, uint16_t, std::conditional_t<sizeof(T) == 4, uint32_t, uint64_t>>>;
  static constexpr Key kSign = Key{1} << (8 * sizeof(T) - 1);

  // Samples may lie at any address.
  static Key keyAt(const uint8_t* p) {
    Key bits;
    std::memcpy(&bits, p, sizeof bits);
    if constexpr (std::is_unsigned_v<T>) return bits;
    const bool reversed = std::is_floating_point_v<T> && (bits & kSign);
    return static_cast<Key>(bits ^ (reversed ? static_cast<Key>(~Key{0}) : kSign));
  }
  static void store(uint8_t* p, Key key) {
    if constexpr (!std::is_unsigned_v<T>) {
      const bool reversed = std::is_floating_point_v<T> && !(key & kSign);
      key = static_cast<Key>(key ^ (reversed ? static_cast<Key>(~Key{0}) : kSign));
    }
    std::memcpy(p, &key, sizeof key);
  }
};

}  // namespace lumi
