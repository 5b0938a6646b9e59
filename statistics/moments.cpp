// SPDX-License-Identifier: MIT
// Moments: a scan puts all of them into a state, from which others follow.
#include "lumi/moments.h"

#include <cmath>
#include <cstring>

#include "frame/check.hpp"
#include "frame/power.hpp"
#include "frame/rows.hpp"
#include "frame/scratch.hpp"
#include "kernels/statistics/moments.hpp"

namespace lumi {
namespace {

using namespace check;

// Moments as T, the table of each channel as in ChannelMoments. A state lies at the caller's pointer itself,
// wherever that is.
template <typename T>
struct State {
  Lum32s identifier, hint, channels, reserved;
  T moments[3][16];
};
static_assert(sizeof(State<Lum64f>) == 400 && sizeof(State<Lum64s>) == 400);

template <typename T>
constexpr Lum32s kIdentifier = std::is_same_v<T, Lum64f> ? 33 : 34;

template <typename T>
State<T> stateAt(const LumiMomentState* at) {
  State<T> state;
  std::memcpy(&state, at, sizeof state);
  return state;
}

template <typename T>
LumStatus identity(const LumiMomentState* at) {
  Lum32s identifier;
  std::memcpy(&identifier, at, sizeof identifier);
  return identifier == kIdentifier<T> ? lumStatusOk : lumStatusBadContext;
}

template <typename T>
LumStatus momentStateSize(LumAlgorithmHint, int* size) {
  if (LumStatus fault = pointers(size)) return fault;
  *size = sizeof(State<T>);
  return lumStatusOk;
}

template <typename T>
LumStatus initMomentState(LumiMomentState* at, LumAlgorithmHint hint) {
  if (LumStatus fault = pointers(at)) return fault;
  const State<T> state{kIdentifier<T>, hint, -1, 0, {}};
  std::memcpy(reinterpret_cast<Byte*>(at), &state, sizeof state);
  return lumStatusOk;
}

template <typename T>
LumStatus allocateMomentState(LumiMomentState** state, LumAlgorithmHint hint) {
  if (LumStatus fault = pointers(state)) return fault;
  return allocateObject(state, sizeof(State<T>),
                        [=](LumiMomentState* at) { return initMomentState<T>(at, hint); });
}

template <typename T>
LumStatus freeMomentState(LumiMomentState* at) {
  if (LumStatus fault = firstFault(pointers(at), [=] { return identity<T>(at); })) return fault;
  std::memset(reinterpret_cast<Byte*>(at), 0, sizeof(Lum32s));
  release(at);
  return lumStatusOk;
}

template <typename T, typename S, typename Layout>
LumStatus moments(const S* src, int srcStep, LumiSize roi, LumiMomentState* at) {
  const auto rowFits = [=] {
    return srcStep < int64_t{roi.width} * kPixelBytes<S, Layout> ? lumStatusStepTooSmall : lumStatusOk;
  };
  if (LumStatus fault = firstFault(
          pointers(src, at), [=] { return identity<T>(at); }, steps(srcStep), size(roi), rowFits))
    return fault;
  using Sum = std::conditional_t<std::is_same_v<T, Lum64f>, double, uint64_t>;
  ChannelMoments<Sum> sums[3] = {};
  momentsOf<S>(rows(src, srcStep), {static_cast<size_t>(roi.width), roi.height}, Layout::kStored,
               Layout::kUsed, sums);
  State<T> state = stateAt<T>(at);
  state.channels = Layout::kUsed;
  static_assert(sizeof state.moments == sizeof sums);
  std::memcpy(state.moments, sums, sizeof sums);
  std::memcpy(reinterpret_cast<Byte*>(at), &state, sizeof state);
  return lumStatusOk;
}

// The moments of a channel in floats. The order of the additions is part of the results.
class Moments {
 public:
  template <typename T>
  Moments(const T (&of)[16])
      : m00(f(of[0])),
        m10(f(of[1])),
        m20(f(of[2])),
        m30(f(of[3])),
        m01(f(of[4])),
        m11(f(of[5])),
        m21(f(of[6])),
        m02(f(of[8])),
        m12(f(of[9])),
        m03(f(of[12])) {}

