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
    Find = wxID_FIND,
    Help = wxID_HELP_CONTENTS,
    About = wxID_ABOUT,
    SaveAs = wxID_SAVEAS,

    OpenNext20 = wxID_HIGHEST + 1,
    OpenDayFolder,
    PrintAll,
    PrintByCategory,
    StopPrinting,
    Filter,
    ShowAll,
    AutoView,
    MarkOpened,
    MarkNotOpened,
    CopyFile,
    CopyTitle,
    CopyText,
    CopyPath,
    SelectAll,
    SortByMarks,
    SortByNewspaper,
    SortByTitle,
    SortByType,
    SortByCategory,
    SortByPage,
    SortByFile,
    // The columns, in the order of optionalColumns.
    SeeNewspaper,
    SeeType,
    SeeCategory,
    SeePage,
    SeeFile,
    // The columns, in the order of movableColumns.
    MoveLeft,
    LastMoveLeft = MoveLeft + 6,
    MoveRight,
    LastMoveRight = MoveRight + 6,
    GoToList,
    ShowAdvertisement,
    PaneBelow,
    PaneBeside,
    PaneOff,
    ShowTrayIcon,
    ShowWindow,
    Start,
    Schedule,
    TryAgain,
    ShowFailedFiles,
    GoToMessage,
    CheckUpdate,
};

}  // namespace vell::command
