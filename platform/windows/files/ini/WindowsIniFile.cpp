// SPDX-License-Identifier: MIT
#include "platform/windows/files/ini/WindowsIniFile.h"

#include <chrono>
#include <cstdlib>
#include <utility>

#include "base/errors.h"

namespace vell {

namespace {

// Settings, schedule, and the marks of the days that were looked at last.
constexpr std::size_t mostKnown = 16;

// Two writes within one tick of the system's clock (up to 16 ms) leave the same time on a file.
bool isSettled(const FileStamp& stamp) {
    const auto now = std::chrono::system_clock::now().time_since_epoch();
    return std::abs(std::chrono::nanoseconds(now).count() - stamp.ModifiedNanoseconds) >= 20'000'000;
}

// A value that is another one for as long as this lives.
template <class Value>
class Restored {
  public:
    Restored(Value& value, Value meanwhile) : value_(value), before_(std::exchange(value, meanwhile)) {}
    ~Restored() { value_ = before_; }
    Restored(const Restored&) = delete;
    Restored& operator=(const Restored&) = delete;

  private:
    Value& value_;
    Value before_;
};

}  // namespace

std::string WindowsIniFile::ReadString(std::string_view file, std::string_view section, std::string_view key,
                                       std::string_view missing, std::size_t bufferSize) const {
    const std::string_view found = profile(file).value(section, key).value_or(missing);
    return std::string(found.substr(0, bufferSize == 0 ? 0 : bufferSize - 1));
}

void WindowsIniFile::ReadAtOnce(std::string_view file, const std::function<void()>& reads) const {
    const ProfileFile now = profile(file);
    const Held own{file, now, held_};
    const Restored<const Held*> held(held_, &own);
    reads();
}

void WindowsIniFile::Update(std::string_view file, const std::function<std::vector<IniEdit>()>& edits) {
    const auto lock = files_.Lock(file);
    const std::string before = bytesOf(file);
    std::string after;
    {
        const ProfileFile now(before);
        const Held own{file, now, held_};
        const Restored<const Held*> held(held_, &own);
        after = ProfileFile::edited(before, edits());
    }
    if (after == before) return;
    files_.MakePrivateFile(file);
    files_.WriteWhole(file, after, Durability::Flushed);
}

std::string WindowsIniFile::bytesOf(std::string_view file) const {
    try {
        return files_.Stamp(file) ? files_.ReadFile(file) : std::string();
    } catch (const RunTimeError& error) {
        if (error.Number == error_number::FileNotFound || error.Number == error_number::PathNotFound) return {};
        throw;
    }
}

const ProfileFile& WindowsIniFile::profile(std::string_view file) const {
    for (const Held* one = held_; one != nullptr; one = one->Outer)
        if (one->File == file) return one->Profile;
    static const ProfileFile none{""};
    const auto stamp = files_.Stamp(file);
    if (!stamp) return none;
    const auto known = known_.find(file);
    if (known != known_.end() && known->second.Stamp == *stamp && known->second.IsSettled) return known->second.Profile;
    if (known_.size() >= mostKnown && known == known_.end()) known_.clear();
    return known_.insert_or_assign(std::string(file), Known{*stamp, isSettled(*stamp), ProfileFile(bytesOf(file))})
        .first->second.Profile;
}

}  // namespace vell
