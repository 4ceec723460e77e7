// SPDX-License-Identifier: MIT
#include "app/news/RunNews.h"

#include <algorithm>

#include "app/MainView.h"
#include "app/RunContext.h"
#include "app/news/LastRun.h"
#include "app/news/RunNotice.h"
#include "app/news/runTexts.h"
#include "app/run/ScheduledRuns.h"
#include "platform/Clock.h"
#include "platform/Files.h"
#include "service/RunFeedback.h"
#include "store/IndexFile.h"
#include "store/IndexLine.h"
#include "ui/ClippingsBrowser.h"

namespace vell {

void RunNews::runEnded(const RunContext& run) {
    p_.Browser.news().downloadEnded();
    const LastRun last = lastRunOf(run);
    show(last);
    trapStep(p_.Log, "RunNews()",
             [&] { p_.Disk.WriteWhole(p_.AppPath + std::string(lastRunFile), lineOf(last), Durability::Rename); });
    showNextRun();
    const bool isRange = run.Summary.Days.size() > 1 && run.Only.empty();
    if (isRange && !run.Outcome.Stopped) p_.Status.StatusBar(rangeText(run.Summary, p_.Words));
    if (run.BegunBy == Starter::Schedule && !p_.View.isLookedAt()) notify(run);
}

void RunNews::showLastRun() {
    trapStep(p_.Log, "RunNews()", [this] {
        const std::string path = p_.AppPath + std::string(lastRunFile);
        constexpr std::size_t longestLine = 100;
        if (!p_.Disk.PathExists(path)) return;
        if (const auto last = lastRunFrom(p_.Disk.ReadPart(path, 0, longestLine))) show(*last);
    });
}

void RunNews::show(const LastRun& run) {
    p_.View.showLastRun(lastRunText(run, p_.Time.Now().Day, p_.Words));
}

void RunNews::showNextRun() {
    p_.View.showNextRun(nextRunText(p_.Schedule.nextDue(), p_.Words));
}

// The schedule downloads one day at a time.
void RunNews::notify(const RunContext& run) {
    std::vector<std::string> names;
    if (!run.Summary.Days.empty()) names = run.Summary.Days.back().New;
    const auto notice = noticeOf(run, titles(run.Day.gDayFolder, names), p_.Words);
    if (!notice) return;
    day_ = run.Day.gCurrentDate;
    first_ = names.empty() ? std::string() : run.Day.gDayFolder + names.front();
    p_.View.showNotice(*notice);
}

std::vector<std::string> RunNews::titles(const std::string& dayFolder, std::vector<std::string> names) const {
    names.resize(std::min(names.size(), mostTitlesInNotice));
    std::vector<std::string> titles;
    if (names.empty()) return titles;
    trapStep(p_.Log, "StartDownload()", [&] {
        const std::string index = p_.Disk.ReadFile(dayFolder + std::string(indexFileName));
        for (const std::string_view line : indexLines(index))
            if (std::ranges::find(names, indexKey(line)) != names.end())
                titles.emplace_back(indexField(line, IndexField::Description));
    });
    return titles;
}

std::optional<std::size_t> RunNews::goToNews() {
    if (!day_ || !p_.Browser.chooseDay(*day_)) return std::nullopt;
    const auto& rows = p_.Browser.rows();
    const auto found = std::ranges::find(rows, first_, &ClippingRow::path);
    if (found == rows.end()) return std::nullopt;
    return static_cast<std::size_t>(found - rows.begin());
}

}  // namespace vell
