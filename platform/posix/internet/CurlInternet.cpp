// SPDX-License-Identifier: MIT
#include "platform/posix/internet/CurlInternet.h"

#include <algorithm>
#include <array>
#include <new>
#include <utility>

#include "base/errors.h"
#include "base/text.h"
#include "platform/Clock.h"
#include "platform/EventLoop.h"
#include "platform/internetErrors.h"

namespace vell {

namespace {

constexpr std::int32_t outOfMemory = 8;
constexpr int usualPort = 80;
constexpr std::chrono::milliseconds step{10};

// What an address may not hold as it stands (RFC 3986); "%" stays, the address may be escaped already.
std::string escaped(std::string_view address) {
    constexpr std::string_view unsafe = " \"<>\\^`{|}";
    constexpr std::string_view hex = "0123456789ABCDEF";
    std::string result;
    for (const char c : address) {
        const auto byte = static_cast<unsigned char>(c);
        if (byte > 32 && byte < 127 && unsafe.find(c) == std::string_view::npos)
            result += c;
        else
            result.append({'%', hex[byte >> 4], hex[byte & 15]});
    }
    return result;
}

}  // namespace

struct CurlInternet::Session : Object {
    explicit Session(std::string_view name) : Agent(name) {}
    std::string Agent;
};

struct CurlInternet::Connection : Object {
    std::string Agent;
    std::string Server;  // with scheme, and port where it is not the usual one
    std::string UserName;
    std::string Password;
};

class CurlInternet::Request : public Object {
  public:
    explicit Request(CurlInternet& internet)
        : Transfer(internet.clock_, std::exchange(internet.spare_, {})), internet_(internet) {}
    ~Request() override {
        internet_.leave(Transfer);
        internet_.spare_ = Transfer.release();
    }
    Request(const Request&) = delete;
    Request& operator=(const Request&) = delete;

    CurlTransfer Transfer;

