#include "dxf/Blocks.h"

#include "dxf/EntityReader.h"

namespace inkmacro::dxf {

namespace {

enum BlockFlag : qint64
{
    kExternalReference = 4,
    kOverlay = 8,
};

/// Why a block is not made; null for one that is.
const char* lossOf(const Block& block, bool isSecond)
{
    if (block.name.isEmpty())
        return "its block has no name";
    if (isOfOtherFile(block.name))
        return kOfOtherFile;
    return isSecond ? "its block is defined twice" : nullptr;
}

} // namespace

Blocks::Blocks(Drawing& drawing) : drawing_(drawing)
{
    all_.reserve(drawing.blocks().size());
    std::unordered_set<QString> seen;
    for (const Block& block : drawing.blocks()) {
        const QString key = block.name.toLower();
        const bool isSecond = !seen.insert(key).second;
        if (isModelSpace(block.name) || (isPaperSpace(block.name) && !isSecond))
            continue;
        if (const char* const reason = lossOf(block, isSecond)) {
            left_.push_back({drawing.entities(block), reason});
            continue;
        }
        byName_.emplace(key, &all_.emplace_back(Made{&block, {}, block.record, {}, {}, {}, false, false}));
        if (!block.name.startsWith('*'))
            names_.insert(key);
    }
    for (Made& made : all_) {
        name(made);
        describe(made);
    }
    for (const Entity& entity : drawing.entities())
        if (Made* const inserted = insertedBy(entity))
            inserted->isInserted = true;
    sort();
}

void Blocks::name(Made& made)
{
    const QString& own = made.block->name;
    if (!own.startsWith('*')) {
        made.insertable.name = own;
        return;
    }
    // A star stands for a name that the application makes up, and none is accepted with it.
    const QString base = "Anonymous_" + own.mid(1);
    QString candidate = base;
    for (int number = 2; !names_.insert(candidate.toLower()).second; ++number)
        candidate = base + '_' + QString::number(number);
    made.insertable.name = candidate;
}

void Blocks::describe(Made& made)
{
    EntityReader head(drawing_);
    head.read(made.block->head);
    try {
        made.base = head.point(10);
    } catch (const Lost&) {
        made.base = {};
    }
    made.description = head.text(4);
    const Group* const flags = head.find(70);
    if (flags && flags->integer().value_or(0) & (kExternalReference | kOverlay))
        made.path = head.has(1) ? head.text(1) : QStringLiteral("");
    for (const Entity& entity : drawing_.entities(*made.block)) {
        if (entity.kind != "ATTDEF")
            continue;
        head.read(entity);
        enum : qint64
        {
            kConstant = 2
        };
        const Group* const kind = head.find(70);
        if (!(kind && kind->integer().value_or(0) & kConstant)) {
            if (const QString tag = head.text(2).trimmed(); !tag.isEmpty())
                made.insertable.tags.emplace(tag.toLower(), tag);
        }
    }
}

Blocks::Made* Blocks::find(const QString& name) const
{
    const auto found = byName_.find(name.toLower());
    return found == byName_.end() ? nullptr : found->second;
}

const Insertable& Blocks::insertable(std::string_view name) const
{
    const Made* const made = find(drawing_.decoder().text(name).trimmed());
    if (!made)
        throw Lost{"there is no such block"};
    if (!made->isMade)
        throw Lost{"its block holds itself"};
    return made->insertable;
}

Blocks::Made* Blocks::insertedBy(const Entity& entity)
{
    return entity.kind == "INSERT" ? find(drawing_.nameOf(entity)) : nullptr;
}

std::vector<Blocks::Made*> Blocks::insertedInto(const Made& made)
{
    std::vector<Made*> all;
    for (const Entity& entity : drawing_.entities(*made.block)) {
        if (Made* const inserted = insertedBy(entity)) {
            inserted->isInserted = true;
            all.push_back(inserted);
        }
    }
    return all;
}

void Blocks::sort()
{
    // Blocks may be nested to any depth, so what waits is kept here and not on the stack.
    struct Waiting
    {
        Made* made;
        std::vector<Made*> inserted;
        std::size_t next = 0;
    };
    std::unordered_set<const Made*> seen;
    for (Made& first : all_) {
        if (!seen.insert(&first).second)
            continue;
        std::vector<Waiting> waiting;
        waiting.push_back({&first, insertedInto(first)});
        while (!waiting.empty()) {
            Waiting& top = waiting.back();
            if (top.next == top.inserted.size()) {
                sorted_.push_back(top.made);
                waiting.pop_back();
                continue;
            }
            Made* const inner = top.inserted[top.next++];
            if (seen.insert(inner).second)
                waiting.push_back({inner, insertedInto(*inner)});
        }
    }
}

} // namespace inkmacro::dxf
