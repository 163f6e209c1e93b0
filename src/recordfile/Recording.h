#pragma once

#include "host/db/OdDbDatabase.h"
#include "host/kernel/CFxActions.h"

#include <optional>
#include <utility>
#include <variant>

namespace inkmacro {

/// A recording, and what is known of the drawing in which it was made.
struct Recording
{
    struct Sheet
    {
        QString name;
        bool model = true;
        bool operator==(const Sheet&) const = default;
    };

    struct Header
    {
        std::optional<int> language; ///< the host setting RecordingLanguage
        int mode = 0;                ///< the ConversionMode
        qint64 context = 0;          ///< means something to the host alone
        std::optional<Sheet> sheet;  ///< current when recording began
        bool operator==(const Header&) const = default;
    };

    using Setting = std::variant<bool, double, QString>;

    struct Drawing
    {
        OdDbHandle currentLayout;
        OdDbHandle activeBlock;
        OdDbHandle layer;
        OdDbHandle textStyle;
        OdDbHandle tableStyle;
        OdDbHandle dimensionStyle;
        OdDbHandle richLineStyle;
        OdDbHandle lineStyle;
        std::vector<QString> lineStyleFolders; ///< as they stand in the file
        OdDbHandle groupDictionary;
        std::vector<std::pair<QString, Setting>> settings; ///< in the order of the file
        bool operator==(const Drawing&) const = default;
    };

    QString folder; ///< of the file, where relative paths in it begin; empty for the current one
    Header header;
    Drawing drawing;
    /// Never null. Stands before the actions because their values hold ids of it.
    std::unique_ptr<OdDbDatabase> database = std::make_unique<OdDbDatabase>();
    CFxActionArray actions;
    std::vector<qint64> actionLines; ///< one an action: its line in the file, from 1
};

/// Why a recording file could not be read.
struct RecordingError
{
    QString file;
    qint64 line = 0; ///< from 1; 0 when it is about the file as a whole
    QString path;    ///< as in `command.actions[2].added.handle`; empty when it is about the line as a whole
    QString message;

    /// `FILE:LINE: PATH: MESSAGE` without the parts that do not exist.
    QString text() const
    {
        const QString place = line > 0 ? file + ':' + QString::number(line) : file;
        return place + ": " + (path.isEmpty() ? message : path + ": " + message);
    }
};

} // namespace inkmacro
