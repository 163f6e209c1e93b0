// What is set on a hatch that exists: pattern, gradient, detection of inner regions.

#include "objects/targets/hatchPatterns.h"

#include "statements/enumerations.h"
#include "statements/quoting.h"
#include "statements/wording.h"
#include "targets/colors.h"

#include <array>

using namespace inkmacro;

static const Phrase getHatchPattern{"EmitGetHatchPattern",
                                    {
                                        .cpp = "%1iwHatchPattern_ptr %3;%2%1%4->GetHatchPattern( &%3 );%2",
                                        .cppCom = "%1IHatchPatternPtr %3;%2%1%3 = %4->GetHatchPattern();%2",
                                        .csharp = "%1HatchPattern %3 = %4.GetHatchPattern();%2",
                                        .javascript = "%1var %3 = %4.GetHatchPattern();%2",
                                        .vbNet = "%1Dim %3 As Inkwright.HatchPattern%2%1%3 = %4.GetHatchPattern()%2",
                                        .vba = "%1Dim %3 As Inkwright.HatchPattern%2%1Set %3 = %4.GetHatchPattern()%2",
                                        .python = "%1%3 = %4.GetHatchPattern()%2",
                                    }};

Statement EmitGetHatchPattern(Writer& writer, const CFxString& hatch, CFxString& pattern)
{
    switch (writer.target) {
    case Target::Cpp:
    case Target::CppCom:
        pattern = "iwHatchPattern";
        break;
    case Target::CSharp:
    case Target::VbNet:
        pattern = "hatchPattern";
        break;
    case Target::JavaScript:
    case Target::Vba:
        // A declaration holds for the whole page or procedure there: only a number keeps two apart.
        pattern = QStringLiteral("hatchPattern%1").arg(++writer.UniqueCounter);
        break;
    case Target::Python:
        pattern = "pattern";
        break;
    }
    return writer.fill(getHatchPattern).word(pattern).word(hatch);
}

static const Phrase setRegionDetection{"EmitHatchRegionDetection",
                                       {
                                           .cpp = "%2%1%3->put_InternalRegionDetection( %4 );%2",
                                           .cppCom = "%2%1%3->put_InternalRegionDetection( %4 );%2",
                                           .csharp = "%2%1%3.InternalRegionDetection = %4;%2",
                                           .javascript = "%2%1%3.put_InternalRegionDetection(\"%4\");%2",
                                           .vbNet = "%2%1%3.InternalRegionDetection = %4%2",
                                           .vba = "%2%1%3.InternalRegionDetection = %4%2",
                                           .python = "%1%3.InternalRegionDetection = %4%2",
                                       }};

Statement EmitHatchRegionDetection(Writer& writer, const CFxString& pattern, std::int32_t code)
{
    const QString way = EnumeratorByValue(writer.target, enums::hatchPatternInternalRegionDetection, code);
    return writer.fill(setRegionDetection).word(pattern).word(way);
}

// The pattern's data.

static constexpr char basicDataLocals[] = "%1Dim %3 As String%2%1Dim %4 As Double%2%1Dim %5 As Double%2"
                                          "%1Dim %6 As Inkwright.iwHatchPatternType_e%2%1Dim %7 As Double%2%2";

/// JavaScript has all of them in one object.
static const Phrase declareHatchData{"EmitSetHatchData: locals",
                                     {
                                         .cpp = "%1iwString %3;%2%1double %4;%2%1double %5;%2"
                                                "%1iwHatchPatternType_e %6;%2%1double %7;%2%2",
                                         .cppCom = "%1BSTR %3;%2%1double %4;%2%1double %5;%2"
                                                   "%1iwHatchPatternType_e %6;%2%1double %7;%2%2",
                                         .csharp = "%2%1string %3;%2%1double %4;%2%1double %5;%2"
                                                   "%1iwHatchPatternType_e %6;%2%1double %7;%2",
                                         .vbNet = basicDataLocals,
                                         .vba = basicDataLocals,
                                     }};

