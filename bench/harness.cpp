// SPDX-License-Identifier: MIT
#include "bench/harness.hpp"

#include <sys/mman.h>

#include <algorithm>
#include <chrono>
#include <cstdio>
#include <cstdlib>
#include <cstring>
#include <random>

#include "bench/limit.hpp"

namespace bench {
namespace {

// One arena for all rows, so that no row pays for fresh pages: touched once, kept, in huge pages where the
// system gives them. Every block starts elsewhere in its page: equal offsets make loads wait for stores of
// the other image.
class Arena {
 public:
  Lum8u* take(std::size_t size) {
    constexpr std::size_t kPage = 4096, kStagger = 9 * 64;
    const std::size_t start = (used_ + kPage - 1) / kPage * kPage + (blocks_++ * kStagger) % kPage;
    used_ = start + size;
    if (used_ > kCapacity) {
      std::fprintf(stderr, "bench: the images of one row exceed %zu bytes\n", kCapacity);
      std::exit(2);
    }
    return base_ + start;
  }
  std::size_t mark() const { return used_; }
  void release(std::size_t mark) {
    used_ = mark;
    if (mark == 0) blocks_ = 0;
  }

 private:
  static constexpr std::size_t kCapacity = std::size_t{1200} << 20;
  static Lum8u* map() {
    void* base =
        mmap(nullptr, kCapacity, PROT_READ | PROT_WRITE, MAP_PRIVATE | MAP_ANONYMOUS | MAP_NORESERVE, -1, 0);
    if (base == MAP_FAILED) {
      std::perror("bench: mmap");
      std::exit(2);
    }
    madvise(base, kCapacity, MADV_HUGEPAGE);
    return static_cast<Lum8u*>(base);
  }

