#pragma once

#include "host/db/OdDbHandle.h"
#include "host/kernel/CFxString.h"
#include "host/rx/Export.h"

#include <QSet>

#include <cstddef>
#include <cstdint>
#include <functional>
#include <utility>
#include <vector>

/// Where an action stands: its number at the recording's top level, and behind it the one among the children of the
/// command around it. All count from 0.
using CFxActionPlace = std::vector<std::uint32_t>;

/// What is known of an action, or of a part of one, besides its statements.
struct CFxActionNote
{
    CFxActionPlace where;
    CFxString what;          ///< such as `property "Material" of AcDbLine 2F`
    CFxString reason;        ///< a clause without a full stop
    CFxString property = {}; ///< the tag, where it is of an object's property; else empty
    bool operator==(const CFxActionNote&) const = default;
};
/// Something that the user did and that the macro does not do.
using CFxLoss = CFxActionNote;
/// A value that the macro states and that the recording does not hold, or holds in another form.
using CFxAssumption = CFxActionNote;

/// What its own language or host rejects or misreads of one file of the macro or its project, wherever it stands there.
struct CFxFaultNote
{
    CFxString operation;              ///< what writes the place, such as "EmitSetColor"
    CFxString reason;                 ///< a clause without a full stop
    CFxString file;                   ///< without folders
    bool mended = false;              ///< whether a repaired macro is without it
    std::vector<std::uint32_t> lines; ///< of each place, as they were noted, from 1; 0 where it is not known
    bool operator==(const CFxFaultNote&) const = default;
};

/// An answer at a prompt that is a parameter of its command's function, in macros that have functions.
struct CFxParameterNote
{
    CFxActionPlace where; ///< of the prompt
    CFxString function;
    CFxString name; ///< with an index where it is one of several
    bool operator==(const CFxParameterNote&) const = default;
};

/// What a run of lines does in its macro.
enum class CFxMacroPart : std::uint8_t
{
    kFrame, ///< holds the macro together: its head and foot, the first and last lines of procedures, calls of them
    kBlock, ///< begins or ends the group that the statements of a command stand in
    kDeclaration, ///< declares the variables of an added object
    kStatements   ///< does what the action did
};

/// Neighbouring lines of a macro that come of one action.
struct CFxMacroLines
{
    CFxMacroPart part;
    std::uint32_t first; ///< from 1
    std::uint32_t last;
    CFxActionPlace where; ///< empty of a frame
    OdDbHandle made;      ///< the object that a custom action makes and another action adds; else null
};

/// What one conversion tells of its result beside the files. The module notes, its host reads; the next conversion
/// begins by forgetting all.
class INKHOST_EXPORT CFxConversionNotes
{
public:
    /// While one of these lives, what is lost or assumed is of the action with that number.
    class Action
    {
    public:
        /// `begins`: it is told to the host; false of an action that was converted before.
        Action(CFxConversionNotes& notes, std::uint32_t number, bool begins = true) : notes_(notes)
        {
            notes_.ForgetKnown();
            notes_.place_.push_back(number);
            if (begins && notes_.onAction_)
                notes_.onAction_();
        }
        ~Action()
        {
            notes_.ForgetKnown();
            notes_.place_.pop_back();
        }
        Action(const Action&) = delete;
        Action& operator=(const Action&) = delete;

    private:
        CFxConversionNotes& notes_;
    };

    /// What the host does before each action, those within commands included, to show its user that a long conversion
    /// goes on; nothing when it is empty.
    void OnAction(std::function<void()> call) { onAction_ = std::move(call); }

    /// What the host does with each run of lines of the macro, from which action they come, as soon as they are
    /// written. The runs come in the macro's order and leave none of its lines out; a line that several actions share
    /// is of the first one. Nothing of it is noted when it is empty.
    void OnLines(std::function<void(const CFxMacroLines&)> call) { onLines_ = std::move(call); }
    bool WantsLines() const { return static_cast<bool>(onLines_); }
    void NoteLines(const CFxMacroLines& lines) const { onLines_(lines); }

    /// A host that is about to ask for no more than the numbers of losses and assumptions spares what tells of them.
    void KeepAll(bool keeps) { keepsAll_ = keeps; }

    /// What is lost of one action in the same way several times counts once.
    void NoteLoss(const CFxString& what, const CFxString& reason);
    /// Of the object with that handle. Who calls makes a loss's words of the part in `title`, when they are kept.
    template<class Title>
    void NoteLoss(const OdDbHandle& object, const QString& part, const QString& reason, Title title)
    {
        Note(losses_, object, part, reason, title);
    }
    std::size_t GetLossCount() const { return losses_.count; }
    /// Empty when they are not kept.
    const std::vector<CFxLoss>& GetLosses() const { return losses_.kept; }

    /// As losses are noted.
    void NoteAssumption(const CFxString& what, const CFxString& reason);
    template<class Title>
    void NoteAssumption(const OdDbHandle& object, const QString& part, const QString& reason, Title title)
    {
        Note(assumptions_, object, part, reason, title);
    }
    std::size_t GetAssumptionCount() const { return assumptions_.count; }
    const std::vector<CFxAssumption>& GetAssumptions() const { return assumptions_.kept; }

    void NoteParameter(const CFxString& function, const CFxString& name)
    {
        if (keepsAll_)
            parameters_.push_back({place_, function, name});
    }
    /// Empty when they are not kept.
    const std::vector<CFxParameterNote>& GetParameters() const { return parameters_; }

    /// Kept whether all is or not, since they are few: places of the same `kind`, which is the address of what the
    /// module knows of the fault, in the same file are one. `note` makes it, without lines.
    template<class Note>
    void NoteFault(const void* kind, const QString& file, std::uint32_t line, Note note)
    {
        std::size_t i = 0;
        while (i < faults_.size() && (faultKinds_[i] != kind || faults_[i].file.toQString() != file))
            ++i;
        if (i == faults_.size()) {
            faultKinds_.push_back(kind);
            faults_.push_back(note());
        }
        faults_[i].lines.push_back(line);
    }
    const std::vector<CFxFaultNote>& GetFaults() const { return faults_; }

    void Forget();

private:
    struct Known
    {
        OdDbHandle object; ///< null when the part says it all
        QString part;
        QString reason;
        bool operator==(const Known&) const = default;
        friend uint qHash(const Known& known, uint seed) noexcept
        {
            return ::qHash(known.object.value(), seed) ^ ::qHash(known.part, seed);
        }
    };
    struct ActionNotes
    {
        std::size_t count = 0;
        std::vector<CFxActionNote> kept;
    };
    template<class Title>
    void Note(ActionNotes& notes, const OdDbHandle& object, const QString& part, const QString& reason, Title title)
    {
        if (!IsFirst({object, part, reason}))
            return;
        ++notes.count;
        if (keepsAll_)
            notes.kept.push_back({place_, title(), CFxString(reason), object.isNull() ? CFxString() : CFxString(part)});
    }
    bool IsFirst(Known known);
    void ForgetKnown()
    {
        known_.clear();
        manyKnown_.clear();
    }

    std::function<void()> onAction_;
    std::function<void(const CFxMacroLines&)> onLines_;
    CFxActionPlace place_;
    std::vector<Known> known_; ///< of the action, as long as they are few: most actions lose little
    QSet<Known> manyKnown_;    ///< else all of them
    bool keepsAll_ = true;
    ActionNotes losses_;
    ActionNotes assumptions_;
    std::vector<CFxParameterNote> parameters_;
    std::vector<CFxFaultNote> faults_;
    std::vector<const void*> faultKinds_; ///< of each of the faults
};
