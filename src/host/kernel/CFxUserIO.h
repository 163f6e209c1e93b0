#pragma once

#include "host/db/OdGe.h"
#include "host/kernel/CFxKeywordArray.h"
#include "host/kernel/CFxSelectionSet.h"
#include "host/kernel/CFxStatus.h"

class OdDbDatabase;

/// A file that a command asks its user for. Title and filter are for a host that shows a dialog.
struct CFxFileQuestion
{
    CFxString title;
    CFxString filter;    ///< as in "LineStyle (*.lin)&*.lin&&"
    CFxString word;      ///< what the file is, at a command line
    CFxString noneLocal; ///< the keyword for no file, at a command line
    CFxString noneGlobal;
    bool existing; ///< the file must be there already
};

/// Answers that a user may want help to enter.
struct CFxExpectedAnswers
{
    std::vector<CFxString> words;
    CFxString files; ///< names of files of that pattern, as in "*.lin"; none when it is empty
};

/// The host's input object: what a command asks its user. An answer that cannot be is told and asked for again. All
/// prompts give kFxSuccess, kFxNothing for an empty answer where one may be, or kFxCancelled; what they fill in counts
/// after kFxSuccess alone. Where the questions go to and the answers come from is up to who derives from it.
class INKHOST_EXPORT CFxUserIO
{
public:
    explicit CFxUserIO(OdDbDatabase& database) : database_(database) {}
    virtual ~CFxUserIO();

    /// A line for the user to read.
    virtual void ShowMessage(const CFxString& message) = 0;

    /// `global` is the default's global form or empty, and becomes that of the answer.
    CFxStatus GetKeyword(const CFxString& prompt, const CFxKeywordArray& keywords, CFxString& global);
    /// An empty answer is one too. `expected` are answers that the user may want help to enter.
    CFxStatus GetString(const CFxString& prompt, CFxString& text, const std::vector<CFxString>& expected = {});
    /// In drawing units. With a base point an answer may be relative to it: "@10,5".
    CFxStatus GetPoint(const CFxString& prompt, const OdGePoint3d* base, OdGePoint3d& point);
    /// Adds to the set. At a command line every entity passes the filter, and the mode, which tells how entities are
    /// picked on the screen, means nothing.
    CFxStatus GetSelection(CFxSelectionSet& set, std::uint32_t filterMask, std::int32_t mode);
    /// An absolute path.
    CFxStatus GetFile(const CFxFileQuestion& wanted, CFxString& path);

    /// Reads a text as a number of that type, the type code of a result buffer. Gives kFxFailure when it is none.
    static CFxStatus ParseNumber(const CFxString& text, int type, double& number);

protected:
    /// One answer, without the end of its line; false for a cancel.
    virtual bool ReadAnswer(const CFxString& prompt, const CFxExpectedAnswers& expected, CFxString& answer) = 0;

private:
    std::vector<OdDbObjectId> AllEntities() const;
    bool FindEntities(const CFxString& answer, std::vector<OdDbObjectId>& ids);

    OdDbDatabase& database_;
};
