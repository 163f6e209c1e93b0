#pragma once

#include "view/Objects.h"

namespace inkmacro::view {

/// The layers by their handles and names, and whether what is on them is seen.
class Layers
{
public:
    /// The picture, which gets those of the drawing, and the drawing have to outlive this.
    Layers(Picture& picture, OdDbDatabase& database);

    /// The layer with that handle, made when it is new.
    std::uint16_t at(const OdDbHandle& handle);
    std::uint16_t named(const QString& name);
    /// A record is as told from that step on.
    void change(const ObjectState& record, StepNumber step);

    std::uint16_t current() const { return current_; }
    void setCurrent(std::uint16_t layer) { current_ = layer; }

private:
    struct Switches
    {
        bool isFrozen = false;
        bool isHidden = false;
        bool isOff = false;
        bool isVisible() const { return !isFrozen && !isHidden && !isOff; }
    };

    std::uint16_t add(const OdDbHandle& handle, const QString& name);

    Picture& picture_;
    OdDbDatabase& database_;
    std::unordered_map<OdDbHandle, std::uint16_t, OdDbHandleHash> byHandle_;
    QHash<QString, std::uint16_t> byName_; ///< in small letters
    std::vector<Switches> switches_;
    std::uint16_t current_ = 0;
};

} // namespace inkmacro::view
