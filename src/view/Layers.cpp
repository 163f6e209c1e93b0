#include "view/Layers.h"

#include <limits>

namespace inkmacro::view {

Layers::Layers(Picture& picture, OdDbDatabase& database) : picture_(picture), database_(database)
{
    add({}, "0");
    for (const OdDbObjectId& id : database.objectIds())
        if (odrxQuery<OdDbLayerTableRecord>(id.openObject(true).get()))
            at(id.getHandle());
}

std::uint16_t Layers::add(const OdDbHandle& handle, const QString& name)
{
    std::uint16_t layer = 0;
    const auto found = byName_.constFind(name.toLower());
    if (found != byName_.constEnd()) {
        layer = *found;
    } else if (picture_.layers.size() < std::numeric_limits<std::uint16_t>::max()) {
        layer = static_cast<std::uint16_t>(picture_.layers.size());
        Layer one;
        one.name = name;
        picture_.layers.push_back(one);
        switches_.emplace_back();
        byName_.insert(name.toLower(), layer);
    }
    if (!handle.isNull()) {
        byHandle_.emplace(handle, layer);
        picture_.layers[layer].handle = handle;
    }
    return layer;
}

std::uint16_t Layers::at(const OdDbHandle& handle)
{
    if (const auto found = byHandle_.find(handle); found != byHandle_.end())
        return found->second;
    const OdDbObjectPtr object = database_.findOdDbObjectId(handle).openObject(true);
    const auto record = odrxQuery<OdDbLayerTableRecord>(object.get());
    const QString name = record ? record->getName() : QString();
    const std::uint16_t layer = add(handle, name.isEmpty() ? "layer " + handle.ascii() : name);
    if (record && !record->color().isByLayer())
        picture_.layers[layer].color = record->color();
    return layer;
}

std::uint16_t Layers::named(const QString& name)
{
    return add({}, name);
}

void Layers::change(const ObjectState& record, StepNumber step)
{
    std::uint16_t layer = 0;
    const std::optional<QString> name = record.text("Name");
    if (const auto found = byHandle_.find(record.handle()); found != byHandle_.end()) {
        layer = found->second;
        if (name && picture_.layers[layer].name != *name && !byName_.contains(name->toLower())) {
            byName_.remove(picture_.layers[layer].name.toLower());
            byName_.insert(name->toLower(), layer);
            picture_.layers[layer].name = *name;
        }
    } else {
        layer = name ? add(record.handle(), *name) : at(record.handle());
    }
    if (const CFxVariant* const color = record.find("Color"); color && color->GetType() == CFxVariant::kColor)
        picture_.layers[layer].color = color->GetColor();
    if (record.isYes("ActivateLayer"))
        current_ = layer;
    Switches& switches = switches_[layer];
    const bool wasVisible = switches.isVisible();
    switches.isFrozen = record.isYes("Frozen");
    switches.isHidden = record.isYes("Hidden");
    switches.isOff = record.find("Show") && !record.isYes("Show");
    if (switches.isVisible() != wasVisible)
        picture_.layerSwitches.push_back({step, layer, switches.isVisible()});
}

} // namespace inkmacro::view
