"""The drawing that a macro made, as the stubs noted it, and its comparison object by object with what the recording
says. Which property of a record stands where in an object is told by drawing.txt."""

import itertools
import json
import math
import re

import expected
import harness
import interface

# Enumerators that do not repeat the shown text, or of which only the number is recorded.
ENUMERATORS = {
    "LineWeight": {-1: "ByLayer", -2: "ByBlock", -3: "Default"},
    "FitSmooth": {"Quadratic": "Qudratic"},
    "Direction": {"Up": "BottomToTop"},
    "Alignment": {4: "Center"},
    "TextSide": {1: "OnConvexSide"},
    "TextDirection": {2: "InwardToTheCenter"},
    "StartArrow": {20: "Custom"},
    "EndArrow": {20: "Custom"},
    "LeaderArrow": {11: "DotSmall"},
    "AngularDimensionOptions.Format": {1: "Deg_Min_Sec"},
    "AngularDimensionOptions.Precision": {3: "3"},
    "ArcLengthSymbols": {2: "None"},
    "DualDimensionOptions.Format": {3: "Engineering"},
    "LinearDimensionOptions.Format": {2: "Decimal"},
    "LinearDimensionOptions.Precision": {9: "0"},
    "VerticalPosition": {1: "Above"},
    "VerticalTextJustification": {1: "Middle"},
    "FitGeometry": {"Yes": "KeepTextBetweenExtensionLines"},
    "TextOptions.Alignment": {1: "AlignHorizontally", 2: "AlignWithDimensionLines"},
    "Calculation": {2: "Deviation", 4: "Basic"},
    "DecimalSeparator": {" ": "Space", ",": "Comma", ".": "Period"},
    "CenterMarkDisplay": {"Mark": "AsMark"},
    "ArcSymbolType": {2: "None"},
}
YES = {"Yes", "YES", "Visible", "Enabled"}
# What stands between an object and its properties without being one of them.
STEPS = re.compile(r"[gG]et_?(\w+)\(\)")
PASSED = {"GeneralDimension", "DimensionStyleUserData", "Layer", "TextStyle", "TableStyle", "DimensionStyle",
          "RichLineStyle"}
# The numbers by which a table style's cells and lines are recorded.
CELLS = {"iwTableCellType_Title": "1", "iwTableCellType_Header": "2", "iwTableCellType_Data": "3",
         "iwTableBordersLineType_HorizontalBottom": "4", "iwTableBordersLineType_VerticalInside": "16"}
# What an object has of which nothing is recorded, besides zeros and empty texts: the host's own values.
DEFAULTS = [("Circle", "Radius()", 1), ("BlockInstance", "Scales()", 1), ("SimpleNote", "Height()", 2.5),
            ("AttributeDefinition", "Height()", 0.2), ("EllipseArc", "OtherRadius()", 1),
            ("Hatch", "HatchPattern.HatchOrSolidData()", "iwHatchPatternType_UserDefined"),
            ("EllipseArc", "EndAngle()", 2 * math.pi)]
# What the records of an object do not tell: the drawing's data and custom actions do.
ELSEWHERE = re.compile(r"NoteAnnotation|ToleranceAnnotation|BlockAnnotation|ClipBoundary|TableStyle"
                       r"|Active|.*InViewport|RadialDiameterDimensionOptions.CenterMarkDisplay|FitOptions.DimensionS"
                       r"|CurvedSettings.FontParameters|[MN]Closed|Count\(|FaceCount|Face\(|Path|Contents"
                       r"|RowHeightAt|ColumnWidthAt|Pattern|ArrowsOptions.\w+Arrow|Measure"
                       r"|ExtensionLineFixedLength")
# Of a block that another drawing holds.
REFERENCED = {"Name()", "Rotation()"}
# Behind these an object has other vertices than those of its record.
RESHAPING = {"AddVertexAfter", "DeleteVertex", "Straighten", "Split", "Fit", "Decurve", "Spline"}
# What a leader's note is told comes from the drawing.
ANNOTATION = {"textHeight": "TextHeight", "width": "Width", "rotation": "Rotation", "lineSpacingFactor":
              "LineSpaceFactor", "backgroundFillOn": "BackgroundMask", "backgroundScaleFactor":
              "BackgroundBorderOffsetFactor"}
