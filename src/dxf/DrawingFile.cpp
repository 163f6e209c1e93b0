#include "dxf/DrawingFile.h"

#include <cstdio>

namespace inkmacro::dxf {

bool DrawingFile::open(const QString& path)
{
    constexpr auto mode = QIODevice::ReadOnly | QIODevice::Unbuffered;
    file_.setFileName(path);
    if (!(path == "-" ? file_.open(stdin, mode) : file_.open(mode)))
        return false;
    return read(file_);
}

bool DrawingFile::read(QFile& file)
{
    const qint64 size = file.isSequential() ? 0 : file.size();
    if (const uchar* const mapped = size > 0 ? file.map(0, size) : nullptr) {
        bytes_ = {reinterpret_cast<const char*>(mapped), static_cast<std::size_t>(size)};
        return true;
    }
    read_ = file.readAll();
    bytes_ = {read_.constData(), static_cast<std::size_t>(read_.size())};
    return file.error() == QFileDevice::NoError;
}

} // namespace inkmacro::dxf
