// SPDX-License-Identifier: MIT
// Linear interpolation to half and to twice the size, where the weights are the same everywhere. The results
// are to the bit those of tables and two stages.
#pragma once

#include <cstddef>
#include <cstdint>
#include <type_traits>

namespace lumi {

template <typename T, int channels>
inline constexpr bool kHalvesRows = sizeof(T) == 1 || (sizeof(T) <= 4 && channels == 1);
template <typename T, int channels>
inline constexpr bool kDoublesRows = sizeof(T) == 1 || (std::is_same_v<T, float> && channels == 1);

// Each pixel from two by two: halfway between two rows, and between columns 0 and 1, 2 and 3, ... `count` is
// in pixels of the result.
template <typename T, int channels>
void halveRows(const uint8_t* first, const uint8_t* second, uint8_t* dst, size_t count);

// The two rows that lie a quarter and three quarters of the way from one row to the next. Of their pixels,
// two lie so between each column and the next. `phase` is 1 if the first pixel wanted is the second of its
// two.
template <typename T, int channels>
void doubleRows(const uint8_t* first, const uint8_t* second, uint8_t* nearFirst, uint8_t* nearSecond,
                size_t phase, size_t count);

}  // namespace lumi