# Recorded of a block without a name: the host numbers it when it is made.
ANONYMOUS = re.compile(r"^\*U\d+$")
HATCHING = 18
# How a number of the record becomes the one that the object holds.
MEASURES = {"half": lambda value: value / 2, "round": lambda value: value / (2 * math.pi),
            "area": lambda value: math.sqrt(value / math.pi), "abs": abs}


class _Rows:
    """drawing.txt: the interface's class by the drawing's class, and by both classes and tag the place of a value."""

    def __init__(self):
        self.interfaces, self.places, self.optional, self.operations = {}, {}, set(), {}
        self.records = {}  # classes of records: how the interface's class is called, and the tag of their names
        cls = ""
        for line in (harness.HERE / "drawing.txt").read_text(encoding="utf-8").splitlines():
            text = "" if line.startswith("#") else line.rstrip()
            if text and not text.startswith(" "):
                cls, _, name = text.partition(" ")
                if " " in name:
                    self.records[cls] = name.split()
                elif name:
                    self.interfaces[cls] = name
            elif text:
                tag, place = text.strip().split(" = ")
                if cls == "operations":
                    self.operations[int(tag.split()[0])] = tag.split()[1], place.split()
                    continue
                if place.endswith("?"):
                    place = place[:-1]
                    self.optional.add((self.interfaces[cls], place.split("[")[0] + "()"))
                for axis, letter in enumerate("XYZ" if "*" in tag else ""):
                    for sign in (letter, letter.lower()):
                        self.places[cls, tag.replace("*", sign)] = f"{place} {axis}" if place != "-" else place
                if "*" not in tag:
                    self.places[cls, tag] = place

    def place(self, cls, tag):
        numbers = re.findall(r"(?<=_)\d+", tag)
        common = ["dimension", "every"] if "Dimension" in cls else ["every"]
        keys = [(cls, re.sub(r"(?<=_)\d+", "#", tag)), *((one, tag) for one in common)]
        place = next((self.places[key] for key in keys if key in self.places), "")
        for number in numbers:
            place = place.replace("#", number, 1)
        return place


class _Choice:
    """One of several values: its number and how it was shown, of which one may be missing."""

    def __init__(self, number, text):
        self.number, self.text = number, text

    def __repr__(self):
        return f"{self.text or self.number}"


def _plain(text):
    return re.sub(r"\W|_", "", text).lower()


def _derive_ellipse(held):
    """Center and long axis from both ends of the axis, in the plane."""
    for axis in range(2):
        if ("AxisStart()", axis) in held:
            start, end = held.pop(("AxisStart()", axis)), held.pop(("AxisEnd()", axis))
            held["Center()", axis], held["MajorAxis()", axis] = (start + end) / 2, (start - end) / 2


def _derive_note(held):
    """Position and width from the corners of its box."""
    if ("FirstCorner()", 0) not in held:
        return
    first, second = ([held.pop((name, axis)) for axis in range(3)] for name in ("FirstCorner()", "SecondCorner()"))
    justified = held.get(("Justify()", 0), "")
    shares = [0.5 * ("Center" in justified) + ("Right" in justified),
              0.5 * ("Middle" in justified) + ("Bottom" in justified), 0]
    for axis in range(3):
        held.setdefault(("Position()", axis), first[axis] + shares[axis] * (second[axis] - first[axis]))
    held.setdefault(("Width()", 0), second[0] - first[0])


def _derive_table(held):
    """Sizes of the rows and columns that were not set one by one."""
    for count, size, one in ("Rows()", "RowHeight()", "RowHeightAt"), ("Columns()", "ColumnWidth()", "ColumnWidthAt"):
        length = held.pop((size, 0))
        for number in range(int(held[count, 0])):
            held.setdefault((f"{one}({number})", 0), length)


DERIVED = {"EllipseArc": _derive_ellipse, "Note": _derive_note, "Table": _derive_table}
COUNTED = {"InsertRow": ("Rows()", 1), "DeleteRow": ("Rows()", -1), "InsertColumn": ("Columns()", 1),
           "DeleteColumn": ("Columns()", -1)}


