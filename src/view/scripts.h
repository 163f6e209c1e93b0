#pragma once

#include <QByteArray>

namespace inkmacro {

/// The program that node runs to verify a macro, in one file: the model of the application that macros are run against,
/// the tables that it reads, and the driver. The driver's argument is the job, a file of JSON.
QByteArray verifyScript();

} // namespace inkmacro
