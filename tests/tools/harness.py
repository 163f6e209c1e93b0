"""What the checks of generated macros share: recordings, conversions, and rejections held against the faults that the
program reports."""

import dataclasses
import json
import pathlib
import re
import shutil
import subprocess
import sys
import tempfile

import hostile

SKIPPED = 77
HERE = pathlib.Path(__file__).resolve().parent
SOURCE = HERE.parent.parent
STUBS = HERE.parent / "stubs"
EXTENSIONS = {"cpp": "cpp", "cppcom": "cpp", "csharp": "cs", "javascript": "html", "vbnet": "vb", "vba": "bas",
              "python": "py"}


def skip(reason):
    print(f"skipped: {reason}")
    sys.exit(SKIPPED)


def need(*names):
    """The paths of tools; without one of them the test is skipped."""
    found = [shutil.which(name) for name in names]
    missing = [name for name, path in zip(names, found) if not path]
    if missing:
        skip(f"{' and '.join(missing)} not installed")
    return found


def run(*command, **options):
    return subprocess.run([str(part) for part in command], stdout=subprocess.PIPE, stderr=subprocess.PIPE, text=True,
                          encoding="utf-8", errors="replace", **options)


@dataclasses.dataclass(frozen=True)
class Fault:
    """As the program reports it."""
    file: str
    line: int
    operation: str
    reason: str
    mended: bool


@dataclasses.dataclass(frozen=True)
class Macro:
    name: str
    recording: pathlib.Path
    folder: pathlib.Path
    file: pathlib.Path
    faults: tuple = ()
    project_faults: tuple = ()  # those in other files than the macro
    map: pathlib.Path = None
    losses: list = dataclasses.field(default=None, compare=False)
    assumed: list = dataclasses.field(default=None, compare=False)
    written: pathlib.Path = None  # the macro that the map is of, when it is another

    def lines(self):
        """What its recording holds, line by line."""
        lines = self.recording.read_text(encoding="utf-8-sig").split("\n")
        return [json.loads(line) for line in lines if line.strip()]

    def project(self, extension):
        return self.folder / f"{self.name}{extension}"


def macro_of(recording, conversion):
    """What the report tells of one conversion."""
    file = pathlib.Path(conversion["macro"])
    faults = [Fault(fault["file"], line, *(fault[key] for key in ("operation", "reason", "mended")))
              for fault in conversion["faults"] for line in fault["lines"]]
    return Macro(file.name.partition(".")[0], recording, file.parent, file,
                 tuple(fault for fault in faults if fault.file == file.name),
                 tuple(fault for fault in faults if fault.file != file.name), pathlib.Path(conversion["map"]),
                 conversion["losses"], conversion["assumed"])


class Checked:
    """The program under test, its recordings, and a folder that lasts as long as the check."""

    def __init__(self):
        self.program, self.source = pathlib.Path(sys.argv[1]), pathlib.Path(sys.argv[2])
        self._temporary = tempfile.TemporaryDirectory(prefix="inkmacro-tools-", ignore_cleanup_errors=True)
        self.folder = pathlib.Path(self._temporary.name)

    def recordings(self, repaired=False):
        """Scenarios, examples, and the recordings that exist for these checks alone, by the name of their macro. Some
        are for repaired macros alone: no tool goes on behind the faults of others."""
        found = {file.parent.name: file for file in self.source.glob("tests/scenarios/*/recording.jsonl")}
        patterns = ["examples/*.jsonl", "tests/tools/recordings/*.jsonl"]
        for pattern in patterns + ["tests/tools/recordings/faulty/*.jsonl"] * repaired:
            for file in self.source.glob(pattern):
                if file.stem in found:
                    sys.exit(f"{file} and {found[file.stem]} would give macros of one name")
                found[file.stem] = file
        for file in self.source.glob("tests/tools/recordings/languages/*.jsonl"):
            found |= {one.stem: one for one in self._in_all_languages(file)}
        return dict(sorted(found.items()))

    def _in_all_languages(self, recording):
        """Copies of a recording whose headers say that the host recorded in each of the languages that it can."""
        folder = self.folder / "languages"
        folder.mkdir(exist_ok=True)
        header, *lines = recording.read_text(encoding="utf-8").split("\n")
        for code in range(6):
            file = folder / f"{recording.stem}_{code}.jsonl"
            header = json.dumps({"recording": json.loads(header)["recording"] | {"language": code}})
            file.write_text("\n".join([header, *lines]), encoding="utf-8")
            yield file

    def has(self, target):
        listed = run(self.program, "--help").stdout
        return re.search(rf"^ *{target} \(code \d\)$", listed, re.MULTILINE) is not None

    def hostile_recordings(self):
        """Every recording with texts that try to become code, under a name that is no identifier."""
        folder = self.folder / "hostile"
        folder.mkdir(exist_ok=True)
        found = {}
        for number, (name, recording) in enumerate(self.recordings().items()):
            title = hostile.NAMES[number] if number < len(hostile.NAMES) else f"{number} {name}-x"
            found[title] = folder / f"{title}.jsonl"
            text = hostile.Hostile(number).recording(recording.read_text(encoding="utf-8-sig"))
            found[title].write_text(text, encoding="utf-8")
        return found

    def convert(self, target, recordings, folder, *options):
        """The macros of recordings in one call of the program with those options, named as their files are."""
        if not self.has(target):
            skip(f"the program has no target {target}")
        if not recordings:
            return []
        # Several calls may share the folder: it is the macros that count.
        result = run(self.program, "convert", *recordings, "--target", target, "--output", f"{folder}/", "--force",
                     "--report", "--quiet", "--map", *options)
        if result.returncode != 0:
            sys.exit(f"the recordings do not convert to {target}: {result.stderr}")
        macros = []
        for recording, conversion in zip(recordings, json.loads(result.stdout)["conversions"], strict=True):
            macro = macro_of(recording, conversion)
            if "--repair" in options and any(fault.mended for fault in macro.faults + macro.project_faults):
                sys.exit(f"{recording} has a fault when it is repaired: {macro}")
            macros.append(macro)
        return macros

    def named_recordings(self, repaired=False):
        """Files that are named like the macros are to be."""
        folder = self.folder / "recordings"
        folder.mkdir(exist_ok=True)
        return [pathlib.Path(shutil.copy(recording, folder / f"{name}.jsonl"))
                for name, recording in self.recordings(repaired).items()]

    def macros(self, target, *options):
        """Those of every recording; to repaired macros the hostile ones too."""
        repaired = "--repair" in options
        recordings = self.named_recordings(repaired) + list(self.hostile_recordings().values() if repaired else [])
        return self.convert(target, recordings, self.folder / target, *options)


