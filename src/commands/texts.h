#pragma once

#include "host/kernel/CFxString.h"

#include <QCoreApplication>

/// Tells translators of the name of a command.
inline constexpr const char* kCommandName = "Command Name: Needs to be unique and all uppercase.";

/// The texts of one command, as its user reads them.
class CommandTexts
{
public:
    /// The context of translations.
    explicit constexpr CommandTexts(const char* context) : context_(context) {}

    /// `comment` tells texts apart that are the same in English.
    CFxString operator()(const char* text, const char* comment = nullptr) const
    {
        return QCoreApplication::translate(context_, text, comment);
    }

private:
    const char* context_;
};
