#pragma once

#include "TestTarget.h"

#include "host/kernel/CFxVariant.h"
#include "statements/Target.h"

#include <utility>
#include <vector>

// The statements. In their words stand @v for the variable, @p for the property or operation, @a for the value and @n
// for a number that the statement takes; in a fetch @o for the owner and @t for the type.

inline const TestTexts fetch{"iw@t_ptr @v;\n@o->Get@t( &@v );",
                             "I@tPtr @v = @o->Get@t();",
                             "@t @v = @o.Get@t();",
                             "var @v = @o.Get@t();",
                             "Dim @v As Inkwright.@t = @o.Get@t()",
                             "Dim @v As Inkwright.@t\nSet @v = @o.Get@t()"};
inline const TestTexts fetchUserData{fetch.cpp,        fetch.cppCom, "Inkwright.@t @v = @o.Get@t();",
                                     fetch.javascript, fetch.vbNet,  fetch.vba};

inline const TestTexts set{"@v->put_@p( @a );", "@v->put_@p( @a );", "@v.@p = @a;",
                           "@v.put_@p(@a);",    "@v.@p = @a",        "@v.@p = @a"};
inline const TestTexts setWord{set.cpp, set.cppCom, set.csharp, "@v.put_@p(\"@a\");", set.vbNet, set.vba};
inline const TestTexts setText{"@v->put_@p( L\"@a\" );", "@v->put_@p( L\"@a\" );", "@v.@p = \"@a\";",
                               "@v.put_@p (\"@a\");",    "@v.@p = \"@a\"",         "@v.@p = \"@a\""};
inline const TestTexts setWeight{set.cpp, set.cppCom, set.csharp, "@v.put_@p( \"@a\" );", set.vbNet, set.vba};
inline const TestTexts setColor{
    "iwColor_ptr iwColor@n;\nm_pIwApp->GetColorByIndex( @a, &iwColor@n );\n@v->put_@p( iwColor@n );",
    "@v->put_@p( pConnection->m_IwApp->GetColorByIndex( @a ) );",
    "@v.@p = iwApp.GetColorByIndex( @a );",
    "@v.put_@p( mApp.GetColorByIndex( @a ) );",
    "@v.@p = iwApp.GetColorByIndex( @a )",
    "@v.@p = iwApp.GetColorByIndex( @a )"};
inline const TestTexts setArrow{"@v->@p( @a, L\"\" );",   "@v->@p( @a, L\"\" );", "@v.@p( @a, \"\" );",
                                "@v.@p( \"@a\", \"\" );", "@v.@p( @a, \"\" )",    "@v.@p @a, \"\""};
inline const TestTexts setStyleArrow{
    "iwDimensionArrowType_e arrowType@n=@a;\niwString arrowName@n = L\"\";\n@v->@p( arrowType@n, arrowName@n );",
    "iwDimensionArrowType_e arrowType@n=@a;\nBSTR arrowName@n = L\"\";\n@v->@p( arrowType@n, arrowName@n );",
    "iwDimensionArrowType_e arrowType@n=@a;\nstring arrowName@n=\"\";\n@v.@p(arrowType@n, arrowName@n);",
    "var arrowType@n = \"@a\";\nvar arrowName@n = \"\";\n@v.@p(arrowType@n, arrowName@n);",
    "Dim arrowType@n As Inkwright.iwDimensionArrowType_e = @a\nDim arrowName@n As String = \"\"\n"
    "@v.@p(arrowType@n, arrowName@n)",
    "Dim arrowType@n As Inkwright.iwDimensionArrowType_e\narrowType@n = @a\nDim arrowName@n As String\n"
    "arrowName@n = \"\"\n@v.@p arrowType@n, arrowName@n"};
inline const TestTexts setFactor{"@v->@p( iwDimensionScale_UseScaleFactor, @a );",
                                 "@v->@p( iwDimensionScale_UseScaleFactor, @a );",
                                 "@v.@p( iwDimensionScale_e.iwDimensionScale_UseScaleFactor, @a );",
                                 "@v.@p( \"iwDimensionScale_UseScaleFactor\", @a );",
                                 "@v.@p( Inkwright.iwDimensionScale_e.iwDimensionScale_UseScaleFactor, @a )",
                                 "@v.@p Inkwright.iwDimensionScale_e.iwDimensionScale_UseScaleFactor, @a"};
inline const TestTexts setSheetScale{"@v->@p( @a, 1.00000000000000 );", "@v->@p( @a, 1.00000000000000 );",
                                     "@v.@p( @a, 1.00000000000000 );",  "@v.@p( \"@a\", 1.00000000000000 );",
                                     "@v.@p( @a, 1.00000000000000 )",   "@v.@p @a, 1.00000000000000"};
