// SPDX-License-Identifier: MIT
#pragma once

#include <cstddef>
#include <initializer_list>
#include <string>
#include <string_view>

#include "base/text.h"
#include "platform/Translations.h"

namespace vell {

// One of the two texts, translated, by the number, which takes the place of "%d" in it.
[[nodiscard]] inline std::string numberedText(const Translations& words, std::string_view one, std::string_view many,
                                              std::size_t number) {
    return Replace(words.translate(one, many, number), "%d", std::to_string(number));
}

// The sentence with the values in the places of "%1$s", "%2$s" and so on: another language may have them in another
// order.
[[nodiscard]] inline std::string filledText(std::string sentence, std::initializer_list<std::string> values) {
    std::size_t number = 0;
    for (const std::string& value : values)
        sentence = Replace(sentence, "%" + std::to_string(++number) + "$s", value);
    return sentence;
}

}  // namespace vell
