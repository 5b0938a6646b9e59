# SPDX-License-Identifier: MIT
"""A header for each family, by which templates of other families call its public operations:

    call::CopyR<T, C1>(src, srcStep, dst, dstStep, roi)

The key is the member's sample types and layouts, the name its operation and the rest of its descriptor. It
is the exported function that is called, never a slot of the table."""

import re

from . import grammar
from .names import GENERATED

_REST = re.compile(r"(?:AC4|AC1|AP4|A0C4|C[1-4]C?|P[2-4])*(.*)$")


def _key(export):
    """Members of bits have the C++ type of bytes, and are called by their own names."""
    if not export.types or not export.layouts or "1u" in export.types or "24u" in export.types:
        return None
    types = [grammar.SAMPLE_TYPES[t] for t in export.types]
    descriptor = export.name.rsplit("_", 1)[1]
    rest = _REST.match(descriptor).group(1)
    return f"{export.op.name}{rest}", ", ".join(types + list(export.layouts))


def header(family):
    members = {}
    for op in family.operations:
        for export in op.exports:
            key = _key(export)
            if key:
                members.setdefault(key[0], []).append((key[1], export.name))
    lines = ["// " + GENERATED.format(family.path), "#pragma once", "", f'#include "lumi/{family.stem}.h"',
             '#include "frame/layout.hpp"', "", "namespace lumi::call {"]
    for name, rows in members.items():
        lines += ["", "template <typename... TypesAndLayouts>", f"inline constexpr void* {name} = nullptr;"]
        lines += [f"template <>\ninline constexpr auto {name}<{key}> = &{function};" for key, function in rows]
    return "\n".join(lines + ["", "}  // namespace lumi::call", ""])
