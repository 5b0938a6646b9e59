// SPDX-License-Identifier: MIT
#include "support/invoke.hpp"

namespace test {

const std::vector<ExportRow>& exportRows() {
  static const std::vector<ExportRow> rows = {
#include "fault_rows.inc"
  };
  return rows;
}

std::vector<const ExportRow*> regularRows() {
  std::vector<const ExportRow*> result;
  for (const ExportRow& row : exportRows())
    if (row.checks != std::vector<Check>{Check::Own}) result.push_back(&row);
  return result;
}

}  // namespace test
