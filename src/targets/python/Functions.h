#pragma once

#include "targets/CommandFunctions.h"
#include "targets/python/Parameters.h"
#include "targets/python/names.h"

#include <QSet>
#include <QStringList>

namespace inkmacro::python {

/// The functions of a macro, one a command, and what main() calls.
class Functions final : public CommandFunctions
{
public:
    void write(const RecordedCommand& command, const Sink& sink) override;

    /// The lines of main() that call the functions, in their order.
    QString calls() const { return calls_; }

private:
    /// The helpers that the function is the first to use, in front of it.
    QString helpersFor(const QString& begin, const RecordedCommand& command);
    void addHelper(QStringView name, QString& text);

    FreeNames names_;
    PromptNames promptNames_;
    QSet<QString> helpers_; ///< texts of those that stand in the macro
    QString calls_;
};

} // namespace inkmacro::python
