#include "app/changeForms.h"

#include "app/LoadedModule.h"

namespace inkmacro {

namespace {

dxf::ChangeForm formOf(const CFxKnownTag& tag)
{
    dxf::ChangeForm form{tag.numbered, tag.takes(CFxVariant::kString), tag.takes(CFxVariant::kCollectionElement),
                         tag.takes(CFxVariant::kId)};
    for (const CFxString& word : tag.words)
        form.words.append(word);
    form.firstWord = tag.firstWord;
    return form;
}

} // namespace

dxf::ChangeForms changeForms()
{
    struct OfClass
    {
        std::unordered_map<QString, dxf::ChangeForm> byTag;
        std::unordered_map<QString, dxf::ChangeForm> byGroup;
    };
    auto classes = std::make_shared<std::unordered_map<QString, OfClass>>();
    for (const CFxKnownClass& cls : LoadedModule()->ListClasses()) {
        OfClass& forms = (*classes)[cls.name];
        for (const CFxKnownTag& tag : cls.changed)
            tag.group.isEmpty() ? forms.byTag.emplace(tag.tag, formOf(tag))
                                : forms.byGroup.emplace(tag.group, formOf(tag));
    }
    return [classes](const OdRxClass* cls, const QString& tag, const char* group) -> const dxf::ChangeForm* {
        const auto forms = classes->find(cls->name());
        if (forms == classes->end())
            return nullptr;
        const auto& all = *group ? forms->second.byGroup : forms->second.byTag;
        const auto found = all.find(*group ? QString(group) : tag);
        return found == all.end() ? nullptr : &found->second;
    };
}

} // namespace inkmacro
