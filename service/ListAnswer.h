// SPDX-License-Identifier: MIT
#pragma once

#include <string>
#include <string_view>
#include <vector>

namespace vell {

// What the service said when it was asked for a day's list.
struct ListAnswer {
    enum class Kind {
        List,
        NothingForTheDay,
        Silence,  // no word at all: an empty list, but no order to delete
        LoginRefused,
        NoList,  // something else, or a part of a list
    };
    Kind What = Kind::NoList;
    // The clippings as lines of the index: in upper case, accented capitals made plain, each name once. Behind the
    // last "<br>" of a list that ends with one stands an empty line.
    std::vector<std::string> Records{};
    std::vector<std::string> Dropped{};  // how those begin that name no file of a clipping
    std::string Fault{};                 // why it is no list
};

// Records are separated by "<br>" in any case or a line end; blanks and line ends around them are nothing.
[[nodiscard]] ListAnswer readListAnswer(std::string_view body);

}  // namespace vell
