// SPDX-License-Identifier: MIT
#pragma once

#include <optional>
#include <string>
#include <vector>

#include "base/Date.h"

namespace vell {

class Terminal;

// Exit codes, for scripts.
namespace exit_code {
inline constexpr int Good = 0;
inline constexpr int Failed = 1;        // a file failed, the list could not be got, or what was asked for was not done
inline constexpr int Usage = 2;         // unknown option, impossible date, wrong value
inline constexpr int NoConnection = 3;  // no internet connection
inline constexpr int AlreadyRunning = 5;
inline constexpr int Interrupted = 130;  // stopped by SIGINT
inline constexpr int Terminated = 143;   // stopped by SIGTERM
}  // namespace exit_code

// What the user asked for. Texts in UTF-8.
struct CommandLine {
    enum class Command {
        Download,
        List,
        Days,
        Setup,
        Schedule,
        ScheduleAdd,
        ScheduleRemove,
        Watch,
        Print,
        Open,
        Delete
    };

    Command What = Command::Download;
    std::string Folder;  // of the program; empty for the usual one
    bool Yes = false;
    std::optional<Date> Day;
    std::optional<Date> From;
    std::optional<Date> To;
    bool Tsv = false;
    // What to print or open: everything, whole categories, or clippings by their file names.
    bool All = false;
    std::vector<std::string> Categories;
    std::vector<std::string> Files;
    std::optional<std::string> Key;
    std::optional<std::string> Value;
    std::string Entry;  // of the schedule, such as "Mon Wed 07:30"
    int Number = 0;     // of an entry, counted from 1
};

// Nothing when there is nothing to do but to end with `exitCode`: after help or version, or after an error, which is
// told on the terminal.
[[nodiscard]] std::optional<CommandLine> parseCommandLine(std::vector<std::string> arguments, Terminal& terminal,
                                                          int& exitCode);

}  // namespace vell
