// Bytes as a drawing file: what comes of them must be a recording, whatever they are.

#include "fuzzing.h"

#include "dxf/Import.h"
#include "recordfile/JsonOut.h"
#include "recordfile/actionForms.h"

#include <cstdlib>

using namespace inkmacro;

namespace {

/// A small file can ask for many copies: so many bytes of them are read again.
constexpr int kMostRead = 1 << 20;

QByteArray recordingOf(std::string_view file)
{
    dxf::Drawing drawing(file);
    if (!drawing.isValid())
        return {};
    OdDbDatabase ids;
    dxf::Import import(drawing, ids, {});
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

} // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size)
{
    const QByteArray lines = recordingOf({reinterpret_cast<const char*>(data), size});
    Recording recording;
    if (const auto error = readBytes(lines, recording)) {
        qCritical("%s\n%s", qPrintable(error->text()), lines.constData());
        std::abort();
    }
    return 0;
}
