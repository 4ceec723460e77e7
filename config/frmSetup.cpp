// SPDX-License-Identifier: MIT
#include "config/frmSetup.h"

#include <algorithm>
#include <cmath>
#include <cstdint>

#include "base/text.h"
#include "config/Settings.h"
#include "config/SettingsLoader.h"
#include "config/modCrypt.h"
#include "config/modIni.h"

namespace vell {

namespace {

constexpr std::array<SetupRow, setupFieldCount> setupRows{{
    {SetupField::Protocol, "Host", "Protocol", SetupKind::Protocol, "how clippings are fetched: HTTP or FTP"},
    {SetupField::Host, "Host", "Host", SetupKind::Text, "the service's host name or address"},
    {SetupField::Port, "Host", "Port", SetupKind::Number, "the service's FTP port, 21 for most"},
    {SetupField::Uid, "Host", "Uid", SetupKind::Text, "your user name"},
    {SetupField::RetryOnFailure, "Host", "RetryOnFailure", SetupKind::Number, "retries of a file, 1 to 9"},
    {SetupField::RetryDelay, "Host", "RetryDelay", SetupKind::Number, "seconds between retries, 1 to 49"},
    {SetupField::TimeOut, "Host", "TimeOut", SetupKind::Number, "seconds an FTP server may be silent, 1 to 99"},
    {SetupField::Passive, "Host", "Passive", SetupKind::Flag, "kept, but without effect: FTP works in active mode"},
    {SetupField::ProxyUsername, "Host", "proxyUsername", SetupKind::Text, "user name for the server's challenge"},
    {SetupField::ProxyPwd, "Host", "proxyPwd", SetupKind::Password, "password for the server's challenge"},
    {SetupField::LocalDir, "Download", "LocalDir", SetupKind::Text, "the folder that holds a folder per day"},
    {SetupField::Dialup, "Download", "Dialup", SetupKind::Text, "the dial-up connection to use, if any"},
    {SetupField::PrintOnDownload, "Download", "PrintOnDownload", SetupKind::Flag, "1: print clippings as they come"},
    {SetupField::CloseConnection, "Download", "CloseConnection", SetupKind::Flag, "1: hang up after a download"},
    {SetupField::AutoUpdateCheck, "Download", "AutoUpdateCheck", SetupKind::Flag, "1: look for a newer version"},
    {SetupField::AutoUpdateServer, "Download", "AutoUpdateServer", SetupKind::Flag, "1: fetch updates for others"},
    {SetupField::AutoUpdateNotify, "Download", "AutoUpdateNotify", SetupKind::Flag, "1: tell of a newer version"},
    {SetupField::AutoPlayDelay, "General", "AutoPlayDelay", SetupKind::Number, "seconds a clipping shows, 1 to 49"},
    {SetupField::PrintAllDelay, "General", "PrintAllDelay", SetupKind::Number, "seconds between prints, 1 to 49"},
    {SetupField::Pwd, "Host", "Pwd", SetupKind::Password, "your password"},
}};

enum class Fails { WhenEmpty, WhenNotPositive, WhenFiftyOrMore };

struct SetupCheck {
    SetupField Field;
    Fails When;
    std::string_view Message;
};

constexpr std::array<SetupCheck, 12> setupChecks{{
    {SetupField::Host, Fails::WhenEmpty, "Error! Host not specified"},
    {SetupField::Port, Fails::WhenEmpty, "Error! Port not specified"},
    {SetupField::Uid, Fails::WhenEmpty, "Error! Username not specified"},
    {SetupField::Pwd, Fails::WhenEmpty, "Error! Password not specified"},
    {SetupField::RetryOnFailure, Fails::WhenNotPositive, "Error! Number of retries not specified"},
    {SetupField::RetryDelay, Fails::WhenNotPositive, "Error! Retry delay not specified"},
    {SetupField::RetryDelay, Fails::WhenFiftyOrMore, "Error! Retry delay value set too high"},
    {SetupField::AutoPlayDelay, Fails::WhenNotPositive, "Error! Auto play delay not specified"},
    {SetupField::AutoPlayDelay, Fails::WhenFiftyOrMore, "Error! Auto play delay set too high"},
    {SetupField::TimeOut, Fails::WhenNotPositive, "Error! Timeout not specified"},
    {SetupField::PrintAllDelay, Fails::WhenNotPositive, "Error! Print All delay not specified"},
    {SetupField::PrintAllDelay, Fails::WhenFiftyOrMore, "Error! Print All delay set too high"},
}};

// What the settings file can give back of one value; more would be lost without a word at the next start.
constexpr std::size_t longestStored = 249;

bool fails(const SetupCheck& check, std::string_view entry) {
    if (Trim(entry).empty()) return check.When != Fails::WhenFiftyOrMore;
    const double value = std::nearbyint(Val(entry));
    switch (check.When) {
        case Fails::WhenNotPositive:
            return value <= 0;
        case Fails::WhenFiftyOrMore:
            return value >= 50;
        case Fails::WhenEmpty:
            break;
    }
    return false;
}

std::string_view flagText(bool flag) {
    return flag ? "1" : "0";
}

bool isControl(char c) {
    return static_cast<unsigned char>(c) < 32;
}

}  // namespace

frmSetup::frmSetup(Settings& settings, SettingsLoader& loader, modIni& ini, ErrorLog& log)
    : settings_(settings), loader_(loader), ini_(ini), log_(log) {}

std::span<const SetupRow> frmSetup::rows() {
    return setupRows;
}

const SetupRow& frmSetup::rowOf(SetupField field) {
    return setupRows[index(field)];
}

std::optional<SetupField> frmSetup::fieldOf(std::string_view key) {
    for (const SetupRow& row : setupRows)
        if (equalNoCase(row.Key, key)) return row.Field;
    return std::nullopt;
}

std::span<const std::string_view> frmSetup::hosts() {
    static constexpr std::array<std::string_view, 2> hosts{"clippings.example", "192.0.2.80"};
    return hosts;
}

void frmSetup::Form_Load() {
    loader_.GetSetup();
    const Settings& s = settings_;
    const std::array<std::string, setupFieldCount> loaded{
        s.UseHTTP ? "HTTP" : "FTP",
        s.Host,
        std::to_string(s.Port),
        s.Uid,
        std::to_string(s.RetryOnFailure),
        NumberText(s.RetryDelay),
        std::to_string(s.TimeOut),
        std::string(flagText(s.Passive)),
        s.proxyUsername,
        s.proxyPwd,
        s.LocalDir,
        s.DialUp,
        std::string(flagText(s.PrintOnDownload)),
        std::string(flagText(s.CloseConnection)),
        std::string(flagText(s.AutoUpdateCheck)),
        std::string(flagText(s.AutoUpdateServer)),
        std::string(flagText(s.AutoUpdateNotify)),
        std::to_string(s.AutoPlayDelay),
        std::to_string(s.PrintAllDelay),
        s.Pwd,
    };
    entries_ = loaded;
}

bool frmSetup::isWhole() const {
    return loader_.isWhole();
}

bool frmSetup::isEnabled(SetupField field) const {
    const bool ofFtp = field == SetupField::Port || field == SetupField::TimeOut || field == SetupField::Passive;
    return !ofFtp || entry(SetupField::Protocol) == "FTP";
}

void frmSetup::setEntry(SetupField field, std::string_view text) {
    entries_[index(field)] = text;
    if (field == SetupField::Protocol) settings_.UseHTTP = text != "FTP";
}

void frmSetup::cmdSelDirectory_Click(std::string_view chosen) {
    settings_.LocalDir = chosen;
    if (!chosen.empty()) setEntry(SetupField::LocalDir, chosen);
}

void frmSetup::normalise(SetupField field) {
    if (rowOf(field).Kind == SetupKind::Number) entries_[index(field)] = NumberText(Val(entry(field)));
}

std::optional<SetupProblem> frmSetup::problemOf(SetupField field) const {
    for (const SetupCheck& check : setupChecks)
        if (check.Field == field && fails(check, entry(field))) return SetupProblem{field, std::string(check.Message)};
    const SetupRow& row = rowOf(field);
    if (std::any_of(entry(field).begin(), entry(field).end(), isControl))
        return SetupProblem{field, "Error! " + std::string(row.Key) + " must be one line without control characters"};
    if (storedText(field).size() > longestStored)
        return SetupProblem{field, "Error! " + std::string(row.Key) + " is too long"};
    return std::nullopt;
}

std::optional<SetupProblem> frmSetup::firstProblem() const {
    for (const SetupCheck& check : setupChecks)
        if (fails(check, entry(check.Field))) return SetupProblem{check.Field, std::string(check.Message)};
    for (const SetupRow& row : setupRows)
        if (auto problem = problemOf(row.Field)) return problem;
    return std::nullopt;
}

std::string frmSetup::storedText(SetupField field) const {
    if (rowOf(field).Kind != SetupKind::Password) return entry(field);
    std::string key;
    return Encrypt(entry(field), key, log_);
}

bool frmSetup::save(SetupField field) {
    const SetupRow& row = rowOf(field);
    return ini_.VellIniWriteString(row.Section, row.Key, storedText(field));
}

std::optional<SetupProblem> frmSetup::cmdOk_Click() {
    if (auto problem = firstProblem()) return problem;
    for (const SetupRow& row : setupRows)
        (void)save(row.Field);  // a failure does not keep the others from being saved
    loader_.GetSetup();
    return std::nullopt;
}

std::optional<SetupProblem> frmSetup::saveOnly(SetupField field) {
    if (auto problem = problemOf(field)) return problem;
    const bool saved = save(field);
    loader_.GetSetup();
    if (!saved) return SetupProblem{field, "Error! The settings file could not be written"};
    return std::nullopt;
}

void frmSetup::Form_Unload() {
    loader_.GetSetup();
}

}  // namespace vell
