// SPDX-License-Identifier: MIT
#include "panels.hpp"

namespace {

// sqrt(sample) * 16: the scale factor -4 spreads the roots over the whole range. Shadows get lighter.
AnyImage lighterShadows(const Colour& photo, Calls& calls) {
  Colour result(photo.size());
  calls.time("lumiSqrt_8u_C3RSfs", photo.size(), [&] {
    return lumiSqrt_8u_C3RSfs(photo.data(), photo.step(), result.data(), result.step(), photo.size(), -4);
  });
  return result;
}

// ln(sample + 1) * 32: no sample is without a logarithm.
AnyImage logarithms(const Colour& photo, Calls& calls) {
  constexpr Lum8u one[] = {1, 1, 1};
  Colour result(photo.size());
  check(lumiAddC_8u_C3RSfs(photo.data(), photo.step(), one, result.data(), result.step(), photo.size(), 0),
        "lumiAddC_8u_C3RSfs");
  Colour curve(photo.size());
  calls.time("lumiLn_8u_C3RSfs", photo.size(), [&] {
    return lumiLn_8u_C3RSfs(result.data(), result.step(), curve.data(), curve.step(), photo.size(), -5);
  });
  return curve;
}

// sample^2 / 256: a photo times itself.
AnyImage deeperShadows(const Colour& photo, Calls& calls) {
  Colour result(photo.size());
  calls.time("lumiSqr_8u_C3RSfs", photo.size(), [&] {
    return lumiSqr_8u_C3RSfs(photo.data(), photo.step(), result.data(), result.step(), photo.size(), 8);
  });
  return result;
}

const Panels panels("arithmetic", "unary",
                    {
                        {"root", "Square root, times 16", lighterShadows},
                        {"logarithm", "Logarithm, times 32", logarithms},
                        {"square", "Times itself", deeperShadows},
                    });

}  // namespace
