// SPDX-License-Identifier: MIT
#pragma once

#include <cstdint>
#include <functional>
#include <string>
#include <string_view>
#include <utility>

#include "base/errors.h"

namespace vell {

class Files;

// The log file: appends lines to it, each ended by CR LF. The file is opened and closed for every line, so that it
// survives a crash and can be read while the program runs. Only its owner may read it, since what the service is sent
// stands in it; one that is there already keeps the permissions that it was given. No failure leaves this class: a log
// that cannot be written must never disturb anybody.
class clsLog {
  public:
    // `programFolder` takes the lines when the wanted file cannot be made.
    clsLog(Files& files, std::string programFolder);

    void setFileName(std::string path);
    // The file that lines really go to. Makes an empty one when there is none.
    [[nodiscard]] std::string FileName() noexcept;

    // Called with a text for people when a line could not be written: once, since the next lines will fail as well.
    void onFailure(std::function<void(std::string_view)> tell) { tell_ = std::move(tell); }

    // As logLine makes it.
    void log(std::string_view text) noexcept;
    // Deletes the file.
    void Reset() noexcept;
    // One line that tells all of an error; " in " and the procedure's name at its end when there is one.
    void LogError(const RunTimeError& error, std::string_view procedure) noexcept;
    // The text as one line with its type: 1 error, 2 warning, 4 (and every other number) information.
    void LogEvent(std::string_view text, std::int32_t eventType) noexcept;

  private:
    [[nodiscard]] std::string GetLogFileName();
    void append(std::string_view text);
    void tellOnce(std::string_view reason);

    Files& files_;
    std::string programFolder_;
    std::string fileName_;
    std::function<void(std::string_view)> tell_;
};

}  // namespace vell
