#!/usr/bin/python3
"""Holds the project files of every macro against what Visual Studio has to find in them.

    check_projects.py PROGRAM SOURCE_DIR csharp|vbnet|cpp|cppcom
"""

import re
import sys
import xml.etree.ElementTree

import harness

MSBUILD = "{http://schemas.microsoft.com/developer/msbuild/2003}"
UUID = r"\{[0-9a-fA-F]{8}(-[0-9a-fA-F]{4}){3}-[0-9a-fA-F]{12}\}"
NO_WARN = "42016,41999,42017,42018,42019,42032,42036,42020,42021,42022"

COM_REFERENCE = [("Guid", "{92993D0B-2709-42F5-BA1B-9C224D757856}"), ("VersionMajor", "1"), ("VersionMinor", "0"),
                 ("Lcid", "0"), ("WrapperTool", "tlbimp"), ("Isolated", "False")]

# Properties in their order; %1 is the project's name.
CSHARP = {
    "general": [("Configuration", "Debug"), ("Platform", "AnyCPU"), ("ProductVersion", "9.0.30729"),
                ("SchemaVersion", "2.0"), ("ProjectGuid", "{6599E748-BC93-4CF5-901D-90C14D09EB86}"),
                ("OutputType", "WinExe"), ("AppDesignerFolder", "Properties"), ("RootNamespace", "%1"),
                ("AssemblyName", "%1"), ("TargetFrameworkVersion", "v3.5"), ("FileAlignment", "512")],
    "Debug": {"DebugSymbols": "true", "DebugType": "full", "Optimize": "false", "OutputPath": "bin\\Debug\\",
              "DefineConstants": "DEBUG;TRACE", "ErrorReport": "prompt", "WarningLevel": "4"},
    "Release": {"DebugType": "pdbonly", "Optimize": "true", "OutputPath": "bin\\Release\\",
                "DefineConstants": "TRACE", "ErrorReport": "prompt", "WarningLevel": "4"},
    "Reference": ["System"], "Compile": ["%1.cs", "Program.cs"],
    "imports": "$(MSBuildBinPath)\\Microsoft.CSharp.targets",
}
VBNET = {
    "general": [("Configuration", "Debug"), ("Platform", "AnyCPU"), ("ProductVersion", "9.0.21022"),
                ("SchemaVersion", "2.0"), ("ProjectGuid", "{B1E37C1A-66D2-4558-A4B8-D9B9CB0C0220}"),
                ("OutputType", "WinExe"), ("RootNamespace", "%1"), ("AssemblyName", "%1"), ("MyType", "Empty"),
                ("TargetFrameworkVersion", "v3.5"), ("NoWarn", NO_WARN), ("OptionExplicit", "On"),
                ("OptionCompare", "Binary"), ("OptionStrict", "Off"), ("OptionInfer", "On")],
    "Debug": {"DefineDebug": "true", "DefineTrace": "true", "OutputPath": "bin\\Debug\\", "NoWarn": NO_WARN},
    "Release": {"DefineTrace": "true", "OutputPath": "bin\\Release\\", "NoWarn": NO_WARN},
    "Import": ["Microsoft.VisualBasic", "System"], "Compile": ["%1.vb", "Module1.vb"],
    "imports": "$(MSBuildToolsPath)\\Microsoft.VisualBasic.targets",
}

VISUAL_CPP = {"ProjectType": "Visual C++", "Version": "9.00", "Keyword": "Qt4VSv1.0",
              "TargetFrameworkVersion": "196613"}
CPP_HEADERS, CPP_SOURCES = {"IwAddin_global.h", "iwAddinConnection.h", "%1.h"}, {"iwAddinConnection.cpp", "%1.cpp"}
COM_FILES = {"IwAddinConnection.h", "IwAddinConnection.cpp", "%1.h", "resource.h", "stdafx.h", "stdafx.cpp",
             "smartvars.h", "%1.def", "%1ps.def", "%1.idl", "IwAddinConnection.rgs", "%1.rgs", "%1.rc",
             "typeconverter.h", "%1.vcproj", "%1.cpp", "%1_i.c", "%1_i.h"}
LIBRARY_FOLDER = "C:\\Program Files\\Velmorand\\Inkwright\\APISDK\\"


