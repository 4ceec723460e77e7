// SPDX-License-Identifier: MIT
#include "app/failures/settleFailures.h"

#include <string_view>
#include <unordered_map>
#include <unordered_set>

#include "app/Session.h"

namespace vell {

namespace {

constexpr std::size_t formsOfClipping = 3;

// One-based place in the list of the file that closes the clipping of the file at that place; the advertisement is 1.
std::size_t lastOfClipping(std::size_t place) {
    return place == 1 ? 1 : 1 + (place - 2) / formsOfClipping * formsOfClipping + formsOfClipping;
}

}  // namespace

void settleFailures(Session& session, std::size_t turns) {
    const auto& list = session.Downloads.gDownloadList;
    DaySummary& day = session.Run.Summary.Days.back();
    std::unordered_map<std::string_view, std::size_t> placeOf;
    for (std::size_t i = 0; i < list.size(); ++i)
        placeOf.emplace(list[i].FileName, i + 1);
    for (FailedFile& file : day.FailedFiles)
        if (const auto place = placeOf.find(file.Name); place != placeOf.end())
            file.OthersHadTurn = lastOfClipping(place->second) <= turns;

    std::unordered_set<std::string_view> wanted;
    for (const FailedFile& file : session.Run.Only)
        if (file.Day == day.Day) wanted.insert(file.Name);
    const bool isWhole = turns == list.size();
    session.Failed.settle(day.Day, day.FailedFiles, [&](const std::string& name) {
        const auto place = placeOf.find(name);
        if (place != placeOf.end() && place->second <= turns) return true;
        return isWhole && (wanted.empty() || wanted.contains(name));
    });
}

}  // namespace vell
