#pragma once

#include <QByteArray>
#include <QString>

#include <vector>

class QIODevice;

namespace inkmacro::view {

/// For a place between tags or in quotes of a page: markup, control characters and those that turn the direction of
/// writing become what shows them.
QString escapedForPage(const QString& text);

/// The script that a JavaScript macro's page holds itself; empty when there is none.
QByteArray scriptOfMacro(const QByteArray& macro);

/// One self-contained file of HTML, written as it comes, so that no more of it is in memory than an island. Its policy
/// lets nothing run but the scripts of the program and those macros that it is told of, and nothing be fetched. Who
/// writes asks the device whether it took all.
class PageFile
{
public:
    /// `plain` is markup for a browser that runs no scripts.
    PageFile(QIODevice& device, const QString& title, const QString& plain,
             const std::vector<QByteArray>& macroScripts);

    /// Data that the scripts of the page read under that name.
    void addIsland(const QByteArray& name, const QByteArray& bytes);

    /// Behind the last island.
    void finish();

private:
    QIODevice& device_;
};

} // namespace inkmacro::view
