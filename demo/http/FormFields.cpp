// SPDX-License-Identifier: MIT
#include "demo/http/FormFields.h"

#include <algorithm>
#include <charconv>

#include "base/text.h"

namespace vell::demo {

FormFields::FormFields(std::string_view body, std::initializer_list<std::string_view> knownNames) {
    for (auto piece : Split(body, "&")) {
        const auto equals = piece.find('=');
        const auto known = std::find(knownNames.begin(), knownNames.end(), piece.substr(0, equals));
        if (equals != std::string_view::npos && known != knownNames.end())
            fields_.push_back({*known, std::string(piece.substr(equals + 1))});
        else if (!fields_.empty())
            fields_.back().Value.append("&").append(piece);
    }
}

std::string_view FormFields::sent(std::string_view name) const {
    const auto found =
        std::find_if(fields_.begin(), fields_.end(), [&](const Field& field) { return field.Name == name; });
    return found == fields_.end() ? std::string_view{} : found->Value;
}

std::string FormFields::unescaped(std::string_view name) const {
    return percentDecoded(Replace(sent(name), "+", " "));
}

std::string percentDecoded(std::string_view text) {
    std::string decoded;
    for (std::size_t i = 0; i < text.size(); ++i) {
        unsigned char byte = 0;
        const bool escape = text[i] == '%' && i + 2 < text.size();
        const auto* digits = text.data() + i + 1;
        if (escape && std::from_chars(digits, digits + 2, byte, 16).ptr == digits + 2) {
            decoded += static_cast<char>(byte);
            i += 2;
        } else {
            decoded += text[i];
        }
    }
    return decoded;
}

}  // namespace vell::demo
