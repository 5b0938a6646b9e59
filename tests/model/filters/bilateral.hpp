// SPDX-License-Identifier: MIT
// Means of pixels weighted by distance and by likeness.
#pragma once

#include <cmath>
#include <cstdint>
#include <cstdlib>
#include <vector>

#include "model/filters/border_place.hpp"

namespace model {

struct BilateralImage {
  Image src;
  LumiSize size;
  int channels, border;

  // A sample inside or outside; null `value` is black.
  template <typename T>
  T at(int x, int y, int channel, const T* value) const {
    const auto column = borderPlace(x, size.width, border, 64, 128);
    const auto row = borderPlace(y, size.height, border, 16, 32);
    if (column && row) return load<T>(src.row(*row), *column * channels + channel);
    return value ? value[channel] : T{};
  }
};

struct DiscPoint {
  int dx, dy;
  int squared() const { return dx * dx + dy * dy; }
};

inline std::vector<DiscPoint> disc(int radius) {
  std::vector<DiscPoint> points;
  for (int dy = -radius; dy <= radius; ++dy)
    for (int dx = -radius; dx <= radius; ++dx)
      if (dx * dx + dy * dy <= radius * radius) points.push_back({dx, dy});
  return points;
}

// The weights of positions as the object has them.
inline std::vector<double> positionWeights(int radius, double variance) {
  const double v = -1 / (2 * variance);
  if (radius == 1) return {std::exp(v)};
  if (radius == 2) return {std::exp(4 * v), std::exp(2 * v), std::exp(v)};
  std::vector<double> weights;
  for (const DiscPoint& p : disc(radius)) weights.push_back(std::exp(p.squared() * v));
  return weights;
}

// The stored weight of a point; of 8u at radius 1 it is part of the values.
inline float pointWeight(const std::vector<float>& stored, int radius, size_t point, const DiscPoint& p) {
  if (radius > 2) return stored[point];
  if (p.squared() == 0) return 1;
  if (radius == 1) return stored[0];
  return stored[p.squared() == 4 ? 0 : p.squared() == 2 ? 1 : 2];
}

// By the object's own tables, in floats; the middle first.
inline Lum8u bilateralByte(const BilateralImage& image, int radius, const std::vector<float>& values,
                           const std::vector<float>& positions, const Lum8u* outside, int x, int y,
                           int channel) {
  const auto at = [&](int dx, int dy, int c) { return int{image.at<Lum8u>(x + dx, y + dy, c, outside)}; };
  float weights = 1, products = static_cast<float>(at(0, 0, channel));
  const std::vector<DiscPoint> points = disc(radius);
  for (size_t i = 0; i < points.size(); ++i) {
    const auto [dx, dy] = points[i];
    if (dx == 0 && dy == 0) continue;
    int difference = 0;
    for (int c = 0; c < image.channels; ++c) difference += std::abs(at(dx, dy, c) - at(0, 0, c));
    const float position = radius == 1 ? 1 : pointWeight(positions, radius, i, points[i]);
    const float weight = values[static_cast<size_t>(difference)] * position;
    weights += weight;
    const float product = weight * static_cast<float>(at(dx, dy, channel));
    products += product;
  }
  return static_cast<Lum8u>(std::nearbyint(products / weights));
}

struct BoundedMean {
  double right, tolerance;
};

// A weight 2^x has an error of a few roundings of x, and of 2^x itself: together below (2 + |x|) * 2^-21 of
// it; below 2^-100 it is 0. Sums of n terms round n times each.
inline BoundedMean bilateralFloat(const BilateralImage& image, int radius, double variance,
                                  const std::vector<float>& positions, const Lum32f* outside, int x, int y,
                                  int channel) {
  const auto at = [&](int dx, int dy, int c) {
    return static_cast<double>(image.at<Lum32f>(x + dx, y + dy, c, outside));
  };
  double weights = 1, products = 0, errors = 0, sizes = 0, weightErrors = 0;
  const std::vector<DiscPoint> points = disc(radius);
  for (size_t i = 0; i < points.size(); ++i) {
    const auto [dx, dy] = points[i];
    if (dx == 0 && dy == 0) continue;
    double difference = 0;
    for (int c = 0; c < image.channels; ++c) difference += std::fabs(at(dx, dy, c) - at(0, 0, c));
    const double exponent = -difference * difference / (2 * variance);
    const double weight =
        std::exp(exponent) * static_cast<double>(pointWeight(positions, radius, i, points[i]));
    const double error = weight * (2 - 1.5 * exponent) * 0x1p-21 + 0x1p-100;
    const double value = at(dx, dy, channel) - at(0, 0, channel);
    weights += weight;
    weightErrors += error;
    products += weight * value;
    sizes += std::fabs(weight * value);
    errors += error * std::fabs(value);
  }
  const double mean = products / weights, n = static_cast<double>(points.size());
  const double right = at(0, 0, channel) + mean;
  const double tolerance = (errors + sizes * (n + 2) * 0x1p-24 + std::fabs(mean) * weightErrors) / weights +
                           std::fabs(mean) * (n + 2) * 0x1p-24 + std::fabs(right) * 0x1p-23;
  return {right, tolerance};
}

// Of a grid whose points are `step` pixels apart and reach so far; weights by distance.
inline Lum8u gridBilateral(const Image& src, int reachX, int reachY, int step,
                           const std::vector<float>& values, const std::vector<float>& positions, int x,
                           int y) {
  const auto at = [&](int dx, int dy) { return int{load<Lum8u>(src.row(y + dy), x + dx)}; };
  float weights = 1, products = static_cast<float>(at(0, 0));
  for (int dy = -reachY; dy <= reachY; dy += step)
    for (int dx = -reachX; dx <= reachX; dx += step) {
      if (dx == 0 && dy == 0) continue;
      const float position =
          positions[static_cast<size_t>(std::abs(dx))] * positions[static_cast<size_t>(std::abs(dy))];
      const float weight = values[static_cast<size_t>(std::abs(at(dx, dy) - at(0, 0)))] * position;
      weights += weight;
      const float product = weight * static_cast<float>(at(dx, dy));
      products += product;
    }
  return static_cast<Lum8u>(std::nearbyint(products / weights));
}

}  // namespace model
