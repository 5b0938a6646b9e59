// SPDX-License-Identifier: MIT
#include "kernels/arithmetic/abs.hpp"

#include "kernels/arithmetic/unary_rows.hpp"

namespace lumi {
namespace {

using namespace simd;

struct OfWords {
  VectorBytes vector(const Byte* p) const {
    return bytesOf(magnitude(max(Samples<int16_t>{loadVector(p)}, broadcast<int16_t>(-INT16_MAX))));
  }
};

struct WithoutSign {
  template <typename V>
  V operator()(V x) const {
    return x & broadcastBits<V>(INT32_MAX);
  }
};

}  // namespace

template <typename T, int alpha>
[[gnu::flatten]] void absRows(SourceRows src, TargetRows dst, Extent samples) {
  if constexpr (std::is_same_v<T, float>)
    runUnary<T, alpha>(src, dst, samples, OfFloats<WithoutSign>());
  else
    runUnary<T, alpha>(src, dst, samples, OfWords());
}

template void absRows<int16_t, 0>(SourceRows, TargetRows, Extent);
template void absRows<int16_t, 1>(SourceRows, TargetRows, Extent);
template void absRows<float, 0>(SourceRows, TargetRows, Extent);
template void absRows<float, 1>(SourceRows, TargetRows, Extent);

}  // namespace lumi
