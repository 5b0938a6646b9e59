// SPDX-License-Identifier: MIT
#pragma once

#include <lumi.h>

#include <stdexcept>
#include <string>

inline void check(LumStatus status, const char* name) {
  if (status != lumStatusOk)
    throw std::runtime_error(std::string(name) + " returned " + std::to_string(status));
}
