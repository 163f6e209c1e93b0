#!/usr/bin/python3
"""Holds recordings of imported DXF drawings against what ezdxf reads in them.

    check_drawings.py PROGRAM SOURCE_DIR [installed]
"""

import collections
import json
import logging
import pathlib
import shutil
import sys

import harness

try:
    import ezdxf
except ImportError:
    harness.skip("ezdxf is not installed")

import drawings
import expected
import recorded

VERIFIED = ("simple.dxf", "looks.dxf", "blocks.dxf")  # by running their macros, which takes node
INSTALLED = ("/usr/share", "/usr/lib")
STEP = 4  # Many are alike.
NO_SECTION = 3
MOST = 8  # complaints about one drawing


def doc_of(drawing):
    source = drawing.twin or drawing.path
    return source if hasattr(source, "modelspace") else ezdxf.readfile(source)


class Comparison:
    """Of one drawing and its recording."""

    def __init__(self, drawing, recording, report):
        self.drawing, self.complaints = drawing, []
        self.found, self.tables = recorded.Recording(recording).forms()
        self.found.setdefault("", [])
        self.told = {form: collections.Counter() for form in ("imported", "approximated", "lost")}
        self.told["imported"] |= report["imported"]
        for form in ("approximated", "lost"):
            for one in report[form]:
                self.told[form][one["kind"]] += one["count"]
        self.held, self.skipped, self.matched = collections.Counter(), collections.Counter(), 0

    def say(self, text):
        self.complaints.append(f"{self.drawing.name}: {text}")

    def run(self):
        doc = doc_of(self.drawing)
        spaces = dict(expected.spaces_of(doc))
        for space, entities in spaces.items():
            if not space.startswith("block ") or ("AcDbBlockTableRecord", space[6:]) in self.tables:
                self.space(space, entities)
        for space in self.found.keys() - {name.lower() for name in spaces}:
            self.say(f"{space!r} is no space of the drawing")
        if self.drawing.rule == "whole":
            self.account()
            self.layers(doc)
        return self.complaints[:MOST]

    def space(self, space, entities):
        """What is recorded of it has to be what it holds, in that order; what is passed over is lost."""
        wanted = []
        for place, entity in enumerate(entities):
            kind = entity.dxftype()
            self.held[kind] += 1
            if kind == "INSERT":
                self.held["ATTRIB"] += len(entity.attribs)
                self.skipped["ATTRIB"] += len(entity.attribs) - len(expected.attributes(entity))
            wanted += [(place, entity, *one) for one in expected.forms(entity) or [(None, None)]]
        passed, at = set(), 0
        found = self.found.get(space.lower(), [])
        for cls, handle, form in found:
            own = [n for n in range(at, len(wanted)) if wanted[n][1].dxf.handle == handle and not self.drawing.twin]
            why = ""
            for ahead in own[:1] or range(at, len(wanted)):
                _, entity, wanted_cls, wanted_form = wanted[ahead]
                off = "of another class" if wanted_cls or not own else None  # There is no telling.
                if wanted_cls and wanted_cls in cls:
                    off = expected.difference(wanted_form, form)
                    if self.drawing.rule == "cut" and form is found[-1][2]:
                        off = None  # The file has the beginning of it.
                if not off:
                    passed |= {one[0] for one in wanted[at:ahead]}
                    at = ahead + 1
                    self.matched += 1
                    break
                why = why or f"{entity} {off}"
            else:
                self.say(f"{space or 'model space'}: {cls} {handle} is not in the drawing there: {why}")
        passed |= {one[0] for one in wanted[at:]} if self.drawing.rule != "cut" else set()
        if passed and self.drawing.rule == "cut":
            self.say(f"{len(passed)} entities in front of others are missing")
        self.skipped += collections.Counter(entities[place].dxftype() for place in passed)

    def account(self):
        told = collections.Counter()
        for form in self.told.values():
            form["LINE"] += form.pop("3DLINE", 0)
            told += form
        for kind in sorted(told.keys() | self.held.keys()):
            if told[kind] != self.held[kind]:
                told_as = [form[kind] for form in self.told.values()]
                self.say(f"{kind}: {told[kind]} told of {self.held[kind]}: {told_as}")
            elif self.skipped[kind] != self.told["lost"][kind]:
                self.say(f"{kind}: {self.skipped[kind]} lost, {self.told['lost'][kind]} told")

    def layers(self, doc):
        for layer in doc.layers:
            found = self.tables.get(("AcDbLayerTableRecord", layer.dxf.name.lower()))
            if layer.dxf.name in ("0", "Defpoints"):
                continue
            if not found:
                self.say(f"layer {layer.dxf.name} is missing")
                continue
            wanted = {"Color": expected.color(layer) if layer.dxf.color else 7, "Hidden": layer.is_off(),
                      "Frozen": layer.is_frozen(), "Locked": layer.is_locked()}
            for tag, value in wanted.items():
                got = found.yes(tag) if isinstance(value, bool) else found.get(tag, found.get(tag.lower(), 7))
                if got != value:
                    self.say(f"layer {layer.dxf.name}: {tag} is {got}, not {value}")


def installed(folder):
    """Copies of what packages of the system carry, as far as ezdxf reads it."""
    for root in INSTALLED:
        for path in sorted(pathlib.Path(root).rglob("*.[dD][xX][fF]"))[::STEP]:
            try:
                ezdxf.readfile(path)
            except Exception:  # noqa: BLE001  (whatever it is, there is nothing to compare with)
                continue
            yield drawings.Drawing(path)


def main():
    logging.disable()
    checked = harness.Checked()
    complaints, recordings, objects, count = [], {}, 0, 0
    corpus = installed if sys.argv[3:] == ["installed"] else drawings.make
    for drawing in corpus(checked.folder / "corpus"):
        count += 1
        output = checked.folder / f"{count}.jsonl"
        done = harness.run(checked.program, "import", drawing.path, "--output", output, "--report", timeout=120)
        if done.returncode != (NO_SECTION if drawing.rule == "nothing" else 0):
            complaints.append(f"{drawing.name}: status {done.returncode}: {done.stderr[-500:].strip()}")
        elif drawing.rule == "nothing":
            if output.exists() or len(done.stderr.splitlines()) != 1:
                complaints.append(f"{drawing.name}: there is output, or not one line: {done.stderr}")
        else:
            recordings[drawing.name] = output
            comparison = Comparison(drawing, output.read_text(encoding="utf-8"), json.loads(done.stdout))
            complaints += comparison.run()
            objects += comparison.matched
            if comparison.matched < drawing.least:
                complaints.append(f"{drawing.name}: {comparison.matched} objects of {drawing.least} at least")
    done = harness.run(checked.program, "check", "--strict", *recordings.values())
    if done.returncode:
        complaints.append(f"check --strict: {done.stderr[-20000:]}")
    for name in VERIFIED if shutil.which("node") else ():
        done = harness.run(checked.program, "verify", recordings[name]) if name in recordings else None
        if done and done.returncode:
            complaints.append(f"verify {name}: {done.stdout[-1000:]}{done.stderr[-500:]}")
    if not count:
        harness.skip("no package carries a drawing")
    harness.finish(complaints, f"{count} drawings, {objects} objects compared")


main()