  private:
    CurlInternet& internet_;
};

CurlInternet::CurlInternet(EventLoop& loop, Clock& clock, ProxyChoice proxy)
    : loop_(loop), clock_(clock), proxy_(std::move(proxy), clock) {
    if (curl_global_init(CURL_GLOBAL_DEFAULT) != CURLE_OK) throw std::bad_alloc();
    multi_.reset(curl_multi_init());
    if (!multi_) throw std::bad_alloc();
}

CurlInternet::~CurlInternet() {
    spare_ = {};
    multi_.reset();
    curl_global_cleanup();
}

InternetApi::Handle CurlInternet::InternetOpen(std::string_view agent) {
    unreachedProxy_.clear();
    return std::make_unique<Session>(agent);
}

InternetApi::Handle CurlInternet::InternetConnect(Object& session, std::string_view host, int port,
                                                  std::string_view userName, std::string_view password) {
    if (Trim(host).empty()) {
        lastError_ = internet_error::InvalidUrl;
        return nullptr;
    }
    auto connection = std::make_unique<Connection>();
    connection->Agent = dynamic_cast<Session&>(session).Agent;
    connection->Server = "http://" + std::string(Trim(host));
    if (port != usualPort) connection->Server += ":" + std::to_string(port);
    connection->UserName = userName;
    connection->Password = password;
    return connection;
}

InternetApi::Handle CurlInternet::HttpOpenRequest(Object& connection, std::string_view method, std::string_view object,
                                                  std::string_view /*version*/) {
    const auto& server = dynamic_cast<Connection&>(connection);
    try {
        auto request = newRequest(CurlTransfer::Kind::Script, server.Server + escaped(object), server.Agent);
        request->Transfer.setMethod(std::string(method));
        request->Transfer.setCredentials(server.UserName, server.Password);
        return request;
    } catch (const RunTimeError& error) {
        lastError_ = error.Number;
        return nullptr;
    }
}

bool CurlInternet::HttpAddRequestHeaders(Object& request, std::string_view header) {
    dynamic_cast<Request&>(request).Transfer.setHeader(header);
    return true;
}

bool CurlInternet::HttpSendRequest(Object& request, std::string_view body) {
    CurlTransfer& transfer = dynamic_cast<Request&>(request).Transfer;
    if (!body.empty()) transfer.setBody(body);
    start(transfer);
    return isAnswered(transfer);
}

InternetApi::Handle CurlInternet::InternetOpenUrl(Object& session, std::string_view address) {
    try {
        const std::string& agent = dynamic_cast<Session&>(session).Agent;
        auto request = newRequest(CurlTransfer::Kind::File, escaped(address), agent);
        start(request->Transfer);
        if (!isAnswered(request->Transfer)) return nullptr;
        return request;
    } catch (const RunTimeError& error) {
        lastError_ = error.Number;
        return nullptr;
    }
}

bool CurlInternet::InternetReadFile(Object& request, char* buffer, std::size_t size, std::size_t& read) {
    CurlTransfer& transfer = dynamic_cast<Request&>(request).Transfer;
    read = 0;
    if (transfer.isAbandoned()) return !failed(internet_error::Cancelled);
    if (!transfer.hasBytes()) waitForBytes(transfer);
    if (transfer.hasBytes()) {
        read = transfer.take(buffer, size);
        return true;
    }
    return !failed(transfer.error());
}

std::string CurlInternet::RawHeaders(Object& request, std::size_t size) {
    return dynamic_cast<Request&>(request).Transfer.rawHeaders().substr(0, size);
}

std::string CurlInternet::StatusCode(Object& request) {
    const std::string& headers = dynamic_cast<Request&>(request).Transfer.rawHeaders();
    const std::size_t blank = headers.find(' ');
    return blank == std::string::npos ? std::string{} : headers.substr(blank + 1, 3);
}

std::int64_t CurlInternet::ContentLength(Object& request) {
    return dynamic_cast<Request&>(request).Transfer.announcedLength();
}

void CurlInternet::CancelRequests(Cancel which) {
    constexpr std::chrono::milliseconds none{0}, stalled{1000};
    for (CurlTransfer* transfer : running_)
        transfer->cancelAfterSilenceOf(which == Cancel::Stalled && transfer->isFile() ? stalled : none);
}

std::unique_ptr<CurlInternet::Request> CurlInternet::newRequest(CurlTransfer::Kind kind, const std::string& address,
                                                                const std::string& agent) {
    auto request = std::make_unique<Request>(*this);
    request->Transfer.setKind(kind);
    request->Transfer.setAddress(address);
    request->Transfer.setAgent(agent);
    if (const auto& proxy = proxy_.of(address)) request->Transfer.setProxy(*proxy);
    return request;
}

bool CurlInternet::isAnswered(const CurlTransfer& transfer) {
    const std::int32_t error = transfer.error();
    unreachedProxy_ = transfer.unreachedProxy();
    // An answer that breaks off is an answer; a redirect that leads nowhere is none.
    const bool ledNowhere = error == internet_error::RedirectFailed || error == internet_error::UnknownScheme;
    return !failed(error) || (!transfer.rawHeaders().empty() && !ledNowhere);
}

void CurlInternet::start(CurlTransfer& transfer) {
    transfer.begin();
    if (curl_multi_add_handle(multi_.get(), transfer.handle()) != CURLM_OK) {
        transfer.end(outOfMemory);
        return;
    }
    running_.push_back(&transfer);
    waitForBytes(transfer);
}

void CurlInternet::leave(CurlTransfer& transfer) {
    if (std::erase(running_, &transfer) > 0) curl_multi_remove_handle(multi_.get(), transfer.handle());
}

void CurlInternet::waitForBytes(CurlTransfer& transfer) {
    perform();
    while (!transfer.hasBytes() && !transfer.hasEnded()) {
        loop_.DoEventsNowAndThen();
        // Only what the network does not bring now is silence, and only this is waiting: a handler may have held the
        // loop for minutes.
        const SteadyTime begun = clock_.Steady();
        pause();
        perform();
        transfer.waited(clock_.Steady() - begun);
        const std::int32_t error = transfer.hasBytes() || transfer.hasEnded() ? 0 : transfer.outOfPatience();
        if (error == 0) continue;
        transfer.end(error);
        leave(transfer);
    }
}

void CurlInternet::perform() {
    int stillRunning = 0;
    curl_multi_perform(multi_.get(), &stillRunning);
    int queued = 0;
    while (const CURLMsg* message = curl_multi_info_read(multi_.get(), &queued)) {
        if (message->msg != CURLMSG_DONE) continue;
        char* owner = nullptr;
        curl_easy_getinfo(message->easy_handle, CURLINFO_PRIVATE, &owner);
        reinterpret_cast<CurlTransfer*>(owner)->end(message->data.result);
    }
}

// A moment in which the network may bring something.
void CurlInternet::pause() {
    int ready = 0;
    curl_multi_poll(multi_.get(), nullptr, 0, static_cast<int>(clock_.realLength(step).count()), &ready);
    if (ready == 0) clock_.passed(step);
}

bool CurlInternet::failed(std::int32_t error) {
    if (error != 0) lastError_ = error;
    return error != 0;
}

}  // namespace vell
