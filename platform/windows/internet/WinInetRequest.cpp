// SPDX-License-Identifier: MIT
#include "platform/windows/internet/WinInetRequest.h"

#include <array>
#include <chrono>
#include <cstdlib>
#include <thread>
#include <vector>

#include "platform/internetErrors.h"
#include "platform/windows/internetHeaders.h"
#include "platform/windows/systemText.h"

namespace vell {

namespace {

constexpr int mostRedirects = 10;
constexpr std::size_t readSize = 64U << 10;
// A reader that falls behind makes the server wait, not the memory grow.
constexpr std::size_t mostBuffered = 512U << 10;
constexpr std::size_t mostHeaders = 64U << 10;
// Whoever waits for the answer gives up before; this is the end of a thread that nobody waits for.
constexpr DWORD longestSilence = 35'000;

std::int32_t lastError() {
    const auto error = static_cast<std::int32_t>(GetLastError());
    switch (error) {
        case 0:
            return internet_error::Internal;
        case ERROR_INVALID_HANDLE:
        case ERROR_INTERNET_INCORRECT_HANDLE_STATE:  // closed meanwhile
            return internet_error::Cancelled;
        case ERROR_INTERNET_UNRECOGNIZED_SCHEME:
            return internet_error::UnknownScheme;
        default:
            return error;
    }
}

bool isRedirect(int status) {
    return status == 301 || status == 302 || status == 303 || status == 307 || status == 308;
}

void setTimeouts(HINTERNET handle) {
    DWORD silence = longestSilence;
    for (const DWORD option :
         {INTERNET_OPTION_CONNECT_TIMEOUT, INTERNET_OPTION_SEND_TIMEOUT, INTERNET_OPTION_RECEIVE_TIMEOUT})
        InternetSetOptionW(handle, option, &silence, sizeof silence);
    DWORD attempts = 1;
    InternetSetOptionW(handle, INTERNET_OPTION_CONNECT_RETRIES, &attempts, sizeof attempts);
}

DWORD flagsOf(WinInetRequest::Kind kind, bool isSecure) {
    DWORD flags = INTERNET_FLAG_RELOAD | INTERNET_FLAG_NO_CACHE_WRITE | INTERNET_FLAG_PRAGMA_NOCACHE |
                  INTERNET_FLAG_NO_COOKIES | INTERNET_FLAG_NO_UI | INTERNET_FLAG_NO_AUTO_REDIRECT;
    if (kind == WinInetRequest::Kind::File) flags |= INTERNET_FLAG_KEEP_CONNECTION | INTERNET_FLAG_NO_AUTH;
    if (isSecure) flags |= INTERNET_FLAG_SECURE;
    return flags;
}

const wchar_t* orNull(const std::wstring& text) {
    return text.empty() ? nullptr : text.c_str();
}

}  // namespace

void WinInetRequest::start() {
    try {
        std::thread([self = shared_from_this()] { self->work(); }).detach();
    } catch (const std::system_error&) {  // no thread to be had now
        finish(ERROR_NOT_ENOUGH_MEMORY);
    }
}

void WinInetRequest::end(std::int32_t error) {
    finish(error);
    request_.end();
    connection_.end();
}

void WinInetRequest::work() {
    std::int32_t error = internet_error::Internal;
    try {
        error = ask();
        if (error == 0) error = readBody();
    } catch (const std::bad_alloc&) {
        error = ERROR_NOT_ENOUGH_MEMORY;
    }
    finish(error);
}

std::int32_t WinInetRequest::ask() {
    WebAddress address = wish_.Address;
    for (int redirects = 0; redirects <= mostRedirects; ++redirects) {
        if (const std::int32_t error = askAt(address); error != 0) return error;
        const int status = std::atoi(query(HTTP_QUERY_STATUS_CODE).c_str());
        noteAnswer(status);
        std::int32_t error = 0;
        const auto target = isRedirect(status) ? redirection(address, error) : std::nullopt;
        if (error != 0) return error;
        if (!target) return 0;
        if (!mayFollow(address, *target)) return internet_error::RedirectFailed;
        followWith(status);
        address = *target;
    }
    return internet_error::RedirectFailed;
}

std::int32_t WinInetRequest::askAt(const WebAddress& address) {
    const bool isScript = wish_.What == Kind::Script;
    request_.hold(nullptr);
    connection_.hold(InternetConnectW(wish_.Session->get(), address.Host.c_str(), address.Port, orNull(wish_.UserName),
                                      orNull(wish_.Password), INTERNET_SERVICE_HTTP, 0, 0));
    if (connection_.get() == nullptr) return lastError();
    std::array<const wchar_t*, 2> anything{L"*/*", nullptr};
    request_.hold(HttpOpenRequestW(connection_.get(), wish_.Method.c_str(), address.Path.c_str(),
                                   isScript ? L"HTTP/1.0" : L"HTTP/1.1", nullptr, anything.data(),
                                   flagsOf(wish_.What, address.IsSecure), 0));
    if (request_.get() == nullptr) return lastError();
    setTimeouts(request_.get());
    const bool isSent =
        HttpSendRequestW(request_.get(), orNull(wish_.Headers), static_cast<DWORD>(wish_.Headers.size()),
                         wish_.Body.empty() ? nullptr : wish_.Body.data(), static_cast<DWORD>(wish_.Body.size())) != 0;
    return isSent ? 0 : lastError();
}

std::optional<WebAddress> WinInetRequest::redirection(const WebAddress& from, std::int32_t& error) const {
    const std::string location = query(HTTP_QUERY_LOCATION);
    if (location.empty()) return std::nullopt;
    return from.seenFromHere(escapedAddress(location), error);
}

bool WinInetRequest::mayFollow(const WebAddress& from, const WebAddress& to) const {
    return wish_.What == Kind::File || from.isSameHost(to);
}

// What was posted is posted again only where the server says so.
void WinInetRequest::followWith(int status) {
    if (status == 307 || status == 308) return;
    if (wish_.Method == L"POST") wish_.Method = L"GET";
    wish_.Body.clear();
}

std::int32_t WinInetRequest::readBody() {
    std::vector<char> block(readSize);
    while (true) {
        DWORD got = 0;
        // As much as there is, at least one byte: a whole block might be long in coming.
        DWORD ready = 0;
        if (!InternetQueryDataAvailable(request_.get(), &ready, 0, 0)) return lastError();
        const DWORD wanted = std::min<DWORD>(std::max<DWORD>(ready, 1), static_cast<DWORD>(block.size()));
        if (!InternetReadFile(request_.get(), block.data(), wanted, &got)) return lastError();
        if (got == 0) break;
        if (!append({block.data(), got})) return internet_error::Cancelled;
    }
    const std::lock_guard hold(guard_);
    const bool isCut = length_ >= 0 && received_ < static_cast<std::uint64_t>(length_);
    return isCut ? internet_error::ConnectionAborted : 0;
}

std::string WinInetRequest::query(std::uint32_t what) const {
    std::string text(mostHeaders, '\0');
    auto length = static_cast<DWORD>(text.size());
    if (!HttpQueryInfoA(request_.get(), what, text.data(), &length, nullptr)) return {};
    text.resize(length);
    return text;
}

void WinInetRequest::noteAnswer(int status) {
    std::string headers = query(HTTP_QUERY_RAW_HEADERS_CRLF);
    while (headers.ends_with("\r\n\r\n"))
        headers.resize(headers.size() - 2);
    const std::string length = query(HTTP_QUERY_CONTENT_LENGTH);
    const std::lock_guard hold(guard_);
    headers_ = std::move(headers);
    status_ = status == 0 ? "" : std::to_string(status);
    length_ = length.empty() ? -1 : std::strtoll(length.c_str(), nullptr, 10);
    isAnswered_ = true;
}

bool WinInetRequest::append(std::string_view bytes) {
    std::unique_lock hold(guard_);
    news_.wait(hold, [this] { return hasEnded_ || buffer_.size() < mostBuffered; });
    if (hasEnded_) return false;
    buffer_.append(bytes);
    received_ += bytes.size();
    news_.notify_all();
    return true;
}

void WinInetRequest::finish(std::int32_t error) {
    const std::lock_guard hold(guard_);
    if (hasEnded_) return;
    hasEnded_ = true;
    error_ = error;
    news_.notify_all();
}

WinInetRequest::State WinInetRequest::stateNow() const {
    return {hasEnded_, error_, !buffer_.isEmpty(), received_, isAnswered_};
}

WinInetRequest::State WinInetRequest::state() const {
    const std::lock_guard hold(guard_);
    return stateNow();
}

bool WinInetRequest::waitForNews(const State& known, int milliseconds) const {
    std::unique_lock hold(guard_);
    return news_.wait_for(hold, std::chrono::milliseconds{milliseconds}, [&] {
        const State now = stateNow();
        return now.HasEnded != known.HasEnded || now.Received != known.Received || now.HasHeaders != known.HasHeaders;
    });
}

std::size_t WinInetRequest::take(char* target, std::size_t most) {
    const std::lock_guard hold(guard_);
    const std::size_t count = buffer_.take({target, most});
    news_.notify_all();
    return count;
}

std::string WinInetRequest::rawHeaders() const {
    const std::lock_guard hold(guard_);
    return headers_;
}

std::string WinInetRequest::statusCode() const {
    const std::lock_guard hold(guard_);
    return status_;
}

std::int64_t WinInetRequest::announcedLength() const {
    const std::lock_guard hold(guard_);
    return length_;
}

}  // namespace vell
