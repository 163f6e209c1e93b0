#!/usr/bin/python3
"""Compiles the C# macros and their start-up programs against stubs, runs the macros, and compares the drawings that they
make with their recordings.

    check_csharp.py PROGRAM SOURCE_DIR [repaired]

With `repaired`, as --repair writes them: nothing is excused.
"""

import pathlib
import re

import drawing
import harness
import stubs_csharp

CLASS = re.compile(r"^ *class (\w+)", re.MULTILINE)
ERROR = re.compile(r"^(.*?)\((\d+),\d+\): error (.*)$", re.MULTILINE)


class Judge:
    def __init__(self, checked, macros):
        self.mcs, self.mono = harness.need("mcs", "mono")
        self.checked, self.macros = checked, macros
        stub = checked.folder / "Interface.cs"
        stub.write_text(stubs_csharp.source(), encoding="utf-8")
        self.stubs = [stub, *sorted((harness.STUBS / "csharp").glob("*.cs"))]
        self.assembly = checked.folder / "macros.exe"
        self.results = {}

    def __call__(self):
        return self._compile() or self._run()

    def _compile(self):
        files = [file for macro in self.macros for file in (macro.file, macro.folder / "Program.cs")]
        result = harness.run(self.mcs, "-nologo", "-debug", "-warn:0", "-codepage:utf8", "-main:RunMacros",
                             f"-out:{self.assembly}", *self.stubs, *files)
        rejections = [harness.Rejection(pathlib.Path(file), int(line), message)
                      for file, line, message in ERROR.findall(result.stdout + result.stderr)]
        if result.returncode != 0 and not rejections:
            rejections = [harness.Rejection(self.assembly, 0, result.stdout + result.stderr)]
        return rejections

    def _run(self):
        """A class is not named like its macro when that is no name; by now it has one."""
        classes = [CLASS.search(macro.file.read_text(encoding="utf-8"))[1] for macro in self.macros]
        self.results, rejections = drawing.run(self.checked, "csharp", self.macros, classes, self.mono, "--debug",
                                               self.assembly, *classes)
        return rejections


if __name__ == "__main__":
    drawing.check("csharp", Judge, "macros compiled and run")
