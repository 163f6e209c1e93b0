#!/usr/bin/python3
"""Runs the scripts of the JavaScript pages in node and compares the drawings that they make with their recordings, or
runs the pages in a browser against the library.

    check_javascript.py PROGRAM SOURCE_DIR run|browse [repaired]

With `repaired`, as --repair writes them: nothing is excused.
"""

import sys

import browser
import drawing
import harness


class Judge:
    """Runs scripts."""

    def __init__(self, checked, macros):
        self.checked, self.macros = checked, macros
        self.results = {}

    def __call__(self):
        self.results, rejections = drawing.run(self.checked, "javascript", self.macros,
                                               [macro.name for macro in self.macros])
        return rejections


class Browsing:
    """Runs pages."""

    def __init__(self, checked, macros):
        self.executable, = harness.need("chromium")
        self.folder, self.macros = checked.folder, macros

    def __call__(self):
        rejections = []
        with browser.Browser(self.executable, self.folder) as window:
            for macro in self.macros:
                if error := window.run(macro.file.read_text(encoding="utf-8"), macro.recording):
                    rejections.append(harness.Rejection(macro.file, error["line"], error["message"]))
        return rejections


if __name__ == "__main__":
    if sys.argv.pop(3) == "run":
        drawing.check("javascript", Judge, "scripts run")
    else:
        harness.check("javascript", Browsing, "pages run")
