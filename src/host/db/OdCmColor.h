#pragma once

#include <cstdint>

/// A color by layer, by block, by index (1 to 255) or by red, green and blue (0 to 255 each).
class OdCmColor
{
public:
    static OdCmColor byLayer() { return OdCmColor(Method::ByLayer, 256); }
    static OdCmColor byBlock() { return OdCmColor(Method::ByBlock, 0); }
    static OdCmColor byIndex(std::uint16_t index) { return OdCmColor(Method::ByIndex, index); }
    static OdCmColor byRgb(std::uint8_t red, std::uint8_t green, std::uint8_t blue)
    {
        OdCmColor color(Method::ByRgb, 0);
        color.red_ = red;
        color.green_ = green;
        color.blue_ = blue;
        return color;
    }
    OdCmColor() : OdCmColor(byLayer()) {}

    bool isByLayer() const { return method_ == Method::ByLayer; }
    bool isByBlock() const { return method_ == Method::ByBlock; }
    bool isByACI() const { return method_ == Method::ByIndex; }
    /// 256 for by layer, 0 for by block, else the index.
    std::uint16_t colorIndex() const { return index_; }
    std::uint8_t red() const { return red_; }
    std::uint8_t green() const { return green_; }
    std::uint8_t blue() const { return blue_; }
    bool operator==(const OdCmColor&) const = default;

private:
    enum class Method : std::uint8_t
    {
        ByLayer,
        ByBlock,
        ByIndex,
        ByRgb
    };
    OdCmColor(Method method, std::uint16_t index) : method_(method), index_(index) {}

    Method method_;
    std::uint8_t red_ = 0;
    std::uint8_t green_ = 0;
    std::uint8_t blue_ = 0;
    std::uint16_t index_;
};

/// Transparency of an entity. Alpha runs from 0 (clear) to 255 (solid) and counts for ByAlpha only.
struct OdCmTransparency
{
    enum Method : std::uint8_t
    {
        ByLayer = 0,
        ByBlock = 1,
        ByAlpha = 2
    };
    std::uint8_t method = ByLayer;
    std::uint8_t alpha = 0;
    bool operator==(const OdCmTransparency&) const = default;
};
