#pragma once

#include "objects/CFxConverterIWAPIObject.h"
#include "objects/targets/CoordinateArray.h"
#include "targets/Phrase.h"

/// The object statements of all targets: which value goes into which place of which literal.
class PhrasedObjectConverter : public CFxConverterIWAPIObject
{
public:
    QString EmitObjectAddedComment(const CFxString& className) override;
    QString EmitObjectAddedEnd() override { return {}; }
    QString EmitObjectModifiedComment(const CFxString& className) override;
    QString EmitObjectModifiedEnd() override { return {}; }

    QString EmitBlockAttributeValue(const CFxString& variable, const CFxString& property, const CFxString& tag,
                                    const CFxString& value) override;
    QString EmitInsertRegion(const CFxString& variable, const QStringList& names, std::uint32_t number) override;
    QString EmitSetModelProperty(const CFxString& property, const CFxString& value, bool ofModel,
                                 const CFxString& sheetName) override;

    QString EmitInsertLine(const OdGePoint3d& start, const OdGePoint3d& end, const CFxString& name) override;
    QString EmitInsertCircle(const OdGePoint3d& center, double radius, const CFxString& name) override;
    QString EmitInsertPoint(const OdGePoint3d& position, const CFxString& name) override;
    QString EmitInsertRay(const OdGePoint3d& base, const OdGePoint3d& second, const CFxString& name) override;
    QString EmitInsertArc(const OdGePoint3d& center, double radius, double startAngle, double endAngle,
                          const CFxString& name) override;
    QString EmitInsertInfiniteLine(const OdGePoint3d& base, const OdGePoint3d& second, const CFxString& name) override;
    QString EmitInsertEllipseArc(const OdGePoint3d& axisStart, const OdGePoint3d& axisEnd, double otherAxisDistance,
                                 double startAngle, double endAngle, const CFxString& name) override;
    QString EmitInsertEllipse(const OdGePoint3d& axisStart, const OdGePoint3d& axisEnd, double otherAxisDistance,
                              const CFxString& name) override;

    // Text styles, attribute definitions, notes, tolerances, leaders and curved texts.
    QString EmitCreateTextStyle(const CFxString& name, const CFxString& styleName) override;
    QString EmitLoadShapeFile(const CFxString& path) override;
    QString EmitInsertAttributeDefinition(const AttributeDefinition& definition, const CFxString& name) override;
    QString EmitInsertSimpleNote(const OdGePoint3d& position, double height, double rotation, const CFxString& text,
                                 const CFxString& name) override;
    QString EmitInsertNote(const OdGePoint3d& firstCorner, const OdGePoint3d& secondCorner, const CFxString& text,
                           const CFxString& name) override;
    QString EmitSetNoteJustify(const CFxString& target, const CFxString& property, const CFxString& shownText) override;
    QString EmitSetNoteDirection(const CFxString& target, const CFxString& property, int direction) override;
    QString EmitInsertTolerance(const OdGePoint3d& position, const CFxString& text, const CFxString& name) override;
    QString EmitInsertLeader(const OdArray<OdGePoint3d>& vertices, double width, const CFxString& text,
                             const CFxString& name) override;
    QString EmitSetAnnotation(const CFxString& leader, LeaderAnnotation kind, const CFxString& text) override;
    QString EmitInsertCurvedText(const CFxString& text, const CFxString& arc, const CFxString& name) override;
    QString EmitCallWithPoint(const CFxString& target, const CFxString& method, const OdGePoint3d& point) override;

    // Setters: setters.cpp.
    QString EmitSetProperty(const CFxString& target, const CFxString& property, const CFxString& value,
                            bool quoted) override;
    QString EmitSetDoubleProperty(const CFxString& target, const CFxString& property, double value) override;
    QString EmitSetBoolProperty(const CFxString& target, const CFxString& property, bool value) override;
    QString EmitSetColor(const CFxString& target, const CFxString& property, const OdCmColor& color) override;
    QString EmitSetLayer(const CFxString& target, const CFxString& property, const OdDbObjectId& id) override;
    QString EmitSetLineStyle(const CFxString& target, const CFxString& property, const OdDbObjectId& id) override;
    QString EmitSetLineWeight(const CFxString& target, const CFxString& property, int weight) override;
    QString EmitSetTransparency(const CFxString& target, const OdCmTransparency& transparency) override;

