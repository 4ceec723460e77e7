// SPDX-License-Identifier: MIT
#pragma once

#include <cstddef>
#include <string>
#include <vector>

namespace vell::demo {

// An article of the sample days. Texts are UTF-8.
struct SampleArticle {
    std::string Name;  // what comes before the date in the file names: "ANEM01"
    std::string Newspaper;
    std::string Title;
    std::string Category;
    std::string Type;
    bool IsGreek = true;
    int Page = 1;
    int Picture = -1;  // number of the press picture; -1: none
    std::vector<std::string> Sentences;
};

// How many different days there are.
constexpr std::size_t sampleSets = 3;
[[nodiscard]] std::vector<SampleArticle> sampleArticles(std::size_t set);
// The alert of such a day, empty when it has none.
[[nodiscard]] std::string sampleAlert(std::size_t set);

}  // namespace vell::demo
