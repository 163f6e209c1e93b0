// Options of the document and of the application.

#include "targets/options.h"

#include "statements/wording.h"

#include <QByteArray>

using namespace inkmacro;

namespace {

/// What tells one option statement from another.
struct OptionWords
{
    const char* call;        ///< the word for the type in the host's call
    const char* enumeration; ///< and in the enumeration of the options
    const char* values;
    const char* wideValues; ///< the same in C++
    const char* suffix;
};

constexpr OptionWords numberWords(const char* type)
{
    return {type, type, "%4", "%4", "%5"};
}

constexpr OptionWords pointWords(const char* call, const char* enumeration, const char* values, const char* suffix)
{
    return {call, enumeration, values, values, suffix};
}

constexpr OptionWords textWords{"String", "String", "\"%4\"", "L\"%4\"", "%5"};

/// The member of a family whose literals stand in full.
struct OptionModel
{
    const char* type; ///< its word for the type
    Words words;
};

/// Another member: the literals of the model with the words exchanged.
class OptionPhrase
{
public:
    OptionPhrase(const char* name, const OptionModel& model, const OptionWords& words)
        : phrase_(name, wordsOf(model, words))
    {
    }

    operator const Phrase&() const { return phrase_; }

private:
    using Column = const char* Words::*;

    Words wordsOf(const OptionModel& model, const OptionWords& words)
    {
        static constexpr std::array<Column, targetCount> columns{&Words::cpp,        &Words::cppCom, &Words::csharp,
                                                                 &Words::javascript, &Words::vbNet,  &Words::vba,
                                                                 &Words::python};
        Words made;
        for (std::size_t i = 0; i < targetCount; ++i) {
            const bool wide = columns[i] == &Words::cpp || columns[i] == &Words::cppCom;
            literals_[i] = model.words.*columns[i];
            // In Python each value is one, with its quotes.
            if (columns[i] != &Words::python) {
                literals_[i].replace("%5", words.suffix);
                literals_[i].replace("%4", wide ? words.wideValues : words.values);
            }
            literals_[i].replace(model.type + QByteArray("_e"), words.enumeration + QByteArray("_e"));
            literals_[i].replace(model.type, words.call);
            made.*columns[i] = literals_[i].constData();
        }
        return made;
    }

    std::array<QByteArray, targetCount> literals_;
    Phrase phrase_;
};

} // namespace

static const OptionModel commandOption{
    "Int16",
    {
        .cpp = "%1{%2%1    iwSetCommandOptionResult_e result;%2%1    iwDocument_c* iwDoc;%2"
               "%1    m_pIwApp->GetActiveDocument(&iwDoc);%2%1    iwDoc->SetCommandOptionInt16(%3, %4,&result);%2%1}%2",
        .cppCom = "%1{%2%1    iwSetCommandOptionResult_e result;%2"
                  "%1    pConnection->m_IwApp->GetActiveDocument()->SetCommandOptionInt16(%3, %4,&result);%2%1}%2",
        .csharp = "%1{%2%1    iwSetCommandOptionResult_e result%5;%2%1    iwApp.GetActiveDocument()."
                  "SetCommandOptionInt16(iwCommandOptionInt16_e.%3, %4, out result%5);%2%1}%2",
        .javascript = "%1mDoc.SetCommandOptionInt16(\"%3\", %4);%2",
        .vbNet =
            "%1If 1 Then%2%1    Dim result%5 As Inkwright.iwSetCommandOptionResult_e %2%1    iwApp.GetActiveDocument()."
            "SetCommandOptionInt16(Inkwright.iwCommandOptionInt16_e.%3, %4,result%5)%2%1End If%2",
        .vba = "%1If 1 Then%2%1Dim resultInt16%5 As Inkwright.iwSetCommandOptionResult_e %2%1iwApp.GetActiveDocument()."
               "SetCommandOptionInt16 Inkwright.iwCommandOptionInt16_e.%3, %4, resultInt16%5%2%1End If%2",
        .python = "%1drawing.doc.SetCommandOptionInt16(constants.%3, %4)%2",
    }};

static const Phrase commandInt16{"EmitCommandOptionInt16", commandOption.words};
static const OptionPhrase commandBool{"EmitCommandOptionBool", commandOption, numberWords("Bool")};
static const OptionPhrase commandDouble{"EmitCommandOptionDouble", commandOption, numberWords("Double")};
static const OptionPhrase commandInt8{"EmitCommandOptionInt8", commandOption, numberWords("Int8")};
static const OptionPhrase commandInt32{"EmitCommandOptionInt32", commandOption, numberWords("Int32")};
static const OptionPhrase commandPoint2D{"EmitCommandOptionPoint2D", commandOption,
                                         pointWords("Point2D", "Point2d", "%4, %5", "%6")};
static const OptionPhrase commandPoint3D{"EmitCommandOptionPoint3D", commandOption,
                                         pointWords("Point3D", "Point3d", "%4, %5, %6", "%7")};
