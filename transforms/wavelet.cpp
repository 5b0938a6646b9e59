// SPDX-License-Identifier: MIT
// One level of a wavelet transform and its inverse, in strips of 256 columns of the bands.
#include "lumi/wavelet.h"

#include <algorithm>
#include <climits>

#include "frame/check.hpp"
#include "frame/rows.hpp"
#include "frame/scratch.hpp"
#include "kernels/transforms/wavelet.hpp"

namespace lumi {
namespace {

using namespace check;

constexpr int kStrip = 256;
constexpr int64_t kFloat = sizeof(Lum32f);

// What an InitAlloc is told of a filter.
struct Filter {
  const Lum32f* taps;
  int length, anchor;
};

// Pixels that a filter reaches beyond those of its strip.
struct Extents {
  int64_t left, right;
};

// A filter as the forward transform has it.
struct ForwardRecord {
  Lum32f* taps;
  Lum32s length, anchor, left, right;

  void set(const Filter& filter, Lum32f* table) {
    *this = {table, filter.length, filter.anchor, filter.length - filter.anchor - 1, filter.anchor - 1};
    std::copy_n(filter.taps, filter.length, table);
  }
  bool isValid() const { return taps && anchor >= 0 && left >= 0 && right >= -1; }
  WeightList weights() const { return {taps, length}; }
};

// As the inverse has it: a sample meets every other tap. Samples 2j + parity take the taps of a phase with
// coefficients from j + start on, downwards.
struct Phase {
  Lum32f* taps;
  Lum32s count, start;
  WeightList weights() const { return {taps, count}; }
};
struct InverseRecord {
  Phase phases[2];
  Lum32s anchor, left, right;

  void set(const Filter& filter, Lum32f* table) {
    const int reach = filter.length - filter.anchor - 1;
    for (int parity = 0; parity < 2; ++parity) {
      const int first = (reach + parity) % 2, count = (filter.length - first + 1) / 2;
      phases[parity] = {table, count, (reach + parity - first) / 2};
      for (int i = 0; i < count; ++i) *table++ = filter.taps[first + 2 * i];
    }
    anchor = filter.anchor;
    left = filter.anchor / 2;
    right = (reach + 1) / 2;
  }
  bool isValid() const { return phases[0].taps && phases[1].taps && anchor >= 0 && left >= 0 && right >= -1; }
};

struct ForwardObject {
  static constexpr Lum32s kIdentifier = 46;
  Lum32s identifier;
  ForwardRecord low, high;

  Extents extents() const { return {std::max(low.left, high.left), std::max(low.right, high.right)}; }
  // Pixels of a row of scratch, and what two of them take.
  int64_t rowPixels() const { return extents().left + extents().right + 2 * kStrip; }
  int64_t scratch() const { return kFloat * rowPixels() + roundedUp(kFloat * rowPixels(), 32); }
};

struct InverseObject {
  static constexpr Lum32s kIdentifier = 47;
  Lum32s identifier;
  InverseRecord low, high;

