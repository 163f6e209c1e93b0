#pragma once

#include "targets/MacroFrame.h"

#include <QByteArray>

/// JavaScript: one page that loads the host's script library and runs the macro at the press of a button.
class CFxConverterIWAPIJavaScript final : public MacroFrame
{
public:
    using MacroFrame::MacroFrame;

    Statement EmitFileHeader(const QString& className, bool hasSysVar) override;
    Statement EmitFileFooter() override;

private:
    /// Up to the statements; a repaired page says in which encoding it is.
    QByteArray pageHead() const;
};
