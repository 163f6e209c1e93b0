// The tables of the module as pages in Markdown.

#include "app/pages.h"

#include "app/CommandLine.h"
#include "app/LoadedModule.h"

#include <QStringList>

#include <algorithm>

namespace inkmacro {

namespace {

const char* const variablesIntroduction = R"(# System variables

A change of a system variable becomes a statement that sets an option through Inkwright's automation interface: by
`SetCommandOption...` on the document or, when the document has no option for the variable, by
`SetApplicationOption...` on the application's options. Only a replay converts these changes, but a change of `CVPORT`
is always converted. A variable that is not listed here leaves no statement; the names are in capitals.

The interface knows an option by an enumerator, whose name cannot be computed. Where the remark says *made*, the name
that the interface uses is not known to the program, and the enumerator is made of a verb and the variable's own name.
Whoever has the interface's lists can give the right names without a new build, by
`inkmacro convert --option-names FILE`. `FILE` holds one JSON object:

```json
{
  "LTSCALE": "iwCommandOptionDouble_SetLTSCALE",
  "PICKBOX": "iwApplicationOptionInt16_SetPICKBOX"
}
```

A name must begin as the enumerator in the table does, up to the underscore. *Read only* are the variables that the
user cannot set: they change by themselves.
)";

QString rowOf(const CFxKnownOption& option)
{
    QStringList remarks;
    if (option.made)
        remarks.append("made");
    if (option.readOnly)
        remarks.append("read only");
    return QString("| `%1` | %2 | `%3` | %4 |\n")
        .arg(option.variable, option.type, option.enumerator, remarks.join(", "));
}

QString sectionOf(const std::vector<CFxKnownOption>& options, bool ofDocument, const char* title)
{
    QStringList rows;
    for (const CFxKnownOption& option : options)
        if (option.ofDocument == ofDocument)
            rows.append(rowOf(option));
    return QString("\n## %1\n\n%2 variables.\n\n").arg(title).arg(rows.size()) +
           "| Variable | Type | Enumerator | Remark |\n|---|---|---|---|\n" + rows.join(QString());
}

const char* const faultsIntroduction = R"(# Known faults

A macro is written as the application's own recorder writes it, and that is not always what its language accepts or what
the user meant. Each fault that is known stands here. `inkmacro convert` counts them, `--report` tells where they are,
and `--repair` writes the macro without them, or refuses to write it at all where the last column says no. A fault of
several targets is listed once.

| Written by | Targets | Fault | Repaired |
|---|---|---|---|
)";

bool isOf(const CFxKnownFault& fault, const TargetRow& row)
{
    const auto code = static_cast<std::uint32_t>(row.target);
    return std::find(fault.languages.begin(), fault.languages.end(), code) != fault.languages.end();
}

} // namespace

QString systemVariablesPage()
{
    const std::vector<CFxKnownOption> options = LoadedModule()->ListOptions();
    return variablesIntroduction + sectionOf(options, true, "Options of the document") +
           sectionOf(options, false, "Options of the application");
}

QString knownFaultsPage()
{
    QString page = faultsIntroduction;
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
