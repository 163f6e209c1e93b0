#!/usr/bin/python3
"""Checks the structure of the VB.NET and VBA macros.

    check_basic.py PROGRAM SOURCE_DIR vbnet|vba [repaired]

With `repaired`, as --repair writes them: nothing is excused.
"""

import sys

import basic_structure
import harness


def judge(macro, files, dialect):
    """A project's class is known to its start-up module."""
    return [harness.Rejection(file, number, fault) for file in files
            for number, fault in basic_structure.check(file.read_text(encoding="utf-8"), dialect, {macro.name})]


def main():
    checked = harness.Checked()
    dialect = sys.argv[3]
    repaired = sys.argv[4:] == ["repaired"]
    macros = checked.macros(dialect, *(["--repair"] if repaired else []))
    faults = harness.KnownFaults(dialect, *([()] if repaired else []))
    for macro in macros:
        files = sorted(file for file in macro.folder.iterdir() if file.suffix in (".bas", ".vb"))
        faults.settle(files, lambda macro=macro, files=files: judge(macro, files, dialect))
    faults.report(f"{len(macros)} macros checked")


main()
