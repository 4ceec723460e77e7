// SPDX-License-Identifier: MIT
#include "console/SetupCommand.h"

#include <utility>

#include "app/exitCodes.h"
#include "base/text.h"
#include "console/CommandLine.h"
#include "console/ConsoleBoxes.h"
#include "console/Screen.h"
#include "platform/Terminal.h"

namespace vell {

namespace {

std::string keyOf(const SettingRow& row) {
    return std::string(row.Key);
}

// The keys of all rows but one.
std::string keysOf(const std::vector<const SettingRow*>& rows, const SettingRow& but) {
    std::string keys;
    for (const SettingRow* row : rows)
        if (row != &but) keys.append(keys.empty() ? "" : ", ").append(row->Key);
    return keys;
}

const SettingRow* rowWithKey(std::string_view key) {
    for (const SettingRow& row : setupRows())
        if (equalNoCase(row.Key, key)) return &row;
    return nullptr;
}

// What is wrong with a value before the dialog's own checks see it; empty when nothing is.
std::string mistakeIn(const SettingRow& row, std::string_view value) {
    if (isFlag(row) && value != "0" && value != "1") return keyOf(row) + " takes 0 or 1.";
    if (isNumber(row) && !isNumeric(value)) return keyOf(row) + " takes a number.";
    if (row.Kind == SettingKind::Protocol && value != "HTTP" && value != "FTP") return "Protocol takes HTTP or FTP.";
    return {};
}

}  // namespace

SetupCommand::SetupCommand(frmSetup dialog, Terminal& terminal, Screen& screen, ConsoleBoxes& boxes)
    : dialog_(std::move(dialog)), terminal_(terminal), screen_(screen), boxes_(boxes) {
    dialog_.Form_Load();
}

int SetupCommand::run(const CommandLine& line) {
    if (!line.Key) {
        showAll();
        return exit_code::Good;
    }
    const SettingRow* row = rowWithKey(*line.Key);
    if (row == nullptr) return wrong("There is no setting '" + *line.Key + "'. 'vell-console setup' shows them all.");
    if (line.Value) return change(*row, *line.Value);
    screen_.print(shown(*row));
    return exit_code::Good;
}

int SetupCommand::change(const SettingRow& row, const std::string& value) {
    const auto wanted = valueOf(row, value);
    if (!wanted) return wrong("The value of " + keyOf(row) + " has a character that is neither Latin nor Greek.");
    if (const std::string mistake = mistakeIn(row, *wanted); !mistake.empty()) return wrong(mistake);
    dialog_.setEntry(row.Field, *wanted);
    dialog_.normalise(row.Field);
    if (const auto problem = dialog_.problemOf(row.Field)) return wrong(utf8FromCodePage(problem->Message));
    const auto proposed = dialog_.proposals();
    if (const auto problem = dialog_.saveOnly(row.Field)) {
        tell(utf8FromCodePage(problem->Message));
        return exit_code::Failed;
    }
    const std::string saved = dialog_.entry(row.Field), alsoSaved = keysOf(proposed, row);
    dialog_.Form_Load();
    if (const std::string complaint(dialog_.complaint()); !complaint.empty()) {
        screen_.print(keyOf(row) + " was saved.");
        tell(complaint);
        return exit_code::Good;
    }
    screen_.print(keyOf(row) + " = " + shown(row));
    if (!alsoSaved.empty()) tell("Stored as proposed, too: " + alsoSaved + ".");
    if (dialog_.entry(row.Field) != saved) tell("Of the value given, only this much takes effect: " + shown(row));
    return exit_code::Good;
}

std::optional<std::string> SetupCommand::valueOf(const SettingRow& row, const std::string& utf8) {
    std::string typed = utf8;
    if (typed == "-") {
        const bool secret = row.Kind == SettingKind::Password;
        if (terminal_.canAsk())
            typed = boxes_.askForLine(keyOf(row) + ": ", secret).value_or("");
        else
            typed = terminal_.ReadLine().value_or("");
    }
    auto value = codePageFromUtf8(typed);
    if (!value) return std::nullopt;
    if (row.Kind == SettingKind::Protocol) *value = Upper(*value);
    return value;
}

std::string SetupCommand::shown(const SettingRow& row) const {
    if (row.Kind == SettingKind::Password) return dialog_.entry(row.Field).empty() ? "(not set)" : "(set)";
    return shownText(dialog_.entry(row.Field));
}

void SetupCommand::showAll() {
    for (const SettingRow& row : setupRows()) {
        const std::string setting = std::string(row.Key) + " = " + shown(row);
        constexpr std::size_t meaningColumn = 40;
        const std::size_t width = columns(setting);
        screen_.print(setting + std::string(width < meaningColumn ? meaningColumn - width : 2, ' ') + "# " +
                      (dialog_.isProposed(row) ? "proposed: " : "") + std::string(row.Meaning));
    }
    if (const std::string complaint(dialog_.complaint()); !complaint.empty()) tell(complaint);
}

void SetupCommand::askForLogin() {
    dialog_.Form_Load();
    const auto user = boxes_.askForLine("User name [" + dialog_.entry(&Settings::Uid) + "]: ", false);
    if (!user) {
        screen_.tell("Change them with 'vell-console setup Uid NAME' and 'vell-console setup Pwd -'.");
        return;
    }
    if (!user->empty()) (void)change(rowOf(&Settings::Uid), *user);
    const auto password = boxes_.askForLine("Password: ", true);
    if (password && !password->empty()) (void)change(rowOf(&Settings::Pwd), *password);
}

int SetupCommand::wrong(const std::string& message) {
    tell(message);
    return exit_code::Usage;
}

void SetupCommand::tell(const std::string& utf8) {
    screen_.leaveStatus();
    terminal_.Write(Terminal::Stream::Error, utf8 + "\n");
}

}  // namespace vell
