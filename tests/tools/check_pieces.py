#!/usr/bin/python3
"""Holds what the tools of a target reject of single commands and actions against the faults that are reported of them:
in a whole macro one rejection hides behind another, and a reported fault excuses what stands near it.

    check_pieces.py PROGRAM SOURCE_DIR TARGET
"""

import importlib
import sys

import harness
import pieces


def main():
    checked, target = harness.Checked(), sys.argv[3]
    folder = checked.folder / "pieces"
    folder.mkdir()
    parts = {part.read_text(encoding="utf-8"): part
             for recording in checked.named_recordings(True) for part in pieces.of(recording, folder)}
    macros = checked.convert(target, parts.values(), checked.folder / "macros")
    judge = importlib.import_module(f"check_{target}").Judge(checked, macros)
    verdict = harness.Verdict()
    verdict.settle(macros, judge)
    verdict.report(f"{len(parts)} pieces checked")


main()
