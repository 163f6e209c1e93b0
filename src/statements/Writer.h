#pragma once

#include "host/kernel/CFxString.h"
#include "statements/Fault.h"
#include "statements/MacroText.h"
#include "statements/WriteBehind.h"

#include <cstdint>
#include <functional>
#include <vector>

class QTextStream;

/// What a statement is written with: the target, the depth that it stands at, and the number that keeps its local names
/// apart. One for each conversion; the driver owns it, and every Emit operation takes it first.
class Writer
{
public:
    explicit Writer(inkmacro::Target target);
    Writer(const Writer&) = delete;
    Writer& operator=(const Writer&) = delete;

    /// The target's words for the phrase with indentation and line end filled in; the values follow.
    inkmacro::Fill fill(const inkmacro::Phrase& phrase) const;
    /// The same for literals in which `%2` is a value already: only the indentation is filled in.
    inkmacro::Fill fillIndented(const inkmacro::Phrase& phrase) const;
    /// The words of a frame, which bring their own indentation.
    inkmacro::Fill fill(const inkmacro::Template& words) const { return inkmacro::Fill(&words, mode()); }
    /// The target's words for the phrase, with nothing filled in.
    inkmacro::Fill fillPlain(const inkmacro::Phrase& phrase) const;
    /// The blanks in front of a statement.
    QString indentation() const;

    /// A text for a place that its literal has no quotes around, but the values next to it: in a repaired macro
    /// escaped, in any other with a note when it breaks them.
    QString quoted(const QString& text) const;
    /// The statement with a note that it has the fault, which a repaired macro has not: there it stays as it is.
    QString faulty(QString statement, const inkmacro::Fault& fault) const;

    /// Gives the parts of a text one by one, from 0; an empty one behind the last.
    using Parts = std::function<QString(std::size_t part)>;
    /// Stands in a statement for a text that is too long to be held: its parts are made when the statement is written.
    QString later(Parts parts);
    /// From here on statements bear marks of their faults, and so are good for write() alone.
    void noteFaults();
    /// While one of these lives, a second thread writes to the stream, which is nobody else's until finish() is called.
    class Background
    {
    public:
        Background(Writer& writer, QTextStream& stream) : writer_(writer)
        {
            writer_.behind_.emplace(writer_.text_, stream);
        }
        ~Background() { writer_.behind_.reset(); }
        Background(const Background&) = delete;
        Background& operator=(const Background&) = delete;

    private:
        Writer& writer_;
    };
    /// Writes statements, with all that they have kept for later. Their faults are noted with the lines where they
    /// stand.
    void write(QTextStream& stream, const QString& statements);
    /// Writes the declarations of objects, each on lines of its own. Their names are numbered through the macro, so
    /// that none is declared twice.
    void writeDeclarations(QTextStream& stream, const QString& declarations);
    /// Writes what the last line has without an end.
    void finish(QTextStream& stream);
    /// Forgets what has been kept, once no statement stands for it any more.
    void forgetLater() { later_.clear(); }

    const inkmacro::Target target;
    /// Whether the macro is written without the faults that its target is known to reject.
    const bool repairs;
    /// The macro's name without folders.
    QString file;
    /// Depth of the statement being written, four blanks a level.
    std::uint32_t IndentLevel = 0;
    /// Suffix that keeps the local names of one statement apart: raised before use by each statement that has one.
    std::uint32_t UniqueCounter = 0;

private:
    inkmacro::FillMode mode() const;
    void put(QTextStream& stream, inkmacro::MacroText::Kind kind, QStringView text);
    void put(const inkmacro::Fault& fault);
    void note(const std::vector<inkmacro::MacroText::FoundFault>& faults) const;

    std::vector<Parts> later_;
    inkmacro::MacroText text_;
    std::optional<inkmacro::WriteBehind> behind_;
    bool notesFaults_ = false;    ///< else no statement gets a mark of one
    mutable bool marked_ = false; ///< some statement has a mark
};
