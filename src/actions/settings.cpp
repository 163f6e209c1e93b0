// Custom actions that set something of the host or of a sheet: screen colors, option values, print styles, and the
// paths and files of the host's options.

#include "actions/entries.h"
#include "actions/handedVariable.h"
#include "actions/handlers.h"
#include "actions/optionTable.h"
#include "objects/targets/setters.h"
#include "statements/LineEnd.h"
#include "statements/RecordingState.h"
#include "statements/StatementGroup.h"
#include "statements/Target.h"
#include "statements/counters.h"
#include "statements/losses.h"
#include "statements/wording.h"
#include "targets/customActions.h"
#include "targets/fileLocations.h"
#include "targets/options.h"
#include "targets/sheets.h"

#include <algorithm>
#include <span>

using namespace inkmacro;

static const Fault kUndeclaredElement{"EmitSetElementColor",
                                      {Target::Cpp, Target::CSharp, Target::VbNet, Target::CppCom},
                                      "the variables of element colors are declared in the block of a former command"};

static const Fault kNegativeElement{
    "EmitSetElementColor", {Target::CSharp}, "a negative number stands behind a cast without brackets"};

std::int32_t ConvertActionElementColor(Conversion& conversion, const CFxCustomAction& action, Statement& text)
{
    takeVariable(conversion.writer, text, HandedVariable::Replaced);
    const std::int32_t element = action.GetData(0).GetInt();
    if (element < 0 && conversion.Drops(kNegativeElement))
        return PassOver(action, "no element of the screen has a negative number");
    if (processCounters.elementColors == 0 && !conversion.elementColorCommand)
        conversion.elementColorCommand = conversion.command;
    // All blocks see what is declared at top level.
    const std::uint32_t declaring = conversion.elementColorCommand.value_or(0);
    if (declaring != 0 && declaring != conversion.command)
        conversion.faults.note(kUndeclaredElement);
    text = EmitSetElementColor(conversion.writer, element, action.GetData(1).GetColor());
    return kFxSuccess;
}

/// A variable may be an option of the document and of the application: then both are set. The application's statement
/// is appended to what the text holds, be it the document's statement or the handed variable.
std::int32_t ConvertActionOptionValue(Conversion& conversion, const CFxCustomAction& action, Statement& text)
{
    const CFxString& variable = action.GetData(0).GetString();
    CFxString ofDocument;
    CFxString ofApplication;
    std::int32_t documentKind = -1;
    std::int32_t applicationKind = -1;
    const bool inDocument = FindCommandOption(variable, ofDocument, documentKind) == kFxSuccess;
    const bool inApplication = FindApplicationOption(variable, ofApplication, applicationKind) == kFxSuccess;
    takeVariable(conversion.writer, text,
                 inApplication && !inDocument ? HandedVariable::AppendedTo : HandedVariable::Replaced);

    // Without an option there is nothing to say, and the value need not be there.
    if (!inDocument && !inApplication)
        return PassOver(action, "the interface has no option for " + variable.toQString());
    const CFxCustomActionData& value = action.GetData(1);
    if (inDocument) {
        if (documentKind == static_cast<std::int32_t>(OptionKind::Int16))
            text = EmitCommandOptionInt16(conversion.writer, ofDocument, value.GetInt16());
        else if (documentKind == static_cast<std::int32_t>(OptionKind::Point3d))
            text = EmitCommandOptionPoint3D(conversion.writer, ofDocument, value.GetPoint());
        else if (documentKind == static_cast<std::int32_t>(OptionKind::String))
            text = EmitCommandOptionString(conversion.writer, ofDocument, value.GetString());
        else
            return kFxFailure;
    }
    if (inApplication) {
        if (applicationKind == static_cast<std::int32_t>(OptionKind::Int16))
            text += EmitApplicationOptionInt16(conversion.writer, ofApplication, value.GetInt16());
        else if (applicationKind == static_cast<std::int32_t>(OptionKind::String))
            text += EmitApplicationOptionString(conversion.writer, ofApplication, value.GetString());
        else
            return kFxFailure;
    }
    return kFxSuccess;
}

