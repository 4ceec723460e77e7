// SPDX-License-Identifier: MIT
#pragma once

#include <functional>
#include <string>
#include <vector>

#include "platform/posix/CurlInternet.h"
#include "service/DownloadList.h"
#include "service/RunFeedback.h"
#include "service/modHTTP.h"
#include "tests/support/ServicePeer.h"
#include "tests/support/StoreRig.h"

namespace vell::test {

// The service's client over real requests to a service on loopback.
struct ServiceRig : StoreRig, RunFeedback {
    ServiceRig() {
        setup.Host = "service.example";
        setup.AgentName = "VELL_2.1.37_user:ann";
        std::filesystem::create_directory(day.gDayFolder.substr(0, day.gDayFolder.find('\\')) + "/07032004");
    }
    void StatusBar(std::string_view text) override { status = text; }
    [[nodiscard]] std::string statusText() const override { return status; }
    void displayInfoMessageBox(std::string_view text) override { messages.emplace_back(text); }
    void HTTPDownloadProgress(std::int32_t bytes) override { progress.push_back(bytes); }
    void openSetup() override { onSetup(); }

    ServicePeer service;
    CurlInternet internet{loop, clock};
    modHTTP http{internet, files, boxes, *this, log, setup};
    DownloadState downloads;
    DownloadList list{http, store, files, boxes, *this, log, setup, day, downloads, "2.1.37"};

    std::string status = "before";
    std::vector<std::string> messages;
    std::vector<std::int32_t> progress;
    std::function<void()> onSetup;
};

}  // namespace vell::test
