#pragma once

#include "host/db/OdDbHandle.h"
#include "host/db/OdResBuf.h"
#include "host/kernel/CFxCustomActionData.h"
#include "host/kernel/CFxVariant.h"

/// The actions that a recording is made of. The host fills them while the user works; the module reads them, in order,
/// and keeps none beyond a conversion. Whoever is given an action by counted pointer owns one reference. What comes
/// back by reference lives as long as the action.
using CFxActionArray = OdArray<OdRxObjectPtr>;

/// Opaque value that the host hands through a conversion to the getters of property records.
using CFxValueContext = std::uint64_t;

/// One property of an object: an element of an added or modified object, or an action of its own.
class INKHOST_EXPORT CFxPropertyChanged : public OdRxObject
{
public:
    static OdRxClass* desc();
    OdRxClass* isA() const override { return desc(); }

    /// The tag, in the host's display language.
    virtual const CFxString& GetName() const = 0;
    virtual const CFxString& GetGroup() const = 0;
    virtual CFxVariant GetValue(CFxValueContext context) const = 0;
    /// The value that the property had before.
    virtual CFxVariant GetOldValue(CFxValueContext context) const = 0;
    /// Class of the object that the property belongs to; null within the list of an object.
    virtual OdRxClass* GetObjectClass() const = 0;
    virtual OdDbHandle GetHandle() const = 0;
    /// The number within a repeated property, else the null value.
    virtual CFxVariant GetIndex(CFxValueContext context) const = 0;
};

using CFxPropertyChangedPtr = OdSmartPtr<CFxPropertyChanged>;
/// Property records in recording order.
using PropertyList = std::vector<CFxPropertyChangedPtr>;

/// A command that the user started; its children are what the command did.
class INKHOST_EXPORT CFxUserCommand : public OdRxObject
{
public:
    static OdRxClass* desc();
    OdRxClass* isA() const override { return desc(); }

    /// The command line; the first element's string is the command's name.
    virtual OdResBufPtr GetCommand() const = 0;
    virtual const CFxActionArray& GetActions() const = 0;
};

/// An object that appeared in the drawing.
class INKHOST_EXPORT CFxObjectAdded : public OdRxObject
{
public:
    static OdRxClass* desc();
    OdRxClass* isA() const override { return desc(); }

    virtual OdRxClass* GetObjectClass() const = 0;
    /// The object's properties when it was added.
    virtual PropertyList GetProperties() const = 0;
    /// The same records once more: what the reader of the first takes is struck from these, and the rest are changes.
    virtual PropertyList GetExtraProperties() const = 0;
    virtual OdDbHandle GetHandle() const = 0;
};

/// A change of an object that was there before.
class INKHOST_EXPORT CFxObjectModified : public OdRxObject
{
public:
    static OdRxClass* desc();
    OdRxClass* isA() const override { return desc(); }

    virtual OdRxClass* GetObjectClass() const = 0;
    /// The properties that changed.
    virtual PropertyList GetProperties() const = 0;
    virtual OdDbHandle GetHandle() const = 0;
};

/// A system variable that got a value.
class INKHOST_EXPORT CFxSysVarChanged : public OdRxObject
{
public:
    static OdRxClass* desc();
    OdRxClass* isA() const override { return desc(); }

    virtual const CFxString& GetName() const = 0;
    virtual OdResBufPtr GetValue() const = 0;
};

/// The answer to one prompt of a running command.
class INKHOST_EXPORT CFxUserInteraction : public OdRxObject
{
public:
    enum Kind : std::int32_t
    {
        kPoint,
        kAngle,
        kDistance,
        kOrient,
        kCorner,
        kScale,
        kString,
        kKeyword,
        kColor,
        kInteger,
        kDouble,
    };

    static OdRxClass* desc();
    OdRxClass* isA() const override { return desc(); }

    /// A Kind, or a number that this system has no name for.
    virtual std::int32_t GetInteractionKind() const = 0;
    /// The answer; may be null.
    virtual OdResBufPtr GetResult() const = 0;
    virtual void GetKeywords(std::vector<CFxString>& local, std::vector<CFxString>& global) const = 0;
    /// The prompt as the host showed it, markup included.
    virtual CFxString GetPrompt() const = 0;
};

/// The objects that the user picked at a selection prompt.
class INKHOST_EXPORT CFxUserSelection : public OdRxObject
{
public:
    static OdRxClass* desc();
    OdRxClass* isA() const override { return desc(); }

    virtual const std::vector<OdDbHandle>& GetHandles() const = 0;
    /// Element by element the classes of the objects.
    virtual const std::vector<const OdRxClass*>& GetClasses() const = 0;
};

/// A command's effect as the host's own commands describe it for the recorder.
class INKHOST_EXPORT CFxCustomAction : public OdRxObject
{
public:
    static OdRxClass* desc();
    OdRxClass* isA() const override { return desc(); }

    virtual std::int32_t GetKind() const = 0;
    virtual std::int32_t GetDataCount() const = 0;
    /// Element from 0; an index beyond the count raises OdError_InvalidIndex.
    virtual const CFxCustomActionData& GetData(std::int32_t index) const = 0;
};
