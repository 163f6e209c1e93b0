#!/usr/bin/python3
"""Feeds the files that only Windows tools read to those of MinGW: export definitions, the interface definition and the
resource script of the COM add-in.

    check_windows_files.py PROGRAM SOURCE_DIR def|idl|rc
"""

import glob
import pathlib
import re
import sys

import harness

# windres puts its own path in front, dlltool writes the place behind its message.
ERROR = re.compile(r"^(?:\S*windres: )?(?P<file>[^:\n]+?\.\w+):(?P<line>\d+):(?:\d+:)? (?P<text>.*)$", re.MULTILINE)
EXPORT_ERROR = re.compile(r"^\S*dlltool: (?P<text>.*) (?P<file>\S.*?):(?P<line>\d+)$", re.MULTILINE)

MINGW = "x86_64-w64-mingw32-"
HEADERS = "/usr/share/mingw-w64/include"
INTERFACES = "/usr/include/wine/wine/windows"
TYPE_LIBRARY = "/usr/lib/*-linux-gnu/wine/x86_64-windows/stdole2.tlb"

SERVER = ["DllCanUnloadNow", "DllGetClassObject", "DllRegisterServer", "DllUnregisterServer"]
# What a module exports, by its target and the end of the file's name.
EXPORTS = {
    ("cpp", ""): ["connectToInkwright", "disconnectFromInkwright"],
    ("cppcom", ""): SERVER,
    ("cppcom", "ps"): [*SERVER, "GetProxyDllInfo"],
}


def export_tool(checked):
    tool, = harness.need(f"{MINGW}dlltool")
    return lambda file: [tool, "--input-def", file, "--output-exp", checked.folder / "def.out"]


def interface_tool(checked):
    tool, = harness.need(f"{MINGW}widl")
    libraries = [pathlib.Path(path).parent for path in glob.glob(TYPE_LIBRARY)]
    if not libraries or not pathlib.Path(INTERFACES).is_dir():
        harness.skip("libwine-dev not installed")
    return lambda file: [tool, "-I", INTERFACES, "-L", libraries[0], "-t", "-o", checked.folder / "idl.out", file]


def resource_tool(checked):
    tool, _ = harness.need(f"{MINGW}windres", "gcc")
    if not pathlib.Path(HEADERS).is_dir():
        harness.skip("mingw-w64-common not installed")
    # The preprocessor of a cross compiler would bring these definitions and this folder itself.
    preprocessor = ["--preprocessor=gcc"] + [f"--preprocessor-arg={argument}" for argument in (
        "-E", "-xc-header", "-DRC_INVOKED", "-D_WIN32", "-D_WIN64", f"-I{HEADERS}")]

    def command(file):
        # The build makes the type library first; here its contents do not matter.
        file.with_suffix(".tlb").touch()
        return [tool, *preprocessor, "--input-format=rc", "--output-format=coff", file, checked.folder / "rc.out"]

    return command


# The tool, and the targets that have such files.
TOOLS = {
    "def": (export_tool, ("cpp", "cppcom")),
    "idl": (interface_tool, ("cppcom",)),
    "rc": (resource_tool, ("cppcom",)),
}


def judge(command, file):
    """Not every tool tells by its status that it found an error."""
    result = harness.run(*command(file), cwd=file.parent)
    found = [harness.Rejection(file.parent / match["file"], int(match["line"]), match["text"])
             for error in (ERROR, EXPORT_ERROR) for match in error.finditer(result.stderr)
             if "warning" not in match["text"]]
    if result.returncode != 0 and not found:
        found.append(harness.Rejection(file, line_of_missing(file, result.stderr), result.stderr))
    return found


def line_of_missing(file, message):
    """A resource script's file that cannot be opened comes without a line; it is one where the name has no quotes."""
    missing = re.search(r"can't open file `(\w+)'", message)
    if missing:
        for number, line in enumerate(file.read_text(encoding="utf-8").splitlines(), 1):
            if re.match(rf'[^"/]*\b{missing[1]}\b', line):
                return number
    return 0


def missing_exports(target, macro, file, exports):
    names = EXPORTS.get((target, file.stem.removeprefix(macro.name)))
    if names is None:
        return [f"{file.name} is not expected"]
    found = re.split(rb"\0+", exports.read_bytes()) if exports.exists() else []
    return [f"{file.name} does not export {name}" for name in names if name.encode() not in found]


def main():
    checked = harness.Checked()
    extension = sys.argv[3]
    make_command, targets = TOOLS[extension]
    command = make_command(checked)
    targets = [target for target in targets if checked.has(target)]
    if not targets:
        harness.skip("the program has no such target")
    complaints, files = [], 0
    for target in targets:
        verdict = harness.Verdict()
        for macro in checked.macros(target):
            sources = sorted(macro.folder.glob(f"*.{extension}"))
            files += len(sources)
            if not sources:
                complaints.append(f"{macro.name} has no .{extension} file")
            for file in sources:
                (checked.folder / "def.out").unlink(missing_ok=True)
                kept = [macro]
                verdict.settle(kept, lambda file=file: judge(command, file))
                if extension == "def" and kept:
                    complaints += missing_exports(target, macro, file, checked.folder / "def.out")
        complaints += verdict.complaints
    harness.finish(complaints, f"{files} .{extension} files read")


main()
