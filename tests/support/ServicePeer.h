// SPDX-License-Identifier: MIT
#pragma once

#include <cstdlib>
#include <functional>
#include <map>
#include <string>
#include <vector>

#include "tests/support/HttpPeer.h"

namespace vell::test {

// The service "service.example", reached through the proxy that the environment names. What it has no answer for is
// not found.
class ServicePeer {
  public:
    ServicePeer() {
        for (const char* name : {"no_proxy", "NO_PROXY"})
            unsetenv(name);
        setenv("http_proxy", ("http://" + peer_.address()).c_str(), 1);
    }
    ~ServicePeer() { unsetenv("http_proxy"); }
    ServicePeer(const ServicePeer&) = delete;
    ServicePeer& operator=(const ServicePeer&) = delete;

    static constexpr const char* listScript = "/vell/vellClipsToDownload.asp";
    static constexpr const char* alertScript = "/sources.asp";

    std::map<std::string, HttpPeer::Answer> Answers;         // by path
    std::function<void(HttpPeer::Answer&)> BeforeAnswering;  // in the peer's thread

    [[nodiscard]] std::vector<std::string> requests() const { return peer_.requests(); }
    [[nodiscard]] std::vector<std::string> paths() const {
        std::vector<std::string> asked;
        for (const std::string& request : requests())
            asked.push_back(pathOf(request));
        return asked;
    }

  private:
    [[nodiscard]] static std::string pathOf(const std::string& request) {
        const auto host = request.find("service.example");
        const auto from = request.find('/', host);
        return host == std::string::npos ? request : request.substr(from, request.find(' ', from) - from);
    }
    HttpPeer::Answer answer(const std::string& request) {
        const auto found = Answers.find(pathOf(request));
        auto answer = found == Answers.end() ? HttpPeer::status("404 Not Found") : found->second;
        if (BeforeAnswering) BeforeAnswering(answer);
        return answer;
    }

    HttpPeer peer_{[this](const std::string& request) { return answer(request); }};
};

}  // namespace vell::test
