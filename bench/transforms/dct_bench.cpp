// SPDX-License-Identifier: MIT
#include <memory>

#include "bench/harness.hpp"
#include "bench/peers/fftw.hpp"
#include "bench/peers/opencv.hpp"
#include "lumi/dct.h"

namespace bench {
namespace {

const std::vector<LumiSize> kSizes{kCall, kSmall, {320, 240}, {512, 512}, {1000, 600}};

template <typename Spec, typename Init, typename GetBufSize, typename Run>
Suite::Build cosines(fftw::Direction direction, Init init, GetBufSize getBufSize, Run run) {
  return [=](Scene& s) {
    const auto src = s.input<Lum32f>(1), dst = s.output<Lum32f>(1);
    Spec* spec = nullptr;  // lives as long as the program
    int bytes = 0;
    if (init(&spec, src.roi.width, src.roi.height) != lumStatusOk || getBufSize(spec, &bytes) != lumStatusOk)
      return;
    const auto scratch = std::make_shared<std::vector<Lum8u>>(static_cast<std::size_t>(bytes));
    s.ours([=] { run(src.data(), src.step, dst.data(), dst.step, spec, scratch->data()); });
    s.peer(fftw::cosine, src, dst, direction);
    s.peer(opencv::cosine, src, dst, direction == fftw::Direction::inverse);
  };
}

const Family family("dct", [](Suite& suite) {
  const auto forward = cosines<LumiDCTFwdSpec_32f>(fftw::Direction::forward, lumiDCTFwdInitAlloc_32f,
                                                   lumiDCTFwdGetBufSize_32f, lumiDCTFwd_32f_C1R);
  suite.row("dct 32f forward", kSizes, forward);
  suite.row("dct 32f forward padded", {kCall, kSmall}, forward, Placement::padded);
  suite.row("dct 32f inverse", kSizes,
            cosines<LumiDCTInvSpec_32f>(fftw::Direction::inverse, lumiDCTInvInitAlloc_32f,
                                        lumiDCTInvGetBufSize_32f, lumiDCTInv_32f_C1R));
});

}  // namespace
}  // namespace bench
