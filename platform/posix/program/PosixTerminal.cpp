// SPDX-License-Identifier: MIT
#include "platform/posix/program/PosixTerminal.h"

#include <array>
#include <cerrno>

#include <poll.h>
#include <sys/ioctl.h>
#include <termios.h>
#include <unistd.h>

namespace vell {

namespace {

constexpr int usualWidth = 80;

int descriptorOf(Terminal::Stream stream) {
    return stream == Terminal::Stream::Output ? STDOUT_FILENO : STDERR_FILENO;
}

}  // namespace

PosixTerminal::PosixTerminal() : output_(isatty(STDOUT_FILENO) == 1), error_(isatty(STDERR_FILENO) == 1) {}

bool PosixTerminal::canAsk() const {
    return isatty(STDIN_FILENO) == 1 && isTerminal(Stream::Error);
}

int PosixTerminal::width() const {
    winsize size{};
    for (const int descriptor : {STDOUT_FILENO, STDERR_FILENO})
        if (ioctl(descriptor, TIOCGWINSZ, &size) == 0 && size.ws_col > 0) return size.ws_col;
    return usualWidth;
}

void PosixTerminal::Write(Stream stream, std::string_view utf8) {
    while (!utf8.empty()) {
        const ssize_t written = write(descriptorOf(stream), utf8.data(), utf8.size());
        if (written < 0 && errno == EINTR) continue;
        if (written <= 0) return;
        utf8.remove_prefix(static_cast<std::size_t>(written));
    }
}

bool PosixTerminal::isInputReady() {
    if (inputEnded_ || pending_.find('\n') != std::string::npos) return true;
    pollfd input{STDIN_FILENO, POLLIN, 0};
    return poll(&input, 1, 0) > 0;
}

std::optional<std::string> PosixTerminal::ReadLine() {
    std::size_t end = pending_.find('\n');
    while (end == std::string::npos && !inputEnded_) {
        std::array<char, 4096> buffer{};
        const ssize_t got = read(STDIN_FILENO, buffer.data(), buffer.size());
        if (got < 0 && errno == EINTR) continue;
        if (got <= 0) inputEnded_ = true;
        if (got > 0) pending_.append(buffer.data(), static_cast<std::size_t>(got));
        end = pending_.find('\n');
    }
    if (end == std::string::npos && pending_.empty()) return std::nullopt;
    std::string line = pending_.substr(0, end);
    pending_.erase(0, end == std::string::npos ? end : end + 1);
    if (line.ends_with('\r')) line.pop_back();
    return line;
}

void PosixTerminal::setEcho(bool on) {
    termios mode{};
    if (tcgetattr(STDIN_FILENO, &mode) != 0) return;
    mode.c_lflag = on ? mode.c_lflag | ECHO : mode.c_lflag & ~static_cast<tcflag_t>(ECHO);
    tcsetattr(STDIN_FILENO, TCSAFLUSH, &mode);
}

std::unique_ptr<Terminal> systemTerminal() {
    return std::make_unique<PosixTerminal>();
}

}  // namespace vell
