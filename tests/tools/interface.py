"""The classes, operations, properties and enumerations of the automation interface, as interface.js reads them."""

import dataclasses
import functools
import json

import harness


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


@functools.lru_cache
def read(target):
    """The interface as one target sees it."""
    node, = harness.need("node")
    described = harness.run(node, harness.HERE / "describe.js", target)
    if described.returncode != 0:
        raise ValueError(described.stderr)
    known = json.loads(described.stdout)
    classes = {}
    for cls in known["classes"].values():
        operations = [Operation(one["name"], tuple(Parameter(**part) for part in one["parameters"]), one["result"])
                      for one in cls["operations"]]
        classes[cls["name"]] = Class(cls["name"], cls["base"], operations,
                                     [Property(**one) for one in cls["properties"]])
    return Interface(classes, known["enumerations"])
