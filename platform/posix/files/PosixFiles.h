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
    [[nodiscard]] std::string ReadPart(std::string_view path, std::int64_t offset, std::size_t most) const override;
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
    [[nodiscard]] std::string SystemPath(std::string_view path) const override;
    [[nodiscard]] bool IsTaken(const std::string& systemPath) const override;
    void CopyOut(std::string_view path, const std::string& systemPath) override;
    [[nodiscard]] std::optional<std::uint64_t> FreeBytes(std::string_view path) const override;

    [[nodiscard]] FilePlace locate(std::string_view path) const;
    // In the same folder; raises.
    void rename(const FilePlace& from, const FilePlace& to);
    // The same where nothing has that name yet; false when something may have.
    [[nodiscard]] bool renameToFree(const FilePlace& from, const FilePlace& to);
    void remove(const FilePlace& place);  // raises

  private:
    // Nothing when there is no such file or folder; raises when the attributes cannot be read.
    [[nodiscard]] std::optional<struct stat> status(std::string_view path) const;
    void clearFolderOf(const FilePlace& place);

    mutable FolderNames names_;
    std::unordered_set<std::string> clearedFolders_;  // of leftover parts
};

}  // namespace vell
