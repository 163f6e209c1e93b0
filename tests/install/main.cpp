// Converts a recording of nothing to the C# macro file named by the argument.

#include "module/CFxConverterIWAPIModule.h"

#include <cstdio>

extern "C" OdRxModule* odrxCreateModuleObject(const char* name);

int main(int argc, char** argv)
{
    if (argc != 2)
        return 2;
    const OdSmartPtr<CFxConverterIWAPIModule> module(
        static_cast<CFxConverterIWAPIModule*>(odrxCreateModuleObject("inkmacro")), kOdRxObjAttach);
    module->initApp();
    const std::int32_t status = module->ConvertRecording(argv[1], 1, 0, 0, CFxActionArray());
    module->uninitApp();
    std::printf("status %d\n", status);
    return status == kFxSuccess ? 0 : 1;
}
