// SPDX-License-Identifier: MIT
// Runs of a resize over images that are as large as promised and end at inaccessible pages.
#pragma once

#include <xmmintrin.h>

#include <algorithm>
#include <cstdlib>
#include <cstring>
#include <string>

#include "geometry/resize_calls.hpp"
#include "model/geometry/resize.hpp"
#include "support/member.hpp"
#include "support/random.hpp"

namespace test::resize {

// The vector unit's control register as threads begin with it: to nearest, denormals as they are.
inline constexpr unsigned kDefaultControl = 0x1F80;

class ScopedControl {
 public:
  explicit ScopedControl(unsigned control) : before_(_mm_getcsr()) { _mm_setcsr(control); }
  ~ScopedControl() { _mm_setcsr(before_); }
  ScopedControl(const ScopedControl&) = delete;
  ScopedControl& operator=(const ScopedControl&) = delete;

 private:
  unsigned before_;
};

using model::resize::Tile;

// The source columns or rows that a run may read.
struct Reach {
  int first, end;
};

inline Reach reachOf(const model::resize::Axis& axis, int offset, int count, bool linear, bool lowInMemory,
                     bool highInMemory) {
  const int first = axis.start(offset), last = offset + count - 1;
  if (!linear) return {first, axis.nearest(last) + 1};
  const int low = first - 1, high = axis.index(last) + 2;
  return {lowInMemory ? low : std::max(low, 0), highInMemory ? high : std::min(high, axis.src)};
}

// Images, scratch and a call over them.
class Bench {
 public:
  explicit Bench(size_t imageBytes) : src_(imageBytes), dst_(imageBytes), scratch_(imageBytes) {}

  struct Options {
    bool flushAtEnd = true;  // the source; else it begins where its memory does
    bool upsideDownSrc = false, upsideDownDst = false;
    int srcPadding = 0, dstPadding = 0;  // samples between rows
    int dstShift = 0, scratchShift = 0;  // bytes to the end of the memory
    bool floatLimits = false;
    unsigned control = kDefaultControl;  // of the vector unit, during the library's calls
    const void* reference = nullptr;     // a plan whose results count instead of the model's
  };

  // Empty if the run did what the model does, and nothing else.
  std::string run(const std::string& kind, const std::string& type, const Tile& tile, const void* plan,
                  const Options& options, Random& random) {
    const bool linear = kind == "Linear";
    const bool all = linear && ((tile.border & 7) == 6 || (tile.border & 240) == 240);
    const auto inMemory = [&](int flag) { return all || (tile.border & flag) != 0; };
    const Reach columns =
        reachOf(tile.horizontal(), tile.offset.x, tile.width(), linear, inMemory(64), inMemory(128));
    const Reach rows =
        reachOf(tile.vertical(), tile.offset.y, tile.height(), linear, inMemory(16), inMemory(32));
    const int sample = sampleBytes(type), pixel = sample * tile.channels;

    const int srcRow = (columns.end - columns.first) * pixel, srcRows = rows.end - rows.first;
    const model::Image src = place(src_, srcRow, srcRows, options.srcPadding * sample,
                                   options.flushAtEnd ? 0 : -1, options.upsideDownSrc);
    const Watched watchedSrc(src_, src, srcRow, srcRows);
    fill(watchedSrc, type, options.floatLimits, random);
    const model::Image atTile{src.row(tile.vertical().start(tile.offset.y) - rows.first) +
                                  (tile.horizontal().start(tile.offset.x) - columns.first) * pixel,
                              src.step};
    src_.copyToTwin(watchedSrc.low, watchedSrc.high);

    const model::Image dst = place(dst_, tile.width() * pixel, tile.height(), options.dstPadding * sample,
                                   options.dstShift, options.upsideDownDst);
    const Watched watchedDst(dst_, dst, tile.width() * pixel, tile.height());
    random.fill(watchedDst.low, watchedDst.bytes());
    dst_.copyToTwin(watchedDst.low, watchedDst.high);

    Lum32s scratchBytes = 0;
    const ScopedControl control(options.control);
    const LumStatus known = getBufferSize(type, plan, tile.size, tile.channels, &scratchBytes).run();
    Byte* const scratch = scratch_.end() - scratchBytes - options.scratchShift;
    if (scratch < scratch_.begin()) return "the scratch's memory is too small";
    const Watched watchedScratch(scratch_, {scratch, 0}, scratchBytes, 1);
    random.fill(watchedScratch.low, watchedScratch.bytes());
    scratch_.copyToTwin(watchedScratch.low, watchedScratch.high);

    NamedCall call = apply(kind, type, tile.channels, tile.offset, tile.size, plan, scratch, tile.border);
    call.image("src", atTile.first, atTile.step).image("dst", dst.first, dst.step);
    const LumStatus status = call.run();
    if (status != known) return "status " + std::to_string(status);

    const model::Image expected{dst_.twin(dst.first), dst.step};
    if (options.reference) {
      call.pointer("object", options.reference).image("dst", expected.first, expected.step).run();
    } else {
      const ScopedControl toNearest(kDefaultControl);
      applyModel(linear, type, tile, atTile, expected);
    }
    if (const Byte* at = dst_.firstDifference(watchedDst.low, watchedDst.high))
      return whereIn(dst, at, pixel);
    if (src_.firstDifference(watchedSrc.low, watchedSrc.high)) return "the source was written";
    if (scratch_.firstDifference(watchedScratch.low, scratch) ||
        scratch_.firstDifference(scratch + scratchBytes, watchedScratch.high))
      return "memory beside the scratch was written";
    return {};
  }

