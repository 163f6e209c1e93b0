"""The calls that a macro has to make, worked out from its recording, and their comparison with those that stubs saw.

A call is (object, operation, arguments). An object is named by the way to it, such as app.GetActiveDocument().
"""

import itertools
import json
import math
import re

import harness
import interface
import model

DOCUMENT = "app.GetActiveDocument()"
MODEL = f"{DOCUMENT}.GetModel()"

# Custom actions without a statement: one in a command ends it.
REFUSED_KINDS = {24, 25, 51, 52, 53, 54}


def _value(properties, tag):
    return next((record["value"] for record in properties if record["tag"] == tag), None)


CHANGES = {"put_Erased", "put_Layer"}
# The custom actions that draw a polyline, that erase their objects and that trim them.
DRAWING = 16
ERASING = 17
TRIMMING = 6


def _actions(recording):
    for line in recording:
        for action in line.get("command", {}).get("actions", [line]):
            kind = action.get("custom", {}).get("kind", 0)
            if "command" in action or "null" in action and action is not line or kind in REFUSED_KINDS or kind > 55:
                break
            yield action


def _leaves(value, place):
    """The texts and numbers within a value, each under its place."""
    if isinstance(value, (dict, list)):
        for key, part in value.items() if isinstance(value, dict) else enumerate(value):
            yield from _leaves(part, f"{place} {key}")
    elif isinstance(value, (int, float, str)) and not isinstance(value, bool):
        yield place, value


def _recorded(properties):
    """What was recorded of an object: texts and numbers by the place of their first record."""
    leaves = {}
    for record in properties:
        for place, leaf in _leaves(record["value"], record["tag"]):
            leaves.setdefault(place.removesuffix(" double"), leaf)
    return leaves


def _same(argument, value):
    """Texts without their backslashes, which a macro leaves as they are and JavaScript drops; numbers as a macro writes
    them, with 14 decimals."""
    if isinstance(argument, str) or isinstance(value, str):
        return isinstance(argument, type(value)) and argument.replace("\\", "") == value.replace("\\", "")
    return math.isclose(argument, value, rel_tol=1e-15, abs_tol=1e-14)


class Sources:
    """Which recorded properties the arguments of insertions come from. That is nowhere said: an argument must have one
    source that accounts for its value in all objects, a property or else a property and a share of another one. The
    share is the same in all objects of which the same choice was recorded, such as a justification. For objects that
    lack the property the host has one value."""

    SHARES = (0.0, 0.5, -0.5, 1.0, -1.0)

    def __init__(self):
        self._seen = {}

    def add(self, cls, operation, arguments, properties):
        recorded = _recorded(properties)
        for place, argument in _leaves(arguments, ""):
            self._seen.setdefault((cls, operation, place), []).append((argument, recorded))

    @staticmethod
    def _told(seen, name):
        """The objects that have the property; none when the others have more than one value."""
        others = {argument for argument, recorded in seen if name not in recorded}
        return [one for one in seen if name in one[1]] if len(others) < 2 else []

    def _is_source(self, seen, name):
        told = self._told(seen, name)
        return bool(told) and all(_same(argument, recorded[name]) for argument, recorded in told)

    def _are_source(self, seen, name, shared):
        shares = {}
        for argument, recorded in self._told(seen, name):
            whole, part = recorded[name], recorded.get(shared, 0)
            if any(isinstance(value, str) for value in (argument, whole, part)):
                return False
            choice = tuple((place, leaf) for place, leaf in recorded.items() if place.endswith(" chosen"))
            fitting = {share for share in self.SHARES if _same(argument, whole + share * part)}
            shares[choice] = shares.get(choice, fitting) & fitting
        return bool(shares) and all(shares.values())

    def complaints(self):
        for (cls, operation, place), seen in self._seen.items():
            names = {name for _, recorded in seen for name in recorded}
            if not any(self._is_source(seen, name) for name in names) and not any(
                    self._are_source(seen, *pair) for pair in itertools.permutations(names, 2)):
                yield f"{operation}: argument{place} has no one source in the records of {cls}"


