// SPDX-License-Identifier: MIT
#pragma once

#include <cstddef>

#include "ui/dialogs/FilterChoice.h"
#include "ui/list/ClippingFilter.h"

namespace vell {

class ClippingsBrowser;

// What the filter dialog offers: the newspapers, categories and types of the chosen day, or of what was found in all
// days, and those that are chosen already. Nothing is filtered before OK.
class frmFilter {
  public:
    explicit frmFilter(ClippingsBrowser& browser);

    FilterChoice lstNewspapers;
    FilterChoice lstCategories;
    FilterChoice lstTypes;

    // How many clippings would be listed, of how many.
    [[nodiscard]] std::size_t passing() const;
    [[nodiscard]] std::size_t all() const;

    // Lists the clippings that pass.
    void cmdOk_Click();
    // Everything passes again.
    void cmdClear_Click();

  private:
    [[nodiscard]] ClippingFilter chosen() const;

    ClippingsBrowser& browser_;
};

}  // namespace vell
