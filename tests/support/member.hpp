// SPDX-License-Identifier: MIT
// What the driver has to know of an export to run it over any images and compare it with its model.
#pragma once

#include <functional>
#include <string>
#include <vector>

#include "lumi/types.h"
#include "model/access.hpp"

namespace test {

using model::Byte;

constexpr int kMaxPlanes = 4;

// The arguments of one call, untyped. Images of one plane use the first pointer.
struct Call {
  LumiSize roi{};
  Byte* src[kMaxPlanes]{};
  Byte* dst[kMaxPlanes]{};
  int srcStep = 0, dstStep = 0;
  Byte* planes = nullptr;  // the array of plane pointers of a planar argument
  Byte* mask = nullptr;
  int maskStep = 0;
  const Byte* values = nullptr;
  int flags = 0;

  model::Image srcImage() const { return {src[0], srcStep}; }
  model::Image dstImage() const { return {dst[0], dstStep}; }
  model::Image maskImage() const { return {mask, maskStep}; }
};

// An image argument, or as many as it has planes.
struct Operand {
  int planes = 0;          // 0: there is no such argument
  int pixelBytes = 0;      // from one pixel to the next
  int lastPixelBytes = 0;  // how much of a row's last pixel belongs to the image

  // The last pixel ends with the last chosen sample.
  static Operand pixels(int sampleBytes, int channels) {
    return {1, sampleBytes * channels, sampleBytes * channels};
  }
  static Operand chosenChannel(int sampleBytes, int channels) {
    return {1, sampleBytes * channels, sampleBytes};
  }
  static Operand planar(int sampleBytes, int planes) { return {planes, sampleBytes, sampleBytes}; }
};

enum class Aliasing {
  None,
  SameImage,     // source and destination may be the very same image
  OtherChannel,  // they may also be two channels of one image
};

struct Member {
  std::string name;
  int sampleBytes = 0;
  Operand src, dst;
  Aliasing aliasing = Aliasing::None;
  bool masked = false;
  int values = 0;  // samples of the value argument; one is passed by value
  int flagBits = 0;
  std::function<LumStatus(const Call&)> run;
  std::function<void(const Call&)> model;

  bool planar() const { return src.planes > 1 || dst.planes > 1; }
};

// An export's name with the export itself.
#define LUMI_NAMED(function) #function, function

// Calls through the real signatures.
namespace invoke {

using Run = std::function<LumStatus(const Call&)>;

template <typename T>
T* as(Byte* at) {
  return reinterpret_cast<T*>(at);
}
template <typename T>
const T* as(const Byte* at) {
  return reinterpret_cast<const T*>(at);
}

template <typename T>
Run of(LumStatus (*f)(T, T*, int, LumiSize)) {
  return [f](const Call& c) { return f(model::load<T>(c.values, 0), as<T>(c.dst[0]), c.dstStep, c.roi); };
}
template <typename T>
Run of(LumStatus (*f)(const T*, T*, int, LumiSize)) {
  return [f](const Call& c) { return f(as<T>(c.values), as<T>(c.dst[0]), c.dstStep, c.roi); };
}
template <typename T>
Run of(LumStatus (*f)(T, T*, int, LumiSize, const Lum8u*, int)) {
  return [f](const Call& c) {
    return f(model::load<T>(c.values, 0), as<T>(c.dst[0]), c.dstStep, c.roi, c.mask, c.maskStep);
  };
}
template <typename T>
Run of(LumStatus (*f)(const T*, T*, int, LumiSize, const Lum8u*, int)) {
  return [f](const Call& c) {
    return f(as<T>(c.values), as<T>(c.dst[0]), c.dstStep, c.roi, c.mask, c.maskStep);
  };
}
template <typename T>
Run of(LumStatus (*f)(const T*, int, T*, int, LumiSize)) {
  return [f](const Call& c) { return f(as<T>(c.src[0]), c.srcStep, as<T>(c.dst[0]), c.dstStep, c.roi); };
}
template <typename T>
Run of(LumStatus (*f)(const T*, int, T*, int, LumiSize, const Lum8u*, int)) {
  return [f](const Call& c) {
    return f(as<T>(c.src[0]), c.srcStep, as<T>(c.dst[0]), c.dstStep, c.roi, c.mask, c.maskStep);
  };
}
template <typename T>
Run of(LumStatus (*f)(const T*, int, T*, int, LumiSize, int)) {
  return [f](const Call& c) {
    return f(as<T>(c.src[0]), c.srcStep, as<T>(c.dst[0]), c.dstStep, c.roi, c.flags);
  };
}
template <typename T>
Run of(LumStatus (*f)(const T*, int, T* const*, int, LumiSize)) {
  return [f](const Call& c) { return f(as<T>(c.src[0]), c.srcStep, as<T*>(c.planes), c.dstStep, c.roi); };
}
template <typename T>
Run of(LumStatus (*f)(const T* const*, int, T*, int, LumiSize)) {
  return
      [f](const Call& c) { return f(as<const T*>(c.planes), c.srcStep, as<T>(c.dst[0]), c.dstStep, c.roi); };
}

}  // namespace invoke

// Registers a test of each member against its model, and the members as covered.
bool addModelTests(std::vector<Member> members);

// All members that have been added.
const std::vector<Member>& members();

// Registers exports that have tests of their own, which need no images.
bool addCovered(std::vector<std::string> names);

}  // namespace test
