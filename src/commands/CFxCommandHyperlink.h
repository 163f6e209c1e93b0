#pragma once

#include "host/kernel/CFxCommand.h"

/// -HYPERLINK: puts a hyperlink to entities or to a new rectangle, or removes hyperlinks.
class CFxCommandHyperlink final : public CFxCommand
{
public:
    static OdRxClass* desc();
    OdRxClass* isA() const override { return desc(); }

    OdString globalName() const override { return "_-HYPERLINK"; }
    OdString localName() const override;
    std::int32_t Execute(CFxCommandContext* context) override;

    /// With `ownLayer` a new rectangle goes to the layer "URLLAYER" instead of the active one.
    std::int32_t Insert(CFxCommandContext* context, bool ownLayer);

private:
    enum Choice
    {
        kInsert = 0,
        kRemove = 1,
    };

    std::int32_t Remove(CFxCommandContext* context);

    Choice lastChoice_ = kInsert;
};
