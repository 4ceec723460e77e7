// SPDX-License-Identifier: MIT
#pragma once

#include <condition_variable>
#include <cstdint>
#include <memory>
#include <mutex>
#include <string>

#include "base/ByteQueue.h"
#include "platform/windows/internet/InternetHandle.h"
#include "platform/windows/internet/WebAddress.h"

namespace vell {

// One request and its answer. WinINet's calls wait, so a thread of the request's own makes them and puts what comes
// into a buffer of limited length. The thread keeps the object alive until the last call has come back; once `end` was
// called, nobody hears of it any more.
class WinInetRequest : public std::enable_shared_from_this<WinInetRequest> {
  public:
    // A script of the service is asked with HTTP/1.0 on a connection of its own, and what is posted to it goes to no
    // other host. A file is asked for with HTTP/1.1, on a connection that is kept for the next one.
    enum class Kind { Script, File };

    struct Wish {
        Kind What = Kind::File;
        std::shared_ptr<InternetHandle> Session;
        WebAddress Address;
        std::wstring UserName;  // for the server's challenge; empty for none
        std::wstring Password;
        std::wstring Method = L"GET";
        std::wstring Headers;  // each line ended by CR LF
        std::string Body;
    };

    // What has come so far. `Received` counts every byte of the body.
    struct State {
        bool HasEnded = false;
        std::int32_t Error = 0;  // 0 for an answer that came whole
        bool HasBytes = false;
        std::uint64_t Received = 0;
        bool HasHeaders = false;
    };

    explicit WinInetRequest(Wish wish) : wish_(std::move(wish)) {}

    void start();
    // At once; what has come stays.
    void end(std::int32_t error);

    [[nodiscard]] State state() const;
    // Returns when the state has become another than `known`, at the latest after that time. True when it has.
    bool waitForNews(const State& known, int milliseconds) const;
    [[nodiscard]] std::size_t take(char* target, std::size_t most);
    [[nodiscard]] std::string rawHeaders() const;
    [[nodiscard]] std::string statusCode() const;
    [[nodiscard]] std::int64_t announcedLength() const;

  private:
    void work();
    // The answer's headers are there, and it is no redirect. Gives the error, 0 for none.
    std::int32_t ask();
    std::int32_t askAt(const WebAddress& address);
    // Where the answer sends us on to; nothing when it does not.
    std::optional<WebAddress> redirection(const WebAddress& from, std::int32_t& error) const;
    [[nodiscard]] bool mayFollow(const WebAddress& from, const WebAddress& to) const;
    void followWith(int status);
    std::int32_t readBody();
    void noteAnswer(int status);
    // False when nobody wants more.
    bool append(std::string_view bytes);
    void finish(std::int32_t error);
    [[nodiscard]] std::string query(std::uint32_t what) const;
    [[nodiscard]] State stateNow() const;

    Wish wish_;
    InternetHandle connection_;
    InternetHandle request_;

    mutable std::mutex guard_;  // of all that follows
    mutable std::condition_variable news_;
    ByteQueue buffer_;
    std::uint64_t received_ = 0;
    std::string headers_;
    std::string status_;
    std::int64_t length_ = -1;
    bool isAnswered_ = false;
    bool hasEnded_ = false;
    std::int32_t error_ = 0;
};

}  // namespace vell
