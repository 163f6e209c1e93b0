#pragma once

#include "statements/Writer.h"

#include <vector>

/// What the statements of the present action have to do with the objects that they name. Names are asked for before the
/// statements are there, so it is kept until then.
class ActionFaults
{
public:
    void note(const inkmacro::Fault& fault);
    /// An object that no statement inserts is named.
    void noteUnmade();
    void forget() { noted_.clear(); }
    /// The statements with what was noted.
    Statement on(Statement statements, const Writer& writer) const;

private:
    std::vector<const inkmacro::Fault*> noted_;
};
