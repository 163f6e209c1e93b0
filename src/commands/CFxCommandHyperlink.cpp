#include "commands/CFxCommandHyperlink.h"

#include "commands/texts.h"
#include "host/db/OdDbCurves.h"

#include <algorithm>

namespace {

constexpr CommandTexts texts("CFxCommandHyperlink");
constexpr const char* kMainGroup = "[GROUP MAIN] Command Option: Upper- and Lowercase letters are relevant.";
constexpr const char* kInsertGroup = "[GROUP INS] Command Option: Upper- and Lowercase letters are relevant.";

const char* const kApplication = "PE_URL";
constexpr std::uint32_t kSelectionFilter = 0x7f1ff;
constexpr std::int32_t kSelectionMode = 105;

struct Hyperlink
{
    CFxString address;
    CFxString description;
    CFxString place; ///< in the drawing that the address leads to
    bool operator==(const Hyperlink&) const = default;
};

/// A chain of rows, from the first to the last.
class Rows
{
public:
    Rows& add(int code, OdResBuf::Value value)
    {
        const auto row = odrxNew<OdResBuf>(code, std::move(value));
        if (last_)
            last_->setNext(row);
        else
            first_ = row;
        last_ = row;
        return *this;
    }
    const OdResBufPtr& first() const { return first_; }

private:
    OdResBufPtr first_;
    OdResBufPtr last_;
};

void writeHyperlink(OdDbObject& entity, const Hyperlink& link)
{
    Rows rows;
    rows.add(OdResBuf::kDxfRegAppName, OdString(kApplication))
        .add(OdResBuf::kDxfXdAsciiString, link.address)
        .add(OdResBuf::kDxfXdControlString, OdString("{"))
        .add(OdResBuf::kDxfXdAsciiString, link.description)
        .add(OdResBuf::kDxfXdAsciiString, link.place)
        .add(OdResBuf::kDxfXdControlString, OdString("{"))
        .add(OdResBuf::kDxfXdInteger32, std::int32_t{0})
        .add(OdResBuf::kDxfXdControlString, OdString("}"))
        .add(OdResBuf::kDxfXdControlString, OdString("}"));
    entity.setXData(rows.first());
}

Hyperlink readHyperlink(const OdDbObject& entity)
{
    std::vector<CFxString> strings;
    for (OdResBufPtr row = entity.xData(kApplication); row; row = row->next())
        if (row->restype() == OdResBuf::kDxfXdAsciiString)
            strings.emplace_back(row->getString());
    strings.resize(3);
    return {strings[0], strings[1], strings[2]};
}

void clearHyperlink(OdDbObject& entity)
{
    entity.setXData(odrxNew<OdResBuf>(OdResBuf::kDxfRegAppName, OdString(kApplication)));
}

void registerApplication(OdDbDatabase& database)
{
    const auto table = odrxCast<OdDbSymbolTable>(database.getRegAppTableId().openObject().get());
    if (!table->getAt(kApplication).isNull())
        return;
    const auto record = odrxNew<OdDbRegAppTableRecord>(OdDbRegAppTableRecord::desc());
    record->setName(kApplication);
    table->add(record);
}

/// The layer of rectangles that have one of their own.
OdDbObjectId hyperlinkLayer(OdDbDatabase& database)
{
    const char* const name = "URLLAYER";
    const auto table = odrxCast<OdDbSymbolTable>(database.getLayerTableId().openObject().get());
    if (const OdDbObjectId layer = table->getAt(name); !layer.isNull())
        return layer;
    const auto record = odrxNew<OdDbLayerTableRecord>(OdDbLayerTableRecord::desc());
    record->setName(name);
    record->setColorIndex(1);
    return table->add(record);
}

/// Asks for two corners and draws the rectangle between them.
std::int32_t drawArea(CFxCommandContext* context, OdDbBlockTableRecord& block, bool ownLayer, OdDbObjectId& area)
{
    CFxUserIO* const io = GetFxUserIO(context);
    OdDbDatabase& database = context->GetDatabase();
    OdGePoint3d start;
    OdGePoint3d opposite;
    CFxStatus status = io->GetPoint(texts("Specify start corner"), nullptr, start);
    if (status == kFxSuccess)
        status = io->GetPoint(texts("Specify opposite corner"), &start, opposite);
    if (status != kFxSuccess)
        return status;

    const auto rectangle = odrxNew<OdDb3dPolyline>(OdDb3dPolyline::desc());
    rectangle->setDatabaseDefaults(database);
    rectangle->appendVertex({start});
    rectangle->appendVertex({{opposite.x, start.y, start.z}});
    rectangle->appendVertex({opposite});
    rectangle->appendVertex({{start.x, opposite.y, opposite.z}});
    rectangle->makeClosed();
    if (ownLayer) {
        try {
            rectangle->setLayer(hyperlinkLayer(database));
        } catch (const OdError&) {
            return kFxFailure;
        }
    }
    area = block.appendOdDbEntity(database, rectangle);
    return kFxSuccess;
}

std::int32_t selectEntities(CFxCommandContext* context, CFxSelectionSet& selection)
{
    selection.Clear();
    return GetFxUserIO(context)->GetSelection(selection, kSelectionFilter, kSelectionMode);
}

/// Without an address there is nothing more to ask.
std::int32_t askForHyperlink(CFxUserIO& io, Hyperlink& link)
{
    const auto ask = [&](const char* help, const char* prompt, CFxString& text) {
        io.ShowMessage(texts(help));
        return io.GetString(texts(prompt), text);
    };
    CFxStatus status = ask("Enter to use active drawing", "Specify hyperlink address", link.address);
    if (status == kFxSuccess && !link.address.isEmpty()) {
        status = ask("Enter for none", "Specify place in this drawing", link.place);
        if (status == kFxSuccess)
            status = ask("Enter for none", "Specify description text", link.description);
    }
    return status;
}

std::vector<OdDbObjectPtr> withHyperlinks(const CFxSelectionSet& selection)
{
    std::vector<OdDbObjectPtr> entities;
    for (const OdDbObjectId& id : selection.GetIds())
        if (const OdDbObjectPtr entity = id.openObject(); entity && entity->xData(kApplication))
            entities.push_back(entity);
    return entities;
}

std::vector<Hyperlink> distinctHyperlinks(const std::vector<OdDbObjectPtr>& entities)
{
    std::vector<Hyperlink> links;
    for (const OdDbObjectPtr& entity : entities)
        if (const Hyperlink link = readHyperlink(*entity); std::find(links.begin(), links.end(), link) == links.end())
            links.push_back(link);
    return links;
}

/// The hyperlinks that an answer means: a number from 1, an address, or all of them.
std::vector<Hyperlink> chosenHyperlinks(const std::vector<Hyperlink>& links, const QString& answer)
{
    if (answer == "*")
        return links;
    bool numeric = false;
    const std::size_t number = answer.toULongLong(&numeric);
    if (numeric && number >= 1 && number <= links.size())
        return {links[number - 1]};
    std::vector<Hyperlink> chosen;
    std::copy_if(links.begin(), links.end(), std::back_inserter(chosen),
                 [&](const Hyperlink& link) { return link.address.toQString() == answer; });
    return chosen;
}

} // namespace

