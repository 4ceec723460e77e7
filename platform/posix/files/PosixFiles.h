// SPDX-License-Identifier: MIT
#pragma once

#include <string>
#include <unordered_set>

#include <sys/stat.h>

#include "platform/Files.h"
#include "platform/posix/files/FileHandle.h"
#include "platform/posix/files/FolderNames.h"
#include "platform/posix/files/fileErrors.h"

namespace vell {

class PosixFiles : public Files {
  public:
    [[nodiscard]] bool PathExists(std::string_view path) const override;
    [[nodiscard]] std::optional<std::int64_t> FileSize(std::string_view path) const override;
    [[nodiscard]] std::optional<FileStamp> Stamp(std::string_view path) const override;
    // Names on disk that code page 1253 cannot express are left out.
    [[nodiscard]] std::vector<Entry> Enumerate(std::string_view folder, std::string_view pattern,
                                               Kind kind) const override;
    [[nodiscard]] std::string ReadFile(std::string_view path) const override;
    // Keeps the permissions of a file that it replaces.
    void WriteWhole(std::string_view path, std::string_view bytes, Durability durability) override;
    void Append(std::string_view path, std::string_view bytes) override;
    [[nodiscard]] std::unique_ptr<PartFile> OpenPart(std::string_view path) override;
    [[nodiscard]] std::unique_ptr<PartFile> Lock(std::string_view path) override;
    void Flush(std::string_view folder) override;
    void MakePrivateFile(std::string_view path) override;
    void DeleteFile(std::string_view path) override;
    void MakeFolder(std::string_view path) override;
    void RemoveFolder(std::string_view path) override;
    [[nodiscard]] std::optional<std::uint64_t> FreeBytes(std::string_view path) const override;

    // The path in the system's form, of the file that is meant.
    [[nodiscard]] std::string realPath(std::string_view path) const;

    [[nodiscard]] FilePlace locate(std::string_view path) const;
    // Both raise.
    void rename(const FilePlace& from, const FilePlace& to);  // in the same folder
    void remove(const FilePlace& place);

  private:
    // Nothing when there is no such file or folder; raises when the attributes cannot be read.
    [[nodiscard]] std::optional<struct stat> status(std::string_view path) const;
    template <class Operation>
    void mayMake(const FilePlace& place, Operation&& operation);
    void clearFolderOf(const FilePlace& place);

    mutable FolderNames names_;
    std::unordered_set<std::string> clearedFolders_;  // of leftover parts
};

}  // namespace vell
