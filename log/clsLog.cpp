// SPDX-License-Identifier: MIT
#include "log/clsLog.h"

#include <utility>

#include "log/logLine.h"
#include "platform/Files.h"

namespace vell {

namespace {

// Not even memory that runs short may stop the work that a line tells of.
template <class Body>
void ignoringErrors(Body&& body) noexcept {
    try {
        body();
    } catch (...) {
        static_cast<void>(0);
    }
}

}  // namespace

clsLog::clsLog(Files& files, std::string programFolder) : files_(files), programFolder_(std::move(programFolder)) {}

void clsLog::setFileName(std::string path) {
    fileName_ = std::move(path);
}

std::string clsLog::FileName() noexcept {
    std::string name;
    ignoringErrors([&] { name = GetLogFileName(); });
    return name;
}

std::string clsLog::GetLogFileName() {
    std::string fallback = programFolder_ + (programFolder_.ends_with('\\') ? "Log.txt" : "\\Log.txt");
    if (fileName_.empty()) return fallback;
    if (files_.PathExists(fileName_)) return fileName_;
    try {
        files_.MakePrivateFile(fileName_);
        return fileName_;
    } catch (const RunTimeError&) {
        return fallback;
    }
}

void clsLog::log(std::string_view text) noexcept {
    ignoringErrors([&] {
        try {
            append(text);
        } catch (const RunTimeError& error) {
            tellOnce(error.Description);
        }
    });
}

void clsLog::append(std::string_view text) {
    const std::string path = GetLogFileName();
    files_.MakePrivateFile(path);
    files_.Append(path, logLine(text) + "\r\n");
}

void clsLog::tellOnce(std::string_view reason) {
    if (const auto tell = std::exchange(tell_, nullptr)) tell("The log cannot be written: " + std::string(reason));
}

void clsLog::Reset() noexcept {
    ignoringErrors([&] { files_.DeleteFile(GetLogFileName()); });
}

void clsLog::LogError(const RunTimeError& error, std::string_view procedure) noexcept {
    ignoringErrors([&] {
        std::string line = "Error=" + std::to_string(error.Number) + ", Source=" + error.Source +
                           ", Description=" + error.Description +
                           ", LastDllError=" + std::to_string(error.LastSystemError) + ", HelpFile=" + error.HelpFile +
                           ", HelpContext=" + std::to_string(error.HelpContext);
        if (!procedure.empty()) line.append(" in ").append(procedure);
        log(line);
    });
}

void clsLog::LogEvent(std::string_view text, std::int32_t eventType) noexcept {
    ignoringErrors([&] {
        const std::string_view type = eventType == 1 ? "Error: " : eventType == 2 ? "Warning: " : "Information: ";
        log(std::string(type).append(text));
    });
}

}  // namespace vell
