// SPDX-License-Identifier: MIT
// What is read besides the pixels that are asked for: nothing.
#include <gtest/gtest.h>

#include <algorithm>

#include "common/member_checks.hpp"
#include "support/arena.hpp"
#include "support/core_guard.hpp"
#include "support/fault.hpp"
#include "support/random.hpp"
#include "support/settings.hpp"

namespace test {
namespace {

constexpr int kBlock = 16;  // mask bytes that are looked at together

// A masked copy between arenas of its own, whose source can be closed.
class MaskedCopy {
 public:
  explicit MaskedCopy(const Member& member) : member_(member) {
    Random random(mixSeed(settings().seed, member.name, 0));
    random.fill(source_.begin(), static_cast<size_t>(source_.end() - source_.begin()));
    random.fill(destination_.begin(), static_cast<size_t>(destination_.end() - destination_.begin()));
    destination_.copyToTwin(destination_.begin(), destination_.end());
  }

  Arena& source() { return source_; }

  // Nothing, or what went wrong. The mask is all zero but for the pixels listed.
  std::string run(LumiSize roi, ptrdiff_t sourceOffset, ptrdiff_t dstOffset,
                  const std::vector<int>& set = {}) {
    std::fill(mask_.begin(), mask_.end(), Byte{0});
    Call call;
    call.roi = roi;
    call.src[0] = source_.begin() + sourceOffset;
    call.dst[0] = destination_.begin() + dstOffset;
    call.srcStep = call.dstStep = roi.width * member_.src.pixelBytes;
    call.mask = mask_.end() - static_cast<ptrdiff_t>(roi.width) * roi.height;
    call.maskStep = roi.width;
    for (int at : set) call.mask[at] = 1;
    LumStatus status = 0;
    if (faultOf([&] { status = member_.run(call); })) return "source touched where the mask is zero";
    if (status != lumStatusOk) return "status " + std::to_string(status);
    if (set.empty() && destination_.firstDifference(destination_.begin(), destination_.end()))
      return "destination changed where the mask is zero";
    return {};
  }

