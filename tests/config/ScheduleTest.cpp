// SPDX-License-Identifier: MIT
#include <gtest/gtest.h>

#include "config/Schedule.h"
#include "config/ScheduleView.h"
#include "config/frmSchedule.h"
#include "tests/support/ScriptedBoxes.h"
#include "tests/support/SettingsRig.h"

namespace vell::test {
namespace {

using Lines = std::vector<std::string>;

class ScheduleTest : public testing::Test, protected SettingsRig, protected ScheduleView {
  protected:
    // Gives the answer, if there is one, and up the next time.
    std::optional<std::string> InputBox(std::string_view prompt, std::string_view title,
                                        std::string_view offered) override {
        boxes.Shown.push_back(std::string(title) + ": " + std::string(prompt) + "|" + std::string(offered));
        return std::exchange(answer, std::nullopt);
    }
    void Beep() override { boxes.Shown.emplace_back("beep"); }

    Lines told() { return std::exchange(boxes.Shown, {}); }
    void loadSchedule(std::string_view lines) {
        folder.put("vell.ini", "[Schedule]\n" + std::string(lines));
        dialog.Form_Load();
    }

    ScriptedBoxes boxes;
    frmSchedule dialog{setup, ini, boxes, log, english};
    std::optional<std::string> answer;
};

TEST_F(ScheduleTest, readsDaysInAnyCaseAndTheLastOtherPieceAsTheTime) {
    const auto entry = [](std::array<bool, 7> days, const char* time) { return ScheduleEntry{days, time}; };
    EXPECT_EQ(scheduleEntryOf("mon FRI 07:05"), entry({true, false, false, false, true}, "07:05"));
    EXPECT_EQ(scheduleEntryOf("Mon 07:05 "), entry({true}, ""));
    EXPECT_EQ(scheduleEntryOf("Tue  08:00 Sun 09:00"), entry({false, true, false, false, false, false, true}, "09:00"));
    EXPECT_EQ(scheduleEntryOf("07:05"), entry({}, "07:05"));
    EXPECT_EQ(scheduleEntryOf("Mond"), entry({}, "Mond"));
    for (const char* blank : {"", "   "})
        EXPECT_EQ(scheduleEntryOf(blank), ScheduleEntry{});
}

TEST_F(ScheduleTest, stopsAtTheFirstMissingNumber) {
    loadSchedule("Schedule1=Mon 07:05\nSchedule3=Tue 08:00\n");
    EXPECT_EQ(setup.ScheduleList.size(), 1U);
    loadSchedule("schedule1=\nSCHEDULE2=Tue 08:00\nSchedule3=\"   \"\n");
    EXPECT_EQ(setup.ScheduleList.size(), 3U);
    loadSchedule("Schedule0=Mon 07:05\n");
    EXPECT_TRUE(setup.ScheduleList.empty());
}

TEST_F(ScheduleTest, takesFiveCharactersOfATimeOfDay) {
    for (const char* good : {"00:00", "07:05", " 23:59 ", "24:30", "24:59"})
        EXPECT_TRUE(IsTimeValid(good)) << good;
    for (const char* bad : {"", "7:05", "07.05", "25:00", "12:60", "07:5", "+7:05", "7 :05", "-1:00", "07:5 ", "07:055",
                            "\xB2\xB3:00", "\xE1\xE2:\xE3\xE4"})
        EXPECT_FALSE(IsTimeValid(bad)) << bad;
}

TEST_F(ScheduleTest, takesTypedEntriesInAnyOrderWithOneTime) {
    EXPECT_EQ(storedTextOf(scheduleEntryTyped(" 7:30  fri mon ")), "Mon Fri 07:30");
    EXPECT_EQ(storedTextOf(scheduleEntryTyped("24:30")), "Mon Tue Wed Thu Fri Sat Sun 24:30");
    EXPECT_EQ(mistakeInTyped("wed 7:30"), "");
    for (const char* wrong : {"", "Mon", "07:30 08:30"})
        EXPECT_EQ(mistakeInTyped(wrong), "An entry has one time, such as \"Mon Wed 07:30\".");
    EXPECT_EQ(mistakeInTyped("Mo 07:30"), "'Mo' is neither a day (Mon Tue Wed Thu Fri Sat Sun) nor a time (HH:MM).");
}

TEST_F(ScheduleTest, addsOnlyAValidTimeOnEveryDay) {
    const std::string prompt = "Schedule Time: Enter a valid time in the format HH:MM ie. 15:30|";
    const std::tuple<std::optional<std::string>, Lines> cases[] = {
        {std::nullopt, {prompt}},
        {"  ", {prompt, "beep"}},
        {" 07.05", {prompt, "Invalid time entered", "beep", prompt + "07.05"}},
        {" 7:05 ", {prompt}}};
    for (const auto& [given, expected] : cases) {
        answer = given;
        dialog.cmdAddSchedule_Click(*this);
        EXPECT_EQ(told(), expected);
    }
    ASSERT_EQ(dialog.rows().size(), 1U);
    EXPECT_EQ(storedTextOf(dialog.rows()[0]), "Mon Tue Wed Thu Fri Sat Sun 07:05");
}

TEST_F(ScheduleTest, editsTogglesAndDeletesRows) {
    dialog.cmdEdit_Click(*this, std::nullopt);
    dialog.cmdDelSchedule_Click(0);
    EXPECT_EQ(told(), Lines{});
    loadSchedule("Schedule1=Mon 07:05\nSchedule2=Tue 08:00\n");
    dialog.grdSchedule_Click(*this, 0, 0);
    dialog.grdSchedule_Click(*this, 0, 6);
    answer = "25:00";
    dialog.grdSchedule_Click(*this, 0, frmSchedule::timeColumn);
    const std::string prompt = "Schedule Time: Enter a valid time|";
    EXPECT_EQ(told(), (Lines{prompt + "07:05", "Invalid time entered", prompt + "25:00"}));
    dialog.cmdEdit_Click(*this, std::nullopt);
    dialog.cmdDelSchedule_Click(std::nullopt);
    const std::string choose = "Choose an entry of the schedule first.";
    EXPECT_EQ(told(), (Lines{choose, choose}));
    answer = "10:00 ";
    dialog.cmdEdit_Click(*this, 0);
    EXPECT_EQ(storedTextOf(dialog.rows()[0]), "Sun 10:00");
    dialog.cmdDelSchedule_Click(1);
    dialog.cmdDelSchedule_Click(5);  // the last row goes whichever is chosen
    EXPECT_TRUE(dialog.rows().empty());
    EXPECT_EQ(setup.ScheduleList.size(), 2U);
}

TEST_F(ScheduleTest, writesTheRowsAnewFromOne) {
    loadSchedule("Schedule1=Mon 07:05\nSchedule2=wed tue 08:00\nSchedule3=Fri 09:00\nSchedule9=x\n[Host]\nPort=21\n");
    dialog.cmdDelSchedule_Click(0);
    dialog.grdSchedule_Click(*this, 1, 4);
    EXPECT_TRUE(dialog.cmdOk_Click());
    EXPECT_EQ(setup.ScheduleList, dialog.rows());
    EXPECT_EQ(folder.get("vell.ini"), "[Host]\nPort=21\n[Schedule]\nSchedule1=Tue Wed 08:00\nSchedule2=09:00\n");
    for (int last = 0; last < 2; ++last)
        dialog.cmdDelSchedule_Click(0);
    EXPECT_TRUE(dialog.cmdOk_Click());
    EXPECT_EQ(folder.get("vell.ini"), "[Host]\nPort=21\n");
    EXPECT_EQ(told(), Lines{});
    ini.setAppDir(folder.text() + "\\gone\\");
    dialog.add(scheduleEntryOf("Mon 07:05"));
    EXPECT_FALSE(dialog.cmdOk_Click());
    EXPECT_EQ(told(), Lines{"Error! The schedule could not be saved"});
    std::filesystem::create_directories(folder.path() / "odd/vell.ini");
    ini.setAppDir(folder.text() + "\\odd\\");
    EXPECT_FALSE(dialog.Form_Load());
    EXPECT_EQ(told(), Lines{"Error! The schedule could not be read from the settings file"});
}

TEST_F(ScheduleTest, keepsWhatAnotherProgramHasChangedMeanwhile) {
    loadSchedule("Schedule1=Mon 07:05\nSchedule2=Tue 08:00\nSchedule3=Fri 09:00\n");
    frmSchedule other{setup, ini, boxes, log, english};
    other.Form_Load();
    other.add(scheduleEntryOf("Sun 10:00"));
    other.cmdDelSchedule_Click(1);
    EXPECT_TRUE(other.cmdOk_Click());
    dialog.add(scheduleEntryOf("Sat 11:00"));
    dialog.cmdDelSchedule_Click(0);
    EXPECT_TRUE(dialog.cmdOk_Click());
    EXPECT_EQ(folder.get("vell.ini"),
              "[Schedule]\r\nSchedule1=Fri 09:00\r\nSchedule2=Sat 11:00\r\nSchedule3=Sun 10:00\r\n");
}

}  // namespace
}  // namespace vell::test
