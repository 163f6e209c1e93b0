// Texts between the quotes of a statement, and literals whose texts become those of COM.

#include "statements/quoting.h"

#include "host/kernel/CFxString.h"
#include "statements/typeNames.h"

#include <QSet>

#include <algorithm>
#include <optional>
#include <utility>

namespace inkmacro {

namespace {

constexpr bool isControl(ushort code)
{
    return code < 0x20 || code == 0x7F;
}

/// What C#, VB.NET and scripts take for the end of a line besides the control characters.
constexpr bool endsLine(ushort code)
{
    return code == 0x85 || code == 0x2028 || code == 0x2029;
}

/// Typographic quotes, which VB.NET takes for the plain ones.
constexpr bool isTypographicQuote(ushort code)
{
    return code == 0x201C || code == 0x201D || code == 0x201E || code == 0xFF02;
}

constexpr bool isCpp(Target target)
{
    return target == Target::Cpp || target == Target::CppCom;
}

/// A number as an escape. Read in a foreign encoding, the last byte of a letter may take the backslash with it: what is
/// left is text then, as the rest of no other escape is. In C++ all hexadecimal digits behind \x would belong to it,
/// and \u is no way to say a control character.
QString escapeSequence(ushort code, Target target)
{
    if (isCpp(target))
        return '\\' + QString::number(code, 8).rightJustified(3, '0');
    return "\\u" + QString::number(code, 16).rightJustified(4, '0');
}

/// In a page a script ends where the text `</script` does, whatever its language makes of it; in C++ two question marks
/// begin a trigraph.
bool needsEscape(QStringView text, qsizetype at, Target target)
{
    const ushort code = text[at].unicode();
    if (QStringView(u"\"\\<").contains(text[at]) || isControl(code))
        return true;
    if (isCpp(target))
        return code == u'?' && at > 0 && text[at - 1] == u'?';
    return endsLine(code) || (target == Target::JavaScript && code == u'\'');
}

bool opensTag(QStringView text, qsizetype at, Target target)
{
    return target == Target::JavaScript && at + 1 < text.size() && QStringView(u"/!sS").contains(text[at + 1]);
}

void appendCurly(QString& out, QStringView text, Target target)
{
    for (qsizetype at = 0; at < text.size(); ++at)
        if (needsEscape(text, at, target))
            out += escapeSequence(text[at].unicode(), target);
        else
            out += text[at];
}

/// Whether the letter's bytes are the typographic quotes of a one-byte encoding, which end a text in VB.NET.
bool looksLikeQuotes(QStringView letter)
{
    const QByteArray bytes = letter.toUtf8();
    return std::any_of(bytes.begin(), bytes.end(), [](char byte) {
        const auto code = static_cast<unsigned char>(byte);
        return code == 0x84 || code == 0x93 || code == 0x94;
    });
}

/// VBA reads its files in the code page of the system, so that nothing beyond ASCII stands for itself.
bool needsNumber(QStringView letter, Target target)
{
    const ushort code = letter.front().unicode();
    if (isControl(code))
        return true;
    if (code <= 0x7F)
        return false;
    return target == Target::Vba || endsLine(code) || isTypographicQuote(code) || looksLikeQuotes(letter);
}

/// Pieces of a text, with which the quotes are closed and opened again.
class BasicText
{
public:
    BasicText(QString& out, Target target) : out_(out), target_(target) {}

