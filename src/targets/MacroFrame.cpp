// The frames of the targets, and what they have in common.

#include "targets/MacroFrame.h"

#include "host/kernel/CFxStatus.h"
#include "statements/TargetTable.h"
#include "statements/quoting.h"
#include "targets/cpp/CFxConverterIWAPICPP.h"
#include "targets/cppcom/CFxConverterIWAPICPPCOM.h"
#include "targets/csharp/CFxConverterIWAPICSharp.h"
#include "targets/javascript/CFxConverterIWAPIJavaScript.h"
#include "targets/vba/CFxConverterIWAPIVba.h"
#include "targets/vbnet/CFxConverterIWAPIVbNet.h"

#include <algorithm>
#include <utility>

using namespace inkmacro;

const Fault MacroFrame::kIllegalName{"EmitFileHeader",
                                     {Target::CSharp, Target::VbNet, Target::CppCom},
                                     "the file's name stands in code, where it is no identifier"};

std::int32_t MacroFrame::EmitProjectFiles(const QString&)
{
    return kFxSuccess;
}

QString MacroFrame::identifier(const QString& name) const
{
    return mended(name, legalName(name));
}

Statement MacroFrame::faultyName(const QString& name, const Statement& text) const
{
    return isLegalName(name, writer.target) ? text : writer.faulty(text, kIllegalName);
}

Statement MacroFrame::faultyAt(const QString& words, const Statement& text, const Fault& fault) const
{
    if (!writer.notesFaults)
        return text;
    Statement::Notes notes = text.notes();
    notes.push_back({std::max(text.text().indexOf(words), 0), &fault});
    std::stable_sort(notes.begin(), notes.end(),
                     [](const StatementNote& one, const StatementNote& other) { return one.offset < other.offset; });
    return {text.text(), std::move(notes)};
}

std::unique_ptr<MacroFrame> CreateMacroFrame(Writer& writer)
{
    switch (writer.target) {
#define INKMACRO_CREATE(id, suffix, name, extension, projectFiles)                                                     \
    case Target::id:                                                                                                   \
        return std::make_unique<CFxConverterIWAPI##suffix>(writer);
        INKMACRO_TARGETS(INKMACRO_CREATE)
#undef INKMACRO_CREATE
    }
    return nullptr;
}
