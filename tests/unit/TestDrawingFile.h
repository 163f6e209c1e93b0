#pragma once

#include "dxf/Import.h"
#include "recordfile/JsonOut.h"
#include "recordfile/actionForms.h"

#include <algorithm>

// Drawing files that a test writes, and the recordings that are made of them.

namespace inkmacro::dxf {

using Groups = std::vector<std::pair<int, std::string>>;

inline Groups operator+(Groups left, const Groups& right)
{
    left.insert(left.end(), right.begin(), right.end());
    return left;
}

inline std::string asText(const Groups& groups, const std::string& lineEnd = "\n")
{
    std::string text;
    for (const auto& [code, value] : groups)
        text += std::to_string(code) + lineEnd + value + lineEnd;
    return text;
}

inline Groups section(const std::string& name, const Groups& groups)
{
    return Groups{{0, "SECTION"}, {2, name}} + groups + Groups{{0, "ENDSEC"}};
}

struct Imported
{
    std::string head;
    std::vector<std::string> actions;
    Accounts accounts;

    bool has(const std::string& part) const
    {
        return std::any_of(actions.begin(), actions.end(),
                           [&](const std::string& action) { return action.find(part) != std::string::npos; });
    }
    qint64 count(const std::string& part) const
    {
        return std::count_if(actions.begin(), actions.end(),
                             [&](const std::string& action) { return action.find(part) != std::string::npos; });
    }
};

inline Imported imported(const std::string& file, ImportOptions options = {})
{
    Drawing drawing(file);
    OdDbDatabase ids;
    Import import(drawing, ids, std::move(options));
    Imported result;
    result.head = import.head().toStdString();
    recordfile::JsonOut out{CFxValueContext{}};
    while (const OdRxObjectPtr action = import.next()) {
        recordfile::Form<OdRxObjectPtr>::write(out, action);
        result.actions.push_back(out.bytes().toStdString());
        out.clear();
        out.endLine();
        out.clear();
    }
    result.accounts = import.accounts();
    return result;
}

inline Imported entities(const Groups& groups)
{
    return imported(asText(section("ENTITIES", groups)));
}

inline std::string tag(const std::string& name, const std::string& value)
{
    return R"({"tag":")" + name + R"(","value":)" + value + "}";
}

} // namespace inkmacro::dxf
