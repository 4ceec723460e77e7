// SPDX-License-Identifier: MIT
#pragma once

#include <cstddef>
#include <map>
#include <optional>
#include <stdexcept>
#include <string>
#include <string_view>

namespace vell::demo {

// A request that cannot be taken; the connection is closed after the answer.
class HttpProblem : public std::runtime_error {
  public:
    HttpProblem(int status, const char* why) : std::runtime_error(why), Status(status) {}
    int Status;
};

struct HttpRequest {
    std::string Method;
    std::string Path;  // unescaped, without host and query; holds no control characters
    std::string Body;
    bool KeepsConnection = false;
};

// Takes the bytes of one connection apart into requests (RFC 9112), in origin form and, since this service is its own
// proxy, in absolute form.
class HttpRequestReader {
  public:
    static constexpr std::size_t HeadLimit = 64UL * 1024;
    static constexpr std::size_t BodyLimit = 64UL * 1024;

    void feed(std::string_view bytes) { bytes_.append(bytes); }
    // Nothing: more bytes are needed. Throws HttpProblem.
    [[nodiscard]] std::optional<HttpRequest> next();
    // True once for a request that sends its body only after it was told to go on.
    [[nodiscard]] bool takeContinueWish();

  private:
    void readHead(std::string_view head);
    void readRequestLine(std::string_view line);
    void readHeader(std::string_view line);
    void judgeHead();
    [[nodiscard]] std::string header(const std::string& name) const;

    std::string bytes_;
    std::map<std::string, std::string> headers_;  // names in capitals
    std::optional<HttpRequest> request_;          // its head was read, its body is awaited
    std::size_t bodySize_ = 0;
    bool isHttp11_ = false;
    bool wishesContinue_ = false;
};

}  // namespace vell::demo
