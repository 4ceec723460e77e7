// SPDX-License-Identifier: MIT
#pragma once

#include <memory>
#include <vector>

#include "platform/InternetApi.h"
#include "platform/windows/internet/WinInetRequest.h"

namespace vell {

class Clock;
class EventLoop;

// The internet calls on WinINet, which keeps connections for files between them.
class WinInetInternet : public InternetApi {
  public:
    WinInetInternet(EventLoop& loop, Clock& clock) : loop_(loop), clock_(clock) {}
    ~WinInetInternet() override;
    WinInetInternet(const WinInetInternet&) = delete;
    WinInetInternet& operator=(const WinInetInternet&) = delete;

    [[nodiscard]] Handle InternetOpen(std::string_view agent) override;
    [[nodiscard]] Handle InternetConnect(Object& session, std::string_view host, int port, std::string_view userName,
                                         std::string_view password) override;
    [[nodiscard]] Handle HttpOpenRequest(Object& connection, std::string_view method, std::string_view object,
                                         std::string_view version) override;
    bool HttpAddRequestHeaders(Object& request, std::string_view header) override;
    bool HttpSendRequest(Object& request, std::string_view body) override;
    [[nodiscard]] Handle InternetOpenUrl(Object& session, std::string_view address) override;
    bool InternetReadFile(Object& request, char* buffer, std::size_t size, std::size_t& read) override;
    [[nodiscard]] std::string RawHeaders(Object& request, std::size_t size) override;
    [[nodiscard]] std::string StatusCode(Object& request) override;
    [[nodiscard]] std::int64_t ContentLength(Object& request) override;
    void CancelRequests(Cancel which) override;
    [[nodiscard]] std::int32_t LastError() const override { return lastError_; }
    [[nodiscard]] std::string UnreachedProxy() const override { return unreachedProxy_; }

  private:
    struct Session;
    struct Connection;
    class Request;

    // True when the request, ended or not, has brought an answer; keeps its error otherwise.
    [[nodiscard]] bool isAnswered(Request& request);
    // Waits for the first byte of the body, or the end.
    void start(Request& request);
    void waitForBytes(Request& request);
    void pause(const Request& request, const WinInetRequest::State& known);
    bool failed(std::int32_t error);

    EventLoop& loop_;
    Clock& clock_;
    std::vector<Request*> running_;
    std::int32_t lastError_ = 0;
    std::string unreachedProxy_;
};

}  // namespace vell
