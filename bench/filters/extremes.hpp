// SPDX-License-Identifier: MIT
// Peers of what takes the largest or the smallest sample of windows.
#pragma once

#include <algorithm>
#include <vector>

#include "bench/harness.hpp"
#include "bench/peers/opencv.hpp"

namespace bench {

inline LumiSize around(LumiSize roi, LumiSize window) {
  return {roi.width + window.width - 1, roi.height + window.height - 1};
}

// Down the columns into a row, then along it.
template <bool largest, int C, typename T>
Peer loopOfExtremes(Image<T> src, Image<T> dst, LumiSize window) {
  return peer("loop", [=, columns = std::vector<T>()]() mutable {
    const int covered = (dst.roi.width + window.width - 1) * C, samples = dst.roi.width * C;
    const auto take = [](T& best, T sample) {
      best = (largest ? sample > best : sample < best) ? sample : best;
    };
    columns.resize(static_cast<std::size_t>(covered));
    T* __restrict column = columns.data();
    for (int y = 0; y < dst.roi.height; ++y) {
      std::copy_n(src.row(y), covered, column);
      for (int k = 1; k < window.height; ++k) {
        const T* __restrict s = src.row(y + k);
        for (int i = 0; i < covered; ++i) take(column[i], s[i]);
      }
      T* __restrict d = dst.row(y);
      std::copy_n(column, samples, d);
      for (int k = 1; k < window.width; ++k)
        for (int i = 0; i < samples; ++i) take(d[i], column[i + k * C]);
    }
  });
}

template <bool largest, int C, typename T>
void addPeers(Scene& scene, Image<T> src, Image<T> dst, LumiSize window) {
  const std::vector<Lum8u> whole(static_cast<std::size_t>(window.width * window.height), 1);
  if (opencv::morphology != nullptr) scene.peer(opencv::morphology(src, dst, whole, window, largest));
  scene.peer(loopOfExtremes<largest, C>(src, dst, window));
}

}  // namespace bench
