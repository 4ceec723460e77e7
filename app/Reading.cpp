// SPDX-License-Identifier: MIT
#include "app/Reading.h"

#include "app/Session.h"
#include "platform/Platform.h"

namespace vell {

Reading::Reading(const Parts& p)
    : Store({p.Os.Disk, p.Os.Loop, p.Os.Boxes, p.Ini, p.Log, p.State.Setup, Shown}),
      Article(p.Os.DesktopShell, p.Os.Boxes, p.Os.Loop, p.Log),
      Counts({Store, p.Os.Loop, p.Os.Time, p.Log}),
      Browser({Store, p.Os.Disk, p.View, p.Os.Time, p.Log, p.State.Setup, Shown, p.Os.Words, Counts}),
      Text(p.Os.Disk, p.Os.Loop, p.Os.Words, p.Log),
      Find({Browser, Store, p.Os.Disk, p.Os.Loop, p.Os.Time, p.Os.Words, p.Log}),
      Pages({Browser, p.Os.Disk, p.Os.Loop, p.Os.Time, p.Log}),
      Opening({Browser, Store, Article, p.Os.Boxes, p.Log, p.Os.Words}, p.Status, p.Message),
      Copies(Browser, Text, p.Os.Disk, p.Message),
      Saving({p.Os.Disk, p.Os.Loop, p.Os.Boxes, p.Log, p.Os.Words}, p.Status, p.Message),
      Printing({Browser, Store, Article, p.Os.Loop, p.Os.Boxes, p.Os.Printer, p.Log, p.State.Setup, p.Os.Words},
               p.Status, p.Message),
      AutoView(Browser, Opening, p.Os.Loop, p.State.Setup),
      Days({Browser, Store, Counts, p.Os.Boxes, p.Log, p.Os.Words},
           [this, &state = p.State] { return !state.isIdle() || Printing.isPrinting(); }),
      Links(Opening, p.Os.Boxes, p.Os.Words) {}

}  // namespace vell
