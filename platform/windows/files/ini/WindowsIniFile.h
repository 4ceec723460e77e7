// SPDX-License-Identifier: MIT
#pragma once

#include <map>

#include "platform/Files.h"
#include "platform/IniFile.h"
#include "platform/windows/files/ini/ProfileFile.h"

namespace vell {

// Files in INI syntax by the system's private-profile calls. A new file can be read by its owner alone, since settings
// hold passwords.
class WindowsIniFile : public IniFile {
  public:
    explicit WindowsIniFile(Files& files) : files_(files) {}

    [[nodiscard]] std::string ReadString(std::string_view file, std::string_view section, std::string_view key,
                                         std::string_view missing, std::size_t bufferSize) const override;
    void ReadAtOnce(std::string_view file, const std::function<void()>& reads) const override;
    void Update(std::string_view file, const std::function<std::vector<IniEdit>()>& edits) override;

  private:
    struct Known {
        FileStamp Stamp;
        bool IsSettled = false;  // false: another content may have the same stamp
        ProfileFile Profile;
    };

    // A file that is being updated or read at once: until the end it reads as it was at the beginning, so that no
    // second reading, which could fail, has a say. Several may be held, one inside the work with another.
    struct Held {
        std::string_view File;
        const ProfileFile& Profile;
        const Held* Outer;
    };

    // The file as it is now; an empty one when there is none. Raises when it cannot be read.
    const ProfileFile& profile(std::string_view file) const;
    [[nodiscard]] std::string bytesOf(std::string_view file) const;

    Files& files_;
    mutable const Held* held_ = nullptr;  // the innermost
    mutable std::map<std::string, Known, std::less<>> known_;
};

}  // namespace vell
