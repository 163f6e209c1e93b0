// The module object and the library's exports.

#include "actions/dataWords.h"
#include "actions/optionTable.h"
#include "commands/CFxCommandHyperlink.h"
#include "commands/CFxCommandLinetype.h"
#include "host/db/OdDbClassMap.h"
#include "module/CFxConverterIWAPI.h"
#include "module/Exports.h"
#include "objects/classTable.h"
#include "objects/knownTags.h"
#include "objects/losses.h"
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

std::vector<CFxActionForm> formsOf(std::int32_t kind)
{
    std::vector<CFxActionForm> forms;
    for (const inkmacro::DataWords& words : inkmacro::AllDataWords()) {
        if (words.kind != kind)
            continue;
        CFxActionForm& form = forms.emplace_back();
        form.repeated = words.repeated;
        for (const inkmacro::DatumWords& datum : words.data)
            form.data.push_back({datum.type, datum.meaning, QString(datum.value), datum.makes});
    }
    return forms;
}

std::vector<CFxActionKindName> actionKindList()
{
    std::vector<CFxActionKindName> list;
    for (const inkmacro::KindName& kind : inkmacro::actionKinds)
        for (std::int32_t number = kind.numbers.first; number <= kind.numbers.last; ++number)
            list.push_back({number, kind.name, formsOf(kind.numbers.first)});
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

std::vector<CFxString> toList(const std::vector<QString>& texts)
{
    return {texts.begin(), texts.end()};
}

CFxKnownTag knownTag(const AskedTag& asked)
{
    const ValueForm& form = asked.form;
    CFxKnownTag tag{.tag = asked.tag,
                    .group = asked.group,
                    .types = form.types,
                    .content = static_cast<CFxKnownTag::Content>(form.content),
                    .whenMissing = asked.whenMissing,
                    .numbered = asked.numbered,
                    .ofAllEntities = asked.general};
    if (form.byValue) {
        tag.content = CFxKnownTag::kNumberOfWord;
        tag.firstWord = form.byValue->firstValue;
        tag.bits = form.byValue->bits;
        tag.words.assign(form.byValue->suffixes.begin(), form.byValue->suffixes.end());
    } else if (std::vector<QString> words = WordsOf(form); !words.empty()) {
        tag.content = CFxKnownTag::kWord;
        tag.words = toList(words);
    } else if (tag.takes(CFxVariant::kPoint3d) || form.content == ValueForm::kPoints) {
        tag.unit = "drawing units";
    } else if (tag.takes(CFxVariant::kDouble) && form.content == ValueForm::kAnything) {
        tag.unit = UnitOf(asked.tag);
    }
    return tag;
}

std::vector<CFxKnownTag> knownTags(const std::vector<AskedTag>& asked)
{
    std::vector<CFxKnownTag> tags;
    std::ranges::transform(asked, std::back_inserter(tags), knownTag);
    return tags;
}

std::vector<CFxKnownClass> knownClasses()
{
    std::vector<CFxKnownClass> classes;
    for (const ClassRow& row : ClassTable()) {
        const OdRxClass* const cls = oddbClassByName(row.name);
        if (!IsSupportedClass(cls))
            continue;
        const KnownTags tags = TagsOf(row);
        const std::int32_t madeBy = KindThatMakes(cls);
        classes.push_back({.name = row.name,
                           .isMade = row.reader && madeBy < 0,
                           .emptyLoss = tags.emptyLoss,
                           .added = knownTags(tags.added),
                           .changed = knownTags(tags.changed),
                           .repeatedInAdded = toList(RepeatedTags(cls, true)),
                           .repeatedInChanged = toList(RepeatedTags(cls, false)),
                           .madeBy = madeBy,
                           .completedBy = KindThatCompletes(cls)});
    }
    return classes;
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
    std::vector<CFxKnownClass> ListClasses() const override { return knownClasses(); }
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
