#pragma once

#include <random>
#include <string>
#include <string_view>
#include <vector>

namespace inkmacro {

/// Changes a recording so that most of what comes out is one again: JSON stays JSON, and values come from the recording
/// itself or from a list of those that are worth trying.
class RecordingMutator
{
public:
    RecordingMutator(std::string recording, unsigned seed) : text_(std::move(recording)), engine_(seed) {}

    /// The recording with a few changes, not longer than that; as it was when none fits.
    const std::string& mutated(std::size_t most);

private:
    /// A value of some line. Its entry is itself, or in an object its key and itself.
    struct Value
    {
        std::size_t entry;
        std::size_t begin;
        std::size_t end;
        bool inList;
        bool inObject;
    };

    std::size_t below(std::size_t end) { return engine_() % end; }
    template<class List>
    const auto& of(const List& all)
    {
        return all[below(std::size(all))];
    }
    std::string_view textOf(const Value& value) const
    {
        return std::string_view(text_).substr(value.begin, value.end - value.begin);
    }
    std::string_view entryOf(const Value& value) const
    {
        return std::string_view(text_).substr(value.entry, value.end - value.entry);
    }

    void findValues();
    std::size_t takeValue(std::size_t at, Value value);
    std::size_t takeEntries(std::size_t at, bool object);
    std::size_t skipSpace(std::size_t at) const;
    std::size_t endOfText(std::size_t at) const;

    std::string change();
    std::string replaced(const Value& value, const std::string& by) const;
    std::string withoutEntry(const Value& value) const;
    std::string withRepeatedEntry(const Value& value);
    std::string withChangedLine();
    std::string nested(const Value& value);
    std::string changedText(std::string_view quoted);
    std::string newNumber();
    std::string newValue(const Value& old);

    std::string text_;
    std::vector<Value> values_;
    std::minstd_rand engine_;
};

} // namespace inkmacro
