// SPDX-License-Identifier: MIT
#include "filters/border_image.hpp"

#include <cstring>

namespace lumi {
namespace {

void repeat(Byte* to, const Byte* pixel, size_t bytes, int count) {
  for (; count > 0; --count, to += bytes) std::memcpy(to, pixel, bytes);
}

}  // namespace

void buildBorderImage(const BorderPart& part, BorderPixel pixel, Rows<Byte> image, LumiSize size) {
  const size_t bytes = pixel.bytes, left = static_cast<size_t>(part.left) * bytes;
  const size_t rowBytes = static_cast<size_t>(part.size.width) * bytes;
  const int right = size.width - part.left - part.size.width;
  for (int y = 0; y < part.size.height; ++y) {
    Byte* const row = image.row(part.top + y);
    std::memcpy(row + left, part.image.row(y), rowBytes);
    const Byte* const first = pixel.constant ? pixel.constant : row + left;
    const Byte* const last = pixel.constant ? pixel.constant : row + left + rowBytes - bytes;
    repeat(row, first, bytes, part.left);
    repeat(row + left + rowBytes, last, bytes, right);
  }
  const auto fillRow = [&](int y, int edge) {
    if (pixel.constant)
      repeat(image.row(y), pixel.constant, bytes, size.width);
    else
      std::memcpy(image.row(y), image.row(edge), static_cast<size_t>(size.width) * bytes);
  };
  const int end = part.top + part.size.height;
  for (int y = 0; y < part.top; ++y) fillRow(y, part.top);
  for (int y = end; y < size.height; ++y) fillRow(y, end - 1);
}

}  // namespace lumi
