#pragma once

#include "host/db/OdDbDatabase.h"
#include "host/kernel/CFxConversionNotes.h"
#include "host/kernel/CFxVariant.h"

#include <QHash>

#include <map>

/// The document that the user works in. Does not own the drawing.
class CFxDocument
{
public:
    explicit CFxDocument(OdDbDatabase* database) : database_(database) {}
    OdDbDatabase* GetDatabase() const { return database_; }

private:
    OdDbDatabase* database_;
};

/// A file that the system would not make or fill, and why.
struct CFxFailedFile
{
    CFxString path;
    CFxString reason;
};

/// Settings of the running host, by name.
class INKHOST_EXPORT CFxSystemServices
{
public:
    /// 0 as long as nobody has set it. The reference lasts and follows the setting.
    const std::int16_t& GetInt16(const CFxString& name) { return settings_[name]; }
    void SetInt16(const CFxString& name, std::int16_t value) { settings_[name] = value; }

    /// The enumerator that stands for a system variable in the interface's option lists; empty when it was not set.
    CFxString GetOptionName(const CFxString& variable) const { return optionNames_.value(variable); }
    void SetOptionName(const CFxString& variable, const CFxString& enumerator);

    CFxDocument* GetActiveDocument() const { return activeDocument_; }
    /// Not owned; null when no document is open.
    void SetActiveDocument(CFxDocument* document) { activeDocument_ = document; }

    /// A file that could not be opened, which is a failure of the conversion, or whose text did not reach the disk
    /// whole, which is none unless it is the macro.
    void ReportFailedFile(const CFxString& path, const CFxString& reason) { failedFiles_.push_back({path, reason}); }
    const std::vector<CFxFailedFile>& GetFailedFiles() const { return failedFiles_; }

    /// What the user should know of a conversion though its status does not tell it: one sentence without a full stop.
    void ReportProblem(const CFxString& problem) { problems_.push_back(problem); }
    const std::vector<CFxString>& GetProblems() const { return problems_; }

    CFxConversionNotes& Notes() { return notes_; }

private:
    CFxConversionNotes notes_;
    std::vector<CFxString> problems_;
    std::vector<CFxFailedFile> failedFiles_;
    std::map<CFxString, std::int16_t> settings_;
    QHash<QString, CFxString> optionNames_;
    CFxDocument* activeDocument_ = nullptr;
};

/// The one set of services of the process.
INKHOST_EXPORT CFxSystemServices* GetFxSystemServices();

#define ACTIVE_DOCUMENT (GetFxSystemServices()->GetActiveDocument())
