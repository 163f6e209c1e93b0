// The converters by language code.

#include "frame/CFxConverterIWAPI.h"
#include "objects/CFxConverterIWAPIObject.h"
#include "objects/targets/cpp/CFxConverterIWAPIObjectCPP.h"
#include "objects/targets/cppcom/CFxConverterIWAPIObjectCPPCOM.h"
#include "objects/targets/csharp/CFxConverterIWAPIObjectCSharp.h"
#include "objects/targets/javascript/CFxConverterIWAPIObjectJavaScript.h"
#include "objects/targets/vba/CFxConverterIWAPIObjectVba.h"
#include "objects/targets/vbnet/CFxConverterIWAPIObjectVbNet.h"
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

std::shared_ptr<CFxConverterIWAPIObject> CreateObjectConverter(inkmacro::Target target, CFxConverterIWAPIImpl* driver)
{
#define INKMACRO_CREATE(id, suffix, name, extension, projectFiles)                                                     \
    if (target == inkmacro::Target::id)                                                                                \
        return std::make_shared<CFxConverterIWAPIObject##suffix>(driver);
    INKMACRO_TARGETS(INKMACRO_CREATE)
#undef INKMACRO_CREATE
    return nullptr;
}
