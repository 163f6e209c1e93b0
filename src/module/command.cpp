// The children of a command as one block.

#include "actions/entries.h"
#include "host/db/OdDbClasses.h"
#include "module/MacroFile.h"
#include "module/codeNames.h"
#include "module/walk.h"
#include "objects/classTable.h"
#include "objects/entries.h"
#include "objects/losses.h"
#include "statements/HeldStatement.h"
#include "statements/StatementGroup.h"
#include "statements/actionKinds.h"
#include "statements/losses.h"
#include "targets/variables.h"

#include <QHash>
#include <QScopedValueRollback>

#include <algorithm>
#include <deque>
#include <map>
#include <optional>

using inkmacro::Fault;
using inkmacro::Target;

namespace {

const Fault kUndeclared{"ConvertCommand",
                        {Target::Cpp, Target::CppCom, Target::CSharp, Target::VbNet, Target::Vba},
                        "a command that loads a shape file or stands without a block has no declarations"};

/// Whether a custom action of the same command finishes objects of that class; it is told their variable.
bool isFinishedByCustomAction(const OdRxClass* cls)
{
    const ClassRow* const row = FindClass(cls);
    return row && row->has(kFinishedByCustomAction);
}

/// A style that loads a file of shapes. The host's own file of line type shapes does not count.
bool isShapeFileStyle(const CFxObjectAdded& added)
{
    if (added.GetObjectClass() != OdDbTextStyleTableRecord::desc() || !ACTIVE_DOCUMENT)
        return false;
    const OdDbObjectId id = ACTIVE_DOCUMENT->GetDatabase()->getOdDbObjectId(added.GetHandle());
    const auto style = odrxCast<OdDbTextStyleTableRecord>(id.openObject().get());
    return style && style->isShapeFile() && !IsHostShapeFile(style->fileName());
}

/// Whose statement it is.
struct Sayer
{
    std::uint32_t child;
    OdDbHandle made; ///< as CFxMacroLines has it
};

/// What is known of a command while its children are converted.
struct CommandState
{
    std::vector<ActionEntry> added;
    std::vector<OdDbHandle> handles;    ///< one an added object
    std::vector<std::uint32_t> addedAt; ///< the same: the child that adds it
    std::vector<Statement> declarations;
    /// Variables of the objects that a custom action of this command finishes.
    std::vector<QString> names;
    std::map<unsigned, std::size_t> made; ///< in a repaired macro, by child: which added object the action makes
    std::size_t nextName = 0;
    std::deque<inkmacro::HeldStatement> statements;
    bool wantsSayers = false; ///< whether somebody wants to know
    std::deque<Sayer> sayers; ///< then one a statement
    bool unnamedTarget = false;
    bool shapeStyle = false;
    bool allEmpty = true;
};

} // namespace

/// All added children are registered before the first statement is made, so a child may refer to a later one.
static void RegisterChildren(Conversion& conversion, const CFxActionArray& children, CommandState& state)
{
    for (unsigned i = 0; i < children.length(); ++i) {
        const auto added = odrxQuery<CFxObjectAdded>(children[i].get());
        if (!added)
            continue;
        OdRxClass* const cls = added->GetObjectClass();
        if (!cls || !IsSupportedClass(cls))
            continue;
        if (cls == OdDbMText::desc() && !GetNoteLeader(added->GetHandle()).isNull())
            continue;
        state.added.push_back(conversion.names().RegisterObject(added->GetHandle(), cls));
        state.handles.push_back(added->GetHandle());
        state.addedAt.push_back(i);
        if (isFinishedByCustomAction(cls))
            conversion.lastFinished = added->GetHandle();
    }
}

static void DeclareChildren(Conversion& conversion, CommandState& state)
{
    for (const ActionEntry& entry : state.added) {
        state.declarations.push_back(EmitVariableDeclaration(conversion.writer, entry));
        if (!isFinishedByCustomAction(entry.cls))
            continue;
        const CFxString name = conversion.names().DeclaredName(entry);
        if (!name.isEmpty())
            state.names.push_back(name);
    }
}

/// Each action that makes an entity gets one of its own, from behind.
static void PairWithActions(Conversion& conversion, const CFxActionArray& children, CommandState& state)
{
    std::map<const OdRxClass*, unsigned> next;
    for (std::size_t i = state.added.size(); i-- > 0;) {
        const OdRxClass* const cls = state.added[i].cls;
        if (!isFinishedByCustomAction(cls))
            continue;
        for (unsigned& at = next.try_emplace(cls, children.length()).first->second; at > 0;) {
            const auto custom = odrxQuery<CFxCustomAction>(children[--at].get());
            if (custom && IsEntityOfAction(cls, custom->GetKind())) {
                state.made.emplace(at, i);
                conversion.finished.insert(state.handles[i]);
                break;
            }
        }
    }
}

