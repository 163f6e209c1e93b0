#pragma once

#include "host/kernel/CFxServices.h"
#include "host/kernel/CFxUserIO.h"

/// What a command runs in. Owns nothing.
class CFxCommandContext
{
public:
    /// `io` is null where nobody can be asked.
    CFxCommandContext(OdDbDatabase& database, CFxUserIO* io) : database_(database), io_(io) {}

    OdDbDatabase& GetDatabase() const { return database_; }
    CFxUserIO* GetUserIO() const { return io_; }

private:
    OdDbDatabase& database_;
    CFxUserIO* io_;
};

/// Null where nobody can be asked.
inline CFxUserIO* GetFxUserIO(const CFxCommandContext* context)
{
    return context->GetUserIO();
}

/// The block that is drawn into. Of a drawing that does not tell it is model space, which comes into the drawing with
/// its first entity.
INKHOST_EXPORT OdDbBlockTableRecordPtr GetActiveBlockTableRecord(CFxCommandContext* context);

/// A command of the drawing SDK's command stack.
class INKHOST_EXPORT OdEdCommand : public OdRxObject
{
public:
    static OdRxClass* desc();
    OdRxClass* isA() const override { return desc(); }

    /// The name in every language, behind an underscore.
    virtual OdString globalName() const = 0;
    /// The name in the user's language.
    virtual OdString localName() const = 0;
};

/// A command of the host. Lives as long as its module, so it can keep what the user chose last.
class INKHOST_EXPORT CFxCommand : public OdEdCommand
{
public:
    static OdRxClass* desc();
    OdRxClass* isA() const override { return desc(); }

    /// Gives a CFxStatus. May raise OdError.
    virtual std::int32_t Execute(CFxCommandContext* context) = 0;
};

using CFxCommandPtr = OdSmartPtr<CFxCommand>;

/// The commands that the loaded modules have registered.
class INKHOST_EXPORT CFxCommandStack
{
public:
    void AddCommand(const CFxCommandPtr& command) { commands_.push_back(command); }
    void RemoveCommand(const CFxCommandPtr& command) { std::erase(commands_, command); }
    /// By global or local name, with or without its underscore and whatever its case; null when there is none.
    CFxCommandPtr LookupCommand(const CFxString& name) const;
    const std::vector<CFxCommandPtr>& GetCommands() const { return commands_; }

private:
    std::vector<CFxCommandPtr> commands_;
};

/// The one command stack of the process.
INKHOST_EXPORT CFxCommandStack* GetFxCommandStack();