  static int64_t rowBytes(const InverseRecord& filter) {
    return roundedUp(kFloat * (int64_t{filter.left} + filter.right + kStrip), 32);
  }
  int64_t scratch() const { return 2 * (rowBytes(low) + rowBytes(high)); }
};

template <typename Object>
LumStatus identity(const Object* object) {
  return object->identifier == Object::kIdentifier && object->low.isValid() && object->high.isValid()
             ? lumStatusOk
             : lumStatusBadContext;
}

constexpr LumStatus lengths(int a, int b) { return a < 2 || b < 2 ? lumStatusBadSize : lumStatusOk; }
constexpr LumStatus anchorInside(const Filter& filter) {
  return filter.anchor < 0 || filter.anchor >= filter.length ? lumStatusBadAnchor : lumStatusOk;
}

template <typename Object, typename Opaque>
LumStatus initAlloc(Opaque** spec, const Lum32f* lowTaps, int lowLength, int lowAnchor,
                    const Lum32f* highTaps, int highLength, int highAnchor) {
  const Filter low{lowTaps, lowLength, lowAnchor}, high{highTaps, highLength, highAnchor};
  if (LumStatus fault = firstFault(pointers(spec, lowTaps, highTaps), lengths(lowLength, highLength),
                                   anchorInside(low), anchorInside(high)))
    return fault;
  const int64_t taps = int64_t{lowLength} + highLength;
  const int64_t bytes = kObjectAlignment + static_cast<int64_t>(sizeof(Object)) + taps * kFloat;
  return allocateObject(spec, bytes, [=](Opaque* made) {
    Object* const object = objectAt<Object>(made);
    Tables tables(object + 1);
    object->low.set(low, tables.take<Lum32f>(lowLength));
    object->high.set(high, tables.take<Lum32f>(highLength));
    object->identifier = Object::kIdentifier;
    return 3 * object->scratch() > INT_MAX ? lumStatusNoMemory : lumStatusOk;
  });
}

template <typename Object, typename Opaque>
LumStatus freeSpec(Opaque* spec) {
  if (LumStatus fault = firstFault(pointers(spec), [=] { return identity(objectAt<Object>(spec)); }))
    return fault;
  return freeObject<Object>(spec, Object::kIdentifier);
}

template <typename Object, int channels, typename Opaque>
LumStatus bufferSize(const Opaque* spec, int* size) {
  const auto* const object = objectAt<const Object>(spec);
  if (LumStatus fault = firstFault(
          pointers(spec), [=] { return identity(object); }, pointers(size)))
    return fault;
  *size = static_cast<int>(channels * object->scratch());
  return lumStatusOk;
}

// Rows from row y on, `bytes` behind their first pixel. Addresses outside an image may wrap.
template <typename B>
Rows<B> shifted(Rows<B> rows, int64_t y, int64_t bytes) {
  const int64_t offset = y * rows.step + bytes;
  return {reinterpret_cast<B*>(reinterpret_cast<uintptr_t>(rows.first) + static_cast<uintptr_t>(offset)),
          rows.step};
}

// Every other row, or the rows in the other direction.
template <typename B>
Rows<B> stepped(Rows<B> rows, int factor) {
  return {rows.first, static_cast<ptrdiff_t>(static_cast<size_t>(rows.step) * static_cast<size_t>(factor))};
}

// A strip of the bands: its first column, and how many it has.
struct Strip {
  int64_t first;
  int columns;
};
template <typename Work>
void forStrips(int width, const Work& work) {
  for (int64_t first = 0; first < width; first += kStrip)
    work(Strip{first, static_cast<int>(std::min<int64_t>(kStrip, width - first))});
}

// A row of filtered pixels: those of even places, then those of odd ones, so that a filter that goes on by
// two finds its pixels side by side.
template <int channels>
class SplitRow {
 public:
  static constexpr int64_t kPixel = kFloat * channels;

  SplitRow(Byte* even, int64_t pixels) : halves_{even, even + (pixels + 1) / 2 * kPixel} {}

  // Filters the columns of so many pixels; rows begin at the first of them, at the filter's first tap.
  void filterColumns(const ForwardRecord& filter, SourceRows rows, int64_t pixels) const {
    constexpr int64_t kPiece = 192 / channels;  // even, so that each piece begins at an even place
    alignas(32) Byte piece[kPiece * kPixel];
    for (int64_t done = 0; done < pixels; done += kPiece) {
      const int64_t count = std::min(kPiece, pixels - done);
      const auto part = [&](int y) { return stepped(shifted(rows, y, done * kPixel), 2); };
      weighRowsInTurn(piece, static_cast<size_t>(count * channels), filter.weights(), part(0), part(1));
      splitPixels<channels>(piece, static_cast<size_t>(count), halves_[0] + done / 2 * kPixel,
                            halves_[1] + done / 2 * kPixel);
    }
  }

  // Filters the row: the first tap lies at this place for the first pixel, and two further for each other.
  void filter(const ForwardRecord& filter, int64_t place, Byte* dst, int pixels) const {
    const auto from = [&](int64_t at) { return SourceRows{halves_[at % 2] + at / 2 * kPixel, kPixel}; };
    weighRowsInTurn(dst, static_cast<size_t>(pixels) * channels, filter.weights(), from(place),
                    from(place + 1));
  }

