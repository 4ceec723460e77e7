// SPDX-License-Identifier: MIT
#include "app/failures/runMessage.h"

#include <algorithm>
#include <string>

#include "app/RunContext.h"
#include "app/failures/failureText.h"
#include "base/text.h"
#include "platform/Translations.h"

namespace vell {

namespace {

// The days that one cause has broken off.
struct BrokenDays {
    Failure Why;
    std::vector<Date> Days;
};

std::vector<BrokenDays> brokenDays(const RunSummary& run) {
    std::vector<BrokenDays> causes;
    for (const DaySummary& day : run.Days) {
        if (!day.BrokenOff) continue;
        auto cause = std::ranges::find(causes, *day.BrokenOff, &BrokenDays::Why);
        if (cause == causes.end()) cause = causes.insert(cause, {*day.BrokenOff, {}});
        cause->Days.push_back(day.Day);
    }
    return causes;
}

// "05/03/2004, 06/03/2004"; of many the first and the last.
std::string daysText(const std::vector<Date>& days) {
    constexpr std::size_t mostNamed = 3;
    if (days.size() > mostNamed) return days.front().dayName() + " ... " + days.back().dayName();
    std::string text;
    for (const Date& day : days)
        text += (text.empty() ? "" : ", ") + day.dayName();
    return text;
}

bool isAmong(Cause cause, std::initializer_list<Cause> causes) {
    return std::ranges::find(causes, cause) != causes.end();
}

// The setting with which it has to do.
std::optional<SettingField> settingOf(Cause cause) {
    if (isAmong(cause, {Cause::NoHost, Cause::NameNotFound, Cause::NoAnswer, Cause::BadAnswer, Cause::ServiceStatus}))
        return &Settings::Host;
    if (isAmong(cause, {Cause::NoFolder, Cause::FolderMissing, Cause::FolderUnwritable})) return &Settings::LocalDir;
    if (cause == Cause::LoginRefused) return &Settings::Pwd;
    return std::nullopt;
}

// Trying again is of no use before the setting is another.
bool callsForSetup(Cause cause) {
    return isAmong(cause, {Cause::NoHost, Cause::LoginRefused, Cause::NoFolder, Cause::FolderMissing});
}

void addActions(Message& message, Cause cause) {
    const auto offer = [&](MessageAction action) {
        if (std::ranges::find(message.Actions, action) == message.Actions.end()) message.Actions.push_back(action);
    };
    if (callsForSetup(cause)) offer(MessageAction::Setup);
    offer(MessageAction::TryAgain);
    if (!settingOf(cause)) return;
    offer(MessageAction::Setup);
    if (!message.Setting) message.Setting = settingOf(cause);
}

// "3 files failed.", and why if it is the same for all.
std::string countText(const std::vector<const FailedFile*>& files, const Translations& words) {
    const std::string count = Replace(words.translate("%s file failed.", "%s files failed.", files.size()), "%s",
                                      std::to_string(files.size()));
    const Failure& why = files.front()->Why;
    const bool isSame = std::ranges::all_of(files, [&](const FailedFile* file) { return file->Why == why; });
    return isSame ? count + " " + failureText(why, words, files.size()) : count;
}

std::vector<const FailedFile*> failedFiles(const RunSummary& run) {
    std::vector<const FailedFile*> files;
    for (const DaySummary& day : run.Days)
        for (const FailedFile& file : day.FailedFiles)
            files.push_back(&file);
    return files;
}

void tellFiles(Message& message, const RunSummary& run, const Translations& words) {
    const auto files = failedFiles(run);
    if (files.empty()) return;
    message.Text += (message.Text.empty() ? "" : "\n") + countText(files, words);
    message.Actions.insert(message.Actions.begin(), MessageAction::ShowFailedFiles);
    addActions(message, files.front()->Why.Why);
    for (const FailedFile* file : files)
        message.Details.push_back((run.Days.size() > 1 ? file->Day.dayName() + " " : "") + file->Name + ": " +
                                  failureText(file->Why, words));
}

// A service that answers with a failure has been told of already. The message stays as it was, and gets its actions.
std::string textOf(const Failure& why, const RunContext& run, const Translations& words) {
    const bool isTold = why.Why == Cause::ServiceStatus && run.Summary.Days.size() == 1 && !run.Told.empty();
    return isTold ? run.Told : failureText(why, words);
}

void tellDays(Message& message, const RunContext& run, const Translations& words) {
    for (const BrokenDays& cause : brokenDays(run.Summary)) {
        message.Text += (message.Text.empty() ? "" : "\n") +
                        (run.Summary.Days.size() > 1 ? daysText(cause.Days) + ": " : "") +
                        textOf(cause.Why, run, words);
        addActions(message, cause.Why.Why);
    }
}

}  // namespace

std::optional<Message> runMessage(const RunContext& run, const Translations& words) {
    Message message{.Weight = Message::Kind::Failure, .About = Message::Topic::Run, .When = run.Summary.Ended};
    if (run.Summary.NotBegun) {
        message.Text = failureText(*run.Summary.NotBegun, words);
        addActions(message, run.Summary.NotBegun->Why);
    }
    tellDays(message, run, words);
    tellFiles(message, run.Summary, words);
    if (message.Text.empty()) return std::nullopt;
    return message;
}

}  // namespace vell
