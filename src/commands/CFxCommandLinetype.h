#pragma once

#include "host/kernel/CFxCommand.h"

/// -LINESTYLE: lists the line styles of a file, writes a new one into a file, loads some from a file, and makes one
/// active.
class CFxCommandLinetype final : public CFxCommand
{
public:
    static OdRxClass* desc();
    OdRxClass* isA() const override { return desc(); }

    OdString globalName() const override { return "_-LINESTYLE"; }
    OdString localName() const override;
    std::int32_t Execute(CFxCommandContext* context) override;
};
