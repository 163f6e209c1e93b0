#include "host/kernel/CFxUserIO.h"

#include "host/db/OdDbDatabase.h"

#include <QDir>
#include <QFileInfo>
#include <QRegularExpression>
#include <QStringList>

#include <cmath>
#include <unordered_set>

namespace {

CFxString question(const CFxString& prompt)
{
    return prompt.toQString() + ": ";
}

QString listed(const std::vector<CFxString>& words)
{
    QStringList list;
    for (const CFxString& word : words)
        list.append(word);
    return list.join(", ");
}

/// Two or three coordinates.
bool parsePoint(QString text, const OdGePoint3d* base, OdGePoint3d& point)
{
    const bool relative = base && text.startsWith('@');
    if (relative)
        text.remove(0, 1);
    const QStringList parts = text.split(',');
    if (parts.size() != 2 && parts.size() != 3)
        return false;
    std::array<double, 3> coordinates{};
    for (int i = 0; i < parts.size(); ++i)
        if (CFxUserIO::ParseNumber(parts[i], OdResBuf::kRtDouble, coordinates[static_cast<std::size_t>(i)]) !=
            kFxSuccess)
            return false;
    point = {coordinates[0], coordinates[1], coordinates[2]};
    if (relative)
        point = {base->x + point.x, base->y + point.y, base->z + point.z};
    return true;
}

} // namespace

CFxUserIO::~CFxUserIO() = default;

CFxStatus CFxUserIO::GetKeyword(const CFxString& prompt, const CFxKeywordArray& keywords, CFxString& global)
{
    const QString shown = keywords.GetShown(global);
    const CFxString asked = question(shown.isEmpty() ? prompt : CFxString(prompt.toQString() + " <" + shown + '>'));
    CFxString answer;
    while (ReadAnswer(asked, {keywords.GetAnswers(), {}}, answer)) {
        const QString word = answer.toQString().trimmed();
        if (word.isEmpty())
            return shown.isEmpty() ? kFxNothing : kFxSuccess;
        const std::vector<CFxString> found = keywords.Find(word);
        if (found.size() == 1) {
            global = found.front();
            return kFxSuccess;
        }
        ShowMessage(found.empty() ? QString("\"%1\" is none of the options.").arg(word)
                                  : QString("\"%1\" stands for several options: %2.").arg(word, listed(found)));
    }
    return kFxCancelled;
}

CFxStatus CFxUserIO::GetString(const CFxString& prompt, CFxString& text, const std::vector<CFxString>& expected)
{
    while (ReadAnswer(question(prompt), {expected, {}}, text)) {
        if (text.toQString().isValidUtf16())
            return kFxSuccess;
        ShowMessage("The text has bytes that are no characters.");
    }
    return kFxCancelled;
}

CFxStatus CFxUserIO::GetPoint(const CFxString& prompt, const OdGePoint3d* base, OdGePoint3d& point)
{
    CFxString answer;
    while (ReadAnswer(question(prompt), {}, answer)) {
        if (parsePoint(answer, base, point))
            return kFxSuccess;
        ShowMessage("A point is x,y or x,y,z.");
    }
    return kFxCancelled;
}

/// What is drawn, and not what block definitions are made of.
std::vector<OdDbObjectId> CFxUserIO::AllEntities() const
{
    const OdArray<OdDbObjectId> ids = database_.objectIds();
    std::unordered_set<std::uint64_t> inDefinitions;
    for (const OdDbObjectId& id : ids) {
        const auto block = odrxQuery<OdDbBlockTableRecord>(id.openObject().get());
        if (!block || block->isLayout())
            continue;
        for (const OdDbObjectIteratorPtr part = block->newIterator(); !part->done(); part->step())
            inDefinitions.insert(part->objectId().getHandle().value());
    }
    std::vector<OdDbObjectId> entities;
    for (const OdDbObjectId& id : ids)
        if (odrxQuery<OdDbEntity>(id.openObject().get()) && !inDefinitions.contains(id.getHandle().value()))
            entities.push_back(id);
    return entities;
}

bool CFxUserIO::FindEntities(const CFxString& answer, std::vector<OdDbObjectId>& ids)
{
    static const QRegularExpression blanks("\\s+");
    for (const QString& word : answer.toQString().split(blanks, Qt::SkipEmptyParts)) {
        if (word.compare("all", Qt::CaseInsensitive) == 0) {
            const std::vector<OdDbObjectId> all = AllEntities();
            ids.insert(ids.end(), all.begin(), all.end());
            continue;
        }
        bool hexadecimal = false;
        const OdDbHandle handle(word.toULongLong(&hexadecimal, 16));
        const OdDbObjectId id = hexadecimal ? database_.findOdDbObjectId(handle) : OdDbObjectId();
        if (!odrxQuery<OdDbEntity>(id.openObject().get())) {
            ShowMessage(QString("There is no entity with the handle %1.").arg(word));
            return false;
        }
        ids.push_back(id);
    }
    return true;
}

CFxStatus CFxUserIO::GetSelection(CFxSelectionSet& set, std::uint32_t, std::int32_t)
{
    CFxString answer;
    while (ReadAnswer(question("Specify entities"), {{"all"}, {}}, answer)) {
        std::vector<OdDbObjectId> ids;
        if (!FindEntities(answer, ids))
            continue;
        for (const OdDbObjectId& id : ids)
            set.Append(id);
        return ids.empty() ? kFxNothing : kFxSuccess;
    }
    return kFxCancelled;
}

CFxStatus CFxUserIO::GetFile(const CFxFileQuestion& wanted, CFxString& path)
{
    ShowMessage(wanted.title);
    CFxKeywordArray none;
    none.Add(wanted.noneLocal, wanted.noneGlobal);
    const CFxString asked = question(none.BuildPrompt("Specify " + wanted.word.toQString()));
    const CFxExpectedAnswers expected{none.GetAnswers(), wanted.filter.toQString().section('&', 1, 1)};
    CFxString answer;
    while (ReadAnswer(asked, expected, answer)) {
        if (answer.isEmpty() || !none.Find(answer).empty())
            return kFxNothing;
        const QFileInfo file(QDir().absoluteFilePath(answer));
        if (!wanted.existing || (file.isFile() && file.isReadable())) {
            path = file.filePath();
            return kFxSuccess;
        }
        ShowMessage(QString("There is no file %1 that can be read.").arg(answer.toQString()));
    }
    return kFxCancelled;
}

CFxStatus CFxUserIO::ParseNumber(const CFxString& text, int type, double& number)
{
    bool numeric = false;
    const double value = text.toQString().trimmed().toDouble(&numeric);
    if (!numeric || !std::isfinite(value) || (type != OdResBuf::kRtDouble && value != std::trunc(value)))
        return kFxFailure;
    number = value;
    return kFxSuccess;
}
