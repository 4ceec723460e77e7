// SPDX-License-Identifier: MIT
#include "config/frmSetup.h"

#include <algorithm>
#include <array>
#include <climits>

#include "base/text.h"
#include "platform/Files.h"

namespace vell {

namespace {

std::string downloadFolderIn(std::string_view documents) {
    if (documents.empty()) return {};
    const char* const separator = documents.find('/') == std::string_view::npos ? "\\" : "/";  // as the person knows it
    return plainEntry(rowOf(&Settings::LocalDir), documents) + separator + "Clippings";
}

bool isPlainWhileTyped(const SettingField& field) {
    constexpr std::array<SettingField, 3> fields{&Settings::Port, &Settings::TimeOut, &Settings::PrintAllDelay};
    return std::ranges::find(fields, field) != fields.end();
}

}  // namespace

frmSetup::frmSetup(const Parts& parts)
    : p_(parts), proposedFolder_(downloadFolderIn(parts.Documents)), entries_(settingRows().size()) {}

std::span<const std::string_view> frmSetup::hosts() {
    static constexpr std::array<std::string_view, 2> hosts{"clippings.example", "192.0.2.80"};
    return hosts;
}

void frmSetup::Form_Load() {
    p_.Loader.GetSetup();
    for (const SettingRow& row : setupRows())
        entries_[index(row)] = loaded(row);
}

// Read by itself: a damaged password keeps the loader, but not the dialog, from what stands behind it.
frmSetup::Entry frmSetup::loaded(const SettingRow& row) const {
    Settings settings = p_.State;
    bool isUnreadable = false;
    if (!complaint().empty() && p_.Ini.isReadable()) {
        settings = Settings{};
        isUnreadable = !trap(p_.Log, "Form_Load()", false, [&] {
            loadSetting(row, p_.Ini, settings, p_.Log);
            return true;
        });
    }
    const std::string storedNow = stored(row), proposal = storedNow.empty() ? proposed(row) : "";
    const std::string text = proposal.empty() ? entryOf(row, settings) : proposal;
    return {text, storedNow, isUnreadable, false};
}

std::string frmSetup::proposed(const SettingRow& row) const {
    return row.Kind == SettingKind::Folder ? proposedFolder_ : std::string(row.Proposed);
}

bool frmSetup::isProposed(const SettingRow& row) const {
    return !proposed(row).empty() && entries_[index(row)].Stored.empty();
}

std::vector<const SettingRow*> frmSetup::proposals() const {
    std::vector<const SettingRow*> found;
    for (const SettingRow& row : setupRows())
        if (isProposed(row) && row.Kind != SettingKind::Folder) found.push_back(&row);
    return found;
}

std::string frmSetup::stored(const SettingRow& row) const {
    std::string text;
    p_.Ini.VellIniReadString(row.Section, row.Key, text);
    return text;
}

bool frmSetup::isEnabled(const SettingField& field) const {
    constexpr std::array<SettingField, 3> ofFtp{&Settings::Port, &Settings::TimeOut, &Settings::Passive};
    return std::ranges::find(ofFtp, field) == ofFtp.end() || entry(&Settings::Protocol) == "FTP";
}

void frmSetup::setEntry(const SettingField& field, std::string_view text) {
    Entry& entry = entries_[index(rowOf(field))];
    entry.Text = text;
    entry.IsTouched = true;
    entry.IsForeign = false;
    if (field == SettingField(&Settings::Protocol)) p_.State.UseHTTP = text != "FTP";
}

void frmSetup::cmdSelDirectory_Click(std::string_view chosen) {
    p_.State.LocalDir = chosen;
    if (!chosen.empty()) setEntry(&Settings::LocalDir, chosen);
}

void frmSetup::normalise(const SettingField& field) {
    std::string& text = entries_[index(rowOf(field))].Text;
    text = plainEntry(rowOf(field), text);
}

void frmSetup::typed(const SettingField& field, std::string_view utf8) {
    setEntry(field, codePageFromUtf8Lossy(utf8));
    entries_[index(rowOf(field))].IsForeign = !isNumber(rowOf(field)) && !codePageFromUtf8(utf8);
    if (isPlainWhileTyped(field)) normalise(field);
}

void frmSetup::left(const SettingField& field) {
    if (!isPlainWhileTyped(field)) normalise(field);
    entries_[index(rowOf(field))].IsLeft = true;
}

std::string frmSetup::note(const SettingField& field) const {
    if (!entries_[index(rowOf(field))].IsLeft || !isEnabled(field)) return {};
    return noteOf(rowOf(field), faultOf(field), p_.Words);
}

EntryFault frmSetup::faultOf(const SettingField& field) const {
    const SettingRow& row = rowOf(field);
    return entries_[index(row)].IsForeign ? EntryFault::ForeignCharacter : faultIn(row, entry(field), p_.Log);
}

std::optional<SetupProblem> frmSetup::problemOf(const SettingField& field) const {
    const EntryFault fault = faultOf(field);
    if (fault == EntryFault::None) return std::nullopt;
    return SetupProblem{field, complaintOf(rowOf(field), fault)};
}

std::optional<SetupProblem> frmSetup::firstProblem() const {
    std::vector<const SettingRow*> inTurn;
    for (const SettingRow& row : setupRows())
        inTurn.push_back(&row);
    // What may be anything is looked at last: what the file could not hold is no entry that somebody forgot.
    const auto turn = [](const SettingRow* row) { return row->Check.Turn == 0 ? INT_MAX : row->Check.Turn; };
    std::ranges::stable_sort(inTurn, {}, turn);
    for (const SettingRow* row : inTurn)
        if (auto problem = isEnabled(row->Field) ? problemOf(row->Field) : std::nullopt) return problem;
    return std::nullopt;
}

bool frmSetup::isToSave(const SettingRow& row) const {
    const Entry& entry = entries_[index(row)];
    return entry.IsTouched || (!entry.IsUnreadable && stored(row) == entry.Stored);
}

IniEdit frmSetup::editOf(const SettingRow& row) const {
    return {std::string(row.Section), std::string(row.Key), storedText(row, entry(row.Field), p_.Log)};
}

std::optional<SetupProblem> frmSetup::cmdOk_Click() {
    if (auto problem = firstProblem()) return problem;
    std::vector<const SettingRow*> all;
    for (const SettingRow& row : setupRows())
        all.push_back(&row);
    return write(all);
}

std::optional<SetupProblem> frmSetup::saveOnly(const SettingField& field) {
    if (auto problem = problemOf(field)) return problem;
    std::vector<const SettingRow*> rows = proposals();
    std::erase(rows, &rowOf(field));
    rows.push_back(&rowOf(field));
    return write(rows);
}

std::optional<SetupProblem> frmSetup::write(const std::vector<const SettingRow*>& rows) {
    if (std::ranges::find(rows, &rowOf(&Settings::LocalDir)) != rows.end() && !makeProposedFolder())
        return SetupProblem{&Settings::LocalDir, "Error! Download path could not be made"};
    const bool saved = p_.Ini.VellIniWriteStrings([&] {
        std::vector<IniEdit> edits;
        for (const SettingRow* row : rows)
            if (isToSave(*row)) edits.push_back(editOf(*row));
        return edits;
    });
    if (!saved) return SetupProblem{rows.back()->Field, "Error! The settings file could not be written"};
    p_.Loader.GetSetup();
    return std::nullopt;
}

// Nobody can be asked to make a folder that the program itself has thought of.
bool frmSetup::makeProposedFolder() {
    return trap(p_.Log, "cmdOk_Click()", false, [&] {
        if (entry(&Settings::LocalDir) == proposedFolder_ && !p_.Disk.PathExists(proposedFolder_))
            p_.Disk.MakeFolder(proposedFolder_);
        return true;
    });
}

void frmSetup::Form_Unload() {
    p_.Loader.GetSetup();
}

}  // namespace vell
