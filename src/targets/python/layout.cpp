// Long lines of Python.

#include "targets/python/layout.h"

#include <algorithm>
#include <utility>
#include <vector>

namespace inkmacro::python {

namespace {

/// Of a piece of a text, with its quotes.
constexpr int mostPieceColumns = 70;

/// A pair of surrogates is one character.
int columnsOf(QStringView text)
{
    const auto lows = std::count_if(text.begin(), text.end(), [](QChar half) { return half.isLowSurrogate(); });
    return static_cast<int>(text.size() - lows);
}

bool opens(QChar character)
{
    return character == u'(' || character == u'[' || character == u'{';
}

bool closes(QChar character)
{
    return character == u')' || character == u']' || character == u'}';
}

/// Calls with each character of the code outside of texts, its place and how many brackets are open around it; a
/// bracket itself counts as outside.
template<class Use>
void forCode(QStringView line, const Use& use)
{
    int depth = 0;
    for (qsizetype at = 0; at < line.size();) {
        const QChar character = line[at];
        if (character == u'"' || character == u'\'') {
            at = behindText(line, at);
            continue;
        }
        depth -= closes(character) ? 1 : 0;
        use(character, at, depth);
        depth += opens(character) ? 1 : 0;
        ++at;
    }
}

/// What stands between the commas of a list, in front of the last one as well.
std::vector<QStringView> elementsOf(QStringView list)
{
    std::vector<QStringView> elements;
    qsizetype from = 0;
    forCode(list, [&](QChar character, qsizetype at, int depth) {
        if (character == u',' && depth == 0) {
            elements.push_back(list.mid(from, at - from).trimmed());
            from = at + 1;
        }
    });
    if (const QStringView last = list.mid(from).trimmed(); !last.isEmpty())
        elements.push_back(last);
    return elements;
}

/// The last pair of brackets that no other one stands around.
struct Brackets
{
    qsizetype open = -1;
    qsizetype close = -1;

    bool isEmpty() const { return close <= open + 1; }
};

Brackets lastBrackets(QStringView line)
{
    Brackets last;
    forCode(line, [&](QChar character, qsizetype at, int depth) {
        if (depth != 0)
            return;
        if (opens(character))
            last.open = at;
        else if (closes(character))
            last.close = at;
    });
    return last;
}

/// One text and nothing else.
bool isText(QStringView words)
{
    return !words.isEmpty() && (words.front() == u'"' || words.front() == u'\'') &&
           behindText(words, 0) == words.size();
}

/// A letter of a text, or the escape that stands for it; of quotes without the backslash, which they may not need.
std::vector<QStringView> unitsOf(QStringView text)
{
    std::vector<QStringView> units;
    const QStringView body = text.mid(1, text.size() - 2);
    for (qsizetype at = 0; at < body.size();) {
        qsizetype length = body[at].isHighSurrogate() && at + 1 < body.size() ? 2 : 1;
        if (body[at] == u'\\') {
            const QChar kind = body[at + 1];
            length = kind == u'x' ? 4 : kind == u'u' ? 6 : kind == u'U' ? 10 : 2;
        }
        const bool isQuote = length == 2 && (body[at + 1] == u'"' || body[at + 1] == u'\'');
        units.push_back(isQuote ? body.mid(at + 1, 1) : body.mid(at, length));
        at += length;
    }
    return units;
}

/// In the quotes that take fewer escapes, each piece by itself.
QString quotedPiece(const std::vector<QStringView>& units, std::size_t from, std::size_t end)
{
    const auto count = [&](QStringView quote) {
        return std::count(units.begin() + static_cast<std::ptrdiff_t>(from),
                          units.begin() + static_cast<std::ptrdiff_t>(end), quote);
    };
    const QString quote = count(u"\"") > count(u"'") ? QStringLiteral("'") : QStringLiteral("\"");
    QString piece = quote;
    for (std::size_t i = from; i < end; ++i) {
        if (units[i] == quote)
            piece += '\\';
        piece += units[i];
    }
    return piece + quote;
}

/// A long text as several, which are one where they stand side by side. They end behind a blank where there is one.
std::vector<QString> piecesOf(QStringView text)
{
    const std::vector<QStringView> units = unitsOf(text);
    std::vector<QString> pieces;
    for (std::size_t from = 0; from < units.size();) {
        std::size_t end = from;
        std::size_t blank = from;
        for (int columns = 2; end < units.size(); ++end) {
            const bool isQuote = units[end] == u"\"" || units[end] == u"'";
            columns += isQuote ? 2 : columnsOf(units[end]);
            if (columns > mostPieceColumns)
                break;
            if (units[end] == u" ")
                blank = end + 1;
        }
        if (end < units.size() && blank > from)
            end = blank;
        pieces.push_back(quotedPiece(units, from, end));
        from = end;
    }
    return pieces;
}

class Layout
{
public:
    QString take() { return std::move(lines_); }

