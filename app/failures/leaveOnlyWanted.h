// SPDX-License-Identifier: MIT
#pragma once

namespace vell {

class Files;
struct Session;

// When the run is for certain files of its day alone: leaves their clippings in the download list. The clippings' other
// files need no turn if they have come as the list has them.
void leaveOnlyWanted(Session& session, const Files& disk);

}  // namespace vell
