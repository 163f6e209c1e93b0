"""The calls that a macro has to make, worked out from its recording, and their comparison with those that stubs saw.

A call is (object, operation, arguments). An object is named by the way to it, such as app.GetActiveDocument().
"""

import decimal
import itertools
import json
import re

DOCUMENT = "app.GetActiveDocument()"
MODEL = f"{DOCUMENT}.GetModel()"

# Custom actions without a statement: one in a command ends it.
REFUSED_KINDS = {24, 25, 51, 52, 53, 54}


def _number(properties, tag, default):
    for record in properties:
        if record["tag"] == tag:
            value = record["value"]
            return float(value["double"] if isinstance(value, dict) else value)
    return default


def _point(properties, name):
    return [_number(properties, f"{name} {axis}", 0.0) for axis in "XYZ"]


def _two_points(first, second):
    return lambda properties: _point(properties, first) + _point(properties, second)


def _circle(properties):
    return _point(properties, "Center") + [_number(properties, "Radius", 1.0)]


def _arc(properties):
    return _circle(properties) + [_number(properties, f"{which} Angle", 0.0) for which in ("Start", "End")]


def _ellipse(properties):
    """Both ends of the major axis without their Z, and no angles when it is whole."""
    center, vector = _point(properties, "Center"), _point(properties, "Major axis vector")
    values = [c + v for c, v in zip(center[:2], vector)] + [c - v for c, v in zip(center[:2], vector)]
    values.append(_number(properties, "Minor radius", 1.0))
    angles = [_number(properties, f"{which} angle", 0.0) for which in ("Start", "End")]
    return values if angles == [0.0, 6.283185307179586] else values + angles


def _value(properties, tag, default=None):
    return next((record["value"] for record in properties if record["tag"] == tag), default)


def _simple_note(properties):
    return _point(properties, "Position") + [_number(properties, "Height", 2.5), _number(properties, "Rotation", 0.0),
                                             _value(properties, "Contents", "")]


def _note(properties):
    """The corners of its box, which lies around the position as the attachment says."""
    x, y, z = _point(properties, "Position")
    column = row = width = height = 0.0
    if attachment := _value(properties, "Justify"):
        row, column = (part / 2.0 for part in divmod(attachment["collection"]["chosen"], 3))
        width, height = _number(properties, "Width", 0.0), _number(properties, "TextBoxHeight", 0.0)
    left, top = x - column * width, y + row * height
    return [left, top, z, left + width, top - height, z, [_value(properties, "Contents", "")]]


def _tolerance(properties):
    return [_point(properties, "Position"), _value(properties, "Content", "")]


def _leader(properties):
    points = [vertex["value"]["point"] for vertex in _value(properties, "Vertex")["collection"]["elements"]]
    return [[float(value) for point in points for value in point], _number(properties, "width", 0.0),
            _value(properties, "content", "")]


# The class, the operations that insert it by the number of their arguments, and the arguments.
CURVES = {
    "AcDbLine": ({6: "InsertLine"}, _two_points("Start", "End")),
    "AcDbCircle": ({4: "InsertCircle"}, _circle),
    "AcDbPoint": ({3: "InsertPoint"}, lambda properties: _point(properties, "Position")),
    "AcDbRay": ({6: "InsertRay"}, _two_points("Base point", "Second point")),
    "AcDbArc": ({6: "InsertArc"}, _arc),
    "AcDbXline": ({6: "InsertInfiniteLine"}, _two_points("Base point", "Second point")),
    "AcDbEllipse": ({5: "InsertEllipseDistanceToOtherAxis", 7: "InsertEllipseArcDistanceToOtherAxis"}, _ellipse),
}
TEXTS = {
    "AcDbText": ({6: "InsertSimpleNote"}, _simple_note),
    "AcDbMText": ({7: "InsertNote"}, _note),
    "AcDbFcf": ({2: "InsertTolerance"}, _tolerance),
    "AcDbLeader": ({3: "InsertLeader"}, _leader),
}
INSERTED = {**CURVES, **TEXTS}
INSERTIONS = {name for names, _ in INSERTED.values() for name in names.values()}
# What an insertion gives, where the operation's name does not tell.
RESULTS = {"InsertArc": "CircleArc", "InsertEllipseDistanceToOtherAxis": "EllipseArc",
           "InsertEllipseArcDistanceToOtherAxis": "EllipseArc"}
CHANGES = {"put_Erased", "put_Layer"}
# The custom action that erases its objects.
ERASING = 17


