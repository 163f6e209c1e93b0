#pragma once

#include <QByteArray>

namespace inkmacro {

/// The tables that the model of the application reads, as a JSON object of their texts by their names.
QByteArray tableTexts();

/// The program that node runs to verify a macro, in one file: the model of the application that macros are run against,
/// the tables that it reads, and the driver. The driver's argument is the job, a file of JSON.
QByteArray verifyScript();

} // namespace inkmacro
