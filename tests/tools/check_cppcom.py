#!/usr/bin/python3
"""Type-checks the C++ COM add-ins with g++ against stubs of the system, its library for servers, and the wrappers that
a compiler makes of the application's type library.

    check_cppcom.py PROGRAM SOURCE_DIR [repaired]

With `repaired`, as --repair writes them: nothing is excused.
"""

import sys

import gxx
import harness
import stubs_cppcom

# Calling conventions, and texts as in the project file.
DEFINITIONS = ["-D__stdcall=", "-DUNICODE", "-D_UNICODE", "-DNDEBUG"]


class Judge:
    def __init__(self, checked, macros):
        self.macros = macros
        headers = checked.folder / "headers"
        headers.mkdir()
        precompiled = (macros[0].folder / "stdafx.h").read_text(encoding="utf-8-sig")
        stubs_cppcom.write(harness.STUBS / "interface.txt", precompiled, headers)
        self.options = [*DEFINITIONS, "-I", headers, "-I", harness.STUBS / "cppcom"]
        self.files = [file for macro in macros for file in macro.folder.iterdir() if file.suffix in (".h", ".cpp")]
        for macro in macros:
            definition = macro.project(".idl").read_text(encoding="utf-8-sig")
            (macro.folder / f"{macro.name}_i.h").write_text(stubs_cppcom.own_header(definition), encoding="utf-8")

    def __call__(self):
        rejections = []
        for macro in self.macros:
            sources = sorted(file for file in macro.folder.iterdir() if file.suffix == ".cpp")
            rejections += gxx.rejections(self.options, *sources)
        return list(dict.fromkeys(rejections))


def main():
    repaired = sys.argv[3:] == ["repaired"]
    checked = harness.Checked()
    macros = checked.macros("cppcom", *(["--repair"] if repaired else []))
    judge = Judge(checked, macros)
    faults = harness.KnownFaults("cppcom", *([()] if repaired else []))
    faults.settle(judge.files, judge)
    faults.report(f"{len(macros)} add-ins type-checked")


main()
