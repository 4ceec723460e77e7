// SPDX-License-Identifier: MIT
#include "ui/list/ClippingFilter.h"

#include <algorithm>

#include "base/text.h"
#include "ftp/listing/CFtpFile.h"

namespace vell {

namespace {

bool passesList(const std::vector<std::string>& chosen, std::string_view field) {
    if (chosen.empty()) return true;
    const auto listed = listedIn(field);
    return std::ranges::any_of(listed, [&](const auto& name) { return isAmong(chosen, name); });
}

std::string joined(const std::vector<std::string>& names) {
    std::string text;
    for (const std::string& name : names)
        text += (text.empty() ? "" : ", ") + name;
    return text;
}

}  // namespace

bool ClippingFilter::passes(const CFtpFile& clipping) const {
    return passesList(Categories, clipping.Category) && passesList(Types, clipping.ArticleType);
}

std::string ClippingFilter::text() const {
    const std::string categories = joined(Categories);
    const std::string types = joined(Types);
    return categories.empty() || types.empty() ? categories + types : categories + " / " + types;
}

std::vector<std::string> listedIn(std::string_view field) {
    std::vector<std::string> names;
    for (const std::string_view part : Split(field, ","))
        if (const std::string_view name = Trim(part); !name.empty()) names.emplace_back(name);
    return names;
}

bool isAmong(const std::vector<std::string>& names, std::string_view name) {
    return std::ranges::any_of(names, [&](const std::string& one) { return equalNoCase(one, name); });
}

}  // namespace vell
