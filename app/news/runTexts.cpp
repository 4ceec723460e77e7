// SPDX-License-Identifier: MIT
#include "app/news/runTexts.h"

#include <algorithm>
#include <set>
#include <vector>

#include "app/news/LastRun.h"
#include "app/run/RunSummary.h"
#include "base/text.h"
#include "config/ScheduleEntry.h"
#include "platform/Translations.h"
#include "ui/numberedText.h"

namespace vell {

namespace {

std::string failedFilesText(std::size_t number, const Translations& words) {
    return numberedText(words, "%d file failed", "%d files failed", number);
}

std::string moment(const LocalTime& time, const Translations& words) {
    const auto weekday = static_cast<std::size_t>(time.Day.weekday()) - 1;
    return words.translate(scheduleDays.at(weekday)) + " " + time.hourMinute();
}

// A clipping of which any of the three files is missing has not come.
std::size_t arrived(const DaySummary& day) {
    std::set<std::string_view> missing;
    for (const FailedFile& file : day.FailedFiles)
        missing.insert(std::string_view(file.Name).substr(0, file.Name.rfind('.')));
    return day.BrokenOff ? day.New.size() : day.Listed - std::min(day.Listed, missing.size());
}

// "; none on 22/11/2026, 29/11/2026"; empty without days.
std::string daysText(std::string_view sentence, const std::vector<Date>& days) {
    if (days.empty()) return {};
    constexpr std::size_t mostDays = 5;
    std::string names;
    for (std::size_t i = 0; i < std::min(days.size(), mostDays); ++i)
        names += (i == 0 ? "" : ", ") + days[i].dayName();
    if (days.size() > mostDays) names += " ...";
    return "; " + Replace(sentence, "%s", names);
}

}  // namespace

std::string newClippingsText(std::size_t number, const Translations& words) {
    return numberedText(words, "%d new clipping", "%d new clippings", number);
}

std::string lastRunText(const LastRun& run, const Date& today, const Translations& words) {
    constexpr int week = 7;
    const bool isOfThisWeek = run.Ended.Day > today.plusDays(-week) && run.Ended.Day <= today;
    const std::string when =
        isOfThisWeek ? moment(run.Ended, words) : run.Ended.Day.dayName() + " " + run.Ended.hourMinute();
    std::string text = Replace(words.translate("Last: %s"), "%s", when);
    if (run.New > 0) text += ", " + numberedText(words, "%d new", "%d new", run.New);
    if (run.FailedFiles > 0) text += ", " + failedFilesText(run.FailedFiles, words);
    if (run.How == LastRun::End::Stopped)
        text += ", " + words.translate("stopped");
    else if (run.How == LastRun::End::Failed)
        text += ", " + words.translate("failed");
    else if (run.New + run.FailedFiles == 0)
        text += ", " + words.translate("nothing new");
    return text;
}

std::string nextRunText(const std::optional<LocalTime>& due, const Translations& words) {
    return due ? Replace(words.translate("Next: %s"), "%s", moment(*due, words)) : std::string();
}

std::string rangeText(const RunSummary& summary, const Translations& words) {
    std::size_t clippings = 0, days = 0;
    std::vector<Date> empty, failed;
    for (const DaySummary& day : summary.Days) {
        clippings += arrived(day);
        if (day.BrokenOff)
            failed.push_back(day.Day);
        else if (day.Listed == 0)
            empty.push_back(day.Day);
        else
            ++days;
    }
    std::string text =
        filledText(words.translate("%1$s in %2$s"), {numberedText(words, "%d clipping", "%d clippings", clippings),
                                                     numberedText(words, "%d day", "%d days", days)});
    text += daysText(words.translate("none on %s"), empty) + daysText(words.translate("failed: %s"), failed);
    if (const auto files = summary.failedFiles(); files > 0) text += "; " + failedFilesText(files, words);
    return text;
}

}  // namespace vell
