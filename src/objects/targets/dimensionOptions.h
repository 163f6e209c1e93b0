#pragma once

#include "targets/Writer.h"

QString EmitGetDimensionStyleUserData(Writer& writer, const CFxString& owner, CFxString& userData);
QString EmitGetArrowsOptions(Writer& writer, const CFxString& owner, CFxString& options);
QString EmitGetLineOptions(Writer& writer, const CFxString& owner, CFxString& options);
QString EmitGetTextOptions(Writer& writer, const CFxString& owner, CFxString& options);
QString EmitGetFitOptions(Writer& writer, const CFxString& owner, CFxString& options);
/// `arrow` is the drawing's number of a kind of arrow.
QString EmitSetLeaderArrow(Writer& writer, const CFxString& target, const CFxString& operation, std::int32_t arrow);
/// `scale` is the drawing's number: 1 for the factor given, 2 for the scale of the sheet.
QString EmitSetDimensionScale(Writer& writer, const CFxString& target, const CFxString& operation, std::int32_t scale,
                              double factor);
