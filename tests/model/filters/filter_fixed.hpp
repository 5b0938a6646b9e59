// SPDX-License-Identifier: MIT
// Filters with fixed kernels. Integer sums are exact, so that their order does not matter; floats are added
// across each row, then down the rows.
#pragma once

#include <algorithm>
#include <cmath>
#include <cstdint>
#include <cstdlib>
#include <limits>
#include <map>
#include <string>
#include <type_traits>
#include <utility>
#include <vector>

#include "model/access.hpp"

namespace model {

// Of a name without "Filter", and a side.
using Taps = std::vector<int>;
inline const Taps& fixedKernel(const std::string& name, int side) {
  static const auto product = [](const Taps& down, const Taps& across) {
    Taps taps;
    for (const int d : down)
      for (const int a : across) taps.push_back(d * a);
    return taps;
  };
  static const Taps smooth = {1, 4, 6, 4, 1}, difference = {-1, -2, 0, 2, 1}, turned = {1, 2, 0, -2, -1},
                    second = {1, 0, -2, 0, 1}, ones(25, 1);
  static const Taps laplace3 = {-1, -1, -1, -1, 8, -1, -1, -1, -1};
  static const auto hipass5 = [] {
    Taps taps(25, -1);
    taps[12] = 24;
    return taps;
  }();
  static const std::map<std::pair<std::string, int>, Taps> kernels = {
      {{"SobelVert", 3}, {1, 0, -1, 2, 0, -2, 1, 0, -1}},
      {{"SobelHoriz", 3}, {-1, -2, -1, 0, 0, 0, 1, 2, 1}},
      {{"SobelVertSecond", 3}, {1, -2, 1, 2, -4, 2, 1, -2, 1}},
      {{"SobelHorizSecond", 3}, {1, 2, 1, -2, -4, -2, 1, 2, 1}},
      {{"SobelCross", 3}, {-1, 0, 1, 0, 0, 0, 1, 0, -1}},
      {{"SobelVert", 5}, product(smooth, turned)},
      {{"SobelHoriz", 5}, product(difference, smooth)},
      {{"SobelVertSecond", 5}, product(smooth, second)},
      {{"SobelHorizSecond", 5}, product(second, smooth)},
      {{"SobelCross", 5}, product(difference, turned)},
      {{"PrewittVert", 3}, {1, 0, -1, 1, 0, -1, 1, 0, -1}},
      {{"PrewittHoriz", 3}, {-1, -1, -1, 0, 0, 0, 1, 1, 1}},
      {{"ScharrVert", 3}, {-3, 0, 3, -10, 0, 10, -3, 0, 3}},
      {{"ScharrHoriz", 3}, {-3, -10, -3, 0, 0, 0, 3, 10, 3}},
      {{"RobertsDown", 3}, {-1, 0, 0, 0, 1, 0, 0, 0, 0}},
      {{"RobertsUp", 3}, {0, 0, -1, 0, 1, 0, 0, 0, 0}},
      {{"Laplace", 3}, laplace3},
      {{"Laplace", 5},
       {-1, -3, -4, -3, -1, -3, 0, 6, 0, -3, -4, 6, 20, 6, -4, -3, 0, 6, 0, -3, -1, -3, -4, -3, -1}},
      {{"Hipass", 3}, laplace3},
      {{"Hipass", 5}, hipass5},
      {{"Lowpass", 3}, Taps(9, 1)},
      {{"Lowpass", 5}, ones},
      {{"Gauss", 3}, {1, 2, 1, 2, 4, 2, 1, 2, 1}},
      {{"Gauss", 5},
       {2, 7, 12, 7, 2, 7, 31, 52, 31, 7, 12, 52, 127, 52, 12, 7, 31, 52, 31, 7, 2, 7, 12, 7, 2}},
      {{"Sharpen", 3}, {-1, -1, -1, -1, 16, -1, -1, -1, -1}},
  };
  return kernels.at({name, side});
}

// What an exact sum comes to.
template <typename S, typename D>
D finished(const std::string& name, int side, int64_t sum) {
  const auto limited = [](auto x) {
    using Limits = std::numeric_limits<D>;
    return static_cast<D>(std::clamp<int64_t>(static_cast<int64_t>(x), Limits::min(), Limits::max()));
  };
  if (name == "Gauss" && side == 3) return limited((sum + 7 + ((sum >> 4) & 1)) >> 4);
  if (name == "Gauss" && std::is_same_v<S, Lum8u>)
    return limited(std::nearbyint(static_cast<float>(sum) * 0.0017513135F));
  if (name == "Gauss" && std::is_same_v<S, Lum16s>)
    return limited(std::nearbyint(static_cast<double>(sum) * (1.0 / 571)));
  if (name == "Gauss") return limited(((sum + 286) * 7521834) >> 32);
  if (name == "Lowpass" && std::is_same_v<S, Lum8u>)
    return limited(side == 3 ? ((sum + 5) * 7281) >> 16 : ((sum + 13) * 10485) >> 18);
  if (name == "Lowpass" && std::is_same_v<S, Lum16s>) {
    const int64_t moved = sum + side * side * 32768;
    const int64_t mean = side == 3 ? ((moved + 5) * 477218588) >> 32 : ((moved + 13) * 171798691) >> 32;
    return static_cast<D>(static_cast<int16_t>(static_cast<uint16_t>(mean) ^ 0x8000));
  }
  if (name == "Lowpass")
    return limited(std::nearbyint(static_cast<float>(sum) * (side == 3 ? 0.11111111F : 0.04F)));
  if (name == "Sharpen" && std::is_same_v<S, Lum8u>) {
    const int64_t t = std::max<int64_t>(sum, 0);
    return limited(((t + 4) >> 3) - ((t & 15) == 4));
  }
  if (name == "Sharpen") return limited((sum + 3 + ((sum >> 3) & 1)) >> 3);
  return limited(sum);
}

// Of floats: a row comes to one number, or to three where weights have no factors; then the rows' do.
struct FloatWindow {
  float samples[5][5];
  int side;

