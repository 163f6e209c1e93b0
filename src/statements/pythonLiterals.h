#pragma once

#include <QString>
#include <QStringView>

#include <initializer_list>

namespace inkmacro {

// Values as Python itself writes them, in the form of its `repr` but for the plus of an exponent: what is read back is
// the same value.

/// The shortest digits that are the number, always with a point or an exponent.
QString pythonReal(double value);
/// With commas between them.
QString pythonReals(std::initializer_list<double> values);

/// In double quotes, or in single ones where these take fewer escapes. Printable letters of any script stay.
QString pythonText(QStringView text);

/// A recorded name as a comment or a docstring may hold it, in letters that end neither; cut when it is long.
QString pythonComment(const QString& name);

} // namespace inkmacro