static const Phrase getHatchData{
    "EmitSetHatchData: reading",
    {
        .cpp = "%1%3->GetHatchOrSolidData( &%4, &%5, &%6, &%7, &%8 );%2",
        .cppCom = "%1%3->GetHatchOrSolidData( &%4, &%5, &%6, &%7, &%8 );%2",
        .csharp = "%2%1%8.GetHatchOrSolidData( out %3, out %4, out %5, out %6, out %7 );%2",
        .javascript = "%1 var data_%4 = %3.GetHatchOrSolidData();%2",
        .vbNet = "%1%3.GetHatchOrSolidData( %4, %5, %6, %7, %8 )%2%2",
        .vba = "%1%3.GetHatchOrSolidData %4, %5, %6, %7, %8%2",
        .python = "%1data = %3.GetHatchOrSolidData()%2%1%4, %5, %6, %7, %8 = data%2",
    }};

static const Phrase putHatchData{"EmitSetHatchData: writing",
                                 {
                                     .cpp = "%1%3->SetHatchOrSolidData( %4, %5, %6, %7, %8 );%2",
                                     .cppCom = "%1%3->SetHatchOrSolidData( %4, %5, %6, %7, %8 );%2%2",
                                     .csharp = "%1%8.SetHatchOrSolidData( %3, %4, %5, %6, %7 );%2",
                                     .javascript =
                                         "%1%4.SetHatchOrSolidData( data_%3.PatternName, data_%3.Angle, data_%3.Scale, "
                                         "data_%3.HatchPatternType, data_%3.Spacing);%2",
                                     .vbNet = "%1%3.SetHatchOrSolidData( %4, %5, %6, %7, %8 )%2%2",
                                     .vba = "%1%3.SetHatchOrSolidData %4, %5, %6, %7, %8%2%2",
                                     .python = "%1%3.SetHatchOrSolidData(%4, %5, %6, %7, %8)%2",
                                 }};

static constexpr char assignLocal[] = "%1%3 = %4;%2";
static constexpr char basicAssignLocal[] = "%1%3 = %4%2";

static const Phrase assignNumber{"EmitSetHatchData: number",
                                 {
                                     .cpp = assignLocal,
                                     .cppCom = assignLocal,
                                     .csharp = assignLocal,
                                     .javascript = "%1data_%5.%3 = %4;%2",
                                     .vbNet = basicAssignLocal,
                                     .vba = basicAssignLocal,
                                 }};

static const Phrase assignPatternName{"EmitSetHatchData: name",
                                      {
                                          .cpp = "%1%3 = L\"%4\";%2",
                                          .cppCom = "%1%3 = L\"%4\";%2",
                                          .csharp = "%1%3 = \"%4\";%2",
                                          .javascript = "%1data_%4.PatternName = \"%3\";%2",
                                          .vbNet = "%1%3 = \"%4\"%2",
                                          .vba = "%1%3 = \"%4\"%2",
                                      }};
static const Mend bstrPatternName(assignPatternName, Target::CppCom, literalIsNoBstr, textsAsBstr);

static const Phrase assignPatternType{"EmitSetHatchData: type",
                                      {
                                          .cpp = assignLocal,
                                          .cppCom = assignLocal,
                                          .csharp = assignLocal,
                                          .javascript = "%1data_%4.HatchPatternType = \"%3\";%2",
                                          .vbNet = basicAssignLocal,
                                          .vba = basicAssignLocal,
                                      }};

