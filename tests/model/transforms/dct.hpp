// SPDX-License-Identifier: MIT
// Orthonormal cosine transforms in double precision, by the definition.
#pragma once

#include <cmath>
#include <vector>

namespace model {

inline std::vector<double> cosineTransformed(const std::vector<double>& x, bool inverse) {
  const size_t n = x.size();
  std::vector<double> cosine(4 * n), result(n);
  for (size_t i = 0; i < 4 * n; ++i)
    cosine[i] = std::cos(3.14159265358979323846 * static_cast<double>(i) / (2 * static_cast<double>(n)));
  const double first = 1 / std::sqrt(static_cast<double>(n)), rest = std::sqrt(2 / static_cast<double>(n));
  for (size_t k = 0; k < n; ++k)
    for (size_t i = 0; i < n; ++i) {
      const double w = (k == 0 ? first : rest) * cosine[(2 * i + 1) * k % (4 * n)];
      if (inverse)
        result[i] += w * x[k];
      else
        result[k] += w * x[i];
    }
  return result;
}

inline std::vector<double> cosineTransformedImage(std::vector<double> x, size_t width, size_t height,
                                                  bool inverse) {
  for (size_t v = 0; v < height; ++v) {
    const auto first = x.begin() + static_cast<std::ptrdiff_t>(v * width);
    const std::vector<double> row =
        cosineTransformed({first, first + static_cast<std::ptrdiff_t>(width)}, inverse);
    std::copy(row.begin(), row.end(), first);
  }
  for (size_t u = 0; u < width; ++u) {
    std::vector<double> column(height);
    for (size_t v = 0; v < height; ++v) column[v] = x[v * width + u];
    column = cosineTransformed(column, inverse);
    for (size_t v = 0; v < height; ++v) x[v * width + u] = column[v];
  }
  return x;
}

}  // namespace model
