// SPDX-License-Identifier: MIT
// Resize by its definition: every destination pixel on its own, from the two image sizes.
#pragma once

#include <algorithm>
#include <cmath>
#include <cstdint>
#include <limits>
#include <type_traits>

#include "model/access.hpp"

namespace model::resize {

inline int64_t upTo(int64_t n, int64_t multiple) { return (n + multiple - 1) / multiple * multiple; }

// The C library's own takes most of a 32-bit test's time.
inline int floorOf(double x) {
  const int truncated = static_cast<int>(x);
  return x < truncated ? truncated - 1 : truncated;
}

// One axis of a resize.
struct Axis {
  int src, dst;
  double ratio = static_cast<double>(src) / static_cast<double>(dst);

  int start(int position) const { return floorOf(position * ratio); }
  int nearest(int position) const { return static_cast<int>((position + 0.5) * ratio - 1e-10); }
  double centre(int position) const { return (position + 0.5) * ratio - 0.5; }
  int index(int position) const { return floorOf(centre(position)); }
  double fraction(int position) const { return centre(position) - floorOf(centre(position)); }
};

struct Tile {
  LumiSize src, dst;  // of the whole images
  LumiPoint offset;
  LumiSize size;
  int channels;
  int border = 1;

  Axis horizontal() const { return {src.width, dst.width}; }
  Axis vertical() const { return {src.height, dst.height}; }
  int width() const { return std::min(size.width, dst.width - offset.x); }
  int height() const { return std::min(size.height, dst.height - offset.y); }
};

// The source image, given by the pixel where the tile starts.
struct Source {
  Image image;
  int left, top, channels;

  Source(const Tile& tile, Image given)
      : image(given),
        left(tile.horizontal().start(tile.offset.x)),
        top(tile.vertical().start(tile.offset.y)),
        channels(tile.channels) {}

  template <typename T>
  T sample(int column, int row, int channel) const {
    return load<T>(image.row(row - top), (column - left) * channels + channel);
  }
};

template <typename T>
void nearest(const Tile& tile, Image given, Image dst) {
  const Source src(tile, given);
  for (int y = 0; y < tile.height(); ++y)
    for (int x = 0; x < tile.width(); ++x)
      for (int k = 0; k < tile.channels; ++k)
        store<T>(dst.row(y), x * tile.channels + k,
                 src.sample<T>(tile.horizontal().nearest(tile.offset.x + x),
                               tile.vertical().nearest(tile.offset.y + y), k));
}

// Arithmetic by sample type; weights are the fractions in double.
template <typename T>
struct Arithmetic {
  using Element = std::conditional_t<std::is_same_v<T, Lum64f>, double, float>;
  static Element blend(Element a, Element b, double fraction) {
    return a + (b - a) * static_cast<Element>(fraction);
  }
  static T finish(Element x) {
    if constexpr (std::is_integral_v<T>) {
      const double limited = std::min<double>(
          std::max<double>(std::nearbyint(x), std::numeric_limits<T>::min()), std::numeric_limits<T>::max());
      return static_cast<T>(limited);
    } else {
      return x;
    }
  }

