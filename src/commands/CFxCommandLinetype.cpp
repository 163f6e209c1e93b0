#include "commands/CFxCommandLinetype.h"

#include "commands/texts.h"
#include "host/commands/GetLinetype.h"
#include "host/db/LineStyleFile.h"
#include "host/db/odutWcMatch.h"

#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QSet>
#include <QStringList>

namespace {

constexpr CommandTexts texts("CFxCommandLinetype");
constexpr const char* kOption = "Command Option: Upper- and Lowercase letters are relevant.";
constexpr const char* kYesNoGroup = "[GROUPYESNO] Command Option: Upper- and Lowercase letters are relevant.";

enum class FileUse
{
    CreateOrAppend = 0,
    Read = 1,
};

/// The name as the drawing's user knows it.
QString activeName(OdDbDatabase& database)
{
    const OdDbObjectId active = database.currentLineStyleId();
    if (active.isNull() || active == database.getLinetypeByLayerId())
        return "ByLayer";
    if (active == database.getLinetypeByBlockId())
        return "ByBlock";
    if (active == database.getLinetypeContinuousId())
        return texts("Continuous");
    const auto record = odrxQuery<OdDbLinetypeTableRecord>(active.openObject().get());
    return record ? record->getName() : active.getHandle().ascii();
}

CFxStatus askForFile(CFxUserIO& io, FileUse use, CFxString& path)
{
    const bool read = use == FileUse::Read;
    return io.GetFile({.title = texts(read ? "Specify LineStyle File" : "Create or Append LineStyle file"),
                       .filter = texts("LineStyle (*.lin)").toQString() + "&*.lin&&",
                       .word = texts("style definition file"),
                       .noneLocal = texts(". for none,.", kOption),
                       .noneGlobal = "_.",
                       .existing = read},
                      path);
}

/// The star for all, and the names in the files of the drawing's folders and of the current one.
std::vector<CFxString> namesInFiles(const OdDbDatabase& database)
{
    std::vector<OdString> folders = database.lineStyleFolders();
    folders.emplace_back(QDir::currentPath());
    std::vector<CFxString> names{"*"};
    for (const OdString& folder : folders) {
        const QDir directory(folder);
        for (const QString& name : directory.entryList({"*.lin"}, QDir::Files)) {
            LineStyleFile file(directory.filePath(name));
            for (LineStyleFile::Style style; file.next(style);)
                names.emplace_back(style.name);
        }
    }
    return names;
}

/// A name and the file that it may be in; kFxNothing when the user leaves one of them out.
CFxStatus askForStyles(CFxUserIO& io, const OdDbDatabase& database, CFxString& name, CFxString& path)
{
    const CFxStatus status = io.GetString(texts("Specify LineStyle"), name, namesInFiles(database));
    if (status != kFxSuccess)
        return status;
    return name.isEmpty() ? kFxNothing : askForFile(io, FileUse::Read, path);
}

std::vector<LineStyleFile::Style> stylesIn(const QString& path, const QString& filter)
{
    std::vector<LineStyleFile::Style> styles;
    LineStyleFile file(path);
    for (LineStyleFile::Style style; file.next(style);)
        if (odutWcMatchNoCase(style.name, filter))
            styles.push_back(style);
    return styles;
}

CFxStatus list(CFxUserIO& io, const OdDbDatabase& database)
{
    CFxString filter;
    CFxString path;
    if (const CFxStatus status = askForStyles(io, database, filter, path); status != kFxSuccess)
        return status;
    io.ShowMessage(texts("LineStyles defined in file %1").toQString().arg(path.toQString()));
    io.ShowMessage(QString(" %1 %2 ").arg(texts("Name").toQString(), texts("Description")));
    const QString rule = "---------------- ------------------";
    io.ShowMessage(rule);
    const int column = rule.indexOf(' ') + 1;
    for (const auto& [name, description] : stylesIn(path, filter)) {
        const int quotes = 2;
        const QString padding(std::max(1, column - name.length() - quotes), ' ');
        io.ShowMessage(QString("\"%1\"%2%3").arg(name, padding, description));
    }
    return kFxSuccess;
}

/// Whether the text is a list of dashes, spaces and dots; else says why not.
bool parseSpecs(CFxUserIO& io, const QString& text)
{
    constexpr unsigned fewest = 2;
    constexpr unsigned most = 12;
    const QStringList parts = text.split(',');
    for (const QString& part : parts) {
        double length = 0.0;
        if (CFxUserIO::ParseNumber(part, OdResBuf::kRtDouble, length) == kFxSuccess)
            continue;
        io.ShowMessage(texts("Invalid number or bad continuation."));
        return false;
    }
    if (static_cast<unsigned>(parts.size()) - fewest <= most - fewest)
        return true;
    io.ShowMessage(texts("There must be between 2 and 12 dash/dot specs."));
    return false;
}

/// Closes the file, which is where some file systems find out that the disk is full. Gives why not, or empty text.
QString writeAndClose(QFile& file, const QByteArray& bytes)
{
    // Only the write behind one that was cut short tells why.
    qint64 written = 0;
    for (qint64 more = 0; more >= 0 && written < bytes.size(); written += more)
        more = file.write(bytes.mid(static_cast<int>(written)));
    const QString reason = written < bytes.size() ? file.errorString() : QString();
    file.close();
    return reason.isEmpty() && file.error() != QFileDevice::NoError ? file.errorString() : reason;
}

/// Behind what the file has; false when that cannot be, and then the file is as it was, or missing as it was.
bool append(const QString& path, const QByteArray& bytes)
{
    // The information would look anew once the file is there.
    const QFileInfo before(path);
    const bool existed = before.exists();
    const qint64 length = before.size();
    QFile file(path);
    if ((existed && !before.isFile()) ||
        !file.open(QIODevice::ReadWrite | QIODevice::Append | QIODevice::Text | QIODevice::Unbuffered))
        return false;
    const QString reason = writeAndClose(file, bytes);
    if (reason.isEmpty())
        return true;
    GetFxSystemServices()->ReportProblem(QString("the line style could not be written to %1: %2").arg(path, reason));
    if (existed)
        QFile::resize(path, length);
    else // A link that led nowhere does so again.
        QFile::remove(QFileInfo(path).canonicalFilePath());
    return false;
}

CFxStatus create(CFxUserIO& io)
{
    CFxString name;
    CFxString path;
    CFxString description;
    CFxString specs;
    CFxStatus status = io.GetString(texts("Specify new LineStyle name"), name);
    if (status == kFxSuccess)
        status = name.toQString().trimmed().isEmpty() ? kFxNothing : askForFile(io, FileUse::CreateOrAppend, path);
    if (status == kFxSuccess)
        status = io.GetString(texts("Specify descriptive text"), description);
    if (status != kFxSuccess)
        return status;
    do {
        io.ShowMessage(texts(
            "Format: positive decimal values for dashes, negative decimal values for spaces, and a 0 for dots..."));
        status = io.GetString(texts("Specify pattern descriptors"), specs);
        if (status != kFxSuccess)
            return status;
    } while (!parseSpecs(io, specs));

    const QString lines = "\r\n*" + name.toQString() + ',' + description + "\r\nA," + specs + "\r\n";
    if (append(path, lines.toLocal8Bit()))
        io.ShowMessage(texts("New LineStyle definition saved to file."));
    return kFxSuccess;
}

/// Those that can be loaded by their name, which finds the first of several.
std::vector<LineStyleFile::Style> loadableStylesIn(const QString& path, const QString& filter)
{
    const auto leftOut = [&path](const QString& what) {
        GetFxSystemServices()->ReportProblem(QString("%1 in %2 is left out").arg(what, path));
    };
    std::vector<LineStyleFile::Style> loadable;
    QSet<QString> names;
    for (const LineStyleFile::Style& style : stylesIn(path, filter)) {
        if (style.name.isEmpty())
            leftOut("a line style without a name");
        else if (names.contains(style.name.toCaseFolded()))
            leftOut(QString("a further definition of the line style %1").arg(style.name));
        else
            loadable.push_back(style);
        names.insert(style.name.toCaseFolded());
    }
    return loadable;
}

/// Whether a style that is loaded already shall be taken over from the file.
CFxStatus askForReload(CFxUserIO& io, const QString& name, bool& reload)
{
    CFxKeywordArray keywords;
    keywords.Add(texts("Yes", kYesNoGroup), "_Yes");
    keywords.Add(texts("No", kYesNoGroup), "_No");
    CFxString answer = "_Yes";
    const QString prompt = texts("LineStyle \"%1\" is already loaded. Reload it?").toQString().arg(name);
    const CFxStatus status = io.GetKeyword(keywords.BuildPrompt(prompt), keywords, answer);
    reload = !answer.equalNoCase("_No");
    return status;
}

CFxStatus load(CFxUserIO& io, OdDbDatabase& database)
{
    CFxString wanted;
    CFxString path;
    if (const CFxStatus status = askForStyles(io, database, wanted, path); status != kFxSuccess)
        return status;
    const bool all = wanted.toQString() == "*";
    std::vector<LineStyleFile::Style> styles = loadableStylesIn(path, wanted);
    if (styles.empty() && !all)
        styles.push_back({wanted, {}});

    const auto table = odrxCast<OdDbSymbolTable>(database.getLinetypeTableId().openObject().get());
    for (const auto& [name, description] : styles) {
        const bool known = !table->getAt(name).isNull();
        bool wantsIt = true;
        if (known)
            if (const CFxStatus status = askForReload(io, name, wantsIt); status != kFxSuccess)
                return status;
        if (!wantsIt)
            continue;
        try {
            database.loadLineTypeFile(name, path);
        } catch (const OdError& error) {
            if (error.code() != eUndefinedLineType)
                throw;
            const CFxString message = texts(all ? "No matching or bad definition of  %1  in file  %2."
                                                : "No matching or bad definition of %1 in file %2.");
            io.ShowMessage(message.toQString().arg(name, path.toQString()));
            continue;
        }
        if (known)
            io.ShowMessage(texts("LineStyle \"%1\" reloaded.").toQString().arg(name));
    }
    return kFxSuccess;
}

CFxStatus activate(CFxCommandContext* context)
{
    OdDbLinetypeTableRecordPtr record;
    const std::int32_t status =
        GetLinetype(context, record, false, texts("Specify LineStyle(s)"), texts("Specify LineStyle"),
                    texts("LineStyle \"%1\" not found in definition file."),
                    texts("You can use the \"Load\" option to load it from another file."), true);
    if (status == kFxSuccess)
        context->GetDatabase().setCurrentLineStyleId(record->objectId());
    return static_cast<CFxStatus>(status);
}

} // namespace

