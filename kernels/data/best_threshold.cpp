// SPDX-License-Identifier: MIT
#include "kernels/data/best_threshold.hpp"

#include <algorithm>

namespace lumi {
namespace {

constexpr int kLevels = 256;

// The mean of all samples, and what to multiply counts by for shares of them. Sums of counts and halves are
// exact in any order as long as there are fewer than 2^44 samples, more than memory holds.
struct Whole {
  double inverse, mean;

  explicit Whole(const double* counts) {
    double totals[4] = {}, weighted[4] = {}, centre[4] = {0.5, 1.5, 2.5, 3.5};
    for (int i = 0; i < kLevels; i += 4)
      for (int k = 0; k < 4; ++k) {
        totals[k] += counts[i + k];
        weighted[k] += counts[i + k] * centre[k];
        centre[k] += 4;
      }
    inverse = 1 / ((totals[0] + totals[1]) + (totals[2] + totals[3]));
    mean = ((weighted[0] + weighted[1]) + (weighted[2] + weighted[3])) * inverse;
  }
};

}  // namespace

// The steps and their order are part of the result.
uint8_t bestThreshold(const Histogram& histogram) {
  // Shares this close to none or all do not make a class.
  constexpr double kLeast = 0x1p-23, kMost = 1 - 0x1p-23;
  const Whole whole(histogram.of);
  double q1 = 0, mu = 0, best = 0;
  int threshold = 0;
  for (int i = 0; i < kLevels; ++i) {
    const double p = whole.inverse * histogram.of[i];
    mu *= q1;
    q1 += p;
    const double q2 = 1 - q1;
    if (q1 > kMost) break;  // as all that follow
    // What is skipped adds to the share, and is left out of the mean.
    if (std::min(q1, q2) < kLeast || q2 > kMost) continue;
    mu = (mu + p * (i + 0.5)) / q1;
    const double d = mu - (whole.mean - mu * q1) / q2, variance = q1 * q2 * d * d;
    if (variance > best) {
      best = variance;
      threshold = i;
    }
  }
  return static_cast<uint8_t>(threshold);
}

}  // namespace lumi
