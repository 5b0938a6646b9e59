// SPDX-License-Identifier: MIT
#include "support/stage.hpp"

#include <algorithm>
#include <cmath>
#include <cstdio>
#include <cstdlib>
#include <sstream>

#include "support/fault.hpp"

namespace test {
namespace {

constexpr ptrdiff_t kMargin = 160;         // bytes around an image that are filled anew for each case
constexpr size_t kLargestBlock = 1 << 20;  // of results and arrays
constexpr size_t kPlacementRoom = 8192;    // what a phase and its line add to an image

// The bytes of an image, relative to its first pixel.
struct Extent {
  ptrdiff_t low, high;

  Extent(int step, int rowBytes, int rows) {
    const ptrdiff_t last = rows > 1 ? static_cast<ptrdiff_t>(step) * (rows - 1) : 0;
    low = std::min<ptrdiff_t>(0, last);
    high = std::max<ptrdiff_t>(0, last) + rowBytes;
  }
};

Byte nonZero(Random& random) { return static_cast<Byte>(random.between(1, 255)); }

void fillMaskRow(Byte* row, int width, MaskKind kind, Random& random) {
  constexpr Byte high[] = {0x80, 0x7f, 0x81, 0xff, 0x00, 0x02};
  int run = 0;
  bool on = false;
  const int single = random.below(width);
  for (int x = 0; x < width; ++x) {
    switch (kind) {
      case MaskKind::Zero:
        row[x] = 0;
        break;
      case MaskKind::Ones:
        row[x] = 1;
        break;
      case MaskKind::AnyNonZero:
        row[x] = nonZero(random);
        break;
      case MaskKind::HighBits:
        row[x] = random.pick(high);
        break;
      case MaskKind::Dense:
        row[x] = random.oneIn(16) ? Byte{0} : nonZero(random);
        break;
      case MaskKind::Half:
        row[x] = random.oneIn(2) ? Byte{0} : nonZero(random);
        break;
      case MaskKind::Sparse:
        row[x] = random.oneIn(16) ? nonZero(random) : Byte{0};
        break;
      case MaskKind::SinglePixel:
        row[x] = x == single ? nonZero(random) : Byte{0};
        break;
      case MaskKind::Runs:
        if (run-- == 0) {
          run = random.below(48);
          on = !on;
        }
        row[x] = on ? nonZero(random) : Byte{0};
    }
  }
}

}  // namespace

Stage::Stage(size_t largestImage) {
  const auto add = [this](size_t bytes) {
    arenas_.push_back(std::make_unique<Arena>(bytes));
    return arenas_.back().get();
  };
  for (auto& arena : src_) arena = add(largestImage + kPlacementRoom);
  for (auto& arena : dst_) arena = add(largestImage + kPlacementRoom);
  src2_ = add(largestImage + kPlacementRoom);
  mask_ = add(largestImage + kPlacementRoom);
  values_ = add(1);
  planes_ = add(1);
}

Stage::Placed Stage::place(std::string role, const Arena& arena, const Placement& where, int step,
                           int rowBytes, int rows) const {
  const Extent extent(step, rowBytes, rows);
  Byte* first = nullptr;
  switch (where.kind) {
    case Placement::End:
      first = arena.end() - extent.high;
      break;
    case Placement::Start:
      first = arena.begin() - extent.low;
      break;
    case Placement::Phase: {
      const ptrdiff_t lines = (kMargin - extent.low + 63) / 64 + where.line;
      first = arena.begin() + lines * 64 + where.phase;
    }
  }
  Byte *low = first + extent.low, *high = first + extent.high;
  if (low < arena.begin() || high > arena.end()) {
    std::fprintf(stderr, "%s does not fit into its arena\n", role.c_str());
    std::abort();
  }
  return {std::move(role),
          &arena,
          first,
          step,
          rowBytes,
          rows,
          std::max(low - kMargin, arena.begin()),
          std::min(high + kMargin, arena.end())};
}

// The first pixel of the ROI; what a call reads around it belongs to the image.
Byte* Stage::placeSource(const Member& member, const Case& c, Call& call, int plane) {
  if (member.checksRows && member.surroundings) {
    const auto around = member.surroundings(call);
    const int pixels = around.left + c.roi.width + around.right;
    call.srcStep = std::max(c.srcStep, pixels * member.src.pixelBytes);
  }
  return placeAround(member, c, call, "source", *src_[plane], c.src[plane], call.srcStep, member.src);
}

Byte* Stage::placeAround(const Member& member, const Case& c, const Call& call, const char* role,
                         const Arena& arena, const Placement& where, int step, const Operand& operand) {
  const auto around = member.surroundings ? member.surroundings(call) : Member::Surroundings{};
  const int before = around.left * operand.pixelBytes, behind = around.right * operand.pixelBytes;
  const int rowBytes = before + operand.rowBytes(c.roi.width, c.numbers[0]) + behind;
  placed_.push_back(place(role, arena, where, step, rowBytes, around.top + c.roi.height + around.bottom));
  return placed_.back().first + static_cast<ptrdiff_t>(around.top) * step + before;
}

void Stage::placeImages(const Member& member, const Case& c, Call& call) {
  Operand dst = member.dst;
  ptrdiff_t srcFromDst = 0;
  if (c.overlap == Overlap::OtherChannel) {
    // One image that begins with the lower of the two samples and ends with the higher one.
    srcFromDst = static_cast<ptrdiff_t>(c.srcChannel - c.dstChannel) * member.sampleBytes;
    dst.lastPixelBytes += static_cast<int>(std::abs(srcFromDst));
  }
  const auto add = [&](const char* role, const Arena& arena, const Placement& where, int step,
                       const Operand& operand) {
    const LumiSize size = &operand == &dst ? member.dstSize(c.roi) : c.roi;
    placed_.push_back(
        place(role, arena, where, step, operand.rowBytes(size.width, c.numbers[0]), size.height));
    return placed_.back().first;
  };
  const bool isSource = member.inPlace || c.srcIsDst;
  for (int p = 0; p < dst.planes; ++p) {
    if (isSource && member.surroundings)
      call.dst[p] = placeAround(member, c, call, "destination", *dst_[p], c.dst[p], c.dstStep, dst);
    else
      call.dst[p] =
          add("destination", *dst_[p], c.dst[p], c.dstStep, dst) + std::max<ptrdiff_t>(0, -srcFromDst);
    if (c.srcIsDst) call.src[p] = call.dst[p] + srcFromDst;
  }
  if (c.src2IsDst) call.src2 = call.dst[0];
  if (!c.srcIsDst)
    for (int p = 0; p < member.src.planes; ++p) call.src[p] = placeSource(member, c, call, p);
  if (!c.src2IsDst && member.src2.planes > 0)
    call.src2 = add("second source", *src2_, c.src2, c.src2Step, member.src2);
  if (member.masked) call.mask = add("mask", *mask_, c.mask, c.maskStep, Operand::pixels(1, 1));
  if (member.inPlace) {
    (member.src.planes ? call.src2 : call.src[0]) = call.dst[0];
    (member.src.planes ? call.src2Step : call.srcStep) = call.dstStep;
  }
  if (member.planar()) {
    Byte* const* pointers = member.src.planes > 1 ? call.src : call.dst;
    const size_t bytes = sizeof(Byte*) * static_cast<size_t>(std::max(member.src.planes, member.dst.planes));
    call.planes = planes_->end() - bytes;
    std::memcpy(call.planes, pointers, bytes);
  }
}

void Stage::placeValues(const Member& member, const Case& c, Call& call, Random& random) {
  if (member.values == 0) return;
  if (placed_.empty()) abortOver("image of", member.name);
  const int bytes = member.values * member.sampleBytes;
  const Placed& dst = placed_.front();
  if (c.valuesInDst && member.dst.planes > 0 && dst.rowBytes >= bytes) {
    call.values = dst.first + random.below(dst.rowBytes - bytes + 1);
    return;
  }
  Byte* values = values_->end() - bytes - c.valuesPhase;
  fillSamples(member.types.front(), values, bytes, c.inputs, random);
  if (member.arrangeValues) member.arrangeValues(random, values);
  call.values = values;
  placed_.push_back({"values", values_, values, 0, bytes, 1, values_->begin(), values_->end()});
}

void Stage::nameChoices(const Member& member, const Case& c, Call& call) const {
  for (size_t i = 0; i < member.choices.size(); ++i)
    call.chosen.push_back({member.choices[i].name, c.chosen[i]});
  for (size_t i = 0; i < member.blocks.size(); ++i)
    call.blocks.push_back({member.blocks[i].name, nullptr, c.blocks[i].count, nullptr});
}

void Stage::placeBlocks(const Member& member, const Case& c, Call& call, Random& random) {
  for (size_t i = 0; i < member.blocks.size(); ++i) {
    const Member::Block& block = member.blocks[i];
    const auto [chosen, atEnd, phase] = c.blocks[i];
    const int count = block.size ? block.size(call) : chosen;
    const int bytes = count * sampleBytes(block.type);
    if (i == blocks_.size()) {
      arenas_.push_back(std::make_unique<Arena>(kLargestBlock));
      blocks_.push_back(arenas_.back().get());
    }
    const Arena& arena = *blocks_[i];
    if (bytes + phase > arena.end() - arena.begin()) abortOver("memory for", block.name);
    Byte* const first = atEnd ? arena.end() - bytes - phase : arena.begin() + phase;
    const Placed placed{block.name,
                        &arena,
                        first,
                        bytes,
                        bytes,
                        1,
                        std::max(first - kMargin, arena.begin()),
                        std::min(first + bytes + kMargin, arena.end()),
                        static_cast<bool>(block.size)};
    random.fill(placed.low, static_cast<size_t>(placed.high - placed.low));
    if (block.fill)
      block.fill(random, first, count);
    else if (!block.isResult && !block.size)
      fillSamples(block.type, first, bytes, c.inputs, random);
    call.blocks[i] = {block.name, first, count,
                      std::make_shared<std::vector<double>>(static_cast<size_t>(count))};
    placed_.push_back(placed);
  }
}

void Stage::fillMask(const Call& call, MaskKind kind, Random& random) const {
  for (int y = 0; y < call.roi.height; ++y)
    fillMaskRow(call.maskImage().row(y), call.roi.width, kind, random);
}

Byte* Stage::twin(const Byte* at) const {
  for (const auto& arena : arenas_)
    if (arena->holds(at)) return arena->twin(at);
  return nullptr;
}

Call Stage::onTwins(const Member& member, const Call& call) const {
  Call result = call;
  // The ROI may lie apart from what is read for it, and outside of all memory.
  for (int p = 0; p < std::max(1, member.src.planes); ++p)
    result.src[p] =
        member.surroundings && call.src[p] != call.dst[p] ? src_[p]->twin(call.src[p]) : twin(call.src[p]);
  result.src2 = twin(call.src2);
  for (int p = 0; p < member.dst.planes; ++p) result.dst[p] = twin(call.dst[p]);
  if (call.mask) result.mask = twin(call.mask);
  if (call.values) result.values = twin(call.values);
  result.planes = nullptr;
  for (Call::Block& block : result.blocks) block.data = twin(block.data);
  return result;
}

std::optional<std::string> Stage::run(const Member& member, const Case& c, std::optional<LumStatus> refusal) {
  Random random(c.contents);
  Call call;
  call.roi = c.roi;
  call.srcStep = c.srcStep;
  call.dstStep = c.dstStep;
  call.maskStep = c.maskStep;
  call.src2Step = c.src2Step;
  std::copy(std::begin(c.numbers), std::end(c.numbers), call.numbers);
  call.lower = c.bounds.first;
  call.upper = c.bounds.second;
  placed_.clear();
  nameChoices(member, c, call);
  placeImages(member, c, call);
  for (const Placed& p : placed_) random.fill(p.low, static_cast<size_t>(p.high - p.low));
  // Floats are filled sample by sample in any case, for the sake of their NaNs.
  for (const Placed& p : placed_)
    if (c.inputs != Contents::Bytes || member.floatResults)
      for (int y = 0; y < p.rows; ++y)
        fillSamples(p.role == "destination" ? member.types.back() : member.types.front(),
                    p.first + static_cast<ptrdiff_t>(y) * p.step, p.rowBytes, c.inputs, random);
  if (member.masked) fillMask(call, c.maskKind, random);
  placeValues(member, c, call, random);
  placeBlocks(member, c, call, random);
  for (const Placed& p : placed_) p.arena->copyToTwin(p.low, p.high);

  const LumStatus expected = refusal ? *refusal : member.model(onTwins(member, call));
  Outcome outcome;
  const int misalignment = sizeof(void*) == 4 ? 4 * random.below(4) : 0;
  if (const auto fault = faultOf([&] { outcome = member.invoke(call, misalignment); })) {
    makeEqual();
    return "memory fault, " + where(fault->address);
  }
  if (outcome.status == expected) acceptWithinTolerances(member, call);
  auto failure = compare(member);
  if (outcome.status != expected)
    failure = "status " + std::to_string(outcome.status) + ", not " + std::to_string(expected);
  if (!outcome.broken.empty()) failure = "calling convention: " + outcome.broken;
  if (failure) makeEqual();
  return failure;
}

std::optional<std::string> Stage::compare(const Member& member) const {
  for (const Placed& p : placed_) {
    if (p.isScratch) p.arena->copyToTwin(p.first, p.first + p.rowBytes);
    if (member.floatResults && p.role != "source") equateNaNs(member, p);
    const Byte* at = p.arena->firstDifference(p.low, p.high);
    if (!at) continue;
    std::ostringstream out;
    out << p.role << ": byte " << at - p.first << " from the first pixel is " << int{*at} << ", not "
        << int{*p.arena->twin(at)};
    const bool isImage = p.role == "source" || p.role == "destination";
    const int pixelBytes = !isImage ? 1 : p.role == "source" ? member.src.pixelBytes : member.dst.pixelBytes;
    bool inside = false;
    for (int y = 0; y < p.rows && !inside; ++y) {
      const ptrdiff_t x = at - (p.first + static_cast<ptrdiff_t>(p.step) * (p.rows > 1 ? y : 0));
      inside = x >= 0 && x < p.rowBytes;
      if (inside)
        out << " (row " << y << ", column " << x / std::max(1, pixelBytes) << ", byte "
            << x % std::max(1, pixelBytes) << ")";
    }
    if (!inside) out << " (outside every row)";
    return out.str();
  }
  return std::nullopt;
}

// Where both have a NaN, the model gets the bits of ours.
template <typename T>
void Stage::equateNaNsOf(const Placed& p) const {
  for (int y = 0; y < p.rows; ++y) {
    Byte* const row = p.first + static_cast<ptrdiff_t>(y) * p.step;
    for (int i = 0; i < p.rowBytes / static_cast<int>(sizeof(T)); ++i)
      if (std::isnan(model::load<T>(row, i)) && std::isnan(model::load<T>(p.arena->twin(row), i)))
        model::store<T>(p.arena->twin(row), i, model::load<T>(row, i));
  }
}

void Stage::equateNaNs(const Member& member, const Placed& p) const {
  std::string type = p.role == "destination" ? member.types.back() : "";
  for (const Member::Block& block : member.blocks)
    if (block.isResult && p.role == block.name) type = block.type;
  if (isTypeOf<Lum32f>(type)) equateNaNsOf<Lum32f>(p);
  if (isTypeOf<Lum64f>(type)) equateNaNsOf<Lum64f>(p);
}

// Results as near as the model asks: it gets the bits of ours. What is infinitely far is near enough where it
// asks for nothing.
template <typename T>
void Stage::acceptWithin(const Call::Block& block) const {
  for (int i = 0; i < block.count; ++i) {
    const double tolerance = block.tolerances->at(static_cast<size_t>(i));
    const T ours = model::load<T>(block.data, i);
    const double distance = std::abs(double{ours} - double{model::load<T>(twin(block.data), i)});
    if ((tolerance > 0 && distance <= tolerance) || std::isinf(tolerance))
      model::store<T>(twin(block.data), i, ours);
  }
}

void Stage::acceptWithinTolerances(const Member& member, const Call& call) const {
  for (size_t i = 0; i < member.blocks.size(); ++i) {
    if (!member.blocks[i].isResult) continue;
    if (isTypeOf<Lum32f>(member.blocks[i].type)) acceptWithin<Lum32f>(call.blocks[i]);
    if (isTypeOf<Lum64f>(member.blocks[i].type)) acceptWithin<Lum64f>(call.blocks[i]);
  }
}

std::optional<std::string> Stage::compareEverything() const {
  for (const auto& arena : arenas_) {
    if (arena.get() == planes_) continue;
    if (const Byte* at = arena->firstDifference(arena->begin(), arena->end()))
      return "a byte far from the images changed, " + std::to_string(at - arena->begin()) +
             " bytes into an arena";
  }
  return std::nullopt;
}

std::string Stage::where(const void* fault) const {
  const auto* at = static_cast<const Byte*>(fault);
  if (!at) return "no address told: a misaligned vector access or a wild pointer";
  const auto guard = static_cast<ptrdiff_t>(Arena::pageBytes());
  for (const Placed& p : placed_) {
    if (at >= p.arena->end() && at < p.arena->end() + guard)
      return std::to_string(at - p.arena->end() + 1) + " bytes past the accessible memory of the " + p.role;
    if (at < p.arena->begin() && at >= p.arena->begin() - guard)
      return std::to_string(p.arena->begin() - at) + " bytes before the accessible memory of the " + p.role;
  }
  return "far from every image";
}

void Stage::makeEqual() const {
  for (const auto& arena : arenas_) arena->copyToTwin(arena->begin(), arena->end());
}

}  // namespace test
