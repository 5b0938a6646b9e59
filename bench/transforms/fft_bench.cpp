// SPDX-License-Identifier: MIT
#include "bench/transforms/spectrum_rows.hpp"
#include "lumi/fft.h"

namespace bench {
namespace {

const std::vector<LumiSize> kPowers{kCall, kSmall, kCached, {256, 256}, {512, 512}, {1024, 1024}};
const std::vector<LumiSize> kSmallOnes{kCall, kSmall};

int orderOf(int n) { return n <= 1 ? 0 : 1 + orderOf(n / 2); }
constexpr Lum32s kUnscaled = 8;

Suite::Build complexRows(decltype(&lumiFFTFwd_CToC_32fc_C1R) call, bool inverse) {
  return transforms<LumiFFTSpec_C_32fc>(
      1, true, inverse,
      [](LumiFFTSpec_C_32fc** spec, LumiSize size) {
        return lumiFFTInitAlloc_C_32fc(spec, orderOf(size.width), orderOf(size.height), kUnscaled, 0);
      },
      lumiFFTGetBufSize_C_32fc,
      [=](const auto& src, const auto& dst, const auto* spec, Lum8u* scratch) {
        call(reinterpret_cast<const Lum32fc*>(src.data()), src.step, reinterpret_cast<Lum32fc*>(dst.data()),
             dst.step, spec, scratch);
      });
}

Suite::Build realRows(decltype(&lumiFFTFwd_RToPack_32f_C1R) call, int channels, bool inverse) {
  return transforms<LumiFFTSpec_R_32f>(
      channels, false, inverse,
      [](LumiFFTSpec_R_32f** spec, LumiSize size) {
        return lumiFFTInitAlloc_R_32f(spec, orderOf(size.width), orderOf(size.height), kUnscaled, 0);
      },
      lumiFFTGetBufSize_R_32f,
      [=](const auto& src, const auto& dst, const auto* spec, Lum8u* scratch) {
        call(src.data(), src.step, dst.data(), dst.step, spec, scratch);
      });
}

const Family family("fft", [](Suite& suite) {
  const auto realForward = realRows(lumiFFTFwd_RToPack_32f_C1R, 1, false);
  const auto realInverse = realRows(lumiFFTInv_PackToR_32f_C1R, 1, true);
  const auto complexForward = complexRows(lumiFFTFwd_CToC_32fc_C1R, false);
  suite.row("fft real 32f forward", kPowers, realForward);
  suite.row("fft real 32f forward padded", kSmallOnes, realForward, Placement::padded);
  suite.row("fft real 32f forward misaligned", {kSmall}, realForward, Placement::misaligned);
  suite.row("fft real 32f inverse", kPowers, realInverse);
  suite.row("fft real 32f inverse padded", kSmallOnes, realInverse, Placement::padded);
  suite.row("fft complex 32f forward", kPowers, complexForward);
  suite.row("fft complex 32f forward padded", kSmallOnes, complexForward, Placement::padded);
  suite.row("fft complex 32f inverse", kPowers, complexRows(lumiFFTInv_CToC_32fc_C1R, true));
  suite.row("fft real 32f C3 forward", {kSmall, {256, 256}, {512, 512}},
            realRows(lumiFFTFwd_RToPack_32f_C3R, 3, false));
  suite.row("fft real 32f C4 forward", {kSmall, {256, 256}, {512, 512}},
            realRows(lumiFFTFwd_RToPack_32f_C4R, 4, false));
});

}  // namespace
}  // namespace bench
