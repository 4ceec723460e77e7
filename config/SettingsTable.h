// SPDX-License-Identifier: MIT
#pragma once

#include <cstddef>
#include <cstdint>
#include <span>
#include <string>
#include <string_view>
#include <variant>

#include "base/errors.h"
#include "config/Settings.h"

namespace vell {

class modIni;

// How a setting is stored and read, and what kind of box it has in the setup dialog.
enum class SettingKind {
    Text,
    Folder,       // a text that names a place whatever folder the program is started in
    Number,       // the number that the first few characters begin with
    WholeNumber,  // the same of all characters, which must be a number; anything else is told in the log and counts 0
    Flag,         // true when the number that the text begins with is not 0
    StrictFlag,   // the same of a WholeNumber
    Password,     // stored scrambled
    Protocol,     // "HTTP" or "FTP"; anything but "FTP" is HTTP
    Ignored,      // a flag that is stored, but always read as false
};

// Where a setting is kept in memory. It is also what names the setting.
using SettingField =
    std::variant<std::string Settings::*, std::int16_t Settings::*, double Settings::*, bool Settings::*>;

// What an entry must be before the setup dialog saves it.
struct SettingCheck {
    int Turn = 0;                // in which the checks are made; 0 for an entry that may be anything
    std::string_view Missing{};  // the complaint about an entry that is empty, or a number below `Least`
    int Least = 0;
    std::string_view TooHigh{};  // the complaint about a number above `Most`
    int Most = 0;
};

// One setting: all that is known of it. A new setting is a row here, a field of Settings, and a box in the dialog.
struct SettingRow {
    std::string_view Section;
    std::string_view Key;
    SettingKind Kind = SettingKind::Text;
    SettingField Field;
    std::string_view Meaning{};                // in a few words, for people; empty for a setting without a box
    std::size_t Cut = std::string_view::npos;  // so many characters of a stored number count
    SettingCheck Check{};
    std::string_view Default{};   // stands for a missing or empty value
    std::string_view Proposed{};  // what the setup dialog shows instead of a missing or empty value
};

// In the order in which the settings are loaded and saved; those without a box come last.
[[nodiscard]] std::span<const SettingRow> settingRows();
// Those that the setup dialog has a box for.
[[nodiscard]] std::span<const SettingRow> setupRows();
[[nodiscard]] const SettingRow& rowOf(const SettingField& field);
[[nodiscard]] bool isNumber(const SettingRow& row);
[[nodiscard]] bool isFlag(const SettingRow& row);

// Reads one setting from the settings file. Raises error 20001 when a password cannot be unscrambled.
void loadSetting(const SettingRow& row, const modIni& ini, Settings& settings, ErrorLog& log);

// A setting as people see it: flags as "0" and "1", passwords in clear.
[[nodiscard]] std::string entryOf(const SettingRow& row, const Settings& settings);
// An entry as the file holds it.
[[nodiscard]] std::string storedText(const SettingRow& row, std::string_view entry, ErrorLog& log);
// An entry in the plain form of its kind: of a number the number that it begins with, of a folder the path without a
// separator at its end.
[[nodiscard]] std::string plainEntry(const SettingRow& row, std::string_view entry);

}  // namespace vell
