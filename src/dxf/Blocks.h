#pragma once

#include "dxf/kinds.h"

namespace inkmacro::dxf {

/// The blocks of a drawing: how the recording calls them, and in which order they can be made.
class Blocks
{
public:
    /// A block that the recording makes.
    struct Made
    {
        const Block* block;
        Insertable insertable;
        quint64 handle; ///< of its record
        OdGePoint3d base;
        QString description;
        QString path;            ///< of the drawing that it shows; null when it is none of another file
        bool isInserted = false; ///< by some entity of the file
        bool isMade = false;

        /// One that dimensions, tables and the application itself have made: without an insertion of it, nobody misses
        /// it.
        bool isOfUse() const { return isInserted || !block->name.startsWith('*'); }
    };

    /// Entities of blocks that are not made.
    struct Left
    {
        std::span<const Entity> entities;
        const char* reason;
    };

    explicit Blocks(Drawing& drawing);

    /// Each behind all those that are inserted into it, but for those that hold themselves.
    const std::vector<Made*>& sorted() const { return sorted_; }
    const std::vector<Left>& left() const { return left_; }
    /// By a name of the file; null for none.
    Made* find(const QString& name) const;
    /// Throws Lost for one that the recording does not have by now.
    const Insertable& insertable(std::string_view name) const;

private:
    void name(Made& made);
    void describe(Made& made);
    Made* insertedBy(const Entity& entity);
    std::vector<Made*> insertedInto(const Made& made);
    void sort();

    Drawing& drawing_;
    std::vector<Made> all_;
    std::unordered_map<QString, Made*> byName_; ///< that the file has, in small letters
    std::unordered_set<QString> names_;         ///< that are given, in small letters
    std::vector<Made*> sorted_;
    std::vector<Left> left_;
};

} // namespace inkmacro::dxf
