#include "app/valueText.h"

#include <QJsonArray>
#include <QJsonObject>
#include <QLocale>
#include <QSet>
#include <QStringList>

namespace inkmacro {

QString counted(qint64 count, const char* one, const char* many)
{
    return QString::number(count) + ' ' + (count == 1 ? one : many);
}

QString printable(const QString& text)
{
    QString shown;
    for (const QChar letter : text) {
        if (letter == '\n')
            shown += "\\n";
        else if (letter.category() == QChar::Other_Control)
            shown += QString("\\x%1").arg(letter.unicode(), 2, 16, QChar('0'));
        else
            shown += letter;
    }
    return shown;
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
    static const QSet<QString> plain{"int",  "int8",  "int16",   "int32",   "double",
                                     "bool", "point", "point2d", "point3d", "string"};
    static const QSet<QString> words{"id", "color"};
    QStringList items;
    for (auto entry = object.begin(); entry != object.end(); ++entry) {
        const QJsonValue value = entry.value();
        if (plain.contains(entry.key()))
            items.append(valueText(value));
        else if (words.contains(entry.key()) && value.isString())
            items.append(entry.key() + ' ' + value.toString());
        else if (entry.key() != "type")
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
