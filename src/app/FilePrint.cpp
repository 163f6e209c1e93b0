#include "app/FilePrint.h"

#include <QCryptographicHash>
#include <QFile>
#include <QFileInfo>

#include <sys/stat.h>

namespace inkmacro {

namespace {

QByteArray identityOf(const struct stat& found)
{
    return QByteArray::number(qulonglong{found.st_dev}) + ':' + QByteArray::number(qulonglong{found.st_ino});
}

} // namespace

FilePrint::FilePrint(const QString& path) : path_(path), seen_(look(path))
{
}

bool FilePrint::stillHolds() const
{
    return !seen_.digest.isEmpty() && look(path_) == seen_;
}

FilePrint::Seen FilePrint::look(const QString& path)
{
    QFile file(path);
    struct stat found = {};
    // Who opens a pipe takes what others wait for.
    if (!QFileInfo(path).isFile() || !file.open(QIODevice::ReadOnly) || fstat(file.handle(), &found) != 0)
        return {};
    QCryptographicHash hash(QCryptographicHash::Sha256);
    return {identityOf(found), hash.addData(&file) ? hash.result() : QByteArray()};
}

bool isSameFile(const QString& left, const QString& right)
{
    struct stat found = {};
    struct stat other = {};
    return stat(QFile::encodeName(left).constData(), &found) == 0 &&
           stat(QFile::encodeName(right).constData(), &other) == 0 && found.st_dev == other.st_dev &&
           found.st_ino == other.st_ino;
}

} // namespace inkmacro
