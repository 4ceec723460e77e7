// SPDX-License-Identifier: MIT
#include "app/progress/FtpProgress.h"

#include <array>

#include "app/Session.h"
#include "app/progress/TransferProgress.h"
#include "base/text.h"
#include "platform/EventLoop.h"

namespace vell {

namespace {

constexpr std::string_view origin = "FTP-->";

struct StateText {
    std::string_view Text;
    bool InStatusLine;
};

// Of the states before the last one, whose text names the file.
constexpr std::array<StateText, static_cast<std::size_t>(FtpState::TransferFinished)> stateTexts{{
    {"Resolving host...", true},
    {"Host resolved", true},
    {"Connected", true},
    {"Authentication...", true},
    {"You are logged in. Connection ready.", true},
    {"Establishing data connection...", false},
    {"Data connection established.", false},
    {"Retrieving directory info...", false},
    {"Directory listing completed.", false},
    {"Transfer in progress...", true},
}};

}  // namespace

FtpProgress::FtpProgress(Session& session, TransferProgress& progress, EventLoop& loop, const Clock& clock,
                         EventLog& log, std::chrono::milliseconds paintInterval)
    : session_(session), progress_(progress), loop_(loop), log_(log), pacer_(clock, paintInterval) {}

void FtpProgress::StateChanged(FtpState state) {
    loop_.DoEventsNowAndThen();
    const auto number = static_cast<std::size_t>(state);
    std::string text = "State: " + std::to_string(static_cast<std::int32_t>(state));
    bool inStatusLine = false;
    if (state == FtpState::TransferFinished) {
        text = "Transfer of " + fileCounter() + " " + session_.currentFile() + " completed.";
        inStatusLine = true;
    } else if (number < stateTexts.size()) {
        text = stateTexts[number].Text;
        inStatusLine = stateTexts[number].InStatusLine;
    }
    log_.WriteLog(std::string(origin) + text);
    if (inStatusLine) progress_.StatusBar(text);
}

void FtpProgress::DownloadProgress(std::int32_t bytes) {
    if (log_.isOn() || pacer_.isDue()) {
        pacer_.run([&] {
            const std::string text =
                fileCounter() + "  Downloading " + session_.currentFile() + " (" + std::to_string(bytes) + ")";
            progress_.StatusBar(text);
            log_.WriteLog(std::string(origin) + text);
        });
    }
    loop_.DoEventsNowAndThen();
}

void FtpProgress::ReplyMessage(std::string_view text) {
    loop_.DoEventsNowAndThen();
    const std::string line = Replace(text, "\r\n", "");
    if (!Trim(line).empty()) log_.WriteLog(std::string(origin).append(Trim(line)));
}

std::string FtpProgress::fileCounter() const {
    return "(" + std::to_string(session_.gCurrentFileIndex) + "/" +
           std::to_string(session_.Downloads.gDownloadList.size()) + ")";
}

}  // namespace vell
