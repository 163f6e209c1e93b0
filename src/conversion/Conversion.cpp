#include "conversion/Conversion.h"

bool Conversion::Drops(const inkmacro::Fault& fault)
{
    faults.note(fault);
    return writer.repairs;
}
