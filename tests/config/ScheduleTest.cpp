// SPDX-License-Identifier: MIT
#include <gtest/gtest.h>

#include "config/Schedule.h"
#include "config/ScheduleView.h"
#include "config/Settings.h"
#include "config/frmSchedule.h"
#include "config/modIni.h"
#include "platform/posix/PosixFiles.h"
#include "platform/posix/PosixIniFile.h"
#include "tests/support/Recorder.h"
#include "tests/support/TempFolder.h"

namespace vell::test {
namespace {

class ScheduleTest : public testing::Test, protected ScheduleView {
  protected:
    std::string InputBox(std::string_view prompt, std::string_view title, std::string_view offered) override {
        EXPECT_EQ(title, "Schedule Time");
        user_.lines.push_back(std::string(prompt) + "|" + std::string(offered));
        return answer_;
    }
    void Beep() override { user_.lines.emplace_back("beep"); }
    void load(std::string_view lines) {
        folder_.put("vell.ini", "[Schedule]\n" + std::string(lines));
        ini_.setAppDir(folder_.text() + "\\");
        dialog_.Form_Load();
    }

    TempFolder folder_;
    PosixFiles files_;
    PosixIniFile file_{files_};
    Recorder user_;
    modIni ini_{file_, user_};
    Settings settings_;
    frmSchedule dialog_{settings_, ini_, user_, user_};
    std::string answer_;
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
    load("Schedule1=Mon 07:05\nSchedule3=Tue 08:00\n");
    EXPECT_EQ(settings_.ScheduleList.size(), 1U);
    load("schedule1=\nSCHEDULE2=Tue 08:00\nSchedule3=\"   \"\n");
    EXPECT_EQ(settings_.ScheduleList.size(), 3U);
    load("Schedule0=Mon 07:05\n");
    EXPECT_TRUE(settings_.ScheduleList.empty());
}

TEST_F(ScheduleTest, takesFiveCharactersOfATimeOfDay) {
    for (const char* good : {"00:00", "07:05", " 23:59 ", "24:30", "24:59"})
        EXPECT_TRUE(IsTimeValid(good)) << good;
    for (const char* bad : {"", "7:05", "07.05", "25:00", "12:60", "07:5", "+7:05", "7 :05", "-1:00", "07:5 ", "07:055",
                            "\xB2\xB3:00", "\xE1\xE2:\xE3\xE4"})
        EXPECT_FALSE(IsTimeValid(bad)) << bad;
}

TEST_F(ScheduleTest, addsOnlyAValidTimeOnEveryDay) {
    const std::string prompt = "Enter a valid time in the format HH:MM ie. 15:30|";
    struct Case {
        const char* Answer;
        Lines Told;
    };
    for (const Case& one : {Case{"  ", {prompt, "beep"}}, Case{"7:05", {prompt, "box: Invalid time entered", "beep"}},
                            Case{" 07:05 ", {prompt}}}) {
        answer_ = one.Answer;
        dialog_.cmdAddSchedule_Click(*this);
        EXPECT_EQ(user_.told(), one.Told);
    }
    ASSERT_EQ(dialog_.rows().size(), 1U);
    EXPECT_EQ(storedTextOf(dialog_.rows()[0]), "Mon Tue Wed Thu Fri Sat Sun 07:05");
}

TEST_F(ScheduleTest, editsTogglesAndDeletesRows) {
    dialog_.cmdEdit_Click(*this, 0);
    dialog_.cmdDelSchedule_Click(0);
    EXPECT_EQ(user_.told(), Lines{});
    load("Schedule1=Mon 07:05\nSchedule2=Tue 08:00\n");
    dialog_.grdSchedule_Click(*this, 0, 0);
    dialog_.grdSchedule_Click(*this, 0, 6);
    answer_ = "25:00";
    dialog_.grdSchedule_Click(*this, 0, frmSchedule::timeColumn);
    EXPECT_EQ(user_.told(), (Lines{"Enter a valid time|07:05", "box: Invalid time entered"}));
    answer_ = "10:00 ";
    dialog_.cmdEdit_Click(*this, 0);
    EXPECT_EQ(storedTextOf(dialog_.rows()[0]), "Sun 10:00");
    dialog_.cmdDelSchedule_Click(1);
    dialog_.cmdDelSchedule_Click(5);  // the last row goes whichever is chosen
    EXPECT_TRUE(dialog_.rows().empty());
    EXPECT_EQ(settings_.ScheduleList.size(), 2U);
}

TEST_F(ScheduleTest, writesTheRowsAnewFromOne) {
    load("Schedule1=Mon 07:05\nSchedule2=wed tue 08:00\nSchedule3=Fri 09:00\nSchedule9=x\n[Host]\nPort=21\n");
    dialog_.cmdDelSchedule_Click(0);
    dialog_.grdSchedule_Click(*this, 1, 4);
    EXPECT_TRUE(dialog_.cmdOk_Click());
    EXPECT_EQ(settings_.ScheduleList, dialog_.rows());
    EXPECT_EQ(folder_.get("vell.ini"), "[Host]\nPort=21\n[Schedule]\nSchedule1=Tue Wed 08:00\nSchedule2=09:00\n");
    for (int last = 0; last < 2; ++last)
        dialog_.cmdDelSchedule_Click(0);
    EXPECT_TRUE(dialog_.cmdOk_Click());
    EXPECT_EQ(folder_.get("vell.ini"), "[Host]\nPort=21\n");
    EXPECT_EQ(user_.told(), Lines{});
    ini_.setAppDir(folder_.text() + "\\gone\\");
    dialog_.add(scheduleEntryOf("Mon 07:05"));
    EXPECT_FALSE(dialog_.cmdOk_Click());
    EXPECT_EQ(user_.told(), Lines{"box: Error! The schedule could not be saved"});
}

}  // namespace
}  // namespace vell::test
