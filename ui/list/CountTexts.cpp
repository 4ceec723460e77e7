// SPDX-License-Identifier: MIT
#include "ui/list/CountTexts.h"

#include <algorithm>

#include "platform/Translations.h"
#include "ui/numberedText.h"

namespace vell {

CountTexts countTexts(const std::vector<ClippingRow>& rows, std::size_t all, const Translations& words) {
    const auto unread = static_cast<std::size_t>(std::ranges::count(rows, false, &ClippingRow::Opened));
    const auto news = static_cast<std::size_t>(std::ranges::count(rows, true, &ClippingRow::New));
    const std::string shown = std::to_string(rows.size());
    CountTexts texts;
    texts.Listed = rows.size() == all ? shown + " Clippings"
                                      : filledText(words.translate("%1$s of %2$s"), {shown, std::to_string(all)});
    if (unread > 0) texts.Unread = numberedText(words, "%d unread", "%d unread", unread);
    if (news > 0) texts.New = numberedText(words, "%d new", "%d new", news);
    return texts;
}

}  // namespace vell