@dataclasses.dataclass(frozen=True)
class Rejection:
    file: pathlib.Path
    line: int
    message: str


def shown(rejections):
    """Complaints of what a tool refused, each with its line; line 0 is none."""
    complaints = []
    for rejection in rejections:
        lines = rejection.file.read_text(encoding="utf-8").split("\n") if rejection.line else []
        text = lines[rejection.line - 1] if 0 < rejection.line <= len(lines) else ""
        complaints.append(f"{rejection.file.name}:{rejection.line}: {rejection.message}\n    {text}")
    return complaints


class Verdict:
    """Holds what the tools of a language reject against the faults that the program reports. A rejection that no
    reported fault explains is a complaint; a macro with one that is explained is left out of what follows."""

    # A fault is reported for the line where its statement begins.
    LONGEST_STATEMENT = 40

    def __init__(self):
        self.complaints = []
        self.rejected = []
        self.unexplained = []

    def settle(self, macros, judge):
        """Calls `judge` for rejections and takes rejected macros out of `macros`, until nothing is rejected."""
        while macros and (rejections := judge()):
            unexplained = [one for one in rejections if not any(self._explains(macro, one) for macro in macros)]
            self.unexplained += unexplained
            self.complaints += [f"{one.file.name}:{one.line}: {one.message}\n    {self._text(one)}"
                                for one in unexplained]
            rejected = [macro for macro in macros if any(one.file.parent == macro.folder for one in rejections)]
            if not rejected:
                break
            self.rejected += rejected
            macros[:] = [macro for macro in macros if macro not in rejected]

    def _explains(self, macro, rejection):
        """What is wrong with the files of a project is reported for the macro, and what the head of a macro lacks shows
        anywhere."""
        if rejection.file != macro.file or rejection.line == 0:
            return rejection.file.parent == macro.folder and bool(macro.faults + macro.project_faults)
        return any(0 <= rejection.line - fault.line <= self.LONGEST_STATEMENT or fault.operation == "EmitFileHeader"
                   for fault in macro.faults)

    @staticmethod
    def _text(rejection):
        if not rejection.file.is_file():
            return ""
        lines = rejection.file.read_text(encoding="utf-8", errors="replace").split("\n")
        return lines[rejection.line - 1] if 0 < rejection.line <= len(lines) else ""

    def report(self, checked):
        """Ends a test of one target."""
        finish(self.complaints, f"{checked}; {len(self.rejected)} macros are rejected for faults that are reported")


def check(target, judge_of, done):
    """A test that holds what the tools of a target reject against the reports, or as `repaired` against nothing."""
    checked = Checked()
    macros = checked.macros(target, *["--repair"] * (sys.argv[3:] == ["repaired"]))
    count = len(macros)
    verdict = Verdict()
    verdict.settle(macros, judge_of(checked, macros))
    verdict.report(f"{count} {done}")


def finish(complaints, summary):
    print("\n".join(complaints) if complaints else summary)
    sys.exit(1 if complaints else 0)
