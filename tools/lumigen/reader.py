# SPDX-License-Identifier: MIT
"""Reads registry/*.reg. Every complaint names file, line and reason."""

import pathlib
import re
from dataclasses import dataclass, field

from . import grammar
from .grammar import Export, GrammarError, Param

CHECKS = ("null", "size", "width", "step", "offset", "range", "frame", "value", "own")
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


def split_outside_braces(text):
    """Words of a row; a brace may hold blanks."""
    return re.findall(r"(?:\{[^{}]*\}|[^\s{}])+|[{}]", text)


def read_file(path):
    return _Reader(path).read()


def read_folder(folder):
    """All families of all homes, by stem; a name exported twice is refused."""
    families = sorted((read_file(p) for p in pathlib.Path(folder).glob("*/*.reg")), key=lambda f: f.stem)
    seen = {}
    for family in families:
        for op in family.operations:
            for export in op.exports:
                if export.name in seen:
                    path, line = export.line.rsplit(":", 1)
                    raise RegistryError(path, line, f"{export.name} stands already at {seen[export.name]}")
                seen[export.name] = export.line
    return families


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
        match = re.match(r"(\w+)\s+(.+?)(\s+optional)?(?:\s+=\s+(\S+))?(?:\s+refuses\s+(.+?)\s+by\s+(\w+))?"
                         r"\s+:\s+(.+)$", rest)
        if not match:
            self._fail("param takes: name type [optional] [= valid value] [refuses values by check] : meaning")
        name, ctype, optional, base, refused, by, about = match.groups()
        values = tuple(self._refused(ctype, value) for value in (refused or "").split())
        if by and by not in CHECKS:
            self._fail(f"'{by}' is no check: {' '.join(CHECKS)}")
        self._operation().params.append(Param(name, ctype, about, bool(optional), base or "0", values, by or ""))

    def _refused(self, ctype, value):
        """`-1`, or `6x3` of a size."""
        numbers = value.split("x")
        if len(numbers) != (2 if ctype == "LumiSize" else 1) or any(not re.match(r"-?\d+$", n) for n in numbers):
            self._fail(f"'{value}' is no value of {ctype}")
        return tuple(int(n) for n in numbers)

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
            if not check or any(c not in CHECKS for c in check):
                self._fail(f"check takes words of: {' '.join(CHECKS)}")
        for group in self._members(words):
            owner = self._add(group[0], check, bind, "")
            for member in group[1:]:
                self._add(member, check, bind, owner.name)

    def _members(self, words):
        """Groups of (types, descriptor) pairs; each group is one implementation."""
        if words == ["-"]:
            return [[("", "")]]
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
