// SPDX-License-Identifier: MIT
#include "ftp/control/FtpReplyReader.h"

#include <algorithm>

namespace vell {

namespace {

bool isDigit(char c) {
    return c >= '0' && c <= '9';
}

std::string_view withoutCr(std::string_view line) {
    if (line.ends_with('\r')) line.remove_suffix(1);
    return line;
}

}  // namespace

std::int16_t GetReplyCode(std::string_view reply) {
    if (reply.size() < 3 || !std::all_of(reply.begin(), reply.begin() + 3, isDigit)) return 0;
    return static_cast<std::int16_t>((reply[0] - '0') * 100 + (reply[1] - '0') * 10 + (reply[2] - '0'));
}

void FtpReplyReader::feed(std::string_view bytes) {
    if (overlong_) return;
    bytes_.erase(0, begin_);
    line_ -= begin_;
    seen_ -= begin_;
    begin_ = 0;
    bytes_ += bytes;
}

std::optional<FtpReply> FtpReplyReader::next() {
    while (!overlong_) {
        const std::size_t end = bytes_.find('\n', seen_);
        overlong_ = std::min(end, bytes_.size()) - begin_ > longest;
        if (overlong_ || end == std::string::npos) {
            seen_ = bytes_.size();
            break;
        }
        const auto line = withoutCr(std::string_view(bytes_).substr(line_, end - line_));
        const bool complete = endsReply(line);
        line_ = seen_ = end + 1;
        if (complete) return cut(end);
    }
    if (overlong_) bytes_.resize(std::min(bytes_.size(), begin_ + longest));
    return std::nullopt;
}

bool FtpReplyReader::endsReply(std::string_view line) const {
    const auto goesOn = [](std::string_view text) { return text.size() > 3 && text[3] == '-'; };
    if (line_ == begin_) return GetReplyCode(line) == 0 || !goesOn(line);
    return line.substr(0, 3) == pending().substr(0, 3) && (line.size() == 3 || line[3] == ' ');
}

FtpReply FtpReplyReader::cut(std::size_t end) {
    const auto text = withoutCr(std::string_view(bytes_).substr(begin_, end - begin_));
    begin_ = end + 1;
    return {GetReplyCode(text), std::string(text)};
}

}  // namespace vell
