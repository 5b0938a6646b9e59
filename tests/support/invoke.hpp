// SPDX-License-Identifier: MIT
// Any export called through one form, so that a test can walk all of them by the generated rows.
#pragma once

#include <cstdint>
#include <cstring>
#include <initializer_list>
#include <string>
#include <type_traits>
#include <utility>
#include <vector>

#include "lumi.h"

namespace test {

// What an argument is: decides which faults it can have.
enum class Kind {
  Image,
  Planes,
  Values,
  Value,
  Step,
  Offset,  // of the first pixel's bit in an image of bits
  Size,
  Number,
  Lower,  // bounds of a range
  Upper,
  Pointer,
  Optional
};

// A step of the order in which an operation checks its arguments.
// Own: an order that the general words do not tell; the family's own tests do.
enum class Check { Null, Size, Width, Step, Offset, Range, Frame, Value, Own };

// A value that a check finds although nothing general is wrong with it; a number is the width.
struct Refused {
  Check by;
  LumiSize value;
};

struct Argument {
  Kind kind;
  const char* name;
  int extra;  // planes of a planar argument, values of an array of them, a valid value of a number
  std::vector<Refused> refused;
};

// A value for any argument.
struct Slot {
  void* pointer = nullptr;
  void* planes[4] = {};
  void* planeArray = nullptr;  // an array elsewhere, instead of the planes here
  bool planesNull = false;
  int number = 0;
  const void* value = nullptr;  // the bytes of an argument by value; without them, its number
  LumiSize size = {};
  LumiPoint point = {};
};

using AnyFunction = void (*)();

// The words of a call as the platform's convention wants them.
struct PackedCall {
  std::vector<uintptr_t> words;  // 32 bits: the stack; 64 bits: integer registers
  std::vector<double> floats;    // 64 bits: vector registers, as raw bits
};

template <typename P>
P argumentFrom(const Slot& slot) {
  if constexpr (std::is_same_v<P, LumiSize>) {
    return slot.size;
  } else if constexpr (std::is_same_v<P, LumiPoint>) {
    return slot.point;
  } else if constexpr (!std::is_pointer_v<P>) {
    P value{};
    if constexpr (std::is_arithmetic_v<P>) value = static_cast<P>(slot.number);
    if (slot.value) std::memcpy(&value, slot.value, sizeof value);
    return value;
  } else if constexpr (std::is_pointer_v<std::remove_cv_t<std::remove_pointer_t<P>>>) {
    using Plane = std::remove_cv_t<std::remove_pointer_t<P>>;
    if (slot.planesNull) return nullptr;
    const void* array = slot.planeArray ? slot.planeArray : slot.planes;
    return reinterpret_cast<P>(const_cast<Plane*>(static_cast<Plane const*>(array)));
  } else {
    return static_cast<P>(slot.pointer);
  }
}

template <typename P>
void pack(const Slot& slot, PackedCall& call) {
  const P value = argumentFrom<P>(slot);
  // A pair of floats goes into one vector register.
  constexpr bool isFloat = std::is_floating_point_v<P> || std::is_same_v<P, Lum32fc>;
  if constexpr (sizeof(uintptr_t) == 8 && isFloat) {
    double raw = 0;
    std::memcpy(&raw, &value, sizeof value);
    call.floats.push_back(raw);
  } else if constexpr (std::is_integral_v<P>) {
    call.words.push_back(static_cast<uintptr_t>(value));  // promoted, as the convention wants
  } else {
    uintptr_t words[(sizeof value + sizeof(uintptr_t) - 1) / sizeof(uintptr_t)] = {};
    std::memcpy(words, &value, sizeof value);
    call.words.insert(call.words.end(), std::begin(words), std::end(words));
  }
}

struct Invoker {
  AnyFunction function;
  LumStatus (*call)(AnyFunction, const Slot*);
  PackedCall (*packed)(const Slot*);
};

template <typename... P, size_t... i>
Invoker makeInvoker(LumStatus (*function)(P...), std::index_sequence<i...>) {
  return {reinterpret_cast<AnyFunction>(function),
          [](AnyFunction f, const Slot* s) {
            return reinterpret_cast<LumStatus (*)(P...)>(f)(argumentFrom<P>(s[i])...);
          },
          [](const Slot* s) {
            PackedCall call;
            (pack<P>(s[i], call), ...);
            return call;
          }};
}

template <typename... P>
Invoker invoker(LumStatus (*function)(P...)) {
  return makeInvoker(function, std::index_sequence_for<P...>());
}

struct ExportRow {
  const char *name, *operation;
  std::vector<std::string> types, layouts;
  Invoker invoke;
  std::vector<Argument> arguments;
  std::vector<Check> checks;
};

// Every export that returns a status, in the order of the names.
const std::vector<ExportRow>& exportRows();

// Those whose arguments can be made without knowing the operation.
std::vector<const ExportRow*> regularRows();

}  // namespace test
