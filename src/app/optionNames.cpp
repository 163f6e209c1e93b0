#include "app/optionNames.h"

#include "app/LoadedModule.h"
#include "app/console.h"
#include "host/kernel/CFxServices.h"
#include "recordfile/Recording.h"
#include "recordfile/foreignForm.h"

#include <QFile>
#include <QFileInfo>
#include <QHash>
#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>
#include <QRegularExpression>
#include <QStringList>

#include <optional>

namespace inkmacro {

namespace {

const QRegularExpression identifier("\\A[A-Za-z_][A-Za-z0-9_]*\\z");

QString pathOf(const QString& key)
{
    if (identifier.match(key).hasMatch())
        return key;
    return QJsonDocument(QJsonArray{key}).toJson(QJsonDocument::Compact);
}

/// What the enumerators may begin with of each variable that has an option.
using Stems = QHash<QString, QStringList>;

Stems knownStems()
{
    Stems stems;
    for (const CFxKnownOption& option : LoadedModule()->ListOptions()) {
        const QString& enumerator = option.enumerator;
        stems[option.variable].append(enumerator.left(enumerator.indexOf('_') + 1));
    }
    return stems;
}

bool isEnumerator(const QString& name, const QStringList& stems)
{
    for (const QString& stem : stems)
        if (name.startsWith(stem) && name.length() > stem.length())
            return identifier.match(name).hasMatch();
    return false;
}

std::optional<QByteArray> readAll(const QString& path, RecordingError& error)
{
    QFile file(path);
    if (QFileInfo::exists(path) && !QFileInfo(path).isFile())
        error.message = "is not a regular file";
    else if (!file.open(QIODevice::ReadOnly))
        error.message = "cannot be opened: " + file.errorString();
    if (!error.message.isEmpty())
        return std::nullopt;
    QByteArray text = file.readAll();
    if (file.error() == QFileDevice::NoError)
        return text;
    error.message = "cannot be read: " + file.errorString();
    return std::nullopt;
}

bool setOptionName(const QString& variable, const QJsonValue& value, const QStringList& stems, RecordingError& error)
{
    const QString name = value.toString();
    error.path = pathOf(variable);
    if (stems.isEmpty())
        error.message = "there is no system variable of that name that has an option";
    else if (!isEnumerator(name, stems))
        error.message = "expected an enumerator that begins with " + stems.join(" or ");
    else
        GetFxSystemServices()->SetOptionName(variable, name);
    return error.message.isEmpty();
}

bool readOptionNames(const QString& path, RecordingError& error)
{
    const std::optional<QByteArray> text = readAll(path, error);
    if (!text)
        return false;
    if (const QString foreign = foreignForm({text->constData(), static_cast<std::size_t>(text->size())});
        !foreign.isEmpty()) {
        error.message = "cannot be read: " + foreign;
        return false;
    }
    QJsonParseError fault;
    const QJsonDocument document = QJsonDocument::fromJson(*text, &fault);
    if (fault.error != QJsonParseError::NoError) {
        error.line = 1 + text->left(fault.offset).count('\n');
        error.message = "not valid JSON: " + fault.errorString();
        return false;
    }
    if (!document.isObject()) {
        error.message = "expected an object of system variables and enumerators";
        return false;
    }
    const Stems stems = knownStems();
    const QJsonObject names = document.object();
    for (auto entry = names.begin(); entry != names.end(); ++entry)
        if (!setOptionName(entry.key(), entry.value(), stems.value(entry.key()), error))
            return false;
    return true;
}

} // namespace

bool readOptionNamesOrComplain(const QString& path)
{
    RecordingError error{path, 0, {}, {}};
    if (readOptionNames(path, error))
        return true;
    printLine(error.text());
    return false;
}

} // namespace inkmacro
