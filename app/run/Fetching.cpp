// SPDX-License-Identifier: MIT
#include "app/run/Fetching.h"

#include "app/BuildFacts.h"
#include "app/MainView.h"
#include "app/Session.h"
#include "app/failures/runMessage.h"

namespace vell {

namespace {

// A run that was stopped has put nothing right.
void tellEnd(const RunContext& run, MainView& view, const Translations& words) {
    const auto message = runMessage(run, words);
    if (message || !run.Outcome.Stopped) view.showRunMessage(message);
}

}  // namespace

Fetching::Fetching(const Parts& p)
    : Boxes(p.State, p.Os.Boxes, p.View, p.Log),
      Os(p.Os.with(Boxes)),
      Store({Os.Disk, Os.Loop, Os.Boxes, p.Ini, p.Log, p.State.Run.Setup, p.State.Run.Day}),
      Article(Os.DesktopShell, Os.Boxes, Os.Loop, p.Log),
      Http(Os.Internet, Os.Disk, Os.Boxes, p.Progress, p.Log, p.State.Run.Setup),
      Ftp(p.State, Os, p.View, p.Progress, p.Log, usualPaintInterval),
      List({Http, Store, Os.Disk, Os.Boxes, p.Progress, p.Log, p.State.Run.Setup, p.State.Run.Day, p.State.Downloads,
            p.Facts.Version}),
      gInet(Os.Connection, Os.Boxes, p.Log),
      Ras(Os.Ras, p.Log),
      Link({p.State.Run.Setup, p.Progress, p.View, Os.Boxes, Os.Loop, p.Log, gInet, Ras}),
      Update({Os, p.State, p.View, p.Ini, p.Log, p.Progress, p.Facts}),
      Run({p.State, p.View, Os.Loop, Os.Time, Os.Disk, p.Log, Store, Article, Http, Ftp, List, p.Browser, p.Progress,
           Update}),
      Download(p.State, Link, Run, p.Log, Os.Time),
      Forced({p.State, Os, p.View, p.Log, Download, Ftp, p.Progress, p.Browser}),
      Scheduled({p.State, Os.Loop, Os.Time, p.Log, Download, p.Browser}),
      News({p.View, p.Browser, Os.Disk, Os.Time, p.Log, p.Progress, Scheduled, Os.Words, p.State.gAppPath}) {
    Download.onEnd([this](const RunContext& run) { News.runEnded(run); });
    Download.onEnd([&view = p.View, &words = Os.Words](const RunContext& run) { tellEnd(run, view, words); });
    Scheduled.onTick([this] { News.showNextRun(); });
}

}  // namespace vell
