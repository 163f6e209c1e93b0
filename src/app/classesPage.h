#pragma once

#include "recordfile/RecordingSchema.h"

namespace inkmacro {

/// Those that convert, by name.
QStringList classNames();

/// What the schema of recordings tells besides its forms.
SchemaNames schemaNames();

/// What objects of the classes and custom actions may hold, in Markdown; of one class the part that is about it.
QString classesPage(const QString& only);

} // namespace inkmacro
