// SPDX-License-Identifier: MIT
#pragma once

#include <cstdint>
#include <string>

namespace vell {

// Goes through what a folder holds, "." and ".." apart.
class FolderReader {
  public:
    struct Found {
        std::wstring Name;
        std::int64_t Size = 0;
        std::int64_t ModifiedAt = 0;  // in the system's file time
        bool IsFolder = false;
        bool IsLink = false;
    };

    explicit FolderReader(const std::wstring& folder);
    ~FolderReader();
    FolderReader(const FolderReader&) = delete;
    FolderReader& operator=(const FolderReader&) = delete;

    // The system's error when the folder could not be read, else 0.
    [[nodiscard]] std::uint32_t error() const { return error_; }
    [[nodiscard]] bool next(Found& found);

  private:
    void* search_ = nullptr;
    std::uint32_t error_ = 0;
    Found first_;
    bool hasFirst_ = false;
};

}  // namespace vell
