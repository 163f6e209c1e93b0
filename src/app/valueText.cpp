#include "app/valueText.h"

#include <QJsonArray>
#include <QJsonObject>
#include <QLocale>
#include <QSet>
#include <QStringList>

#include <algorithm>

namespace inkmacro {

QString counted(qint64 count, const char* one, const char* many)
{
    return QString::number(count) + ' ' + (count == 1 ? one : many);
}

QString joined(QStringList parts, const char* last)
{
    if (parts.size() < 2)
        return parts.join(QString());
    const QString end = parts.takeLast();
    return parts.join(", ") + ' ' + last + ' ' + end;
}

namespace {

/// Line and paragraph separators, and the marks, embeddings, overrides and isolates that turn the direction of writing.
bool turnsLines(QChar letter)
{
    const ushort code = letter.unicode();
    return code == 0x061C || code == 0x200E || code == 0x200F || (code >= 0x2028 && code <= 0x202E) ||
           (code >= 0x2066 && code <= 0x2069);
}

/// A byte of a file's name that is no letter.
bool isByte(const QString& text, int at)
{
    const ushort code = text[at].unicode();
    return code >= 0xDC80 && code <= 0xDCFF && (at == 0 || !text[at - 1].isHighSurrogate());
}

QString hexadecimal(const char* form, int code, int digits)
{
    return QString(form).arg(code, digits, 16, QChar('0'));
}

QString shownLetter(const QString& text, int at)
{
    const QChar letter = text[at];
    if (letter == '\n')
        return "\\n";
    if (letter.category() == QChar::Other_Control)
        return hexadecimal("\\x%1", letter.unicode(), 2);
    if (isByte(text, at))
        return hexadecimal("\\x%1", letter.unicode() & 0xFF, 2);
    return turnsLines(letter) ? hexadecimal("\\u%1", letter.unicode(), 4) : QString(letter);
}

QString shownText(const QString& text, const QString& kept)
{
    const auto standsForItself = [](QChar letter) { return letter.unicode() >= ' ' && letter.unicode() < 0x7F; };
    if (std::all_of(text.begin(), text.end(), standsForItself))
        return text;
    QString shown;
    for (int i = 0; i < text.length(); ++i)
        shown += kept.contains(text[i]) ? QString(text[i]) : shownLetter(text, i);
    return shown;
}

} // namespace

QString printable(const QString& text)
{
    return shownText(text, {});
}

QString printableLines(const QString& text)
{
    return shownText(text, "\n\t");
}

namespace {

QString quoted(QString text)
{
    text.replace('\\', "\\\\").replace('"', "\\\"");
    return '"' + printable(text) + '"';
}

QString listText(const QJsonArray& array)
{
    QStringList items;
    for (const QJsonValue& item : array)
        items.append(valueText(item));
    return '(' + items.join(", ") + ')';
}

/// The keys that only name the type of a value that shows its type by itself are left out.
QString objectText(const QJsonObject& object)
{
    static const QSet<QString> plain{"int",     "int8",    "int16",  "int32",      "double",  "bool",    "point",
                                     "point2d", "point3d", "string", "collection", "element", "elements"};
    static const QSet<QString> words{"id", "color"};
    if (object.contains("tag") && object.contains("value"))
        return valueText(object["tag"]) + ": " + valueText(object["value"]);
    QStringList items;
    for (auto entry = object.begin(); entry != object.end(); ++entry) {
        const QJsonValue value = entry.value();
        if (plain.contains(entry.key()))
            items.append(valueText(value));
        else if (words.contains(entry.key()) && value.isString())
            items.append(entry.key() + ' ' + printable(value.toString()));
        else if (entry.key() != "type" && (entry.key() != "chosen" || value != 0))
            items.append(entry.key() + ' ' + valueText(value));
    }
    return items.isEmpty() ? QStringLiteral("no value") : items.join(", ");
}

} // namespace

QString valueText(const QJsonValue& value)
{
    switch (value.type()) {
    case QJsonValue::Bool:
        return value.toBool() ? "true" : "false";
    case QJsonValue::Double:
        return QString::number(value.toDouble(), 'g', QLocale::FloatingPointShortest);
    case QJsonValue::String:
        return quoted(value.toString());
    case QJsonValue::Array:
        return listText(value.toArray());
    case QJsonValue::Object:
        return objectText(value.toObject());
    default:
        return "null";
    }
}

} // namespace inkmacro
