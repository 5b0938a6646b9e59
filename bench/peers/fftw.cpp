// SPDX-License-Identifier: MIT
#include "bench/peers/fftw.hpp"

#include <fftw3.h>

#include <cstdint>
#include <cstring>
#include <memory>

namespace bench::fftw {
namespace {

using Plan = std::shared_ptr<std::remove_pointer_t<fftwf_plan>>;

float* samples(const View& view) { return reinterpret_cast<float*>(view.bytes); }
fftwf_complex* pairs(const View& view) { return reinterpret_cast<fftwf_complex*>(view.bytes); }

bool takes(const View& view, int channels) {
  return view.depth == Depth::f32 && view.channels == channels && view.step % view.pixelBytes() == 0 &&
         reinterpret_cast<std::uintptr_t>(view.bytes) % sizeof(float) == 0;
}

// An image as the library sees it: rows by columns, in rows of so many samples.
struct Shape {
  int size[2], embedded[2];
  explicit Shape(const View& view)
      : size{view.roi.height, view.roi.width}, embedded{view.roi.height, view.step / view.pixelBytes()} {}
};

// Measuring a plan overwrites its arrays, so what is an input gets its values back. What the plan needs
// besides the images lives as long as the peer.
template <typename Make>
Peer planned(const char* differs, const View& input, const Make& make, std::shared_ptr<float> kept = {}) {
  const auto size = static_cast<std::size_t>(input.step) * static_cast<std::size_t>(input.roi.height - 1) +
                    static_cast<std::size_t>(input.rowBytes());
  const std::vector<Lum8u> values(input.bytes, input.bytes + size);
  const Plan plan(make(), fftwf_destroy_plan);
  std::memcpy(input.bytes, values.data(), size);
  if (plan == nullptr) return {};
  Peer result = peer("fftw", [plan, kept] { fftwf_execute(plan.get()); });
  result.differs = differs;
  return result;
}
constexpr const char* kNoScale = "has no scale, and rounds otherwise";

// Half a spectrum: rows of pairs, up to the middle frequency.
struct HalfSpectrum {
  int embedded[2];
  std::size_t count;
  std::shared_ptr<float> values;
  explicit HalfSpectrum(LumiSize roi)
      : embedded{roi.height, roi.width / 2 + 1},
        count(static_cast<std::size_t>(embedded[0]) * static_cast<std::size_t>(embedded[1])),
        values(fftwf_alloc_real(2 * count), fftwf_free) {}
  fftwf_complex* pairs() const { return reinterpret_cast<fftwf_complex*>(values.get()); }
  void clear() const { std::memset(values.get(), 0, count * sizeof(fftwf_complex)); }
};

fftwf_r2r_kind kindOf(Direction direction) {
  return direction == Direction::forward ? FFTW_REDFT10 : FFTW_REDFT01;
}

}  // namespace

Library library() {
  const std::string version = fftwf_version;
  return {"fftw", version, version.find("avx2") != std::string::npos};
}

Peer complexImage(View src, View dst, Direction direction) {
  if (!takes(src, 2) || !takes(dst, 2)) return {};
  return planned(kNoScale, src, [&] {
    const Shape from(src), to(dst);
    return fftwf_plan_many_dft(2, from.size, 1, pairs(src), from.embedded, 1, 0, pairs(dst), to.embedded, 1,
                               0, direction == Direction::forward ? FFTW_FORWARD : FFTW_BACKWARD,
                               FFTW_MEASURE | FFTW_PRESERVE_INPUT);
  });
}

Peer realForward(View src) {
  if (!takes(src, 1)) return {};
  const HalfSpectrum spectrum(src.roi);
  const auto make = [&] {
    const Shape from(src);
    return fftwf_plan_many_dft_r2c(2, from.size, 1, samples(src), from.embedded, 1, 0, spectrum.pairs(),
                                   spectrum.embedded, 1, 0, FFTW_MEASURE | FFTW_PRESERVE_INPUT);
  };
  return planned("stores its spectrum in memory of its own", src, make, spectrum.values);
}

// This transform overwrites its source, so the source is zero, which any number of runs leaves as it is.
Peer realInverse(View dst) {
  if (!takes(dst, 1)) return {};
  const HalfSpectrum spectrum(dst.roi);
  const auto make = [&] {
    const Shape to(dst);
    const fftwf_plan plan = fftwf_plan_many_dft_c2r(2, to.size, 1, spectrum.pairs(), spectrum.embedded, 1, 0,
                                                    samples(dst), to.embedded, 1, 0, FFTW_MEASURE);
    spectrum.clear();
    return plan;
  };
  return planned("transforms a spectrum of its own", dst, make, spectrum.values);
}

Peer cosine(View src, View dst, Direction direction) {
  if (!takes(src, 1) || !takes(dst, 1)) return {};
  return planned(kNoScale, src, [&] {
    const Shape from(src), to(dst);
    const fftwf_r2r_kind kinds[] = {kindOf(direction), kindOf(direction)};
    return fftwf_plan_many_r2r(2, from.size, 1, samples(src), from.embedded, 1, 0, samples(dst), to.embedded,
                               1, 0, kinds, FFTW_MEASURE | FFTW_PRESERVE_INPUT);
  });
}

Peer cosine8x8(View src, View dst, Direction direction) {
  constexpr int kSize[] = {8, 8}, kBlock = 64;
  if (!takes(src, 1) || !takes(dst, 1) || !src.isTight() || !dst.isTight()) return {};
  return planned(kNoScale, src, [&] {
    const fftwf_r2r_kind kinds[] = {kindOf(direction), kindOf(direction)};
    const int blocks = src.roi.width * src.roi.height / kBlock;
    return fftwf_plan_many_r2r(2, kSize, blocks, samples(src), nullptr, 1, kBlock, samples(dst), nullptr, 1,
                               kBlock, kinds, FFTW_MEASURE | FFTW_PRESERVE_INPUT);
  });
}

}  // namespace bench::fftw
