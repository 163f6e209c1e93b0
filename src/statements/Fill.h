#pragma once

#include "host/db/OdGe.h"
#include "host/kernel/CFxString.h"
#include "statements/EscapedText.h"
#include "statements/Statement.h"
#include "statements/Target.h"
#include "statements/Template.h"

#include <QString>
#include <QStringView>
#include <QVarLengthArray>

#include <initializer_list>
#include <optional>
#include <utility>
#include <variant>
#include <vector>

namespace inkmacro {

/// A text closes the literal that it stands in, or is read as another text there.
extern const Fault brokenQuotes;

/// What a conversion asks of the statements that it fills.
struct FillMode
{
    std::optional<Target> target{};
    bool repairs = false;         ///< see Fill
    bool notesFaults = false;     ///< whether faults are looked for
    bool notesAnswerable = false; ///< whether places are noted that answers may stand at
};

/// Fills one template. Values are taken in the order given: each goes to all places of the lowest-numbered marker that
/// is left. Values without a marker are dropped; markers without a value stay as they are. The outcome is exactly what
/// a chain of QString::arg calls makes of the literal, also where a value itself holds markers for the values behind
/// it; but Qt's warnings about missing markers are not printed.
///
/// In a repaired macro values hold no markers, and texts, which stand between quotes, are escaped as the target's
/// language wants it. In any other a fault is noted where that makes a difference. The notes of statements that are
/// values come to stand wherever the value does.
///
/// Texts that stand in a variable are kept as views: each must live until the statement is asked for. An outcome of
/// more than 256 Mi characters, or one on the way to it, raises an OdError, and so does one that markers in its values
/// would make more than 16 Mi longer.
class Fill
{
public:
    /// A null template yields empty text.
    /// `fault` is the one that the words have, if any.
    explicit Fill(const Template* words, const FillMode& mode = {}, const Fault* fault = nullptr)
        : template_(words), mode_(mode), fault_(fault), most_(words ? words->text_.size() : 0)
    {
    }
    Fill(const Fill&) = delete;
    Fill& operator=(const Fill&) = delete;
    Fill(Fill&&) = default; // what is kept does not move, so the views stay good

    /// Four blanks a level, but one blank at level 0.
    static int indentationWidth(unsigned level) { return level == 0 ? 1 : static_cast<int>(4 * level); }
    Fill& indent(unsigned level) { return add(Blanks{indentationWidth(level)}); }

    /// The text LineEnd.
    Fill& lineEnd();

    /// Words of the program: names of variables, operations and enumerators, and statements.
    Fill& word(QStringView value);
    Fill& word(QLatin1String value);
    Fill& word(const QString& value) { return word(QStringView(value)); }
    Fill& word(const CFxString& value) { return word(value.toQString()); }
    /// Keeps a text that nobody else does.
    Fill& word(QString&& value);
    Fill& word(CFxString&& value) { return word(QString(value.toQString())); }
    Fill& word(const Statement& value);
    Fill& word(Statement&& value);
    Fill& word(const Statement&& value) { return word(Statement(value)); }
    // What Qt's operators give is a temporary that is const.
    Fill& word(const QString&& value) { return word(QString(value)); }
    Fill& word(const CFxString&& value) { return word(QString(value.toQString())); }

    /// What the user or the drawing says, such as contents, names, paths and handles: a literal of the program. Python
    /// gets it with its quotes, which stand in the words of the other targets.
    Fill& text(QStringView value, Meaning meaning = Meaning::None);
    Fill& text(QLatin1String value);
    Fill& text(const QString& value, Meaning meaning = Meaning::None) { return text(QStringView(value), meaning); }
    Fill& text(const CFxString& value, Meaning meaning = Meaning::None) { return text(value.toQString(), meaning); }
    /// Keeps a text that nobody else does.
    Fill& text(QString&& value, Meaning meaning = Meaning::None);
    Fill& text(CFxString&& value, Meaning meaning = Meaning::None) { return text(QString(value.toQString()), meaning); }
    Fill& text(const EscapedText& value, Meaning meaning = Meaning::None);
    Fill& text(EscapedText&& value, Meaning meaning = Meaning::None) = delete;
    Fill& text(const QString&& value, Meaning meaning = Meaning::None) { return text(QString(value), meaning); }
    Fill& text(const CFxString&& value, Meaning meaning = Meaning::None)
    {
        return text(QString(value.toQString()), meaning);
    }

    /// A recorded name in a comment. Python's ends for certain with its line only.
    Fill& comment(const CFxString& name);

