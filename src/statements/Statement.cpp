#include "statements/Statement.h"

#include <algorithm>
#include <utility>

using inkmacro::StatementNote;

Statement::Statement(inkmacro::LateText text) : notes_(std::make_unique<Notes>())
{
    notes_->push_back({0, std::move(text)});
}

Statement::Statement(QString text, Notes notes) : text_(std::move(text))
{
    if (!notes.empty())
        notes_ = std::make_unique<Notes>(std::move(notes));
}

Statement::Statement(const Statement& other)
    : text_(other.text_), notes_(other.notes_ ? std::make_unique<Notes>(*other.notes_) : nullptr)
{
}

Statement& Statement::operator=(const Statement& other)
{
    return *this = Statement(other);
}

const Statement::Notes& Statement::notes() const
{
    static const Notes none;
    return notes_ ? *notes_ : none;
}

void Statement::clear()
{
    text_.clear();
    notes_.reset();
}

void Statement::cut(int front, int back)
{
    text_ = text_.mid(front, text_.size() - front - back);
    if (notes_)
        for (StatementNote& note : *notes_)
            note.offset = std::clamp(note.offset - front, 0, text_.size());
}

Statement& Statement::operator+=(const Statement& other)
{
    if (other.notes_) {
        if (!notes_)
            notes_ = std::make_unique<Notes>();
        for (const StatementNote& note : other.notes())
            notes_->push_back({text_.size() + note.offset, note.what});
    }
    text_ += other.text_;
    return *this;
}

Statement& Statement::operator+=(Statement&& other)
{
    // Whoever has made room for more keeps it.
    return isEmpty() && text_.capacity() == 0 ? *this = std::move(other) : *this += std::as_const(other);
}

Statement& Statement::operator+=(const QString& text)
{
    text_ += text;
    return *this;
}

Statement operator+(Statement one, const Statement& other)
{
    one += other;
    return one;
}

Statement operator+(Statement one, const QString& text)
{
    one += text;
    return one;
}

void Statement::addFault(const inkmacro::Fault& fault)
{
    const auto begin = std::find_if(text_.cbegin(), text_.cend(), [](QChar character) { return !character.isSpace(); });
    addFault(fault, static_cast<int>(begin - text_.cbegin()));
}

/// A fault that is noted later is of a longer statement, so it stands in front.
void Statement::addFault(const inkmacro::Fault& fault, int offset)
{
    if (!notes_)
        notes_ = std::make_unique<Notes>();
    const auto place = std::ranges::find_if(*notes_, [&](const StatementNote& note) { return note.offset >= offset; });
    notes_->insert(place, {offset, &fault});
}

std::ostream& operator<<(std::ostream& stream, const Statement& statement)
{
    return stream << statement.toStdString();
}
