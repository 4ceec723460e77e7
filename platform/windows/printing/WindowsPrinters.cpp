// SPDX-License-Identifier: MIT
#include "platform/windows/printing/WindowsPrinters.h"

#include <cstddef>
#include <vector>

#include <winspool.h>

#include "platform/windows/systemText.h"

namespace vell {

namespace {

constexpr const char* noPrinter =
    "There is no default printer. Choose one in the system's settings, under Printers & scanners.";

// An open printer; closed when the object goes.
class Printer {
  public:
    explicit Printer(std::wstring name) : name_(std::move(name)) {
        if (!OpenPrinterW(name_.data(), &handle_, nullptr)) handle_ = nullptr;
    }
    ~Printer() {
        if (handle_ != nullptr) ClosePrinter(handle_);
    }
    Printer(const Printer&) = delete;
    Printer& operator=(const Printer&) = delete;

    [[nodiscard]] bool isOpen() const { return handle_ != nullptr; }
    // How it is set up: a DEVMODE with what the driver keeps behind it. Empty when the driver does not say.
    [[nodiscard]] std::vector<std::byte> settings() {
        const LONG size = DocumentPropertiesW(nullptr, handle_, name_.data(), nullptr, nullptr, 0);
        if (size < static_cast<LONG>(sizeof(DEVMODEW))) return {};
        std::vector<std::byte> bytes(static_cast<std::size_t>(size));
        auto* const mode = reinterpret_cast<DEVMODEW*>(bytes.data());
        if (DocumentPropertiesW(nullptr, handle_, name_.data(), mode, nullptr, DM_OUT_BUFFER) != IDOK) return {};
        return bytes;
    }
    // Whether the driver's dialog was shown, whatever was answered.
    [[nodiscard]] bool prompt() {
        std::vector<std::byte> bytes = settings();
        if (bytes.empty()) return false;
        auto* const mode = reinterpret_cast<DEVMODEW*>(bytes.data());
        return DocumentPropertiesW(GetActiveWindow(), handle_, name_.data(), mode, mode,
                                   DM_IN_BUFFER | DM_OUT_BUFFER | DM_IN_PROMPT) >= 0;
    }

  private:
    std::wstring name_;
    HANDLE handle_ = nullptr;
};

std::string cannotAsk(const std::string& name) {
    return "The printer " + name + " cannot be asked. Is it installed, and does the print spooler run? " +
           systemMessage(GetLastError());
}

}  // namespace

std::optional<PrinterSettings> WindowsPrinters::DefaultPrinter(std::string& reason) {
    DWORD length = 0;
    GetDefaultPrinterW(nullptr, &length);
    std::wstring name(length, L'\0');
    if (length == 0 || !GetDefaultPrinterW(name.data(), &length)) {
        reason = noPrinter;
        return std::nullopt;
    }
    name.resize(name.find(L'\0'));
    PrinterSettings found;
    found.DeviceName = codePageFromWideLossy(name);
    Printer printer(name);
    const std::vector<std::byte> bytes = printer.isOpen() ? printer.settings() : std::vector<std::byte>{};
    if (bytes.empty()) {
        reason = cannotAsk(found.DeviceName);
        return std::nullopt;
    }
    const auto& mode = *reinterpret_cast<const DEVMODEW*>(bytes.data());
    const auto has = [&](DWORD field) { return (mode.dmFields & field) != 0; };
    if (has(DM_PAPERSIZE)) found.PaperSize = mode.dmPaperSize;
    if (has(DM_ORIENTATION)) found.Orientation = mode.dmOrientation;
    if (has(DM_PRINTQUALITY)) found.PrintQuality = mode.dmPrintQuality;
    if (has(DM_SCALE)) found.Zoom = mode.dmScale;
    return found;
}

bool WindowsPrinters::ShowProperties(const std::string& deviceName, std::string& reason) {
    Printer printer(wideFromCodePage(deviceName));
    if (printer.isOpen() && printer.prompt()) return true;
    reason = cannotAsk(deviceName);
    return false;
}

}  // namespace vell
