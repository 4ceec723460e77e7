// SPDX-License-Identifier: MIT
#include "ui/list/CountTexts.h"

#include <algorithm>

#include "platform/Translations.h"

namespace vell {

CountTexts countTexts(const std::vector<ClippingRow>& rows, std::size_t all, const Translations& words) {
    const auto unread = static_cast<std::size_t>(std::ranges::count(rows, false, &ClippingRow::Opened));
    const auto news = static_cast<std::size_t>(std::ranges::count(rows, true, &ClippingRow::New));
    const std::string shown = std::to_string(rows.size());
    CountTexts texts;
    texts.Listed =
        rows.size() == all ? shown + " Clippings" : shown + " " + words.translate("of") + " " + std::to_string(all);
    if (unread > 0) texts.Unread = std::to_string(unread) + " " + words.translate("unread", "unread", unread);
    if (news > 0) texts.New = std::to_string(news) + " " + words.translate("new", "new", news);
    return texts;
}

}  // namespace vell