OdRxClass* CFxCommandHyperlink::desc()
{
    static OdRxClass* const descriptor = OdRxClass::define("CFxCommandHyperlink", CFxCommand::desc());
    return descriptor;
}

OdString CFxCommandHyperlink::localName() const
{
    return texts("-HYPERLINK", kCommandName);
}

std::int32_t CFxCommandHyperlink::Execute(CFxCommandContext* context)
{
    CFxUserIO* const io = GetFxUserIO(context);
    if (!io)
        return kFxFailure;
    CFxKeywordArray keywords;
    keywords.Add(texts("Insert", kMainGroup), "_Insert");
    keywords.Add(texts("Remove", kMainGroup), "_Remove");
    CFxString choice = lastChoice_ == kRemove ? "_Remove" : "_Insert";
    const CFxStatus status = io->GetKeyword(keywords.BuildPrompt(texts("Specify hyperlink option")), keywords, choice);
    if (status != kFxSuccess)
        return status;
    lastChoice_ = choice.equalNoCase("_Remove") ? kRemove : kInsert;
    return lastChoice_ == kRemove ? Remove(context) : Insert(context, false);
}

std::int32_t CFxCommandHyperlink::Insert(CFxCommandContext* context, bool ownLayer)
{
    CFxUserIO* const io = GetFxUserIO(context);
    OdDbDatabase& database = context->GetDatabase();
    const CFxSelectionSetPtr selection = CreateFxSelectionSet();
    const OdDbBlockTableRecordPtr block = GetActiveBlockTableRecord(context);

    CFxKeywordArray keywords;
    keywords.Add(texts("Area", kInsertGroup), "_Area");
    keywords.Add(texts("Entity", kInsertGroup), "_Entity");
    const CFxString prompt = keywords.BuildPrompt(texts("Specify anchor option"));
    keywords.Add(texts("Object", kInsertGroup), "_Object");
    CFxString anchor = "_Entity";
    std::int32_t status = io->GetKeyword(prompt, keywords, anchor);
    if (status != kFxSuccess)
        return status;

    const bool area = anchor.equalNoCase("_Area");
    OdDbObjectId rectangle;
    status = area ? drawArea(context, *block, ownLayer, rectangle) : selectEntities(context, *selection);
    if (status == kFxNothing)
        return kFxSuccess;
    if (status != kFxSuccess)
        return status;

    Hyperlink link;
    status = askForHyperlink(*io, link);
    if (status != kFxSuccess)
        return status;
    if (area)
        selection->Append(rectangle);
    else
        registerApplication(database);
    for (const OdDbObjectId& id : selection->GetIds())
        writeHyperlink(*id.openObject(), link);
    return kFxSuccess;
}

