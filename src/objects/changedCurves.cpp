// Changed lines, circles, points, rays, arcs, infinite lines and ellipses. Lengths are drawing units, angles radians,
// as recorded.

#include "objects/ChangeRows.h"
#include "objects/targets/pointChanges.h"
#include "objects/targets/setters.h"

#include <cmath>
#include <numbers>

namespace {

using PairChange = QString (*)(Writer& writer, const CFxString& target, const CFxString& local, double value);

template<PairChange emit>
QString changePair(const Change& change)
{
    return emit(change.writer, change.name, "get" + change.row.axis.toQString(), change.value.GetDouble());
}

constexpr ChangeKind kPosition{changePair<&EmitChangePosition>, "XYZ"};
constexpr ChangeKind kFirstPoint{changePair<&EmitChangeFirstPoint>, "XYZ"};
constexpr ChangeKind kSecondPoint{changePair<&EmitChangeSecondPoint>, "XYZ"};

double fromArea(double area)
{
    return std::sqrt(area / std::numbers::pi);
}

double fromCircumference(double circumference)
{
    return circumference / (2 * std::numbers::pi);
}

double fromDiameter(double diameter)
{
    return diameter * 0.5;
}

template<double (*radius)(double)>
QString setRadius(const Change& change)
{
    return EmitSetDoubleProperty(change.writer, change.name, "Radius", radius(change.value.GetDouble()));
}

} // namespace

std::int32_t CFxConverterIWAPIObject::ConvertModifiedLine(PropertyList& list, bool fromAdded, const CFxString& name,
                                                          QString& text)
{
    static const ChangeRows rows{{kFirstPoint, "Start"}, {kSecondPoint, "End"}};
    // Alone among the handlers this one drops what stands in the text already.
    text.clear();
    return ConvertRows(rows, list, fromAdded, name, text);
}

/// The host records a new radius with all that depends on it, so that one change sets the radius up to four times.
std::int32_t CFxConverterIWAPIObject::ConvertModifiedCircle(PropertyList& list, bool fromAdded, const CFxString& name,
                                                            QString& text)
{
    static const ChangeRows rows{
        {{setRadius<fromArea>}, "Area"},
        {kPoint, "Center", "Center"},
        {{setRadius<fromCircumference>}, "Circumference"},
        {{setRadius<fromDiameter>}, "Diameter"},
        {kReal, "Radius", "Radius"},
    };
    return ConvertRows(rows, list, fromAdded, name, text);
}

std::int32_t CFxConverterIWAPIObject::ConvertModifiedPoint(PropertyList& list, bool fromAdded, const CFxString& name,
                                                           QString& text)
{
    static const ChangeRows rows{{kPosition, "Position"}};
    return ConvertRows(rows, list, fromAdded, name, text);
}

std::int32_t CFxConverterIWAPIObject::ConvertModifiedRay(PropertyList& list, bool fromAdded, const CFxString& name,
                                                         QString& text)
{
    static const ChangeRows rows{{kPoint, "Base point", "BasePoint"}, {kPoint, "Second point", "ThroughPoint"}};
    return ConvertRows(rows, list, fromAdded, name, text);
}

std::int32_t CFxConverterIWAPIObject::ConvertModifiedArc(PropertyList& list, bool fromAdded, const CFxString& name,
                                                         QString& text)
{
    static const ChangeRows rows{
        {kPoint, "Center", "Center"},
        {kReal, "End Angle", "EndAngle"},
        {kReal, "Radius", "Radius"},
        {kReal, "Start Angle", "StartAngle"},
    };
    return ConvertRows(rows, list, fromAdded, name, text);
}

std::int32_t CFxConverterIWAPIObject::ConvertModifiedInfiniteLine(PropertyList& list, bool fromAdded,
                                                                  const CFxString& name, QString& text)
{
    static const ChangeRows rows{{kFirstPoint, "Base point"}, {kSecondPoint, "Second point"}};
    return ConvertRows(rows, list, fromAdded, name, text);
}

std::int32_t CFxConverterIWAPIObject::ConvertModifiedEllipse(PropertyList& list, bool fromAdded, const CFxString& name,
                                                             QString& text)
{
    // The tags are in another case than those of an arc.
    static const ChangeRows rows{
        {kPoint, "Center", "Center"},           {kReal, "End angle", "EndAngle"},
        {kReal, "Major radius", "MajorRadius"}, {kReal, "Minor radius", "MinorRadius"},
        {kReal, "Radius ratio", "RadiusRatio"}, {kReal, "Start angle", "StartAngle"},
    };
    return ConvertRows(rows, list, fromAdded, name, text);
}
