#!/usr/bin/python3
"""Holds repaired macros against recordings that say everything of each class: of each tag that `inkmacro classes` tells
of an object with each of several values, as it is added, as a change of one that was added before, and as a change of
one that the drawing has.

    every_tag.py PROGRAM SOURCE_DIR csharp|javascript|python
"""

import json
import re
import sys

import check_csharp
import check_javascript
import check_python
import drawing
import harness

# What others are named by.
DRAWN = [{"class": "AcDbLayerTableRecord", "handle": "10", "name": "Walls"},
         {"class": "AcDbTextStyleTableRecord", "handle": "11", "name": "Notes"},
         {"class": "AcDbLinetypeTableRecord", "handle": "14", "name": "DASHED"},
         {"class": "AcDbArc", "handle": "15", "center": [30, 30, 0], "radius": 12.5, "startAngle": 0.5, "endAngle": 2}]
# What the drawing tells of an added object; of dimensions at least that they are there, of every second one.
CURVE = {"center": [30, 30, 0], "chordPoint": [42.5, 30, 0], "farChordPoint": [17.5, 30, 0], "centerPoint": [90, 30, 0],
         "arcPoint": [110, 55, 0], "arcStartParam": 0.25, "arcEndParam": 1.25}
MEASURED = {"Radial": ("center", "chordPoint"), "RadialDimensionLarge": ("center", "chordPoint"),
            "Diametric": ("chordPoint", "farChordPoint"),
            "AcDbArcDimension": ("centerPoint", "arcPoint", "arcStartParam", "arcEndParam")}
DATA = {"AcDbArcAlignedText": {"textString": "Round the bend", "arcId": "15"},
        "AcDbPolygonMesh": {"mSize": 2, "nSize": 2, "isMClosed": True},
        "AcDbPolyFaceMesh": {"vertices": [[0, 0, 0], [4, 0, 0], [4, 3, 0], [0, 3, 1]],
                             "faces": [[1, 2, 3, 4], [1, 2, 4]]}}
# The actions that make what is added; `#` is its handle.
MADE = {"AcDbHatch": '{"kind": 18, "data": [{"string": "ANSI31"}, {"double": 1.5}, {"double": 0.75}, {"bool": true},'
                     ' {"bool": false}, {"bool": false}, {"bool": false}, {"points2d": [[2, 1]]}]}',
        "AcDbOle2Frame": '{"kind": 15, "data": [{"int": 1}, {"string": "list.xls"}]}',
        "AcDbViewport": '{"kind": 46, "data": [{"points": [[0, 0, 0], [4, 0, 0], [4, 3, 0]]}, {"points": []},'
                        ' {"bool": true}, {"handle": "#"}, {"class": "AcDbViewport"}, {"string": "Layout1"}]}'}
NAMES = {"AcDbLayerTableRecord": "Name", "AcDbTextStyleTableRecord": "Name", "AcDbTableStyle": "TableStyleName",
         "AcDbDimStyleTableRecord": "DimensionStyleName", "AcDbMlineStyle": "RichLineStyleName", "AcDbGroup": "Name"}
# What tells of one that the drawing has how large or what it was.
FOUND = {"AcDbTable": {"rowHeights": [2, 2, 2], "columnWidths": [5, 5, 5], "height": 6, "width": 15},
         **{cls: {"name": "Found #"} for cls in ("AcDbLayerTableRecord", "AcDbTextStyleTableRecord",
                                                 "AcDbDimStyleTableRecord", "AcDbMlineStyle")}}
# Those that are made and compared in other ways, or not at all.
OTHERS = {"AcDbLayerTable", "AcDbLayout", "AcDbBlockTableRecord", "AcDbLinetypeTableRecord", "AcDbViewTable",
          "AcDbViewTableRecord", "AcDbRegion", "AcDbViewportTableRecord"}
COUNTS = {"Rows", "Columns", "M vertex count", "N vertex count"}


