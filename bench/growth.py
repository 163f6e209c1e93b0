#!/usr/bin/python3
"""Measures how the time and memory of reading grow with each list that a recording can hold, and writes the table into docs/performance.md: bench/growth.py PROGRAM [FILTER]. With a filter it only prints."""

import multiprocessing
import os
import pathlib
import subprocess
import sys
import tempfile

PAGE = pathlib.Path(__file__).resolve().parent.parent / "docs/performance.md"
BEGIN = "<!-- growth: bench/growth.py writes what stands between here -->"
END = "<!-- and here, of growth -->"

COUNTS = (10_000, 100_000, 1_000_000)
# What the parser lets through is 1,024 deep; of that the line, the action and the value take some.
DEEP = 300
DATUM = '{"int":1}'


def entries(count, entry):
    return ",".join(map(entry, range(count)))


def line(kind, value):
    return f'{{"{kind}":{value}}}\n'


def added(properties, extra=""):
    return line("added", f'{{"class":"AcDbLine","handle":"2F","properties":[{properties}]{extra}}}')


def value(text):
    return added(f'{{"tag":"a","value":{text}}}')


def prop(number):
    return f'{{"tag":"T{number}","value":{number},"group":"G{number}"}}'


def drawing(key, text):
    return line("drawing", f'{{"{key}":{text}}}')


def drawing_object(cls, key, text, handle=1):
    return line("object", f'{{"class":"{cls}","handle":"{handle:X}","{key}":{text}}}')


def custom(key, entry):
    return lambda count: line("custom", f'{{"kind":1,"data":[{{"{key}":[{entries(count, entry)}]}}]}}')


def keyed_handles(count):
    return "{" + entries(count, lambda i: f'"K{i}":"{i + 1:X}"') + "}"


def handles(count):
    return "[" + entries(count, lambda i: f'"{i + 1:X}"') + "]"


def buffers(count):
    return "[" + entries(count, lambda i: f'{{"int32":{i}}}') + "]"


def selection(count):
    rows = entries(count, lambda i: f'{{"handle":"{i + 1:X}","class":"C{i}"}}')
    return line("selection", f'{{"objects":[{rows}]}}')


def keywords(count):
    words = entries(count, lambda i: f'"K{i}"')
    return line("interaction", f'{{"kind":"keyword","prompt":"","result":null,"keywords":{{"local":[{words}],'
                               f'"global":[{words}]}}}}')


def elements(count):
    rows = entries(count, lambda i: f'{{"tag":{i},"value":{i}}}')
    return value(f'{{"collection":{{"chosen":1,"elements":[{rows}]}}}}')


