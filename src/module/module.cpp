// The module object and the library's exports.

#include "actions/optionTable.h"
#include "commands/CFxCommandHyperlink.h"
#include "commands/CFxCommandLinetype.h"
#include "module/CFxConverterIWAPI.h"
#include "module/Exports.h"
#include "objects/snapshot.h"
#include "statements/Fault.h"
#include "statements/actionKinds.h"

#include <algorithm>
#include <array>
#include <tuple>

namespace {

std::vector<CFxKnownFault> knownFaults()
{
    std::vector<CFxKnownFault> known;
    for (const inkmacro::Fault* const fault : inkmacro::Fault::all()) {
        std::vector<std::uint32_t> languages;
        for (const inkmacro::Target target : fault->targets())
            languages.push_back(static_cast<std::uint32_t>(target));
        known.push_back({fault->operation(), std::move(languages), fault->reason(), fault->mended()});
    }
    std::sort(known.begin(), known.end(), [](const CFxKnownFault& one, const CFxKnownFault& other) {
        return std::tie(one.operation, one.languages, one.reason) <
               std::tie(other.operation, other.languages, other.reason);
    });
    return known;
}

std::vector<CFxActionKindName> actionKindList()
{
    std::vector<CFxActionKindName> list;
    for (const inkmacro::KindName& kind : inkmacro::actionKinds)
        for (std::int32_t number = kind.numbers.first; number <= kind.numbers.last; ++number)
            list.push_back({number, kind.name});
    return list;
}

std::vector<CFxKnownOption> optionList()
{
    using inkmacro::OptionOwner;
    std::vector<CFxKnownOption> list;
    for (const OptionOwner owner : {OptionOwner::Document, OptionOwner::Application})
        for (const inkmacro::OptionRow& row : inkmacro::OptionRows(owner))
            list.push_back({row.variable, owner == OptionOwner::Document, inkmacro::OptionTypeName(row.kind),
                            inkmacro::OptionEnumerator(owner, row), row.name == nullptr, row.readOnly});
    return list;
}

class MacroWriterModule final : public CFxConverterIWAPIModule
{
public:
    static OdRxClass* desc()
    {
        static OdRxClass* const descriptor = OdRxClass::define("CFxConverterIWAPIModule", OdRxModule::desc());
        return descriptor;
    }
    OdRxClass* isA() const override { return desc(); }

    void initApp() override
    {
        for (const CFxCommandPtr& command : commands_)
            GetFxCommandStack()->AddCommand(command);
    }
    void uninitApp() override
    {
        for (const CFxCommandPtr& command : commands_)
            GetFxCommandStack()->RemoveCommand(command);
    }

    std::int32_t ConvertRecording(const CFxString& path, std::uint32_t language, std::uint32_t mode,
                                  CFxValueContext context, const CFxActionArray& actions) override
    {
        const auto converter = CreateConverter(language, mode, context);
        return converter ? converter->Convert(path, actions) : kFxFailure;
    }

    void TakeSnapshot(const OdDbObject* object, std::vector<CFxSnapshotRecord>& target) override
    {
        ::TakeSnapshot(object, target);
    }

    std::vector<CFxKnownFault> ListFaults() const override { return knownFaults(); }
    std::vector<CFxActionKindName> ListActionKinds() const override { return actionKindList(); }
    std::vector<CFxKnownOption> ListOptions() const override { return optionList(); }

private:
    const std::array<CFxCommandPtr, 2> commands_{odrxNew<CFxCommandHyperlink>(), odrxNew<CFxCommandLinetype>()};
};

} // namespace

extern "C" {

Q_DECL_EXPORT OdRxModule* odrxCreateModuleObject(const char*)
{
    return new MacroWriterModule;
}

Q_DECL_EXPORT unsigned odrxGetAPIVersion()
{
    return odrxApiVersion;
}
}
