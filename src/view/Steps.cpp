#include "view/Steps.h"

namespace inkmacro::view {

namespace {

using Kind = Steps::Kind;

template<class Action>
bool isA(const OdRxObject* action)
{
    return !odrxQuery<Action>(action).isNull();
}

Kind kindOf(const OdRxObject* action)
{
    struct Row
    {
        bool (*has)(const OdRxObject*);
        Kind kind;
    };
    // The most frequent ones first.
    static constexpr Row rows[] = {
        {isA<CFxObjectAdded>, Kind::Added},        {isA<CFxUserCommand>, Kind::Command},
        {isA<CFxObjectModified>, Kind::Modified},  {isA<CFxUserInteraction>, Kind::Interaction},
        {isA<CFxPropertyChanged>, Kind::Property}, {isA<CFxSysVarChanged>, Kind::Variable},
        {isA<CFxUserSelection>, Kind::Selection},  {isA<CFxCustomAction>, Kind::Custom},
    };
    if (action)
        for (const Row& row : rows)
            if (row.has(action))
                return row.kind;
    return Kind::Nothing;
}

} // namespace

Steps::Steps(const CFxActionArray& actions)
{
    firstChild_.push_back(0);
    add(actions, -1);
}

void Steps::add(const CFxActionArray& actions, std::int32_t parent)
{
    const std::size_t first = children_.size();
    firstChild_[static_cast<std::size_t>(parent + 1)] = first;
    children_.resize(first + actions.length());
    for (std::uint32_t child = 0; child < actions.length(); ++child) {
        const OdRxObjectPtr& action = actions[child];
        const auto number = static_cast<std::uint32_t>(steps_.size());
        children_[first + child] = number;
        const Kind kind = kindOf(action.get());
        steps_.push_back({action.get(), kind, parent, child});
        firstChild_.push_back(children_.size());
        if (kind == Kind::Command)
            add(odrxQuery<CFxUserCommand>(action.get())->GetActions(), static_cast<std::int32_t>(number));
    }
}

std::optional<std::uint32_t> Steps::at(const CFxActionPlace& place) const
{
    std::optional<std::uint32_t> found;
    for (const std::uint32_t child : place) {
        const std::size_t number = firstChild_[found ? *found + 1 : 0] + child;
        const std::int32_t parent = found ? static_cast<std::int32_t>(*found) : -1;
        if (number >= children_.size() || steps_[children_[number]].parent != parent)
            return {};
        found = children_[number];
    }
    return found;
}

} // namespace inkmacro::view
