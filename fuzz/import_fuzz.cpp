// Bytes as a drawing file: what comes of them must be a recording, whatever they are.

#include "fuzzing.h"

#include "dxf/Changes.h"
#include "dxf/Import.h"
#include "recordfile/JsonOut.h"
#include "recordfile/actionForms.h"

#include <cstdlib>
#include <string>

using namespace inkmacro;

namespace {

/// A small file can ask for many copies: so many bytes of them are read again.
constexpr int kMostRead = 1 << 20;

QByteArray linesOf(dxf::ActionSource& import)
{
    QByteArray lines = import.head();
    recordfile::JsonOut out{CFxValueContext{}};
    while (const OdRxObjectPtr action = import.next()) {
        recordfile::Form<OdRxObjectPtr>::write(out, action);
        out.endLine();
        if (out.refused()) {
            qCritical("a value cannot be written: %s", out.bytes().constData());
            std::abort();
        }
        if (lines.size() < kMostRead)
            lines += out.bytes();
        out.clear();
    }
    return lines;
}

void checkRecording(dxf::ActionSource& import)
{
    const QByteArray lines = linesOf(import);
    Recording recording;
    if (const auto error = readBytes(lines, recording)) {
        qCritical("%s\n%s", qPrintable(error->text()), lines.constData());
        std::abort();
    }
}

/// Another drawing that has much in common with this one.
std::string older(std::string_view file)
{
    std::string other(file);
    for (std::size_t at = 0; at < other.size(); at += 7)
        if (other[at] == '3' || other[at] == '1')
            other[at] = '4';
    return other;
}

} // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size)
{
    const std::string_view file(reinterpret_cast<const char*>(data), size);
    {
        dxf::Drawing drawing(file);
        if (!drawing.isValid())
            return 0;
        OdDbDatabase ids;
        dxf::Import import(drawing, ids, {});
        checkRecording(import);
    }
    const std::string former = older(file);
    dxf::Drawing before(former);
    if (!before.isValid())
        return 0;
    dxf::Drawing after(file);
    OdDbDatabase ids;
    static const dxf::ChangeForm any{.takesText = true, .takesItem = true, .takesObject = true};
    dxf::Changes changes(before, after, ids, {}, [](const OdRxClass*, const QString&, const char*) { return &any; });
    checkRecording(changes);
    return 0;
}
