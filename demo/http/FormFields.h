// SPDX-License-Identifier: MIT
#pragma once

#include <initializer_list>
#include <string>
#include <string_view>
#include <vector>

namespace vell::demo {

// The fields of a posted form. Clients of this service send values as they stand, so a value may hold "&", "%" or "+";
// others escape them. A field ends only where the next known name begins.
class FormFields {
  public:
    FormFields(std::string_view body, std::initializer_list<std::string_view> knownNames);

    // The bytes as sent; empty when the form lacks the field.
    [[nodiscard]] std::string_view sent(std::string_view name) const;
    // The same with "+" and "%XX" undone.
    [[nodiscard]] std::string unescaped(std::string_view name) const;

  private:
    struct Field {
        std::string_view Name;
        std::string Value;
    };
    std::vector<Field> fields_;
};

// Undoes "%XX"; a "%" that no two hexadecimal digits follow stays.
[[nodiscard]] std::string percentDecoded(std::string_view text);

}  // namespace vell::demo
