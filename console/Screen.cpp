// SPDX-License-Identifier: MIT
#include "console/Screen.h"

#include <algorithm>

#include "base/text.h"
#include "platform/Terminal.h"

namespace vell {

namespace {

constexpr int barWidth = 20;
constexpr std::string_view clearToLineEnd = "\x1b[K";

bool isControl(char c) {
    const auto byte = static_cast<unsigned char>(c);
    if (byte < 32 || byte == 127) return true;
    // Bytes that the code page leaves undefined would reach the terminal as C1 controls.
    const std::string point = utf8FromCodePage(std::string_view(&c, 1));
    return point.size() == 2 && point[0] == '\xC2' && static_cast<unsigned char>(point[1]) < 0xA0;
}

bool startsCharacter(char c) {
    return (static_cast<unsigned char>(c) & 0xC0) != 0x80;
}

std::string bar(int percent) {
    const int filled = std::clamp(percent, 0, 100) * barWidth / 100;
    return "[" + std::string(static_cast<std::size_t>(filled), '#') +
           std::string(static_cast<std::size_t>(barWidth - filled), '.') + "] ";
}

}  // namespace

std::string shownText(std::string_view text) {
    std::string plain(text);
    std::replace_if(plain.begin(), plain.end(), isControl, ' ');
    return utf8FromCodePage(plain);
}

std::string shownLines(std::string_view text) {
    std::string lines;
    const std::string unified = Replace(text, "\r\n", "\n");
    for (const std::string_view line : Split(unified, "\n"))
        lines.append(shownText(line)).append("\n");
    lines.erase(lines.find_last_not_of('\n') + 1);
    return lines;
}

std::size_t columns(std::string_view utf8) {
    return static_cast<std::size_t>(std::count_if(utf8.begin(), utf8.end(), startsCharacter));
}

std::string fitted(std::string_view utf8, std::size_t width) {
    if (columns(utf8) <= width) return std::string(utf8);
    if (width == 0) return {};
    std::size_t seen = 0;
    std::size_t end = 0;
    while (end < utf8.size() && (seen < width - 1 || !startsCharacter(utf8[end])))
        if (startsCharacter(utf8[end++])) ++seen;
    return std::string(utf8.substr(0, end)) + "…";
}

void Screen::print(std::string_view utf8Line) {
    leaveStatus();
    terminal_.Write(Terminal::Stream::Output, std::string(utf8Line) + "\n");
}

void Screen::tell(std::string_view text) {
    leaveStatus();
    terminal_.Write(Terminal::Stream::Error, shownLines(text) + "\n");
}

void Screen::ask(std::string_view text) {
    leaveStatus();
    terminal_.Write(Terminal::Stream::Error, shownLines(text));
}

void Screen::showStatus(std::string_view text, int percent) {
    const std::string line = shownText(text);
    if (!terminal_.isTerminal(Terminal::Stream::Output)) {
        if (!line.empty()) terminal_.Write(Terminal::Stream::Output, line + "\n");
        return;
    }
    const std::string whole = (percent < 0 ? "" : bar(percent)) + line;
    const int width = std::max(terminal_.width() - 1, 1);
    terminal_.Write(Terminal::Stream::Output,
                    "\r" + fitted(whole, static_cast<std::size_t>(width)) + std::string(clearToLineEnd));
    onStatusLine_ = !whole.empty();
}

void Screen::leaveStatus() {
    if (onStatusLine_) terminal_.Write(Terminal::Stream::Output, "\n");
    onStatusLine_ = false;
}

}  // namespace vell