 private:
  Byte* halves_[2];
};

template <int channels, typename Opaque>
LumStatus forward(const Lum32f* src, int srcStep, Lum32f* approx, int approxStep, Lum32f* detail1,
                  int detail1Step, Lum32f* detail2, int detail2Step, Lum32f* detail3, int detail3Step,
                  LumiSize size, const Opaque* spec, Lum8u* buffer) {
  const auto* const object = objectAt<const ForwardObject>(spec);
  if (LumStatus fault = firstFault(
          pointers(spec), [=] { return identity(object); },
          pointers(src, approx, detail1, detail2, detail3, buffer), check::size(size),
          steps(srcStep, approxStep, detail1Step, detail2Step, detail3Step)))
    return fault;
  constexpr int64_t kPixel = kFloat * channels;
  const Extents extents = object->extents();
  const SourceRows source = rows(src, srcStep);
  const ForwardRecord filters[] = {object->low, object->high};
  const TargetRows bands[2][2] = {{rows(approx, approxStep), rows(detail2, detail2Step)},
                                  {rows(detail1, detail1Step), rows(detail3, detail3Step)}};
  const SplitRow<channels> row(buffer, object->rowPixels());
  for (int64_t y = 0; y < size.height; ++y) {
    forStrips(size.width, [&](Strip strip) {
      const int64_t pixels = 2 * strip.columns + extents.left + extents.right;
      for (int vertical = 0; vertical < 2; ++vertical) {
        const ForwardRecord& filter = filters[vertical];
        row.filterColumns(
            filter, shifted(source, 2 * y - filter.left, (2 * strip.first - extents.left) * kPixel), pixels);
        for (int along = 0; along < 2; ++along) {
          const TargetRows band = shifted(bands[vertical][along], y, strip.first * kPixel);
          row.filter(filters[along], extents.left - filters[along].left, band.first, strip.columns);
        }
      }
    });
  }
  return lumStatusOk;
}

// A row that two bands have come to, from `left` pixels before the strip's first one on.
struct JoinedRow {
  Byte* first;
  const InverseRecord* filter;
};

// The samples of a row at even or odd places: the sum of what the rows come to by their filters.
template <int channels>
void joinRow(const JoinedRow (&rows)[2], int parity, int64_t column, Byte* dst, int64_t pixels) {
  constexpr int64_t kPixel = kFloat * channels;
  const auto weighted = [&](const JoinedRow& row) {
    const Phase& phase = row.filter->phases[parity];
    return WeightedRows{phase.weights(),
                        {row.first + (row.filter->left + column + phase.start) * kPixel, -kPixel}};
  };
  weighTwoSequences(dst, static_cast<size_t>(pixels * channels), weighted(rows[0]), weighted(rows[1]));
}

template <int channels, typename Opaque>
LumStatus inverse(const Lum32f* approx, int approxStep, const Lum32f* detail1, int detail1Step,
                  const Lum32f* detail2, int detail2Step, const Lum32f* detail3, int detail3Step,
                  LumiSize size, Lum32f* dst, int dstStep, const Opaque* spec, Lum8u* buffer) {
  const auto* const object = objectAt<const InverseObject>(spec);
  if (LumStatus fault = firstFault(
          pointers(spec), [=] { return identity(object); },
          pointers(approx, detail1, detail2, detail3, dst, buffer), check::size(size),
          steps(approxStep, detail1Step, detail2Step, detail3Step, dstStep)))
    return fault;
  constexpr int64_t kPixel = kFloat * channels, kPiece = 96 / channels;
  const InverseRecord filters[] = {object->low, object->high};
  const SourceRows bands[2][2] = {{rows(approx, approxStep), rows(detail1, detail1Step)},
                                  {rows(detail2, detail2Step), rows(detail3, detail3Step)}};
  const JoinedRow joined[] = {{buffer, &filters[0]},
                              {buffer + channels * InverseObject::rowBytes(object->low), &filters[1]}};
  for (int64_t y = 0; y < 2 * int64_t{size.height}; ++y) {
    forStrips(size.width, [&](Strip strip) {
      for (int along = 0; along < 2; ++along) {
        const InverseRecord& its = filters[along];
        const auto weighted = [&](int vertical) {
          const Phase& phase = filters[vertical].phases[y % 2];
          return WeightedRows{phase.weights(), stepped(shifted(bands[along][vertical], y / 2 + phase.start,
                                                               (strip.first - its.left) * kPixel),
                                                       -1)};
        };
        const int64_t pixels = strip.columns + int64_t{its.left} + its.right;
        weighTwoSequences(joined[along].first, static_cast<size_t>(pixels * channels), weighted(0),
                          weighted(1));
      }
      const TargetRows target = shifted(rows(dst, dstStep), y, 2 * strip.first * kPixel);
      for (int64_t done = 0; done < strip.columns; done += kPiece) {
        alignas(32) Byte even[kPiece * kPixel], odd[kPiece * kPixel];
        const int64_t pixels = std::min(kPiece, strip.columns - done);
        joinRow<channels>(joined, 0, done, even, pixels);
        joinRow<channels>(joined, 1, done, odd, pixels);
        mergePixels<channels>(even, odd, static_cast<size_t>(pixels), target.first + 2 * done * kPixel);
      }
    });
  }
  return lumStatusOk;
}

}  // namespace
}  // namespace lumi

using namespace lumi;
#include "bind/wavelet.inc"