/// In a repaired macro without those of objects that turned out to have no statement that inserts them.
static void WriteDeclarations(Conversion& conversion, MacroFile& macro, const CommandState& state)
{
    for (std::size_t i = 0; i < state.declarations.size(); ++i)
        if (conversion.names().IsDeclared(state.handles[i])) {
            macro.begin(CFxMacroPart::kDeclaration, state.addedAt[i]);
            macro.writeDeclarations(state.declarations[i]);
        }
}

/// Whether some statement names a variable of the command ahead of a line that declares it, as the insertion of a
/// viewport does.
static bool LacksDeclarations(const Names& names, const CommandState& state, Target target)
{
    QHash<QString, QString> declarations;
    for (std::size_t i = 0; i < state.added.size(); ++i) {
        QString declaration = state.declarations[i].text().trimmed();
        if (declaration.endsWith(';'))
            declaration.chop(1);
        declarations.insert(names.DeclaredName(state.added[i]), declaration);
    }
    const auto declares = [](QStringView line, const QString& declaration) {
        const bool begins = line.startsWith(declaration);
        return begins && (line.size() == declaration.size() || !inkmacro::isNamePart(line[declaration.size()]));
    };
    bool lacks = false;
    for (const inkmacro::HeldStatement& held : state.statements)
        for (const QString& line : held.statement().text().split('\n'))
            inkmacro::forNames(line, target, [&](QStringView name, qsizetype) {
                const auto declared = declarations.find(name.toString());
                if (declared == declarations.end())
                    return;
                lacks = lacks || !declares(inkmacro::trimmed(line), declared.value());
                declarations.erase(declared);
            });
    return lacks;
}

/// The variable that a custom action of a command is handed: the last one, whatever it is; in a repaired macro an
/// action that makes an entity gets that one, or none.
static QString HandOver(Conversion& conversion, std::int32_t kind, unsigned number, const CommandState& state)
{
    if (const auto made = state.made.find(number); made != state.made.end()) {
        conversion.lastFinished = state.handles[made->second];
        return conversion.names().DeclaredName(state.added[made->second]);
    }
    if (state.names.empty() || (conversion.writer.repairs && IsEntityOfAction(nullptr, kind)))
        return {};
    return state.names.back();
}

/// Whether the child is a custom action that makes an object for a variable of the command, which is the last finished
/// one.
static bool MakesHanded(const Conversion& conversion, const OdRxObjectPtr& child, unsigned number,
                        const CommandState& state)
{
    const auto custom = odrxQuery<CFxCustomAction>(child.get());
    const bool isHanded = conversion.writer.repairs ? state.made.contains(number) : !state.names.empty();
    return custom && isHanded && IsEntityOfAction(nullptr, custom->GetKind());
}

/// Hatches that the command did not insert after all.
static void LoseWaiting(Conversion& conversion, const CommandState& state)
{
    for (std::size_t i = 0; i < state.added.size() && !conversion.waitingSettings.empty(); ++i)
        if (conversion.waitingSettings.erase(conversion.names().DeclaredName(state.added[i])) > 0) {
            conversion.names().SetUnmade(state.handles[i]);
            NoteLoss(ObjectTitle(state.added[i].cls, state.handles[i]), "nothing of its command inserts it");
        }
}

/// False when the child failed.
static bool ConvertChild(Conversion& conversion, const OdRxObjectPtr& child, unsigned number, CommandState& state,
                         StatementGroup& group)
{
    const CFxConversionNotes::Action place(GetFxSystemServices()->Notes(), number);
    Statement current;
    if (const auto custom = odrxQuery<CFxCustomAction>(child.get())) {
        const std::int32_t kind = custom->GetKind();
        current = HandOver(conversion, kind, number, state);
        if (kind == inkmacro::kViewBackground) {
            // Backgrounds and objects pair up in order; a surplus background stays with the last object.
            if (state.names.size() > 1 && state.nextName < state.names.size())
                current = state.names[state.nextName++];
            state.unnamedTarget = current.isEmpty();
        }
        if (kind == inkmacro::kPolyline || kind == inkmacro::kViewport)
            group.abandon();
    }
    if (ConvertOrLose(conversion, child, current) != kFxSuccess) {
        // What it was to make has a variable without a value.
        if (MakesHanded(conversion, child, number, state))
            conversion.names().SetUnmade(conversion.lastFinished);
        return false;
    }
    if (const auto added = odrxQuery<CFxObjectAdded>(child.get()); added && isShapeFileStyle(*added))
        state.shapeStyle = true;
    if (!current.isEmpty()) {
        state.allEmpty = false;
        state.statements.emplace_back(std::move(current));
        if (state.wantsSayers)
            state.sayers.push_back(
                {number, MakesHanded(conversion, child, number, state) ? conversion.lastFinished : OdDbHandle()});
    }
    return true;
}

