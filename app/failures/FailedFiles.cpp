// SPDX-License-Identifier: MIT
#include "app/failures/FailedFiles.h"

namespace vell {

void FailedFiles::settle(const Date& day, const std::vector<FailedFile>& failed,
                         const std::function<bool(const std::string& name)>& isSettled) {
    std::erase_if(files_, [&](const FailedFile& file) { return file.Day == day && isSettled(file.Name); });
    files_.insert(files_.end(), failed.begin(), failed.end());
}

}  // namespace vell