def _actions(recording):
    for line in recording:
        for action in line.get("command", {}).get("actions", [line]):
            kind = action.get("custom", {}).get("kind", 0)
            if "command" in action or "null" in action and action is not line or kind in REFUSED_KINDS or kind > 55:
                break
            yield action


def _written(value):
    """As a macro writes it: with 14 decimals, the half rounded up."""
    if isinstance(value, list):
        return [_written(element) for element in value]
    if isinstance(value, str):
        return value
    digits = decimal.Decimal("1e-14")
    with decimal.localcontext() as context:
        context.prec = 400
        return float(decimal.Decimal(value).quantize(digits, rounding=decimal.ROUND_HALF_UP))


class _Objects:
    """The insertions of a recording, and the changes of what it inserts. Nothing without a sketch manager: such
    statements are known to be rejected."""

    def __init__(self, recording, manager):
        records = [line["object"] for line in recording if "object" in line]
        self._layers = {record["handle"]: record.get("name", "") for record in records
                        if record["class"] == "AcDbLayerTableRecord"}
        # A leader brings its note with it.
        self._annotations = {record["handle"] for record in records if record["class"] == "AcDbMText"
                             and record.get("reactors")}
        self._manager, self._counts = manager, {}
        self.ways, self.calls = {}, []
        for action in _actions(recording) if manager else ():
            for kind in {"added", "modified", "custom"} & action.keys():
                getattr(self, kind)(action[kind])

    def added(self, record):
        if record["class"] not in INSERTED or record["handle"] in self._annotations:
            return
        names, arguments_of = INSERTED[record["class"]]
        arguments = arguments_of(record["properties"])
        name = names[len(arguments)]
        self.calls.append((self._manager, name, _written(arguments)))
        result = RESULTS.get(name, name.removeprefix("Insert"))
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
        if record["kind"] == ERASING:
            self.calls += [(self.ways[handle], "put_Erased", [True])
                           for handle in record["data"][0]["handles"] if handle in self.ways]


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


def _comparable(call):
    """A macro leaves the backslashes of a note's text as they are, and JavaScript drops them."""
    on, name, arguments = call
    if name == "InsertNote":
        arguments = arguments[:-1] + [[text.replace("\\", "") for text in arguments[-1]]]
    return on, name, arguments


def _without_temporaries(calls):
    """Without the curves that are inserted for a dimension alone and erased behind it; the others keep the numbers that
    they would have without those."""
    temporary = set()
    for number, (_, name, arguments) in enumerate(calls):
        if re.fullmatch("Insert.+Dimension.*", name):
            behind = itertools.takewhile(lambda call: call[1] == "put_Erased" and "@" + call[0] in arguments,
                                         calls[number + 1:])
            temporary |= {on for on, _, _ in behind}
    counts, given, names, kept = {}, {}, {}, []
    for on, name, arguments in calls:
        if name in INSERTIONS:
            result = RESULTS.get(name, name.removeprefix("Insert"))
            given[result] = given.get(result, 0) + 1
            old = f"{result}#{given[result]}"
            if old in temporary:
                continue
            counts[result] = counts.get(result, 0) + 1
            names[old] = f"{result}#{counts[result]}"
        if on not in temporary:
            kept.append((names.get(on, on), name, arguments))
    return kept


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


class Comparison:
    """Holds the calls that stubs saw against recordings, macro by macro."""

    def __init__(self, target):
        self._frame = FRAMES[target]
        self.complaints = []
        self.objects = 0

    def add(self, macro, calls):
        lines = macro.recording.read_text(encoding="utf-8-sig").splitlines()
        recording = [json.loads(line) for line in lines if line.strip()]
        header = recording[0].get("recording", {}) if recording else {}
        sheet = header.get("sheet", {"name": "", "model": True})
        calls = [(call["on"], call["call"], call["args"]) for call in calls]
        in_model = sheet.get("model", True)
        frame, manager = self._frame(in_model, sheet.get("name", ""))
        faults = _first_difference(frame, calls[:len(frame)], "call of the frame")
        objects = _Objects(recording, manager)
        ways = set(objects.ways.values())
        seen = [call for call in _without_temporaries(calls[len(frame):])
                if call[1] in INSERTIONS or call[1] in CHANGES and call[0] in ways]
        faults += _first_difference(list(map(_comparable, objects.calls)), list(map(_comparable, seen)),
                                    "insertion or change")
        self.objects += len(objects.ways)
        self.complaints += [f"{macro.name}: {fault}" for fault in faults]

    def summary(self):
        if not self.objects:
            self.complaints.append("no recording holds an object")
        return f"{self.objects} objects compared"
