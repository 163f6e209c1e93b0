#!/usr/bin/python3
"""Holds recordings against the JSON Schema that the program prints, and the schema against damaged lines.

    check_schema.py PROGRAM SOURCE_DIR
"""

import json
import pathlib
import subprocess
import sys

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


def main():
    program, source = sys.argv[1], pathlib.Path(sys.argv[2])
    schema = json.loads(subprocess.run([program, "schema"], stdout=subprocess.PIPE, check=True).stdout)
    jsonschema.Draft202012Validator.check_schema(schema)
    validator = jsonschema.Draft202012Validator(schema)

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
    if not files or checked < 100:
        faults.append(f"only {checked} lines were found to check")
    print("\n".join(faults) or f"{checked} lines in {len(files)} recordings fit the schema")
    sys.exit(1 if faults else 0)


main()