class Project:
    """The file of one macro; `wrong` collects what is not as it should be."""

    def __init__(self, macro, extension):
        self.name, self.file = macro.name, macro.project(extension)
        self.wrong = []
        self.root = xml.etree.ElementTree.parse(self.file).getroot()

    def named(self, value):
        if isinstance(value, str):
            return value.replace("%1", self.name)
        return type(value)(map(self.named, value)) if isinstance(value, (list, tuple, set)) else value

    def expect(self, what, found, wanted):
        wanted = self.named(wanted)
        if found != wanted:
            self.wrong.append(f"{self.file.name}: {what} is {found!r}\n    and should be {wanted!r}")

    def expect_attributes(self, element, wanted, where=""):
        for name, value in wanted.items():
            self.expect(f"{where}{element.get('Name') or element.tag} {name}", element.get(name), value)


def properties(group):
    return [(element.tag.removeprefix(MSBUILD), element.text) for element in group]


def check_msbuild(project, wanted):
    root = project.root
    project.expect("the root", root.tag, f"{MSBUILD}Project")
    project.expect_attributes(root, {"ToolsVersion": "3.5", "DefaultTargets": "Build"})
    general, debug, release = root.findall(f"{MSBUILD}PropertyGroup")
    project.expect("the general properties", properties(general), wanted["general"])
    for name in ("Configuration", "Platform"):
        condition = general.find(f"{MSBUILD}{name}").get("Condition", "").replace(" ", "")
        project.expect(f"the condition of {name}", condition, f"'$({name})'==''")
    for group, name in ((debug, "Debug"), (release, "Release")):
        project.expect(f"the condition of {name}", f"'{name}|AnyCPU'" in group.get("Condition", ""), True)
        found = dict(properties(group))
        for key, value in wanted[name].items():
            project.expect(f"{name}: {key}", found.get(key), value)
    for kind in ("Reference", "Import", "Compile"):
        if kind in wanted:
            items = root.findall(f"{MSBUILD}ItemGroup/{MSBUILD}{kind}")
            project.expect(f"the {kind} items", [item.get("Include") for item in items], wanted[kind])
    reference, = root.findall(f"{MSBUILD}ItemGroup/{MSBUILD}COMReference")
    project.expect("the COM reference", reference.get("Include"), "Inkwright")
    project.expect("the COM reference's properties", properties(reference), COM_REFERENCE)
    project.expect("the last element", root[-1].get("Project"), wanted["imports"])


def check_csharp(project):
    check_msbuild(project, CSHARP)
    text = project.file.read_text(encoding="utf-8")
    comment = text[text.index("<!--"):text.rindex("-->")]
    project.expect("the commented targets", re.findall(r'<Target Name="(\w+)">', comment), ["BeforeBuild", "AfterBuild"])


def check_vbnet(project):
    check_msbuild(project, VBNET)


def configurations(project):
    """Each of the four, with its tools by name."""
    root = project.root
    project.expect("the platforms", [p.get("Name") for p in root.findall("Platforms/Platform")], ["Win32", "x64"])
    found = {element.get("Name"): element for element in root.findall("Configurations/Configuration")}
    names = [f"{kind}|{platform}" for platform in ("Win32", "x64") for kind in ("Debug", "Release")]
    project.expect("the configurations", sorted(found), sorted(names))
    for name in names:
        tools = {tool.get("Name"): tool for tool in found[name].findall("Tool")}
        yield found[name], tools, name.startswith("Debug"), name.endswith("x64")


def base_names(files):
    return {file.get("RelativePath").rpartition("\\")[2] for file in files}


