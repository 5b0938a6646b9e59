// SPDX-License-Identifier: MIT
// The generated table. Nothing here may include the functions' own declarations.
#include <algorithm>
#include <cstdio>
#include <cstdlib>

#include "support/invoke.hpp"

namespace test {
namespace {

#include "export_table.inc"

}  // namespace

Span<ExportRow> exportRows() { return {kRows, std::size(kRows)}; }

Span<ExportName> exportNames() { return {kNames, std::size(kNames)}; }

std::vector<const ExportRow*> regularRows() {
  std::vector<const ExportRow*> result;
  for (const ExportRow& row : exportRows())
    if (row.checks.size() == 0 || row.checks[0].check != Check::Own) result.push_back(&row);
  return result;
}

const ExportRow& rowNamed(const std::string& name) {
  const auto before = [](const ExportRow& row, const std::string& wanted) { return row.name < wanted; };
  const ExportRow* row = std::lower_bound(exportRows().begin(), exportRows().end(), name, before);
  if (row != exportRows().end() && row->name == name) return *row;
  std::fprintf(stderr, "no export %s returns a status\n", name.c_str());
  std::abort();
}

}  // namespace test
