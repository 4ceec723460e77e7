// SPDX-License-Identifier: MIT
#pragma once

#include <string>

#include "log/EventLog.h"
#include "service/Failure.h"
#include "service/RunFeedback.h"
#include "service/modHTTP.h"
#include "ui/Pacer.h"
#include "update/UpdateManifest.h"
#include "update/UpdateView.h"
#include "update/frmUpdate.h"

namespace vell {

class MainView;
class modIni;
struct BuildFacts;
struct Platform;
struct Session;

// The update of the program as part of the session: after a run, or when a person asks. What the service says to it is
// no matter of the run, and is not shown as one.
class LiveUpdate : public UpdateView, public RunFeedback {
  public:
    struct Parts {
        const Platform& Os;
        Session& State;
        MainView& View;
        modIni& Ini;
        EventLog& Log;
        RunFeedback& Progress;
        const BuildFacts& Facts;
    };
    explicit LiveUpdate(const Parts& parts);

    // Where the program's files are known to lie, backslash at the end.
    void setProgramFolder(const std::string& folder) { update_.setProgramFolder(folder); }

    // At the end of a run, once in a download of several days.
    void afterRun();
    // Somebody asks, and gets an answer. Nothing happens while a download is under way.
    frmUpdate::End mnuCheckUpdate_Click();
    frmUpdate::End look();
    frmUpdate::End fetch();

    [[nodiscard]] bool mayAsk() const override;
    [[nodiscard]] bool isStopped() const override;
    void tell(std::string_view text) override;
    void fetchBegins(const UpdateManifest& manifest) override;
    void fetched(std::int32_t bytes) override { HTTPDownloadProgress(bytes); }
    void fetchEnds() override;
    [[nodiscard]] std::string exchangeFault() const override;

    void StatusBar(std::string_view /*text*/) override {}
    [[nodiscard]] std::string statusText() const override { return p_.Progress.statusText(); }
    void displayInfoMessageBox(std::string_view /*text*/) override {}
    void HTTPDownloadProgress(std::int32_t bytes) override;
    void failed(const Failure& failure) override { fault_ = failure; }
    void openSetup() override {}

  private:
    template <class Work>
    frmUpdate::End asked(Work&& work);
    void show(std::int32_t bytes);

    Parts p_;
    modHTTP http_;
    frmUpdate update_;
    Pacer pacer_;
    UpdateManifest fetched_;   // what is being fetched
    std::int32_t bytes_ = -1;  // of it, at the last report
    std::string status_;       // what the status line said before
    Failure fault_;
};

}  // namespace vell
