// SPDX-License-Identifier: MIT
#include <gtest/gtest.h>

#include "net/ModRAS.h"
#include "tests/support/ScriptedRas.h"

namespace vell::test {
namespace {

using Lines = std::vector<std::string>;

class ModRASTest : public testing::Test, protected ErrorLog {
  protected:
    void LogError(const RunTimeError& error, std::string_view) noexcept override { ADD_FAILURE() << error.what(); }

    ScriptedRas api_;
    ModRAS ras_{api_, *this};
    Lines names_{"old"};
};

TEST_F(ModRASTest, triesTheRecordSizesFromTheNewestToTheOldest) {
    const std::pair<std::uint32_t, Lines> cases[] = {
        {532, {"entries 532 532", "entries 532 1064"}},
        {264, {"entries 532 532", "entries 264 264", "entries 264 528"}},
        {28, {"entries 532 532", "entries 264 264", "entries 28 28", "entries 28 56"}},
        {99, {"entries 532 532", "entries 264 264", "entries 28 28"}}};
    for (const auto& [size, calls] : cases) {
        api_.calls.clear();
        api_.entrySize = size;
        // The longest name that the record holds, and a short one behind it.
        api_.entries = {std::string(size == 28 ? 20 : 256, 'x'), "\xCC\xEF ISP"};
        EXPECT_EQ(ras_.VBRasGetAllEntries("", names_), size == 99 ? 0 : 2);
        EXPECT_EQ(names_, size == 99 ? Lines{} : api_.entries);
        EXPECT_EQ(api_.calls, calls);
    }
}

TEST_F(ModRASTest, hangsUpByNameWithoutItsBlanks) {
    api_.connections = {"My ISP", "Other", " My ISP"};
    EXPECT_EQ(ras_.GetDialUpConnections(), api_.connections);
    EXPECT_TRUE(ras_.hangUp("My ISP "));
    EXPECT_TRUE(ras_.hangUp("Nobody"));
    EXPECT_EQ(api_.calls, (Lines{"hangup 100", "hangup 102"}));
    api_.refused = 102;
    EXPECT_FALSE(ras_.hangUp("My ISP"));
    EXPECT_FALSE(ras_.hangUpAll());
    EXPECT_EQ(api_.calls.size(), 7U);
    api_.enumResult = 5;
    EXPECT_FALSE(ras_.hangUp("Nobody"));
}

TEST_F(ModRASTest, hasNothingWithoutEntriesOrWithoutTheService) {
    EXPECT_EQ(ras_.VBRasGetAllEntries("", names_), 0);
    EXPECT_EQ(api_.calls, Lines{"entries 532 532"});  // no second question
    EXPECT_EQ(ras_.errorText(600), "");
    EXPECT_EQ(ras_.errorText(601), "text 601");
    api_.installed = false;
    api_.entries = api_.connections = {"My ISP"};
    EXPECT_EQ(ras_.VBRasGetAllEntries("", names_), 0);
    EXPECT_EQ(ras_.GetDialUpConnections(), Lines{});
    EXPECT_FALSE(ras_.hangUp("My ISP"));
    EXPECT_EQ(ras_.errorText(601), "");
}

}  // namespace
}  // namespace vell::test
