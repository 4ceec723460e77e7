// SPDX-License-Identifier: MIT
#include "app/news/RunNotice.h"

#include "app/RunContext.h"
#include "app/failures/runMessage.h"
#include "app/news/runTexts.h"
#include "platform/Translations.h"

namespace vell {

std::optional<RunNotice> noticeOf(const RunContext& run, const std::vector<std::string>& titles,
                                  const Translations& words) {
    const auto failure = runMessage(run, words);
    const auto news = run.Summary.newClippings();
    if (!failure && news == 0) return std::nullopt;
    RunNotice notice{news > 0 ? newClippingsText(news, words) : words.translate("The download failed"), {}};
    std::vector<std::string> lines = titles;
    if (failure) lines.insert(lines.begin(), failure->Text.substr(0, failure->Text.find_first_of("\r\n")));
    if (news > titles.size() && !titles.empty()) lines.emplace_back("...");
    for (const std::string& line : lines)
        notice.Body += (notice.Body.empty() ? "" : "\n") + line;
    return notice;
}

}  // namespace vell
