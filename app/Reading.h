// SPDX-License-Identifier: MIT
#pragma once

#include "store/Articles.h"
#include "store/DayState.h"
#include "store/modGlobal.h"
#include "ui/AlertLinks.h"
#include "ui/ClippingOpening.h"
#include "ui/ClippingsBrowser.h"
#include "ui/DayCommands.h"
#include "ui/PrintCommands.h"
#include "ui/StatusText.h"
#include "ui/days/DayCounts.h"
#include "ui/dialogs/frmAutoView.h"
#include "ui/find/Finder.h"
#include "ui/list/ClippingCopies.h"
#include "ui/list/ClippingSaving.h"
#include "ui/list/PageReader.h"
#include "ui/reading/TextReader.h"

namespace vell {

class modIni;
struct Platform;
struct Session;

// What a person does with the clippings that are there: looking, opening, printing, deleting. Its message boxes are
// always the front-end's.
struct Reading {
    struct Parts {
        const Platform& Os;
        BrowserView& View;
        modIni& Ini;
        EventLog& Log;
        const Session& State;
        StatusText Status;
        StatusText Message;
    };
    explicit Reading(const Parts& parts);

    DayState Shown;  // the day that the person has chosen
    modGlobal Store;
    Articles Article;
    DayCounts Counts;
    ClippingsBrowser Browser;
    TextReader Text;
    Finder Find;
    PageReader Pages;
    ClippingOpening Opening;
    ClippingCopies Copies;
    ClippingSaving Saving;
    PrintCommands Printing;
    frmAutoView AutoView;
    DayCommands Days;
    AlertLinks Links;
};

}  // namespace vell
