# SPDX-License-Identifier: MIT
"""The table by which the tests call every export: constant data, since thousands of typed calls would take
minutes to compile."""

from . import reader
from .names import GENERATED_ALL, all_exports


class _Pool:
    """Lists of C++ initialisers, one behind the other; a list that is there already is not repeated."""

    def __init__(self, name):
        self.name, self.items, self.first = name, [], {}

    def add(self, items):
        """The span of these items in the table."""
        key = tuple(items)
        if not key:
            return "{}"
        if key not in self.first:
            self.first[key] = len(self.items)
            self.items += key
        return f"{{{self.name} + {self.first[key]}, {len(key)}}}"

    def table(self, kind):
        rows = "".join(f"    {item},\n" for item in self.items or ["{}"])
        return f"constexpr {kind} {self.name}[] = {{\n{rows}}};\n"


def _value(numbers):
    return "{{" + ", ".join(map(str, numbers)) + "}}"


def _refused(refused):
    if refused.by in reader.CHECKS:
        return f"{{Check::{refused.by.capitalize()}, lumStatusOk, {_value(refused.value)}}}"
    return f"{{Check::Status, lumStatus{refused.by}, {_value(refused.value)}}}"


def _base(arg, export):
    if arg.kind == "upper":
        return (255,)
    if arg.name == "roi":
        return (7, 7) if "square" in export.check else (7, 3)
    return arg.base if arg.kind in ("number", "size", "point", "rect") else (0,)


def _argument(arg, export, refused):
    length = f'"{arg.length}"' if arg.length else "nullptr"
    values = () if arg.kind == "values" else arg.refused  # the fault tests look into no memory
    return (f'{{Kind::{arg.kind.capitalize()}, Passing::{arg.passing.capitalize()}, "{arg.name}", {arg.count}, '
            f'{_value(_base(arg, export))}, {length}, {refused.add(map(_refused, values))}}}')


def _check(word, export):
    name, _, status = word.partition(":")
    if name in reader.CHECKS:
        return f"{{Check::{name.capitalize()}, nullptr, lumStatus{status or 'Ok'}}}"
    arg = next(a for a in export.args if a.name == name)
    if arg.passing == "pointer":
        return f'{{Check::Pointer, "{name}", lumStatusOk}}'
    status = status or next(r.by for r in arg.refused if r.by not in reader.CHECKS)
    return f'{{Check::Status, "{name}", lumStatus{status}}}'


def _words(words):
    return "{{" + ", ".join(f'"{w}"' for w in words) + "}}"


def export_table(families):
    """The name of each export, and a row for each that returns a status: what the tests know of it."""
    refused, arguments, checks = _Pool("kRefused"), _Pool("kArguments"), _Pool("kChecks")
    family_of = {e.name: f.stem for f in families for op in f.operations for e in op.exports}
    exports = [e for e in all_exports(families) if e.returns == "LumStatus"]
    rows = []
    for e in exports:
        args = arguments.add(_argument(a, e, refused) for a in e.args)
        order = checks.add(_check(word, e) for word in e.check)
        rows.append(f'    {{"{e.name}", "{family_of[e.name]}", "{e.op.name}", {_words(e.types)}, {_words(e.layouts)}, '
                    f'&{e.name}, {args}, {order}}},\n')
    declared = "".join(f"void {e.name}();\n" for e in exports)
    names = "".join(f'    {{"{e.name}", "{family_of[e.name]}"}},\n' for e in all_exports(families))
    return "\n".join([
        "// " + GENERATED_ALL,
        "// The functions are declared without their arguments: they are called by description.",
        'extern "C" {\n' + declared + "}",
        refused.table("Refused"),
        arguments.table("Argument"),
        checks.table("CheckStep"),
        "constexpr ExportRow kRows[] = {\n" + "".join(rows) + "};\n",
        "constexpr ExportName kNames[] = {\n" + names + "};\n",
    ])
