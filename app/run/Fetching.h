// SPDX-License-Identifier: MIT
#pragma once

#include "app/news/RunNews.h"
#include "app/progress/TransferProgress.h"
#include "app/run/DownloadRun.h"
#include "app/run/DownloadSession.h"
#include "app/run/Downloads.h"
#include "app/run/FtpSession.h"
#include "app/run/InternetLink.h"
#include "app/run/LiveUpdate.h"
#include "app/run/RunBoxes.h"
#include "app/run/ScheduledRuns.h"
#include "net/CWinInetConnection.h"
#include "net/ModRAS.h"
#include "platform/Platform.h"
#include "service/DownloadList.h"
#include "service/modHTTP.h"
#include "store/Articles.h"
#include "store/modGlobal.h"

namespace vell {

class ClippingsBrowser;
class MainView;
class modIni;
struct BuildFacts;

// What brings clippings, whether a person or the schedule wants them. All of it gets the message boxes of a run, and
// a store whose chosen day is the run's: what a person looks at meanwhile steers nothing here.
struct Fetching {
    struct Parts {
        const Platform& Os;
        MainView& View;
        Session& State;
        modIni& Ini;
        EventLog& Log;
        TransferProgress& Progress;
        ClippingsBrowser& Browser;
        const BuildFacts& Facts;
    };
    explicit Fetching(const Parts& parts);

    RunBoxes Boxes;
    Platform Os;  // with those boxes
    modGlobal Store;
    Articles Article;
    modHTTP Http;
    FtpSession Ftp;
    DownloadList List;
    CWinInetConnection gInet;
    ModRAS Ras;
    InternetLink Link;
    LiveUpdate Update;
    DownloadRun Run;
    DownloadSession Download;
    Downloads Forced;
    ScheduledRuns Scheduled;
    RunNews News;
};

}  // namespace vell
