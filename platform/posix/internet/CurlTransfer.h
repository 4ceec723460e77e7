// SPDX-License-Identifier: MIT
#pragma once

#include <cstdint>
#include <memory>
#include <optional>
#include <string>
#include <string_view>

#include <curl/curl.h>

#include "base/ByteQueue.h"
#include "platform/Clock.h"

namespace vell {

// One request and its answer. The library fills the buffer from within its callbacks; they never let events happen,
// since the library must not be entered a second time.
class CurlTransfer {
  private:
    struct EasyDeleter {
        void operator()(CURL* easy) const { curl_easy_cleanup(easy); }
    };
    struct ListDeleter {
        void operator()(curl_slist* list) const { curl_slist_free_all(list); }
    };

  public:
    // What one request leaves to the next, so that memory does not grow and shrink with every file: the handle, which
    // has a large buffer, and the storage of the bytes that wait to be read. Empty at first.
    struct Kit {
        std::unique_ptr<CURL, EasyDeleter> Easy;
        ByteQueue Buffer;
    };

    CurlTransfer(const Clock& clock, Kit kit);
    // Ends the object's work.
    [[nodiscard]] Kit release();
    CurlTransfer(const CurlTransfer&) = delete;
    CurlTransfer& operator=(const CurlTransfer&) = delete;

    // How an address is asked for. A script of the service is asked with HTTP/1.0, on a connection of
    // its own, and what is posted to it goes to no other host. A file is asked with HTTP/1.1, on a connection that is
    // kept for the next one.
    enum class Kind { Script, File };
    void setKind(Kind kind);
    [[nodiscard]] bool isFile() const { return kind_ == Kind::File; }

    void setAddress(const std::string& address);
    // As curl names it; empty for none. Left out, the environment decides.
    void setProxy(const std::string& proxy);
    void setAgent(const std::string& agent);
    void setMethod(const std::string& method);
    void setCredentials(const std::string& userName, const std::string& password);
    // "Name: value"; replaces the header of that name.
    void setHeader(std::string_view header);
    void setBody(std::string_view body);
    // Everything is set: the 30 seconds of silence begin.
    void begin();

    [[nodiscard]] CURL* handle() const { return easy_.get(); }

    [[nodiscard]] bool hasBytes() const { return !buffer_.isEmpty(); }
    [[nodiscard]] std::size_t take(char* target, std::size_t most);
    [[nodiscard]] bool hasEnded() const { return result_.has_value(); }
    // 0 for an answer that came whole.
    [[nodiscard]] std::int32_t error() const { return result_.value_or(0); }
    void end(std::int32_t error) { result_ = error; }
    void end(CURLcode result);

    // "host:port" of the proxy that this failed request was to take, when it has not even reached that.
    [[nodiscard]] std::string unreachedProxy() const;

    [[nodiscard]] const std::string& rawHeaders() const { return headers_; }
    [[nodiscard]] std::int64_t announcedLength() const;
    // Somebody has waited so long for bytes of this transfer, come or not.
    void waited(std::chrono::milliseconds time) { waitedForPortion_ += time; }

    // Fails as cancelled once it has been silent for so long; at once when that is no time at all.
    void cancelAfterSilenceOf(std::chrono::milliseconds patience);
    [[nodiscard]] bool isAbandoned() const { return patience_.count() == 0; }
    // The number to fail with now; 0 to go on waiting.
    [[nodiscard]] std::int32_t outOfPatience() const;

  private:
    static std::size_t onBody(const char* bytes, std::size_t size, std::size_t count, CurlTransfer* self);
    static std::size_t onHeader(const char* bytes, std::size_t size, std::size_t count, CurlTransfer* self);
    void noteProgress(std::size_t bytes);
    // The address asked for now, after redirects.
    [[nodiscard]] const char* address() const;
    // False when the header sends what was posted to another host.
    [[nodiscard]] bool mayFollow(std::string_view header) const;
    [[nodiscard]] std::string hostOf(const char* reference) const;

    template <class Value>
    void set(CURLoption option, Value value);

    const Clock& clock_;
    std::unique_ptr<curl_slist, ListDeleter> headerList_;  // the handle uses it to its end
    std::unique_ptr<CURL, EasyDeleter> easy_;
    std::optional<std::string> proxy_;
    std::string headers_;
    bool headersEnded_ = false;
    ByteQueue buffer_;
    bool paused_ = false;
    std::optional<std::int32_t> result_;
    Kind kind_ = Kind::Script;
    bool refused_ = false;  // a redirect
    SteadyTime lastByte_{};
    std::size_t portion_ = 0;  // bytes since it was full last
    std::chrono::milliseconds waitedForPortion_{};
    std::chrono::milliseconds patience_;
    bool cancelled_ = false;
};

}  // namespace vell
