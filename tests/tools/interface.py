"""Reads tests/stubs/interface.txt: the classes, operations, properties and enumerations of the automation interface."""

import dataclasses
import pathlib
import re

BASIC_TYPES = ("double", "int", "long", "bool", "string", "object")


@dataclasses.dataclass(frozen=True)
class Parameter:
    type: str
    out: bool
    name: str  # empty: only the place counts


@dataclasses.dataclass(frozen=True)
class Operation:
    name: str
    parameters: tuple
    result: str  # empty: none


@dataclasses.dataclass(frozen=True)
class Property:
    name: str
    type: str


@dataclasses.dataclass
class Class:
    name: str
    base: str  # empty: none
    drawn: str  # the drawing's class whose added objects are inserted as it; empty: none
    operations: list
    properties: list


@dataclasses.dataclass
class Interface:
    classes: dict
    enumerations: dict

    def chain(self, name):
        """The class and those it inherits from, itself first."""
        while name:
            yield self.classes[name]
            name = self.classes[name].base


class BadLine(Exception):
    pass


_CLASS = re.compile(r"(\w+)(?: : (\w+))?(?: = (\w+))?$")
_ENUM = re.compile(r"enum (\w+)$")
_OPERATION = re.compile(r"(\w+)\((.*)\)(?: ([\w\[\]]+))?$")
_PROPERTY = re.compile(r"(\w+): ([\w\[\]]+)$")
_PARAMETER = re.compile(r"(out )?([\w\[\]]+)(?: \* (\d+)| (\w+))?$")
_TARGETS = re.compile(r"^(.*?)\s*\[([a-z, ]+)\]$")


def _parameters(text):
    parameters = []
    for part in filter(None, (part.strip() for part in text.split(","))):
        match = _PARAMETER.match(part)
        if not match:
            raise BadLine(f"{part!r} is no parameter")
        parameters += [Parameter(match[2], bool(match[1]), match[4] or "")] * int(match[3] or 1)
    return tuple(parameters)


def _member(owner, text):
    if match := _OPERATION.match(text):
        owner.operations.append(Operation(match[1], _parameters(match[2]), match[3] or ""))
    elif match := _PROPERTY.match(text):
        owner.properties.append(Property(match[1], match[2]))
    else:
        raise BadLine(f"{text!r} is neither an operation nor a property")


def _check_types(interface):
    known = {*BASIC_TYPES, *interface.classes, *interface.enumerations}
    for cls in interface.classes.values():
        used = [(p.name, p.type) for p in cls.properties]
        for operation in cls.operations:
            used += [(operation.name, p.type) for p in operation.parameters]
            used += [(operation.name, operation.result)] if operation.result else []
        for member, type_ in used:
            if type_.removesuffix("[]") not in known:
                raise BadLine(f"{cls.name}.{member}: {type_} is no type")


def read(path, target):
    """The interface as one target sees it."""
    interface = Interface({}, {})
    members = None
    for number, raw in enumerate(path.read_text(encoding="utf-8").splitlines(), 1):
        text = raw.split("#")[0].rstrip()
        if not text:
            continue
        try:
            if only := _TARGETS.match(text):
                text = only[1]
                if target not in [name.strip() for name in only[2].split(",")]:
                    continue
            if text.startswith(" "):
                members(text.strip())
            elif match := _ENUM.match(text):
                members = interface.enumerations.setdefault(match[1], []).append
            elif match := _CLASS.match(text):
                if match[2] and match[2] not in interface.classes:
                    raise BadLine(f"the base {match[2]} has to stand in front of {match[1]}")
                cls = interface.classes.setdefault(match[1], Class(match[1], match[2] or "", match[3] or "", [], []))
                members = lambda member, cls=cls: _member(cls, member)
            else:
                raise BadLine(f"{text!r} begins neither a class nor an enumeration")
        except BadLine as error:
            raise BadLine(f"{path}:{number}: {error}") from None
    _check_types(interface)
    return interface


def state_rows():
    """The rows of tests/stubs/state.txt."""
    path = pathlib.Path(__file__).resolve().parent.parent / "stubs/state.txt"
    lines = path.read_text(encoding="utf-8").splitlines()
    return [line for line in lines if line and not line.startswith("#")]
