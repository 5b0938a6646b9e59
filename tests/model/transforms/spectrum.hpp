// SPDX-License-Identifier: MIT
// Fourier transforms in double precision, by the definition: a length is split by its smallest factor.
#pragma once

#include <cmath>
#include <complex>
#include <map>
#include <utility>
#include <vector>

namespace model {

using Numbers = std::vector<std::complex<double>>;

inline std::complex<double> unitRoot(size_t k, size_t n, bool inverse) {
  const double angle = 2 * 3.14159265358979323846 * static_cast<double>(k % n) / static_cast<double>(n);
  return {std::cos(angle), inverse ? std::sin(angle) : -std::sin(angle)};
}

inline const Numbers& unitRoots(size_t n, bool inverse) {
  static std::map<std::pair<size_t, bool>, Numbers> known;
  Numbers& roots = known[{n, inverse}];
  for (size_t k = roots.size(); k < n; ++k) roots.push_back(unitRoot(k, n, inverse));
  return roots;
}

// Sum of x(j) exp(-+2 pi i j k / n), without any factor.
inline Numbers transformed(const Numbers& x, bool inverse) {
  const size_t n = x.size();
  if (n == 1) return x;
  size_t factor = 2;
  while (factor * factor <= n && n % factor != 0) ++factor;
  if (n % factor != 0) factor = n;
  Numbers result(n);
  const Numbers& root = unitRoots(n, inverse);
  const size_t rest = n / factor;
  std::vector<Numbers> parts(factor, Numbers(rest));
  for (size_t j = 0; j < n; ++j) parts[j % factor][j / factor] = x[j];
  if (rest > 1)
    for (Numbers& part : parts) part = transformed(part, inverse);
  for (size_t k = 0; k < n; ++k)
    for (size_t f = 0; f < factor; ++f) {
      const std::complex<double> w = root[f * k % n], part = parts[f][k % rest];
      result[k] += std::complex<double>{w.real() * part.real() - w.imag() * part.imag(),
                                        w.real() * part.imag() + w.imag() * part.real()};
    }
  return result;
}

// Of an image: along each row, then down each column.
inline Numbers transformedImage(Numbers x, size_t width, size_t height, bool inverse) {
  for (size_t v = 0; v < height; ++v) {
    Numbers row(width);
    for (size_t u = 0; u < width; ++u) row[u] = x[v * width + u];
    row = transformed(row, inverse);
    for (size_t u = 0; u < width; ++u) x[v * width + u] = row[u];
  }
  for (size_t u = 0; u < width; ++u) {
    Numbers column(height);
    for (size_t v = 0; v < height; ++v) column[v] = x[v * width + u];
    column = transformed(column, inverse);
    for (size_t v = 0; v < height; ++v) x[v * width + u] = column[v];
  }
  return x;
}

// Where a packed spectrum of n real numbers has the real part and the imaginary part of value k, for k to n /
// 2; below 0 where a part is always zero.
inline int placeOfReal(int k, int n) { return k == 0 ? 0 : 2 * k == n ? n - 1 : 2 * k - 1; }
inline int placeOfImaginary(int k, int n) { return k == 0 || 2 * k == n ? -1 : 2 * k; }

// Calls visit(place, row, column, isImaginary) for each number of a packed spectrum: the part of the
// spectrum's value at that row and column.
template <typename Visit>
void forEachPacked(int width, int height, const Visit& visit) {
  for (int k = 0; 2 * k <= width; ++k) {
    const int re = placeOfReal(k, width), im = placeOfImaginary(k, width);
    if (im >= 0) {
      for (int v = 0; v < height; ++v) {
        visit(v * width + re, v, k, false);
        visit(v * width + im, v, k, true);
      }
    } else {
      for (int v = 0; 2 * v <= height; ++v) {
        visit(placeOfReal(v, height) * width + re, v, k, false);
        if (placeOfImaginary(v, height) >= 0) visit(placeOfImaginary(v, height) * width + re, v, k, true);
      }
    }
  }
}

inline std::vector<double> packed(const Numbers& spectrum, int width, int height) {
  std::vector<double> result(spectrum.size());
  forEachPacked(width, height, [&](int place, int v, int u, bool isImaginary) {
    const std::complex<double> f = spectrum[static_cast<size_t>(v * width + u)];
    result[static_cast<size_t>(place)] = isImaginary ? f.imag() : f.real();
  });
  return result;
}

inline Numbers unpacked(const std::vector<double>& numbers, int width, int height) {
  Numbers result(numbers.size());
  const auto set = [&](int v, int u, double x, bool isImaginary) {
    std::complex<double>& f = result[static_cast<size_t>(v * width + u)];
    isImaginary ? f.imag(x) : f.real(x);
  };
  forEachPacked(width, height, [&](int place, int v, int u, bool isImaginary) {
    const double x = numbers[static_cast<size_t>(place)];
    set(v, u, x, isImaginary);
    // The spectrum of real numbers: F(-v, -u) is the conjugate.
    const int mv = (height - v) % height, mu = (width - u) % width;
    if (mv != v || mu != u) set(mv, mu, isImaginary ? -x : x, isImaginary);
  });
  return result;
}

}  // namespace model
