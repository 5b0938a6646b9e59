// SPDX-License-Identifier: MIT
// Runs of transforms of a family, `FFT` or `DFT`, against the model: members of one interface, whose sizes
// are orders of the one and lengths of the other.
#pragma once

#include <gtest/gtest.h>

#include <algorithm>
#include <cstring>
#include <map>
#include <string>
#include <vector>

#include "model/transforms/spectrum.hpp"
#include "support/arena.hpp"
#include "support/core_guard.hpp"
#include "support/member.hpp"
#include "support/named_faults.hpp"
#include "support/object_memory.hpp"

namespace test::spectra {

struct Family {
  std::string name;
  const char *width, *height;
  bool byOrder;

  double argument(int n) const { return byOrder ? std::log2(static_cast<double>(n)) : n; }
  NamedCall& sized(NamedCall&& call, LumiSize size, int flag) const {
    return call.number(width, argument(size.width))
        .number(height, argument(size.height))
        .number("flag", flag);
  }
  NamedCall getSize(const std::string& kind, LumiSize size, int flag, int* bytes) const {
    return sized(NamedCall("lumi" + name + "GetSize_" + kind), size, flag)
        .pointer("objectSize", bytes)
        .pointer("initSize", bytes + 1)
        .pointer("bufferSize", bytes + 2);
  }
  NamedCall init(const std::string& kind, LumiSize size, int flag, const void* scratch) const {
    return sized(NamedCall("lumi" + name + "Init_" + kind), size, flag).pointer("scratch", scratch);
  }
  NamedCall initAlloc(const std::string& kind, LumiSize size, int flag) const {
    return sized(NamedCall("lumi" + name + "InitAlloc_" + kind), size, flag);
  }
};

// A member that runs: its types and channels.
struct TransformRun {
  bool isComplex, inverse;
  std::string layout;  // C1, C3, C4 or AC4
  bool inPlace;
  bool ofIntegers;

  int stored() const { return (isComplex ? 2 : 1) * (layout.back() - '0'); }
  int used() const { return layout == "AC4" ? 3 : stored(); }
  int srcBytes() const { return ofIntegers && !inverse ? 1 : 4; }
  int dstBytes() const { return ofIntegers && inverse ? 1 : 4; }
  std::string kind() const { return isComplex ? "C_32fc" : ofIntegers ? "R_32s" : "R_32f"; }
  std::string nameOf(const Family& family) const {
    const std::string what = isComplex ? inverse ? "Inv_CToC" : "Fwd_CToC"
                             : inverse ? "Inv_PackToR"
                                       : "Fwd_RToPack";
    const std::string type = isComplex ? "32fc" : !ofIntegers ? "32f" : inverse ? "32s8u" : "8u32s";
    return "lumi" + family.name + what + "_" + type + "_" + layout + (inPlace ? "IR" : "R") +
           (ofIntegers ? "Sfs" : "");
  }
};

inline double factorOf(int flag, bool inverse, int n) {
  if (flag == 4) return 1 / std::sqrt(static_cast<double>(n));
  return flag == (inverse ? 2 : 1) ? 1.0 / n : 1.0;
}

// The samples of one channel as numbers, and the model's result for them.
inline std::vector<double> wanted(const TransformRun& member, const std::vector<double>& samples,
                                  LumiSize size, double factor) {
  const auto width = static_cast<size_t>(size.width), height = static_cast<size_t>(size.height);
  std::vector<double> result;
  if (member.isComplex) {
    model::Numbers x(width * height);
    for (size_t i = 0; i < x.size(); ++i) x[i] = {samples[2 * i], samples[2 * i + 1]};
    for (const std::complex<double>& f : model::transformedImage(x, width, height, member.inverse)) {
      result.push_back(f.real());
      result.push_back(f.imag());
    }
  } else if (member.inverse) {
    for (const auto& f :
         model::transformedImage(model::unpacked(samples, size.width, size.height), width, height, true))
      result.push_back(f.real());
  } else {
    const model::Numbers x(samples.begin(), samples.end());
    result = model::packed(model::transformedImage(x, width, height, false), size.width, size.height);
  }
  for (double& r : result) r *= factor;
  return result;
}

// An image that ends where memory does, or begins there.
class RunImage {
 public:
  RunImage(LumiSize size, int stored, int bytes, Random& random)
      : size_(size),
        stored_(stored),
        bytes_(bytes),
        step_(size.width * stored * bytes + random.pick(kGaps)),
        arena_(static_cast<size_t>(step_) * static_cast<size_t>(size.height)) {
    const int last = step_ * (size.height - 1) + size.width * stored * bytes;
    first_ = random.oneIn(2) ? arena_.begin() : arena_.end() - last;
    random.fill(arena_.begin(), static_cast<size_t>(arena_.end() - arena_.begin()));
    remember();
  }

