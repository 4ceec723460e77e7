// SPDX-License-Identifier: MIT
#pragma once

#include <string>
#include <unordered_set>

#include "platform/Files.h"
#include "platform/windows/files/fileErrors.h"

namespace vell {

// Names differ in case as the drive has it, which is to say that they hardly ever do.
class WindowsFiles : public Files {
  public:
    [[nodiscard]] bool PathExists(std::string_view path) const override;
    [[nodiscard]] std::optional<std::int64_t> FileSize(std::string_view path) const override;
    [[nodiscard]] std::optional<FileStamp> Stamp(std::string_view path) const override;
    // Names on disk that code page 1253 cannot express are left out.
    [[nodiscard]] std::vector<Entry> Enumerate(std::string_view folder, std::string_view pattern,
                                               Kind kind) const override;
    [[nodiscard]] std::string ReadFile(std::string_view path) const override;
    [[nodiscard]] std::string ReadPart(std::string_view path, std::int64_t offset, std::size_t most) const override;
    // Keeps the rights of a file that it replaces.
    void WriteWhole(std::string_view path, std::string_view bytes, Durability durability) override;
    void Append(std::string_view path, std::string_view bytes) override;
    [[nodiscard]] std::unique_ptr<PartFile> OpenPart(std::string_view path) override;
    [[nodiscard]] std::unique_ptr<PartFile> Lock(std::string_view path) override;
    // Nothing is left to wait for: a part is on the disk when it gets its name.
    void Flush(std::string_view folder) override;
    void MakePrivateFile(std::string_view path) override;
    void DeleteFile(std::string_view path) override;
    void MakeFolder(std::string_view path) override;
    void RemoveFolder(std::string_view path) override;
    [[nodiscard]] std::string SystemPath(std::string_view path) const override;
    [[nodiscard]] bool IsTaken(const std::string& systemPath) const override;
    void CopyOut(std::string_view path, const std::string& systemPath) override;
    // Nothing for a folder on another machine, whose answer says little of what its user may write.
    [[nodiscard]] std::optional<std::uint64_t> FreeBytes(std::string_view path) const override;

  private:
    void clearFolderOf(const FilePlace& place);

    std::unordered_set<std::wstring> clearedFolders_;  // of leftover parts
};

}  // namespace vell
