#!/usr/bin/python3
"""Proves the known faults of a target: for each there has to be a macro that has this fault alone and is rejected by
its tools, or makes another drawing than the recorded one, while the repaired macro does not.

    check_faults.py PROGRAM SOURCE_DIR TARGET
"""

import collections
import dataclasses
import difflib
import importlib
import json
import re
import shutil
import sys

import check_basic
import check_names
import check_vbnet
import drawing
import harness
import pieces

ROW = re.compile(r"^\| `(.*?)` \| ([\w, ]+) \| (.*) \| (?:yes|no) \|$", re.MULTILINE)

# At most, for a fault: recordings that are cut into pieces, and pieces of each that are tried.
CUT = 4
TRIED = 2

RUN = ("csharp", "javascript")
# A browser has no room for the variables of so many lines, and passes no call the coordinates of so many vertices.
LINES = 125_000
VERTICES = 40_000
# Faults by their reason that compilers take, for targets whose macros do not run here: what only the repaired statement
# says of the recording.
SAID = {
    # The point's z, which is a number as good as its y.
    "y is written twice and z never": r"\.add\(0\.25\)",
    # What sets the pointer that all statements use.
    "a recording that began on a sheet without a name has no sketch manager": r"iwModel(->|\.)GetSketchManager",
    # A color is as good as another.
    "a color by layer or by block counts as black in a gradient": r"GetColorByIndex ?\( ?256\b",
    # The second of two calls, or a loop, from behind.
    "of several rows or columns that went only the last is removed": r"DeleteRow ?\(? ?(?:3|i\d*)\b",
    # The same behind a view.
    "a color by index, by layer or by block counts as black behind a view": r"GetColorByIndex ?\( ?(?:5|9|256)\b",
    # And for the lines of a style.
    "a line of a rich line style loses a color of red, green and blue": r"AddLine.*GetRGBColor",
    # A list may come as anything, and go to anything.
    "a location that takes a list of paths is given one text": r"FontsPaths(?: = |\( )sArray",
    "a location that takes one path is given a list": r"TempPath(?: = |\( )(?!sArray)",
    # Who takes the result.
    "the group's variable is not assigned": r"\w+ = iwDoc->CreateGroup",
    # The index goes up behind both elements.
    "the index is raised before the first element, so the last one lies behind the array":
        r"iwlocal\d+\.parray, &(index\d+),[^;]*;[^;]*;\s*SafeArrayPutElement[^;]*;\s*\1 = \1 \+ 1;",
    # An enumerator is as good as another of its type.
    "a predefined pattern becomes a user's own": r"iwHatchPatternType_Predefined",
    # A name is as good as another.
    "the layer is fetched by the name 0, whichever it is, and what follows changes that one":
        r"GetLayer\( L?\"(?!0\")",
    # The order is no matter of types.
    "settings of a hatch stand ahead of its insertion": r"\A(?:(?!GetHatchPattern)(?:.|\n))*InsertHatchBy",
    # A truth value is as good as the other.
    "a layer that is shown is hidden, and the other way round": r"Shown\(? ?(= )?[Ff]alse",
    # The inner variable hides the outer one.
    "a tile gets a second variable, and the one that is declared for it stays empty": r"^ *(iw)?viewtile2 = ",
    # A sheet is as good as another.
    "a sheet is activated to be given a print style, so that what follows is drawn on it": r"styledSheet\d",
    # An enumerator, a corner and a text are as good as others.
    "the place of the chosen item of a list is taken for the item's number": r"DualDimensionFormat_Decimal",
    "the box of a note is that of another justification than it gets, which moves it": r"InsertNote ?\( ?20\b",
    "a block that is made anew loses its description": r'"Of three parts"(?:.|\n)*"Of three parts"',
    # Basic is not asked how many arguments an operation takes.
    "a vertex that is added to a polyline of a plane is given three coordinates":
        r"AddVertexAfter\W+\d, \d, \d(?!, \d)",
    # A number is as good as another.
    "a number that has more than six digits is rounded to them": r"\d\.\d{6}\d*[1-9]",
}
# Faults by their reason beside which others stand in one statement: what mends them there, so that the other is alone.
BESIDE = {
    "the page has no iwDoc, its document is mDoc": (r"\biwDoc\b", "mDoc"),
    # The recorded points lie in the plane.
    "y is written twice and z never": (r"\.add\([^()]*\);$", ".add(0);"),
    "a literal is given where a BSTR belongs, which has its length in front":
        (r'(put_\w*)\( (L"[^"]*") \)', r"\1( _bstr_t(\2) )"),
    "a property of a sheet is given a narrow text": (r'(put_\w+)\( "', r'\1( L"'),
    "a sheet is activated to be given a print style, so that what follows is drawn on it":
        (r"iwSheet->Activate\(\);", ""),
}


