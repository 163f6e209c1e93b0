#!/usr/bin/python3
"""Names macros as only a file system would take it: the sources and the project around a repaired macro have to find its
files, or the program refuses the name. What does not find them without --repair has to be reported, and so has a name
that means something else in the code, with what it means; any other name is none.

    check_names.py PROGRAM SOURCE_DIR csharp|vbnet|cpp|cppcom
"""

import dataclasses
import importlib
import json
import os
import re
import shutil
import sys
import urllib.parse
import xml.etree.ElementTree

import check_vbnet
import harness

OTHER_FILE = "where the project lists the macro, it names another file"
UNFOUND = ("no #include or project finds a file whose name has a quotation mark, a backslash, a control character, a "
           "trigraph or $( in it, or is no UTF-8")
KEYWORD = "the file's name stands in code, where it is a keyword"
TYPE = "the file's name stands in code, where a type or a namespace has it already"
OTHER_NAME = "the file's name stands in code, where a method or a module of the macro has it already"
OTHER_HEADER = "an #include that is meant for a library finds the header named after the file"
# What only names show.
FAULTS = {OTHER_FILE, UNFOUND, KEYWORD, TYPE, OTHER_NAME, OTHER_HEADER}

TITLES = ["plate", "a b-1", "O'Neil & Sons", "100%1", "50%41;x", "a;b@(c)?*", "<x>", "caf\u00e9", "%", "plate.v2", " front"]
# Found by no tool of C++, and those that no project can hold.
UNFOUND_TITLES = ['x"y', "x\\y", "x\ty", "x\ny", "x??=y", "x$(y)"]
UNWRITABLE_TITLES = [os.fsdecode(b"x\xff")]
# Names that mean something else, and what is told of them.
TAKEN = {"csharp": {"class": KEYWORD, "Model": TYPE, "Line": TYPE, "Run": OTHER_NAME},
         "vbnet": {"Class": KEYWORD, "Inkwright": TYPE, "module1": OTHER_NAME},
         "cpp": {"math": OTHER_HEADER}, "cppcom": {"math": OTHER_HEADER}}
# Names that only look so.
FREE = {"csharp": ["line", "Main", "program", "module1"], "vbnet": ["line", "main", "program", "document"],
        "cpp": ["class", "main", "string"], "cppcom": ["line", "class", "main", "string", "Run"]}
RECORDING = '{"recording":{"version":1,"sheet":{"name":"Model","model":true}}}\n'
MSBUILD = "{http://schemas.microsoft.com/developer/msbuild/2003}"


def listed(project):
    """The files that a project lists."""
    try:
        root = xml.etree.ElementTree.parse(project).getroot()
    except xml.etree.ElementTree.ParseError:
        return set()
    if project.suffix == ".vcproj":
        return {file.get("RelativePath").removeprefix(".\\") for file in root.iter("File")}
    items = [item.get("Include") for item in root.iter(f"{MSBUILD}Compile")]
    # A list, a pattern or a property is no name.
    return {urllib.parse.unquote(item.lstrip(" ")) for item in items if not re.search(r"[;*?\\]|[@$%]\(", item)}


def finds_registry_names(macro):
    """Whether registrar scripts hold the macro's name as text, and nothing else of it."""
    text = macro.project(".rgs").read_text(encoding="utf-8")
    escaped = re.findall(r"^ *'((?:[^'%]|''|%%)*)\.DLL'$", text, re.MULTILINE)
    escaped += re.findall(r"'%APPID%' = s '((?:[^'%]|''|%%)*)'$", text, re.MULTILINE)[:1]
    names = [re.sub("''|%%", lambda pair: pair[0][0], name) for name in escaped]
    keys = (macro.folder / "IwAddinConnection.rgs").read_text(encoding="utf-8")
    return names == 2 * [macro.name] and re.search(r"^ *\w+\.IwAddinConnection\.1 = s ", keys, re.MULTILINE) is not None


