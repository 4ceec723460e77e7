// SPDX-License-Identifier: MIT
#pragma once

#include <chrono>
#include <optional>
#include <string>
#include <vector>

#include "platform/Printers.h"

namespace vell {

// The printers of CUPS, asked by its own commands, which come in one package with the lp that prints. They read what
// lp reads: the user's own settings, then the server's.
class CupsPrinters : public Printers {
  public:
    // `patience`: how long a command may take. A server that hangs would hold it up for minutes, and the window with
    // it; one that is well answers within a tenth of a second.
    explicit CupsPrinters(std::chrono::milliseconds patience = std::chrono::seconds{3}) : patience_(patience) {}

    [[nodiscard]] std::optional<PrinterSettings> DefaultPrinter(std::string& reason) override;
    // CUPS has no dialog; what stands for it is the printer's page in CUPS' own web interface.
    [[nodiscard]] bool ShowProperties(const std::string& deviceName, std::string& reason) override;

  private:
    [[nodiscard]] std::optional<std::string> answer(const std::string& command,
                                                    const std::vector<std::string>& arguments,
                                                    std::string& reason) const;
    // In UTF-8, with its instance (NAME/INSTANCE) where the user has made one the default.
    [[nodiscard]] std::optional<std::string> defaultName(std::string& reason) const;

    std::chrono::milliseconds patience_;
};

}  // namespace vell
