// SPDX-License-Identifier: MIT
#include "config/SettingsTable.h"

#include <algorithm>
#include <array>
#include <limits>

#include "base/text.h"
#include "config/modCrypt.h"
#include "config/modIni.h"

namespace vell {

namespace {

using Kind = SettingKind;

constexpr double least16 = std::numeric_limits<std::int16_t>::min();
constexpr int most16 = std::numeric_limits<std::int16_t>::max();
constexpr int mostDelay = 49;                   // seconds
constexpr auto whole = std::string_view::npos;  // of a stored number
constexpr double mostTyped = 999'999'999;       // more digits than any box has use for

// A damaged password ends the load where it stands: the passwords are the last of their section.
constexpr std::array<SettingRow, 21> table{{
    {"Host", "Protocol", Kind::Protocol, &Settings::Protocol, "how clippings are fetched: HTTP or FTP"},
    {"Host",
     "Host",
     Kind::Text,
     &Settings::Host,
     "the service's host name or address",
     whole,
     {1, "Error! Host not specified"}},
    {"Host",
     "Port",
     Kind::Number,
     &Settings::Port,
     "the service's FTP port, 21 for most",
     4,
     {2, "Error! Port not specified", 0, "Error! Port set too high", most16},
     "",
     "21"},
    {"Host", "Uid", Kind::Text, &Settings::Uid, "your user name", whole, {3, "Error! Username not specified"}},
    {"Host",
     "RetryOnFailure",
     Kind::Number,
     &Settings::RetryOnFailure,
     "retries of a file, 1 to 9",
     1,
     {5, "Error! Number of retries not specified", 1, "Error! Number of retries set too high", most16},
     "",
     "3"},
    {"Host",
     "RetryDelay",
     Kind::Number,
     &Settings::RetryDelay,
     "seconds between retries, 1 to 49",
     2,
     {6, "Error! Retry delay not specified", 1, "Error! Retry delay value set too high", mostDelay},
     "",
     "5"},
    {"Host",
     "TimeOut",
     Kind::Number,
     &Settings::TimeOut,
     "seconds an FTP server may be silent, 1 to 99",
     2,
     {8, "Error! Timeout not specified", 1, "Error! Timeout set too high", most16},
     "",
     "20"},
    {"Host", "Passive", Kind::Ignored, &Settings::Passive, "kept, but without effect: FTP works in active mode"},
    {"Host", "proxyUsername", Kind::Text, &Settings::proxyUsername, "user name for the server's challenge"},
    {"Host", "proxyPwd", Kind::Password, &Settings::proxyPwd, "password for the server's challenge"},
    {"Host", "Pwd", Kind::Password, &Settings::Pwd, "your password", whole, {4, "Error! Password not specified"}},
    {"Download",
     "LocalDir",
     Kind::Folder,
     &Settings::LocalDir,
     "the folder that holds a folder per day",
     whole,
     {10, "Error! Download path not specified"}},
    {"Download", "Dialup", Kind::Text, &Settings::DialUp, "the dial-up connection to use, if any"},
    {"Download", "PrintOnDownload", Kind::StrictFlag, &Settings::PrintOnDownload, "1: print clippings as they come"},
    {"Download", "CloseConnection", Kind::StrictFlag, &Settings::CloseConnection, "1: hang up after a download"},
    {"Download",
     "AutoUpdateCheck",
     Kind::Flag,
     &Settings::AutoUpdateCheck,
     "1: look for a newer version",
     whole,
     {},
     "1"},
    {"Download", "AutoUpdateServer", Kind::Flag, &Settings::AutoUpdateServer,
     "1: share updates through the download folder"},
    {"Download", "AutoUpdateNotify", Kind::Flag, &Settings::AutoUpdateNotify, "1: ask before an update is fetched"},
    {"General",
     "AutoPlayDelay",
     Kind::Number,
     &Settings::AutoPlayDelay,
     "seconds a clipping shows, 1 to 49",
     2,
     {7, "Error! Auto play delay not specified", 1, "Error! Auto play delay set too high", mostDelay},
     "",
     "5"},
    {"General",
     "PrintAllDelay",
     Kind::Number,
     &Settings::PrintAllDelay,
     "seconds between prints, 1 to 49",
     2,
     {9, "Error! Print All delay not specified", 1, "Error! Print All delay set too high", mostDelay},
     "",
     "5"},
    {"General", "Debug", Kind::WholeNumber, &Settings::Debug},
}};

constexpr bool hasBox(const SettingRow& row) {
    return !row.Meaning.empty();
}
static_assert(std::ranges::is_partitioned(table, hasBox));

std::int16_t bounded16(double value) {
    return CInt16(std::clamp(value, least16, double{most16}));
}

// Puts a value into a field of whatever type; a number that is too large for it becomes the largest.
struct Assignment {
    Settings& Target;
    double Number;

