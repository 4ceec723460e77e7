// SPDX-License-Identifier: MIT
#include "ui/dialogs/frmFilter.h"

#include <algorithm>

#include "ui/ClippingsBrowser.h"
#include "ui/list/RowOrder.h"

namespace vell {

namespace {

void addNew(std::vector<std::string>& names, const std::vector<std::string>& more) {
    for (const std::string& name : more)
        if (!isAmong(names, name)) names.push_back(name);
}

void sortForReading(std::vector<std::string>& names) {
    std::ranges::stable_sort(names, {}, lookUpKey);
}

}  // namespace

frmFilter::frmFilter(ClippingsBrowser& browser) : browser_(browser) {
    for (const auto& file : browser.dayFiles()) {
        addNew(categories_, listedIn(file->Category));
        addNew(types_, listedIn(file->ArticleType));
    }
    addNew(categories_, browser.filter().Categories);
    addNew(types_, browser.filter().Types);
    sortForReading(categories_);
    sortForReading(types_);
}

bool frmFilter::isCategoryChosen(const std::string& name) const {
    return isAmong(browser_.filter().Categories, name);
}

bool frmFilter::isTypeChosen(const std::string& name) const {
    return isAmong(browser_.filter().Types, name);
}

void frmFilter::cmdOk_Click(const ClippingFilter& chosen) {
    browser_.setFilter(chosen);
}

}  // namespace vell
