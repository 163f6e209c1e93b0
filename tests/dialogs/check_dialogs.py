#!/usr/bin/python3
"""Holds whole conversations with the program against what a person would see of them at a terminal.

    check_dialogs.py PROGRAM SOURCE_DIR dialogs|terminal|readme

A conversation, in which FOLDER is where it takes place, is a text of shell commands behind "$ " and what they print.
Where the program asks, the line holds the prompt and, behind it, the answer that it is given; "<Esc>" is a cancel.
"[1]" is the status of a command that failed.
"""

import difflib
import json
import os
import pathlib
import pty
import re
import select
import shutil
import signal
import subprocess
import sys
import tempfile
import termios
import time


def commands(text):
    """Each shell command of a conversation with the lines that belong to it."""
    for piece in re.split(r"^\$ ", text, flags=re.MULTILINE)[1:]:
        command, *lines = piece.rstrip("\n").split("\n")
        yield command, lines


def enter(process, answer):
    try:
        process.stdin.write(answer + "\n")
        process.stdin.flush()
    except BrokenPipeError:
        pass  # the command gets its input from elsewhere, or it has ended and its output shows that


def converse(command, lines, folder, environment):
    """Runs the command with the answers that stand in the lines; gives what comes, in the form of these lines."""
    process = subprocess.Popen(["/bin/sh", "-c", command], cwd=folder, env=environment, stdin=subprocess.PIPE,
                               stdout=subprocess.PIPE, stderr=subprocess.STDOUT, text=True, encoding="utf-8")
    came = []
    for line in process.stdout:
        line = line.rstrip("\n")
        expected = lines[len(came)] if len(came) < len(lines) else ""
        if line.endswith(": ") and expected.startswith(line.rstrip()):
            answer = expected[len(line):].strip()
            enter(process, "\x1b" if answer == "<Esc>" else answer)
            line += answer
        elif line.endswith(": "):
            process.stdin.close()
        came.append(line.rstrip())
    if status := process.wait():
        came.append(f"[{status}]")
    return came


def surroundings(program):
    return {**os.environ, "PATH": f"{program.parent}:{os.environ['PATH']}", "LC_ALL": "C.UTF-8"}


def check_conversation(name, text, program, source):
    environment = surroundings(program)
    with tempfile.TemporaryDirectory(prefix="inkmacro-dialogs-") as folder:
        shutil.copytree(source / "examples", pathlib.Path(folder, "examples"))
        for command, lines in commands(text):
            came = [line.replace(folder, "FOLDER") for line in converse(command, lines, folder, environment)]
            lines = [line.rstrip() for line in lines]
            if came != lines:
                print(f"{name}: $ {command}")
                print("\n".join(difflib.unified_diff(lines, came, "expected", "came", lineterm="")))
                return False
    return True


def check_dialogs(program, source):
    return all([check_conversation(file.name, file.read_text(encoding="utf-8"), program, source)
                for file in sorted(source.glob("tests/dialogs/*.txt"))])


def check_first_example(readme, program, source):
    """The recording at the top of the page is the example that its text names, and gives the statements below it."""
    recording, statements = (re.search(rf"^```{language}\n(.*?)^```$", readme, flags=re.MULTILINE | re.DOTALL)[1]
                             for language in ("json", "csharp"))
    command, example = re.search(r"^`(inkmacro convert (\S+) .*?)`", readme, flags=re.MULTILINE).groups()
    assert recording == source.joinpath(example).read_text(encoding="utf-8"), f"README.md shows another {example}"
    with tempfile.TemporaryDirectory(prefix="inkmacro-dialogs-") as folder:
        shutil.copytree(source / "examples", pathlib.Path(folder, "examples"))
        made = subprocess.run(command, shell=True, cwd=folder, env=surroundings(program), check=True,
                              stdout=subprocess.PIPE, encoding="utf-8").stdout
        macro = pathlib.Path(folder, made.split("\n")[0]).read_text(encoding="utf-8-sig")
    assert statements in macro, f"README.md shows what is not in {macro}"


