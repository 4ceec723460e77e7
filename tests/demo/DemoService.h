// SPDX-License-Identifier: MIT
#pragma once

#include <asio/ip/tcp.hpp>

#include "tests/support/ChildProcess.h"

namespace vell::test {

// A tree as a person would make it, small enough to check every byte: two days with clippings, 07032004 and 09032004,
// none between them, an alert for the first one.
class SmallTree : public TempFolder {
  public:
    SmallTree();

    // The three forms of a clipping.
    void putClipping(const std::string& day, const std::string& base) const;
};

// The bytes that lie in a file of that name.
[[nodiscard]] std::string contentOf(const std::string& name);

// The demo service, started on a folder and ready for callers on free ports of loopback.
class DemoService {
  public:
    explicit DemoService(const TempFolder& root, const std::vector<std::string>& options = {});

    [[nodiscard]] const std::string& http() const { return http_; }  // "127.0.0.1:34567"
    [[nodiscard]] const std::string& ftp() const { return ftp_; }

    // Ends it with a signal.
    Ended stop(int signal);

  private:
    TempFolder folder_;
    ChildProcess process_;
    std::string http_, ftp_;
};

// A stream to "127.0.0.1:34567", which fails what hangs.
[[nodiscard]] asio::ip::tcp::iostream streamTo(const std::string& place);
// What comes until the peer closes.
[[nodiscard]] std::string rest(std::istream& stream);

struct HttpAnswer {
    int Status = 0;
    std::string Head, Body;
};

// All that comes for these bytes until the service closes, which a request of HTTP/1.0 makes it do.
[[nodiscard]] HttpAnswer answerTo(const std::string& place, const std::string& bytes);
[[nodiscard]] HttpAnswer get(const std::string& place, const std::string& address);
[[nodiscard]] HttpAnswer post(const std::string& place, const std::string& address, const std::string& body);

}  // namespace vell::test