def rows_of(faults):
    return {(fault.operation, fault.reason) for fault in faults}


def listed(checked, target):
    """The faults of the target: operation and reason."""
    rows = [(operation, reason) for operation, targets, reason
            in ROW.findall(harness.run(checked.program, "faults").stdout)
            if target in targets.split(", ") and reason not in check_names.FAULTS]
    if not rows or len(set(rows)) < len(rows):
        harness.finish([f"the program lists no faults of {target}, or one twice"], "")
    return set(rows)


def without_return(macro):
    """The macro with the fault of each VBA macro mended, when it has others; that one stands in lines of its own."""
    others = tuple(fault for fault in macro.faults if fault.operation != "EmitFileHeader: sheet")
    if not others or others == macro.faults:
        return macro
    text = macro.file.read_text(encoding="utf-8")
    macro.file.write_text(re.sub(r"^( *)Return$", r"\1Exit Sub", text, flags=re.MULTILINE), encoding="utf-8")
    return dataclasses.replace(macro, faults=others)


def long_recordings(folder):
    """Those that are too long to be kept, and to be cut into pieces."""
    tags = [f"{end} {axis}" for end in ("Start", "End") for axis in "XYZ"]
    lines = [("AcDbLine", [{"tag": tag, "value": number % 100 + axis} for axis, tag in enumerate(tags)])
             for number in range(LINES)]
    vertices = [{"tag": {"int": number}, "value": {"point": [number % 100, number // 100, 0]}}
                for number in range(VERTICES)]
    polyline = [("AcDbPolyline", [{"tag": "Vertex", "value": {"collection": {"elements": vertices}}}])]
    folder.mkdir()
    for name, objects in ("many_lines", lines), ("many_vertices", polyline):
        file = folder / f"{name}.jsonl"
        with file.open("w", encoding="utf-8") as to:
            for number, (cls, properties) in enumerate(objects, 0x100):
                added = {"class": cls, "handle": f"{number:X}", "properties": properties}
                to.write(json.dumps({"added": added}) + "\n")
        yield file


def candidates(checked, target):
    """For each fault macros that have it, those with the fewest others first."""
    def convert(recordings, folder):
        return [without_return(macro) for macro in checked.convert(target, recordings, checked.folder / folder)]

    whole = convert(checked.named_recordings(True), "whole")
    whole.sort(key=lambda macro: macro.recording.stat().st_size)
    cut = collections.Counter()
    folder = checked.folder / "pieces"
    folder.mkdir()
    found = []
    for macro in whole:
        cut.update(rows_of(macro.faults))
        if any(cut[row] <= CUT for row in rows_of(macro.faults)):
            parts = list(pieces.of(macro.recording, folder))
            found += [(macro, one) for one in [macro, *convert(parts, "faithful")]]
    if target == "javascript":
        found += [(macro, macro) for macro in convert(list(long_recordings(checked.folder / "long")), "whole")]
    found.sort(key=lambda pair: (len(rows_of(pair[1].faults)), pair[1].file.stat().st_size))
    cases, tried = collections.defaultdict(list), collections.Counter()
    for source, macro in found:
        for row in rows_of(macro.faults):
            tried[row, source] += 1
            if tried[row, source] <= TRIED:
                cases[row].append(macro)
    return cases


def apart(row, faults):
    """Of a statement's faults the row's own, None when it has none, and the reasons of the others."""
    return (next((fault for fault in faults if (fault.operation, fault.reason) == row), None),
            {reason for _, reason in rows_of(faults) - {row}})


def without(lines, reasons):
    for pattern, words in map(BESIDE.get, reasons):
        lines = [re.sub(pattern, words, line) for line in lines]
    return lines


def isolated(row, faithful, repaired, folder):
    """The macro with one fault alone: the repaired one, in which the lines of the fault are as they are without
    --repair. None when they do not stand apart."""
    if rows_of(faithful.faults) == {row}:
        return dataclasses.replace(faithful, losses=repaired.losses, assumed=repaired.assumed)
    left, right = (macro.file.read_text(encoding="utf-8").split("\n") for macro in (faithful, repaired))
    begins = sorted({fault.line for fault in faithful.faults})
    lines, faults = [], []
    for kind, a, b, c, d in difflib.SequenceMatcher(None, left, right, False).get_opcodes():
        # Lines or statements that correspond to each other may belong to several faults.
        cuts = [a, *(line - 1 for line in begins if kind != "equal" and a < line - 1 < b), b]
        cuts = list(range(a, b + 1)) if b - a == d - c else cuts if len(cuts) - 1 == d - c else [a, b]
        ends = range(c, d + 1) if len(cuts) - 1 == d - c else [c, d]
        for a, b, c, d in zip(cuts, cuts[1:], ends, ends[1:]):
            # What is left out whole may have its fault further down.
            begun = max((line for line in begins if line <= a + 1), default=0)
            if c == d and begun <= a:
                begun = min((line for line in begins if a < line <= b), default=begun)
            fault, others = apart(row, [fault for fault in faithful.faults if fault.line == begun])
            if kind != "equal" and fault and others <= BESIDE.keys():
                faults.append(dataclasses.replace(fault, line=max(len(lines) + begun - a, 1)))
                lines += without(left[a:b], others)
            else:
                lines += right[c:d]
    if not faults:
        return None
    shutil.copytree(repaired.folder, folder)
    file = folder / repaired.file.name
    file.write_text("\n".join(lines), encoding="utf-8")
    return dataclasses.replace(repaired, folder=folder, file=file, written=repaired.file, faults=tuple(faults))


class Proof:
    """Tries macros for each fault of a target."""

    def __init__(self, checked, target):
        self._checked, self._target = checked, target
        self._has_compiler = target != "vbnet" or check_vbnet.is_found()
        self.rows = listed(checked, target)
        self.shown, self.tried = set(), collections.defaultdict(list)

    def run(self):
        cases, turn = candidates(self._checked, self._target), 0
        while chosen := self._choose(cases):
            turn += 1
            folder = self._checked.folder / f"turn{turn}"
            repaired = self._checked.convert(self._target, [macro.recording for macro in chosen], folder, "--repair")
            macros = {isolated(row, macro, sound, folder / "isolated" / macro.name): (row, sound)
                      for (macro, row), sound in zip(chosen.items(), repaired)}
            macros.pop(None, None)
            self._try(macros)

    def _choose(self, cases):
        """The next macro of each fault that is not shown yet; a macro is tried for one fault at a time."""
        chosen = {}
        for row in sorted(self.rows - self.shown):
            if macro := next((macro for macro in cases[row] if macro not in chosen), None):
                cases[row].remove(macro)
                chosen[macro] = row
        return chosen

    def _try(self, macros):
        refused = self._refused(macros)
        wrong = [macro for macro, (row, repaired) in macros.items() if self._is_wrong(row, macro, repaired, refused)]
        refused = self._refused([macros[macro][1] for macro in wrong])
        for macro, (row, _) in macros.items():
            if macro in wrong and macro.name not in refused:
                self.shown.add(row)
            else:
                outcome = "refused too when repaired" if macro in wrong else "not refused"
                self.tried[row].append(f"{macro.name} is {outcome}")

    def _refused(self, macros):
        """The names of macros that are rejected, in no other place than the fault's when one is reported, or make
        another drawing than the recorded one."""
        verdict, kept = harness.Verdict(), list(macros)
        if self._target == "vbnet":
            verdict.settle(kept, lambda: [one for macro in kept for one in check_basic.judge(macro, "vbnet")])
        results = {}
        if kept and self._has_compiler:
            judge = importlib.import_module(f"check_{self._target}").Judge(self._checked, kept)
            verdict.settle(kept, judge)
            results = getattr(judge, "results", results)
        elsewhere = {one.file.parent for one in verdict.unexplained}
        names = {macro.name for macro in verdict.rejected if not macro.faults or macro.folder not in elsewhere}
        return names | {macro.name for macro, result in results.items() if drawing.differences(result)}

    def _is_wrong(self, row, macro, repaired, refused):
        """What a compiler takes is refused only where the statements of two macros do not fit together."""
        if self._target in RUN or row[1] not in SAID:
            return macro.name in refused
        return [re.search(SAID[row[1]], one.file.read_text(encoding="utf-8"), re.MULTILINE) is not None
                for one in (macro, repaired)] == [False, True]

    def finish(self):
        unshown = self.rows - self.shown
        summary = f"{len(self.shown)} of {len(self.rows)} faults shown"
        if not self._has_compiler:
            harness.finish([], f"{summary}, {len(unshown)} not checked without a compiler")
        harness.finish([f"nothing shows the fault of {row[0]}: {row[1]}; {', '.join(self.tried[row])}"
                        for row in sorted(unshown)], summary)


def main():
    proof = Proof(harness.Checked(), sys.argv[3])
    proof.run()
    proof.finish()


main()
