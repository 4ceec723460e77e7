// SPDX-License-Identifier: MIT
#include "platform/common/NamePattern.h"

#include "base/text.h"

namespace vell {

NamePattern::NamePattern(std::string_view pattern) : pattern_(pattern == "*.*" ? "*" : Upper(pattern)) {}

bool NamePattern::fits(std::string_view name) const {
    std::size_t p = 0, n = 0;
    std::size_t star = std::string::npos, resume = 0;  // the last "*", and where its match may end next
    while (n < name.size()) {
        if (p < pattern_.size() && pattern_[p] == '*') {
            star = p++;
            resume = n;
        } else if (p < pattern_.size() && (pattern_[p] == '?' || pattern_[p] == UpperChar(name[n]))) {
            ++p;
            ++n;
        } else if (star != std::string::npos) {
            p = star + 1;
            n = ++resume;
        } else {
            return false;
        }
    }
    return pattern_.find_first_not_of('*', p) == std::string::npos;
}

}  // namespace vell