std::int32_t CFxCommandHyperlink::Remove(CFxCommandContext* context)
{
    CFxUserIO* const io = GetFxUserIO(context);
    const CFxSelectionSetPtr selection = CreateFxSelectionSet();
    const std::int32_t status = selectEntities(context, *selection);
    if (status == kFxNothing)
        return kFxSuccess;
    if (status != kFxSuccess)
        return status;
    const std::vector<OdDbObjectPtr> entities = withHyperlinks(*selection);
    if (entities.empty())
        return kFxSuccess;

    const std::vector<Hyperlink> links = distinctHyperlinks(entities);
    std::vector<CFxString> answers{"*"};
    for (std::size_t i = 0; i < links.size(); ++i) {
        io->ShowMessage(QString("%1 %2 (%3)").arg(QString::number(i + 1), links[i].address, links[i].description));
        answers.push_back(links[i].address);
    }
    std::vector<Hyperlink> chosen;
    while (chosen.empty()) {
        CFxString answer;
        if (const CFxStatus asked = io->GetString(texts("Specify number, hyperlink, or * for all"), answer, answers);
            asked != kFxSuccess)
            return asked;
        chosen = chosenHyperlinks(links, answer);
        if (chosen.empty())
            io->ShowMessage(texts("Not a valid selection, try again."));
    }

    int cleared = 0;
    for (const OdDbObjectPtr& entity : entities) {
        if (std::find(chosen.begin(), chosen.end(), readHyperlink(*entity)) == chosen.end())
            continue;
        clearHyperlink(*entity);
        ++cleared;
    }
    io->ShowMessage(cleared == 1 ? texts("1 hyperlink deleted.").toQString()
                                 : texts("%1 hyperlinks deleted.").toQString().arg(cleared));
    return kFxSuccess;
}
