// SPDX-License-Identifier: MIT
#include "console/UpdateCommand.h"

#include "app/exitCodes.h"
#include "app/frmMain.h"
#include "console/CommandLine.h"
#include "console/Screen.h"

namespace vell {

int UpdateCommand::run(const CommandLine& line) {
    using End = frmUpdate::End;
    if (line.Install && program_.isUpdateReady()) return install();
    LiveUpdate& update = program_.update();
    const End end = line.Check ? update.look() : line.Install ? update.fetch() : update.mnuCheckUpdate_Click();
    screen_.leaveStatus();
    if (line.Install && end == End::Ready) return install();
    const bool isGood = end != End::Failed && !(line.Install && end == End::Told);
    return isGood ? exit_code::Good : exit_code::Failed;
}

int UpdateCommand::install() {
    if (const auto fault = program_.installUpdate()) {
        screen_.tell(*fault);
        return exit_code::Failed;
    }
    screen_.tell("The newer version is installed. From now on every start is its.");
    return exit_code::Good;
}

}  // namespace vell
