// SPDX-License-Identifier: MIT
#pragma once

#include <memory>
#include <optional>
#include <string>
#include <vector>

#include "support/arena.hpp"
#include "support/case.hpp"

namespace test {

// The guarded memory in which members are run and compared with their models, reused from case to case.
class Stage {
 public:
  explicit Stage(size_t largestImage);

  // Runs the member and its model; what went wrong, or nothing. Where a refusal is expected, nothing but that
  // status may come of the call.
  std::optional<std::string> run(const Member& member, const Case& c,
                                 std::optional<LumStatus> refusal = std::nullopt);

  // Whether every byte of every arena, far from the images too, is as the models left it.
  std::optional<std::string> compareEverything() const;

 private:
  // An image in its arena, and the bytes around it that are filled and watched.
  struct Placed {
    std::string role;
    const Arena* arena;
    Byte* first;
    int step, rowBytes, rows;
    Byte *low, *high;
    bool isScratch = false;
  };

  Placed place(std::string role, const Arena& arena, const Placement& where, int step, int rowBytes,
               int rows) const;
  Byte* placeSource(const Member& member, const Case& c, Call& call, int plane);
  Byte* placeAround(const Member& member, const Case& c, const Call& call, const char* role,
                    const Arena& arena, const Placement& where, int step, const Operand& operand);
  void placeImages(const Member& member, const Case& c, Call& call);
  void placeValues(const Member& member, const Case& c, Call& call, Random& random);
  void nameChoices(const Member& member, const Case& c, Call& call) const;
  void placeBlocks(const Member& member, const Case& c, Call& call, Random& random);
  void fillMask(const Call& call, MaskKind kind, Random& random) const;
  Call onTwins(const Member& member, const Call& call) const;
  Byte* twin(const Byte* at) const;
  std::optional<std::string> compare(const Member& member) const;
  template <typename T>
  void equateNaNsOf(const Placed& placed) const;
  void equateNaNs(const Member& member, const Placed& placed) const;
  template <typename T>
  void acceptWithin(const Call::Block& block) const;
  void acceptWithinTolerances(const Member& member, const Call& call) const;
  std::string where(const void* fault) const;
  void makeEqual() const;

  std::vector<std::unique_ptr<Arena>> arenas_;
  Arena *src_[kMaxPlanes], *src2_, *dst_[kMaxPlanes], *mask_, *values_, *planes_;
  std::vector<Arena*> blocks_;
  std::vector<Placed> placed_;
};

}  // namespace test