def nested(count):
    one = '{"element":{"tag":1,"value":' * DEEP + "1" + "}}" * DEEP
    return added(",".join(f'{{"tag":"a","value":{one}}}' for _ in range(max(1, count // DEEP))))


def data(count):
    return line("custom", f'{{"kind":1,"data":[{entries(count, lambda i: DATUM)}]}}')


def command(child):
    return lambda count: line("command", f'{{"name":"X","actions":[{entries(count, child)}]}}')


def lines(one):
    return lambda count: "".join(map(one, range(count)))


def child(number):
    return f'{{"added":{{"class":"AcDbLine","handle":"{number + 1:X}","properties":[]}}}}'


def rows(count):
    return "[" + entries(count, lambda i: f'["R{i}"]') + "]"


def fault_at_end(count):
    return line("command", f'{{"name":"X","actions":[{entries(count, child)},]}}')


def unknown_at_end(count):
    return line("command", f'{{"name":"X","actions":[{entries(count, child)},{{"nothing":1}}]}}')


CASES = (
    ("`drawing.settings`", lambda n: drawing("settings", "{" + entries(n, lambda i: f'"K{i}":{i}') + "}")),
    ("`object.extensionDictionary`", lambda n: drawing_object("AcDbLine", "extensionDictionary", keyed_handles(n))),
    ("`object.items` of a dictionary", lambda n: drawing_object("AcDbDictionary", "items", keyed_handles(n))),
    ("`object.xData`, applications", lambda n: drawing_object(
        "AcDbLine", "xData", "{" + entries(n, lambda i: f'"A{i}":[{{"type":1000,"string":"s"}}]') + "}")),
    ("`object.xData`, one chain", lambda n: drawing_object("AcDbLine", "xData", f'{{"A":{buffers(n)}}}')),
    ("`object.reactors`", lambda n: drawing_object("AcDbLine", "reactors", handles(n))),
    ("`object.vertices`", lambda n: drawing_object("AcDbMline", "vertices", f'[{entries(n, lambda i: f"[{i},0,0]")}]')),
    ("`object.textStrings` of a table", lambda n: drawing_object("AcDbTable", "textStrings", rows(n))),
    ("`object.loops` of a hatch", lambda n: drawing_object(
        "AcDbHatch", "loops", "[" + entries(n, lambda i: f'{{"type":2,"vertices":[[{i},0]]}}') + "]")),
    ("`object.entities` of a block", lambda n: drawing_object("AcDbBlockTableRecord", "entities", handles(n))),
    ("`object` lines", lines(lambda i: drawing_object("AcDbCircle", "isErased", "true", i + 1))),
    ("`added` lines", lines(lambda i: line("added", f'{{"class":"C{i}","handle":"{i + 1:X}","properties":[]}}'))),
    ("`properties`", lambda n: added(entries(n, prop))),
    ("`extra`", lambda n: added("", f',"extra":[{entries(n, prop)}]')),
    ("`collection` elements", elements),
    (f"elements, {DEEP} deep", nested),
    ("children of a `command`", command(child)),
    ("`result` chain", lambda n: line("interaction", f'{{"kind":"string","prompt":"","result":{buffers(n)}}}')),
    ("`keywords`", keywords),
    ("`selection` objects", selection),
    ("`data` of a custom action", data),
    ("`strings`", custom("strings", lambda i: f'"S{i}"')),
    ("`handles`", custom("handles", lambda i: f'"{i + 1:X}"')),
    ("`classes`", custom("classes", lambda i: f'"C{i}"')),
    ("`points`", custom("points", lambda i: f"[{i},0,0]")),
    ("`points2d`", custom("points2d", lambda i: f"[{i},0]")),
    ("`doubles`", custom("doubles", lambda i: f"{i}.5")),
    ("`ints`", custom("ints", str)),
    ("`ids`", custom("ids", lambda i: f'"{i + 1:X}"')),
    ("`ids`, multiples of sizes of hash tables", custom("ids", lambda i: f'"{172_933 * 85_229 * (i + 1):X}"')),
    ("letters of a text", lambda n: value('"' + "a" * 10 * n + '"')),
    ("line feeds of a text", lambda n: value('"' + "\\n" * 10 * n + '"')),
    ("broken JSON behind a list", fault_at_end),
    ("an unknown key behind a list", unknown_at_end),
)


EXPECTED_FAULTS = ("broken", "an unknown")
# No drawing has it, so that a snapshot of it reads the recording and does no more.
NOBODY = "FFFFFFFFFFFFFFF"


def read(program, path):
    """Processor time in seconds, which other work on the machine hardly changes, the largest resident size in bytes, and the first line of what the program said of the recording."""
    process = subprocess.Popen([program, "snapshot", path, "--handle", NOBODY], stdout=subprocess.DEVNULL, stderr=subprocess.PIPE)
    said = process.stderr.read().decode()
    _, status, usage = os.wait4(process.pid, 0)
    process.returncode = os.waitstatus_to_exitcode(status)
    is_read = process.returncode == 1 and NOBODY in said
    if process.returncode != 3 and not is_read:
        sys.exit(f"bench/growth.py: {path}: ended with {process.returncode}: {said}")
    return usage.ru_utime + usage.ru_stime, usage.ru_maxrss * 1024, "" if is_read else said.split("\n")[0]


def measure(program, folder, name, make):
    path = folder / "recording.jsonl"
    seconds = []
    for count in COUNTS:
        # In a process of its own: what this one ever took would count as the program's memory.
        writer = multiprocessing.Process(target=lambda: path.write_text(make(count)))
        writer.start()
        writer.join()
        taken, memory, said = read(program, path)
        if "unknown key" in said:
            return None  # this version has no such data
        if said and not name.startswith(EXPECTED_FAULTS):
            sys.exit(f"bench/growth.py: {name}: {said}")
        seconds.append(taken)
    size = path.stat().st_size
    print(f"{name}: {size / 1e6:.0f} MB, {seconds}, {memory / size:.1f} {said[-100:]}", file=sys.stderr)
    growth = seconds[2] / seconds[1]
    times = " | ".join(f"{one:.3f} s" for one in seconds)
    return f"| {name} | {times} | {growth:.1f} times | {size / 1e6:.0f} MB | {memory / size:.1f} times |"


def main():
    if len(sys.argv) not in (2, 3):
        sys.exit(__doc__)
    program, wanted = sys.argv[1], "".join(sys.argv[2:])
    with tempfile.TemporaryDirectory(prefix="inkmacro-growth-") as name:
        table = [measure(program, pathlib.Path(name), *case) for case in CASES if wanted in case[0]]
        table = [row for row in table if row]
    head = ["| List | " + " | ".join(f"{count:,}" for count in COUNTS) + " | last ten times as many | file | memory |",
            "|---|---|---|---|---|---|---|"]
    text = "\n".join(head + table)
    if wanted:
        print(text)
        return
    page = PAGE.read_text()
    if page.count(BEGIN) != 1 or page.count(END) != 1:
        sys.exit(f"bench/growth.py: the marker comments are missing in {PAGE}")
    before, rest = page.split(BEGIN)
    PAGE.write_text(f"{before}{BEGIN}\n\n{text}\n\n{END}{rest.split(END)[1]}")


main()
