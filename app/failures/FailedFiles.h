// SPDX-License-Identifier: MIT
#pragma once

#include <functional>
#include <string>
#include <vector>

#include "app/failures/FailedFile.h"

namespace vell {

// The files that are still missing after the runs of this session, in the order in which they failed.
class FailedFiles {
  public:
    // A run is done with those files of the day for which `isSettled` is true, and these have failed.
    void settle(const Date& day, const std::vector<FailedFile>& failed,
                const std::function<bool(const std::string& name)>& isSettled);

    [[nodiscard]] const std::vector<FailedFile>& all() const { return files_; }
    [[nodiscard]] bool isEmpty() const { return files_.empty(); }

  private:
    std::vector<FailedFile> files_;
};

}  // namespace vell
