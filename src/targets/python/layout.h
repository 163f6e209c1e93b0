#pragma once

#include <QString>
#include <QStringView>

#include <array>

/// How Python's lines are laid out: 88 columns, broken as black breaks them, so that a macro stays as it is under that
/// formatter and no line is longer.
namespace inkmacro::python {

constexpr int mostColumns = 88;

/// A logical line without its indentation, as the lines that it takes, each with a line feed. It has no blanks inside
/// its brackets and one behind each comma; texts in it are literals as pythonText gives them.
QString laidOut(QStringView line, int indentation);
/// The same behind other lines.
void addLaidOut(QString& lines, QStringView line, int indentation);

/// Calls with each name that stands in the code, but behind no dot. What stands in texts and comments is none.
template<class Use>
void forNames(QStringView code, const Use& use);

/// Behind the text in quotes that begins there.
qsizetype behindText(QStringView line, qsizetype at);

namespace detail {

/// Letters of names; in texts alone there are others.
inline constexpr auto nameLetters = [] {
    std::array<bool, 128> letters{};
    for (unsigned char one = '0'; one <= '9'; ++one)
        letters[one] = true;
    for (unsigned char one = 'a'; one <= 'z'; ++one)
        letters[one] = letters[one - 'a' + 'A'] = true;
    letters['_'] = true;
    return letters;
}();

inline qsizetype behindName(QStringView code, qsizetype at)
{
    while (at < code.size() && code[at].unicode() < nameLetters.size() && nameLetters[code[at].unicode()])
        ++at;
    return at;
}

} // namespace detail

template<class Use>
void forNames(QStringView code, const Use& use)
{
    for (qsizetype at = 0; at < code.size();) {
        switch (code[at].unicode()) {
        case u'"':
        case u'\'':
            at = behindText(code, at);
            break;
        case u'#':
            at = code.indexOf(u'\n', at);
            if (at < 0)
                return;
            break;
        case u'.':
            at = detail::behindName(code, at + 1);
            break;
        default:
            if (const qsizetype end = detail::behindName(code, at); end > at) {
                use(code.mid(at, end - at));
                at = end;
            } else {
                ++at;
            }
        }
    }
}

} // namespace inkmacro::python