 private:
  const Member& member_;
  Arena source_{64 * 1024}, destination_{64 * 1024}, mask_{4096};
};

void expectNoReadsWhereTheMaskIsZero(const Member& m) {
  MaskedCopy copy(m);
  copy.source().setAccessible(copy.source().begin(), copy.source().end(), false);
  for (int width : {kBlock, 2 * kBlock, 64, 128})
    for (int height : {1, 3})
      for (int offset = 0; offset < 64; ++offset)
        ASSERT_EQ(copy.run({width, height}, offset % 7, offset), "")
            << m.name << ", " << width << " x " << height << ", destination at phase " << offset;
}

// The block with a pixel in it lies on the last accessible page, the blocks before it on closed ones.
void expectNoReadsInZeroBlocksBesideOthers(const Member& m) {
  MaskedCopy copy(m);
  const auto page = static_cast<ptrdiff_t>(Arena::pageBytes());
  const int pixelBytes = m.src.pixelBytes;
  const int width = 128;
  Byte* const open = copy.source().begin() + 2 * page;
  copy.source().setAccessible(copy.source().begin(), open, false);
  // Blocks count from the first pixel where the destination is aligned; pixels 64 to 127 are accessible.
  const ptrdiff_t first = open - copy.source().begin() - ptrdiff_t{64} * pixelBytes;
  for (int set = 64; set < width; ++set)
    ASSERT_EQ(copy.run({width, 1}, first, 0, {set}), "") << m.name << ", pixel " << set;
}

// In a row of any width, pixels outside the mask may be read only where they share a block with one inside:
// one row, of which the last pixel alone is wanted and the source ends right behind it.
void expectNoReadsBehindTheLastPixel(const Member& m) {
  MaskedCopy copy(m);
  for (int width = 1; width <= 80; ++width)
    for (int offset : {0, 1, 5, 31}) {
      const ptrdiff_t end = copy.source().end() - copy.source().begin();
      ASSERT_EQ(copy.run({width, 1}, end - ptrdiff_t{width} * m.src.pixelBytes, offset, {width - 1}), "")
          << m.name << ", width " << width << ", destination at phase " << offset;
    }
}

}  // namespace

bool readsUnderAMask(const Member& m) { return m.masked && m.src.planes > 0; }

void expectNoReadsBehindTheMask(const Member& m) {
  const CoreGuard guard;
  expectNoReadsWhereTheMaskIsZero(m);
  expectNoReadsInZeroBlocksBesideOthers(m);
  expectNoReadsBehindTheLastPixel(m);
}

bool takesValuesByPointer(const Member& m) { return m.valuesByPointer && !m.floatResults; }

void expectValuesToBeReadFirst(const Member& m) {
  const CoreGuard guard;
  Arena arena(8192), mask(4096), source(8192);
  const int width = 40, height = 2, step = width * m.dst.pixelBytes;
  for (int at = 0; at + m.values * m.sampleBytes <= step * height; at += 3) {
    Random random(mixSeed(settings().seed, m.name, at));
    random.fill(arena.begin(), 8192);
    random.fill(source.begin(), 8192);
    std::fill(mask.begin(), mask.end(), Byte{1});
    arena.copyToTwin(arena.begin(), arena.end());
    mask.copyToTwin(mask.begin(), mask.end());
    Call call;
    call.roi = {width, height};
    call.dst[0] = arena.begin() + 5;
    call.dstStep = call.srcStep = step;
    call.src[0] = m.inPlace ? call.dst[0] : source.begin();
    call.values = call.dst[0] + at;
    call.mask = mask.begin();
    call.maskStep = width;
    for (const Member::Choice& choice : m.choices)
      call.chosen.push_back({choice.name, random.pick(choice.values)});
    Call model = call;
    model.dst[0] = arena.twin(call.dst[0]);
    if (m.inPlace) model.src[0] = model.dst[0];
    model.values = arena.twin(call.values);
    model.mask = mask.twin(call.mask);
    const LumStatus status = m.run(call);
    ASSERT_EQ(status, m.model(model));
    ASSERT_EQ(arena.firstDifference(arena.begin(), arena.end()), nullptr)
        << m.name << ", values at byte " << at;
  }
}

bool hasChosenChannels(const Member& m) {
  return m.src.lastPixelBytes < m.src.pixelBytes || m.dst.lastPixelBytes < m.dst.pixelBytes;
}

void expectNothingAroundChosenChannels(const Member& m) {
  const CoreGuard guard;
  const auto page = static_cast<int>(Arena::pageBytes());
  Arena src(1), dst(1), other(16 * 4096);
  const bool srcChosen = m.src.lastPixelBytes < m.src.pixelBytes;
  const bool dstChosen = m.dst.lastPixelBytes < m.dst.pixelBytes;
  // Two rows that fill a page from edge to edge.
  const Operand& chosen = dstChosen ? m.dst : m.src;
  for (int width : {1, 2, 5, 7, 8, 15, 16, 17, 31, 32, 33, 48, 64, 100, 250}) {
    const int rowBytes = (width - 1) * chosen.pixelBytes + chosen.lastPixelBytes;
    const int step = page - rowBytes;
    const auto image = [&](bool isChosen, Arena& own) { return isChosen ? own.begin() : other.begin(); };
    Call call;
    call.roi = {width, 2};
    call.src[0] = image(srcChosen, src);
    call.dst[0] = image(dstChosen, dst);
    call.srcStep = srcChosen ? step : width * m.src.pixelBytes;
    call.dstStep = dstChosen ? step : width * m.dst.pixelBytes;
    const Byte value[4] = {1, 2, 3, 4};
    call.values = value;
    LumStatus status = 0;
    const auto fault = faultOf([&] { status = m.run(call); });
    ASSERT_FALSE(fault) << m.name << ", width " << width;
    ASSERT_EQ(status, lumStatusOk);
  }
}

}  // namespace test
