// Changes of system variables.

#include "actions/entries.h"
#include "actions/optionTable.h"
#include "actions/recordedForms.h"
#include "statements/losses.h"
#include "statements/wording.h"
#include "targets/options.h"

using namespace inkmacro;

namespace {

/// The host's own name for the option comes before that of the table. A variable may have two options; the name is for
/// the one whose enumeration it belongs to.
QString enumeratorOf(OptionOwner owner, const OptionRow& row)
{
    const QString name = GetFxSystemServices()->GetOptionName(row.variable);
    return name.startsWith(EnumeratorStem(owner, row.kind)) ? name : OptionEnumerator(owner, row);
}

std::int32_t find(OptionOwner owner, const CFxString& variable, CFxString& enumerator, std::int32_t& kind)
{
    enumerator = CFxString();
    kind = -1;
    const OptionRow* const row = FindOption(owner, variable);
    if (!row)
        return kFxFailure;
    enumerator = enumeratorOf(owner, *row);
    kind = static_cast<std::int32_t>(row->kind);
    return kFxSuccess;
}

/// The current color is recorded as a text.
bool isColor(const CFxString& variable)
{
    return variable.equalNoCase("CECOLOR");
}

/// A color by name counts as 0.
std::int32_t int16Value(const CFxString& variable, const OdResBuf& value)
{
    return isColor(variable) ? value.getString().toInt() : value.getInt16();
}

bool isInt16(const QString& text)
{
    bool isNumber = false;
    text.toShort(&isNumber);
    return isNumber;
}

bool holdsKind(const CFxString& variable, OptionKind kind, const OdResBuf& value)
{
    switch (kind) {
    case OptionKind::Bool:
        return HoldsForm<bool>(value);
    case OptionKind::Double:
        return HoldsForm<double>(value);
    case OptionKind::Int8:
        return HoldsForm<std::int8_t>(value);
    case OptionKind::Int16:
        return isColor(variable) ? isInt16(value.getString()) : HoldsForm<std::int16_t>(value);
    case OptionKind::Int32:
        return HoldsForm<std::int32_t>(value);
    case OptionKind::Point2d:
        return HoldsForm<OdGePoint2d>(value);
    case OptionKind::Point3d:
        return HoldsForm<OdGePoint3d>(value);
    case OptionKind::String:
        // Of a text markup goes, and all lines but the last.
        return HoldsForm<OdString>(value) && CleanPromptText(value.getString()) == value.getString();
    }
    return false;
}

Statement commandOption(Writer& writer, const CFxSysVarChanged& change, const CFxString& option, OptionKind kind,
                        const OdResBuf& value)
{
    switch (kind) {
    case OptionKind::Bool:
        return EmitCommandOptionBool(writer, option, value.getBool());
    case OptionKind::Double:
        return EmitCommandOptionDouble(writer, option, value.getDouble());
    case OptionKind::Int8:
        return EmitCommandOptionInt8(writer, option, value.getInt8());
    case OptionKind::Int16:
        return EmitCommandOptionInt16(writer, option, int16Value(change.GetName(), value));
    case OptionKind::Int32:
        return EmitCommandOptionInt32(writer, option, value.getInt32());
    case OptionKind::Point2d:
        return EmitCommandOptionPoint2D(writer, option, value.getPoint2d());
    case OptionKind::Point3d:
        return EmitCommandOptionPoint3D(writer, option, value.getPoint3d());
    case OptionKind::String:
        return EmitCommandOptionString(writer, option, CleanPromptText(value.getString()));
    }
    return {};
}

Statement applicationOption(Writer& writer, const CFxString& option, OptionKind kind, const OdResBuf& value)
{
    switch (kind) {
    case OptionKind::Bool:
        return EmitApplicationOptionBool(writer, option, value.getBool());
    case OptionKind::Double:
        return EmitApplicationOptionDouble(writer, option, value.getDouble());
    case OptionKind::Int16:
        return EmitApplicationOptionInt16(writer, option, value.getInt16());
    case OptionKind::Int32:
        return EmitApplicationOptionInt32(writer, option, value.getInt32());
    default:
        return EmitApplicationOptionString(writer, option, value.getString());
    }
}

} // namespace

std::int32_t FindCommandOption(const CFxString& variable, CFxString& enumerator, std::int32_t& kind)
{
    return find(OptionOwner::Document, variable, enumerator, kind);
}

std::int32_t FindApplicationOption(const CFxString& variable, CFxString& enumerator, std::int32_t& kind)
{
    return find(OptionOwner::Application, variable, enumerator, kind);
}

std::int32_t ConvertSysVar(Conversion& conversion, const CFxSysVarChanged& variable, Statement& text)
{
    const OdResBufPtr value = variable.GetValue();
    if (!value)
        return kFxSuccess;
    CFxString option;
    std::int32_t kind = -1;
    if (FindCommandOption(variable.GetName(), option, kind) == kFxSuccess)
        text = commandOption(conversion.writer, variable, option, static_cast<OptionKind>(kind), *value);
    else if (FindApplicationOption(variable.GetName(), option, kind) == kFxSuccess)
        text += applicationOption(conversion.writer, option, static_cast<OptionKind>(kind), *value);
    if (kind < 0)
        NoteLoss(ActionTitle(&variable), "the interface has no option for it");
    else if (!holdsKind(variable.GetName(), static_cast<OptionKind>(kind), *value))
        NoteAssumption(ActionTitle(&variable),
                       "the option does not take its value as it is, and is set to another one");
    return kFxSuccess;
}
