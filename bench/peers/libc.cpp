// SPDX-License-Identifier: MIT
#include "bench/peers/libc.hpp"

#include <gnu/libc-version.h>
#include <sys/platform/x86.h>

#include <cstring>
#include <cwchar>

#include "bench/peers/pixel.hpp"

namespace bench::libc {
namespace {

// Calls row(y, bytes) for each row, or once for all of them where they follow one another.
template <typename Row>
void forRows(const View& image, bool isTight, Row row) {
  const auto bytes = static_cast<std::size_t>(image.rowBytes());
  if (isTight) return row(0, bytes * static_cast<std::size_t>(image.roi.height));
  for (int y = 0; y < image.roi.height; ++y) row(y, bytes);
}

}  // namespace

Library library() {
  return {"libc", gnu_get_libc_version(), CPU_FEATURE_ACTIVE(AVX2) || CPU_FEATURE_ACTIVE(AVX512F)};
}

Peer fill(View dst, Value value) {
  const uint32_t word = pixelWord(dst, value);
  if (dst.pixelBytes() == 1) {
    return peer("libc", [=] {
      forRows(dst, dst.isTight(),
              [&](int y, std::size_t bytes) { std::memset(dst.row(y), static_cast<int>(word), bytes); });
    });
  }
  if (dst.pixelBytes() != sizeof(wchar_t)) return {};
  return peer("libc", [=] {
    forRows(dst, dst.isTight(), [&](int y, std::size_t bytes) {
      std::wmemset(reinterpret_cast<wchar_t*>(dst.row(y)), static_cast<wchar_t>(word),
                   bytes / sizeof(wchar_t));
    });
  });
}

Peer copy(View src, View dst) {
  return peer("libc", [=] {
    forRows(src, src.isTight() && dst.isTight(),
            [&](int y, std::size_t bytes) { std::memcpy(dst.row(y), src.row(y), bytes); });
  });
}

}  // namespace bench::libc
