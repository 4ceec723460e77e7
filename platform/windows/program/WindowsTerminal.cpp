// SPDX-License-Identifier: MIT
#include "platform/windows/program/WindowsTerminal.h"

#include <algorithm>
#include <array>
#include <vector>

#include "platform/windows/systemText.h"

namespace vell {

namespace {

constexpr int usualWidth = 80;

bool isConsole(HANDLE handle) {
    DWORD mode = 0;
    return GetConsoleMode(handle, &mode) != 0;
}

HANDLE input() {
    return GetStdHandle(STD_INPUT_HANDLE);
}

HANDLE handleOf(Terminal::Stream stream) {
    return GetStdHandle(stream == Terminal::Stream::Output ? STD_OUTPUT_HANDLE : STD_ERROR_HANDLE);
}

// A line is there once Enter was pressed; what else happens to a console's input must not be waited for.
bool hasLine(HANDLE console) {
    std::array<INPUT_RECORD, 256> events{};
    DWORD count = 0;
    if (!PeekConsoleInputW(console, events.data(), static_cast<DWORD>(events.size()), &count)) return false;
    return std::any_of(events.begin(), events.begin() + count, [](const INPUT_RECORD& event) {
        return event.EventType == KEY_EVENT && event.Event.KeyEvent.bKeyDown &&
               event.Event.KeyEvent.wVirtualKeyCode == VK_RETURN;
    });
}

}  // namespace

// The status line is rewritten with control sequences.
WindowsTerminal::WindowsTerminal() {
    DWORD mode = 0;
    if (!GetConsoleMode(handleOf(Stream::Output), &mode)) return;
    outputMode_ = mode;
    SetConsoleMode(handleOf(Stream::Output), mode | ENABLE_VIRTUAL_TERMINAL_PROCESSING);
}

WindowsTerminal::~WindowsTerminal() {
    if (outputMode_ != 0) SetConsoleMode(handleOf(Stream::Output), outputMode_);
}

bool WindowsTerminal::isTerminal(Stream stream) const {
    return isConsole(handleOf(stream));
}

bool WindowsTerminal::canAsk() const {
    return isConsole(input()) && isTerminal(Stream::Error);
}

int WindowsTerminal::width() const {
    CONSOLE_SCREEN_BUFFER_INFO info{};
    for (const Stream stream : {Stream::Output, Stream::Error})
        if (GetConsoleScreenBufferInfo(handleOf(stream), &info) && info.srWindow.Right > info.srWindow.Left)
            return info.srWindow.Right - info.srWindow.Left + 1;
    return usualWidth;
}

void WindowsTerminal::Write(Stream stream, std::string_view utf8) {
    const HANDLE target = handleOf(stream);
    DWORD written = 0;
    if (isConsole(target)) {
        const std::wstring wide = wideFromUtf8(utf8);
        WriteConsoleW(target, wide.data(), static_cast<DWORD>(wide.size()), &written, nullptr);
        return;
    }
    while (!utf8.empty()) {
        if (!::WriteFile(target, utf8.data(), static_cast<DWORD>(utf8.size()), &written, nullptr) || written == 0)
            return;
        utf8.remove_prefix(written);
    }
}

bool WindowsTerminal::isInputReady() {
    if (inputEnded_ || pending_.find('\n') != std::string::npos) return true;
    if (isConsole(input())) return hasLine(input());
    DWORD waiting = 0;
    // A file never waits, and a broken pipe has ended.
    return !PeekNamedPipe(input(), nullptr, 0, nullptr, &waiting, nullptr) || waiting > 0;
}

std::string WindowsTerminal::readSome() {
    std::array<char, 4096> bytes{};
    DWORD got = 0;
    if (!isConsole(input())) {
        if (!::ReadFile(input(), bytes.data(), static_cast<DWORD>(bytes.size()), &got, nullptr)) return {};
        return {bytes.data(), got};
    }
    std::wstring wide(2048, L'\0');
    if (!ReadConsoleW(input(), wide.data(), static_cast<DWORD>(wide.size()), &got, nullptr)) return {};
    wide.resize(got);
    // Control-Z at the beginning of a line is how a person ends the input.
    return wide.starts_with(L'\x1A') ? std::string() : utf8FromWide(wide);
}

std::optional<std::string> WindowsTerminal::ReadLine() {
    std::size_t end = pending_.find('\n');
    while (end == std::string::npos && !inputEnded_) {
        const std::string more = readSome();
        inputEnded_ = more.empty();
        pending_ += more;
        end = pending_.find('\n');
    }
    if (end == std::string::npos && pending_.empty()) return std::nullopt;
    std::string line = pending_.substr(0, end);
    pending_.erase(0, end == std::string::npos ? end : end + 1);
    if (line.ends_with('\r')) line.pop_back();
    return line;
}

void WindowsTerminal::setEcho(bool on) {
    DWORD mode = 0;
    if (!GetConsoleMode(input(), &mode)) return;
    SetConsoleMode(input(), on ? mode | ENABLE_ECHO_INPUT : mode & ~DWORD{ENABLE_ECHO_INPUT});
}

std::unique_ptr<Terminal> systemTerminal() {
    return std::make_unique<WindowsTerminal>();
}

}  // namespace vell
