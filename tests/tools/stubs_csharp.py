"""The automation interface as C# source: an interface a class, and an object behind it that tells what it is asked."""

import json
import re

import interface


class _Source:
    def __init__(self, known):
        self._known = known

    def type(self, name):
        """Arrays come as what a type library gives: an object."""
        return "object" if name.endswith("[]") else name

    def value(self, type_, told="Next()"):
        if type_.endswith("[]"):
            return f"List({told}, element => {self.value(type_[:-2], 'element')})"
        if type_ in self._known.classes:
            return f"new {type_}Object({told})"
        return f"Found({told})" if type_ == "object" else f"Value<{type_}>({told})"

    def ask(self, call, types, given):
        shown = ",".join(json.dumps(type_) for type_ in types).replace('"', '\\"')
        return f'Ask("{call}", "{shown}"{"".join(", " + name for name in given)});'

    def operation(self, operation):
        """Its signature and its body."""
        named = [(p, f"a{number}") for number, p in enumerate(operation.parameters)]
        signature = ", ".join(f"{'out ' if p.out else ''}{self.type(p.type)} {name}" for p, name in named)
        outs = [(p.type, name) for p, name in named if p.out]
        results = ([(operation.result, f"{self.type(operation.result)} result")] if operation.result else []) + outs
        body = [self.ask(operation.name, [type_ for type_, _ in results], [name for p, name in named if not p.out])]
        body += [f"{name} = {self.value(type_)};" for type_, name in results]
        body += ["return result;"] if operation.result else []
        return f"{self.type(operation.result) or 'void'} {operation.name}({signature})", " ".join(body)

    def members(self, cls):
        """Declarations for the interface, and definitions for the object."""
        for operation in cls.operations:
            signature, body = self.operation(operation)
            yield f"{signature};", f"public {signature} {{ {body} }}"
        for prop in cls.properties:
            type_ = self.type(prop.type)
            getter = f'{self.ask(f"get_{prop.name}", [prop.type], [])} return {self.value(prop.type)};'
            # What is no array is found out when the macro runs.
            setter = self.ask(f"put_{prop.name}", [], ["(System.Array)value" if prop.type.endswith("[]") else "value"])
            yield (f"{type_} {prop.name} {{ get; set; }}",
                   f"public {type_} {prop.name} {{ get {{ {getter} }} set {{ {setter} }} }}")


def found(known, writer):
    """An object that is found by its handle, and is of whatever class a macro takes it for."""
    yield f"internal class FoundObject : Noting, {', '.join(known.classes)} {{"
    yield "    public FoundObject(string id) : base(id) { }"
    for cls in known.classes.values():
        for declaration, definition in writer.members(cls):
            kind, name = re.match(r"(\w+) (.*)", declaration).groups()
            name = re.split(r"[ (]", name)[0]
            yield "    " + definition.replace(f"public {kind} {name}", f"{kind} {cls.name}.{name}", 1)
    yield "}"


def source():
    known = interface.read("csharp")
    writer = _Source(known)
    lines = ["namespace Inkwright {"]
    for name, enumerators in known.enumerations.items():
        lines.append(f"public enum {name} {{ {', '.join(enumerators)} }}")
    for cls in known.classes.values():
        own = list(writer.members(cls))
        inherited = [member for base in list(known.chain(cls.name))[1:] for member in writer.members(base)]
        lines.append(f"public interface {cls.name}{' : ' + cls.base if cls.base else ''} {{")
        lines += [f"    {declaration}" for declaration, _ in own]
        lines.append(f"}}\ninternal class {cls.name}Object : Noting, {cls.name} {{")
        lines.append(f"    public {cls.name}Object(string id) : base(id) {{ }}")
        lines += [f"    {definition}" for _, definition in own + inherited]
        lines.append("}")
    return "\n".join([*lines, *found(known, writer), "}"])