inline const TestTexts setFixedLength{
    "@v->SetExtensionLineFixedLength(true, @a);", "@v->SetExtensionLineFixedLength(true, @a);",
    "@v.SetExtensionLineFixedLength(true, @a);",  "@v.SetExtensionLineFixedLength(true, @a);",
    "@v.SetExtensionLineFixedLength(True, @a)",   "@v.SetExtensionLineFixedLength True, @a"};
inline const TestTexts setStyleMark{"@v->put_@p(@a, 2.50000000000000);", "@v->@p(@a, 2.50000000000000);",
                                    "@v.@p(@a, 2.50000000000000);",      "@v.@p(\"@a\", 2.50000000000000);",
                                    "@v.@p(@a, 2.50000000000000)",       "@v.@p @a, 2.50000000000000"};

#define READ_MARK(out, member)                                                                                         \
    "iwDimensionCenterMarkDisplay_e CenterMarkDisplay@n;\ndouble markSize@n;\n@v" member "GetCenterMarkDisplay( " out  \
    "CenterMarkDisplay@n, " out "markSize@n );\n"
#define DIM_MARK                                                                                                       \
    "Dim CenterMarkDisplay@n As Inkwright.iwDimensionCenterMarkDisplay_e\nDim markSize@n As Double\n"                  \
    "@v.GetCenterMarkDisplay"
inline const TestTexts setMarkSize{
    READ_MARK("&", "->") "markSize@n = @a;\n@v->@p( CenterMarkDisplay@n, markSize@n );",
    READ_MARK("&", "->") "markSize@n = @a;\n@v->@p( CenterMarkDisplay@n, markSize@n );",
    READ_MARK("out ", ".") "markSize@n = @a;\n@v.@p( CenterMarkDisplay@n, markSize@n );",
    "var results@n = @v.GetCenterMarkDisplay( );\nresults@n[1] = @a;\n@v.@p( results@n[0], results@n[1] );",
    DIM_MARK "( CenterMarkDisplay@n, markSize@n )\nmarkSize@n = @a\n@v.@p( CenterMarkDisplay@n, markSize@n )",
    DIM_MARK " CenterMarkDisplay@n, markSize@n\nmarkSize@n = @a\n@v.@p CenterMarkDisplay@n, markSize@n"};
inline const TestTexts setMark{
    READ_MARK("&", "->") "CenterMarkDisplay@n = @a;\n@v->@p( CenterMarkDisplay@n, markSize@n );",
    READ_MARK("&", "->") "CenterMarkDisplay@n = @a;\n@v->@p( CenterMarkDisplay@n, markSize@n );",
    READ_MARK("out ", ".") "CenterMarkDisplay@n = @a;\n@v.@p( CenterMarkDisplay@n, markSize@n );",
    "var results@n = @v.GetCenterMarkDisplay( );\nresults@n[0] = \"@a\";\n@v.@p( results@n[0], results@n[1] );",
    DIM_MARK "( CenterMarkDisplay@n, markSize@n )\nCenterMarkDisplay@n = @a\n@v.@p( CenterMarkDisplay@n, markSize@n )",
    DIM_MARK " CenterMarkDisplay@n, markSize@n\nCenterMarkDisplay@n = @a\n@v.@p CenterMarkDisplay@n, markSize@n"};
#undef READ_MARK
#undef DIM_MARK

inline const TestTexts changeX2D{"double x@n, y@n;\n@v->Get@p( &x@n, &y@n );\n@v->Set@p( @a, y@n );",
                                 "double x@n, y@n;\n@v->Get@p( &x@n, &y@n );\n@v->Set@p( @a, y@n );",
                                 "double x@n, y@n;\n@v.Get@p( out x@n, out y@n );\n@v.Set@p( @a, y@n );",
                                 "var points = @v.Get@p( );\n@v.Set@p(@a, points.Y);",
                                 "Dim x@n As Double\nDim y@n As Double\n@v.Get@p( x@n, y@n )\n@v.Set@p( @a, y@n )",
                                 "Dim x@n As Double\nDim y@n As Double\n@v.Get@p x@n, y@n\n@v.Set@p @a, y@n"};
inline const TestTexts changeY2D{"double x@n, y@n;\n@v->Get@p( &x@n, &y@n );\n@v->Set@p( x@n, @a );",
                                 "double x@n, y@n;\n@v->Get@p( &x@n, &y@n );\n@v->Set@p( x@n, @a );",
                                 "double x@n, y@n;\n@v.Get@p( out x@n, out y@n );\n@v.Set@p( x@n, @a );",
                                 "var points = @v.Get@p( );\n@v.Set@p(points.X, @a);",
                                 "Dim x@n As Double\nDim y@n As Double\n@v.Get@p( x@n, y@n )\n@v.Set@p( x@n, @a )",
                                 "Dim x@n As Double\nDim y@n As Double\n@v.Get@p x@n, y@n\n@v.Set@p x@n, @a"};
