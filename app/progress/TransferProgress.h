// SPDX-License-Identifier: MIT
#pragma once

#include <chrono>
#include <cstdint>
#include <string>
#include <string_view>

#include "log/EventLog.h"
#include "service/RunFeedback.h"
#include "ui/Pacer.h"

namespace vell {

class EventLoop;
class MainView;
struct Session;

// Twenty pictures a second are as many as an eye needs; more would cost the run its speed.
inline constexpr std::chrono::milliseconds usualPaintInterval{50};

// Turns what the transfers report into the status line, the bars and the log. The counters follow every report; the
// showing is thinned to what an eye can follow, since painting every 2 KB makes a run many times slower. With the log
// on every report is shown, as it is logged.
class TransferProgress : public RunFeedback {
  public:
    TransferProgress(Session& session, MainView& view, EventLoop& loop, const Clock& clock, EventLog& log,
                     std::chrono::milliseconds paintInterval);

    void StatusBar(std::string_view text) override;
    [[nodiscard]] std::string statusText() const override { return statusText_; }
    void displayInfoMessageBox(std::string_view text) override;
    void HTTPDownloadProgress(std::int32_t bytes) override;
    void failed(const Failure& failure) override;
    void openSetup() override;

    // The run of a day begins: the bars are empty. They are full only when it has ended well.
    void dayBegins();
    void dayEnded(bool well);
    // An attempt at a file has failed: its bytes come once more, and do not count twice.
    void attemptFailed();
    // An attempt at a file begins.
    void attemptBegins();
    // The current file needs no attempt. When it is the last one, that is the end.
    void fileIsHere();

    // The file of the list that is being fetched, as the status texts name it: "(clipping/clippings)".
    [[nodiscard]] std::string clippingCounter() const;

  private:
    // Gives what has come since the last report.
    std::int32_t count(std::int32_t bytes);
    [[nodiscard]] bool mayShow(std::int32_t came);
    void show(std::int32_t bytes);
    [[nodiscard]] bool isAtLastFile() const;
    [[nodiscard]] std::string endText() const;
    void tell(const std::string& text);
    [[nodiscard]] std::string statusOf(std::int32_t bytes) const;

    Session& session_;
    MainView& view_;
    EventLoop& loop_;
    EventLog& log_;
    Pacer pacer_;
    std::string statusText_;
    std::int64_t ofAttempt_ = 0;  // bytes that it has counted
    std::int32_t unseen_ = 0;     // bytes since the clock was looked at
};

}  // namespace vell
