#pragma once

#include "targets/PhrasedConverter.h"

#include <QMap>

/// JavaScript: one page that loads the host's script library and runs the macro at the press of a button.
class CFxConverterIWAPIJavaScript final : public PhrasedConverter
{
public:
    explicit CFxConverterIWAPIJavaScript(std::uint32_t mode) : PhrasedConverter(inkmacro::Target::JavaScript, mode) {}

    QString EmitFileHeader(const QString& className, bool hasSysVar) override;
    QString EmitFileFooter() override;

    /// The number of an enumerator of iwObjectType_e, which a script has no name for; 0 for an unknown one.
    std::int32_t ObjectTypeValue(const QString& enumerator);

protected:
    QString ObjectTypeWord(const QString& enumerator) override { return QString::number(ObjectTypeValue(enumerator)); }

private:
    QMap<QString, int> ObjectTypeMap;
};
