// SPDX-License-Identifier: MIT
#include "system_cache.hpp"

#include <fcntl.h>
#include <unistd.h>

#include <algorithm>
#include <cstdio>

namespace lumcore {
namespace {

// A short text file of one entry; empty where it cannot be read.
struct Text {
  char bytes[32] = {};

  Text(const char* folder, int index, const char* name) {
    char path[256];
    std::snprintf(path, sizeof path, "%s/index%d/%s", folder, index, name);
    const int file = open(path, O_RDONLY | O_CLOEXEC);
    if (file < 0) return;
    const ssize_t count = read(file, bytes, sizeof bytes - 1);
    bytes[std::max<ssize_t>(count, 0)] = '\0';
    close(file);
  }
};

}  // namespace

uint64_t systemCache(const char* folder) {
  uint64_t largest = 0;
  for (int index = 0; index < 10; ++index) {
    const char kind = Text(folder, index, "type").bytes[0];
    if (kind != 'D' && kind != 'U') continue;
    largest = std::max(largest, bytesOfText(Text(folder, index, "size").bytes));
  }
  for (const int level : {_SC_LEVEL3_CACHE_SIZE, _SC_LEVEL2_CACHE_SIZE, _SC_LEVEL1_DCACHE_SIZE}) {
    if (largest == 0) largest = static_cast<uint64_t>(std::max(sysconf(level), 0L));
  }
  return largest;
}

}  // namespace lumcore
