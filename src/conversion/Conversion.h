#pragma once

#include "conversion/ActionFaults.h"
#include "conversion/Names.h"
#include "conversion/Siblings.h"
#include "conversion/TagWords.h"
#include "conversion/ValueForm.h"

/// The sizes that tables were made with and changed to so far, by their variables, of those of the drawing by their
/// handles. Lengths are drawing units.
struct TableSizes
{
    std::map<CFxString, std::int32_t> rowCounts;
    std::map<CFxString, std::int32_t> columnCounts;
    std::map<CFxString, double> heights;
    std::map<CFxString, double> widths;
};

/// The objects that a prompt for a selection stood for.
struct AskedSelection
{
    std::uint32_t command; ///< that the prompt belongs to
    std::set<OdDbHandle> objects;
};

/// What one conversion knows. The walk owns it, and every function that converts something takes it first. There is no
/// language in it.
class Conversion
{
public:
    /// `mode`: 1 replays prompts and selections. `context` is handed to the getters of property records as it is.
    Conversion(inkmacro::Target target, std::uint32_t mode)
        : writer(target), replays(mode == 1), names_(CreateNames(writer, faults))
    {
    }
    Conversion(const Conversion&) = delete;
    Conversion& operator=(const Conversion&) = delete;

    Names& names() { return *names_; }
    const Names& names() const { return *names_; }

    /// The variable of what the present custom action makes, see Names. The one that is handed over may be that of
    /// another class.
    CFxString VariableOfMade(const CFxString& handedOver, const char* className);

    /// Whether a custom action of that kind stands in the same command as what is being converted.
    bool HasSibling(std::int32_t kind) const { return siblings && siblings->has(kind); }
    /// The same of a block definition that is added or changed.
    bool HasSiblingBlock() const { return siblings && siblings->hasBlock(); }

    /// The present action has that fault. In a repaired macro it has not: then true, and the caller leaves out what
    /// would have it.
    bool Drops(const inkmacro::Fault& fault);

    Writer writer;
    const bool replays;
    CFxValueContext context = 0;
    ActionFaults faults;
    TagWords tags;
    /// Receives all tags that records are asked for, found or not; null: nobody wants to know.
    std::vector<AskedTag>* asked = nullptr;
    TableSizes tables;

    std::uint32_t command = 0; ///< number of the command whose block the statements stand in, from 1; 0 at top level
    std::uint32_t commandCount = 0;
    std::optional<std::uint32_t> elementColorCommand; ///< that has declared the variables of element colors
    const Siblings* siblings = nullptr;               ///< of the action that is being converted
    /// Variables of the hatches that custom actions have inserted.
    std::set<QString> insertedHatches;
    /// The values of attributes that came with the insertion of their block.
    std::map<OdDbHandle, QString> writtenAttributes;
    /// In a repaired macro settings of hatches that were recorded ahead of the insertion, by their variables.
    std::map<QString, Statement> waitingSettings;
    /// Those of the hatch, which is inserted now.
    Statement TakeSettings(const QString& hatch);
    /// The last added object that a custom action finishes: it gets what they make in its command.
    OdDbHandle lastFinished;
    /// In a repaired macro also those that have an action each.
    std::set<OdDbHandle> finished;
    /// The last one.
    std::optional<AskedSelection> askedSelection;
    /// The descriptions of blocks that were recorded last.
    std::map<OdDbHandle, CFxString> blockDescriptions;

private:
    const std::unique_ptr<Names> names_;
};
