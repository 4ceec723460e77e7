// SPDX-License-Identifier: MIT
#pragma once

#include <functional>
#include <memory>
#include <string>
#include <vector>

#include <curl/curl.h>

#include "platform/InternetApi.h"
#include "platform/posix/internet/CurlTransfer.h"
#include "platform/posix/internet/ProxyMemory.h"

namespace vell {

class Clock;
class EventLoop;

// The internet calls over libcurl, with the error numbers of WinInet. All transfers run on one multi handle, which
// keeps resolved names, and connections for files, between them.
class CurlInternet : public InternetApi {
  public:
    CurlInternet(EventLoop& loop, Clock& clock, ProxyChoice proxy = systemProxy);
    ~CurlInternet() override;
    CurlInternet(const CurlInternet&) = delete;
    CurlInternet& operator=(const CurlInternet&) = delete;

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

    [[nodiscard]] std::unique_ptr<Request> newRequest(CurlTransfer::Kind kind, const std::string& address,
                                                      const std::string& agent);
    // True when the transfer, ended or not, has brought an answer; keeps its error otherwise.
    [[nodiscard]] bool isAnswered(const CurlTransfer& transfer);
    // Adds the transfer to what runs and waits for the first byte of its body, or its end.
    void start(CurlTransfer& transfer);
    void leave(CurlTransfer& transfer);
    // Lets the transfer go on, and events happen, until it has bytes or has ended.
    void waitForBytes(CurlTransfer& transfer);
    void perform();
    void pause();
    bool failed(std::int32_t error);

    struct MultiDeleter {
        void operator()(CURLM* multi) const { curl_multi_cleanup(multi); }
    };

    EventLoop& loop_;
    Clock& clock_;
    ProxyMemory proxy_;
    std::unique_ptr<CURLM, MultiDeleter> multi_;
    std::vector<CurlTransfer*> running_;
    CurlTransfer::Kit spare_;
    std::int32_t lastError_ = 0;
    std::string unreachedProxy_;
};

}  // namespace vell
