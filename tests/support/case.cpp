// SPDX-License-Identifier: MIT
#include "support/case.hpp"

#include <algorithm>
#include <climits>
#include <sstream>
#include <vector>

namespace test {
namespace {

// Every small width, and around the thresholds of longer rows.
constexpr int kSmallWidths = 70;
constexpr int kLargeWidths[] = {95,  96,  97,  127, 128, 129, 130, 255, 256,
                                257, 258, 511, 512, 513, 514, 997, 1000};
constexpr int kHeightOfLargeWidths = 5;
constexpr int kRoundsPerLargeWidth = 4;

// Pixels are what costs: a round has every small width once, and each large one only every few rounds, with
// small ones by chance in its place.
int widthOf(int index, Random& random) {
  const int at = index % caseRound(), round = index / caseRound();
  if (at < kSmallWidths) return at + 1;
  const int large = at - kSmallWidths;
  return (round + large) % kRoundsPerLargeWidth == 0 ? kLargeWidths[large] : random.between(1, kSmallWidths);
}

int heightOf(const Member& member, int width, Random& random) {
  const int height = random.pick(member.heights);
  if (width > kSmallWidths) return std::min(height == Member::kAsWide ? 1 : height, kHeightOfLargeWidths);
  return height == Member::kAsWide ? width : height;
}

int anyStep(Random& random, int tight, bool singleRow) {
  if (tight == 0) return 0;  // there is no such image
  constexpr int extremes[] = {INT_MIN, INT_MIN + 1, -1, 0, 1, INT_MAX - 1, INT_MAX};
  if (singleRow && random.oneIn(4)) return random.pick(extremes);
  const auto length = [&] {
    switch (random.below(6)) {
      case 0:
        return tight;
      case 1:
        return (tight + 63) / 64 * 64;
      case 2:
        return tight + 16 * random.between(1, 4);
      case 3:
        return tight + random.between(1, 37);
      case 4:
        return 0;
      default:
        return random.between(1, tight);  // rows overlap
    }
  };
  const int step = length();
  return random.oneIn(4) ? -step : step;
}

// Rows of one image that do not overlap.
int separateStep(Random& random, int tight) {
  const int step = tight + (random.oneIn(2) ? 0 : random.between(1, 37));
  return random.oneIn(4) ? -step : step;
}

// The step of the destination, or one that holds what is read beside its rows too.
int stepOfWhole(const Member& member, const Case& c) {
  Call call;
  call.roi = c.roi;
  for (size_t i = 0; i < member.choices.size(); ++i)
    call.chosen.push_back({member.choices[i].name, c.chosen[i]});
  for (size_t i = 0; i < member.blocks.size(); ++i)
    call.blocks.push_back({member.blocks[i].name, nullptr, c.blocks[i].count, nullptr});
  const auto around = member.surroundings(call);
  const int whole = (around.left + c.roi.width + around.right) * member.dst.pixelBytes;
  return c.dstStep < 0 ? std::min(c.dstStep, -whole) : std::max(c.dstStep, whole);
}

Placement anyPlacement(Random& random, int phase) {
  switch (random.below(5)) {
    case 0:
    case 1:
      return {Placement::End, 0, 0};
    case 2:
      return {Placement::Start, 0, 0};
    default:
      return {Placement::Phase, phase, random.below(64)};
  }
}

const char* text(Overlap overlap) {
  switch (overlap) {
    case Overlap::Apart:
      return "apart";
    case Overlap::SameImage:
      return "same image";
    default:
      return "other channel";
  }
}

const char* text(MaskKind kind) {
  constexpr const char* names[] = {"all zero", "all one", "any non-zero", "high bits", "dense",
                                   "half",     "sparse",  "single pixel", "runs"};
  return names[static_cast<int>(kind)];
}

std::string text(const Placement& p) {
  switch (p.kind) {
    case Placement::End:
      return "flush at the end";
    case Placement::Start:
      return "flush at the start";
    default:
      return "phase " + std::to_string(p.phase) + " line " + std::to_string(p.line);
  }
}

void describeImage(std::ostream& out, const char* role, const Operand& operand, int step,
                   const Placement* places) {
  if (operand.planes == 0) return;
  out << "\n  " << role << ": step " << step << ", " << operand.pixelBytes << " bytes a pixel";
  for (int p = 0; p < operand.planes; ++p) out << (p ? "; " : ", ") << text(places[p]);
}

}  // namespace

int caseRound() { return kSmallWidths + static_cast<int>(std::size(kLargeWidths)); }

void chooseNamed(const Member& member, Random& random, Case& c) {
  for (const Member::Block& block : member.blocks) {
    const int count = random.pick(block.counts);
    c.blocks.push_back({count, random.oneIn(2), random.oneIn(2) ? 0 : random.below(64)});
  }
  for (const Member::Choice& choice : member.choices) c.chosen.push_back(random.pick(choice.values));
}

Case makeCase(const Member& member, uint64_t seed, int index) {
  Random random(mixSeed(seed, member.name, index));
  Case c;
  c.index = index;
  c.contents = random.next();
  c.roi.width = widthOf(index, random);
  c.roi.height = heightOf(member, c.roi.width, random);

  for (size_t i = 0; i < member.numbers.size(); ++i)
    if (!member.numbers[i].empty()) c.numbers[i] = random.pick(member.numbers[i]);
  chooseNamed(member, random, c);
  if (!member.bounds.empty()) c.bounds = random.pick(member.bounds);
  const int srcTight = member.src.tightStep(c.roi.width, c.numbers[0]);
  const int src2Tight = member.src2.tightStep(c.roi.width, 0);
  const LumiSize dstSize = member.dstSize(c.roi);
  const int dstTight = member.dst.tightStep(dstSize.width, c.numbers[0]);
  const bool allTight = random.oneIn(3);
  const auto step = [&](int tight) { return allTight ? tight : anyStep(random, tight, c.roi.height == 1); };
  c.srcStep = member.surroundings && !allTight ? anyStep(random, srcTight, false) : step(srcTight);
  c.dstStep = allTight ? dstTight : anyStep(random, dstTight, dstSize.height == 1);
  c.maskStep = step(c.roi.width);
  c.src2Step = step(src2Tight);
  const bool separateRows = member.floatResults || member.separateRows;
  if (separateRows && !allTight) c.dstStep = separateStep(random, dstTight);

  // The destination's phase takes every value in turn, for each width and over the members; the source's is
  // any.
  const int firstPhase = Random(mixSeed(0, member.name, 0)).below(64);
  for (int p = 0; p < kMaxPlanes; ++p) {
    const int phase = firstPhase + index % caseRound() + 25 * (index / caseRound());
    c.dst[p] = anyPlacement(random, (phase + p * (16 + random.below(64))) % 64);
    c.src[p] = anyPlacement(random, random.below(64));
  }
  c.mask = anyPlacement(random, random.below(64));
  c.src2 = anyPlacement(random, random.below(64));
  c.maskKind = random.pick(kMaskKinds);
  c.inputs = random.pick(member.contents);
  c.valuesInDst = member.valuesByPointer && !member.floatResults && random.oneIn(8);
  c.valuesPhase = random.oneIn(2) ? 0 : random.below(64);

  if (member.aliasing != Aliasing::None && random.oneIn(8)) {
    c.overlap = Overlap::SameImage;
    c.srcIsDst = member.src2.planes == 0 || random.oneIn(2);
    c.src2IsDst = member.src2.planes > 0 && (!c.srcIsDst || random.oneIn(2));
  } else if (member.aliasing == Aliasing::OtherChannel && random.oneIn(4)) {
    const int channels = member.dst.pixelBytes / member.sampleBytes;
    c.overlap = Overlap::OtherChannel;
    c.srcIsDst = true;
    c.srcChannel = random.below(channels);
    c.dstChannel = (c.srcChannel + random.between(1, channels - 1)) % channels;
    c.dstStep = separateStep(random, dstTight);
  }
  if (member.checksSteps && separateRows) c.dstStep = std::abs(c.dstStep);
  if (member.checksSteps)
    for (int* each : {&c.srcStep, &c.src2Step, &c.dstStep, &c.maskStep}) *each = std::max(1, *each);
  if (member.checksRows) {
    c.srcStep = std::max(c.srcStep, srcTight);
    if (member.src2.planes) c.src2Step = std::max(c.src2Step, member.src2.tightStep(c.roi.width, 0));
    c.dstStep = std::max(c.dstStep, dstTight);
  }
  if (member.refusesZeroSteps)
    for (int* each : {&c.srcStep, &c.src2Step, &c.dstStep})
      if (*each == 0) *each = -1;
  // Where rows of floats reach into one another they hold the same samples.
  if (member.wholeSteps || (member.surroundings && member.floatResults)) {
    const auto cut = [&](int& its, int sample) {
      its -= its % sample;
      if (member.checksSteps) its = std::max(its, sample);
    };
    cut(c.srcStep, member.sampleBytes);
    cut(c.dstStep, sampleBytes(member.types.back()));
  }
  if (member.surroundingsApart && (member.inPlace || c.srcIsDst)) c.dstStep = stepOfWhole(member, c);
  if (member.sharesStep) c.src2Step = c.srcStep;
  if (c.srcIsDst) c.srcStep = c.dstStep;
  if (c.src2IsDst) c.src2Step = c.dstStep;
  return c;
}

std::string describe(const Member& member, const Case& c) {
  std::ostringstream out;
  out << member.name << " case " << c.index << ": " << c.roi.width << " x " << c.roi.height;
  if (member.src.planes) out << ", source and destination " << text(c.overlap);
  if (c.src2IsDst) out << (c.srcIsDst ? " (both sources)" : " (second source)");
  if (c.overlap == Overlap::OtherChannel) out << " (" << c.srcChannel << " to " << c.dstChannel << ")";
  for (size_t i = 0; i < member.numbers.size(); ++i) out << (i ? " " : ", numbers ") << c.numbers[i];
  if (!member.bounds.empty()) out << ", bounds " << c.bounds.first << " to " << c.bounds.second;
  for (size_t i = 0; i < c.blocks.size(); ++i)
    out << ", " << member.blocks[i].name << " of " << c.blocks[i].count << " at "
        << (c.blocks[i].atEnd ? "end" : "start") << " but " << c.blocks[i].phase;
  for (size_t i = 0; i < c.chosen.size(); ++i) {
    out << ", " << member.choices[i].name;
    for (const double number : c.chosen[i].numbers) out << " " << number;
  }
  out << ", contents " << static_cast<int>(c.inputs);
  if (member.valuesByPointer) {
    out << ", values " << (c.valuesInDst ? "inside the destination" : "") << c.valuesPhase;
    if (!c.valuesInDst) out << " bytes before the end";
  }
  describeImage(out, "source", member.src, c.srcStep, c.src);
  describeImage(out, "second source", member.src2, c.src2Step, &c.src2);
  describeImage(out, "destination", member.dst, c.dstStep, c.dst);
  if (member.masked)
    out << "\n  mask: " << text(c.maskKind) << ", step " << c.maskStep << ", " << text(c.mask);
  return out.str();
}

}  // namespace test
