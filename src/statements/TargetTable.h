#pragma once

#include "statements/Target.h"

#include <array>
#include <string_view>

/// The targets that can be written: enumerator, suffix of the class of its frame (CFxConverterIWAPI<suffix>), name on
/// the command line, title for people, extension of the macro file, and the files of the project around it as texts
/// separated by blanks, `%1` standing for the project's name. The factory of frames, the program and the tests all
/// follow these rows.
#define INKMACRO_TARGETS(ROW)                                                                                          \
    ROW(Cpp, CPP, "cpp", "C++", "cpp",                                                                                 \
        "IwAddin_global.h %1.vcproj iwAddinConnection.h iwAddinConnection.cpp %1.h %1.def")                            \
    ROW(CSharp, CSharp, "csharp", "C#", "cs", "Program.cs %1.csproj")                                                  \
    ROW(JavaScript, JavaScript, "javascript", "JavaScript", "html", "")                                                \
    ROW(VbNet, VbNet, "vbnet", "VB.NET", "vb", "Module1.vb %1.vbproj")                                                 \
    ROW(CppCom, CPPCOM, "cppcom", "C++ COM", "cpp",                                                                    \
        "IwAddinConnection.h IwAddinConnection.cpp %1.h resource.h stdafx.h stdafx.cpp smartvars.h %1.def %1ps.def "   \
        "%1.idl IwAddinConnection.rgs %1.rgs %1.rc %1.vcproj typeconverter.h")                                         \
    ROW(Vba, Vba, "vba", "VBA", "bas", "")                                                                             \
    ROW(Python, Python, "python", "Python", "py", "pyproject.toml")

namespace inkmacro {

struct TargetRow
{
    Target target;
    std::string_view name;
    std::string_view title;
    std::string_view extension;
    std::string_view projectFiles;
};

#define INKMACRO_TARGET_ROW(id, suffix, name, title, extension, projectFiles)                                          \
    TargetRow{Target::id, name, title, extension, projectFiles},
inline constexpr std::array targetTable{INKMACRO_TARGETS(INKMACRO_TARGET_ROW)};
#undef INKMACRO_TARGET_ROW

} // namespace inkmacro
