// SPDX-License-Identifier: MIT
#include "kernels/conversion.hpp"
#include "kernels/data/convert.hpp"
#include "kernels/simd/convert.hpp"

namespace lumi {
namespace {

using namespace simd;

// What the work is done in: bytes are widened.
template <typename S>
using WorkOf = std::conditional_t<sizeof(S) == 1, uint16_t, S>;

template <typename W>
struct Unscaled {
  explicit Unscaled(int) {}
  Samples<W> operator()(Samples<W> x) const { return x; }
};

// x * 2^k, but no more than 2^n where 2^n - 1 is the highest value of D, and no less than -2^n: both are
// limited to D later. 2^n fits the work's type, for samples are wider than D's or unsigned.
template <typename W, typename D>
struct Multiplied {
  Shift shift;
  Samples<W> highest, lowest;

  explicit Multiplied(int k)
      : shift(k),
        highest(broadcast(static_cast<W>((std::numeric_limits<D>::max() >> k) + W{1}))),
        lowest(broadcast(static_cast<W>(0)) - highest) {}

  Samples<W> operator()(Samples<W> x) const {
    const Samples<W> limited = min(x, highest);
    return (std::is_signed_v<W> ? max(limited, lowest) : limited) << shift;
  }
};

struct Truncate {
  template <typename W>
  struct Divided {
    Shift shift;
    explicit Divided(int s) : shift(s) {}
    Samples<W> operator()(Samples<W> x) const { return x >> shift; }
  };
};

// The quotient q goes up where the rest is above half, and at half if q is odd.
struct RoundEven {
  template <typename W>
  struct Divided {
    Shift shift;
    Samples<W> rest, aboveHalf;
    explicit Divided(int s)
        : shift(s),
          rest(broadcast(static_cast<W>((uint64_t{1} << s) - 1))),
          aboveHalf(broadcast(static_cast<W>((uint64_t{1} << (s - 1)) + 1))) {}
    Samples<W> operator()(Samples<W> x) const {
      const Samples<W> q = x >> shift, tieUp = q & broadcast<W>(1);
      return q - isAtLeast((x & rest) + tieUp, aboveHalf);  // all ones is -1
    }
  };
};

// The highest bit of the rest counts. q has room for it: a bit or more has been shifted out.
struct RoundAway {
  template <typename W>
  struct Divided {
    Shift shift, toHalves;
    explicit Divided(int s) : shift(s), toHalves(s - 1) {}
    Samples<W> operator()(Samples<W> x) const { return (x >> shift) + ((x >> toHalves) & broadcast<W>(1)); }
  };
};

// To nearest, ties to even, for s below the type's bits by 2 at least. The quotient may be negative: it is
// the floor then, and the rest is what is above it.
template <typename W>
inline constexpr int kMostBits = 8 * sizeof(W) - 2;
template <typename W>
struct DividedToEven {
  Shift shift;
  Samples<W> rest, half;
  explicit DividedToEven(int s)
      : shift(s),
        rest(broadcast(static_cast<W>((uint32_t{1} << s) - 1))),
        half(broadcast(static_cast<W>(uint32_t{1} << (s - 1)))) {}
  Samples<W> operator()(Samples<W> x) const {
    const Samples<W> q = x >> shift, tieUp = q & broadcast<W>(1);
    return q - isAboveSigned((x & rest) + tieUp, half);  // all ones is -1
  }
};

// Signed numbers are divided as magnitudes.
template <typename W, typename Rounding>
class Divided {
  using Magnitude = std::make_unsigned_t<W>;

 public:
  explicit Divided(int s) : divided_(s) {}
  Samples<W> operator()(Samples<W> x) const {
    if constexpr (std::is_signed_v<W>)
      return withSign(as<W>(divided_(magnitude(x))), x);
    else
      return divided_(x);
  }

 private:
  typename Rounding::template Divided<Magnitude> divided_;
};

template <typename S, typename D, typename F>
struct Rescaled {
  F f;
  using W = WorkOf<S>;
  Samples<W> at(const Byte* p, size_t vector) const {
    return f(loadAs<S, W>(p + vector * (kVectorBytes / sizeof(W) * sizeof(S))));
  }
  VectorBytes vector(const Byte* p) const {
    if constexpr (sizeof(W) == sizeof(D))
      return narrowSaturated<D>(at(p, 0)).v;
    else if constexpr (sizeof(W) == 2 * sizeof(D))
      return narrowSaturated<D>(at(p, 0), at(p, 1)).v;
    else
      return narrowSaturated<D>(at(p, 0), at(p, 1), at(p, 2), at(p, 3)).v;
  }
};

}  // namespace

template <typename S, typename D>
[[gnu::flatten]] void convertScaledRows(SourceRows src, TargetRows dst, Extent samples, Rescaling how) {
  using W = WorkOf<S>;
  const auto run = [&](auto f) {
    runConversion<S, D, 0, 2>(src, dst, samples, Rescaled<S, D, decltype(f)>{f});
  };
  switch (how.path) {
    case Rescaling::Saturate:
      return run(Unscaled<W>(0));
    case Rescaling::Multiply:
      return run(Multiplied<W, D>(how.bits));
    case Rescaling::Truncate:
      return run(Divided<W, Truncate>(how.bits));
    case Rescaling::RoundEven:
      if (how.bits <= kMostBits<W>) return run(DividedToEven<W>(how.bits));
      return run(Divided<W, RoundEven>(how.bits));
    case Rescaling::RoundAway:
      return run(Divided<W, RoundAway>(how.bits));
  }
}

#define LUMI_CONVERT(S, D) template void convertScaledRows<S, D>(SourceRows, TargetRows, Extent, Rescaling);
LUMI_CONVERT(uint8_t, int8_t)
LUMI_CONVERT(int16_t, int8_t)
LUMI_CONVERT(uint16_t, int8_t)
LUMI_CONVERT(uint16_t, int16_t)
LUMI_CONVERT(int32_t, int16_t)
LUMI_CONVERT(int32_t, uint16_t)
LUMI_CONVERT(uint32_t, int8_t)
LUMI_CONVERT(uint32_t, uint8_t)
LUMI_CONVERT(uint32_t, int16_t)
LUMI_CONVERT(uint32_t, uint16_t)
LUMI_CONVERT(uint32_t, int32_t)

}  // namespace lumi
