// SPDX-License-Identifier: MIT
// Magnitudes and phases of packed spectra. Half of the numbers of a spectrum are conjugates of others: what
// is made of a number is stored in both places.
#include "lumi/polar_pack.h"

#include <cstring>
#include <type_traits>

#include "frame/check.hpp"
#include "frame/layout.hpp"
#include "frame/rows.hpp"
#include "frame/scratch.hpp"
#include "kernels/data/copy.hpp"
#include "kernels/data/mirror.hpp"
#include "kernels/transforms/magnitude.hpp"
#include "kernels/transforms/phase.hpp"
#include "kernels/transforms/polar_pack.hpp"

namespace lumi {
namespace {

using namespace check;

template <typename T>
struct Magnitudes {
  static constexpr bool kTurns = false;  // whether conjugates have other results
  int scaleFactor;

  void operator()(const Byte* numbers, Byte* results, size_t count) const {
    magnitudeRows<T>({numbers, 0}, {results, 0}, {count, 1}, scaleFactor);
  }
};
template <typename T>
struct Phases {
  static constexpr bool kTurns = true;
  int scaleFactor;

  void operator()(const Byte* numbers, Byte* results, size_t count) const {
    phaseRows<T>({numbers, 0}, {results, 0}, {count, 1}, scaleFactor);
  }
};

// Complex numbers, those with lowered imaginary parts, and what is made of them and of their conjugates: so
// many samples of each.
class Room {
 public:
  static constexpr int64_t bytes(int64_t samples, int sample) {
    return 6 * samples * sample + 4 * static_cast<int64_t>(kPolarPadding);
  }
  Room(Byte* first, int64_t samples, int sample) {
    const auto length = static_cast<size_t>(samples) * static_cast<size_t>(sample);
    numbers = first;
    lowered = numbers + 2 * length + kPolarPadding;
    results = lowered + 2 * length + kPolarPadding;
    conjugates = results + length + kPolarPadding;
  }

  Byte *numbers, *lowered, *results, *conjugates;
};

template <typename T, int channels, template <typename> class Function>
class PolarPack {
 public:
  static constexpr int kSample = sizeof(T), kPixel = kSample * channels;

  static int64_t scratchBytes(LumiSize roi) {
    return Room::bytes(rowSamples(roi), kSample) + Room::bytes(kBatch * channels, kSample);
  }

  PolarPack(SourceRows src, TargetRows dst, LumiSize roi, int scaleFactor, Byte* scratch)
      : src_(src),
        dst_(dst),
        roi_(roi),
        function_{scaleFactor},
        pairs_(static_cast<size_t>(roi.width - 1) / 2),
        row_(scratch, rowSamples(roi), kSample),
        batch_(scratch + Room::bytes(rowSamples(roi), kSample), kBatch * channels, kSample) {}

  void run() {
    addToBatch(0, nullptr);
    for (int y = 0; y < roi_.height; ++y) {
      if (pairs_ > 0) row(y);
      if (y % 2 == 0 && y > 0) addToBatch(y - 1, src_.row(y));
    }
    if (roi_.height % 2 == 0) addToBatch(roi_.height - 1, nullptr);
    storeBatch();
  }

 private:
  static constexpr int kBatch = 64;  // numbers of the real columns that are done at once
  static constexpr bool kTurns = Function<T>::kTurns;

  static int64_t rowSamples(LumiSize roi) { return (int64_t{roi.width} - 1) / 2 * channels; }

  void row(int y) {
    const size_t count = pairs_ * channels;
    const Byte* pairs = src_.row(y) + kPixel;
    Byte* const here = dst_.row(y) + kPixel;
    Byte* const there =
        dst_.row(y == 0 ? 0 : roi_.height - y) + (static_cast<size_t>(roi_.width) - pairs_) * kPixel;
    if constexpr (channels > 1 || kTurns) {
      joinParts<kSample, channels>(pairs, row_.numbers, pairs_);
      pairs = row_.numbers;
    }
    if constexpr (kTurns) {
      makeBoth(row_, count);
      copyRow(row_.results, here, count * kSample);
      reverse(row_.conjugates, there);
    } else {
      function_(pairs, here, count);
      reverse(here, there);
    }
  }
  void makeBoth(const Room& room, size_t count) const {
    const Byte* numbers = room.numbers;
    if constexpr (std::is_integral_v<T>) {
      lowerNumbers<T>(numbers, room.lowered, count);
      numbers = room.lowered;
    }
    function_(numbers, room.results, count);
    bothPhases<T>(room.results, room.numbers, room.results, room.conjugates, count);
  }
  void reverse(const Byte* from, Byte* to) const {
    reverseRows<kPixel, kPixel>({from, 0}, {to, 0}, {pairs_, 1}, false);
  }

