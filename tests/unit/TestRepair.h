#pragma once

#include "host/kernel/CFxServices.h"

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