namespace {

/// The locals in the order of the host's calls.
enum DataLocal
{
    kPatternName,
    kAngle,
    kScale,
    kPatternType,
    kSpacing,
};

using DataLocals = std::array<QLatin1String, 5>;

const DataLocals& dataLocals(Target target)
{
    static const DataLocals usual{QLatin1String("PatternName"), QLatin1String("Angle"), QLatin1String("Scale"),
                                  QLatin1String("HatchPatternType"), QLatin1String("Spacing")};
    // Two have names of their own in VBA.
    static const DataLocals vba{usual[kPatternName], usual[kAngle], QLatin1String("scale"), usual[kPatternType],
                                QLatin1String("Elevation")};
    return target == Target::Vba ? vba : usual;
}

/// The pattern in front of the locals, in C# behind them.
Statement callWithData(Writer& writer, const Phrase& phrase, const CFxString& pattern)
{
    Fill call = writer.fill(phrase);
    if (writer.target != Target::CSharp)
        call.word(pattern);
    for (const QLatin1String local : dataLocals(writer.target))
        call.word(local);
    return call.word(pattern);
}

Statement assignReal(Writer& writer, DataLocal local, const std::optional<double>& value, std::uint32_t number)
{
    if (!value)
        return {};
    return writer.fill(assignNumber).word(dataLocals(writer.target)[local]).real(*value).number(number);
}

/// JavaScript's words name the member themselves.
Statement assignText(Writer& writer, const Phrase& phrase, DataLocal local, const CFxString& text, std::uint32_t number)
{
    Fill assignment = writer.fill(phrase);
    if (writer.target != Target::JavaScript)
        assignment.word(dataLocals(writer.target)[local]);
    if (&phrase == &assignPatternName)
        assignment.text(text);
    else
        assignment.word(text);
    return assignment.number(number);
}

const Fault kPredefinedPattern{"EmitSetHatchData: type",
                               {Target::CSharp, Target::VbNet, Target::Vba},
                               "a predefined pattern becomes a user's own"};

/// Without predefined patterns these count as a user's own.
QString patternTypeWord(Target target, const CFxString& word, bool knowsPredefined)
{
    QString type = QStringLiteral("UserDefined");
    if (word.equalNoCase("Custom"))
        type = QStringLiteral("Custom");
    else if (knowsPredefined && word.equalNoCase("Predefined"))
        type = QStringLiteral("Predefined");
    return enumeratorText(target, "iwHatchPatternType_e", "iwHatchPatternType_" + type);
}

Statement assignData(Writer& writer, const HatchPatternChange& change, std::uint32_t number)
{
    Statement text = assignReal(writer, kAngle, change.angle, number) +
                     assignReal(writer, kScale, change.scale, number) +
                     assignReal(writer, kSpacing, change.spacing, number);
    if (change.name)
        text += assignText(writer, assignPatternName, kPatternName, *change.name, number);
    if (change.type) {
        const auto type = [&](bool knowsPredefined) {
            const CFxString word = patternTypeWord(writer.target, *change.type, knowsPredefined);
            return assignText(writer, assignPatternType, kPatternType, word, number);
        };
        const bool isMisread = isBasic(writer.target) || writer.target == Target::CSharp;
        text += isMisread && change.type->equalNoCase("Predefined")
                    ? writer.mended(type(false), kPredefinedPattern, type(true))
                    : type(true);
    }
    return text;
}

/// Python reads all and puts what changed in place of what it has read.
Statement pythonHatchData(Writer& writer, const CFxString& pattern, const HatchPatternChange& change)
{
    const auto readInto = [](bool changes, const char* local) { return QLatin1String(changes ? "_" : local); };
    Fill get = writer.fill(getHatchData);
    get.word(pattern)
        .word(readInto(change.name.has_value(), "pattern_name"))
        .word(readInto(change.angle.has_value(), "pattern_angle"))
        .word(readInto(change.scale.has_value(), "pattern_scale"))
        .word(readInto(change.type.has_value(), "pattern_kind"))
        .word(readInto(change.spacing.has_value(), "pattern_spacing"));
    Fill put = writer.fill(putHatchData);
    const auto real = [&put](const std::optional<double>& value, Meaning meaning, const char* local) {
        if (value)
            put.real(*value, meaning);
        else
            put.word(QLatin1String(local));
    };
    put.word(pattern);
    if (change.name)
        put.text(*change.name, Meaning::Text);
    else
        put.word(QLatin1String("pattern_name"));
    real(change.angle, Meaning::Angle, "pattern_angle");
    real(change.scale, Meaning::Factor, "pattern_scale");
    put.word(change.type ? patternTypeWord(writer.target, *change.type, true) : QStringLiteral("pattern_kind"));
    real(change.spacing, Meaning::Length, "pattern_spacing");
    return get.str() + put.str();
}

} // namespace

Statement EmitSetHatchData(Writer& writer, const CFxString& pattern, const HatchPatternChange& change)
{
    if (writer.target == Target::JavaScript) {
        const std::uint32_t number = ++writer.UniqueCounter;
        return writer.fill(getHatchData).word(pattern).number(number).str() + assignData(writer, change, number) +
               writer.fill(putHatchData).number(number).word(pattern).str();
    }
    if (writer.target == Target::Python)
        return pythonHatchData(writer, pattern, change);
    Fill locals = writer.fill(declareHatchData);
    for (const QLatin1String local : dataLocals(writer.target))
        locals.word(local);
    return locals.str() + callWithData(writer, getHatchData, pattern) + assignData(writer, change, 0) +
           callWithData(writer, putHatchData, pattern);
}

// The gradient's data.

