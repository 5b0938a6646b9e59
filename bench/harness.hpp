// SPDX-License-Identifier: MIT
// What a benchmark row is made of. A family registers its rows once:
//
//   const Family family("set", [](Suite& suite) {
//     suite.row("fill 8u C1", kEverySize, [](Scene& s) {
//       const auto dst = s.output<Lum8u>(1);
//       s.ours([=] { lumiSet_8u_C1R(77, dst.data(), dst.step, dst.roi); });
//       s.peer(libc::fill, dst, Value{77});
//       s.peer(loop::fill<1>(dst, Value{77}));
//     });
//   });
//
// Before a row is timed, every peer must have stored the same bytes as our call. Bytes moved follow from
// the images: each input counts once as read, each output once as written, whole images both.
#pragma once

#include <cstddef>
#include <functional>
#include <string>
#include <utility>
#include <vector>

#include "bench/image.hpp"

namespace bench {

using Batch = std::function<void(int times)>;

template <typename Work>
Batch repeated(Work work) {
  return [work](int times) mutable {
    for (; times > 0; --times) {
      work();
      asm volatile("" ::: "memory");
    }
  };
}

// The same work done by another library. An adapter gives back an empty one where its library has no such
// work.
struct Peer {
  std::string name;
  Batch run;
  std::string differs;  // why its output need not equal ours; empty: it must
};

template <typename Work>
Peer peer(const char* name, Work work) {
  return {name, repeated(work), {}};
}

// A library to compare with, and whether it now uses instructions above our level.
struct Library {
  std::string name, version;
  bool aboveLevel;
};

enum class Placement { tight, padded, misaligned };
enum class MaskKind { random, blobs };

struct Timing {
  std::string name;
  double nanoseconds;  // of one call
  bool equal;          // stored the same bytes as ours
  std::string differs;
};

struct Result {
  double bytes;
  double limitNanoseconds;      // of the same traffic without any work
  std::vector<Timing> timings;  // ours first
};

// One row at one size: its images, our call and the peers'.
class Scene {
 public:
  Scene(LumiSize roi, Placement placement);

  LumiSize roi() const { return roi_; }
  template <typename T>
  Image<T> input(int channels) {
    return typed<T>(allocate(depthOf<T>(), channels, false));
  }
  // Images that have another size than the row.
  template <typename T>
  Image<T> inputOf(int channels, LumiSize size) {
    return withRoi(size, [&] { return input<T>(channels); });
  }
  template <typename T>
  Image<T> output(int channels) {
    return typed<T>(allocate(depthOf<T>(), channels, true));
  }
  template <typename T>
  Image<T> outputOf(int channels, LumiSize size) {
    return withRoi(size, [&] { return output<T>(channels); });
  }
  template <typename T>
  Planes<T> inputPlanes(int count) {
    return planes<T>(count, false);
  }
  template <typename T>
  Planes<T> outputPlanes(int count) {
    return planes<T>(count, true);
  }
  Image<Lum8u> mask(MaskKind kind);  // half of the pixels chosen
  Image<Lum8u> inputBits() { return bits(false); }
  Image<Lum8u> outputBits() { return bits(true); }

  template <typename Work>
  void ours(Work work) {
    candidates_.insert(candidates_.begin(), bench::peer("ours", work));
  }
  void peer(Peer candidate) {
    if (candidate.run) candidates_.push_back(std::move(candidate));
  }
  // Adapters are weak: null when their library is not at hand.
  template <typename... Parameters, typename... Arguments>
  void peer(Peer (*adapter)(Parameters...), const Arguments&... arguments) {
    if (adapter != nullptr) peer(adapter(arguments...));
  }

  Result measure(double budgetSeconds);

 private:
  template <typename Make>
  auto withRoi(LumiSize size, const Make& make) {
    std::swap(roi_, size);
    const auto made = make();
    std::swap(roi_, size);
    return made;
  }

  struct Block {
    Lum8u* bytes;
    std::size_t size;
    Depth depth;
  };

  View allocate(Depth depth, int channels, bool isOutput);
  Image<Lum8u> bits(bool isOutput);  // as many as the ROI has pixels, in whole bytes
  std::vector<bool> comparePeers();

  template <typename T>
  static Image<T> typed(const View& view) {
    return Image<T>{view};
  }
  template <typename T>
  Planes<T> planes(int count, bool isOutput) {
    Planes<T> result{{}, {}, 0, roi_};
    for (int i = 0; i < count; ++i) {
      const Image<T> plane = typed<T>(allocate(depthOf<T>(), 1, isOutput));
      result.views.push_back(plane);
      result.data[i] = plane.data();
      result.step = plane.step;
    }
    return result;
  }

  LumiSize roi_;
  Placement placement_;
  std::vector<Peer> candidates_;
  std::vector<Block> outputs_;
  std::size_t read_ = 0, written_ = 0;
};

inline constexpr LumiSize kCall{16, 16}, kSmall{64, 64}, kCached{256, 32}, kHd{1920, 1080}, k8K{7680, 4320};
inline const std::vector<LumiSize> kEverySize{kCall, kSmall, kCached, kHd, k8K};
inline const std::vector<LumiSize> kUpToHd{kCall, kSmall, kCached, kHd};
inline const std::vector<LumiSize> kCachedAndHd{kCached, kHd};

class Suite {
 public:
  using Build = std::function<void(Scene&)>;
  struct Row {
    std::string family, name;
    std::vector<LumiSize> sizes;
    Placement placement;
    Build build;
  };

  void row(std::string name, std::vector<LumiSize> sizes, Build build,
           Placement placement = Placement::tight);
  void startFamily(std::string name) { family_ = std::move(name); }
  const std::vector<Row>& rows() const { return rows_; }

 private:
  std::string family_;
  std::vector<Row> rows_;
};

// Rows of all families, in the order of the source list.
Suite& suite();

struct Family {
  Family(const char* name, void (*rows)(Suite&)) {
    suite().startFamily(name);
    rows(suite());
  }
};

}  // namespace bench
