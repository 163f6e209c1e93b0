#include "statements/Fill.h"

#include "host/rx/OdError.h"
#include "statements/Fault.h"
#include "statements/LineEnd.h"
#include "statements/pythonLiterals.h"
#include "statements/quoting.h"
#include "statements/wording.h"
#include "statements/writtenValues.h"

#include <algorithm>
#include <array>
#include <type_traits>

namespace inkmacro {

namespace {

bool hasMarker(QStringView text)
{
    return nextMarker(text, 0).end != -1;
}

/// 256 MiB of plain text. QString::arg reckons in int, and a bit further up it writes behind the end of its text.
constexpr qsizetype longestText = 256 * 1024 * 1024;
/// Markers that values hold for each other multiply: some thousand letters would fill any memory.
constexpr qsizetype longestGrowth = 16 * 1024 * 1024;

/// How many characters the value has at a marker of that form.
template<class T>
qsizetype lengthAt(const QString& marker, T value)
{
    if constexpr (std::is_same_v<T, QStringView> || std::is_same_v<T, QLatin1String> || std::is_same_v<T, Fill::Text>) {
        return room(value);
    }
    return filledByQt(marker, value).size();
}

/// The places that the next value goes to.
std::vector<Marker> lowestMarkers(QStringView text)
{
    std::vector<Marker> lowest;
    for (Marker next = nextMarker(text, 0); next.end != -1; next = nextMarker(text, next.end)) {
        if (!lowest.empty() && next.number < lowest.front().number) {
            lowest.clear();
        }
        if (lowest.empty() || next.number == lowest.front().number) {
            lowest.push_back(next);
        }
    }
    return lowest;
}

/// How long the text becomes when values of these lengths go to the places of its lowest marker, those without and
/// those with an L.
qsizetype filledLength(QStringView text, qsizetype plain, qsizetype local)
{
    qsizetype length = text.size();
    for (const Marker& marker : lowestMarkers(text)) {
        length += (marker.local ? local : plain) - (marker.end - marker.begin);
    }
    return length;
}

[[noreturn]] void refuseLength()
{
    throw OdError(eTextTooLong, "a statement would be longer than 256 MiB");
}

/// Throws when the value would make a text of this one that is longer than `most`.
template<class T>
void requireLength(const QString& text, T value, qsizetype most)
{
    // Every other character a marker's first is the most that there can be, and the locale's form of a number is less
    // than twice as long as the other.
    if (text.size() * (1 + room(value)) <= most) {
        return;
    }
    const qsizetype plain = lengthAt(QStringLiteral("%1"), value);
    if (filledLength(text, plain, lengthAt(QStringLiteral("%L1"), value)) <= most) {
        return;
    }
    if (most == longestText) {
        refuseLength();
    }
    throw OdError(eTextTooLong, "markers in the texts of a statement would make it more than 16 MiB longer");
}

// Whether a value, put behind an open end, leaves no marker there that was none before.

bool isClosing(Fill::Blanks)
{
    return true;
}

bool isClosing(QStringView value)
{
    return !value.isEmpty() && value.front() != u'L' && value.front().digitValue() == -1;
}

bool isClosing(Fill::Text text)
{
    return isClosing(text.value);
}

bool isClosing(QLatin1String value)
{
    return !value.isEmpty() && value.front() != u'L' && QChar(value.front()).digitValue() == -1;
}

template<class T>
bool isClosing(T)
{
    return false;
}

const Fault kReadMarker{"EscapeText",
                        {Target::Cpp, Target::CSharp, Target::JavaScript, Target::VbNet, Target::CppCom, Target::Vba},
                        "a text holds a percent sign and a digit, and a later value of the statement stands there"};

} // namespace

const Fault brokenQuotes{"EscapeText",
                         {Target::Cpp, Target::CSharp, Target::JavaScript, Target::VbNet, Target::CppCom, Target::Vba},
                         "a text closes the literal that it stands in, or is read as another text there"};

template<class T>
Fill& Fill::add(T value)
{
    const auto rank = static_cast<std::size_t>(values_.size());
    if (template_ && rank < template_->ranks_.size()) {
        most_ += template_->ranks_[rank].places * room(value);
        open_ = open_ || (template_->ranks_[rank].exposed && !isClosing(value));
    }
    values_.append(Value(value));
    return *this;
}

template Fill& Fill::add(Blanks);
template Fill& Fill::add(QStringView);
template Fill& Fill::add(QLatin1String);
template Fill& Fill::add(qlonglong);
template Fill& Fill::add(qulonglong);
template Fill& Fill::add(Long);
template Fill& Fill::add(Short);
template Fill& Fill::add(Text);

Fill& Fill::lineEnd()
{
    return add(QStringView(LineEnd));
}

Fill& Fill::word(QStringView value)
{
    percent_ = percent_ || std::find(value.begin(), value.end(), u'%') != value.end();
    return add(value);
}

Fill& Fill::word(QString&& value)
{
    kept_.push_back(std::move(value));
    return word(QStringView(kept_.back()));
}

Fill& Fill::word(QLatin1String value)
{
    percent_ = percent_ || value.contains(QLatin1Char('%'));
    return add(value);
}

Fill& Fill::word(const Statement& value)
{
    if (value.hasNotes()) {
        noted_.push_back({values_.size(), value.notes()});
    }
    return word(value.text());
}

Fill& Fill::word(Statement&& value)
{
    if (value.hasNotes()) {
        noted_.push_back({values_.size(), value.notes()});
    }
    return word(QString(value.text()));
}

Fill& Fill::addAnswerable(QString words, Answerable&& value)
{
    if (mode_.notesAnswerable && value.meaning != Meaning::None) {
        value.length = static_cast<int>(words.size());
        noted_.push_back({values_.size(), {StatementNote{0, std::move(value)}}});
    }
    return word(std::move(words));
}

Fill& Fill::text(QStringView value, Meaning meaning)
{
    if (!isPython()) {
        percent_ = percent_ || std::find(value.begin(), value.end(), u'%') != value.end();
        escapes_ = escapes_ || ((mode_.repairs || mode_.notesFaults) && !isPlain(value));
        return add(Text{value});
    }
    return addAnswerable(pythonText(value), {.meaning = meaning, .length = 0, .text = value.toString()});
}

Fill& Fill::text(QString&& value, Meaning meaning)
{
    kept_.push_back(std::move(value));
    return text(QStringView(kept_.back()), meaning);
}

Fill& Fill::text(QLatin1String value)
{
    return text(QString(value));
}

Fill& Fill::text(const EscapedText& value, Meaning meaning)
{
    if (isPython()) {
        return text(QStringView(value.meant), meaning);
    }
    if (mode_.notesFaults && value.written != value.meant) {
        meant_.push_back({values_.size(), value.meant});
    }
    return text(QStringView(value.written), meaning);
}

Fill& Fill::comment(const CFxString& name)
{
    return isPython() ? word(pythonComment(name)) : word(name);
}

Fill& Fill::number(qlonglong value, Meaning meaning)
{
    if (!isPython() || meaning == Meaning::None) {
        return add(value);
    }
    return addAnswerable(QString::number(value),
                         {.meaning = meaning, .length = 0, .numbers = {static_cast<double>(value)}});
}

Fill& Fill::real(double value, Meaning meaning)
{
    if (!isPython()) {
        return add(Long{value});
    }
    return addAnswerable(pythonReal(value), {.meaning = meaning, .length = 0, .numbers = {value}});
}

Fill& Fill::shortReal(double value, Meaning meaning)
{
    if (isPython()) {
        return real(value, meaning);
    }
    if ((mode_.repairs || mode_.notesFaults) && losesDigits(value)) {
        if (mode_.repairs) {
            return real(value);
        }
        if (rounded_ < 0) {
            rounded_ = values_.size();
        }
    }
    return add(Short{value});
}

Fill& Fill::reals(std::initializer_list<double> values, Meaning meaning)
{
    if (!isPython()) {
        for (const double value : values) {
            real(value);
        }
        return *this;
    }
    Answerable point{.meaning = meaning, .length = 0, .axes = static_cast<int>(values.size())};
    std::copy(values.begin(), values.end(), point.numbers.begin());
    return addAnswerable(pythonReals(values), std::move(point));
}

Fill& Fill::shortReals(std::initializer_list<double> values, Meaning meaning)
{
    if (isPython()) {
        return reals(values, meaning);
    }
    for (const double value : values) {
        shortReal(value);
    }
    return *this;
}

Fill& Fill::shortCoordinate(const OdGePoint3d& value, int axis)
{
    const std::array coordinates{value.x, value.y, value.z};
    const double coordinate = coordinates[static_cast<std::size_t>(axis)];
    if (!isPython()) {
        return shortReal(coordinate);
    }
    return addAnswerable(pythonReal(coordinate),
                         {.meaning = Meaning::Point, .length = 0, .numbers = coordinates, .axes = 3, .axis = axis});
}

Statement Fill::str() const
{
    if (!template_) {
        return {};
    }
    const int used = std::min(values_.size(), static_cast<int>(template_->ranks_.size()));
    if (mode_.repairs) {
        // Most statements: markers in values mean nothing here.
        if (noted_.empty() && most_ <= longestText && !escapes_)
            return inOnePass(used);
        Statement::Notes notes;
        QString outcome = escaped(used, noted_.empty() ? nullptr : &notes);
        return {std::move(outcome), std::move(notes)};
    }
    QString text = filled(used);
    Statement outcome = noted_.empty() ? Statement(std::move(text)) : Statement(std::move(text), notesOf(used));
    if (mode_.notesFaults && (fault_ || percent_ || rounded_ >= 0 || escapes_)) {
        noteFaults(outcome, used);
    }
    return outcome;
}

QString Fill::filled(int used) const
{
    if (used == 0) {
        return template_->text_;
    }
    return fitsOnePass() ? inOnePass(used) : valueByValue();
}

/// With values in which no markers are read; only a repaired macro has texts escaped.
QString Fill::escaped(int used, Statement::Notes* notes) const
{
    QString out;
    for (const Template::Piece& piece : template_->pieces_) {
        if (piece.rank == Template::noMarker || piece.rank >= used) {
            out += QStringView(template_->text_).mid(piece.from, piece.length);
            continue;
        }
        const QString value = std::visit(
            [](const auto& held) { return written(room(held), [&](QChar* end) { return write(end, held); }); },
            values_[piece.rank]);
        if (notes) {
            addNotes(*notes, piece.rank, out.size());
        }
        if (mode_.repairs && std::holds_alternative<Text>(values_[piece.rank])) {
            appendQuoted(out, value, *mode_.target);
        } else {
            out += value;
        }
        if (out.size() > longestText) {
            refuseLength();
        }
    }
    return out;
}

/// The notes of the values, at their places in the outcome.
Statement::Notes Fill::notesOf(int used) const
{
    Statement::Notes notes;
    if (fitsOnePass()) {
        escaped(used, &notes);
    } else {
        valueByValue(&notes);
    }
    return notes;
}

void Fill::noteFaults(Statement& outcome, int used) const
{
    if (outcome.isEmpty()) {
        return;
    }
    if (fault_) {
        outcome.addFault(*fault_);
    }
    if (rounded_ >= 0 && rounded_ < used) {
        outcome.addFault(kSixDigits);
    }
    if (percent_ && hasReadMarker(used)) {
        outcome.addFault(kReadMarker);
    }
    if (escapes_) {
        noteBrokenQuotes(outcome, used);
    }
}

bool Fill::breaksItsQuotes(const Template::Piece& piece, int used) const
{
    const auto* const text =
        piece.rank != Template::noMarker && piece.rank < used ? std::get_if<Text>(&values_[piece.rank]) : nullptr;
    if (!text || isPlain(text->value)) {
        return false;
    }
    const auto escaped =
        std::find_if(meant_.begin(), meant_.end(), [&](const Meant& meant) { return meant.rank == piece.rank; });
    return breaksQuotes(text->value, escaped == meant_.end() ? text->value : QStringView(escaped->text), *mode_.target);
}

/// A statement may have many lines, and the head of a macro has: the fault is of each line where such a text stands.
/// Where values hold markers places are not known.
void Fill::noteBrokenQuotes(Statement& outcome, int used) const
{
    const auto writtenLength = [](const auto& value) {
        return written(room(value), [&](QChar* out) { return write(out, value); }).size();
    };
    int at = 0;
    int last = -1; // place of the fault that was noted last
    for (const Template::Piece& piece : template_->pieces_) {
        const bool isFilled = piece.rank != Template::noMarker && piece.rank < used;
        if (breaksItsQuotes(piece, used)) {
            if (!fitsOnePass()) {
                outcome.addFault(brokenQuotes);
                return;
            }
            if (last < 0 || QStringView(outcome.text()).mid(last, at - last).contains(u'\n')) {
                outcome.addFault(brokenQuotes, at);
                last = at;
            }
        }
        at += isFilled ? std::visit(writtenLength, values_[piece.rank]) : piece.length;
    }
}

/// Whether a value stands in a marker that another one holds.
bool Fill::hasReadMarker(int used) const
{
    return filled(used) != escaped(used);
}

/// Whether no value makes or changes a marker for the values behind it.
bool Fill::fitsOnePass() const
{
    return !template_->local_ && !percent_ && !open_ && most_ <= longestText;
}

QString Fill::inOnePass(int used) const
{
    return written(most_, [&](QChar* out) {
        const QChar* const text = template_->text_.constData();
        for (const Template::Piece& piece : template_->pieces_) {
            if (piece.rank != Template::noMarker && piece.rank < used) {
                out = std::visit([out](const auto& value) { return write(out, value); }, values_[piece.rank]);
            } else {
                out = copyText(out, text + piece.from, piece.length);
            }
        }
        return out;
    });
}

/// The slow way: reads the whole text again for every value.
QString Fill::valueByValue(Statement::Notes* notes) const
{
    const qsizetype most = std::min(longestText, most_ + longestGrowth);
    QString text = template_->text_;
    int rank = 0;
    for (const Value& value : values_) {
        if (!hasMarker(text)) {
            break;
        }
        text = std::visit(
            [&](const auto& held) {
                requireLength(text, held, most);
                if (notes) {
                    moveNotes(*notes, rank, text, lengthAt(QStringLiteral("%1"), held),
                              lengthAt(QStringLiteral("%L1"), held));
                }
                return filledByQt(text, held);
            },
            value);
        ++rank;
    }
    return text;
}

void Fill::addNotes(Statement::Notes& notes, int rank, qsizetype place) const
{
    for (const auto& [noted, ofValue] : noted_) {
        for (const StatementNote& note : ofValue) {
            if (noted == rank) {
                notes.push_back({static_cast<int>(place) + note.offset, note.what});
            }
        }
    }
}

/// The value takes the places of the lowest-numbered marker: what is noted behind one moves, and its own notes come in.
/// `plain` and `local` are the lengths of the two forms that it has.
void Fill::moveNotes(Statement::Notes& notes, int rank, const QString& text, qsizetype plain, qsizetype local) const
{
    Statement::Notes moved;
    auto next = notes.begin();
    qsizetype shift = 0;
    for (const Marker& marker : lowestMarkers(text)) {
        for (; next != notes.end() && next->offset <= marker.begin; ++next) {
            moved.push_back({next->offset + static_cast<int>(shift), next->what});
        }
        addNotes(moved, rank, marker.begin + shift);
        shift += (marker.local ? local : plain) - (marker.end - marker.begin);
    }
    for (; next != notes.end(); ++next) {
        moved.push_back({next->offset + static_cast<int>(shift), next->what});
    }
    notes = std::move(moved);
}

QString FormatLong(double value)
{
    return written(room(Fill::Long{value}), [value](QChar* out) { return write(out, Fill::Long{value}); });
}

QString FormatShort(double value)
{
    return written(room(Fill::Short{value}), [value](QChar* out) { return write(out, Fill::Short{value}); });
}

} // namespace inkmacro
