#pragma once

#include "app/ReportPart.h"
#include "app/jobs.h"
#include "app/pageSteps.h"

#include <QJsonObject>

#include <memory>
#include <vector>

namespace inkmacro {

/// One of the macros of a page, as its process has left it.
struct PageMacro
{
    const Job* job;
    std::unique_ptr<ReportPart> part; ///< null when none is whole
    Outcome outcome;
};

/// Both forms of a target's macro.
struct PageTarget
{
    const TargetRow* row;
    PageMacro recorded;
    PageMacro repaired;
};

/// What is lost, assumed and faulty of the macros of a page. Notes that several macros share stand once.
class PageNotes
{
public:
    PageNotes(const std::vector<PageTarget>& targets, const StepPlaces& places);

    const QJsonArray& notes() const { return notes_; }
    /// What the index tells of each target, without texts.
    const QJsonArray& targets() const { return targets_; }
    /// A table for a browser that runs no scripts.
    const QString& table() const { return table_; }

private:
    QJsonObject formOf(const PageMacro& macro, const StepPlaces& places);

    QHash<QString, int> numbers_;
    QJsonArray notes_;
    QJsonArray targets_;
    QString table_;
};

/// A target's macros, and where their lines come from.
void addMacros(const PageTarget& target, view::PageFile& page, QJsonObject& index);

} // namespace inkmacro
