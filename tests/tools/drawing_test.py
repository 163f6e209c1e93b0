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
    with tempfile.TemporaryDirectory() as folder:
        program = pathlib.Path(folder) / "program"
        program.write_text("#!/bin/sh\necho '{\"conversions\": [{\"losses\": []}]}'\n", encoding="utf-8")
        program.chmod(0o755)
        file = pathlib.Path(folder) / "line.jsonl"
        file.write_text("\n".join(map(json.dumps, recording(properties))), encoding="utf-8")
        comparison = drawing.Comparison("csharp", program)
        notes = [{"on": MANAGER, "call": "InsertLine", "args": [0, 0, 0, 4, 0, 0]}] if held is not None else []
        notes += [{"on": "Line#1", "holds": place, "values": values} for place, values in (held or {}).items()]
        comparison.add(harness.Macro("line", file, pathlib.Path(folder), pathlib.Path(folder) / "line.cs"), notes)
    return [fault for fault in comparison.complaints if "Line#1" in fault or "objects made" in fault]


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


unittest.main()
