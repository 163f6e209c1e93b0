"""Drawings in, beside what other programs need to read the same files."""

import os
import random
import shutil
import subprocess
import time

RUNS = 5

# What each reads, and throws away.
READERS = {
    "dxflib": ("-ldxflib", """
#include <dxflib/dl_creationadapter.h>
#include <dxflib/dl_dxf.h>
int main(int, char** arguments)
{
    DL_CreationAdapter nobody;
    DL_Dxf reader;
    return reader.in(arguments[1], &nobody) ? 0 : 1;
}
"""),
    "libdime": ("-ldime", """
#include <dime/Input.h>
#include <dime/Model.h>
int main(int, char** arguments)
{
    dimeInput input;
    dimeModel model;
    return input.setFile(arguments[1]) && model.read(&input) ? 0 : 1;
}
"""),
}
TO_CODE = """
import sys
import ezdxf
from ezdxf.addons.dxf2code import entities_to_code
drawing = ezdxf.readfile(sys.argv[1])
open(sys.argv[2], "w").write(entities_to_code(drawing.modelspace()).code_str())
"""


def groups(*pairs):
    return "".join(f"{code:3}\n{value}\n" for code, value in zip(pairs[::2], pairs[1::2]))


class Drawing:
    """Entities of a file of R2000."""

    def __init__(self, seed):
        self.random = random.Random(seed)
        self.handle = 0x100
        self.text = []

    def number(self):
        return f"{self.random.uniform(0, 1000):.6f}"

    def point(self, code):
        return code, self.number(), code + 10, self.number(), code + 20, self.number()

    def add(self, kind, *pairs, layer="0"):
        self.handle += 1
        self.text.append(groups(0, kind, 5, f"{self.handle:X}", 100, "AcDbEntity", 8, layer, *pairs))

    def line(self):
        self.add("LINE", 100, "AcDbLine", *self.point(10), *self.point(11), layer=f"L{self.handle % 20}")

    def circle(self):
        self.add("CIRCLE", 100, "AcDbCircle", *self.point(10), 40, self.number())

    def arc(self):
        self.add("ARC", 100, "AcDbCircle", *self.point(10), 40, self.number(), 100, "AcDbArc", 50, 10, 51, 200)

    def words(self):
        self.add("TEXT", 100, "AcDbText", *self.point(10), 40, "2.5", 1, f"text {self.handle}", 100, "AcDbText")

    def polyline(self):
        self.add("LWPOLYLINE", 100, "AcDbPolyline", 90, 5, 70, 0,
                 *(value for _ in range(5) for value in self.point(10)[:4]))

    def insert(self):
        self.add("INSERT", 100, "AcDbBlockReference", 66, 1, 2, "B", *self.point(10))
        self.add("ATTRIB", 100, "AcDbText", *self.point(10), 40, "2.5", 1, f"value {self.handle}",
                 100, "AcDbAttribute", 2, "A", 70, 0)
        self.add("SEQEND")

    def write(self, path):
        block = groups(0, "BLOCK", 5, "20", 100, "AcDbEntity", 8, "0", 100, "AcDbBlockBegin", 2, "B", 70, 2,
                       10, 0, 20, 0, 30, 0, 3, "B", 1, "")
        definition = groups(0, "ATTDEF", 5, "21", 100, "AcDbEntity", 8, "0", 100, "AcDbText", 10, 0, 20, 0, 30, 0,
                            40, 1, 1, "", 100, "AcDbAttributeDefinition", 3, "", 2, "A", 70, 0)
        end = groups(0, "ENDBLK", 5, "22", 100, "AcDbEntity", 8, "0", 100, "AcDbBlockEnd")
        path.write_text(groups(0, "SECTION", 2, "HEADER", 9, "$ACADVER", 1, "AC1015", 0, "ENDSEC",
                               0, "SECTION", 2, "BLOCKS") + block + definition + end +
                        groups(0, "ENDSEC", 0, "SECTION", 2, "ENTITIES") + "".join(self.text) +
                        groups(0, "ENDSEC", 0, "EOF"))


def make(seed, draw, path):
    """In a process of its own: what it has held would count as held by the programs that are started later."""
    child = os.fork()
    if child == 0:
        drawing = Drawing(seed)
        draw(drawing)
        drawing.write(path)
        os._exit(0)
    if os.waitpid(child, 0)[1] != 0:
        raise RuntimeError(f"{path} cannot be made")


