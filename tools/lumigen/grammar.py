# SPDX-License-Identifier: MIT
"""The naming grammar: from an export's name pieces to its argument list."""

import re
from dataclasses import dataclass, field

SAMPLE_TYPES = {
    "1u": "Lum8u", "8u": "Lum8u", "8s": "Lum8s", "16u": "Lum16u", "16s": "Lum16s",
    "32u": "Lum32u", "32s": "Lum32s", "32f": "Lum32f", "64s": "Lum64s", "64f": "Lum64f",
    "16uc": "Lum16uc", "16sc": "Lum16sc", "32sc": "Lum32sc", "32fc": "Lum32fc", "64fc": "Lum64fc",
    "24u": "Lum8u",  # three bytes a sample
}
# Samples a constant or a per-channel result has; layouts absent here are planar.
CHANNELS = {"C1": 1, "C2": 2, "C3": 3, "C4": 4, "AC4": 3, "AC1": 1, "C3C": 1, "C4C": 1, "A0C4": 4}
PLANES = {"P2": 2, "P3": 3, "P4": 4, "AP4": 4}

ROLES = ("src", "src1", "src2", "dst", "srcDst", "dstMask", "roi", "mask", "value", "bounds", "sfs")

_TYPE = r"\d+(?:uc|sc|fc|u|s|f)"
_TYPES = re.compile(rf"({_TYPE})({_TYPE})?$")
_LAYOUT = r"AC4|AC1|AP4|C3C(?=R)|C4C(?=R)|C[1-4]|P[2-4]"
_DESCRIPTOR = re.compile(rf"({_LAYOUT})({_LAYOUT}|A0C4)?(I)?(M)?(Rs?)?(Sfs)?$")
_BARE = ("L2",)  # descriptors without a layout

# How an argument is passed: by the type of its declaration, where that is no pointer.
_CLASSES = {
    "float": ("Lum32f",), "double": ("Lum64f",), "int64": ("Lum64s", "Lum64u"),
    "pair": ("LumiSize", "LumiPoint", "Lum32sc"), "rect": ("LumiRect",), "halves": ("Lum16sc", "Lum16uc"),
    "floats": ("Lum32fc",), "doubles": ("Lum64fc",),
}
# Numbers that a value of a type is written with.
_ARITY = {"LumiSize": 2, "LumiPoint": 2, "LumiRect": 4}


class GrammarError(ValueError):
    """A name or a row that the grammar does not know; the reader adds file and line."""


@dataclass(frozen=True)
class Arg:
    """One argument of a C prototype. `kind` says what the fault tests may do with it."""

    kind: str      # image planes step offset size point rect value values results array arrays number lower upper pointer optional
    name: str
    decl: str      # C declaration, name included
    count: int = 0   # planes or pointers of an array of them, values of an array of those, results of all channels
    base: tuple = ("0",)  # a valid value of a number, a size, a point or a rectangle
    refused: tuple = ()   # Refused values
    length: str = ""      # the argument that tells an array's length

    @property
    def passing(self):
        """How the platform's convention sees it."""
        declared = self.decl.removesuffix(self.name).strip()
        if "*" in self.decl or "[" in self.decl:
            return "pointer"
        return next((c for c, types in _CLASSES.items() if declared in types), "int32")


@dataclass(frozen=True)
class Refused:
    """A value of an argument, alone at fault, and what finds it: a word of `check`, or a status of its own."""

    value: tuple
    by: str
    about: str = ""


@dataclass
class Param:
    """An argument that the grammar does not know, declared by its operation."""

    name: str
    ctype: str
    about: str
    optional: bool = False
    each: bool = False   # one for each channel
    image: bool = False  # of an image that no role tells of
    step: bool = False   # of the images before it
    length: str = ""
    base: tuple = ()
    refused: list = field(default_factory=list)

    @property
    def arity(self):
        return _ARITY.get(self.ctype, 1)


@dataclass
class Export:
    """One exported function."""

    name: str
    types: tuple
    layouts: tuple
    args: list
    returns: str
    check: tuple
    bind: str
    sample: str = ""          # implementation it shares, by export name; empty for its own
    line: str = ""            # file:line of its row, for messages
    op: object = field(default=None, repr=False)


def is_types(token):
    return bool(_TYPES.match(token))


def expand_braces(text):
    """`{C1 C3}{,I}R` -> C1R C1IR C3R C3IR."""
    match = re.search(r"\{([^{}]*)\}", text)
    if not match:
        if "{" in text or "}" in text:
            raise GrammarError(f"unbalanced brace in '{text}'")
        return [text]
    inside = match.group(1)
    parts = inside.split(",") if "," in inside else inside.split()
    if not parts:
        raise GrammarError(f"empty brace in '{text}'")
    head, tail = text[: match.start()], text[match.end():]
    return [name for part in parts for name in expand_braces(head + part.strip() + tail)]


def parse_types(token):
    match = _TYPES.match(token)
    if not match or any(t not in SAMPLE_TYPES for t in match.groups() if t):
        raise GrammarError(f"'{token}' is no sample type or pair of sample types")
    return tuple(t for t in match.groups() if t)


@dataclass(frozen=True)
class Descriptor:
    layouts: tuple
    in_place: bool
    masked: bool
    roi: bool
    scaled: bool


def parse_descriptor(token):
    if token in _BARE:
        return Descriptor((), False, False, False, False)
    match = _DESCRIPTOR.match(token)
    if not match:
        raise GrammarError(f"'{token}' is no layout descriptor")
    first, second, in_place, masked, roi, scaled = match.groups()
    layouts = (first, second) if second else (first,)
    return Descriptor(layouts, bool(in_place), bool(masked), bool(roi), bool(scaled))


