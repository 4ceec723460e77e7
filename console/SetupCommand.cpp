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

std::string keyOf(SetupField field) {
    return std::string(frmSetup::rowOf(field).Key);
}

bool isFullPath(std::string_view path) {
    return path.starts_with('/') || path.starts_with('\\') || (path.size() > 2 && path[1] == ':');
}

// What is wrong with a value before the dialog's own checks see it; empty when nothing is.
std::string mistakeIn(SetupField field, std::string_view value) {
    switch (frmSetup::rowOf(field).Kind) {
        case SetupKind::Flag:
            return value == "0" || value == "1" ? "" : keyOf(field) + " takes 0 or 1.";
        case SetupKind::Protocol:
            return value == "HTTP" || value == "FTP" ? "" : "Protocol takes HTTP or FTP.";
        case SetupKind::Number:
            return isNumeric(value) ? "" : keyOf(field) + " takes a number.";
        case SetupKind::Text:
        case SetupKind::Password:
            break;
    }
    if (field == SetupField::LocalDir && !isFullPath(value))
        return "LocalDir takes a full path, such as /home/ann/clippings.";
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
    const auto field = frmSetup::fieldOf(*line.Key);
    if (!field) return wrong("There is no setting '" + *line.Key + "'. 'vell-console setup' shows them all.");
    if (line.Value) return change(*field, *line.Value);
    screen_.print(shown(*field));
    return exit_code::Good;
}

int SetupCommand::change(SetupField field, const std::string& value) {
    const auto wanted = valueOf(field, value);
    if (!wanted) return wrong("The value of " + keyOf(field) + " has a character that is neither Latin nor Greek.");
    if (const std::string mistake = mistakeIn(field, *wanted); !mistake.empty()) return wrong(mistake);
    dialog_.setEntry(field, *wanted);
    dialog_.normalise(field);
    if (const auto problem = dialog_.problemOf(field)) return wrong(utf8FromCodePage(problem->Message));
    if (const auto problem = dialog_.saveOnly(field)) {
        tell(utf8FromCodePage(problem->Message));
        return exit_code::Failed;
    }
    const std::string saved = dialog_.entry(field);
    dialog_.Form_Load();
    if (!dialog_.isWhole()) {
        screen_.print(keyOf(field) + " was saved.");
        tell(std::string(damagedSettings));
        return exit_code::Good;
    }
    screen_.print(keyOf(field) + " = " + shown(field));
    if (dialog_.entry(field) != saved) tell("Of the value given, only this much takes effect: " + shown(field));
    return exit_code::Good;
}

std::optional<std::string> SetupCommand::valueOf(SetupField field, const std::string& utf8) {
    std::string typed = utf8;
    if (typed == "-") {
        const bool secret = frmSetup::rowOf(field).Kind == SetupKind::Password;
        if (terminal_.canAsk())
            typed = boxes_.askForLine(keyOf(field) + ": ", secret).value_or("");
        else
            typed = terminal_.ReadLine().value_or("");
    }
    auto value = codePageFromUtf8(typed);
    if (!value) return std::nullopt;
    if (frmSetup::rowOf(field).Kind == SetupKind::Protocol) *value = Upper(*value);
    if (field == SetupField::LocalDir)
        while (value->size() > 1 && (value->back() == '/' || value->back() == '\\'))
            value->pop_back();
    return value;
}

std::string SetupCommand::shown(SetupField field) const {
    if (frmSetup::rowOf(field).Kind == SetupKind::Password) return dialog_.entry(field).empty() ? "(not set)" : "(set)";
    return shownText(dialog_.entry(field));
}

void SetupCommand::showAll() {
    for (const SetupRow& row : frmSetup::rows()) {
        const std::string setting = std::string(row.Key) + " = " + shown(row.Field);
        constexpr std::size_t meaningColumn = 40;
        const std::size_t width = columns(setting);
        screen_.print(setting + std::string(width < meaningColumn ? meaningColumn - width : 2, ' ') + "# " +
                      std::string(row.Meaning));
    }
    if (!dialog_.isWhole()) tell(std::string(damagedSettings));
}

void SetupCommand::askForLogin() {
    dialog_.Form_Load();
    const auto user = boxes_.askForLine("User name [" + dialog_.entry(SetupField::Uid) + "]: ", false);
    if (!user) {
        screen_.tell("Change them with 'vell-console setup Uid NAME' and 'vell-console setup Pwd -'.");
        return;
    }
    if (!user->empty()) (void)change(SetupField::Uid, *user);
    const auto password = boxes_.askForLine("Password: ", true);
    if (password && !password->empty()) (void)change(SetupField::Pwd, *password);
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
