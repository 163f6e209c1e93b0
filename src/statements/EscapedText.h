#pragma once

#include "host/kernel/CFxString.h"

#include <QString>

#include <utility>

namespace inkmacro {

/// A text for the quotes of a statement: what is written there, and what the program is to read. Only a text that a
/// rule has escaped differs in the two. A statement tells by them whether it is read as it was meant.
struct EscapedText
{
    EscapedText(const CFxString& plain) : written(plain), meant(plain) {}
    EscapedText(const char* latin1) : EscapedText(CFxString(latin1)) {}
    EscapedText(const QString& plain) : written(plain), meant(plain) {}
    EscapedText(QString written, QString meant) : written(std::move(written)), meant(std::move(meant)) {}

    QString written;
    QString meant;
};

} // namespace inkmacro
