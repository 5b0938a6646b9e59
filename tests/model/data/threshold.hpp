// SPDX-License-Identifier: MIT
#pragma once

#include "model/access.hpp"

namespace model {

// Thresholds and values, read once: constant k has a sample for each channel.
template <typename T>
struct Constants {
  T samples[4][4];

  Constants(const Byte* values, int count, int channels) {
    for (int k = 0; k < count; ++k)
      std::memcpy(samples[k], values + static_cast<size_t>(k * channels) * sizeof(T),
                  static_cast<size_t>(channels) * sizeof(T));
  }
  const T& at(int constant, int channel) const { return samples[constant][channel]; }
};

// Each sample becomes the constant that which(sample, channel) names, or, where it names none, stays. Samples
// are moved as bytes, so that every NaN stays what it is.
template <typename T, typename Which>
void choose(const Constants<T>& constants, Image src, Image dst, LumiSize roi, Channels channels,
            Which which) {
  for (int y = 0; y < roi.height; ++y)
    for (int x = 0; x < roi.width; ++x)
      for (int c = 0; c < channels.moved; ++c) {
        const auto at = static_cast<ptrdiff_t>(x * channels.dst + c) * static_cast<ptrdiff_t>(sizeof(T));
        T x0;
        std::memcpy(&x0, src.row(y) + at, sizeof x0);
        const int constant = which(x0, c);
        std::memcpy(dst.row(y) + at, constant < 0 ? &x0 : &constants.at(constant, c), sizeof(T));
      }
}

// The threshold, unless the sample is on its other side: that also settles what is not a number, and zeros of
// two signs.
template <typename T>
void limit(const Byte* values, bool above, Image src, Image dst, LumiSize roi, Channels channels) {
  const Constants<T> constants(values, 1, channels.moved);
  choose(constants, src, dst, roi, channels, [&](const T& x, int c) {
    const T& t = constants.at(0, c);
    return (above ? x < t : x > t) ? -1 : 0;
  });
}

template <typename T>
void replace(const Byte* values, bool above, Image src, Image dst, LumiSize roi, Channels channels) {
  const Constants<T> constants(values, 2, channels.moved);
  choose(constants, src, dst, roi, channels, [&](const T& x, int c) {
    const T& t = constants.at(0, c);
    return (above ? x > t : !(x >= t)) ? 1 : -1;
  });
}

template <typename T>
LumStatus replaceBoth(const Byte* values, Image src, Image dst, LumiSize roi, Channels channels) {
  const Constants<T> constants(values, 4, channels.moved);
  for (int c = 0; c < channels.moved; ++c)
    if (constants.at(0, c) > constants.at(2, c)) return lumStatusBadThresholdOrder;
  choose(constants, src, dst, roi, channels, [&](const T& x, int c) {
    if (x > constants.at(2, c)) return 3;
    return x >= constants.at(0, c) ? -1 : 1;
  });
  return lumStatusOk;
}

}  // namespace model
