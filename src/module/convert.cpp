// One conversion, from the output path to the project files.

#include "host/db/OdDbClasses.h"
#include "module/CFxConverterIWAPIImpl.h"
#include "objects/CFxConverterIWAPIObject.h"
#include "statements/RecordingState.h"
#include "statements/losses.h"
#include "statements/wording.h"
#include "targets/variables.h"

#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QScopedValueRollback>

#include <algorithm>

namespace {

const inkmacro::Fault kNoSketchManager{"EmitFileHeader",
                                       {inkmacro::Target::Cpp, inkmacro::Target::CppCom, inkmacro::Target::CSharp,
                                        inkmacro::Target::VbNet, inkmacro::Target::Vba},
                                       "a recording that began on a sheet without a name has no sketch manager"};

/// The byte order mark follows the host's setting and not the target: the codes of the two C++ targets, 0 and 4, ask
/// for it.
bool wantsByteOrderMark()
{
    return (RecordingLanguage() & ~4) == 0;
}

/// Of what is thrown below the user hears at once only that a text outgrew every bound.
std::int32_t failed(const OdRxObjectPtr& action, const OdError& error)
{
    NoteLoss(ActionTitle(action.get()), error.what());
    if (error.code() == eTextTooLong)
        GetFxSystemServices()->ReportProblem(QString(error.what()));
    return kFxFailure;
}

bool isSysVar(const OdRxObjectPtr& action)
{
    return !odrxQuery<CFxSysVarChanged>(action.get()).isNull();
}

} // namespace

CFxConverterIWAPIImpl::CFxConverterIWAPIImpl(inkmacro::Target target, std::uint32_t mode)
    : writer(target),
      mode(mode),
      frame(CreateMacroFrame(writer)),
      objectConverter(std::make_shared<CFxConverterIWAPIObject>(*this))
{
}

CFxConverterIWAPIImpl::~CFxConverterIWAPIImpl() = default;

std::int32_t CFxConverterIWAPIImpl::Convert(const CFxString& path, const CFxActionArray& actions)
{
    GetFxSystemServices()->Notes().Forget();
    const QDir directory(QFileInfo(path).path());
    if (!directory.exists() && !directory.mkpath("."))
        return kFxFailure;

    QFile file(path);
    QTextStream stream(&file);
    stream.setCodec("UTF-8");
    stream.setGenerateByteOrderMark(wantsByteOrderMark());
    if (!file.open(QIODevice::WriteOnly | QIODevice::Text))
        return kFxFailure;

    // Ends in front of the stream, whatever is thrown.
    const Writer::Background background(writer, stream);
    writer.IndentLevel = 0;
    const bool hasSysVar = std::any_of(actions.begin(), actions.end(), isSysVar);
    writer.file = QFileInfo(path).fileName();
    if (NotesFaults())
        writer.noteFaults();
    QString header = frame->EmitFileHeader(inkmacro::projectName(path), hasSysVar);
    if (!RecordingInModel && RecordingSheetName.isEmpty() && writer.target != inkmacro::Target::JavaScript)
        header = writer.faulty(header, kNoSketchManager);
    writer.write(stream, header);
    RecordingSheetName = CFxString();
    RecordingInModel = true;

    std::int32_t status = kFxSuccess;
    const ActionKinds kinds(actions);
    const QScopedValueRollback<const ActionKinds*> beside(siblings, &kinds);
    for (unsigned i = 0; i < actions.length() && status == kFxSuccess; ++i) {
        const CFxConversionNotes::Action place(GetFxSystemServices()->Notes(), i);
        if (actions[i])
            status = ConvertTopLevel(stream, actions[i]);
    }

    // Written after a failure too, when the level may be out of balance: nobody reads that text.
    writer.write(stream, frame->EmitFileFooter());
    writer.finish(stream);
    stream.flush();
    bool written = stream.status() == QTextStream::Ok && file.error() == QFileDevice::NoError;
    // Some file systems tell only who closes a file that it was not written. A close that goes well forgets the rest.
    file.close();
    written = written && file.error() == QFileDevice::NoError;
    if (!written)
        status = kFxFailure;

    if (status != kFxSuccess) {
        file.remove();
        return status;
    }
    return frame->EmitProjectFiles(path);
}

std::int32_t CFxConverterIWAPIImpl::ConvertTopLevel(QTextStream& stream, const OdRxObjectPtr& action)
{
    writer.forgetLater();
    if (const auto command = odrxQuery<CFxUserCommand>(action.get())) {
        try {
            const OdResBufPtr line = command->GetCommand();
            return ConvertCommand(stream, line ? line->getString() : OdString(), command->GetActions());
        } catch (const OdError& error) {
            return failed(action, error);
        }
    }
    if (const auto added = odrxQuery<CFxObjectAdded>(action.get()))
        writer.writeDeclarations(
            stream, EmitVariableDeclaration(writer, RegisterObject(added->GetHandle(), added->GetObjectClass())));

    QString text;
    const std::int32_t status = ConvertOrLose(action, text);
    if (status == kFxSuccess)
        writer.write(stream, text);
    return status;
}

