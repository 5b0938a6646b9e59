# SPDX-License-Identifier: MIT
"""What every writer of generated files says of an export."""

GENERATED = "Generated from registry/{} by tools/lumigen; edit that instead."
GENERATED_ALL = "Generated from the registry by tools/lumigen; edit that instead."


def all_exports(families):
    """Every export, in the order of the names: the order of the entry table."""
    return sorted((e for f in families for op in f.operations for e in op.exports), key=lambda e: e.name)


def implementation(export):
    return f"impl_{export.sample or export.name}"


def prototype(export, name=None):
    args = ", ".join(a.decl for a in export.args) or "void"
    return f"{export.returns} {name or export.name}({args})"
