#pragma once

#include <QString>

#include <vector>

namespace inkmacro::view {

// What a reader sees of a recorded text. How wide letters are is estimated, since their font is the viewer's.

/// A text of one line, of which signs such as `%%d` and `\U+00B0` are codes.
QString plainText(const QString& recorded);

/// The lines of a note, whose other format codes are left out. A stacked fraction is `a/b`.
std::vector<QString> linesOfNote(const QString& contents);

/// The letters that a reader takes for one each.
std::vector<QString> lettersOf(const QString& text);

/// Of a line whose capitals are of that height.
double estimatedWidth(const QString& line, double height);

/// The lines broken at their blanks, so that each is as wide at most; a longer word stays whole. No width breaks none.
std::vector<QString> wrapped(const std::vector<QString>& lines, double height, double width);

/// The beginning of a line that is not wider, with an ellipsis where something is left out.
QString shortened(const QString& line, double height, double width);

} // namespace inkmacro::view