std::int32_t CFxConverterIWAPIImpl::ConvertOrLose(const OdRxObjectPtr& action, QString& text)
{
    const LossWatch losses;
    statementFaults.clear();
    const std::int32_t status = ConvertAction(action, text);
    for (const inkmacro::Fault* const fault : statementFaults)
        text = writer.faulty(text, *fault);
    if (status != kFxSuccess && !losses.any())
        NoteLoss(ActionTitle(action.get()), "it could not be converted");
    return status;
}

bool CFxConverterIWAPIImpl::IsWanted(const CFxSysVarChanged& variable) const
{
    return mode == 1 || variable.GetName().equalNoCase("CVPORT");
}

bool CFxConverterIWAPIImpl::HasSibling(std::int32_t kind) const
{
    return siblings && siblings->has(kind);
}

bool CFxConverterIWAPIImpl::HasSiblingBlock() const
{
    return siblings && siblings->hasBlock();
}

std::int32_t CFxConverterIWAPIImpl::ConvertAction(OdRxObjectPtr action, QString& text)
{
    const OdRxObject* const object = action.get();
    try {
        if (auto interaction = odrxQuery<CFxUserInteraction>(object))
            return mode == 1 ? ConvertInteraction(std::move(interaction), text) : kFxSuccess;
        if (auto added = odrxQuery<CFxObjectAdded>(object))
            return Objects().ConvertObjectAdded(std::move(added), text);
        if (const auto modified = odrxQuery<CFxObjectModified>(object))
            return ConvertModified(modified, text);
        if (auto variable = odrxQuery<CFxSysVarChanged>(object))
            return IsWanted(*variable) ? ConvertSysVar(std::move(variable), text) : kFxSuccess;
        if (auto property = odrxQuery<CFxPropertyChanged>(object))
            return Objects().ConvertPropertyChanged(std::move(property), text);
        if (auto selection = odrxQuery<CFxUserSelection>(object))
            return mode == 1 ? ConvertSelection(std::move(selection), text) : kFxSuccess;
        if (auto custom = odrxQuery<CFxCustomAction>(object))
            return ConvertCustomAction(std::move(custom), text);
    } catch (const OdError& error) {
        return failed(action, error);
    }
    return kFxFailure;
}

/// In front of the changes, which may rename it.
CFxString CFxConverterIWAPIImpl::LayerName(const OdDbHandle& handle, const CFxObjectModified& changes)
{
    const auto record = odrxQuery<OdDbLayerTableRecord>(Objects().IdOf(handle).openObject(true).get());
    const auto [known, isNew] = renamedLayers.try_emplace(handle, record ? CFxString(record->getName()) : CFxString());
    CFxString before = known->second;
    PropertyList list = changes.GetProperties();
    if (const CFxVariant renamed = Objects().FindProperty("Name", list, GetContext()); !renamed.IsNull())
        known->second = renamed.GetString();
    return before;
}

/// A layer that the recording did not make has no variable yet, although a statement is about to change it.
std::int32_t CFxConverterIWAPIImpl::ConvertModified(const OdSmartPtr<CFxObjectModified>& action, QString& text)
{
    OdRxClass* const cls = action->GetObjectClass();
    if (!cls)
        return kFxFailure;
    const CFxString className = cls->name();
    const OdDbHandle handle = action->GetHandle();
    if (IsSupportedClass(cls) && className.equalNoCase("AcDbLayerTableRecord") && !FindEntry(handle)) {
        const CFxString layer = LayerName(handle, *action);
        if (writer.repairs && layer.isEmpty()) {
            NoteLoss("changes of " + ObjectTitle(cls, handle).toQString(), "the drawing does not have the layer");
            return kFxSuccess;
        }
        RegisterObject(handle, cls);
        CFxString name;
        ResolveVariable(handle, cls, name);
        if (!name.isEmpty())
            text += EmitGetLayer(writer, name, layer);
        const std::int32_t status = Objects().ConvertObjectModified(action, text);
        // The variable is gone behind its command.
        if (writer.repairs)
            ObjectVariableMap.erase(handle);
        else
            fetchedLayers.insert(handle);
        return status;
    }
    return Objects().ConvertObjectModified(action, text);
}

CFxConverterIWAPIObject& CFxConverterIWAPIImpl::Objects() const
{
    if (!objectConverter)
        throw OdError(eNullObjectPointer);
    return *objectConverter;
}