    void operator()(std::string Settings::*field) const { Target.*field = NumberText(Number); }
    void operator()(std::int16_t Settings::*field) const { Target.*field = bounded16(Number); }
    void operator()(double Settings::*field) const { Target.*field = Number; }
    void operator()(bool Settings::*field) const { Target.*field = Number != 0; }
};

struct EntryText {
    const Settings& From;

    std::string operator()(std::string Settings::*field) const { return From.*field; }
    std::string operator()(std::int16_t Settings::*field) const { return std::to_string(From.*field); }
    std::string operator()(double Settings::*field) const { return NumberText(From.*field); }
    std::string operator()(bool Settings::*field) const { return From.*field ? "1" : "0"; }
};

std::string storedValue(const SettingRow& row, const modIni& ini) {
    std::string value;
    ini.VellIniReadString(row.Section, row.Key, value);
    return value.empty() ? std::string(row.Default) : value;
}

double storedNumber(const SettingRow& row, const modIni& ini) {
    if (row.Kind != Kind::WholeNumber && row.Kind != Kind::StrictFlag) return Val(Left(storedValue(row, ini), row.Cut));
    std::int16_t value = 0;
    ini.VellIniReadString(row.Section, row.Key, value);
    return value;
}

std::string unscrambled(const std::string& stored, ErrorLog& log) {
    std::string key;
    return Decrypt(stored, key, log);
}

bool isSeparator(char c) {
    return c == '/' || c == '\\';
}

}  // namespace

std::span<const SettingRow> settingRows() {
    return table;
}

std::span<const SettingRow> setupRows() {
    return settingRows().first(static_cast<std::size_t>(std::ranges::count_if(table, hasBox)));
}

const SettingRow& rowOf(const SettingField& field) {
    return *std::ranges::find(table, field, &SettingRow::Field);
}

bool isNumber(const SettingRow& row) {
    return row.Kind == Kind::Number || row.Kind == Kind::WholeNumber;
}

bool isFlag(const SettingRow& row) {
    return row.Kind == Kind::Flag || row.Kind == Kind::StrictFlag || row.Kind == Kind::Ignored;
}

void loadSetting(const SettingRow& row, const modIni& ini, Settings& settings, ErrorLog& log) {
    if (row.Kind == Kind::Ignored)
        std::visit(Assignment{settings, 0}, row.Field);
    else if (isNumber(row) || isFlag(row))
        std::visit(Assignment{settings, storedNumber(row, ini)}, row.Field);
    else {
        const std::string stored = storedValue(row, ini);
        settings.*std::get<std::string Settings::*>(row.Field) =
            row.Kind == Kind::Password ? unscrambled(stored, log) : stored;
    }
    if (row.Kind == Kind::Protocol) settings.UseHTTP = settings.Protocol != "FTP";
}

std::string entryOf(const SettingRow& row, const Settings& settings) {
    if (row.Kind == Kind::Protocol) return settings.UseHTTP ? "HTTP" : "FTP";
    return std::visit(EntryText{settings}, row.Field);
}

std::string storedText(const SettingRow& row, std::string_view entry, ErrorLog& log) {
    if (row.Kind != Kind::Password) return std::string(entry);
    std::string key;
    return Encrypt(entry, key, log);
}

std::string plainEntry(const SettingRow& row, std::string_view entry) {
    if (isNumber(row)) return NumberText(std::clamp(Val(entry), -mostTyped, mostTyped));
    if (row.Kind == Kind::Folder)
        while (entry.size() > 1 && isSeparator(entry.back()))
            entry.remove_suffix(1);
    return std::string(entry);
}

}  // namespace vell
