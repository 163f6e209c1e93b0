"""What the checks of generated macros share: recordings, conversions, and rejections held against the known faults."""

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
STUBS = HERE.parent / "stubs"
EXTENSIONS = {"cpp": "cpp", "cppcom": "cpp", "csharp": "cs", "javascript": "html", "vbnet": "vb", "vba": "bas"}


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
class Macro:
    name: str
    recording: pathlib.Path
    folder: pathlib.Path
    file: pathlib.Path

    def lines(self):
        """What its recording holds, line by line."""
        lines = self.recording.read_text(encoding="utf-8-sig").split("\n")
        return [json.loads(line) for line in lines if line.strip()]

    def project(self, extension):
        return self.folder / f"{self.name}{extension}"


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
        return dict(sorted(found.items()))

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

    def macros(self, target, *options):
        """Converts every recording with those options of the program, each into a folder of its own; to repaired
        macros the hostile ones too."""
        if not self.has(target):
            skip(f"the program has no target {target}")
        repaired = "--repair" in options
        macros = []
        for name, recording in {**self.recordings(repaired), **(self.hostile_recordings() if repaired else {})}.items():
            folder = self.folder / target / name
            folder.mkdir(parents=True)
            file = folder / f"{name}.{EXTENSIONS[target]}"
            result = run(self.program, "convert", recording, "--target", target, "--output", file, *options)
            if result.returncode != 0:
                sys.exit(f"{recording} does not convert to {target}: {result.stderr}")
            macros.append(Macro(name, recording, folder, file))
        if not macros:
            sys.exit("no recording was found")
        return macros


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


class _Fault:
    def __init__(self, entry):
        self.target = entry["target"]
        self.statement = entry["statement"]
        self.reason = entry["reason"]
        self.stage = entry.get("stage", "run")
        self.line = re.compile(entry["line"])
        self.message = re.compile(entry.get("message", ""))
        self.instead = entry["instead"]
        self.sometimes = entry.get("sometimes", False)
        self.met = 0

    def matches(self, text, message):
        return self.line.search(text) and self.message.search(message)

    def repaired(self, text, message):
        named = self.message.search(message)
        instead = self.instead.replace("{name}", named[1]) if self.message.groups else self.instead
        return self.line.sub(instead, text)


class KnownFaults:
    """The rejections of a target that its statements are known to give. known_faults.json is exact: a rejection that is
    not listed is a complaint, and so is a listed line that passes."""

    def __init__(self, target, stages=("parse", "run")):
        entries = [_Fault(entry) for entry in json.loads((HERE / "known_faults.json").read_text(encoding="utf-8"))]
        self._entries = [entry for entry in entries if entry.target == target and entry.stage in stages]
        self.complaints = []
        self.repaired = 0

    def settle(self, files, judge):
        """Calls `judge` for rejections and replaces the rejected lines that are known, until nothing is rejected."""
        texts = {file: file.read_text(encoding="utf-8").split("\n") for file in files}
        done = set()
        while rejections := judge():
            before = len(done)
            strange = [r for r in rejections if not self._repair(texts, r, done)]
            if len(done) == before:
                self.complaints += [f"{r.file.name}:{r.line}: {r.message}\n    {self._text(texts, r)}"
                                    for r in strange]
                break
            for file in {r.file for r in rejections if r.file in texts}:
                file.write_text("\n".join(texts[file]), encoding="utf-8")
        self._find_passed(texts)

    @staticmethod
    def _text(texts, rejection):
        lines = texts.get(rejection.file, [])
        return lines[rejection.line - 1] if 0 < rejection.line <= len(lines) else ""

    def _repair(self, texts, rejection, done):
        text = self._text(texts, rejection)
        for entry in self._entries:
            place = (rejection.file, rejection.line, entry)
            if text and place not in done and entry.matches(text, rejection.message):
                texts[rejection.file][rejection.line - 1] = entry.repaired(text, rejection.message)
                entry.met += 1
                self.repaired += 1
                done.add(place)
                return True
        return False

    def _find_passed(self, texts):
        for entry in self._entries:
            if entry.sometimes:
                continue
            self.complaints += [f"{file.name}:{number}: the known fault of {entry.statement} passes\n    {text}"
                                for file, lines in texts.items() for number, text in enumerate(lines, 1)
                                if entry.line.search(text)]

    def close(self):
        """All complaints, once every file was settled."""
        return self.complaints + [f"the known fault of {entry.statement} ({entry.reason}) was met in no macro"
                                  for entry in self._entries if not entry.met]

    def report(self, checked):
        """Ends a test of one target."""
        finish(self.close(), f"{checked}; {self.repaired} lines with a known fault")


def finish(complaints, summary):
    print("\n".join(complaints) if complaints else summary)
    sys.exit(1 if complaints else 0)
