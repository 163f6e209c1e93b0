#pragma once

#include <QByteArray>
#include <QString>

namespace inkmacro {

/// Grows when what a program could rely on changes.
inline constexpr int kReportVersion = 2;

inline constexpr char kReportVersionKey[] = "reportVersion";
inline constexpr char kProgramVersionKey[] = "programVersion";
inline constexpr char kConversionsKey[] = "conversions";

/// What a conversion with that exit status is called.
QString statusWord(int status);

/// The JSON Schema of a report in the form Json.
QByteArray reportSchema();

} // namespace inkmacro
