// SPDX-License-Identifier: MIT
#include "platform/posix/files/ini/PosixIniFile.h"

#include <chrono>
#include <cstdlib>
#include <utility>

#include "base/errors.h"
#include "base/text.h"

namespace vell {

namespace {

// Settings, schedule, and the marks of the days that were looked at last.
constexpr std::size_t mostKnown = 16;

// Two writes within one tick of the system's clock (up to 10 ms) leave the same time on a file.
bool isSettled(const FileStamp& stamp) {
    const auto now = std::chrono::system_clock::now().time_since_epoch();
    return std::abs(std::chrono::nanoseconds(now).count() - stamp.ModifiedNanoseconds) >= 10'000'000;
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

void refuseLineEnd(std::string_view text) {
    if (text.find_first_of("\r\n") != std::string_view::npos)
        throw RunTimeError(error_number::InvalidCall, "Invalid procedure call or argument");
}

void apply(const IniEdit& edit, IniText& text) {
    for (const std::string& part : {edit.Section, edit.Key.value_or(""), edit.Value.value_or("")})
        refuseLineEnd(part);
    if (!edit.Key)
        text.removeSection(edit.Section);
    else if (!edit.Value)
        text.removeKey(edit.Section, *edit.Key);
    else
        text.set(edit.Section, *edit.Key, *edit.Value);
}

}  // namespace

std::string PosixIniFile::ReadString(std::string_view file, std::string_view section, std::string_view key,
                                     std::string_view missing, std::size_t bufferSize) const {
    const std::string_view found = text(file).value(section, key).value_or(missing);
    return std::string(found.substr(0, bufferSize == 0 ? 0 : bufferSize - 1));
}

void PosixIniFile::ReadAtOnce(std::string_view file, const std::function<void()>& reads) const {
    const IniText now = text(file);
    const Held own{file, now, held_};
    const Restored<const Held*> held(held_, &own);
    reads();
}

void PosixIniFile::Update(std::string_view file, const std::function<std::vector<IniEdit>()>& edits) {
    const auto lock = files_.Lock(file);
    const IniText before = text(file);
    IniText edited = before;
    {
        const Held own{file, before, held_};
        const Restored<const Held*> held(held_, &own);
        for (const IniEdit& edit : edits())
            apply(edit, edited);
    }
    if (edited.bytes() == before.bytes()) return;

    files_.MakePrivateFile(file);
    files_.WriteWhole(file, edited.bytes(), Durability::Flushed);
    if (const auto stamp = files_.Stamp(file)) remember(file, *stamp, std::move(edited));
}

const IniText& PosixIniFile::text(std::string_view file) const {
    static const IniText none;
    for (const Held* one = held_; one != nullptr; one = one->Outer)
        if (one->File == file) return one->Text;
    const auto stamp = files_.Stamp(file);
    if (!stamp) return none;
    const auto known = known_.find(file);
    if (known != known_.end() && known->second.Stamp == *stamp && known->second.IsSettled) return known->second.Text;
    try {
        return remember(file, *stamp, IniText(files_.ReadFile(file)));
    } catch (const RunTimeError& error) {
        if (error.Number == error_number::FileNotFound || error.Number == error_number::PathNotFound) return none;
        throw;
    }
}

const IniText& PosixIniFile::remember(std::string_view file, const FileStamp& stamp, IniText text) const {
    if (known_.size() >= mostKnown && !known_.contains(file)) known_.clear();
    return known_.insert_or_assign(std::string(file), Known{stamp, isSettled(stamp), std::move(text)})
        .first->second.Text;
}

}  // namespace vell
