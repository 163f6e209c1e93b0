#!/usr/bin/python3
"""That the stand-in of pywin32 refuses what it is there to refuse."""

import unittest

import check_python
from check_python import client, run_macros

import pythoncom

REALS, OBJECTS = pythoncom.VT_ARRAY | pythoncom.VT_R8, pythoncom.VT_ARRAY | pythoncom.VT_DISPATCH
INTEGERS = pythoncom.VT_ARRAY | pythoncom.VT_I4


class StandIn(unittest.TestCase):
    def setUp(self):
        self.notes = check_python.Notes()
        client._ask, client.RESULT_FIRST = self.notes.ask, True
        client.state["application"] = client.Thing(0, "Application")
        self.app = client.gencache.EnsureDispatch(client.GetActiveObject("Inkwright.Application"))
        self.doc = self.app.GetActiveDocument()
        self.sketch = self.doc.GetModel().GetSketchManager()
        self.line = self.sketch.InsertLine(0.0, 0.0, 0.0, 1.0, 0.0, 0.0)
        self.circle = self.sketch.InsertCircle(0.0, 0.0, 0.0, 1.0)

    def refuses(self, call, *arguments):
        told = len(self.notes.calls)
        with self.assertRaises(TypeError, msg=repr(arguments)):
            call(*arguments)
        self.assertEqual(len(self.notes.calls), told)

    def test_joining(self):
        with self.assertRaises(pythoncom.com_error):
            client.GetActiveObject("Inkwright")
        client.state["application"] = client.Thing(0, "Application")
        with self.assertRaises(AttributeError):
            client.constants.iwZoomRange_All
        client.gencache.EnsureDispatch(client.GetActiveObject("Inkwright.Application"))
        self.assertEqual(client.constants.iwZoomRange_All, 0)
        with self.assertRaises(AttributeError):
            client.constants.iwZoomRange_None

    def test_members(self):
        for thing, name in ((self.line, "Radius"), (self.line, "GetMiddle"), (self.circle, "GetFirstPoint")):
            with self.assertRaises(AttributeError):
                getattr(thing, name)
            with self.assertRaises(AttributeError):
                setattr(thing, name, 1.0)
        self.assertEqual(self.line.Layer, "")

    def test_numbers_of_arguments(self):
        self.refuses(self.sketch.InsertCircle, 0.0, 0.0, 0.0)
        self.refuses(self.sketch.InsertCircle, 0.0, 0.0, 0.0, 1.0, 1.0)
        self.refuses(self.doc.GetLayerManager().CreateLayer, "A", None)
        self.refuses(self.doc.GetLayerManager().CreateLayer, pythoncom.Missing)

    def test_types_of_arguments(self):
        for wrong in (1, True, "1", None, pythoncom.Nothing, self.line):
            self.refuses(self.sketch.InsertCircle, 0.0, 0.0, 0.0, wrong)
        for wrong in (1.0, True, "1", client.constants.iwZoomRange_All):
            self.refuses(self.app.GetColorByIndex, wrong)
        for wrong in (0, client.constants.iwViewTilesApplyTo_Display):
            self.refuses(self.app.Zoom, wrong, pythoncom.Nothing, pythoncom.Nothing)
        self.refuses(setattr, self.line, "Erased", 1)
        self.refuses(setattr, self.line, "Layer", self.circle)
        self.refuses(self.sketch.InsertDiameterDimensionCircle, self.line, client.VARIANT(REALS, (0.0,)), "")
        self.app.Zoom(client.constants.iwZoomRange_All, pythoncom.Nothing, pythoncom.Nothing)

    def test_arrays(self):
        kinds = client.VARIANT(INTEGERS, (client.constants.iwLineType, 1))
        self.sketch.CopyEntities(1.0, 0.0, 0.0, kinds, client.VARIANT(OBJECTS, (self.line,)))
        self.assertEqual(self.notes.calls[-1][2][3:], [["iwLineType", 1], [{"thing": self.line._id}]])
        for wrong in ((0.0, 1.0), [0.0], client.VARIANT(INTEGERS, (0, 1)), client.VARIANT(pythoncom.VT_R8, (0.0,)),
                      client.VARIANT(REALS, (0.0, 1)), client.VARIANT(REALS, (0.0, True))):
            self.refuses(self.sketch.InsertPolyline2D, wrong, False)
        self.refuses(self.sketch.MoveEntities, 1.0, 0.0, 0.0, client.VARIANT(OBJECTS, ("line2",)))

    def test_results(self):
        layer, result = self.doc.GetLayerManager().CreateLayer("A")
        self.assertEqual((layer._class, result.enumeration), ("Layer", "iwCreateObjectResult_e"))
        self.assertEqual(self.circle.GetCenter(), (7.0, 7.0, 7.0))
        self.assertIsNone(self.circle.SetCenter(0.0, 0.0, 0.0))
        self.assertEqual(self.line._class, "Line")
        load = self.doc.GetLineStyleManager().LoadLineStyle
        self.assertEqual(len(load("A", "B")), 2)
        client.RESULT_FIRST = False
        self.assertEqual(load("A", "B")._class, "LineStyle")

    def test_places_of_results(self):
        """None stands where a result comes back in front of another argument; a value there is refused."""
        prompt = self.app.GetCommandMessage().PromptForPointOrKeyword
        texts = client.VARIANT(pythoncom.VT_ARRAY | pythoncom.VT_BSTR, ())
        point = self.app.GetMathUtility().CreatePoint(0.0, 0.0, 0.0)
        plane = self.app.GetMathUtility().CreateYZPlane()
        given = "A", "", texts, texts, 0, False, point, point
        self.refuses(prompt, *given, "", None, plane)
        self.refuses(prompt, *given, plane)
        prompt(*given, None, None, plane)

    def test_what_a_drawing_keeps(self):
        class Drawing:
            pass
        drawing = Drawing()
        drawing.app, drawing.line1, drawing.circle2 = self.app, self.line, self.circle
        self.assertEqual(list(run_macros.kept(drawing, False)), [])
        drawing.circle2, drawing.layer3, drawing.line4 = self.line, (self.line, 0), None
        self.assertEqual(list(run_macros.kept(drawing, True)),
                         ["drawing.circle2 is a line", "drawing.layer3 is a tuple"])
        self.assertEqual(len(list(run_macros.kept(drawing, False))), 3)


unittest.main()
