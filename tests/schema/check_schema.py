#!/usr/bin/python3
"""Holds recordings, reports, maps and verifications against the JSON Schemas that the program prints, and these against damaged ones.

    check_schema.py PROGRAM SOURCE_DIR
"""

import json
import pathlib
import subprocess
import sys
import tempfile

import jsonschema

# Each of these the reader refuses as well.
DAMAGED = [
    '{}',
    '{"undo":1}',
    '{"null":null,"sysvar":{"name":"A","value":{"int16":1}}}',
    '{"recording":{"version":2}}',
    '{"recording":{}}',
    '{"drawing":{"layout":"1"}}',
    '{"object":{"class":"HostWeldSymbol","handle":"1"}}',
    '{"object":{"class":"AcDbLine","handle":"1","layoutName":"A"}}',
    '{"object":{"class":"AcDbSolid","handle":"1","points":[[0,0,0],[1,0,0],[0,1,0]]}}',
    '{"object":{"class":"AcDbPolyFaceMesh","handle":"1","faces":[[1,2]]}}',
    '{"object":{"class":"AcDbDimAssoc","handle":"1","pointRefs":[null,["2F"],null,"2F"]}}',
    '{"object":{"class":"AcDbHatch","handle":"1","loops":[{"kind":2}]}}',
    '{"object":{"class":"AcDbLine","handle":"1","xData":{"PE_URL":[{"type":1000}]}}}',
    '{"added":{"class":"AcDbLine","handle":"2G","properties":[]}}',
    '{"added":{"class":"AcDbLine","handle":"0","properties":[]}}',
    '{"added":{"class":"AcDbLine","properties":[]}}',
    '{"modified":{"class":"AcDbLine","handle":"1","properties":[{"tag":"a","value":{"doubel":1}}]}}',
    '{"modified":{"class":"AcDbLine","handle":"1","properties":[{"tag":"a","value":{"color":"red"}}]}}',
    '{"sysvar":{"name":"A","value":{"int16":40000}}}',
    '{"sysvar":{"name":"A","value":[]}}',
    '{"sysvar":{"name":"A","value":{"string":"a","double":1}}}',
    '{"interaction":{"kind":"pont","prompt":"","result":null}}',
    '{"custom":{"kind":0,"data":[{"point":[1,2]}]}}',
]


# Each gives a report that the schema refuses.
DAMAGES = [
    lambda report: report.update(reportVersion=1),
    lambda report: report.pop("programVersion"),
    lambda report: report["conversions"][0].update(status="done"),
    lambda report: report["conversions"][0].pop("target"),
    lambda report: report["conversions"][0]["losses"].append({"line": 3, "what": "a", "reason": "b"}),
    lambda report: report["conversions"][0]["faults"].append({"file": "a.cs", "line": 3, "lines": [3], "count": 1, "reason": "b", "mended": True}),
]


# Each gives a map that the schema refuses.
MAP_DAMAGES = [
    lambda found: found.update(mapVersion=2),
    lambda found: found.pop("programVersion"),
    lambda found: found.pop("ranges"),
    lambda found: found.update(faults=[]),
    lambda found: found["ranges"][0].update(line=1),
    lambda found: found["ranges"][0].update(lines=[0, 3]),
    lambda found: found["ranges"][0].update(lines=[3]),
    lambda found: found["ranges"][1].pop("line"),
    lambda found: found["ranges"][1].pop("path"),
    lambda found: found["ranges"][1].update(path="command[1]"),
    lambda found: found["ranges"][1].update(handles=["0"]),
    lambda found: found["ranges"][1].update(handles="2F"),
    lambda found: found["ranges"][1].update(kind="erasure"),
    lambda found: found["ranges"][1].update(kind="frame"),
]


FINDING = {"kind": "different", "class": "AcDbLine", "handle": "2F", "line": 2, "path": "command.actions[0]",
           "macroLines": [44, 46], "what": "End X", "recorded": 4.5, "drawn": [4.5, None], "reason": "another number"}
VERIFICATION = {
    "verificationVersion": 1, "programVersion": "0.1.0", "input": "line.jsonl", "macro": "line.html",
    "verdict": "stopped", "stopped": {"macroLine": None, "message": "ReferenceError: line1 is not defined"},
    "counts": {"equal": 3, "different": 1, "missingAsTold": 0, "missing": 0, "surplus": 1, "notChecked": 0},
    "findings": [FINDING, FINDING | {"kind": "surplus", "handle": "", "line": None, "path": "", "macroLines": None}],
}
# Each gives a verification that the schema refuses.
VERIFICATION_DAMAGES = [
    lambda found: found.update(verificationVersion=2),
    lambda found: found.pop("input"),
    lambda found: found.update(verdict="same"),
    lambda found: found.update(stopped=False),
    lambda found: found["stopped"].update(macroLine=0),
    lambda found: found["counts"].pop("notChecked"),
    lambda found: found["counts"].update(equal=-1),
    lambda found: found["findings"][0].update(kind="equal"),
    lambda found: found["findings"][0].pop("drawn"),
    lambda found: found["findings"][0].update(macroLines=[44]),
    lambda found: found["findings"][0].update(line="2"),
]