  double total() const { return m00; }

  // About a point, of orders that are not negative and come to 3 at most.
  double spatial(int m, int n, double ox, double oy) const {
    switch (4 * n + m) {
      case 0:
        return m00;
      case 4:
        return oy * m00 + m01;
      case 8:
        return 2 * oy * m01 + m02 + oy * oy * m00;
      case 12:
        return ((oy * m01 + m02) * 3 + oy * oy * m00) * oy + m03;
      case 1:
        return ox * m00 + m10;
      case 5:
        return (oy * m00 + m01) * ox + (oy * m10 + m11);
      case 9:
        return ((ox * m00 + m10) * oy + 2 * ox * m01) * oy + (ox * m02 + m12 + 2 * oy * m11);
      case 2:
        return 2 * ox * m10 + m20 + ox * ox * m00;
      case 6:
        return (2 * ox * m10 + m20 + ox * ox * m00) * oy + (2 * ox * m11 + m21 + ox * ox * m01);
      default:
        return ((ox * m10 + m20) * 3 + ox * ox * m00) * ox + m30;
    }
  }

  // About the centre of gravity.
  double central(int m, int n) const {
    const double inverse = 1 / m00, xc = m10 * inverse, yc = m01 * inverse;
    switch (4 * n + m) {
      case 0:
        return m00;
      case 8:
        return m02 - yc * m01;
      case 12:
        return yc * (2 * yc * m01 - 3 * m02) + m03;
      case 5:
        return m11 - xc * m01;
      case 9:
        return 2 * yc * (yc * m10 - m11) + (m12 - xc * m02);
      case 2:
        return m20 - xc * m10;
      case 6:
        return 2 * xc * (xc * m01 - m11) + (m21 - yc * m20);
      case 3:
        return xc * (2 * xc * m10 - 3 * m20) + m30;
      default:
        return 0;
    }
  }

  // What makes moments of these orders independent of the total.
  double norm(int orders) const { return power(m00, -(orders + 2) / 2.0); }

 private:
  template <typename T>
  static double f(T moment) {
    return static_cast<double>(moment);
  }

