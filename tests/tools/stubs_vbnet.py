"""The automation interface as VB.NET source: interfaces as a type library gives them, which look for a member that
they do not have when a macro runs."""

import uuid

import interface

TYPES = {"double": "Double", "int": "Integer", "long": "Long", "bool": "Boolean", "string": "String",
         "object": "Object"}
FAMILY = uuid.UUID("5d6f4c1e-93a7-4b60-8f1b-6f0f5a3f7c52")


def _type(name):
    """Arrays come as what a type library gives: an object."""
    return "Object" if name.endswith("[]") else TYPES.get(name, f"[{name}]")


def _operation(operation):
    parameters = ", ".join(f"{'ByRef' if p.out else 'ByVal'} a{number} As {_type(p.type)}"
                           for number, p in enumerate(operation.parameters))
    if not operation.result:
        return f"    Sub [{operation.name}]({parameters})"
    return f"    Function [{operation.name}]({parameters}) As {_type(operation.result)}"


def source(path):
    known = interface.read(path, "csharp")
    lines = ["Imports System.Runtime.InteropServices", "Namespace Inkwright"]
    for name, enumerators in known.enumerations.items():
        lines += [f"Public Enum [{name}]", *(f"    [{enumerator}]" for enumerator in enumerators), "End Enum"]
    for cls in known.classes.values():
        lines.append(f'<ComImport(), Guid("{uuid.uuid5(FAMILY, cls.name)}"), '
                     "InterfaceType(ComInterfaceType.InterfaceIsIDispatch), TypeLibType(TypeLibTypeFlags.FDispatchable)>")
        lines.append(f"Public Interface [{cls.name}]")
        lines += [f"    Inherits [{cls.base}]"] if cls.base else []
        lines += map(_operation, cls.operations)
        lines += [f"    Property [{prop.name}]() As {_type(prop.type)}" for prop in cls.properties]
        lines.append("End Interface")
    return "\n".join([*lines, "End Namespace", ""])
