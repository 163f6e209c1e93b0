#pragma once

#include "statements/Target.h"

#include <QHash>
#include <QString>
#include <QStringView>

#include <vector>

namespace inkmacro {

/// Follows the local variables that a macro declares, line by line, and finds those that are declared twice where their
/// language does not allow it. Knows the declarations and the blocks that statements are written with, not the
/// languages as a whole. A page may declare a variable as often as it likes.
class Locals
{
public:
    explicit Locals(Target target);

    /// Where a local is declared once too often: that line, whose number is given, or where VB.NET's compiler complains
    /// of a variable in a former block, an earlier one; 0 for nowhere. Lines are given in turn, without their ends.
    std::size_t declaresTwice(QStringView line, std::size_t number);
    /// The line with another name for each such local, here and as long as the name is meant.
    QString toldApart(const QString& line);

private:
    struct Scope
    {
        QHash<QString, std::size_t> declared; ///< by line
        QHash<QString, std::size_t> inside;   ///< blocks in it that have ended
        QHash<QString, QString> renamed;
    };

    void followBlocks(QStringView text);
    /// Whether the language has the word for itself.
    bool isReserved(const QString& name) const;
    bool conflicts(const QString& name) const;
    /// The name as the language compares it.
    QString keyOf(QStringView name) const;
    QString withOtherNames(const QString& line) const;
    /// Null for a local that has its own name.
    const QString* otherNameOf(const QString& name) const;

    const Target target_;
    std::vector<Scope> scopes_;
    QHash<QString, int> counts_; ///< how often each name was declared once too often
};

} // namespace inkmacro
