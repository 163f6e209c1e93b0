#pragma once

#include <QByteArray>

#include <span>

namespace inkmacro {

/// A word in braces, and what it stands for in each configuration of a project for Visual C++.
struct ConfigurationWord
{
    const char* word;
    const char* meanings[4];
};

/// The text once for each configuration. The lists of tools that nothing is set for stand where "{toolsBefore}" and
/// "{toolsBehind}" are.
QByteArray forEachConfiguration(const char* text, std::span<const ConfigurationWord> words);

} // namespace inkmacro
