// SPDX-License-Identifier: MIT
// Memory from the core library: scratch of one call, and objects that live until their Free operation.
#pragma once

#include <cstdint>

#include "frame/object.hpp"
#include "lumi/types.h"

namespace lumi {

// A block of that size; null where it cannot be had, or no core library could be asked for as much.
void* allocate(int64_t bytes);
// Gives back a block; of null nothing.
void release(void* block);

// Scratch that is given back on every way out of a call:
//   const Scratch scratch(bytes);
//   if (!scratch) return lumStatusNoMemory;
//   Tables tables(scratch.data());
class Scratch {
 public:
  explicit Scratch(int64_t bytes) : data_(allocate(bytes)) {}
  ~Scratch() { release(data_); }
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
    release(made);
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
  release(object);
  return lumStatusOk;
}

}  // namespace lumi
