// SPDX-License-Identifier: MIT
#include <algorithm>

#include "panels.hpp"
#include "pieces.hpp"

namespace {

constexpr int kSide = 8, kValues = kSide * kSide;

// The green plane, its last column and row repeated up to whole blocks.
Grey wholeBlocks(const Colour& photo) {
  const LumiSize size = photo.size();
  Grey result({(size.width + kSide - 1) / kSide * kSide, (size.height + kSide - 1) / kSide * kSide});
  const Planes planes = split(photo);
  check(lumiCopyReplicateBorder_8u_C1R(planes.green.data(), planes.green.step(), size, result.data(),
                                       result.step(), result.size(), 0, 0),
        "lumiCopyReplicateBorder_8u_C1R");
  return result;
}

// Of each block only the first coefficients in zigzag order are kept: all at the left, then ever fewer.
AnyImage quality(const Colour& photo, Calls& calls) {
  constexpr int kKept[] = {64, 21, 10, 6, 3, 1}, kBands = 6;
  const Grey source = wholeBlocks(photo);
  const LumiSize size = source.size();
  Grey result(size);
  calls.time("lumiDCT8x8FwdLS_8u16s_C1R, lumiZigzagFwd8x8_16s_C1 and back", size, [&] {
    LumStatus status = lumStatusOk;
    for (int y = 0; y < size.height; y += kSide) {
      for (int x = 0; x < size.width && status == lumStatusOk; x += kSide) {
        Lum16s block[kValues], order[kValues];
        status = lumiDCT8x8FwdLS_8u16s_C1R(source.at(x, y), source.step(), block, -128);
        if (status == lumStatusOk) status = lumiZigzagFwd8x8_16s_C1(block, order);
        std::fill(order + kKept[x * kBands / size.width], order + kValues, Lum16s{0});
        if (status == lumStatusOk) status = lumiZigzagInv8x8_16s_C1(order, block);
        if (status == lumStatusOk)
          status = lumiDCT8x8InvLSClip_16s8u_C1R(block, result.at(x, y), result.step(), 128, 0, 255);
      }
    }
    return status;
  });
  return result;
}

// Means of 4 x 4 pixels, made of the coefficients without the pixels.
AnyImage quarterSize(const Colour& photo, Calls& calls) {
  const Grey source = wholeBlocks(photo);
  const LumiSize size = source.size();
  Grey result({size.width / 4, size.height / 4});
  calls.time("lumiDCT8x8Fwd_8u16s_C1R and lumiDCT8x8To2x2Inv_16s_C1", size, [&] {
    LumStatus status = lumStatusOk;
    for (int y = 0; y < size.height; y += kSide) {
      for (int x = 0; x < size.width && status == lumStatusOk; x += kSide) {
        Lum16s block[kValues];
        status = lumiDCT8x8Fwd_8u16s_C1R(source.at(x, y), source.step(), block);
        if (status == lumStatusOk) status = lumiDCT8x8To2x2Inv_16s_C1I(block);
        for (int i = 0; i < 4; ++i)
          *result.at(x / 4 + i % 2, y / 4 + i / 2) = static_cast<Lum8u>(std::clamp<int>(block[i], 0, 255));
      }
    }
    return status;
  });
  return result;
}

const Panels panels("transforms", "dct_8x8",
                    {
                        {"quality", "Ever fewer coefficients", quality},
                        {"quarter", "A quarter of the size from coefficients", quarterSize},
                    });

}  // namespace