    // Objects that statements reach others by: references.cpp.
    QString EmitObjectVariable(const OdDbHandle& handle, OdRxClass* cls, CFxString& name) override;
    QString EmitGetNoteAnnotation(const CFxString& note, const CFxString& leader) override;
    QString EmitDeclareBlockDefinition(const CFxString& name) override;
    QString EmitGetGeneralDimension(const CFxString& name, CFxString& target) override;
    QString EmitGetCurvedTextSettings(const CFxString& name, CFxString& settings) override;
    QString EmitSetCurvedTextSettings(const CFxString& name, const CFxString& settings) override;
    QString EmitRemoveNamedView(const CFxString& name, const CFxString& viewName, bool paperspace) override;
    QString EmitRemoveLayer(const CFxString& name) override;

    // Changes of curves and geometry.
    QString EmitChangePoint(const CFxString& target, const CFxString& axis, const CFxString& getter,
                            const CFxString& setter, double value, std::int32_t index) override;
    QString EmitChangePosition(const CFxString& target, const CFxString& local, double value) override;
    QString EmitChangeFirstPoint(const CFxString& target, const CFxString& local, double value) override;
    QString EmitChangeSecondPoint(const CFxString& target, const CFxString& local, double value) override;
    QString EmitChangeVertex(const CFxString& target, std::int32_t index, const CFxString& axis, double value) override;
    QString EmitChangeVertex2D(const CFxString& target, std::int32_t index, const CFxString& axis,
                               double value) override;
    QString EmitSetIndexedDouble(const CFxString& target, const CFxString& operation, std::int32_t index,
                                 double value) override;
    QString EmitSetEnumProperty(const CFxString& target, const char* enumeration, const CFxString& property,
                                const CFxString& shownText) override;
    QString EmitSetLeaderType(const CFxString& target, const CFxString& property, std::int32_t type) override;
    QString EmitGetDimensionStyleUserData(const CFxString& owner, CFxString& userData) override;
    QString EmitGetArrowsOptions(const CFxString& owner, CFxString& options) override;
    QString EmitGetLineOptions(const CFxString& owner, CFxString& options) override;
    QString EmitGetTextOptions(const CFxString& owner, CFxString& options) override;
    QString EmitGetFitOptions(const CFxString& owner, CFxString& options) override;
    QString EmitSetLeaderArrow(const CFxString& target, const CFxString& operation, std::int32_t arrow) override;
    QString EmitSetDimensionScale(const CFxString& target, const CFxString& operation, std::int32_t scale,
                                  double factor) override;

    CFxString EscapeText(const CFxString& text) const override;

protected:
    PhrasedObjectConverter(inkmacro::Target target, CFxConverterIWAPIImpl* driver)
        : CFxConverterIWAPIObject(driver), target_(target)
    {
    }
    ~PhrasedObjectConverter() = default;

    inkmacro::Target target() const { return target_; }
    /// The target's words for the phrase with indentation and line end filled in; the values follow.
    inkmacro::Fill fill(const inkmacro::Phrase& phrase) const;
    /// The same for literals in which `%2` is a value already: only the indentation is filled in.
    inkmacro::Fill fillIndented(const inkmacro::Phrase& phrase) const;

    // Coordinates of points as insertion calls take them: coordinates.cpp.

    /// `scriptName` is what a script calls the array.
    inkmacro::CoordinateArray coordinates(const OdArray<OdGePoint3d>& points, const char* scriptName);
    /// The statements that fill the array of one COM point. The statement declares `x`, `y` and `z`.
    QString comPoint(std::uint32_t number, const OdGePoint3d& point) const;

private:
    struct PointWords;

    QString changePoint(const PointWords& words, const CFxString& target, const CFxString& getter,
                        const CFxString& setter, std::int32_t index, const CFxString& coordinate, double value);
    QString changePair(const CFxString& target, const CFxString& getter, const CFxString& setter,
                       const CFxString& local, double value);
    QString changeVertex(const PointWords& words, const CFxString& target, std::int32_t index, const CFxString& axis,
                         double value);
    QString setEnumerator(const CFxString& target, const CFxString& property, const QString& enumerator);
    QString getOptions(const char* kind, const char* stem, const CFxString& owner, CFxString& options);
    QString regionEntities(const QStringList& names, std::uint32_t number) const;

    inkmacro::Target target_;
};
