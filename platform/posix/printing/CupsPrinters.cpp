// SPDX-License-Identifier: MIT
#include "platform/posix/printing/CupsPrinters.h"

#include <string_view>
#include <utility>

#include "base/text.h"
#include "platform/Shell.h"
#include "platform/posix/printing/CupsOptions.h"
#include "platform/posix/printing/cupsReasons.h"
#include "platform/posix/program/desktopApplications.h"
#include "platform/posix/program/runProgram.h"
#include "platform/posix/program/startProgram.h"

namespace vell {

namespace {

// RFC 3986: as one part of an address's path.
std::string escaped(std::string_view name) {
    constexpr std::string_view plain = "ABCDEFGHIJKLMNOPQRSTUVWXYZabcdefghijklmnopqrstuvwxyz0123456789-._~";
    constexpr std::string_view digits = "0123456789ABCDEF";
    std::string text;
    for (const char one : name) {
        const auto byte = static_cast<unsigned char>(one);
        if (plain.find(one) != std::string_view::npos)
            text += one;
        else
            text.append({'%', digits[byte >> 4U], digits[byte & 0xFU]});
    }
    return text;
}

// Of a printer without its instance, which the web interface does not know. A name that the code page cannot hold has
// question marks, which no printer's name has; then it is the page of all printers.
std::string pageOf(const std::string& deviceName) {
    std::string page = "http://localhost:631/printers/";
    if (deviceName.find('?') != std::string::npos) return page;
    const std::string name = utf8FromCodePage(deviceName.substr(0, deviceName.find('/')));
    return page.append(escaped(name));
}

}  // namespace

std::optional<std::string> CupsPrinters::answer(const std::string& command, const std::vector<std::string>& arguments,
                                                std::string& reason) const {
    const std::string program = findProgram(command);
    auto end = program.empty() ? std::nullopt : runProgram(program, arguments, patience_);
    if (end) return std::move(end->Output);
    reason = program.empty() ? cups_reason::NotInstalled : cups_reason::NoAnswer;
    return std::nullopt;
}

std::optional<std::string> CupsPrinters::defaultName(std::string& reason) const {
    constexpr std::string_view announcement = "system default destination: ";
    const auto said = answer("lpstat", {"-d"}, reason);
    if (!said) return std::nullopt;
    const std::string_view line = std::string_view(*said).substr(0, said->find('\n'));
    if (line.starts_with(announcement)) return std::string(line.substr(announcement.size()));
    reason = cups_reason::NoDefault;
    // It says so on its standard output when the environment names a printer that is not there.
    if (line.starts_with("lpstat: ")) reason += " CUPS says: " + codePageFromUtf8Lossy(line);
    return std::nullopt;
}

std::optional<PrinterSettings> CupsPrinters::DefaultPrinter(std::string& reason) {
    const auto name = defaultName(reason);
    if (!name) return std::nullopt;
    const auto options = answer("lpoptions", {"-p", *name}, reason);
    if (!options) return std::nullopt;
    // A printer without a driver here is asked over the network for this, and may be switched off: it can be missed.
    const CupsOptions setUp(*options, answer("lpoptions", {"-p", *name, "-l"}, reason).value_or(""));
    return PrinterSettings{codePageFromUtf8Lossy(*name), setUp.paperSize(), setUp.orientation(), setUp.printQuality(),
                           setUp.zoom()};
}

bool CupsPrinters::ShowProperties(const std::string& deviceName, std::string& reason) {
    const std::string page = pageOf(deviceName);
    const Opening opening = openAddress(page);
    if (opening.Code == shell_code::Started) return true;
    reason = opening.Reason.empty() ? "There is no browser to open the printer's page." : opening.Reason;
    reason += " Its address is " + page;
    return false;
}

}  // namespace vell
