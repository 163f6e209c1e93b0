#!/usr/bin/python3
"""Changes one number of each repaired page at a time: the comparison with the recording has to find the object that the
number is of, and no other one.

    check_literals.py PROGRAM SOURCE_DIR
"""

import dataclasses
import json
import re

import drawing
import harness

NUMBER = re.compile(r"(?<=[ (])-?\d+\.\d{14}(?=[,)])")
# Not of texts, which are put to their places once more.
INSERTION = re.compile(r"\.Insert(?!SimpleNote|\w+Data)")
MOST = 12  # of one page


def changed(macro, folder):
    """Pages with another number in a line that inserts an object, each with the handles of that line. What is drawn for
    the object stands in front of it; objects that are changed later may get the number then."""
    lines = macro.file.read_text(encoding="utf-8").split("\n")
    ranges = json.loads(macro.map.read_text(encoding="utf-8"))["ranges"]
    later = {handle for one in ranges if one["kind"] != "insertion" for handle in one.get("handles", [])}
    places = []
    for one in ranges:
        inserting = [number for number in range(one["lines"][0] - 1, one["lines"][1]) if INSERTION.search(lines[number])]
        if one["kind"] == "insertion" and inserting and not later & set(one["handles"]):
            places += [(inserting[-1], one["handles"])] * bool(NUMBER.search(lines[inserting[-1]]))
    for number, handles in places[::len(places) // MOST + 1]:
        first = NUMBER.search(lines[number])
        line = f"{lines[number][:first.start()]}{float(first[0]) + 1.5:.14f}{lines[number][first.end():]}"
        file = folder / f"{macro.name}_{number + 1}.html"
        file.write_text("\n".join([*lines[:number], line, *lines[number + 1:]]), encoding="utf-8")
        yield dataclasses.replace(macro, name=file.stem, file=file, written=macro.file), handles


def main():
    checked = harness.Checked()
    macros = checked.convert("javascript", checked.named_recordings(True), checked.folder / "javascript", "--repair")
    folder = checked.folder / "changed"
    folder.mkdir()
    pages = dict(pair for macro in macros for pair in changed(macro, folder))
    results, rejections = drawing.run(checked, "javascript", list(pages), [macro.name for macro in pages])
    complaints = harness.shown(rejections)
    for macro, result in results.items():
        found = {one["handle"] for one in drawing.differences(result)}
        if not found or not found <= set(pages[macro]):
            complaints.append(f"{macro.name}: the number is of {pages[macro]}, and found are {sorted(found)}")
    harness.finish(complaints or ["no page has a number"] * (not pages), f"{len(pages)} numbers changed and found")


main()
