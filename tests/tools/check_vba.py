#!/usr/bin/python3
"""Compiles the repaired VBA macros with LibreOffice's Basic, and checks what that compiler leaves to the run: names,
types, and calls.

    check_vba.py PROGRAM SOURCE_DIR
"""

import os
import pathlib

import basic_structure
import check_basic
import harness
import interface
import vba_types

LIBREOFFICE = pathlib.Path("/usr/lib/libreoffice/program")
LIBRARIES = ("libmergedlo.so", "libuno_sal.so.3")


def build(checked):
    """The compiler as a program."""
    gcc, = harness.need("g++")
    if not all((LIBREOFFICE / library).exists() for library in LIBRARIES):
        harness.skip("libreoffice-core-nogui not installed")
    program = checked.folder / "vba_compiler"
    result = harness.run(gcc, "-std=c++20", "-Wall", "-Wextra", f'-DLIBREOFFICE="{LIBREOFFICE}"',
                         harness.HERE / "vba_compiler.cpp", "-o", program, f"-L{LIBREOFFICE}",
                         f"-Wl,-rpath,{LIBREOFFICE}", *(f"-l:{library}" for library in LIBRARIES))
    if result.returncode != 0:
        harness.finish([result.stderr], "")
    return program


def compile_all(checked, program, files):
    result = harness.run(program, checked.folder / "profile", *files,
                         env={**os.environ, "HOME": str(checked.folder)})
    rows = [row.split("\t", 2) for row in result.stdout.split("\n")[:-1]]
    if result.returncode != (1 if rows else 0):
        harness.finish([f"the compiler ended with {result.returncode}: {result.stderr}"], "")
    return [harness.Rejection(pathlib.Path(file), int(line), message) for file, line, message in rows]


def see_faults(checked, program):
    """A compiler that takes everything would prove nothing."""
    wrong = checked.folder / "wrong.bas"
    wrong.write_text("Sub main()\nDim x As Double\nDim x As Double\nx = \"ä\nEnd Sub\n", encoding="utf-8")
    lines = {rejection.line for rejection in compile_all(checked, program, [wrong])}
    if not {3, 4} <= lines:
        harness.finish([f"the compiler refused lines {sorted(lines)} instead of 3 and 4"], "")


class Judge:
    def __init__(self, checked, macros):
        self.checked, self.macros = checked, macros
        self.program = build(checked)
        see_faults(checked, self.program)
        self.known = interface.read("csharp")

    def __call__(self):
        rejections = compile_all(self.checked, self.program, [macro.file for macro in self.macros])
        for macro in self.macros:
            rejections += check_basic.judge(macro, basic_structure.VBA)
            rejections += [harness.Rejection(macro.file, number, fault) for number, fault in
                           vba_types.check(macro.file.read_text(encoding="utf-8"), self.known)]
        return sorted(rejections, key=lambda rejection: (rejection.file, rejection.line))


def main():
    checked = harness.Checked()
    macros = checked.macros("vba", "--repair")
    harness.finish(harness.shown(Judge(checked, macros)()), f"{len(macros)} macros compiled")


if __name__ == "__main__":
    main()
