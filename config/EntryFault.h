// SPDX-License-Identifier: MIT
#pragma once

#include <string>
#include <string_view>

#include "base/errors.h"

namespace vell {

class Translations;
struct SettingRow;

// What keeps an entry of the setup dialog from being saved.
enum class EntryFault { None, Missing, TooLow, TooHigh, NoFullPath, ControlCharacter, TooLong, ForeignCharacter };

// An entry in code page 1253, which cannot hold a ForeignCharacter.
[[nodiscard]] EntryFault faultIn(const SettingRow& row, std::string_view entry, ErrorLog& log);

// The complaint, as a message box tells it.
[[nodiscard]] std::string complaintOf(const SettingRow& row, EntryFault fault);
// The same in as few words as fit beside the entry's box, in the user's language; empty for None.
[[nodiscard]] std::string noteOf(const SettingRow& row, EntryFault fault, const Translations& words);

}  // namespace vell
