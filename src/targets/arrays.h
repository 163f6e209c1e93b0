#pragma once

#include "targets/Writer.h"

#include <functional>
#include <vector>

// Arrays of objects and of object types.

/// Literals of entity lists end their lines themselves in C++, C# and JavaScript, not in the other targets.
inkmacro::Fill fillList(Writer& writer, const inkmacro::Phrase& phrase);
/// What the declaration of an array of so many elements names: the count, in Basic the highest index.
int arrayBound(Writer& writer, std::size_t count);
QString listHead(Writer& writer, const inkmacro::Phrase& phrase, std::size_t count);
/// The line that puts one element into an array.
QString listElement(Writer& writer, const inkmacro::Phrase& phrase, std::size_t index, const QString& word);
QString objectElements(Writer& writer, const inkmacro::Phrase& phrase, const char* array,
                       const std::vector<CFxString>& names);
/// In COM the filling of each array declares variables of the same names, so all but one need a block.
QString ownBlock(Writer& writer, const std::function<QString()>& filling);
