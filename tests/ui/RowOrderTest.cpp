// SPDX-License-Identifier: MIT
#include <memory>

#include <gtest/gtest.h>

#include "tests/support/DrivenClock.h"
#include "ui/BrowserView.h"
#include "ui/PictureSize.h"
#include "ui/list/RowOrder.h"
#include "ui/list/TypeAhead.h"

namespace vell::test {
namespace {

using Names = std::vector<std::string>;

TEST(RowOrderTest, sortsWithoutRegardToCaseAndAccentsAndComesBackToTheOrderOfTheStore) {
    // Beta, alpha with an accent, gamma, plain capital alpha: Greek letters of the code page. Beta once more.
    const Names titles{"\xC2", "\xDC\xE2", "\xE3", "\xC1\xC1", "\xE2"};
    std::vector<ClippingRow> rows;
    for (const std::string& title : titles) {
        rows.push_back({std::make_shared<CFtpFile>(), rows.size()});
        rows.back().File->Description = title;
    }
    RowOrder order;
    for (const char* expected : {"31042", "20413", "01234", "31042"}) {
        order.choose(GridColumn::Title);
        order.sort(rows);
        std::string shown;
        for (const ClippingRow& row : rows)
            shown += static_cast<char>('0' + row.Number);
        EXPECT_EQ(shown, expected) << order.Ascending << order.Column.has_value();
    }
    order.choose(GridColumn::Type);
    EXPECT_EQ(order, (RowOrder{GridColumn::Type, true}));
}

TEST(RowOrderTest, findsWhatCameInBetweenOrSaysThatTheListIsAnother) {
    using Places = std::vector<std::size_t>;
    const Names before{"A", "C"};
    EXPECT_EQ(insertedPlaces(before, {"A", "B", "C", "D"}), (Places{1, 3}));
    EXPECT_EQ(insertedPlaces(before, before), Places{});
    EXPECT_EQ(insertedPlaces({}, before), (Places{0, 1}));
    EXPECT_FALSE(insertedPlaces(before, {"C", "A"}));
    EXPECT_FALSE(insertedPlaces(before, {"A", "B"}));
}

TEST(TypeAheadTest, joinsLettersTypedSoonAndWalksThroughMatchesOfOneLetter) {
    const Names titles{"Beach", "apple", "\xDC\xF1\xE1", "avocado", "banana"};
    DrivenClock clock;
    TypeAhead ahead(clock);
    std::optional<std::size_t> at;
    const auto type = [&](char letter, int afterMilliseconds) {
        clock.advance(std::chrono::milliseconds{afterMilliseconds});
        return at = ahead.type(letter, titles.size(), at, [&](std::size_t place) { return titles[place]; });
    };
    EXPECT_EQ(type('A', 0), 1U);
    EXPECT_EQ(type('v', 900), 3U);
    EXPECT_EQ(type('b', 1100), 4U);
    EXPECT_EQ(type('b', 100), 0U) << "the same letter goes on, around the end";
    EXPECT_EQ(type('\xC1', 1100), 2U) << "Greek letters match without their accents";
    EXPECT_EQ(type('x', 1100), std::nullopt);
    EXPECT_EQ(TypeAhead(clock).type('a', 0, std::nullopt, {}), std::nullopt);
}

TEST(PictureSizeTest, readsTheHeadsOfPicturesAndDistrustsTheRest) {
    using namespace std::string_literals;
    const std::string jpeg = "\xFF\xD8\xFF\xE0\x00\x04..\xFF\xC4\x00\x03.\xFF\xFF\xC2\x00\x0B\x08\x00\x10\x01\x00"s;
    const std::string png = "\x89PNG\r\n\x1A\n\x00\x00\x00\x0DIHDR\x00\x00\x01\x00\x00\x00\x00\x10\x08"s;
    const std::string gif = "GIF89a\x00\x01\x10\x00"s;
    const PictureSize size{256, 16};
    for (const std::string& picture : {jpeg, png, gif}) {
        EXPECT_EQ(pictureSize(picture), size);
        EXPECT_TRUE(isDecentPicture(picture));
        for (std::size_t length = 0; length + 1 < std::min<std::size_t>(picture.size(), 22); ++length)
            EXPECT_NE(pictureSize(picture.substr(0, length)), (PictureSize{0, 0}));
        EXPECT_FALSE(isDecentPicture(picture + std::string(longestPicture, ' ')));
    }
    std::string bomb = png;
    bomb.replace(16, 8, "\x00\x01\x00\x00\x00\x01\x00\x00"s);
    const Names wrong{bomb, "", "\xFF\xD8\xFF", "<svg/>", "\xFF\xD8\xFF\xE0\xFF\xFFx", "GIF89a\x00\x00\x10\x00"s};
    for (const std::string& bytes : wrong)
        EXPECT_FALSE(isDecentPicture(bytes));
}

TEST(GridColumnsTest, giveTheTextsWhatTheTitlesLeave) {
    struct Case {
        std::vector<ColumnWish> Wishes;
        int Room;
        std::vector<int> Given;
    };
    const std::vector<Case> cases{{{{100, 180}, {50, 90}}, 500, {180, 90}},
                                  {{{100, 20}, {50, 30}}, 500, {100, 50}},
                                  {{{100, 180}, {50, 90}}, 210, {140, 70}},
                                  {{{100, 180}, {50, 90}}, 150, {100, 50}},
                                  {{{100, 180}, {50, 90}}, -10, {100, 50}},
                                  {{{100, 100}, {50, 90}}, 151, {100, 51}},
                                  {{{100, 180}, {50, 90}, {10, 10}, {10, 90}}, 271, {140, 70, 10, 51}},
                                  {{{100, 2'000'000}, {50, 90}}, 3'000'000, {2'000'000, 90}}};
    for (const Case& each : cases)
        EXPECT_EQ(fittedWidths(each.Wishes, each.Room), each.Given) << each.Room;
}

}  // namespace
}  // namespace vell::test
