#!/usr/bin/python3
"""Compiles the C# macros and their start-up programs against stubs, runs the macros, and compares the calls they make
with the objects of their recordings.

    check_csharp.py PROGRAM SOURCE_DIR [repaired]

With `repaired`, as --repair writes them: nothing is excused, and the drawings that they make are compared too.
"""

import itertools
import json
import pathlib
import re
import sys

import drawing
import expected
import harness
import model
import stubs_csharp

CLASS = re.compile(r"^ *class (\w+)", re.MULTILINE)
ERROR = re.compile(r"^(.*?)\((\d+),\d+\): error (.*)$", re.MULTILINE)


class Judge:
    def __init__(self, checked, macros):
        self.mcs, self.mono = harness.need("mcs", "mono")
        self.macros = macros
        stub = checked.folder / "Interface.cs"
        stub.write_text(stubs_csharp.source(harness.STUBS / "interface.txt"), encoding="utf-8")
        self.stubs = [stub, *sorted((harness.STUBS / "csharp").glob("*.cs"))]
        self.assembly = checked.folder / "macros.exe"
        self.calls = {}

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

    def _model(self, macro):
        """The file that tells the stubs what the macro finds in the model."""
        lines = []
        for one in model.offered(macro.lines()):
            fields = [("", point) for point in one.points] + list(one.answers.items())
            told = [f"{name}={','.join(map(repr, map(float, numbers)))}" for name, numbers in fields]
            lines.append("\t".join([one.interface, one.type, one.way, *told]) + "\n")
        file = macro.folder / "model.txt"
        file.write_text("".join(lines), encoding="utf-8")
        return file

    def _run(self):
        """A class is not named like its macro when that is no name; by now it has one."""
        by_class = {CLASS.search(macro.file.read_text(encoding="utf-8"))[1]: macro for macro in self.macros}
        models = [(name, self._model(macro)) for name, macro in by_class.items()]
        result = harness.run(self.mono, "--debug", self.assembly, *itertools.chain(*models))
        if result.returncode != 0:
            return [harness.Rejection(self.assembly, 0, result.stdout + result.stderr)]
        self.calls, rejections, macro = {}, [], None
        for line in map(json.loads, filter(None, result.stdout.split("\n"))):
            if "macro" in line:
                macro = by_class[line["macro"]]
                self.calls[macro] = []
            elif "stopped" in line:
                rejections.append(harness.Rejection(macro.file, line["line"], line["stopped"]))
            else:
                self.calls[macro].append(line)
        return rejections


def main():
    checked = harness.Checked()
    repaired = sys.argv[3:] == ["repaired"]
    macros = checked.macros("csharp", *["--repair"] * repaired)
    count = len(macros)
    judge = Judge(checked, macros)
    verdict = harness.Verdict()
    verdict.settle(macros, judge)
    comparison = drawing.Comparison("csharp", checked.program) if repaired else expected.Comparison("csharp")
    for macro, calls in judge.calls.items():
        comparison.add(macro, calls)
    summary = comparison.summary()
    verdict.complaints += comparison.complaints
    verdict.report(f"{count} macros compiled and run, {summary}")


if __name__ == "__main__":
    main()
