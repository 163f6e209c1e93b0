#pragma once

#include "view/Values.h"

#include "host/db/OdDbClassMap.h"

#include <map>

/// An object of which a test says the values.
class SaidValues final : public inkmacro::view::Values
{
public:
    explicit SaidValues(const QString& className) : className_(className) {}

    SaidValues& say(const QString& tag, const CFxVariant& value, int index = -1)
    {
        said_.push_back({tag, index, value});
        return *this;
    }
    SaidValues& say(const QString& tag, const char* text) { return say(tag, CFxVariant(CFxString(text))); }
    SaidValues& say(const QString& tag, inkmacro::view::Point point)
    {
        return say(tag, CFxVariant(OdGePoint3d{point.x, point.y, 0.0}));
    }
    SaidValues& sayPoints(const QString& tag, const std::vector<inkmacro::view::Point>& points)
    {
        std::vector<CFxVariantCollectionElement> elements;
        for (const inkmacro::view::Point& point : points)
            elements.emplace_back(CFxVariant(), CFxVariant(OdGePoint3d{point.x, point.y, 0.0}));
        return say(tag, CFxVariantCollection(std::move(elements)));
    }

    /// Tells the drawing's object the data of that key.
    template<class Value>
    SaidValues& draw(const char* key, const Value& value)
    {
        const OdDbClassRow& row = *oddbFindClassRow(className_);
        if (!drawn_)
            drawn_ = row.create(oddbClassByName(className_));
        for (const OdDbField* field : oddbAllFields(row))
            if (QLatin1String(field->key) == QLatin1String(key))
                (*drawn_).*std::get<Value OdDbObject::*>(field->member) = value;
        return *this;
    }

    const OdDbObjectPtr& drawnObject() const { return drawn_; }

    void move(const inkmacro::view::Affine& by) { moved_ = by; }
    void know(std::uint64_t handle, const Values& other) { others_[OdDbHandle(handle)] = &other; }
    void know(const QString& name, const Values& record) { records_[name] = &record; }

    const QString& className() const override { return className_; }
    const OdDbObject* drawn() const override { return drawn_.get(); }
    const CFxVariant* find(const QString& tag, int index) const override
    {
        for (const Said& one : said_)
            if (isSame(one.tag, tag) && (index < 0 || one.index == index))
                return &one.value;
        return nullptr;
    }
    int count(const QString& tag) const override
    {
        int count = 0;
        visit(tag, [&count](int, const CFxVariant&) { ++count; });
        return count;
    }
    const inkmacro::view::Affine& moved() const override { return moved_; }
    void visit(const QString& tag, const Visit& visit) const override
    {
        for (const Said& one : said_)
            if (isSame(one.tag, tag))
                visit(one.index, one.value);
    }
    const Values* other(const OdDbHandle& handle) const override
    {
        const auto found = others_.find(handle);
        return found == others_.end() ? nullptr : found->second;
    }
    const Values* named(const QString&, const QString& name) const override
    {
        const auto found = records_.find(name);
        return found == records_.end() ? nullptr : found->second;
    }
    std::optional<std::uint16_t> spaceOf(const QString&) const override { return std::nullopt; }
    std::optional<std::uint16_t> spaceOf(const OdDbHandle&) const override { return std::nullopt; }

private:
    /// Coordinates are asked for in small letters and said in either.
    static bool isSame(const QString& one, const QString& other)
    {
        const bool isCoordinate = other.size() > 1 && other[other.size() - 2] == ' ';
        return one == other || (isCoordinate && one.compare(other, Qt::CaseInsensitive) == 0);
    }

    struct Said
    {
        QString tag;
        int index;
        CFxVariant value;
    };
    QString className_;
    std::vector<Said> said_;
    OdDbObjectPtr drawn_;
    inkmacro::view::Affine moved_;
    std::map<OdDbHandle, const Values*> others_;
    std::map<QString, const Values*> records_;
};
