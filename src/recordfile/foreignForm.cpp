#include "recordfile/foreignForm.h"

namespace inkmacro {

QString foreignForm(std::string_view begin)
{
    constexpr std::string_view gzip = "\x1F\x8B";
    const bool marked = begin.starts_with("\xFF\xFE") || begin.starts_with("\xFE\xFF");
    // JSON begins with a letter of ASCII, which has one zero byte in UTF-16.
    const bool unmarked = begin.size() > 1 && (begin[0] == '\0') != (begin[1] == '\0');
    if (begin.starts_with(gzip))
        return "it is compressed by gzip; zcat unpacks it";
    return marked || unmarked ? "it is text in UTF-16; UTF-8 is expected" : QString();
}

} // namespace inkmacro
