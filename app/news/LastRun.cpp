// SPDX-License-Identifier: MIT
#include "app/news/LastRun.h"

#include <algorithm>
#include <array>
#include <charconv>

#include "app/RunContext.h"
#include "base/text.h"

namespace vell {

namespace {

constexpr std::array<std::string_view, 3> endNames{"whole", "stopped", "failed"};

LastRun::End endOf(const RunContext& run) {
    const auto isBrokenOff = [](const DaySummary& day) { return day.BrokenOff.has_value(); };
    if (run.Outcome.Stopped) return LastRun::End::Stopped;
    const bool isFailed =
        run.Summary.NotBegun || run.Outcome.Broken || std::ranges::any_of(run.Summary.Days, isBrokenOff);
    return isFailed ? LastRun::End::Failed : LastRun::End::Whole;
}

template <class Number>
bool isNumber(std::string_view text, Number& number) {
    const auto [end, error] = std::from_chars(text.data(), text.data() + text.size(), number);
    return error == std::errc() && end == text.data() + text.size();
}

// "HH:MM:SS"
bool isTime(std::string_view text, LocalTime& time) {
    return text.size() == 8 && text[2] == ':' && text[5] == ':' && isNumber(text.substr(0, 2), time.Hour) &&
           isNumber(text.substr(3, 2), time.Minute) && isNumber(text.substr(6, 2), time.Second) && time.Hour < 24 &&
           time.Minute < 60;
}

}  // namespace

LastRun lastRunOf(const RunContext& run) {
    return {run.Summary.Ended, run.Summary.newClippings(), run.Summary.failedFiles(), endOf(run)};
}

std::string lineOf(const LastRun& run) {
    return run.Ended.logText() + " " + std::to_string(run.New) + " " + std::to_string(run.FailedFiles) + " " +
           std::string(endNames.at(static_cast<std::size_t>(run.How))) + "\r\n";
}

std::optional<LastRun> lastRunFrom(std::string_view line) {
    const auto words = Split(line.substr(0, line.find('\r')), " ");
    if (words.size() != 5) return std::nullopt;
    const auto day = Date::fromDayName(words[0]);
    const auto end = std::ranges::find(endNames, words[4]);
    LastRun run;
    if (!day || end == endNames.end() || !isTime(words[1], run.Ended) || !isNumber(words[2], run.New) ||
        !isNumber(words[3], run.FailedFiles))
        return std::nullopt;
    run.Ended.Day = *day;
    run.How = static_cast<LastRun::End>(end - endNames.begin());
    return run;
}

}  // namespace vell
