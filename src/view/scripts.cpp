#include "view/scripts.h"

#include "view/scriptTexts.h"

#include <QJsonDocument>
#include <QJsonObject>

namespace inkmacro {

QByteArray verifyScript()
{
    QJsonObject tables;
    for (const texts::Named& table : texts::tables)
        tables.insert(table.name, QString::fromUtf8(table.text));
    QByteArray script = "'use strict';\nconst TEXTS = " + QJsonDocument(tables).toJson(QJsonDocument::Compact) + ";\n";
    for (const texts::Named& part : texts::scripts)
        script += part.text;
    return script;
}

} // namespace inkmacro
