#!/usr/bin/python3
"""That the structural check of VB.NET and VBA sees what it is there for."""

import unittest

from basic_structure import VBA, VBNET, check


def in_class(*lines):
    return "\n".join(["Public Class A", "Sub Run(ByVal iwApp As Inkwright.Application)", *lines, "End Sub", "End Class"])


def in_sub(*lines):
    return "\n".join(["Option Explicit", "Sub main()", "Dim x As Inkwright.Line", *lines, "End Sub"])


class Structure(unittest.TestCase):
    def accepts(self, text, dialect):
        self.assertEqual(check(text, dialect), [])

    def refuses(self, text, dialect, line, words):
        faults = check(text, dialect)
        self.assertTrue(any(number == line and words in fault for number, fault in faults), faults)

    def test_whole_programs_pass(self):
        self.accepts(in_class("Dim x As Inkwright.Line = Nothing", "If 1 Then", "x = iwApp.Get( 1, \"a ' b\" ) ' c",
                              "Dim d(2) As Double", "d( 0 )=1.5", "x.Join( d, \"\"\"\" )", "ElseIf x IsNot Nothing Then", "x = Nothing",
                              "End If", "Try", "Exit Try", "Catch ex As Exception", "Return", "End Try"), VBNET)
        self.accepts(in_sub("Set x = GetObject(, \"A\")", "If Not x Is Nothing Then", "x.Join 1, 2", "x.Erase( 1 )",
                            "x.Erase (x.Get( 1, 2 ))",
                            "Else", "MsgBox \"none\"", "End If", "Dim a( 2 ) As Object", "Set a( 0 ) = x",
                            "For i = 0 To 1", "Next") .replace("For i", "For x"), VBA)

    def test_declarations_of_several_names_loops_and_continued_lines_pass(self):
        self.accepts(in_class("Dim a As Double = 1.5, b As Double =2", "Dim c As Object() = DirectCast(a, Object())",
                              "For i As Integer = 0 To b", "For Each d As Inkwright.Line In c", "iwApp.Run( i, _", "d )",
                              "Next", "Next"), VBNET)
        self.accepts(in_sub("Dim a As Double, b(1) As Double", "x.Join a, _", "b"), VBA)

    def test_blocks_close_in_order(self):
        self.refuses("If 1 Then", VBNET, 1, "never closed")
        self.refuses(in_class("If 1 Then", "With iwApp", "End If", "End With"), VBNET, 5, "the end of With in line 4")
        self.refuses(in_sub("End If"), VBA, 4, "closes nothing")
        self.refuses(in_sub("Else"), VBA, 4, "outside If")
        self.refuses(in_sub("Try", "End Try"), VBA, 4, "no Try")

    def test_strings_parentheses_and_markers(self):
        self.refuses(in_class("iwApp.Run( \"a\"b\" )"), VBNET, 3, "not closed")
        self.refuses(in_class("iwApp.Run( ( 1 )"), VBNET, 3, "do not match")
        self.refuses(in_sub("%11Set x = Nothing"), VBA, 4, "marker")

    def test_names_are_declared_once_and_in_reach(self):
        self.refuses(in_class("y = iwApp"), VBNET, 3, "y is not declared")
        self.refuses(in_class("iwApp.Run( L\"a\" )"), VBNET, 3, "L is not declared")
        self.refuses(in_class("If 1 Then", "Dim y As Object", "End If", "y = iwApp"), VBNET, 6, "y is not declared")
        self.accepts(in_class(*["If 1 Then", "Dim y As Object", "End If"] * 2), VBNET)
        self.refuses(in_sub(*["If 1 Then", "Dim y As Object", "End If"] * 2), VBA, 8, "declared twice")
        self.refuses(in_class("Dim iwApp As Object"), VBNET, 3, "declared twice")
        self.refuses("Public Class a b\nEnd Class", VBNET, 1, "no name")

    def test_each_language_keeps_its_statements(self):
        self.refuses(in_class("Dim y As Object", "Set y = iwApp"), VBNET, 4, "no Set")
        self.refuses(in_sub("Return"), VBA, 4, "Return")
        self.refuses(in_sub("Dim y As Object = Nothing"), VBA, 4, "no value")
        self.refuses(in_sub("Dim y As Double2    y = 3"), VBA, 4, "no declaration")
        self.refuses(in_sub("If x IsNot Nothing Then", "End If"), VBA, 4, "no IsNot")
        for call in ("x.Join( 1, 2 )", "x.Join()", "x.Get( 1, 2 ).Join (x, y.Get(3))"):
            self.refuses(in_sub("Dim y As Object", call), VBA, 5, "no parentheses")
        self.refuses(in_sub("Set x As Inkwright.Line"), VBA, 4, "assigns nothing")
        self.refuses(in_sub("Set x = "), VBA, 4, "assigns nothing")
        self.refuses(in_sub("Set x = 3"), VBA, 4, "no object")
        self.refuses(in_class("Dim y As Object = New DispatchWrapper()"), VBNET, 3, "wraps nothing")


unittest.main()
