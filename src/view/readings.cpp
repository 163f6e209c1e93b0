#include "view/readings.h"

#include <cmath>

namespace inkmacro::view {

double sizeOf(std::initializer_list<std::optional<double>> told, double usual)
{
    for (const std::optional<double>& size : told)
        if (size && *size > 0.0 && std::isfinite(*size))
            return *size;
    return usual;
}

std::optional<bool> yesOrNo(const Values& values, const QString& tag)
{
    const std::optional<QString> word = values.text(tag);
    return word ? std::optional(word->compare("Yes", Qt::CaseInsensitive) == 0) : std::nullopt;
}

std::optional<OdCmColor> colorIn(const Values& values, const QString& tag)
{
    const CFxVariant* const value = values.find(tag);
    return value && value->GetType() == CFxVariant::kColor ? std::optional(value->GetColor()) : std::nullopt;
}

std::optional<double> heightOfTextStyle(const Values& values, const QString& tag)
{
    const OdDbHandle handle = values.handle(tag);
    const Values* const style = handle.isNull()
                                    ? values.named("AcDbTextStyleTableRecord", values.text(tag).value_or(QString()))
                                    : values.other(handle);
    return style ? style->number("Height") : std::nullopt;
}

} // namespace inkmacro::view
