#pragma once

#include "host/db/OdDbDatabase.h"
#include "view/Picture.h"

namespace inkmacro::view {

/// Model space, the sheets and the definitions of blocks, by their names and handles.
class Spaces
{
public:
    static constexpr std::uint16_t model = 0;

    /// Adds those of the drawing to the picture, which has to outlive this.
    Spaces(Picture& picture, OdDbDatabase& database);

    /// The sheet of that name, or model space; made when it is new.
    std::uint16_t sheet(const QString& name);
    void renameSheet(const QString& from, const QString& to);
    std::uint16_t addBlock(const OdDbHandle& handle, const QString& name);

    std::optional<std::uint16_t> block(const QString& name) const;
    std::optional<std::uint16_t> block(const OdDbHandle& handle) const;
    /// Where the drawing has the entity; none when it does not tell.
    std::optional<std::uint16_t> holder(const OdDbHandle& entity) const;

private:
    std::uint16_t add(Space::Kind kind, const QString& name, const OdDbHandle& block);
    std::uint16_t layoutOf(const OdDbBlockTableRecord& block, OdDbDatabase& database);

    Picture& picture_;
    QHash<QString, std::uint16_t> sheets_; ///< by names in small letters, as the next ones
    QHash<QString, std::uint16_t> blocks_;
    std::unordered_map<OdDbHandle, std::uint16_t, OdDbHandleHash> blocksByHandle_;
    std::unordered_map<OdDbHandle, std::uint16_t, OdDbHandleHash> holders_;
};

} // namespace inkmacro::view