CASES = (
    ("100,000 lines", lambda drawing: [drawing.line() for _ in range(100_000)]),
    ("100,000 mixed entities", lambda drawing: [draw() for _ in range(20_000) for draw in (
        drawing.line, drawing.circle, drawing.arc, drawing.words, drawing.polyline)]),
    ("20,000 inserts with attributes", lambda drawing: [drawing.insert() for _ in range(20_000)]),
)


def measured(*command):
    """The wall time in seconds, and the largest resident size in bytes."""
    begin = time.perf_counter()
    process = subprocess.Popen([str(word) for word in command], stdout=subprocess.DEVNULL, stderr=subprocess.DEVNULL)
    _, status, usage = os.wait4(process.pid, 0)
    process.returncode = os.waitstatus_to_exitcode(status)
    if process.returncode != 0:
        raise RuntimeError(f"{command[0]} ended with {process.returncode}")
    return time.perf_counter() - begin, usage.ru_maxrss * 1024


def built_readers(folder):
    for name, (library, source) in READERS.items():
        program = folder / name
        (folder / f"{name}.cpp").write_text(source)
        command = ["c++", "-O2", "-w", folder / f"{name}.cpp", "-o", program, library]
        if subprocess.run(command, stderr=subprocess.DEVNULL).returncode == 0:
            yield name, (program,)


def other_programs(folder):
    yield from built_readers(folder)
    if shutil.which("ogrinfo"):
        yield "ogrinfo", ("ogrinfo", "-ro", "-al", "-so")


def columns():
    return "Figure", "Aim", *(name for name, _ in CASES), "Met"


def rows(program, folder, verdict):
    """The rows of a table of those columns. What is not installed is not measured."""
    files, recordings, codes = [], [], []
    for number, (_, draw) in enumerate(CASES):
        files.append(folder / f"drawing{number}.dxf")
        make(number, draw, files[-1])
        recordings.append(folder / f"drawing{number}.jsonl")
        codes.append(f"{folder / 'macros' / str(number)}/")
    commands = {"import": lambda at: (program, "import", "-q", files[at], "-o", recordings[at]),
                "convert": lambda at: (program, "convert", "-q", "-f", files[at], "-t", "csharp", "-o", codes[at])}
    for name, words in other_programs(folder):
        commands[name] = lambda at, words=words: (*words, files[at])
    if subprocess.run(["/usr/bin/python3", "-c", "import ezdxf"], stderr=subprocess.DEVNULL).returncode == 0:
        commands["dxf2code"] = lambda at: ("/usr/bin/python3", "-c", TO_CODE, files[at], folder / "code.py")
    times = {name: [[] for _ in CASES] for name in commands}
    memories = {name: [0 for _ in CASES] for name in commands}
    for _ in range(RUNS):
        for at in range(len(CASES)):
            # One behind the other, so that a machine which slows down does so for all.
            for name, command in commands.items():
                if name == "dxf2code" and times[name][at]:
                    continue # it takes its time
                seconds, memory = measured(*command(at))
                times[name][at].append(seconds)
                memories[name][at] = max(memories[name][at], memory)
    least = {name: [min(one) for one in each] for name, each in times.items()}

    def row(figure, aim, numbers, holds=None, form="{:.2f} times"):
        met = verdict(all(holds(number) for number in numbers)) if holds else ""
        return figure, aim, *(form.format(number) for number in numbers), met

    for name in ("dxflib", "libdime", "ogrinfo"):
        if name in least:
            yield row(f"`import` with writing the recording, time against reading by {name}",
                      "at most 1 time" if name == "dxflib" else "",
                      [own / other for own, other in zip(least["import"], least[name])],
                      (lambda ratio: ratio <= 1) if name == "dxflib" else None)
    if "dxf2code" in least:
        yield row("`convert` to C#, against ezdxf's dxf2code", "5 times as fast",
                  [other / own for own, other in zip(least["convert"], least["dxf2code"])], lambda ratio: ratio >= 5)
    bound = 40 * 2**20
    for name in ("import", "convert"):
        yield row(f"`{name}`, peak memory above 40 MB, against the file's size", "at most 3 times",
                  [max(0, memory - bound) / file.stat().st_size for memory, file in zip(memories[name], files)],
                  lambda ratio: ratio <= 3)
    yield row("`import`, time", "", least["import"], form="{:.2f} s")
