// SPDX-License-Identifier: MIT
#include "kernels/pieces.hpp"

#include <algorithm>

namespace lumi {
namespace {

using namespace simd;

// Few bytes, by their count's bits.
void copyFew(Byte* to, const Byte* from, size_t bytes) {
  for (; bytes >= 16; bytes -= 16, to += 16, from += 16) store16(to, load16(from));
  const auto piece = [&](auto n) {
    if (bytes & n) move<n>(to, from), to += n, from += n;
  };
  piece(std::integral_constant<size_t, 8>());
  piece(std::integral_constant<size_t, 4>());
  piece(std::integral_constant<size_t, 2>());
  piece(std::integral_constant<size_t, 1>());
}

// How far from a row a source begins that shares some of its bytes, but does not begin with them; `bytes` if
// none does.
size_t distanceTo(const Byte* src, const Byte* dst, size_t bytes) {
  const auto from = reinterpret_cast<uintptr_t>(src), to = reinterpret_cast<uintptr_t>(dst);
  if (from == to) return bytes;
  return std::min<size_t>(bytes, from < to ? to - from : from - to);
}

class PieceLoop {
 public:
  explicit PieceLoop(const Pieces& pieces) : pieces_(pieces) {
    for (int i = 0; i < kMostPieceSources; ++i) at_[i] = rooms_[i];
  }

  // Strictly in order, `step` samples at a time.
  void run(Byte* dst, size_t samples, size_t step, int y) {
    for (size_t done = 0; done < samples; done += step) {
      const size_t now = std::min(step, samples - done), at = done * pieces_.sampleBytes;
      for (int i = 0; i < pieces_.count; ++i) {
        const size_t sample = pieces_.sources[i].sampleBytes;
        copyFew(rooms_[i], pieces_.sources[i].rows.row(y) + done * sample, now * sample);
      }
      alignas(32) Byte results[kVectorBytes];
      pieces_.make(pieces_.work, at_, at, now * pieces_.sampleBytes, results);
      copyFew(dst + at, results, now * pieces_.sampleBytes);
    }
  }

 private:
  const Pieces& pieces_;
  // What lies behind few samples is computed with as well.
  alignas(32) Byte rooms_[kMostPieceSources][kPieceRoom] = {};
  const Byte* at_[kMostPieceSources];
};

}  // namespace

bool areApartInRange(SourceRows source, TargetRows dst, size_t bytes, int rows) {
  const auto reach = [=](uintptr_t first, ptrdiff_t step) {
    const auto last = first + static_cast<uintptr_t>(rows - 1) * static_cast<uintptr_t>(step);
    return std::pair(std::min(first, last), std::max(first, last));
  };
  const auto src = reach(reinterpret_cast<uintptr_t>(source.first), source.step),
             to = reach(reinterpret_cast<uintptr_t>(dst.first), dst.step);
  return src.first > to.second ? src.first - to.second >= bytes
                               : to.first > src.second && to.first - src.second >= bytes;
}

void runInPieces(TargetRows dst, Extent samples, const Pieces& pieces) {
  PieceLoop loop(pieces);
  const size_t bytes = samples.length * pieces.sampleBytes;
  for (int y = 0; y < samples.rows; ++y) {
    Byte* const row = dst.row(y);
    size_t distance = bytes;
    for (int i = 0; i < pieces.count; ++i)
      if (pieces.sources[i].mayOverlap)
        distance = std::min(distance, distanceTo(pieces.sources[i].rows.row(y), row, bytes));
    // No piece reaches what it changes itself.
    const size_t most = std::min(distance, kVectorBytes) / pieces.sampleBytes;
    loop.run(row, samples.length, std::max<size_t>(most, 1), y);
  }
}

}  // namespace lumi
