// SPDX-License-Identifier: MIT
#include "log/EventLog.h"

#include <utility>

#include "platform/Clock.h"

namespace vell {

EventLog::EventLog(const Clock& clock, Files& files) : clock_(clock), files_(files) {}

void EventLog::Start(std::string programFolder, std::string fileName) {
    log_ = std::make_unique<clsLog>(files_, std::move(programFolder));
    log_->setFileName(std::move(fileName));
    log_->onFailure(tell_);
    WriteLog("==========  Program Started ===============");
}

void EventLog::Stop() {
    WriteLog("==========  Program Ended ===============");
    log_.reset();
}

void EventLog::WriteLog(std::string_view message) noexcept {
    if (!log_) return;
    try {
        log_->log(clock_.Now().logText().append(",   ").append(message));
    } catch (...) {
        // Only memory can be short here; a lost line must not stop the work that it tells of.
        static_cast<void>(0);
    }
}

void EventLog::LogError(const RunTimeError& error, std::string_view procedure) noexcept {
    if (log_) log_->LogError(error, procedure);
}

}  // namespace vell
