// SPDX-License-Identifier: MIT
#include "ui/AlertLinks.h"

#include <algorithm>
#include <array>

#include "base/text.h"
#include "platform/MessageBoxes.h"
#include "platform/Translations.h"
#include "ui/ClippingOpening.h"

namespace vell {

namespace {

constexpr std::array<std::string_view, 3> beginnings{"http://", "https://", "mailto:"};

bool mayStandInAddress(char c) {
    return c > ' ' && c < '\x7F' && std::string_view("<>\"").find(c) == std::string_view::npos;
}

bool isLetter(char c) {
    return UpperChar(c) != c || Lower({&c, 1}).front() != c;
}

// The beginning of an address that stands here; empty for none. A word that only ends like one begins none.
std::string_view beginningAt(std::string_view text, std::size_t at) {
    if (at > 0 && isLetter(text[at - 1])) return {};
    for (const std::string_view beginning : beginnings)
        if (equalNoCase(text.substr(at, beginning.size()), beginning)) return beginning;
    return {};
}

// What an address in brackets or at the end of a sentence is followed by.
std::string_view withoutEndOfSentence(std::string_view address) {
    while (!address.empty()) {
        const char last = address.back();
        const bool closesOwn = last == ')' && std::ranges::count(address, '(') >= std::ranges::count(address, ')');
        if (closesOwn || std::string_view(".,;:!?)]}'").find(last) == std::string_view::npos) break;
        address.remove_suffix(1);
    }
    return address;
}

}  // namespace

std::vector<AddressPlace> addressesIn(std::string_view text) {
    std::vector<AddressPlace> places;
    for (std::size_t at = 0; at < text.size(); ++at) {
        const std::string_view beginning = beginningAt(text, at);
        if (beginning.empty()) continue;
        const std::string_view rest = text.substr(at);
        const auto end = std::ranges::find_if_not(rest, mayStandInAddress) - rest.begin();
        const auto length = withoutEndOfSentence(rest.substr(0, static_cast<std::size_t>(end))).size();
        if (length <= beginning.size()) continue;
        places.push_back({at, length});
        at += length - 1;
    }
    return places;
}

void AlertLinks::open(const std::string& address) {
    const std::string question = words_.translate("Open this address?") + "\r\n\r\n" + address;
    if (boxes_.Show(question, programCaption, Buttons::YesNo, BoxIcon::Question) == Answer::Yes)
        opening_.openAddress(address);
}

}  // namespace vell
