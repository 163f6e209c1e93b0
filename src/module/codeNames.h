#pragma once

#include "statements/Target.h"

#include <QChar>
#include <QStringView>

#include <algorithm>
#include <array>
#include <string_view>

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

/// Calls for each name with its place. What stands in texts and comments is none, and neither are members, which stand
/// behind a dot or an arrow.
template<class Use>
void forNames(QStringView line, Target target, const Use& use)
{
    for (qsizetype at = 0; at < line.size();) {
        const qsizetype from = at;
        if (line[at] == '"') {
            at = behindText(line, at, target);
        } else if (isBasic(target) ? line[at] == '\'' : line.mid(at).startsWith(u"//")) {
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

} // namespace inkmacro
