"""The operations that the headers of sdk/ declare, for the scripts that list them.

An operation is a virtual one of an interface, a static one of a VEX_EXPORT class, or a VEX_EXPORT function.
A declaration that cannot be read ends the script with a message, so that none is left out in silence.
"""
import dataclasses
import pathlib
import re
import sys

BASE = "VEXBaseUnknown"
OPERATION = re.compile(r"(?P<result>[\w:\s]+?[\s*&]+)(?P<name>\w+)\s*\((?P<arguments>.*)\)\s*(?P<end>const)?$")
COMMENT = re.compile(r"//[^\n]*|/\*.*?\*/", re.S)
PREPROCESSOR = re.compile(r"^[ \t]*#(?:[^\n]*\\\n)*[^\n]*", re.M)
ACCESS = re.compile(r"\b(public|protected|private):(?!:)")


@dataclasses.dataclass
class Operation:
    owner: str  # interface or class; empty for a free function
    name: str
    result: str
    arguments: str
    declaration: str
    virtual: bool
    line: int

    @property
    def full_name(self):
        return f"{self.owner}::{self.name}" if self.owner else self.name

    @property
    def reserved(self):
        return re.fullmatch(r"Reserved\d+", self.name) is not None


@dataclasses.dataclass
class Class:
    name: str
    base: str  # the class it derives from, else empty
    exported: bool
    template: bool
    line: int
    operations: list


class Header:
    """One header: its classes, free functions and interfaces (VEX_INTERFACE) in the order of its lines."""

    def __init__(self, path):
        self.path = path
        self.text = path.read_text()
        self.lines = self.text.split("\n")
        self.classes, self.functions, self.interfaces = [], [], []
        for head, body, start, body_start in statements(blanked(self.text), 0):
            line = self.text.count("\n", 0, start) + 1
            definition = re.match(
                r"(?P<template>template <[^<>]*> )?(class|struct) (?P<exported>VEX_EXPORT )?(?P<name>\w+)"
                r"( final)?( : public (?P<base>\w+).*)?$", head)
            if definition and body is not None:
                self._read_class(definition, line, body, body_start)
            elif body is not None and re.match(r"(class|struct)\b", head):
                self.fail(line, f"cannot read '{head}'")
            elif interface := re.fullmatch(r"VEX_INTERFACE\((\w+)\)", head):
                self.interfaces.append(interface[1])
            elif function := re.match(r'(?:extern "C" )?(?:\[\[\w+\]\] )?VEX_EXPORT (.*)', head):
                self.functions.append(self._operation("", function[1], False, line))

    def fail(self, line, message):
        sys.exit(f"{self.path}:{line}: {message}")

    def _operation(self, owner, declaration, virtual, line):
        match = OPERATION.match(re.sub(r"([*&])", r" \1 ", declaration))
        if not match:
            self.fail(line, f"cannot read '{declaration}'")
        return Operation(owner, match["name"], " ".join(match["result"].split()), match["arguments"], declaration,
                         virtual, line)

    def _read_class(self, definition, line, body, body_start):
        name, exported = definition["name"], bool(definition["exported"])
        operations = []
        self.classes.append(Class(name, definition["base"] or "", exported, bool(definition["template"]), line, operations))
        if definition["template"]:
            return
        for head, _, start, _ in statements(body, body_start):
            place = self.text.count("\n", 0, start) + 1
            if head.startswith("virtual "):
                declaration = head.removeprefix("virtual ")
                pure = declaration.endswith("= 0")
                if not pure and name != BASE and not re.search(r"\bReserved\d+\(|~", declaration):
                    self.fail(place, f"{name}: '{declaration}' is not pure: only reserved places have a body")
                if "~" in declaration:
                    operations.append(Operation(name, "~" + name, "", "", declaration, True, place))
                else:
                    declaration = declaration.removesuffix("= 0").rstrip()
                    operations.append(self._operation(name, declaration, True, place))
            elif head.startswith("static ") and exported and "(" in head:
                operations.append(self._operation(name, head.removeprefix("static "), False, place))

    def purpose(self):
        """The comment at the top, which says what the header is for."""
        end = next(index for index, line in enumerate(self.lines) if not line.startswith("//"))
        return [line.lstrip("/").strip() for line in self.lines[1:end]]

    def comment_above(self, line):
        """The comment lines that stand right above a line, without their slashes."""
        first = line - 1
        while first > 0 and self.lines[first - 1].lstrip().startswith("//"):
            first -= 1
        return [text.strip().lstrip("/").strip() for text in self.lines[first : line - 1]]


def blanked(text, *patterns):
    """The text with comments, preprocessor lines and access labels as blanks: every place keeps its offset."""
    for pattern in patterns or (COMMENT, PREPROCESSOR, ACCESS):
        text = pattern.sub(lambda match: re.sub(r"[^\n]", " ", match[0]), text)
    return text


def statements(text, offset):
    """Yields each (head, body, start, start of body) of one level: `head;` has no body, `head { body }` has one."""
    head_start = position = 0

    def told(body, body_start):
        head = text[head_start:position if body is None else body_start - 1]
        blanks = len(head) - len(head.lstrip())
        return " ".join(head.split()), body, offset + head_start + blanks, offset + body_start

    while position < len(text):
        if text[position] == ";":
            yield told(None, position)
            head_start = position + 1
        elif text[position] == "{":
            open_braces, start = 1, position + 1
            while open_braces and position + 1 < len(text):
                position += 1
                open_braces += {"{": 1, "}": -1}.get(text[position], 0)
            yield told(text[start:position], start)
            head_start = position + 1
        position += 1


def read_headers(folder):
    """The headers of a folder, in the order of their paths."""
    paths = sorted(pathlib.Path(folder).rglob("*.h"))
    if not paths:
        sys.exit(f"{folder}: no headers there")
    return [Header(path) for path in paths]
