#pragma once

#include "statements/Fill.h"

#include <QString>

#include <algorithm>

namespace inkmacro {

// The forms that Fill's values take in a text.

inline QString filledByQt(const QString& text, Fill::Blanks value)
{
    return text.arg(QChar(u' '), value.count, QChar(u' '));
}

inline QString filledByQt(const QString& text, Fill::Long value)
{
    return text.arg(value.value, 0, 'f', 14, QChar(u' '));
}

inline QString filledByQt(const QString& text, Fill::Short value)
{
    return text.arg(value.value, 0, 'g', -1, QChar(u' '));
}

inline QString filledByQt(const QString& text, Fill::Text value)
{
    return text.arg(value.value);
}

template<class T>
QString filledByQt(const QString& text, T value)
{
    return text.arg(value);
}

template<class T>
QString madeByQt(T value)
{
    return filledByQt(QStringLiteral("%1"), value);
}

/// Most characters that the written value can have.
qsizetype room(Fill::Blanks value);
qsizetype room(QStringView value);
qsizetype room(QLatin1String value);
inline qsizetype room(Fill::Text text)
{
    return room(text.value);
}
qsizetype room(qlonglong);
qsizetype room(qulonglong);
qsizetype room(Fill::Long value);
qsizetype room(Fill::Short);

/// Writes the value at `out` and returns its end.
QChar* write(QChar* out, Fill::Blanks value);
QChar* write(QChar* out, QStringView value);
QChar* write(QChar* out, QLatin1String value);
inline QChar* write(QChar* out, Fill::Text text)
{
    return write(out, text.value);
}
QChar* write(QChar* out, qulonglong value);
QChar* write(QChar* out, qlonglong value);
QChar* write(QChar* out, Fill::Long value);
QChar* write(QChar* out, Fill::Short value);

inline QChar* copyText(QChar* out, const QChar* from, qsizetype length)
{
    return std::copy_n(from, length, out);
}

/// A text of at most `most` characters, made by a writer.
template<class Writer>
QString written(qsizetype most, Writer writer)
{
    QString text(static_cast<int>(most), Qt::Uninitialized);
    QChar* const begin = text.data();
    text.truncate(static_cast<int>(writer(begin) - begin));
    return text;
}

} // namespace inkmacro
