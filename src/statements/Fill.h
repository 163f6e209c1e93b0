#pragma once

#include "host/db/OdGe.h"
#include "host/kernel/CFxString.h"
#include "statements/EscapedText.h"
#include "statements/Statement.h"
#include "statements/Template.h"

#include <QString>
#include <QStringView>
#include <QVarLengthArray>

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
    bool repairs = false;     ///< see Fill
    bool notesFaults = false; ///< whether faults are looked for
};

/// Fills one template. Values are taken in the order given: each goes to all places of the lowest-numbered marker that
/// is left. Values without a marker are dropped; markers without a value stay as they are. The outcome is exactly what
/// a chain of QString::arg calls makes of the literal, also where a value itself holds markers for the values behind
/// it; but Qt's warnings about missing markers are not printed.
///
/// In a repaired macro values hold no markers, and a text between quotes is escaped as the target's language wants it.
/// In any other a fault is noted where that makes a difference. The notes of statements that are values come to stand
/// wherever the value does.
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
    Fill& text(QStringView value);
    Fill& text(QLatin1String value);
    Fill& text(const QString& value) { return text(QStringView(value)); }
    Fill& text(const CFxString& value) { return text(value.toQString()); }
    /// Keeps a text that nobody else does.
    Fill& text(QString&& value);
    Fill& text(CFxString&& value) { return text(QString(value.toQString())); }
    Fill& text(const EscapedText& value);
    Fill& text(EscapedText&& value) = delete;
    Fill& text(const Statement& value);
    Fill& text(Statement&& value);
    Fill& text(const Statement&& value) { return text(Statement(value)); }
    // What Qt's operators give is a temporary that is const.
    Fill& text(const QString&& value) { return text(QString(value)); }
    Fill& text(const CFxString&& value) { return text(QString(value.toQString())); }

    Fill& number(int value) { return add(qlonglong{value}); }
    Fill& number(long value) { return add(qlonglong{value}); }
    Fill& number(qlonglong value) { return add(value); }
    Fill& number(unsigned value) { return add(qulonglong{value}); }
    Fill& number(unsigned long value) { return add(qulonglong{value}); }
    Fill& number(qulonglong value) { return add(value); }

    /// In the form of FormatLong.
    Fill& real(double value) { return add(Long{value}); }
    /// The three coordinates in the form of FormatLong.
    Fill& point(const OdGePoint3d& value) { return real(value.x).real(value.y).real(value.z); }
    /// In the form of FormatShort; in a repaired macro in that of FormatLong, when six digits are too few.
    Fill& shortReal(double value);
    /// The three coordinates in the form of FormatShort.
    Fill& shortPoint(const OdGePoint3d& value) { return shortReal(value.x).shortReal(value.y).shortReal(value.z); }
    Fill& shortVector(const OdGeVector3d& value) { return shortReal(value.x).shortReal(value.y).shortReal(value.z); }

    // Values that only a mended literal has places for: any other is not given them.
    Fill& mendText(const CFxString& value) { return mode_.repairs ? text(value) : *this; }
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

private:
    using Value = std::variant<Blanks, QStringView, QLatin1String, qlonglong, qulonglong, Long, Short>;

    /// Of the types that Value has.
    template<class T>
    Fill& add(T value);

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
    /// Whether the text that comes to stand in that piece breaks the quotes around it.
    bool breaksItsQuotes(const Template::Piece& piece, int used) const;
    void noteBrokenQuotes(Statement& outcome, int used) const;
    bool needsNoEscapes(int used) const;
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
    int rounded_ = -1;         ///< the first value that loses digits
};

/// Fixed notation with 14 decimals, halves away from zero: "1.50000000000000".
QString FormatLong(double value);
/// Six significant digits, scientific notation from 1e+06 up and below 1e-04: "0.5", "1.23457e+06".
QString FormatShort(double value);

} // namespace inkmacro
