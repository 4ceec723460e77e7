// SPDX-License-Identifier: MIT
#include "store/Articles.h"

#include <array>

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
    {0, "The operating system is out of memory or resources."},
    {2, "The specified file was not found."},
    {3, "The specified path was not found."},
    {5, "The operating system denied access to the specified file."},
    {8, "There was not enough memory to complete the operation."},
    {11, "The .exe file is invalid (non-Win32\xAE .exe or error in .exe image)."},
    {26, "A sharing violation occurred."},
    {27, "The file name association is incomplete or invalid."},
    {28, "The DDE transaction could not be completed because the request timed out."},
    {29, "The DDE transaction failed."},
    {30, "The DDE transaction could not be completed because other DDE transactions were being processed."},
    {31, "There is no application associated with the given file name extension."},
    {32, "The specified dynamic-link library was not found."},
}};

constexpr int lastFailure = 32;

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
        loop_.DoEvents();
        const std::string_view reason = result <= lastFailure ? openingErrorText(result) : std::string_view{};
        if (!reason.empty())
            boxes_.Show(std::string(message).append("\r\n").append(reason), programCaption, Buttons::Ok, BoxIcon::None);
        return result > lastFailure;
    });
}

bool Articles::PrintArticle(const std::string& path) {
    try {
        log_.WriteLog("PRINTING:" + path);
        if (InStr(Upper(path), ".PDF") == 0) return false;
        const std::string quoted = "\"" + path + "\"";
        log_.WriteLog("        Acrord32.exe /p /h " + quoted);
        const bool printed = ShellExec("Acrord32.exe", " /p /h " + quoted);
        log_.WriteLog(std::string("        Status:").append(BooleanText(printed)));
        return printed;
    } catch (...) {
        log_.LogError(currentError(), "PrintArticle()");
        log_.WriteLog("        Status:False");
        return false;
    }
}

}  // namespace vell
