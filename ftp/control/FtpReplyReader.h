// SPDX-License-Identifier: MIT
#pragma once

#include <cstddef>
#include <cstdint>
#include <optional>
#include <string>
#include <string_view>

namespace vell {

struct FtpReply {
    int Code = 0;      // 0 when the text begins with none
    std::string Text;  // all its lines, without the last line end
};

// The value of the first three characters when they are digits, else 0.
[[nodiscard]] std::int16_t GetReplyCode(std::string_view reply);

// Bytes of the control connection in, whole replies out. A reply whose first line has "-" behind its code goes on up
// to the line with the same code and a blank, whatever stands between (RFC 959, 4.2). A bare LF ends a line, too.
class FtpReplyReader {
  public:
    static constexpr std::size_t longest = 64UL * 1024;

    void feed(std::string_view bytes);
    // Nothing: more bytes are needed, or the reply is overlong.
    [[nodiscard]] std::optional<FtpReply> next();

    // What has come of the reply that is not complete yet.
    [[nodiscard]] std::string_view pending() const { return std::string_view(bytes_).substr(begin_); }
    // The reply grew past `longest`: no more of it is kept, and none will come after it.
    [[nodiscard]] bool overlong() const { return overlong_; }

    void clear() { *this = {}; }

  private:
    [[nodiscard]] bool endsReply(std::string_view line) const;
    [[nodiscard]] FtpReply cut(std::size_t end);

    std::string bytes_;
    std::size_t begin_ = 0;  // of the reply being read
    std::size_t line_ = 0;   // begin of its line being read
    std::size_t seen_ = 0;   // no line end between line_ and here
    bool overlong_ = false;
};

}  // namespace vell
