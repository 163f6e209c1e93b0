#pragma once

#include "module/CFxConverterIWAPIModule.h"

#include <QJsonObject>

#include <map>
#include <vector>

namespace inkmacro {

/// How many actions of each kind there are, those within commands included.
using ActionCounts = std::map<QString, int>;

/// Makes JSON of the actions of a recording, and counts them.
class ActionJson
{
public:
    /// `names` are those of custom actions.
    ActionJson(CFxValueContext context, const std::vector<CFxActionKindName>& names);

    /// An action with all that is in it, in the form that recording files have, except that properties are counted and
    /// of custom data only the types are told, and the name of the kind. Null stands for an empty place.
    QJsonObject of(const OdRxObjectPtr& action);

    const ActionCounts& counts() const { return counts_; }

private:
    QJsonValue bodyOf(const OdRxObjectPtr& action);
    QJsonObject commandBody(const CFxUserCommand& command);
    QJsonObject customBody(const CFxCustomAction& custom) const;

    const CFxValueContext context_;
    std::map<std::int32_t, QString> names_;
    ActionCounts counts_;
};

} // namespace inkmacro
