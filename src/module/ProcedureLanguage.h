#pragma once

#include "statements/Target.h"

#include <QString>
#include <QStringView>
#include <QVarLengthArray>

#include <memory>
#include <string_view>

namespace inkmacro {

/// The line that begins the procedure of a macro that may be divided; empty in other targets.
QStringView mainLine(Target target);

/// What one who divides a macro into procedures knows of its language: the words that statements are written with, not
/// the language as a whole. Lines have no ends here.
class ProcedureLanguage
{
public:
    enum class Place
    {
        Within,
        Opens,
        OpensLoop,
        Divides,
        Closes
    };

    struct Shape
    {
        Place place = Place::Within; ///< in its block
        bool leavesLoop = false;     ///< one that it stands in
        bool leavesMain = false;
    };

    /// How long a procedure may be. One may have some lines more when it consists of one block.
    struct Limits
    {
        int lines;
        qsizetype letters;
    };

    using Names = QVarLengthArray<QStringView, 4>;

    /// Of a target whose macros are divided.
    static std::unique_ptr<ProcedureLanguage> of(Target target);
    virtual ~ProcedureLanguage() = default;
    ProcedureLanguage(const ProcedureLanguage&) = delete;
    ProcedureLanguage& operator=(const ProcedureLanguage&) = delete;

    virtual Limits limits() const = 0;
    /// Whether procedures stand at the end of the main one, and see what it declares; else they stand behind it, and
    /// see what is declared in front of it.
    virtual bool isNested() const = 0;
    /// In front of the word and the name of each variable that is declared; may stand elsewhere too.
    virtual std::string_view keyword() const = 0;

    /// Whether the next line belongs to the same statement. To be asked of each line in turn.
    virtual bool goesOn(QStringView line) = 0;
    virtual Shape shapeOf(QStringView statement) const = 0;

    virtual QString call(int procedure) const = 0;
    virtual QString opening(int procedure) const = 0;
    virtual QString closing() const = 0;
    virtual QString indentation() const = 0;

    virtual Names declaredIn(QStringView line) const = 0;
    /// The declaration of the line's variables where all procedures see them.
    virtual QString shared(QStringView line) const = 0;
    /// What is left of the line where it stood, if anything.
    virtual QString withoutDeclaration(QStringView line) const = 0;

protected:
    ProcedureLanguage() = default;
};

} // namespace inkmacro
