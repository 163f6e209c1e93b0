"""The drawing that a macro made, as the stubs noted it, and its comparison object by object with what the recording
says. Which property of a record stands where in an object is told by drawing.txt."""

import math
import re

import expected
import harness
import interface

# Numbers of enumerators, and texts that their names do not repeat.
ENUMERATORS = {
    "LineWeight": {-1: "ByLayer", -2: "ByBlock", -3: "Default"},
}
YES = {"yes", "visible", "enabled", "on", "1"}
# What stands between an object and its properties without being one of them.
STEPS = re.compile(r"[gG]et_?(\w+)\(\)")
PASSED = {"GeneralDimension", "DimensionStyleUserData"}
# How a number of the record becomes the one that the object holds.
MEASURES = {"half": lambda value: value / 2, "round": lambda value: value / (2 * math.pi),
            "area": lambda value: math.sqrt(value / math.pi)}


class _Rows:
    """drawing.txt: the interface's class by the drawing's class, and by both classes and tag the place of a value."""

    def __init__(self):
        self.interfaces, self.places = {}, {}
        cls = ""
        for line in (harness.HERE / "drawing.txt").read_text(encoding="utf-8").splitlines():
            text = line.split("#")[0].rstrip()
            if text and not text.startswith(" "):
                cls, _, name = text.partition(" ")
                self.interfaces[cls] = name
            elif text:
                tag, place = text.strip().split(" = ")
                for axis, letter in enumerate("XYZ" if "*" in tag else ""):
                    for sign in (letter, letter.lower()):
                        self.places[cls, tag.replace("*", sign)] = f"{place} {axis}" if place != "-" else place
                if "*" not in tag:
                    self.places[cls, tag] = place

    def place(self, cls, tag):
        return self.places.get((cls, tag)) or self.places.get(("every", tag))


class _Choice:
    """One of several values: its number and how it was shown, of which one may be missing."""

    def __init__(self, number, text):
        self.number, self.text = number, text

    def __repr__(self):
        return f"{self.text or self.number}"


def _plain(text):
    return re.sub(r"\W|_", "", text).lower()


class Recorded:
    """What the recording says of its objects: by their handle what they hold, in the order in which they were added."""

    def __init__(self, recording, rows):
        self._rows = rows
        self._names = {line["object"]["handle"]: line["object"].get("name", "") for line in recording
                       if "object" in line}
        annotations = {line["object"]["handle"] for line in recording if "object" in line
                       and line["object"]["class"] == "AcDbMText" and line["object"].get("reactors")}
        self.classes, self.held, self.strange = {}, {}, set()
        for action in expected._actions(recording):
            if "added" in action and action["added"]["handle"] not in annotations:
                self._add(action["added"])
            if "modified" in action:
                self._change(action["modified"])
            if "property" in action:
                self._set(action["property"]["handle"], action["property"], action["property"].get("index"))
            if action.get("custom", {}).get("kind") == expected.DRAWING:
                self._draw(action["custom"]["data"])
            if action.get("custom", {}).get("kind") == expected.ERASING:
                for handle in action["custom"]["data"][0]["handles"]:
                    self.held.setdefault(handle, {})["Erased()", 0] = True

    def _add(self, record):
        handle = record["handle"]
        self.classes[handle] = record["class"]
        self.held[handle] = {}
        self._change(record)

    def _draw(self, data):
        vertices = [{"value": {"point": point}} for point in data[0]["points"]]
        self._add({"class": data[4]["class"], "handle": data[3]["handle"],
                   "properties": [{"tag": "Vertex", "value": {"collection": {"elements": vertices}}}]})

    def _change(self, record):
        for one in record["properties"]:
            self._set(record["handle"], one, None)

    def _set(self, handle, record, index):
        cls, held = self.classes.get(handle), self.held.get(handle)
        if cls not in self._rows.interfaces:
            return
        place = self._rows.place(cls, record["tag"])
        if not place:
            self.strange.add(f"{cls} {record['tag']}")
        elif place.endswith("[]"):
            self._set_points(held, place[:-2], record["value"])
        elif place != "-":
            name, _, rest = place.partition(" ")
            which = "" if index is None else index["int"]
            value = self._value(record["value"])
            value = MEASURES[rest](value) if rest in MEASURES else value
            held[f"{name}({which})", int(rest) if rest.isdigit() else 0] = value

    @staticmethod
    def _set_points(held, name, value):
        """A collection that is none says nothing."""
        points = value.get("collection", {}).get("elements", []) if isinstance(value, dict) else []
        for number, element in enumerate(points):
            for axis, coordinate in enumerate(element["value"].get("point", [])):
                held[f"{name}({number})", axis] = coordinate

    def _value(self, value):
        if not isinstance(value, dict):
            return value
        kind, held = next(iter(value.items()))
        if kind == "id":
            return self._names.get(held, "")
        if kind == "int":
            return _Choice(held, "")
        if kind == "element":
            number = held["tag"].get("int") if isinstance(held["tag"], dict) else None
            return _Choice(number, self._value(held["value"]))
        if kind == "collection":
            return self._value({"element": held["elements"][held.get("chosen", 0)]})
        return value


