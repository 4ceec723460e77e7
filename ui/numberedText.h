// SPDX-License-Identifier: MIT
#pragma once

#include <cstddef>
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

}  // namespace vell
