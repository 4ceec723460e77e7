// SPDX-License-Identifier: MIT
#pragma once

#include <map>

#include "platform/Files.h"
#include "platform/IniFile.h"
#include "platform/posix/files/ini/IniText.h"

namespace vell {

// Files in INI syntax where the system has no calls for them. A new file can be read by its owner alone, since
// settings hold passwords.
class PosixIniFile : public IniFile {
  public:
    explicit PosixIniFile(Files& files) : files_(files) {}

    [[nodiscard]] std::string ReadString(std::string_view file, std::string_view section, std::string_view key,
                                         std::string_view missing, std::size_t bufferSize) const override;
    void ReadAtOnce(std::string_view file, const std::function<void()>& reads) const override;
    void Update(std::string_view file, const std::function<std::vector<IniEdit>()>& edits) override;

  private:
    struct Known {
        FileStamp Stamp;
        bool IsSettled = false;  // false: another content may have the same stamp
        IniText Text;
    };

    // A file that is being updated or read at once: until the end it reads as it was at the beginning, so that no
    // second reading, which could fail, has a say. Several may be held, one inside the work with another.
    struct Held {
        std::string_view File;
        const IniText& Text;
        const Held* Outer;
    };

    // The file as it is now; an empty text when there is none. Raises when it cannot be read.
    const IniText& text(std::string_view file) const;
    const IniText& remember(std::string_view file, const FileStamp& stamp, IniText text) const;

    Files& files_;
    mutable const Held* held_ = nullptr;  // the innermost
    mutable std::map<std::string, Known, std::less<>> known_;
};

}  // namespace vell
