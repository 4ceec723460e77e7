// SPDX-License-Identifier: MIT
#include <tuple>

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

TEST(ColumnMovesTest, stepOverTheNeighbourAndEndAtTheEdges) {
    const ListLayout before{{Marks}, {Newspaper, 900}, {Title}};
    const std::vector<std::tuple<GridColumn, int, ListLayout>> cases{
        {Newspaper, -1, {{Newspaper, 900}, {Marks}, {Title}}},
        {Newspaper, 1, {{Marks}, {Title}, {Newspaper, 900}}},
        {Marks, 2, {{Newspaper, 900}, {Title}, {Marks}}},
        {Title, -2, {{Title}, {Marks}, {Newspaper, 900}}},
        {Marks, -1, before},
        {Title, 1, before},
        {Page, -1, before}};
    for (const auto& [column, places, after] : cases) {
        ListLayout layout = before;
        EXPECT_EQ(canMove(layout, column, places), after != before);
        moveColumn(layout, column, places);
        EXPECT_EQ(layout, after);
    }
}

}  // namespace
}  // namespace vell::test
