#include "recordfile/Recording.h"

namespace inkmacro {

QString RecordingError::text() const
{
    QString text = file;
    if (line > 0)
        text += ':' + QString::number(line);
    text += ": ";
    if (!path.isEmpty())
        text += path + ": ";
    return text + message;
}

} // namespace inkmacro
