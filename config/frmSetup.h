// SPDX-License-Identifier: MIT
#pragma once

#include <array>
#include <cstddef>
#include <optional>
#include <span>
#include <string>
#include <string_view>

#include "base/errors.h"

namespace vell {

class modIni;
class SettingsLoader;
struct Settings;

// The entries of the setup dialog, in the order in which they are saved.
enum class SetupField : std::size_t {
    Protocol,
    Host,
    Port,
    Uid,
    RetryOnFailure,
    RetryDelay,
    TimeOut,
    Passive,
    ProxyUsername,
    ProxyPwd,
    LocalDir,
    Dialup,
    PrintOnDownload,
    CloseConnection,
    AutoUpdateCheck,
    AutoUpdateServer,
    AutoUpdateNotify,
    AutoPlayDelay,
    PrintAllDelay,
    Pwd,
    Count
};

inline constexpr std::size_t setupFieldCount = static_cast<std::size_t>(SetupField::Count);

enum class SetupKind { Text, Number, Flag, Password, Protocol };

struct SetupRow {
    SetupField Field;
    std::string_view Section;
    std::string_view Key;
    SetupKind Kind;
    std::string_view Meaning;  // in a few words, for people
};

struct SetupProblem {
    SetupField Field;
    std::string Message;
};

// What the setup dialog decides: it holds the entries as the user sees them (flags as "0" and "1", passwords in
// clear), checks them in a fixed order, and saves all of them or none.
class frmSetup {
  public:
    frmSetup(Settings& settings, SettingsLoader& loader, modIni& ini, ErrorLog& log);

    [[nodiscard]] static std::span<const SetupRow> rows();
    [[nodiscard]] static const SetupRow& rowOf(SetupField field);
    // Keys are compared without regard to case.
    [[nodiscard]] static std::optional<SetupField> fieldOf(std::string_view key);

    // The hosts that are offered: the service's default name, and the same server's address.
    [[nodiscard]] static std::span<const std::string_view> hosts();

    // Reads the settings anew into the entries.
    void Form_Load();
    // False when a password in the file cannot be read: what stands behind it is then left out.
    [[nodiscard]] bool isWhole() const;
    // The entries that FTP alone needs can be changed only when FTP is chosen. They are saved all the same.
    [[nodiscard]] bool isEnabled(SetupField field) const;

    [[nodiscard]] const std::string& entry(SetupField field) const { return entries_[index(field)]; }
    // Choosing a protocol takes effect in the settings at once; unloading undoes it.
    void setEntry(SetupField field, std::string_view text);
    // The user has chosen a download folder, or none (empty), which leaves the entry as it is. Either takes effect in
    // the settings at once; unloading undoes it.
    void cmdSelDirectory_Click(std::string_view chosen);
    // Makes a number's entry the plain form of the number that it begins with.
    void normalise(SetupField field);

    // The first entry, in the order of the checks, that is wrong.
    [[nodiscard]] std::optional<SetupProblem> firstProblem() const;
    [[nodiscard]] std::optional<SetupProblem> problemOf(SetupField field) const;

    // Saves every entry when none is wrong and loads the settings again. Else saves nothing and tells what is wrong.
    [[nodiscard]] std::optional<SetupProblem> cmdOk_Click();
    // Saves one entry alone, with its own checks. A file that cannot be written is a problem, too.
    [[nodiscard]] std::optional<SetupProblem> saveOnly(SetupField field);
    // Takes back what the dialog has changed in the settings.
    void Form_Unload();

  private:
    [[nodiscard]] static constexpr std::size_t index(SetupField field) { return static_cast<std::size_t>(field); }
    [[nodiscard]] std::string storedText(SetupField field) const;
    [[nodiscard]] bool save(SetupField field);

    Settings& settings_;
    SettingsLoader& loader_;
    modIni& ini_;
    ErrorLog& log_;
    std::array<std::string, setupFieldCount> entries_;
};

}  // namespace vell
