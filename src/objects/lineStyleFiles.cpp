#include "objects/lineStyleFiles.h"

#include "host/db/LineStyleFile.h"
#include "host/kernel/CFxServices.h"

#include <QDir>

namespace {

bool holds(const QString& path, const CFxString& styleName)
{
    LineStyleFile file(path);
    LineStyleFile::Style style;
    while (file.next(style))
        if (styleName.equalNoCase(style.name))
            return true;
    return false;
}

} // namespace

QString lineStyleFile(const CFxString& styleName)
{
    if (!ACTIVE_DOCUMENT)
        return {};
    for (const OdString& folder : ACTIVE_DOCUMENT->GetDatabase()->lineStyleFolders()) {
        const QDir directory(folder);
        // Whatever the case of the ending.
        for (const QString& file : directory.entryList({"*.lin"}, QDir::Files, QDir::Name))
            if (holds(directory.filePath(file), styleName))
                return directory.filePath(file);
    }
    return {};
}
