#pragma once

#include <QString>
#include <QStringView>

/// How Python's lines are laid out: 88 columns, broken as black breaks them, so that a macro stays as it is under that
/// formatter and no line is longer.
namespace inkmacro::python {

constexpr int mostColumns = 88;

/// A logical line without its indentation, as the lines that it takes, each with a line feed. It has no blanks inside
/// its brackets and one behind each comma; texts in it are literals as pythonText gives them.
QString laidOut(QStringView line, int indentation);

/// Calls with each name that stands in the code, but behind no dot, and whether a bracket opens behind it.
/// What stands in texts and comments is none.
template<class Use>
void forNames(QStringView line, const Use& use);

/// Behind the text in quotes that begins there.
qsizetype behindText(QStringView line, qsizetype at);

template<class Use>
void forNames(QStringView line, const Use& use)
{
    const auto isNamePart = [](QChar character) { return character.isLetterOrNumber() || character == u'_'; };
    for (qsizetype at = 0; at < line.size();) {
        if (line[at] == u'"' || line[at] == u'\'') {
            at = behindText(line, at);
        } else if (line[at] == u'#') {
            return;
        } else if (isNamePart(line[at])) {
            const qsizetype from = at;
            while (at < line.size() && isNamePart(line[at]))
                ++at;
            const bool isMember = from > 0 && line[from - 1] == u'.';
            if (!isMember)
                use(line.mid(from, at - from), at < line.size() && line[at] == u'(');
        } else {
            ++at;
        }
    }
}

} // namespace inkmacro::python
