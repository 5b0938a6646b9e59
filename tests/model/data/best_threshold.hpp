// SPDX-License-Identifier: MIT
#pragma once

#include "model/access.hpp"

namespace model {

// The variance between the classes up to each level and above it, in doubles, step by step as it is stated.
inline int bestThreshold(const double (&histogram)[256]) {
  double total = 0.0, sum = 0.0;
  for (int i = 0; i < 256; ++i) total = total + histogram[i];
  for (int i = 0; i < 256; ++i) sum = sum + histogram[i] * (i + 0.5);
  const double epsilon = 1.1920928955078125e-7;
  double inv = 0.0;
  if (total > epsilon || total < -epsilon) inv = 1.0 / total;
  const double mean = sum * inv;
  double q1 = 0.0, mu = 0.0, bestVariance = 0.0, bestThreshold = 0.0;
  for (int i = 0; i <= 255; ++i) {
    const double p = inv * histogram[i];
    mu = mu * q1;
    q1 = q1 + p;
    const double q2 = 1.0 - q1;
    const double smaller = q1 < q2 ? q1 : q2, larger = q1 < q2 ? q2 : q1;
    if (smaller < epsilon) continue;
    if (larger > 0.9999998807907104) continue;
    mu = (mu + p * (i + 0.5)) / q1;
    const double d = mu - (mean - mu * q1) / q2;
    const double v = q1 * q2 * d * d;
    if (v > bestVariance) {
      bestVariance = v;
      bestThreshold = i + 0.5;
    }
  }
  return static_cast<int>(bestThreshold);
}

inline LumStatus bestThreshold(Image src, LumiSize roi, Byte* result) {
  if (roi.width > src.step) return lumStatusBadStep;
  double histogram[256] = {};
  for (int y = 0; y < roi.height; ++y)
    for (int x = 0; x < roi.width; ++x) histogram[src.row(y)[x]] += 1.0;
  *result = static_cast<Byte>(bestThreshold(histogram));
  return lumStatusOk;
}

}  // namespace model