  // The sample of row y, x from the centre.
  float at(int y, int x) const { return samples[y][x + side / 2]; }
  float outer(int y) const { return at(y, -2) + at(y, 2); }
  float inner(int y) const { return at(y, -1) + at(y, 1); }
};

// The weights of a row, and those of rows; by what they are.
using Across = float (*)(const FloatWindow&, int);
using Down = float (*)(const std::vector<float>&);
inline std::vector<float> joined(const std::vector<float>& x) {
  std::vector<float> sums;
  for (size_t i = 0; i + 1 < x.size(); ++i) sums.push_back(x[i] + x[i + 1]);
  return sums;
}
struct FloatWeights {
  const char* weights;
  Across across;
  Down down;
};
inline const FloatWeights& floatWeights(const std::string& weights) {
  using Window = FloatWindow;
  using Rows = std::vector<float>;
  static const FloatWeights all[] = {
      {"1 0 -1", [](const Window& w, int y) { return w.at(y, -1) - w.at(y, 1); }, nullptr},
      {"-1 0 1", [](const Window& w, int y) { return w.at(y, 1) - w.at(y, -1); },
       [](const Rows& r) { return r[2] - r[0]; }},
      {"1 2 1", [](const Window& w, int y) { return w.inner(y) + (w.at(y, 0) + w.at(y, 0)); },
       [](const Rows& r) { return joined(joined(r))[0]; }},
      {"1 -2 1", [](const Window& w, int y) { return w.inner(y) - (w.at(y, 0) + w.at(y, 0)); },
       [](const Rows& r) { return (r[2] - r[1]) - (r[1] - r[0]); }},
      {"1 1 1", [](const Window& w, int y) { return w.inner(y) + w.at(y, 0); },
       [](const Rows& r) { return (r[0] + r[1]) + r[2]; }},
      {"3 10 3", [](const Window& w, int y) { return w.inner(y) * 3 + w.at(y, 0) * 10; },
       [](const Rows& r) { return (r[0] + r[2]) * 3 + r[1] * 10; }},
      {"1 4 6 4 1",
       [](const Window& w, int y) {
         const float c = w.at(y, 0);
         return (w.inner(y) + c) * 4 + (w.outer(y) + (c + c));
       },
       [](const Rows& r) { return joined(joined(joined(joined(r))))[0]; }},
      {"1 2 0 -2 -1",
       [](const Window& w, int y) { return (w.at(y, -2) - w.at(y, 2)) + (w.at(y, -1) - w.at(y, 1)) * 2; },
       nullptr},
      {"-1 -2 0 2 1", nullptr,
       [](const Rows& r) {
         const auto smooth = joined(joined(r));
         return smooth[2] - smooth[0];
       }},
      {"1 0 -2 0 1", [](const Window& w, int y) { return w.outer(y) - (w.at(y, 0) + w.at(y, 0)); },
       [](const Rows& r) { return (r[4] - r[2]) - (r[2] - r[0]); }},
      {"1 1 1 1 1", [](const Window& w, int y) { return (w.outer(y) + w.inner(y)) + w.at(y, 0); },
       [](const Rows& r) { return (((r[0] + r[1]) + r[2]) + r[3]) + r[4]; }},
  };
  for (const FloatWeights& each : all)
    if (weights == each.weights) return each;
  std::abort();
}

inline float symmetricFloats(const std::string& name, const FloatWindow& w) {
  const auto row = [&](int y) {
    const float outer = w.outer(y), inner = w.inner(y), centre = w.at(y, 0);
    const int kind = std::min(y, 4 - y);
    if (name == "Laplace") {
      if (kind == 0) return 0 - ((outer + inner * 3) + centre * 4);
      if (kind == 1) return ((centre + centre) - outer) * 3;
      return inner * 6 + (centre * 5 - outer) * 4;
    }
    const auto weight = [](double n) { return static_cast<float>(n / 571); };
    if (kind == 0) return (outer * weight(2) + inner * weight(7)) + centre * weight(12);
    if (kind == 1) return (outer * weight(7) + inner * weight(31)) + centre * weight(52);
    return (outer * weight(12) + inner * weight(52)) + centre * weight(127);
  };
  return (((row(0) + row(1)) + row(2)) + row(3)) + row(4);
}

struct FloatParts {
  Across across;
  Down down;
};
inline const FloatParts* floatPartsOf(const std::string& name, int side) {
  const auto parts = [](const char* across, const char* down) {
    return FloatParts{floatWeights(across).across, floatWeights(down).down};
  };
  static const auto box3 = parts("1 1 1", "1 1 1"), box5 = parts("1 1 1 1 1", "1 1 1 1 1");
  static const std::map<std::pair<std::string, int>, FloatParts> all = {
      {{"SobelVert", 3}, parts("1 0 -1", "1 2 1")},
      {{"SobelHoriz", 3}, parts("1 2 1", "-1 0 1")},
      {{"SobelVertSecond", 3}, parts("1 -2 1", "1 2 1")},
      {{"SobelHorizSecond", 3}, parts("1 2 1", "1 -2 1")},
      {{"SobelCross", 3}, parts("1 0 -1", "-1 0 1")},
      {{"SobelVert", 5}, parts("1 2 0 -2 -1", "1 4 6 4 1")},
      {{"SobelHoriz", 5}, parts("1 4 6 4 1", "-1 -2 0 2 1")},
      {{"SobelVertSecond", 5}, parts("1 0 -2 0 1", "1 4 6 4 1")},
      {{"SobelHorizSecond", 5}, parts("1 4 6 4 1", "1 0 -2 0 1")},
      {{"SobelCross", 5}, parts("1 2 0 -2 -1", "-1 -2 0 2 1")},
      {{"PrewittVert", 3}, parts("1 0 -1", "1 1 1")},
      {{"PrewittHoriz", 3}, parts("1 1 1", "-1 0 1")},
      {{"ScharrVert", 3}, parts("-1 0 1", "3 10 3")},
      {{"ScharrHoriz", 3}, parts("3 10 3", "-1 0 1")},
      {{"Gauss", 3}, parts("1 2 1", "1 2 1")},
      {{"Laplace", 3}, box3},
      {{"Hipass", 3}, box3},
      {{"Hipass", 5}, box5},
      {{"Sharpen", 3}, box3},
      {{"Lowpass", 3}, box3},
      {{"Lowpass", 5}, box5},
  };
  const auto found = all.find({name, side});
  return found == all.end() ? nullptr : &found->second;
}

inline float fixedFloats(const std::string& name, const FloatParts* parts, const FloatWindow& w) {
  const float centre = w.at(w.side / 2, 0);
  if (!parts) return symmetricFloats(name, w);
  std::vector<float> rows;
  for (int y = 0; y < w.side; ++y) rows.push_back(parts->across(w, y));
  const float sum = parts->down(rows);
  if (name == "Laplace") return centre * 9 - sum;
  if (name == "Hipass") return centre * (w.side == 3 ? 9 : 25) - sum;
  if (name == "Sharpen") return (centre * 17 - sum) * 0.125F;
  if (name == "Lowpass") return sum * (w.side == 3 ? 0.11111111F : 0.04F);
  return name == "Gauss" ? sum * 0.0625F : sum;
}

// A filter by name and side; sample(x, y) is one of the source.
template <typename S, typename D>
class FixedFilter {
 public:
  FixedFilter(std::string name, int side) : name_(std::move(name)), side_(side) {
    if constexpr (std::is_floating_point_v<S>)
      parts_ = floatPartsOf(name_, side_);
    else
      taps_ = &fixedKernel(name_, side_);
  }

