#pragma once

#include <QString>
#include <QStringView>

#include <cstddef>
#include <optional>

namespace inkmacro {

/// Stands in a statement for something that is only known when the statement is written. Marks are in no text: each
/// begins with two low surrogates, of which one alone stands only for a byte of a file's name, and none of those is one
/// of these.
struct Mark
{
    enum class Kind
    {
        Later, ///< a text that is made when it is written
        Fault  ///< nothing is written; the line is at fault
    };

    static constexpr int length = 5; ///< in characters

    Kind kind;
    std::size_t number; ///< of what is kept, below 2^30

    QString text() const;

    /// A mark and where it begins.
    struct Found;
    /// The first one at or behind `from`.
    static std::optional<Found> find(QStringView text, qsizetype from);
};

struct Mark::Found
{
    qsizetype at;
    Mark mark;
};

/// Puts a mark into a statement, near its beginning, where it neither makes nor changes a marker of a template, also
/// when the statement becomes part of a longer one.
void insertMark(QString& statement, const Mark& mark);

} // namespace inkmacro
