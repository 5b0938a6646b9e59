// SPDX-License-Identifier: MIT
// Any export called by its description, so that a test can walk all of them by the generated rows.
#pragma once

#include <cstdint>
#include <cstring>
#include <string>
#include <type_traits>
#include <vector>

#include "lumi/types.h"

namespace test {

// What an argument is: decides which faults it can have, and what the tests pass.
enum class Kind {
  Image,
  Planes,
  Step,
  Offset,  // of the first pixel's bit in an image of bits
  Size,
  Point,
  Rect,
  Value,    // one sample
  Values,   // samples by pointer
  Results,  // one for each channel, by pointer
  Array,    // as many as another argument says
  Arrays,   // one for each channel, by an array of pointers
  Number,
  Lower,  // bounds of a range
  Upper,
  Pointer,
  Optional
};

// How the platform's convention sees an argument.
enum class Passing { Pointer, Int32, Int64, Float, Double, Pair, Rect, Halves, Floats, Doubles };

// A step of the order in which an operation checks its arguments.
// Status: an argument's values that have a status of their own.
// Pointer: an argument's pointer, where it is tested apart from the others.
// Own: an order that the general words do not tell; the family's own tests do.
enum class Check {
  Null,
  Size,
  Width,
  Square,
  Step,
  Zerostep,
  Offset,
  Range,
  Inside,
  Value,
  Each,
  Row,
  Own,
  Status,
  Pointer
};

// A number, or those of a size, a point or a rectangle.
struct Value {
  double numbers[4];
};

// A list in constant memory.
template <typename T>
struct Span {
  const T* first;
  size_t count;

  const T* begin() const { return first; }
  const T* end() const { return first + count; }
  size_t size() const { return count; }
  const T& operator[](size_t i) const { return first[i]; }
};

// A value that a check finds although nothing general is wrong with it.
struct Refused {
  Check by;
  LumStatus status;  // where by is Status
  Value value;
};

struct Argument {
  Kind kind;
  Passing passing;
  const char* name;
  int count;           // planes, pointers, values or results of an array of them
  Value base;          // one that the operation accepts
  const char* length;  // the argument that tells an array's length
  Span<Refused> refused;
};

struct CheckStep {
  Check check;
  const char* argument;  // whose values have the status, or whose pointer is tested
  LumStatus status;
};

// One or two words of a name, or none.
struct Words {
  const char* words[2];

  size_t size() const { return words[0] ? words[1] ? 2 : 1 : 0; }
  bool empty() const { return size() == 0; }
  const char* front() const { return words[0]; }
  const char* back() const { return words[1] ? words[1] : words[0]; }
  const char* const* begin() const { return words; }
  const char* const* end() const { return words + size(); }
  const char* operator[](size_t i) const { return words[i]; }
};

using AnyFunction = void (*)();

struct ExportRow {
  const char *name, *family, *operation;
  Words types, layouts;
  AnyFunction function;
  Span<Argument> arguments;
  Span<CheckStep> checks;
};

struct ExportName {
  const char *name, *family;
};

// Every export, in the order of the names.
Span<ExportName> exportNames();

// Those that return a status, in the same order.
Span<ExportRow> exportRows();

// Those whose arguments can be made without knowing the operation.
std::vector<const ExportRow*> regularRows();

const ExportRow& rowNamed(const std::string& name);

// A value for any argument: its bytes, or the plane pointers of an array of them.
struct Slot {
  alignas(8) unsigned char bytes[16] = {};
  void* planes[4] = {};
  bool isPlanes = false;

  template <typename T>
  void set(const T& value) {
    static_assert(std::is_trivially_copyable_v<T> && sizeof(T) <= sizeof bytes);
    std::memcpy(bytes, &value, sizeof value);
  }
  void setPointer(const void* pointer) {
    isPlanes = false;
    set(pointer);
  }
  // Numbers of the argument's own type, as many as it has.
  void setValue(Passing passing, const Value& value);
  // A sample of the type of this name.
  void setSample(Passing passing, const std::string& type, const void* sample);
};

// A value of each argument with which a regular row succeeds, but for memory and steps.
std::vector<Slot> baseSlots(const ExportRow& row);

// A call as the platform's convention wants it. Laid out for invoke.S: words, then the arrays.
struct PackedCall {
  AnyFunction function;
  uintptr_t stackWords = 0;
  uintptr_t misalignment = 0;  // of the stack, in bytes below a 64-byte boundary; 32 bits only
  uintptr_t broken = 0;        // a bit for each callee-saved register, stack pointer and direction flag
  uintptr_t upperHalves = 0;   // whether upper vector halves hold anything
  uintptr_t integers[6] = {};  // 64 bits only, like vectors
  uintptr_t unused = 0;
  uint64_t vectors[8] = {};
  uintptr_t stack[48] = {};

  PackedCall(const ExportRow& row, const Slot* slots);
};

// What a call did besides its work.
struct Outcome {
  LumStatus status = 0;
  std::string broken;  // which rule of the calling convention, or nothing
};

// Calls with everything around it watched: callee-saved registers, stack pointer, flags, control words, upper
// vector halves. A 32-bit caller's stack may be misaligned by any multiple of four.
Outcome invoke(const ExportRow& row, const Slot* slots, int misalignment = 0);

}  // namespace test