def _points(shift):
    corners = [[0, 0, 0], [4, 0, 0], [4.5, 3, 1], [0, 3, 1]]
    return {"collection": {"elements": [{"tag": {"int": number}, "value": {"point": [one + shift for one in corner]}}
                                        for number, corner in enumerate(corners)]}}


WEIGHTS = [{"int": weight} for weight in (35, -1, -2, -3, 0, 211)]
TAGGED = {"LineStyle": [{"id": "14"}], "Erased": ["YES"], "Area": [7.25, -2], "Major axis vector Z": [0, 4],
          **{tag: [{"int": 3 if tag == "Rows" else 2}, {"int": 4}] for tag in COUNTS}}
FORMED = {"number": [1.5, 0, -2, 123456.789, {"int": 3}], "text": ["Ab c", "", 'x "y" <> ä'], "object": [{"id": "10"}],
          "color": [{"color": one} for one in ({"index": 3}, "bylayer", "byblock", {"rgb": [10, 200, 30]})],
          "point": [{"point": [1.5, -2, 3]}, {"point": [0, 7, 0]}], "list of points": [_points(0), _points(1.25)],
          "list of handles as tags": [{"collection": {"elements": [{"tag": "15", "value": "15"}]}}],
          "text, object, item or list": [{"id": "14"}, "ByLayer"],
          "transparency": [{"transparency": {"method": method, "alpha": alpha}}
                           for method, alpha in ((0, 255), (1, 255), (2, 127), (2, 25))]}


def _choices(words, forms):
    """Pairs of number and word, in those forms."""
    yield from ({"int": number} for number, _ in words if "number" in forms)
    yield from (word for _, word in words if "text" in forms)
    elements = [{"tag": {"int": number}, "value": word} for number, word in words]
    yield from ({"element": element} for element in elements if "item" in forms)
    if "list" in forms:
        yield from ({"collection": {"chosen": at, "elements": elements}} for at in range(len(words)))


def _values(tag, form):
    if "eight" in tag and form.startswith("whole number, item") or tag == "LineWeight" or tag.endswith("LWeight"):
        return WEIGHTS
    if (tag, form) in (("TextStyle", "object"), ("Style", "text, object, item or list")):
        return [{"id": "11"}]
    known = TAGGED.get(tag) or FORMED.get(form) or form.startswith("whole number") and [{"int": 3}, {"int": 0}, 2]
    if known:
        return known
    what, _, forms = form.rpartition(", as ")
    if numbered := re.findall(r"(\d+) \w+", what):  # any word does beside a number
        words = [(int(number), f"shown {number}") for number in numbered]
        return list(_choices(words, forms))
    words = re.findall(r"`([^`]*)`", what)
    if words or not re.search(r"\d", what):
        return list(_choices(list(enumerate(words or ["Ab c", 'x "y"'])), forms or form))
    return list(_choices([(int(digit), digit) for digit in re.findall(r"\d", what)], forms))


def _tags(page):
    """By class the tags of added and of changed objects, each with what stands beside it and its form."""
    known = {}
    for part in page.split("\n## ")[1:-1]:
        cls, _, rest = part.partition("\n")
        tables = rest.split("Data of the drawing")[0].partition("A changed object")[::2]
        known[cls] = [{tag: row for tag, *row in re.findall(r"^\| `(.*?)`(.*?) \| (.*?) \| ", table, re.MULTILINE)}
                      for table in tables]
        if same := re.match(r": as of (\w+)", tables[1]):
            known[cls][1] = known[same[1]][1] | known[cls][1]
    every = known.pop("All entities")
    return {cls: tables if cls in NAMES else [mine | common for mine, common in zip(tables, every)]
            for cls, tables in known.items() if cls not in OTHERS}


