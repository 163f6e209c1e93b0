#include "recordfile/recordedActions.h"

namespace inkmacro::recordfile {

// Not taken down with the process: recordings may live until then.
std::vector<PropertyLabel::Entry*>& PropertyLabel::entries = *new std::vector<Entry*>;
std::vector<std::uint32_t>& PropertyLabel::freed = *new std::vector<std::uint32_t>;

PropertyLabel::PropertyLabel(const CFxString& tag, const CFxString& group)
{
    if (freed.empty()) {
        number_ = static_cast<std::uint32_t>(entries.size());
        entries.push_back(nullptr);
    } else {
        number_ = freed.back();
        freed.pop_back();
    }
    entries[number_] = new Entry{tag, group};
}

void PropertyLabel::free()
{
    delete std::exchange(entries[number_], nullptr);
    freed.push_back(number_);
}

} // namespace inkmacro::recordfile
