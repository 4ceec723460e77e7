// SPDX-License-Identifier: MIT
#pragma once

#include <cstddef>
#include <cstdint>
#include <memory>
#include <string>
#include <string_view>

namespace vell {

// The operating system's internet calls, as WinInet has them. Synchronous towards the caller: a call that has to wait
// lets events happen meanwhile. Texts cross as bytes. Failures are results; LastError tells the number.
class InternetApi {
  public:
    // Anything that was opened. Going away closes it.
    class Object {
      public:
        virtual ~Object() = default;
    };
    using Handle = std::unique_ptr<Object>;

    virtual ~InternetApi() = default;

    // A session that uses the system's own proxy settings.
    [[nodiscard]] virtual Handle InternetOpen(std::string_view agent) = 0;
    // A connection for HTTP requests. The credentials answer the server's challenge; empty for none.
    [[nodiscard]] virtual Handle InternetConnect(Object& session, std::string_view host, int port,
                                                 std::string_view userName, std::string_view password) = 0;
    // A request to a script of the server, never to a cache. `version` is "HTTP/1.0". It follows no redirect to
    // another host.
    [[nodiscard]] virtual Handle HttpOpenRequest(Object& connection, std::string_view method, std::string_view object,
                                                 std::string_view version) = 0;
    // Adds one header line ("Name: value" CR LF) or replaces the one of that name.
    virtual bool HttpAddRequestHeaders(Object& request, std::string_view header) = 0;
    // Sends the request with its body and waits for the answer's headers.
    virtual bool HttpSendRequest(Object& request, std::string_view body) = 0;
    // Opens an http or https address with GET, past any cache, and waits for the answer's headers. Follows redirects
    // to http and https, at most ten, and takes no credentials along. The connection may be kept for the next address;
    // one that the server has closed meanwhile is replaced.
    [[nodiscard]] virtual Handle InternetOpenUrl(Object& session, std::string_view address) = 0;

    // Reads at most `size` bytes; `read` 0 with a true result is the end. False when the answer ended before its
    // announced length, when the connection broke, when no byte came for 30 seconds, or fewer than 64 bytes a second
    // over five minutes. A reader may take its time or stop: what is not read waits at the server, but for half a
    // megabyte.
    virtual bool InternetReadFile(Object& request, char* buffer, std::size_t size, std::size_t& read) = 0;
    // The last answer's raw headers, status line first, each line ended by CR LF, cut to `size` bytes; empty when no
    // answer came.
    [[nodiscard]] virtual std::string RawHeaders(Object& request, std::size_t size) = 0;
    // The three digits of the last answer's status; empty when no answer came.
    [[nodiscard]] virtual std::string StatusCode(Object& request) = 0;
    // The announced length of the body, -1 when the answer names none. A hint for the reader's memory, no promise.
    [[nodiscard]] virtual std::int64_t ContentLength(Object& request) = 0;

    // Ends what is under way, with internet_error::Cancelled for whoever waits: requests to scripts, and addresses
    // that have had no byte for a second (Stalled), or everything (All). Requests opened later are not concerned.
    enum class Cancel { Stalled, All };
    virtual void CancelRequests(Cancel which) = 0;

    // The number of the last failure: an internet_error, or the operating system's where it is lower.
    [[nodiscard]] virtual std::int32_t LastError() const = 0;
    // "host:port" of the proxy that the last request was to take, when it failed because that cannot be reached; empty
    // otherwise.
    [[nodiscard]] virtual std::string UnreachedProxy() const = 0;
};

}  // namespace vell
