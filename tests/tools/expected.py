"""The calls that a macro has to make, worked out from its recording, and their comparison with those that stubs saw.

A call is (object, operation, arguments). An object is named by the way to it, such as app.GetActiveDocument().
"""

import decimal
import json

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
INSERTIONS = {name for names, _ in CURVES.values() for name in names.values()}


def _actions(recording):
    for line in recording:
        for action in line.get("command", {}).get("actions", [line]):
            kind = action.get("custom", {}).get("kind", 0)
            if "command" in action or "null" in action and action is not line or kind in REFUSED_KINDS or kind > 55:
                break
            yield action


def _written(value):
    """As a macro writes it: with 14 decimals, the half rounded up."""
    digits = decimal.Decimal("1e-14")
    with decimal.localcontext() as context:
        context.prec = 400
        return float(decimal.Decimal(value).quantize(digits, rounding=decimal.ROUND_HALF_UP))


def _insertions(recording, manager):
    """None without a sketch manager: such statements are known to be rejected."""
    for action in _actions(recording):
        added = action.get("added", {})
        if manager and added.get("class") in CURVES:
            names, arguments_of = CURVES[added["class"]]
            arguments = arguments_of(added["properties"])
            yield manager, names[len(arguments)], [_written(value) for value in arguments]


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
        wanted = list(_insertions(recording, manager))
        seen = [call for call in calls[len(frame):] if call[1] in INSERTIONS]
        faults += _first_difference(wanted, seen, "insertion")
        self.objects += len(wanted)
        self.complaints += [f"{macro.name}: {fault}" for fault in faults]

    def summary(self):
        if not self.objects:
            self.complaints.append("no recording holds an object")
        return f"{self.objects} objects compared"
