// SPDX-License-Identifier: MIT
#include "store/Articles.h"

#include <array>
#include <utility>

#include "base/text.h"
#include "platform/EventLoop.h"
#include "platform/MessageBoxes.h"
#include "platform/Shell.h"

namespace vell {

namespace {

struct OpeningError {
    int Code;
    std::string_view Text;
};

constexpr std::array<OpeningError, 13> openingErrors{{
    {shell_code::NoResources, "The operating system is out of memory or resources."},
    {shell_code::FileNotFound, "The specified file was not found."},
    {shell_code::PathNotFound, "The specified path was not found."},
    {shell_code::AccessDenied, "The operating system denied access to the specified file."},
    {shell_code::OutOfMemory, "There was not enough memory to complete the operation."},
    {shell_code::NoValidProgram, "The .exe file is invalid (non-Win32\xAE .exe or error in .exe image)."},
    {shell_code::SharingViolation, "A sharing violation occurred."},
    {shell_code::AssociationIncomplete, "The file name association is incomplete or invalid."},
    {shell_code::DdeTimeout, "The DDE transaction could not be completed because the request timed out."},
    {shell_code::DdeFailed, "The DDE transaction failed."},
    {shell_code::DdeBusy,
     "The DDE transaction could not be completed because other DDE transactions were being processed."},
    {shell_code::NoAssociation, "There is no application associated with the given file name extension."},
    {shell_code::LibraryNotFound, "The specified dynamic-link library was not found."},
}};

std::string_view openingErrorText(int code) {
    for (const OpeningError& error : openingErrors)
        if (error.Code == code) return error.Text;
    return {};
}

}  // namespace

Articles::Articles(Shell& shell, MessageBoxes& boxes, EventLoop& loop, EventLog& log)
    : shell_(shell), boxes_(boxes), loop_(loop), log_(log) {}

bool Articles::ShellExec(const std::string& file, const std::string& parameters) {
    return trap(log_, "ShellExec()", false, [&] {
        const std::string message = "Error opening file '" + file + " " + parameters + "'.";
        const int result = shell_.Open(file, parameters);
        const std::string reason = shell_.LastReason();
        loop_.DoEvents();
        if (result > shell_code::LastFailure) return true;
        isPrinterSilent_ = batches_ > 0 && result == shell_code::DdeTimeout;
        tell(message, result, reason);
        return false;
    });
}

void Articles::tell(const std::string& message, int code, const std::string& reason) {
    if (!reason.empty()) log_.WriteLog("        " + reason);
    if (batches_ > 0 && !reason.empty() && std::exchange(toldReason_, reason) == reason) return;
    const std::string text = reason.empty() ? std::string(openingErrorText(code)) : reason;
    if (!text.empty()) boxes_.Show(message + "\r\n" + text, programCaption, Buttons::Ok, BoxIcon::None);
}

bool Articles::PrintArticle(const std::string& path) {
    try {
        log_.WriteLog("PRINTING:" + path);
        if (InStr(Upper(path), ".PDF") == 0) return false;
        const std::string quoted = "\"" + path + "\"";
        log_.WriteLog("        Acrord32.exe /p /h " + quoted);
        const bool printed = !isPrinterSilent_ && ShellExec("Acrord32.exe", " /p /h " + quoted);
        log_.WriteLog(std::string("        Status:").append(BooleanText(printed)));
        return printed;
    } catch (...) {
        log_.LogError(currentError(), "PrintArticle()");
        log_.WriteLog("        Status:False");
        return false;
    }
}

}  // namespace vell
