// SPDX-License-Identifier: MIT
#include "kernels/data/lut_pieces.hpp"

#include "kernels/pointwise.hpp"
#include "kernels/simd/lut.hpp"

namespace lumi {
namespace {

using namespace simd;

// A vector of floats or of words, and what it takes from a pattern, from a lane on.
inline Floats8 fromLane(const Pattern<float>& p, size_t lane) { return {_mm256_loadu_ps(p.lane + lane)}; }
template <typename T>
Samples16<T> fromLane(const Pattern<T>& p, size_t lane) {
  return {load16(reinterpret_cast<const Byte*>(p.lane + lane))};
}
inline Doubles8 fromLane(const Pattern<double>& p, size_t lane) {
  return {loadDoubles4(p.lane + lane), loadDoubles4(p.lane + lane + 4)};
}

inline Floats8 insideOf(Floats8 x, Floats8 first, Floats8 last) {
  return isAtLeast(x, first) & isBelow(x, last);
}
template <typename T>
Samples16<T> insideOf(Samples16<T> x, Samples16<T> first, Samples16<T> last) {
  return isAtLeast(x, first) & isAtLeast(last, x);
}

// What the pieces need to know of a step for a vector of samples.
template <typename T, typename V>
struct ConstantPiece {
  V value;
  ConstantPiece(const ConstantStep<T>& s, size_t lane) : value(fromLane(s.value, lane)) {}
  void replace(V held, const ConstantStep<T>& s, size_t lane) {
    value = ifThenElse(held, fromLane(s.value, lane), value);
  }
  V operator()(V) const { return value; }
};

struct LinearPiece {
  Floats8 level, value, slope;
  LinearPiece(const LinearStep& s, size_t lane)
      : level(fromLane(s.level, lane)), value(fromLane(s.value, lane)), slope(fromLane(s.slope, lane)) {}
  void replace(Floats8 held, const LinearStep& s, size_t lane) {
    level = ifThenElse(held, fromLane(s.level, lane), level);
    value = ifThenElse(held, fromLane(s.value, lane), value);
    slope = ifThenElse(held, fromLane(s.slope, lane), slope);
  }
  Floats8 operator()(Floats8 x) const {
    return narrowed(widened(x - level) * widened(slope) + widened(value));
  }
};

struct CubicPiece {
  Floats8 value, origin;
  Doubles8 a, b, c;
  CubicPiece(const CubicStep& s, size_t lane)
      : value(fromLane(s.value, lane)),
        origin(fromLane(s.origin, lane)),
        a(fromLane(s.a, lane)),
        b(fromLane(s.b, lane)),
        c(fromLane(s.c, lane)) {}
  void replace(Floats8 held, const CubicStep& s, size_t lane) {
    value = ifThenElse(held, fromLane(s.value, lane), value);
    origin = ifThenElse(held, fromLane(s.origin, lane), origin);
    const Doubles8 both = widenedMask(held);
    a = ifThenElse(both, fromLane(s.a, lane), a);
    b = ifThenElse(both, fromLane(s.b, lane), b);
    c = ifThenElse(both, fromLane(s.c, lane), c);
  }
  Floats8 operator()(Floats8 x) const {
    const Doubles8 t = widened(x - origin), square = t * t;
    return narrowed((square * a + c) * t + (widened(value) + square * b));
  }
};

Floats8 vectorAs(Floats8, const Byte* p) { return loadFloats8(p); }
template <typename T>
Samples16<T> vectorAs(Samples16<T>, const Byte* p) {
  return {load16(p)};
}

template <typename Step, typename Piece, typename V>
struct Piecewise {
  using T = typename Step::Sample;
  ImageRow<T, T> a;
  const Stepped<Step>& pieces;
  size_t start = 0;  // the first sample's channel

  static constexpr size_t kSample = sizeof(T), kPeriod = 3, kLanes = sizeof(V) / sizeof(T);
  static constexpr int kSources = 1;
  using Phase = size_t;  // the channel of a block's first sample

  Phase phase(size_t at) const { return (start + at / sizeof(T)) % static_cast<size_t>(pieces.channels); }

  [[gnu::always_inline]] auto results(const Byte* p, size_t lane) const {
    const V x = vectorAs(V(), p);
    const Step* const steps = pieces.steps;
    Piece piece(steps[0], lane);
    for (int k = 1; k < pieces.count; ++k)
      piece.replace(isAtLeast(x, fromLane(steps[k].level, lane)), steps[k], lane);
    const V inside = insideOf(x, fromLane(steps[0].level, lane), fromLane(pieces.last, lane));
    return bytesOf(ifThenElse(inside, piece(x), x));
  }
  [[gnu::always_inline]] auto block(size_t at, Phase lane) const {
    if constexpr (sizeof(V) == kBlock)
      return results(a(at), lane);
    else
      return Halves32{results(a(at), lane), results(a(at) + 16, lane + kLanes)};
  }
  // What lies behind the lanes of a half vector is computed with as well.
  [[gnu::always_inline]] VectorBytes vector(size_t at) const {
    const size_t lane = phase(at);
    if constexpr (kVectorBytes == kBlock) {
      return joined(block(at, lane));
    } else if constexpr (sizeof(V) == kVectorBytes) {
      return results(a(at), lane);
    } else {
      alignas(32) Byte twice[kBlock];
      store32(twice, joined(load16(a(at)), load16(a(at))));
      return lowHalf(results(twice, lane));
    }
  }
  void advance(int rows) { a.advance(rows); }
  bool isApart(TargetRows dst, size_t bytes, int rows) const { return a.isApart(dst, bytes, rows); }
  void describe(PieceSource* sources) const { a.describe(sources); }
  Piecewise onPieces(const Byte* const* rows, size_t at) const {
    return {a.onPieces(rows, at), pieces, start + at / sizeof(T)};
  }
};

template <typename Step>
struct RuleOf;
template <>
struct RuleOf<ConstantStep<float>> {
  using Type = Piecewise<ConstantStep<float>, ConstantPiece<float, Floats8>, Floats8>;
};
template <typename T>
struct RuleOf<ConstantStep<T>> {
  using Type = Piecewise<ConstantStep<T>, ConstantPiece<T, Samples16<T>>, Samples16<T>>;
};
template <>
struct RuleOf<LinearStep> {
  using Type = Piecewise<LinearStep, LinearPiece, Floats8>;
};
template <>
struct RuleOf<CubicStep> {
  using Type = Piecewise<CubicStep, CubicPiece, Floats8>;
};

}  // namespace

template <typename Step, int alpha>
void piecewiseRows(SourceRows src, TargetRows dst, Extent samples, const Stepped<Step>& pieces) {
  using T = typename Step::Sample;
  runPixels<4 * sizeof(T), (4 - alpha) * sizeof(T)>(dst, samples,
                                                    typename RuleOf<Step>::Type{ImageRow<T, T>(src), pieces});
}

#define LUMI_PIECES(Step, alpha) \
  template void piecewiseRows<Step, alpha>(SourceRows, TargetRows, Extent, const Stepped<Step>&);
#define LUMI_STEPS(Step) LUMI_PIECES(Step, 0) LUMI_PIECES(Step, 1)
LUMI_STEPS(ConstantStep<uint16_t>)
LUMI_STEPS(ConstantStep<int16_t>)
LUMI_STEPS(ConstantStep<float>)
LUMI_STEPS(LinearStep)
LUMI_STEPS(CubicStep)
#undef LUMI_STEPS
#undef LUMI_PIECES

}  // namespace lumi
