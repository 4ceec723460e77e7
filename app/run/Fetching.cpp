// SPDX-License-Identifier: MIT
#include "app/run/Fetching.h"

#include "app/MainView.h"
#include "app/Session.h"

namespace vell {

Fetching::Fetching(const Parts& p)
    : Boxes(p.State, p.Os.Boxes, p.View, p.Log),
      Os(p.Os.with(Boxes)),
      Store({Os.Disk, Os.Loop, Os.Boxes, p.Ini, p.Log, p.State.Run.Setup, p.State.Run.Day}),
      Article(Os.DesktopShell, Os.Boxes, Os.Loop, p.Log),
      Http(Os.Internet, Os.Disk, Os.Boxes, p.Progress, p.Log, p.State.Run.Setup),
      Ftp(p.State, Os, p.View, p.Progress, p.Log, usualPaintInterval),
      List({Http, Store, Os.Disk, Os.Boxes, p.Progress, p.Log, p.State.Run.Setup, p.State.Run.Day, p.State.Downloads,
            p.Version}),
      gInet(Os.Connection, Os.Boxes, p.Log),
      Ras(Os.Ras, p.Log),
      Link({p.State.Run.Setup, p.Progress, p.View, Os.Boxes, Os.Loop, p.Log, gInet, Ras}),
      Run({p.State, p.View, Os.Loop, Os.Time, Os.Disk, p.Log, Store, Article, Http, Ftp, List, p.Browser, p.Progress}),
      Download(p.State, Link, Run, p.Log),
      Forced({p.State, Os, p.View, p.Log, Download, Ftp, p.Progress, p.Browser}),
      Scheduled({p.State, Os.Loop, Os.Time, p.Log, Download, p.Browser}) {}

}  // namespace vell
