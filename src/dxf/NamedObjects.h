#pragma once

#include "dxf/Drawing.h"
#include "host/db/OdDbDatabase.h"

#include <QHash> // texts as keys of standard tables

#include <unordered_map>

namespace inkmacro::dxf {

/// Whether what is called so stands in the drawing of an external reference: "plan|Walls".
bool isOfOtherFile(const QString& name);
inline constexpr const char* kOfOtherFile = "its block belongs to an external reference";

/// What the entities of a drawing refer to by name: a table's records, found whatever the case of their letters.
class NamedObjects
{
public:
    struct Named
    {
        QString name;
        quint64 handle;
        const Entity* record; ///< null for one that is used and stands in no table
    };

    /// `ids` gives the ids of the recording's drawing. Both have to outlive this.
    NamedObjects(Drawing& drawing, OdDbDatabase& ids, std::string_view table);

    /// In the order of the file.
    const std::vector<Named>& all() const { return all_; }
    /// Null for a name that there is not. The bytes are the file's.
    const Named* find(std::string_view bytes);
    const Named* find(const QString& name) const;
    /// By a handle of the file; null for one that no record has.
    const Named* findHandle(quint64 handle);
    /// The id of what the name stands for, as a value; null for none.
    CFxVariant id(std::string_view bytes);
    /// Takes one in that no table has, under a new handle.
    void addUnlisted(std::string_view bytes);
    /// What the recording calls the one that stands there among all, whatever the file says. Before its id is asked
    /// for.
    void rename(std::size_t index, QString name, quint64 handle)
    {
        all_[index].name = std::move(name);
        all_[index].handle = handle;
    }

private:
    struct Found
    {
        std::size_t index;
        CFxVariant id;
    };
    const Found* look(std::string_view bytes);
    void add(QString name, quint64 handle, const Entity* record);

    Drawing& drawing_;
    OdDbDatabase& ids_;
    std::vector<Named> all_;
    std::unordered_map<QString, std::size_t> byName_;   ///< in small letters
    std::unordered_map<quint64, std::size_t> byHandle_; ///< of those that have been looked through
    std::unordered_map<std::string_view, std::optional<Found>> byBytes_;
    std::pair<std::string_view, const Found*> last_{};
};

} // namespace inkmacro::dxf
