// SPDX-License-Identifier: MIT
#include "config/EntryFault.h"

#include <algorithm>
#include <cmath>

#include "base/text.h"
#include "config/SettingsTable.h"
#include "platform/Translations.h"

namespace vell {

namespace {

constexpr std::size_t longestStored = 249;  // the file gives no more of a value back

bool isSeparator(char c) {
    return c == '/' || c == '\\';
}

bool isFullPath(std::string_view path) {
    return isSeparator(path.front()) || (path.size() > 2 && path[1] == ':' && isSeparator(path[2]));
}

bool isControl(char c) {
    return static_cast<unsigned char>(c) < ' ';
}

// By what the table says of the setting.
EntryFault checked(const SettingRow& row, std::string_view entry) {
    const SettingCheck& check = row.Check;
    if (check.Turn == 0) return EntryFault::None;
    if (Trim(entry).empty()) return EntryFault::Missing;
    if (!isNumber(row)) return EntryFault::None;
    const double value = std::nearbyint(Val(entry));
    if (value < check.Least) return EntryFault::TooLow;
    return value > check.Most ? EntryFault::TooHigh : EntryFault::None;
}

}  // namespace

EntryFault faultIn(const SettingRow& row, std::string_view entry, ErrorLog& log) {
    if (const EntryFault fault = checked(row, entry); fault != EntryFault::None) return fault;
    if (row.Kind == SettingKind::Folder && !isFullPath(entry)) return EntryFault::NoFullPath;
    if (std::ranges::any_of(entry, isControl)) return EntryFault::ControlCharacter;
    return storedText(row, entry, log).size() > longestStored ? EntryFault::TooLong : EntryFault::None;
}

std::string complaintOf(const SettingRow& row, EntryFault fault) {
    const std::string name = "Error! " + std::string(row.Key);
    switch (fault) {
        case EntryFault::None:
            break;
        case EntryFault::Missing:
        case EntryFault::TooLow:
            return std::string(row.Check.Missing);
        case EntryFault::TooHigh:
            return std::string(row.Check.TooHigh);
        case EntryFault::NoFullPath:
            return "Error! Download path must be a full path, such as /home/ann/clippings";
        case EntryFault::ControlCharacter:
            return name + " must be one line without control characters";
        case EntryFault::TooLong:
            return name + " is too long";
        case EntryFault::ForeignCharacter:
            return "Error! There is a character that is neither Latin nor Greek";
    }
    return {};
}

std::string noteOf(const SettingRow& row, EntryFault fault, const Translations& words) {
    switch (fault) {
        case EntryFault::None:
            break;
        case EntryFault::Missing:
            return words.translate("Still missing");
        case EntryFault::TooLow:
            return Replace(words.translate("At least %s"), "%s", std::to_string(row.Check.Least));
        case EntryFault::TooHigh:
            return Replace(words.translate("At most %s"), "%s", std::to_string(row.Check.Most));
        case EntryFault::NoFullPath:
            return words.translate("Not a full path");
        case EntryFault::ControlCharacter:
            return words.translate("Has control characters");
        case EntryFault::TooLong:
            return words.translate("Too long");
        case EntryFault::ForeignCharacter:
            return words.translate("Only Latin and Greek");
    }
    return {};
}

}  // namespace vell