    void append(QStringView plain)
    {
        if (!std::exchange(open_, true))
            out_ += QLatin1String(" & \"");
        out_ += plain;
    }
    void join(const QString& piece)
    {
        out_ += QLatin1String(open_ ? "\" & " : " & ");
        // A line of VBA has no more than 1023 letters.
        constexpr int most = 50;
        if (++joined_ % most == 0 && target_ == Target::Vba)
            out_ += QLatin1String("_\n        ");
        out_ += piece;
        open_ = false;
    }
    void close()
    {
        if (!open_)
            out_ += QLatin1String(" & \"");
    }

private:
    QString& out_;
    const Target target_;
    bool open_ = true; ///< whether what comes next stands between quotes
    int joined_ = 0;
};

void appendBasic(QString& out, QStringView text, Target target)
{
    BasicText basic(out, target);
    for (qsizetype at = 0; at < text.size();) {
        const bool pair = text[at].isHighSurrogate() && at + 1 < text.size() && text[at + 1].isLowSurrogate();
        const QStringView letter = text.mid(at, pair ? 2 : 1);
        if (letter.front() == u'\n')
            basic.join(QStringLiteral("vbLf"));
        else if (needsNumber(letter, target))
            for (const QChar half : letter)
                basic.join(QString("ChrW(%1)").arg(half.unicode()));
        else
            basic.append(letter.front() == u'"' ? QStringView(u"\"\"") : letter);
        at += letter.size();
    }
    basic.close();
}

/// What a program reads between quotes; nothing when it does not read them to their end, or as the escapes of another
/// text.
std::optional<QString> readInBasic(QStringView written, Target target)
{
    QString read = written.toString();
    read.replace(basicLineFeed, QLatin1String("\n"));
    const bool ends = std::any_of(read.begin(), read.end(), [target](QChar character) {
        const ushort code = character.unicode();
        return character == u'"' || (isControl(code) && character != u'\n' && character != u'\t') || endsLine(code) ||
               (target == Target::VbNet && isTypographicQuote(code));
    });
    return ends || written.contains(u'\n') ? std::nullopt : std::optional(read);
}

std::optional<QString> readInCurly(QStringView written, Target target)
{
    QString read;
    read.reserve(static_cast<int>(written.size()));
    for (qsizetype at = 0; at < written.size(); ++at) {
        const QChar character = written[at];
        const QChar next = at + 1 < written.size() ? written[at + 1] : QChar();
        // In a page a script ends only where `</script` or a comment begins. Tabs are escaped to be seen.
        const bool harmless =
            character == u'\'' || character == u'\t' || (character == u'<' && !opensTag(written, at, target));
        if (character == u'\\' && (next == u'\\' || next == u'n')) {
            read += next == u'n' ? QChar(u'\n') : next;
            ++at;
        } else if (harmless || !needsEscape(written, at, target)) {
            read += character;
        } else {
            return std::nullopt;
        }
    }
    return read;
}

QSet<QString> wordsOf(const char* list)
{
    const QStringList words = QString(list).split(' ');
    return {words.begin(), words.end()};
}

/// Words that are no names in one of the languages, or names that the texts around the macro use themselves.
const QSet<QString>& takenWords()
{
    static const QSet<QString> words = wordsOf(
        "abstract addhandler addressof alias and andalso any as asm assembly assert auto base bool boolean break "
        "byref byte byval call case catch cbool cbyte cchar cdate cdbl cdec char checked cint class clng cobj "
        "coclass const const_cast continue cpp_quote csbyte cshort csng cstr ctype cuint culng currency cushort "
        "date decimal declare default delegate delete dim directcast dispinterface do double dynamic_cast each "
        "else elseif empty end endif enum erase error event exit explicit export extern false finally fixed float "
        "for foreach friend function get gettype global gosub goto handles hyper if implements implicit import "
        "importlib imports in inherits inline int interface internal into is isnot let lib library like lock long "
        "loop main me midl mod module mustinherit mustoverride mutable mybase myclass namespace narrowing native "
        "new next not nothing notinheritable notoverridable null object of on operator option optional or orelse "
        "out override overloads overridable overrides paramarray params partial private property protected public "
        "raiseevent readonly redim ref register reinterpret_cast rem removehandler resume return run sbyte sealed "
        "select set shadows shared short signed single sizeof small stackalloc static static_cast step stop string "
        "struct structure sub switch synclock template then this throw to true try trycast typedef typeid typename "
        "typeof uint ulong unchecked union unsafe unsigned until ushort using uuid variant virtual void volatile "
        "wchar_t wend when while widening with withevents writeonly xor "
        "console date dispatchwrapper entity environment exception inkwright iwaddin_global iwaddinconnection "
        "iwapimacros iwapplicationoptions_c iwcommandmessage_c iwsheet_c marshal math microsoft module1 program "
        "resource smartvars stdafx system typeconverter vblf");
    return words;
}

/// They are small.
const QSet<QString>& csharpKeywords()
{
    static const QSet<QString> words = wordsOf(
        "abstract as base bool break byte case catch char checked class const continue decimal default delegate do "
        "double else enum event explicit extern false finally fixed float for foreach goto if implicit in int "
        "interface internal is lock long namespace new null object operator out override params private protected "
        "public readonly ref return sbyte sealed short sizeof stackalloc static string struct switch this throw true "
        "try typeof uint ulong unchecked unsafe ushort using virtual void volatile while");
    return words;
}

/// Types and namespaces that a macro names as they are, beside those of drawing objects.
const QSet<QString>& csharpTypes()
{
    static const QSet<QString> words = wordsOf(
        "Application Color CommandMessage Console DispatchWrapper Document Environment Exception IWAPIMacros Inkwright "
        "LayerManager Marshal Math MathPoint MathUtility Model Object SelectionManager Sheet SketchManager String "
        "System Type ViewManager");
    return words;
}

const QSet<QString>& basicKeywords()
{
    static const QSet<QString> words = wordsOf(
        "addhandler addressof alias and andalso as boolean byref byte byval call case catch cbool cbyte cchar cdate "
        "cdbl cdec char cint class clng cobj const continue csbyte cshort csng cstr ctype cuint culng cushort date "
        "decimal declare default delegate dim directcast do double each else elseif end endif enum erase error event "
        "exit false finally for friend function get gettype getxmlnamespace global gosub goto handles if implements "
        "imports in inherits integer interface is isnot let lib like long loop me mod module mustinherit mustoverride "
        "mybase myclass namespace narrowing new next not nothing notinheritable notoverridable object of on operator "
        "option optional or orelse overloads overridable overrides paramarray partial private property protected "
        "public raiseevent readonly redim rem removehandler resume return sbyte select set shadows shared short single "
        "static step stop string structure sub synclock then throw to true try trycast typeof uinteger ulong ushort "
        "using variant wend when while widening with withevents writeonly xor");
    return words;
}

/// A macro names types of the interface with their namespace.
const QSet<QString>& basicTypes()
{
    static const QSet<QString> words =
        wordsOf("console dispatchwrapper environment exception inkwright marshal math microsoft system");
    return words;
}

/// Types are found as they are written, where a word of another case is another one.
bool isCSharpType(const QString& name)
{
    const InterfaceType* const type = FindInterface(name);
    return csharpTypes().contains(name) || (type && name == QLatin1String(type->name));
}

bool isTaken(const QString& name)
{
    return takenWords().contains(name.toLower()) || FindInterface(name) || csharpTypes().contains(name);
}

} // namespace

void appendQuoted(QString& out, QStringView text, Target target)
{
    if (isBasic(target))
        appendBasic(out, text, target);
    else
        appendCurly(out, text, target);
}

bool isPlain(QStringView text)
{
    return std::all_of(text.begin(), text.end(), [](QChar character) {
        const ushort code = character.unicode();
        return (code >= u'a' && code <= u'z') || (code >= u'A' && code <= u'Z') || (code >= u'(' && code <= u';') ||
               code == u' ' || code == u'_' || code == u'=';
    });
}

bool breaksQuotes(QStringView written, QStringView meant, Target target)
{
    const std::optional<QString> read = isBasic(target) ? readInBasic(written, target) : readInCurly(written, target);
    return !read || QStringView(*read) != meant;
}

NameFlaw flawOf(const QString& name, Target target)
{
    const bool ascii = target == Target::CppCom;
    const auto belongs = [ascii](QChar character) {
        return (character.isLetterOrNumber() && (!ascii || character.unicode() < 0x80)) || character == '_';
    };
    const bool isLone = target == Target::VbNet && name == QLatin1String("_");
    if (name.isEmpty() || isLone || name.front().isDigit() || !std::all_of(name.begin(), name.end(), belongs))
        return NameFlaw::NoIdentifier;
    const QString lower = name.toLower();
    if (target == Target::CSharp && csharpKeywords().contains(name))
        return NameFlaw::Keyword;
    if (target == Target::VbNet && basicKeywords().contains(lower))
        return NameFlaw::Keyword;
    if (target == Target::CSharp ? isCSharpType(name) : target == Target::VbNet && basicTypes().contains(lower))
        return NameFlaw::HidesType;
    const bool namesOther = (target == Target::CSharp && name == QLatin1String("Run")) ||
                            (target == Target::VbNet && lower == QLatin1String("module1"));
    // What C++ COM makes of a name is neither a keyword nor another name.
    return namesOther ? NameFlaw::NamesOther : NameFlaw::None;
}

QString legalName(const QString& name)
{
    QString legal = name;
    const auto isLetter = [](ushort code) {
        return (code >= 'a' && code <= 'z') || (code >= 'A' && code <= 'Z') || (code >= '0' && code <= '9') ||
               code == '_';
    };
    std::replace_if(
        legal.begin(), legal.end(), [&](QChar character) { return !isLetter(character.unicode()); }, QChar('_'));
    const bool begins = !legal.isEmpty() && !legal.front().isDigit() && legal.front() != '_';
    if (!begins)
        legal.prepend(QLatin1String("macro_"));
    return isTaken(legal) ? legal + "_macro" : legal;
}

namespace {

/// The call that makes the BSTR for what stands in front of a literal; empty where any text will do.
QByteArray makerBehind(const QByteArray& front)
{
    if (front.endsWith('='))
        return "SysAllocString(";
    const bool isRaw = front.endsWith('(') && front.mid(front.lastIndexOf("->")).startsWith("->put_");
    return isRaw ? "_bstr_t(" : "";
}

} // namespace

QByteArray textsAsBstr(QByteArray words)
{
    for (auto at = words.indexOf("L\""); at != -1; at = words.indexOf("L\"", at)) {
        auto end = words.indexOf('"', at + 2) + 1;
        if (const QByteArray maker = makerBehind(words.left(at).trimmed()); !maker.isEmpty()) {
            words.insert(end, ')').insert(at, maker);
            end += maker.size() + 1;
        }
        at = end;
    }
    return words;
}

} // namespace inkmacro
