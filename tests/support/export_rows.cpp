// SPDX-License-Identifier: MIT
#include "support/invoke.hpp"

namespace test {

const std::vector<ExportRow>& exportRows() {
  static const std::vector<ExportRow> rows = {
#include "fault_rows.inc"
  };
  return rows;
}

}  // namespace test