static const Phrase getGradientData{
    "EmitHatchGradientData: reading",
    {
        .cpp = "%2%1iwColor_ptr color1;%2%1iwColor_ptr color2;%2%1bool bCentered;%2%1double gradientAngle;%2%2"
               "%1%3->GetGradientData( &color1, &color2, &bCentered, &gradientAngle);%2",
        .cppCom = "%1IColorPtr color1;%2%1IColorPtr color2;%2%1VARIANT_BOOL bCentered;%2%1double gradientAngle;%2%2"
                  "%1%3->GetGradientData( &color1, &color2, &bCentered, &gradientAngle);%2",
        .csharp = "%2%1Color color1, color2;%2%1bool bCentered;%2%1double gradientAngle;%2%2"
                  "%1%3.GetGradientData(out color1, out color2, out bCentered, out gradientAngle);%2",
        .javascript = "%1 var data%3 = %4.GetGradientData();%2",
        .vbNet = "%2%1Dim color1 As Inkwright.Color%2%1Dim color2 As Inkwright.Color%2%1Dim bCentered As Boolean%2"
                 "%1Dim gradientAngle As Double%2%2"
                 "%1%3.GetGradientData( color1, color2, bCentered, gradientAngle)%2",
        .vba = "%2%1Dim color1 As Inkwright.Color%2%2%1Dim color2 As Inkwright.Color%2%1Dim bCentered As Boolean%2"
               "%1Dim gradientAngle As Double%2%2"
               "%1%3.GetGradientData color1, color2, bCentered, gradientAngle%2",
        .python = "%1data = %3.GetGradientData()%2%1%4, %5, %6, %7 = data%2",
    }};

/// Statements in C++, without a line end. In COM the semicolon ends the statement that the color comes to a second
/// time. Both have to stay so.
static const Phrase indexedColor{"EmitHatchGradientData: indexed color",
                                 {
                                     .cpp = "%2m_pIwApp->GetColorByIndex( %1, &%3 );",
                                     .cppCom = "pConnection->m_IwApp->GetColorByIndex( %1 );",
                                     .csharp = "iwApp.GetColorByIndex( %1 )",
                                     .javascript = "mApp.GetColorByIndex( %1 )",
                                     .vbNet = "iwApp.GetColorByIndex( %1 )",
                                     .vba = "iwApp.GetColorByIndex( %1 )",
                                 }};

static const Phrase rgbColor{"EmitHatchGradientData: true color",
                             {
                                 .cpp = "%4m_pIwApp->GetRGBColor( %1 ,%2 ,%3, &%5 );",
                                 .cppCom = "pConnection->m_IwApp->GetRGBColor( %1 ,%2 ,%3 );",
                                 .csharp = "iwApp.GetRGBColor( %1 ,%2 ,%3 )",
                                 .javascript = "mApp.GetRGBColor( %1 ,%2 ,%3 )",
                                 .vbNet = "iwApp.GetRGBColor( %1 ,%2 ,%3 )",
                                 .vba = "iwApp.GetRGBColor( %1 ,%2 ,%3 )",
                             }};

/// In C++ the color's own call sets the local.
static const Phrase assignColor{"EmitHatchGradientData: assigned color",
                                {
                                    .cppCom = "%1color%3 = %4;%2",
                                    .csharp = "%1color%3 = %4;%2",
                                    .javascript = "%1data%5.Color%3 = %4;%2",
                                    .vbNet = "%1color%3 = %4%2",
                                    .vba = "%1Set color%3 = %4%2",
                                }};

/// Without a marker for the line end in C++, the line end takes the value's place there, and the value is lost. The
/// same holds for the mark that follows. Both have to stay so.
static const Phrase assignGradientAngle{"EmitHatchGradientData: angle",
                                        {
                                            .cpp = "%1gradientAngle = %3;",
                                            .cppCom = "%1gradientAngle = %3;%2",
                                            .csharp = "%1gradientAngle = %3;%2",
                                            .javascript = "%1data%4.GradientAngle = %3;%2",
                                            .vbNet = "%1gradientAngle = %3%2",
                                            .vba = "%1gradientAngle = %3%2",
                                        }};
static const Mend gradientAngleWithValue(assignGradientAngle, Target::Cpp,
                                         "the marker of the line end is missing, so the value is lost",
                                         "%1gradientAngle = %3;%2");

