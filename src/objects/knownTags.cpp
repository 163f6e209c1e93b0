// Which tags the records of each class are asked for.

#include "objects/knownTags.h"

#include "host/db/OdDbClassMap.h"
#include "host/kernel/CFxServices.h"
#include "objects/AddedObject.h"
#include "objects/classTable.h"
#include "objects/entries.h"
#include "statements/counters.h"

#include <QScopedValueRollback>
#include <QSet>

#include <algorithm>

namespace {

/// Each tag once, as it was asked for first: whoever asks again finds nothing.
std::vector<AskedTag> onceEach(const std::vector<AskedTag>& asked)
{
    std::vector<AskedTag> tags;
    for (const AskedTag& tag : asked)
        if (std::ranges::none_of(tags, [&](const AskedTag& known) { return known.tag == tag.tag; }))
            tags.push_back(tag);
    return tags;
}

/// An object that no drawing has, of which nothing is recorded.
struct EmptyObject
{
    explicit EmptyObject(const ClassRow& row) : object{oddbClassByName(row.name), OdDbHandle(1), "object"}
    {
        conversion.asked = &asked;
        conversion.names().RegisterObject(object.handle, object.cls);
    }
    void change(bool fromAdded)
    {
        Statement text;
        ConvertObjectChanges(conversion, object.cls, object.handle, none, fromAdded, text);
    }

    std::vector<AskedTag> asked;
    Conversion conversion{inkmacro::Target::CSharp, 0};
    const RecordedObject object;
    PropertyList none;
};

} // namespace

KnownTags TagsOf(const ClassRow& row)
{
    CFxSystemServices& services = *GetFxSystemServices();
    const QScopedValueRollback<ProcessCounters> numbers(processCounters);
    const QScopedValueRollback<CFxConversionNotes> notes(services.Notes(), CFxConversionNotes());
    CFxDocument* const document = services.GetActiveDocument();
    services.SetActiveDocument(nullptr);

    KnownTags tags;
    // What an action makes without a reader gets nothing of its records.
    if (row.reader) {
        EmptyObject empty(row);
        AddedObject added(empty.conversion, empty.object, OdDbObjectId(), empty.none, nullptr);
        row.reader(added);
        if (!services.Notes().GetLosses().empty())
            tags.emptyLoss = services.Notes().GetLosses().front().reason;
        empty.change(true);
        tags.added = onceEach(empty.asked);
    }
    EmptyObject empty(row);
    empty.change(false);
    tags.changed = onceEach(empty.asked);
    services.SetActiveDocument(document);
    return tags;
}

std::vector<QString> WordsOf(const ValueForm& form)
{
    if (!form.byText)
        return {form.words.begin(), form.words.end()};
    // Some enumerations tell their default among the others too.
    std::vector<QString> words{form.byText->defaultText};
    for (const inkmacro::TextEnumeration::Row& row : form.byText->rows)
        if (words.front() != QLatin1String(row.text))
            words.push_back(row.text);
    return words;
}

const char* UnitOf(const QString& tag)
{
    // Numbers with other tags are coordinates and lengths.
    static const QSet<QString> angles{
        "Angle",    "Start Angle",    "End Angle", "Start angle", "End angle",          "Rotation",
        "rotation", "Gradient Angle", "Jog angle", "Obliquing",   "RadiusDimensionJog",
    };
    static const QSet<QString> ratios{
        "Scale",
        "Scale X",
        "Scale Y",
        "Scale Z",
        "RLine scale",
        "Custom scale",
        "Width factor",
        "Width Factor",
        "Line space factor",
        "LineScale",
        "Char Spacing",
        "Radius ratio",
        "Spacing",
        "Alt scale",
        "Dim scale overall",
        "Dim scale linear",
        "DimScale overall",
        "Tolerance text height",
        "BackgroundBorderOffsetFactor",
        "FitScaleFactor",
        "LinearDimensionsScaleFactor",
        "Dual Dimensions Multiplier for converting units",
        "TextDimensionTextFractionalScale",
        "ToleranceSettingsScale",
    };
    if (angles.contains(tag))
        return "radians";
    if (tag == "Area")
        return "square drawing units";
    return ratios.contains(tag) ? "" : "drawing units";
}
