#pragma once

#include "module/Locals.h"
#include "module/Procedures.h"
#include "statements/Fault.h"

#include <QSet>
#include <QString>
#include <QStringView>

#include <algorithm>
#include <cstddef>
#include <optional>
#include <vector>

class QTextStream;

namespace inkmacro {

/// Calls for one slice of the text after the other, of at most so many letters; no pair of surrogates is cut. Who makes
/// copies does so of a slice at a time.
template<class Use>
void forSlices(QStringView text, qsizetype most, Use use)
{
    while (!text.isEmpty()) {
        qsizetype length = std::min(most, text.size());
        if (length < text.size() && text[length].isLowSurrogate())
            --length;
        use(text.left(length));
        text = text.mid(length);
    }
}

/// The text of a macro on its way into the stream, line by line: gives the faults in it their lines, and tells locals
/// apart that a repaired macro would declare twice. Belongs to one thread at a time.
class MacroText
{
public:
    enum class Kind
    {
        Statements,
        Declarations, ///< whole lines with locals that no other line declares
        Frame         ///< whole lines of the head or the foot
    };

    struct FoundFault
    {
        const Fault* fault;
        std::size_t line; ///< from 1
    };

    /// `notesFaults`: whether lines are looked at for faults. `folder`: where a file may be that lasts until the macro
    /// is written.
    MacroText(Target target, bool repairs, bool notesFaults, const QString& folder);
    static bool divides(Target target, bool repairs) { return repairs && !mainLine(target).isEmpty(); }

    void write(QTextStream& stream, Kind kind, QStringView text);
    /// The line that is written next has it.
    void noteFault(const Fault& fault) { faults_.push_back({&fault, line_}); }
    /// Best divided here; only of texts that are divided at all.
    void endAction() { procedures_->endAction(); }
    /// Writes what the last line has without an end.
    void finish(QTextStream& stream);
    /// The faults since the last call.
    std::vector<FoundFault> takeFaults();

private:
    void followLines(Kind kind, QStringView text);
    void writeLines(QTextStream& stream, Kind kind, QStringView text);
    void noteLength(qsizetype letters);
    void noteVariables(QStringView line);

    const Target target_;
    const bool repairs_;
    const bool notesFaults_;
    std::size_t line_ = 1; ///< that is written next
    QString begun_;        ///< what is there of that line
    Locals locals_;
    qsizetype letters_ = 0;
    QSet<QString> variables_;  ///< of a page
    std::size_t mainLine_ = 0; ///< that begins the procedure; 0: not there yet, or told that it is too long
    std::optional<Procedures> procedures_;
    std::vector<FoundFault> faults_;
};

} // namespace inkmacro
