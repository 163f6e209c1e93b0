"""The automation interface as what a compiler makes of its type library: interfaces I<Class>, smart pointers
I<Class>Ptr. Operations give their result back. A property has raw accessors, with a status and the result behind the
arguments, and wrapped ones."""

import re

import interface

TYPES = {"double": "double", "int": "long", "long": "long", "bool": "VARIANT_BOOL", "string": "const _bstr_t &",
         "object": "_com_argument_t<IDispatch>"}
RAW_TYPES = {**TYPES, "string": "_bstr_argument_t"}
OUT_TYPES = {"double": "double *", "int": "long *", "long": "long *", "bool": "VARIANT_BOOL *", "string": "BSTR *",
             "object": "IDispatch **"}
RESULTS = {**TYPES, "string": "_bstr_t", "object": "IDispatchPtr", "": "HRESULT"}

APPLICATION_LIBRARY = "iwAutomation.dll"

# The interface that a project defines itself, as the compiler of its interface definition writes it.
OWN_HEADER = """#pragma once
struct I{cls} : public IDispatch {{}};
class {cls};
extern const GUID IID_I{cls};
extern const GUID CLSID_{cls};
extern const GUID LIBID_{library};
"""


class _Library:
    def __init__(self, known):
        self._known = known

    def _argument(self, name, basic):
        if name.endswith("[]"):
            return "const _variant_t &"
        if name in self._known.classes:
            return f"_com_argument_t<I{name}>"
        return basic.get(name, name)

    def _out(self, name):
        if name.endswith("[]"):
            return "VARIANT *"
        if name in self._known.classes:
            return f"I{name} **"
        return OUT_TYPES.get(name, f"{name} *")

    def _result(self, name):
        if name.endswith("[]"):
            return "_variant_t"
        if name in self._known.classes:
            return f"I{name}Ptr"
        return RESULTS.get(name, name)

    def _operation(self, operation):
        arguments = [self._out(p.type) if p.out else self._argument(p.type, TYPES) for p in operation.parameters]
        return f"    {self._result(operation.result)} {operation.name}( {', '.join(arguments)} );"

    def _accessors(self, prop):
        given = "VARIANT" if prop.type.endswith("[]") else self._argument(prop.type, RAW_TYPES)
        yield f"    virtual HRESULT put_{prop.name}( {given} ) = 0;"
        yield f"    virtual HRESULT get_{prop.name}( {self._out(prop.type)} ) = 0;"
        yield f"    {self._result(prop.type)} Get{prop.name}();"

    def lines(self):
        yield '#pragma once\n#include "importLibrary.h"'
        for name, enumerators in self._known.enumerations.items():
            yield f"enum {name} {{ {', '.join(enumerators)} }};"
        yield from (f"struct I{name};\ntypedef _com_ptr_t<I{name}> I{name}Ptr;" for name in self._known.classes)
        for cls in self._known.classes.values():
            yield f"struct I{cls.name} : public {f'I{cls.base}' if cls.base else 'IDispatch'}\n{{"
            yield from map(self._operation, cls.operations)
            for prop in cls.properties:
                yield from self._accessors(prop)
            yield "};"


def write(precompiled, folder):
    """Writes what the imports of a project's precompiled header name, each under the name it is imported by."""
    library = "\n".join(_Library(interface.read("cppcom")).lines()) + "\n"
    for imported in re.findall(r'^#import "([^"]+)"', precompiled, re.MULTILINE):
        text = library if imported.endswith(APPLICATION_LIBRARY) else '#pragma once\n#include "addinLibrary.h"\n'
        (folder / imported).write_text(text, encoding="utf-8")


def own_header(definition):
    """Of the text of a project's interface definition, as if its library had a legal name."""
    library = re.search(r"^library ([^\n{]*\S)", definition, re.MULTILINE)[1]
    return OWN_HEADER.format(cls=re.search(r"coclass (\w+)", definition)[1], library=re.sub(r"\W", "_", library))
