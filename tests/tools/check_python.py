#!/usr/bin/python3
"""Runs the Python macros against a stand-in of pywin32 and compares the drawings that they make with their recordings;
or looks at how they are written.

    check_python.py PROGRAM SOURCE_DIR run|style|parameters

A call of which nobody can tell whether a result stands in front of what it gives back runs in both forms.
"""

import ast
import functools
import inspect
import os
import re
import shutil
import sys

import drawing
import harness
import hostile

STUBS = harness.STUBS / "python"
sys.path.insert(0, str(STUBS))

import run_macros  # noqa: E402
import win32com.client as client  # noqa: E402


def is_rounded(finding):
    """Axes of ellipses are differences of coordinates. Nothing else loses a digit on its way."""
    return finding.get("what", "").startswith("Major axis vector ") \
        and abs(finding["recorded"] - finding["drawn"]) < 4e-15


class Judge:
    """Of macros that have no faults: whatever is refused is refused rightly. Numbers have to be the recorded ones."""

    def __init__(self, checked, macros, result_first=True):
        self.checked, self.macros, self.results, self.rounded = checked, macros, {}, 0
        os.environ["PYTHONPATH"] = os.pathsep.join(map(str, (STUBS, harness.HERE)))
        os.environ["INKMACRO_TOLERANCE"] = "0"
        os.environ["INKMACRO_RESULT_FIRST"] = "1" if result_first else "0"

    def __call__(self):
        names = [str(macro.file) for macro in self.macros]
        self.results, rejections = drawing.run(self.checked, "python", self.macros, names, sys.executable, "-B",
                                               STUBS / "run_macros.py", *names)
        for result in self.results.values():
            rounded = [one for one in drawing.differences(result) if is_rounded(one)]
            self.rounded += len(rounded)
            result["findings"] = [one for one in result["findings"] if one not in rounded]
        return rejections


def check_runs():
    """Macros that ask get the recorded answers, so they draw what the others do."""
    checked = harness.Checked()
    macros = checked.macros("python", "--repair")
    macros += checked.convert("python", checked.named_recordings(True), checked.folder / "asking", "--repair",
                              "--replay")
    complaints, objects = [], 0
    for result_first in (True, False):
        judge = Judge(checked, macros, result_first)
        complaints += harness.shown(judge())
        if not judge.rounded:
            complaints.append("no ellipse shows that numbers are compared exactly")
        for macro, result in judge.results.items():
            objects += result["counts"]["equal"]
            complaints += [f"{macro.file}: {one}" for one in drawing.differences(result)]
    if not objects:
        complaints.append("no recording holds an object")
    harness.finish(complaints, f"{len(macros)} macros run in two forms, {objects} objects compared")


class Steady(hostile.Hostile):
    """All texts end in the same way, so that an answer is still the value that it was."""

    def __init__(self, ending):
        super().__init__()
        self._ending = ending

    def _text(self, text):
        return text if text.startswith("*") or text in ("", "<>") else text + self._ending

    def changed(self, node):
        changed = super().changed(node)
        if isinstance(node, dict) and "command" in node:
            changed["command"]["name"] += self._ending
        if isinstance(node, dict) and "interaction" in node and "string" in (node["interaction"].get("result") or {}):
            changed["interaction"]["result"]["string"] = self._text(node["interaction"]["result"]["string"])
        return changed


def shape(node):
    """What a syntax tree is apart from its texts and the names that are made of texts."""
    if isinstance(node, ast.AST):
        return type(node).__name__, [shape(child) for child in ast.iter_child_nodes(node)]
    return None


def hostile_recordings(checked, ending):
    folder = checked.folder / f"hostile_{hostile.ENDINGS.index(ending)}"
    folder.mkdir()
    for name, recording in checked.recordings().items():
        file = folder / f"{name}.jsonl"
        file.write_text(Steady(ending).recording(recording.read_text(encoding="utf-8-sig")), encoding="utf-8")
        yield file


def check_style():
    """Of macros in both modes: the same with --repair, the tree of a hostile recording's macro that of the harmless
    one, and nothing that formatter or linter would have otherwise."""
    checked = harness.Checked()
    recordings = checked.named_recordings(True) + list(checked.hostile_recordings().values())
    plain = checked.convert("python", recordings, checked.folder / "plain")
    repaired = checked.convert("python", recordings, checked.folder / "repaired", "--repair")
    macros = plain + checked.convert("python", recordings, checked.folder / "replayed", "--replay")
    complaints = [f"{one.file}: --repair writes another" for one, other in zip(plain, repaired, strict=True)
                  if one.file.read_bytes() != other.file.read_bytes()]
    shapes = {macro.name: shape(ast.parse(macro.file.read_bytes())) for macro in plain}
    for ending in hostile.ENDINGS:
        changed = list(hostile_recordings(checked, ending))
        for macro in checked.convert("python", changed, checked.folder / changed[0].parent.name / "macros"):
            macros.append(macro)
            if shape(ast.parse(macro.file.read_bytes())) != shapes[macro.name]:
                complaints.append(f"{macro.file}: {ending!r} changes more than texts")
    for tool, *options in (("black", "--check"), ("flake8", "--max-line-length=88", "--isolated")):
        if path := shutil.which(tool):
            said = harness.run(path, *options, *(macro.file for macro in macros))
            complaints += [f"{tool}: {said.stdout[:4000]}{said.stderr[:1000]}"] * (said.returncode != 0)
    harness.finish(complaints, f"{len(macros)} macros read")