#define XYZ "double x@n, y@n, z@n;\n"
#define DIM_XYZ "Dim x@n As Double\nDim y@n As Double\nDim z@n As Double\n"
inline const TestTexts changeX{XYZ "@v->Get@p( &x@n, &y@n, &z@n );\n@v->Set@p( @a, y@n, z@n );",
                               XYZ "@v->Get@p( &x@n, &y@n, &z@n );\n@v->Set@p( @a, y@n, z@n );",
                               XYZ "@v.Get@p( out x@n, out y@n, out z@n );\n@v.Set@p( @a, y@n, z@n );",
                               "var points = @v.Get@p( );\n@v.Set@p(@a, points.Y, points.Z);",
                               DIM_XYZ "@v.Get@p( x@n, y@n, z@n )\n@v.Set@p( @a, y@n, z@n )",
                               DIM_XYZ "@v.Get@p x@n, y@n, z@n\n@v.Set@p @a, y@n, z@n"};
inline const TestTexts changeY{XYZ "@v->Get@p( &x@n, &y@n, &z@n );\n@v->Set@p( x@n, @a, z@n );",
                               XYZ "@v->Get@p( &x@n, &y@n, &z@n );\n@v->Set@p( x@n, @a, z@n );",
                               XYZ "@v.Get@p( out x@n, out y@n, out z@n );\n@v.Set@p( x@n, @a, z@n );",
                               "var points = @v.Get@p( );\n@v.Set@p(points.X, @a, points.Z);",
                               DIM_XYZ "@v.Get@p( x@n, y@n, z@n )\n@v.Set@p( x@n, @a, z@n )",
                               DIM_XYZ "@v.Get@p x@n, y@n, z@n\n@v.Set@p x@n, @a, z@n"};
#undef XYZ
#undef DIM_XYZ

/// A tag with a value that changes it, and what must be written for it.
struct Tag
{
    const char* tag;
    CFxVariant value;
    const TestTexts& words;
    const char* property;
    const char* written; ///< truth words are told as `true`, enumerators as `iwEnumeration_Name`
};

/// Fetches the variable of an option object.
struct Step
{
    const char* type;
    const char* stem;
};

inline const Step generalDimension{"GeneralDimension", "generalDimension"};
inline const Step userData{"DimensionStyleUserData", "dimensionStyle"};

inline std::vector<Step> overrides(const char* type, const char* stem)
{
    return {generalDimension, userData, {type, stem}};
}

/// Tags on one variable, which is fetched through the steps from the object.
struct Group
{
    std::vector<Step> steps;
    std::vector<Tag> tags;
    bool goesOn = false; ///< the steps begin with what the first step of the group before has fetched
};

/// Writes down what is expected of the groups, in one target.
class Expected
{
public:
    Expected(inkmacro::Target target, const CFxString& object) : target_(target), object_(object) {}

    void add(const Group& group)
    {
        QString variable = group.goesOn ? first_ : object_;
        if (!group.goesOn)
            first_.clear();
        for (const auto& [type, stem] : group.steps) {
            const bool userData = QString(type) == "DimensionStyleUserData";
            const QString name = stem + QString::number(++number_);
            line((userData ? fetchUserData : fetch).in(target_), {{"@t", type}, {"@v", name}, {"@o", variable}});
            variable = name;
            if (first_.isEmpty())
                first_ = name;
        }
        for (const Tag& tag : group.tags) {
            const QString words = tag.words.in(target_);
            number_ += words.contains("@n");
            line(
                words,
                {{"@v", variable}, {"@p", tag.property}, {"@a", value(tag.written)}, {"@n", QString::number(number_)}});
        }
    }
    void skipNumber() { ++number_; }
    const QString& lines() const { return lines_; }

private:
    QString value(const QString& told) const
    {
        const bool basic = inkmacro::isBasic(target_);
        if (basic && (told == "true" || told == "false"))
            return told == "true" ? "True" : "False";
        if (!told.startsWith("iw") || (!basic && target_ != inkmacro::Target::CSharp))
            return told;
        const QString type = told.startsWith("iwLnWt") ? "iwLineWeight" : told.section('_', 0, 0);
        return (basic ? "Inkwright." : "") + type + "_e." + told;
    }
    /// A statement that the target lacks has no words.
    void line(QString words, const std::vector<std::pair<QString, QString>>& values)
    {
        if (words.isEmpty())
            return;
        for (const auto& [place, with] : values)
            words.replace(place, with);
        lines_ += words + '\n';
    }

    inkmacro::Target target_;
    QString object_;
    QString first_;
    QString lines_;
    int number_ = 0;
};