OdRxClass* CFxCommandLinetype::desc()
{
    static OdRxClass* const descriptor = OdRxClass::define("CFxCommandLinetype", CFxCommand::desc());
    return descriptor;
}

OdString CFxCommandLinetype::localName() const
{
    return texts("-LINESTYLE", kCommandName);
}

std::int32_t CFxCommandLinetype::Execute(CFxCommandContext* context)
{
    CFxUserIO* const io = GetFxUserIO(context);
    if (!io)
        return kFxFailure;
    OdDbDatabase& database = context->GetDatabase();
    CFxKeywordArray keywords;
    keywords.Add(texts("? to list,?", kOption), "_?,?");
    keywords.Add(texts("Activate", kOption), "_Activate");
    keywords.Add(texts("Create", kOption), "_Create");
    keywords.Add(texts("Load", kOption), "_Load");
    keywords.Add(texts("Set", kOption), "_Set");
    const CFxString prompt = keywords.BuildPrompt(texts("Specify LineStyle option"));
    for (;;) {
        io->ShowMessage(texts("Active LineStyle: %1").toQString().arg(activeName(database)));
        CFxString option;
        CFxStatus status = io->GetKeyword(prompt, keywords, option);
        if (status == kFxNothing)
            return kFxSuccess;
        if (status != kFxSuccess)
            return status;
        if (option.equalNoCase("_?"))
            status = list(*io, database);
        else if (option.equalNoCase("_CREATE"))
            status = create(*io);
        else if (option.equalNoCase("_LOAD"))
            status = load(*io, database);
        else
            status = activate(context);
        if (status == kFxCancelled)
            return status;
    }
}
