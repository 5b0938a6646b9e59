// SPDX-License-Identifier: MIT
// Results that come with marks: a function of a rule may tell which of its samples were bad, by bits that are
// set in their places, and the walk over rows tells whether there were any.
//   return Marked<Samples<T>>{root(x), isNegative(x)};
#pragma once

#include "kernels/simd/floats.hpp"

namespace lumi::simd {

template <typename V>
struct Marked {
  V results, marks;
};
template <size_t bytes>
struct MarkedBytes {
  typename Register<bytes>::Type results, marks;
};

template <typename V>
MarkedBytes<sizeof(V)> bytesOf(const Marked<V>& v) {
  return {bytesOf(v.results), bytesOf(v.marks)};
}

// Two vectors of sixteen bytes as a block.
inline Halves32 halves(Bytes16 low, Bytes16 high) { return {low, high}; }
inline Marked<Halves32> halves(const MarkedBytes<16>& low, const MarkedBytes<16>& high) {
  return {{low.results, high.results}, {low.marks, high.marks}};
}

inline MarkedBytes<32> joined(const MarkedBytes<32>& v) { return v; }
inline MarkedBytes<32> joined(const Marked<Halves32>& v) { return {joined(v.results), joined(v.marks)}; }

template <typename T>
Samples32<T> joined(Samples16<T> low, Samples16<T> high) {
  return {joined(low.v, high.v)};
}
template <typename T>
Marked<Samples32<T>> joined(const Marked<Samples16<T>>& low, const Marked<Samples16<T>>& high) {
  return {joined(low.results, high.results), joined(low.marks, high.marks)};
}

// Where the mask keeps what was there before, nothing is marked.
inline MarkedBytes<16> ifThenElse(Bytes16 mask, const MarkedBytes<16>& yes, Bytes16 no) {
  return {ifThenElse(mask, yes.results, no), bitAnd(mask, yes.marks)};
}
inline MarkedBytes<32> ifThenElse(Bytes32 mask, const MarkedBytes<32>& yes, Bytes32 no) {
  return {ifThenElse(mask, yes.results, no), ifThenElse(mask, yes.marks, _mm256_setzero_si256())};
}
inline Marked<Halves32> ifThenElse(Bytes32 mask, const Marked<Halves32>& yes, Bytes32 no) {
  return {ifThenElse(mask, yes.results, no), ifThenElse(mask, yes.marks, _mm256_setzero_si256())};
}

// What became of the marks of many results: for results without them nothing, and free of cost.
struct NoMarks {
  template <typename Results>
  static const Results& take(const Results& results) {
    return results;
  }
  static VectorBytes takeFirst(size_t, VectorBytes results) { return results; }
  static constexpr bool any() { return false; }
};

class Marks {
 public:
  template <typename MarkedResults>
  auto take(const MarkedResults& v) {
    add(v.marks);
    return v.results;
  }
  // The marks of the first bytes alone.
  VectorBytes takeFirst(size_t bytes, const MarkedBytes<kVectorBytes>& v) {
    alignas(32) Byte marks[kVectorBytes];
    storeVector(marks, v.marks);
    for (size_t i = bytes; i < kVectorBytes; ++i) marks[i] = 0;
    add(loadVector(marks));
    return v.results;
  }
  // The marks of all samples, one over the other.
  Bytes32 all() const { return seen_; }
  bool any() const { return _mm256_testz_si256(seen_, seen_) == 0; }

 private:
  void add(Bytes32 marks) { seen_ = asBytes(_mm256_or_ps(asFloats(seen_), asFloats(marks))); }
  void add(Bytes16 marks) { add(joined(marks, marks)); }
  void add(const Halves32& marks) { add(joined(marks)); }

  Bytes32 seen_ = _mm256_setzero_si256();
};

// What the results of a rule leave behind.
template <typename Results>
NoMarks marksOf(const Results&);
template <size_t bytes>
Marks marksOf(const MarkedBytes<bytes>&);
template <typename Rule>
using MarksOf = decltype(marksOf(std::declval<const Rule&>().vector(0)));

}  // namespace lumi::simd
