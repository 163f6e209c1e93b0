#pragma once

#include "dxf/DrawnObject.h"
#include "recordfile/TextPool.h"

#include <deque>
#include <unordered_map>

namespace inkmacro::dxf {

/// Makes the actions of a recording.
class Recorder
{
public:
    /// What makes the object, with all that is set behind it.
    void draw(const DrawnObject& object);
    /// The object has these values now. Nothing for none.
    void change(OdRxClass* cls, OdDbHandle handle, const std::vector<Property>& properties);
    void add(OdRxClass* cls, OdDbHandle handle, const std::vector<Property>& properties);
    void act(std::int32_t kind, std::vector<CFxCustomActionData> data);

    bool isEmpty() const { return ready_.empty(); }
    OdRxObjectPtr take();

private:
    OdRxObjectPtr added(OdRxClass* cls, OdDbHandle handle, const std::vector<Property>& properties);
    PropertyList listOf(const std::vector<Property>& properties);
    CFxPropertyChangedPtr recordOf(const Property& property);
    const recordfile::PropertyLabel& labelOf(const Property& property);
    const CFxString* pooled(const QString& text);

    std::deque<OdRxObjectPtr> ready_;
    recordfile::TextPool texts_;
    /// The last record of a tag, which is that of the next object too when it has the same value, as its layer often
    /// is; but not twice in one list, of which readers strike records one by one.
    struct Recent
    {
        const recordfile::PropertyLabel* label = nullptr;
        CFxPropertyChangedPtr record;
        std::uint64_t list = 0;
    };
    std::unordered_map<const char*, Recent> recent_; ///< of tags without a group
    std::uint64_t lists_ = 0;
};

} // namespace inkmacro::dxf
