#include "view/scripts.h"

#include "view/scriptTexts.h"

#include <QJsonDocument>
#include <QJsonObject>

namespace inkmacro {

QByteArray tableTexts()
{
    QJsonObject tables;
    for (const texts::Named& table : texts::tables)
        tables.insert(table.name, QString::fromUtf8(table.text));
    return QJsonDocument(tables).toJson(QJsonDocument::Compact);
}

QByteArray verifyScript()
{
    QByteArray script = "'use strict';\nconst TEXTS = " + tableTexts() + ";\n";
    for (const auto& part : {texts::webScripts, texts::nodeScripts})
        for (const texts::Named& text : part)
            script += text.text;
    return script;
}

} // namespace inkmacro