def _image(role, token, layout, writable):
    const, sample = "" if writable else "const ", SAMPLE_TYPES[token]
    place = [Arg("step", f"{role}Step", f"int {role}Step")]
    if token == "1u":
        place.append(Arg("offset", f"{role}BitOffset", f"int {role}BitOffset"))
    planes = PLANES.get(layout)
    if planes:
        return [Arg("planes", role, f"{const}{sample}* const {role}[{planes}]", planes)] + place
    return [Arg("image", role, f"{const}{sample}* {role}")] + place


def _channels(layout):
    count = CHANNELS.get(layout) or PLANES.get(layout)
    if not count:
        raise GrammarError(f"'{layout}' does not tell how many channels are worked on")
    return count


def _values(name, sample, count, refused=()):
    """A constant: one sample by value, or several by pointer."""
    if count == 1:
        return Arg("value", name, f"{sample} {name}", refused=refused)
    return Arg("values", name, f"const {sample} {name}[{count}]", count, refused=refused)


_BASES = {"LumiSize": ("7", "3"), "LumiRect": ("0", "0", "7", "3")}


def _each(param, ctype, decl, descriptor):
    """One for each channel: constants, results, arrays of the caller's, or numbers. None where it is as if it stood alone."""
    count = _channels(descriptor.layouts[0] if descriptor and descriptor.layouts else "")
    if ctype in SAMPLE_TYPES.values():
        return _values(param.name, ctype, count, tuple(param.refused))
    if ctype.endswith("* const*"):  # arrays that receive results
        array = ctype.removesuffix(" const*")
        return Arg("arrays", param.name, f"{array} const {param.name}[{count}]", count) if count > 1 else \
            Arg("pointer", param.name, f"{array} {param.name}")
    is_result = "*" in ctype and not ctype.startswith("const ")
    if count == 1:
        return Arg("results", param.name, decl, count) if is_result else None
    if is_result:
        return Arg("results", param.name, f"{ctype.removesuffix('*')} {param.name}[{count}]", count)
    if "*" in ctype:
        return Arg("arrays", param.name, f"{ctype} const {param.name}[{count}]", count)
    return Arg("pointer", param.name, f"const {ctype} {param.name}[{count}]")


def _param(param, ctype, descriptor):
    decl = f"{ctype} {param.name}"
    each = _each(param, ctype, decl, descriptor) if param.each else None
    if each:
        return each
    if param.length:
        return Arg("array", param.name, decl, length=param.length)
    if "*" in ctype:
        return Arg("optional" if param.optional else "image" if param.image else "pointer", param.name, decl)
    if param.step:
        return Arg("step", param.name, decl)
    kind = {"LumiSize": "size", "LumiPoint": "point", "LumiRect": "rect"}.get(ctype, "number")
    base = param.base or _BASES.get(ctype, ("0",) * param.arity)
    return Arg(kind, param.name, decl, base=base, refused=tuple(param.refused))


def _grammar_args(role, types, descriptor):
    """The arguments of one role of the grammar; None for a role it does not know."""
    if role not in ROLES:
        return None
    if not types or not descriptor or not descriptor.layouts:
        raise GrammarError(f"'{role}' follows from a sample type and a descriptor, and the member lacks one")
    source_layout, dest_layout = descriptor.layouts[0], descriptor.layouts[-1]
    if role in ("src", "src1", "src2"):
        return _image(role, types[0], source_layout, False)
    if role in ("dst", "srcDst"):
        return _image(role, types[-1], dest_layout, True)
    if role == "dstMask":
        return _image(role, "8u", "C1", True)
    if role == "roi":
        return [Arg("size", "roi", "LumiSize roi")] if descriptor.roi else []
    if role == "mask":
        return _image("mask", "8u", "C1", False) if descriptor.masked else []
    if role == "value":
        return [_values("value", SAMPLE_TYPES[types[0]], _channels(source_layout))]
    if role == "bounds":
        return [Arg("lower", "lower", "Lum32f lower"), Arg("upper", "upper", "Lum32f upper")]
    return [Arg("number", "scaleFactor", "int scaleFactor")] if descriptor.scaled else []


def _in_place_roles(roles):
    """In place the last source is the destination, and stands where that would."""
    sources = [r for r in roles if r in ("src", "src1", "src2")]
    names = {"dst": "srcDst", "src1": "src"}
    return [names.get(r, r) for r in roles if not sources or r != sources[-1]]


def arguments(roles, params, types, descriptor):
    """The argument list of one member."""
    if descriptor and descriptor.in_place:
        roles = _in_place_roles(roles)
    known = {p.name: p for p in params}
    result = []
    for role in roles:
        if role in known:
            result.append(_param(known[role], fill_types(known[role].ctype, types), descriptor))
            continue
        args = _grammar_args(role, types, descriptor)
        if args is None:
            raise GrammarError(f"'{role}' is neither a role of the grammar nor a param of the operation")
        result.extend(args)
    return result


def fill_types(text, types):
    """Puts the member's sample types for {T} and {T2}."""
    if "{T" in text and not types:
        raise GrammarError(f"'{text}' asks for a sample type, and the member has none")
    if types:
        text = text.replace("{T}", SAMPLE_TYPES[types[0]]).replace("{T2}", SAMPLE_TYPES[types[-1]])
    return text