  static Element columns(T a, T b, double f) {
    return blend(static_cast<Element>(a), static_cast<Element>(b), f);
  }
  static T rows(Element p, Element q, double f) { return finish(blend(p, q, f)); }
  static T once(T a, T b, double f) { return finish(columns(a, b, f)); }
};

template <>
struct Arithmetic<Lum8u> {
  static int q14(double fraction) { return static_cast<int>(fraction * 16384 + 1e-7); }
  static int columns(int a, int b, double f) { return (a * (16384 - q14(f)) + b * q14(f) + 128) >> 8; }
  static Lum8u rows(int p, int q, double f) {
    const int64_t x = (int64_t{p} * (16384 - q14(f)) + int64_t{q} * q14(f) + 0x80000) >> 20;
    return static_cast<Lum8u>(std::min<int64_t>(std::max<int64_t>(x, 0), 255));
  }
  static Lum8u once(int a, int b, double f) {
    const int t = a * (16384 - q14(f)) + b * q14(f);
    return static_cast<Lum8u>((t + ((t >> 14) & 1) + 8192) >> 14);
  }
};

// Where taps of a position come from.
enum class Side { Middle, Low, High };

inline Side sideOf(const Axis& axis, int position, bool lowInMemory, bool highInMemory) {
  if (!lowInMemory && axis.centre(position) < 0) return Side::Low;
  if (!highInMemory && axis.centre(position) >= axis.src - 1) return Side::High;
  return Side::Middle;
}

template <typename T>
T linearSample(const Tile& tile, const Source& src, int x, int y, int k) {
  using A = Arithmetic<T>;
  const Axis h = tile.horizontal(), v = tile.vertical();
  const bool all = (tile.border & 7) == 6 || (tile.border & 240) == 240;
  const Side sideX = sideOf(h, x, all || (tile.border & 64), all || (tile.border & 128));
  const Side sideY = sideOf(v, y, all || (tile.border & 16), all || (tile.border & 32));
  const auto at = [&](int column, int row) { return src.sample<T>(column, row, k); };
  const int left = sideX == Side::Middle ? h.index(x) : sideX == Side::Low ? 0 : h.src - 1;
  const int right = sideX == Side::Middle ? left + 1 : left;
  const double fx = h.fraction(x), fy = v.fraction(y);
  if (sideY != Side::Middle) {
    const int row = sideY == Side::Low ? 0 : v.src - 1;
    return A::once(at(left, row), at(right, row), fx);
  }
  const int row = v.index(y);
  if (sideX != Side::Middle) return A::once(at(left, row), at(left, row + 1), fy);
  return A::rows(A::columns(at(left, row), at(right, row), fx),
                 A::columns(at(left, row + 1), at(right, row + 1), fx), fy);
}

template <typename T>
void linear(const Tile& tile, Image given, Image dst) {
  const Source src(tile, given);
  for (int y = 0; y < tile.height(); ++y)
    for (int x = 0; x < tile.width(); ++x)
      for (int k = 0; k < tile.channels; ++k)
        store<T>(dst.row(y), x * tile.channels + k,
                 linearSample<T>(tile, src, tile.offset.x + x, tile.offset.y + y, k));
}

// Sizes in bytes.
struct Sizes {
  int64_t object, init;
};

inline int64_t antialiasingTaps(int src, int dst, int least) {
  const double r = static_cast<double>(src) / dst;
  return r > 1 ? 2 * static_cast<int64_t>(std::ceil(least * r)) : least;
}

inline int64_t superTable(int src, int dst) {
  int a = src, b = dst;
  while (b != 0) {
    const int rest = a % b;
    a = b;
    b = rest;
  }
  const int64_t s = src / a, d = dst / a;
  const int64_t extra = s % d == 0 ? 0 : s % d == 1 ? 1 : 2;
  return d * (s / d + extra);
}

inline Sizes sizes(LumiSize src, LumiSize dst, int interpolation, bool antialiasing, bool is64f) {
  const int64_t w = dst.width, h = dst.height, both = upTo(w, 32) + upTo(h, 32);
  if (is64f) return {12 * both + 192, 64};
  if (antialiasing) {
    const int least = interpolation == 2 ? 2 : interpolation == 6 ? 4 : 6;
    int64_t object = 4 * both + upTo(4 * w * antialiasingTaps(src.width, dst.width, least), 32) +
                     upTo(4 * h * antialiasingTaps(src.height, dst.height, least), 32) + 244;
    if (interpolation == 2 && src.width <= dst.width) object += upTo(4 * w, 32);
    return {object, 8 * both + 64};
  }
  if (interpolation == 1) return {4 * both + 244, 64};
  if (interpolation == 2) return {8 * both + 244, 64};
  if (interpolation == 6)
    return {4 * both + 4 * (upTo(4 * w + 96, 32) + upTo(4 * h + 96, 32)) + 244, 4 * both + 64};
  if (interpolation == 16)
    return {4 * both + 4 * (upTo(6 * w + 160, 32) + upTo(6 * h + 160, 32)) + 244, 4 * both + 64};
  const int64_t a = superTable(src.width, dst.width), b = superTable(src.height, dst.height);
  return {4 * (a + b + upTo(a, 32) + upTo(b, 32)) + 244, 64};
}

// Scratch of a run, for a tile that is not larger than the destination.
inline int64_t scratch(LumiSize tile, int channels, bool isLinear, bool is64f) {
  const int64_t w = tile.width, h = tile.height;
  if (is64f) return 4 * (upTo(w, 32) + upTo(h, 32)) + 8 * channels * upTo(2 * w + 32, 32) + 64;
  return upTo(4 * w, 32) + upTo(4 * h, 32) + (isLinear ? 2 * upTo(4 * channels * w, 32) : 0) + 64;
}

}  // namespace model::resize