  Lum8u* base_ = map();
  std::size_t used_ = 0, blocks_ = 0;
};

Arena& arena() {
  static Arena instance;
  return instance;
}

// Any bytes will do for integers; floats are kept finite, since a peer may pass them through registers
// that change signalling NaNs.
void fillWithNoise(Lum8u* bytes, std::size_t size, Depth depth) {
  constexpr std::size_t kPeriod = 1020 * 1024;
  static const auto patterns = [] {
    std::array<std::vector<Lum8u>, 2> both;
    std::mt19937 random(1);
    for (int isFloat = 0; isFloat < 2; ++isFloat) {
      both[static_cast<std::size_t>(isFloat)].resize(kPeriod);
      for (std::size_t i = 0; i < kPeriod; i += 4) {
        const auto word = static_cast<uint32_t>(random());
        const float sample = static_cast<float>(word) * 0x1p-24F - 128;
        std::memcpy(&both[static_cast<std::size_t>(isFloat)][i],
                    isFloat != 0 ? static_cast<const void*>(&sample) : &word, 4);
      }
    }
    return both;
  }();
  const std::vector<Lum8u>& pattern = patterns[depth == Depth::f32];
  for (std::size_t done = 0; done < size; done += kPeriod) {
    std::memcpy(bytes + done, pattern.data(), std::min(kPeriod, size - done));
  }
}

double nanosecondsOf(const Batch& batch, int times) {
  using Clock = std::chrono::steady_clock;
  const auto start = Clock::now();
  batch(times);
  return std::chrono::duration<double, std::nano>(Clock::now() - start).count() / times;
}

// Calls in one sample, so that it lasts 20 us at least.
int callsPerSample(const Batch& batch) {
  constexpr double kSampleNanoseconds = 20000;
  for (int times = 1;; times *= 2) {
    const double each = std::min(nanosecondsOf(batch, times), nanosecondsOf(batch, times));
    if (each * times >= kSampleNanoseconds) return times;
    if (each * times * 16 >= kSampleNanoseconds) return static_cast<int>(kSampleNanoseconds / each) + 1;
  }
}

// All candidates in turn, round after round, so that a change of clock or a neighbour's load hits all.
// An untimed call goes before each sample: a candidate finds the caches as it leaves them itself.
std::vector<double> bestInTurn(const std::vector<Peer>& candidates, double budgetSeconds) {
  using Clock = std::chrono::steady_clock;
  constexpr int kFewestRounds = 4, kMostRounds = 2000;
  constexpr double kNoWarmUpFrom = 4e6;  // such calls stream through more than any cache holds
  std::vector<int> calls;
  for (const Peer& candidate : candidates) calls.push_back(callsPerSample(candidate.run));

  std::vector<double> best(candidates.size(), 1e30);
  const auto start = Clock::now();
  for (int round = 0; round < kMostRounds; ++round) {
    const double spent = std::chrono::duration<double>(Clock::now() - start).count();
    if (round >= kFewestRounds && spent > budgetSeconds) break;
    for (std::size_t turn = 0; turn < candidates.size(); ++turn) {
      // Another candidate begins each round: none always follows the one that leaves the caches worst.
      const std::size_t i = (turn + static_cast<std::size_t>(round)) % candidates.size();
      if (best[i] < kNoWarmUpFrom || round == 0) candidates[i].run(1);
      best[i] = std::min(best[i], nanosecondsOf(candidates[i].run, calls[i]));
    }
  }
  return best;
}

// The same traffic without any work, on blocks of its own.
std::vector<Peer> memoryLimits(std::size_t read, std::size_t written) {
  if (read == 0) return fillLimits(arena().take(written), written);
  const std::size_t size = (read + written) / 2;
  Lum8u* from = arena().take(size);
  std::memset(from, 1, size);
  return copyLimits(from, arena().take(size), size);
}

}  // namespace

Scene::Scene(LumiSize roi, Placement placement) : roi_(roi), placement_(placement) { arena().release(0); }

View Scene::allocate(Depth depth, int channels, bool isOutput) {
  View view{nullptr, 0, roi_, depth, channels};
  view.step = view.rowBytes();
  if (placement_ == Placement::padded) view.step = (view.step + 63) / 64 * 64 + 64;
  // Inputs are one byte off, outputs three: then the two are never aligned to each other either.
  const std::size_t shift = placement_ == Placement::misaligned ? (isOutput ? 3 : 1) : 0;
  const std::size_t size = static_cast<std::size_t>(view.step) * static_cast<std::size_t>(roi_.height);
  view.bytes = arena().take(size + shift) + shift;
  fillWithNoise(view.bytes, size, depth);
  const auto used = static_cast<std::size_t>(view.rowBytes()) * static_cast<std::size_t>(roi_.height);
  (isOutput ? written_ : read_) += used;
  if (isOutput) outputs_.push_back({view.bytes, size, depth});
  return view;
}

Image<Lum8u> Scene::bits(bool isOutput) {
  const LumiSize roi = roi_;
  roi_.width = (roi.width + 7) / 8;
  const auto image = typed<Lum8u>(allocate(Depth::u8, 1, isOutput));
  roi_ = roi;
  return image;
}

Image<Lum8u> Scene::mask(MaskKind kind) {
  constexpr int kBlob = 48;  // pixels across
  const Image<Lum8u> image = input<Lum8u>(1);
  std::mt19937 random(2);
  for (int y = 0; y < roi_.height; ++y) {
    for (int x = 0; x < roi_.width; ++x) {
      const bool chosen = kind == MaskKind::random ? (random() & 1) != 0 : ((x / kBlob + y / kBlob) & 1) != 0;
      image.row(y)[x] = chosen ? 255 : 0;
    }
  }
  return image;
}

// Tells for each candidate whether it stores the same bytes as ours, gaps between rows included.
std::vector<bool> Scene::comparePeers() {
  std::vector<bool> equal;
  const std::size_t mark = arena().mark();
  std::vector<Lum8u*> expected;
  for (const Block& block : outputs_) expected.push_back(arena().take(block.size));
  for (const Peer& candidate : candidates_) {
    for (const Block& block : outputs_) fillWithNoise(block.bytes, block.size, block.depth);
    candidate.run(1);
    bool same = true;
    for (std::size_t i = 0; i < outputs_.size(); ++i) {
      const Block& block = outputs_[i];
      if (equal.empty()) std::memcpy(expected[i], block.bytes, block.size);
      same = same && std::memcmp(expected[i], block.bytes, block.size) == 0;
    }
    equal.push_back(same);
  }
  arena().release(mark);
  return equal;
}

Result Scene::measure(double budgetSeconds) {
  const std::vector<bool> equal = comparePeers();
  const std::vector<double> best = bestInTurn(candidates_, budgetSeconds);
  // The limits have blocks of their own, which would throw the images out of the caches: not in turn.
  const std::vector<double> limits = bestInTurn(memoryLimits(read_, written_), budgetSeconds / 3);

  Result result{static_cast<double>(read_ + written_), *std::min_element(limits.begin(), limits.end()), {}};
  for (std::size_t i = 0; i < candidates_.size(); ++i) {
    result.timings.push_back({candidates_[i].name, best[i], equal[i], candidates_[i].differs});
  }
  return result;
}

// Images in real use are small parts of larger ones as often as not: what is measured in the cache is
// measured so as well, with gaps between its rows.
void Suite::row(std::string name, std::vector<LumiSize> sizes, Build build, Placement placement) {
  const auto has = [&](LumiSize wanted) {
    return std::any_of(sizes.begin(), sizes.end(), [=](LumiSize size) {
      return size.width == wanted.width && size.height == wanted.height;
    });
  };
  const bool hasSmallParts = placement == Placement::tight && has(kCached);
  if (hasSmallParts && !has(kSmall)) sizes.insert(sizes.begin(), kSmall);
  rows_.push_back({family_, name, std::move(sizes), placement, build});
  if (hasSmallParts)
    rows_.push_back({family_, name + " padded", {kCall, kSmall}, Placement::padded, std::move(build)});
}

Suite& suite() {
  static Suite instance;
  return instance;
}

}  // namespace bench
