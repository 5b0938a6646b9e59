// SPDX-License-Identifier: MIT
// The models of members that copy: within a layout, between layouts, under a mask; planes and pixels.
#pragma once

#include "model/data/copy.hpp"
#include "support/member.hpp"

namespace test {

template <typename T>
std::function<void(const Call&)> copyModelOf(const Member& m) {
  const model::Channels channels = m.channels;
  const int planes = std::max(m.src.planes, m.dst.planes);
  if (m.dst.planes > 1)
    return [=](const Call& c) { model::split<T>(c.srcImage(), c.dst, c.dstStep, c.roi, planes); };
  if (m.src.planes > 1)
    return [=](const Call& c) { model::merge<T>(c.src, c.srcStep, c.dstImage(), c.roi, planes); };
  if (m.masked)
    return [=](const Call& c) {
      model::copyMasked<T>(c.srcImage(), c.dstImage(), c.roi, c.maskImage(), channels);
    };
  return [=](const Call& c) { model::copy<T>(c.srcImage(), c.dstImage(), c.roi, channels); };
}

}  // namespace test
