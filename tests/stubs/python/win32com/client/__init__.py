"""A stand-in for the automation interface as pywin32 shows it, and stricter where COM lets things pass: members,
numbers and types of arguments are those of the interface, arrays are variants, and enumerators are there only when the
type library has been read. Each call is told to standard output, and standard input has the answers
(csharp/Noting.cs does the same): who stands at the other end has the drawing."""

import collections
import functools
import json
import os
import sys
import urllib.parse

import interface
import pythoncom

known = functools.partial(interface.read, "python")
VARIANT = collections.namedtuple("VARIANT", "varianttype value")
ARRAYS = {"double": pythoncom.VT_R8, "int": pythoncom.VT_I4, "string": pythoncom.VT_BSTR,
          "object": pythoncom.VT_DISPATCH}
# They take enumerators by the numbers that the drawing has.
NUMBERED = ("InsertTable", "SetElementColor")
# Whether calls of which nobody can tell have a result in front of what comes back by reference.
RESULT_FIRST = os.environ.get("INKMACRO_RESULT_FIRST", "1") == "1"
# `points`: the answers at prompts for them, in turn. All others are answered with what they offer.
state = {"application": None, "points": []}


class Enumerator(int):
    """An integer to a macro, which knows its enumeration."""

    def __new__(cls, value, name, enumeration):
        made = super().__new__(cls, value)
        made.name, made.enumeration = name, enumeration
        return made


@functools.lru_cache
def enumerators():
    return {name: Enumerator(value, name, enumeration) for enumeration, names in known().enumerations.items()
            for value, name in enumerate(names)}


class _Constants:
    def __getattr__(self, name):
        if state["application"] is None or not state["application"]._bound or name not in enumerators():
            raise AttributeError(name)
        return enumerators()[name]


constants = _Constants()


def tell(message):
    print(json.dumps(message))


def reply():
    sys.stdout.flush()
    return sys.stdin.readline().rstrip("\n")


def _refuse(member, type_, value):
    raise TypeError(f"{member} wants {type_} and was given {value!r}")


def _list(member, type_, value):
    element = type_[:-2]
    wanted = ARRAYS.get(element, pythoncom.VT_I4 if element in known().enumerations else None)
    if not isinstance(value, VARIANT) or value.varianttype != pythoncom.VT_ARRAY | wanted:
        _refuse(member, type_, value)
    # An array of integers holds enumerators, such as types of objects; nothing else that is an integer is one.
    return [one.name if element == "int" and isinstance(one, Enumerator) else _argument(member, element, one)
            for one in value.value]


def _argument(member, type_, value):
    """As it is told; what COM would make of another type is refused."""
    if value is pythoncom.Nothing and (type_.endswith("[]") or type_ in known().classes or type_ == "object"):
        return None
    if type_.endswith("[]"):
        return _list(member, type_, value)
    if isinstance(value, Thing):
        fits = type_ == "object" or type_ in [cls.name for cls in known().chain(value._class)]
        return {"thing": value._id} if fits else _refuse(member, type_, value)
    if type_ in known().enumerations:
        if member in NUMBERED and type(value) is int:
            return known().enumerations[type_][value] if value < len(known().enumerations[type_]) else value
        fits = isinstance(value, Enumerator) and value.enumeration == type_
        return value.name if fits else _refuse(member, type_, value)
    fits = {"double": float, "int": int, "long": int, "bool": bool, "string": str}.get(type_)
    return value if fits and type(value) is fits else _refuse(member, type_, value)


def _answer(type_, told):
    if type_.endswith("[]"):
        return tuple(_answer(type_[:-2], one) for one in told.split(",") if one)
    if type_ == "object":
        number, cls = told.split(" ")
        return Thing(number, "" if cls == "Found" else cls)
    if type_ in known().classes:
        return Thing(told, type_)
    if type_ in known().enumerations:
        return enumerators()[told]
    return {"double": float, "int": int, "long": int, "string": str, "bool": lambda one: one == "true"}[type_](told)


