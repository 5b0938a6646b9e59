// SPDX-License-Identifier: MIT
// What the driver has to know of an export to run it over any images and compare it with its model. Nearly
// all of it follows from the export's registry row; a family's test adds the model.
#pragma once

#include <deque>
#include <functional>
#include <iterator>
#include <set>
#include <string>
#include <vector>

#include "lumi/types.h"
#include "model/access.hpp"
#include "support/contents.hpp"
#include "support/invoke.hpp"
#include "support/sample_type.hpp"
#include "support/settings.hpp"

namespace test {

using model::Byte;

constexpr int kMaxPlanes = 4, kMaxNumbers = 4;

// The arguments of one call, untyped. Images of one plane use the first pointer. In place, the last source is
// the destination.
struct Call {
  LumiSize roi{};
  Byte* src[kMaxPlanes]{};
  Byte* src2 = nullptr;
  Byte* dst[kMaxPlanes]{};
  int srcStep = 0, src2Step = 0, dstStep = 0;
  Byte* planes = nullptr;  // the array of plane pointers of a planar argument
  Byte* mask = nullptr;
  int maskStep = 0;
  const Byte* values = nullptr;
  int numbers[kMaxNumbers]{};  // bit offsets and plain numbers, in the order of the arguments
  Lum32f lower = 0, upper = 0;

  model::Image srcImage() const { return {src[0], srcStep}; }
  model::Image src2Image() const { return {src2, src2Step}; }
  model::Image dstImage() const { return {dst[0], dstStep}; }
  model::Image maskImage() const { return {mask, maskStep}; }
};

// An image argument, or as many as it has planes.
struct Operand {
  int planes = 0;          // 0: there is no such argument
  int pixelBytes = 0;      // from one pixel to the next; 0 in images of bits
  int lastPixelBytes = 0;  // how much of a row's last pixel belongs to the image
  bool bits = false;

  static Operand pixels(int sampleBytes, int channels) {
    return {1, sampleBytes * channels, sampleBytes * channels, false};
  }
  // The last pixel ends with the last chosen sample.
  static Operand chosenChannel(int sampleBytes, int channels) {
    return {1, sampleBytes * channels, sampleBytes, false};
  }
  static Operand planar(int sampleBytes, int planes) { return {planes, sampleBytes, sampleBytes, false}; }

  int rowBytes(int width, int bitOffset) const {
    return bits ? ((bitOffset & 7) + width + 7) / 8 : (width - 1) * pixelBytes + lastPixelBytes;
  }
  // From one row to the next where they touch one another.
  int tightStep(int width, int bitOffset) const {
    return bits ? rowBytes(width, bitOffset) : width * pixelBytes;
  }
};

enum class Aliasing {
  None,
  SameImage,     // a source and the destination may be the very same image
  OtherChannel,  // they may also be two channels of one image
};

struct Member {
  std::string name;
  std::vector<std::string> types, layouts;  // of the name, source first
  int sampleBytes = 0;                      // of the first sample type
  int components = 1;                       // 2 in complex samples
  model::Channels channels{};               // samples of a pixel, and how many of them are worked on
  Operand src, src2, dst;
  bool inPlace = false;
  Aliasing aliasing = Aliasing::None;
  bool masked = false, checksSteps = false;
  bool mayStream = true;          // whether large images are tried
  int64_t streamsFrom = 2 << 20;  // bytes moved from which on a path may depend on them, at the most
  bool floatResults = false;      // NaNs need not have equal bits, and rows of the destination are apart
  int values = 0;                 // samples of the value argument; one is passed by value
  std::vector<Contents> contents = {Contents::Bytes};  // of sources and values
  std::vector<std::vector<int>> numbers;               // what each number is chosen from
  std::vector<std::pair<Lum32f, Lum32f>> bounds;
  const ExportRow* row = nullptr;
  std::function<void(const Call&)> model;

  Outcome invoke(const Call& call, int misalignment = 0) const;
  // Expects that the rules of the calling convention are kept.
  LumStatus run(const Call& call) const;
  bool planar() const { return src.planes > 1 || dst.planes > 1; }
};

// All that follows from the row.
Member memberOf(const ExportRow& row);

// The members of an operation of this program's family, each given its model by describe(member, source
// sample, destination sample). A list of the sample types that there are makes less to compile; one that is
// not in it ends the program.
template <typename Describe, typename List = CommonTypes>
std::vector<Member> membersOf(const std::string& operation, Describe describe, List types = {}) {
  std::vector<Member> result;
  for (const ExportRow& row : exportRows()) {
    if (row.operation != operation || row.family != programFamily()) continue;
    result.push_back(memberOf(row));
    Member& member = result.back();
    const auto withBoth = [&](auto src) {
      withType(
          row.types.back(), [&](auto dst) { describe(member, src, dst); }, types);
    };
    withType(row.types.front(), withBoth, types);
  }
  return result;
}

// Registers the tests that every member has (tests/common), and the members as covered.
bool addModelTests(const std::vector<Member>& members);

// All members that have been added.
const std::deque<Member>& members();
const Member& memberNamed(const std::string& name);

// Registers exports that have tests of their own, which need no images.
bool addCovered(const std::vector<std::string>& names);

// What has been registered so far.
std::deque<Member>& addedMembers();
std::set<std::string>& coveredNames();

}  // namespace test
