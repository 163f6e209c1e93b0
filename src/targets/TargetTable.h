#pragma once

#include "targets/Target.h"

#include <array>
#include <string_view>

/// The targets that can be written: enumerator, name on the command line, extension of the macro file, and the files of
/// the project around it as texts separated by blanks, `%1` standing for the project's name. The converter classes of a
/// target are CFxConverterIWAPI<enumerator> and CFxConverterIWAPIObject<enumerator>. The factories, the program and the
/// tests all follow these rows.
#define INKMACRO_TARGETS(ROW) ROW(CSharp, "csharp", "cs", "Program.cs %1.csproj")

namespace inkmacro {

struct TargetRow
{
    Target target;
    std::string_view name;
    std::string_view extension;
    std::string_view projectFiles;
};

#define INKMACRO_TARGET_ROW(id, name, extension, projectFiles) TargetRow{Target::id, name, extension, projectFiles},
inline constexpr std::array targetTable{INKMACRO_TARGETS(INKMACRO_TARGET_ROW)};
#undef INKMACRO_TARGET_ROW

} // namespace inkmacro
