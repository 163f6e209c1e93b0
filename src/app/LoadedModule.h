#pragma once

#include "module/Exports.h"

#include <stdexcept>

namespace inkmacro {

/// Loads the library, so that processes which are forked from here on have it. What is wrong with it is theirs to tell.
void loadModuleAhead();

/// The macro writer out of its library, ready for use. It is told of its end when this goes; the library itself stays
/// loaded, because class descriptors and texts that come from it may be known to the host by then.
class LoadedModule
{
public:
    /// Raises std::runtime_error with the reason.
    LoadedModule();
    ~LoadedModule();
    LoadedModule(const LoadedModule&) = delete;
    LoadedModule& operator=(const LoadedModule&) = delete;

    CFxConverterIWAPIModule* operator->() const { return module_.get(); }

private:
    OdSmartPtr<CFxConverterIWAPIModule> module_;
};

} // namespace inkmacro
