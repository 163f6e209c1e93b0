#!/usr/bin/python3
"""Checks the structure of the VB.NET and VBA macros.

    check_basic.py PROGRAM SOURCE_DIR vbnet|vba [repaired]

With `repaired`, as --repair writes them: nothing is excused.
"""

import sys

import basic_structure
import harness


def judge(macro, dialect):
    """A project's class is known to its start-up module."""
    # What is left open shows at the end, far from where it went wrong.
    files = sorted(file for file in macro.folder.iterdir() if file.suffix in (".bas", ".vb"))
    return [harness.Rejection(file, 0 if "comes before the end" in fault else number, fault) for file in files
            for number, fault in basic_structure.check(file.read_text(encoding="utf-8"), dialect, {macro.name})]


def main():
    checked = harness.Checked()
    dialect = sys.argv[3]
    repaired = sys.argv[4:] == ["repaired"]
    macros = checked.macros(dialect, *(["--repair"] if repaired else []))
    verdict = harness.Verdict()
    for macro in macros:
        verdict.settle([macro], lambda macro=macro: judge(macro, dialect))
    verdict.report(f"{len(macros)} macros checked")


if __name__ == "__main__":
    main()
