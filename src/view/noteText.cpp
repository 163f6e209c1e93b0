#include "view/noteText.h"

#include <QStringList>
#include <QTextBoundaryFinder>
#include <QVector>

#include <algorithm>
#include <array>
#include <optional>

namespace inkmacro::view {
namespace {

constexpr QChar kNoBreakSpace(0x00A0);
constexpr QChar kUnknownSign(0xFFFD);
constexpr QChar kEllipsis(0x2026);

/// The number of a sign in so many digits at a place; none when other signs stand there.
std::optional<uint> numberAt(const QString& text, int at, int digits, int base)
{
    bool isNumber = false;
    const QString written = text.mid(at, digits);
    const uint number = written.toUInt(&isNumber, base);
    const auto isSign = [](QChar sign) { return sign.isLetterOrNumber(); };
    if (!isNumber || written.length() != digits || !std::all_of(written.begin(), written.end(), isSign))
        return std::nullopt;
    return number;
}

/// What a sign behind `%%` stands for; none for one that means nothing.
std::optional<QString> percentSign(QChar sign)
{
    switch (sign.toLower().unicode()) {
    case 'd':
        return QString(QChar(0x00B0));
    case 'p':
        return QString(QChar(0x00B1));
    case 'c':
        return QString(QChar(0x00D8));
    case '%':
        return QStringLiteral("%");
    case 'u': // underlined, overlined and struck from here on, or no longer
    case 'o':
    case 'k':
        return QString();
    default:
        return std::nullopt;
    }
}

/// What the codes `%%x`, `%%nnn` and `\U+XXXX` at a place mean, and how long they are; a length of 0 for none.
struct SignCode
{
    QString meaning;
    int length = 0;
};

SignCode signCodeAt(const QString& text, int at)
{
    const QStringView rest = QStringView(text).mid(at);
    if (rest.startsWith(u"%%") && rest.length() > 2) {
        if (const auto number = numberAt(text, at + 2, 3, 10); number && *number >= 32 && *number < 256)
            return {QString(QChar(*number)), 5};
        if (const std::optional<QString> meaning = percentSign(rest[2]))
            return {*meaning, 3};
    }
    if (rest.startsWith(u"\\U+", Qt::CaseInsensitive))
        if (const auto number = numberAt(text, at + 3, 4, 16); number && *number >= 32)
            return {QString(QChar(*number)), 7};
    if (rest.startsWith(u"\\M+", Qt::CaseInsensitive) && numberAt(text, at + 3, 5, 16))
        return {QString(kUnknownSign), 8};
    return {};
}

/// The letters of the font of geometric tolerances, from `a` on.
constexpr std::array<char16_t, 26> kToleranceSigns{u'∠', u'⟂', u'⏥', u'⌓', u'○', u'∥', u'⌭', u'↗', u'⌯',
                                                   u'⌖', u'⌒', u'Ⓛ', u'Ⓜ', u'⌀', u'□', u'Ⓟ', u'℄', u'◎',
                                                   u'Ⓢ', u'⌰', u'⏤', u'⌴', u'⌵', u'↧', u'⌲', u'⌳'};

QChar toleranceSign(QChar letter)
{
    const int number = letter.toLower().unicode() - 'a';
    return number >= 0 && number < static_cast<int>(kToleranceSigns.size())
               ? QChar(kToleranceSigns[static_cast<std::size_t>(number)])
               : letter;
}

class NoteReader
{
public:
    explicit NoteReader(const QString& contents) : text_(contents) {}

    std::vector<QString> read()
    {
        while (at_ < text_.length())
            readNext();
        lines_.push_back(line_);
        return lines_;
    }

private:
    void readNext()
    {
        if (const SignCode code = signCodeAt(text_, at_); code.length > 0) {
            line_ += code.meaning;
            at_ += code.length;
            return;
        }
        const QChar sign = text_[at_++];
        switch (sign.unicode()) {
        case '{':
            groups_.push_back(isOfTolerances_);
            break;
        case '}':
            if (!groups_.empty()) {
                isOfTolerances_ = groups_.back();
                groups_.pop_back();
            }
            break;
        case '\\':
            readCode();
            break;
        case '^':
            readCaret();
            break;
        case '\n':
            endLine();
            break;
        case '\r':
            break;
        case '\t':
            line_ += ' ';
            break;
        default:
            line_ += isOfTolerances_ ? toleranceSign(sign) : sign;
        }
    }

    void endLine()
    {
        lines_.push_back(line_);
        line_.clear();
    }

    /// Behind a backslash. One in front of a sign that is no code stays, as in the path of a file.
    void readCode()
    {
        const QChar code = at_ < text_.length() ? text_[at_] : QChar();
        switch (code.unicode()) {
        case '\\':
        case '{':
        case '}':
            line_ += code;
            ++at_;
            break;
        case '~':
            line_ += kNoBreakSpace;
            ++at_;
            break;
        case 'P':
        case 'X':
        case 'N':
            endLine();
            ++at_;
            break;
        case 'L':
        case 'l':
        case 'O':
        case 'o':
        case 'K':
        case 'k':
            ++at_;
            break;
        default:
            if (!readSetting(code))
                line_ += '\\';
        }
    }

