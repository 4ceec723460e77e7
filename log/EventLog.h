// SPDX-License-Identifier: MIT
#pragma once

#include <functional>
#include <memory>
#include <string>
#include <string_view>
#include <utility>

#include "base/errors.h"
#include "log/clsLog.h"

namespace vell {

class Clock;
class Files;

// The session's one event log. It is silent until Start and after Stop. Never fails towards its caller.
class EventLog : public ErrorLog, public TextLog {
  public:
    EventLog(const Clock& clock, Files& files);

    // Whom to tell, once in a session, that the log cannot be written. To be set before Start.
    void onFailure(std::function<void(std::string_view)> tell) { tell_ = std::move(tell); }
    // From here on lines go to `fileName`. Writes the session's first line.
    void Start(std::string programFolder, std::string fileName);
    // Writes the session's last line.
    void Stop();
    // Lets a caller spare itself the making of a text that nobody would read.
    [[nodiscard]] bool isOn() const { return log_ != nullptr; }

    // One line: date and time, ",   " and the message.
    void WriteLog(std::string_view message) noexcept override;
    // A line without date and time, as clsLog::LogError makes it.
    void LogError(const RunTimeError& error, std::string_view procedure) noexcept override;

  private:
    const Clock& clock_;
    Files& files_;
    std::unique_ptr<clsLog> log_;
    std::function<void(std::string_view)> tell_;
};

}  // namespace vell
