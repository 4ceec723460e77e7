// SPDX-License-Identifier: MIT
#pragma once

#include "platform/Translations.h"

namespace vell {

// The program's words in the desktop's language, from the toolkit's catalogue, which translates the window's own labels
// as well. Numbers and dates keep the program's forms.
class WxTranslations : public Translations {
  public:
    // Opens the catalogue: LANGUAGE says the language, else LC_ALL, LC_MESSAGES or LANG. To be called before the first
    // label is made.
    static void open();

    [[nodiscard]] std::string translate(std::string_view english) const override;
    [[nodiscard]] std::string translate(std::string_view one, std::string_view many, std::size_t number) const override;
};

}  // namespace vell
