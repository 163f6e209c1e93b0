#include "host/db/odutWcMatch.h"

#include <QRegExp>

bool odutWcMatchNoCase(const OdString& text, const OdString& pattern)
{
    return QRegExp(pattern, Qt::CaseInsensitive, QRegExp::Wildcard).exactMatch(text);
}
