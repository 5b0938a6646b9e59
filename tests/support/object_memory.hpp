// SPDX-License-Identifier: MIT
// Objects as the interface has them: a query tells sizes, Init builds the object in the caller's memory, runs
// only read it and work in the caller's scratch. Both blocks are exactly as large as told, at any address.
#pragma once

#include <functional>
#include <memory>
#include <string>

#include "support/arena.hpp"
#include "support/named_call.hpp"
#include "support/random.hpp"

namespace test {

// A block between inaccessible pages, as far from the last byte of memory as the phase says. What lies beside
// it is watched.
class GuardedBlock {
 public:
  GuardedBlock(int bytes, int phase, Random& random);

  Byte* at() const { return at_; }
  int bytes() const { return bytes_; }
  // Nothing but the block was written since it was made.
  bool staysInside() const;
  // Nothing was written since it was remembered, or made.
  bool isUnchanged() const;
  void remember() const { arena_->copyToTwin(arena_->begin(), arena_->end()); }
  // Whether the pages may be written.
  void setWritable(bool writable) const { arena_->setWritable(writable); }

 private:
  std::unique_ptr<Arena> arena_;
  Byte* at_;
  int bytes_;
};

// The steps of an object. Each returns what went wrong, or nothing; sizes are 32-bit numbers.
class ObjectSteps {
 public:
  explicit ObjectSteps(Random& random) : random_(random) {}

  // Makes memory of the size that the query tells through its argument `size`, and builds the object there.
  std::string init(NamedCall query, const std::string& size, NamedCall init, const std::string& object);
  // The same for the scratch of the runs that follow.
  std::string makeScratch(NamedCall query, const std::string& size);
  // A run with the object, which is read-only meanwhile, and with any bytes in the scratch if there is some.
  std::string run(NamedCall run, const std::string& object, const std::string& scratch,
                  LumStatus expected = lumStatusOk);

  const GuardedBlock& object() const { return *object_; }
  const GuardedBlock& scratch() const { return *scratch_; }

 private:
  std::string ask(NamedCall& query, const std::string& size, std::unique_ptr<GuardedBlock>& block);

  Random& random_;
  std::unique_ptr<GuardedBlock> object_, scratch_;
};

// Init that allocates, and Free: each allocation fails in turn, which makes no object and leaves nothing
// allocated; a whole life leaves nothing allocated either. `use` runs in between, with the object.
std::string expectAllocatedLife(NamedCall init, const std::string& object, NamedCall free,
                                const std::string& freed, const std::function<void(void*)>& use);

}  // namespace test
