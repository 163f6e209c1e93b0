#!/usr/bin/python3
"""Compiles the VBA macros that --repair writes with LibreOffice's Basic, and checks what that leaves; nothing is excused.

    check_vba.py PROGRAM SOURCE_DIR
"""

import os
import pathlib

import harness
import interface
import vba_types

LIBREOFFICE = pathlib.Path("/usr/lib/libreoffice/program")


def compiler(folder):
    """The program that calls LibreOffice's compiler."""
    gxx, = harness.need("g++")
    if not (LIBREOFFICE / "libmergedlo.so").exists():
        harness.skip("libreoffice-core-nogui not installed")
    program = folder / "basic_compile"
    result = harness.run(gxx, "-std=c++20", harness.HERE / "basic_compile.cpp", "-o", program, "-ldl")
    if result.returncode != 0:
        harness.finish([result.stderr], "")
    return program


def compile_with(program, folder, files):
    """What the compiler says: (file, line, complaint)."""
    home = {**os.environ, "LD_LIBRARY_PATH": str(LIBREOFFICE), "HOME": str(folder)}
    result = harness.run(program, LIBREOFFICE, folder / "profile", *files, env=home)
    if result.returncode == harness.SKIPPED:
        harness.skip(result.stderr)
    rows = [line.split("\t") for line in result.stdout.splitlines()]
    if result.returncode != 0:
        rows.append([str(program), "0", f"ended with {result.returncode}: {result.stderr}"])
    return [(pathlib.Path(file), int(line), text) for file, line, text in rows]


def probe(program, folder):
    """A compiler that takes everything would show nothing."""
    for name, value, taken in (("good", "", True), ("bad", " = 1", False)):
        file = folder / f"{name}.bas"
        file.write_text(f"Option Explicit\nSub main()\n    Dim x As Double{value}\nEnd Sub\n", encoding="utf-8")
        if taken == bool(compile_with(program, folder, [file])):
            harness.finish([f"the compiler {'rejects' if taken else 'takes'} {file.read_text(encoding='utf-8')}"], "")


def main():
    checked = harness.Checked()
    program = compiler(checked.folder)
    probe(program, checked.folder)
    macros = checked.macros("vba", "--repair")
    known = interface.read(harness.STUBS / "interface.txt", "csharp")
    found = compile_with(program, checked.folder, [macro.file for macro in macros])
    for macro in macros:
        text = macro.file.read_text(encoding="utf-8")
        found += [(macro.file, line, fault) for line, fault in vba_types.check(text, known)]
    lines = {macro.file: macro.file.read_text(encoding="utf-8").split("\n") for macro in macros}
    complaints = [f"{file.name}:{line}: {fault}\n    {lines.get(file, [''])[line - 1].strip()}"
                  for file, line, fault in found]
    harness.finish(complaints, f"{len(macros)} macros compiled")


main()