std::int32_t ConvertActionPrintStyle(Conversion& conversion, const CFxCustomAction& action, Statement& text)
{
    takeVariable(conversion.writer, text, HandedVariable::Replaced);
    if (conversion.writer.repairs && !action.GetData(1).GetBool() && action.GetData(2).GetString().isEmpty())
        return PassOver(action, "its sheet has no name");
    text = EmitSetModelProperty(conversion.writer, "PrintStyle", action.GetData(0).GetString(),
                                action.GetData(1).GetBool(), action.GetData(2).GetString());
    return kFxSuccess;
}

namespace {

struct Location
{
    const char* key;
    const char* property;
    bool takesList = false;
};

} // namespace

/// A host object that holds file locations.
struct FileObject
{
    Statement (*emitObject)(Writer& writer, CFxString& variable);
    std::span<const Location> locations;
};

namespace {

constexpr Location interfaceLocations[]{
    {"eFileLocInterfaceAliasFileLoc", "AliasFilePath"},
    {"eFileLocInterfaceMenuFiles", "MenuFilesPath"},
    {"eFileLocInterfaceMainCUIFile", "CustomizationFilePath"},
    {"eFileLocInterfaceCustomIconLoc", "CustomIconPath"},
};

constexpr Location systemLocations[]{
    {"eFileLocSystemCustomDictionaryFile", "CustomDictionaryFile"},
    {"eFileLocSystemMainDictionaryFile", "MainDictionaryFile"},
    {"eFileLocSystemHelpFileValue", "HelpFile"},
    {"eFileLocSystemLogFileLoc", "LogFilePath"},
    {"eFileLocSystemTemporaryFileLoc", "TempPath"},
    {"eFileLocSystemFontFileSearchPath", "FontsPaths", true},
    {"eFileLocSystemSupportFilesPath", "SupportPaths", true},
    {"eFileLocSystemDrawingBorderFilesPath", "DrawingBorderPaths", true},
    {"eFileLocSystemTitleBlockFilesPath", "TitleBlockPaths", true},
};

/// "Supprt" is the host's spelling.
constexpr Location drawingSupportLocations[]{
    {"eFileLocDrawingSupprtAltFontFileSHX", "AlternateShxFontFile"},
    {"eFileLocDrawingSupprtAltFontFileBIG", "AlternateBigFontFile"},
    {"eFileLocDrawingSupprtAltFontFileSHP", "AlternateShapeFile"},
    {"eFileLocDrawingSupprtDrawFilesLoc", "DrawingFilesPath"},
    {"eFileLocDrawingSupprtDWT", "DrawingTemplateFilesPath"},
    {"eFileLocDrawingSupprtXrefFilesLoc", "ExternalReferencesFilesPath"},
    {"eFileLocDrawingSupprtFontMapFile", "FontMappingFile"},
    {"eFileLocDrawingSupprtLibFilesLoc", "LibraryFilesPath"},
    {"eFileLocDrawingSupprtLineStyle", "LineStyleFilePath"},
    {"eFileLocDrawingSupprtPrintSettingsLoc", "PrintSettingsPath"},
    {"eFileLocDrawingSupprtRLineStyle", "RichLineStyleFilePath"},
};

constexpr FileObject interfaceFiles{&EmitInterfaceFilesObject, interfaceLocations};
constexpr FileObject systemFiles{&EmitSystemFilesObject, systemLocations};
constexpr FileObject drawingSupportFiles{&EmitDrawingSupportFilesObject, drawingSupportLocations};

/// Without a property for a location that the object does not have; its statement is written all the same.
Location locationOf(const FileObject& files, const CFxString& key)
{
    const auto found = std::find_if(files.locations.begin(), files.locations.end(),
                                    [&](const Location& location) { return key.equalNoCase(location.key); });
    return found == files.locations.end() ? Location{} : *found;
}

const Fault kUnknownLocation{
    "EmitSetProperty",
    {Target::Cpp, Target::CSharp, Target::JavaScript, Target::VbNet, Target::CppCom, Target::Vba},
    "the property of a location that the host does not have lacks its name"};

const Fault kTextForList{"EmitFileLocationArray",
                         {Target::Cpp, Target::CSharp, Target::JavaScript, Target::VbNet, Target::CppCom, Target::Vba},
                         "a location that takes a list of paths is given one text"};

const Fault kListForText{"EmitFileLocationArray",
                         {Target::Cpp, Target::CSharp, Target::JavaScript, Target::VbNet, Target::CppCom, Target::Vba},
                         "a location that takes one path is given a list"};

/// In strings of the curly languages a backslash escapes. The host's setting decides, not the target.
EscapedText quotable(const CFxString& path)
{
    const bool basic = RecordsIn(Target::VbNet) || RecordsIn(Target::Vba);
    return basic ? EscapedText(path) : doubleBackslashes(path);
}

} // namespace

