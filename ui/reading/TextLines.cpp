// SPDX-License-Identifier: MIT
#include "ui/reading/TextLines.h"

#include <algorithm>
#include <utility>

namespace vell {

namespace {

// How many characters the first line has; it is behind the last blank that fits where it is too long.
std::size_t firstLine(std::string_view text, std::size_t end) {
    if (end <= TextLines::longestLine) return end;
    const std::size_t blank = text.substr(0, TextLines::longestLine).rfind(' ');
    return blank == std::string_view::npos ? TextLines::longestLine : blank + 1;
}

}  // namespace

std::string TextLines::add(std::string_view piece) {
    rest_ += piece;
    std::string lines;
    std::string_view left = rest_;
    for (std::size_t end = left.find('\n'); end != std::string_view::npos || left.size() > longestLine;
         end = left.find('\n')) {
        const std::size_t length = firstLine(left, std::min(end, left.size()));
        std::string_view line = left.substr(0, length);
        left.remove_prefix(length == end ? length + 1 : length);
        if (line.ends_with('\r')) line.remove_suffix(1);
        lines.append(line) += '\n';
    }
    rest_.erase(0, rest_.size() - left.size());
    return lines;
}

std::string TextLines::finish() {
    return std::exchange(rest_, {});
}

}  // namespace vell
