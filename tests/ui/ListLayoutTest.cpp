// SPDX-License-Identifier: MIT
#include <gmock/gmock.h>

#include "config/ViewSettings.h"
#include "tests/support/SettingsRig.h"
#include "ui/list/ListLayout.h"

namespace vell::test {
namespace {

using enum GridColumn;

class ListLayoutTest : public testing::Test, protected SettingsRig {
  protected:
    ViewSettings kept{ini};
};

TEST_F(ListLayoutTest, keepsColumnsAndSortingAndPassesOverWhatMakesNoSense) {
    const ListLayout usual{{Marks}, {Newspaper}, {Title}, {Type}};
    const std::vector<std::pair<std::string, ListLayout>> cases{
        {"", usual},
        {"Page:900 Marks Title File", {{Page, 900}, {Marks}, {Title}, {File}}},
        {"Nonsense Path Day :3 Type:x Type:7  Newspaper:-1 Category:1e99 Page:",
         {{Marks}, {Title}, {Type}, {Newspaper}, {Category, 144'000}, {Page}}}};
    for (const auto& [text, layout] : cases) {
        if (!text.empty()) kept.keepText("Columns", text);
        EXPECT_EQ(keptListLayout(kept), layout) << text;
        keep(kept, layout);
        EXPECT_EQ(keptListLayout(kept), layout);
    }
    for (const RowOrder& order : {RowOrder{}, RowOrder{Title, true}, RowOrder{Marks, false}, RowOrder{Page, false}}) {
        keep(kept, order);
        EXPECT_EQ(keptRowOrder(kept), order);
    }
    keep(kept, RowOrder{Day, true});
    EXPECT_EQ(keptRowOrder(kept), (RowOrder{Page, false})) << "days stand beside clippings of several days only";
    kept.keepText("SortedBy", "-");
    EXPECT_EQ(keptRowOrder(kept), RowOrder{});
}

}  // namespace
}  // namespace vell::test
