// The converters by language code.

#include "frame/CFxConverterIWAPI.h"
#include "targets/TargetTable.h"
#include "targets/cpp/CFxConverterIWAPICPP.h"
#include "targets/cppcom/CFxConverterIWAPICPPCOM.h"
#include "targets/csharp/CFxConverterIWAPICSharp.h"
#include "targets/javascript/CFxConverterIWAPIJavaScript.h"
#include "targets/vba/CFxConverterIWAPIVba.h"
#include "targets/vbnet/CFxConverterIWAPIVbNet.h"

std::unique_ptr<CFxConverterIWAPI> CreateConverter(std::uint32_t language, std::uint32_t mode, CFxValueContext context)
{
    std::unique_ptr<CFxConverterIWAPI> converter;
#define INKMACRO_CREATE(id, suffix, name, extension, projectFiles)                                                     \
    if (language == static_cast<std::uint32_t>(inkmacro::Target::id))                                                  \
        converter = std::make_unique<CFxConverterIWAPI##suffix>(mode);
    INKMACRO_TARGETS(INKMACRO_CREATE)
#undef INKMACRO_CREATE
    if (converter)
        converter->SetContext(context);
    return converter;
}
