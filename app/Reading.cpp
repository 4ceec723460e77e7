// SPDX-License-Identifier: MIT
#include "app/Reading.h"

#include "app/Session.h"
#include "platform/Platform.h"

namespace vell {

Reading::Reading(const Parts& p)
    : Store({p.Os.Disk, p.Os.Loop, p.Os.Boxes, p.Ini, p.Log, p.State.Setup, Shown}),
      Article(p.Os.DesktopShell, p.Os.Boxes, p.Os.Loop, p.Log),
      Browser({Store, p.Os.Disk, p.View, p.Os.Time, p.Log, p.State.Setup, Shown}),
      Opening(Browser, Store, Article, p.Log, p.Status, p.Message),
      Printing({Browser, Store, Article, p.Os.Loop, p.Os.Boxes, p.Os.Printer, p.Log, p.State.Setup}, p.Status,
               p.Message),
      AutoView(Browser, Opening, p.Os.Loop, p.State.Setup),
      Days(Browser, Store, p.Os.Boxes, p.Log,
           [this, &state = p.State] { return !state.isIdle() || Printing.isPrinting(); }) {}

}  // namespace vell
