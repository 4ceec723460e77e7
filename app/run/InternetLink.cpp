// SPDX-License-Identifier: MIT
#include "app/run/InternetLink.h"

#include <cstdint>
#include <string>
#include <string_view>
#include <utility>

#include "base/text.h"
#include "config/Settings.h"
#include "log/EventLog.h"
#include "net/CWinInetConnection.h"
#include "net/ModRAS.h"
#include "platform/EventLoop.h"
#include "platform/MessageBoxes.h"
#include "service/Failure.h"
#include "service/RunFeedback.h"
#include "ui/BusyMoment.h"

namespace vell {

namespace {

// INTERNET_DIAL_UNATTENDED: nobody may be there to press "Connect".
constexpr std::uint32_t dialUnattended = 0x8000;

}  // namespace

InternetLink::InternetLink(const Parts& parts) : p_(parts) {}

bool InternetLink::StartINET() {
    const BusyMoment busy(p_.View);
    return trap(p_.Log, "StartINET()", false, [&] {
        p_.gInet.SetGlobalOnline();
        p_.gInet.Refresh();
        logFlags();
        if (p_.gInet.IsConnected()) return true;
        if (p_.gInet.UseModem()) return dial();
        p_.Status.StatusBar("Make sure you are connected to the Internet");
        p_.Log.WriteLog("Error! There is no LAN connection to the internet.");
        p_.Status.failed({Cause::Offline});
        return false;
    });
}

void InternetLink::logFlags() {
    const CWinInetConnection& inet = p_.gInet;
    const auto line = [this](std::string_view label, std::string_view value) {
        p_.Log.WriteLog(std::string(label).append(value));
    };
    p_.Log.WriteLog("StartINET Connection Status Flags: ");
    line("          IsOffline              : ", BooleanText(inet.IsOffline()));
    line("          IsConnectionConfigured : ", BooleanText(inet.IsConnectionConfigured()));
    line("          IsRasInstalled         : ", BooleanText(inet.IsRasInstalled()));
    line("          UseLAN                 : ", BooleanText(inet.UseLAN()));
    line("          UseModem               : ", BooleanText(inet.UseModem()));
    line("          UseProxy               : ", BooleanText(inet.UseProxy()));
    line("          ConnectionName         : ", p_.Setup.DialUp);
}

bool InternetLink::dial() {
    const std::string name = "'" + p_.Setup.DialUp + "' Dial-Up connection.";
    const auto say = [this](const std::string& text) {
        p_.Status.StatusBar(text);
        p_.Log.WriteLog(text);
    };
    say("Starting " + name);
    const bool ok = p_.gInet.Dial(0, p_.Setup.DialUp, dialUnattended, false);
    const std::string reason = p_.gInet.failureReason();
    p_.Loop.DoEvents();
    if (!ok) {
        say("Error starting " + name);
        p_.Status.failed({Cause::Offline, reason.empty() ? p_.Setup.DialUp : reason});
    }
    // The message stays where it is read at leisure, while the status line goes on.
    if (!ok && !reason.empty()) p_.Status.displayInfoMessageBox("Error starting " + name + "\r\n" + reason);
    return ok;
}

bool InternetLink::StopINET(bool ask) {
    const BusyMoment busy(p_.View);
    step([&] { p_.gInet.Refresh(); });
    if (!isDialUpConnected()) return true;
    if (ask && !userAgrees()) return true;
    return hangUp(ask);
}

bool InternetLink::isDialUpConnected() {
    return p_.gInet.IsConnected() && p_.gInet.UseModem();
}

bool InternetLink::userAgrees() {
    Answer answer = Answer::No;
    step([&] {
        answer = p_.Boxes.Show("Do you want to close the dial-up connection?", programCaption, Buttons::YesNo,
                               BoxIcon::None);
    });
    return answer == Answer::Yes;
}

bool InternetLink::hangUp(bool ask) {
    if (hangUpByWinInet()) {
        step([&] { p_.Status.StatusBar("Internet connection closed."); });
        return true;
    }
    p_.Log.WriteLog("ERROR! 1st Attemp to close Internet Connection using WININET AutodialHangup or Hangup failed!");
    if (hangUpByWinInet()) return true;
    p_.Log.WriteLog("ERROR! 2nd Attemp to close Internet Connection using WININET AutodialHangup or Hangup failed!");
    if (hangUpByRas(ask ? Refreshing::Yes : Refreshing::No)) return true;
    p_.Log.WriteLog("ERROR! 3rd Attemp to close Internet Connection using RAS Hangup failed!");
    step([&] { p_.Status.StatusBar("Failed closing internet connection."); });
    return false;
}

bool InternetLink::hangUpByWinInet() {
    step([&] { p_.gInet.AutodialHangup(); });
    step([&] { p_.Loop.DoEvents(); });
    step([&] { p_.gInet.HangUp(); });
    step([&] { p_.Loop.DoEvents(); });
    step([&] { p_.gInet.Refresh(); });
    return !p_.gInet.IsConnected();
}

bool InternetLink::hangUpByRas(Refreshing refreshing) {
    step([&] { p_.Ras.hangUpAll(); });
    step([&] { p_.Loop.DoEvents(); });
    // Without a question the state is read as the last attempt left it: such a hang-up counts as failed even when it
    // worked: rather a warning too many than a line left open unnoticed.
    if (refreshing == Refreshing::Yes) step([&] { p_.gInet.Refresh(); });
    return !p_.gInet.IsConnected();
}

template <class Body>
void InternetLink::step(Body&& body) {
    trapStep(p_.Log, "StopINET()", std::forward<Body>(body));
}

}  // namespace vell
