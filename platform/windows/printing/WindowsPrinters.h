// SPDX-License-Identifier: MIT
#pragma once

#include "platform/Printers.h"

namespace vell {

// The printers of the system's spooler, and the dialogs of their drivers.
class WindowsPrinters : public Printers {
  public:
    [[nodiscard]] std::optional<PrinterSettings> DefaultPrinter(std::string& reason) override;
    [[nodiscard]] bool ShowProperties(const std::string& deviceName, std::string& reason) override;
};

}  // namespace vell
