// SPDX-License-Identifier: MIT
#include "platform/posix/printing/printDocument.h"

#include <string_view>

#include "base/text.h"
#include "platform/Shell.h"
#include "platform/posix/printing/cupsReasons.h"
#include "platform/posix/program/runProgram.h"
#include "platform/posix/program/startProgram.h"

namespace vell {

namespace {

// lp says "lp: Error - No default destination." in one line or several.
std::string reasonOf(std::string_view said) {
    constexpr std::string_view mark = "Error - ";
    said = said.substr(0, said.find('\n'));
    if (const auto at = said.find(mark); at != std::string_view::npos) said.remove_prefix(at + mark.size());
    const bool lacksPrinter = Lower(said).find("default destination") != std::string::npos;
    std::string reason(lacksPrinter ? cups_reason::NoDefault : cups_reason::Refused);
    if (!said.empty()) reason += " CUPS says: " + codePageFromUtf8Lossy(said);
    return reason;
}

}  // namespace

PrintOutcome printDocument(const std::string& helper, const std::vector<std::string>& arguments,
                           std::chrono::milliseconds patience) {
    if (!isProgram(helper)) return {shell_code::FileNotFound, {}};
    if (findProgram("lp").empty()) return {shell_code::FileNotFound, std::string(cups_reason::NotInstalled)};
    const auto end = runProgram(helper, arguments, patience);
    if (!end) return {shell_code::DdeTimeout, std::string(cups_reason::NoAnswer)};
    if (end->Succeeded) return {shell_code::Started, {}};
    return {shell_code::DdeFailed, reasonOf(end->Errors)};
}

}  // namespace vell
