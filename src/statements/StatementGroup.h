#pragma once

#include "statements/blocks.h"

/// A group of statements, in braces or their like. Its statements stand one level deeper as long as it is open. What
/// belongs in front of it may be known only when its statements are written, so its texts are handed out and it is the
/// owner who puts them in place. A group that is neither closed nor abandoned leaves the level raised, but in a
/// repaired macro, where the level behind a group is always the one in front of it.
///
/// JavaScript has no groups: both texts are empty there and the level stays.
class StatementGroup
{
public:
    explicit StatementGroup(Writer& writer) : writer_(writer), level_(writer.IndentLevel) { enterBlock(writer); }
    StatementGroup(const StatementGroup&) = delete;
    StatementGroup& operator=(const StatementGroup&) = delete;
    ~StatementGroup()
    {
        if (writer_.repairs)
            writer_.IndentLevel = level_;
    }

    Statement begin() const { return blockBeginAt(writer_, level_); }
    /// Gives the level back.
    Statement close() { return EmitBlockEnd(writer_); }
    /// Gives a level back because statements are written without a group, in every target: who may not do so in
    /// JavaScript has to ask. Each such statement may do it, so the level can fall below that in front of the group; in
    /// a repaired macro it does not.
    void abandon()
    {
        if (!writer_.repairs || writer_.IndentLevel > level_)
            writer_.lowerLevel();
        abandoned_ = true;
    }
    bool abandoned() const { return abandoned_; }

private:
    Writer& writer_;
    const std::uint32_t level_; ///< in front of it
    bool abandoned_ = false;
};

/// Statements within a group that is going to be dropped stand where they would without it; in a faithful page, which
/// has no groups, further out than that.
class OneLevelOut
{
public:
    explicit OneLevelOut(Writer& writer) : writer_(writer), level_(writer.IndentLevel)
    {
        if (!writer.repairs || hasBlocks(writer))
            writer.lowerLevel();
    }
    ~OneLevelOut() { writer_.IndentLevel = level_; }
    OneLevelOut(const OneLevelOut&) = delete;
    OneLevelOut& operator=(const OneLevelOut&) = delete;

private:
    Writer& writer_;
    const std::uint32_t level_;
};

/// Statements that must be outside of the group around them: they stand between its end and the beginning of another,
/// in which all goes on.
template<class Statements>
Statement betweenGroups(Writer& writer, const Statements& statements)
{
    Statement text = EmitBlockEnd(writer);
    text += statements();
    return text += EmitBlockBegin(writer);
}
