#pragma once

#include "host/db/OdDbClassMap.h"
#include "module/CFxConverterIWAPI.h"

#include <QFile>
#include <QTemporaryDir>

/// A property record that a test makes by hand.
class TestProperty final : public CFxPropertyChanged
{
public:
    TestProperty(const CFxString& tag, const CFxVariant& value, const CFxString& group = {},
                 const CFxVariant& index = {})
        : tag(tag), group(group), value(value), index(index)
    {
    }
    const CFxString& GetName() const override { return tag; }
    const CFxString& GetGroup() const override { return group; }
    CFxVariant GetValue(CFxValueContext) const override { return value; }
    CFxVariant GetOldValue(CFxValueContext) const override { return {}; }
    OdRxClass* GetObjectClass() const override { return cls; }
    OdDbHandle GetHandle() const override { return {}; }
    CFxVariant GetIndex(CFxValueContext) const override { return index; }

    CFxString tag;
    CFxString group;
    CFxVariant value;
    CFxVariant index;
    OdRxClass* cls = nullptr;
};

class TestAdded final : public CFxObjectAdded
{
public:
    TestAdded(const char* cls, std::uint64_t handle, PropertyList read = {}, PropertyList rest = {})
        : cls(oddbClassByName(cls)), handle(handle), read(std::move(read)), rest(std::move(rest))
    {
    }
    OdRxClass* GetObjectClass() const override { return cls; }
    PropertyList GetProperties() const override { return read; }
    PropertyList GetExtraProperties() const override { return rest; }
    OdDbHandle GetHandle() const override { return handle; }

    OdRxClass* cls;
    OdDbHandle handle;
    PropertyList read;
    PropertyList rest;
};

class TestModified final : public CFxObjectModified
{
public:
    TestModified(const char* cls, std::uint64_t handle, PropertyList list = {})
        : cls(oddbClassByName(cls)), handle(handle), list(std::move(list))
    {
    }
    OdRxClass* GetObjectClass() const override { return cls; }
    PropertyList GetProperties() const override { return list; }
    OdDbHandle GetHandle() const override { return handle; }

    OdRxClass* cls;
    OdDbHandle handle;
    PropertyList list;
};

class TestCommand final : public CFxUserCommand
{
public:
    explicit TestCommand(CFxActionArray actions) : actions(std::move(actions)) {}
    OdResBufPtr GetCommand() const override { return odrxNew<OdResBuf>(OdResBuf::kRtString, OdString("TEST")); }
    const CFxActionArray& GetActions() const override { return actions; }

    CFxActionArray actions;
};

using TestData = std::vector<CFxCustomActionData::Value>;

class TestCustom final : public CFxCustomAction
{
public:
    explicit TestCustom(std::int32_t kind, const TestData& values = {}) : kind(kind), data(values.begin(), values.end())
    {
    }
    std::int32_t GetKind() const override { return kind; }
    std::int32_t GetDataCount() const override { return static_cast<std::int32_t>(data.size()); }
    const CFxCustomActionData& GetData(std::int32_t index) const override
    {
        if (index < 0 || index >= GetDataCount())
            throw OdError_InvalidIndex();
        return data[static_cast<std::size_t>(index)];
    }

    std::int32_t kind;
    std::vector<CFxCustomActionData> data;
};

class TestSelection final : public CFxUserSelection
{
public:
    TestSelection(std::vector<OdDbHandle> handles, std::vector<const OdRxClass*> classes)
        : handles(std::move(handles)), classes(std::move(classes))
    {
    }
    const std::vector<OdDbHandle>& GetHandles() const override { return handles; }
    const std::vector<const OdRxClass*>& GetClasses() const override { return classes; }

    std::vector<OdDbHandle> handles;
    std::vector<const OdRxClass*> classes;
};

class TestSysVar final : public CFxSysVarChanged
{
public:
    explicit TestSysVar(const char* name) : name(name) {}
    const CFxString& GetName() const override { return name; }
    OdResBufPtr GetValue() const override { return nullptr; }

    CFxString name;
};

inline OdSmartPtr<TestAdded> addedLine(std::uint64_t handle)
{
    return odrxNew<TestAdded>("AcDbLine", handle);
}

inline OdSmartPtr<TestCommand> command(CFxActionArray actions)
{
    return odrxNew<TestCommand>(std::move(actions));
}

/// A conversion to C# in a folder of its own.
struct TestConversion
{
    std::int32_t run(const CFxActionArray& actions, std::uint32_t mode = 0, std::uint32_t language = 1)
    {
        return CreateConverter(language, mode, 0)->Convert(path(), actions);
    }
    QString path() const { return folder.filePath("made/plate.cs"); }
    QByteArray macro() const
    {
        QFile file(path());
        return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray();
    }
    /// What stands between head and tail of a macro that begins in model space.
    QString body() const
    {
        const QByteArray bytes = macro();
        const QString text = QString::fromUtf8(bytes.constData(), bytes.size());
        const QString lastOfHead = "            if (null == iwViewManager)\n            {\n                return;\n"
                                   "            }\n\n";
        const int from = text.indexOf(lastOfHead) + lastOfHead.length();
        const QString tail = "        }\n    }\n}\n";
        return text.endsWith(tail) ? text.mid(from, text.length() - tail.length() - from) : "(no tail) " + text;
    }

    QTemporaryDir folder;
};
