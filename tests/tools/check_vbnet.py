#!/usr/bin/python3
"""Compiles the repaired VB.NET macros and their start-up modules against stubs, with the options of their projects.

    check_vbnet.py PROGRAM SOURCE_DIR

The compiler is the command in INKMACRO_VBC, or `vbc` on the path.
"""

import concurrent.futures
import os
import pathlib
import re
import shlex
import shutil
import xml.etree.ElementTree

import harness
import stubs_vbnet

ERROR = re.compile(r"^(?:(.*?)\((\d+)\)|vbc) ?: error (BC\d+: .*)$", re.MULTILINE)
NAMESPACE = {"p": "http://schemas.microsoft.com/developer/msbuild/2003"}
SWITCHES = ("OptionExplicit", "OptionStrict", "OptionInfer")
ASSEMBLIES = ("mscorlib", "netstandard", "System", "System.Private.CoreLib", "System.Runtime",
              "System.Runtime.InteropServices")
# Projects are for the .NET Framework, which has it; .NET does not.
FRAMEWORK_ONLY = "'GetActiveObject' is not a member of 'Marshal'"


def is_found():
    return bool(os.environ.get("INKMACRO_VBC") or shutil.which("vbc"))


class Compiler:
    def __init__(self):
        self._command = shlex.split(os.environ.get("INKMACRO_VBC", "")) or [harness.need("vbc")[0]]
        self._options = ["/nologo", "/utf8output", '/define:_MYTYPE=\\"Empty\\"', *self._library()]

    def _library(self):
        """A .NET SDK has no library where the compiler looks for it: the newest beside the compiler or its host."""
        for word in [*self._command, "dotnet"]:
            place = pathlib.Path(shutil.which(word) or word).resolve()
            for folder in place.parents:
                libraries = list(folder.glob("*/Microsoft.NETCore.App/*/Microsoft.VisualBasic.dll"))
                if libraries:
                    newest = max(libraries, key=lambda file: list(map(int, re.findall(r"\d+", file.parent.name))))
                    found = [newest.parent / f"{name}.dll" for name in ASSEMBLIES]
                    return [f"/sdkpath:{newest.parent}", f"/vbruntime:{newest}",
                            *(f"/reference:{file}" for file in found if file.exists())]
        return []

    def __call__(self, output, *arguments):
        """What is refused."""
        result = harness.run(*self._command, *self._options, f"/out:{output}", *arguments, cwd=output.parent,
                             env={"DOTNET_SYSTEM_GLOBALIZATION_INVARIANT": "1", **os.environ})
        rejections = [harness.Rejection(output.parent / (file or output.name), int(line or 0), message)
                      for file, line, message in ERROR.findall(result.stdout)]
        if result.returncode != 0 and not rejections:
            rejections = [harness.Rejection(output, 0, result.stdout + result.stderr)]
        return [rejection for rejection in rejections if FRAMEWORK_ONLY not in rejection.message]


def arguments(macro):
    """What the project of a macro has the compiler do; projects of that form have version 9 of the language."""
    root = xml.etree.ElementTree.parse(macro.project(".vbproj")).getroot()
    options = {name: root.findtext(f"p:PropertyGroup/p:{name}", "", NAMESPACE)
               for name in (*SWITCHES, "OptionCompare", "NoWarn", "RootNamespace", "OutputType")}
    imports = [item.get("Include") for item in root.iterfind("p:ItemGroup/p:Import", NAMESPACE)]
    return ["/langversion:9", *(f"/{name.lower()}{'+' if options[name] == 'On' else '-'}" for name in SWITCHES),
            f"/optioncompare:{options['OptionCompare'].lower()}", f"/nowarn:{options['NoWarn']}",
            f"/rootnamespace:{options['RootNamespace']}", f"/target:{options['OutputType'].lower()}",
            f"/imports:{','.join(imports)}",
            *(item.get("Include") for item in root.iterfind("p:ItemGroup/p:Compile", NAMESPACE))]


class Judge:
    def __init__(self, checked, macros):
        self.macros, self.compiler = macros, Compiler()
        stubs = checked.folder / "stubs.vb"
        stubs.write_text(stubs_vbnet.source(), encoding="utf-8")
        self.library = checked.folder / "Inkwright.dll"
        rejections = self.compiler(self.library, "/target:library", stubs)
        if rejections or not self.library.exists():
            harness.finish(harness.shown(rejections) or ["the compiler makes nothing"], "")

    def _judge(self, macro):
        return self.compiler(macro.folder / f"{macro.name}.exe", f"/reference:{self.library}", *arguments(macro))

    def __call__(self):
        with concurrent.futures.ThreadPoolExecutor(os.cpu_count()) as pool:
            return [rejection for rejections in pool.map(self._judge, self.macros) for rejection in rejections]


def main():
    checked = harness.Checked()
    macros = checked.macros("vbnet", "--repair")
    harness.finish(harness.shown(Judge(checked, macros)()), f"{len(macros)} macros compiled")


if __name__ == "__main__":
    main()
