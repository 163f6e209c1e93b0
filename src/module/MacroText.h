#pragma once

#include "module/Locals.h"
#include "module/Origin.h"
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

    /// What became known of text that has been written.
    struct Found
    {
        std::vector<FoundFault> faults;
        OriginRuns lines; ///< of the macro's, those that are whole

        void add(const Found& other);
    };

    /// `notesFaults`: whether lines are looked at for faults. `notesLines`: whether it is kept of which origin they
    /// are. `folder`: where a file may be that lasts until the macro is written.
    MacroText(Target target, bool repairs, bool notesFaults, bool notesLines, const QString& folder);
    static bool divides(Target target, bool repairs) { return repairs && !mainLine(target).isEmpty(); }

    void write(QTextStream& stream, Kind kind, QStringView text);
    /// The line that is written next has it.
    void noteFault(const Fault& fault) { found_.faults.push_back({&fault, line_}); }
    /// What is written next has that origin. A line has that of the first text on it that is more than blanks.
    void begin(const Origin& origin);
    /// Best divided here; only of texts that are divided at all.
    void endAction() { procedures_->endAction(); }
    /// Writes what the last line has without an end, and of a text that is divided all; `lines`, when there is one,
    /// gets the lines of that.
    void finish(QTextStream& stream, const OriginSink& lines);
    /// What has been found since the last call.
    Found take();

private:
    void followLines(Kind kind, QStringView text);
    void findFaults(Kind kind, QStringView line);
    void writeLines(QTextStream& stream, Kind kind, QStringView text);
    void noteLength(qsizetype letters);
    void noteVariables(QStringView line);
    Origin takeOrigin();
    void endLine();

    const Target target_;
    const bool repairs_;
    const bool notesFaults_;
    const bool notesLines_;
    std::size_t line_ = 1; ///< that is written next
    QString begun_;        ///< what is there of that line
    Origin origin_;
    std::optional<Origin> begunOrigin_; ///< of that line, where it is another one
    Locals locals_;
    qsizetype letters_ = 0;
    QSet<QString> variables_;  ///< of a page
    std::size_t mainLine_ = 0; ///< that begins the procedure; 0: not there yet, or told that it is too long
    std::optional<Procedures> procedures_;
    Found found_;
};

} // namespace inkmacro
