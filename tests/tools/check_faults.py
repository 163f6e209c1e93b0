#!/usr/bin/python3
"""Holds the list of known faults against recordings: each fault has to be reported of some faithful macro, and none of
those that are mended of a repaired one.

    check_faults.py PROGRAM SOURCE_DIR
"""

import json
import re

import harness

ROW = re.compile(r"^\| `(.*?)` \| ([\w, ]+) \| (.*) \| (yes|no) \|$", re.MULTILINE)


def reported(checked, recordings, folder, *options):
    """The faults that are reported of the recordings' macros, as pairs of operation and reason, by whether --repair
    mends them."""
    faults = {True: set(), False: set()}
    for name, recording in recordings.items():
        result = harness.run(checked.program, "convert", recording, "--target", "all", "--report", "--quiet",
                             "--output", f"{checked.folder / folder / name}/", *options)
        if result.returncode != 0:
            harness.finish([f"{recording} does not convert: {result.stderr}"], "")
        for conversion in json.loads(result.stdout)["conversions"]:
            for fault in conversion["faults"]:
                faults[fault["mended"]].add((fault["operation"], fault["reason"]))
    return faults


def main():
    checked = harness.Checked()
    recordings = {**checked.recordings(True), **checked.hostile_recordings()}
    listed = {(operation, reason): mended == "yes"
              for operation, _, reason, mended in ROW.findall(harness.run(checked.program, "faults").stdout)}
    if not listed:
        harness.finish(["the program lists no faults"], "")
    faithful = reported(checked, recordings, "faithful")
    repaired = reported(checked, recordings, "repaired", "--repair")
    complaints = [f"no recording shows the fault of {operation}: {reason}"
                  for operation, reason in listed.keys() - (faithful[True] | faithful[False])]
    complaints += [f"a repaired macro has the fault of {operation}: {reason}" for operation, reason in repaired[True]]
    harness.finish(sorted(complaints), f"{len(listed)} faults shown by {len(recordings)} recordings")


main()
