// SPDX-License-Identifier: MIT
#include "bench/transforms/spectrum_rows.hpp"
#include "lumi/dft.h"

namespace bench {
namespace {

// Mixed radices; both lengths prime; small ones.
const std::vector<LumiSize> kSizes{{60, 60}, {320, 240}, {1000, 600}, {509, 503}};
constexpr Lum32s kUnscaled = 8;

Suite::Build complexRows(decltype(&lumiDFTFwd_CToC_32fc_C1R) call, bool inverse) {
  return transforms<LumiDFTSpec_C_32fc>(
      1, true, inverse,
      [](LumiDFTSpec_C_32fc** spec, LumiSize size) {
        return lumiDFTInitAlloc_C_32fc(spec, size.width, size.height, kUnscaled, 0);
      },
      lumiDFTGetBufSize_C_32fc,
      [=](const auto& src, const auto& dst, const auto* spec, Lum8u* scratch) {
        call(reinterpret_cast<const Lum32fc*>(src.data()), src.step, reinterpret_cast<Lum32fc*>(dst.data()),
             dst.step, spec, scratch);
      });
}

Suite::Build realRows(decltype(&lumiDFTFwd_RToPack_32f_C1R) call, int channels, bool inverse) {
  return transforms<LumiDFTSpec_R_32f>(
      channels, false, inverse,
      [](LumiDFTSpec_R_32f** spec, LumiSize size) {
        return lumiDFTInitAlloc_R_32f(spec, size.width, size.height, kUnscaled, 0);
      },
      lumiDFTGetBufSize_R_32f,
      [=](const auto& src, const auto& dst, const auto* spec, Lum8u* scratch) {
        call(src.data(), src.step, dst.data(), dst.step, spec, scratch);
      });
}

const Family family("dft", [](Suite& suite) {
  const auto realForward = realRows(lumiDFTFwd_RToPack_32f_C1R, 1, false);
  suite.row("dft real 32f forward", kSizes, realForward);
  suite.row("dft real 32f forward padded", {{60, 60}}, realForward, Placement::padded);
  suite.row("dft real 32f inverse", kSizes, realRows(lumiDFTInv_PackToR_32f_C1R, 1, true));
  suite.row("dft complex 32f forward", kSizes, complexRows(lumiDFTFwd_CToC_32fc_C1R, false));
  suite.row("dft complex 32f inverse", kSizes, complexRows(lumiDFTInv_CToC_32fc_C1R, true));
  suite.row("dft real 32f C3 forward", {{60, 60}, {320, 240}},
            realRows(lumiDFTFwd_RToPack_32f_C3R, 3, false));
});

}  // namespace
}  // namespace bench
