// SPDX-License-Identifier: MIT
#pragma once

#include <filesystem>
#include <optional>
#include <string>

#include "demo/ftp/FtpTree.h"

namespace vell::demo {

struct FtpReply {
    int Code = 0;
    std::string Text;
};

// The commands that move about in the tree and change it without a data connection: PWD, CWD, CDUP, MKD, RMD, DELE,
// RNFR, RNTO, SIZE. Holds the current directory of one session.
class FtpFolderCommands {
  public:
    explicit FtpFolderCommands(const FtpTree& tree) : tree_(tree) {}

    // Nothing for any other command.
    [[nodiscard]] std::optional<FtpReply> answer(const std::string& verb, const std::string& argument);

    // The path that an argument names from the current directory.
    [[nodiscard]] std::optional<FtpPath> pathOf(const std::string& argument) const;
    [[nodiscard]] const FtpPath& current() const { return current_; }

  private:
    FtpReply enter(const std::string& argument);
    FtpReply makeDirectory(const std::string& argument);
    FtpReply remove(const std::string& argument, bool directory);
    FtpReply renameFrom(const std::string& argument);
    FtpReply renameTo(const std::string& argument);
    FtpReply size(const std::string& argument);
    [[nodiscard]] std::optional<std::filesystem::path> writable(const std::string& argument) const;

    const FtpTree& tree_;
    FtpPath current_;
    std::optional<std::filesystem::path> renamed_;
};

}  // namespace vell::demo