def _question(name, index):
    """What is asked of an object for the value, `index` telling which of several."""
    if "#" in name:
        return name.replace("#", str(index + 1)) + "()"
    return name if name.endswith(")") else f"{name}({index})"


class _Object:
    """One that an operation is handed: its handle, and its place among the added ones, if it is one of them."""

    def __init__(self, handle, place):
        self.handle, self._place = handle, place

    def ways(self, added):
        if self._place is not None:
            return {added[self._place]}
        return {f"model {self.handle}", f'{expected.DOCUMENT}.GetObjectByHandle("{self.handle}")'}

    def __repr__(self):
        return self.handle


def _flat(values):
    for value in values:
        if isinstance(value, list):
            yield from _flat(value)
        else:
            yield value


class Recorded:
    """What the recording says of its objects: what they hold by their handle, in the order in which they were added."""

    def __init__(self, recording, rows, lost):
        self._rows, self._lost = rows, lost
        records = [line["object"] for line in recording if "object" in line]
        self._names = {record["handle"]: record.get("name", "") for record in records}
        # A leader brings its note with it.
        self._leaders = {record["handle"]: record["reactors"][0] for record in records
                         if record["class"] == "AcDbMText" and record.get("reactors")}
        self._notes = {record["handle"]: record for record in records if record["handle"] in self._leaders}
        self._thicknesses = {record["handle"]: record["thickness"] for record in records if "thickness" in record}
        self._pattern = None  # of the next hatch; empty when that is not inserted
        self.records = {}
        self._places = {}  # of the objects in `added` by their handles
        self.added, self._classes, self._held, self.strange, self.operations = [], {}, {}, set(), []
        for action in expected._actions(recording):
            for kind in {"added", "modified", "property", "custom"} & action.keys():
                getattr(self, f"_{kind}")(action[kind])

    def _hold_record(self, record):
        """Records of tables are found by the names that they had first, groups by their order."""
        interface, tag = self._rows.records[record["class"]]
        name = expected._value(record["properties"], tag) or self._names.get(record["handle"], "")
        number = sum(way.startswith(f"{interface}#") for way in self.records)
        held = {("Name()", 0): ANONYMOUS.sub("*U", name)} if name else {}
        self.records[f"{interface}#{number + 1}" if interface == "Group" else f"{interface} {name}"] = held
        self._classes[record["handle"]], self._held[record["handle"]] = record["class"], held

    def _added(self, record):
        handle, cls = record["handle"], record["class"]
        if cls in self._rows.records and (handle, "") not in self._lost:
            self._hold_record(record)
            self._modified({**record, "properties": [one for one in record["properties"]
                                                     if (handle, one["tag"]) not in self._lost]})
            return
        if handle in self._leaders or (handle, "") in self._lost or cls not in self._rows.interfaces or (
                cls == "AcDbHatch" and self._pattern == {}):
            return
        self._classes[handle], self._held[handle] = cls, {}
        self._places[handle] = len(self.added)
        self.added.append((cls, self._held[handle]))
        for note, leader in self._leaders.items():
            if leader == handle:
                self._held[handle].update({(f"NoteAnnotation.{ANNOTATION[field]}()", 0): value
                                           for field, value in self._notes[note].items() if field in ANNOTATION})
        if cls == "AcDbHatch":
            self._held[handle].update(self._pattern or {})
            self._pattern = None
        if handle in self._thicknesses:
            self._held[handle]["Thickness()", 0] = self._thicknesses[handle]
        self._modified({**record, "properties": [one for one in record["properties"]
                                                 if (handle, one["tag"]) not in self._lost]})
        self._align(cls, self._held[handle])

    @staticmethod
    def _align(cls, held):
        """An attribute definition is inserted at the point by which its text is aligned."""
        if cls == "AcDbAttributeDefinition":
            justified = str(held.get(("Justification()", 0), "Left")) != "Left"
            for axis in range(3):
                alignment = held.pop(("AlignmentPoint()", axis), 0)
                if justified:
                    held["Position()", axis] = alignment

    def _modified(self, record):
        if record["class"] in self._rows.records and record["handle"] not in self._held and self._names.get(
                record["handle"]):
            self._hold_record({**record, "properties": []})
        # Of two records of one property the first counts.
        firsts = {one["tag"]: one for one in reversed(record["properties"])}
        action = json.dumps(record)
        for one in reversed([one for one in firsts.values() if (action, one["tag"]) not in self._lost]):
            self._set(record["handle"], one, one.get("index"))

    def _property(self, record):
        self._set(record["handle"], record, record.get("index"))

    def _custom(self, action):
        data = action["data"]
        if action["kind"] == expected.DRAWING:
            self._draw(data[3]["handle"], *(next(iter(one.values())) for one in data))
        if action["kind"] in self._rows.operations and json.dumps(action) not in self._lost:
            self._operate(*self._rows.operations[action["kind"]], data)
        if action["kind"] == HATCHING:
            self._hatch(*(next(iter(one.values())) for one in data))
        if action["kind"] == expected.ERASING:
            for handle in data[0]["handles"]:
                if handle in self._held:
                    self._held[handle]["Erased()", 0] = True
        if action["kind"] == expected.TRIMMING:
            for handle, cls in zip(data[5]["handles"], data[6]["classes"]):
                if self._classes.get(handle) != cls:  # another object from here on
                    self._held.pop(handle, None)
                    self._places.pop(handle, None)
                    self._classes[handle] = cls

    def _operate(self, name, fields, data):
        """Operations on several objects, with all that is handed to them, in one list."""
        on, *fields = fields if fields[0].startswith("on") else ["", *fields]
        for several in range(2, len(data)) if "*" in fields else [None]:
            handed = [part for field in fields for part in self._handed(field.removeprefix("each"), data, several)]
            for owner in self._handed(on[2:], data, None) if on else [None]:
                self.operations += [(name, owner, one) for one in (
                    [[part] for part in handed] if "each0" in fields else [handed])]

    def _handed(self, field, data, several):
        """Objects by their place in `added`, or by their handle."""
        field, _, owners = field.partition("/")
        number, _, span = field.lstrip("-").partition(":")
        value = next(iter(data[several if number == "*" else int(number)].values()))
        values = value if isinstance(value, list) else [value]
        if owners:
            values = [one for one, owner in zip(values, data[int(owners)]["handles"]) if (owner, "") not in self._lost]
        if field.startswith("-"):
            return [None] * len(values)
        flat = [part for one in values for part in (one if isinstance(one, list) else [one])]
        return [_Object(part, self._places.get(part)) if isinstance(part, str) else part
                for part in (flat[slice(*map(int, span.split("-")))] if span else flat)
                if (part, "") not in self._lost]

    def _hatch(self, name, scale, angle, *rest):
        """Stands in front of its hatch, or behind it."""
        pattern = {"PatternName()": name, "PatternScale()": scale, "PatternAngle()": angle}
        by_points, by_entities, by_bulges, has_gradient, *data = rest
        self._pattern = {(place, 0): value for place, value in pattern.items()}
        if has_gradient:
            gradient = [{"color": one} if isinstance(one, (dict, str)) else one for one in data[-4:]]
            self._pattern.update({("HatchPattern.GradientData()", index): one for index, one in enumerate(gradient)})
        if not (by_points or by_entities or by_bulges or data[0]):
            self._pattern = {}
        if self.added and self.added[-1][0] == "AcDbHatch" and ("PatternName()", 0) not in self.added[-1][1]:
            self.added[-1][1].update(self._pattern)
            self._pattern = None

    def _draw(self, handle, points, bulges, closed, _, cls, starts, ends, one_width, width):
        vertices = [{"value": {"point": point}} for point in points]
        self._added({"class": cls, "handle": handle,
                     "properties": [{"tag": "Vertex", "value": {"collection": {"elements": vertices}}}]})
        held = self._held[handle]
        held["Closed()", 0] = closed
        held.update({(f"SegmentAngle({number})", 0): 4 * math.atan(bulge[0]) for number, bulge in enumerate(bulges)
                     if abs(bulge[0]) > 1e-10})
        if one_width:
            held["GlobalWidth()", 0] = width
            return
        for name, widths in ("SegmentStartWidth", starts), ("SegmentEndWidth", ends):
            held.update({(f"{name}({number})", 0): value for number, value in enumerate(widths)})

    def _set(self, handle, record, index):
        tag, held = record["tag"], self._held.get(handle)
        if handle in self._leaders and tag == "Layer":
            held, tag = self._held.get(self._leaders[handle]), "NoteLayer"
        if held is None:
            return
        cls = self._classes.get(handle, "AcDbLeader")
        place = self._rows.place(cls, tag)
        if not place:
            self.strange.add(f"{cls} {tag}")
        elif match := re.fullmatch(r"(.*)\[(\d)\]", place):
            self._set_points(held, match[1], int(match[2]), record["value"])
        elif place != "-" and (tag not in ("Erased", "ActivateLayer") or record["value"] in YES):
            name, *rest = place.split(" ")
            value = self._value(record["value"])
            if "is" in rest:
                value = rest[1] if str(value) in YES else None
            if rest == ["affixes"] and "<>" in value:
                value, held[name.replace("Prefix", "Suffix") + "()", 0] = value.split("<>", 1)
            if rest == ["affix"] and value == "<>":
                value = None
            if value is None or index and "int" in index and not 0 <= index["int"] < (4 if "#" in name else math.inf):
                return
            for word in rest:
                value = MEASURES.get(word, lambda value: value)(value)
            if name == "Transparency" and isinstance(record["value"], dict) and "transparency" in record["value"]:
                name += [".ByLayer", ".ByBlock", ".ByAlpha"][record["value"]["transparency"]["method"]]
            which = index and index.get("int", index.get("element"))
            if isinstance(which, dict):
                which = f'{which["tag"]["int"]},{which["value"]["int"]}'
            number = next((int(word) for word in rest if word.isdigit()), 0)
            held[_question(name, "" if which is None else which), number] = value

    @staticmethod
    def _set_points(held, name, axes, value):
        """A collection that is none says nothing."""
        if not isinstance(value, dict):
            return
        if "point" in value:
            held.update({(f"{name}()", axis): coordinate for axis, coordinate in enumerate(value["point"][:axes])})
        points = value.get("collection", {}).get("elements", [])
        for number, element in enumerate(points):
            for axis, coordinate in enumerate(element["value"].get("point", [])[:axes]):
                held[_question(name, number), axis] = coordinate

    def _value(self, value):
        if not isinstance(value, dict):
            return ANONYMOUS.sub("*U", value) if isinstance(value, str) else value
        kind, held = next(iter(value.items()))
        if kind == "id":
            return self._names.get(held)
        if kind == "int":
            return _Choice(held, "")
        if kind == "transparency":
            return [True, True, round((255 - held["alpha"]) / 2.55)][held["method"]]
        if kind == "element":
            number = held["tag"].get("int") if isinstance(held.get("tag"), dict) else None
            return _Choice(number, self._value(held["value"]))
        if kind == "collection":
            return self._value({"element": held["elements"][held.get("chosen", 0)]})
        return value


