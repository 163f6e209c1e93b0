#pragma once

#include "dxf/DrawnObject.h"
#include "recordfile/plainForms.h"

namespace inkmacro::dxf {

/// Puts the line of one object of the drawing behind the others.
class DrawingLine
{
public:
    DrawingLine(QByteArray& lines, const char* className, OdDbHandle handle) : lines_(lines)
    {
        out_.beginObject();
        out_.key(std::string_view("object"));
        out_.beginObject();
        out_.key(std::string_view("class"));
        out_.text(std::string_view(className));
        with("handle", handle);
    }
    ~DrawingLine()
    {
        out_.endObject();
        out_.endObject();
        out_.endLine();
        lines_ += out_.bytes();
    }
    DrawingLine(const DrawingLine&) = delete;
    DrawingLine& operator=(const DrawingLine&) = delete;

    /// Throws Lost for a number that sums have taken beyond all bounds.
    template<class Value>
    DrawingLine& with(std::string_view key, const Value& value)
    {
        out_.key(key);
        recordfile::Form<Value>::write(out_, value);
        if (out_.refused())
            throw Lost{kNotFinite};
        return *this;
    }

    /// An object of one key.
    template<class Value>
    DrawingLine& with(std::string_view key, std::string_view inner, const Value& value)
    {
        out_.key(key);
        out_.beginObject();
        with(inner, value);
        out_.endObject();
        return *this;
    }

private:
    QByteArray& lines_;
    recordfile::JsonOut out_{CFxValueContext{}};
};

} // namespace inkmacro::dxf
