"""What a compiler of Basic leaves to the run of a VBA macro, and VBA's own compiler does not: types, members, sizes of
arrays, Set, and parentheses around the arguments of a call."""

import re

import basic_structure

_NAME = r"[A-Za-z]\w*"
_DECLARED = re.compile(rf"\b({_NAME})( ?\([^)]*\))? As (?:New )?([\w.]+)", re.I)
_ASSIGNED = re.compile(rf"(Set )?({_NAME})( ?\([^)]*\))? *= ", re.I)
_CALLED = re.compile(rf"({_NAME}(?: ?\([^()]*\))?(?:\.{_NAME}(?: ?\([^()]*\))?)*\.{_NAME}) ?\((.*)\)$", re.I)
_MEMBER = re.compile(rf"(?<![\w.)])({_NAME})\.({_NAME})")
_VALUES = {"double", "integer", "long", "string", "boolean"}
_LIBRARY = "Inkwright."


class _Variable:
    def __init__(self, type_, size):
        self.type, self.size = type_, size

    def array(self):
        return self.size is not None


class _Checker:
    def __init__(self, known):
        self.known = known
        self.values = _VALUES | {name.lower() for name in known.enumerations}
        self.variables = {}
        self.faults = []

    def line(self, number, code):
        found = [*self.declarations(code), *self.assignment(code), *self.call(code), *self.members(code)]
        self.faults += [(number, fault) for fault in found]

    def declarations(self, code):
        for name, size, type_ in _DECLARED.findall(code):
            plain = type_.removeprefix(_LIBRARY)
            if plain not in self.known.classes and plain.lower() not in self.values | {"variant", "object"}:
                yield f"there is no type {type_}"
            size = size.strip(" ()") if size else None
            if size and not re.fullmatch(r"\d+", size):
                yield f"the size of {name} is no constant of at least 0"
            self.variables[name.lower()] = _Variable(plain, size)

    def is_object(self, variable):
        return variable.type.lower() not in self.values | {"variant"}

    def assignment(self, code):
        match = _ASSIGNED.match(code)
        variable = match and self.variables.get(match[2].lower())
        if not variable:
            return
        whole = variable.array() and not match[3]
        if match[1] and not self.is_object(variable) and variable.type.lower() != "variant":
            yield f"Set with {match[2]}, which is no object"
        elif not match[1] and self.is_object(variable) and not whole:
            yield f"no Set with {match[2]}, which is an object"
        if whole and variable.size:
            yield f"{match[2]} is an array of a fixed size, which is assigned to"

    def call(self, code):
        if re.search(r",\s*(?:\)|$)", code):
            yield "the last argument is empty"
        match = None if re.match(r"(?:If|Set|Dim|Call|For)\b", code, re.I) else _CALLED.match(code)
        if not match or not _matched(match[2]):
            return
        if not match[2].strip():
            yield "a call without a result has no empty parentheses"
        variable = self.variables.get(match[2].strip().lower())
        if variable and self.is_object(variable) and not variable.array():
            yield "an object in parentheses stands for its default property"

    def members(self, code):
        for name, member in _MEMBER.findall(code):
            variable = self.variables.get(name.lower())
            if not variable or variable.type not in self.known.classes:
                continue
            members = {entry.name.lower() for cls in self.known.chain(variable.type)
                       for entry in (*cls.operations, *cls.properties)}
            if member.lower() not in members:
                yield f"{variable.type} has no {member}"


def _matched(text):
    """Whether every parenthesis of the text is closed within it."""
    depth = 0
    for character in text:
        depth += (character == "(") - (character == ")")
        if depth < 0:
            return False
    return depth == 0


def check(text, known):
    """(line, fault) of everything that is wrong; `known` is the automation interface."""
    checker = _Checker(known)
    for number, line in basic_structure.logical_lines(text):
        code, _ = basic_structure.without_text(line)
        checker.line(number, code)
    return checker.faults
