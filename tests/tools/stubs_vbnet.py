"""The automation interface as VB.NET source. An object whose class is not known is called late."""

import interface

_BASIC = {"double": "Double", "int": "Integer", "long": "Long", "bool": "Boolean", "string": "String"}


def _type(name):
    """Arrays come as what a type library gives: an object."""
    if name.endswith("[]") or name == "object":
        return "Object"
    return _BASIC.get(name, name)


def _operation(operation):
    parameters = ", ".join(f"{'ByRef' if p.out else 'ByVal'} a{number} As {_type(p.type)}"
                           for number, p in enumerate(operation.parameters))
    if operation.result:
        return f"Function [{operation.name}]({parameters}) As {_type(operation.result)}"
    return f"Sub [{operation.name}]({parameters})"


def source():
    known = interface.read("csharp")
    lines = ["Namespace Inkwright"]
    for name, enumerators in known.enumerations.items():
        lines += [f"Public Enum {name}", *(f"    [{enumerator}]" for enumerator in enumerators), "End Enum"]
    for cls in known.classes.values():
        lines.append(f"Public Interface [{cls.name}]")
        lines += [f"    Inherits [{cls.base}]"] if cls.base else []
        lines += [f"    {_operation(operation)}" for operation in cls.operations]
        lines += [f"    Property [{prop.name}] As {_type(prop.type)}" for prop in cls.properties]
        lines.append("End Interface")
    return "\n".join([*lines, "End Namespace", ""])
