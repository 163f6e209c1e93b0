#include "conversion/ActionFaults.h"

#include <algorithm>
#include <utility>

using namespace inkmacro;

static const Fault kUnmade{
    "EmitObjectVariable",
    {Target::Cpp, Target::CSharp, Target::JavaScript, Target::VbNet, Target::CppCom, Target::Vba},
    "an object that no statement inserts has a variable without a value"};

void ActionFaults::note(const Fault& fault)
{
    if (std::ranges::find(noted_, &fault) == noted_.end())
        noted_.push_back(&fault);
}

void ActionFaults::noteUnmade()
{
    note(kUnmade);
}

Statement ActionFaults::on(Statement statements, const Writer& writer) const
{
    for (const Fault* const fault : noted_)
        statements = writer.faulty(std::move(statements), *fault);
    return statements;
}
