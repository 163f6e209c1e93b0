// Changes that are a list of tags with a statement each.

#include "objects/ChangeRows.h"

#include "objects/losses.h"
#include "objects/properties.h"
#include "objects/targets/dimensionOptions.h"

#include <algorithm>

ChangeRows::ChangeRows(const OptionObject* on, std::initializer_list<ChangeRow> all) : on(on)
{
    for (const ChangeRow& row : all) {
        if (!row.kind.axes) {
            rows.push_back(row);
            continue;
        }
        for (const QChar letter : QLatin1String(row.kind.axes)) {
            ChangeRow spread = row;
            spread.tag = QString(row.tag.text() + ' ' + letter);
            spread.axis = QString(letter.toUpper());
            rows.push_back(std::move(spread));
        }
    }
}

namespace {

/// The objects that the statements of one group have fetched.
class FetchedObjects
{
public:
    FetchedObjects(Writer& writer, const CFxString& changed) : writer_(writer), changed_(changed) {}

    /// The variable of that object, null being the changed one. Fetches what is not there yet, from the owner on.
    CFxString variable(const OptionObject* object, Statement& text)
    {
        if (!object)
            return changed_;
        const auto known = std::find_if(variables_.begin(), variables_.end(),
                                        [&](const auto& fetched) { return fetched.first == object; });
        if (known != variables_.end())
            return known->second;
        const CFxString owner = variable(object->owner, text);
        CFxString name;
        text += EmitGetOptions(writer_, *object, owner, name);
        variables_.emplace_back(object, name);
        return name;
    }

private:
    Writer& writer_;
    const CFxString& changed_;
    std::vector<std::pair<const OptionObject*, CFxString>> variables_;
};

void noteAsked(const Conversion& conversion, const ChangeRow& row)
{
    if (!conversion.asked)
        return;
    conversion.asked->push_back({row.tag.text(), row.kind.form, {}, row.kind.indexed});
    if (row.kind.secondTag)
        conversion.asked->push_back({row.kind.secondTag, forms::number});
}

using inkmacro::Target;
const inkmacro::Fault kPlaceForNumber{
    "ConvertRows",
    {Target::Cpp, Target::CSharp, Target::JavaScript, Target::VbNet, Target::CppCom, Target::Vba},
    "the place of the chosen item of a list is taken for the item's number"};

/// The chosen item of a list from which its number is wanted, where that is not its place; else null.
CFxVariant numberedItem(const CFxVariant& value, const ValueForm& form)
{
    if (value.GetType() != CFxVariant::kCollection || !form.accepts(CFxVariant::kInt32))
        return {};
    const std::int32_t place = value.GetCollection().GetChosen();
    const auto& items = value.GetCollection().GetCollectionDataForRead();
    if (place < 0 || static_cast<std::size_t>(place) >= items.size())
        return {};
    const CFxVariantCollectionElement& item = items[static_cast<std::size_t>(place)];
    const bool isOther = forms::number.fits(*item.GetTag()) && item.GetTag()->GetInt32() != place;
    return isOther ? CFxVariant(item) : CFxVariant();
}

} // namespace

void ConvertRows(Conversion& conversion, const ChangeGroups& groups, const RecordedObject& object, PropertyList& list,
                 Statement& text)
{
    Writer& writer = conversion.writer;
    for (const ChangeGroup& group : groups) {
        FetchedObjects objects(writer, object.name);
        for (const ChangeRows& part : group)
            for (const ChangeRow& row : part.rows) {
                noteAsked(conversion, row);
                CFxVariant number;
                CFxVariant value = FindProperty(conversion, row.tag, list, nullptr, &number);
                const char* const secondTag = row.kind.secondTag;
                const CFxVariant second = secondTag ? FindProperty(conversion, secondTag, list) : CFxVariant();
                if (value.IsNull() && second.IsNull())
                    continue;
                const std::int32_t index = !row.kind.indexed || number.IsNull() ? -1 : number.GetInt32();
                if (row.kind.indexed && index == -1) {
                    LoseProperty(object, row.tag.text(), "its number is not recorded");
                    continue;
                }
                const CFxVariant item = numberedItem(value, row.kind.form);
                if (writer.repairs && !item.IsNull())
                    value = item;
                const CFxString target = objects.variable(part.on, text);
                Statement statement = row.kind.statement({writer, row, target, value, second, index, number, object});
                if (!item.IsNull())
                    statement = writer.faulty(std::move(statement), kPlaceForNumber);
                if (!statement.isEmpty())
                    AssumeUnlessFormed(object, row.tag.text(), value, row.kind.form);
                else if (row.kind.maySayNothing)
                    LoseUnlessFormed(object, row.tag.text(), value, row.kind.form);
                else
                    LoseProperty(object, row.tag.text(), "the target has no statement that sets it so");
                text += statement;
                if (part.on && part.on->writtenBack)
                    text += EmitSetOptions(writer, *part.on, objects.variable(part.on->owner, text), target);
            }
    }
}
