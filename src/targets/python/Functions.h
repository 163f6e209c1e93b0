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
    std::vector<Lines> function(const RecordedCommand& command) override;

    /// The lines of main() that call the functions, in their order.
    QString calls() const { return calls_; }

private:
    /// The helpers that the function is the first to use, in front of it.
    QString helpersFor(const std::vector<Lines>& lines);
    void addHelper(const QString& name, QString& text);

    FreeNames names_;
    QSet<QString> helpers_; ///< that stand in the macro
    QString calls_;
};

} // namespace inkmacro::python