def output(*command):
    return json.loads(subprocess.run(command, stdout=subprocess.PIPE, check=True).stdout)


def validator_of(program, what):
    schema = output(program, "schema", what)
    jsonschema.Draft202012Validator.check_schema(schema)
    return jsonschema.Draft202012Validator(schema)


def check_reports(program, files):
    """The faults of the report and the maps of each recording in all targets, and of the schemas."""
    validator = validator_of(program, "report")
    map_validator = validator_of(program, "map")
    verification_validator = validator_of(program, "verification")
    faults = [f"a verification: {error.message}" for error in verification_validator.iter_errors(VERIFICATION)]
    found = {"losses": 0, "faults": 0}
    with tempfile.TemporaryDirectory() as folder:
        for number, file in enumerate(files):
            report = output(program, "convert", file, "--target", "all", "--output", f"{folder}/{number}/", "--report",
                            "--quiet", "--map")
            error = jsonschema.exceptions.best_match(validator.iter_errors(report))
            if error:
                faults.append(f"the report of {file}: {error.json_path}: {error.message}")
            for conversion in report["conversions"]:
                macro_map = json.loads(pathlib.Path(conversion["map"]).read_bytes())
                error = jsonschema.exceptions.best_match(map_validator.iter_errors(macro_map))
                if error:
                    faults.append(f"{conversion['map']}: {error.json_path}: {error.message}")
                for kind in found:
                    found[kind] += len(conversion[kind])
    if not all(found.values()):
        faults.append(f"the reports hold only {found}")
    for what, whole, checks, damages in (("report", report, validator, DAMAGES),
                                         ("map", macro_map, map_validator, MAP_DAMAGES),
                                         ("verification", VERIFICATION, verification_validator, VERIFICATION_DAMAGES)):
        for number, damage in enumerate(damages):
            damaged = json.loads(json.dumps(whole))
            damage(damaged)
            if checks.is_valid(damaged):
                faults.append(f"the schema takes the damaged {what} {number}")
    return faults


# What is no name that the schema tells is valid all the same.
FOREIGN = [
    '{"added":{"class":"HostWeldSymbol","handle":"1","properties":[{"tag":"Weld length","value":2}]}}',
    '{"property":{"class":"HostWeldSymbol","handle":"1","tag":"Weld length","value":2}}',
    '{"custom":{"kind":99,"data":[]}}',
]


def check_names(schema, validator):
    """The faults of the names that an editor completes."""
    def told(part, key):
        return schema["$defs"][part]["properties"][key]["anyOf"]

    faults = [f"the schema refuses {line}" for line in FOREIGN if not validator.is_valid(json.loads(line))]
    for part, key, name in (("added", "class", "AcDbLine"), ("modified", "class", "AcDbTable"),
                            ("picked", "class", "AcDbCircle"), ("property", "tag", "Start X"),
                            ("propertyAction", "tag", "Internal region detection")):
        if name not in told(part, key)[0]["enum"]:
            faults.append(f"the schema does not tell {name} as {key} of {part}")
    if {"const": 18, "title": "insert hatch"} not in told("custom", "kind"):
        faults.append("the schema does not tell the kind that inserts a hatch")
    return faults


def main():
    program, source = sys.argv[1], pathlib.Path(sys.argv[2])
    validator = validator_of(program, "recording")

    files = sorted(source.glob("examples/*.jsonl")) + sorted(source.glob("tests/scenarios/*/recording.jsonl"))
    checked = 0
    faults = []
    for file in files:
        for number, line in enumerate(file.read_text(encoding="utf-8").splitlines(), 1):
            if not line.strip():
                continue
            checked += 1
            error = jsonschema.exceptions.best_match(validator.iter_errors(json.loads(line)))
            if error:
                faults.append(f"{file}:{number}: {error.json_path}: {error.message}")
    faults += [f"the schema takes {line}" for line in DAMAGED if validator.is_valid(json.loads(line))]
    faults += check_names(validator.schema, validator)
    faults += check_reports(program, files)
    if not files or checked < 100:
        faults.append(f"only {checked} lines were found to check")
    print("\n".join(faults) or f"{checked} lines in {len(files)} recordings fit the schema")
    sys.exit(1 if faults else 0)


main()
