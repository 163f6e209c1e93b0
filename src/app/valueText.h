#pragma once

#include <QJsonValue>
#include <QString>
#include <QStringList>

namespace inkmacro {

/// "1 action", "2 actions"
QString counted(qint64 count, const char* one, const char* many);
/// "a, b and c", with that word in front of the last.
QString joined(QStringList parts, const char* last);

/// Keeps a text on its line, whatever is in it: what a terminal obeys, and what turns the direction of writing, becomes
/// \x1b or \u202e. The other form leaves line ends and tabs as they are.
QString printable(const QString& text);
QString printableLines(const QString& text);

/// A value of a recording, as actionJson gives it, for a person: on one line, without the words that say nothing.
QString valueText(const QJsonValue& value);

} // namespace inkmacro
