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
/// The same behind other lines.
void addLaidOut(QString& lines, QStringView line, int indentation);

/// Calls with each name that stands in the code, but behind no dot.
/// What stands in texts and comments is none.
template<class Use>
void forNames(QStringView code, const Use& use);

/// Behind the text in quotes that begins there.
qsizetype behindText(QStringView line, qsizetype at);

template<class Use>
void forNames(QStringView code, const Use& use)
{
    const auto isNamePart = [](QChar character) {
        const ushort letter = character.unicode();
        return (letter >= u'a' && letter <= u'z') || (letter >= u'A' && letter <= u'Z') ||
               (letter >= u'0' && letter <= u'9') || letter == u'_';
    };
    for (qsizetype at = 0; at < code.size();) {
        if (code[at] == u'"' || code[at] == u'\'') {
            at = behindText(code, at);
        } else if (code[at] == u'#') {
            at = code.indexOf(u'\n', at);
            if (at < 0)
                return;
        } else if (isNamePart(code[at])) {
            const qsizetype from = at;
            while (at < code.size() && isNamePart(code[at]))
                ++at;
            const bool isMember = from > 0 && code[from - 1] == u'.';
            if (!isMember)
                use(code.mid(from, at - from));
        } else {
            ++at;
        }
    }
}

} // namespace inkmacro::python
