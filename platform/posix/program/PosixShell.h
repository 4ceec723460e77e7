// SPDX-License-Identifier: MIT
#pragma once

#include <string>
#include <string_view>
#include <vector>

#include "platform/Shell.h"
#include "platform/posix/files/FolderNames.h"

namespace vell {

// Opens documents, folders and addresses with the desktop's default applications, and starts programs. A document
// that could itself be run is refused with 5 (access denied): it comes from a server. Programs are found by name, in
// the folders of our own first, then along PATH; a name found there that is no program is opened as a document.
class PosixShell : public Shell {
  public:
    // What prints a document; by the name that the program calls it on every system.
    static constexpr std::string_view printHelper = "Acrord32.exe";

    explicit PosixShell(std::vector<std::string> ownFolders = foldersOfThisProgram());

    int Open(std::string_view file, std::string_view parameters) override;

  private:
    // The executable's folder, and where a package puts what goes with it.
    [[nodiscard]] static std::vector<std::string> foldersOfThisProgram();

    [[nodiscard]] int openByName(std::string_view name, std::string_view parameters);
    [[nodiscard]] std::vector<std::string> arguments(std::string_view parameters);

    std::vector<std::string> ownFolders_;
    FolderNames names_;
};

}  // namespace vell
