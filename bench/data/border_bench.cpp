// SPDX-License-Identifier: MIT
#include "bench/harness.hpp"
#include "bench/peers/loop.hpp"
#include "bench/peers/opencv.hpp"

namespace bench {
namespace {

using opencv::Border;

constexpr Value kValue{7, 70, 170, 210};

int position(Border kind, int at, int length) {
  if (kind == Border::wrap) return (at % length + length) % length;
  return at < 0 ? 0 : at < length ? at : length - 1;
}

// The three pieces of a row in turn; rows outside come from the source, too.
template <int C, typename T>
Peer loopBorder(Image<T> src, Image<T> dst, int top, int left, Border kind) {
  const auto value = loop::samples<C, T>(kValue);
  return loop::rows(dst.roi, [=](int y, int width) {
    const auto pixel = value;
    const int w = src.roi.width, h = src.roi.height;
    const T* __restrict s = src.row(position(kind, y - top, h));
    T* __restrict d = dst.row(y);
    const bool constant = kind == Border::constant, outside = y < top || y >= top + h;
    const auto side = [&](int from, int to) {
      for (int x = from; x < to; ++x)
        for (int c = 0; c < C; ++c)
          d[x * C + c] =
              constant ? pixel[static_cast<std::size_t>(c)] : s[position(kind, x - left, w) * C + c];
    };
    if (constant && outside) return side(0, width);
    side(0, left);
    for (int i = 0; i < w * C; ++i) d[left * C + i] = s[i];
    side(left + w, width);
  });
}

template <typename T, typename... Value>
using Extend = LumStatus (*)(const T*, int, LumiSize, T*, int, LumiSize, int, int, Value...);

// An image that is smaller than its destination by `border` on every side, or by a quarter for 0.
template <int C, typename T, typename... Values>
Suite::Build extend(Extend<T, Values...> lumi, Border kind, int border, Values... values) {
  return [=](Scene& s) {
    auto src = s.input<T>(C);
    const auto dst = s.output<T>(C);
    const int left = border ? border : dst.roi.width / 4, top = border ? border : dst.roi.height / 4;
    src.roi = {src.roi.width - 2 * left, src.roi.height - 2 * top};
    s.ours([=] { lumi(src.data(), src.step, src.roi, dst.data(), dst.step, dst.roi, top, left, values...); });
    s.peer(opencv::border, src, dst, top, left, kind, kValue);
    s.peer(loopBorder<C>(src, dst, top, left, kind));
  };
}

template <typename T>
const T* values() {
  static const T all[] = {7, 70, 170, 210};
  return all;
}

const Family family("border", [](Suite& suite) {
  constexpr Border constant = Border::constant, replicate = Border::replicate, wrap = Border::wrap;
  const auto* bytes = values<Lum8u>();
  suite.row("border value 8u C1", kEverySize, extend<1>(lumiCopyConstBorder_8u_C1R, constant, 3, Lum8u{7}));
  suite.row("border value 8u C3", kEverySize, extend<3>(lumiCopyConstBorder_8u_C3R, constant, 3, bytes));
  suite.row("border value 8u C4", kEverySize, extend<4>(lumiCopyConstBorder_8u_C4R, constant, 3, bytes));
  suite.row("border value 16s C1", kEverySize,
            extend<1>(lumiCopyConstBorder_16s_C1R, constant, 3, Lum16s{7}));
  suite.row("border value 32f C1", kEverySize, extend<1>(lumiCopyConstBorder_32f_C1R, constant, 3, 7.0f));
  suite.row("border value 8u C1 wide", kUpToHd, extend<1>(lumiCopyConstBorder_8u_C1R, constant, 0, Lum8u{7}));
  suite.row("border edges 8u C1", kEverySize, extend<1>(lumiCopyReplicateBorder_8u_C1R, replicate, 3));
  suite.row("border edges 8u C3", kEverySize, extend<3>(lumiCopyReplicateBorder_8u_C3R, replicate, 3));
  suite.row("border edges 8u C4", kEverySize, extend<4>(lumiCopyReplicateBorder_8u_C4R, replicate, 3));
  suite.row("border edges 16s C1", kEverySize, extend<1>(lumiCopyReplicateBorder_16s_C1R, replicate, 3));
  suite.row("border edges 32f C1", kEverySize, extend<1>(lumiCopyReplicateBorder_32f_C1R, replicate, 3));
  suite.row("border edges 8u C3 wide", kUpToHd, extend<3>(lumiCopyReplicateBorder_8u_C3R, replicate, 0));
  suite.row("border periodic 32f C1", kEverySize, extend<1>(lumiCopyWrapBorder_32f_C1R, wrap, 3));
  suite.row("border periodic 32f C1 wide", kUpToHd, extend<1>(lumiCopyWrapBorder_32f_C1R, wrap, 0));
});

}  // namespace
}  // namespace bench
