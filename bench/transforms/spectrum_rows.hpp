// SPDX-License-Identifier: MIT
// Rows of transforms of images, of members of one interface.
#pragma once

#include <memory>

#include "bench/harness.hpp"
#include "bench/peers/fftw.hpp"
#include "bench/peers/opencv.hpp"
#include "lumi/types.h"

namespace bench {

// Work of a row with an object made for its size, and scratch of the size that it tells. Objects live as long
// as the program.
template <typename Spec, typename Init, typename GetBufSize, typename Run>
Suite::Build transforms(int channels, bool isComplex, bool inverse, Init init, GetBufSize getBufSize,
                        Run run) {
  return [=](Scene& s) {
    const int samples = isComplex ? 2 : channels;
    const auto src = s.input<Lum32f>(samples), dst = s.output<Lum32f>(samples);
    Spec* spec = nullptr;
    int bytes = 0;
    if (init(&spec, src.roi) != lumStatusOk || getBufSize(spec, &bytes) != lumStatusOk) return;
    const auto scratch = std::make_shared<std::vector<Lum8u>>(static_cast<std::size_t>(bytes));
    s.ours([=] { run(src, dst, spec, scratch->data()); });
    if (isComplex) {
      s.peer(fftw::complexImage, src, dst, inverse ? fftw::Direction::inverse : fftw::Direction::forward);
    } else if (channels == 1 && inverse) {
      s.peer(fftw::realInverse, dst);
    } else if (channels == 1) {
      s.peer(fftw::realForward, src);
    }
    if (channels == 1) s.peer(opencv::fourier, src, dst, inverse);
  };
}

}  // namespace bench
