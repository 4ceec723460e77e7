// SPDX-License-Identifier: MIT
#include <gtest/gtest.h>

#include "ui/MessageList.h"

namespace vell::test {

TEST(MessageListTest, showsTheNewestLetsTurnBackAndForgetsWhatIsOutOfDate) {
    MessageList list;
    const auto shown = [&] { return list.shown() == nullptr ? "" : list.shown()->Text; };
    list.dismiss();
    for (const char* text : {"a", "b", "c", "a"})
        list.add({.Text = text});
    EXPECT_EQ(shown() + std::to_string(list.count()), "a3");
    list.showOlder();
    list.showOlder();
    list.showOlder();
    EXPECT_EQ(shown(), "b");
    list.add({.About = Message::Topic::Run, .Text = "first run"});
    list.add({.About = Message::Topic::Run, .Text = "second run"});
    EXPECT_EQ(shown() + std::to_string(list.count()), "second run4");
    list.showOlder();
    list.dismiss();
    EXPECT_EQ(shown(), "c");
    list.forgetRun();
    EXPECT_EQ(shown() + std::to_string(list.number()) + std::to_string(list.count()), "c22");
    for (int i = 0; i < 1000; ++i)
        list.add({.Text = std::to_string(i)});
    EXPECT_EQ(shown(), "999");
    EXPECT_LE(list.count(), 50U);
}

}  // namespace vell::test
