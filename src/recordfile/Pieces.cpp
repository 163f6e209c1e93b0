#include "recordfile/Pieces.h"

#include "recordfile/actionForms.h"

#include <QJsonDocument>

namespace inkmacro {

using namespace recordfile;

namespace {

/// What the form writes, which is read again: no form makes anything but text.
template<class T>
QJsonValue formJson(const T& value, CFxValueContext context = 0)
{
    // Qt reads documents, and a document is no bare value.
    JsonOut out(context, NeutralKeys::Write);
    out.beginArray();
    Form<T>::write(out, value);
    out.endArray();
    return QJsonDocument::fromJson(out.bytes()).array().first();
}

} // namespace

QJsonValue ValueToJson(const CFxVariant& value)
{
    return formJson(value);
}

QJsonValue ActionToJson(const OdRxObjectPtr& action, CFxValueContext context)
{
    return formJson(action, context)[ActionKind(action)];
}

QString ActionKind(const OdRxObjectPtr& action)
{
    for (const Choice<OdRxObjectPtr>& choice : actionChoices())
        if (choice.holds(action))
            return toText(choice.key);
    return {};
}

QString DataType(const CFxCustomActionData& data)
{
    return toText(dataType(data));
}

} // namespace inkmacro
