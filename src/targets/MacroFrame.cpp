// The frames of the targets, and what they have in common.

#include "targets/MacroFrame.h"

#include "host/kernel/CFxStatus.h"
#include "statements/LineEnd.h"
#include "statements/RecordingState.h"
#include "statements/TargetTable.h"
#include "statements/quoting.h"
#include "statements/wording.h"
#include "targets/cpp/CFxConverterIWAPICPP.h"
#include "targets/cppcom/CFxConverterIWAPICPPCOM.h"
#include "targets/csharp/CFxConverterIWAPICSharp.h"
#include "targets/javascript/CFxConverterIWAPIJavaScript.h"
#include "targets/projectFiles.h"
#include "targets/python/CFxConverterIWAPIPython.h"
#include "targets/vba/CFxConverterIWAPIVba.h"
#include "targets/vbnet/CFxConverterIWAPIVbNet.h"

#include <QFileInfo>
#include <QRegularExpression>

#include <algorithm>
#include <utility>

using namespace inkmacro;

static const Fault kIllegalName{"EmitFileHeader",
                                {Target::CSharp, Target::VbNet, Target::CppCom},
                                "the file's name stands in code, where it is no identifier"};

static const Fault kKeyword{
    "EmitFileHeader", {Target::CSharp, Target::VbNet}, "the file's name stands in code, where it is a keyword"};

static const Fault kHidesType{"EmitFileHeader",
                              {Target::CSharp, Target::VbNet},
                              "the file's name stands in code, where a type or a namespace has it already"};

static const Fault kNamesOther{
    "EmitFileHeader",
    {Target::CSharp, Target::VbNet},
    "the file's name stands in code, where a method or a module of the macro has it already"};

static const Fault kOtherHeader{"EmitFileHeader",
                                {Target::Cpp, Target::CppCom},
                                "an #include that is meant for a library finds the header named after the file"};

static const Fault kOtherFile{"EmitProjectText",
                              {Target::CSharp, Target::VbNet, Target::Cpp, Target::CppCom},
                              "where the project lists the macro, it names another file"};

static const Fault kNoSketchManager{"EmitFileHeader",
                                    {Target::Cpp, Target::CppCom, Target::CSharp, Target::VbNet, Target::Vba},
                                    "a recording that began on a sheet without a name has no sketch manager"};

std::int32_t MacroFrame::EmitProjectFiles(const QString&)
{
    return kFxSuccess;
}

QString MacroFrame::identifier(const QString& name) const
{
    return mended(name, legalName(name));
}

const Fault* MacroFrame::faultOfName(const QString& name) const
{
    switch (flawOf(name, writer.target)) {
    case NameFlaw::None:
        break;
    case NameFlaw::NoIdentifier:
        return &kIllegalName;
    case NameFlaw::Keyword:
        return &kKeyword;
    case NameFlaw::HidesType:
        return &kHidesType;
    case NameFlaw::NamesOther:
        return &kNamesOther;
    }
    return nullptr;
}

Statement MacroFrame::faultyName(const QString& name, const Statement& text) const
{
    const Fault* const fault = faultOfName(name);
    return fault ? writer.faulty(text, *fault) : text;
}

Statement MacroFrame::withHeaders(Statement head, const QString& name, std::initializer_list<const char*> headers) const
{
    // Where such macros are built, names of files do not differ in case.
    const auto* const header = std::find_if(headers.begin(), headers.end(), [&](const char* known) {
        return name.compare(QLatin1String(known), Qt::CaseInsensitive) == 0;
    });
    if (header == headers.end())
        return head;
    const QString words = QString("#include \"%1.h\"").arg(*header);
    const int place = head.text().lastIndexOf(words);
    if (writer.repairs)
        return QString(head.text()).replace(place, words.size(), QString("#include <%1.h>").arg(*header));
    if (writer.notesFaults)
        head.addFault(kOtherHeader, place);
    return head;
}

Statement MacroFrame::withSheetName(Fill& head) const
{
    if (RecordingInModel || !RecordingSheetName.isEmpty() || !writer.notesFaults)
        return head.text(RecordingSheetName);
    Statement missing;
    missing.addFault(kNoSketchManager);
    return head.word(missing);
}

Statement MacroFrame::fillNamed(QByteArray words, const QString& name) const
{
    words.replace("{quotedName}", mended("%1", "%3"));
    if (writer.repairs)
        return fillProject(words, {name, LineEnd, writer.quoted(name)}, Template::Markers::Counted);
    // A third value would stand in a marker that the name holds.
    return fillProject(words, {name, LineEnd});
}

Statement MacroFrame::faultyAt(const QString& words, const Statement& text, const Fault& fault) const
{
    if (!writer.notesFaults)
        return text;
    Statement noted = text;
    noted.addFault(fault, std::max(text.text().indexOf(words), 0));
    return noted;
}

Statement MacroFrame::faultyEntry(const QString& entry, const QString& macroPath, const char* misread,
                                  const Statement& project) const
{
    const QString file = QFileInfo(macroPath).fileName();
    const bool found = isXmlName(file) && !file.contains(QRegularExpression(misread)) &&
                       project.text().contains(entry + xmlText(file) + '"');
    const QString name = projectName(macroPath).section('%', 0, 0);
    return found ? project : faultyAt(entry + xmlText(name), project, kOtherFile);
}

std::unique_ptr<MacroFrame> CreateMacroFrame(Writer& writer)
{
    switch (writer.target) {
#define INKMACRO_CREATE(id, suffix, name, title, extension, projectFiles)                                              \
    case Target::id:                                                                                                   \
        return std::make_unique<CFxConverterIWAPI##suffix>(writer);
        INKMACRO_TARGETS(INKMACRO_CREATE)
#undef INKMACRO_CREATE
    }
    return nullptr;
}
