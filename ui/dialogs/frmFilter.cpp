// SPDX-License-Identifier: MIT
#include "ui/dialogs/frmFilter.h"

#include <algorithm>

#include "ui/ClippingsBrowser.h"

namespace vell {

namespace {

// The names that each of the clippings has in a field.
std::vector<FilterChoice::Names> namesOf(const ClippingsBrowser& browser,
                                         FilterChoice::Names (*namesIn)(const CFtpFile&)) {
    std::vector<FilterChoice::Names> names;
    for (const auto& file : browser.filtered())
        names.push_back(namesIn(*file));
    return names;
}

}  // namespace

frmFilter::frmFilter(ClippingsBrowser& browser)
    : lstNewspapers(namesOf(browser, newspapersOf), browser.filter().Newspapers),
      lstCategories(namesOf(browser, categoriesOf), browser.filter().Categories),
      lstTypes(namesOf(browser, typesOf), browser.filter().Types),
      browser_(browser) {}

ClippingFilter frmFilter::chosen() const {
    return {lstCategories.chosen(), lstTypes.chosen(), lstNewspapers.chosen()};
}

std::size_t frmFilter::passing() const {
    return static_cast<std::size_t>(std::ranges::count_if(
        browser_.filtered(), [filter = chosen()](const auto& file) { return filter.passes(*file); }));
}

std::size_t frmFilter::all() const {
    return browser_.filtered().size();
}

void frmFilter::cmdOk_Click() {
    browser_.setFilter(chosen());
}

void frmFilter::cmdClear_Click() {
    for (FilterChoice* list : {&lstNewspapers, &lstCategories, &lstTypes})
        list->tickAny();
}

}  // namespace vell
