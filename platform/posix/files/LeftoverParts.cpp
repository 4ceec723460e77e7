// SPDX-License-Identifier: MIT
#include "platform/posix/files/LeftoverParts.h"

#include <cerrno>
#include <charconv>
#include <filesystem>
#include <optional>
#include <vector>

#include <signal.h>
#include <unistd.h>

namespace vell {

namespace {

// ".vell-<process>-<number>.part": the service's names never begin with a dot.
constexpr std::string_view prefix = ".vell-";
constexpr std::string_view suffix = ".part";

std::optional<pid_t> writerOf(std::string_view name) {
    if (!name.starts_with(prefix) || !name.ends_with(suffix)) return std::nullopt;
    name.remove_prefix(prefix.size());
    pid_t writer = 0;
    const auto [end, problem] = std::from_chars(name.data(), name.data() + name.size(), writer);
    if (problem != std::errc{} || *end != '-' || writer <= 0) return std::nullopt;
    return writer;
}

bool isLeftOver(pid_t writer) {
    return writer == getpid() || (kill(writer, 0) != 0 && errno == ESRCH);
}

}  // namespace

std::string newPartName() {
    static unsigned last = 0;
    return std::string(prefix) + std::to_string(getpid()) + '-' + std::to_string(++last) + std::string(suffix);
}

bool isPartName(std::string_view name) {
    return writerOf(name).has_value();
}

void removeLeftoverParts(const std::string& folder) {
    std::vector<std::filesystem::path> leftOver;
    std::error_code unreadable;  // then there is nothing to clear, and the write itself tells what is wrong
    for (std::filesystem::directory_iterator entry(folder, unreadable), end; !unreadable && entry != end;
         entry.increment(unreadable)) {
        const auto writer = writerOf(entry->path().filename().string());
        if (writer && isLeftOver(*writer)) leftOver.push_back(entry->path());
    }
    for (const auto& part : leftOver) {
        std::error_code notOurs;  // a part of another user's stays
        std::filesystem::remove(part, notOurs);
    }
}

}  // namespace vell
