// SPDX-License-Identifier: MIT
#pragma once

#include <optional>
#include <string>

#include "platform/Printers.h"

namespace vell::test {

// One printer, or none; its dialog opens as long as there is no trouble.
class RecordingPrinters : public Printers {
  public:
    std::optional<PrinterSettings> DefaultPrinter(std::string& reason) override {
        if (!Default) reason = "no printer";
        return Default;
    }
    bool ShowProperties(const std::string& deviceName, std::string& reason) override {
        Shown += deviceName + " ";
        reason = Trouble;
        return Trouble.empty();
    }

    std::optional<PrinterSettings> Default;
    std::string Trouble;
    std::string Shown;  // the printers whose dialog was opened
};

}  // namespace vell::test
