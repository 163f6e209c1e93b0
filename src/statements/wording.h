#pragma once

#include "statements/EscapedText.h"
#include "statements/Fault.h"

#include <QString>

namespace inkmacro {

/// The name of the class and of the project that a macro file stands for: its name up to the first dot.
QString projectName(const QString& macroPath);

/// The plain text that a statement quotes, of a prompt as the host showed it, markup included.
QString CleanPromptText(const QString& prompt);

// Texts for the quotes of a statement. In a repaired macro each of these stays as it is, since the statement escapes
// it.

/// Text as it stands within the quotes of a statement. Only line feeds and, outside the Basic targets, backslashes
/// are taken care of; a quote stays as it is.
EscapedText escapeText(Target target, const QString& text);

/// The text with each backslash doubled, for the statements that want paths so.
EscapedText doubleBackslashes(const QString& text);

/// Backslashes doubled, and line feeds as backslash and n.
EscapedText escapeWithBackslashes(const QString& text);

/// The word for a truth value in statements of objects and of options.
QString truthWord(Target target, bool value);

/// The form in which the target writes an enumerator, as `iwLineWeight_e` and `iwLnWt_ByLayer`.
QString enumeratorText(Target target, const QString& type, const QString& enumerator);

/// A text that a statement takes for a number or an enumerator, though it is neither.
extern const Fault textAsCode;

/// A number as code has it.
bool isNumber(const QString& text);
/// What may be an enumerator.
bool isWord(const QString& text);

/// Whether the form of FormatShort is another number.
bool losesDigits(double value);

extern const Fault kSixDigits;

} // namespace inkmacro
