// SPDX-License-Identifier: MIT
#include "ui/list/ClippingCopies.h"

#include "base/text.h"
#include "platform/Files.h"
#include "ui/ClippingsBrowser.h"
#include "ui/reading/TextReader.h"

namespace vell {

std::string ClippingCopies::titles(std::span<const std::size_t> rows) const {
    std::string lines;
    for (const std::size_t row : rows) {
        const CFtpFile& clipping = *browser_.rows().at(row).File;
        const std::string& title = clipping.Description.empty() ? clipping.FileName : clipping.Description;
        lines += (lines.empty() ? "" : "\n") + title;
    }
    return lines;
}

std::string ClippingCopies::texts(std::span<const std::size_t> rows) const {
    std::string all;
    for (const std::size_t row : rows) {
        const auto [text, notice] = texts_.wholeText(*browser_.rows().at(row).File);
        if (!notice.empty()) message_(notice);
        if (!text.empty()) all += (all.empty() ? "" : "\n\n") + Replace(text, "\r\n", "\n");
    }
    return all;
}

std::vector<std::string> ClippingCopies::paths(std::span<const std::size_t> rows) const {
    std::vector<std::string> all;
    for (const std::string& path : browser_.pathsOf(rows))
        all.push_back(disk_.SystemPath(path));
    return all;
}

}  // namespace vell
