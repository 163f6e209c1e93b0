#pragma once

#include "conversion/ValueForm.h"

struct ClassRow;

/// The tags that records of added and of changed objects of the class are asked for, each once.
struct KnownTags
{
    std::vector<AskedTag> added;
    std::vector<AskedTag> changed;
    /// Why an added object is lost of which nothing is recorded and the drawing knows nothing; null for one that is
    /// not.
    CFxString emptyLoss;
};

/// Nothing is written down a second time: reader and changes of the class are run over empty lists. Leaves the notes
/// of the conversion before, and the numbers of names, as they are.
KnownTags TagsOf(const ClassRow& row);

/// The words that a value of the form may be, in the order of their places; none of a free text.
std::vector<QString> WordsOf(const ValueForm& form);

/// What a number of that tag is measured in; empty for one without a unit.
const char* UnitOf(const QString& tag);