  Byte* first() const { return first_; }
  int step() const { return step_; }
  void remember() const { arena_.copyToTwin(arena_.begin(), arena_.end()); }
  bool isUnchanged() const { return !arena_.firstDifference(arena_.begin(), arena_.end()); }

  double at(int i, int c) const { return valueAt(place(i, c)); }
  void set(int i, int c, double x) const {
    if (bytes_ == 1) {
      *place(i, c) = static_cast<Byte>(x);
    } else {
      const auto f = static_cast<float>(x);
      std::memcpy(place(i, c), &f, 4);
    }
  }
  Lum32s integer(int i, int c) const {
    Lum32s n = 0;
    std::memcpy(&n, place(i, c), 4);
    return n;
  }
  void setInteger(int i, int c, Lum32s n) const { std::memcpy(place(i, c), &n, 4); }
  // What was written there may stay.
  void accept(int i, int c) const {
    std::memcpy(arena_.twin(place(i, c)), place(i, c), static_cast<size_t>(bytes_));
  }

 private:
  static constexpr int kGaps[] = {0, 0, 4, 12, 3};
  Byte* place(int i, int c) const {
    return first_ + i / size_.width * step_ + (i % size_.width * stored_ + c) * bytes_;
  }
  double valueAt(const Byte* p) const {
    if (bytes_ == 1) return *p;
    float f = 0;
    std::memcpy(&f, p, 4);
    return f;
  }

