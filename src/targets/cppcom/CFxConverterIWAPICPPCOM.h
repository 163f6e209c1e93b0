#pragma once

#include "frame/CFxConverterIWAPIImpl.h"

/// C++ through COM: the source of an in-process ATL server whose command repeats the recording, and its project.
class CFxConverterIWAPICPPCOM final : public CFxConverterIWAPIImpl
{
public:
    explicit CFxConverterIWAPICPPCOM(std::uint32_t mode);

    QString EmitFileHeader(const QString& className, bool hasSysVar) override;
    QString EmitFileFooter() override;
    QString EmitProjectText(const QString& projectName) override;
    std::int32_t EmitProjectFiles(const QString& path) override;

private:
    // Process-wide; each converter makes both anew, so that the files of one project agree and two projects never do.
    // With braces.
    static QString ConnectionClassUuid;
    static QString TypeLibraryUuid;
};
