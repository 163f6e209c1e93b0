// Files of line styles. A style in them is a line with a star, its name, a comma and a description, and a line of
// dashes and gaps behind it.

#include "objects/lineStyleFiles.h"

#include "host/kernel/CFxServices.h"

#include <QDir>
#include <QFile>

namespace {

/// Longer lines come in pieces: no style has them, but any file may have the ending.
constexpr qint64 kLongestLine = 4096;

/// The name of the style that the line begins; null when it begins none.
QByteArray styleIn(const QByteArray& line)
{
    if (!line.startsWith('*'))
        return {};
    const int comma = line.indexOf(',');
    return line.mid(1, comma < 0 ? -1 : comma - 1).trimmed();
}

/// Such files have no sign of their encoding: the old ones are Latin-1.
bool isName(const QByteArray& bytes, const CFxString& name)
{
    return name.equalNoCase(QString::fromUtf8(bytes)) || name.equalNoCase(QString::fromLatin1(bytes));
}

bool holds(const QString& path, const CFxString& styleName)
{
    QFile file(path);
    if (!file.open(QIODevice::ReadOnly))
        return false;
    while (!file.atEnd()) {
        const QByteArray name = styleIn(file.readLine(kLongestLine));
        if (!name.isNull() && isName(name, styleName))
            return true;
    }
    return false;
}

} // namespace

QString lineStyleFile(const CFxString& styleName)
{
    if (!ACTIVE_DOCUMENT)
        return {};
    for (const OdString& folder : ACTIVE_DOCUMENT->GetDatabase()->lineStyleFolders()) {
        const QDir directory(folder);
        // Regular files only, and whatever the case of the ending.
        for (const QString& file : directory.entryList({"*.lin"}, QDir::Files, QDir::Name))
            if (holds(directory.filePath(file), styleName))
                return directory.filePath(file);
    }
    return {};
}
