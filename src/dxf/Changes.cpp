#include "dxf/Changes.h"

#include "dxf/DrawingLine.h"
#include "dxf/sameness.h"
#include "host/db/OdDbClassMap.h"

#include <map>

namespace inkmacro::dxf {

namespace {

constexpr const char* kLayer = "AcDbLayerTableRecord";
constexpr const char* kBlock = "AcDbBlockTableRecord";
constexpr const char* kNoHandle = "it went, and the old drawing has no handle for it";
constexpr const char* kNoKind = "it went, and no recording has its kind";
constexpr const char* kNoRemoval = "it went, and no statement erases it";

bool isOfLayers(const KindRow& table)
{
    return table.kind == "LAYER";
}

/// The line styles that entities and layers have when nothing is said of them.
Drawing& withUsualStyles(Contents& contents)
{
    for (const char* const name : {"ByLayer", "ByBlock", "Continuous"})
        contents.around().lineStyles.addUnlisted(name);
    return contents.drawing();
}

constexpr const char* kNameTags[] = {"Name", "DimensionStyleName", "RichLineStyleName"};

/// By which a record is renamed; null where nothing renames it.
const char* nameTag(const ChangeForms& forms, const OdRxClass* cls)
{
    for (const char* const tag : kNameTags)
        if (forms(cls, QLatin1String(tag), ""))
            return tag;
    return nullptr;
}

bool isName(const Property& property)
{
    return std::any_of(std::begin(kNameTags), std::end(kNameTags),
                       [&](std::string_view tag) { return tag == property.tag; });
}

CFxVariant erased()
{
    return yesOrNo(true);
}

/// One list writes one statement a tag, so that each number of a repeated property gets a list.
std::vector<std::vector<Property>> byNumber(std::vector<Property> changes)
{
    std::map<std::int32_t, std::vector<Property>> lists; // single ones first
    for (Property& change : changes)
        lists[change.index.IsNull() ? Fact::kSingle : change.index.GetInt32()].push_back(std::move(change));
    std::vector<std::vector<Property>> all;
    for (auto& [number, list] : lists)
        all.push_back(std::move(list));
    return all;
}

} // namespace

Changes::Changes(Drawing& before, Drawing& after, OdDbDatabase& ids, const ImportOptions& options, ChangeForms forms)
    : forms_(std::move(forms)),
      isWhole_(options.layers.isEmpty() && !options.onlyBlocks),
      before_(before, ids, options),
      after_((after.keepAbove(withUsualStyles(before_).highestHandle()), after), ids, options)
{
    accounts_.since.emplace();
    for (const KindRow& table : tableKinds())
        pairTable(table);
    pairBlocks();
    comparison_.emplace(forms_, before_, after_);
    pairing_.emplace(*comparison_, before_, after_);
    for (const KindRow& table : tableKinds())
        compareTable(table);
    compareRuns();
    removeLayers();
}

OdDbHandle Changes::handleFor(const Entity& entity)
{
    return OdDbHandle(before_.drawing().hasHandle(entity.handle) ? after_.drawing().newHandle() : entity.handle);
}

void Changes::pairTable(const KindRow& table)
{
    NamedObjects* const before = before_.around().table(table.kind);
    NamedObjects* const after = after_.around().table(table.kind);
    if (!before || !after)
        return;
    const bool hasRenames = nameTag(forms_, oddbClassByName(table.className));
    // What is called otherwise, by the handles of the older drawing.
    std::unordered_map<quint64, std::size_t> nameless;
    for (std::size_t index = 0; index < before->all().size(); ++index) {
        const NamedObjects::Named& named = before->all()[index];
        if (hasRenames && named.record && named.record->hadHandle && !after->find(named.name))
            nameless.emplace(named.handle, index);
    }
    for (std::size_t index = 0; index < after->all().size(); ++index) {
        const NamedObjects::Named named = after->all()[index];
        if (const NamedObjects::Named* const same = before->find(named.name)) {
            after->rename(index, same->name, same->handle);
            continue;
        }
        const auto renamed = named.record && named.record->hadHandle ? nameless.find(named.handle) : nameless.end();
        if (renamed != nameless.end()) {
            rename(table, before->all()[renamed->second], named);
            before->rename(renamed->second, named.name, named.handle);
            nameless.erase(renamed);
            continue;
        }
        quint64 handle = named.handle;
        if (before_.drawing().hasHandle(handle))
            handle = after_.drawing().newHandle();
        after->rename(index, named.name, handle);
    }
}

void Changes::rename(const KindRow& table, const NamedObjects::Named& before, const NamedObjects::Named& after)
{
    OdRxClass* const cls = oddbClassByName(table.className);
    Property name{nameTag(forms_, cls), CFxString(after.name)};
    name.old = CFxString(before.name);
    named_.insert(before.handle);
    renamed_.insert(before.handle);
    ++accounts_.since->changed[std::string(table.kind)];
    renames_.push_back({cls, OdDbHandle(before.handle), {std::move(name)}});
}

void Changes::compareTable(const KindRow& table)
{
    const NamedObjects* const before = before_.around().table(table.kind);
    const NamedObjects* const after = after_.around().table(table.kind);
    if (!before || !after)
        return;
    std::unordered_map<quint64, const NamedObjects::Named*> left;
    for (const NamedObjects::Named& named : before->all())
        left.emplace(named.handle, &named);
    for (const NamedObjects::Named& named : after->all()) {
        if (const auto same = left.find(named.handle); same != left.end()) {
            compareRecords(table, *same->second, named);
            left.erase(same);
        } else if (isMade(table, named)) {
            newRecords_.push_back({&table, &named});
        }
    }
    for (const NamedObjects::Named& named : before->all())
        if (left.contains(named.handle) && (named.record || isOfLayers(table)))
            noteGoneRecord(table, named);
}

/// Not one that every drawing has.
bool Changes::isMade(const KindRow& table, const NamedObjects::Named& named)
{
    if (!named.record)
        return isOfLayers(table);
    if (!isOfLayers(table) && named.name.compare(QLatin1String("Standard"), Qt::CaseInsensitive) == 0)
        return false;
    try {
        after_.read({&table, oddbClassByName(table.className)}, *named.record, {}, OdDbHandle(named.handle), object_);
    } catch (const Lost&) {
        return true; // which is told then
    }
    return !object_.properties.empty() || !object_.changes.empty();
}

void Changes::noteGoneRecord(const KindRow& table, const NamedObjects::Named& named)
{
    if (isOfLayers(table) && isWhole_)
        goneLayers_.push_back(&named);
    else if (!isOfLayers(table))
        accounts_.lose(table.kind, kNoRemoval);
}

void Changes::compareRecords(const KindRow& table, const NamedObjects::Named& before, const NamedObjects::Named& after)
{
    const Kind kind{&table, oddbClassByName(table.className)};
    DrawnObject was;
    DrawnObject is;
    const auto read = [&](Contents& contents, const NamedObjects::Named& named, DrawnObject& object) {
        object.cls = kind.cls;
        if (named.record)
            contents.read(kind, *named.record, {}, OdDbHandle(named.handle), object);
        // Names are told already, and the rest of the drawing's data is but names.
        std::erase_if(object.properties, isName);
        object.drawing.clear();
        // Nobody prints this layer, which the oldest drawings have no word for.
        if (isOfLayers(table) && named.name.compare(QLatin1String("Defpoints"), Qt::CaseInsensitive) == 0)
            std::erase_if(object.changes,
                          [](const Property& change) { return std::string_view(change.tag) == "Printable"; });
    };
    try {
        read(before_, before, was);
        read(after_, after, is);
    } catch (const Lost& lost) {
        accounts_.leaveOut(table.kind, lost.reason);
        return;
    }
    Difference difference = comparison_->difference(was, is);
    if (difference.isNone())
        return;
    // Layers are found by their names.
    const bool isInReach = isOfLayers(table) || (before.record && before.record->hadHandle);
    if (difference.isOther || !isInReach) {
        accounts_.leaveOut(table.kind, "what changed of it");
    } else {
        named_.insert(before.handle);
        for (const Property& change : difference.changes)
            note(change);
        if (!renamed_.contains(before.handle))
            ++accounts_.since->changed[std::string(table.kind)];
        changedRecords_.push_back({kind.cls, OdDbHandle(before.handle), std::move(difference.changes)});
    }
}

void Changes::pairBlocks()
{
    for (Blocks::Made* const made : before_.blocks().sorted())
        made->isMade = true;
    for (Blocks::Made* const made : after_.blocks().sorted()) {
        made->isMade = true;
        Blocks::Made* const before = before_.blocks().find(made->block->name);
        if (before) {
            made->handle = before->handle;
            made->insertable.name = before->insertable.name;
            blocks_.emplace(made, before);
        } else if (before_.drawing().hasHandle(made->handle)) {
            made->handle = after_.drawing().newHandle();
        }
    }
}

std::vector<Item> Changes::itemsOf(Contents& contents, const Contents::Run* run)
{
    std::vector<Item> items;
    if (run)
        contents.all(*run, [&](const Entity& entity, std::span<const Entity> parts) {
            items.push_back({&entity, parts});
        });
    return items;
}

void Changes::compareRuns()
{
    const auto nameOf = [](const Contents::Run& run) { return run.sheet.isNull() ? QString() : run.sheet.toLower(); };
    std::map<QString, const Contents::Run*> places; // of the older drawing
    for (const Contents::Run& run : before_.runs())
        if (!run.block)
            places.emplace(nameOf(run), &run);
    for (const Contents::Run& run : after_.runs()) {
        if (run.block) {
            compareBlock(run);
            continue;
        }
        const auto before = places.find(nameOf(run));
        comparePlace(before == places.end() ? nullptr : before->second, &run);
        if (before != places.end())
            places.erase(before);
    }
    for (const auto& [name, run] : places)
        comparePlace(run, nullptr);
    noteGoneBlocks();
    for (const Drawn& block : newBlocks_)
        block.run->block->isMade = false;
}

void Changes::compareBlock(const Contents::Run& run)
{
    const Blocks::Made& made = *run.block;
    const auto found = blocks_.find(&made);
    std::vector<Item> items = itemsOf(after_, &run);
    if (found != blocks_.end()) {
        const Blocks::Made& before = *found->second;
        const Contents::Run runBefore{before_.drawing().entities(*before.block), found->second, {}};
        const Paired paired = pairing_->pair(itemsOf(before_, &runBefore), items);
        const bool isSameEntity = paired.gone.empty() && paired.come.empty() &&
                                  std::all_of(paired.pairs.begin(), paired.pairs.end(), [](const Pair& pair) {
                                      return pair.difference.isNone() || pair.difference.lost;
                                  });
        if (isSameEntity && isSame(before.base, made.base) && before.description == made.description &&
            before.path == made.path) {
            for (const Pair& pair : paired.pairs)
                noteSame(pair);
            return;
        }
    }
    namedBlocks_.insert(made.insertable.name.toLower());
    draw(run, items, newBlocks_);
}

void Changes::comparePlace(const Contents::Run* before, const Contents::Run* after)
{
    const Paired paired = pairing_->pair(itemsOf(before_, before), itemsOf(after_, after));
    for (const Pair& pair : paired.pairs)
        if (pair.difference.isNone() || pair.difference.lost)
            noteSame(pair);
        else
            noteChanged(pair, *after);
    for (const Item& item : paired.gone)
        noteGone(item);
    if (!paired.come.empty())
        draw(*after, paired.come, newEntities_);
}

void Changes::draw(const Contents::Run& run, const std::vector<Item>& items, std::vector<Drawn>& places)
{
    Drawn place{&run, {}};
    for (const Item& item : items) {
        const OdDbHandle handle = handleFor(*item.entity);
        try {
            after_.readEntity(*item.entity, item.parts, handle, object_);
        } catch (const Lost& lost) {
            lose(*item.entity, item.parts, lost);
            continue;
        }
        note(object_);
        drawing_ += object_.drawing;
        place.items.push_back({item, handle});
    }
    if (run.block || !place.items.empty())
        places.push_back(std::move(place));
}

void Changes::noteSame(const Pair& pair)
{
    if (pair.difference.lost)
        return lose(*pair.after.entity, pair.after.parts, {pair.difference.lost});
    ++accounts_.since->unchanged[std::string(pair.after.entity->kind)];
    for (const Entity& part : pair.after.parts)
        if (part.kind == "ATTRIB")
            ++accounts_.since->unchanged["ATTRIB"];
    for (const char* const what : pair.difference.untold)
        accounts_.leaveOut(pair.after.entity->kind, what);
}

void Changes::noteChanged(const Pair& pair, const Contents::Run& run)
{
    ++accounts_.since->changed[std::string(pair.after.entity->kind)];
    qint64 attributes = 0;
    for (const Property& change : pair.difference.changes) {
        note(change);
        if (!change.ownTag.isEmpty())
            ++attributes;
    }
    for (const Entity& part : pair.after.parts)
        if (part.kind == "ATTRIB")
            ++(attributes-- > 0 ? accounts_.since->changed : accounts_.since->unchanged)["ATTRIB"];
    for (const char* const what : pair.difference.untold)
        accounts_.leaveOut(pair.after.entity->kind, what);
    const OdDbHandle handle(pair.before.entity->handle);
    before_.readEntity(*pair.before.entity, pair.before.parts, handle, object_);
    noteTouched(object_.cls, handle);
    changed_.push_back({pair.before, pair.after, object_.cls, &run});
}

void Changes::noteGone(const Item& item)
{
    const Kind* const kind = findKind(item.entity->kind);
    if (!kind || !item.entity->hadHandle) {
        accounts_.lose(item.entity->kind, kind ? kNoHandle : kNoKind);
        noteLayersOf({item.entity, 1});
        return;
    }
    const OdDbHandle handle(item.entity->handle);
    OdRxClass* cls = kind->cls;
    try {
        before_.readEntity(*item.entity, item.parts, handle, object_);
        if (!object_.isStandIn)
            cls = object_.cls;
    } catch (const Lost&) {
        object_.drawing.clear(); // it is there all the same
    }
    noteTouched(cls, handle);
    removals_.push_back({cls, handle});
    ++accounts_.since->erased[std::string(item.entity->kind)];
    for (const Entity& part : item.parts)
        if (part.kind == "ATTRIB")
            ++accounts_.since->erased["ATTRIB"];
}

void Changes::noteTouched(OdRxClass* cls, OdDbHandle handle)
{
    QByteArray line;
    DrawingLine(line, cls->name().toLatin1().constData(), handle);
    // What its kind tells of it besides.
    const QByteArray begin = line.left(line.indexOf('}'));
    for (const QByteArray& told : object_.drawing.split('\n'))
        if (told.startsWith(begin))
            line = told + '\n';
    drawing_ += line;
}

void Changes::noteLayersOf(std::span<const Entity> entities)
{
    EntityReader reader(before_.drawing());
    for (const Entity& entity : entities) {
        reader.read(entity);
        layersInUse_.insert(reader.has(8) ? reader.text(8).toLower() : QStringLiteral("0"));
    }
}

void Changes::noteGoneBlocks()
{
    std::unordered_set<const Blocks::Made*> found;
    for (const auto& [after, before] : blocks_)
        found.insert(before);
    for (const Blocks::Made* const made : before_.blocks().sorted()) {
        if (found.contains(made) || !made->isOfUse())
            continue;
        accounts_.lose("BLOCK", kNoRemoval);
        noteLayersOf(before_.drawing().entities(*made->block));
    }
}

void Changes::removeLayers()
{
    OdRxClass* const cls = oddbClassByName(kLayer);
    for (const NamedObjects::Named* const layer : goneLayers_) {
        if (layersInUse_.contains(layer->name.toLower())) {
            accounts_.lose("LAYER", "it went, and something stays on it");
            continue;
        }
        named_.insert(layer->handle);
        layerRemovals_.push_back({cls, OdDbHandle(layer->handle)});
        ++accounts_.since->erased["LAYER"];
    }
}

void Changes::note(const Property& property)
{
    for (const CFxVariant* const value : {&property.value, &property.old}) {
        if (value->GetType() == CFxVariant::kId)
            named_.insert(value->GetId().getHandle().value());
        // Styles are named by their names too.
        if (value->GetType() != CFxVariant::kString || !std::string_view(property.tag).ends_with("tyle"))
            continue;
        for (const NamedObjects* const names :
             {&before_.around().textStyles, &before_.around().dimensionStyles, &before_.around().richLineStyles})
            if (const NamedObjects::Named* const named = names->find(value->GetString().toQString()))
                named_.insert(named->handle);
    }
    if (std::string_view(property.tag) == "Name")
        namedBlocks_.insert(property.value.GetString().toQString().toLower());
}

void Changes::note(const DrawnObject& object)
{
    for (const std::vector<Property>* const list : {&object.properties, &object.changes})
        for (const Property& property : *list)
            note(property);
    for (const QByteArray& text : object.drawing.split('"'))
        if (bool isHandle = false; const quint64 handle = text.toULongLong(&isHandle, 16))
            named_.insert(handle);
}

bool Changes::isNothing() const
{
    return renames_.empty() && newRecords_.empty() && changedRecords_.empty() && newBlocks_.empty() &&
           changed_.empty() && removals_.empty() && newEntities_.empty() && layerRemovals_.empty();
}

QByteArray Changes::head()
{
    QByteArray lines = headerLine();
    if (isNothing())
        return lines;
    for (const KindRow& table : tableKinds())
        tellTable(table, lines);
    for (const Contents::Run& run : after_.runs())
        if (run.block && namedBlocks_.contains(run.block->insertable.name.toLower()))
            tellBlock(*run.block, lines);
    lines += drawing_;
    drawing_.clear();
    after_.around().madeHandles.beginAgain();
    return lines;
}

void Changes::tellTable(const KindRow& table, QByteArray& lines)
{
    const auto tell = [&](Contents& contents, const NamedObjects::Named& named) {
        if (named.record)
            tellRecord(contents, table, *named.record, OdDbHandle(named.handle), lines);
        else
            DrawingLine(lines, table.className, OdDbHandle(named.handle)).with("name", named.name);
    };
    if (const NamedObjects* const names = before_.around().table(table.kind))
        for (const NamedObjects::Named& named : names->all())
            if (named_.contains(named.handle))
                tell(before_, named);
    for (const NewRecord& record : newRecords_)
        if (record.table == &table)
            tell(after_, *record.named);
}

bool Changes::advance()
{
    const auto enter = [&](Stage stage) {
        stage_ = stage;
        place_ = 0;
        item_ = 0;
        return true;
    };
    switch (stage_) {
    case Stage::Tables:
        recordTables();
        return enter(Stage::Blocks);
    case Stage::Blocks:
        return drawNext(newBlocks_) || enter(Stage::TableChanges);
    case Stage::TableChanges:
        for (const ChangedRecord& record : changedRecords_)
            recorder_.change(record.cls, record.handle, record.changes);
        return enter(Stage::EntityChanges);
    case Stage::EntityChanges:
        if (place_ == changed_.size())
            return enter(Stage::Removals);
        recordChange();
        return true;
    case Stage::Removals:
        if (place_ == removals_.size())
            return enter(Stage::Entities);
        recorder_.change(removals_[place_].cls, removals_[place_].handle, {{"Erased", erased()}});
        ++place_;
        return true;
    case Stage::Entities:
        return drawNext(newEntities_) || enter(Stage::LayerRemovals);
    case Stage::LayerRemovals:
        for (const Removal& removal : layerRemovals_)
            recorder_.change(removal.cls, removal.handle, {{"Erased", erased()}});
        remarkOn(after_);
        return enter(Stage::End);
    case Stage::End:
        break;
    }
    return false;
}

void Changes::recordTables()
{
    for (const ChangedRecord& record : renames_)
        recorder_.change(record.cls, record.handle, record.changes);
    for (const NewRecord& record : newRecords_) {
        const OdDbHandle handle(record.named->handle);
        if (record.named->record)
            importRecord(after_, *record.table, *record.named->record, handle);
        else
            recorder_.add(oddbClassByName(record.table->className), handle, {{"Name", CFxString(record.named->name)}});
    }
}

bool Changes::drawNext(const std::vector<Drawn>& places)
{
    if (place_ == places.size())
        return false;
    const Drawn& place = places[place_];
    if (item_ < place.items.size()) {
        const NewItem& one = place.items[item_++];
        after_.around().sheet = place.run->sheet;
        importEntity(after_, *place.run, *one.item.entity, one.item.parts, one.handle);
    }
    if (item_ == place.items.size()) {
        endRun(*place.run);
        ++place_;
        item_ = 0;
    }
    return true;
}

void Changes::recordChange()
{
    const ChangedEntity& entity = changed_[place_++];
    offset_ = entity.after.entity->begin;
    before_.around().sheet = after_.around().sheet = entity.run->sheet;
    for (const std::vector<Property>& list : byNumber(pairing_->difference(entity.before, entity.after).changes))
        recorder_.change(entity.cls, OdDbHandle(entity.before.entity->handle), list);
}

void Changes::recordBlock(const Blocks::Made& made, const std::vector<OdDbHandle>& members)
{
    const auto found = blocks_.find(&made);
    if (found == blocks_.end() || !found->second->isOfUse())
        return ActionSource::recordBlock(made, members);
    const Blocks::Made& before = *found->second;
    std::vector<OdDbHandle> membersBefore;
    for (const Entity& entity : before_.drawing().entities(*before.block))
        if (!entity.isPart)
            membersBefore.emplace_back(entity.handle);
    Property objects{"Objects", handleList(members)};
    objects.old = handleList(membersBefore);
    std::vector<Property> changes{std::move(objects)};
    if (made.description != before.description) {
        Property description{"Description", CFxString(made.description)};
        description.old = CFxString(before.description);
        changes.push_back(std::move(description));
    }
    ++accounts_.since->changed["BLOCK"];
    recorder_.change(oddbClassByName(kBlock), OdDbHandle(made.handle), changes);
}

} // namespace inkmacro::dxf
