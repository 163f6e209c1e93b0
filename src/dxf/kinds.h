#pragma once

#include "dxf/DrawnObject.h"
#include "dxf/GroupPieces.h"
#include "dxf/NamedObjects.h"

#include <functional>
#include <unordered_map>
#include <unordered_set>

namespace inkmacro::dxf {

/// A block, once it is in the recording.
struct Insertable
{
    QString name; ///< that it has there
    /// Of the attributes that its references have, by the same in small letters.
    std::unordered_map<QString, QString> tags;
};

/// Handles of objects that the file does not have. A second pass over the same entities gets those of the first.
class MadeHandles
{
public:
    explicit MadeHandles(Drawing& drawing) : drawing_(drawing) {}
    OdDbHandle next()
    {
        if (given_ == handles_.size())
            handles_.push_back(drawing_.newHandle());
        return OdDbHandle(handles_[given_++]);
    }
    void beginAgain() { given_ = 0; }
    /// How many are given; to go back to that place.
    std::size_t place() const { return given_; }
    void goTo(std::size_t place) { given_ = place; }

private:
    Drawing& drawing_;
    std::vector<quint64> handles_;
    std::size_t given_ = 0;
};

/// What entities refer to, among the objects that are drawn nowhere.
class ObjectsByHandle
{
public:
    explicit ObjectsByHandle(const Drawing& drawing) : drawing_(drawing) {}
    /// Null for none of that kind.
    const Entity* find(std::string_view kind, quint64 handle)
    {
        if (byHandle_.empty())
            for (const Entity& object : drawing_.objects())
                byHandle_.emplace(object.handle, &object);
        const auto found = byHandle_.find(handle);
        return found != byHandle_.end() && found->second->kind == kind ? found->second : nullptr;
    }

private:
    const Drawing& drawing_;
    std::unordered_map<quint64, const Entity*> byHandle_;
};

/// What the entities of a drawing are read with.
struct Surroundings
{
    Surroundings(Drawing& drawing, OdDbDatabase& ids)
        : drawing(drawing),
          ids(ids),
          layers(drawing, ids, "LAYER"),
          lineStyles(drawing, ids, "LTYPE"),
          textStyles(drawing, ids, "STYLE"),
          dimensionStyles(drawing, ids, "DIMSTYLE"),
          richLineStyles(drawing, ids, "MLINESTYLE"),
          blockRecords(drawing, ids, "BLOCK_RECORD"),
          objects(drawing),
          madeHandles(drawing)
    {
    }

    /// What a table of that name holds; null for one that nothing refers to by name.
    NamedObjects* table(std::string_view name);

    Drawing& drawing;
    OdDbDatabase& ids;
    NamedObjects layers;
    NamedObjects lineStyles;
    NamedObjects textStyles;
    NamedObjects dimensionStyles;
    NamedObjects richLineStyles;
    NamedObjects blockRecords;
    ObjectsByHandle objects;
    bool isForDrawing = false; ///< nothing but the lines of the drawing is asked for
    QString sheet;             ///< on which the entity lies; null for model space and blocks
    /// By the records of their styles, once they were asked for.
    std::unordered_map<const Entity*, std::vector<Group>> dimensionVariables;
    /// The block that can be inserted where the entity stands. Throws Lost.
    std::function<const Insertable&(std::string_view name)> insertable;
    /// For what an entity is made from: the same ones again when it is read again.
    MadeHandles madeHandles;
    double tolerance = 0; ///< that another curve may be away, as a part of the curve's size
};

/// Reads an entity with its parts, which follow it in `parts`.
struct KindRow
{
    std::string_view kind;
    const char* className;
    void (*read)(EntityReader& entity, std::span<const Entity> parts, Surroundings& around, DrawnObject& object);
    bool tellsDrawing = false; ///< lines of the drawing, so that it is read before all actions too
};

/// A row, and the class that it names.
struct Kind
{
    const KindRow* row;
    OdRxClass* cls;
};

/// The tables whose records come into a recording, in the order in which they do.
std::span<const KindRow> tableKinds();

/// Null for a kind that no recording has.
const Kind* findKind(std::string_view kind);

/// A color number, or the red, green and blue of a true color; nothing for the layer's color.
std::optional<OdCmColor> colorOf(Piece piece);
OdCmColor trueColorOf(const Group& group);

/// What all entities have: layer, color, line style and so on. Behind `read`, since it depends on how the object is
/// made where that stands.
void takeGeneral(const EntityReader& entity, Surroundings& around, DrawnObject& object);

bool isByLayer(std::string_view name);

/// In hundredths of a millimeter; below zero by layer, by block and the usual one.
bool isLineWeight(qint64 weight);
inline constexpr const char* kNoLineWeight = "its line weight, which there is not";
inline constexpr const char* kNoColor = "its color, which there is not";

} // namespace inkmacro::dxf
