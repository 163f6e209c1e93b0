#pragma once

#include "targets/MacroFrame.h"

#include <QByteArray>

/// VBA: one subroutine to paste into an editor. The macro's name plays no part in it.
class CFxConverterIWAPIVba final : public MacroFrame
{
public:
    using MacroFrame::MacroFrame;

    Statement EmitFileHeader(const QString& className, bool hasSysVar) override;
    Statement EmitFileFooter() override;

private:
    /// A part of the head.
    Statement filled(const QByteArray& words) const;
};
