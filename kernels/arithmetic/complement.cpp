// SPDX-License-Identifier: MIT
#include "kernels/arithmetic/complement.hpp"

#include "kernels/arithmetic/unary_rows.hpp"

namespace lumi {
namespace {

using namespace simd;

struct SignAndMagnitude {
  VectorBytes vector(const Byte* p) const {
    const Samples<int32_t> x{loadVector(p)};
    return bytesOf(as<int32_t>(magnitude(x)) | (x & broadcast<int32_t>(INT32_MIN)));
  }
};

}  // namespace

[[gnu::flatten]] void complementRows(TargetRows srcDst, Extent samples) {
  runUnary<int32_t, 0>({srcDst.first, srcDst.step}, srcDst, samples, SignAndMagnitude());
}

}  // namespace lumi
