#pragma once

#include "conversion/Conversion.h"
#include "host/db/OdDbObjectId.h"
#include "host/kernel/CFxVariant.h"
#include "objects/RecordedObject.h"
#include "statements/Writer.h"
#include "statements/enumerations.h"

#include <vector>

struct ChangeRow;
struct OptionObject;

/// A changed property in the hands of the statement that its row's kind names.
struct Change
{
    Writer& writer;
    const ChangeRow& row;
    const CFxString& target; ///< the variable that the statement sets it on
    const CFxVariant& value;
    const CFxVariant& second; ///< of the kind's second tag; one of the two may be null
    std::int32_t index;       ///< within a repeated property, else -1
    const CFxVariant& number; ///< the record's number in whatever form it has
    const RecordedObject& object;
};

/// What a change becomes. A kind with axes stands for one tag an axis: its row holds what stands before the letter.
struct ChangeKind
{
    Statement (*statement)(const Change& change);
    ValueForm form; ///< of the values that call for a statement
    const char* axes = nullptr;
    /// Of a repeated property: a record without a number, or with the number -1, writes nothing.
    bool indexed = false;
    // Whose enumerator a kind that sets one writes.
    const inkmacro::TextEnumeration* byText = nullptr;
    const inkmacro::ValueEnumeration* byValue = nullptr;
    const char* suffix = nullptr;    ///< the enumerator of a kind that always writes the same one
    const char* secondTag = nullptr; ///< a tag that goes into the same statement: either of the two calls for it
    /// A value may call for no statement, as the "No" of one of several marks.
    bool maySayNothing = false;
};

/// One tag and what it becomes.
struct ChangeRow
{
    ChangeKind kind;
    PropertyTag tag;
    /// The host's word for it: a property, an operation, or what stands behind "Get" and "Set" of a pair of them.
    CFxString property = {};
    CFxString axis = {}; ///< "X", "Y" or "Z", set when rows with axes are spread out
};

/// Tags that are set on one object: the changed one, or one that is fetched from it when the first of them is there.
struct ChangeRows
{
    ChangeRows(std::initializer_list<ChangeRow> rows) : ChangeRows(nullptr, rows) {}
    ChangeRows(const OptionObject& on, std::initializer_list<ChangeRow> rows) : ChangeRows(&on, rows) {}

    const OptionObject* on; ///< null for the changed object
    std::vector<ChangeRow> rows;

private:
    ChangeRows(const OptionObject* on, std::initializer_list<ChangeRow> all);
};

/// What is fetched for one of its tags serves the tags behind it. The next group fetches anew.
using ChangeGroup = std::vector<ChangeRows>;

/// All tags of a class in the order in which they are read.
class ChangeGroups
{
public:
    /// Tags of the changed object itself.
    ChangeGroups(std::initializer_list<ChangeRow> rows) : groups_(1, ChangeGroup(1, ChangeRows(rows))) {}
    ChangeGroups(std::initializer_list<ChangeGroup> groups) : groups_(groups) {}
    /// Tags that several classes have, and behind them those of the one class, which are of the object itself.
    ChangeGroups(const ChangeGroups& common, std::initializer_list<ChangeRow> own) : groups_(common.groups_)
    {
        groups_.emplace_back(1, ChangeRows(own));
    }
    auto begin() const { return groups_.begin(); }
    auto end() const { return groups_.end(); }

private:
    std::vector<ChangeGroup> groups_;
};

/// Statements for the tags of a list, in its order: takes them out of `list` and appends to `text`.
void ConvertRows(Conversion& conversion, const ChangeGroups& groups, const RecordedObject& object, PropertyList& list,
                 Statement& text);
