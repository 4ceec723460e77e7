// SPDX-License-Identifier: MIT
#include "console/ClippingCommands.h"

#include <algorithm>
#include <iterator>

#include "app/exitCodes.h"
#include "app/frmMain.h"
#include "base/text.h"
#include "console/ClippingsTable.h"
#include "console/CommandLine.h"
#include "console/ConsoleView.h"
#include "console/Screen.h"
#include "platform/Terminal.h"
#include "store/Articles.h"

namespace vell {

namespace {

// For readers of a file or a mail; programs take the tab-separated form, in which nothing is cut.
constexpr std::size_t widthWithoutTerminal = 120;

int codeOf(bool done) {
    return done ? exit_code::Good : exit_code::Failed;
}

std::vector<std::string> codePageTexts(const std::vector<std::string>& utf8) {
    std::vector<std::string> texts;
    std::ranges::transform(utf8, std::back_inserter(texts), codePageFromUtf8Lossy);
    return texts;
}

// The number of the first name that is `utf8`, in any case; nothing when none is.
std::optional<std::size_t> find(const std::vector<std::string>& names, const std::string& utf8) {
    const auto wanted = codePageFromUtf8(utf8);
    if (!wanted) return std::nullopt;
    const auto found = std::ranges::find_if(names, [&](const std::string& one) { return equalNoCase(one, *wanted); });
    if (found == names.end()) return std::nullopt;
    return static_cast<std::size_t>(found - names.begin());
}

}  // namespace

ClippingCommands::ClippingCommands(frmMain& program, EventLoop& loop, const ConsoleView& view, const Terminal& terminal,
                                   Screen& screen)
    : program_(program), loop_(loop), view_(view), terminal_(terminal), screen_(screen) {}

bool ClippingCommands::chooseDay(const std::optional<Date>& day) {
    ClippingsBrowser& browser = program_.reading().Browser;
    if (browser.days().empty() && !day) {
        screen_.tell("No day has been fetched yet. 'vell-console download' fetches today's clippings.");
        return false;
    }
    const Date chosen = day ? *day : browser.days().front();
    if (browser.chooseDay(chosen)) return true;
    screen_.tell("The day " + chosen.dayName() + " has not been fetched. 'vell-console days' shows those that have.");
    return false;
}

int ClippingCommands::list(const CommandLine& line) {
    if (!chooseDay(line.Day)) return codeOf(!line.Day);
    const std::vector<ClippingRow> rows = wantedRows(line);
    if (line.Tsv) {
        for (const ClippingRow& row : rows)
            screen_.print(clippingTsv(row));
        return exit_code::Good;
    }
    screen_.print(program_.reading().Browser.chosenDay()->dayName() + "   " + std::to_string(rows.size()) +
                  " Clippings");
    if (const std::string alert = shownLines(view_.alert()); !alert.empty()) screen_.print(alert);
    const bool fits = terminal_.isTerminal(Terminal::Stream::Output);
    for (const std::string& text :
         clippingsTable(rows, fits ? static_cast<std::size_t>(terminal_.width()) : widthWithoutTerminal))
        screen_.print(text);
    return exit_code::Good;
}

std::vector<ClippingRow> ClippingCommands::wantedRows(const CommandLine& line) {
    Reading& reading = program_.reading();
    reading.Browser.setFilter({.Categories = codePageTexts(line.Categories), .Types = codePageTexts(line.Types)});
    reading.Find.setTyped(codePageFromUtf8Lossy(line.Words));
    reading.Find.finish();
    std::vector<ClippingRow> rows = reading.Browser.rows();
    if (line.Unread) std::erase_if(rows, [](const ClippingRow& row) { return row.Opened; });
    return rows;
}

int ClippingCommands::open(const CommandLine& line) {
    if (!chooseDay(line.Day)) return exit_code::Failed;
    return forEachFile(line, [this](std::size_t row) {
        const std::string path = program_.reading().Browser.rows().at(row).path();
        return program_.reading().Opening.open(path) == ClippingOpening::Outcome::Done;
    });
}

int ClippingCommands::show(const CommandLine& line) {
    if (!chooseDay(line.Day)) return exit_code::Failed;
    return forEachFile(line, [this](std::size_t row) {
        const CFtpFile& clipping = *program_.reading().Browser.rows().at(row).File;
        const TextReader::WholeText text = program_.reading().Text.wholeText(clipping);
        if (text.Notice.empty())
            screen_.print(shownLines(text.Text));
        else
            screen_.tell(clipping.FileName + ": " + text.Notice);
        return text.Notice.empty();
    });
}

int ClippingCommands::mark(const CommandLine& line) {
    if (!chooseDay(line.Day)) return exit_code::Failed;
    std::vector<std::size_t> rows;
    const int code = forEachFile(line, [&rows](std::size_t row) {
        rows.push_back(row);
        return true;
    });
    return program_.reading().Opening.markRows(rows, line.Opened) ? code : exit_code::Failed;
}

int ClippingCommands::print(const CommandLine& line) {
    if (!chooseDay(line.Day)) return exit_code::Failed;
    if (line.All) return printAll(line);
    return line.Categories.empty() ? printFiles(line) : printCategories(line);
}

int ClippingCommands::printAll(const CommandLine& line) {
    const bool printed = program_.reading().Printing.mnuPrintAll_Click();
    screen_.leaveStatus();
    if (!printed) tellUnasked(line);
    return codeOf(printed);
}

int ClippingCommands::printCategories(const CommandLine& line) {
    frmPrint dialog = program_.reading().Printing.mnuPrintByCategory_Click();
    bool good = true;
    for (const std::string& name : line.Categories) {
        if (const auto entry = find(dialog.lstAllCategories(), name)) {
            dialog.cmdAdd_Click(*entry);
        } else if (!find(dialog.lstPrintCategories(), name)) {  // not named before either
            tellUnlisted("category", name, "list");
            good = false;
        }
    }
    if (!dialog.lstPrintCategories().empty())
        good = dialog.cmdPrint_Click([this](std::string_view text) { screen_.showStatus(text, -1); }) && good;
    screen_.leaveStatus();
    return codeOf(good);
}

int ClippingCommands::printFiles(const CommandLine& line) {
    const Articles::Batch batch(program_.reading().Article);
    bool another = false;
    return forEachFile(line, [this, &another](std::size_t row) {
        if (another) printPause(loop_, program_.settings());
        another = program_.reading().Printing.mnuPrintSel_Click(row);
        return another;
    });
}

int ClippingCommands::forEachFile(const CommandLine& line, const std::function<bool(std::size_t)>& act) {
    bool good = true;
    for (const std::string& name : line.Files) {
        const auto row = rowOf(name);
        if (!row) tellUnlisted("clipping", name, "list --tsv");
        good = row && act(*row) && good;
    }
    return codeOf(good);
}

std::optional<std::size_t> ClippingCommands::rowOf(const std::string& utf8Name) const {
    std::vector<std::string> names;
    for (const ClippingRow& row : program_.reading().Browser.rows())
        names.push_back(row.File->FileName);
    const auto row = find(names, utf8Name);
    return row ? row : find(names, utf8Name + ".PDF");
}

void ClippingCommands::tellUnlisted(std::string_view kind, const std::string& utf8Name, const std::string& options) {
    const std::string day = program_.reading().Browser.chosenDay()->dayName();
    screen_.tell("There is no " + std::string(kind) + " '" + codePageFromUtf8Lossy(utf8Name) + "' on " + day +
                 ". 'vell-console " + options + " --date " + day + "' shows what there is.");
}

int ClippingCommands::deleteDay(const CommandLine& line) {
    if (!chooseDay(line.Day)) return exit_code::Failed;
    const std::optional<Date> day = program_.reading().Browser.chosenDay();
    program_.reading().Days.mnuDeleteDay_Click({*day});
    const auto& days = program_.reading().Browser.days();
    const bool isGone = std::ranges::find(days, day) == days.end();
    if (!isGone) tellUnasked(line);
    return codeOf(isGone);
}

void ClippingCommands::tellUnasked(const CommandLine& line) {
    if (!line.Yes && !terminal_.canAsk())
        screen_.tell("Nobody is at a terminal to answer. Say --yes to answer with yes beforehand.");
}

}  // namespace vell
