// SPDX-License-Identifier: MIT
#pragma once

#include <cstdint>
#include <ctime>
#include <filesystem>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

#include "demo/days/ClippingsTree.h"

namespace vell::demo {

// A line of a listing.
struct FtpEntry {
    std::string Name;
    bool IsDirectory = false;
    std::uintmax_t Size = 0;
    std::time_t Time = 0;
};

// The parts of an absolute path; none for "/".
using FtpPath = std::vector<std::string>;
[[nodiscard]] std::string textOf(const FtpPath& path);

// The tree as FTP clients see it: at the top the advertisement, the days, "upload" and "torvoarchive", which shows the
// files of all days in one folder and cannot be written. Tables, alerts and passwords are not part of it.
class FtpTree {
  public:
    static constexpr std::string_view ArchiveName = "torvoarchive";

    explicit FtpTree(const ClippingsTree& tree) : tree_(tree) {}

    // Where `argument` leads from `current`; nothing when it holds a name that is not plain. ".." ends at the top.
    [[nodiscard]] static std::optional<FtpPath> resolve(const FtpPath& current, std::string_view argument);

    [[nodiscard]] bool isDirectory(const FtpPath& path) const;
    // In the order of the names.
    [[nodiscard]] std::vector<FtpEntry> list(const FtpPath& directory) const;
    // The file on disk behind a path; it may be read.
    [[nodiscard]] std::optional<std::filesystem::path> file(const FtpPath& path) const;
    // The place on disk behind a path, taken or not, that may be made, changed and deleted: it lies in a day's folder
    // or in "upload".
    [[nodiscard]] std::optional<std::filesystem::path> writable(const FtpPath& path) const;

  private:
    [[nodiscard]] std::optional<std::filesystem::path> onDisk(const FtpPath& path) const;
    [[nodiscard]] std::vector<FtpEntry> top() const;
    [[nodiscard]] std::vector<FtpEntry> archive() const;
    [[nodiscard]] std::optional<std::filesystem::path> archiveFile(std::string_view name) const;

    const ClippingsTree& tree_;
};

}  // namespace vell::demo
