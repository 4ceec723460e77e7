// SPDX-License-Identifier: MIT
#pragma once

#include <optional>
#include <string>

namespace vell {

// How a printer is set up, in the numbers of the classic Windows printer record (DEVMODE), which users and their help
// desks know, on every system.
struct PrinterSettings {
    std::string DeviceName;  // as the system calls the printer
    int PaperSize = 0;     // dmPaperSize: 1 Letter, 5 Legal, 8 A3, 9 A4, ...; 256 a size without a number; 0 not known
    int Orientation = 1;   // dmOrientation: 1 portrait, 2 landscape
    int PrintQuality = 0;  // dmPrintQuality: -1 draft to -4 high; above 0 dots per inch; 0 not known
    int Zoom = 100;        // dmScale: percent of the document's own size
};

// The printers of the system.
class Printers {
  public:
    virtual ~Printers() = default;

    // The printer that documents go to when none is named. Nothing when there is none or it cannot be asked; `reason`
    // then tells the user why, and what to do about it. Asking may take seconds, in which nothing else happens.
    [[nodiscard]] virtual std::optional<PrinterSettings> DefaultPrinter(std::string& reason) = 0;

    // Opens the dialog in which the system lets a printer be set up. False, with a reason as above, when it does not
    // open.
    [[nodiscard]] virtual bool ShowProperties(const std::string& deviceName, std::string& reason) = 0;
};

}  // namespace vell