def check_readme(program, source):
    """Each transcript of the page can be repeated where the examples are, and the examples' own page has them all."""
    readme = source.joinpath("README.md").read_text(encoding="utf-8")
    check_first_example(readme, program, source)
    listed = re.findall(r"^\| ([a-z_]+) \|", source.joinpath("examples/README.md").read_text(encoding="utf-8"),
                        flags=re.MULTILINE)
    assert listed == sorted(file.stem for file in source.glob("examples/*.jsonl")), f"examples/README.md lists {listed}"
    transcripts = re.findall(r"^```\n(\$ .*?)^```$", readme, flags=re.MULTILINE | re.DOTALL)
    assert len(transcripts) > 4, transcripts
    return all([check_conversation("README.md", text, program, source) for text in transcripts])


class Terminal:
    """The program at a terminal of its own."""

    def __init__(self, arguments, folder, locale="C.UTF-8"):
        self.pid, self.descriptor = pty.fork()
        if self.pid == 0:
            os.chdir(folder)
            os.environ.update(TERM="xterm", LC_ALL=locale, HOME=folder)
            os.execv(arguments[0], arguments)
        self.screen = ""
        self.all = ""

    def read(self):
        """What comes next; empty at the end of the program."""
        ready, _, _ = select.select([self.descriptor], [], [], 60)
        if not ready:
            os.kill(self.pid, signal.SIGKILL)
            raise AssertionError(f"nothing comes behind {self.screen!r}")
        try:
            got = os.read(self.descriptor, 4096).decode(errors="replace")
        except OSError:
            return ""
        self.all += got
        return got

    def until(self, text):
        """Reads what comes up to the text, which must come."""
        while text not in self.screen:
            got = self.read()
            assert got, f"{text!r} does not come, but {self.screen!r}"
            self.screen += got
        self.screen = self.screen.partition(text)[2]

    def enter(self, keys):
        os.write(self.descriptor, keys.encode())

    def status(self):
        """The end of the program, after everything that it prints."""
        while got := self.read():
            self.screen += got
        return os.waitstatus_to_exitcode(os.waitpid(self.pid, 0)[1])


def end_by(pid, number):
    """The exit status of a process that gets the signal. Between two answers nobody minds a SIGINT, so it is sent again."""
    while True:
        os.kill(pid, number)
        for _ in range(100):
            found, status = os.waitpid(pid, os.WNOHANG)
            if found:
                return os.waitstatus_to_exitcode(status)
            time.sleep(0.01)


def check_signals(start):
    """A shell that comes next finds the terminal as it was."""
    for number in (signal.SIGTERM, signal.SIGHUP, signal.SIGINT):
        # Somebody has to have it open when the program has gone.
        terminal = start()
        kept = os.open(f"/proc/{terminal.pid}/fd/0", os.O_RDWR | os.O_NOCTTY)
        assert not termios.tcgetattr(kept)[3] & (termios.ICANON | termios.ECHO), "the editor has not begun"
        ended = end_by(terminal.pid, number)
        assert ended == (1 if number == signal.SIGINT else 128 + number), ended
        wanted = termios.ICANON | termios.ECHO | termios.ISIG
        assert termios.tcgetattr(kept)[3] & wanted == wanted, f"raw behind {number}"
        os.close(kept)
        os.close(terminal.descriptor)


def check_letters(program, folder):
    """Answers with all kinds of letters, typed and completed, in an environment that names no encoding too."""
    recording = pathlib.Path(folder, "b.jsonl")
    addresses = ["\U0001F600plan.dwg", "\U0001F601other.dwg", "Ünder.dwg", "x\u202egwd.exe"]
    recording.write_text("".join(
        json.dumps({"object": {"class": "AcDbLine", "handle": f"{0x2A + i:X}",
                               "xData": {"PE_URL": [{"type": 1000, "string": address}]}}}) + "\n"
        for i, address in enumerate(addresses)), encoding="utf-8")
    before = recording.read_text(encoding="utf-8")
    for locale in ("C.UTF-8", "C"):
        for keys, left in (("\U0001F600\t\r", addresses[1:]),         # completed
                           ("\U0001F600pl\x02\x02\x06\x06\t\r", addresses[1:]),
                           ("Ün\t\r", [a for a in addresses if a[0] != "Ü"]),
                           ("ÜNDER.dwg\x01\x0bÜnder.dwg\r", [a for a in addresses if a[0] != "Ü"]),
                           ("x\t\x7f\U0001F600plan.dwg\r", addresses[1:])):  # not completed, for it would be shown
            recording.write_text(before, encoding="utf-8")
            terminal = Terminal([str(program), "run", str(recording), "--command", "-HYPERLINK"], folder, locale)
            terminal.until("<Insert>: ")
            terminal.enter("R\r")
            terminal.until("Specify entities: ")
            terminal.enter("all\r")
            terminal.until("for all: ")
            terminal.enter(keys)
            terminal.until("1 hyperlink deleted.")
            assert terminal.status() == 0, (locale, keys)
            assert "\u202e" not in terminal.all, (locale, keys)
            found = re.findall(r'"string":"(.*?)"', recording.read_text(encoding="utf-8"))
            assert found == left, (locale, keys, found)