class Notes:
    """An application that notes what it is asked and makes up its answers."""

    def __init__(self):
        self.calls, self._things = [], 0

    def ask(self, thing, call, types, arguments):
        self.calls.append((thing._id, call, arguments))
        return [self._answer(type_) for type_ in types]

    def _answer(self, type_):
        known = client.known()
        if type_.endswith("[]"):
            return tuple(self._answer(type_[:-2]) for _ in range(9))
        if type_ in known.enumerations:
            return client.enumerators()[known.enumerations[type_][0]]
        if type_ in known.classes or type_ == "object":
            self._things += 1
            return client.Thing(self._things, "" if type_ == "object" else type_)
        return {"double": 7.0, "int": 0, "long": 0, "string": "", "bool": True}[type_]


def calls_of(macro, changed=()):
    """What a macro asks for when one of its functions is called with another value."""
    notes = Notes()
    client._ask = notes.ask
    client.state["application"] = client.Thing(0, "Application")
    module = run_macros.module_of(str(macro.file))
    if changed:
        function, name, value = changed
        setattr(module, function, functools.partial(getattr(module, function), **{name: value}))
    client.state["points"] = list(run_macros.points_of(module))
    module.main()
    return notes.calls


def others(default):
    """The value with one answer changed at a time, with that answer and what it became: a tuple may hold several."""
    if isinstance(default, tuple) and not run_macros.is_point(default):
        for number, element in enumerate(default):
            for new, *answer in others(element):
                yield (*default[:number], new, *default[number + 1:]), *answer
        return
    if isinstance(default, tuple):
        new = tuple(one + shift for one, shift in zip(default, (0.5, 0.25, 0.125)))
    else:
        new = default + (" 2" if isinstance(default, str) else 3)
    yield new, default, new


def flat(value):
    if isinstance(value, (list, tuple)):
        return [one for element in value for one in flat(element)]
    return [value]


def places(call, arguments):
    """What a call is given, one after the other; what belongs to one point stands side by side."""
    if call == "ScaleEntities":
        x, y, factor, z, *rest = arguments
        arguments = x, y, z, factor, *rest
    return flat(arguments)


def wrong_changes(before, after, old, new):
    """How often an answer is followed, and what is amiss elsewhere. What differs has to be the old answer and become
    the new one; of a point all coordinates that the place has, at least two."""
    if [(thing, call) for thing, call, _ in before] != [(thing, call) for thing, call, _ in after]:
        return 0, ["other calls"]
    old, new = flat(old), flat(new)
    followed, wrong = 0, []
    for (_, call, was), (_, _, became) in zip(before, after):
        was, became = places(call, was), places(call, became)
        place = 0
        while place < max(len(was), len(became)):
            size = next((size for size in range(len(old), len(old) // 2, -1)
                         if was[place:place + size] == old[:size] and became[place:place + size] == new[:size]), 0)
            followed += size > 0
            if not size and was[place:place + 1] != became[place:place + 1]:
                wrong.append(f"{call}: {was} became {became}")
                break
            place += size or 1
    return followed, wrong


def readme_draws(checked):
    """What is amiss when the program that the README shows calls functions of the example's macro."""
    shown = re.search(r"^```python\n(import base_plate\n.*?)^```$", (checked.source / "README.md").read_text("utf-8"),
                      re.MULTILINE | re.DOTALL)[1]
    macro, = checked.convert("python", [checked.source / "examples/base_plate.jsonl"], checked.folder / "readme")
    notes = Notes()
    client._ask = notes.ask
    client.state["application"] = client.Thing(0, "Application")
    sys.modules["base_plate"] = run_macros.module_of(str(macro.file))
    exec(compile(shown, "README.md", "exec"), {})
    drawn = [arguments for _, call, arguments in notes.calls if call == "InsertCircle"]
    wanted = [[25.0 + 22.0 * number, 50.0, 0.0, 4.0] for number in range(6)]
    return [] if drawn == wanted else [f"README.md draws {drawn}"]


def check_parameters():
    """Each function with parameters is called with other values: what was the answer follows, and nothing else."""
    checked = harness.Checked()
    complaints, count = readme_draws(checked), 0
    for macro in checked.macros("python"):
        functions = [(name, inspect.signature(one).parameters) for name, one
                     in vars(run_macros.module_of(str(macro.file))).items() if inspect.isfunction(one)]
        parameters = [(function, name, one.default) for function, all_ in functions for name, one in all_.items()
                      if one.default is not one.empty and one.kind is not one.KEYWORD_ONLY and function != "answered"]
        before = calls_of(macro) if parameters else []
        for function, name, default in parameters:
            for value, old, new in others(default):
                count += 1
                followed, wrong = wrong_changes(before, calls_of(macro, (function, name, value)), old, new)
                wrong += ["nothing follows"] * (followed == 0)
                complaints += [f"{macro.file}: {function}({name}={value!r}): {one}" for one in wrong]
    if count < 50:
        complaints.append(f"only {count} parameters")
    harness.finish(complaints, f"{count} parameters changed")


if __name__ == "__main__":
    {"run": check_runs, "style": check_style, "parameters": check_parameters}[sys.argv[3]]()
