#include "view/ClassNames.h"

#include <QJsonObject>
#include <QStringList>

namespace inkmacro::view {

namespace {

/// Where the words of a name are not what people call it.
struct ClassWords
{
    const char* name;
    const char* words;
};
constexpr ClassWords oddNames[] = {
    {"AcDb2LineAngularDimension", "Angular dimension (2 lines)"},
    {"AcDb3PointAngularDimension", "Angular dimension (3 points)"},
    {"AcDb2dPolyline", "Polyline (2D)"},
    {"AcDb3dPolyline", "Polyline (3D)"},
    {"AcDbArcAlignedText", "Curved text"},
    {"AcDbArcDimension", "Arc length dimension"},
    {"AcDbBlockTableRecord", "Block"},
    {"AcDbDiametricDimension", "Diameter dimension"},
    {"AcDbDimStyleTableRecord", "Dimension style"},
    {"AcDbFcf", "Tolerance"},
    {"AcDbLayerTableRecord", "Layer"},
    {"AcDbLayout", "Sheet"},
    {"AcDbLinetypeTableRecord", "Line style"},
    {"AcDbMline", "Rich line"},
    {"AcDbMlineStyle", "Rich line style"},
    {"AcDbMText", "Note"},
    {"AcDbOle2Frame", "Embedded object"},
    {"AcDbPolyFaceMesh", "Polyface mesh"},
    {"AcDbRadialDimension", "Radius dimension"},
    {"AcDbRadialDimensionLarge", "Jogged dimension"},
    {"AcDbRasterImage", "Image"},
    {"AcDbRegAppTableRecord", "Registered application"},
    {"AcDbTextStyleTableRecord", "Text style"},
    {"AcDbUCSTableRecord", "Coordinate system"},
    {"AcDbViewTableRecord", "View"},
    {"AcDbViewportTableRecord", "Viewport arrangement"},
    {"AcDbXline", "Infinite line"},
};

} // namespace

QString classWords(const QString& className)
{
    for (const ClassWords& odd : oddNames)
        if (className == odd.name)
            return odd.words;
    if (!className.startsWith("AcDb"))
        return className;
    QString words;
    for (const QChar letter : className.midRef(4))
        words += words.isEmpty() || !letter.isUpper() ? QString(letter) : ' ' + QString(letter.toLower());
    return words;
}

std::uint16_t ClassNames::numberOf(const QString& className)
{
    const auto known = numbers_.constFind(className);
    if (known != numbers_.constEnd())
        return *known;
    if (names_.size() == kNone)
        return kNone;
    const auto number = static_cast<std::uint16_t>(names_.size());
    names_.append(className);
    numbers_.insert(className, number);
    return number;
}

QJsonArray ClassNames::list() const
{
    QJsonArray list;
    for (const QString& name : names_)
        list.append(QJsonObject{{"name", name}, {"words", classWords(name)}});
    return list;
}

} // namespace inkmacro::view
