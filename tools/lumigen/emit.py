# SPDX-License-Identifier: MIT
"""Writes every file that follows from the registry."""

import json
import re

from . import dispatch, grammar, reader, test_rows
from .names import GENERATED, GENERATED_ALL, all_exports, implementation, prototype

CHECK_TEXT = {
    "null": "lumStatusNullPointer (-8)  a pointer is null, plane pointers included",
    "size": "lumStatusBadSize (-6)      roi.width or roi.height is below 1",
    "width": "lumStatusBadSize (-6)      roi.width is below 1",
    "square": "lumStatusBadSize (-6)      roi.width and roi.height differ",
    "step": "lumStatusBadStep (-14)     a step is below 1",
    "zerostep": "lumStatusBadStep (-14)     a step is 0",
    "offset": "lumStatusBadSize (-6)      a bit offset is negative",
    "range": "lumStatusBadDataRange (-13) upper is not above lower",
    "inside": "lumStatusBadSize (-6)      top or left is negative, or dstRoi does not hold srcRoi at that place",
    "value": "lumStatusNullPointer (-8)  value is null",
    "each": "lumStatusNullPointer (-8)  one of an array of pointers is null",
    "row": "lumStatusBadStep (-14)     a step is below the bytes of a row",
}


def _wrap_prototype(text, width=110):
    """One line, or arguments on further lines under the first."""
    if len(text) <= width:
        return text
    head, _, rest = text.partition("(")
    lines, line = [], head + "("
    pieces = rest.split(", ")
    for index, piece in enumerate(pieces):
        piece += "," if index + 1 < len(pieces) else ""
        glue = "" if line.endswith("(") else " "
        if len(line) + len(glue) + len(piece) > width:
            lines.append(line)
            line, glue = " " * (len(head) + 1), ""
        line += glue + piece
    return "\n".join(lines + [line])


def _members(exports):
    """Sample types and layouts of exports, in few words."""
    layouts = {}
    for e in exports:
        layouts.setdefault("".join(e.types), {})["".join(e.layouts)] = None
    groups = {}
    for types, names in layouts.items():
        groups.setdefault(" ".join(names), []).append(types)
    return "; ".join(f"{' '.join(types)}: {names}" for names, types in groups.items())


def _check_text(word, export):
    """What a check finds; the words differ where arguments do."""
    name, _, status = word.partition(":")
    found = [r for a in export.args if a.name == name for r in a.refused if r.by not in CHECK_TEXT]
    if found:
        status = status or found[0].by
        abouts = dict.fromkeys(r.about for r in found if r.by == status and r.about)
        code = f"lumStatus{status} ({reader.statuses()[status]})"
        return f"{code:<26} {'; '.join(abouts) or name + ' is refused'}"
    if name not in CHECK_TEXT:
        return f"lumStatusNullPointer (-8)  {word} is null"
    text = CHECK_TEXT[name]
    if status:
        code = f"lumStatus{status} ({reader.statuses()[status]})"
        return f"{code:<26} {re.sub('^.*?[)] +', '', text)}"
    if word == "value":
        names = [a.name for a in export.args if a.kind == "values"] or ["value"]
        text = text.replace("value", " or ".join(names))
    apart = {"value"} | reader.own_pointers(export.op)
    if word == "null" and apart.intersection(export.check):
        text = text.replace("a pointer is null, plane pointers included", "an image's pointer is null")
    if word == "null" and "each" in export.check:
        text = text.replace(", plane pointers included", "")
    if word == "size" and any(a.kind == "size" and a.name != "roi" for a in export.args):
        text = text.replace("roi.width or roi.height", "a width or a height")
    return text


def _doc_block(op):
    lines = [op.brief] + ([""] + op.text if op.text else [])
    if op.params:
        lines += [""] + list(dict.fromkeys(f"  {p.name:<10} {p.about}" for p in op.params))
    cohorts = {}
    for export in op.exports:
        if export.check and export.check != ("own",):
            cohorts.setdefault(export.check, []).append(export)
    partly = any(e.check == ("own",) for e in op.exports)
    for check, exports in cohorts.items():
        members = f" ({_members(exports)})" if len(cohorts) > 1 or partly else ""
        lines += ["", f"Returns lumStatusOk (0) or, tested in this order and before anything is written{members}:"]
        lines += dict.fromkeys(f"  {_check_text(c, exports[0])}" for c in check)
    body = "\n".join((" * " + line).rstrip() for line in lines)
    return f"/**\n{body}\n */"


def family_header(family):
    parts = [
        "/* SPDX-License-Identifier: MIT */",
        "/* " + GENERATED.format(family.path) + " */",
        f"/** @file {family.title}. */",
        f"#ifndef LUMI_{family.stem.upper()}_H",
        f"#define LUMI_{family.stem.upper()}_H",
        "",
        '#include "types.h"',
        "",
        "#ifdef __cplusplus",
        'extern "C" {',
        "#endif",
        "",
    ]
    for op in family.operations:
        parts.append(_doc_block(op))
        parts += [_wrap_prototype(prototype(e) + ";") for e in sorted(op.exports, key=lambda e: e.name)]
        parts.append("")
    parts += ["#ifdef __cplusplus", "}", "#endif", "", "#endif", ""]
    return "\n".join(parts)


