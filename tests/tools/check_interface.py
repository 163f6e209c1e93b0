#!/usr/bin/python3
"""Holds src/view/web/interface.txt against what macros may ask for, whether a recording of these checks makes one ask or
not: compiles and runs the C# macros of recordings with all that the program's pages of classes and of system variables
name, each choice of each property.

    check_interface.py PROGRAM SOURCE_DIR
"""

import json
import re

import check_csharp
import harness

ROW = re.compile(r"^\| `(.*?)`( with index)? \| (.*?) \|", re.MULTILINE)
AS_OF = re.compile(r"^A changed object: as of (\w+)", re.MULTILINE)
OPTION = re.compile(r"^\| `(\w+)` \| (\w+) \|", re.MULTILINE)
CUTS = re.compile(", | or ")
HANDLE = "40"
CIRCLE = {"added": {"class": "AcDbCircle", "handle": "30", "properties": []}}
DRAWING = {"10": "AcDbLayerTableRecord", "11": "AcDbLinetypeTableRecord", "12": "AcDbTextStyleTableRecord",
           "30": "AcDbCircle", "31": "AcDbArc"}
NAMED = {"LineStyle": "11", "TextStyle": "12"}  # else a layer
DATA = {"AcDbArcAlignedText": {"textString": "Rim", "arcId": "31"}}
CORNERS = [[0, 0, 0], [1, 0, 0], [1, 1, 0], [0, 2, 0]]

# The data of the custom actions that make what no insertion does.
MAKERS = {
    "AcDbHatch": (18, [{"string": "ANSI31"}, {"double": 1}, {"double": 0}, {"bool": True}, *[{"bool": False}] * 3,
                       {"points2d": [[0, 0]]}]),
    "AcDbOle2Frame": (15, [{"int": 3}, {"string": "parts.doc"}]),
    "AcDbRegion": (44, [{"handles": ["30"]}, {"classes": ["AcDbCircle"]}]),
    "AcDbViewport": (46, [{"points": CORNERS}, {"points": []}, {"bool": False}, {"handle": HANDLE},
                          {"class": "AcDbViewport"}, {"string": "Sheet1"}]),
    "AcDbViewportTableRecord": (49, [{"bool": True}, {"int": 1}, {"handles": [HANDLE]},
                                     {"classes": ["AcDbViewportTableRecord"]}]),
}
OPTIONS = {"Bool": {"bool": True}, "Double": {"double": 1.5}, "Int8": {"int8": 1}, "Int16": {"int16": 1},
           "Int32": {"int32": 1}, "Point2d": {"point2d": [1, 2]}, "Point3d": {"point3d": [1, 2, 3]},
           "String": {"string": "1"}}


def element(tag, value):
    return {"tag": tag, "value": value}


def value(tag, form, number, word):
    item = element({"int": number}, word)
    points = [element({"int": place}, {"point": point}) for place, point in enumerate(CORNERS)]
    return {"number": {"int": number}, "whole number": {"int": number}, "text": word, "item": {"element": item},
            "list": {"collection": {"chosen": 0, "elements": [item]}}, "point": {"point": [1, 2, 0]},
            "color": {"color": {"rgb": [1, 2, 3]}}, "object": {"id": NAMED.get(tag, "10")},
            "transparency": {"transparency": {"method": 2, "alpha": 127}},
            "list of points": {"collection": {"elements": points}},
            "list of handles": {"collection": {"elements": [element({"int": 0}, "30")]}},
            "list of handles as tags": {"collection": {"elements": [element("30", {"int": 0})]}}}[form]


def properties(table):
    """One for each choice of each row."""
    for tag, indexed, cell in ROW.findall(table):
        told, _, forms = cell.rpartition(", as ")
        form = CUTS.split(forms)[0]
        for place, choice in enumerate(CUTS.split(told) if told else ["1 Name"] * (4 if indexed else 1)):
            number, word = re.fullmatch(r"(\d*) ?(.*)", choice).groups()
            made = element(tag.replace("*", "0_0"), value(tag, form, int(number or place), word.strip("`")))
            yield made | ({"index": {"int": place}} if indexed else {})


def recording(lines, mode=0):
    drawing = [{"object": {"class": cls, "handle": handle}} for handle, cls in DRAWING.items()]
    header = {"recording": {"version": 1, "mode": mode, "sheet": {"name": "Model", "model": True}}}
    return "".join(json.dumps(line) + "\n" for line in [header, *drawing, *lines])


def command(*actions):
    return {"command": {"name": "DRAW", "actions": actions}}


class Page:
    """A class of the page, with its tables by the words in front of them."""

    def __init__(self, text):
        self.name, self.text = text.split("\n", 1)

    def table(self, title):
        found = re.search(rf"^{title}:(?: as of \w+, and)?\n\n((?:\|.*\n)+)", self.text + "\n", re.MULTILINE)
        return found[1] if found else ""


def of_class(page, pages):
    added = list(properties(page.table("An added object")))
    # Of what has choices the first.
    usual = list({one["tag"]: one for one in reversed(added)}.values())
    made = {"class": page.name, "handle": HANDLE, "properties": usual}
    maker = [{"custom": {"kind": kind, "data": data}} for kind, data in [MAKERS.get(page.name, (0, []))] if kind]
    yield {"object": {"class": page.name, "handle": HANDLE, **DATA.get(page.name, {})}}
    yield command(CIRCLE)
    yield command({"added": made}, *maker)
    for number, one in enumerate([] if maker else added):
        others = [other for other in usual if other["tag"] != one["tag"]]
        yield command({"added": made | {"handle": f"{number + 0x100:X}", "properties": [*others, one]}})
    tables = [page, *(pages[name] for name in AS_OF.findall(page.text))]
    if not page.name.endswith(("Record", "Style", "Group", "Layout", "Table")):
        tables.append(pages["All entities"])
    for one in (one for table in tables for one in properties(table.table("A changed object"))):
        yield command({"modified": {"class": page.name, "handle": HANDLE, "properties": [one]}})


def main():
    checked = harness.Checked()
    pages = {page.name: page for page in map(Page, harness.run(checked.program, "classes").stdout.split("\n## ")[1:])}
    texts = {name: recording(of_class(page, pages)) for name, page in pages.items() if name.startswith("AcDb")}
    variables = OPTION.findall(harness.run(checked.program, "system-variables").stdout)
    changes = [{"sysvar": {"name": name, "value": OPTIONS["String" if name == "CECOLOR" else kind]}}
               for name, kind in variables]
    files = []
    for name, text in {**texts, "variables": recording(map(command, changes), 1)}.items():
        files.append(checked.folder / f"{name}.jsonl")
        files[-1].write_text(text, encoding="utf-8")
    macros = checked.convert("csharp", files, checked.folder / "csharp", "--repair")
    rejections = check_csharp.Judge(checked, macros)()
    harness.finish(harness.shown(rejections), f"{len(macros)} macros compiled and run, {len(variables)} variables set")


if __name__ == "__main__":
    main()
