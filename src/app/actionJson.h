#pragma once

#include "app/ActionFilter.h"
#include "app/parameters.h"
#include "module/CFxConverterIWAPIModule.h"

#include <QJsonObject>

#include <map>
#include <optional>
#include <vector>

namespace inkmacro {

/// How many actions of each kind there are, those within commands included.
using ActionCounts = std::map<QString, int>;

/// Which part of the actions is made.
struct ActionView
{
    ActionFilter filter;
    int depth; ///< levels below a top-level action; the properties of an object are one
};

/// The key of the kind of an action as ActionJson gives it.
QString kindOf(const QJsonObject& action);

/// Makes JSON of the actions of a recording, and counts them.
class ActionJson
{
public:
    /// `names` are those of custom actions.
    ActionJson(ActionView view, CFxValueContext context, const std::vector<CFxActionKindName>& names);

    /// An interaction whose answer is a parameter of its command's function in a Python macro has that "parameter"
    /// besides. What is given must outlive this.
    void tell(const PromptParameters& parameters) { parameters_ = &parameters; }

    /// A top-level action with all that is in it, in the form that recording files have, but for this: it has its
    /// "line" besides, in a command each action has its "index" and "leftOut" counts those that the filter leaves out,
    /// a custom action has the "name" of its kind, and of a list that is too deep there is the length alone. Without a
    /// value when the filter leaves out all of it.
    std::optional<QJsonObject> of(const OdRxObjectPtr& action, qint64 line);

    /// Of what has been made.
    const ActionCounts& counts() const { return counts_; }

private:
    /// What its command brings along.
    struct Place
    {
        int depth;  ///< levels below that are told
        bool named; ///< is in a command of the name that is wanted
    };

    std::optional<QJsonObject> of(const OdRxObjectPtr& action, Place place);
    std::optional<QJsonValue> commandBody(const CFxUserCommand& command, const Place& place);
    QJsonValue bodyOf(const OdRxObjectPtr& action, int depth) const;

    const ActionView view_;
    const CFxValueContext context_;
    std::map<std::int32_t, QString> names_;
    const PromptParameters* parameters_ = nullptr;
    ActionCounts counts_;
};

} // namespace inkmacro
