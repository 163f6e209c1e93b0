#include "app/importReport.h"

#include "app/valueText.h"
#include "recordfile/JsonOut.h"

namespace inkmacro {

using recordfile::JsonOut;

namespace {

/// A kind stands in the file as somebody has written it.
QString shown(const std::string& text)
{
    return printable(QString::fromUtf8(text.data(), static_cast<int>(text.size())));
}

void addCounts(JsonOut& out, std::string_view name, const dxf::Accounts::ByKind& counts)
{
    out.key(name);
    out.beginObject();
    for (const auto& [kind, count] : counts) {
        out.key(shown(kind));
        out.integer(count);
    }
    out.endObject();
}

void addList(JsonOut& out, std::string_view name, const dxf::Accounts::ByReason& entries, std::string_view key)
{
    out.key(name);
    out.beginArray();
    for (const auto& [entry, count] : entries) {
        out.beginObject();
        out.key(std::string_view("kind"));
        out.text(shown(entry.first));
        out.key(std::string_view("count"));
        out.integer(count);
        out.key(key);
        out.text(shown(entry.second));
        out.endObject();
    }
    out.endArray();
}

qint64 total(const dxf::Accounts::ByReason& entries)
{
    qint64 all = 0;
    for (const auto& [entry, count] : entries)
        all += count;
    return all;
}

} // namespace

QByteArray importMembers(const dxf::Accounts& accounts)
{
    JsonOut out{CFxValueContext{}};
    addCounts(out, "imported", accounts.imported);
    out.key(std::string_view("approximated"));
    out.beginArray();
    for (const auto& [kind, curves] : accounts.approximated) {
        out.beginObject();
        out.key(std::string_view("kind"));
        out.text(shown(kind));
        out.key(std::string_view("count"));
        out.integer(curves.count);
        out.key(std::string_view("deviation"));
        out.number(curves.deviation);
        out.endObject();
    }
    out.endArray();
    addList(out, "lost", accounts.lost, "reason");
    addList(out, "untold", accounts.untold, "what");
    if (accounts.since) {
        addCounts(out, "changed", accounts.since->changed);
        addCounts(out, "erased", accounts.since->erased);
        addCounts(out, "unchanged", accounts.since->unchanged);
    }
    out.key(std::string_view("remarks"));
    out.beginArray();
    for (const std::string& remark : accounts.remarks)
        out.text(shown(remark));
    out.endArray();
    return out.bytes();
}

QString importText(const dxf::Accounts& accounts)
{
    QStringList parts;
    if (const qint64 lost = total(accounts.lost))
        parts.append(counted(lost, "entity", "entities") + " of the drawing lost");
    qint64 approximated = 0;
    for (const auto& [kind, curves] : accounts.approximated)
        approximated += curves.count;
    if (approximated)
        parts.append(counted(approximated, "curve", "curves") + " approximated");
    return parts.isEmpty() ? QString() : parts.join(", ") + "; --report text tells which";
}

QStringList importLines(const dxf::Accounts& accounts)
{
    QStringList lines;
    const auto add = [&](const dxf::Accounts::ByKind& counts, const char* what) {
        for (const auto& [kind, count] : counts)
            lines.append(QString("%1 %2 %3").arg(count).arg(shown(kind), what));
    };
    add(accounts.imported, "imported");
    if (accounts.since) {
        add(accounts.since->changed, "changed");
        add(accounts.since->erased, "erased");
        add(accounts.since->unchanged, "unchanged");
    }
    for (const auto& [kind, curves] : accounts.approximated)
        lines.append(QString("%1 %2 approximated, by at most %3")
                         .arg(curves.count)
                         .arg(shown(kind))
                         .arg(curves.deviation, 0, 'g', 3));
    for (const auto& [entry, count] : accounts.lost)
        lines.append(QString("%1 %2 lost: %3").arg(count).arg(shown(entry.first), shown(entry.second)));
    for (const auto& [entry, count] : accounts.untold)
        lines.append(QString("%1 %2 without %3").arg(count).arg(shown(entry.first), shown(entry.second)));
    for (const std::string& remark : accounts.remarks)
        lines.append(shown(remark));
    return lines;
}

} // namespace inkmacro