  double m00, m10, m20, m30, m01, m11, m21, m02, m12, m03;
};

struct Hu {
  double of[7];
};

Hu huOf(const Moments& moments) {
  const double second = moments.norm(2), third = moments.norm(3);
  const auto n = [&](int p, int q) { return moments.central(p, q) * (p + q == 2 ? second : third); };
  const double n20 = n(2, 0), n02 = n(0, 2), n11 = n(1, 1), n30 = n(3, 0), n12 = n(1, 2), n21 = n(2, 1),
               n03 = n(0, 3);
  const double a = n30 - 3 * n12, b = 3 * n21 - n03, c = n30 + n12, d = n21 + n03, difference = n20 - n02;
  const double e = n12 + n03;  // of the fifth alone
  return {{n20 + n02, difference * difference + 4 * n11 * n11, a * a + b * b, c * c + d * d,
           a * c * (e * e - 3 * d * d) + b * d * (3 * c * c - d * d),
           difference * (c * c - d * d) + 4 * n11 * c * d,
           b * c * (c * c - 3 * d * d) - a * d * (3 * c * c - d * d)}};
}

// Towards zero, and limited to what there is.
Lum64s truncated(double x) {
  if (!(x > -0x1p63)) return INT64_MIN;
  return x < 0x1p63 ? static_cast<Lum64s>(x) : INT64_MAX;
}

// Results as they are stored: integers are scaled, by no more than floats reach.
template <typename T>
struct Stored {
  Lum64f operator()(double x) const { return x; }
};
template <>
struct Stored<Lum64s> {
  int scaleFactor;
  Lum64s operator()(double x) const {
    return truncated(std::ldexp(x, scaleFactor < -3000 ? 3000 : scaleFactor > 3000 ? -3000 : -scaleFactor));
  }
};

// Moments are cut off before they are made independent of the total, where they are integers.
template <typename T>
double whole(double moment) {
  if constexpr (std::is_same_v<T, Lum64f>)
    return moment;
  else
    return static_cast<double>(truncated(moment));
}

template <typename T>
LumStatus knownChannel(const LumiMomentState* at, int channel) {
  return channel < 0 || channel >= stateAt<T>(at).channels ? lumStatusBadChannel : lumStatusOk;
}

// Floats have to be above what is next to 1.
template <typename T>
LumStatus totalNotZero(const LumiMomentState* at, int channel) {
  const T total = stateAt<T>(at).moments[channel][0];
  const bool isZero =
      std::is_same_v<T, Lum64f> ? !(std::abs(static_cast<double>(total)) > 0x1p-52) : total == 0;
  return isZero ? lumStatusZeroMoment : lumStatusOk;
}

constexpr LumStatus orders(int m, int n) { return int64_t{m} + n > 3 ? lumStatusBadSize : lumStatusOk; }

// Stores form(moments of the channel) where the orders are those of a moment.
template <bool divides, typename T, typename Form>
LumStatus tellMoment(const LumiMomentState* at, int m, int n, int channel, T* value, Stored<T> stored,
                     const Form& form) {
  if (LumStatus fault = firstFault(
          pointers(at, value), [=] { return identity<T>(at); }, orders(m, n),
          [=] { return knownChannel<T>(at, channel); },
          [=] { return divides ? totalNotZero<T>(at, channel) : lumStatusOk; }))
    return fault;
  if (m < 0 || n < 0) return lumStatusOk;
  const T told = stored(form(Moments(stateAt<T>(at).moments[channel])));
  std::memcpy(reinterpret_cast<Byte*>(value), &told, sizeof told);
  return lumStatusOk;
}

// Of integers, calls have a scale factor.
template <typename T, typename... Scale>
LumStatus spatialMoment(const LumiMomentState* at, int m, int n, int channel, LumiPoint offset, T* value,
                        Scale... scaleFactor) {
  return tellMoment<false>(at, m, n, channel, value, Stored<T>{scaleFactor...},
                           [=](const Moments& all) { return all.spatial(m, n, offset.x, offset.y); });
}
template <typename T, typename... Scale>
LumStatus normalizedSpatialMoment(const LumiMomentState* at, int m, int n, int channel, LumiPoint offset,
                                  T* value, Scale... scaleFactor) {
  return tellMoment<true>(at, m, n, channel, value, Stored<T>{scaleFactor...}, [=](const Moments& all) {
    return whole<T>(all.spatial(m, n, offset.x, offset.y)) * all.norm(m + n);
  });
}
template <typename T, typename... Scale>
LumStatus centralMoment(const LumiMomentState* at, int m, int n, int channel, T* value,
                        Scale... scaleFactor) {
  return tellMoment<true>(at, m, n, channel, value, Stored<T>{scaleFactor...},
                          [=](const Moments& all) { return all.central(m, n); });
}
template <typename T, typename... Scale>
LumStatus normalizedCentralMoment(const LumiMomentState* at, int m, int n, int channel, T* value,
                                  Scale... scaleFactor) {
  return tellMoment<true>(at, m, n, channel, value, Stored<T>{scaleFactor...},
                          [=](const Moments& all) { return whole<T>(all.central(m, n)) * all.norm(m + n); });
}

template <typename T, typename... Scale>
LumStatus huMoments(const LumiMomentState* at, int channel, T* values, Scale... scaleFactor) {
  if (LumStatus fault = firstFault(
          pointers(at, values), [=] { return identity<T>(at); }, [=] { return knownChannel<T>(at, channel); },
          [=] { return totalNotZero<T>(at, channel); }))
    return fault;
  const Stored<T> stored{scaleFactor...};
  const Hu hu = huOf(Moments(stateAt<T>(at).moments[channel]));
  T told[7];
  for (int i = 0; i < 7; ++i) told[i] = stored(hu.of[i]);
  std::memcpy(reinterpret_cast<Byte*>(values), told, sizeof told);
  return lumStatusOk;
}

}  // namespace
}  // namespace lumi

using namespace lumi;
#include "bind/moments.inc"