/// Notes the children that a failed one takes along, as far as they would have had statements.
static void LoseBehind(Conversion& conversion, const CFxActionArray& children, unsigned failed)
{
    const CFxString reason(QString("action %1 of its command could not be converted").arg(failed + 1));
    for (unsigned i = failed; i < children.length(); ++i) {
        const OdRxObject* const child = children[i].get();
        const CFxConversionNotes::Action place(GetFxSystemServices()->Notes(), i);
        if (i > failed && !IsPassedOver(conversion, child))
            NoteLoss(ActionTitle(child), reason);
        if (const auto added = odrxQuery<CFxObjectAdded>(child))
            conversion.names().SetUnmade(added->GetHandle());
    }
}

static void ConvertChildren(Conversion& conversion, const CFxActionArray& children, CommandState& state,
                            StatementGroup& group)
{
    for (unsigned i = 0; i < children.length(); ++i)
        if (!ConvertChild(conversion, children[i], i, state, group))
            return LoseBehind(conversion, children, i);
}

static std::vector<inkmacro::Prompt> ReadPrompts(const CFxActionArray& children)
{
    std::vector<inkmacro::Prompt> prompts;
    for (unsigned i = 0; i < children.length(); ++i) {
        const auto interaction = odrxQuery<CFxUserInteraction>(children[i].get());
        if (std::optional<inkmacro::Prompt> prompt = interaction ? ReadPrompt(*interaction) : std::nullopt) {
            prompt->child = i;
            prompts.push_back(*std::move(prompt));
        }
    }
    return prompts;
}

/// The names of the objects that the command adds and that have a value.
static QStringList MadeNames(const Conversion& conversion, const CommandState& state)
{
    QStringList names;
    for (std::size_t i = 0; i < state.added.size(); ++i)
        if (conversion.names().IsDeclared(state.handles[i]))
            names.append(conversion.names().DeclaredName(state.added[i]));
    return names;
}

std::int32_t ConvertCommand(Conversion& conversion, MacroFile& macro, const CFxString& name,
                            const CFxActionArray& children)
{
    Writer& writer = conversion.writer;
    CommandState state;
    state.wantsSayers = macro.makesFunctions() || GetFxSystemServices()->Notes().WantsLines();
    inkmacro::RecordedCommand recorded{.name = name, .replays = conversion.replays};
    if (macro.makesFunctions())
        recorded.prompts = ReadPrompts(children);
    const QScopedValueRollback<bool> answerable(writer.notesAnswerable, !recorded.prompts.empty());
    RegisterChildren(conversion, children, state);
    DeclareChildren(conversion, state);
    if (writer.repairs)
        PairWithActions(conversion, children, state);
    StatementGroup group(writer);
    const Siblings siblings(children);
    const QScopedValueRollback<const Siblings*> beside(conversion.siblings, &siblings);
    const QScopedValueRollback<std::uint32_t> within(conversion.command, ++conversion.commandCount);

    // Where locals are seen behind their command, numbers that begin anew make some of them twice.
    std::optional<QScopedValueRollback<std::uint32_t>> ownNumbers;
    if (!writer.repairs)
        ownNumbers.emplace(writer.UniqueCounter, 0);
    ConvertChildren(conversion, children, state, group);
    LoseWaiting(conversion, state);

    const bool grouped = !group.abandoned() && !state.unnamedTarget;
    const bool declares = !state.allEmpty && (writer.repairs || (grouped && !state.shapeStyle));
    const bool written = grouped && declares;
    if (macro.makesFunctions()) {
        recorded.made = MadeNames(conversion, state);
        macro.beginCommand(std::move(recorded));
    }
    if (declares)
        WriteDeclarations(conversion, macro, state);
    else if (!state.declarations.empty() && writer.notesFaults &&
             LacksDeclarations(conversion.names(), state, writer.target))
        state.statements.front() =
            inkmacro::HeldStatement(writer.faulty(state.statements.front().statement(), kUndeclared));
    macro.begin(CFxMacroPart::kBlock);
    if (written)
        macro.write(group.begin());
    for (; !state.statements.empty(); state.statements.pop_front()) {
        if (!state.sayers.empty()) {
            const auto& [child, made] = state.sayers.front();
            macro.begin(CFxMacroPart::kStatements, child, made);
            state.sayers.pop_front();
        }
        macro.write(state.statements.front().statement());
    }
    macro.begin(CFxMacroPart::kBlock);
    // An unnamed target leaves the level where the group's begin put it: what follows stands one level deeper.
    const Statement end = grouped ? group.close() : Statement();
    if (written)
        macro.write(end);
    const bool hides = written && inkmacro::hidesInBlocks(writer.target);
    if (macro.makesFunctions())
        macro.endCommand();
    conversion.names().EndCommand(hides);
    return kFxSuccess;
}
