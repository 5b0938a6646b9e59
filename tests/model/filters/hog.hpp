// SPDX-License-Identifier: MIT
// Histograms of oriented gradients, pixel by pixel.
#pragma once

#include <algorithm>
#include <cmath>
#include <cstdint>
#include <vector>

#include "model/access.hpp"

namespace model {

struct HogImage {
  Image src;
  LumiSize roi;
  int channels;
  LumiBorderType border;
};

// Of the top left cell.
inline double hogWeight(const LumiHOGConfig& c, int x, int y) {
  if (x >= c.blockSize - c.cellSize / 2 || y >= c.blockSize - c.cellSize / 2) return 0;
  const auto share = [&](int i) { return 1 - std::fabs((i + 0.5) / c.cellSize - 0.5); };
  const auto square = [&](int i) { return std::pow(i + 0.5 - c.blockSize / 2, 2); };  // NOLINT: whole half
  const double variance = static_cast<double>(c.sigma) * static_cast<double>(c.sigma);
  return share(x) * share(y) * std::exp(-(square(x) + square(y)) / (2 * variance));
}

inline std::vector<double> hogWeights(const LumiHOGConfig& c) {
  std::vector<double> weights;
  const int last = c.blockSize - 1;
  for (int y = 0; y <= last; ++y)
    for (int x = 0; x <= last; ++x)
      for (const double w : {hogWeight(c, x, y), hogWeight(c, x, last - y), hogWeight(c, last - x, y),
                             hogWeight(c, last - x, last - y)})
        weights.push_back(w);
  return weights;
}

// The part of the ROI that blocks fit.
inline LumiSize hogSize(const LumiHOGConfig& c, LumiSize roi) {
  const auto side = [&](int n) { return n - (n - c.blockSize) % c.blockStride; };
  return {side(roi.width), side(roi.height)};
}

template <typename T>
float hogSample(const HogImage& image, LumiSize size, const T* value, int x, int y, int channel) {
  const int type = image.border & 15;
  const auto isReal = [&](int flag) { return type == 6 || (image.border & flag) != 0; };
  const auto place = [&](int at, int length, int low, int high) {  // -2: nowhere
    const bool isBefore = at < 0, isBehind = at >= length;
    if ((!isBefore && !isBehind) || isReal(isBefore ? low : high)) return at;
    if (type == 0) return -2;
    if (type == 1) return isBefore ? 0 : length - 1;
    return isBefore ? -at : 2 * (length - 1) - at;
  };
  const int px = place(x, size.width, 64, 128), py = place(y, size.height, 16, 32);
  if (px == -2 || py == -2) return static_cast<float>(value[channel]);
  return static_cast<float>(load<T>(image.src.row(py), px * image.channels + channel));
}

struct HogVote {
  int low, high;
  float toLow, toHigh;
};

inline HogVote hogVote(float dx, float dy, int bins) {
  const float epsilon = 2.220446e-16F, xx = dx * dx, yy = dy * dy, product = dx * dy;
  const float pi = 3.14159265F;
  float angle;
  if (xx >= yy) {
    const float divisor = epsilon + xx;
    angle = product / (divisor + 0.28F * yy) + (dx < 0 ? pi : dy >= 0 ? 0.0F : 2 * pi);
  } else {
    const float divisor = epsilon + 0.28F * xx;
    angle = (dy >= 0 ? pi / 2 : 4.71238898F) - product / (divisor + yy);
  }
  const float scaled = angle * static_cast<float>(bins / 3.14159265358979324);
  const float b = scaled - 0.5F, k = std::floor(b), f = b - k, rest = 1 - f;
  const float m = std::sqrt(xx + yy);
  int low = static_cast<int>(k);
  if (low < 0) low += bins;
  if (low >= bins) low -= bins;
  return {low, (low + 1) % bins, m * rest, m * f};
}

template <typename T>
HogVote hogVoteAt(const HogImage& image, const LumiHOGConfig& c, const T* value, int x, int y) {
  const LumiSize size = hogSize(c, image.roi);
  float bestX = 0, bestY = 0, best = 0;
  for (int channel = 0; channel < image.channels; ++channel) {
    const auto at = [&](int px, int py) { return hogSample(image, size, value, px, py, channel); };
    const float dx = at(x + 1, y) - at(x - 1, y), dy = at(x, y + 1) - at(x, y - 1);
    const float xx = dx * dx, yy = dy * dy, square = xx + yy;
    if (channel == 0 || (channel == 1 && square >= best) || (channel == 2 && square > best))
      bestX = dx, bestY = dy, best = square;
  }
  return hogVote(bestX, bestY, c.binCount);
}

inline std::vector<float> hogNormalised(std::vector<float> h, const LumiHOGConfig& c) {
  const auto scale = [&] {
    float cells[4] = {};
    for (size_t i = 0; i < h.size(); ++i) cells[i % 4] += h[i] * h[i];
    const float two = cells[0] + cells[1], three = two + cells[2], sum = three + cells[3];
    return 1 / std::sqrt(sum + 1.1920929e-7F);
  };
  const float first = scale();
  for (float& x : h) x = std::min(x * first, c.clipping);
  const float last = scale();
  std::vector<float> result;
  for (size_t cell = 0; cell < 4; ++cell)
    for (size_t i = cell; i < h.size(); i += 4) result.push_back(h[i] * last);
  return result;
}

// All descriptors, one behind the other. Weights are those of the object.
template <typename T>
std::vector<float> hog(const HogImage& image, const LumiHOGConfig& c, const T* value,
                       const std::vector<float>& weights, const std::vector<LumiPoint>& locations) {
  const LumiSize size = hogSize(c, image.roi);
  std::vector<HogVote> votes;
  for (int y = 0; y < size.height; ++y)
    for (int x = 0; x < size.width; ++x) votes.push_back(hogVoteAt(image, c, value, x, y));
  std::vector<float> result;
  const int across = (c.windowWidth - c.blockSize) / c.blockStride + 1;
  const int down = (c.windowHeight - c.blockSize) / c.blockStride + 1;
  for (const LumiPoint at : locations) {
    if (at.x < 0 || at.y < 0 || int64_t{at.x} + c.windowWidth > size.width ||
        int64_t{at.y} + c.windowHeight > size.height)
      continue;
    for (int i = 0; i < across * down; ++i) {
      const int column = c.blockOrder != 0 ? i / down : i % across,
                row = c.blockOrder != 0 ? i % down : i / across;
      std::vector<float> h(static_cast<size_t>(4 * c.binCount));
      const float* weight = weights.data();
      for (int y = 0; y < c.blockSize; ++y)
        for (int x = 0; x < c.blockSize; ++x, weight += 4) {
          const int px = at.x + column * c.blockStride + x, py = at.y + row * c.blockStride + y;
          const HogVote& vote =
              votes[static_cast<size_t>(py) * static_cast<size_t>(size.width) + static_cast<size_t>(px)];
          for (int cell = 0; cell < 4; ++cell) {
            h[static_cast<size_t>(vote.low * 4 + cell)] += vote.toLow * weight[cell];
            h[static_cast<size_t>(vote.high * 4 + cell)] += vote.toHigh * weight[cell];
          }
        }
      for (const float x : hogNormalised(h, c)) result.push_back(x);
    }
  }
  return result;
}

}  // namespace model
