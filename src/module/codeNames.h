#pragma once

#include "statements/Target.h"

#include <QChar>
#include <QStringView>

#include <algorithm>
#include <array>
#include <string_view>
#include <utility>

// Names in a line of a macro, of whatever language.

namespace inkmacro {

namespace codeCharacters {

inline constexpr unsigned char kNamePart = 1;
inline constexpr unsigned char kDot = 2;

/// Asked of a good part of the macro's characters, so ASCII is looked up.
inline bool isOneOf(unsigned kinds, QChar character)
{
    static constexpr auto ascii = [] {
        std::array<unsigned char, 0x80> parts{};
        for (const char16_t part :
             std::u16string_view(u"abcdefghijklmnopqrstuvwxyzABCDEFGHIJKLMNOPQRSTUVWXYZ0123456789_"))
            parts[part] = kNamePart;
        parts[u'.'] = kDot;
        return parts;
    }();
    const ushort code = character.unicode();
    return code < ascii.size() ? (ascii[code] & kinds) != 0 : character.isLetterOrNumber();
}

} // namespace codeCharacters

inline bool isNamePart(QChar character)
{
    return codeCharacters::isOneOf(codeCharacters::kNamePart, character);
}

inline QStringView nameAt(QStringView text, qsizetype at)
{
    const qsizetype from = at;
    while (at < text.size() && isNamePart(text[at]))
        ++at;
    return text.mid(from, at - from);
}

/// What QStringView::trimmed() gives, which takes longer for the few blanks of a line.
inline QStringView trimmed(QStringView line)
{
    while (!line.isEmpty() && line.back().isSpace())
        line.chop(1);
    const auto isOther = [](QChar character) { return character != ' ' && !character.isSpace(); };
    return line.mid(std::find_if(line.begin(), line.end(), isOther) - line.begin());
}

/// Behind a text in double quotes.
inline qsizetype behindText(QStringView line, qsizetype at, Target target)
{
    for (++at; at < line.size() && line[at] != '"'; ++at)
        if (line[at] == '\\' && !isBasic(target))
            ++at;
    return std::min(at + 1, line.size());
}

inline bool startsComment(QStringView line, qsizetype at, Target target)
{
    return isBasic(target) ? line[at] == '\'' : line[at] == '/' && at + 1 < line.size() && line[at + 1] == '/';
}

inline qsizetype indentationOf(QStringView line)
{
    return std::find_if(line.begin(), line.end(), [](QChar one) { return one != ' '; }) - line.begin();
}

/// Calls for each name with its place. What stands in texts and comments is none, and neither are members, which stand
/// behind a dot or an arrow.
template<class Use>
void forNames(QStringView line, Target target, const Use& use)
{
    for (qsizetype at = 0; at < line.size();) {
        const qsizetype from = at;
        if (line[at] == '"') {
            at = behindText(line, at, target);
        } else if (startsComment(line, at, target)) {
            return;
        } else if (isNamePart(line[at])) {
            const QStringView name = nameAt(line, at);
            at += name.size();
            if (from == 0 || (line[from - 1] != '.' && line[from - 1] != '>'))
                use(name, from);
        } else {
            ++at;
        }
    }
}

/// Calls for each character that is neither in a text nor in a comment.
template<class Use>
void forCode(QStringView line, Target target, const Use& use)
{
    for (qsizetype at = 0; at < line.size();) {
        if (line[at] == '"') {
            at = behindText(line, at, target);
        } else if (startsComment(line, at, target)) {
            return;
        } else {
            use(line[at]);
            ++at;
        }
    }
}

/// By how much the depth in brackets changes.
inline int bracketStep(QChar character)
{
    switch (character.unicode()) {
    case '(':
    case '[':
    case '{':
        return 1;
    case ')':
    case ']':
    case '}':
        return -1;
    default:
        return 0;
    }
}

/// Calls for each variable that the line of a page declares. A list of them ends with the line.
template<class Use>
void forScriptVariables(QStringView line, const Use& use)
{
    constexpr int kNone = -1;
    int depth = 0;
    int list = kNone; // the depth at which commas stand between variables
    bool expects = false;
    for (qsizetype at = 0; at < line.size();) {
        if (line[at] == '"') {
            at = behindText(line, at, Target::JavaScript);
        } else if (startsComment(line, at, Target::JavaScript)) {
            return;
        } else if (isNamePart(line[at])) {
            const QStringView name = nameAt(line, at);
            at += name.size();
            if (std::exchange(expects, false))
                use(name);
            else if (name == u"var" && list == kNone) {
                list = depth;
                expects = true;
            }
        } else {
            depth += bracketStep(line[at]);
            if (line[at] == ';')
                list = kNone;
            else if (line[at] == ',' && depth == list)
                expects = true;
            ++at;
        }
    }
}

} // namespace inkmacro