static const Phrase assignCentered{"EmitHatchGradientData: centered",
                                   {
                                       .cpp = "%1bCentered = %3;",
                                       .cppCom = "%1bCentered = %3;%2",
                                       .csharp = "%1bCentered = %3;%2",
                                       .javascript = "%1data%4.IsCentered = %3;%2",
                                       .vbNet = "%1bCentered = %3%2",
                                       .vba = "%1bCentered = %3%2",
                                   }};
static const Mend centeredWithValue(assignCentered, Target::Cpp,
                                    "the marker of the line end is missing, so the value is lost",
                                    "%1bCentered = %3;%2");

static const Phrase putGradientData{
    "EmitHatchGradientData: writing",
    {
        .cpp = "%2%1%3->SetGradientData(color1, color2, bCentered, gradientAngle);%2",
        .cppCom = "%1%3->SetGradientData(color1, color2, bCentered, gradientAngle);%2",
        .csharp = "%1%3.SetGradientData(color1, color2, bCentered, gradientAngle);%2",
        .javascript = "%1%4.SetGradientData(data%3.Color1, data%3.Color2, data%3.IsCentered, data%3.GradientAngle);%2",
        .vbNet = "%1%3.SetGradientData(color1, color2, bCentered, gradientAngle)%2",
        .vba = "%1%3.SetGradientData color1, color2, bCentered, gradientAngle%2",
        .python = "%1%3.SetGradientData(%4, %5, %6, %7)%2",
    }};

/// `which` of the two is 1 or 2.
static Statement changeColor(Writer& writer, int which, const OdCmColor& color, std::uint32_t number)
{
    const OdCmColor plain = gradientColor(writer, color);
    Fill call = writer.fillPlain(plain.isByACI() ? indexedColor : rgbColor);
    if (plain.isByACI())
        call.number(plain.colorIndex());
    else
        call.number(plain.red()).number(plain.green()).number(plain.blue());
    const Statement change = writer.target == Target::Cpp
                                 ? call.indent(writer.IndentLevel).word("color" + QString::number(which)).str()
                                 : writer.fill(assignColor).number(which).word(call.str()).number(number).str();
    return notingBlack(writer, change, color);
}

/// As pythonHatchData.
static Statement pythonGradientData(Writer& writer, const CFxString& pattern, const HatchGradientChange& change)
{
    const auto readInto = [](bool changes, const char* local) { return QLatin1String(changes ? "_" : local); };
    const auto color = [&writer](const std::optional<OdCmColor>& value, const char* local) {
        return value ? colorExpression(writer.target, gradientColor(writer, *value)) : QString(QLatin1String(local));
    };
    Fill get = writer.fill(getGradientData);
    get.word(pattern)
        .word(readInto(change.first.has_value(), "first_color"))
        .word(readInto(change.second.has_value(), "second_color"))
        .word(readInto(change.centered.has_value(), "is_centered"))
        .word(readInto(change.angle.has_value(), "gradient_angle"));
    Fill put = writer.fill(putGradientData);
    put.word(pattern).word(color(change.first, "first_color")).word(color(change.second, "second_color"));
    put.word(change.centered ? truthWord(writer.target, *change.centered) : QStringLiteral("is_centered"));
    if (change.angle)
        put.real(*change.angle, Meaning::Angle);
    else
        put.word(QLatin1String("gradient_angle"));
    return get.str() + put.str();
}

Statement EmitHatchGradientData(Writer& writer, const CFxString& pattern, const HatchGradientChange& change)
{
    if (writer.target == Target::Python)
        return pythonGradientData(writer, pattern, change);
    const bool script = writer.target == Target::JavaScript;
    const std::uint32_t number = script ? ++writer.UniqueCounter : 0;
    const auto call = [&](const Phrase& phrase) {
        Fill statement = writer.fill(phrase);
        if (script)
            statement.number(number);
        return statement.word(pattern).str();
    };
    Statement text = call(getGradientData);
    if (change.first)
        text += changeColor(writer, 1, *change.first, number);
    if (change.second)
        text += changeColor(writer, 2, *change.second, number);
    if (change.angle)
        text += writer.fill(assignGradientAngle).real(*change.angle).number(number).str();
    if (change.centered)
        text += writer.fill(assignCentered).word(truthWord(writer.target, *change.centered)).number(number).str();
    return text + call(putGradientData);
}
