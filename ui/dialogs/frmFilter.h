// SPDX-License-Identifier: MIT
#pragma once

#include <string>
#include <vector>

#include "ui/list/ClippingFilter.h"

namespace vell {

class ClippingsBrowser;

// What the filter dialog offers: the categories and types of the chosen day, and those that are chosen already.
class frmFilter {
  public:
    explicit frmFilter(ClippingsBrowser& browser);

    [[nodiscard]] const std::vector<std::string>& lstCategories() const { return categories_; }
    [[nodiscard]] const std::vector<std::string>& lstTypes() const { return types_; }
    [[nodiscard]] bool isCategoryChosen(const std::string& name) const;
    [[nodiscard]] bool isTypeChosen(const std::string& name) const;

    // Lists the clippings that pass.
    void cmdOk_Click(const ClippingFilter& chosen);

  private:
    ClippingsBrowser& browser_;
    std::vector<std::string> categories_;
    std::vector<std::string> types_;
};

}  // namespace vell