    Fill& number(int value, Meaning meaning = Meaning::None) { return number(qlonglong{value}, meaning); }
    Fill& number(long value) { return add(qlonglong{value}); }
    Fill& number(qlonglong value, Meaning meaning = Meaning::None);
    Fill& number(unsigned value) { return add(qulonglong{value}); }
    Fill& number(unsigned long value) { return add(qulonglong{value}); }
    Fill& number(qulonglong value) { return add(value); }

    /// In the form of FormatLong, in Python as it writes numbers itself.
    Fill& real(double value, Meaning meaning = Meaning::None);
    /// In the form of FormatShort; in a repaired macro in that of FormatLong, when six digits are too few.
    Fill& shortReal(double value, Meaning meaning = Meaning::None);

    // Points and vectors: a value for each coordinate, in Python one for all, with commas between them.
    Fill& point(const OdGePoint3d& value) { return reals({value.x, value.y, value.z}, Meaning::Point); }
    Fill& shortPoint(const OdGePoint3d& value) { return shortReals({value.x, value.y, value.z}, Meaning::Point); }
    Fill& shortVector(const OdGeVector3d& value) { return shortReals({value.x, value.y, value.z}, Meaning::None); }
    /// Without its height, in a statement that has none for it.
    Fill& planePoint(const OdGePoint3d& value) { return reals({value.x, value.y}, Meaning::Point); }
    Fill& shortPlanePoint(const OdGePoint3d& value) { return shortReals({value.x, value.y}, Meaning::Point); }
    /// One coordinate, for statements that have others than those of the point between them: a value in all targets.
    Fill& shortCoordinate(const OdGePoint3d& value, int axis);

    // Values that only a mended literal has places for: any other is not given them.
    Fill& mendWord(const CFxString& value) { return mode_.repairs ? word(value) : *this; }
    Fill& mendNumber(unsigned value) { return mode_.repairs ? number(value) : *this; }

    Statement str() const;
    operator Statement() const { return str(); }

    // The forms in which values are kept, besides Qt's own types.
    struct Blanks
    {
        int count;
    };
    struct Long
    {
        double value;
    };
    struct Short
    {
        double value;
    };
    /// What stands between quotes.
    struct Text
    {
        QStringView value;
    };

private:
    using Value = std::variant<Blanks, QStringView, QLatin1String, qlonglong, qulonglong, Long, Short, Text>;

    /// Of the types that Value has.
    template<class T>
    Fill& add(T value);
    Fill& reals(std::initializer_list<double> values, Meaning meaning);
    Fill& shortReals(std::initializer_list<double> values, Meaning meaning);
    bool isPython() const { return mode_.target == Target::Python; }
    /// Words that an answer may stand in place of.
    Fill& addAnswerable(QString words, Answerable&& value);

    /// The notes of a value.
    struct Noted
    {
        int rank;
        Statement::Notes notes;
    };

    /// What a value's text is to be read as.
    struct Meant
    {
        int rank;
        QString text;
    };

    // `used` is how many values have a marker.
    QString filled(int used) const;
    QString escaped(int used, Statement::Notes* notes = nullptr) const;
    Statement::Notes notesOf(int used) const;
    /// Of the value of that rank, which stands at the place.
    void addNotes(Statement::Notes& notes, int rank, qsizetype place) const;
    void moveNotes(Statement::Notes& notes, int rank, const QString& text, qsizetype plain, qsizetype local) const;
    void noteFaults(Statement& outcome, int used) const;
    /// Whether a text comes to stand in that piece and breaks the quotes around it.
    bool breaksItsQuotes(const Template::Piece& piece, int used) const;
    void noteBrokenQuotes(Statement& outcome, int used) const;
    bool hasReadMarker(int used) const;
    bool fitsOnePass() const;
    QString inOnePass(int used) const;
    QString valueByValue(Statement::Notes* notes = nullptr) const;

    const Template* template_;
    const FillMode mode_;
    const Fault* const fault_;
    QVarLengthArray<Value, 16> values_;
    std::vector<QString> kept_; ///< what views among the values look at; their characters never move
    std::vector<Noted> noted_;
    std::vector<Meant> meant_; ///< of texts that were escaped
    qsizetype most_;           ///< no outcome is longer while no value holds a marker
    bool percent_ = false;     ///< some text holds '%'
    bool open_ = false;        ///< some value can make a marker of what stands in front of it
    bool escapes_ = false;     ///< some text has letters that may need escapes
    int rounded_ = -1;         ///< the first value that loses digits
};

/// Fixed notation with 14 decimals, halves away from zero: "1.50000000000000".
QString FormatLong(double value);
/// Six significant digits, scientific notation from 1e+06 up and below 1e-04: "0.5", "1.23457e+06".
QString FormatShort(double value);

} // namespace inkmacro
