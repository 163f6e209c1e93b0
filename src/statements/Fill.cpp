#include "statements/Fill.h"

#include "host/rx/OdError.h"
#include "statements/Fault.h"
#include "statements/LineEnd.h"
#include "statements/quoting.h"
#include "statements/wording.h"

#include <algorithm>
#include <array>
#include <bit>
#include <cmath>
#include <cstdint>
#include <cstring>
#include <type_traits>

namespace inkmacro {

namespace {

__extension__ using Wide = unsigned __int128;

bool hasMarker(QStringView text)
{
    return nextMarker(text, 0).end != -1;
}

QString filledByQt(const QString& text, Fill::Blanks value)
{
    return text.arg(QChar(u' '), value.count, QChar(u' '));
}

QString filledByQt(const QString& text, Fill::Long value)
{
    return text.arg(value.value, 0, 'f', 14, QChar(u' '));
}

QString filledByQt(const QString& text, Fill::Short value)
{
    return text.arg(value.value, 0, 'g', -1, QChar(u' '));
}

template<class T>
QString filledByQt(const QString& text, T value)
{
    return text.arg(value);
}

template<class T>
QString madeByQt(T value)
{
    return filledByQt(QStringLiteral("%1"), value);
}

/// 256 MiB of plain text. QString::arg reckons in int, and a bit further up it writes behind the end of its text.
constexpr qsizetype longestText = 256 * 1024 * 1024;
/// Markers that values hold for each other multiply: some thousand letters would fill any memory.
constexpr qsizetype longestGrowth = 16 * 1024 * 1024;

constexpr auto powersOfTen = [] {
    std::array<std::uint64_t, 20> powers{1};
    for (std::size_t i = 1; i < powers.size(); ++i) {
        powers[i] = 10 * powers[i - 1];
    }
    return powers;
}();

using DigitPair = std::array<char16_t, 2>;

/// "00" to "99". Digit by digit, filling takes 13 % more instructions (20,000 added lines to C#).
constexpr auto digitPairs = [] {
    std::array<DigitPair, 100> pairs{};
    for (std::size_t i = 0; i < pairs.size(); ++i) {
        pairs[i] = {static_cast<char16_t>(u'0' + i / 10), static_cast<char16_t>(u'0' + i % 10)};
    }
    return pairs;
}();

/// `value` times `factor`, computed exactly and then rounded, halves up. `value` is at least 0 and below 2^20, `factor`
/// is at most 10^14: so the mantissa's product stays below 2^100.
std::uint64_t scaled(double value, std::uint64_t factor)
{
    constexpr int storedBits = 52;
    constexpr auto leadingBit = std::uint64_t{1} << storedBits;
    const auto bits = std::bit_cast<std::uint64_t>(value);
    const int shift = 1075 - static_cast<int>(bits >> storedBits); // value == mantissa / 2^shift
    if (shift > 101) {
        return 0; // as are all numbers without the leading bit
    }
    const std::uint64_t mantissa = (bits & (leadingBit - 1)) | leadingBit;
    const Wide half = Wide{1} << (shift - 1);
    return static_cast<std::uint64_t>((Wide{mantissa} * factor + half) >> shift);
}

constexpr int longDecimals = 14;

bool isOrdinary(Fill::Long value)
{
    return std::fabs(value.value) < 1e15;
}

// The ranges with 0, 1, 2... decimals in the short form begin here.
constexpr std::array<double, 10> shortRanges{1e5, 1e4, 1e3, 1e2, 1e1, 1e0, 1e-1, 1e-2, 1e-3, 1e-4};

bool isOrdinary(Fill::Short value)
{
    const double size = std::fabs(value.value);
    return size >= shortRanges.back() && size < 999999.5; // which is the first to be rounded up to 1e+06
}

// Most characters that the written value can have.

qsizetype room(Fill::Blanks value)
{
    return value.count;
}

qsizetype room(QStringView value)
{
    return value.size();
}

qsizetype room(QLatin1String value)
{
    return value.size();
}

qsizetype room(qlonglong)
{
    return 20;
}

qsizetype room(qulonglong)
{
    return 20;
}

qsizetype room(Fill::Long value)
{
    return 1 + (isOrdinary(value) ? 16 : 309) + 1 + longDecimals;
}

qsizetype room(Fill::Short)
{
    return sizeof "-1.23457e-308";
}

// Writers put a value at `out` and return its end.

QChar* write(QChar* out, Fill::Blanks value)
{
    return std::fill_n(out, value.count, QChar(u' '));
}

QChar* copyText(QChar* out, const QChar* from, qsizetype length)
{
    return std::copy_n(from, length, out);
}

QChar* write(QChar* out, QStringView value)
{
    return copyText(out, value.data(), value.size());
}

QChar* write(QChar* out, QLatin1String value)
{
    return std::transform(value.begin(), value.end(), out, [](char c) { return QLatin1Char(c); });
}

/// Writes the last `width` digits, with leading zeros.
template<class T>
inline QChar* writeDigits(QChar* out, T value, int width)
{
    QChar* const end = out + width;
    QChar* at = end;
    for (; width >= 2; width -= 2) {
        at -= 2;
        std::memcpy(static_cast<void*>(at), digitPairs[value % 100].data(), sizeof(DigitPair));
        value /= 100;
    }
    if (width == 1) {
        *--at = static_cast<char16_t>(u'0' + value % 10);
    }
    return end;
}

/// Writes 14 digits. Halves of them are reckoned with in 32 bits, which is faster.
QChar* writeLongDecimals(QChar* out, std::uint64_t value)
{
    static_assert(longDecimals == 14);
    constexpr std::uint64_t half = powersOfTen[8];
    out = writeDigits(out, static_cast<std::uint32_t>(value / half), 6);
    return writeDigits(out, static_cast<std::uint32_t>(value % half), 8);
}

QChar* write(QChar* out, qulonglong value)
{
    std::size_t width = 1;
    while (width < powersOfTen.size() && value >= powersOfTen[width]) {
        ++width;
    }
    return writeDigits(out, value, static_cast<int>(width));
}

QChar* write(QChar* out, qlonglong value)
{
    auto size = static_cast<qulonglong>(value);
    if (value < 0) {
        *out++ = u'-';
        size = 0 - size; // right for the lowest number too, which has no positive twin
    }
    return write(out, size);
}

QChar* write(QChar* out, Fill::Long value)
{
    if (!isOrdinary(value)) {
        return write(out, QStringView(madeByQt(value)));
    }
    // A number that is rounded to zero keeps its sign. The negative zero has none, and is not below zero.
    if (value.value < 0) {
        *out++ = u'-';
    }
    constexpr std::uint64_t one = powersOfTen[longDecimals];
    const double size = std::fabs(value.value);
    auto whole = static_cast<qulonglong>(size);
    std::uint64_t fraction = scaled(size - static_cast<double>(whole), one);
    if (fraction == one) {
        fraction = 0;
        ++whole;
    }
    out = write(out, whole);
    *out++ = u'.';
    return writeLongDecimals(out, fraction);
}

QChar* write(QChar* out, Fill::Short value)
{
    if (value.value == 0) {
        *out++ = u'0'; // the negative zero has no sign here either
        return out;
    }
    if (!isOrdinary(value)) {
        return write(out, QStringView(madeByQt(value)));
    }
    if (value.value < 0) {
        *out++ = u'-';
    }
    const double size = std::fabs(value.value);
    std::size_t decimals = 0;
    while (size < shortRanges[decimals]) {
        ++decimals;
    }
    std::uint64_t digits = scaled(size, powersOfTen[decimals]);
    for (; decimals > 0 && digits % 10 == 0; --decimals) {
        digits /= 10;
    }
    out = write(out, qulonglong{digits / powersOfTen[decimals]});
    if (decimals > 0) {
        *out++ = u'.';
        out = writeDigits(out, digits, static_cast<int>(decimals));
    }
    return out;
}

/// How many characters the value has at a marker of that form.
template<class T>
qsizetype lengthAt(const QString& marker, T value)
{
    if constexpr (std::is_same_v<T, QStringView> || std::is_same_v<T, QLatin1String>) {
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

/// A text of at most `most` characters, made by a writer.
template<class Writer>
QString written(qsizetype most, Writer writer)
{
    QString text(static_cast<int>(most), Qt::Uninitialized);
    QChar* const begin = text.data();
    text.truncate(static_cast<int>(writer(begin) - begin));
    return text;
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

Fill& Fill::lineEnd()
{
    return add(QStringView(LineEnd));
}

Fill& Fill::text(QStringView value)
{
    percent_ = percent_ || std::find(value.begin(), value.end(), u'%') != value.end();
    return add(value);
}

Fill& Fill::text(QString&& value)
{
    kept_.push_back(std::move(value));
    return text(QStringView(kept_.back()));
}

Fill& Fill::text(QLatin1String value)
{
    percent_ = percent_ || value.contains(QLatin1Char('%'));
    return add(value);
}

Fill& Fill::shortReal(double value)
{
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

Fill& Fill::text(const EscapedText& value)
{
    if (mode_.notesFaults && value.written != value.meant) {
        meant_.push_back({values_.size(), value.meant});
    }
    return text(QStringView(value.written));
}

Fill& Fill::text(const Statement& value)
{
    if (value.hasNotes()) {
        noted_.push_back({values_.size(), value.notes()});
    }
    return text(value.text());
}

Fill& Fill::text(Statement&& value)
{
    if (value.hasNotes()) {
        noted_.push_back({values_.size(), value.notes()});
    }
    return text(QString(value.text()));
}

Statement Fill::str() const
{
    if (!template_) {
        return {};
    }
    const int used = std::min(values_.size(), static_cast<int>(template_->ranks_.size()));
    if (mode_.repairs) {
        // Most statements: markers in values mean nothing here.
        if (noted_.empty() && most_ <= longestText && needsNoEscapes(used))
            return inOnePass(used);
        Statement::Notes notes;
        QString outcome = escaped(used, noted_.empty() ? nullptr : &notes);
        return {std::move(outcome), std::move(notes)};
    }
    QString text = filled(used);
    Statement outcome = noted_.empty() ? Statement(std::move(text)) : Statement(std::move(text), notesOf(used));
    if (mode_.notesFaults && (fault_ || percent_ || rounded_ >= 0 || template_->quotes_)) {
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

/// With values in which no markers are read; only a repaired macro has those between quotes escaped.
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
        if (mode_.repairs && piece.quoted) {
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
    if (template_->quotes_ && hasBrokenQuotes(used)) {
        outcome.addFault(brokenQuotes);
    }
}

/// The line end that a literal's own fault puts between quotes is no text of the user's.
bool Fill::hasBrokenQuotes(int used) const
{
    return std::any_of(template_->pieces_.begin(), template_->pieces_.end(), [&](const Template::Piece& piece) {
        const auto* const text =
            piece.quoted && piece.rank < used ? std::get_if<QStringView>(&values_[piece.rank]) : nullptr;
        if (!text || text->data() == LineEnd.constData() || isPlain(*text)) {
            return false;
        }
        const auto escaped =
            std::find_if(meant_.begin(), meant_.end(), [&](const Meant& meant) { return meant.rank == piece.rank; });
        return breaksQuotes(*text, escaped == meant_.end() ? *text : QStringView(escaped->text), *mode_.target);
    });
}

/// Whether each text that comes to stand between quotes is plain.
bool Fill::needsNoEscapes(int used) const
{
    const auto isPlainText = [](const auto& value) {
        if constexpr (std::is_same_v<std::decay_t<decltype(value)>, QStringView>)
            return isPlain(value);
        else
            return !std::is_same_v<std::decay_t<decltype(value)>, QLatin1String>;
    };
    return !template_->quotes_ ||
           std::none_of(template_->pieces_.begin(), template_->pieces_.end(), [&](const Template::Piece& piece) {
               return piece.quoted && piece.rank < used && !std::visit(isPlainText, values_[piece.rank]);
           });
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
