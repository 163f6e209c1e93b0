#pragma once

#include "statements/Fault.h"

#include <QByteArray>
#include <QString>

#include <span>

namespace inkmacro {

/// A word in braces, and what it stands for in each configuration of a project for Visual C++.
struct ConfigurationWord
{
    const char* word;
    const char* meanings[4];
};

/// Of a file's name that no include directive or project of Visual C++ can hold; no other words are to be had for it.
extern const Fault kUnfound;

/// Whether include directives and projects find a file of that name.
bool isFound(const QString& fileName);

/// What stands in front of a file's name where a project lists it, and what a faithful one, which takes its UTF-8 for
/// another encoding, makes another name of.
inline constexpr char kListed[] = "RelativePath=\".\\";
inline constexpr char kMisread[] = "[^\\x00-\\x7F]";

/// The text once for each configuration. The lists of tools that nothing is set for stand where "{toolsBefore}" and
/// "{toolsBehind}" are.
QByteArray forEachConfiguration(const char* text, std::span<const ConfigurationWord> words);

} // namespace inkmacro
