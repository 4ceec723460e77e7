// SPDX-License-Identifier: MIT
#include "app/failures/leaveOnlyWanted.h"

#include <map>
#include <string_view>
#include <utility>

#include "app/Session.h"
#include "platform/Files.h"

namespace vell {

namespace {

constexpr std::size_t formsOfClipping = 3;

using Wanted = std::map<std::string_view, const FailedFile*>;

Wanted wantedOf(const RunContext& run) {
    Wanted wanted;
    for (const FailedFile& file : run.Only)
        if (file.Day == run.Day.gCurrentDate) wanted.emplace(file.Name, &file);
    return wanted;
}

// Null when none of the clipping's files is wanted.
const FailedFile* anyWanted(const DownloadEntry* clipping, const Wanted& wanted) {
    for (std::size_t form = 0; form < formsOfClipping; ++form)
        if (const auto found = wanted.find(clipping[form].FileName); found != wanted.end()) return found->second;
    return nullptr;
}

}  // namespace

void leaveOnlyWanted(Session& session, const Files& disk) {
    const Wanted wanted = wantedOf(session.Run);
    if (wanted.empty()) return;
    DownloadState& downloads = session.Downloads;
    std::vector<DownloadEntry> all = std::exchange(downloads.gDownloadList, {});
    downloads.gTotalBytes = 0;
    downloads.gClippingsCount = 0;
    all.at(0).IsHere = true;  // the advertisement
    downloads.gDownloadList.push_back(all[0]);
    for (std::size_t first = 1; first + formsOfClipping <= all.size(); first += formsOfClipping) {
        const FailedFile* const failed = anyWanted(&all[first], wanted);
        if (failed == nullptr) continue;
        ++downloads.gClippingsCount;
        const bool othersCame = failed->OthersHadTurn && failed->Change == all[first].Change;
        for (std::size_t i = first; i < first + formsOfClipping; ++i) {
            DownloadEntry& entry = all[i];
            entry.IsHere = othersCame && !wanted.contains(entry.FileName) &&
                           disk.PathExists(session.Run.Day.gDayFolder + entry.FileName);
            if (!entry.IsHere) downloads.gTotalBytes += entry.Size;
            downloads.gDownloadList.push_back(std::move(entry));
        }
    }
}

}  // namespace vell
