// Change handlers that are a list of tags with a statement each.

#include "objects/ChangeRows.h"

#include "frame/CFxConverterIWAPIImpl.h"
#include "objects/targets/pointChanges.h"
#include "objects/targets/setters.h"

ChangeRows::ChangeRows(std::initializer_list<ChangeRow> rows)
{
    for (const ChangeRow& row : rows) {
        if (!row.kind.axes) {
            rows_.push_back(row);
            continue;
        }
        for (const QChar letter : QLatin1String(row.kind.axes)) {
            ChangeRow spread = row;
            spread.tag = row.tag.toQString() + ' ' + letter;
            spread.axis = QString(letter.toUpper());
            rows_.push_back(std::move(spread));
        }
    }
}

/// An added object's tags are read too, so that nobody finds them behind, but its insertion has said it all.
std::int32_t CFxConverterIWAPIObject::ConvertRows(const ChangeRows& rows, PropertyList& list, bool fromAdded,
                                                  const CFxString& name, QString& text)
{
    const CFxValueContext context = driver.GetContext();
    for (const ChangeRow& row : rows) {
        CFxVariant number;
        const CFxVariant value = FindProperty(row.tag, list, context, nullptr, &number);
        if (fromAdded || value.IsNull())
            continue;
        const std::int32_t index = !row.kind.indexed || number.IsNull() ? -1 : number.GetInt32();
        if (row.kind.indexed && index == -1)
            continue;
        text += row.kind.statement({writer, row, name, value, index});
    }
    return kFxSuccess;
}

QString setReal(const Change& change)
{
    return EmitSetDoubleProperty(change.writer, change.name, change.row.property, change.value.GetDouble());
}

QString changePoint(const Change& change)
{
    const QString& pair = change.row.property;
    return EmitChangePoint(change.writer, change.name, change.row.axis, "Get" + pair, "Set" + pair,
                           change.value.GetDouble(), change.index);
}