    /// A line by itself, or `inBrackets` one of the lines between those of two brackets.
    void put(const QString& line, int indentation, bool inBrackets)
    {
        if (fits(line, indentation))
            return add(line, indentation);
        if (inBrackets && (putElements(line, indentation) || putLoop(line, indentation) || putText(line, indentation)))
            return;
        if (const Brackets brackets = lastBrackets(line); brackets.open >= 0 && !brackets.isEmpty())
            return putBroken(line, brackets, indentation);
        const QString sign = QLatin1String(inBrackets ? "=" : " = ");
        if (const int equals = line.indexOf(sign); equals > 0)
            return putInBrackets(line, equals + sign.size(), indentation);
        add(line, indentation);
    }

private:
    static bool fits(QStringView line, int indentation) { return indentation + columnsOf(line) <= mostColumns; }

    void add(QStringView line, int indentation) { (((lines_ += QString(indentation, ' ')) += line) += '\n'); }

    /// One a line; false when there are not several.
    bool putElements(const QString& line, int indentation)
    {
        const std::vector<QStringView> elements = elementsOf(line);
        if (elements.size() < 2)
            return false;
        putEach(elements, indentation);
        return true;
    }

    void putEach(const std::vector<QStringView>& elements, int indentation)
    {
        for (const QStringView element : elements)
            put(element.toString() + ',', indentation, true);
    }

    /// What is made in a loop within brackets, and the loop; false when the line has none.
    bool putLoop(const QString& line, int indentation)
    {
        qsizetype loop = -1;
        forCode(line, [&](QChar character, qsizetype at, int depth) {
            if (character == u' ' && depth == 0 && loop < 0 && QStringView(line).mid(at).startsWith(u" for "))
                loop = at;
        });
        if (loop < 0)
            return false;
        put(line.left(static_cast<int>(loop)), indentation, true);
        put(line.mid(static_cast<int>(loop) + 1), indentation, true);
        return true;
    }

    /// A text with the comma behind it, in pieces; false when the line is something else.
    bool putText(const QString& line, int indentation)
    {
        const bool isElement = line.endsWith(',');
        const QStringView text = QStringView(line).left(line.size() - (isElement ? 1 : 0));
        if (!isText(text))
            return false;
        const std::vector<QString> pieces = piecesOf(text);
        for (std::size_t i = 0; i < pieces.size(); ++i)
            add(i + 1 == pieces.size() && isElement ? pieces[i] + ',' : pieces[i], indentation);
        return true;
    }

    /// The value that begins there, up to the comma behind it.
    void putInBrackets(QString line, int value, int indentation)
    {
        const int end = line.size() - (line.endsWith(',') ? 1 : 0);
        putBroken(line.insert(end, ')').insert(value, '('), {value, end + 1}, indentation);
    }

    /// What stands between the brackets on lines of its own. A list that is no call's has each element on one.
    void putBroken(const QString& line, const Brackets& brackets, int indentation)
    {
        const auto open = static_cast<int>(brackets.open);
        const auto close = static_cast<int>(brackets.close);
        add(QStringView(line).left(open + 1), indentation);
        const QString body = line.mid(open + 1, close - open - 1);
        const bool isCall = open > 0 && (line[open - 1].isLetterOrNumber() || line[open - 1] == '_');
        const std::vector<QStringView> elements = elementsOf(body);
        if (!isCall && elements.size() > 1)
            putEach(elements, indentation + 4);
        else
            put(body, indentation + 4, true);
        add(QStringView(line).mid(close), indentation);
    }

    QString lines_;
};

} // namespace

qsizetype behindText(QStringView line, qsizetype at)
{
    const QChar quote = line[at];
    for (++at; at < line.size() && line[at] != quote; ++at)
        if (line[at] == u'\\')
            ++at;
    return std::min(at + 1, line.size());
}

void addLaidOut(QString& lines, QStringView line, int indentation)
{
    // Most lines: a letter is a column at most.
    if (line.startsWith(u'#') || indentation + line.size() <= mostColumns) {
        for (int i = 0; i < indentation; ++i)
            lines += ' ';
        (lines += line) += '\n';
        return;
    }
    Layout layout;
    layout.put(line.toString(), indentation, false);
    lines += layout.take();
}

QString laidOut(QStringView line, int indentation)
{
    QString lines;
    addLaidOut(lines, line, indentation);
    return lines;
}

} // namespace inkmacro::python
