// SPDX-License-Identifier: MIT
#pragma once

#include <cstddef>

namespace test {

using Byte = unsigned char;

// Memory between two inaccessible pages, and a twin of the same size that the model works on. Both hold
// the same bytes whenever the library and the model agree, so every byte is watched: pixels, the padding
// of rows, and what lies around the image. Mapping is dear, so arenas are made once and used for all cases.
class Arena {
 public:
  explicit Arena(size_t bytes);  // rounded up to whole pages
  ~Arena();
  Arena(const Arena&) = delete;
  Arena& operator=(const Arena&) = delete;

  Byte* begin() const { return first_; }
  Byte* end() const { return first_ + size_; }
  bool holds(const Byte* at) const { return at >= first_ && at < first_ + size_; }
  Byte* twin(const Byte* at) const { return twin_ + (at - first_); }

  // Makes the twin equal in [low, high).
  void copyToTwin(const Byte* low, const Byte* high) const;
  // The first byte of [low, high) that differs from its twin, or null.
  const Byte* firstDifference(const Byte* low, const Byte* high) const;
  // Takes away all access, or gives it back.
  void setAccessible(const Byte* low, const Byte* high, bool accessible) const;
  // Makes all of it read-only, or not.
  void setWritable(bool writable) const;

  static size_t pageBytes();

 private:
  size_t size_;
  Byte* mapping_;
  Byte* first_;
  Byte* twin_;
};

}  // namespace test
