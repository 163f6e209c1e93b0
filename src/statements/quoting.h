#pragma once

#include "statements/Target.h"

#include <QByteArray>
#include <QLatin1String>
#include <QString>
#include <QStringView>

namespace inkmacro {

/// Appends a text as it has to stand within the double quotes of a statement, so that the program reads just that text
/// and nothing behind it. In Basic, which has no escapes, the quotes are closed and opened again around a character
/// that cannot stand between them.
void appendQuoted(QString& out, QStringView text, Target target);

/// Whether the text is of those characters only that stand for themselves between the quotes of every target.
bool isPlain(QStringView text);

/// What stands between the quotes of a Basic text for a line feed: the quotes are closed and opened again.
inline constexpr QLatin1String basicLineFeed("\" & vbLf & \"", 12);

/// Whether what is written between quotes ends them, or is read as another text than the one that is meant.
bool breaksQuotes(QStringView written, QStringView meant, Target target);

/// What a name lacks to be one of the target's own making: that of a class in .NET's languages, what names in a project
/// are made of in C++ COM.
enum class NameFlaw
{
    None,
    NoIdentifier,
    Keyword,
    HidesType,  ///< or a namespace
    NamesOther, ///< a method of the class, or a module beside it
};
NameFlaw flawOf(const QString& name, Target target);

/// A name of letters, digits and underscores that no target takes for a keyword, a type or a file of its own.
QString legalName(const QString& name);

inline constexpr char literalIsNoBstr[] = "a literal is given where a BSTR belongs, which has its length in front";

/// The words of C++ COM with a BSTR made of each wide literal that a raw property is given or a local keeps. What a
/// local keeps outlives its statement.
QByteArray textsAsBstr(QByteArray words);

} // namespace inkmacro
