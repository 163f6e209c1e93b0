#pragma once

#include "conversion/PropertyTag.h"

#include <vector>

/// What records are compared with when a tag is looked for, in the host's display language. The catalogues are asked
/// once for each tag of a conversion, not for each record.
class TagWords
{
public:
    struct Words
    {
        QString translated; ///< null as long as the tag has not been looked for
        bool searchesGroup = false;
    };

    const Words& of(const PropertyTag& tag)
    {
        const bool known = tag.number() < words_.size() && !words_[tag.number()].translated.isNull();
        return known ? words_[tag.number()] : translate(tag);
    }
    /// The group of block attributes.
    const QString& blockAttributes();

private:
    const Words& translate(const PropertyTag& tag);

    QString blockAttributes_;  ///< null until it is asked for
    std::vector<Words> words_; ///< by the tags' numbers
};
