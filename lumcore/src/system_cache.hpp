// SPDX-License-Identifier: MIT
// The operating system's figures about caches, for processors that enumerate none.
#pragma once

#include <cstdint>

namespace lumcore {

// Reads the text of a kernel's cache size file, such as "32768K"; 0 for anything else.
constexpr uint64_t bytesOfText(const char* text) {
  uint64_t value = 0;
  for (int digits = 0; *text >= '0' && *text <= '9'; ++text, ++digits) {
    if (digits == 9) return 0;
    value = value * 10 + static_cast<uint64_t>(*text - '0');
  }
  const int shift = *text == 'K' ? 10 : *text == 'M' ? 20 : *text == 'G' ? 30 : 0;
  if (shift != 0) ++text;
  return *text == '\0' || *text == '\n' ? value << shift : 0;
}

// The largest data or unified cache in bytes, 0 where nothing is known. The kernel's files in `folder` come
// first: sysconf may count the last level of all sockets as one cache.
uint64_t systemCache(const char* folder);

}  // namespace lumcore
