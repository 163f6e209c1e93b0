#pragma once

#include "targets/MacroFrame.h"

#include <QByteArray>

/// C++ through COM: the source of an in-process ATL server whose command repeats the recording, and its project.
class CFxConverterIWAPICPPCOM final : public MacroFrame
{
public:
    explicit CFxConverterIWAPICPPCOM(Writer& writer);

    Statement EmitFileHeader(const QString& className, bool hasSysVar) override;
    Statement EmitFileFooter() override;
    std::int32_t EmitProjectFiles(const QString& path) override;
    const char* refusal(const QString& fileName) const override;

private:
    /// The words with what stands for "{identifier}", the name as a part of identifiers: its marker, in a repaired
    /// project a legal name.
    QByteArray withIdentifier(QByteArray words, const char* marker, const QString& name) const;
    /// The text that was made of the words with a note of their first identifier, when the name cannot be a part of
    /// one.
    Statement faultyIdentifier(const QByteArray& words, const QString& name, const Statement& text) const;

    // Made anew for each conversion, so that the files of one project agree and two projects never do. With braces.
    const QString ConnectionClassUuid;
    const QString TypeLibraryUuid;
};
