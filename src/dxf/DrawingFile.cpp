#include "dxf/DrawingFile.h"

#include <cstdio>

namespace inkmacro::dxf {

bool DrawingFile::open(const QString& path)
{
    constexpr auto mode = QIODevice::ReadOnly | QIODevice::Unbuffered;
    file_.setFileName(path);
    if (!(path == "-" ? file_.open(stdin, mode) : file_.open(mode)))
        return false;
    const qint64 size = file_.isSequential() ? 0 : file_.size();
    if (const uchar* const mapped = size > 0 ? file_.map(0, size) : nullptr) {
        bytes_ = {reinterpret_cast<const char*>(mapped), static_cast<std::size_t>(size)};
        return true;
    }
    read_ = file_.readAll();
    bytes_ = {read_.constData(), static_cast<std::size_t>(read_.size())};
    return file_.error() == QFileDevice::NoError;
}

} // namespace inkmacro::dxf
