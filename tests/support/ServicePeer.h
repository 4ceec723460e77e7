// SPDX-License-Identifier: MIT
#pragma once

#include <functional>
#include <map>
#include <string>

#include "tests/support/HttpPeer.h"
#include "tests/support/system.h"

namespace vell::test {

// The service "service.example", reached through the proxy that the environment names. What it has no answer for is
// not found.
class ServicePeer {
  public:
    ServicePeer() {
        removeVariable("no_proxy");
        removeVariable("NO_PROXY");
        setVariable("http_proxy", "http://" + peer_.address());
    }
    ~ServicePeer() { removeVariable("http_proxy"); }
    ServicePeer(const ServicePeer&) = delete;
    ServicePeer& operator=(const ServicePeer&) = delete;

    static constexpr const char* listScript = "/vell/vellClipsToDownload.asp";
    static constexpr const char* alertScript = "/sources.asp";
    static std::string pathOf(const std::string& name) { return "/archive/2004/03/07/" + name; }

    // From now on lists N120040307.PDF, N220040307.PDF ... for every day, and has their files.
    void serve(int clippings, std::size_t pdfSize = 1500) {
        Answers[listScript].Bytes = "HTTP/1.0 200 OK\r\n\r\n";
        for (int i = 1; i <= clippings; ++i) {
            const char number = static_cast<char>('0' + i);
            const std::string n(1, number), base = "N" + n + "20040307";
            Answers[listScript].Bytes +=
                base + ".pdf||paper||title " + n + "||cat||type||1||-||" + std::to_string(pdfSize) + "||300||300<br>";
            for (const char* ending : {".PDF", ".TXT", ".MT"})
                Answers[pathOf(base + ending)] = HttpPeer::ok(std::string(ending[1] == 'P' ? pdfSize : 300, number));
        }
        Answers[alertScript] = HttpPeer::ok("strike");
        Answers["/archive/RTIS/ME/NT/ADVERTISMENT.JPG"] = HttpPeer::ok("jpeg");
    }

    std::map<std::string, HttpPeer::Answer> Answers;         // by path
    std::function<void(HttpPeer::Answer&)> BeforeAnswering;  // in the peer's thread
    [[nodiscard]] std::vector<std::string> requests() const { return peer_.requests(); }
    void say(std::string_view bytes) { peer_.say(bytes); }
    [[nodiscard]] std::size_t sentBytes() const { return peer_.sentBytes(); }
    [[nodiscard]] bool wasAskedLastFor(const std::string& name) const {
        return requests().back().find(pathOf(name) + " ") != std::string::npos;
    }

  private:
    HttpPeer::Answer answer(const std::string& request) {
        const auto from = request.find('/', request.find("://") + 3);
        const auto found = Answers.find(request.substr(from, request.find(' ', from) - from));
        auto answer = found == Answers.end() ? HttpPeer::status("404 Not Found") : found->second;
        if (BeforeAnswering) BeforeAnswering(answer);
        return answer;
    }

    HttpPeer peer_{[this](const std::string& request) { return answer(request); }};
};

}  // namespace vell::test
