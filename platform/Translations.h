// SPDX-License-Identifier: MIT
#pragma once

#include <cstddef>
#include <string>
#include <string_view>

namespace vell {

// Marks a text that is translated where it is shown, so that the catalogues get to know it.
constexpr const char* translatable(const char* english) {
    return english;
}

// The program's own words in the user's language. Texts that are part of the contract (the log's, message boxes' and
// whatever scripts look for) never go through it. English in, code page 1253 out; what has no translation stays
// English.
class Translations {
  public:
    virtual ~Translations() = default;

    [[nodiscard]] virtual std::string translate(std::string_view english) const { return std::string(english); }
    // One of the two by the number that the text speaks of. Neither holds the number: the caller puts it in.
    [[nodiscard]] virtual std::string translate(std::string_view one, std::string_view many, std::size_t number) const {
        return std::string(number == 1 ? one : many);
    }
};

}  // namespace vell
