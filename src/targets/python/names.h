#pragma once

#include "targets/Answer.h"

#include <QHash>
#include <QPair>
#include <QSet>
#include <QString>

/// How Python's functions and their parameters are called.
namespace inkmacro::python {

/// Names that no other thing of their kind in the same place may have.
class FreeNames
{
public:
    /// The name, or with the first free number behind it.
    QString take(const QString& name);

private:
    QSet<QString> taken_;
    QHash<QString, int> next_; ///< the number to try, of names that were asked for
};

/// Of a command's name: small letters, digits and underscores, and none of Python's words or the macro's own.
QString functionName(const QString& command);

/// Of what the prompt says. `several`: the answers of a prompt as one tuple.
QString parameterName(const Prompt& prompt, bool several);

/// Remembers these names, since a recording asks the same again and again.
class PromptNames
{
public:
    QString of(const Prompt& prompt, bool several);

private:
    QHash<QPair<QString, int>, QString> known_; ///< by the text and what else a name depends on
};

/// Of a name the one that a package may have.
QString distributionName(const QString& name);

/// Whether a file of that name stands in front of a module that the macro imports, by itself or through pywin32, and so
/// does not run.
bool hidesModule(const QString& name);

/// Whether a file of that name can be imported.
bool isModuleName(const QString& name);

} // namespace inkmacro::python