/// In a repaired macro a location is given what it takes, one path or a list. Empty for a value that is neither.
static Statement setLocation(Writer& writer, const CFxString& variable, const Location& location,
                             const CFxCustomActionData& value)
{
    const bool isText = value.GetType() == CFxCustomActionData::kString;
    if (!isText && value.GetType() != CFxCustomActionData::kStringArray)
        return {};
    const std::vector<CFxString> paths = isText ? std::vector{value.GetString()} : value.GetStringArray();
    const CFxString property(location.property);
    const bool fits = !location.property || isText != location.takesList;
    const bool asText = fits || !writer.repairs ? isText : !isText;
    Statement setting = asText
                            ? EmitSetProperty(writer, variable, property, quotable(paths.front()), true, Meaning::Text)
                            : EmitFileLocationArray(writer, variable, property, paths);
    if (!location.property)
        return writer.faulty(std::move(setting), kUnknownLocation);
    return fits ? setting : writer.faulty(std::move(setting), isText ? kTextForList : kListForText);
}

static std::int32_t ConvertFileLocation(Conversion& conversion, const FileObject& files, const CFxCustomAction& action,
                                        Statement& text)
{
    takeVariable(conversion.writer, text, HandedVariable::Replaced);
    const Location location = locationOf(files, action.GetData(0).GetString());
    const CFxCustomActionData& value = action.GetData(1);
    const bool isList = value.GetType() == CFxCustomActionData::kStringArray;
    if (conversion.writer.repairs) {
        if (!location.property)
            return PassOver(action, "the host has no such location");
        if (isList && !location.takesList && value.GetStringArray().size() != 1)
            return PassOver(action, "its location takes one path and no list");
    }
    StatementGroup group(conversion.writer);
    text = group.begin();
    CFxString variable;
    text += files.emitObject(conversion.writer, variable);
    text += setLocation(conversion.writer, variable, location, value);
    text += group.close() + LineEnd;
    return isList || value.GetType() == CFxCustomActionData::kString
               ? kFxSuccess
               : PassOver(action, "its value is neither a text nor a list of texts");
}

std::int32_t ConvertActionInterfaceFile(Conversion& conversion, const CFxCustomAction& action, Statement& text)
{
    return ConvertFileLocation(conversion, interfaceFiles, action, text);
}

std::int32_t ConvertActionSystemFile(Conversion& conversion, const CFxCustomAction& action, Statement& text)
{
    return ConvertFileLocation(conversion, systemFiles, action, text);
}

std::int32_t ConvertActionDrawingSupportFile(Conversion& conversion, const CFxCustomAction& action, Statement& text)
{
    return ConvertFileLocation(conversion, drawingSupportFiles, action, text);
}
