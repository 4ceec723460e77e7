// SPDX-License-Identifier: MIT
#pragma once

#include <cstdint>
#include <string>
#include <string_view>

#include "platform/windows/files/fileErrors.h"

namespace vell {

// An open file; closed when the object goes. No program that is started inherits it.
class FileHandle {
  public:
    // How it is opened, in CreateFile's own terms. `Others` is what they may do with it meanwhile.
    struct How {
        std::uint32_t Access;
        std::uint32_t Others;
        std::uint32_t Creation;
        std::uint32_t Flags = 0;
    };
    static const How ToRead;  // whatever others do with it

    FileHandle() = default;
    FileHandle(const FilePlace& place, const How& how);  // raises
    // Not open, and the error is the system's last one, when that fails.
    [[nodiscard]] static FileHandle tried(const std::wstring& systemPath, const How& how);
    ~FileHandle();
    FileHandle(FileHandle&& other) noexcept;
    FileHandle& operator=(FileHandle&& other) noexcept;

    [[nodiscard]] bool isOpen() const { return handle_ != nullptr; }
    [[nodiscard]] void* get() const { return handle_; }

    [[nodiscard]] std::int64_t size(const FilePlace& place) const;
    void writeAt(std::int64_t offset, std::string_view bytes, const FilePlace& place);
    // Fewer than `most` bytes only where the file ends.
    [[nodiscard]] std::string readAt(std::int64_t offset, std::size_t most, const FilePlace& place) const;
    [[nodiscard]] std::string readAll(const FilePlace& place) const;
    void cutTo(std::int64_t length, const FilePlace& place);
    // Waits until the disk has it, and its name.
    void flushToDisk(const FilePlace& place);
    // What is open becomes the file of that name in the same step; it was opened with DELETE.
    void moveTo(const FilePlace& target);
    // What is open goes when it is closed; the same.
    void markDeleted(const FilePlace& place);
    void close();

  private:
    explicit FileHandle(void* handle) noexcept : handle_(handle) {}

    void* handle_ = nullptr;
};

}  // namespace vell
