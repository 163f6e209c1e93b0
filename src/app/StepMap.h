#pragma once

#include "host/kernel/CFxConversionNotes.h"
#include "view/Steps.h"
#include "view/differences.h"

#include <QByteArray>
#include <QFile>

#include <vector>

namespace inkmacro {

/// From which steps the lines of a macro come, as the process that converts leaves it for the one that makes a page.
struct StepMap
{
    struct Made
    {
        std::int32_t step;
        OdDbHandle object; ///< that a custom action makes and another action adds
    };

    std::vector<view::LineRange> ranges; ///< all lines, in order
    std::vector<Made> made;
};

/// Writes a step map while its macro is written.
class StepMapWriter
{
public:
    StepMapWriter(const QString& path, const CFxActionArray& actions);

    void add(const CFxMacroLines& lines);
    /// Why the file could not be written whole, or empty text.
    QString finish();

private:
    void write();

    QFile file_;
    view::Steps steps_;
    QByteArray bytes_; ///< that are not in the file yet
};

/// Of a file that a StepMapWriter has finished. Raises PlacingError when it cannot be read.
StepMap readStepMap(const QString& path);

} // namespace inkmacro
