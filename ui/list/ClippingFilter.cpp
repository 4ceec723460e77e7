// SPDX-License-Identifier: MIT
#include "ui/list/ClippingFilter.h"

#include <algorithm>

#include "base/text.h"
#include "ftp/listing/CFtpFile.h"
#include "platform/Translations.h"

namespace vell {

namespace {

using Names = std::vector<std::string>;

Names listedIn(std::string_view field) {
    Names names;
    for (const std::string_view part : Split(field, ","))
        if (const std::string_view name = Trim(part); !name.empty()) names.emplace_back(name);
    return names;
}

// `namesIn` is asked only when something is chosen.
bool passesOne(const Names& chosen, const CFtpFile& clipping, Names (*namesIn)(const CFtpFile&)) {
    if (chosen.empty()) return true;
    const Names names = namesIn(clipping);
    if (names.empty()) return isAmong(chosen, "");
    return std::ranges::any_of(names, [&](const auto& name) { return isAmong(chosen, name); });
}

void add(std::string& text, const Names& chosen, const std::string& ofNone) {
    if (chosen.empty()) return;
    if (!text.empty()) text += " / ";
    for (const std::string& name : chosen)
        text.append(&name == &chosen.front() ? "" : ", ").append(name.empty() ? ofNone : name);
}

}  // namespace

bool ClippingFilter::passes(const CFtpFile& clipping) const {
    return passesOne(Categories, clipping, categoriesOf) && passesOne(Types, clipping, typesOf) &&
           passesOne(Newspapers, clipping, newspapersOf);
}

std::string ClippingFilter::text(const Translations& words) const {
    std::string text;
    add(text, Newspapers, words.translate("no newspaper"));
    add(text, Categories, words.translate("no category"));
    add(text, Types, words.translate("no type"));
    return text;
}

Names categoriesOf(const CFtpFile& clipping) {
    return listedIn(clipping.Category);
}

Names typesOf(const CFtpFile& clipping) {
    return listedIn(clipping.ArticleType);
}

Names newspapersOf(const CFtpFile& clipping) {
    const std::string_view name = Trim(clipping.NewspaperName);
    return name.empty() ? Names() : Names{std::string(name)};
}

bool isAmong(const std::vector<std::string>& names, std::string_view name) {
    return std::ranges::any_of(names, [&](const std::string& one) { return equalNoCase(one, name); });
}

}  // namespace vell
