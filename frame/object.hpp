// SPDX-License-Identifier: MIT
// Specification objects: they live in memory that the caller owns, at any address, and hold pointers into
// themselves. An operation finds the object on the first 64-byte boundary at or after the caller's pointer.
#pragma once

#include <cstddef>
#include <cstdint>
#include <type_traits>

namespace lumi {

inline constexpr int kObjectAlignment = 64;

// n rounded up to a multiple of `to`, a power of two.
constexpr int64_t roundedUp(int64_t n, int64_t to) { return (n + to - 1) & -to; }

// The first boundary at or after p.
template <typename T>
T* alignedUp(T* p, uintptr_t boundary) {
  return reinterpret_cast<T*>((reinterpret_cast<uintptr_t>(p) + boundary - 1) & ~(boundary - 1));
}

// The object behind an opaque argument: of the type that its family keeps there.
template <typename Object, typename Opaque>
auto objectAt(Opaque* argument) {
  using Result = std::conditional_t<std::is_const_v<Opaque>, const Object, Object>;
  return reinterpret_cast<Result*>(alignedUp(argument, kObjectAlignment));
}

// Hands out the tables of an object or of scratch memory, one behind the other.
class Tables {
 public:
  explicit Tables(void* first) : next_(static_cast<uint8_t*>(first)) {}

  template <typename T>
  T* take(int64_t count, uintptr_t boundary = alignof(T)) {
    uint8_t* const table = alignedUp(next_, boundary);
    next_ = table + count * static_cast<int64_t>(sizeof(T));
    return reinterpret_cast<T*>(table);
  }

 private:
  uint8_t* next_;
};

}  // namespace lumi
