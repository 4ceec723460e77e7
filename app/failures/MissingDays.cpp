// SPDX-License-Identifier: MIT
#include "app/failures/MissingDays.h"

#include <algorithm>
#include <set>
#include <string_view>
#include <utility>

#include "app/Session.h"

namespace vell {

namespace {

// The name that a clipping's files share.
std::string_view clippingOf(std::string_view fileName) {
    return fileName.substr(0, fileName.find_last_of('.'));
}

MissingDays inOrder(std::set<Date> days, std::vector<FailedFile> only) {
    for (const FailedFile& file : only)
        days.insert(file.Day);
    return {{days.begin(), days.end()}, std::move(only)};
}

}  // namespace

bool isAnythingMissing(const Session& session) {
    const RunSummary& run = session.Run.Summary;
    const auto isBrokenOff = [](const DaySummary& day) { return day.BrokenOff.has_value(); };
    return run.NotBegun || !session.Failed.isEmpty() || std::ranges::any_of(run.Days, isBrokenOff);
}

MissingDays missingDays(const Session& session) {
    const RunContext& run = session.Run;
    const auto isWanted = [&](const Date& day) {
        return std::ranges::any_of(run.Only, [&](const FailedFile& file) { return file.Day == day; });
    };
    std::set<Date> whole;
    if (run.Summary.NotBegun && run.Only.empty()) whole.insert(run.FirstDay);
    for (const DaySummary& day : run.Summary.Days)
        if (day.BrokenOff && !isWanted(day.Day)) whole.insert(day.Day);
    std::vector<FailedFile> only;
    std::ranges::copy_if(session.Failed.all(), std::back_inserter(only),
                         [&](const FailedFile& file) { return !whole.contains(file.Day); });
    return inOrder(std::move(whole), std::move(only));
}

MissingDays missingDays(const Session& session, const std::vector<FailedFile>& files) {
    std::set<std::pair<Date, std::string_view>> clippings;
    for (const FailedFile& file : files)
        clippings.emplace(file.Day, clippingOf(file.Name));
    std::vector<FailedFile> only;
    std::ranges::copy_if(session.Failed.all(), std::back_inserter(only), [&](const FailedFile& file) {
        return clippings.contains({file.Day, clippingOf(file.Name)});
    });
    return inOrder({}, std::move(only));
}

}  // namespace vell
