// SPDX-License-Identifier: MIT
#pragma once

#include <optional>
#include <string>
#include <string_view>
#include <utility>
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
struct Merged;
struct ListAnswer;
struct Settings;

// Asks the service what there is for the day of the run.
class DownloadList {
  public:
    struct Parts {
        modHTTP& Http;
        modGlobal& Store;
        Files& Disk;
        MessageBoxes& Boxes;
        RunFeedback& Feedback;
        EventLog& Log;
        const Settings& Setup;
        const DayState& Day;
        DownloadState& Downloads;
        std::string Version;
    };
    explicit DownloadList(Parts parts) : p_(std::move(parts)) {}

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
    // Removes what the service does not list any more, too.
    [[nodiscard]] Merged storeIndex(const std::vector<std::string>& records);
    // Replaces the index in one step, with nobody's marks lost meanwhile.
    [[nodiscard]] Merged mergeInto(const std::string& path, const std::vector<std::string>& records);
    void fillDownloadList(const std::vector<std::string>& records, const Merged& merged);
    void append(DownloadEntry entry);

    Parts p_;
};

}  // namespace vell
