#pragma once

#include "host/db/OdCmColor.h"
#include "host/db/OdDbObject.h"
#include "host/db/OdGe.h"
#include "recordfile/Form.h"

namespace inkmacro::recordfile {

// The forms that hold no other forms: numbers, texts, points, colors and references.

qint64 readInteger(const Json& json, qint64 least, qint64 most);
QJsonObject integerSchema(qint64 least, qint64 most);

template<class T, T least = std::numeric_limits<T>::min(), T most = std::numeric_limits<T>::max()>
struct IntegerForm
{
    static T read(const Json& json) { return static_cast<T>(readInteger(json, least, most)); }
    static void write(JsonOut& out, T value)
    {
        if (value < least || value > most)
            out.refuse();
        out.integer(value);
    }
    static QJsonObject schema(SchemaDefinitions&) { return integerSchema(least, most); }
};

template<class T>
requires std::is_integral_v<T>
struct Form<T> : IntegerForm<T>
{
};

template<>
struct Form<bool>
{
    static bool read(const Json& json);
    static void write(JsonOut& out, bool value) { out.boolean(value); }
    static QJsonObject schema(SchemaDefinitions&) { return typeSchema("boolean"); }
};

template<>
struct Form<double>
{
    static double read(const Json& json);
    static void write(JsonOut& out, double value) { out.number(value); }
    static QJsonObject schema(SchemaDefinitions&) { return typeSchema("number"); }
};

template<>
struct Form<QString>
{
    static QString read(const Json& json) { return toText(json.text()); }
    static void write(JsonOut& out, const QString& value) { out.text(value); }
    static QJsonObject schema(SchemaDefinitions&) { return typeSchema("string"); }
};

template<>
struct Form<CFxString>
{
    static CFxString read(const Json& json) { return Form<QString>::read(json); }
    static void write(JsonOut& out, const CFxString& value) { out.text(value.toQString()); }
    static QJsonObject schema(SchemaDefinitions& definitions) { return Form<QString>::schema(definitions); }
};

/// A text of the pool.
template<>
struct Form<const CFxString*>
{
    static const CFxString* read(const Json& json);
    static void write(JsonOut& out, const CFxString* value) { out.text(value->toQString()); }
    static QJsonObject schema(SchemaDefinitions& definitions) { return Form<QString>::schema(definitions); }
};

template<>
struct Form<OdDbHandle>
{
    static OdDbHandle read(const Json& json);
    static void write(JsonOut& out, const OdDbHandle& value);
    static QJsonObject schema(SchemaDefinitions& definitions);
};

template<>
struct Form<OdDbObjectId>
{
    static OdDbObjectId read(const Json& json);
    static void write(JsonOut& out, const OdDbObjectId& value) { Form<OdDbHandle>::write(out, value.getHandle()); }
    static QJsonObject schema(SchemaDefinitions& definitions) { return Form<OdDbHandle>::schema(definitions); }
};

template<>
struct Form<const OdRxClass*>
{
    static OdRxClass* read(const Json& json);
    static void write(JsonOut& out, const OdRxClass* value);
    static QJsonObject schema(SchemaDefinitions& definitions);
};

template<>
struct Form<OdRxClass*> : Form<const OdRxClass*>
{
};

void readCoordinates(const Json& json, std::span<double> coordinates, const char* expected);

/// Form of a value that is a list of its coordinates.
template<class T, const char* const& expected, double T::*... coordinates>
struct CoordinatesForm
{
    static T read(const Json& json)
    {
        double read[sizeof...(coordinates)];
        readCoordinates(json, read, expected);
        T value;
        std::size_t next = 0;
        ((value.*coordinates = read[next++]), ...);
        return value;
    }
    static void write(JsonOut& out, const T& value)
    {
        out.beginArray();
        (out.number(value.*coordinates), ...);
        out.endArray();
    }
    static QJsonObject schema(SchemaDefinitions&)
    {
        constexpr int count = sizeof...(coordinates);
        return listSchema(typeSchema("number"), count, count);
    }
};

inline constexpr const char* kPoint2d = "a point [x, y]";
inline constexpr const char* kPoint3d = "a point [x, y, z]";
inline constexpr const char* kVector3d = "a vector [x, y, z]";

template<>
struct Form<OdGePoint2d> : CoordinatesForm<OdGePoint2d, kPoint2d, &OdGePoint2d::x, &OdGePoint2d::y>
{
};
template<>
struct Form<OdGePoint3d> : CoordinatesForm<OdGePoint3d, kPoint3d, &OdGePoint3d::x, &OdGePoint3d::y, &OdGePoint3d::z>
{
};
template<>
struct Form<OdGeVector3d>
    : CoordinatesForm<OdGeVector3d, kVector3d, &OdGeVector3d::x, &OdGeVector3d::y, &OdGeVector3d::z>
{
};

inline constexpr const char* kScale3d = "scale factors [x, y, z]";
template<>
struct Form<OdGeScale3d> : CoordinatesForm<OdGeScale3d, kScale3d, &OdGeScale3d::sx, &OdGeScale3d::sy, &OdGeScale3d::sz>
{
};

template<>
struct Form<OdCmColor>
{
    static OdCmColor read(const Json& json);
    static void write(JsonOut& out, const OdCmColor& value);
    static QJsonObject schema(SchemaDefinitions& definitions);
};

template<>
struct Form<OdCmTransparency> : ObjectForm<Form<OdCmTransparency>, OdCmTransparency>
{
    static constexpr const char* name = "transparency";
    using Method = IntegerForm<std::uint8_t, OdCmTransparency::ByLayer, OdCmTransparency::ByAlpha>;
    static constexpr std::array keys{
        required<&OdCmTransparency::method, Method>("method", "0 by layer, 1 by block, 2 by alpha"),
        required<&OdCmTransparency::alpha>("alpha", "from 0, clear, to 255, solid"),
    };
};

} // namespace inkmacro::recordfile
