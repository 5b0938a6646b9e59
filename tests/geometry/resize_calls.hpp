// SPDX-License-Identifier: MIT
// The resize operations called by name, sample type and layout.
#pragma once

#include <cstring>
#include <list>
#include <string>
#include <vector>

#include "support/arena.hpp"
#include "support/named_call.hpp"

namespace test::resize {

inline const std::vector<std::string> kTypes = {"8u", "16u", "16s", "32f", "64f"};
inline const std::vector<std::string> kNearestTypes = {"8u", "16u", "16s", "32f"};
inline const std::vector<int> kChannels = {1, 3, 4};

inline int sampleBytes(const std::string& type) {
  return type == "8u" ? 1 : type == "32f" ? 4 : type == "64f" ? 8 : 2;
}

inline NamedCall getSize(const std::string& type, LumiSize src, LumiSize dst, int interpolation,
                         int antialiasing, Lum32s* object, Lum32s* init) {
  NamedCall call("lumiResizeGetSize_" + type);
  call.size("srcSize", src).size("dstSize", dst).number("interpolation", interpolation);
  return call.number("antialiasing", antialiasing).pointer("objectSize", object).pointer("initSize", init);
}

inline NamedCall init(const std::string& kind, const std::string& type, LumiSize src, LumiSize dst,
                      void* object) {
  return NamedCall("lumiResize" + kind + "Init_" + type)
      .size("srcSize", src)
      .size("dstSize", dst)
      .pointer("object", object);
}

inline NamedCall getBufferSize(const std::string& type, const void* object, LumiSize tile, int channels,
                               Lum32s* bytes) {
  NamedCall call("lumiResizeGetBufferSize_" + type);
  call.pointer("object", object).size("dstSize", tile).number("channels", channels);
  return call.pointer("bufferSize", bytes);
}

inline NamedCall getSrcOffset(const std::string& type, const void* object, LumiPoint offset,
                              LumiPoint* result) {
  return NamedCall("lumiResizeGetSrcOffset_" + type)
      .pointer("object", object)
      .point("dstOffset", offset)
      .pointer("srcOffset", result);
}

inline NamedCall getSrcRoi(const std::string& type, const void* object, LumiPoint offset, LumiSize tile,
                           LumiPoint* srcOffset, LumiSize* srcSize) {
  NamedCall call("lumiResizeGetSrcRoi_" + type);
  call.pointer("object", object).point("dstOffset", offset).size("dstSize", tile);
  return call.pointer("srcOffset", srcOffset).pointer("srcSize", srcSize);
}

inline NamedCall getBorderSize(const std::string& type, const void* object, LumiBorderSize* result) {
  return NamedCall("lumiResizeGetBorderSize_" + type).pointer("object", object).pointer("borderSize", result);
}

inline std::string runName(const std::string& kind, const std::string& type, int channels) {
  return "lumiResize" + kind + "_" + type + "_C" + std::to_string(channels) + "R";
}

// A run that still lacks its images.
inline NamedCall apply(const std::string& kind, const std::string& type, int channels, LumiPoint offset,
                       LumiSize tile, const void* object, const void* scratch,
                       int border = lumiBorderReplicate) {
  NamedCall call(runName(kind, type, channels));
  if (kind == "Linear") call.number("border", border);
  call.point("dstOffset", offset).size("dstSize", tile);
  return call.pointer("object", object).pointer("buffer", scratch);
}

// Memory for a plan: as many bytes as the library asks for and no more, at any distance to the page's end.
class PlanMemory {
 public:
  PlanMemory(const std::string& kind, const std::string& type, LumiSize src, LumiSize dst,
             size_t fromEnd = 0) {
    Lum32s object = 0, unused = 0;
    status = getSize(type, src, dst, kind == "Linear" ? 2 : 1, 0, &object, &unused).run();
    if (status != lumStatusOk) return;
    bytes = static_cast<size_t>(object);
    arena_.emplace_back(bytes + fromEnd);
    Arena& arena = arena_.back();
    std::memset(arena.begin(), 0xA5, static_cast<size_t>(arena.end() - arena.begin()));
    arena.copyToTwin(arena.begin(), arena.end());
    at = arena.end() - fromEnd - bytes;
    status = init(kind, type, src, dst, at).run();
  }
  // Nothing but the block was written.
  bool staysInside() const {
    const Arena& arena = arena_.front();
    return !arena.firstDifference(arena.begin(), at) && !arena.firstDifference(at + bytes, arena.end());
  }

  LumStatus status = lumStatusOk;
  size_t bytes = 0;
  Byte* at = nullptr;

 private:
  std::list<Arena> arena_;
};

}  // namespace test::resize
