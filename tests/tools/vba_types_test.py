#!/usr/bin/python3
"""That the check of VBA's types sees what it is there for."""

import unittest

import harness
import interface
import vba_types

KNOWN = interface.read("csharp")
DECLARED = ["Dim d As Double, line1 As Inkwright.Line", "Dim v As Variant, kind As iwObjectType_e",
            "Dim a(2) As Double", "Dim o( 0 To 1 ) As Object", "Dim r() As String"]


class Types(unittest.TestCase):
    def faults(self, *lines):
        return [(number - len(DECLARED), fault)
                for number, fault in vba_types.check("\n".join([*DECLARED, *lines]), KNOWN)]

    def refuses(self, line, words):
        faults = self.faults(line)
        self.assertTrue(len(faults) == 1 and faults[0][0] == 1 and words in faults[0][1], (line, faults))

    def test_what_is_right_passes(self):
        self.assertEqual(self.faults(
            "d = 1.5 ' = 2", "Set line1 = Nothing", "v = d", "Set v = line1", "a(1) = d", "Set o(0) = line1", "kind = 3",
            "line1.Layer = \"Set = 1\"", "v = doc.GetSheets()", "If line1 = d Then", "Dim z(1, 2) As Long",
            "doc.F( d )", "doc.F( line1.Layer )", "doc.F( o )", "line1.GetFirstPoint d, d, d", "unknown.Nobody",
            "doc.F Inkwright.iwOne_e.iwOne, \", ,\", d, \"\""), [])

    def test_types_and_sizes(self):
        self.refuses("Dim x As Double2", "no type Double2")
        self.refuses("Dim x As Inkwright.Lane", "no type Inkwright.Lane")
        for size in ("-1", "d", "1 To d"):
            self.refuses(f"Dim x( {size} ) As Double", "size of x")

    def test_members_and_objects_in_parentheses(self):
        self.refuses("line1.GetMiddle d, d, d", "line1 has no member GetMiddle")
        self.refuses("doc.Join( line1 )", "line1 in parentheses")

    def test_arguments_that_are_left_out(self):
        for line in ("doc.F , d", "v = doc.F( , d )", "doc.F d, , d", "doc.F d,"):
            self.refuses(line, "left out")

    def test_set_goes_with_objects_and_only_with_them(self):
        self.refuses("Set d = line1", "Set with d")
        self.refuses("Set kind = 3", "Set with kind")
        self.refuses("Set v = d", "Set with d")
        self.refuses("Set v = line1.Layer", "Set with line1.Layer")
        self.refuses("line1 = Nothing", "no Set with line1")
        self.refuses("o( 1 ) = Nothing", "no Set with o")
        self.refuses("v = line1", "no Set with v")
        self.refuses("v = doc.GetModel()", "no Set with v")
        self.refuses("a = v", "a is an array")


unittest.main()
