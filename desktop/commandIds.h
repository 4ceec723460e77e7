// SPDX-License-Identifier: MIT
#pragma once

#include <wx/defs.h>

// The numbers of the window's commands. Those that every program has are the toolkit's own.
namespace vell::command {

enum : int {
    Open = wxID_OPEN,
    PrintSelected = wxID_PRINT,
    Exit = wxID_EXIT,
    DeleteDay = wxID_DELETE,
    Refresh = wxID_REFRESH,
    OlderDay = wxID_BACKWARD,
    NewerDay = wxID_FORWARD,
    Stop = wxID_STOP,
    Setup = wxID_PREFERENCES,
    Help = wxID_HELP_CONTENTS,
    About = wxID_ABOUT,

    OpenNext20 = wxID_HIGHEST + 1,
    OpenDayFolder,
    PrintAll,
    PrintByCategory,
    StopPrinting,
    Filter,
    ShowAll,
    AutoView,
    SortByMarks,
    SortByNewspaper,
    SortByTitle,
    SortByType,
    GoToList,
    Start,
    Schedule,
};

}  // namespace vell::command