class _Objects:
    """The insertions of a recording, and the changes of what it inserts. Nothing without a sketch manager: such
    statements are known to be rejected. An insertion's arguments are the record's properties."""

    def __init__(self, recording, manager, inserted):
        records = [line["object"] for line in recording if "object" in line]
        self._layers = {record["handle"]: record.get("name", "") for record in records
                        if record["class"] == "AcDbLayerTableRecord"}
        # A leader brings its note with it.
        self._annotations = {record["handle"] for record in records if record["class"] == "AcDbMText"
                             and record.get("reactors")}
        self._offered = {one.handle for one in model.offered(recording)}
        self._inserted, self._manager, self._counts, self._classes = inserted, manager, {}, {}
        self.ways, self.calls = {}, []
        for action in _actions(recording) if manager else ():
            for kind in {"added", "modified", "custom"} & action.keys():
                getattr(self, kind)(action[kind])

    def added(self, record):
        self._classes[record["handle"]] = record["class"]
        result = self._inserted.get(record["class"])
        if not result or record["handle"] in self._annotations:
            return
        self.calls.append((self._manager, record["class"], record["properties"]))
        self._counts[result] = self._counts.get(result, 0) + 1
        self.ways[record["handle"]] = f"{result}#{self._counts[result]}"
        self.modified(record)

    def modified(self, record):
        way = self.ways.get(record["handle"])
        layer = _value(record["properties"], "Layer")
        if way and layer and layer["id"] in self._layers:
            self.calls.append((way, "put_Layer", [self._layers[layer["id"]]]))
        if way and _value(record["properties"], "Erased") == "YES":
            self.calls.append((way, "put_Erased", [True]))

    def custom(self, record):
        if record["kind"] == DRAWING:
            data = record["data"]
            vertices = [{"value": {"point": point}} for point in data[0]["points"]]
            self.added({"class": data[4]["class"], "handle": data[3]["handle"],
                        "properties": [{"tag": "Vertex", "value": {"collection": {"elements": vertices}}}]})
        if record["kind"] == ERASING:
            self.calls += [(self.ways[handle], "put_Erased", [True])
                           for handle in record["data"][0]["handles"] if handle in self.ways]
        if record["kind"] == TRIMMING:
            for handle, cls in zip(record["data"][5]["handles"], record["data"][6]["classes"]):
                self._stands(handle, cls)

    def _stands(self, handle, cls):
        """Behind a trim. What the macro did not know so, it has to find in the model."""
        if self._classes.get(handle) == cls:
            return
        self._classes[handle] = cls
        self.ways.pop(handle, None)
        if handle in self._offered:
            self.ways[handle] = model.way(handle)


def _page_frame(in_model, sheet):
    calls = [("app", "GetActiveDocument", []), (DOCUMENT, "GetViewManager", []), (DOCUMENT, "GetModel", []),
             (DOCUMENT, "GetSheet", [sheet]), (MODEL, "GetSketchManager", []), ("app", "GetCommandMessage", [])]
    if in_model:
        return calls, f"{MODEL}.GetSketchManager()"
    path = f'{DOCUMENT}.GetSheet("{sheet}")'
    return calls + [(path, "Activate", []), (path, "GetSketchManager", [])], f"{path}.GetSketchManager()"


def _csharp_frame(in_model, sheet):
    calls = [("app", "GetActiveDocument", []), (DOCUMENT, "GetModel", [])]
    manager = None
    if in_model:
        calls.append((MODEL, "GetSketchManager", []))
        manager = f"{MODEL}.GetSketchManager()"
    calls.append((DOCUMENT, "GetSheets", []))
    if sheet and not in_model:
        path = f'{DOCUMENT}.GetSheet("{sheet}")'
        calls += [(DOCUMENT, "GetSheet", [sheet]), (path, "Activate", []), (path, "GetSketchManager", [])]
        manager = f"{path}.GetSketchManager()"
    return calls + [(DOCUMENT, "GetViewManager", [])], manager


FRAMES = {"javascript": _page_frame, "csharp": _csharp_frame}


def _show(call):
    on, name, arguments = call
    return f"{on}.{name}({', '.join(map(str, arguments))})"


def _first_difference(wanted, seen, what):
    for number, (left, right) in enumerate(zip(wanted, seen), 1):
        if left != right:
            return [f"{what} {number} is {_show(right)}\n    and should be {_show(left)}"]
    if len(wanted) != len(seen):
        return [f"{len(seen)} {what}s were made, {len(wanted)} should have been"]
    return []


