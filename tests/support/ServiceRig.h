// SPDX-License-Identifier: MIT
#pragma once

#include <functional>
#include <string>

#include "platform/posix/CurlInternet.h"
#include "service/DownloadList.h"
#include "service/RunFeedback.h"
#include "service/modHTTP.h"
#include "tests/support/ServicePeer.h"
#include "tests/support/StoreRig.h"

namespace vell::test {

// The service's client, with real requests to a service on loopback.
struct ServiceRig : StoreRig, RunFeedback {
    ServiceRig() {
        setup.Host = "service.example";
        setup.AgentName = "VELL_2.1.37_user:ann";
        files.MakeFolder(day.gDayFolder);
    }
    void StatusBar(std::string_view text) override { status = text; }
    [[nodiscard]] std::string statusText() const override { return status; }
    void displayInfoMessageBox(std::string_view text) override { messages = text; }
    void HTTPDownloadProgress(std::int32_t bytes) override { progress += std::to_string(bytes) + " "; }
    void openSetup() override { onSetup(); }

    ServicePeer service;
    CurlInternet internet{loop, clock};
    modHTTP http{internet, files, boxes, *this, log, setup};
    DownloadState downloads;
    DownloadList list{http, store, files, boxes, *this, log, setup, day, downloads, "2.1.37"};
    std::string status = "before", messages, progress;
    std::function<void()> onSetup;
};

}  // namespace vell::test