class Recording:
    def __init__(self, cls, added, every):
        self._cls, self._added, self.lines = cls, added, []
        self._typical = {tag: _values(tag, form)[0] for tag, (_, form) in added.items()
                         if tag not in every and (cls != "AcDbDimStyleTableRecord")}
        self._objects, self._data = list(DRAWN), DATA.get(cls, {} if "Dimension" in cls else None)
        for part, keys in MEASURED.items():
            if part in cls:
                self._data = {key: CURVE[key] for key in keys}

    def add(self, own, change=None, index=None):
        """An object with properties of its own, None for one that is missing, and a change of it."""
        handle = f"{0x100 + len(self.lines):X}"
        if self._data or self._data is not None and len(self.lines) % 2:
            self._objects.append({"class": self._cls, "handle": handle, **self._data})
        name = {NAMES[self._cls]: f"Made {handle}"} if self._cls in NAMES else {}
        properties = {tag: value for tag, value in (self._typical | own | name).items() if value is not None}
        actions = [{"added": self._record(handle, properties)}]
        if self._cls in MADE:
            actions.append({"custom": json.loads(MADE[self._cls].replace("#", handle))})
        if change:
            actions.append({"modified": self._record(handle, change, index)})
        self.lines.append({"command": {"name": "EVERY", "actions": actions}})

    def find(self, change, index):
        """A change of an object that the drawing has, now within a command and now without one."""
        handle = f"{0x100 + len(self.lines):X}"
        self._objects.append({"class": self._cls, "handle": handle,
                              **json.loads(json.dumps(FOUND.get(self._cls, {})).replace("#", handle))})
        record = self._record(handle, change, index)
        if len(self.lines) % 2:
            self.lines.append({"command": {"name": "EVERY", "actions": [{"modified": record}]}})
        else:
            [told] = record.pop("properties")
            self.lines.append({"property": record | told})

    def _record(self, handle, properties, index=None):
        return {"class": self._cls, "handle": handle, "properties": [
            {"tag": tag, "value": value, **({"index": index} if index is not None else {})}
            for tag, value in properties.items()]}

    def text(self):
        head = [{"recording": {"version": 1, "sheet": {"name": "Model", "model": True}}}]
        lines = head + [{"object": one} for one in self._objects] + self.lines
        return "".join(json.dumps(line) + "\n" for line in lines)


def recordings(page):
    """One a class."""
    known = _tags(page)
    every = set(known["AcDbLine"][0]) & set(known["AcDbCircle"][0])
    for cls, (added, changed) in known.items():
        recording, found = Recording(cls, added, every), Recording(cls, {}, every)
        for tag, (_, form) in added.items():
            for value in _values(tag, form) + [None] * (tag not in COUNTS):
                recording.add({tag: value})
        for tag, (beside, form) in changed.items():
            indexes = [0, 2, {"int": 3}] if "with index" in beside else [None]
            if cls == "AcDbTableStyle" and tag not in ("TableStyleName", "Direction", "Erased"):
                indexes += [{"element": {"tag": {"int": 3}, "value": {"int": 32}}}, {"int": 2}]
            numbers = ["0_0", "2_1"] if tag == "Contents_*" else ["0", "1"] if tag.endswith("*") else [""]
            for value in [] if "group" in beside else _values(tag, form):
                for index in indexes:
                    for number in numbers:
                        recording.add({}, {tag.replace("*", number): value}, index)
                        found.find({tag.replace("*", number): value}, index)
        yield cls, recording.text()
        yield cls + "_found", found.text()


def main():
    target = sys.argv.pop(3)
    checked, files = harness.Checked(), []
    for name, text in recordings(harness.run(checked.program, "classes").stdout):
        files.append(checked.folder / f"{name}.jsonl")
        files[-1].write_text(text, encoding="utf-8")
    macros = checked.convert(target, files, checked.folder / target, "--repair")
    judge = {"csharp": check_csharp, "javascript": check_javascript, "python": check_python}[target].Judge(checked, macros)
    complaints = harness.shown(judge())
    found = [f"{macro.file}: {json.dumps(one)}" for macro, result in judge.results.items()
             for one in drawing.differences(result)]
    objects = sum(result["counts"]["equal"] for result in judge.results.values())
    harness.finish(complaints + found, f"{len(macros)} recordings, {objects} objects compared")


if __name__ == "__main__":
    main()