static const OptionPhrase commandString{"EmitCommandOptionString", commandOption, textWords};

/// C#, VB.NET and VBA give the result's variable a number of its own. Elsewhere the counter stays as it is.
static Statement withResult(Writer& writer, Fill& statement)
{
    if (writer.target == Target::CSharp || writer.target == Target::VbNet || writer.target == Target::Vba)
        statement.number(++writer.UniqueCounter);
    return statement;
}

Statement EmitCommandOptionBool(Writer& writer, const CFxString& option, bool value)
{
    return withResult(writer, writer.fill(commandBool).word(option).word(truthWord(writer.target, value)));
}

Statement EmitCommandOptionDouble(Writer& writer, const CFxString& option, double value, Meaning meaning)
{
    return withResult(writer, writer.fill(commandDouble).word(option).shortReal(value, meaning));
}

Statement EmitCommandOptionInt8(Writer& writer, const CFxString& option, std::int32_t value)
{
    return withResult(writer, writer.fill(commandInt8).word(option).number(value));
}

Statement EmitCommandOptionInt16(Writer& writer, const CFxString& option, std::int32_t value)
{
    return withResult(writer, writer.fill(commandInt16).word(option).number(value));
}

Statement EmitCommandOptionInt32(Writer& writer, const CFxString& option, std::int32_t value)
{
    return withResult(writer, writer.fill(commandInt32).word(option).number(value));
}

Statement EmitCommandOptionPoint2D(Writer& writer, const CFxString& option, const OdGePoint2d& value)
{
    return withResult(writer, writer.fill(commandPoint2D).word(option).shortPlanePoint({value.x, value.y, 0.0}));
}

Statement EmitCommandOptionPoint3D(Writer& writer, const CFxString& option, const OdGePoint3d& value)
{
    return withResult(writer, writer.fill(commandPoint3D).word(option).shortPoint(value));
}

Statement EmitCommandOptionString(Writer& writer, const CFxString& option, const CFxString& value)
{
    return withResult(writer, writer.fill(commandString).word(option).text(value));
}

static const OptionModel applicationOption{
    "Bool",
    {
        .cpp = "%2%1iwApplicationOptions_c* appOption%5;%2%1m_pIwApp->GetApplicationOptions(&appOption%5);%2"
               "%1appOption%5->SetApplicationOptionBool(%3, %4);%2",
        .cppCom = "%2%1pConnection->m_IwApp->GetApplicationOptions()->SetApplicationOptionBool(%3, %4);%2",
        .csharp = "%2%1iwApp.GetApplicationOptions().SetApplicationOptionBool(iwApplicationOptionBool_e.%3, %4);%2",
        .javascript = "%2%1mApp.GetApplicationOptions().SetApplicationOptionBool(\"%3\", %4);%2",
        .vbNet = "%2%1iwApp.GetApplicationOptions()."
                 "SetApplicationOptionBool(Inkwright.iwApplicationOptionBool_e.%3, %4)%2",
        .vba = "%2%1iwApp.GetApplicationOptions()."
               "SetApplicationOptionBool Inkwright.iwApplicationOptionBool_e.%3, %4%2",
        .python = "%1options = drawing.app.GetApplicationOptions()%2"
                  "%1options.SetApplicationOptionBool(constants.%3, %4)%2",
    }};

static const Phrase applicationBool{"EmitApplicationOptionBool", applicationOption.words};
static const OptionPhrase applicationInt16{"EmitApplicationOptionInt16", applicationOption, numberWords("Int16")};
static const OptionPhrase applicationInt32{"EmitApplicationOptionInt32", applicationOption, numberWords("Int32")};
static const OptionPhrase applicationDouble{"EmitApplicationOptionDouble", applicationOption, numberWords("Double")};
static const OptionPhrase applicationString{"EmitApplicationOptionString", applicationOption, textWords};

/// The options are fetched into a variable only in C++, which is numbered there.
static Statement withOptions(Writer& writer, Fill& statement)
{
    if (writer.target == Target::Cpp)
        statement.number(++writer.UniqueCounter);
    return statement;
}

Statement EmitApplicationOptionBool(Writer& writer, const CFxString& option, bool value)
{
    return withOptions(writer, writer.fill(applicationBool).word(option).word(truthWord(writer.target, value)));
}

Statement EmitApplicationOptionInt16(Writer& writer, const CFxString& option, std::int32_t value)
{
    return withOptions(writer, writer.fill(applicationInt16).word(option).number(value));
}

Statement EmitApplicationOptionInt32(Writer& writer, const CFxString& option, std::int32_t value)
{
    return withOptions(writer, writer.fill(applicationInt32).word(option).number(value));
}

Statement EmitApplicationOptionDouble(Writer& writer, const CFxString& option, double value)
{
    return withOptions(writer, writer.fill(applicationDouble).word(option).shortReal(value));
}

Statement EmitApplicationOptionString(Writer& writer, const CFxString& option, const CFxString& value)
{
    return withOptions(writer, writer.fill(applicationString).word(option).text(value));
}
