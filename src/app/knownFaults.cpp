#include "app/knownFaults.h"

#include "app/CommandLine.h"
#include "app/LoadedModule.h"

#include <QStringList>

#include <algorithm>

namespace inkmacro {

namespace {

const char* const introduction = R"(# Known faults

A macro is written as the application's own recorder writes it, and that is not always what its language accepts or what
the user meant. Each fault that is known stands here. `inkmacro convert` counts them, `--report` tells where they are,
and `--repair` writes the macro without them. A fault of several targets is listed once.

| Written by | Targets | Fault | Repaired |
|---|---|---|---|
)";

bool isOf(const CFxKnownFault& fault, const TargetRow& row)
{
    const auto code = static_cast<std::uint32_t>(row.target);
    return std::find(fault.languages.begin(), fault.languages.end(), code) != fault.languages.end();
}

} // namespace

QString knownFaultsPage()
{
    QString page = introduction;
    for (const CFxKnownFault& fault : LoadedModule()->ListFaults()) {
        QStringList targets;
        for (const TargetRow& row : targetTable)
            if (isOf(fault, row))
                targets.append(targetName(row));
        page += QString("| `%1` | %2 | %3 | %4 |\n")
                    .arg(fault.operation, targets.join(", "), fault.reason, fault.mended ? "yes" : "no");
    }
    return page;
}

} // namespace inkmacro
