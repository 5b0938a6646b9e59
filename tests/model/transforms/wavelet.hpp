// SPDX-License-Identifier: MIT
// One level of a wavelet transform, sample by sample, in floats and in the order of the taps.
#pragma once

#include <vector>

#include "model/access.hpp"

namespace model {

struct WaveletFilter {
  std::vector<float> taps;
  int anchor;

  int length() const { return static_cast<int>(taps.size()); }
  float tap(int k) const { return taps[static_cast<size_t>(k)]; }
  int reach() const { return length() - anchor - 1; }  // of the first tap, to the left
  // What the inverse reaches in a band.
  int before() const { return anchor / 2; }
  int behind() const { return (length() - anchor) / 2; }
};

// The sum of the values that a function has at the taps' places.
template <typename Value>
float analysed(const WaveletFilter& filter, int place, Value value) {
  float sum = 0;
  for (int k = 0; k < filter.length(); ++k) {
    const float product = filter.tap(k) * value(2 * place - filter.reach() + k);
    sum = k == 0 ? product : sum + product;
  }
  return sum;
}

// The sum of the coefficients that reach a sample.
template <typename Value>
float synthesised(const WaveletFilter& filter, int place, Value value) {
  float sum = 0;
  bool isFirst = true;
  for (int k = 0; k < filter.length(); ++k) {
    const int twice = place + filter.reach() - k;
    if (twice % 2 != 0) continue;
    const float product = filter.tap(k) * value(twice / 2);
    sum = isFirst ? product : sum + product;
    isFirst = false;
  }
  return sum;
}

inline float waveletBand(Image src, int x, int y, int channel, int channels, const WaveletFilter& vertical,
                         const WaveletFilter& along) {
  return analysed(along, x, [&](int column) {
    return analysed(vertical, y,
                    [&](int row) { return load<float>(src.row(row), column * channels + channel); });
  });
}

// Bands in the order of the arguments: approximation, then details 1 to 3.
inline float waveletSample(const Image (&bands)[4], int x, int y, int channel, int channels,
                           const WaveletFilter& low, const WaveletFilter& high) {
  const auto joined = [&](const Image& lowRows, const Image& highRows, int column) {
    const auto rows = [&](const Image& band) {
      return [&band, column, channels, channel](int row) {
        return load<float>(band.row(row), column * channels + channel);
      };
    };
    return synthesised(low, y, rows(lowRows)) + synthesised(high, y, rows(highRows));
  };
  return synthesised(low, x, [&](int column) { return joined(bands[0], bands[1], column); }) +
         synthesised(high, x, [&](int column) { return joined(bands[2], bands[3], column); });
}

}  // namespace model
