#pragma once

#include "dxf/Groups.h"
#include "dxf/TextDecoder.h"

#include <algorithm>
#include <array>
#include <span>
#include <string_view>
#include <unordered_set>
#include <vector>

namespace inkmacro::dxf {

/// Where an entity, a record of a table or an object stands in the file: nothing of it is kept but that.
struct Entity
{
    std::string_view kind;
    std::size_t begin = 0; ///< of the group behind its kind
    std::size_t end = 0;   ///< of the group that begins the next one
    quint64 handle = 0;    ///< no other of the drawing has it: a missing or a doubled one is replaced
    bool isPart = false;   ///< a vertex, an attribute or the end of a sequence, of the entity before
    bool isOnSheet = false;
    bool hadHandle = true; ///< its own, by which another drawing can know it
};

struct Block
{
    Entity head;
    QString name;
    quint64 record = 0;    ///< handle of its record in the table of blocks, else of the head
    std::size_t first = 0; ///< of its entities, among those of all blocks
    std::size_t count = 0;
};

/// By the name of a block, whether it holds what is drawn in model space, or on a sheet.
bool isModelSpace(const QString& block);
bool isPaperSpace(const QString& block);

/// A drawing file: its bytes, which have to outlive this, and where things are in them. One pass over the file makes
/// it; entities are read when somebody asks for them.
class Drawing
{
public:
    /// Not valid when no section is found.
    explicit Drawing(std::string_view file);
    Drawing(const Drawing&) = delete;
    Drawing& operator=(const Drawing&) = delete;

    bool isValid() const { return isValid_; }
    FileForm form() const { return form_; }
    std::string_view bytes() const { return file_; }
    GroupReader groups(const Entity& entity) const { return {file_.substr(0, entity.end), form_, entity.begin}; }

    /// The last one of that name and code, of the few that anybody needs; an empty line for none.
    Group variable(std::string_view name, int code) const;
    /// Of the table of that name: LAYER, LTYPE, STYLE, DIMSTYLE or BLOCK_RECORD; and MLINESTYLE, whose records stand
    /// among the objects.
    std::span<const Entity> table(std::string_view name) const;
    const std::vector<Block>& blocks() const { return blocks_; }
    std::span<const Entity> entities(const Block& block) const
    {
        return std::span(blockEntities_).subspan(block.first, block.count);
    }
    /// Those of model space and of the sheet that was current.
    const std::vector<Entity>& entities() const { return entities_; }
    const std::vector<Entity>& objects() const { return objects_; }
    /// In whatever entity, as the file has them.
    const std::unordered_set<std::string_view>& layersInUse() const { return layersInUse_; }

    /// Of a record, or of what an entity refers to; empty for none.
    QString nameOf(const Entity& entity);
    const TextDecoder& decoder() const { return decoder_; }
    TextDecoder& decoder() { return decoder_; }
    QString text(const Group& group) { return decoder_.text(group.bytes); }
    /// One that nothing in the drawing has.
    quint64 newHandle();
    /// Whether the file has it, or it has been given away.
    bool hasHandle(quint64 handle) const;
    /// The highest that the drawing has or has given away.
    quint64 highestHandle() const { return nextHandle_ - 1; }
    void keepAbove(quint64 handle) { nextHandle_ = std::max(nextHandle_, handle + 1); }
    /// Lines that belonged to nothing.
    qint64 strayLines() const { return strayLines_; }

private:
    struct Variable
    {
        std::string_view name;
        Group group;
    };
    struct Table
    {
        std::string_view name;
        std::vector<Entity> records;
    };

    class Indexer;
    std::vector<Entity>& tableOf(std::string_view kind);
    void settleHandles();

    std::string_view file_;
    FileForm form_;
    bool isValid_ = false;
    std::vector<Variable> variables_;
    /// The last one is for the records of all others, of which only the handles count.
    std::array<Table, 7> tables_{
        {{"LAYER", {}}, {"LTYPE", {}}, {"STYLE", {}}, {"DIMSTYLE", {}}, {"BLOCK_RECORD", {}}, {"MLINESTYLE", {}}, {}}};
    std::vector<Block> blocks_;
    std::vector<Entity> blockEntities_;
    std::vector<Entity> entities_;
    std::vector<Entity> objects_;
    std::unordered_set<std::string_view> layersInUse_;
    TextDecoder decoder_;
    quint64 firstGiven_ = 1;
    quint64 nextHandle_ = 1;
    std::vector<quint64> taken_; ///< by the file, in their order
    qint64 strayLines_ = 0;
};

} // namespace inkmacro::dxf