class Made:
    """The objects that a macro made: by their way what they hold. A record's way is its class and first name."""

    RECORD = re.compile(r'.*\.(?:Create|Get)(Layer|\w+Style)\(("(?:[^"\\]|\\.)*")\)(.*)')

    def __init__(self, notes):
        self.held, self.colors, self._renamed = {}, [], {}
        reshaped = set()
        for note in notes:
            if note.get("call") == "GetRGBColor":
                self.colors.append(note["args"])
            if note.get("call") in ("Rename", "Activate", "RemoveLayer"):
                self._change(note["on"], note["call"], note["args"])
            if note.get("call") in RESHAPING:
                reshaped.add(note["on"])
            if note.get("call") in COUNTED:
                place, step = COUNTED[note["call"]]
                self.held[note["on"]][place, 0] += step
            if "holds" in note and note["on"] not in reshaped:
                self._hold(note["on"], note["holds"], note["values"])
        for way, held in self.held.items():
            if derive := DERIVED.get(way.split("#")[0]):
                derive(held)

    def _way(self, way):
        """To the object, and from there on."""
        if record := self.RECORD.match(way):
            name = f"{record[1]} {json.loads(record[2])}"
            return self._renamed.get(name, name), record[3]
        match = re.match(r"(\w+#\d+)(?=\.|$)", way)
        return (match[1], way[match.end():]) if match else (None, "")

    def _change(self, way, call, arguments):
        if call == "RemoveLayer":
            way = f"{way}.GetLayer({json.dumps(arguments[0])})"
        name, _ = self._way(way)
        if call == "Rename" and name:
            self._renamed[f"{name.split()[0]} {arguments[0]}"] = name
        if name:
            question = {"Rename": "Name()", "Activate": "Active()", "RemoveLayer": "Erased()"}[call]
            self.held.setdefault(name, {})[question, 0] = arguments[0] if call == "Rename" else True

    def _hold(self, way, question, values):
        name, rest = self._way(way)
        if not name:
            return
        steps = [step.removeprefix("DimensionStyle") for step in STEPS.findall(rest) if step not in PASSED]
        question = re.sub(r'"(iwTable\w+)"', lambda match: CELLS[match[1]], question)
        for index, value in enumerate(values or [True]):
            if not isinstance(value, str) or not value.startswith(f"@{name}"):
                self.held.setdefault(name, {})[".".join([*steps, question]), index] = value

    def color(self, value):
        """A color as recordings have it."""
        index = re.search(r"GetColorByIndex\((\d+)\)", value)
        if index:
            return {256: "bylayer", 0: "byblock"}.get(int(index[1]), {"index": int(index[1])})
        number = re.fullmatch(r"@Color#(\d+)", value)
        return {"rgb": self.colors[int(number[1]) - 1]} if number else None


