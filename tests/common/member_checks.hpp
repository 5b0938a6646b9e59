// SPDX-License-Identifier: MIT
// What every member is tested for, family after family.
#pragma once

#include <optional>
#include <string>

#include "support/member.hpp"
#include "support/stage.hpp"

namespace test {

void expectModel(const Member& m);

// Each allocation fails in turn: nothing is written, and what was allocated is freed.
bool allocatesScratch(const Member& m);
std::optional<std::string> failureWithoutMemory(const Member& m, Stage& stage, const Case& c);
void expectRefusalWithoutMemory(const Member& m);

// Large images, about the sizes from which on stores may bypass the cache.
bool isTriedWithLargeImages(const Member& m);
void expectModelOfLargeImages(const Member& m);

// Source pixels behind a mask that is zero are not read.
bool readsUnderAMask(const Member& m);
void expectNoReadsBehindTheMask(const Member& m);

// Values given by pointer are taken before any pixel is touched, wherever in the destination they lie.
bool takesValuesByPointer(const Member& m);
void expectValuesToBeReadFirst(const Member& m);

// Chosen channels: the first chosen sample is the first accessible byte, and the last one the last.
bool hasChosenChannels(const Member& m);
void expectNothingAroundChosenChannels(const Member& m);

// Threads in the same members at once.
void expectThreadsApart();

}  // namespace test
