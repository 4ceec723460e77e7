// SPDX-License-Identifier: MIT
#pragma once

#include <optional>
#include <string>
#include <string_view>
#include <unordered_set>
#include <vector>

#include "log/EventLog.h"
#include "service/DownloadState.h"

namespace vell {

class Files;
class MessageBoxes;
class modGlobal;
class modHTTP;
class RunFeedback;
struct DayState;
struct ListAnswer;
struct Settings;

// Asks the service what there is for the day of the run.
class DownloadList {
  public:
    DownloadList(modHTTP& http, modGlobal& store, Files& files, MessageBoxes& boxes, RunFeedback& feedback,
                 EventLog& log, const Settings& settings, const DayState& day, DownloadState& state,
                 std::string version);

    // Gets the day's list, stores it as the day's index, merged with the old one, and fills the download list. False,
    // with index and articles as they were, when no usable list came.
    bool GetDownloadFiles();
    // Gets the day's alert text and stores it. False, with the old one as it was, when there is none.
    bool GetAlert();

  private:
    [[nodiscard]] bool getList();
    // Nothing when the service gave no answer.
    [[nodiscard]] std::optional<ListAnswer> ask();
    // The login was refused. True when the user has changed it.
    [[nodiscard]] bool mayAskAgain();
    [[nodiscard]] std::string listRequest() const;
    // Gives the articles of which the service has another version than the last time.
    [[nodiscard]] std::unordered_set<std::string> storeIndex(const std::vector<std::string>& records);
    void fillDownloadList(const std::vector<std::string>& records, const std::unordered_set<std::string>& changed);
    void append(DownloadEntry entry);

    modHTTP& http_;
    modGlobal& store_;
    Files& files_;
    MessageBoxes& boxes_;
    RunFeedback& feedback_;
    EventLog& log_;
    const Settings& settings_;
    const DayState& day_;
    DownloadState& state_;
    std::string version_;
};

}  // namespace vell
