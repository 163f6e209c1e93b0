#pragma once

#include "app/jobs.h"
#include "host/kernel/CFxActions.h"
#include "host/kernel/CFxConversionNotes.h"

#include <QByteArray>
#include <QFile>

namespace inkmacro {

struct Recording;

/// Grows when what a program could rely on changes.
inline constexpr int kMapVersion = 1;

/// The file that leads each line of a macro back to its action. It is written while the macro is, so that no more of it
/// is in memory than a piece.
class MacroMap
{
public:
    /// Begins the file at that path.
    MacroMap(const QString& path, const Job& job, const Recording& recording);

    /// Behind all lines that have been added.
    void add(const CFxMacroLines& lines);
    /// Why the file could not be written whole, or empty text.
    QString finish();

private:
    void addAction(const CFxMacroLines& lines, const OdRxObjectPtr& action);
    void write();

    QFile file_;
    const Recording& recording_;
    bool first_ = true;
    QByteArray bytes_; ///< that are not in the file yet
};

/// The JSON Schema of these files.
QByteArray mapSchema();

} // namespace inkmacro
