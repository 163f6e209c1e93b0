#include "app/StepMap.h"

#include "app/StagedResult.h"

#include <cstring>

namespace inkmacro {

namespace {

/// What stands in the file, one behind the other: both sides are the same program.
struct Record
{
    std::uint64_t made;
    std::uint32_t count;
    std::int32_t step;
    std::uint64_t part;
};

} // namespace

StepMapWriter::StepMapWriter(const QString& path, const CFxActionArray& actions) : file_(path), steps_(actions)
{
    // finish() tells when it is not.
    (void)file_.open(QIODevice::WriteOnly);
}

void StepMapWriter::add(const CFxMacroLines& lines)
{
    constexpr int piece = 64 * 1024;
    const auto step = steps_.at(lines.where);
    const Record record{lines.made.value(), lines.last - lines.first + 1, step ? static_cast<std::int32_t>(*step) : -1,
                        static_cast<std::uint64_t>(lines.part)};
    bytes_.append(reinterpret_cast<const char*>(&record), sizeof record);
    if (bytes_.size() > piece)
        write();
}

void StepMapWriter::write()
{
    if (file_.isOpen())
        file_.write(bytes_);
    bytes_.resize(0);
}

QString StepMapWriter::finish()
{
    write();
    if (!file_.isOpen() || !file_.flush() || file_.error() != QFileDevice::NoError)
        return file_.errorString();
    file_.close();
    return file_.error() == QFileDevice::NoError ? QString() : file_.errorString();
}

StepMap readStepMap(const QString& path)
{
    StepMap map;
    const QByteArray bytes = readWhole(path);
    const auto count = static_cast<std::size_t>(bytes.size()) / sizeof(Record);
    map.ranges.reserve(count);
    for (std::size_t i = 0; i < count; ++i) {
        Record record;
        std::memcpy(&record, bytes.constData() + i * sizeof record, sizeof record);
        map.ranges.push_back({record.count, record.step, static_cast<std::uint8_t>(record.part)});
        if (record.made != 0)
            map.made.push_back({record.step, OdDbHandle(record.made)});
    }
    return map;
}

} // namespace inkmacro