def _named(arguments):
    """The objects among the arguments of a call, those in its lists included."""
    return {text for _, text in _leaves(arguments, "") if isinstance(text, str) and text.startswith("@")}


def _temporaries(calls, made):
    """The ways to what is inserted for one call alone. Curves of a dimension are erased right behind it. What a hatch
    or a region within its boundary is made of stands right in front of it, and so does what is drawn for a block or a
    viewport. `made` has the way to what each call inserts, if any."""
    for number, (_, name, arguments) in enumerate(calls):
        if re.fullmatch("Insert.+Dimension.*", name):
            behind = itertools.takewhile(lambda call: call[1] == "put_Erased" and "@" + call[0] in arguments,
                                         calls[number + 1:])
            yield from (on for on, _, _ in behind)
        if name in ("CreateBlockDefinition", "InsertViewportByEntity"):
            handed = _named(arguments)
            yield from itertools.takewhile(lambda way: way and "@" + way in handed, reversed(made[:number]))
        if name == "InsertHatchByEntities":
            boundary = _named(arguments)
            for (_, operation, handed), way in zip(reversed(calls[:number]), reversed(made[:number])):
                if not re.fullmatch("Insert(?!Hatch).+|SetSegmentAngle|get_RegionArray", operation):
                    break
                boundary |= _named(handed)
                if way and "@" + way in boundary:
                    yield way


class Comparison:
    """Holds the calls that stubs saw against recordings, macro by macro."""

    def __init__(self, target):
        self._frame = FRAMES[target]
        known = interface.read(harness.STUBS / "interface.txt", target)
        self._inserted = {cls.drawn: cls.name for cls in known.classes.values() if cls.drawn}
        results = {name: drawn for drawn, name in self._inserted.items()}
        self._insertions = {operation.name: results[operation.result]
                            for operation in known.classes["SketchManager"].operations if operation.result in results}
        self._sources = Sources()
        self.complaints = []
        self.objects = 0

    def add(self, macro, calls):
        recording = macro.lines()
        header = recording[0].get("recording", {}) if recording else {}
        sheet = header.get("sheet", {"name": "", "model": True})
        calls = [(call["on"], call["call"], call["args"]) for call in calls if "call" in call]
        in_model = sheet.get("model", True)
        frame, manager = self._frame(in_model, sheet.get("name", ""))
        faults = _first_difference(frame, calls[:len(frame)], "call of the frame")
        objects = _Objects(recording, manager, self._inserted)
        ways = set(objects.ways.values())
        seen = [call for call in self._lasting(calls[len(frame):])
                if call[1] in self._insertions or call[1] in CHANGES and call[0] in ways]
        self._compare(objects.calls, seen, faults)
        self.objects += len(objects.ways)
        self.complaints += [f"{macro.name}: {fault}" for fault in faults]

    def _made(self, calls):
        """The way to what each call inserts, or None."""
        counts = {}
        for _, name, _ in calls:
            result = self._inserted.get(self._insertions.get(name))
            counts[result] = counts.get(result, 0) + 1
            yield f"{result}#{counts[result]}" if result else None

    def _lasting(self, calls):
        """Without temporary objects; the others get the numbers that they would have without those."""
        made = list(self._made(calls))
        temporary = set(_temporaries(calls, made))
        counts, ways, lasting = {}, {}, []
        for (on, name, arguments), way in zip(calls, made):
            if way in temporary or on in temporary:
                continue
            if way:
                result = way.split("#")[0]
                counts[result] = counts.get(result, 0) + 1
                ways[way] = f"{result}#{counts[result]}"
            lasting.append((ways.get(on, on), name, arguments))
        return lasting

    def _compare(self, wanted, seen, faults):
        """An insertion counts as the class that it inserts; its arguments are left to the sources."""
        classes = [(on, self._insertions.get(name, name), arguments) for on, name, arguments in seen]
        for number, ((_, operation, arguments), (on, cls, properties)) in enumerate(zip(seen, wanted)):
            if (on, cls) == classes[number][:2] and cls in self._inserted:
                self._sources.add(cls, operation, arguments, properties)
                classes[number] = wanted[number]
        faults += _first_difference(wanted, classes, "insertion or change")

    def summary(self):
        self.complaints += self._sources.complaints()
        if not self.objects:
            self.complaints.append("no recording holds an object")
        return f"{self.objects} objects compared"
