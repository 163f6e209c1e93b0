#pragma once

#include "statements/Statement.h"

#include <QByteArray>
#include <QLatin1String>
#include <QString>

#include <utility>

namespace inkmacro {

/// A statement that waits for the end of its command. Nearly all are plain letters, and take half the room so that
/// QString gives them: a command may have millions of statements.
class HeldStatement
{
public:
    explicit HeldStatement(Statement statement) : latin1_(statement.text().toLatin1()), rest_(std::move(statement))
    {
        if (rest_.text() == latin1())
            rest_ = Statement(QString(), rest_.notes());
        else
            latin1_.clear();
    }

    QString text() const { return latin1_.isNull() ? rest_.text() : QString(latin1()); }
    const Statement::Notes& notes() const { return rest_.notes(); }
    Statement statement() const { return latin1_.isNull() ? rest_ : Statement(latin1(), rest_.notes()); }

private:
    /// Made of the array alone it would end in front of the first null character.
    QLatin1String latin1() const { return QLatin1String(latin1_.constData(), latin1_.size()); }

    QByteArray latin1_; ///< null for a text that has other letters
    Statement rest_;    ///< what it does not hold
};

} // namespace inkmacro
