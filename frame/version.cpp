// SPDX-License-Identifier: MIT
#include "lumi/version.h"

#define LUMI_TEXT_OF(x) #x
#define LUMI_TEXT(x) LUMI_TEXT_OF(x)

namespace lumi {
namespace {

constexpr int kMajorBuild = 0;
const LumLibraryVersion version = {
    LUMI_MAJOR,
    LUMI_MINOR,
    kMajorBuild,
    LUMI_BUILD_NUMBER,
    {'k', '5', 0, 0},
    "lumIP AVX (k5)",
    LUMI_TEXT(LUMI_MAJOR) "." LUMI_TEXT(LUMI_MINOR) ".0 (r" LUMI_TEXT(LUMI_BUILD_NUMBER) ")",
    LUMI_BUILD_DATE,
};

const LumLibraryVersion* libraryVersion() { return &version; }

}  // namespace
}  // namespace lumi

using namespace lumi;
#include "bind/version.inc"
