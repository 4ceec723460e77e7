// SPDX-License-Identifier: MIT
#pragma once

#include <string>

#include <fcntl.h>
#include <sys/file.h>
#include <unistd.h>

namespace vell::test {

// Until nobody holds the lock of a file that may be there. A program that was killed while it started another one
// leaves it to that one for a moment.
inline void waitForLock(const std::string& file) {
    const int lock = open(file.c_str(), O_RDWR | O_CLOEXEC);
    if (lock < 0) return;
    flock(lock, LOCK_EX);
    close(lock);
}

}  // namespace vell::test
