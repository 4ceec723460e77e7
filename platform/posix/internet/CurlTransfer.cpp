// SPDX-License-Identifier: MIT
#include "platform/posix/internet/CurlTransfer.h"

#include <algorithm>
#include <new>
#include <utility>

#include "base/errors.h"
#include "base/text.h"
#include "platform/common/environmentProxy.h"
#include "platform/internetErrors.h"

namespace vell {

namespace {

constexpr std::chrono::seconds longestSilence{30};
// A server that brings 64 bytes a second at least has a portion ready in time.
constexpr std::chrono::minutes longestForPortion{5};
constexpr std::size_t wholePortion = std::size_t{64} * 300;
constexpr int usualProxyPort = 1080;  // which the library takes
constexpr long mostRedirects = 10;
constexpr long receiveSize = 256L << 10;
// A reader that falls behind makes the server wait, not the memory grow.
constexpr std::size_t mostBuffered = 512U << 10;

std::int32_t errorOf(CURLcode result) {
    switch (result) {
        case CURLE_OK:
            return 0;
        case CURLE_URL_MALFORMAT:
            return internet_error::InvalidUrl;
        case CURLE_UNSUPPORTED_PROTOCOL:
            return internet_error::UnknownScheme;
        case CURLE_COULDNT_RESOLVE_HOST:
        case CURLE_COULDNT_RESOLVE_PROXY:
            return internet_error::NameNotResolved;
        case CURLE_COULDNT_CONNECT:
        case CURLE_PROXY:
            return internet_error::CannotConnect;
        case CURLE_OPERATION_TIMEDOUT:
            return internet_error::Timeout;
        case CURLE_PARTIAL_FILE:
        case CURLE_GOT_NOTHING:
        case CURLE_SEND_ERROR:
            return internet_error::ConnectionAborted;
        case CURLE_RECV_ERROR:
            return internet_error::ConnectionReset;
        case CURLE_WEIRD_SERVER_REPLY:
        case CURLE_HTTP2:
            return internet_error::InvalidResponse;
        case CURLE_TOO_MANY_REDIRECTS:
            return internet_error::RedirectFailed;
        case CURLE_SSL_CONNECT_ERROR:
            return internet_error::SecureChannel;
        case CURLE_PEER_FAILED_VERIFICATION:
            return internet_error::CertificateRefused;
        case CURLE_OUT_OF_MEMORY:
            return 8;
        default:
            return internet_error::Internal;
    }
}

}  // namespace

CurlTransfer::CurlTransfer(const Clock& clock, Kit kit)
    : clock_(clock),
      easy_(std::move(kit.Easy)),
      buffer_(std::move(kit.Buffer)),
      lastByte_(clock.Steady()),
      patience_(longestSilence) {
    if (!easy_) easy_.reset(curl_easy_init());
    if (!easy_) throw std::bad_alloc();
    set(CURLOPT_PRIVATE, this);
    set(CURLOPT_WRITEFUNCTION, &CurlTransfer::onBody);
    set(CURLOPT_WRITEDATA, this);
    set(CURLOPT_HEADERFUNCTION, &CurlTransfer::onHeader);
    set(CURLOPT_HEADERDATA, this);
    set(CURLOPT_NOSIGNAL, 1L);
    set(CURLOPT_QUICK_EXIT, 1L);  // the end of a request must not wait for a name server
    set(CURLOPT_BUFFERSIZE, receiveSize);
    set(CURLOPT_PROTOCOLS_STR, "http,https");
    set(CURLOPT_REDIR_PROTOCOLS_STR, "http,https");
    set(CURLOPT_FOLLOWLOCATION, 1L);
    set(CURLOPT_MAXREDIRS, mostRedirects);
    set(CURLOPT_SUPPRESS_CONNECT_HEADERS, 1L);
    set(CURLOPT_CONNECTTIMEOUT, static_cast<long>(longestSilence.count()));
    setHeader("Pragma: no-cache");  // what is between us and the server must not answer from memory
}

CurlTransfer::Kit CurlTransfer::release() {
    buffer_.clear();
    // The library forgets not all of what went wrong: after a redirect to where it may not go, the next one fails too.
    if (result_ != 0) return {nullptr, std::move(buffer_)};
    curl_easy_reset(easy_.get());
    return {std::move(easy_), std::move(buffer_)};
}

template <class Value>
void CurlTransfer::set(CURLoption option, Value value) {
    if (const CURLcode result = curl_easy_setopt(easy_.get(), option, value); result != CURLE_OK)
        throw RunTimeError(errorOf(result), curl_easy_strerror(result), "libcurl");
}

void CurlTransfer::setKind(Kind kind) {
    kind_ = kind;
    const bool alone = kind == Kind::Script;
    set(CURLOPT_HTTP_VERSION, static_cast<long>(alone ? CURL_HTTP_VERSION_1_0 : CURL_HTTP_VERSION_1_1));
    set(CURLOPT_FRESH_CONNECT, alone ? 1L : 0L);
    set(CURLOPT_FORBID_REUSE, alone ? 1L : 0L);
}

void CurlTransfer::setProxy(const std::string& proxy) {
    set(CURLOPT_PROXY, proxy.c_str());
    proxy_ = proxy;
}

void CurlTransfer::setAddress(const std::string& address) {
    set(CURLOPT_URL, address.c_str());
}

void CurlTransfer::setAgent(const std::string& agent) {
    set(CURLOPT_USERAGENT, agent.c_str());
}

void CurlTransfer::setMethod(const std::string& method) {
    if (method == "POST") {
        set(CURLOPT_POST, 1L);
        setBody({});
    } else if (method != "GET") {
        set(CURLOPT_CUSTOMREQUEST, method.c_str());
    }
}

void CurlTransfer::setCredentials(const std::string& userName, const std::string& password) {
    if (userName.empty() && password.empty()) return;
    set(CURLOPT_USERNAME, userName.c_str());
    set(CURLOPT_PASSWORD, password.c_str());
    set(CURLOPT_HTTPAUTH, CURLAUTH_ANY);  // of several kinds none is sent before the server asks
}

void CurlTransfer::setHeader(std::string_view header) {
    while (header.ends_with('\n') || header.ends_with('\r'))
        header.remove_suffix(1);
    // A later line of the same name wins over the one that the library would send by itself.
    curl_slist* longer = curl_slist_append(headerList_.get(), std::string(header).c_str());
    if (longer == nullptr) throw std::bad_alloc();
    static_cast<void>(headerList_.release());  // the longer list owns it now
    headerList_.reset(longer);
}

void CurlTransfer::setBody(std::string_view body) {
    set(CURLOPT_POSTFIELDSIZE_LARGE, static_cast<curl_off_t>(body.size()));
    set(CURLOPT_COPYPOSTFIELDS, body.empty() ? "" : body.data());
}

void CurlTransfer::begin() {
    set(CURLOPT_HTTPHEADER, headerList_.get());
    lastByte_ = clock_.Steady();
}

std::size_t CurlTransfer::take(char* target, std::size_t most) {
    const std::size_t count = buffer_.take({target, most});
    if (buffer_.isEmpty() && paused_ && !hasEnded()) {
        paused_ = false;
        curl_easy_pause(easy_.get(), CURLPAUSE_CONT);  // hands over what waits, at once
    }
    return count;
}

void CurlTransfer::end(CURLcode result) {
    // To the library an answer that breaks off among its headers is one without a body.
    const bool isCut = result == CURLE_OK && !headersEnded_;
    result_ = refused_ ? internet_error::RedirectFailed : isCut ? internet_error::ConnectionAborted : errorOf(result);
}

std::string CurlTransfer::unreachedProxy() const {
    const auto numbers = {internet_error::CannotConnect, internet_error::NameNotResolved, internet_error::Timeout};
    if (std::ranges::find(numbers, error()) == numbers.end()) return {};
    curl_off_t connected = 0;
    curl_easy_getinfo(easy_.get(), CURLINFO_CONNECT_TIME_T, &connected);
    return connected > 0 ? std::string() : proxyPlace(proxy_ ? *proxy_ : environmentProxy(address()), usualProxyPort);
}

std::int64_t CurlTransfer::announcedLength() const {
    curl_off_t length = -1;
    curl_easy_getinfo(easy_.get(), CURLINFO_CONTENT_LENGTH_DOWNLOAD_T, &length);
    return length;
}

void CurlTransfer::cancelAfterSilenceOf(std::chrono::milliseconds patience) {
    patience_ = std::min(patience_, patience);
    cancelled_ = true;
}

std::int32_t CurlTransfer::outOfPatience() const {
    if (waitedForPortion_ >= longestForPortion) return internet_error::Timeout;
    if (clock_.Steady() - lastByte_ < patience_) return 0;
    return cancelled_ ? internet_error::Cancelled : internet_error::Timeout;
}

std::size_t CurlTransfer::onBody(const char* bytes, std::size_t size, std::size_t count, CurlTransfer* self) {
    self->noteProgress(size * count);
    if (self->buffer_.size() >= mostBuffered) {
        self->paused_ = true;
        return CURL_WRITEFUNC_PAUSE;
    }
    try {
        self->buffer_.append({bytes, size * count});
    } catch (const std::bad_alloc&) {
        return 0;  // which the library takes for a failed write and ends the transfer
    }
    return size * count;
}

std::size_t CurlTransfer::onHeader(const char* bytes, std::size_t size, std::size_t count, CurlTransfer* self) {
    constexpr std::size_t mostHeaders = 64U << 10;
    self->noteProgress(size * count);
    std::string_view line(bytes, size * count);
    if (line.starts_with("HTTP/")) self->headers_.clear();  // what came before was a redirect or a challenge
    while (line.ends_with('\n') || line.ends_with('\r'))
        line.remove_suffix(1);
    self->headersEnded_ = line.empty();
    if (!line.empty() && self->headers_.size() + line.size() < mostHeaders) self->headers_.append(line).append("\r\n");
    self->refused_ = !self->mayFollow(line);
    return self->refused_ ? 0 : size * count;
}

void CurlTransfer::noteProgress(std::size_t bytes) {
    lastByte_ = clock_.Steady();
    portion_ += bytes;
    if (portion_ < wholePortion) return;
    portion_ = 0;
    waitedForPortion_ = {};
}

bool CurlTransfer::mayFollow(std::string_view header) const {
    constexpr std::string_view name = "location:";
    const bool redirects = headers_.find(" 3") == headers_.find(' ');
    if (isFile() || !redirects || !equalNoCase(header.substr(0, name.size()), name)) return true;
    const std::string target(Trim(header.substr(name.size())));
    const std::string host = hostOf(target.c_str());
    return !host.empty() && equalNoCase(host, hostOf(""));
}

const char* CurlTransfer::address() const {
    const char* here = nullptr;
    curl_easy_getinfo(easy_.get(), CURLINFO_EFFECTIVE_URL, &here);
    return here == nullptr ? "" : here;
}

// The host that a reference, seen from the current address, leads to; empty when it leads nowhere.
std::string CurlTransfer::hostOf(const char* reference) const {
    const std::unique_ptr<CURLU, decltype(&curl_url_cleanup)> url(curl_url(), &curl_url_cleanup);
    char* host = nullptr;
    const bool known = url && curl_url_set(url.get(), CURLUPART_URL, address(), 0) == CURLUE_OK &&
                       curl_url_set(url.get(), CURLUPART_URL, reference, 0) == CURLUE_OK &&
                       curl_url_get(url.get(), CURLUPART_HOST, &host, 0) == CURLUE_OK;
    const std::unique_ptr<char, decltype(&curl_free)> owned(host, &curl_free);
    return known ? host : "";
}

}  // namespace vell
