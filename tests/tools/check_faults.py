#!/usr/bin/python3
"""Holds the known faults of a target against recordings: for each there has to be a macro that has this fault alone and
is rejected by its tools, or makes another drawing, while the repaired one does not.

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
import check_vbnet
import drawing
import harness

ROW = re.compile(r"^\| `(.*?)` \| ([\w, ]+) \| (.*) \| (?:yes|no) \|$", re.MULTILINE)
TRIED = 2  # pieces of one recording, at most, for a fault
UNRUN = ("cpp", "cppcom", "vbnet", "vba")

# By the reason of a fault that compilers take, for targets whose macros do not run here: what its repaired statement says
# of the recording and the faithful one does not.
SAID = {
    # The point's own z, of which a call with another number of coordinates is none to a compiler.
    "y is written twice and z never": r"\.add\(0\.25\)",
    # A pointer is used that nothing has set.
    "a recording that began on a sheet without a name has no sketch manager": r"iwModel(->|\.)GetSketchManager",
    # The color is made of other numbers.
    "a color by layer or by block counts as black in a gradient": r"GetColorByIndex ?\(? ?256\b",
    # The second of two rows, from behind.
    "of several rows or columns that went only the last is removed": r"DeleteRow ?\(? ?3\b",
    # The result of a call is dropped.
    "the group's variable is not assigned": r"\w+ = iwDoc->CreateGroup",
    # An index is a number as good as another.
    "the index is raised before the first element, so the last one lies behind the array":
        r"iwlocal\d+\.parray, &(index\d+),[^;]*;[^;]*;\s*SafeArrayPutElement[^;]*;\s*\1 = \1 \+ 1;",
    # Another enumerator of the same type.
    "a predefined pattern becomes a user's own": r"iwHatchPatternType_Predefined",
}


def listed(checked, target):
    """The faults of the target: operation and reason."""
    rows = ROW.findall(harness.run(checked.program, "faults").stdout)
    return {(operation, reason) for operation, targets, reason in rows if target in targets.split(", ")}


def _texts(node):
    if isinstance(node, (dict, list)):
        return {text for part in (node.values() if isinstance(node, dict) else node) for text in _texts(part)}
    return {node} if isinstance(node, str) else set()


def pieces(recording, folder):
    """The recording, and cut down to single commands and actions, each behind the insertions of what it names."""
    folder /= recording.stem
    folder.mkdir(parents=True)
    yield shutil.copy(recording, folder / recording.name)
    lines = [json.loads(line) for line in recording.read_text(encoding="utf-8-sig").split("\n") if line.strip()]
    frame = [line for line in lines if line.keys() & {"recording", "object"}]
    inserted, count = {}, 0
    for line in (line for line in lines if line not in frame):
        actions = line["command"]["actions"] if "command" in line else [line]
        # Actions of several kinds belong together.
        joined = len({kind for action in actions for kind in action}) > 1
        for part in [line] if joined or len(actions) == 1 else [line, *actions]:
            before = [inserted[handle] for handle in sorted(inserted.keys() & _texts(part))]
            commands = [one if one is line or "command" in one else {"command": {"name": "", "actions": [one]}}
                        for one in [*before, part]]
            count += 1
            file = folder / f"{re.sub('[^0-9A-Za-z]', '_', recording.stem)}_{count}.jsonl"
            file.write_text("\n".join(map(json.dumps, [*frame, *commands])) + "\n", encoding="utf-8")
            yield file
        inserted |= {action["added"]["handle"]: line if joined else action for action in actions if "added" in action}


def rows_of(faults):
    return {(fault.operation, fault.reason) for fault in faults}


def isolated(row, faithful, repaired, folder):
    """The macro with one fault alone: the repaired one, in which the lines of the fault are as they are without
    --repair. None when they do not stand apart."""
    if rows_of(faithful.faults) == {row}:
        return faithful
    left, right = (macro.file.read_text(encoding="utf-8").split("\n") for macro in (faithful, repaired))
    begin = sorted({fault.line for fault in faithful.faults})
    lines, found = [], False
    for kind, a, b, c, d in difflib.SequenceMatcher(None, left, right, False).get_opcodes():
        # Lines or statements that correspond to each other may belong to several faults.
        cuts = [a, *(line - 1 for line in begin if a < line - 1 < b), b] if kind != "equal" else [a, b]
        cuts = list(range(a, b + 1)) if b - a == d - c else cuts if len(cuts) - 1 == d - c else [a, b]
        ends = range(c, d + 1) if len(cuts) - 1 == d - c else [c, d]
        for a, b, c, d in zip(cuts, cuts[1:], ends, ends[1:]):
            begun = max((line for line in begin if line <= a + 1), default=0)
            own = kind != "equal" and rows_of(fault for fault in faithful.faults if fault.line == begun) == {row}
            lines += left[a:b] if own else right[c:d]
            found |= own
    if not found:
        return None
    shutil.copytree(repaired.folder, folder)
    file = folder / repaired.file.name
    file.write_text("\n".join(lines), encoding="utf-8")
    return dataclasses.replace(faithful, folder=folder, file=file)


class Tools:
    """Those of a target."""

    def __init__(self, checked, target):
        self._checked, self._target = checked, target
        self.all_found = target != "vbnet" or check_vbnet.found()

    def refused(self, macros):
        """By name, the macros that are rejected or make another drawing than the recorded one, and why."""
        if self._target == "vbnet":
            found = {macro.name: rejections for macro in macros if (rejections := check_basic.judge(macro, "vbnet", False))}
            macros = [macro for macro in macros if macro.name not in found] if self.all_found else []
        else:
            found = {}
        if not macros:
            return found
        verdict, kept = harness.Verdict(), list(macros)
        judge = importlib.import_module(f"check_{self._target}").Judge(self._checked, kept)
        verdict.settle(kept, judge)
        found |= {macro.name: verdict.reasons[macro] for macro in verdict.rejected}
        for macro, calls in getattr(judge, "calls", {}).items():
            comparison = drawing.Comparison(self._target, self._checked.program)
            comparison.add(macro, calls)
            if comparison.complaints:
                found[macro.name] = comparison.complaints[0]
        return found


def candidates(checked, target):
    """For each fault macros that have it, those with the fewest others first."""
    files = [piece for recording in checked.named_recordings(True)
             for piece in pieces(recording, checked.folder / "pieces")]
    macros = checked.convert(target, files, checked.folder / "faithful")
    macros.sort(key=lambda macro: (len(rows_of(macro.faults)), macro.file.stat().st_size))
    found, tried = collections.defaultdict(list), collections.Counter()
    for macro in macros:
        for row in rows_of(macro.faults):
            tried[row, macro.recording.parent] += 1
            if tried[row, macro.recording.parent] <= TRIED:
                found[row].append(macro)
    return found


class Proof:
    """Tries macros for each fault of a target."""

    def __init__(self, checked, target):
        self._checked, self._target = checked, target
        self._tools = Tools(checked, target)
        self.rows = listed(checked, target)
        self.shown = {}  # by the fault, the macro and what is wrong with it
        self.tried = []

    def run(self):
        cases = candidates(self._checked, self._target)
        turn = 0
        while chosen := self._choose(cases):
            turn += 1
            folder = self._checked.folder / f"turn{turn}"
            repaired = self._checked.convert(self._target, [macro.recording for macro in chosen], folder, "--repair")
            self._try({isolated(row, macro, sound, folder / "isolated" / macro.name): (row, sound)
                       for (macro, row), sound in zip(chosen.items(), repaired)})

    def _choose(self, cases):
        """The next macro of each fault that is not shown yet; a macro is tried for one fault at a time."""
        chosen = {}
        for row in sorted(self.rows - self.shown.keys()):
            if macro := next((macro for macro in cases[row] if macro not in chosen), None):
                cases[row].remove(macro)
                chosen[macro] = row
        return chosen

    def _try(self, cases):
        cases.pop(None, None)
        wrong = self._tools.refused(list(cases))
        for macro, (row, repaired) in cases.items():
            if self._target in UNRUN and macro.name not in wrong and says_less(row, macro, repaired):
                wrong[macro.name] = "says something else"
        sound = self._tools.refused([repaired for macro, (_, repaired) in cases.items() if macro.name in wrong])
        for macro, (row, _) in cases.items():
            if macro.name in wrong and macro.name not in sound:
                self.shown[row] = macro.name, wrong[macro.name]
            else:
                self.tried.append(f"{row[0]}: {macro.name}: {wrong.get(macro.name)} {sound.get(macro.name)}")


def says_less(row, macro, repaired):
    pattern = SAID.get(row[1])
    found = [bool(re.search(pattern, one.file.read_text(encoding="utf-8"))) for one in (macro, repaired)] if pattern else []
    return found == [False, True]


def main():
    checked = harness.Checked()
    target = sys.argv[3]
    proof = Proof(checked, target)
    proof.run()
    print("\n".join(proof.tried))
    for row in sorted(proof.rows):
        print("OK  " if row in proof.shown else "OPEN", row, proof.shown.get(row))
    print(f"{target}: {len(proof.shown)} of {len(proof.rows)} shown")


if __name__ == "__main__":
    main()