    /// A code that goes up to a semicolon.
    bool readSetting(QChar code)
    {
        static const QString settings = QStringLiteral("ACcFfHQSTWp");
        const int end = text_.indexOf(';', at_);
        if (code.isNull() || !settings.contains(code) || end < 0)
            return false;
        const QString setting = text_.mid(at_ + 1, end - at_ - 1);
        if (code == 'S')
            addStack(setting);
        else if (code == 'F' || code == 'f')
            isOfTolerances_ = setting.section('|', 0, 0).section('.', 0, 0).compare("gdt", Qt::CaseInsensitive) == 0;
        at_ = end + 1;
        return true;
    }

    /// Two texts on one another, with `^`, `/` or `#` between them; one alone is raised or lowered.
    void addStack(const QString& stack)
    {
        const auto isBar = [](QChar sign) { return sign == '^' || sign == '/' || sign == '#'; };
        const auto bar = static_cast<int>(std::find_if(stack.begin(), stack.end(), isBar) - stack.begin());
        const QString above = stack.left(bar).trimmed();
        const QString below = stack.mid(bar + 1).trimmed();
        const bool isFraction = !above.isEmpty() && !below.isEmpty();
        if (isFraction && !line_.isEmpty() && line_.back().isDigit())
            line_ += ' ';
        line_ += isFraction ? above + '/' + below : above + below;
    }

    /// Control signs are written as `^` and a letter.
    void readCaret()
    {
        const QChar next = at_ < text_.length() ? text_[at_] : QChar();
        ++at_;
        if (next == 'J')
            endLine();
        else if (next == 'I')
            line_ += ' ';
        else if (next == ' ' || next.isNull())
            line_ += '^';
        else if (next != 'M')
            line_ += QString("^") + next;
    }

    const QString& text_;
    int at_ = 0;
    QString line_;
    std::vector<QString> lines_;
    std::vector<bool> groups_; ///< whether the font of tolerances was on where each has begun
    bool isOfTolerances_ = false;
};

bool isWithoutWidth(uint letter)
{
    switch (QChar::category(letter)) {
    case QChar::Mark_NonSpacing:
    case QChar::Mark_Enclosing:
    case QChar::Other_Control:
    case QChar::Other_Format:
        return true;
    default:
        return false;
    }
}

/// In heights of a capital.
double widthOf(uint letter)
{
    constexpr uint kFirstOfFullWidth = 0x2E80;
    static const QString narrow = QStringLiteral(" ilj|!.,;:'`ftr()[]{}I\u00A0");
    static const QString wide = QStringLiteral("mwMW@%\u2014");
    if (isWithoutWidth(letter))
        return 0.0;
    if (letter >= kFirstOfFullWidth || wide.contains(QChar(letter)))
        return 1.25;
    if (narrow.contains(QChar(letter)))
        return 0.42;
    return QChar::isUpper(letter) ? 0.92 : 0.76;
}

void wrapLine(const QString& line, double height, double width, std::vector<QString>& lines)
{
    const double blank = estimatedWidth(QStringLiteral(" "), height);
    const QStringList words = line.split(' ');
    QString begun = words.front();
    double filled = estimatedWidth(begun, height);
    for (int i = 1; i < words.size(); ++i) {
        const double wordWidth = estimatedWidth(words[i], height);
        if (filled + blank + wordWidth > width) {
            lines.push_back(begun);
            begun = words[i];
            filled = wordWidth;
        } else {
            begun += ' ' + words[i];
            filled += blank + wordWidth;
        }
    }
    lines.push_back(begun);
}

} // namespace

QString plainText(const QString& recorded)
{
    QString plain;
    for (int at = 0; at < recorded.length();) {
        const SignCode code = signCodeAt(recorded, at);
        plain += code.length > 0 ? code.meaning : QString(recorded[at]);
        at += std::max(code.length, 1);
    }
    return plain;
}

std::vector<QString> linesOfNote(const QString& contents)
{
    return NoteReader(contents).read();
}

std::vector<QString> lettersOf(const QString& text)
{
    std::vector<QString> letters;
    QTextBoundaryFinder finder(QTextBoundaryFinder::Grapheme, text);
    int begin = 0;
    for (int end = finder.toNextBoundary(); end >= 0; end = finder.toNextBoundary()) {
        letters.push_back(text.mid(begin, end - begin));
        begin = end;
    }
    return letters;
}

double estimatedWidth(const QString& line, double height)
{
    double width = 0.0;
    for (const uint letter : line.toUcs4())
        width += widthOf(letter);
    return width * height;
}

std::vector<QString> wrapped(const std::vector<QString>& lines, double height, double width)
{
    if (!(width > 0.0) || !(height > 0.0))
        return lines;
    std::vector<QString> narrow;
    for (const QString& line : lines)
        wrapLine(line, height, width, narrow);
    return narrow;
}

QString shortened(const QString& line, double height, double width)
{
    if (estimatedWidth(line, height) <= width)
        return line;
    const double room = width - estimatedWidth(kEllipsis, height);
    QString kept;
    double filled = 0.0;
    for (const QString& letter : lettersOf(line)) {
        filled += estimatedWidth(letter, height);
        if (filled > room)
            break;
        kept += letter;
    }
    return kept.isEmpty() ? QString() : kept + kEllipsis;
}

} // namespace inkmacro::view
