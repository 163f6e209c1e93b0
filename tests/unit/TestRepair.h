#pragma once

#include "host/kernel/CFxServices.h"
#include "statements/Marks.h"

#include <QString>

/// Macros are repaired while it lives.
class TestRepair
{
public:
    TestRepair() : before_(GetFxSystemServices()->GetInt16("RepairMacros"))
    {
        GetFxSystemServices()->SetInt16("RepairMacros", 1);
    }
    ~TestRepair() { GetFxSystemServices()->SetInt16("RepairMacros", before_); }
    TestRepair(const TestRepair&) = delete;
    TestRepair& operator=(const TestRepair&) = delete;

private:
    std::int16_t before_;
};

/// Takes the marks out of a statement and counts them.
inline int takeMarks(QString& statement)
{
    int count = 0;
    for (auto found = inkmacro::Mark::find(statement, 0); found; found = inkmacro::Mark::find(statement, found->at)) {
        statement.remove(static_cast<int>(found->at), inkmacro::Mark::length);
        ++count;
    }
    return count;
}
