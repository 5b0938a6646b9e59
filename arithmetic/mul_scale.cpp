// SPDX-License-Identifier: MIT
// Multiplication of samples as fractions of the largest one.
#include "lumi/mul_scale.h"

#include "arithmetic/combine.hpp"
#include "kernels/arithmetic/mul_scale.hpp"

namespace lumi {

template <>
struct Operation<MulScale> {
  static constexpr bool kStreams = false;
  template <typename T, typename... Step>
  static LumStatus fault(int, LumiSize roi, Step... steps) {
    return check::firstFault(check::steps(steps...), check::size(roi));
  }
  template <typename T>
  static std::optional<Scaling> scaling(int) {
    return Scaling();
  }
  template <typename T>
  using Sample = T;
  template <typename T>
  static Outcome outcome(T, int) {
    return Outcome::Combined;
  }
};

}  // namespace lumi

using namespace lumi;
#include "bind/mul_scale.inc"
