"""What the types of VBA's variables rule out, and what a compiler that looks types up when a macro runs does not see:
types and members that nobody has, sizes that are no constants, Set where it does not belong or is left out, objects in
parentheses, which stand for their default property, and arguments that are left out, of which the interface knows
none."""

import re

import basic_structure

VALUES = {"boolean", "byte", "currency", "date", "double", "integer", "long", "single", "string"}
_NAME = r"[A-Za-z]\w*"
_DECLARED = re.compile(rf"(?:^Dim |^Private |, ?)({_NAME})(?: ?(\([^()]*\)))? As (?:New )?([\w.]+)", re.I)
_SIZE = re.compile(r"\( *(?:(?:\d+ To )?\d+(?: *, *(?=\d))?)* *\)", re.I)
_ASSIGNED = re.compile(rf"(Set )?({_NAME})( ?\(.*?\))? *=(.*)$", re.I)
_MEMBER = re.compile(rf"(?<![\w.)])({_NAME})\.({_NAME})")
_IN_PARENTHESES = re.compile(rf"[\w.]+\.{_NAME} ?\( ?({_NAME}) ?\)$")
_LEFT_OUT = re.compile(rf"\.{_NAME}(?: ?\(| ) *,|, *(?:[,)]|$)")
_CALLED = re.compile(rf"\.({_NAME})(?: ?\(.*\))?$")


class _Checker:
    def __init__(self, known):
        self.known = known
        self.classes = {"object", *map(str.lower, known.classes)}
        self.enumerations = {name.lower() for name in known.enumerations}
        self.declared = {}  # name: kind of its type, size
        self.types = {}  # name: its class, in lower case
        self.members = {name.lower(): {member.name.lower() for cls in known.chain(name)
                                       for member in (*cls.operations, *cls.properties)} for name in known.classes}

    def kind(self, type_):
        """What a variable of that type holds; empty: there is no such type."""
        name = type_.lower().removeprefix("inkwright.")
        if name in VALUES or name in self.enumerations:
            return "value"
        return "object" if name in self.classes else "variant" if name == "variant" else ""

    def declarations(self, code):
        for name, size, type_ in _DECLARED.findall(code):
            kind = self.kind(type_)
            self.declared[name.lower()] = (kind, size)
            self.types[name.lower()] = type_.lower().removeprefix("inkwright.")
            if not kind:
                yield f"there is no type {type_}"
            if size and not _SIZE.fullmatch(size):
                yield f"the size of {name} is no constant"

    def given(self, expression):
        """What an expression gives, as far as it is known without running it."""
        kind, size = self.declared.get(expression.lower(), ("", ""))
        if kind:
            return "array" if size else kind
        called = _CALLED.search(expression)
        return self.result(called[1]) if called else ""

    def result(self, name):
        """What members of that name give, where all classes agree."""
        types = set()
        for cls in self.known.classes.values():
            types |= {self.kind(operation.result) for operation in cls.operations if operation.name == name}
            types |= {self.kind(prop.type) for prop in cls.properties if prop.name == name}
        return types.pop() if len(types) == 1 else ""

    def assignment(self, code):
        match = _ASSIGNED.match(code)
        if not match or match[2].lower() not in self.declared:
            return
        is_set, name, index, expression = match.groups()
        kind, size = self.declared[name.lower()]
        if size not in ("", "()") and not index:
            yield f"{name} is an array, which takes no assignment"
        elif is_set and kind == "value":
            yield f"Set with {name}, which is no object"
        elif is_set and self.given(expression.strip()) in ("value", "array"):
            yield f"Set with {expression.strip()}, which is no object"
        elif not is_set and "object" in (kind, kind == "variant" and self.given(expression.strip())):
            yield f"no Set with {name}, which becomes an object"

    def uses(self, code):
        for name, member in _MEMBER.findall(code):
            type_ = self.types.get(name.lower())
            if type_ in self.members and member.lower() not in self.members[type_]:
                yield f"{name} has no member {member}"
        if (call := _IN_PARENTHESES.match(code)) and self.given(call[1]) == "object":
            yield f"{call[1]} in parentheses is its default property and no object"
        if _LEFT_OUT.search(code):
            yield "an argument is left out"


def check(text, known):
    """(line, fault) of everything that is wrong; `known` is the interface that the macro uses."""
    checker = _Checker(known)
    for number, statement in basic_structure.statements(text, basic_structure.VBA):
        code, _ = basic_structure.without_text(statement)
        declares = re.match(r"(?:Dim|Private (?!Sub))\b", code, re.I)
        faults = checker.declarations(code) if declares else [*checker.assignment(code), *checker.uses(code)]
        yield from ((number, fault) for fault in faults)
