// SPDX-License-Identifier: MIT
// Resizes a large picture in tiles, first on one thread and then on all cores, and prints the speed-up.
// A specification object is made once and shared: runs only read it. Each thread has scratch of its own.
//   tiled_threads [width height]
#include <lumi.h>

#include <atomic>
#include <chrono>
#include <cstdio>
#include <cstdlib>
#include <cstring>
#include <stdexcept>
#include <string>
#include <thread>
#include <vector>

namespace {

void check(LumStatus status, const char* what) {
  if (status != lumStatusOk) throw std::runtime_error(what + (" returned " + std::to_string(status)));
}

struct Picture {
  LumiSize size;
  int step;
  std::vector<Lum8u> bytes;

  explicit Picture(LumiSize s)
      : size(s), step(3 * s.width), bytes(static_cast<size_t>(step) * static_cast<size_t>(s.height)) {}
  Lum8u* at(int x, int y) { return bytes.data() + static_cast<ptrdiff_t>(y) * step + 3 * x; }
  const Lum8u* at(int x, int y) const { return bytes.data() + static_cast<ptrdiff_t>(y) * step + 3 * x; }
};

// Linear resizing of one picture into another, tile by tile.
class Resizer {
 public:
  Resizer(LumiSize from, LumiSize to) {
    int objectBytes = 0, initBytes = 0;
    check(lumiResizeGetSize_8u(from, to, lumInterpLinear, 0, &objectBytes, &initBytes),
          "lumiResizeGetSize_8u");
    memory_.resize(static_cast<size_t>(objectBytes));
    check(lumiResizeLinearInit_8u(from, to, object()), "lumiResizeLinearInit_8u");
  }

  std::vector<Lum8u> scratchFor(LumiSize tile) {
    int bytes = 0;
    check(lumiResizeGetBufferSize_8u(object(), tile, 3, &bytes), "lumiResizeGetBufferSize_8u");
    return std::vector<Lum8u>(static_cast<size_t>(bytes));
  }

  // The tile of `to` that begins at `where`. Its source begins where the object says; what lies around a tile
  // inside the picture is read, and the picture's own edge is repeated.
  void run(const Picture& from, Picture& to, LumiPoint where, LumiSize tile, std::vector<Lum8u>& scratch) {
    LumiPoint source = {};
    check(lumiResizeGetSrcOffset_8u(object(), where, &source), "lumiResizeGetSrcOffset_8u");
    const Lum8u unused[3] = {};
    check(lumiResizeLinear_8u_C3R(from.at(source.x, source.y), from.step, to.at(where.x, where.y), to.step,
                                  where, tile, lumiBorderReplicate, unused, object(), scratch.data()),
          "lumiResizeLinear_8u_C3R");
  }

 private:
  LumiResizeSpec* object() { return reinterpret_cast<LumiResizeSpec*>(memory_.data()); }

  std::vector<Lum8u> memory_;  // the object finds its boundary in it by itself
};

// Bands of full width keep the threads' memory apart.
constexpr int kBand = 64;

double secondsOf(Resizer& resizer, const Picture& from, Picture& to, unsigned threads) {
  std::atomic<int> next{0};
  const auto work = [&] {
    std::vector<Lum8u> scratch = resizer.scratchFor({to.size.width, std::min(kBand, to.size.height)});
    for (int y; (y = next.fetch_add(kBand)) < to.size.height;)
      resizer.run(from, to, {0, y}, {to.size.width, std::min(kBand, to.size.height - y)}, scratch);
  };
  const auto start = std::chrono::steady_clock::now();
  std::vector<std::thread> helpers;
  for (unsigned i = 1; i < threads; ++i) helpers.emplace_back(work);
  work();
  for (std::thread& helper : helpers) helper.join();
  return std::chrono::duration<double>(std::chrono::steady_clock::now() - start).count();
}

double best(Resizer& resizer, const Picture& from, Picture& to, unsigned threads) {
  double least = secondsOf(resizer, from, to, threads);
  for (int i = 0; i < 6; ++i) least = std::min(least, secondsOf(resizer, from, to, threads));
  return least;
}

int run(LumiSize size) {
  Picture from(size), onOne({size.width * 3 / 2, size.height * 3 / 2}), onAll(onOne.size);
  for (size_t i = 0; i < from.bytes.size(); ++i) from.bytes[i] = static_cast<Lum8u>(i * i >> 7);
  Resizer resizer(from.size, onOne.size);
  const unsigned cores = std::max(1U, std::thread::hardware_concurrency());
  const double one = best(resizer, from, onOne, 1), all = best(resizer, from, onAll, cores);
  std::printf("%d x %d to %d x %d: %.1f ms on one thread, %.1f ms on %u: %.2f times as fast\n",
              from.size.width, from.size.height, onOne.size.width, onOne.size.height, one * 1e3, all * 1e3,
              cores, one / all);
  if (onOne.bytes != onAll.bytes) throw std::runtime_error("the pictures differ");
  return 0;
}

}  // namespace

int main(int argc, char** argv) {
  try {
    if (argc != 1 && argc != 3) throw std::runtime_error("usage: tiled_threads [width height]");
    const LumiSize size = argc == 3 ? LumiSize{std::atoi(argv[1]), std::atoi(argv[2])} : LumiSize{4000, 3000};
    if (size.width < 2 || size.height < 2 || size.width > 20000 || size.height > 20000)
      throw std::runtime_error("width and height are 2 to 20000");
    return run(size);
  } catch (const std::exception& error) {
    std::fprintf(stderr, "tiled_threads: %s\n", error.what());
    return 1;
  }
}