def umbrella_header(families):
    includes = "\n".join(f'#include "lumi/{f.stem}.h"' for f in families)
    return f"""/* SPDX-License-Identifier: MIT */
/* {GENERATED_ALL} */
/** @file The whole public interface of lumi. */
#ifndef LUMI_H
#define LUMI_H

#include "lumi/types.h"

{includes}

#endif
"""


def headers(families):
    files = {f"lumi/{f.stem}.h": family_header(f) for f in families}
    files["lumi.h"] = umbrella_header(families)
    return files


def bound_function(export):
    """A binding is instantiated over every sample type and then every layout of the name. Template arguments
    of its own replace them, or stand before them where the list ends in a star."""
    names = ", ".join([grammar.SAMPLE_TYPES[t] for t in export.types] + list(export.layouts))
    if export.bind.endswith("*>"):
        return f"{export.bind[:-2]}{names}>"
    if "<" in export.bind or not names:
        return export.bind
    return f"{export.bind}<{names}>"


def bindings(family):
    """Typed definitions that the family's source includes at its end."""
    lines = ["// " + GENERATED.format(family.path), "", 'extern "C" {']
    for op in family.operations:
        for export in op.exports:
            if export.sample:
                continue
            call = ", ".join(a.name for a in export.args)
            result = "" if export.returns == "void" else "return "
            lines += [
                f"{prototype(export, implementation(export))} {{",
                f"  {result}{bound_function(export)}({call});",
                "}",
            ]
    return "\n".join(lines + ['}  // extern "C"', ""])


def version_script(families):
    names = "".join(f"    {e.name};\n" for e in all_exports(families))
    return f"LUMI_1 {{\n  global:\n{names}  local:\n    *;\n}};\n"


_STUB_64 = "{name}:\n\tjmp *lumi_entry_table+{offset}(%rip)\n"
# eax is free at a call; the thunk pairs its call with a return, which keeps return prediction intact.
_STUB_32 = """{name}:
\tcall .Llumi_pc_eax
\taddl $_GLOBAL_OFFSET_TABLE_, %eax
\tjmp *lumi_entry_table@GOTOFF+{offset}(%eax)
"""


def entry_stubs(families):
    """Stubs and entry table: each export jumps through its own slot, in the order of the names."""
    exports = all_exports(families)
    out = ["/* " + GENERATED_ALL + " */", ".text"]
    for word, size, stub in (("__x86_64__", 8, _STUB_64), ("__i386__", 4, _STUB_32)):
        out.append(f"#ifdef {word}")
        if size == 4:
            out.append(".p2align 4\n.Llumi_pc_eax:\n\tmovl (%esp), %eax\n\tret")
        for index, export in enumerate(exports):
            out.append(f".p2align 4\n.globl {export.name}\n.type {export.name}, @function")
            out.append(stub.format(name=export.name, offset=index * size) + f".size {export.name}, .-{export.name}")
        out.append("#endif")
    out += [
        '.section .data.lumi_entry_table,"aw",@progbits',
        ".p2align 5",
        ".globl lumi_entry_table\n.hidden lumi_entry_table\n.type lumi_entry_table, @object",
        "lumi_entry_table:",
    ]
    for export in exports:
        out.append(f".hidden {implementation(export)}")
    for word, directive in (("__x86_64__", ".quad"), ("__i386__", ".long")):
        out += [f"#ifdef {word}"] + [f"\t{directive} {implementation(e)}" for e in exports] + ["#endif"]
    out.append(".size lumi_entry_table, .-lumi_entry_table")
    out.append('.section .note.GNU-stack,"",@progbits')
    return "\n".join(out) + "\n"


def structure_rows(families):
    """Name and implementation of each export, in table order, for the tests of the built library."""
    return "".join(f"{e.name} {implementation(e)}\n" for e in all_exports(families))


def description(families):
    """The interface as JSON, for bindings in other languages."""
    result = []
    for family in families:
        for op in family.operations:
            for e in op.exports:
                result.append({
                    "name": e.name, "family": family.stem, "operation": op.name, "brief": op.brief,
                    "types": list(e.types), "layouts": list(e.layouts), "returns": e.returns,
                    "arguments": [{"name": a.name, "kind": a.kind, "declaration": a.decl} for a in e.args],
                    "checks": list(e.check), "shares": e.sample or None,
                })
    result.sort(key=lambda row: row["name"])
    return json.dumps({"exports": result}, indent=1) + "\n"


def build_files(families):
    files = {f"bind/{f.stem}.inc": bindings(f) for f in families}
    files["exports.map"] = version_script(families)
    files["entry_stubs.S"] = entry_stubs(families)
    files["export_table.inc"] = test_rows.export_table(families)
    files.update({f"dispatch/{f.stem}.hpp": dispatch.header(f) for f in families})
    files["structure.txt"] = structure_rows(families)
    files["lumi.json"] = description(families)
    return files


def assert_ascii(files):
    for name, text in files.items():
        if re.search(r"[^\x00-\x7f]", text):
            raise ValueError(f"{name}: not plain ASCII")
