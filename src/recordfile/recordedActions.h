#pragma once

#include "host/kernel/CFxActions.h"

namespace inkmacro::recordfile {

// The actions of a recording that was read from a file. Property records are by far the most of what it holds, so
// they are kept small.

/// Tag and group of property records: one for all records that have both in common. Held by its number in the process,
/// which takes half the place of a pointer; the texts go with the last that holds it.
class PropertyLabel
{
public:
    PropertyLabel(const CFxString& tag, const CFxString& group);
    PropertyLabel(const PropertyLabel& other) : number_(other.number_) { ++entry().references; }
    PropertyLabel& operator=(const PropertyLabel&) = delete;
    ~PropertyLabel()
    {
        if (--entry().references == 0)
            free();
    }

    /// Both live as long as the label.
    const CFxString& tag() const { return entry().tag; }
    const CFxString& group() const { return entry().group; }

private:
    struct Entry
    {
        CFxString tag;
        CFxString group;
        unsigned references = 1;
    };
    Entry& entry() const { return *entries[number_]; }
    void free();

    static std::vector<Entry*>& entries;
    static std::vector<std::uint32_t>& freed;

    std::uint32_t number_;
};

/// A record as it stands in the list of an object.
class RecordedProperty : public CFxPropertyChanged
{
public:
    RecordedProperty(const PropertyLabel& label, CFxVariant&& value) : label_(label), value_(std::move(value)) {}

    const CFxString& GetName() const override { return label_.tag(); }
    const CFxString& GetGroup() const override { return label_.group(); }
    CFxVariant GetValue(CFxValueContext) const override { return value_; }
    CFxVariant GetOldValue(CFxValueContext) const override { return CFxVariant::kNull; }
    OdRxClass* GetObjectClass() const override { return nullptr; }
    OdDbHandle GetHandle() const override { return {}; }
    CFxVariant GetIndex(CFxValueContext) const override { return CFxVariant::kNull; }

private:
    PropertyLabel label_; // stands in the padding of the base
    CFxVariant value_;
};

static_assert(sizeof(RecordedProperty) <= 32, "there are millions of these");

/// What only few records have.
struct PropertyDetails
{
    CFxVariant index;
    CFxVariant old;
    OdRxClass* cls = nullptr;
    OdDbHandle handle;
};

class RecordedPropertyWithDetails final : public RecordedProperty
{
public:
    RecordedPropertyWithDetails(const PropertyLabel& label, CFxVariant&& value, PropertyDetails details)
        : RecordedProperty(label, std::move(value)), details_(std::move(details))
    {
    }
    CFxVariant GetOldValue(CFxValueContext) const override { return details_.old; }
    OdRxClass* GetObjectClass() const override { return details_.cls; }
    OdDbHandle GetHandle() const override { return details_.handle; }
    CFxVariant GetIndex(CFxValueContext) const override { return details_.index; }

private:
    PropertyDetails details_;
};

class RecordedCommand final : public CFxUserCommand
{
public:
    RecordedCommand(const CFxString& name, CFxActionArray actions)
        : command_(odrxNew<OdResBuf>(OdResBuf::kRtString, name.toQString())), actions_(std::move(actions))
    {
    }
    OdResBufPtr GetCommand() const override { return command_; }
    const CFxActionArray& GetActions() const override { return actions_; }

private:
    OdResBufPtr command_;
    CFxActionArray actions_;
};

/// What added and modified objects have in common.
template<class Action>
class RecordedObject : public Action
{
public:
    RecordedObject(OdRxClass* cls, OdDbHandle handle, PropertyList properties)
        : class_(cls), handle_(handle), properties_(std::move(properties))
    {
    }
    OdRxClass* GetObjectClass() const override { return class_; }
    PropertyList GetProperties() const override { return properties_; }
    OdDbHandle GetHandle() const override { return handle_; }

private:
    OdRxClass* class_;
    OdDbHandle handle_;
    PropertyList properties_;
};

class RecordedAdded final : public RecordedObject<CFxObjectAdded>
{
public:
    using RecordedObject::RecordedObject;
    PropertyList GetExtraProperties() const override { return GetProperties(); }
};

class RecordedAddedWithExtra final : public RecordedObject<CFxObjectAdded>
{
public:
    RecordedAddedWithExtra(OdRxClass* cls, OdDbHandle handle, PropertyList properties, PropertyList extra)
        : RecordedObject(cls, handle, std::move(properties)), extra_(std::move(extra))
    {
    }
    PropertyList GetExtraProperties() const override { return extra_; }

private:
    PropertyList extra_;
};

using RecordedModified = RecordedObject<CFxObjectModified>;

class RecordedSysVar final : public CFxSysVarChanged
{
public:
    RecordedSysVar(const CFxString& name, OdResBufPtr value) : name_(name), value_(std::move(value)) {}
    const CFxString& GetName() const override { return name_; }
    OdResBufPtr GetValue() const override { return value_; }

private:
    CFxString name_;
    OdResBufPtr value_;
};

class RecordedInteraction final : public CFxUserInteraction
{
public:
    RecordedInteraction(std::int32_t kind, const CFxString& prompt, OdResBufPtr result, std::vector<CFxString> local,
                        std::vector<CFxString> global)
        : kind_(kind), prompt_(prompt), result_(std::move(result)), local_(std::move(local)), global_(std::move(global))
    {
    }
    std::int32_t GetInteractionKind() const override { return kind_; }
    OdResBufPtr GetResult() const override { return result_; }
    void GetKeywords(std::vector<CFxString>& local, std::vector<CFxString>& global) const override
    {
        local = local_;
        global = global_;
    }
    CFxString GetPrompt() const override { return prompt_; }

private:
    std::int32_t kind_;
    CFxString prompt_;
    OdResBufPtr result_;
    std::vector<CFxString> local_;
    std::vector<CFxString> global_;
};

class RecordedSelection final : public CFxUserSelection
{
public:
    RecordedSelection(std::vector<OdDbHandle> handles, std::vector<const OdRxClass*> classes)
        : handles_(std::move(handles)), classes_(std::move(classes))
    {
    }
    const std::vector<OdDbHandle>& GetHandles() const override { return handles_; }
    const std::vector<const OdRxClass*>& GetClasses() const override { return classes_; }

private:
    std::vector<OdDbHandle> handles_;
    std::vector<const OdRxClass*> classes_;
};

class RecordedCustomAction final : public CFxCustomAction
{
public:
    RecordedCustomAction(std::int32_t kind, std::vector<CFxCustomActionData> data) : kind_(kind), data_(std::move(data))
    {
    }
    std::int32_t GetKind() const override { return kind_; }
    std::int32_t GetDataCount() const override { return static_cast<std::int32_t>(data_.size()); }
    const CFxCustomActionData& GetData(std::int32_t index) const override
    {
        if (index < 0 || index >= GetDataCount())
            throw OdError_InvalidIndex();
        return data_[static_cast<std::size_t>(index)];
    }

private:
    std::int32_t kind_;
    std::vector<CFxCustomActionData> data_;
};

} // namespace inkmacro::recordfile