def check_names(program, source, folder):
    """Names of line styles and of files are completed."""
    styles = pathlib.Path(folder, "styles of lines")
    styles.mkdir()
    shutil.copy(source / "examples/line_styles/iso.lin", styles / "iso.lin")
    (styles / "isometric.txt").touch()
    (styles / ".hidden.lin").touch()
    recording = pathlib.Path(folder, "c.jsonl")
    recording.write_text('{"drawing":{"lineStyleFolders":["styles of lines"]}}\n', encoding="utf-8")
    terminal = Terminal([str(program), "run", str(recording), "--command", "-LINESTYLE"], folder)

    def answer(prompt, keys):
        terminal.until(prompt)
        terminal.enter(keys)

    answer("Create/Load/Set]: ", "L\t\r")
    answer("Specify LineStyle: ", "iso_dashed_\t\r")
    answer("for none]: ", "sty\t\t\r")
    answer("Create/Load/Set]: ", "S\r")
    answer("Specify LineStyle: ", "iso\t\r")
    terminal.until("Active LineStyle: ISO_DASHED_SPACED")
    answer("Create/Load/Set]: ", "\r")
    assert terminal.status() == 0, terminal.all
    assert '"name":"ISO_DASHED_SPACED"' in recording.read_text(encoding="utf-8")


def check_terminal(program, source):
    with tempfile.TemporaryDirectory(prefix="inkmacro-dialogs-") as folder:
        recording = pathlib.Path(folder, "a.jsonl")
        before = '{"recording":{"version":1}}\n{"object":{"class":"AcDbLine","handle":"2A"}}\n'
        recording.write_text(before, encoding="utf-8")

        def start():
            terminal = Terminal([str(program), "run", str(recording), "--command", "-HYPERLINK"], folder)
            terminal.until("<Insert>: ")
            return terminal

        def cancelled(keys):
            terminal = start()
            terminal.enter(keys)
            assert terminal.status() == 1, terminal.screen
            assert "was cancelled; nothing is written" in terminal.screen, terminal.screen
            assert recording.read_text(encoding="utf-8") == before

        cancelled("\x03")      # Ctrl+C
        cancelled("I\x1b\r")   # Esc, Enter
        cancelled("\x04")      # Ctrl+D

        terminal = start()
        terminal.enter("ins\t\r")
        terminal.until("<Entity>: ")
        terminal.enter("e\t\t\r")
        terminal.until("Specify entities: ")
        terminal.enter("2B\r")
        terminal.until("Specify entities: ")
        # One answer up, its last letter removed.
        terminal.enter("\x1b[A\x7fA\r")
        terminal.until("address: ")
        # To the front of the line and back to its end.
        terminal.enter("an.dwg\x01pl\x05!\r")
        terminal.until("drawing: ")
        terminal.enter("\r")
        terminal.until("text: ")
        terminal.enter("é\r")
        assert terminal.status() == 0, terminal.screen
        after = recording.read_text(encoding="utf-8")
        assert '"string":"plan.dwg!"' in after and '"string":"é"' in after, after
        check_signals(start)
        check_letters(program, folder)
        check_names(program, source, folder)
    return True


def main():
    program, source = pathlib.Path(sys.argv[1]).resolve(), pathlib.Path(sys.argv[2])
    check = {"dialogs": check_dialogs, "terminal": check_terminal, "readme": check_readme}[sys.argv[3]]
    return 0 if check(program, source) else 1


if __name__ == "__main__":
    sys.exit(main())