  template <typename Sample>
  D operator()(const Sample& sample) const {
    const int reach = side_ / 2;
    if constexpr (std::is_floating_point_v<S>) {
      if (name_ == "RobertsDown") return sample(0, 0) - sample(-1, -1);
      if (name_ == "RobertsUp") return sample(0, 0) - sample(1, -1);
      FloatWindow w{{}, side_};
      for (int y = 0; y < side_; ++y)
        for (int x = 0; x < side_; ++x) w.samples[y][x] = sample(x - reach, y - reach);
      return fixedFloats(name_, parts_, w);
    } else {
      int64_t sum = 0;
      const int* tap = taps_->data();
      for (int y = 0; y < side_; ++y)
        for (int x = 0; x < side_; ++x, ++tap)
          if (*tap != 0) sum += int64_t{*tap} * sample(x - reach, y - reach);  // others may not be there
      return finished<S, D>(name_, side_, sum);
    }
  }

 private:
  std::string name_;
  int side_;
  const FloatParts* parts_ = nullptr;
  const Taps* taps_ = nullptr;
};

template <typename S, typename D>
void fixedFilter(const std::string& name, int side, Image src, Image dst, LumiSize roi, Channels channels) {
  const FixedFilter<S, D> filter(name, side);
  for (int y = 0; y < roi.height; ++y)
    for (int x = 0; x < roi.width; ++x)
      for (int k = 0; k < channels.moved; ++k)
        store<D>(dst.row(y), x * channels.dst + k, filter([&](int dx, int dy) {
                   return load<S>(src.row(y + dy), (x + dx) * channels.src + k);
                 }));
}

}  // namespace model
