#!/usr/bin/python3
"""Compiles the VB.NET projects that --repair writes against stubs of the automation interface; nothing is excused.

    check_vbnet.py PROGRAM SOURCE_DIR

The compiler is the command in INKMACRO_VBC (such as `/sdk/dotnet /sdk/sdk/8.0.100/Roslyn/bincore/vbc.dll`), or vbc on
the path.
"""

import concurrent.futures
import os
import pathlib
import re
import shlex
import xml.etree.ElementTree

import harness
import stubs_vbnet

PROJECT = {"p": "http://schemas.microsoft.com/developer/msbuild/2003"}
ERROR = re.compile(r"^(.*?)\((\d+)(?:,\d+)?\) ?: error (.*)$|^vbc : error (.*)$", re.MULTILINE)
# The projects are for the .NET Framework; .NET Core has left this out.
LEFT_OUT = "'GetActiveObject' is not a member of 'Marshal'"


class Compiler:
    def __init__(self):
        self.command = shlex.split(os.environ.get("INKMACRO_VBC", "")) or harness.need("vbc")
        self.command += ["/nologo", "/utf8output", r'/define:_MYTYPE=\"Empty\"']
        if self.command[0].endswith("dotnet"):
            self._use_runtime(pathlib.Path(self.command[0]).resolve().parent)

    def _use_runtime(self, sdk):
        """A compiler that runs on .NET Core does not find its libraries by itself."""
        runtime = max((sdk / "shared/Microsoft.NETCore.App").iterdir())
        basic = runtime / "Microsoft.VisualBasic.dll"
        self.command += [f"/sdkpath:{runtime}", f"/vbruntime:{basic}"]
        self.command += [f"/r:{file}" for file in sorted(runtime.glob("*.dll"))
                         if re.match(r"(System|mscorlib|netstandard)\b", file.name) and ".Native" not in file.name]

    def __call__(self, folder, *arguments):
        """What is wrong, or nothing: (file, line, complaint)."""
        environment = {**os.environ, "DOTNET_SYSTEM_GLOBALIZATION_INVARIANT": "1"}
        result = harness.run(*self.command, *arguments, cwd=folder, env=environment)
        output = result.stdout + result.stderr
        found = [harness.Rejection(folder / match[1] if match[1] else folder, int(match[2] or 0), match[3] or match[4])
                 for match in ERROR.finditer(output) if LEFT_OUT not in match[0]]
        if result.returncode != 0 and not ERROR.search(output):
            found.append(harness.Rejection(folder, 0, f"ended with {result.returncode}: {output}"))
        return found


def project_arguments(macro):
    """Options, imports and files as the project tells them."""
    root = xml.etree.ElementTree.parse(macro.project(".vbproj")).getroot()
    group = root.find("p:PropertyGroup", PROJECT)
    given = {element.tag.split("}")[1]: element.text for element in group}
    switches = [f"/{name.lower()}{'+' if given[name] == 'On' else '-'}"
                for name in ("OptionExplicit", "OptionStrict", "OptionInfer")]
    imports = ",".join(element.get("Include") for element in root.iterfind(".//p:Import[@Include]", PROJECT))
    return [*switches, f"/optioncompare:{given['OptionCompare'].lower()}", f"/nowarn:{given['NoWarn']}",
            f"/rootnamespace:{given['RootNamespace']}", f"/target:{given['OutputType'].lower()}", f"/imports:{imports}",
            "/langversion:9", *(element.get("Include") for element in root.iterfind(".//p:Compile", PROJECT))]


def main():
    checked = harness.Checked()
    compiler = Compiler()
    (checked.folder / "stubs.vb").write_text(stubs_vbnet.source(harness.STUBS / "interface.txt"), encoding="utf-8")
    library = checked.folder / "Inkwright.dll"
    broken = compiler(checked.folder, "/target:library", f"/out:{library}", "stubs.vb")
    if broken or not library.exists():
        harness.finish(harness.shown(broken) or ["the compiler makes nothing"], "")
    macros = checked.macros("vbnet", "--repair")

    def judge(macro):
        return compiler(macro.folder, f"/r:{library}", f"/out:{checked.folder / macro.name}.exe", *project_arguments(macro))

    with concurrent.futures.ThreadPoolExecutor(os.cpu_count()) as pool:
        rejections = [rejection for found in pool.map(judge, macros) for rejection in found]
    harness.finish(harness.shown(rejections), f"{len(macros)} projects compiled")


main()
