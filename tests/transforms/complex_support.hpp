// SPDX-License-Identifier: MIT
// What the tests of operations that make a real sample of each complex one share.
#pragma once

#include <string>
#include <vector>

#include "model/transforms/complex.hpp"
#include "support/member.hpp"

namespace test {

// The members of an operation, whose results are f(re, im, scaleFactor).
template <typename F>
void addComplexMembers(const std::string& operation, F f) {
  std::vector<Member> all;
  for (const ExportRow& row : exportRows()) {
    if (row.operation != operation || row.family != programFamily()) continue;
    all.push_back(memberOf(row));
    Member& m = all.back();
    m.contents = kAnyContents;
    m.mayStream = false;
    m.floatResults = isFloating(m.types.back());
    const int channels = m.channels.dst;
    const auto describe = [&](auto sample) {
      using T = decltype(sample);
      m.model = [=](const Call& c) {
        model::mapComplex<T>(c.srcImage(), c.dstImage(), c.roi, channels,
                             [&](T re, T im) { return f(re, im, c.numbers[0]); });
      };
    };
    withType(m.types.back(), describe, Types<Lum16u, Lum16s, Lum32s, Lum32f>());
  }
  addModelTests(all);
}

// The result of one sample.
template <typename T, typename C>
T resultOf(LumStatus (*function)(const C*, int, T*, int, LumiSize, int), C sample, int s) {
  T result = 77;
  EXPECT_EQ(function(&sample, sizeof sample, &result, sizeof result, {1, 1}, s), lumStatusOk);
  return result;
}

}  // namespace test
