#pragma once

#include "host/rx/Export.h"
#include "host/rx/OdString.h"

#include <QFile>

#include <optional>

/// A file of line styles (*.lin), read style by style from its beginning. A style is a line with a star, its name, a
/// comma and a description, and a line of dashes, dots and gaps behind it; lines end with CR, LF or both, and two
/// semicolons begin a comment. The encoding is UTF-8, or Latin-1 in a line that cannot be that.
class INKHOST_EXPORT LineStyleFile
{
public:
    struct Style
    {
        OdString name;
        OdString description; ///< its first 47 characters
    };

    /// Opens regular files alone: others might never end.
    explicit LineStyleFile(const OdString& path);

    bool isOpen() const { return file_.isOpen(); }
    /// Goes to the next style; false behind the last one.
    bool next(Style& style);
    /// Whether the line behind that of the style is a pattern.
    bool nextIsPattern();

private:
    std::optional<OdString> line();
    bool fill();

    QFile file_;
    QByteArray bytes_;
    int at_ = 0; ///< in the bytes
    bool afterReturn_ = false;
};
