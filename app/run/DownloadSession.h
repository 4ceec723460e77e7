// SPDX-License-Identifier: MIT
#pragma once

#include <functional>
#include <optional>
#include <utility>
#include <vector>

#include "app/RunContext.h"
#include "base/Date.h"
#include "log/EventLog.h"

namespace vell {

class Clock;
class DownloadRun;
class InternetLink;
struct Session;

// A download of one day or of several: the internet connection is brought up before it and, where that is wanted, hung
// up after it. One at a time, whoever starts it.
class DownloadSession {
  public:
    DownloadSession(Session& session, InternetLink& link, DownloadRun& run, EventLog& log, const Clock& clock)
        : session_(session), link_(link), run_(run), log_(log), clock_(clock) {}

    // Whom to tell how a download went, each time, when all of it is over. No events happen meanwhile.
    void onEnd(std::function<void(const RunContext& run)> tell) { listeners_.push_back(std::move(tell)); }

    // Asked for the day after each one that was fetched; nothing for the end.
    using NextDay = std::function<std::optional<Date>()>;
    // False, with nothing done, while another one is under way or the program ends. How it went is told by the
    // session's context.
    // `only`: see RunContext::Only.
    bool RunDownloadSession(Starter begunBy, const Date& first, const NextDay& next = nullptr,
                            std::vector<FailedFile> only = {});

  private:
    void runWhole(RunContext run, const NextDay& next);
    [[nodiscard]] bool connect();
    void runDays(const Date& first, const NextDay& next);
    void hangUp();

    Session& session_;
    InternetLink& link_;
    DownloadRun& run_;
    EventLog& log_;
    const Clock& clock_;
    std::vector<std::function<void(const RunContext& run)>> listeners_;
};

}  // namespace vell
