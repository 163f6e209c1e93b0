#!/usr/bin/python3
"""Installs the completions, types at the shells that there are and lets them complete command lines of the program.

    check_completion.py PROGRAM CMAKE BUILD_DIR

A shell that is missing is skipped; without any the status is 77.
"""

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

# What is typed in front of Tab, and the last word that comes of it.
CASES = (("conv", "convert"), ("check wal", "walls.jsonl"), ("inspect --js", "--json"), ("--ver", "--version"),
         ("convert walls.jsonl --outp", "--output"), ("convert --target java", "javascript"),
         ("convert --target=java", "--target=javascript"), ("convert -t java", "javascript"),
         ("convert -t vba,cpp,javas", "vba,cpp,javascript"), ("convert -t vba -o wal", "walls.jsonl"),
         ("convert --report=te", "--report=text"), ("convert --report te", "text"),
         ("convert --report wal", "walls.jsonl"), ("convert --report --outp", "--output"),
         ("convert --line-styles st", "styles"), ("convert --option-names=wal", "--option-names=walls.jsonl"),
         ("convert walls.jsonl -t vba --rec", "--recording-language"), ("convert --install-dir wal", "wal"),
         ("run walls.jsonl --command=-HY", "--command=-HYPERLINK"), ("run walls.jsonl --command -HY", "-HYPERLINK"),
         ("run walls.jsonl --comm", "--command"),
         ("snapshot --handle wal", "wal"), ("schema rep", "report"), ("verify --mac", "--macro"),
         ("verify --macro wal", "walls.jsonl"), ("schema wal", "wal"), ("faults wal", "wal"),
         ("completion fi", "fish"), ("convert -- --outp", "--outp"))


class Shell:
    """A shell at a terminal, in which `inkmacro` shows its arguments."""

    def __init__(self, arguments, folder, setup):
        self.pid, self.descriptor = pty.fork()
        if self.pid == 0:
            os.chdir(folder)
            os.environ.update(TERM="dumb", LC_ALL="C.UTF-8", HOME=str(folder), PS1="", COLUMNS="1000")
            os.execvp(arguments[0], arguments)
        self.count = 0
        self.screen = ""
        self.enter("stty cols 1000; inkmacro() { printf '<%s>' \"$@\"; }\n" + setup + "\n")
        self.answer("printf '<begun>'\n")

    def enter(self, keys):
        os.write(self.descriptor, keys.encode())

    def answer(self, keys):
        """What comes up to the end of a command, which is entered behind the keys."""
        self.count += 1
        # The text that is typed must not be the one that is waited for.
        self.enter(f"{keys}printf '[%d]' {self.count}\n")
        mark = f"[{self.count}]"
        while mark not in self.screen:
            ready, _, _ = select.select([self.descriptor], [], [], 60)
            if not ready:
                raise AssertionError(f"nothing comes behind {self.screen!r}")
            self.screen += os.read(self.descriptor, 4096).decode(errors="replace")
        answer, _, self.screen = self.screen.partition(mark)
        return answer

    def words(self, line, key="\t"):
        """The arguments of the line when the key has been pressed behind it."""
        shown = self.answer(f"inkmacro {line}{key}\n")
        return re.findall("<(.*?)>", shown)

    def close(self):
        os.kill(self.pid, signal.SIGKILL)
        os.waitpid(self.pid, 0)
        os.close(self.descriptor)


class Bash(Shell):
    def __init__(self, folder, share):
        super().__init__(["bash", "--norc", "--noprofile", "-i"], folder,
                         f"source {share}/bash-completion/completions/inkmacro")

    def all(self, line):
        return self.words(line, "\x1b*")


class Zsh(Shell):
    """Finds the completion in the folder of such functions."""

    def __init__(self, folder, share):
        functions = f"{share}/zsh/site-functions"
        super().__init__(["zsh", "-f", "-i"], folder, "setopt no_beep; unsetopt auto_list auto_menu; autoload -U compinit; "
                         + self.read(functions))

    def read(self, functions):
        return f"fpath=({functions} $fpath); compinit -u -D"


class ReadingZsh(Zsh):
    """Reads the completion as any other script."""

    def read(self, functions):
        return f"compinit -u -D; source {functions}/_inkmacro"


class Fish:
    def __init__(self, folder, share):
        self.folder, self.script = folder, share / "fish/vendor_completions.d/inkmacro.fish"

    def all(self, line):
        command = f"source {self.script}; complete -C 'inkmacro {line}'"
        shown = subprocess.run(["fish", "--no-config", "-c", command], cwd=self.folder, stdout=subprocess.PIPE,
                               check=True, encoding="utf-8", env={**os.environ, "HOME": str(self.folder)}).stdout
        return [one.split("\t")[0] for one in shown.splitlines()]

    def words(self, line):
        offered = self.all(line)
        return offered if len(offered) == 1 else [line.split()[-1]]

    def close(self):
        pass


def output(program, *arguments):
    return subprocess.run([program, *arguments], stdout=subprocess.PIPE, check=True, encoding="utf-8").stdout


def check_words(name, shell):
    good = True
    for line, wanted in CASES:
        came = (shell.words(line) or [""])[-1]
        # A shell may prepare for what comes behind.
        if came.rstrip("=/") != wanted:
            print(f"{name}: {line} becomes {came}, not {wanted}")
            good = False
    return good


def check_whole(name, shell, program):
    """Nothing is left out."""
    commands = re.findall(r"^  inkmacro ([a-z][a-z-]*)", output(program, "--help"), re.MULTILINE)
    options = {command: re.findall(r"^  (?:-., )?(--[a-z-]+)", output(program, command, "--help"), re.MULTILINE)
               for command in commands}
    wanted_behind = {"": commands, **{f"{command} --": names for command, names in options.items()},
                     "convert --report ": ["json", "text", "walls.jsonl"],
                     "run walls.jsonl --command ": ["-HYPERLINK", "-LINESTYLE"]}
    good = True
    for line, wanted in wanted_behind.items():
        offered = {word.rstrip("=") for word in shell.all(line)}
        if not set(wanted) <= offered:
            print(f"{name}: behind {line!r} come {sorted(offered)}, but not all of {wanted}")
            good = False
    return good


def check(name, kind, program, share):
    with tempfile.TemporaryDirectory(prefix="inkmacro-completion-") as folder:
        pathlib.Path(folder, "styles").mkdir()
        for path in ("walls.jsonl", "styles.txt"):
            pathlib.Path(folder, path).write_text("", encoding="utf-8")
        shell = kind(folder, share)
        try:
            return check_words(name, shell) and (not hasattr(shell, "all") or check_whole(name, shell, program))
        finally:
            shell.close()


def main():
    program, cmake, build = pathlib.Path(sys.argv[1]).resolve(), sys.argv[2], sys.argv[3]
    kinds = [(name, kind) for name, kind in (("bash", Bash), ("zsh", Zsh), ("zsh", ReadingZsh), ("fish", Fish))
             if shutil.which(name)]
    if not kinds:
        return 77
    with tempfile.TemporaryDirectory(prefix="inkmacro-completion-") as prefix:
        output(cmake, "--install", build, "--prefix", prefix, "--component", "program")
        good = [check(name, kind, program, pathlib.Path(prefix, "share")) for name, kind in kinds]
    return 0 if all(good) else 1


if __name__ == "__main__":
    sys.exit(main())
