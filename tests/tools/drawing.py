"""The drawings that macros make when they run, held against their recordings by the program's own scripts."""

import json
import sys

import harness


def run(checked, target, macros, names, *command):
    """What came of each macro: the result of its comparison. For others than pages `command` runs them all, by those
    names."""
    node, = harness.need("node")
    jobs = [{"name": name, "recording": str(macro.recording), "macro": str(macro.file), "map": str(macro.map),
             "written": str(macro.written or macro.file), "losses": macro.losses, "assumed": macro.assumed}
            for name, macro in zip(names, macros)]
    file = checked.folder / "macros.json"
    file.write_text(json.dumps({"target": target, "command": list(map(str, command)), "macros": jobs}),
                    encoding="utf-8")
    ran = harness.run(node, harness.HERE / "run_macros.js", file)
    results = json.loads(ran.stdout) if ran.returncode == 0 else []
    if len(results) != len(macros):
        return {}, [harness.Rejection(file, 0, ran.stderr[:2000] + ran.stdout[-2000:])]
    by_name = {one["name"]: one["result"] for one in results}
    found = {macro: by_name[name] for name, macro in zip(names, macros)}
    return found, [harness.Rejection(macro.file, result["stopped"]["macroLine"] or 0, result["stopped"]["message"])
                   for macro, result in found.items() if result["stopped"]]


def differences(result):
    """What is not as it was recorded, and is not told either."""
    return [one for one in result["findings"] if one["kind"] in ("different", "missing", "surplus")]


def check(target, judge_of, done):
    """A test that holds what macros draw against their recordings, and as `repaired` excuses nothing. Else a macro may
    draw something else where a fault is reported of it."""
    checked = harness.Checked()
    repaired = sys.argv[3:] == ["repaired"]
    macros = checked.macros(target, *["--repair"] * repaired)
    count = len(macros)
    judge, verdict = judge_of(checked, macros), harness.Verdict()
    verdict.settle(macros, judge)
    objects = 0
    for macro, result in judge.results.items():
        objects += result["counts"]["equal"]
        verdict.complaints += [f"{macro.file}: {json.dumps(one)}" for one in differences(result)
                               if repaired or not macro.faults]
    if not objects:
        verdict.complaints.append("no recording holds an object")
    verdict.report(f"{count} {done}, {objects} objects compared")
