// SPDX-License-Identifier: MIT
// Times every row that the filter chooses and writes one JSON object to standard output.
//   lumi_bench [--filter REGEX] [--quick] [--held] [--list]
#include <cstdio>
#include <cstring>
#include <regex>

#include "bench/harness.hpp"
#include "bench/peers/fftw.hpp"
#include "bench/peers/libc.hpp"
#include "bench/peers/opencv.hpp"
#include "bench/peers/pixman.hpp"
#include "bench/peers/yuv.hpp"
#include "bench/peers/zimg.hpp"

namespace {

using namespace bench;

struct Options {
  std::regex filter{""};
  bool quick = false, held = false, list = false;
};

std::string title(const Suite::Row& row, LumiSize size) {
  return row.name + " " + std::to_string(size.width) + "x" + std::to_string(size.height);
}

bool isChosen(const Options& options, const Suite::Row& row, LumiSize size) {
  const bool usual = size.width == kCached.width || size.width == kHd.width;
  return (usual || !options.quick) && std::regex_search(title(row, size), options.filter);
}

// Large images need a longer look: a sample takes milliseconds.
double budget(const Options& options, LumiSize size) {
  const double seconds = size.width <= kCached.width ? 0.03 : size.width <= kHd.width ? 0.1 : 0.2;
  return options.quick ? seconds / 2 : seconds;
}

const char* boolean(bool value) { return value ? "true" : "false"; }

std::vector<Library> libraries() {
  std::vector<Library> all;
  for (const auto library :
       {opencv::library, yuv::library, pixman::library, zimg::library, fftw::library, libc::library}) {
    if (library != nullptr) all.push_back(library());
  }
  return all;
}

void print(const Suite::Row& row, LumiSize size, const Result& result, bool isFirst) {
  std::printf(
      "%s\n    {\"family\": \"%s\", \"name\": \"%s\", \"width\": %d, \"height\": %d, \"bytes\": %.0f, "
      "\"limit\": %.2f, \"ns\": {",
      isFirst ? "" : ",", row.family.c_str(), row.name.c_str(), size.width, size.height, result.bytes,
      result.limitNanoseconds);
  const char* separator = "";
  for (const Timing& timing : result.timings) {
    std::printf("%s\"%s\": %.2f", separator, timing.name.c_str(), timing.nanoseconds);
    separator = ", ";
  }
  std::printf("}, \"differs\": {");
  separator = "";
  for (const Timing& timing : result.timings) {
    if (timing.equal) continue;
    std::printf("%s\"%s\": \"%s\"", separator, timing.name.c_str(), timing.differs.c_str());
    separator = ", ";
  }
  std::printf("}}");
  std::fflush(stdout);
}

// What the peers themselves say of the instructions they will use.
bool isHeld() {
  bool held = true;
  for (const Library& library : libraries()) {
    if (library.aboveLevel) std::fprintf(stderr, "bench: %s is not held to AVX\n", library.name.c_str());
    held = held && !library.aboveLevel;
  }
  return held;
}

int run(const Options& options) {
  if (opencv::prepare != nullptr) opencv::prepare();
  for (const auto hold : {yuv::hold, zimg::hold}) {
    if (options.held && hold != nullptr) hold();
  }
  if (options.held && !isHeld()) return 2;
  std::printf("{\"word\": %d, \"held\": %s, \"libraries\": [", static_cast<int>(sizeof(void*)) * 8,
              boolean(options.held));
  const char* separator = "";
  for (const Library& library : libraries()) {
    std::printf("%s{\"name\": \"%s\", \"version\": \"%s\", \"aboveLevel\": %s}", separator,
                library.name.c_str(), library.version.c_str(), boolean(library.aboveLevel));
    separator = ", ";
  }
  std::printf("],\n  \"rows\": [");
  bool isFirst = true;
  for (const Suite::Row& row : suite().rows()) {
    for (const LumiSize size : row.sizes) {
      if (!isChosen(options, row, size)) continue;
      Scene scene(size, row.placement);
      row.build(scene);
      print(row, size, scene.measure(budget(options, size)), isFirst);
      isFirst = false;
    }
  }
  std::printf("\n  ]}\n");
  return 0;
}

int list(const Options& options) {
  for (const Suite::Row& row : suite().rows()) {
    for (const LumiSize size : row.sizes) {
      if (isChosen(options, row, size)) std::puts(title(row, size).c_str());
    }
  }
  return 0;
}

}  // namespace

int main(int count, char** arguments) {
  Options options;
  for (int i = 1; i < count; ++i) {
    const std::string word = arguments[i];
    if (word == "--quick")
      options.quick = true;
    else if (word == "--held")
      options.held = true;
    else if (word == "--list")
      options.list = true;
    else if (word == "--filter" && i + 1 < count)
      options.filter = arguments[++i];
    else {
      std::fprintf(stderr, "usage: lumi_bench [--filter REGEX] [--quick] [--held] [--list]\n");
      return 2;
    }
  }
  return options.list ? list(options) : run(options);
}
