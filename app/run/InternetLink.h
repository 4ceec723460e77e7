// SPDX-License-Identifier: MIT
#pragma once

namespace vell {

class BrowserView;
class CWinInetConnection;
class EventLog;
class EventLoop;
class MessageBoxes;
class ModRAS;
class RunFeedback;
struct Settings;

// The internet connection around a run: brought up before it, hung up after it where that is wanted. Both ways show
// the busy cursor while they work and let events happen.
class InternetLink {
  public:
    struct Parts {
        const Settings& Setup;
        RunFeedback& Status;
        BrowserView& View;
        MessageBoxes& Boxes;
        EventLoop& Loop;
        EventLog& Log;
        CWinInetConnection& gInet;
        ModRAS& Ras;
    };
    explicit InternetLink(const Parts& parts);

    // True when the machine is on line, or the configured dial-up connection came up.
    [[nodiscard]] bool StartINET();
    // Hangs up a dial-up connection, trying three ways in turn; asks the user first when told so. False only when all
    // failed.
    [[nodiscard]] bool StopINET(bool ask);

  private:
    enum class Refreshing { Yes, No };

    void logFlags();
    [[nodiscard]] bool dial();
    [[nodiscard]] bool isDialUpConnected();
    [[nodiscard]] bool userAgrees();
    [[nodiscard]] bool hangUp(bool ask);
    // One attempt each; true when the connection is down afterwards.
    [[nodiscard]] bool hangUpByWinInet();
    [[nodiscard]] bool hangUpByRas(Refreshing refreshing);
    template <class Body>
    void step(Body&& body);

    Parts p_;
};

}  // namespace vell
