#pragma once

#include <QJsonArray>
#include <QJsonObject>

namespace inkmacro::recordfile {

/// The named parts of the schema. Naming them also ends the recursion of forms that contain themselves.
class SchemaDefinitions
{
public:
    using Make = QJsonObject (*)(SchemaDefinitions&);

    /// Refers to the part of that name; `make` is asked for it once.
    QJsonObject reference(const QString& name, Make make);
    const QJsonObject& all() const { return all_; }

private:
    QJsonObject all_;
};

/// Schema of an object that has no other keys than those which are added.
class ObjectSchema
{
public:
    void add(const QString& key, const QString& meaning, QJsonObject schema, bool required);
    QJsonObject json() const;
    /// Of an object with exactly one of the keys.
    QJsonObject withOneKey() const;

private:
    QJsonObject properties_;
    QJsonArray required_;
};

QJsonObject typeSchema(const char* type);
QJsonObject enumSchema(const QJsonArray& values);
QJsonObject listSchema(const QJsonObject& items);
QJsonObject listSchema(const QJsonObject& items, int least, int most);
QJsonObject anyOfSchema(const QJsonArray& schemas);

} // namespace inkmacro::recordfile
