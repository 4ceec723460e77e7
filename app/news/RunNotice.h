// SPDX-License-Identifier: MIT
#pragma once

#include <optional>
#include <string>
#include <vector>

namespace vell {

class Translations;
struct RunContext;

// What people who look at something else are told of a download that began by itself. Code page 1253.
struct RunNotice {
    std::string Title;
    std::string Body;  // lines, failures first; may be empty
};

// Of so many clippings a notice has room for the titles.
inline constexpr std::size_t mostTitlesInNotice = 3;

// Nothing when there is nothing to tell. `titles`: of the first of the new clippings.
[[nodiscard]] std::optional<RunNotice> noticeOf(const RunContext& run, const std::vector<std::string>& titles,
                                                const Translations& words);

}  // namespace vell
