# SPDX-License-Identifier: MIT
"""Reads registry/*.reg. Every complaint names file, line and reason."""

import functools
import pathlib
import re
from dataclasses import dataclass, field

from . import grammar
from .grammar import Export, GrammarError, Param, Refused

CHECKS = ("null", "size", "width", "square", "step", "zerostep", "offset", "range", "inside", "value", "each", "row", "own")
STATUS = re.compile(r"^  lumStatus(\w+) = (-?\d+)", re.M)
HOMES = ("frame", "arithmetic", "data", "statistics", "filters", "geometry", "transforms", "analysis")


class RegistryError(Exception):
    def __init__(self, path, line, reason):
        super().__init__(f"{path}:{line}: {reason}")


@dataclass
class Operation:
    name: str
    brief: str = ""
    text: list = field(default_factory=list)
    params: list = field(default_factory=list)
    args: list = field(default_factory=list)
    returns: str = "LumStatus"
    exports: list = field(default_factory=list)


@dataclass
class Family:
    stem: str
    home: str
    title: str
    path: str
    operations: list = field(default_factory=list)


@functools.cache
def statuses():
    """The status values of the public header, by name."""
    text = (pathlib.Path(__file__).resolve().parents[2] / "include/lumi/types.h").read_text(encoding="ascii")
    return {name: int(value) for name, value in STATUS.findall(text)}


def own_statuses(op):
    """Params that refuse values by a status, which then are words of check."""
    return {p.name for p in op.params for r in p.refused if r.by not in CHECKS}


def own_pointers(op):
    """Pointers that a row may test apart from the others."""
    return {p.name for p in op.params if "*" in p.ctype and not p.optional}


def split_outside_braces(text):
    """Words of a row; a brace may hold blanks."""
    return re.findall(r"(?:\{[^{}]*\}|[^\s{}])+|[{}]", text)


def read_file(path):
    return _Reader(path).read()


def read_folder(folder):
    """All families of all homes, by stem; a name exported twice is refused."""
    families = sorted((read_file(p) for p in pathlib.Path(folder).glob("*/*.reg")), key=lambda f: f.stem)
    planned = planned_names(folder)
    seen = {}
    for family in families:
        for op in family.operations:
            for export in op.exports:
                path, line = export.line.rsplit(":", 1)
                if planned and export.name not in planned:
                    raise RegistryError(path, line, f"{export.name} is not among the planned names")
                if export.name in seen:
                    raise RegistryError(path, line, f"{export.name} stands already at {seen[export.name]}")
                seen[export.name] = export.line
    return families


def planned_names(folder):
    """Every name that the library is to export: a row for any other is a mistake. None where there is no list."""
    path = pathlib.Path(folder) / "planned_names.txt"
    return set(path.read_text(encoding="ascii").split()) if path.exists() else None


