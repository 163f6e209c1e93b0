// The host's file locations.

#include "targets/fileLocations.h"

#include "statements/counters.h"

#include <QStringList>

using namespace inkmacro;

/// `%4` is the interface, in the variable's name too.
static const Phrase filesObject{"EmitSystemFilesObject",
                                {
                                    .cpp = "%1iw%4_ptr %3;%2%1m_pIwApp->Get%4( &%3 );%2",
                                    .cppCom = "%1I%4Ptr %3 = pConnection->m_IwApp->Get%4();%2",
                                    .csharp = "%1%4 %3 = iwApp.Get%4();%2",
                                    .javascript = "%1var %3 = mApp.Get%4();%2",
                                    .vbNet = "%1Dim %3 As Inkwright.%4 = iwApp.Get%4()%2",
                                    .vba = "%1Dim %3 As Inkwright.%4%2%1Set %3 = iwApp.Get%4()%2",
                                    .python = "%1%3 = drawing.app.Get%4()%2",
                                }};

static CFxString filesVariable(const Writer& writer, const char* type, std::uint32_t number)
{
    if (writer.target == Target::Python)
        return "files";
    return QStringLiteral("iw%1_%2").arg(type).arg(number);
}

static Statement fetchFiles(Writer& writer, const char* type, std::uint32_t number, CFxString& variable)
{
    variable = filesVariable(writer, type, number);
    return writer.fill(filesObject).word(variable).word(QLatin1String(type));
}

Statement EmitInterfaceFilesObject(Writer& writer, CFxString& variable)
{
    return fetchFiles(writer, "InterfaceFiles", processCounters.of(writer.target).interfaceFiles++, variable);
}

Statement EmitSystemFilesObject(Writer& writer, CFxString& variable)
{
    return fetchFiles(writer, "SystemFiles", processCounters.of(writer.target).systemFiles++, variable);
}

/// The `%11` in VBA stands for nothing and stays in the macro.
static const Phrase drawingSupportFilesObject{
    "EmitDrawingSupportFilesObject",
    {
        .cpp = "%1iwDrawingSupportFiles_ptr %3;%2%1m_pIwApp->GetDrawingSupportFiles( &%3 );%2",
        .cppCom = "%1IDrawingSupportFilesPtr %3 = pConnection->m_IwApp->GetDrawingSupportFiles();%2",
        .csharp = "%1DrawingSupportFiles %3 = iwApp.GetDrawingSupportFiles();%2",
        .javascript = "%1var %3 = mApp.GetDrawingSupportFiles();%2",
        .vbNet = "%1Dim %3 As Inkwright.DrawingSupportFiles = iwApp.GetDrawingSupportFiles()%2",
        .vba = "%1Dim %3 As Inkwright.DrawingSupportFiles%2%11Set %3 = iwApp.GetDrawingSupportFiles()%2",
        .python = "%1%3 = drawing.app.GetDrawingSupportFiles()%2",
    }};
static const Mend
    basicDrawingSupportFiles(drawingSupportFilesObject, Target::Vba, "a placeholder of the statement is never filled",
                             "%1Dim %3 As Inkwright.DrawingSupportFiles%2%1Set %3 = iwApp.GetDrawingSupportFiles()%2");

Statement EmitDrawingSupportFilesObject(Writer& writer, CFxString& variable)
{
    variable = filesVariable(writer, "DrawingSupportFiles", processCounters.of(writer.target).drawingSupportFiles++);
    return writer.fill(drawingSupportFilesObject).word(variable);
}

/// C# and VB.NET declare the array together with its elements; in Python it stands in the assignment.
static const Phrase arrayDeclaration{"EmitFileLocationArray",
                                     {
                                         .cpp = "%1iwStringArray sArray%3_%4;%2",
                                         .cppCom =
                                             "%1VARIANT sArray%3_%4;%2%1sArray%3_%4.vt = ( VT_ARRAY | VT_BSTR );%2"
                                             "%1sArray%3_%4.parray = SafeArrayCreateVector( VT_BSTR, 0, %5 );%2"
                                             "%1long rg%3_%4 = -1;%2",
                                         .javascript = "%1var sArray%3_%4 = new Array( %5 );%2",
                                         .vba = "%1Dim sArray%3_%4(%5) As String%2",
                                     }};

