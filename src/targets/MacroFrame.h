#pragma once

#include "statements/Writer.h"
#include "targets/CommandFunctions.h"

#include <QByteArray>

#include <initializer_list>
#include <memory>

/// What varies by language in more than words: the head and the foot of the macro file, and the project around it. One
/// for each conversion.
class MacroFrame
{
public:
    explicit MacroFrame(Writer& writer) : writer(writer) {}
    virtual ~MacroFrame() = default;
    MacroFrame(const MacroFrame&) = delete;
    MacroFrame& operator=(const MacroFrame&) = delete;

    /// The macro file that is about to be written; said before everything else.
    void setMacroPath(const QString& path) { macroPath_ = path; }
    /// `hasSysVar`: a system variable changed at the recording's top level.
    virtual Statement EmitFileHeader(const QString& className, bool hasSysVar) = 0;
    virtual Statement EmitFileFooter() = 0;
    /// Writes the project around the macro file of that path; gives kFxSuccess or kFxFailure. Unless the target says
    /// otherwise, the macro file is the whole result.
    virtual std::int32_t EmitProjectFiles(const QString& path);
    /// What makes functions of commands; null in targets whose statements stand one after the other.
    virtual inkmacro::CommandFunctions* functions() { return nullptr; }
    /// Why there is no repaired macro of that file name, a clause without a full stop: it cannot be written where the
    /// project needs it. Null when there is one.
    virtual const char* refusal(const QString&) const { return nullptr; }

protected:
    /// Of two forms the one that suits the macro: when it is repaired the second.
    template<class Form>
    Form mended(Form faithful, Form repaired) const
    {
        return writer.repairs ? repaired : faithful;
    }
    /// What the project file of C++ says of its bytes, which are UTF-8 in either case.
    const char* encoding() const { return mended("windows-1252", "utf-8"); }
    /// The name that stands in code for that of the macro's file: itself, in a repaired macro one that is legal.
    QString identifier(const QString& name) const;
    /// What is wrong with the name of the macro's file where it stands in code; null when nothing is.
    const inkmacro::Fault* faultOfName(const QString& name) const;
    /// The text with a note of that.
    Statement faultyName(const QString& name, const Statement& text) const;
    /// The head of a macro, which includes those headers of libraries too: without their ".h". One that has the name of
    /// the macro's file, and so of a header beside it, is found in a repaired macro only.
    Statement withHeaders(Statement head, const QString& name, std::initializer_list<const char*> headers) const;
    /// The head with the name of the sheet on which the recording began, its last value. Where the head has no use for
    /// one because it has no sketch manager, it has a note of that.
    Statement withSheetName(inkmacro::Fill& head) const;
    /// A file of a project in C++ with the project's name: %1 in its words, {quotedName} in a text. %2 is the line end.
    Statement fillNamed(QByteArray words, const QString& name) const;
    /// The text with a note of the fault where the words stand first.
    Statement faultyAt(const QString& words, const Statement& text, const inkmacro::Fault& fault) const;
    /// The project with a note when the macro's file is not found by its entry, which begins so. In a faithful project
    /// the entry is made of the project's name, in which markers may have been filled; and it is read as another one
    /// where the pattern matches.
    Statement faultyEntry(const QString& entry, const QString& macroPath, const char* misread,
                          const Statement& project) const;

    const QString& macroPath() const { return macroPath_; }

    Writer& writer;

private:
    QString macroPath_;
};

/// That of the writer's target, which must outlive it.
std::unique_ptr<MacroFrame> CreateMacroFrame(Writer& writer);
