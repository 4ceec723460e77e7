// SPDX-License-Identifier: MIT
#pragma once

#include <cstddef>
#include <optional>
#include <span>
#include <string>
#include <string_view>
#include <vector>

#include "base/errors.h"
#include "config/EntryFault.h"
#include "config/SettingsLoader.h"
#include "config/SettingsTable.h"
#include "config/modIni.h"

namespace vell {

class Files;
class Translations;

struct SetupProblem {
    SettingField Field;
    std::string Message;
};

// What the setup dialog decides: it holds the entries as the user sees them (flags as "0" and "1", passwords in
// clear), checks them in a fixed order, and saves all of them or none.
class frmSetup {
  public:
    struct Parts {
        Settings& State;
        SettingsLoader& Loader;
        modIni& Ini;
        ErrorLog& Log;
        Files& Disk;
        const Translations& Words;
        // The folder that holds the user's documents, in which a download folder is proposed; empty when there is none.
        std::string Documents;
    };
    explicit frmSetup(const Parts& parts);

    // The hosts that are offered: the service's default name, and the same server's address.
    [[nodiscard]] static std::span<const std::string_view> hosts();

    // Reads the settings anew into the entries. Where the file has none, working ones are proposed.
    void Form_Load();
    // What people are told of a settings file that is damaged; empty for a good one. The entries hold what could be
    // read.
    [[nodiscard]] std::string_view complaint() const { return p_.Loader.complaint(); }
    // The entries that FTP alone needs can be changed only when FTP is chosen. They are saved all the same, unchecked.
    [[nodiscard]] bool isEnabled(const SettingField& field) const;

    [[nodiscard]] const std::string& entry(const SettingField& field) const {
        return entries_[index(rowOf(field))].Text;
    }
    // Choosing a protocol takes effect in the settings at once; unloading undoes it.
    void setEntry(const SettingField& field, std::string_view text);
    // What a box holds after a key, in UTF-8. Some numbers become plain at once.
    void typed(const SettingField& field, std::string_view utf8);
    // The user has left the box: the other numbers become plain, and from now on a note tells what is wrong.
    void left(const SettingField& field);
    // What stands beside the box of an entry that the user has left and that cannot be saved, in the user's language;
    // empty for any other.
    [[nodiscard]] std::string note(const SettingField& field) const;
    // The user has chosen a download folder, or none (empty), which leaves the entry as it is. Either takes effect in
    // the settings at once; unloading undoes it.
    void cmdSelDirectory_Click(std::string_view chosen);
    // Makes a number's entry the plain form of the number that it begins with.
    void normalise(const SettingField& field);

    [[nodiscard]] std::optional<SetupProblem> problemOf(const SettingField& field) const;
    // The first entry, in the order of the checks, that is wrong. When the dialog opens, only the user can know what
    // belongs there.
    [[nodiscard]] std::optional<SetupProblem> firstProblem() const;

    // Saves every entry when none is wrong and loads the settings again. Else saves nothing and tells what is wrong; a
    // file that cannot be written is a problem, too. An entry that the user has left as it was gives way to what
    // another program has stored meanwhile, and a password that could not be read is not replaced by nothing.
    [[nodiscard]] std::optional<SetupProblem> cmdOk_Click();
    // True for a setting that the file does not have and a proposal stands for.
    [[nodiscard]] bool isProposed(const SettingRow& row) const;
    // All of them but the download folder, which is made when it is saved: nobody shall get one unasked.
    [[nodiscard]] std::vector<const SettingRow*> proposals() const;
    // Saves one entry, with its own checks, and with it the proposals that are not stored yet.
    [[nodiscard]] std::optional<SetupProblem> saveOnly(const SettingField& field);
    // Takes back what the dialog has changed in the settings.
    void Form_Unload();

  private:
    [[nodiscard]] static std::size_t index(const SettingRow& row) {
        return static_cast<std::size_t>(&row - settingRows().data());
    }
    struct Entry {
        std::string Text;
        std::string Stored;         // what stood in the file when it was read
        bool IsUnreadable = false;  // which leaves the text empty
        bool IsTouched = false;
        bool IsForeign = false;  // the code page could not hold all that was typed
        bool IsLeft = false;     // by the user, who then wants to know what is wrong with it
    };
    [[nodiscard]] EntryFault faultOf(const SettingField& field) const;
    [[nodiscard]] std::string proposed(const SettingRow& row) const;
    [[nodiscard]] bool makeProposedFolder();
    [[nodiscard]] std::optional<SetupProblem> write(const std::vector<const SettingRow*>& rows);
    [[nodiscard]] std::string stored(const SettingRow& row) const;
    [[nodiscard]] Entry loaded(const SettingRow& row) const;
    [[nodiscard]] bool isToSave(const SettingRow& row) const;
    [[nodiscard]] IniEdit editOf(const SettingRow& row) const;

    Parts p_;
    std::string proposedFolder_;
    std::vector<Entry> entries_;  // a place per row of the table
};

}  // namespace vell
