// SPDX-License-Identifier: MIT
#pragma once

#include <string>
#include <vector>

class wxDataViewCtrl;

namespace vell {
class MainWindow;
}

// What can be measured in the program's own window once its first frame is painted. Each function tells its figures on
// standard output, in milliseconds unless it says otherwise.
namespace measures {

using Arguments = std::vector<std::string>;

// Every way through the list. Told are the typical and the longest step, painting included, and the most processor time
// of one, which other machines on the host do not add to.
void scroll(const Arguments& arguments);
// From the choice of a day to its painted list; DAYS is how often. The program folder has two days, the newer one with
// one clipping.
void openDay(const Arguments& arguments);
// A download of DAY (dd/mm/yyyy) from its start to its end: seconds, seconds of the processor, peak memory in KB.
void downloadDay(const Arguments& arguments);

// What is typed to find clippings, one TEXT=COUNT after the other: how long until the list is painted with so many
// rows, which must be others than before, and the longest step of the event loop meanwhile. The first one reads the
// texts; the worst of the others is told at the end.
void find(const Arguments& arguments);

// What they need.
vell::MainWindow& mainWindow();
wxDataViewCtrl& clippingsList();
// Does what a menu entry does, and returns when it is done.
void choose(int command);
// Queued drawing is done here and not with the display's next frame.
void waitUntilPainted();

}  // namespace measures
