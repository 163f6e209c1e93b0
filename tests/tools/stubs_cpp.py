"""The automation interface as C++ headers: abstract classes iw<Class>_c, pointers iw<Class>_ptr, results behind the
arguments."""

import interface

TYPES = {"double": "double", "int": "long", "long": "long", "bool": "bool", "string": "const iwString &",
         "object": "iwObject_c *"}
OUT_TYPES = {"double": "double *", "int": "long *", "long": "long *", "bool": "bool *", "string": "iwString *",
             "object": "iwObjectOut"}
ARRAYS = {"double": "iwDoubleArray", "int": "iwLongArray", "string": "iwStringArray"}

GUARD = "#pragma once\n\n"


class _Header:
    def __init__(self, known):
        self._known = known

    def type(self, name, out):
        if name.endswith("[]"):
            return ARRAYS.get(name[:-2], "iwObjectPtrArray") + (" *" if out else " &")
        if name in self._known.classes:
            return f"iw{name}_c *" + ("*" if out else "")
        if name in self._known.enumerations:
            return name + (" *" if out else "")
        return (OUT_TYPES if out else TYPES)[name]

    def operation(self, operation):
        arguments = [self.type(p.type, p.out) for p in operation.parameters]
        if operation.result:
            arguments.append(self.type(operation.result, True))
        return f"    virtual void {operation.name}( {', '.join(arguments)} ) = 0;"

    def members(self, cls):
        yield from map(self.operation, cls.operations)
        for prop in cls.properties:
            yield f"    virtual void put_{prop.name}( {self.type(prop.type, False)} ) = 0;"
            yield f"    virtual void get_{prop.name}( {self.type(prop.type, True)} ) = 0;"


def write(folder):
    """Writes a header for each class; all bring the whole interface, since macros include a few of them only."""
    known = interface.read("cpp")
    header = _Header(known)
    lines = [GUARD + '#include "iwInterfacePtr.h"\n']
    for name, enumerators in known.enumerations.items():
        lines.append(f"enum {name} {{ {', '.join(enumerators)} }};")
    lines += [f"class iw{name}_c;\ntypedef iwInterfacePtr<iw{name}_c> iw{name}_ptr;" for name in known.classes]
    for cls in known.classes.values():
        base = f"iw{cls.base}_c" if cls.base else "iwObject_c"
        lines += [f"class iw{cls.name}_c : public {base}\n{{\npublic:", *header.members(cls), "};"]
    (folder / "iwInterface.h").write_text("\n".join(lines) + "\n", encoding="utf-8")
    for name in known.classes:
        (folder / f"iw{name}_c.h").write_text(GUARD + '#include "iwInterface.h"\n', encoding="utf-8")
