#!/usr/bin/python3
"""That the list of known faults is exact: what is not listed is a complaint, and so is what is listed and passes."""

import pathlib
import re
import tempfile
import unittest
import unittest.mock

import harness

ENTRY = {"target": "csharp", "statement": "EmitBad", "line": r"^bad (\w+)$", "instead": r"good \1", "reason": "it is bad"}


class List(unittest.TestCase):
    def settle(self, text, entry, rejected):
        """The complaints about a text in which the lines that match `rejected` are rejected, and what it became."""
        with tempfile.TemporaryDirectory() as folder, \
                unittest.mock.patch.object(harness.json, "loads", return_value=[entry]):
            file = pathlib.Path(folder) / "macro"
            file.write_text(text, encoding="utf-8")

            def judge():
                return [harness.Rejection(file, number, "not declared")
                        for number, line in enumerate(file.read_text(encoding="utf-8").split("\n"), 1)
                        if re.search(rejected, line)]

            faults = harness.KnownFaults("csharp")
            faults.settle([file], judge)
            return faults.close(), file.read_text(encoding="utf-8")

    def test_known_rejections_are_repaired(self):
        self.assertEqual(self.settle("bad a\nfine\nbad b", ENTRY, "^bad"), ([], "good a\nfine\ngood b"))

    def test_a_new_rejection_is_a_complaint(self):
        complaints, _ = self.settle("bad a\nworse", ENTRY, "^bad|^worse")
        self.assertEqual(complaints, ["macro:2: not declared\n    worse"])

    def test_a_repair_that_does_not_help_is_a_complaint(self):
        complaints, _ = self.settle("bad a", ENTRY, "^bad|^good")
        self.assertEqual(complaints, ["macro:1: not declared\n    good a"])

    def test_a_listed_line_that_passes_is_a_complaint(self):
        complaints, _ = self.settle("bad a\nbad b", ENTRY, "^bad a")
        self.assertEqual(complaints, ["macro:2: the known fault of EmitBad passes\n    bad b"])
        self.assertEqual(self.settle("bad a\nbad b", ENTRY | {"sometimes": True}, "^bad a")[0], [])

    def test_a_listed_line_in_no_macro_is_a_complaint(self):
        self.assertIn("met in no macro", self.settle("fine", ENTRY, "^bad")[0][0])

    def test_the_message_names_what_is_put_in(self):
        entry = ENTRY | {"message": r"not (\w+)", "instead": r"{name} \1"}
        self.assertEqual(self.settle("bad a", entry, "^bad"), ([], "declared a"))

    def test_the_message_tells_faults_of_one_line_apart(self):
        complaints, _ = self.settle("bad a", ENTRY | {"message": "unassigned", "sometimes": True}, "^bad")
        self.assertEqual(complaints[0], "macro:1: not declared\n    bad a")


unittest.main()
