// SPDX-License-Identifier: MIT
#include "platform/posix/files/LeftoverParts.h"

#include <filesystem>
#include <vector>

#include <fcntl.h>
#include <sys/stat.h>
#include <unistd.h>

#include "platform/common/partNames.h"
#include "platform/posix/files/FileHandle.h"

namespace vell {

namespace {

bool isOlder(const struct stat& status, std::chrono::hours age) {
    const auto now = std::chrono::system_clock::now().time_since_epoch();
    return now - std::chrono::seconds{status.st_mtim.tv_sec} >= age;
}

void removeIfLeftOver(const FilePlace& part, std::chrono::hours age) {
    FileHandle file(part, O_RDWR | O_NOFOLLOW | O_NONBLOCK);
    struct stat status {};
    if (fstat(file.get(), &status) == 0 && isOlder(status, age) && file.tryLock()) unlink(part.System.c_str());
}

}  // namespace

void removeLeftoverParts(const std::string& folder, std::chrono::hours age) {
    std::vector<std::string> parts;
    std::error_code unreadable;  // then there is nothing to clear, and the write itself tells what is wrong
    for (std::filesystem::directory_iterator entry(folder, unreadable), end; !unreadable && entry != end;
         entry.increment(unreadable))
        if (isPartName(entry->path().filename().string())) parts.push_back(entry->path());
    for (const auto& part : parts) {
        try {
            removeIfLeftOver({part, part}, age);
        } catch (const RunTimeError&) {
            continue;  // a part of another user's stays
        }
    }
}

}  // namespace vell
