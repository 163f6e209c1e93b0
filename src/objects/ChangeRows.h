#pragma once

#include "objects/CFxConverterIWAPIObject.h"
#include "targets/enumerations.h"

struct ChangeRow;

/// A changed property in the hands of the statement that its row names.
struct Change
{
    Writer& writer;
    const ChangeRow& row;
    const CFxString& name; ///< the object's variable
    const CFxVariant& value;
    std::int32_t index; ///< within a repeated property, else -1

    /// The word of a value of choice type, without regard to case.
    bool shows(const char* word) const { return ElementText(value).equalNoCase(ShownWord(word)); }
};

/// What a change becomes. A kind with axes stands for one tag an axis: its row holds what stands before the letter.
struct ChangeKind
{
    QString (*statement)(const Change& change);
    const char* axes = nullptr;
    /// Of a repeated property: a record without a number, or with the number -1, writes nothing.
    bool indexed = false;
};

/// One tag of a handler.
struct ChangeRow
{
    ChangeKind kind;
    CFxString tag;
    /// The host's word for it: a property, an operation, or what stands behind "Get" and "Set" of a pair of them.
    CFxString property = {};
    /// Whose enumerator the shown text tells.
    const inkmacro::TextEnumeration* enumeration = nullptr;
    CFxString axis = {}; ///< "X", "Y" or "Z", set when rows with axes are spread out
};

/// The tags of a handler in the order in which they are read.
class ChangeRows
{
public:
    ChangeRows(std::initializer_list<ChangeRow> rows);
    auto begin() const { return rows_.begin(); }
    auto end() const { return rows_.end(); }

private:
    std::vector<ChangeRow> rows_;
};

// The kinds that several files need.
QString setReal(const Change& change);
QString changePoint(const Change& change);
inline constexpr ChangeKind kReal{setReal};
/// A coordinate of a point that the host reads and writes as a whole.
inline constexpr ChangeKind kPoint{changePoint, "XYZ"};
