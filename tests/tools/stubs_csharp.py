"""The automation interface as C# source: an interface a class, and an object behind it that notes every call."""

import re

import interface


class _Source:
    def __init__(self, known):
        self._known = known

    def type(self, name):
        """Arrays come as what a type library gives: an object."""
        return "object" if name.endswith("[]") else name

    def value(self, type_, call):
        """An answer of that type; `call` is the note that is taken, and yields the way to the answer."""
        if type_.endswith("[]"):
            element = type_[:-2]
            if element in self._known.classes:
                return f'Arrays.Of({call}, element => new {element}Object(element))'
            return f"Arrays.Of({call}, element => default({element}))"
        if type_ in self._known.classes:
            return f"new {type_}Object({call})"
        if type_ == "object":
            return f"OfferedModel.Found({call})"
        return f'Values.Of<{self.type(type_)}>({call})'

    def operation(self, operation):
        """Its signature and its body."""
        names = [f"a{number}" for number in range(len(operation.parameters))]
        signature = ", ".join(f"{'out ' if p.out else ''}{self.type(p.type)} {name}"
                              for p, name in zip(operation.parameters, names))
        given = [name for p, name in zip(operation.parameters, names) if not p.out]
        note = f'Note("{operation.name}", "{operation.result}"{"".join(", " + name for name in given)})'
        body = [f"string way = {note};"]
        to = "Way" if operation.result else "way"
        body += [f"{name} = {self.value(p.type, to)};" for p, name in zip(operation.parameters, names) if p.out]
        body += [f"return {self.value(operation.result, 'way')};"] if operation.result else []
        return f"{self.type(operation.result) or 'void'} {operation.name}({signature})", " ".join(body)

    def members(self, cls):
        """Declarations for the interface, and definitions for the object."""
        for operation in cls.operations:
            signature, body = self.operation(operation)
            yield f"{signature};", f"public {signature} {{ {body} }}"
        for prop in cls.properties:
            type_ = self.type(prop.type)
            getter = f'return {self.value(prop.type, f"""Note("get_{prop.name}", "{prop.type}")""")};'
            yield (f"{type_} {prop.name} {{ get; set; }}",
                   f'public {type_} {prop.name} {{ get {{ {getter} }} set {{ Note("put_{prop.name}", "", value); }} }}')


def found(known, writer):
    """An object that is found by its handle, and is of whatever class a macro takes it for."""
    yield f"internal class FoundObject : Noting, {', '.join(known.classes)} {{"
    yield "    public FoundObject(string way) : base(way) { }"
    for cls in known.classes.values():
        for declaration, definition in writer.members(cls):
            kind, name = re.match(r"(\w+) (.*)", declaration).groups()
            name = re.split(r"[ (]", name)[0]
            yield "    " + definition.replace(f"public {kind} {name}", f"{kind} {cls.name}.{name}", 1)
    yield "}"


def source(path):
    known = interface.read(path, "csharp")
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
        lines.append(f"    public {cls.name}Object(string way) : base(way) {{ }}")
        lines += [f"    {definition}" for _, definition in own + inherited]
        lines.append("}")
    rows = ", ".join(f'"{row}"' for row in interface.state_rows())
    lines.append(f"internal static partial class State {{ private static readonly string[] Rows = {{ {rows} }}; }}")
    return "\n".join([*lines, *found(known, writer), "}"])
