#include "app/importReport.h"

#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>

namespace inkmacro {

namespace {

/// A kind stands in the file as somebody has written it.
QString shown(const std::string& text)
{
    return QString::fromUtf8(text.data(), static_cast<int>(text.size()));
}

QJsonArray byReason(const dxf::Accounts::ByReason& entries, const char* key)
{
    QJsonArray list;
    for (const auto& [entry, count] : entries)
        list.append(QJsonObject{{"kind", shown(entry.first)}, {"count", count}, {key, shown(entry.second)}});
    return list;
}

} // namespace

QByteArray importReport(const dxf::Accounts& accounts)
{
    QJsonObject imported;
    for (const auto& [kind, count] : accounts.imported)
        imported.insert(shown(kind), count);
    QJsonArray approximated;
    for (const auto& [kind, curves] : accounts.approximated)
        approximated.append(
            QJsonObject{{"kind", shown(kind)}, {"count", curves.count}, {"deviation", curves.deviation}});
    return QJsonDocument(QJsonObject{{"imported", imported},
                                     {"approximated", approximated},
                                     {"lost", byReason(accounts.lost, "reason")},
                                     {"untold", byReason(accounts.untold, "what")}})
        .toJson();
}

QStringList importLines(const dxf::Accounts& accounts)
{
    QStringList lines;
    for (const auto& [kind, count] : accounts.imported)
        lines.append(QString("%1 %2 imported").arg(count).arg(shown(kind)));
    for (const auto& [kind, curves] : accounts.approximated)
        lines.append(QString("%1 %2 approximated, by at most %3")
                         .arg(curves.count)
                         .arg(shown(kind))
                         .arg(curves.deviation, 0, 'g', 3));
    for (const auto& [entry, count] : accounts.lost)
        lines.append(QString("%1 %2 lost: %3").arg(count).arg(shown(entry.first), shown(entry.second)));
    for (const auto& [entry, count] : accounts.untold)
        lines.append(QString("%1 %2 without %3").arg(count).arg(shown(entry.first), shown(entry.second)));
    return lines;
}

} // namespace inkmacro
