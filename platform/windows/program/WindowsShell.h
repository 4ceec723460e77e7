// SPDX-License-Identifier: MIT
#pragma once

#include <string>
#include <string_view>

#include "platform/Shell.h"

namespace vell {

// The system's shell. A document that would be run when it is opened is refused with 5 (access denied): it comes from
// a server. Where the PDF reader is not installed, what it should print goes to the program that prints such documents.
class WindowsShell : public Shell {
  public:
    int Open(std::string_view file, std::string_view parameters) override;
    [[nodiscard]] std::string LastReason() const override { return {}; }

  private:
    [[nodiscard]] static int openByName(std::string_view name, std::string_view parameters);
};

}  // namespace vell
