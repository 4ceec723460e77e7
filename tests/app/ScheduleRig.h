// SPDX-License-Identifier: MIT
#pragma once

#include <string>

#include <gtest/gtest.h>

#include "base/text.h"
#include "tests/support/ProgramRig.h"

namespace vell::test {

// The schedule's timer on a clock that the test drives. 07/03/2004 is a Sunday.
struct ScheduleRig : ProgramRig {
    void load(frmMain& loaded, const std::string& schedule, const std::string& download = "") {
        configure(download, folder.text() + "/clips");
        folder.put("vell.ini", folder.get("vell.ini") + "[Schedule]\r\n" + schedule);
        ASSERT_TRUE(loaded.Form_Load(frmMain::Start::Alone));
        loaded.schedule().start();
    }
    // Lets time go by in the timer's steps.
    void pass(std::chrono::minutes time) {
        for (const SteadyTime end = clock.Steady() + time; clock.Steady() < end;) {
            clock.advance(std::chrono::seconds{10});
            loop.DoEvents();
        }
    }
    // Each line of the log that tells of a scheduled run, with its time.
    [[nodiscard]] std::string runs() const {
        std::string lines;
        const std::string log = folder.get("vell.log");
        for (const std::string_view line : Split(log, "\r\n"))
            if (line.find("Scheduled download") != std::string_view::npos)
                lines.append(line.substr(0, 19)).append(line.substr(23)).append("\n");
        return lines;
    }
};

}  // namespace vell::test