  LumiSize size_;
  int stored_, bytes_, step_;
  Arena arena_;
  Byte* first_;
};

// The relative error of a whole image, in units of 2.5e-7 times the logarithm of its size. What is zero must
// be zero.
inline double relativeError(const std::vector<double>& got, const std::vector<double>& right, LumiSize size) {
  double errors = 0, all = 0;
  for (size_t i = 0; i < got.size(); ++i) {
    errors += (got[i] - right[i]) * (got[i] - right[i]);
    all += right[i] * right[i];
  }
  // An image of one sample is copied.
  const double stages = std::log2(static_cast<double>(size.width) * size.height);
  if (errors == 0) return 0;
  return std::sqrt(errors / all) / (2.5e-7 * std::max(stages, 0.5));
}

// One run, with scratch of the caller's or none; the greatest relative error of its channels goes to *worst.
inline void expectRun(const Family& family, const TransformRun& member, LumiSize size, Random& random,
                      double* worst) {
  const std::string name = member.nameOf(family);
  const int flag = 1 << random.below(4);
  const auto where = testing::Message()
                     << name << " " << size.width << "x" << size.height << " flag " << flag;
  ObjectSteps steps(random);
  int bytes[3];
  std::vector<Byte> scratch;
  NamedCall query = family.getSize(member.kind(), size, flag, bytes);
  ASSERT_EQ(query.run(), lumStatusOk) << where;
  scratch.resize(static_cast<size_t>(bytes[1]));
  ASSERT_EQ(steps.init(query, "objectSize", family.init(member.kind(), size, flag, scratch.data()), "object"),
            "")
      << where;
  int bufferSize = 0;
  ASSERT_EQ(steps.makeScratch(NamedCall("lumi" + family.name + "GetBufSize_" + member.kind())
                                  .pointer("object", steps.object().at())
                                  .pointer("bufferSize", &bufferSize),
                              "bufferSize"),
            "")
      << where;

  const int stored = member.stored(), used = member.used(), samples = size.width * size.height;
  const RunImage src(size, stored, 4, random), other(size, stored, 4, random);
  const RunImage& dst = member.inPlace ? src : other;
  const double amplitude = random.oneIn(4) ? 1e6 : 1;
  for (int i = 0; i < samples; ++i)
    for (int c = 0; c < used; ++c) src.set(i, c, amplitude * (random.below(20001) - 10000) / 10000);
  src.remember();

  // Complex samples are the two components of one channel.
  const int parts = member.isComplex ? 2 : 1;
  std::vector<std::vector<double>> right;
  const double factor =
      factorOf(flag, member.inverse, size.width) * factorOf(flag, member.inverse, size.height);
  for (int c = 0; c < used; c += parts) {
    std::vector<double> x;
    for (int i = 0; i < samples; ++i)
      for (int part = 0; part < parts; ++part) x.push_back(src.at(i, c + part));
    right.push_back(wanted(member, x, size, factor));
  }

  NamedCall call(name);
  if (member.inPlace)
    call.image("srcDst", src.first(), src.step());
  else
    call.image("src", src.first(), src.step()).image("dst", dst.first(), dst.step());
  const bool ownScratch = random.oneIn(4);
  call.pointer("buffer", nullptr);
  if (ownScratch) {
    call.pointer("object", steps.object().at());
    ASSERT_EQ(call.run(), lumStatusOk) << where;
  } else {
    ASSERT_EQ(steps.run(call, "object", "buffer"), "") << where;
  }
  for (int c = 0; c < used; c += parts) {
    std::vector<double> got;
    for (int i = 0; i < samples; ++i) {
      for (int part = 0; part < parts; ++part) {
        got.push_back(dst.at(i, c + part));
        dst.accept(i, c + part);
      }
    }
    const double error = relativeError(got, right[static_cast<size_t>(c / parts)], size);
    ASSERT_LT(error, 1) << where << ", channel " << c;
    *worst = std::max(*worst, error);
  }
  ASSERT_TRUE(dst.isUnchanged()) << where << ": alpha, or what lies beside the image";
  ASSERT_TRUE(src.isUnchanged()) << where << ": the source";
}

// All members of floats.
inline std::vector<TransformRun> floatRuns() {
  std::vector<TransformRun> all;
  for (const bool inverse : {false, true})
    for (const bool inPlace : {false, true}) {
      all.push_back({true, inverse, "C1", inPlace, false});
      for (const char* layout : {"C1", "C3", "C4", "AC4"})
        all.push_back({false, inverse, layout, inPlace, false});
    }
  return all;
}

// A run of integers: the model's result within what floats of that size miss it by, rounded and limited.
inline void expectIntegers(const Family& family, const TransformRun& member, LumiSize size, Random& random) {
  const std::string name = member.nameOf(family);
  const int flag = 1 << random.below(4), scaleFactor = random.between(-3, 6);
  const auto where = testing::Message() << name << " " << size.width << "x" << size.height << " flag " << flag
                                        << " scale factor " << scaleFactor;
  void* object = nullptr;
  ASSERT_EQ(family.initAlloc("R_32s", size, flag).pointer("object", &object).run(), lumStatusOk) << where;
  int bufferSize = 0;
  ASSERT_EQ(NamedCall("lumi" + family.name + "GetBufSize_R_32s")
                .pointer("object", object)
                .pointer("bufferSize", &bufferSize)
                .run(),
            lumStatusOk)
      << where;
  const GuardedBlock buffer(bufferSize, random.below(64), random);
  const int stored = member.stored(), used = member.used(), samples = size.width * size.height;
  const RunImage src(size, stored, member.srcBytes(), random), dst(size, stored, member.dstBytes(), random);
  std::vector<std::vector<double>> right;
  const double factor =
      factorOf(flag, member.inverse, size.width) * factorOf(flag, member.inverse, size.height);
  for (int c = 0; c < used; ++c) {
    std::vector<double> x;
    for (int i = 0; i < samples; ++i) {
      if (member.inverse) src.setInteger(i, c, random.between(-4000, 9000));
      x.push_back(member.inverse ? src.integer(i, c) : src.at(i, c));
    }
    right.push_back(wanted(member, x, size, factor * std::ldexp(1, -scaleFactor)));
  }
  src.remember();
  NamedCall call(name);
  call.image("src", src.first(), src.step()).image("dst", dst.first(), dst.step());
  call.number("scaleFactor", scaleFactor).pointer("object", object);
  call.pointer("buffer", random.oneIn(4) ? nullptr : buffer.at());
  ASSERT_EQ(call.run(), lumStatusOk) << where;
  ASSERT_TRUE(buffer.staysInside()) << where;
  for (int c = 0; c < used; ++c) {
    const std::vector<double>& values = right[static_cast<size_t>(c)];
    double all = 0;
    for (const double x : values) all += x * x;
    // Of a single value, the error may be all of the image's.
    const double error = 2.5e-7 * std::log2(4.0 * samples) * std::sqrt(all);
    for (int i = 0; i < samples; ++i) {
      const double x = values[static_cast<size_t>(i)];
      const double low = member.inverse ? 0 : -2147483648.0, high = member.inverse ? 255 : 2147483647.0;
      const double got = member.inverse ? dst.at(i, c) : dst.integer(i, c);
      ASSERT_GE(got, std::min(std::max(x - 0.5 - error, low), high - 128)) << where << " at " << i;
      ASSERT_LE(got, std::max(std::min(x + 0.5 + error, high), low)) << where << " at " << i;
      dst.accept(i, c);
    }
  }
  ASSERT_TRUE(dst.isUnchanged()) << where << ": alpha, or what lies beside the image";
  ASSERT_TRUE(src.isUnchanged()) << where << ": the source";
  ASSERT_EQ(NamedCall("lumi" + family.name + "Free_R_32s").pointer("object", object).run(), lumStatusOk)
      << where;
}

inline std::vector<TransformRun> integerRuns() {
  std::vector<TransformRun> all;
  for (const bool inverse : {false, true})
    for (const char* layout : {"C1", "C3", "C4", "AC4"}) all.push_back({false, inverse, layout, false, true});
  return all;
}

// Objects of the other kinds, in the place of a member's.
inline void expectRunStatuses(const Family& family) {
  std::map<std::string, void*> objects;
  for (const std::string kind : {"C_32fc", "R_32f", "R_32s"})
    ASSERT_EQ(family.initAlloc(kind, {4, 2}, 8).pointer("object", &objects[kind]).run(), lumStatusOk);
  std::vector<TransformRun> all = floatRuns();
  for (const TransformRun& member : integerRuns()) all.push_back(member);
  for (const TransformRun& member : all) {
    SCOPED_TRACE(member.nameOf(family));
    const CoreGuard guard;
    const std::vector<Byte> before(64 * 4, 0x3c);
    std::vector<Byte> src = before, dst = before;
    NamedCall right(member.nameOf(family));
    right.pointer("object", objects[member.kind()]).pointer("buffer", nullptr);
    std::vector<NamedFault> faults = {nullFault("object")};
    for (const auto& [kind, object] : objects) {
      if (kind == member.kind()) continue;
      void* const other = object;
      faults.push_back({[=](NamedCall& c) { c.pointer("object", other); }, lumStatusBadContext, 1});
    }
    faults[0].exclusive = 1;
    const auto image = [&](const char* name, std::vector<Byte>& bytes, int exclusive) {
      right.image(name, bytes.data(), 64);
      Byte* const first = bytes.data();
      faults.push_back({[=](NamedCall& c) { c.image(name, nullptr, 64); }, lumStatusNullPointer, exclusive});
      for (const int step : {0, -64})
        faults.push_back({[=](NamedCall& c) { c.image(name, first, step); }, lumStatusBadStep, exclusive});
    };
    if (member.inPlace) {
      image("srcDst", dst, 2);
    } else {
      image("src", src, 2);
      image("dst", dst, 3);
    }
    // Null pointers of both images come before steps.
    std::stable_sort(faults.begin() + 3, faults.end(), [](const NamedFault& a, const NamedFault& b) {
      return a.status == lumStatusNullPointer && b.status != lumStatusNullPointer;
    });
    expectInOrder(right, faults, [&](LumStatus) { ASSERT_EQ(dst, before); });
    testcore::failAllocation(1);
    EXPECT_EQ(right.run(), lumStatusNoMemory);
    EXPECT_EQ(dst, before);
    EXPECT_EQ(right.run(), lumStatusOk);
    EXPECT_EQ(testcore::counts().liveBlocks, 0);
  }
  for (const auto& [kind, object] : objects) {
    for (const auto& [other, wrong] : objects) {
      if (other == kind) continue;
      EXPECT_EQ(NamedCall("lumi" + family.name + "Free_" + kind).pointer("object", wrong).run(),
                lumStatusBadContext);
      int bytes = -7;
      NamedCall query("lumi" + family.name + "GetBufSize_" + kind);
      EXPECT_EQ(query.pointer("object", wrong).pointer("bufferSize", &bytes).run(), lumStatusBadContext);
      EXPECT_EQ(bytes, -7);
    }
    EXPECT_EQ(NamedCall("lumi" + family.name + "Free_" + kind).pointer("object", nullptr).run(),
              lumStatusNullPointer);
  }
  for (const auto& [kind, object] : objects)
    EXPECT_EQ(NamedCall("lumi" + family.name + "Free_" + kind).pointer("object", object).run(), lumStatusOk);
}

inline void expectAllocatedObjects(const Family& family, const NamedCall& right, const std::string& kind) {
  const std::string result = expectAllocatedLife(
      right, "object", NamedCall("lumi" + family.name + "Free_" + kind), "object", [&](void* made) {
        int bytes = -7;
        NamedCall query("lumi" + family.name + "GetBufSize_" + kind);
        query.pointer("object", made).pointer("bufferSize", &bytes);
        EXPECT_EQ(query.run(), lumStatusOk);
        EXPECT_GT(bytes, 0);
        EXPECT_EQ(NamedCall(query).pointer("bufferSize", nullptr).run(), lumStatusNullPointer);
        EXPECT_EQ(NamedCall(query).pointer("object", nullptr).run(), lumStatusNullPointer);
      });
  EXPECT_EQ(result, "");
}

inline void addCoveredMembers(const Family& family) {
  const std::string name = "lumi" + family.name;
  for (const TransformRun& member : floatRuns()) addCovered({member.nameOf(family)});
  for (const TransformRun& member : integerRuns()) addCovered({member.nameOf(family)});
  for (const std::string kind : {"C_32fc", "R_32f", "R_32s"})
    for (const std::string what : {"InitAlloc_", "Free_", "GetBufSize_"}) addCovered({name + what + kind});
  for (const std::string kind : {"C_32fc", "R_32f"})
    addCovered({name + "GetSize_" + kind, name + "Init_" + kind});
}

}  // namespace test::spectra
