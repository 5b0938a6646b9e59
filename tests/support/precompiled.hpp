// SPDX-License-Identifier: MIT
// What nearly every test includes. The functions' own declarations stay out: the table of exports has others.
#pragma once

#include <gtest/gtest.h>

#include <algorithm>
#include <climits>
#include <cmath>
#include <functional>
#include <limits>
#include <map>
#include <memory>
#include <optional>
#include <sstream>
#include <string>
#include <vector>

#include "support/arena.hpp"
#include "support/core_guard.hpp"
#include "support/fault.hpp"
#include "support/member.hpp"
#include "support/named_call.hpp"
#include "support/random.hpp"
#include "support/settings.hpp"
#include "support/stage.hpp"
