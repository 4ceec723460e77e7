// SPDX-License-Identifier: MIT
#include "app/Session.h"

namespace vell {

const DownloadEntry* Session::currentEntry() const {
    const auto& list = Downloads.gDownloadList;
    const auto index = static_cast<std::size_t>(gCurrentFileIndex);
    return gCurrentFileIndex < 1 || index > list.size() ? nullptr : &list[index - 1];
}

std::string Session::currentFile() const {
    const DownloadEntry* entry = currentEntry();
    return entry == nullptr ? std::string{} : entry->FileName;
}

}  // namespace vell
