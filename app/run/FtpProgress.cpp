// SPDX-License-Identifier: MIT
#include "app/run/FtpProgress.h"

#include <array>

#include "app/Session.h"
#include "app/run/TransferProgress.h"
#include "base/text.h"
#include "platform/EventLoop.h"

namespace vell {

namespace {

constexpr std::string_view origin = "FTP-->";
constexpr std::int32_t transferFinished = 10;

struct StateText {
    std::string_view Text;
    bool InStatusLine;
};

constexpr std::array<StateText, 10> stateTexts{{
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

void FtpProgress::StateChanged(std::int32_t state) {
    loop_.DoEvents();
    std::string text = "State: " + std::to_string(state);
    bool inStatusLine = false;
    if (state == transferFinished) {
        text = "Transfer of " + fileCounter() + " " + session_.currentFile() + " completed.";
        inStatusLine = true;
    } else if (state >= 0 && state < transferFinished) {
        text = stateTexts[static_cast<std::size_t>(state)].Text;
        inStatusLine = stateTexts[static_cast<std::size_t>(state)].InStatusLine;
    }
    log_.WriteLog(std::string(origin) + text);
    if (inStatusLine) progress_.StatusBar(text);
}

void FtpProgress::DownloadProgress(std::int32_t bytes) {
    if (DownloadEntry* entry = session_.currentEntry()) entry->IsOutdated = false;  // what lies there now is new
    if (log_.isOn() || pacer_.isDue()) {
        pacer_.run([&] {
            const std::string text =
                fileCounter() + "  Downloading " + session_.currentFile() + " (" + std::to_string(bytes) + ")";
            progress_.StatusBar(text);
            log_.WriteLog(std::string(origin) + text);
        });
    }
    loop_.DoEvents();
}

void FtpProgress::ReplyMessage(std::string_view text) {
    loop_.DoEvents();
    const std::string line = Replace(text, "\r\n", "");
    if (!Trim(line).empty()) log_.WriteLog(std::string(origin).append(Trim(line)));
}

std::string FtpProgress::fileCounter() const {
    return "(" + std::to_string(session_.gCurrentFileIndex) + "/" +
           std::to_string(session_.Downloads.gDownloadList.size()) + ")";
}

}  // namespace vell
