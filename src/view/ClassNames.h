#pragma once

#include <QHash>
#include <QJsonArray>
#include <QString>

#include <cstdint>

namespace inkmacro::view {

/// The name of a class of drawing objects in words, such as `Aligned dimension`.
QString classWords(const QString& className);

/// The classes that a page speaks of, by their numbers.
class ClassNames
{
public:
    static constexpr std::uint16_t kNone = 0xFFFF;

    std::uint16_t numberOf(const QString& className);
    /// Name and words of each, in the order of the numbers.
    QJsonArray list() const;

private:
    QHash<QString, std::uint16_t> numbers_;
    QStringList names_;
};

} // namespace inkmacro::view
