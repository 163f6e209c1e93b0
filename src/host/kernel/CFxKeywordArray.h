#pragma once

#include "host/kernel/CFxString.h"

#include <QStringList>

#include <vector>

/// The words that a prompt takes beside or instead of other answers. A word has a local form, which is shown, and a
/// global one, which begins with an underscore, is the same in every language and tells the words apart. Either can be
/// entered, the local one in the part behind its comma if it has one ("? to list,?"), the global one in each part.
class INKHOST_EXPORT CFxKeywordArray
{
public:
    void Add(const CFxString& local, const CFxString& global) { keywords_.push_back({local, global}); }

    /// The prompt with the words so far: "Specify anchor option [Area/Entity]".
    CFxString BuildPrompt(const CFxString& text) const;
    /// What is shown of the word with that global form, without what is behind its comma; empty when there is none.
    CFxString GetShown(const CFxString& global) const;
    /// What can be entered, local forms first.
    std::vector<CFxString> GetAnswers() const;
    /// The global forms, up to their commas, of the words that an answer may stand for, whatever its case: of the one
    /// that it spells, else of the ones whose capital letters it is, else of all that begin with it.
    std::vector<CFxString> Find(const CFxString& answer) const;

private:
    struct Keyword
    {
        QString local;
        QString global;

        QString shown() const { return local.section(',', 0, 0); }
        QString id() const { return global.section(',', 0, 0); }
        QStringList answers() const;
    };

    std::vector<Keyword> keywords_;
};
