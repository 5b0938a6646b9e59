// SPDX-License-Identifier: MIT
#include <array>
#include <cmath>
#include <deque>
#include <memory>
#include <vector>

#include "panels.hpp"
#include "pieces.hpp"

namespace {

using GreyFloat = Image<1, Lum32f>;

constexpr int kLevels = 3, kMultiple = 1 << kLevels;

// Means and halves of differences of two neighbours, which reach no pixel but these; and the way back.
constexpr Lum32f kMean[] = {0.5F, 0.5F}, kDifference[] = {0.5F, -0.5F}, kSum[] = {1, 1}, kRest[] = {1, -1};

template <typename Spec>
using Owned = std::unique_ptr<Spec, LumStatus (*)(Spec*)>;

Owned<LumiWTFwdSpec_32f_C1R> forwardFilters() {
  LumiWTFwdSpec_32f_C1R* spec = nullptr;
  check(lumiWTFwdInitAlloc_32f_C1R(&spec, kMean, 2, 1, kDifference, 2, 1), "lumiWTFwdInitAlloc_32f_C1R");
  return {spec, lumiWTFwdFree_32f_C1R};
}
Owned<LumiWTInvSpec_32f_C1R> inverseFilters() {
  LumiWTInvSpec_32f_C1R* spec = nullptr;
  check(lumiWTInvInitAlloc_32f_C1R(&spec, kSum, 2, 1, kRest, 2, 1), "lumiWTInvInitAlloc_32f_C1R");
  return {spec, lumiWTInvFree_32f_C1R};
}

// Approximation, then details 1 to 3.
struct Bands {
  std::array<GreyFloat, 4> of;
  explicit Bands(LumiSize size) : of{GreyFloat(size), GreyFloat(size), GreyFloat(size), GreyFloat(size)} {}
  LumiSize size() const { return of[0].size(); }
};

// The green plane, its last column and row repeated so that it can be halved three times.
GreyFloat divisible(const Colour& photo) {
  const auto up = [](int n) { return (n + kMultiple - 1) / kMultiple * kMultiple; };
  const LumiSize size = photo.size(), whole{up(size.width), up(size.height)};
  const Planes planes = split(photo);
  Grey bytes(whole);
  check(lumiCopyReplicateBorder_8u_C1R(planes.green.data(), planes.green.step(), size, bytes.data(),
                                       bytes.step(), whole, 0, 0),
        "lumiCopyReplicateBorder_8u_C1R");
  GreyFloat result(whole);
  check(lumiConvert_8u32f_C1R(bytes.data(), bytes.step(), result.data(), result.step(), whole),
        "lumiConvert_8u32f_C1R");
  return result;
}

std::deque<Bands> analysed(const GreyFloat& image, Calls& calls) {
  const auto spec = forwardFilters();
  int bytes = 0;
  check(lumiWTFwdGetBufSize_C1R(spec.get(), &bytes), "lumiWTFwdGetBufSize_C1R");
  std::vector<Lum8u> buffer(static_cast<size_t>(bytes));
  std::deque<Bands> levels;
  for (int level = 0; level < kLevels; ++level) {
    const GreyFloat& from = level == 0 ? image : levels.back().of[0];
    const LumiSize size{from.size().width / 2, from.size().height / 2};
    levels.emplace_back(size);
    auto& to = levels.back().of;
    calls.time("lumiWTFwd_32f_C1R", size, [&] {
      return lumiWTFwd_32f_C1R(from.data(), from.step(), to[0].data(), to[0].step(), to[1].data(),
                               to[1].step(), to[2].data(), to[2].step(), to[3].data(), to[3].step(), size,
                               spec.get(), buffer.data());
    });
  }
  return levels;
}

// Bytes of a band, those of details about a middle grey, in a part of the picture.
void show(GreyFloat& band, Lum32f level, Grey& picture, LumiPoint at) {
  const LumiSize size = band.size();
  check(lumiAddC_32f_C1IR(level, band.data(), band.step(), size), "lumiAddC_32f_C1IR");
  check(lumiConvert_32f8u_C1R(band.data(), band.step(), picture.at(at.x, at.y), picture.step(), size,
                              lumRoundNearestEven),
        "lumiConvert_32f8u_C1R");
}

// Each level's details beside and below its approximation, in whose place the next level lies.
AnyImage levels(const Colour& photo, Calls& calls) {
  const GreyFloat image = divisible(photo);
  std::deque<Bands> all = analysed(image, calls);
  Grey result(image.size());
  for (Bands& bands : all) {
    const auto [width, height] = bands.size();
    show(bands.of[1], 128, result, {0, height});
    show(bands.of[2], 128, result, {width, 0});
    show(bands.of[3], 128, result, {width, height});
  }
  show(all.back().of[0], 0, result, {0, 0});
  return result;
}

// The photo without its weak details: what is even becomes plain, and edges stay.
AnyImage plain(const Colour& photo, Calls& calls) {
  constexpr Lum32f kWeak = 8;
  GreyFloat image = divisible(photo);
  std::deque<Bands> all = analysed(image, calls);
  const auto spec = inverseFilters();
  int bytes = 0;
  check(lumiWTInvGetBufSize_C1R(spec.get(), &bytes), "lumiWTInvGetBufSize_C1R");
  std::vector<Lum8u> buffer(static_cast<size_t>(bytes));
  for (int level = kLevels - 1; level >= 0; --level) {
    auto& bands = all[static_cast<size_t>(level)].of;
    const LumiSize size = bands[0].size();
    for (size_t i = 1; i < 4; ++i)
      for (int y = 0; y < size.height; ++y)
        for (int x = 0; x < size.width; ++x)
          if (std::fabs(*bands[i].at(x, y)) < kWeak) *bands[i].at(x, y) = 0;
    GreyFloat& to = level == 0 ? image : all[static_cast<size_t>(level - 1)].of[0];
    calls.time("lumiWTInv_32f_C1R", size, [&] {
      return lumiWTInv_32f_C1R(bands[0].data(), bands[0].step(), bands[1].data(), bands[1].step(),
                               bands[2].data(), bands[2].step(), bands[3].data(), bands[3].step(), size,
                               to.data(), to.step(), spec.get(), buffer.data());
    });
  }
  Grey result(image.size());
  show(image, 0, result, {0, 0});
  return result;
}

const Panels panels("transforms", "wavelet",
                    {{"levels", "Three levels of details", levels},
                     {"plain", "Without weak details", plain}});

}  // namespace