def _ask(thing, call, types, arguments):
    tell({"on": int(thing._id), "call": call, "types": types, "args": arguments})
    answers = reply().split("\t") if types else []
    return [_answer(type_, urllib.parse.unquote(told)) for type_, told in zip(types, answers)]


def _answered(results, operation, given):
    """At a prompt the user takes what is offered, or points to what was made ready."""
    if not operation.name.startswith("PromptFor") or not results:
        return results
    return state["points"].pop(0) if operation.name == "PromptForPoint" else [given[-1]]


def _found(results):
    """What an object is, its type tells, which comes with it."""
    for thing, kind in zip(results, results[1:]):
        if isinstance(thing, Thing) and not thing._class and isinstance(kind, Enumerator):
            name = kind.name[len("iw"):-len("Type")].lower()
            cls = next((cls for cls in known().classes if cls.lower() == name), "")
            thing.__dict__.update(_class=cls, _found=True)


@functools.lru_cache
def _members(cls):
    """Operations and properties by their names. What is found by a handle may be of any class."""
    chain = list(known().chain(cls)) if cls else list(known().classes.values())
    operations = {one.name: one for each in reversed(chain) for one in each.operations}
    return operations, {one.name: one.type for each in reversed(chain) for one in each.properties}


@functools.lru_cache
def _hasDoubtfulResult(cls, name):
    """Only C++ shows one: the languages that get results by reference have none."""
    others = interface.read("csharp")
    chain = others.chain(cls) if cls else others.classes.values()
    same = [one for each in chain for one in each.operations if one.name == name]
    return bool(same) and not same[0].result


class Thing:
    """An object of the interface, of a class of its own when that is known."""

    def __init__(self, number, cls):
        self.__dict__.update(_id=str(number), _class=cls, _found=False, _bound=False)

    def __getattr__(self, name):
        operations, properties = _members(self._class)
        if name in properties:
            return _ask(self, f"get_{name}", [properties[name]], [])[0]
        if name not in operations:
            raise AttributeError(f"{self._class or 'object'} has no {name}")
        return functools.partial(self._call, operations[name])

    def __setattr__(self, name, value):
        properties = _members(self._class)[1]
        if name not in properties:
            raise AttributeError(f"{self._class or 'object'} has no property {name}")
        _ask(self, f"put_{name}", [], [_argument(name, properties[name], value)])

    def _call(self, operation, *arguments):
        if pythoncom.Missing in arguments:
            raise TypeError(f"{operation.name}: what stands behind Missing is not handed over")
        parameters = list(operation.parameters)
        while parameters and parameters[-1].out:
            parameters.pop()
        if len(arguments) != len(parameters):
            raise TypeError(f"{operation.name} takes {len(parameters)} arguments and was given {len(arguments)}")
        given = list(zip(parameters, arguments))
        if any(value is not None for parameter, value in given if parameter.out):
            raise TypeError(f"{operation.name}: a value in the place of a result")
        told = [_argument(operation.name, parameter.type, value) for parameter, value in given if not parameter.out]
        isDoubtful = bool(operation.result) and _hasDoubtfulResult(self._class, operation.name)
        types = [operation.result] * bool(operation.result and not isDoubtful)
        types += [one.type for one in operation.parameters if one.out]
        results = _answered(_ask(self, operation.name, types, told), operation, arguments)
        _found(results)
        results = [True] * (isDoubtful and RESULT_FIRST) + list(results)
        return tuple(results) if len(results) > 1 else results[0] if results else None


def GetActiveObject(name):
    if name != "Inkwright.Application" or state["application"] is None:
        raise pythoncom.com_error(name)
    return state["application"]


class gencache:
    @staticmethod
    def EnsureDispatch(thing):
        thing.__dict__["_bound"] = True
        return thing
