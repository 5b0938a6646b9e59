// SPDX-License-Identifier: MIT
#include "support/arena.hpp"

#include <sys/mman.h>
#include <unistd.h>

#include <algorithm>
#include <cstdio>
#include <cstdlib>
#include <cstring>

namespace test {
namespace {

void require(bool done, const char* what) {
  if (done) return;
  std::perror(what);
  std::abort();
}

Byte* map(size_t bytes, int access) {
  void* memory = mmap(nullptr, bytes, access, MAP_PRIVATE | MAP_ANONYMOUS, -1, 0);
  require(memory != MAP_FAILED, "mmap");
  return static_cast<Byte*>(memory);
}

}  // namespace

size_t Arena::pageBytes() {
  static const auto bytes = static_cast<size_t>(sysconf(_SC_PAGESIZE));
  return bytes;
}

Arena::Arena(size_t bytes)
    : size_((bytes + pageBytes() - 1) / pageBytes() * pageBytes()),
      mapping_(map(size_ + 2 * pageBytes(), PROT_NONE)),
      first_(mapping_ + pageBytes()),
      twin_(map(size_, PROT_READ | PROT_WRITE)) {
  setAccessible(begin(), end(), true);
}

Arena::~Arena() {
  munmap(mapping_, size_ + 2 * pageBytes());
  munmap(twin_, size_);
}

void Arena::copyToTwin(const Byte* low, const Byte* high) const {
  std::memcpy(twin(low), low, static_cast<size_t>(high - low));
}

const Byte* Arena::firstDifference(const Byte* low, const Byte* high) const {
  if (std::memcmp(low, twin(low), static_cast<size_t>(high - low)) == 0) return nullptr;
  return std::mismatch(low, high, twin(low)).first;
}

void Arena::setAccessible(const Byte* low, const Byte* high, bool accessible) const {
  Byte* start = first_ + (low - first_);
  require(
      mprotect(start, static_cast<size_t>(high - low), accessible ? PROT_READ | PROT_WRITE : PROT_NONE) == 0,
      "mprotect");
}

void Arena::setWritable(bool writable) const {
  require(mprotect(first_, size_, writable ? PROT_READ | PROT_WRITE : PROT_READ) == 0, "mprotect");
}

}  // namespace test
