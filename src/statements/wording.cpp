#include "statements/wording.h"

#include "statements/RecordingState.h"

#include <QFileInfo>
#include <QRegExp>
#include <QRegularExpression>
#include <QStringList>

namespace inkmacro {

QString projectName(const QString& macroPath)
{
    // The class is never closed, so the pattern is invalid and matches nothing. The name is meant to stay as it is,
    // blanks and hyphens included.
    return QFileInfo(macroPath).baseName().remove(QRegExp("[^a-zA-Z0-9"));
}

QString CleanPromptText(const QString& prompt)
{
    QString text = prompt;
    text.replace(QLatin1String("<br>"), QLatin1String("\n"));
    const QStringList lines = text.split('\n', Qt::SkipEmptyParts);
    text = lines.isEmpty() ? QString() : lines.last();
    static const QRegularExpression tag("<[^>]*>");
    return text.remove(tag).remove(QLatin1String("&raquo; "));
}

QString doubleBackslashes(QString text)
{
    if (RepairsMacros())
        return text;
    return text.replace('\\', QLatin1String("\\\\"));
}

QString escapeWithBackslashes(const QString& text)
{
    return RepairsMacros() ? text : doubleBackslashes(text).replace('\n', QLatin1String("\\n"));
}

QString escapeText(Target target, const QString& text)
{
    if (isBasic(target) && !RepairsMacros())
        return QString(text).replace('\n', QLatin1String("\" & vbLf & \""));
    return escapeWithBackslashes(text);
}

QString truthWord(Target target, bool value)
{
    if (isBasic(target))
        return value ? QStringLiteral("True") : QStringLiteral("False");
    return value ? QStringLiteral("true") : QStringLiteral("false");
}

QString enumeratorText(Target target, const QString& type, const QString& enumerator)
{
    if (isBasic(target))
        return "Inkwright." + type + '.' + enumerator;
    return target == Target::CSharp ? type + '.' + enumerator : enumerator;
}

const Fault textAsCode{"EscapeText",
                       {Target::Cpp, Target::CSharp, Target::JavaScript, Target::VbNet, Target::CppCom, Target::Vba},
                       "a text stands where a number or an enumerator belongs"};

bool isNumber(const QString& text)
{
    static const QRegularExpression number(
        QRegularExpression::anchoredPattern(R"([-+]?(\d+\.?\d*|\.\d+)([eE][-+]?\d+)?)"));
    return number.match(text).hasMatch();
}

bool isWord(const QString& text)
{
    static const QRegularExpression word(QRegularExpression::anchoredPattern("[A-Za-z_][A-Za-z_0-9]*"));
    return word.match(text).hasMatch();
}

} // namespace inkmacro