/// The page's literal has one number for the element and for the array that it goes into, so an element with another
/// number than its array misses it. It has to stay so.
static const Phrase arrayElement{"EmitFileLocationArray",
                                 {
                                     .cpp = "%1sArray%3_%4.add( L\"%5\" );%2",
                                     .cppCom = "%1rg%3_%4 = %5;%2%1BSTR s%3_%5 = SysAllocString( L\"%6\");%2"
                                               "%1SafeArrayPutElement( sArray%3_%4.parray, &rg%3_%4, s%3_%5 );%2",
                                     .csharp = "%1string s%3_%4 = \"%5\";%2",
                                     .javascript = "%1var s%3_%4 = \"%5\";%2%1sArray%3_%4[%4] = s%3_%4;%2",
                                     .vbNet = "%1Dim s%3_%4 As String = \"%5\"%2",
                                     .vba = "%1sArray%3_%4(%5) = \"%6\"%2",
                                     .python = "%5",
                                 }};
static const Mend scriptArrayElement(arrayElement, Target::JavaScript,
                                     "each folder goes to an array of its own number, and only the first exists",
                                     "%1var s%3_%4 = \"%5\";%2%1sArray%3_%6[%4] = s%3_%4;%2");

static const Phrase arrayAssignment{
    "EmitFileLocationArray",
    {
        .cpp = "%5%1%6->put_%3( sArray%3_%4 );%2",
        .cppCom = "%5%1%6->put_%3( sArray%3_%4 );%2",
        .csharp = "%6%1string[] sArray%3_%4 = new string[] { %5 };%2%1%7.%3 = sArray%3_%4;%2",
        .javascript = "%5%1%6.put_%3( sArray%3_%4 );%2",
        .vbNet = "%6%1Dim sArray%3_%4 As String() = New String() { %5 }%2%1%7.%3 = sArray%3_%4%2",
        .vba = "%5%1%6.%3 = sArray%3_%4%2",
        .python = "%1%6.%3 = texts(%5)%2",
    }};

/// Where an element has one number only, that is its index; but C++ appends to the array and has no index.
static Statement fileLocationElement(Writer& writer, const CFxString& property, std::uint32_t array, int index,
                                     const CFxString& value)
{
    Fill element = writer.fill(arrayElement);
    element.word(property);
    if (writer.target == Target::Cpp || writer.target == Target::CppCom || writer.target == Target::Vba)
        element.number(array);
    if (writer.target != Target::Cpp)
        element.number(index);
    return element.text(value, Meaning::Text).mendNumber(array);
}

Statement EmitFileLocationArray(Writer& writer, const CFxString& variable, const CFxString& property,
                                const std::vector<CFxString>& values)
{
    const std::uint32_t array = processCounters.of(writer.target).fileLocationArrays++;
    const auto size = static_cast<int>(values.size());

    // VBA declares the last index and not the size.
    Statement elements = writer.fill(arrayDeclaration)
                             .word(property)
                             .number(array)
                             .number(writer.target == Target::Vba ? size - 1 : size);
    QStringList names;
    for (int i = 0; i < size; ++i) {
        if (i > 0 && writer.target == Target::Python)
            elements += QStringLiteral(", ");
        elements += fileLocationElement(writer, property, array, i, values[static_cast<std::size_t>(i)]);
        names.append(QStringLiteral("s%1_%2").arg(property).arg(i));
    }

    const QString list = names.join(QLatin1String(", "));
    Fill assignment = writer.fill(arrayAssignment);
    assignment.word(property).number(array);
    if (writer.target == Target::CSharp || writer.target == Target::VbNet)
        assignment.word(list);
    return assignment.word(elements).word(variable);
}
