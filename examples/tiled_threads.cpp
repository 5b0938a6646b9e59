// SPDX-License-Identifier: MIT
// Resizes a large picture in tiles, first on one thread and then on all cores, and prints the speed-up.
// A specification object is made once and shared: runs only read it. Each thread has scratch of its own.
//   tiled_threads [width height]
#include <lumi.h>

#include <algorithm>
#include <atomic>
#include <chrono>
#include <cstdio>
#include <cstdlib>
#include <stdexcept>
#include <thread>
#include <vector>

#include "resizer.hpp"

namespace {

struct Picture {
  LumiSize size;
  int step;
  std::vector<Lum8u> bytes;

  explicit Picture(LumiSize s)
      : size(s), step(3 * s.width), bytes(static_cast<size_t>(step) * static_cast<size_t>(s.height)) {}
};

// Bands of full width keep the threads' memory apart.
constexpr int kBand = 64;

double secondsOf(const Resizer& resizer, const Picture& from, Picture& to, unsigned threads) {
  std::atomic<int> next{0};
  const auto work = [&] {
    std::vector<Lum8u> scratch = resizer.scratchFor({to.size.width, std::min(kBand, to.size.height)});
    for (int y; (y = next.fetch_add(kBand)) < to.size.height;)
      check(resizer.run(from.bytes.data(), from.step, to.bytes.data(), to.step, {0, y},
                        {to.size.width, std::min(kBand, to.size.height - y)}, scratch),
            resizer.runName());
  };
  const auto start = std::chrono::steady_clock::now();
  std::vector<std::thread> helpers;
  for (unsigned i = 1; i < threads; ++i) helpers.emplace_back(work);
  work();
  for (std::thread& helper : helpers) helper.join();
  return std::chrono::duration<double>(std::chrono::steady_clock::now() - start).count();
}

double best(const Resizer& resizer, const Picture& from, Picture& to, unsigned threads) {
  double least = secondsOf(resizer, from, to, threads);
  for (int i = 0; i < 6; ++i) least = std::min(least, secondsOf(resizer, from, to, threads));
  return least;
}

int run(LumiSize size) {
  Picture from(size), onOne({size.width * 3 / 2, size.height * 3 / 2}), onAll(onOne.size);
  for (size_t i = 0; i < from.bytes.size(); ++i) from.bytes[i] = static_cast<Lum8u>(i * i >> 7);
  const Resizer resizer(from.size, onOne.size, lumInterpLinear);
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
