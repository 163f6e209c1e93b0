#pragma once

#include <QFile>

#include <string_view>

namespace inkmacro::dxf {

/// The bytes of a drawing file, in memory for as long as this lives.
class DrawingFile
{
public:
    /// Opens the file of that name, or standard input for "-"; false when it cannot be read.
    bool open(const QString& path);
    /// Why it could not be.
    QString error() const { return file_.errorString(); }
    /// Of a file that is open and has not been read yet; it has to stay open.
    bool read(QFile& file);
    std::string_view bytes() const { return bytes_; }

private:
    QFile file_;
    QByteArray read_; ///< of what cannot be mapped
    std::string_view bytes_;
};

} // namespace inkmacro::dxf
