#include "app/pageSteps.h"

#include "app/ActionFilter.h"
#include "app/LoadedModule.h"
#include "view/Columns.h"

#include <QHash>
#include <QJsonArray>
#include <QRegularExpression>

#include <algorithm>
#include <map>

namespace inkmacro {

using Kind = view::Steps::Kind;

qint64 StepPlaces::lineOf(std::size_t step) const
{
    while (steps_[step].parent >= 0)
        step = static_cast<std::size_t>(steps_[step].parent);
    return lines_.at(steps_[step].child);
}

std::int32_t StepPlaces::stepAt(qint64 line, const QString& path) const
{
    const auto found = std::lower_bound(lines_.begin(), lines_.end(), line);
    if (found == lines_.end() || *found != line)
        return -1;
    CFxActionPlace place{static_cast<std::uint32_t>(found - lines_.begin())};
    static const QRegularExpression number("\\[(\\d+)\\]");
    for (auto match = number.globalMatch(path); match.hasNext();)
        place.push_back(match.next().captured(1).toUInt());
    const auto step = steps_.at(place);
    return step ? static_cast<std::int32_t>(*step) : -1;
}

namespace {

/// Texts that many steps share, by their numbers.
class SharedTexts
{
public:
    std::uint32_t numberOf(const QString& text)
    {
        const auto known = numbers_.constFind(text);
        if (known != numbers_.constEnd())
            return *known;
        const auto number = static_cast<std::uint32_t>(numbers_.size());
        numbers_.insert(text, number);
        list_.append(text);
        return number;
    }
    const QJsonArray& list() const { return list_; }

private:
    QHash<QString, std::uint32_t> numbers_;
    QJsonArray list_;
};

/// What steps are called, and which class they are about.
class StepNames
{
public:
    StepNames()
    {
        for (const CFxActionKindName& kind : LoadedModule()->ListActionKinds())
            kinds_.emplace(kind.number, kind.name.toQString());
    }

    QString nameOf(const view::Steps::Step& step) const
    {
        switch (step.kind) {
        case Kind::Command:
            return commandName(*odrxQuery<CFxUserCommand>(step.action));
        case Kind::Property:
            return odrxQuery<CFxPropertyChanged>(step.action)->GetName().toQString();
        case Kind::Variable:
            return odrxQuery<CFxSysVarChanged>(step.action)->GetName().toQString();
        case Kind::Interaction:
            return odrxQuery<CFxUserInteraction>(step.action)->GetPrompt().toQString();
        case Kind::Custom: {
            const std::int32_t kind = odrxQuery<CFxCustomAction>(step.action)->GetKind();
            const auto known = kinds_.find(kind);
            return known == kinds_.end() ? QString("custom action %1").arg(kind) : known->second;
        }
        default:
            return {};
        }
    }

    static const OdRxClass* classOf(const view::Steps::Step& step)
    {
        switch (step.kind) {
        case Kind::Added:
            return odrxQuery<CFxObjectAdded>(step.action)->GetObjectClass();
        case Kind::Modified:
            return odrxQuery<CFxObjectModified>(step.action)->GetObjectClass();
        case Kind::Property:
            return odrxQuery<CFxPropertyChanged>(step.action)->GetObjectClass();
        default:
            return nullptr;
        }
    }

private:
    std::map<std::int32_t, QString> kinds_;
};

std::vector<OdDbHandle> handlesOfStep(const view::Steps::Step& step, const std::vector<OdDbHandle>& made)
{
    std::vector<OdDbHandle> handles =
        handlesOf(OdRxObjectPtr(const_cast<OdRxObject*>(step.action))); // counted, not changed
    handles.insert(handles.end(), made.begin(), made.end());
    std::sort(handles.begin(), handles.end());
    handles.erase(std::unique(handles.begin(), handles.end()), handles.end());
    return handles;
}

} // namespace

void addSteps(const view::Steps& steps, const StepPlaces& places, const std::vector<StepMap::Made>& made,
              const view::Picture& picture, view::ClassNames& classes, view::PageFile& page, QJsonObject& index)
{
    constexpr std::uint16_t none = view::ClassNames::kNone;
    std::map<std::int32_t, std::vector<OdDbHandle>> madeBy;
    for (const StepMap::Made& one : made)
        madeBy[one.step].push_back(one.object);
    std::vector<std::uint16_t> layers(steps.size(), none);
    for (const view::PictureObject& object : picture.objects)
        if (object.added >= 0)
            layers[static_cast<std::size_t>(object.added)] = object.layer;

    const StepNames stepNames;
    SharedTexts names;
    std::vector<std::int32_t> lines;
    std::vector<std::int32_t> parents;
    std::vector<std::int32_t> children;
    std::vector<std::uint8_t> kinds;
    std::vector<std::uint16_t> classNumbers;
    std::vector<std::uint32_t> nameNumbers;
    std::vector<std::uint32_t> handleCounts;
    std::vector<std::int32_t> low;
    std::vector<std::uint32_t> high;
    for (std::size_t number = 0; number < steps.size(); ++number) {
        const view::Steps::Step& step = steps[number];
        const OdRxClass* const objectClass = StepNames::classOf(step);
        const std::vector<OdDbHandle> handles = handlesOfStep(step, madeBy[static_cast<std::int32_t>(number)]);
        lines.push_back(static_cast<std::int32_t>(places.lineOf(number)));
        parents.push_back(step.parent);
        children.push_back(static_cast<std::int32_t>(step.parent < 0 ? 0 : step.child));
        kinds.push_back(static_cast<std::uint8_t>(step.kind));
        classNumbers.push_back(objectClass ? classes.numberOf(objectClass->name()) : none);
        nameNumbers.push_back(names.numberOf(stepNames.nameOf(step)));
        handleCounts.push_back(static_cast<std::uint32_t>(handles.size()));
        for (const OdDbHandle& handle : handles) {
            low.push_back(static_cast<std::int32_t>(handle.value()));
            high.push_back(static_cast<std::uint32_t>(handle.value() >> 32));
        }
    }
    view::Columns columns;
    columns.addDeltas("line", lines);
    columns.addDeltas("parent", parents);
    columns.addDeltas("child", children);
    columns.add("kind", kinds);
    columns.add("cls", classNumbers);
    columns.add("name", nameNumbers);
    columns.add("layer", layers);
    columns.add("handles", handleCounts);
    view::addColumns("steps", columns, page, index);
    view::Columns handleColumns;
    handleColumns.addDeltas("low", low);
    handleColumns.add("high", high);
    view::addColumns("stepHandles", handleColumns, page, index);
    index.insert("names", names.list());
}

} // namespace inkmacro