def _number(value):
    try:
        return float(value)
    except (TypeError, ValueError):
        return math.nan


def _fits(made, place, seen, wanted):
    """Whether what the object holds is what the record says."""
    if isinstance(wanted, dict):
        return isinstance(seen, str) and made.color(seen) == wanted.get("color")
    number, text = (wanted.number, wanted.text) if isinstance(wanted, _Choice) else (None, wanted)
    if isinstance(seen, bool):
        closed = place == "Closed()" and str(text).lower() == "yes"  # read in any case
        return seen == (closed or text is True or number == 1 and not text or text in YES)
    if isinstance(seen, (int, float)):
        value = _number(number if text == "" else text)
        return math.isclose(seen, value, rel_tol=0, abs_tol=1e-9)
    if isinstance(seen, str) and re.match(r"iw\w+_", seen):
        # The longest name that fits.
        names = next((ENUMERATORS[end] for end in sorted(ENUMERATORS, key=len, reverse=True)
                      if place.removesuffix("()").endswith(end)), {})
        name = names.get(text, names.get(number, text or f"{number}"))
        return _plain(seen.split("_", 1)[1]) in (_plain(name), name.zfill(3))
    return seen == text


class Comparison(expected.Comparison):
    """Holds the drawings that macros made against recordings, besides their calls."""

    def __init__(self, target, program):
        super().__init__(target)
        self._target, self._program = target, program
        if target == "csharp":
            # A recording that began on a sheet without a name works in the model.
            faithful = self._frame
            self._frame = lambda in_model, sheet: faithful(in_model or not sheet, sheet)
        self._rows = _Rows()
        manager = interface.read(harness.STUBS / "interface.txt", target).classes["SketchManager"]
        interfaces = set(self._rows.interfaces.values())
        self._results = {operation.name: operation.result for operation in manager.operations
                         if operation.result in interfaces}

    def add(self, macro, notes):
        super().add(macro, notes)
        recorded, made = Recorded(macro.lines(), self._rows, self._lost(macro)), Made(notes)
        names = [self._rows.interfaces[cls] for cls, _ in recorded.added]
        calls = [(note["on"], note["call"], note["args"]) for note in notes if "call" in note]
        ways = self._lasting_ways(calls, names)
        faults = [f"{strange} is in no row" for strange in sorted(recorded.strange)]
        if names != [way.split("#")[0] for way in ways]:
            faults.append(f"the objects made are {ways}\n    and should be {names}")
            ways = []
        elif fault := self._first_operation(recorded.operations, calls, ways):
            faults.append(fault)
        self.objects += len(recorded.records)
        # What is only looked up has nothing but its name.
        looked_up = {way: {("Name()", 0): way.split(" ", 1)[1]} for way in made.held if " " in way}
        for way, wanted in [*zip(ways, (wanted for _, wanted in recorded.added)),
                            *{**looked_up, **recorded.records}.items()]:
            faults += [f"{way} {fault}" for fault in self._compare_object(made, way, wanted)]
        self.complaints += [f"{macro.name}: {fault}" for fault in faults]

    def _lost(self, macro):
        """What the program reports as lost: of added objects the handles, each with the tag of a property or with none,
        of changes the tags, and whole custom actions."""
        report = harness.run(self._program, "convert", macro.recording, "--target", self._target, "--repair",
                             "--report", "--force", "--output", macro.folder / "reported" / macro.file.name)
        lines = macro.recording.read_text(encoding="utf-8-sig").split("\n")
        lost = set()
        for loss in json.loads(report.stdout)["conversions"][0]["losses"]:
            told = re.fullmatch(r'(?:property "(.*)" of )?AcDb\w+ (\w+)', loss["what"])
            action = json.loads(lines[loss["line"] - 1])
            if number := re.fullmatch(r"command\.actions\[(\d+)\]", loss.get("path", "")):
                action = action["command"]["actions"][int(number[1])]
            if told and action.get("added", {}).get("handle") == told[2]:
                lost.add((told[2], told[1] or ""))
            elif told and "modified" in action:
                lost.add((json.dumps(action["modified"]), told[1]))
            elif loss["what"].startswith("custom "):
                lost.add(json.dumps(action["custom"]))
        return lost

    def _first_operation(self, wanted, calls, ways):
        """The first operation on several objects that is not as it should be."""
        names = {name for name, _ in self._rows.operations.values()}
        seen = [call for call in calls if call[1] in names]
        for (on, name, arguments), (operation, owner, handed) in itertools.zip_longest(
                seen, wanted, fillvalue=(None, "nothing", [])):
            values = list(_flat(arguments))
            if (name, len(values)) != (operation, len(handed)) or owner and on.removesuffix(
                    ".get_DispObj()") not in owner.ways(ways) or not all(
                    self._is_handed(*pair, ways) for pair in zip(values, handed)):
                return f"{on}.{name}({arguments}) should be {operation} of {owner}: {handed}"
        return None

    @staticmethod
    def _is_handed(value, wanted, ways):
        if isinstance(wanted, _Object):
            return isinstance(value, str) and value[1:].removesuffix(".get_DispObj()") in wanted.ways(ways)
        return wanted is None or math.isclose(value, wanted, rel_tol=0, abs_tol=1e-9)

    def _lasting_ways(self, calls, names):
        """To the objects that were made and are not drawn for others alone. Hatches never are, and of what a block is
        made of `names` tells which have a record."""
        ways, counts = [], {}
        for _, name, _ in calls:
            result = self._results.get(name)
            counts[result] = counts.get(result, 0) + 1
            ways.append(f"{result}#{counts[result]}" if result else None)
        helpers = [None if way and way.startswith("Hatch#") else way for way in ways]
        temporary = set(expected._temporaries(calls, helpers))
        handed = set().union(*(expected._named(arguments) for _, name, arguments in calls
                               if name == "CreateBlockDefinition"))
        lasting, wanted = [], list(names)
        for way in (way for way in ways if way and way not in temporary):
            if wanted and way.startswith(f"{wanted[0]}#"):
                del wanted[0]
            elif f"@{way}" in handed:
                continue
            lasting.append(way)
        return lasting

    def _compare_object(self, made, way, wanted):
        seen, cls = made.held.get(way, {}), re.split("[# ]", way)[0]
        for (place, index), value in wanted.items():
            if ("Path()", 0) in seen and place in REFERENCED:
                continue
            if (place, index) in seen:
                fits = _fits(made, place, seen[place, index], value)
            else:
                fits = value == 0 or (cls, place, value) in DEFAULTS or (cls, place) in self._rows.optional
            if not fits:
                yield f"has {seen.get((place, index))} as {place} {index}, which should be {value}"
        for (place, index), value in seen.items():
            if (place, index) not in wanted and value not in (0, "") and (
                    (cls, place, value) not in DEFAULTS and not ELSEWHERE.match(place)):
                yield f"has {value} as {place} {index}, of which nothing is recorded"
