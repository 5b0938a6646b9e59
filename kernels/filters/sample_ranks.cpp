// SPDX-License-Identifier: MIT
#include "kernels/filters/sample_ranks.hpp"

#include <utility>

namespace lumi {
namespace {

constexpr int kDigitBits = 11, kDigits = 1 << kDigitBits;

template <typename Key>
constexpr int kPasses = (8 * static_cast<int>(sizeof(Key)) + kDigitBits - 1) / kDigitBits;

template <typename Key>
size_t digitOf(Key key, int pass) {
  return static_cast<size_t>(key >> (pass * kDigitBits)) & (kDigits - 1);
}

constexpr int64_t roundedUp(int64_t n) { return (n + 15) / 16 * 16; }

}  // namespace

template <typename T>
int64_t SampleRanks<T>::bytes(int64_t samples) {
  const int64_t items = 2 * roundedUp(samples * static_cast<int64_t>(sizeof(Item)));
  return items + int64_t{kPasses<Key>} * kDigits * 4 + samples * 2;
}

template <typename T>
SampleRanks<T>::SampleRanks(uint8_t* memory, int64_t samples) {
  const auto items = static_cast<ptrdiff_t>(roundedUp(samples * static_cast<int64_t>(sizeof(Item))));
  sorted_ = reinterpret_cast<Item*>(memory);
  spare_ = reinterpret_cast<Item*>(memory + items);
  counts_ = reinterpret_cast<uint32_t*>(memory + 2 * items);
  ranks_ = reinterpret_cast<uint16_t*>(counts_ + kPasses<Key> * kDigits);
}

template <typename T>
void SampleRanks<T>::rank(const uint8_t* first, ptrdiff_t step, ptrdiff_t pixelBytes, int columns, int rows) {
  columns_ = columns;
  std::memset(counts_, 0, sizeof(uint32_t) * kPasses<Key> * kDigits);
  uint32_t place = 0;
  for (int y = 0; y < rows; ++y, first += step) {
    const uint8_t* sample = first;
    for (int x = 0; x < columns; ++x, sample += pixelBytes, ++place) {
      const Key key = SampleOrder<T>::keyAt(sample);
      sorted_[place] = {key, place};
      for (int pass = 0; pass < kPasses<Key>; ++pass)
        ++counts_[static_cast<size_t>(pass * kDigits) + digitOf(key, pass)];
    }
  }
  sort(place);
  for (uint32_t i = 0; i < place; ++i) ranks_[sorted_[i].place] = static_cast<uint16_t>(i);
}

// By one digit after the other, from the lowest; those that are the same in all keys have nothing to sort.
template <typename T>
void SampleRanks<T>::sort(size_t count) {
  for (int pass = 0; pass < kPasses<Key>; ++pass) {
    uint32_t* const counts = counts_ + pass * kDigits;
    if (counts[digitOf(sorted_[0].key, pass)] == count) continue;
    uint32_t before = 0;
    for (int digit = 0; digit < kDigits; ++digit) before += std::exchange(counts[digit], before);
    for (size_t i = 0; i < count; ++i) spare_[counts[digitOf(sorted_[i].key, pass)]++] = sorted_[i];
    std::swap(sorted_, spare_);
  }
}

template class SampleRanks<float>;
template class SampleRanks<double>;

}  // namespace lumi
