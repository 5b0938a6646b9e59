// SPDX-License-Identifier: MIT
// Memory from the core library: scratch of one call, and objects that live until their Free operation.
#pragma once

#include <cstdint>

#include "frame/object.hpp"
#include "lumcore.h"
#include "lumi/types.h"

namespace lumi {

// A block of that size; null where it cannot be had, or no core library could be asked for as much.
inline void* allocate(int64_t bytes) {
  return bytes >= 0 && bytes <= INT32_MAX ? lumMalloc(static_cast<int32_t>(bytes)) : nullptr;
}

// Scratch that is given back on every way out of a call:
//   const Scratch scratch(bytes);
//   if (!scratch) return lumStatusNoMemory;
//   Tables tables(scratch.data());
class Scratch {
 public:
  explicit Scratch(int64_t bytes) : data_(allocate(bytes)) {}
  ~Scratch() {
    if (data_) lumFree(data_);
  }
  Scratch(const Scratch&) = delete;
  Scratch& operator=(const Scratch&) = delete;

  explicit operator bool() const { return data_ != nullptr; }
  void* data() const { return data_; }

 private:
  void* const data_;
};

// An InitAlloc operation: hands out the object that init(pointer) made in a block of that size, or gives the
// block back where it fails. Nothing is written to *object but a good one.
template <typename Opaque, typename Init>
LumStatus allocateObject(Opaque** object, int64_t bytes, const Init& init) {
  auto* const made = static_cast<Opaque*>(allocate(bytes));
  if (!made) return lumStatusNoMemory;
  const LumStatus status = init(made);
  if (status < 0)
    lumFree(made);
  else
    *object = made;
  return status;
}

// A Free operation: the identifier is cleared, so that what still points there is no object any more.
template <typename Object, typename Opaque>
LumStatus freeObject(Opaque* object, Lum32s identifier) {
  if (!object) return lumStatusNullPointer;
  Object* const there = objectAt<Object>(object);
  if (there->identifier != identifier) return lumStatusBadContext;
  there->identifier = 0;
  lumFree(object);
  return lumStatusOk;
}

}  // namespace lumi