class Made:
    """The objects that a macro made: by their way what they hold."""

    def __init__(self, notes):
        self.held, self.colors = {}, []
        for note in notes:
            if "call" in note and note["call"] == "GetRGBColor":
                self.colors.append(note["args"])
            if "holds" in note:
                self._hold(note["on"], note["holds"], note["values"])

    def _hold(self, way, question, values):
        match = re.match(r"([A-Za-z]\w*#\d+|model \w+|.*?GetObjectByHandle\(.*?\)(?:\.get_DispObj\(\))?)(?=\.|$)", way)
        if not match:
            return
        steps = [step.removeprefix("DimensionStyle") for step in STEPS.findall(way[match.end():]) if step not in PASSED]
        held = self.held.setdefault(match[1], {})
        for index, value in enumerate(values):
            held[".".join([*steps, question]), index] = value

    def color(self, value):
        """A color as recordings have it."""
        index = re.search(r"GetColorByIndex\((\d+)\)", value)
        if index:
            return {256: "bylayer", 0: "byblock"}.get(int(index[1]), {"index": int(index[1])})
        number = re.fullmatch(r"@Color#(\d+)", value)
        return {"rgb": self.colors[int(number[1]) - 1]} if number else None


def _fits(made, place, seen, wanted):
    """Whether what the object holds is what the record says."""
    if isinstance(wanted, dict) and "color" in wanted:
        return isinstance(seen, str) and made.color(seen) == wanted["color"]
    number, text = (wanted.number, wanted.text) if isinstance(wanted, _Choice) else (None, wanted)
    if isinstance(seen, bool):
        return seen == (text is True or number == 1 and not text or str(text).lower() in YES)
    if isinstance(seen, (int, float)):
        value = number if number is not None and not isinstance(text, (int, float)) else text
        return isinstance(value, (int, float)) and math.isclose(seen, value, rel_tol=0, abs_tol=1e-9)
    if isinstance(seen, str) and re.match(r"iw\w+_", seen):
        name = ENUMERATORS.get(place.strip("()").split(".")[-1], {}).get(number, f"{number:03d}" if number else "")
        shown = _plain(seen.split("_", 1)[1])
        return shown in (_plain(str(text or "")), _plain(name))
    return seen == (text if text != "" or number is None else number)


class Comparison(expected.Comparison):
    """Holds the drawings that macros made against recordings, besides their calls."""

    def __init__(self, target):
        super().__init__(target)
        self._rows = _Rows()
        manager = interface.read(harness.STUBS / "interface.txt", target).classes["SketchManager"]
        interfaces = set(self._rows.interfaces.values())
        self._results = {operation.name: operation.result for operation in manager.operations
                         if operation.result in interfaces}

    def add(self, macro, notes):
        super().add(macro, notes)
        recorded, made = Recorded(macro.lines(), self._rows), Made(notes)
        calls = [(note["on"], note["call"], note["args"]) for note in notes if "call" in note]
        ways, counts = [], {}
        for _, name, _ in calls:
            result = self._results.get(name)
            counts[result] = counts.get(result, 0) + 1
            ways.append(f"{result}#{counts[result]}" if result else None)
        temporary = set(expected._temporaries(calls, ways))
        lasting = [way for way in ways if way and way not in temporary]
        wanted = [handle for handle, cls in recorded.classes.items() if cls in self._rows.interfaces]
        names = [self._rows.interfaces[recorded.classes[handle]] for handle in wanted]
        if names != [way.split("#")[0] for way in lasting]:
            self.complaints.append(f"{macro.name}: the objects made are {lasting}\n    and should be {names}")
            return
        for handle, way in zip(wanted, lasting):
            self.complaints += [f"{macro.name}: {way} {fault}" for fault in
                                self._compare_object(made, recorded.held[handle], made.held.get(way, {}))]
        self.complaints += [f"{macro.name}: {strange} is in no row" for strange in sorted(recorded.strange)]

    @staticmethod
    def _compare_object(made, wanted, seen):
        for (place, index), value in wanted.items():
            if (place, index) not in seen:
                yield f"has no {place} {index}, which should be {value}"
            elif not _fits(made, place, seen[place, index], value):
                yield f"has {seen[place, index]} as {place} {index}, which should be {value}"
        yield from (f"has {value} as {place} {index}, of which nothing is recorded"
                    for (place, index), value in seen.items() if (place, index) not in wanted)
