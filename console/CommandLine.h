// SPDX-License-Identifier: MIT
#pragma once

#include <optional>
#include <string>
#include <vector>

#include "base/Date.h"

namespace vell {

class Terminal;

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
        Show,
        Mark,
        Delete,
        Update
    };

    Command What = Command::Download;
    std::string Folder;  // of the program; empty for the usual one
    bool Yes = false;
    std::optional<Date> Day;
    std::optional<Date> From;
    std::optional<Date> To;
    bool Tsv = false;
    bool Check = false;    // of an update: say only what there is
    bool Install = false;  // of an update: at once
    std::string Words;     // that the listed clippings have
    bool Unread = false;
    bool Opened = false;  // what to mark clippings as
    // Of what to list, print or open: everything, whole categories or types, or clippings by their file names.
    bool All = false;
    std::vector<std::string> Categories;
    std::vector<std::string> Types;
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