class _Reader:
    def __init__(self, path):
        self.path = pathlib.Path(path)
        self.number = 0
        self.family = None
        self.op = None

    def read(self):
        for self.number, raw in enumerate(self.path.read_text(encoding="utf-8").splitlines(), 1):
            line = raw.strip()
            if line.startswith("|"):
                self._operation().text.append(line[1:].removeprefix(" ").rstrip())
                continue
            if not line or line.startswith("#"):
                continue
            try:
                self._statement(line)
            except GrammarError as error:
                self._fail(str(error))
        if not self.family:
            self._fail("no family statement")
        self._check_shared()
        return self.family

    def _fail(self, reason):
        raise RegistryError(self.path.name, self.number, reason)

    def _operation(self):
        if not self.op:
            self._fail("this line belongs to an operation, and none has begun")
        return self.op

    def _statement(self, line):
        word, _, rest = line.partition(" ")
        rest = rest.strip()
        handler = getattr(self, f"_on_{word}", None)
        if handler:
            handler(rest)
        elif word == "-" or grammar.is_types(re.split(r"[_=]", word)[0]):
            self._row(line)
        else:
            self._fail(f"'{word}' begins no statement")

    def _on_family(self, rest):
        match = re.match(r'(\w+)\s+(\w+)\s+"([^"]+)"$', rest)
        if not match:
            self._fail('family takes a stem, a home and a "title"')
        stem, home, title = match.groups()
        if self.family or stem != self.path.stem or home != self.path.parent.name or home not in HOMES:
            self._fail(f"family '{stem}' of '{home}': one a file, named like it, in the folder of its home, one of {', '.join(HOMES)}")
        self.family = Family(stem, home, title, f"{home}/{self.path.name}")

    def _on_op(self, rest):
        if not self.family:
            self._fail("an operation before the family statement")
        if not re.match(r"[A-Z]\w*$", rest):
            self._fail(f"'{rest}' is no operation name")
        self.op = Operation(rest)
        self.family.operations.append(self.op)

    def _on_brief(self, rest):
        self._operation().brief = rest

    def _on_param(self, rest):
        match = re.match(r"(\w+)\s+(.+?)(\s+optional|\s+each|\s+image|\s+step|\s+of\s+\w+)?(?:\s+=\s+(.+?))?"
                         r"(?:\s+refuses\s+(.+?)\s+by\s+(\w+))?\s+:\s+(.+)$", rest)
        if not match:
            self._fail("param takes: name type [optional | each | image | step | of length] [= valid value] [refuses values by check] "
                       ": meaning")
        name, ctype, how, base, refused, by, about = match.groups()
        how = (how or "").split()
        param = Param(name, ctype, about, how == ["optional"], how == ["each"], how == ["image"], how == ["step"],
                      how[1] if len(how) == 2 else "")
        param.base = tuple(map(str, self._values(param, base)[0])) if base else ()
        self._operation().params.append(param)
        if refused:
            self._refuse(param, refused, by, "")

    def _on_refuses(self, rest):
        """refuses mask 0 0 -1 3 by BadMaskSize : a side is below 1"""
        match = re.match(r"(\w+)\s+(.+?)\s+by\s+(\w+)(?:\s+:\s+(.+))?$", rest)
        if not match:
            self._fail("refuses takes: param values by check-or-status [: meaning]")
        name, values, by, about = match.groups()
        param = next((p for p in reversed(self._operation().params) if p.name == name), None)
        if not param or "*" in param.ctype:
            self._fail(f"'{name}' is no param by value of this operation")
        self._refuse(param, values, by, about or "")

    def _refuse(self, param, values, by, about):
        if by not in CHECKS and by not in statuses():
            self._fail(f"'{by}' is neither a check nor a status: {' '.join(CHECKS)}")
        param.refused += [Refused(value, by, about) for value in self._values(param, values)]

    def _values(self, param, text):
        """`-1 2`; of a size `6 3` or `6x3`, of a rectangle four numbers."""
        numbers = re.sub(r"(?<=\d)x(?=-?\d)", " ", text).split()
        if len(numbers) % param.arity or any(not re.match(r"-?\d+(\.\d+)?$", n) for n in numbers):
            self._fail(f"'{text}' are no values of {param.ctype}")
        return list(zip(*[iter(numbers)] * param.arity))

    def _on_args(self, rest):
        self._operation().args = rest.split()

    def _on_returns(self, rest):
        self._operation().returns = rest

    def _on_group(self, rest):
        self._operation().text += ["", rest]

    def _on_same(self, rest):
        """same A=B: B is one implementation with A, a member with a row of its own."""
        target, _, other = rest.partition("=")
        if not other:
            self._fail("same takes member=member")
        owner = self._find(target)
        self._add(self._named(other), owner.check, owner.bind, owner.name)

    def _find(self, member):
        name = f"lumi{self._operation().name}_{member}"
        for export in self.op.exports:
            if export.name == name:
                return export
        self._fail(f"no row for {name} above this line")

    def _named(self, member):
        """`8u_C4R` -> types and descriptor."""
        pieces = member.split("_")
        if len(pieces) > 2:
            raise GrammarError(f"'{member}' is no member")
        return pieces[0], pieces[1] if len(pieces) == 2 else ""

    def _row(self, line):
        op = self._operation()
        if not op.brief:
            self._fail(f"{op.name} has no brief")
        words = split_outside_braces(line)
        if words.count("bind") != 1 or words[-1] == "bind":
            self._fail("a row ends in: bind name")
        bind = " ".join(words[words.index("bind") + 1:])
        words = words[: words.index("bind")]
        check = ()
        if "check" in words:
            check = tuple(words[words.index("check") + 1:])
            words = words[: words.index("check")]
            if not check:
                self._fail("check takes words")
            for word in check:
                self._check_word(op, word)
        for group in self._members(words):
            owner = self._add(group[0], check, bind, "")
            for member in group[1:]:
                self._add(member, check, bind, owner.name)

    def _check_word(self, op, word):
        """A general check, with another status than it has by itself (`row:StepTooSmall`), or a param that refuses values
        by a status of its own: `mask`, `mask:BadSize`."""
        name, _, status = word.partition(":")
        own = {r.by for p in op.params if p.name == name for r in p.refused} - set(CHECKS)
        if name in own_statuses(op):
            if status and status not in own:
                self._fail(f"no value of '{name}' is refused by '{status}'")
            if not status and len(own) > 1:
                self._fail(f"'{name}' is refused by {' '.join(sorted(own))}: say {name}:status")
        elif name in CHECKS and status in statuses() and name != "own":
            return
        elif word not in CHECKS and word not in own_pointers(op):
            self._fail(f"check takes words of: {' '.join(CHECKS)}, params that refuse values by a status, and pointers "
                       "tested apart from the others")

    def _members(self, words):
        """Groups of (types, descriptor) pairs; each group is one implementation."""
        if words[0] == "-":
            return [[("", d)] for word in words[1:] for d in grammar.expand_braces(word)] or [[("", "")]]
        if "_" in words[0]:
            return [[self._named(m) for m in word.split("=")] for word in words]
        split = next((i for i, w in enumerate(words) if not grammar.is_types(w.split("=")[0])), len(words))
        types = words[:split]
        descriptors = [d for word in words[split:] for d in grammar.expand_braces(word)]
        return [[(t, d) for t in group.split("=")] for group in types for d in descriptors or [""]]

    def _add(self, member, check, bind, shared):
        types_token, descriptor_token = member
        op = self._operation()
        types = grammar.parse_types(types_token) if types_token else ()
        descriptor = grammar.parse_descriptor(descriptor_token) if descriptor_token else None
        pieces = [f"lumi{op.name}", types_token, descriptor_token]
        export = Export(
            name="_".join(p for p in pieces if p),
            types=types,
            layouts=descriptor.layouts if descriptor else (),
            args=grammar.arguments(op.args, op.params, types, descriptor),
            returns=grammar.fill_types(op.returns, types),
            check=check,
            bind=bind,
            sample=shared,
            line=f"{self.path.name}:{self.number}",
            op=op,
        )
        if any(e.name == export.name for e in op.exports):
            self._fail(f"{export.name} stands twice")
        op.exports.append(export)
        return export

    def _check_shared(self):
        for op in self.family.operations:
            if not op.exports:
                self._fail(f"operation {op.name} exports nothing")
