#include "recordfile/Form.h"

#include <algorithm>

namespace inkmacro::recordfile {

ChosenEntry chosenEntry(const Json& json, std::span<const std::string_view> keys, const char* noun)
{
    std::optional<ChosenEntry> chosen;
    for (const simdjson::dom::key_value_pair entry : json.object()) {
        const auto found = std::find(keys.begin(), keys.end(), entry.key);
        if (found == keys.end())
            json.fail(QString("%1 is not a %2").arg(quoted(entry.key), noun));
        if (chosen && chosen->key == entry.key)
            json.fail(QString("the key %1 is given twice").arg(quoted(entry.key)));
        if (chosen)
            json.fail(
                QString("only one %1 is allowed, found %2 and %3").arg(noun, quoted(chosen->key), quoted(entry.key)));
        chosen = ChosenEntry{static_cast<std::size_t>(found - keys.begin()), entry.key, entry.value};
    }
    if (!chosen)
        json.fail(QString("a %1 is missing").arg(noun));
    return *chosen;
}

} // namespace inkmacro::recordfile
