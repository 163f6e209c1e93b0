#pragma once

#include <QByteArray>
#include <QString>

namespace inkmacro {

/// What a regular file was at a moment: which file stood at the path, and what it held.
class FilePrint
{
public:
    explicit FilePrint(const QString& path);

    /// Whether it is the same file now, with the same contents. False when either could not be read.
    bool stillHolds() const;

private:
    struct Seen
    {
        QByteArray identity;
        QByteArray digest; ///< empty for what cannot be read or is no regular file
        bool operator==(const Seen&) const = default;
    };
    static Seen look(const QString& path);

    QString path_;
    Seen seen_;
};

/// Whether both paths lead to one file.
bool isSameFile(const QString& left, const QString& right);

} // namespace inkmacro
