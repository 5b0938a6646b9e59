// SPDX-License-Identifier: MIT
#include "support/object_memory.hpp"

#include "support/core_guard.hpp"
#include "support/fault.hpp"

namespace test {
namespace {

// Nothing, or how a call went wrong.
std::string statusOf(const NamedCall& call, LumStatus expected, const char* what) {
  LumStatus status = expected;
  if (const auto fault = faultOf([&] { status = call.run(); }))
    return std::string(what) + ": memory fault at " +
           std::to_string(reinterpret_cast<uintptr_t>(fault->address));
  if (status == expected) return {};
  return std::string(what) + ": status " + std::to_string(status) + ", not " + std::to_string(expected);
}

}  // namespace

GuardedBlock::GuardedBlock(int bytes, int phase, Random& random)
    : arena_(std::make_unique<Arena>(static_cast<size_t>(bytes + phase))),
      at_(arena_->end() - phase - bytes),
      bytes_(bytes) {
  random.fill(arena_->begin(), static_cast<size_t>(arena_->end() - arena_->begin()));
  remember();
}

bool GuardedBlock::staysInside() const {
  return !arena_->firstDifference(arena_->begin(), at_) &&
         !arena_->firstDifference(at_ + bytes_, arena_->end());
}

bool GuardedBlock::isUnchanged() const { return !arena_->firstDifference(arena_->begin(), arena_->end()); }

std::string ObjectSteps::ask(NamedCall& query, const std::string& size,
                             std::unique_ptr<GuardedBlock>& block) {
  Lum32s bytes = -1;
  const std::string failure = statusOf(query.pointer(size, &bytes), lumStatusOk, "query");
  if (!failure.empty()) return failure;
  if (bytes < 0) return "query: a size of " + std::to_string(bytes);
  block = std::make_unique<GuardedBlock>(bytes, random_.oneIn(3) ? 0 : random_.below(64), random_);
  return {};
}

std::string ObjectSteps::init(NamedCall query, const std::string& size, NamedCall init,
                              const std::string& object) {
  std::string failure = ask(query, size, object_);
  if (failure.empty()) failure = statusOf(init.pointer(object, object_->at()), lumStatusOk, "Init");
  if (failure.empty() && !object_->staysInside()) failure = "Init: memory beside the object was written";
  if (failure.empty()) object_->remember();
  return failure;
}

std::string ObjectSteps::makeScratch(NamedCall query, const std::string& size) {
  return ask(query, size, scratch_);
}

std::string ObjectSteps::run(NamedCall run, const std::string& object, const std::string& scratch,
                             LumStatus expected) {
  run.pointer(object, object_->at());
  if (scratch_) {
    random_.fill(scratch_->at(), static_cast<size_t>(scratch_->bytes()));
    scratch_->remember();
    run.pointer(scratch, scratch_->at());
  }
  object_->setWritable(false);
  std::string failure = statusOf(run, expected, "run");
  object_->setWritable(true);
  if (failure.empty() && scratch_ && !scratch_->staysInside())
    failure = "run: memory beside the scratch was written";
  return failure;
}

std::string expectAllocatedLife(NamedCall init, const std::string& object, NamedCall free,
                                const std::string& freed, const std::function<void(void*)>& use) {
  const CoreGuard guard;
  void* made = nullptr;
  init.pointer(object, &made);
  std::string failure = statusOf(init, lumStatusOk, "Init");
  if (!failure.empty()) return failure;
  const int64_t allocations = testcore::counts().allocations;
  if (allocations == 0 || !made) return "Init: nothing was allocated";
  use(made);
  failure = statusOf(free.pointer(freed, made), lumStatusOk, "Free");
  if (!failure.empty()) return failure;
  if (testcore::counts().liveBlocks != 0 || testcore::counts().strayFrees != 0)
    return "Free: does not give back what Init allocated";
  for (int n = 1; n <= allocations; ++n) {
    testcore::reset();
    testcore::failAllocation(n);
    int any = 0;
    made = &any;
    failure = statusOf(init, lumStatusNoMemory, "Init without memory");
    if (!failure.empty()) return failure;
    if (testcore::counts().liveBlocks != 0) return "Init without memory: leaves a block behind";
    if (made != nullptr && made != &any) return "Init without memory: tells an object";
  }
  return {};
}

}  // namespace test
