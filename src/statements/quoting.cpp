// Texts between the quotes of a statement, and literals whose texts become those of COM.

#include "statements/quoting.h"

#include "host/kernel/CFxString.h"
#include "statements/typeNames.h"

#include <QSet>

#include <algorithm>

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

QString escapeSequence(ushort code, Target target)
{
    switch (code) {
    case u'\n':
        return QStringLiteral("\\n");
    case u'\r':
        return QStringLiteral("\\r");
    case u'\t':
        return QStringLiteral("\\t");
    default:
        break;
    }
    // In C++ all hexadecimal digits behind \x would belong to it, and \u is no way to say a control character.
    if (target == Target::Cpp || target == Target::CppCom)
        return '\\' + QString::number(code, 8).rightJustified(3, '0');
    return "\\u" + QString::number(code, 16).rightJustified(4, '0');
}

/// In a page a script ends where the text `</script` does, whatever its language makes of it.
bool opensTag(QStringView text, qsizetype at)
{
    return text[at] == u'<' && at + 1 < text.size() && QStringView(u"/!sS").contains(text[at + 1]);
}

void appendCurly(QString& out, QStringView text, qsizetype at, Target target)
{
    const QChar character = text[at];
    const ushort code = character.unicode();
    const bool cpp = target == Target::Cpp || target == Target::CppCom;
    // Two question marks begin a trigraph.
    const bool trigraph = cpp && character == u'?' && at > 0 && text[at - 1] == u'?';
    if (character == u'"' || character == u'\\' || (target == Target::JavaScript && character == u'\'') || trigraph)
        out += '\\';
    else if (isControl(code) || (!cpp && endsLine(code))) {
        out += escapeSequence(code, target);
        return;
    } else if (target == Target::JavaScript && opensTag(text, at)) {
        out += QLatin1String("\\x3C");
        return;
    }
    out += character;
}

void appendBasic(QString& out, QChar character, Target target)
{
    const ushort code = character.unicode();
    if (character == u'"')
        out += QLatin1String("\"\"");
    else if (character == u'\n')
        out += QLatin1String("\" & vbLf & \"");
    else if (isControl(code) || endsLine(code) || (target == Target::VbNet && isTypographicQuote(code)))
        out += QString("\" & ChrW(%1) & \"").arg(code);
    else
        out += character;
}

/// Words that are no names in one of the languages, or names that the texts around the macro use themselves.
const QSet<QString>& takenWords()
{
    static const QSet<QString> words = [] {
        const QString all =
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
            "resource smartvars stdafx system typeconverter vblf";
        const QStringList list = all.split(' ');
        return QSet<QString>(list.begin(), list.end());
    }();
    return words;
}

bool isTaken(const QString& name)
{
    return takenWords().contains(name.toLower()) || FindInterface(name);
}

} // namespace

void appendQuoted(QString& out, QStringView text, Target target)
{
    for (qsizetype at = 0; at < text.size(); ++at)
        if (isBasic(target))
            appendBasic(out, text[at], target);
        else
            appendCurly(out, text, at, target);
}

bool isPlain(QStringView text)
{
    return std::all_of(text.begin(), text.end(), [](QChar character) {
        const ushort code = character.unicode();
        return (code >= u'a' && code <= u'z') || (code >= u'A' && code <= u'Z') || (code >= u'(' && code <= u';') ||
               code == u' ' || code == u'_' || code == u'=';
    });
}

bool breaksQuotes(QStringView text, Target target)
{
    if (isBasic(target)) {
        QString plain = text.toString();
        plain.remove(QLatin1String("\" & vbLf & \""));
        QString quoted;
        appendQuoted(quoted, plain, target);
        return quoted != plain;
    }
    for (qsizetype at = 0; at < text.size(); ++at) {
        const bool known = text[at] == u'\\' && at + 1 < text.size() && QStringView(u"\\n").contains(text[at + 1]);
        if (known) {
            ++at;
            continue;
        }
        QString quoted;
        appendCurly(quoted, text, at, target);
        if (quoted != text[at] && !(target == Target::JavaScript && text[at] == u'\''))
            return true;
    }
    return false;
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
