// SPDX-License-Identifier: MIT
#pragma once

#include <chrono>
#include <string>
#include <string_view>
#include <vector>

#include "platform/Shell.h"
#include "platform/posix/files/FolderNames.h"
#include "platform/posix/program/desktopApplications.h"

namespace vell {

// Opens documents, folders and addresses with the desktop's default applications, and starts programs. A document
// whose kind is to be run is refused with 5 (access denied): it comes from a server. Programs are found by name, in
// the folders of our own first, then along PATH; a name found there that is no program is opened as a document. The
// PDF reader that is started for printing is our own helper, and what it answers is CUPS' answer.
class PosixShell : public Shell {
  public:
    struct Places {
        std::vector<std::string> OwnFolders;
        std::string PrintHelper;

        // The executable's folder, and where a package puts what goes with it.
        [[nodiscard]] static Places ofThisProgram();
    };
    // `patience`: how long the print server's answer is waited for.
    explicit PosixShell(Places places = Places::ofThisProgram(),
                        std::chrono::milliseconds patience = std::chrono::seconds{3});

    int Open(std::string_view file, std::string_view parameters) override;
    [[nodiscard]] std::string LastReason() const override { return lastReason_; }

  private:
    [[nodiscard]] int open(std::string_view file, std::string_view parameters);
    [[nodiscard]] int told(Opening opening);
    [[nodiscard]] int openByName(std::string_view name, std::string_view parameters);
    [[nodiscard]] std::vector<std::string> arguments(std::string_view parameters);

    Places places_;
    std::chrono::milliseconds patience_;
    std::string lastReason_;
    FolderNames names_;
};

}  // namespace vell
