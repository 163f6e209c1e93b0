#pragma once

#include <QByteArray>
#include <QStringList>

#include <cstdint>
#include <map>

namespace inkmacro {

/// Names that the schema tells so that an editor completes them. Others are valid too.
struct SchemaNames
{
    QStringList classes;
    QStringList tags;
    std::map<std::int32_t, QString> kinds; ///< of custom actions, by their numbers
};

/// The JSON Schema (draft 2020-12) of one line of a recording file.
QByteArray RecordingSchema(const SchemaNames& names = {});

} // namespace inkmacro