 private:
  // An image at a distance from the end of its memory; negative: at its start.
  static model::Image place(const Arena& arena, int rowBytes, int rows, int padding, int fromEnd,
                            bool upsideDown) {
    const int step = rowBytes + padding;
    const ptrdiff_t size = static_cast<ptrdiff_t>(rows - 1) * step + rowBytes;
    Byte* const first = fromEnd < 0 ? arena.begin() : arena.end() - fromEnd - size;
    if (!arena.holds(first)) std::abort();
    return upsideDown ? model::Image{first + static_cast<ptrdiff_t>(rows - 1) * step, -step}
                      : model::Image{first, step};
  }

  // An image and what lies around it.
  struct Watched {
    Watched(const Arena& arena, model::Image image, int rowBytes, int rows) {
      constexpr ptrdiff_t kAround = 256;
      Byte* const last = image.row(rows - 1);
      Byte *const first = std::min(image.first, last), *const end = std::max(image.first, last) + rowBytes;
      low = first - std::min<ptrdiff_t>(kAround, first - arena.begin());
      high = end + std::min<ptrdiff_t>(kAround, arena.end() - end);
    }
    size_t bytes() const { return static_cast<size_t>(high - low); }

    Byte *low, *high;
  };

  static void fill(const Watched& memory, const std::string& type, bool limits, Random& random) {
    const auto fillWith = [&](auto sample) {
      using T = decltype(sample);
      for (size_t i = 0; i < memory.bytes() / sizeof(T); ++i) {
        const T value = static_cast<T>(random.between(-100000, 100000)) / T(random.between(1, 777));
        std::memcpy(memory.high - (i + 1) * sizeof(T), &value, sizeof(T));
      }
    };
    if (type == "32f") return fillWith(0.0f);
    if (type == "64f") return fillWith(0.0);
    random.fill(memory.low, memory.bytes());
    if (limits)  // samples at both ends of the type
      for (size_t i = 0; i < memory.bytes(); ++i) memory.low[i] = random.oneIn(2) ? 0 : 255;
  }

  static void applyModel(bool linear, const std::string& type, const Tile& tile, model::Image src,
                         model::Image dst) {
    const auto apply = [&](auto sample) {
      using T = decltype(sample);
      linear ? model::resize::linear<T>(tile, src, dst) : model::resize::nearest<T>(tile, src, dst);
    };
    if (type == "64f")
      apply(Lum64f());
    else
      withType(type, apply);
  }

  static std::string whereIn(const model::Image& dst, const Byte* at, int pixel) {
    const ptrdiff_t distance = at - dst.first;
    return "byte " + std::to_string(distance) + " from the first one differs; step " +
           std::to_string(dst.step) + ", pixels of " + std::to_string(pixel);
  }

  Arena src_, dst_, scratch_;
};

inline std::string describe(const std::string& kind, const std::string& type, const Tile& t) {
  const auto pair = [](int a, int b) { return " " + std::to_string(a) + "x" + std::to_string(b); };
  return runName(kind, type, t.channels) + pair(t.src.width, t.src.height) + " to" +
         pair(t.dst.width, t.dst.height) + ", tile at" + pair(t.offset.x, t.offset.y) + " of" +
         pair(t.size.width, t.size.height) + ", border " + std::to_string(t.border);
}

}  // namespace test::resize