class Names:
    def __init__(self):
        self.checked, self.target = harness.Checked(), sys.argv[3]
        self.recording = self.checked.folder / "recording.jsonl"
        self.recording.write_text(RECORDING, encoding="utf-8")
        self.extension = {"csharp": ".csproj", "vbnet": ".vbproj"}.get(self.target, ".vcproj")
        self.is_cpp = self.extension == ".vcproj"
        # What the libraries that names may hide are needed for.
        self.drawn = self.checked.source / "examples" / ("edges_trimmed.jsonl" if self.is_cpp else "line.jsonl")
        self.complaints, self.shown = [], set()

    def convert(self, title, *options, recording=None):
        """The program's status and, when it is 0, the macro."""
        recording = recording or self.recording
        folder = self.checked.folder / f"made{len(list(self.checked.folder.iterdir()))}"
        file = folder / f"{title}.{harness.EXTENSIONS[self.target]}"
        result = harness.run(self.checked.program, "convert", recording, "--target", self.target, "--output", file,
                             "--report", "--quiet", "--map", *options)
        if result.returncode != 0:
            left = list(folder.iterdir()) if folder.exists() else []
            if left or result.stderr.count("\n") != 1:
                self.complaints.append(f"{title!r} leaves {left} and {result.stderr!r}")
            return result.returncode, None
        macro = harness.macro_of(recording, json.loads(result.stdout)["conversions"][0])
        # The report shows no bytes.
        return 0, dataclasses.replace(macro, name=title.partition(".")[0], folder=folder, file=file,
                                      map=folder / f"{file.name}.map.json")

    def verdict(self, macro):
        """What a compiler finds wrong with the macro; None where there is none."""
        has_compiler = {"csharp": shutil.which("mcs") and shutil.which("mono"), "vbnet": check_vbnet.is_found()}
        if not has_compiler.get(self.target, True):
            return None
        return importlib.import_module(f"check_{self.target}").Judge(self.checked, [macro])()

    def rejected(self, macro):
        """What it finds wrong with the names of files."""
        if not self.is_cpp:
            return []
        return [one for one in self.verdict(macro) if "No such file" in one.message or "#include" in one.message or
                "missing terminating" in one.message]

    def check_found(self, title):
        _, faithful = self.convert(title)
        reasons = {fault.reason for fault in faithful.faults + faithful.project_faults}
        told, finds = OTHER_FILE in reasons, faithful.file.name in listed(faithful.project(self.extension))
        if told == finds:
            self.complaints.append(f"{title!r} is {'found' if finds else 'not found'} and that is "
                                   f"{'a' if told else 'no'} fault")
        if told:
            self.shown.add(OTHER_FILE)
        _, repaired = self.convert(title, "--repair")
        if not repaired:
            self.complaints.append(f"{title!r} is refused")
            return
        if repaired.file.name not in listed(repaired.project(self.extension)):
            self.complaints.append(f"{title!r} is not found when it is repaired")
        if self.target == "cppcom" and not finds_registry_names(repaired):
            self.complaints.append(f"{title!r} is not what is registered")
        self.complaints += harness.shown(self.rejected(repaired))

    def check_unfound(self, title):
        status, _ = self.convert(title, "--repair")
        if status != 1:
            self.complaints.append(f"{title!r} is not refused")
        _, faithful = self.convert(title)
        if self.is_cpp and not any(fault.reason == UNFOUND and not fault.mended for fault in faithful.faults):
            self.complaints.append(f"{title!r} is no fault")
        elif self.is_cpp and self.rejected(faithful):
            self.shown.add(UNFOUND)

    def check_taken(self, title, reason, plain):
        """`reason` is None for a name that means nothing else; `plain` is what is wrong with the same macro by another
        name."""
        _, macro = self.convert(title, recording=self.drawn)
        told = [fault for fault in macro.faults + macro.project_faults if fault.reason in FAULTS - {OTHER_FILE, UNFOUND}]
        if {fault.reason for fault in told} != {reason} - {None}:
            self.complaints.append(f"of {title!r} is told {told}, not {reason}")
        for fault in told:
            line = (macro.folder / fault.file).read_text(encoding="utf-8-sig").split("\n")[fault.line - 1]
            if title not in line:
                self.complaints.append(f"{title!r} does not stand in {fault.file}:{fault.line}: {line}")
        verdict = self.verdict(macro)
        if verdict is not None and (len(verdict) > len(plain)) != (reason is not None):
            self.complaints += [f"{title!r} is {'not ' if reason else ''}refused", *harness.shown(verdict)]
        if reason:
            _, repaired = self.convert(title, "--repair", recording=self.drawn)
            self.complaints += harness.shown(self.verdict(repaired) or [])
            self.shown.add(reason)

    def run(self):
        for title in TITLES + UNFOUND_TITLES * (not self.is_cpp):
            self.check_found(title)
        for title in UNWRITABLE_TITLES + UNFOUND_TITLES * self.is_cpp:
            self.check_unfound(title)
        taken, free = TAKEN[self.target], FREE[self.target]
        _, plate = self.convert("plate", recording=self.drawn)
        plain = self.verdict(plate)
        for title, reason in [*taken.items(), *((title, None) for title in free)]:
            self.check_taken(title, reason, plain)
        wanted = {OTHER_FILE, *[UNFOUND] * self.is_cpp, *taken.values()}
        self.complaints += [f"nothing shows the fault: {reason}" for reason in wanted - self.shown]
        count = len(TITLES + UNFOUND_TITLES + UNWRITABLE_TITLES) + len(taken) + len(free)
        harness.finish(self.complaints, f"{count} names tried")


if __name__ == "__main__":
    Names().run()