  size_t columns() const { return roi_.width % 2 == 0 ? 2 : 1; }
  size_t lastColumn() const { return static_cast<size_t>(roi_.width - 1) * kPixel; }

  // The numbers of the real columns whose real parts are in a row; real ones without a row of imaginary
  // parts.
  void addToBatch(int realRow, const Byte* imaginary) {
    const Byte* const real = src_.row(realRow);
    for (size_t i = 0; i < columns(); ++i, ++inBatch_) {
      const size_t column = i * lastColumn();
      for (size_t c = 0; c < channels; ++c) {
        Byte* const number = batch_.numbers + (inBatch_ * channels + c) * 2 * kSample;
        std::memcpy(number, real + column + c * kSample, kSample);
        if (imaginary)
          std::memcpy(number + kSample, imaginary + column + c * kSample, kSample);
        else
          std::memset(number + kSample, 0, kSample);
      }
    }
    if (inBatch_ == kBatch) storeBatch();
  }

  void storeBatch() {
    if (inBatch_ == 0) return;
    const size_t count = inBatch_ * channels;
    if constexpr (kTurns)
      makeBoth(batch_, count);
    else
      function_(batch_.numbers, batch_.results, count);
    const Byte* const conjugates = kTurns ? batch_.conjugates : batch_.results;
    for (size_t k = 0; k < inBatch_; ++k) {
      // The last column of the packed spectrum is the middle one here.
      const size_t column = k % columns() * (static_cast<size_t>(roi_.width) / 2 * kPixel);
      std::memcpy(dst_.row(batchRow_) + column, batch_.results + k * kPixel, kPixel);
      if (batchRow_ > 0 && batchRow_ < roi_.height - batchRow_)
        std::memcpy(dst_.row(roi_.height - batchRow_) + column, conjugates + k * kPixel, kPixel);
      if ((k + 1) % columns() == 0) ++batchRow_;
    }
    inBatch_ = 0;
  }

  SourceRows src_;
  TargetRows dst_;
  LumiSize roi_;
  Function<T> function_;
  size_t pairs_;  // of a row
  Room row_, batch_;
  size_t inBatch_ = 0;
  int batchRow_ = 0;  // of the complex spectrum, of the first number of the batch
};

template <typename T, typename Layout, template <typename> class Function>
LumStatus polar(const T* src, int srcStep, T* dst, int dstStep, LumiSize roi, int scaleFactor) {
  if (LumStatus fault = firstFault(pointers(src, dst), size(roi), steps(srcStep, dstStep))) return fault;
  using Pack = PolarPack<T, Layout::kStored, Function>;
  const Scratch scratch(Pack::scratchBytes(roi));
  if (!scratch) return lumStatusNullPointer;
  Pack(rows(src, srcStep), rows(dst, dstStep), roi, scaleFactor, static_cast<Byte*>(scratch.data())).run();
  return lumStatusOk;
}

template <typename T, typename Layout>
LumStatus magnitude(const T* src, int srcStep, T* dst, int dstStep, LumiSize roi, int scaleFactor = 0) {
  return polar<T, Layout, Magnitudes>(src, srcStep, dst, dstStep, roi, scaleFactor);
}

template <typename T, typename Layout>
LumStatus phase(const T* src, int srcStep, T* dst, int dstStep, LumiSize roi, int scaleFactor = 0) {
  return polar<T, Layout, Phases>(src, srcStep, dst, dstStep, roi, scaleFactor);
}

}  // namespace
}  // namespace lumi

using namespace lumi;
#include "bind/polar_pack.inc"
