// SPDX-License-Identifier: MIT
// What the driver has to know of an export to run it over any images and compare it with its model. Nearly
// all of it follows from the export's registry row; a family's test adds the model.
#pragma once

#include <deque>
#include <functional>
#include <iterator>
#include <memory>
#include <optional>
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

constexpr int kMaxPlanes = 4, kMaxNumbers = 8;

// The arguments of one call, untyped. Images of one plane use the first pointer. In place, the last source is
// the destination.
struct Call {
  // Memory that is no image: results, and arrays of values. Of any alignment.
  struct Block {
    const char* name;
    Byte* data;
    int count;
    std::shared_ptr<std::vector<double>> tolerances;  // of each result; 0 asks for equal bits

    // For models of float results whose last bits are not told: what is right, and how far the result may lie
    // from it.
    template <typename T>
    void storeWithin(int i, T right, double tolerance) const {
      model::store<T>(data, i, right);
      tolerances->at(static_cast<size_t>(i)) = tolerance;
    }
  };
  // A number, a size, a point or a rectangle that the member chose by its name.
  struct Chosen {
    const char* name;
    Value value;
  };

  LumiSize roi{};
  Byte* src[kMaxPlanes]{};
  Byte* src2 = nullptr;
  Byte* dst[kMaxPlanes]{};
  int srcStep = 0, src2Step = 0, dstStep = 0;
  Byte* planes = nullptr;  // the array of plane pointers of a planar argument
  Byte* mask = nullptr;
  int maskStep = 0;
  const Byte* values = nullptr;
  int numbers[kMaxNumbers]{};  // bit offsets and plain numbers that are not chosen by name, in their order
  Lum32f lower = 0, upper = 0;
  std::vector<Block> blocks;
  std::vector<Chosen> chosen;

  model::Image srcImage() const { return {src[0], srcStep}; }
  model::Image src2Image() const { return {src2, src2Step}; }
  model::Image dstImage() const { return {dst[0], dstStep}; }
  model::Image maskImage() const { return {mask, maskStep}; }

  const Block& block(const std::string& name) const;
  const Value& value(const std::string& name) const;
  double number(const std::string& name) const { return value(name).numbers[0]; }
  LumiPoint point(const std::string& name) const;
  LumiSize size(const std::string& name) const;
  LumiRect rect(const std::string& name) const;
};

// What an operation is to do. A model may return the status, a warning, where that is not always lumStatusOk.
class Model {
 public:
  Model() = default;
  template <typename F, typename = std::enable_if_t<!std::is_same_v<std::decay_t<F>, Model>>>
  Model(F f) {  // NOLINT: models are assigned
    if constexpr (std::is_constructible_v<bool, F>)
      if (!static_cast<bool>(f)) return;
    run_ = [f = std::move(f)](const Call& c) -> LumStatus {
      if constexpr (std::is_void_v<decltype(f(c))>)
        return f(c), lumStatusOk;
      else
        return f(c);
    };
  }
  explicit operator bool() const { return static_cast<bool>(run_); }
  LumStatus operator()(const Call& c) const { return run_(c); }

 private:
  std::function<LumStatus(const Call&)> run_;
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
  bool masked = false, checksSteps = false, refusesZeroSteps = false;
  bool checksRows = false;        // refuses steps that are below a row's bytes, or is not tried with them
  bool mayStream = true;          // whether large images are tried
  int64_t streamsFrom = 2 << 20;  // bytes moved from which on a path may depend on them, at the most
  int64_t asksFrom = 1 << 20;     // bytes moved up to which nothing asks for the cache's size
  bool floatResults = false;      // NaNs need not have equal bits, and rows of the destination are apart
  bool wholeSteps = false;        // refuses steps that are no multiple of their samples
  bool sharesStep = false;        // one step is that of both sources
  bool separateRows = false;      // rows of the destination must not overlap one another
  // Pixels around those of the first source that a call reads: as many as there are in memory. They follow
  // from the call's numbers, choices and lengths of arrays. Less than none are pixels of the ROI that are not
  // read. Where rows are checked, a row of the source is one with its surroundings.
  struct Surroundings {
    int left, top, right, bottom;
  };
  std::function<Surroundings(const Call&)> surroundings;
  bool surroundingsApart =
      false;                // where rows are overwritten, what is read beside others lies apart from them
  bool transposes = false;  // the destination is as wide as the ROI is high, and as high as it is wide
  std::vector<int> heights = {1, 1, 2, 3, 5};  // kAsWide: those of a square; above 5 beside small widths only
  static constexpr int kAsWide = 0;
  int values = 0;                                      // samples of all constants, one behind the other
  bool valuesByPointer = false;                        // of several channels
  std::function<void(Random&, Byte*)> arrangeValues;   // makes most of them acceptable, where not all are
  std::vector<Contents> contents = {Contents::Bytes};  // of sources and values
  std::vector<std::vector<int>> numbers;  // what each number that is not chosen by name is chosen from
  std::vector<std::pair<Lum32f, Lum32f>> bounds;
  const ExportRow* row = nullptr;
  Model model;
  int rounds = 24;  // of images of every width; fewer where a call does much besides its image
  // Whether it takes scratch from lumcore; where there is none, everything stays as it was, and that is the
  // status. Without a status it does the same without it.
  bool allocates = false;
  std::optional<LumStatus> withoutMemory = lumStatusNoMemory;

  // Memory besides images: results between guards, and arrays of values.
  struct Block {
    const char *name, *length;
    std::string type;
    bool isResult;
    std::vector<int> counts;  // how many samples, chosen from these
    std::function<void(Random&, Byte*, int)> fill;
    std::function<int(const Call&)> size;  // of scratch
  };
  struct Choice {
    const char* name;
    std::vector<Value> values;
  };
  std::vector<Block> blocks;
  std::vector<Choice> choices;

  // The results of this name: samples of a type, one or one for each channel.
  void results(const std::string& argument, const std::string& type);
  // An array of one of these lengths. Its values are any of the type where fill does not make others.
  void array(const std::string& argument, const std::string& type, const std::vector<int>& lengths,
             std::function<void(Random&, Byte*, int)> fill = {});
  // Scratch of so many bytes, by the call's ROI, numbers and choices: exactly that memory, of any alignment.
  // Nothing is expected of what is left there.
  void scratch(const std::string& argument, std::function<int(const Call&)> bytes);
  // What a number, a size, a point or a rectangle is chosen from.
  void choose(const std::string& argument, const std::vector<Value>& among);
  // Ends the program where an argument is not described: a default could hide that it is not tested.
  void requireAll() const;

  Outcome invoke(const Call& call, int misalignment = 0) const;
  // Expects that the rules of the calling convention are kept.
  LumStatus run(const Call& call) const;
  LumiSize dstSize(LumiSize roi) const { return transposes ? LumiSize{roi.height, roi.width} : roi; }
  bool planar() const { return src.planes > 1 || dst.planes > 1; }
};

// Images of a sample type and a layout, by the words of names.
Operand operandOf(const std::string& type, const std::string& layout);

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

// The same where source and destination are of one type: describe(member, sample).
template <typename Describe, typename List = CommonTypes>
std::vector<Member> membersOfOneType(const std::string& operation, Describe describe, List types = {}) {
  std::vector<Member> result;
  for (const ExportRow& row : exportRows()) {
    if (row.operation != operation || row.family != programFamily()) continue;
    if (row.types.size() != 1) abortOver("single type of", row.name);
    result.push_back(memberOf(row));
    withType(
        row.types.front(), [&](auto sample) { describe(result.back(), sample); }, types);
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
