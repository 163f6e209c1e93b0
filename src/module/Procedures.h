#pragma once

#include "module/Origin.h"
#include "module/ProcedureLanguage.h"
#include "statements/Target.h"

#include <QHash>
#include <QString>
#include <QStringView>
#include <QTemporaryFile>
#include <QTextStream>
#include <QVector>

#include <memory>
#include <optional>
#include <string_view>
#include <vector>

namespace inkmacro {

/// Divides the one procedure of a long macro into several, which it calls in turn: in VBA procedures, in JavaScript
/// functions. A run of lines that closes every block that it opens becomes a procedure of its own, wherever it stands;
/// a call takes its place. That keeps the order of all statements, and as many lines in memory as a few procedures
/// have: finished ones wait in a file.
///
/// Declarations stand ahead of the first procedure, so those of variables that several procedures use are written when
/// all procedures are known.
class Procedures
{
public:
    /// The file is made in that folder, and is gone when this is.
    Procedures(Target target, const QString& folder);

    /// A line of the head or, behind statements, of the foot: those stay where they are.
    void frameLine(const QString& line);
    /// A line of statements. In VBA no variable may have the name of another.
    void line(const QString& line, const Origin& origin);
    /// What has been written makes sense by itself: best divided here.
    void endAction();
    /// Writes the macro, and tells of which origin its lines are. A file that failed makes the stream fail.
    void finish(QTextStream& stream, const OriginSink& told);

private:
    struct Line
    {
        QString text;
        Origin origin;
    };
    using Lines = QVector<Line>;

    struct Run
    {
        Lines lines;
        qsizetype letters = 0;
        int calls = 0;           ///< lines in front that are calls of procedures
        bool leavesLoop = false; ///< one that it stands in
        bool leavesMain = false;

        void add(const Run& other);
    };
    struct Block
    {
        Run closed;        ///< its beginning, and those of its parts that have ended
        Run part;          ///< the present one
        int actionEnd = 0; ///< so many lines of it are whole actions
        bool isLoop = false;
    };

    void addWhole(const QString& line, const Origin& origin);
    void closePart(Block& block);
    void closeBlock(const Run& end);
    void add(const Run& unit);
    /// Whether they are too long for one procedure. Calls need none of their own until there are many.
    bool isLong(const Run& run, const Run& more) const;
    /// False when there is nothing that can be taken out of the block.
    bool divide(Block& block);
    /// Makes a procedure of those lines of the run.
    void extract(Run& run, int from, int to);
    void writeProcedure(const Lines& lines);
    void noteNames(const Lines& lines, int procedure);
    void setKey(QString& key, QStringView name) const;
    /// Whether the line declares a variable that several procedures use.
    bool declaresShared(QStringView line) const;
    /// Writes the declaration of what the line shares; false when there is none, or none that is not written yet.
    bool declare(QTextStream& stream, QStringView line);
    /// What stands where the line does, in which no shared variable is declared; nothing when no line does.
    std::optional<QString> unshared(const QString& line) const;
    /// The line, without its end, when it may declare a variable.
    QString declarationIn(std::string_view line) const;
    /// Calls for each line of the finished procedures and its origin.
    template<class Use>
    void forWaiting(const Use& use);
    void writeDivided(QTextStream& stream, const OriginSink& told);
    static bool isBlankLine(const Line& line);

    const Target target_;
    const std::unique_ptr<ProcedureLanguage> language_;
    const ProcedureLanguage::Limits limits_;
    Lines head_;
    Lines foot_;
    QString continued_; ///< the lines that the next one belongs to
    Origin continuedOrigin_;
    std::vector<Block> blocks_;
    int count_ = 0;
    QHash<QString, int> users_; ///< of each name: the procedure that has it, by its number
    QTemporaryFile waiting_;
    QTextStream toWaiting_;
    OriginRuns waitingOrigins_; ///< of the lines in it
    bool failed_ = false;
};

} // namespace inkmacro
