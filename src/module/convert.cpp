// One conversion, from the output path to the project files.

#include "host/db/OdDbClasses.h"
#include "host/kernel/CFxServices.h"
#include "module/CFxConverterIWAPIImpl.h"
#include "module/MacroFile.h"
#include "module/walk.h"
#include "statements/RecordingState.h"
#include "statements/wording.h"
#include "targets/projectFiles.h"
#include "targets/variables.h"

#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QScopedValueRollback>
#include <QTextStream>

#include <algorithm>
#include <optional>

namespace {

/// The byte order mark follows the host's setting and not the target: the codes of the two C++ targets, 0 and 4, ask
/// for it. A repaired macro has one wherever it is not told otherwise how to read it: a page says so itself, VBA takes
/// it for text, and Python reads UTF-8.
bool wantsByteOrderMark(const Writer& writer)
{
    using inkmacro::Target;
    if (writer.repairs)
        return writer.target != Target::JavaScript && writer.target != Target::Vba && writer.target != Target::Python;
    return (RecordingLanguage() & ~4) == 0;
}

bool isSysVar(const OdRxObjectPtr& action)
{
    return !odrxQuery<CFxSysVarChanged>(action.get()).isNull();
}

} // namespace

CFxConverterIWAPIImpl::CFxConverterIWAPIImpl(inkmacro::Target target, std::uint32_t mode)
    : conversion(target, mode), frame(CreateMacroFrame(conversion.writer))
{
}

std::int32_t CFxConverterIWAPIImpl::Convert(const CFxString& path, const CFxActionArray& actions)
{
    Writer& writer = conversion.writer;
    std::optional<OwnLanguage> language;
    if (writer.repairs)
        language.emplace(writer.target);
    GetFxSystemServices()->Notes().Forget();
    if (const char* const reason = writer.repairs ? frame->refusal(QFileInfo(path).fileName()) : nullptr) {
        GetFxSystemServices()->ReportFailedFile(path, reason);
        return kFxFailure;
    }
    const QDir directory(QFileInfo(path).path());
    if (!directory.exists() && !directory.mkpath("."))
        return kFxFailure;

    QFile file(path);
    QTextStream stream(&file);
    stream.setCodec("UTF-8");
    stream.setGenerateByteOrderMark(wantsByteOrderMark(writer));
    if (!file.open(QIODevice::WriteOnly | QIODevice::Text)) {
        GetFxSystemServices()->ReportFailedFile(path, file.errorString());
        return kFxFailure;
    }

    // Ends in front of the stream, whatever is thrown.
    MacroFile macro(stream, path, writer.target, writer.repairs, writer.notesFaults, frame->functions());
    writer.IndentLevel = 0;
    const bool hasSysVar = std::any_of(actions.begin(), actions.end(), isSysVar);
    frame->setMacroPath(path);
    Statement header = frame->EmitFileHeader(inkmacro::projectName(path), hasSysVar);
    if (writer.target == inkmacro::Target::Vba && stream.generateByteOrderMark())
        header = writer.faulty(header, otherLanguage);
    macro.writeFrame(header);
    writer.onSheet = !RecordingInModel;
    RecordingSheetName = CFxString();
    RecordingInModel = true;

    std::int32_t status = kFxSuccess;
    const Siblings siblings(actions);
    const QScopedValueRollback<const Siblings*> beside(conversion.siblings, &siblings);
    for (unsigned i = 0; i < actions.length() && status == kFxSuccess; ++i) {
        const CFxConversionNotes::Action place(GetFxSystemServices()->Notes(), i);
        macro.beginAction(i);
        if (actions[i])
            status = ConvertTopLevel(macro, actions[i]);
        macro.endAction();
    }

    macro.endActions();
    // Written after a failure too, when the level may be out of balance: nobody reads that text.
    macro.writeFrame(frame->EmitFileFooter());
    macro.finish();
    stream.flush();
    bool written = stream.status() == QTextStream::Ok && file.error() == QFileDevice::NoError;
    QString reason = written ? QString() : inkmacro::writeFailure(file);
    // Some file systems tell only who closes a file that it was not written. A close that goes well forgets the rest.
    file.close();
    if (written && file.error() != QFileDevice::NoError) {
        written = false;
        reason = file.errorString();
    }
    if (!written) {
        GetFxSystemServices()->ReportFailedFile(path, reason);
        status = kFxFailure;
    }

    if (status != kFxSuccess) {
        file.remove();
        return status;
    }
    return frame->EmitProjectFiles(path);
}

std::int32_t CFxConverterIWAPIImpl::ConvertTopLevel(MacroFile& macro, const OdRxObjectPtr& action)
{
    if (const auto command = odrxQuery<CFxUserCommand>(action.get())) {
        try {
            const OdResBufPtr line = command->GetCommand();
            return ConvertCommand(conversion, macro, line ? line->getString() : OdString(), command->GetActions());
        } catch (const OdError& error) {
            return FailedAction(action, error);
        }
    }
    if (const auto added = odrxQuery<CFxObjectAdded>(action.get())) {
        const Statement declaration = EmitVariableDeclaration(
            conversion.writer, conversion.names().RegisterObject(added->GetHandle(), added->GetObjectClass()));
        macro.begin(CFxMacroPart::kDeclaration);
        // Who changes the note of a leader declares its variable once more.
        if (added->GetObjectClass() == OdDbMText::desc() && !GetNoteLeader(added->GetHandle()).isNull())
            macro.write(declaration);
        else
            macro.writeDeclarations(declaration);
    }

    Statement text;
    const std::int32_t status = ConvertOrLose(conversion, action, text);
    macro.begin(CFxMacroPart::kStatements);
    if (status == kFxSuccess)
        macro.write(text);
    return status;
}
