#!/usr/bin/python3
"""Names macros as only a file system would take it: the sources and the project around a repaired macro have to find its
files, or the program refuses the name. What does not find them without --repair has to be reported.

    check_names.py PROGRAM SOURCE_DIR csharp|vbnet|cpp|cppcom
"""

import dataclasses
import importlib
import json
import os
import re
import sys
import urllib.parse
import xml.etree.ElementTree

import harness

OTHER_FILE = "where the project lists the macro, it names another file"
UNFOUND = ("no #include or project finds a file whose name has a quotation mark, a backslash, a control character, a "
           "trigraph or $( in it, or is no UTF-8")
# What only names show.
FAULTS = {OTHER_FILE, UNFOUND}

TITLES = ["plate", "a b-1", "O'Neil & Sons", "100%1", "50%41;x", "a;b@(c)?*", "<x>", "caf\u00e9", "%", "plate.v2", " front"]
# Found by no tool of C++, and those that no project can hold.
UNFOUND_TITLES = ['x"y', "x\\y", "x\ty", "x\ny", "x??=y", "x$(y)"]
UNWRITABLE_TITLES = [os.fsdecode(b"x\xff")]
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
        self.complaints, self.shown = [], set()

    def convert(self, title, *options):
        """The program's status and, when it is 0, the macro."""
        folder = self.checked.folder / f"made{len(list(self.checked.folder.iterdir()))}"
        file = folder / f"{title}.{harness.EXTENSIONS[self.target]}"
        result = harness.run(self.checked.program, "convert", self.recording, "--target", self.target, "--output", file,
                             "--report", "--quiet", *options)
        if result.returncode != 0:
            left = list(folder.iterdir()) if folder.exists() else []
            if left or result.stderr.count("\n") != 1:
                self.complaints.append(f"{title!r} leaves {left} and {result.stderr!r}")
            return result.returncode, None
        macro = harness.macro_of(self.recording, json.loads(result.stdout)["conversions"][0])
        # The report shows no bytes.
        return 0, dataclasses.replace(macro, name=title.partition(".")[0], folder=folder, file=file)

    def rejected(self, macro):
        """What a compiler finds wrong with the macro's names."""
        if not self.is_cpp:
            return []
        verdict = importlib.import_module(f"check_{self.target}").Judge(self.checked, [macro])()
        return [one for one in verdict if "No such file" in one.message or "#include" in one.message or
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

    def run(self):
        for title in TITLES + UNFOUND_TITLES * (not self.is_cpp):
            self.check_found(title)
        for title in UNWRITABLE_TITLES + UNFOUND_TITLES * self.is_cpp:
            self.check_unfound(title)
        wanted = FAULTS if self.is_cpp else {OTHER_FILE}
        self.complaints += [f"nothing shows the fault: {reason}" for reason in wanted - self.shown]
        harness.finish(self.complaints, f"{len(TITLES + UNFOUND_TITLES + UNWRITABLE_TITLES)} names tried")


if __name__ == "__main__":
    Names().run()
