// SPDX-License-Identifier: MIT
#include "console/CommandLine.h"

#include <algorithm>
#include <memory>
#include <sstream>

#include <CLI/CLI.hpp>

#include "app/BuildFacts.h"
#include "app/exitCodes.h"
#include "platform/Terminal.h"

namespace vell {

namespace {

Date dayOf(const std::string& option, const std::string& text) {
    const auto date = Date::fromDayName(text);
    if (!date)
        throw CLI::ValidationError(option, "'" + text +
                                               "' is no day of the calendar. Write a day as dd/mm/yyyy, for example "
                                               "07/03/2026.");
    return *date;
}

CLI::Option* addDay(CLI::App& command, const std::string& option, std::optional<Date>& day,
                    const std::string& meaning) {
    return command
        .add_option_function<std::string>(
            option, [&day, option](const std::string& text) { day = dayOf(option, text); }, meaning)
        ->type_name("dd/mm/yyyy");
}

void checkRange(const CommandLine& line) {
    if (line.Day && (line.From || line.To))
        throw CLI::ValidationError("--date", "goes without --from and --to. Give one day or a range.");
    if (line.From.has_value() != line.To.has_value())
        throw CLI::ValidationError(line.From ? "--from" : "--to",
                                   "needs the other end of the range: give --from and --to.");
    if (line.From && *line.From > *line.To)
        throw CLI::ValidationError("--from", "is later than --to. Give the earlier day first.");
}

void addDownload(CLI::App& app, CommandLine& line) {
    CLI::App* command = app.add_subcommand("download", "Fetch the clippings of a day, or of every day of a range");
    addDay(*command, "--date", line.Day, "The day to fetch; today without one");
    addDay(*command, "--from", line.From, "The first day of a range");
    addDay(*command, "--to", line.To, "The last day of a range");
    command->callback([&line] {
        line.What = CommandLine::Command::Download;
        checkRange(line);
    });
}

void addList(CLI::App& app, CommandLine& line) {
    CLI::App* command = app.add_subcommand("list", "Show the clippings of a day");
    addDay(*command, "--date", line.Day, "The day to show; the newest one without it");
    command->add_flag("--tsv", line.Tsv, "For programs: fields separated by tabs, no header");
    command->add_option("--find", line.Words, "Only clippings that have all these words, in their texts, too")
        ->type_name("TEXT");
    command->add_option("--category", line.Categories, "Only those of these categories")->type_name("NAME");
    command->add_option("--type", line.Types, "Only those of these types")->type_name("NAME");
    command->add_flag("--unread", line.Unread, "Only those that have not been opened");
    command->callback([&line] { line.What = CommandLine::Command::List; });
}

void checkPrint(const CommandLine& line) {
    const int kinds = (line.All ? 1 : 0) + (line.Categories.empty() ? 0 : 1) + (line.Files.empty() ? 0 : 1);
    if (kinds != 1) throw CLI::ValidationError("print", "takes one of these: --all, --category NAME..., or FILE...");
}

void addPrint(CLI::App& app, CommandLine& line) {
    CLI::App* command = app.add_subcommand("print", "Print clippings of a day");
    addDay(*command, "--date", line.Day, "The day of the clippings; the newest one without it");
    command->add_flag("--all", line.All, "All of the day, after a question");
    command->add_option("--category", line.Categories, "Those of whole categories, as 'list' shows them")
        ->type_name("NAME");
    command->add_option("FILE", line.Files,
                        "Those with these file names, as 'list --tsv' shows them; .PDF can be left out");
    command->callback([&line] {
        line.What = CommandLine::Command::Print;
        checkPrint(line);
    });
}

void addOpen(CLI::App& app, CommandLine& line) {
    CLI::App* command = app.add_subcommand("open", "Open clippings of a day with the system's PDF reader");
    addDay(*command, "--date", line.Day, "The day of the clippings; the newest one without it");
    command->add_option("FILE", line.Files, "Their file names, as 'list --tsv' shows them; .PDF can be left out")
        ->required();
    command->callback([&line] { line.What = CommandLine::Command::Open; });
}

void addShow(CLI::App& app, CommandLine& line) {
    CLI::App* command = app.add_subcommand("show", "Show the text of clippings of a day");
    addDay(*command, "--date", line.Day, "The day of the clippings; the newest one without it");
    command->add_option("FILE", line.Files, "Their file names, as 'list --tsv' shows them; .PDF can be left out")
        ->required();
    command->callback([&line] { line.What = CommandLine::Command::Show; });
}

void addMark(CLI::App& app, CommandLine& line) {
    CLI::App* command = app.add_subcommand("mark", "Mark clippings of a day as opened, or as not opened");
    addDay(*command, "--date", line.Day, "The day of the clippings; the newest one without it");
    CLI::Option_group* marks = command->add_option_group("MARK");
    marks->require_option(1);
    marks->add_flag_callback(
        "--opened", [&line] { line.Opened = true; }, "As opened");
    marks->add_flag_callback(
        "--unopened", [&line] { line.Opened = false; }, "As not opened");
    command->add_option("FILE", line.Files, "Their file names, as 'list --tsv' shows them; .PDF can be left out")
        ->required();
    command->callback([&line] { line.What = CommandLine::Command::Mark; });
}

void addDelete(CLI::App& app, CommandLine& line) {
    CLI::App* command = app.add_subcommand("delete", "Delete all clippings of a day, after a question");
    addDay(*command, "DAY", line.Day, "The day to delete")->required();
    command->callback([&line] { line.What = CommandLine::Command::Delete; });
}

void addSetup(CLI::App& app, CommandLine& line) {
    CLI::App* command = app.add_subcommand("setup", "Show or change the settings");
    command->add_option("KEY", line.Key, "The setting; all of them without one");
    command->add_option("VALUE", line.Value,
                        "Its new value; '-' reads it from the standard input, which keeps a password out of the "
                        "list of processes");
    command->callback([&line] { line.What = CommandLine::Command::Setup; });
}

void addSchedule(CLI::App& app, CommandLine& line) {
    CLI::App* command = app.add_subcommand("schedule", "Show or change the weekly schedule");
    command->require_subcommand(0, 1);
    command->callback([&line, command] {
        if (command->get_subcommands().empty()) line.What = CommandLine::Command::Schedule;
    });
    CLI::App* add = command->add_subcommand("add", "Add an entry: days and a time, or a time alone for every day");
    auto words = std::make_shared<std::vector<std::string>>();
    add->add_option("ENTRY", *words, "For example \"Mon Wed 07:30\"")->required();
    add->callback([&line, words] {
        line.What = CommandLine::Command::ScheduleAdd;
        for (const std::string& word : *words)
            line.Entry += (line.Entry.empty() ? "" : " ") + word;
    });
    CLI::App* remove = command->add_subcommand("remove", "Remove an entry by its number");
    remove->add_option("N", line.Number, "As 'schedule' shows it")->required();
    remove->callback([&line] { line.What = CommandLine::Command::ScheduleRemove; });
}

void addUpdate(CLI::App& app, CommandLine& line) {
    CLI::App* command = app.add_subcommand("update", "Look for a newer version of this program and fetch it");
    CLI::Option* check = command->add_flag("--check", line.Check, "Say only what there is");
    command->add_flag("--install", line.Install, "Without a question, and install it at once")->excludes(check);
    command->callback([&line] { line.What = CommandLine::Command::Update; });
}

void describe(CLI::App& app, CommandLine& line) {
    app.name("vell-console");
    app.description("Fetches the press clippings of a day and lists them.");
    app.set_version_flag("--version", "vell-console " + buildFacts().Version);
    app.set_help_flag("-h,--help", "Show this help");
    app.fallthrough();
    app.require_subcommand(1);
    app.add_option("--folder", line.Folder, "The program folder: where vell.ini and vell.log lie")->type_name("DIR");
    app.add_flag("--yes", line.Yes, "Answer every question with yes");
    addDownload(app, line);
    addList(app, line);
    app.add_subcommand("days", "Show the days that have been fetched, newest first")->callback([&line] {
        line.What = CommandLine::Command::Days;
    });
    addOpen(app, line);
    addShow(app, line);
    addMark(app, line);
    addPrint(app, line);
    addDelete(app, line);
    addSetup(app, line);
    addSchedule(app, line);
    addUpdate(app, line);
    app.add_subcommand("watch", "Keep the weekly schedule until Ctrl-C or SIGTERM")->callback([&line] {
        line.What = CommandLine::Command::Watch;
    });
    app.footer(
        "Exit codes: 0 ended well, 1 a file or the list could not be fetched, or something was not opened, shown,\n"
        "marked, printed or deleted, 2 wrong usage, 3 no internet connection, 5 already running, 130 stopped with\n"
        "Ctrl-C (watch: 0).");
}

}  // namespace

std::optional<CommandLine> parseCommandLine(std::vector<std::string> arguments, Terminal& terminal, int& exitCode) {
    CommandLine line;
    CLI::App app;
    describe(app, line);
    std::reverse(arguments.begin(), arguments.end());  // the library takes them from the back
    try {
        app.parse(std::move(arguments));
        return line;
    } catch (const CLI::RequiredError& error) {
        const auto unknown = app.remaining();
        terminal.Write(Terminal::Stream::Error,
                       unknown.empty() ? std::string(error.what()) : "There is no command '" + unknown.front() + "'");
        terminal.Write(Terminal::Stream::Error, "\n'vell-console --help' shows what there is.\n");
        exitCode = exit_code::Usage;
    } catch (const CLI::ParseError& error) {
        std::ostringstream output;
        std::ostringstream problem;
        exitCode = app.exit(error, output, problem) == 0 ? exit_code::Good : exit_code::Usage;
        terminal.Write(Terminal::Stream::Output, output.str());
        terminal.Write(Terminal::Stream::Error, problem.str());
    }
    return std::nullopt;
}

}  // namespace vell
