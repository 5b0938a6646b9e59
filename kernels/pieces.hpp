// SPDX-License-Identifier: MIT
// Pointwise rows that are shorter than a vector, or that overlap a source: one loop for all operations, which
// makes a few samples at a time in copies of theirs.
#pragma once

#include "kernels/rows.hpp"
#include "kernels/simd/bytes.hpp"

namespace lumi {

// A source image: its first row, bytes for each sample of the destination, and whether rows that share memory
// with the destination's are done sample by sample.
struct PieceSource {
  SourceRows rows;
  size_t sampleBytes;
  bool mayOverlap;
};

// An operation without its type.
struct Pieces {
  size_t sampleBytes;  // of the destination
  const PieceSource* sources;
  int count;
  void* work;
  // A vector of results of the samples from byte `at` of the destination on, which lie where pieces point; so
  // many bytes of it are wanted.
  void (*make)(void* work, const uint8_t* const* pieces, size_t at, size_t bytes, uint8_t* results);
};

// The most that a rule has.
inline constexpr int kMostPieceSources = 5;
// Of a wide vector's samples of a byte, each made from one of eight.
inline constexpr size_t kPieceRoom = simd::kVectorBytes * 8;

// Whether every row of the destination, of so many bytes, shares memory only with a source row that is the
// same row. Other rows do not count: each is finished before the next begins.
bool areApartInRange(SourceRows src, TargetRows dst, size_t bytes, int rows);

inline bool areApart(SourceRows src, TargetRows dst, size_t bytes, int rows) {
  // Where rows lie equally far apart in both images, the first ones tell for all.
  const auto from = reinterpret_cast<uintptr_t>(src.first), to = reinterpret_cast<uintptr_t>(dst.first);
  const uintptr_t distance = from < to ? to - from : from - to;
  const bool apart = distance == 0 || distance >= bytes;
  return (apart && (rows == 1 || src.step == dst.step)) || areApartInRange(src, dst, bytes, rows);
}

void runInPieces(TargetRows dst, Extent samples, const Pieces& pieces);

}  // namespace lumi
