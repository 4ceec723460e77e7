// SPDX-License-Identifier: MIT
#include "app/progress/TransferProgress.h"

#include <algorithm>
#include <cmath>

#include "app/MainView.h"
#include "app/Session.h"
#include "base/text.h"
#include "platform/EventLoop.h"

namespace vell {

namespace {

constexpr std::int64_t kilobyte = 1024;
constexpr double filesPerClipping = 3;

std::int32_t entrySize(const Session& session) {
    const DownloadEntry* entry = session.currentEntry();
    return entry == nullptr ? 0 : entry->Size;
}

int percentOf(std::int64_t part, std::int64_t whole) {
    if (whole == 0) throw RunTimeError(error_number::DivisionByZero, "Division by zero");
    return static_cast<int>(
        std::clamp(std::trunc(static_cast<double>(part) / static_cast<double>(whole) * 100), 0.0, 100.0));
}

std::string kilobytes(std::int64_t bytes) {
    return std::to_string(bytes / kilobyte);
}

// Clippings that the list holds, fractions included: its first entry is the advertisement.
std::string clippingTotal(const Session& session) {
    return NumberText((static_cast<double>(session.Downloads.gDownloadList.size()) - 1) / filesPerClipping);
}

}  // namespace

TransferProgress::TransferProgress(Session& session, MainView& view, EventLoop& loop, const Clock& clock, EventLog& log,
                                   std::chrono::milliseconds paintInterval)
    : session_(session), view_(view), loop_(loop), log_(log), pacer_(clock, paintInterval) {}

void TransferProgress::StatusBar(std::string_view text) {
    statusText_ = text;
    std::erase_if(statusText_, [](char c) { return c == '\r' || c == '\n'; });
    view_.showStatus(statusText_);
}

void TransferProgress::displayInfoMessageBox(std::string_view text) {
    session_.Run.Told = text;
    view_.displayInfoMessageBox(text);
}

void TransferProgress::dayBegins() {
    view_.showProgress(0, 0);
}

void TransferProgress::dayEnded(bool well) {
    constexpr int full = 100;
    const DownloadState& downloads = session_.Downloads;
    const auto came = [&] { return percentOf(downloads.gBytesDownloaded, downloads.gTotalBytes); };
    if (well)
        view_.showProgress(full, full);
    else
        view_.showProgress(0, downloads.gTotalBytes > 0 ? std::min(came(), full - 1) : 0);
}

void TransferProgress::failed(const Failure& failure) {
    session_.Run.LastFailure = failure;
}

void TransferProgress::openSetup() {
    view_.openSetup();
    session_.Run.Setup = session_.Setup;
}

std::string TransferProgress::clippingCounter() const {
    return "(" + NumberText(std::floor(session_.gCurrentFileIndex / filesPerClipping)) + "/" + clippingTotal(session_) +
           ")";
}

void TransferProgress::HTTPDownloadProgress(std::int32_t bytes) {
    const std::int32_t came = count(bytes);
    const bool ended = session_.gLastProgressBytes == 0;
    if (!ended && !log_.isOn() && !mayShow(came)) return;
    trapStep(log_, "HTTPDownloadProgress()", [&] { pacer_.run([&] { show(bytes); }); });
    loop_.DoEventsNowAndThen();
}

void TransferProgress::attemptBegins() {
    ofAttempt_ = 0;
    session_.Run.LastFailure = {};
}

void TransferProgress::attemptFailed() {
    session_.Downloads.gBytesDownloaded -= ofAttempt_;
    session_.gLastProgressBytes = 0;
    ofAttempt_ = 0;
}

void TransferProgress::fileIsHere() {
    if (session_.Run.Setup.UseHTTP && isAtLastFile()) tell(endText());
}

// While whole steps come, more is at hand already, and a look at the clock for each would be a good part of their cost.
bool TransferProgress::mayShow(std::int32_t came) {
    constexpr std::int32_t wholeStep = 2048;
    constexpr std::int32_t most = 64 * 1024;
    unseen_ += came;
    if (came >= wholeStep && unseen_ < most) return false;
    unseen_ = 0;
    return pacer_.isDue();
}

std::int32_t TransferProgress::count(std::int32_t bytes) {
    std::int32_t& last = session_.gLastProgressBytes;
    const std::int32_t came = last <= bytes ? bytes - last : bytes;
    session_.Downloads.gBytesDownloaded += came;
    ofAttempt_ += came;
    last = last == bytes ? 0 : bytes;
    return came;
}

void TransferProgress::show(std::int32_t bytes) {
    const DownloadState& downloads = session_.Downloads;
    view_.showProgress(percentOf(bytes, entrySize(session_)),
                       percentOf(downloads.gBytesDownloaded, downloads.gTotalBytes));
    tell(statusOf(bytes));
}

void TransferProgress::tell(const std::string& text) {
    StatusBar(text);
    log_.WriteLog("HTTP-->" + text);
}

bool TransferProgress::isAtLastFile() const {
    return session_.gCurrentFileIndex == static_cast<std::int32_t>(session_.Downloads.gDownloadList.size());
}

std::string TransferProgress::endText() const {
    return "Finished: " + std::to_string(session_.gClippingsDownloaded) + " of " + clippingTotal(session_) +
           " clippings downloaded.";
}

std::string TransferProgress::statusOf(std::int32_t bytes) const {
    if (isAtLastFile() && session_.gLastProgressBytes == 0) return endText();
    const DownloadState& downloads = session_.Downloads;
    return clippingCounter() + " Downloading " + session_.currentFile() + " (" + kilobytes(bytes) + "/" +
           kilobytes(entrySize(session_)) + "kb), Total kb downloaded: " + kilobytes(downloads.gBytesDownloaded) + "/" +
           kilobytes(downloads.gTotalBytes) + "kb";
}

}  // namespace vell
