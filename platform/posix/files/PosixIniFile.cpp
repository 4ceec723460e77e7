// SPDX-License-Identifier: MIT
#include "platform/posix/files/PosixIniFile.h"

#include <chrono>
#include <cstdlib>
#include <utility>

#include "base/errors.h"

namespace vell {

namespace {

// Settings, schedule, and the marks of the days that were looked at last.
constexpr std::size_t mostKnown = 16;

// Two writes within one tick of the system's clock (up to 10 ms) leave the same time on a file.
bool isSettled(const FileStamp& stamp) {
    const auto now = std::chrono::system_clock::now().time_since_epoch();
    return std::abs(std::chrono::nanoseconds(now).count() - stamp.ModifiedNanoseconds) >= 10'000'000;
}

bool hasLineEnd(std::string_view text) {
    return text.find_first_of("\r\n") != std::string_view::npos;
}

}  // namespace

std::string PosixIniFile::ReadString(std::string_view file, std::string_view section, std::string_view key,
                                     std::string_view missing, std::size_t bufferSize) const {
    std::string_view found = missing;
    try {
        found = text(file).value(section, key).value_or(missing);
    } catch (const RunTimeError&) {
        // A file that cannot be read has no keys.
        found = missing;
    }
    return std::string(found.substr(0, bufferSize == 0 ? 0 : bufferSize - 1));
}

bool PosixIniFile::WriteString(std::string_view file, std::string_view section, std::optional<std::string_view> key,
                               std::optional<std::string_view> value) {
    if (hasLineEnd(section) || hasLineEnd(key.value_or("")) || hasLineEnd(value.value_or(""))) return false;
    try {
        IniText edited = text(file);
        const std::string before = edited.bytes();
        if (!key)
            edited.removeSection(section);
        else if (!value)
            edited.removeKey(section, *key);
        else
            edited.set(section, *key, *value);
        if (edited.bytes() == before) return true;

        files_.MakePrivateFile(file);
        files_.WriteWhole(file, edited.bytes(), Durability::Flushed);
        if (const auto stamp = files_.Stamp(file)) remember(file, *stamp, std::move(edited));
        return true;
    } catch (const RunTimeError&) {
        return false;  // the old file is still there
    }
}

const IniText& PosixIniFile::text(std::string_view file) const {
    static const IniText none;
    const auto stamp = files_.Stamp(file);
    if (!stamp) return none;
    const auto known = known_.find(file);
    if (known != known_.end() && known->second.Stamp == *stamp && known->second.IsSettled) return known->second.Text;
    return remember(file, *stamp, IniText(files_.ReadFile(file)));
}

const IniText& PosixIniFile::remember(std::string_view file, const FileStamp& stamp, IniText text) const {
    if (known_.size() >= mostKnown && !known_.contains(file)) known_.clear();
    return known_.insert_or_assign(std::string(file), Known{stamp, isSettled(stamp), std::move(text)})
        .first->second.Text;
}

}  // namespace vell
