// SPDX-License-Identifier: MIT
#include "service/WebPage.h"

#include <algorithm>
#include <string>

#include "base/text.h"

namespace vell {

bool isWebPage(std::string_view beginning) {
    constexpr std::string_view byteOrderMark = "\xEF\xBB\xBF";
    constexpr std::size_t lookedAt = 512;
    if (beginning.starts_with(byteOrderMark)) beginning.remove_prefix(byteOrderMark.size());
    beginning.remove_prefix(std::min(beginning.find_first_not_of(" \t\r\n"), beginning.size()));
    const std::string text = Upper(beginning.substr(0, lookedAt));
    // A declaration of XML or a comment may stand before the page itself.
    return text.starts_with("<!DOCTYPE HTML") || (text.starts_with('<') && text.find("<HTML") != std::string::npos);
}

}  // namespace vell
