#include "statements/bstrTexts.h"

namespace inkmacro {

namespace {

/// The call that makes the BSTR for what stands in front of a literal; empty where any text will do.
QByteArray makerBehind(const QByteArray& front)
{
    if (front.endsWith('='))
        return "SysAllocString(";
    const bool isRaw = front.endsWith('(') && front.mid(front.lastIndexOf("->")).startsWith("->put_");
    return isRaw ? "_bstr_t(" : "";
}

} // namespace

QByteArray textsAsBstr(QByteArray words)
{
    for (auto at = words.indexOf("L\""); at != -1; at = words.indexOf("L\"", at)) {
        auto end = words.indexOf('"', at + 2) + 1;
        if (const QByteArray maker = makerBehind(words.left(at).trimmed()); !maker.isEmpty()) {
            words.insert(end, ')').insert(at, maker);
            end += maker.size() + 1;
        }
        at = end;
    }
    return words;
}

} // namespace inkmacro
