#!/usr/bin/python3
"""Parses the C++ add-ins against stub headers with g++, the entry points as they are built elsewhere too.

    check_cpp.py PROGRAM SOURCE_DIR [repaired]

With `repaired`, as --repair writes them: nothing is excused.
"""

import pathlib
import re
import sys

import harness
import stubs_cpp

ERROR = re.compile(r"^(.*?):(\d+):\d+: (?:fatal )?error: (.*)$", re.MULTILINE)
# As in the project file, for a compiler that has no such declarations.
WINDOWS = ["-DUNICODE", "-DNDEBUG", "-DIW_WIN", "-DIwAddin_LIB", "-D__declspec(kind)="]


class Judge:
    def __init__(self, checked, macros):
        self.compiler, = harness.need("g++")
        self.macros = macros
        self.headers = checked.folder / "headers"
        self.headers.mkdir()
        stubs_cpp.write(harness.STUBS / "interface.txt", self.headers)
        self.files = [file for macro in macros for file in macro.folder.iterdir() if file.suffix in (".h", ".cpp")]

    def __call__(self):
        rejections = []
        for macro in self.macros:
            connection = macro.folder / "iwAddinConnection.cpp"
            rejections += self._parse(WINDOWS, macro.file, connection)
            rejections += self._parse([], connection)
        return list(dict.fromkeys(rejections))

    def _parse(self, definitions, *files):
        result = harness.run(self.compiler, "-std=c++17", "-fsyntax-only", "-w", *definitions,
                             "-I", self.headers, "-I", harness.STUBS / "cpp", *files)
        rejections = [harness.Rejection(pathlib.Path(file), int(line), message)
                      for file, line, message in ERROR.findall(result.stderr)]
        if result.returncode != 0 and not rejections:
            rejections = [harness.Rejection(files[0], 0, result.stderr)]
        return rejections


def main():
    checked = harness.Checked()
    repaired = sys.argv[3:] == ["repaired"]
    macros = checked.macros("cpp", *(["--repair"] if repaired else []))
    judge = Judge(checked, macros)
    faults = harness.KnownFaults("cpp", *([()] if repaired else []))
    faults.settle(judge.files, judge)
    faults.report(f"{len(macros)} add-ins parsed")


main()
