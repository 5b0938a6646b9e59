// SPDX-License-Identifier: MIT
// Rows whose result is a double for each channel.
#pragma once

#include <cstring>

#include "bench/harness.hpp"

namespace bench {

// Room for them; the harness knows no doubles.
inline Image<Lum32s> resultsOf(Scene& s, int channels) { return s.outputOf<Lum32s>(2, {channels, 1}); }
inline Lum64f* doublesAt(const Image<Lum32s>& results) { return reinterpret_cast<Lum64f*>(results.data()); }

// The compiler's loop over two images, or one as both: total = add(total, sample of each) for each channel,
// and finish(total) is stored.
template <int C, typename Total, typename T, typename Add, typename Finish>
Peer loopTotals(Image<T> a, Image<T> b, Image<Lum32s> results, Add add, Finish finish) {
  return peer("loop", [=] {
    Total totals[C] = {};
    for (int y = 0; y < a.roi.height; ++y) {
      const T *p = a.row(y), *q = b.row(y);
      for (int x = 0, width = a.roi.width; x < width; ++x)
        for (int c = 0; c < C; ++c) totals[c] = add(totals[c], p[x * C + c], q[x * C + c]);
    }
    for (int c = 0; c < C; ++c) {
      const double result = finish(totals[c]);
      std::memcpy(results.bytes + static_cast<std::size_t>(c) * sizeof result, &result, sizeof result);
    }
  });
}

}  // namespace bench
