#!/usr/bin/python3
"""Tests of the comparison of drawings: what a macro made differs from the recording by one thing each time."""

import json
import pathlib
import tempfile
import unittest

import drawing
import harness

MANAGER = "app.GetActiveDocument().GetModel().GetSketchManager()"
LINE = {"Start X": 0, "Start Y": 0, "Start Z": 0, "End X": 4, "End Y": 0, "End Z": 0, "Layer": {"id": "10"},
        "LineColor": {"color": {"index": 3}}, "LineWeight": {"int": 35}}
HELD = {"FirstPoint()": [0, 0, 0], "SecondPoint()": [4, 0, 0], "Layer()": ["Walls"],
        "Color()": ["@app.GetColorByIndex(3)"], "LineWeight()": ["iwLnWt_035"]}


def recording(properties):
    layer = {"object": {"class": "AcDbLayerTableRecord", "handle": "10", "name": "Walls"}}
    record = {"class": "AcDbLine", "handle": "30",
              "properties": [{"tag": tag, "value": value} for tag, value in properties.items()]}
    return [layer, {"command": {"name": "LINE", "actions": [{"added": record}]}}]


def compared(properties, held):
    """The faults of one line."""
    notes = [{"on": MANAGER, "call": "InsertLine", "args": [0, 0, 0, 4, 0, 0]}] if held is not None else []
    notes += [{"on": "Line#1", "holds": place, "values": values} for place, values in (held or {}).items()]
    return [fault for fault in faults_of(recording(properties), notes) if "Line#1" in fault or "objects made" in fault]


def faults_of(lines, notes):
    with tempfile.TemporaryDirectory() as folder:
        program = pathlib.Path(folder) / "program"
        program.write_text("#!/bin/sh\necho '{\"conversions\": [{\"losses\": []}]}'\n", encoding="utf-8")
        program.chmod(0o755)
        file = pathlib.Path(folder) / "line.jsonl"
        file.write_text("\n".join(map(json.dumps, lines)), encoding="utf-8")
        comparison = drawing.Comparison("csharp", program)
        comparison.add(harness.Macro("line", file, pathlib.Path(folder), pathlib.Path(folder) / "line.cs"), notes)
        return comparison.complaints


STYLES = "app.GetActiveDocument().GetLayerManager()"
FETCHED = f'{STYLES}.GetLayer("Walls")'


def compared_actions(actions, notes):
    """The faults of a macro of two lines, "30" and "31", and those actions."""
    line = {"class": "AcDbLine", "properties": []}
    added = [{"added": {**line, "handle": handle}} for handle in ("30", "31")]
    layer = {"object": {"class": "AcDbLayerTableRecord", "handle": "10", "name": "Walls"}}
    faults = faults_of([layer, {"command": {"name": "TEST", "actions": added + actions}}],
                       2 * [{"on": MANAGER, "call": "InsertLine", "args": 6 * [0]}] + notes)
    return [fault for fault in faults if "of the frame" not in fault and "were made" not in fault]


class DrawingTest(unittest.TestCase):
    def test_the_same(self):
        self.assertEqual(compared(LINE, HELD), [])

    def test_other_values(self):
        for place, values, told in [("SecondPoint()", [4, 2e-9, 0], "SecondPoint() 1"),
                                    ("Layer()", ["0"], "which should be Walls"),
                                    ("Color()", ["@app.GetColorByIndex(4)"], "GetColorByIndex(4) as Color()"),
                                    ("LineWeight()", ["iwLnWt_030"], "which should be 35"),
                                    ("Erased()", [True], "of which nothing is recorded")]:
            with self.subTest(place):
                faults = compared(LINE, {**HELD, place: values})
                self.assertEqual(len(faults), 1)
                self.assertIn(told, faults[0])

    def test_a_value_that_is_not_set(self):
        faults = compared(LINE, {place: values for place, values in HELD.items() if place != "Layer()"})
        self.assertEqual(len(faults), 1)
        self.assertIn("has None as Layer() 0, which should be Walls", faults[0])

    def test_an_object_that_is_missing(self):
        self.assertIn("should be ['Line']", compared(LINE, None)[0])

    def test_list_operations(self):
        move = {"custom": {"kind": 3, "data": [{"handles": ["30", "A0"]}, {"classes": 2 * ["AcDbLine"]},
                                               {"vector": [1, 2, 0]}]}}
        found = '@app.GetActiveDocument().GetObjectByHandle("A0")'
        for arguments, fits in [([1, 2, 0, ["@Line#1", found]], True), ([1, 2.00001, 0, ["@Line#1", found]], False),
                                ([1, 2, 0, ["@Line#2", found]], False), ([1, 2, 0, ["@Line#1"]], False)]:
            with self.subTest(arguments):
                call = {"on": MANAGER, "call": "MoveEntities", "args": arguments}
                self.assertEqual(compared_actions([move], [call]) == [], fits)
        self.assertIn("should be MoveEntities of None: [1, 2, 0, 30, A0]", compared_actions([move], [])[0])

    def test_records(self):
        renamed = {"modified": {"class": "AcDbLayerTableRecord", "handle": "10",
                                "properties": [{"tag": "Name", "value": "Outer"}]}}
        frozen = {"modified": {"class": "AcDbLayerTableRecord", "handle": "10",
                               "properties": [{"tag": "Frozen", "value": "Yes"}]}}
        notes = [{"on": FETCHED, "holds": "Name()", "values": ["Walls"]},
                 {"on": FETCHED, "call": "Rename", "args": ["Outer"]},
                 {"on": f'{STYLES}.GetLayer("Outer")', "holds": "Frozen()", "values": [True]}]
        self.assertEqual(compared_actions([renamed, frozen], notes), [])
        self.assertIn("has Walls as Name()", compared_actions([renamed, frozen], [notes[0], notes[2]])[0])
        self.assertIn("has None as Frozen()", compared_actions([renamed, frozen], notes[:2])[0])
        other = {"on": f'{STYLES}.GetLayer("0")', "holds": "Frozen()", "values": [True]}
        self.assertIn("Layer 0 has True as Frozen()", compared_actions([renamed], [*notes[:2], other])[1])


unittest.main()
