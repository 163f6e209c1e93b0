#pragma once

#include <QByteArray>
#include <QString>

namespace inkmacro::view {

/// The bytes of a file of SVG, which are well-formed whatever is put in.
class SvgText
{
public:
    SvgText& raw(const char* markup)
    {
        bytes_ += markup;
        return *this;
    }
    SvgText& raw(const QByteArray& markup)
    {
        bytes_ += markup;
        return *this;
    }
    /// As character data or within the quotes of an attribute. What XML does not have is shown as a mark.
    SvgText& text(const QString& text);
    /// The shortest form that gives the number back, behind a blank where one is needed.
    SvgText& number(double value);

    const QByteArray& bytes() const { return bytes_; }
    bool isEmpty() const { return bytes_.isEmpty(); }

private:
    QByteArray bytes_;
};

} // namespace inkmacro::view
