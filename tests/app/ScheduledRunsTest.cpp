// SPDX-License-Identifier: MIT
#include <gmock/gmock.h>

#include "tests/app/ScheduleRig.h"

namespace vell::test {

class ScheduledRunsTest : public testing::Test, protected ScheduleRig {};

TEST_F(ScheduledRunsTest, startsEachEntryOfItsMinuteInTheFirstTickOfItThroughAWeek) {
    service.serve(0);
    load(program,
         "Schedule1=mon 07:30\r\nSchedule2=Mon Wed 07:30\r\nSchedule3=MON SUN 07:30\r\nSchedule5=Tue 08:00\r\n");
    EXPECT_EQ(program.schedule().nextDue(), (LocalTime{{2004, 3, 7}, 7, 30, 0}));
    // A run that ends within its minute is followed by another at each further tick of it.
    pass(std::chrono::hours{24 * 7});
    std::string expected;
    const std::tuple<std::string, std::string, int> table[] = {
        {"07/03/2004", "SUN", 1}, {"08/03/2004", "MON", 3}, {"10/03/2004", "WED", 1}};
    for (const auto& [date, day, entries] : table)
        for (const std::string second : {"00", "10", "20", "30", "40", "50"})
            for (int entry = 0; entry < entries; ++entry)
                for (const std::string what : {"STARTED ", "ENDED "})
                    expected += date + " 07:30:" + second + what + day + " Scheduled download at 07:30\n";
    EXPECT_EQ(runs(), expected);
    EXPECT_EQ(program.schedule().nextDue(), (LocalTime{{2004, 3, 14}, 7, 30, 0}));
}

TEST_F(ScheduledRunsTest, aTickInTheMiddleOfARunFindsTheProgramBusy) {
    load(program, "Schedule1=Sun 06:30\r\n", "PrintOnDownload=1\r\n");
    shell.Result = 2;
    view.OnStatus = [&](const std::string& status) {
        if (status.find(" Downloading N2") == std::string::npos) return;
        view.OnStatus = nullptr;
        pass(std::chrono::minutes{2});
    };
    pass(std::chrono::minutes{1});
    EXPECT_EQ(Split(runs(), "STARTED").size(), 1U + 6U);
    EXPECT_EQ(service.requests().size(), 2U + 10U);  // one run alone
    const std::string index = inDay("ALLFILES.DIR");
    EXPECT_EQ(Split(index, "||d||").size(), 4U) << index;
    EXPECT_TRUE(boxes.Shown.empty()) << "nobody is there to press OK: " << boxes.Shown.front();
    EXPECT_TRUE(view.Message.ends_with("The specified file was not found.")) << view.Message;
}

TEST_F(ScheduledRunsTest, aTickInAForcedRunOfAnotherDayLeavesThatRunItsDay) {
    load(program, "Schedule1=Sun 06:30\r\n", "CloseConnection=1\r\n");
    connection.flags |= ConnectionApi::Modem;
    program.downloads().chooseRange({2004, 3, 1}, {2004, 3, 1});
    service.Answers[ServicePeer::listScript] = HttpPeer::ok("ERROR 1001");
    boxes.Answers = {Answer::Ok};
    boxes.OnQuestion = [&] {
        boxes.OnQuestion = nullptr;
        service.serve(1);
        pass(std::chrono::minutes{2});
        EXPECT_EQ(connection.calls, std::vector<std::string>{"state 1 0"}) << "nothing is hung up under a run";
    };
    program.downloads().mnuForceDownload_Click();
    EXPECT_THAT(runs(), testing::StartsWith("07/03/2004 06:30:00STARTED SUN Scheduled download at 06:30\n"
                                            "07/03/2004 06:30:00ENDED SUN Scheduled download at 06:30\n"));
    const auto requests = service.requests();
    ASSERT_EQ(requests.size(), 3U + 4U);
    for (std::size_t i = 0; i < 3; ++i)  // the list twice, and the alert
        EXPECT_THAT(requests[i], testing::ContainsRegex("dd1?=01&mm1?=03")) << i;
    EXPECT_EQ(folder.get("clips/01032004/ALERT.MSG"), "strike\r\n");
    EXPECT_FALSE(folder.has("clips/07032004"));
}

TEST_F(ScheduledRunsTest, aTickBetweenTheDaysOfARangeForgetsNothing) {
    load(program, "Schedule1=Sun 06:30\r\n");
    program.downloads().chooseRange({2004, 3, 1}, {2004, 3, 2});
    service.Answers[ServicePeer::listScript] = HttpPeer::status("500 No");
    view.OnStatus = [&](const std::string& status) {
        if (!status.starts_with("Error while")) return;
        view.OnStatus = nullptr;
        service.Answers[ServicePeer::listScript] = HttpPeer::ok("ERROR 1001");
        clock.advance(std::chrono::minutes{1});
    };
    program.downloads().mnuForceDownload_Click();
    EXPECT_THAT(runs(), testing::StartsWith("07/03/2004 06:30:00STARTED"));
    EXPECT_TRUE(program.downloads().outcome().ListFailed);
    EXPECT_THAT(boxes.Shown, testing::Contains(testing::HasSubstr("correct username"))) << "a person is asked";
    EXPECT_FALSE(folder.has("clips/07032004"));
}

TEST_F(ScheduledRunsTest, aScheduledRunWaitsForNobody) {
    service.Answers[ServicePeer::listScript] = HttpPeer::ok("ERROR 1001");
    load(program, "Schedule1=Sun 06:30\r\n");
    pass(std::chrono::minutes{1});
    EXPECT_THAT(boxes.Shown, testing::IsEmpty());
    EXPECT_EQ(service.requests().size(), 1U);
    const std::string told = "Please enter a correct username/password combination. -> Cancel";
    EXPECT_EQ(view.Message, told);
    EXPECT_THAT(logged(), testing::HasSubstr(told + "\n"));
}

TEST_F(ScheduledRunsTest, aClockThatJumpsStartsNothingTwice) {
    service.serve(0);
    load(program, "Schedule1=Sun 06:30\r\n");
    pass(std::chrono::minutes{1});
    clock.setNow({{2004, 3, 8}, 6, 30, 0});  // a day ahead: a Monday
    pass(std::chrono::minutes{2});
    clock.setNow({{2004, 3, 7}, 5, 31, 0});  // an hour back
    pass(std::chrono::minutes{58});
    EXPECT_EQ(runs(),
              "07/03/2004 06:30:00STARTED SUN Scheduled download at 06:30\n"
              "07/03/2004 06:30:00ENDED SUN Scheduled download at 06:30\n");
}

TEST_F(ScheduledRunsTest, stopWhileDiallingIsTheEndOfTheDownload) {
    load(program, "", "DialUp=My ISP\r\nCloseConnection=1\r\n");
    connection.connected = false;
    connection.flags = ConnectionApi::Modem;
    view.OnStatus = [&](const std::string& status) {
        if (status.starts_with("Starting 'My ISP'")) program.downloads().cmdStopDownload_Click();
    };
    program.downloads().mnuForceDownload_Click();
    EXPECT_TRUE(program.downloads().outcome().Stopped);
    EXPECT_THAT(service.requests(), testing::IsEmpty());
    EXPECT_EQ(view.Status, "Download STOPED by user.");
}

TEST_F(ScheduledRunsTest, nothingBeginsWhileTheEndOfTheProgramHangsUp) {
    load(program, "Schedule1=Sun 06:30\r\n", "CloseConnection=1\r\n");
    connection.flags = ConnectionApi::Modem;
    boxes.OnQuestion = [&] {
        program.downloads().mnuForceDownload_Click();
        pass(std::chrono::minutes{2});
    };
    program.Form_Unload();
    EXPECT_THAT(service.requests(), testing::IsEmpty());
    EXPECT_THAT(boxes.Shown, testing::ElementsAre("Do you want to close the dial-up connection?"));
}

TEST_F(ScheduledRunsTest, withoutAConnectionNothingIsFetched) {
    connection.connected = false;
    EXPECT_FALSE(runToday());
    EXPECT_TRUE(program.downloads().outcome().NoConnection);
    EXPECT_THAT(service.requests(), testing::IsEmpty());
    EXPECT_EQ(view.Status, "Make sure you are connected to the Internet");
}

}  // namespace vell::test
