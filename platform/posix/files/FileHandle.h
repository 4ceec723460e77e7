// SPDX-License-Identifier: MIT
#pragma once

#include <cstdint>
#include <string>
#include <string_view>

#include <sys/types.h>

#include "platform/posix/files/fileErrors.h"

namespace vell {

// An open file; closed when the object goes. No program that is started inherits it.
class FileHandle {
  public:
    FileHandle() = default;
    // The place must outlive the handle's use only in the calls it is given to.
    FileHandle(const FilePlace& place, int flags, mode_t mode = 0);  // raises
    // Takes over a descriptor; -1 for none.
    explicit FileHandle(int descriptor) noexcept : descriptor_(descriptor) {}
    ~FileHandle();
    FileHandle(FileHandle&& other) noexcept;
    FileHandle& operator=(FileHandle&& other) noexcept;

    [[nodiscard]] int get() const { return descriptor_; }
    [[nodiscard]] bool isOpen() const { return descriptor_ >= 0; }

    // False when another handle, of whatever process or machine, has the lock. It goes with the handle. Where the
    // file system knows no locks everybody gets one.
    [[nodiscard]] bool tryLock();

    void writeAll(std::string_view bytes, const FilePlace& place);
    void writeAllAt(std::int64_t offset, std::string_view bytes, const FilePlace& place);
    [[nodiscard]] std::string readAll(const FilePlace& place);
    // Fewer than `most` bytes only where the file ends.
    [[nodiscard]] std::string readAt(std::int64_t offset, std::size_t most, const FilePlace& place) const;
    // Waits until the disk has it.
    void flushToDisk(const FilePlace& place);
    // Raises what a late write failed with, which a network file system tells no sooner; the file stays open.
    void reportLateErrors(const FilePlace& place) const;
    // Raises that, too.
    void close(const FilePlace& place);

  private:
    int descriptor_ = -1;
};

}  // namespace vell
