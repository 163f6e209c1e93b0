#include "recordfile/Pieces.h"

#include "recordfile/actionForms.h"
#include "recordfile/drawingForms.h"

#include <QJsonDocument>

namespace inkmacro {

using namespace recordfile;

namespace {

/// What `write` writes, which is read again: no form makes anything but text.
template<class Write>
QJsonValue written(JsonOut out, Write write)
{
    // Qt reads documents, and a document is no bare value.
    out.beginArray();
    write(out);
    out.endArray();
    return QJsonDocument::fromJson(out.bytes()).array().first();
}

template<class T>
QJsonValue formJson(const T& value, CFxValueContext context = 0)
{
    return written(JsonOut(context, NeutralKeys::Write), [&](JsonOut& out) { Form<T>::write(out, value); });
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

QJsonObject ObjectToJson(const OdDbObject& object)
{
    return written(JsonOut(0), [&](JsonOut& out) { DrawingObjectForm::write(out, object); }).toObject();
}

QString ActionKind(const OdRxObjectPtr& action)
{
    for (const Choice<OdRxObjectPtr>& choice : actionChoices())
        if (choice.holds(action))
            return toText(choice.key);
    return {};
}

} // namespace inkmacro
