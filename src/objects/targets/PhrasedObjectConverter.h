#pragma once

#include "objects/CFxConverterIWAPIObject.h"
#include "targets/Phrase.h"

/// The object statements of all targets: which value goes into which place of which literal.
class PhrasedObjectConverter : public CFxConverterIWAPIObject
{
public:
    QString EmitObjectAddedComment(const CFxString& className) override;
    QString EmitObjectAddedEnd() override { return {}; }
    QString EmitObjectModifiedComment(const CFxString& className) override;
    QString EmitObjectModifiedEnd() override { return {}; }

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

private:
    inkmacro::Target target_;
};