def check_cpp(project):
    project.expect("the encoding", "windows-1252" in project.file.read_text(encoding="cp1252").split("\n")[0], True)
    project.expect_attributes(project.root, {
        **VISUAL_CPP, "Name": "%1", "ProjectGUID": "{8FBE8FD7-7EED-4D16-9316-FA646341A656}",
        "RootNamespace": "Reactors"})
    for configuration, tools, debug, x64 in configurations(project):
        where = f"{configuration.get('Name')}: "
        project.expect_attributes(configuration, {"ConfigurationType": "2", "UseOfMFC": "0", "UseOfATL": "0",
                                                  "CharacterSet": "1"})
        project.expect_attributes(tools["VCCLCompilerTool"], {
            "AdditionalIncludeDirectories": f'"{LIBRARY_FOLDER}headers\\cpp"',
            "PreprocessorDefinitions": "UNICODE;NDEBUG;IW_WIN;IwAddin_LIB", "Optimization": "0",
            "ExceptionHandling": "1", "RuntimeLibrary": "3" if debug else "2",
            "PrecompiledHeaderThrough": "stdafx.h", "DebugInformationFormat": "3" if x64 else "4"}, where)
        project.expect(f"{where}WarnAsError", tools["VCCLCompilerTool"].get("WarnAsError") == "true", debug and x64)
        project.expect_attributes(tools["VCLinkerTool"], {
            "AdditionalDependencies": "iwInterface.lib iwLibrary.lib",
            "AdditionalLibraryDirectories": f'"{LIBRARY_FOLDER}lib\\cpp"', "ModuleDefinitionFile": "%1.def",
            "SubSystem": "2", "TargetMachine": "17" if x64 else "1"}, where)
        project.expect_attributes(tools["VCMIDLTool"], {"TargetEnvironment": "3" if x64 else "1"}, where)
        project.expect(f"{where}the type library's stem", "IwAddinStub" in tools["VCMIDLTool"].get("TypeLibraryName"),
                       True)
    filters = {f.get("Name"): f for f in project.root.findall("Files/Filter")}
    project.expect("the sources", base_names(filters["Source Files"].findall("File")), CPP_SOURCES)
    project.expect("the headers", base_names(filters["Header Files"].findall("File")), CPP_HEADERS)
    project.expect("the files outside", base_names(project.root.findall("Files/File")), {"%1.def"})
    for file in filters["Header Files"].findall("File"):
        own = len(file.findall("FileConfiguration"))
        special = not file.get("RelativePath").endswith(f"{project.name}.h")
        project.expect(f"the configurations of {file.get('RelativePath')}", own, 4 if special else 0)
    project.expect("the globals", [(g.get("Name"), g.get("Value")) for g in project.root.findall("Globals/Global")],
                   [("QtVersion Win32", "$(DefaultQtVersion)"), ("QtVersion x64", "4.7.4_x64")])


def check_cppcom(project):
    project.expect_attributes(project.root, {**VISUAL_CPP, "RootNamespace": "%1"})
    project.expect("the GUID's form", re.fullmatch(UUID, project.root.get("ProjectGUID", "")) is not None, True)
    for configuration, tools, debug, _ in configurations(project):
        where = f"{configuration.get('Name')}: "
        project.expect_attributes(configuration, {"UseOfATL": "2"})
        project.expect_attributes(tools["VCMIDLTool"], {
            "TypeLibraryName": "$(IntDir)/%1.tlb", "HeaderFileName": "%1_i.h",
            "InterfaceIdentifierFileName": "%1_i.c", "ProxyFileName": "%1_p.c"}, where)
        project.expect_attributes(tools["VCCLCompilerTool"], {
            "AdditionalIncludeDirectories": "..\\..\\..\\..\\tlb;..\\..\\..\\..\\..\\bin",
            "PreprocessorDefinitions": "WIN32;_WINDOWS;_DEBUG;_USRDLL" if debug else "WIN32;_WINDOWS;_USRDLL"}, where)
        project.expect_attributes(tools["VCLinkerTool"], {"ModuleDefinitionFile": ".\\%1.def"}, where)
    project.expect("the files", base_names(project.root.findall("Files//File")), COM_FILES)
    generated = [f for f in project.root.findall("Files/Filter") if f.get("Name") == "Generated Files"]
    project.expect("the generated files", base_names(f for g in generated for f in g.findall("File")),
                   {"%1_i.c", "%1_i.h"})


CHECKS = {"csharp": (".csproj", check_csharp), "vbnet": (".vbproj", check_vbnet), "cpp": (".vcproj", check_cpp),
          "cppcom": (".vcproj", check_cppcom)}


def main():
    checked = harness.Checked()
    xmllint, = harness.need("xmllint")
    target = sys.argv[3]
    extension, check = CHECKS[target]
    macros = checked.macros(target)
    complaints = []
    for macro in macros:
        result = harness.run(xmllint, "--noout", macro.project(extension))
        if result.returncode != 0:
            complaints.append(f"{macro.project(extension).name}: {result.stderr}")
            continue
        project = Project(macro, extension)
        check(project)
        complaints += project.wrong
    harness.finish(complaints, f"{len(macros)} {extension} files checked")


main()
