#pragma once

#include "app/StepMap.h"
#include "view/Picture.h"
#include "view/pictureIslands.h"

#include <vector>

namespace inkmacro {

/// Where the steps of a recording stand in its text.
class StepPlaces
{
public:
    /// `lines` are those of the top-level actions, from 1.
    StepPlaces(const view::Steps& steps, const std::vector<qint64>& lines) : steps_(steps), lines_(lines) {}

    /// From 1.
    qint64 lineOf(std::size_t step) const;
    /// By line and path, as a report has them; -1 for no step.
    std::int32_t stepAt(qint64 line, const QString& path) const;

private:
    const view::Steps& steps_;
    const std::vector<qint64>& lines_;
};

/// Gives a page the steps of a recording. `made` are the objects that custom actions make, besides those that actions
/// name themselves.
void addSteps(const view::Steps& steps, const StepPlaces& places, const std::vector<StepMap::Made>& made,
              const view::Picture& picture, view::ClassNames& classes, view::PageFile& page, QJsonObject& index);

} // namespace inkmacro
